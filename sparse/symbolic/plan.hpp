// What is known of a factorization before any number is: the order of elimination, the supernodes, the rows of each,
// their tree, sizes and work.
//
// Steps of elimination are the plan's own, 0, ..., n - 1: those of the given ordering, rearranged so that supernodes'
// columns follow each other, subtrees' supernodes do, too, subtrees of a supernode come in the order that needs the
// smallest stack, and the rows that a descendant has within a supernode lie together. No panel grows by that.
//
// A supernode s eliminates the columns first(s), ..., first(s) + columns(s) - 1. All of them are stored with the same
// rows: these columns themselves (the diagonal block), and below(s).
//
// Sources: J. W. H. Liu, E. G. Ng, B. W. Peyton, On finding supernodes for sparse matrix computations, SIAM J. Matrix
// Anal. Appl. 14 (1993) 242-252; C. Ashcraft, R. Grimes, The influence of relaxed supernode partitions on the
// multifrontal method, ACM TOMS 15 (1989) 291-309; J. W. H. Liu, On the storage requirement in the out-of-core
// multifrontal method for sparse factorization, ACM TOMS 12 (1986) 249-264.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "base/workspace.hpp"
#include "sparse/pattern/graph.hpp"

namespace quorin::sparse {

// Whether U is the mirror image of L, so that a panel holds L alone.
enum class PanelKind { kSymmetric, kUnsymmetric };

enum class Method { kLeftLooking, kMultifrontal };

struct PlanOptions {
  // The last steps of the ordering, which stay the last in their order and are not eliminated: they make a supernode of
  // their own, whose panel receives the Schur complement.
  int schur_size = 0;
  // Of n vertices the one that each should share a supernode with, or kNone: 2x2 pivots that a matching proposes. It is
  // heeded for neighbours in the graph of which one's step comes right after the other's. May be null.
  const int* pair_of = nullptr;
  // Elements that no panel of this kind shall have more of, for panels that are not all in memory; 0: no bound. Wide
  // supernodes are cut into several, which each hold eight of the columns or more and may part 2x2 pivots; the Schur
  // complement's supernode stays whole.
  std::int64_t most_elements = 0;
  PanelKind panels = PanelKind::kSymmetric;
};

// Supernodes first, ..., end - 1 with all their descendants.
struct SupernodeRange {
  int first, end;
};

inline constexpr int kRangesPerPart = 8;

// Immutable once built; any number of factorizations, in any number of threads, share it.
class Plan {
 public:
  // The graph is A's, or that of A + A^T; the ordering may come from anywhere. kOutOfMemory; kTooLarge when the row
  // lists have more than 2^31 - 1 entries. The plan is as it was unless kDone is returned. Neither argument is kept.
  Outcome build(const Graph& graph, const Ordering& ordering, const PlanOptions& options = {}) noexcept;

  int size() const noexcept { return size_; }
  int schur_size() const noexcept { return schur_size_; }
  // permutation()[k] is the vertex of step k, inverse() its inverse.
  const int* permutation() const noexcept { return permutation_.data(); }
  const int* inverse() const noexcept { return inverse_.data(); }

  int supernodes() const noexcept { return supernodes_; }
  // Supernodes that are eliminated: all, but with a Schur complement all but the last.
  int eliminated() const noexcept { return supernodes_ - (schur_size_ > 0 ? 1 : 0); }
  int first(int s) const noexcept { return first_[s]; }
  int columns(int s) const noexcept { return first_[s + 1] - first_[s]; }
  // The rows below the diagonal block, ascending.
  std::span<const int> below(int s) const noexcept {
    return {rows_.data() + row_starts_[s], static_cast<std::size_t>(below_count(s))};
  }
  int below_count(int s) const noexcept { return row_starts_[s + 1] - row_starts_[s]; }
  int rows(int s) const noexcept { return columns(s) + below_count(s); }
  // The supernode with the first of the rows below, or the first part of one that was cut; kNone at a root.
  int parent(int s) const noexcept { return parent_[s]; }
  // The first supernode of the subtree whose root is s: it consists of first_descendant(s), ..., s.
  int first_descendant(int s) const noexcept { return first_descendant_[s]; }
  int supernode_of(int k) const noexcept { return supernode_of_[k]; }

