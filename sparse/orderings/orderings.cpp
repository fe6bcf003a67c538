#include "sparse/orderings/orderings.hpp"

#include <numeric>
#include <utility>

#include "sparse/orderings/minimum_degree.hpp"
#include "sparse/symbolic/elimination_tree.hpp"

namespace quorin::sparse {

using base::Workspace;

void invert(int n, const Ordering& ordering) noexcept {
  for (int k = 0; k < n; ++k) ordering.inverse[ordering.permutation[k]] = k;
}

void order_identity(int n, const Ordering& ordering) noexcept {
  for (int k = 0; k < n; ++k) ordering.place(k, k);
}

namespace {

class SplitMix64 {
 public:
  explicit SplitMix64(std::uint64_t seed) noexcept : state_(seed) {}

  // Uniform in [0, bound): the high word of a product, whose rare surplus cases are drawn again (Lemire, ACM TOMACS 29,
  // 2019).
  std::uint32_t below(std::uint32_t bound) noexcept {
    for (;;) {
      const std::uint64_t product = std::uint64_t{next()} * bound;
      const auto low = static_cast<std::uint32_t>(product);
      if (low >= bound || low >= (0U - bound) % bound) return static_cast<std::uint32_t>(product >> 32);
    }
  }

 private:
  std::uint32_t next() noexcept {
    std::uint64_t z = state_ += 0x9e3779b97f4a7c15U;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
    return static_cast<std::uint32_t>((z ^ (z >> 31)) >> 32);
  }

  std::uint64_t state_;
};

}  // namespace

void order_random(int n, std::uint64_t seed, const Ordering& ordering) noexcept {
  SplitMix64 numbers(seed);
  std::iota(ordering.permutation, ordering.permutation + n, 0);
  for (int k = n - 1; k > 0; --k) {
    std::swap(ordering.permutation[k], ordering.permutation[numbers.below(static_cast<std::uint32_t>(k) + 1)]);
  }
  invert(n, ordering);
}

namespace {

// The neighbour of a leaf; kNone for a vertex that is left alone.
int neighbour_left(const Graph& graph, int leaf, const Workspace<int>& degree) noexcept {
  for (const int w : graph.neighbours(leaf)) {
    if (degree[w] != kNone) return w;
  }
  return kNone;
}

// Removes vertices with at most one neighbour left, until there are none. degree[v] becomes the number of neighbours
// left, kNone for what was removed. Returns how many those are; they have the first steps of the ordering.
int peel_leaves(const Graph& graph, const Ordering& ordering, Workspace<int>& degree) noexcept {
  int step = 0;
  for (int v = 0; v < graph.size(); ++v) degree[v] = graph.degree(v);
  for (int first = 0; first < graph.size(); ++first) {
    // Up the branch for as long as it has no other.
    for (int v = first; v != kNone && degree[v] != kNone && degree[v] <= 1;) {
      const int parent = neighbour_left(graph, v, degree);
      degree[v] = kNone;
      ordering.place(v, step++);
      if (parent != kNone) --degree[parent];
      v = parent;
    }
  }
  return step;
}

}  // namespace

Outcome order_tree(const Graph& graph, const Ordering& ordering) noexcept {
  const auto n = static_cast<std::size_t>(graph.size());
  Workspace<int> number(n);
  if (!number) return Outcome::kOutOfMemory;
  const int peeled = peel_leaves(graph, ordering, number);
  const std::size_t left = n - static_cast<std::size_t>(peeled);
  if (left == 0) return Outcome::kDone;

  Workspace<int> core(left), order(base::saturating_product(left, 2));
  if (!core || !order) return Outcome::kOutOfMemory;
  int count = 0;
  for (int v = 0; v < graph.size(); ++v) {
    if (number[v] == kNone) continue;
    number[v] = count;
    core[count++] = v;
  }
  Graph subgraph;
  Outcome outcome = induced_subgraph(graph, {core.data(), left}, {number.data(), n}, subgraph);
  if (outcome != Outcome::kDone) return outcome;
  const Ordering of_core{order.data(), order.data() + left};
  outcome = order_minimum_degree(subgraph, of_core);
  if (outcome != Outcome::kDone) return outcome;
  for (int k = 0; k < count; ++k) ordering.place(core[of_core.permutation[k]], peeled + k);
  return Outcome::kDone;
}

}  // namespace quorin::sparse
