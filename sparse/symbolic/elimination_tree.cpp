#include "sparse/symbolic/elimination_tree.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorin::sparse {

bool StepNeighbours::build(const Graph& graph, const Ordering& ordering) noexcept {
  const int n = graph.size();
  const auto size = static_cast<std::size_t>(n);
  size_ = n;
  starts_ = base::Workspace<int>(size + 1);
  later_ = base::Workspace<int>(size);
  steps_ = base::Workspace<int>(static_cast<std::size_t>(graph.directed_edges()));
  if (!starts_ || !later_ || !steps_) return false;
  starts_[0] = 0;
  for (int k = 0; k < n; ++k) {
    const auto list = graph.neighbours(ordering.permutation[k]);
    starts_[k + 1] = starts_[k] + static_cast<int>(list.size());
    // From both ends, without a branch that nothing foretells: each step is written to either place, and one advances.
    int *front = steps_.data() + starts_[k], *back = steps_.data() + starts_[k + 1] - 1;
    for (const int neighbour : list) {
      const int i = ordering.inverse[neighbour];
      const bool is_earlier = i < k;
      *front = *back = i;
      front += is_earlier ? 1 : 0;
      back -= is_earlier ? 0 : 1;
    }
    later_[k] = static_cast<int>(front - steps_.data());
  }
  return true;
}

void elimination_tree(const StepNeighbours& neighbours, int* parent, int* scratch) noexcept {
  int* const ancestor = scratch;
  for (int k = 0; k < neighbours.size(); ++k) {
    parent[k] = ancestor[k] = kNone;
    for (int i : neighbours.earlier(k)) {
      // From a_ki up to the root of the tree so far, whose parent is k; the path is shortened to k.
      while (i != kNone && i != k) {
        const int next = ancestor[i];
        ancestor[i] = k;
        if (next == kNone) parent[i] = k;
        i = next;
      }
    }
  }
}

void postorder(int n, const int* parent, int* order, int* order_parent, int* scratch) noexcept {
  int* const first_child = scratch;
  int* const next_sibling = scratch + n;
  int* const place = first_child;  // of nodes that have theirs: all their children have been visited
  std::fill_n(first_child, n, kNone);
  for (int k = n - 1; k >= 0; --k) {
    if (parent[k] == kNone) continue;
    next_sibling[k] = first_child[parent[k]];
    first_child[parent[k]] = k;
  }
  int count = 0;
  for (int root = 0; root < n; ++root) {
    if (parent[root] != kNone) continue;
    // The stack is the path from the node to the root: its links are the parents'.
    for (int node = root; node != kNone;) {
      if (const int child = first_child[node]; child != kNone) {
        first_child[node] = next_sibling[child];
        node = child;
      } else {
        place[node] = count;
        order[count++] = node;
        node = parent[node];
      }
    }
  }
  for (int k = 0; k < n; ++k) order_parent[k] = parent[order[k]] == kNone ? kNone : place[parent[order[k]]];
}

namespace {

// The root of a node's tree in a forest whose roots are their own ancestors; the path is shortened.
int root_of(int node, int* ancestor) noexcept {
  int root = node;
  while (root != ancestor[root]) root = ancestor[root];
  while (node != root) node = std::exchange(ancestor[node], root);
  return root;
}

}  // namespace

void column_counts(const StepNeighbours& neighbours, const int* order, const int* parent, int* counts,
                   int* scratch) noexcept {
  const int n = neighbours.size();
  // Row i of the factor has a subtree of the tree. Its leaves come in postorder: a neighbour of i is one if the leaf
  // before it is not among its descendants.
  int *const first_descendant = scratch, *const previous_leaf = scratch + n, *const ancestor = scratch + 2 * n;
  std::iota(first_descendant, first_descendant + n, 0);
  std::iota(ancestor, ancestor + n, 0);
  std::fill_n(previous_leaf, n, kNone);
  // A node without children begins with the diagonal; the others with what their children bring.
  for (int k = 0; k < n; ++k) {
    const int first = first_descendant[k], p = parent[k];
    counts[k] = first == k ? 1 : 0;
    if (p != kNone) first_descendant[p] = std::min(first_descendant[p], first);
  }
  for (int k = 0; k < n; ++k) {
    const int first = first_descendant[k];
    int leaves = 0;
    for (const int i : neighbours.later(order[k])) {
      const int leaf_before = previous_leaf[i];
      if (first <= leaf_before) continue;
      previous_leaf[i] = k;
      ++leaves;
      // Both leaves' paths have the row from their least common ancestor on.
      if (leaf_before != kNone) --counts[root_of(leaf_before, ancestor)];
    }
    counts[k] += leaves;
    if (parent[k] == kNone) continue;
    --counts[parent[k]];
    ancestor[k] = parent[k];
  }
  for (int k = 0; k < n; ++k) {
    if (parent[k] != kNone) counts[parent[k]] += counts[k];
  }
}

std::int64_t factor_entries(const Graph& graph, const Ordering& ordering) noexcept {
  const int n = graph.size();
  base::Workspace<int> work(base::saturating_product(static_cast<std::size_t>(n), 6));
  StepNeighbours neighbours;
  if (!work || !neighbours.build(graph, ordering)) return -1;
  int *const tree = work.data(), *const order = tree + n, *const parent = order + n, *const scratch = parent + n;
  int* const counts = tree;  // one after the other
  elimination_tree(neighbours, tree, scratch);
  postorder(n, tree, order, parent, scratch);
  column_counts(neighbours, order, parent, counts, scratch);
  return std::accumulate(counts, counts + n, std::int64_t{0});
}

}  // namespace quorin::sparse
