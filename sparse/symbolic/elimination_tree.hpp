// The elimination tree of a symmetric matrix and the size of its Cholesky factor, without computing the factor.
#pragma once

#include <cstdint>
#include <span>

#include "base/workspace.hpp"
#include "sparse/pattern/graph.hpp"

namespace quorin::sparse {

// The neighbours of each step of an ordering, as steps. Which of two neighbours comes first is the same in all orders
// with the same elimination tree, so that these lists serve for its postorders, too.
class StepNeighbours {
 public:
  // False without memory. Neither argument is kept. Time: O(n + edges).
  [[nodiscard]] bool build(const Graph& graph, const Ordering& ordering) noexcept;

  int size() const noexcept { return size_; }
  std::span<const int> earlier(int k) const noexcept { return {steps_.data() + starts_[k], steps_.data() + later_[k]}; }
  std::span<const int> later(int k) const noexcept {
    return {steps_.data() + later_[k], steps_.data() + starts_[k + 1]};
  }

 private:
  int size_ = 0;
  base::Workspace<int> starts_, later_;  // where the lists, and where their later steps begin
  base::Workspace<int> steps_;
};

// The tree of P A P^T: parent[k] is the row of the first entry below the diagonal in column k of the factor, kNone at a
// root. Nodes are steps of the ordering. `scratch`: n. Time: O(edges log n), near linear in practice. Liu, ACM TOMS 12
// (1986).
void elimination_tree(const StepNeighbours& neighbours, int* parent, int* scratch) noexcept;

// Nodes in an order in which children come before their parents and every subtree is contiguous: order[k] is the k-th,
// and order_parent[k] the place of its parent in this order, kNone at a root. `scratch`: 2 n. No recursion: trees may
// be as deep as they have nodes.
void postorder(int n, const int* parent, int* order, int* order_parent, int* scratch) noexcept;

// The entries of the factor's columns, diagonal included: counts[k] is that of node order[k]. `order` and `parent` are
// as postorder() makes them; `scratch`: 3 n. Time: as the tree's. Gilbert, Ng & Peyton, SIAM J. Matrix Anal. Appl. 15
// (1994).
void column_counts(const StepNeighbours& neighbours, const int* order, const int* parent, int* counts,
                   int* scratch) noexcept;

// The entries of the factor, diagonal included, or -1 if there is no memory.
std::int64_t factor_entries(const Graph& graph, const Ordering& ordering) noexcept;

}  // namespace quorin::sparse
