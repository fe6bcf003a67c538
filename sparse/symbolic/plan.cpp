#include "sparse/symbolic/plan.hpp"

#include <algorithm>
#include <limits>
#include <numeric>

#include "sparse/symbolic/column_order.hpp"
#include "sparse/symbolic/elimination_tree.hpp"
#include "sparse/symbolic/supernodes.hpp"

namespace quorin::sparse {

using base::Workspace;

namespace {

std::size_t to_size(int n) noexcept { return static_cast<std::size_t>(n); }

// The elimination tree with the steps in postorder.
struct OrderedTree {
  explicit OrderedTree(int n) noexcept
      : memory(base::saturating_product(to_size(n), 7)),
        given(memory.data()),
        parent(given + n),
        counts(parent + n),
        scratch(counts + n) {}

  Workspace<int> memory;
  int* given;  // steps of the given ordering
  int *parent, *counts;
  int* scratch;  // 4 n
};

// Rearranges the ordering into a postorder of its tree, and counts the entries of the factor's columns. The last
// `schur_size` steps are taken for a clique, so that they remain the last: each is the parent of the one before, and
// comes after all of its other children.
void order_tree_by_depth(const StepNeighbours& neighbours, int schur_size, OrderedTree& tree) noexcept {
  const int n = neighbours.size();
  int* const given_parent = tree.counts;  // one after the other
  elimination_tree(neighbours, given_parent, tree.scratch);
  for (int k = n - schur_size; k < n; ++k) given_parent[k] = k + 1 < n ? k + 1 : kNone;
  postorder(n, given_parent, tree.given, tree.parent, tree.scratch);
  column_counts(neighbours, tree.given, tree.parent, tree.counts, tree.scratch);
  for (int k = n - schur_size; k < n; ++k) tree.counts[k] = n - k;
}

// The remaining supernodes in postorder, the children of each arranged so that a stack of update matrices is smallest.
struct Arrangement {
  explicit Arrangement(int supernodes) noexcept
      : memory(base::saturating_product(to_size(supernodes), 5) + 1),
        peak(to_size(supernodes)),
        order(memory.data()),
        child_starts(order + supernodes),
        children(child_starts + supernodes + 1),
        place(children + supernodes) {}