  // The leading dimension of a panel: columns(s) rows of the diagonal block, the rows below, and for kUnsymmetric as
  // many once more for the columns of U.
  int height(PanelKind kind, int s) const noexcept {
    return columns(s) + (kind == PanelKind::kUnsymmetric ? 2 : 1) * below_count(s);
  }
  // Elements of panel s, of all panels, and of the largest.
  std::int64_t panel_size(PanelKind kind, int s) const noexcept {
    return static_cast<std::int64_t>(height(kind, s)) * columns(s);
  }
  std::int64_t panel_elements(PanelKind kind) const noexcept { return panel_elements_[kind != PanelKind::kSymmetric]; }
  std::int64_t largest_panel(PanelKind kind) const noexcept { return largest_panel_[kind != PanelKind::kSymmetric]; }
  int most_columns() const noexcept { return most_columns_; }
  int most_below() const noexcept { return most_below_; }

  // Entries of L in the given order, without the zeros that the panels store, and the height of the elimination tree.
  std::int64_t entries() const noexcept { return entries_; }
  int depth() const noexcept { return depth_; }
  // Multiplications, additions and divisions of scalars for L L^H or L D L^T of these panels; LU takes twice as many.
  // Without those of the Schur complement's own factorization.
  double operations() const noexcept { return work_[supernodes_]; }
  // The operations of supernodes 0, ..., s - 1, each with its updates of others: the part of the work that is done when
  // these are. Ascending; s <= supernodes().
  double operations_before(int s) const noexcept { return work_[s]; }

  // The most elements that a stack of square update matrices holds, one for each supernode whose parent has not been
  // made yet, below_count(s)^2 elements each: what the multifrontal method needs beside the panels.
  std::int64_t stack_elements() const noexcept { return stack_elements_; }

  // Elements of the update matrix of s.
  std::int64_t update_size(int s) const noexcept { return std::int64_t{below_count(s)} * below_count(s); }
  // Calls body(c) for the children of s, the last one first: it lies on top of the stack.
  template <class Body>
  void for_children(int s, const Body& body) const {
    for (int c = s - 1; c >= first_descendant(s); c = first_descendant(c) - 1) body(c);
  }

  // Cuts the supernodes that are eliminated into disjoint ranges of whole subtrees, each with at most 1 / parts of all
  // operations (or of the panels' elements), in ascending order; `ranges` holds up to kRangesPerPart * parts. Returns
  // their number. What is in no range, because it is too much or too little, comes after the ranges: none of it lies
  // below a supernode of a range.
  int cut_by_operations(int parts, SupernodeRange* ranges) const noexcept;
  int cut_by_elements(int parts, SupernodeRange* ranges) const noexcept;

 private:
  friend class Archive;
  // Cuts supernodes whose panels have more elements than that. kOutOfMemory, kTooLarge.
  Outcome cut_supernodes(PanelKind kind, std::int64_t most_elements) noexcept;
  // Room for what measure() finds.
  bool allocate_tree() noexcept;
  // What follows from these, from the permutation and from the parents: subtrees, sizes and work.
  void measure() noexcept;
  // The same, and the inverse, from lists and parents that may be anything. False if no plan has them.
  bool complete_from_lists() noexcept;

  int size_ = 0, schur_size_ = 0, supernodes_ = 0, depth_ = 0, most_columns_ = 0, most_below_ = 0;
  std::int64_t entries_ = 0, stack_elements_ = 0, panel_elements_[2] = {}, largest_panel_[2] = {};
  base::Workspace<int> permutation_, inverse_, supernode_of_;
  base::Workspace<int> first_, row_starts_, parent_, first_descendant_, rows_;
  base::Workspace<double> work_, elements_;
};

}  // namespace quorin::sparse
