// Adjacency graphs of sparse matrices, and orders of elimination.
#pragma once

#include <cstdint>
#include <span>
#include <utility>

#include "base/workspace.hpp"
#include "sparse/pattern/compressed.hpp"

namespace quorin::sparse {

enum class [[nodiscard]] Outcome{
    kDone,       kOutOfMemory,
    kBadPattern,  // column starts that decrease or begin elsewhere than at 0, an index outside the matrix, not square
    kTooLarge,    // more entries than the 32-bit indices can count
    kFailed,      // a library that we call gave up
};

// An undirected graph: each edge in the lists of both its ends, no vertex in its own list, lists ascending.
class Graph {
 public:
  int size() const noexcept { return size_; }
  // Twice the number of edges.
  int directed_edges() const noexcept { return starts_[size()]; }
  std::span<const int> neighbours(int v) const noexcept {
    return {adjacency_.data() + starts_[v], static_cast<std::size_t>(degree(v))};
  }
  int degree(int v) const noexcept { return starts_[v + 1] - starts_[v]; }
  const int* starts() const noexcept { return starts_.data(); }
  const int* adjacency() const noexcept { return adjacency_.data(); }

 private:
  friend Outcome build_graph(const Pattern& pattern, Graph& graph) noexcept;
  friend Outcome induced_subgraph(const Graph& graph, std::span<const int> vertices, std::span<int> number,
                                  Graph& subgraph) noexcept;
  friend Outcome quotient_graph(const Graph& graph, std::span<const int> part, int parts, Graph& quotient) noexcept;

  int size_ = 0;
  base::Workspace<int> starts_, adjacency_;
};

// The graph of A + A^T for a square A: of a symmetric matrix, whose triangle alone is stored, or of any other. The
// diagonal and repetitions are dropped. Time: O(columns + entries).
Outcome build_graph(const Pattern& pattern, Graph& graph) noexcept;

// The graph on `vertices`, numbered as they stand in the list. number[v] must be v's position for vertices of the list
// and negative for all others. Ascending only if the list is.
Outcome induced_subgraph(const Graph& graph, std::span<const int> vertices, std::span<int> number,
                         Graph& subgraph) noexcept;

// The graph whose vertices are `parts` sets of vertices, joined where any of their members are: part[v] is the set of
// v. Its lists do not ascend. kOutOfMemory.
Outcome quotient_graph(const Graph& graph, std::span<const int> part, int parts, Graph& quotient) noexcept;

// An order of elimination and its inverse: permutation[k] is eliminated in step k, inverse[permutation[k]] = k.
// Borrowed arrays of n.
struct Ordering {
  int* permutation;
  int* inverse;

  void place(int vertex, int step) const noexcept {
    permutation[step] = vertex;
    inverse[vertex] = step;
  }
};

}  // namespace quorin::sparse