  Workspace<int> memory;
  Workspace<double> peak;
  int count = 0;
  int* order;         // supernodes by their new numbers
  int* child_starts;  // count + 1
  int* children;
  int* place;  // new numbers
};

double update_size(const Supernodes& supernodes, int s) noexcept {
  return static_cast<double>(supernodes.below[s]) * supernodes.below[s];
}

// If children c_1, c_2, ... of s need P(c) elements at the most and leave U(c), then s needs the largest of
// U(c_1) + ... + U(c_i-1) + P(c_i) and, when all of them are added into its own update, U(c_1) + ... + U(s). That is
// least with P(c) - U(c) descending. Liu, ACM TOMS 12 (1986) 249-264.
double least_stack(const Supernodes& supernodes, int s, Arrangement& arranged) noexcept {
  int* const begin = arranged.children + arranged.child_starts[s];
  int* const end = arranged.children + arranged.child_starts[s + 1];
  const auto rest = [&](int c) { return arranged.peak[to_size(c)] - update_size(supernodes, c); };
  std::sort(begin, end, [&](int a, int b) { return rest(a) != rest(b) ? rest(a) > rest(b) : a < b; });
  double left = 0, most = 0;
  for (const int* c = begin; c != end; ++c) {
    most = std::max(most, left + arranged.peak[to_size(*c)]);
    left += update_size(supernodes, *c);
  }
  return std::max(most, left + update_size(supernodes, s));
}

void arrange(const Supernodes& supernodes, const int* parent, const int* merged_into, Arrangement& arranged) noexcept {
  const int count = supernodes.count;
  // Those that remain, ascending. They make way for the order: at a root at most all up to it have their places.
  int *const remaining = arranged.order, *const next = arranged.place;
  int remaining_count = 0;
  for (int s = 0; s < count; ++s) {
    remaining[remaining_count] = s;
    remaining_count += merged_into[s] == s ? 1 : 0;
  }
  std::fill_n(next, count, 0);
  for (int i = 0; i < remaining_count; ++i) {
    if (const int p = parent[remaining[i]]; p != kNone) ++next[p];
  }
  cumulate(count, next, arranged.child_starts);
  for (int i = 0; i < remaining_count; ++i) {
    if (const int p = parent[remaining[i]]; p != kNone) arranged.children[next[p]++] = remaining[i];
  }
  for (int i = 0; i < remaining_count; ++i) {
    arranged.peak[to_size(remaining[i])] = least_stack(supernodes, remaining[i], arranged);
  }
  // Postorder: down to the next child that has not been visited, else up.
  std::copy_n(arranged.child_starts, count, next);
  for (int i = 0; i < remaining_count; ++i) {
    if (parent[remaining[i]] != kNone) continue;
    for (int s = remaining[i]; s != kNone;) {
      if (next[s] < arranged.child_starts[s + 1]) {
        s = arranged.children[next[s]++];
      } else {
        arranged.order[arranged.count++] = s;
        s = parent[s];
      }
    }
  }
  for (int k = 0; k < arranged.count; ++k) arranged.place[arranged.order[k]] = k;
}

// 1^2 + ... + m^2
double sum_of_squares(double m) noexcept { return m * (m + 1) * (2 * m + 1) / 6; }

// Operations on columns with length + width - 1, ..., length rows below them. With r rows: the pivot, r divisions, and
// multiples are subtracted from r columns of 1, ..., r rows; (r + 1)^2 together.
double column_operations(double width, double length) noexcept {
  return sum_of_squares(length + width) - sum_of_squares(length);
}

// `before` is ascending, from 0 to the sum.
template <class Before>
int cut_tree(const Plan& plan, int parts, const Before& before, SupernodeRange* ranges) noexcept {
  const int count = plan.eliminated();
  const double most = before(count) / parts, least = most / kRangesPerPart;
  int found = 0;
  const auto weight = [&](int first, int end) { return before(end) - before(first); };
  const auto is_subtree_too_much = [&](int s) { return weight(plan.first_descendant(s), s + 1) > most; };
  // Supernodes whose subtree is too much for a part come last, and with them all above. What stands between two of them
  // is whole subtrees, as many as fit into a part.
  SupernodeRange open = {0, 0};
  const auto close = [&] {
    if (open.end > open.first && weight(open.first, open.end) >= least) ranges[found++] = open;
  };
  for (int s = 0; s < count; ++s) {
    if (is_subtree_too_much(s)) {
      close();
      open = {s + 1, s + 1};
      continue;
    }
    const int p = plan.parent(s);
    if (p != kNone && p < count && !is_subtree_too_much(p)) continue;
    const int first = plan.first_descendant(s);  // of a subtree that is cut off at s
    if (weight(open.first, s + 1) > most) {
      close();
      open.first = first;
    }
    open.end = s + 1;
  }
  close();
  return found;
}

}  // namespace

Outcome Plan::build(const Graph& graph, const Ordering& ordering, const PlanOptions& options) noexcept {
  const int n = graph.size();
  Plan plan;
  plan.size_ = n;
  plan.schur_size_ = options.schur_size;
  plan.permutation_ = Workspace<int>(to_size(n));
  plan.inverse_ = Workspace<int>(to_size(n));
  plan.supernode_of_ = Workspace<int>(to_size(n));
  OrderedTree tree(n);
  Supernodes supernodes(n);
  StepNeighbours neighbours;
  if (!plan.permutation_ || !plan.inverse_ || !plan.supernode_of_ || !tree.memory || !supernodes.memory ||
      !neighbours.build(graph, ordering)) {
    return Outcome::kOutOfMemory;
  }
  order_tree_by_depth(neighbours, options.schur_size, tree);
  plan.entries_ = std::accumulate(tree.counts, tree.counts + n, std::int64_t{0});
  int* const height = tree.scratch;
  std::fill_n(height, n, 1);
  for (int k = 0; k < n; ++k) {
    plan.depth_ = std::max(plan.depth_, height[k]);
    if (tree.parent[k] != kNone) height[tree.parent[k]] = std::max(height[tree.parent[k]], height[k] + 1);
  }

  find_supernodes(n, tree.parent, tree.counts, n - options.schur_size, supernodes);
  const int fundamental = supernodes.count;
  int* const merged_into = tree.scratch;
  int* must_merge = nullptr;
  if (options.pair_of != nullptr) {
    must_merge = tree.scratch + n;
    std::fill_n(must_merge, fundamental, 0);
    const auto vertex = [&](int k) { return ordering.permutation[tree.given[k]]; };
    for (int k = 0; k < n; ++k) {
      const int p = tree.parent[k];
      if (p == kNone || supernodes.of[p] == supernodes.of[k]) continue;
      must_merge[supernodes.of[k]] = options.pair_of[vertex(k)] == vertex(p);
    }
  }
  const int fixed = options.schur_size > 0 ? fundamental - 1 : fundamental;
  if (!merge_supernodes(fixed, must_merge, supernodes, merged_into)) return Outcome::kOutOfMemory;
  int* const parent = tree.scratch + n;
  for (int s = 0; s < fundamental; ++s) {
    parent[s] = supernodes.parent[s] == kNone ? kNone : merged_into[supernodes.parent[s]];
  }
  Arrangement arranged(fundamental);
  if (!arranged.memory || !arranged.peak) return Outcome::kOutOfMemory;
  arrange(supernodes, parent, merged_into, arranged);

  const int count = arranged.count;
  plan.supernodes_ = count;
  plan.first_ = Workspace<int>(to_size(count) + 1);
  plan.row_starts_ = Workspace<int>(to_size(count) + 1);
  plan.parent_ = Workspace<int>(to_size(count));
  if (!plan.first_ || !plan.row_starts_ || !plan.parent_) return Outcome::kOutOfMemory;
  std::int64_t row_count = 0;
  plan.first_[0] = plan.row_starts_[0] = 0;
  for (int s = 0; s < count; ++s) {
    const int old = arranged.order[s];
    const std::size_t i = to_size(s);
    row_count += supernodes.below[old];
    if (row_count > std::numeric_limits<int>::max()) return Outcome::kTooLarge;
    plan.first_[i + 1] = plan.first_[i] + supernodes.columns[old];
    plan.row_starts_[i + 1] = static_cast<int>(row_count);
    plan.parent_[i] = parent[old] == kNone ? kNone : arranged.place[parent[old]];
  }
  // The steps of a supernode in their old order, which is one of elimination.
  int *const next = tree.scratch + 2 * n, *const given_step = tree.parent, *const supernode_of_given = tree.counts;
  std::copy_n(plan.first_.data(), count, next);
  const Ordering steps{plan.permutation_.data(), plan.inverse_.data()};
  for (int k = 0; k < n; ++k) {
    const int s = arranged.place[merged_into[supernodes.of[k]]], step = next[s]++, given = tree.given[k];
    plan.supernode_of_[to_size(step)] = supernode_of_given[given] = s;
    steps.place(ordering.permutation[given], step);
    given_step[step] = given;
  }

  // Row k of the factor: each entry a_ki, i < k, makes entries in all supernodes on the way from i's up to k's.
  plan.rows_ = Workspace<int>(to_size(static_cast<int>(row_count)));
  if (!plan.rows_) return Outcome::kOutOfMemory;
  struct List {  // of a supernode: the last row that has been seen, the place of the next, the parent's list
    int last, next;
    List* parent;
  };
  Workspace<List> lists(to_size(count));
  if (!lists) return Outcome::kOutOfMemory;
  for (int s = 0; s < count; ++s) {
    const int p = plan.parent(s);
    lists[to_size(s)] = {kNone, plan.row_starts_[to_size(s)], p == kNone ? nullptr : lists.data() + p};
  }
  for (int k = 0; k < n; ++k) {
    lists[to_size(plan.supernode_of(k))].last = k;
    for (const int i : neighbours.earlier(given_step[k])) {
      for (List* list = &lists[to_size(supernode_of_given[i])]; list->last != k; list = list->parent) {
        list->last = k;
        plan.rows_[to_size(list->next++)] = k;
      }
    }
  }

  const SupernodeRows rows{count, plan.first_.data(), plan.supernode_of_.data(), plan.row_starts_.data(),
                           plan.rows_.data()};
  if (!order_columns(rows, plan.eliminated(), n, steps)) return Outcome::kOutOfMemory;
  if (options.most_elements > 0) {
    const Outcome outcome = plan.cut_supernodes(options.panels, options.most_elements);
    if (outcome != Outcome::kDone) return outcome;
  }
  if (!plan.allocate_tree()) return Outcome::kOutOfMemory;
  plan.measure();
  *this = std::move(plan);
  return Outcome::kDone;
}

// The parts of a supernode are a chain. Who had it for a parent gets the first of them, even if its own rows begin
// within a later one: so subtrees stay ranges of supernodes.
Outcome Plan::cut_supernodes(PanelKind kind, std::int64_t most_elements) noexcept {
  constexpr int kFewestColumns = 8;  // or the lists of rows would be as long as the factor
  // Calls take(s, column, width, below) for the parts of each supernode: so many columns from that one on, and the rows
  // below them, first of all the supernode's later columns.
  const auto for_each_part = [&](const auto& take) {
    for (int s = 0; s < supernodes_; ++s) {
      for (int column = 0, width = 0; column < columns(s); column += width) {
        const int left = columns(s) - column, length = rows(s) - column;
        const std::int64_t height = (kind == PanelKind::kSymmetric ? 1 : 2) * std::int64_t{length};
        width = s >= eliminated() ? left
                                  : static_cast<int>(std::clamp<std::int64_t>(most_elements / height,
                                                                              std::min(kFewestColumns, left), left));
        take(s, column, width, length - width);
      }
    }
  };
  int parts = 0;
  std::int64_t row_count = 0;
  for_each_part([&](int, int, int, int below_part) {
    ++parts;
    row_count += below_part;
  });
  if (parts == supernodes_) return Outcome::kDone;
  if (row_count > std::numeric_limits<int>::max()) return Outcome::kTooLarge;
  Workspace<int> firsts(to_size(parts) + 1), starts(to_size(parts) + 1), parents(to_size(parts)),
      lists(to_size(static_cast<int>(row_count))), first_part(to_size(supernodes_) + 1);
  if (!firsts || !starts || !parents || !lists || !first_part) return Outcome::kOutOfMemory;
  int part = 0, *next = lists.data();
  for_each_part([&](int s, int column, int width, int below_part) {
    const int begin = first(s) + column, later = below_part - below_count(s);
    const std::size_t i = to_size(part);
    if (column == 0) first_part[to_size(s)] = part;
    std::fill_n(&supernode_of_[to_size(begin)], width, part);
    firsts[i] = begin;
    starts[i] = static_cast<int>(next - lists.data());
    parents[i] = ++part;
    std::iota(next, next + later, begin + width);
    next = std::copy(below(s).begin(), below(s).end(), next + later);
  });
  firsts[to_size(parts)] = size_;
  starts[to_size(parts)] = static_cast<int>(row_count);
  first_part[to_size(supernodes_)] = parts;
  for (int s = 0; s < supernodes_; ++s) {
    parents[to_size(first_part[to_size(s) + 1] - 1)] = parent(s) == kNone ? kNone : first_part[to_size(parent(s))];
  }
  supernodes_ = parts;
  first_.swap(firsts);
  row_starts_.swap(starts);
  rows_.swap(lists);
  parent_.swap(parents);
  return Outcome::kDone;
}

bool Plan::allocate_tree() noexcept {
  const std::size_t count = to_size(supernodes_);
  first_descendant_ = Workspace<int>(count);
  work_ = Workspace<double>(count + 1);
  elements_ = Workspace<double>(count + 1);
  return first_descendant_ && work_ && elements_;
}

void Plan::measure() noexcept {
  std::iota(first_descendant_.begin(), first_descendant_.end(), 0);
  work_[0] = elements_[0] = 0;
  std::int64_t stack = 0;
  for (int s = 0; s < supernodes_; ++s) {
    const std::size_t i = to_size(s);
    const int p = parent(s), width = columns(s), length = below_count(s);
    if (p != kNone) first_descendant_[to_size(p)] = std::min(first_descendant(p), first_descendant(s));
    work_[i + 1] = work_[i] + (s < eliminated() ? column_operations(width, length) : 0);
    elements_[i + 1] = elements_[i] + static_cast<double>(width) * rows(s);
    most_columns_ = std::max(most_columns_, width);
    most_below_ = std::max(most_below_, length);
    for (const PanelKind kind : {PanelKind::kSymmetric, PanelKind::kUnsymmetric}) {
      const auto which = static_cast<std::size_t>(kind);
      panel_elements_[which] += panel_size(kind, s);
      largest_panel_[which] = std::max(largest_panel_[which], panel_size(kind, s));
    }
    // The update is made while the children's are there.
    stack += update_size(s);
    stack_elements_ = std::max(stack_elements_, stack);
    for_children(s, [&](int c) { stack -= update_size(c); });
  }
}

bool Plan::complete_from_lists() noexcept {
  std::fill(inverse_.begin(), inverse_.end(), kNone);
  for (int k = 0; k < size_; ++k) {
    const int vertex = permutation_[to_size(k)];
    if (vertex < 0 || vertex >= size_ || inverse_[to_size(vertex)] != kNone) return false;
    inverse_[to_size(vertex)] = k;
  }
  for (int s = 0; s < supernodes_; ++s) std::fill_n(&supernode_of_[to_size(first(s))], columns(s), s);
  if (schur_size_ > 0 && columns(supernodes_ - 1) != schur_size_) return false;
  for (int s = 0; s < supernodes_; ++s) {
    const std::span<const int> own = below(s);
    for (std::size_t i = 0; i < own.size(); ++i) {
      if (own[i] < (i == 0 ? first_[to_size(s) + 1] : own[i - 1] + 1) || own[i] >= size_) return false;
    }
    const int p = parent(s);
    if (own.empty() ? p != kNone : p <= s || p > supernode_of(own[0])) return false;
  }
  // A supernode's rows are in its parent's front.
  for (int s = 0; s < supernodes_; ++s) {
    const int p = parent(s);
    if (p == kNone) continue;
    const std::span<const int> own = below(s), above = below(p);
    const auto* const outside = std::lower_bound(own.data(), own.data() + own.size(), first(p + 1));
    if (!std::includes(above.begin(), above.end(), outside, own.data() + own.size())) return false;
  }
  measure();
  // Subtrees are whole.
  for (int s = 0; s < supernodes_; ++s) {
    bool is_whole = true;
    for_children(s, [&](int c) { is_whole = is_whole && parent(c) == s; });
    if (!is_whole) return false;
  }
  return true;
}

int Plan::cut_by_operations(int parts, SupernodeRange* ranges) const noexcept {
  return cut_tree(
      *this, parts, [this](int s) { return work_[to_size(s)]; }, ranges);
}

int Plan::cut_by_elements(int parts, SupernodeRange* ranges) const noexcept {
  return cut_tree(
      *this, parts, [this](int s) { return elements_[to_size(s)]; }, ranges);
}

}  // namespace quorin::sparse
