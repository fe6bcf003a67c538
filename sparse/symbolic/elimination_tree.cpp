#include "sparse/symbolic/elimination_tree.hpp"

#include <algorithm>
#include <numeric>

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

void postorder(int n, const int* parent, int* order, int* scratch) noexcept {
  int* const first_child = scratch;
  int* const next_sibling = scratch + n;
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
        order[count++] = node;
        node = parent[node];
      }
    }
  }
}

namespace {

// The nodes of the tree in which row i of the factor has a leaf: row subtrees, taken in postorder.
class RowSubtrees {
 public:
  RowSubtrees(int n, int* scratch) noexcept
      : deepest_first_(scratch), previous_leaf_(scratch + n), ancestor_(scratch + 2 * n) {
    std::fill_n(deepest_first_, n, kNone);
    std::fill_n(previous_leaf_, n, kNone);
    std::iota(ancestor_, ancestor_ + n, 0);
  }

  // Whether node j, whose first descendant is `first` in postorder, is a leaf of row i's subtree. Then `overlap` is the
  // least common ancestor of it and the leaf before, or kNone.
  bool is_leaf(int i, int j, int first, int& overlap) noexcept {
    if (first <= deepest_first_[i]) return false;
    deepest_first_[i] = first;
    overlap = previous_leaf_[i];
    previous_leaf_[i] = j;
    if (overlap != kNone) overlap = root_of(overlap);
    return true;
  }
  void link(int j, int parent) noexcept { ancestor_[j] = parent; }

 private:
  int root_of(int node) noexcept {
    int root = node;
    while (root != ancestor_[root]) root = ancestor_[root];
    while (node != root) node = std::exchange(ancestor_[node], root);
    return root;
  }

  int* deepest_first_;
  int* previous_leaf_;
  int* ancestor_;
};

}  // namespace

void column_counts(const StepNeighbours& neighbours, const int* parent, const int* order, int* counts,
                   int* scratch) noexcept {
  const int n = neighbours.size();
  int* const first_descendant = scratch;
  std::fill_n(first_descendant, n, kNone);
  // A node without children begins with the diagonal; the others with what their children bring.
  for (int k = 0; k < n; ++k) {
    counts[order[k]] = first_descendant[order[k]] == kNone ? 1 : 0;
    for (int j = order[k]; j != kNone && first_descendant[j] == kNone; j = parent[j]) first_descendant[j] = k;
  }
  RowSubtrees rows(n, scratch + n);
  for (int k = 0; k < n; ++k) {
    const int j = order[k];
    if (parent[j] != kNone) --counts[parent[j]];
    for (const int i : neighbours.later(j)) {
      int overlap = kNone;
      if (rows.is_leaf(i, j, first_descendant[j], overlap)) {
        ++counts[j];
        if (overlap != kNone) --counts[overlap];
      }
    }
    if (parent[j] != kNone) rows.link(j, parent[j]);
  }
  // Parents have higher numbers than their children.
  for (int j = 0; j < n; ++j) {
    if (parent[j] != kNone) counts[parent[j]] += counts[j];
  }
}

std::int64_t factor_entries(const Graph& graph, const Ordering& ordering) noexcept {
  const int n = graph.size();
  base::Workspace<int> work(base::saturating_product(static_cast<std::size_t>(n), 7));
  StepNeighbours neighbours;
  if (!work || !neighbours.build(graph, ordering)) return -1;
  int* const parent = work.data();
  int* const order = parent + n;
  int* const counts = order + n;
  int* const scratch = counts + n;
  elimination_tree(neighbours, parent, scratch);
  postorder(n, parent, order, scratch);
  column_counts(neighbours, parent, order, counts, scratch);
  return std::accumulate(counts, counts + n, std::int64_t{0});
}

}  // namespace quorin::sparse
