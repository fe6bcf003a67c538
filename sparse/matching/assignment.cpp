#include "sparse/matching/assignment.hpp"

#include <algorithm>
#include <cstdint>

namespace quorin::sparse {
namespace {

constexpr double kFar = std::numeric_limits<double>::infinity();

// How often columns without a row bid for one, and how many entries they may look at for each that there is.
constexpr int kBiddingRounds = 2, kBiddingWork = 8;

}  // namespace

Assignment::Assignment(int n) noexcept : n_(n) {
  int** const integers[] = {&row_of_, &column_of_, &entry_of_, &from_,  &by_,
                            &heap_,   &place_,     &tree_,     &group_, &buried_};
  double** const doubles[] = {&u_, &v_, &distance_};
  const auto size = static_cast<std::size_t>(n);
  numbers_ = base::Workspace<int>(base::saturating_product(size, std::size(integers)));
  reals_ = base::Workspace<double>(base::saturating_product(size, std::size(doubles)));
  if (!*this) return;
  std::ptrdiff_t offset = 0;
  for (int** const array : integers) *array = numbers_.data() + offset, offset += n;
  offset = 0;
  for (double** const array : doubles) *array = reals_.data() + offset, offset += n;
}

int Assignment::solve(const CostMatrix& matrix) noexcept {
  matrix_ = matrix;
  const int rank = attempt(true);
  // Columns that compete for too few rows bid without an end: their duals may have left all bounds.
  return rank == n_ ? rank : attempt(false);
}

int Assignment::attempt(bool with_bids) noexcept {
  start();
  match_row_minima();
  std::copy_n(matrix_.starts, n_, group_);  // for exchange()
  for (int j = 0; j < n_; ++j) {
    if (row_of_[j] == kNone) match_cheaply(j);
  }
  if (with_bids) bid_for_rows();
  std::fill_n(group_, n_, kNone);
  int rank = 0;
  for (int j = 0; j < n_; ++j) rank += row_of_[j] != kNone || augment(j) ? 1 : 0;
  lower_buried_rows();
  return rank;
}

void Assignment::start() noexcept {
  std::fill_n(row_of_, n_, kNone);
  std::fill_n(column_of_, n_, kNone);
  std::fill_n(place_, n_, kOutside);
  std::fill_n(u_, n_, kForbidden);
  std::fill_n(v_, n_, 0.0);
  std::fill_n(distance_, n_, kFar);
  heap_size_ = tree_size_ = buried_count_ = group_count_ = 0;
}

// u_i <- the least cost of row i, whose entry is taken if its column is free: then v_j = 0 is right, since no c_ij -
// u_i is negative. Of equal costs that of the diagonal counts, which keeps the permuted matrix as symmetric as it was.
void Assignment::match_row_minima() noexcept {
  for (int j = 0; j < n_; ++j) {
    for (int k = matrix_.starts[j]; k < matrix_.starts[j + 1]; ++k) {
      const int i = matrix_.indices[k];
      if (matrix_.costs[k] < u_[i] || (matrix_.costs[k] == u_[i] && i == j)) {
        u_[i] = matrix_.costs[k];
        from_[i] = j;
        by_[i] = k;
      }
    }
  }
  for (int i = 0; i < n_; ++i) {
    if (u_[i] == kForbidden) {
      u_[i] = 0;
    } else if (row_of_[from_[i]] == kNone || from_[i] == i) {
      if (row_of_[from_[i]] != kNone) column_of_[row_of_[from_[i]]] = kNone;
      match(i, from_[i], by_[i]);
    }
  }
}

// v_j <- the least c_ij - u_i of a free column, and a row for it if one of that cost is free, or becomes free when its
// column takes another one.
bool Assignment::match_cheaply(int j) noexcept {
  const int begin = matrix_.starts[j], end = matrix_.starts[j + 1];
  double least = kForbidden;
  for (int k = begin; k < end; ++k) least = std::min(least, reduced_cost(k, matrix_.indices[k], j));
  if (least == kForbidden) return false;
  v_[j] = least;
  for (int k = begin; k < end; ++k) {
    const int i = matrix_.indices[k];
    if (column_of_[i] == kNone && reduced_cost(k, i, j) <= 0) return match(i, j, k), true;
  }
  for (int k = begin; k < end; ++k) {
    const int i = matrix_.indices[k];
    if (reduced_cost(k, i, j) <= 0 && exchange(i, j, k)) return true;
  }
  return false;
}

// Gives row i to the free column j, if the column that has it finds a free row of no reduced cost. Since rows once
// matched stay so, no column is searched twice: group_ holds its first entry that was not tried.
bool Assignment::exchange(int i, int j, int entry) noexcept {
  const int owner = column_of_[i];
  int& untried = group_[owner];
  while (untried < matrix_.starts[owner + 1]) {
    const int k = untried++, other = matrix_.indices[k];
    if (column_of_[other] != kNone || reduced_cost(k, other, owner) > 0) continue;
    match(other, owner, k);
    match(i, j, entry);
    return true;
  }
  return false;
}

// Each column without a row takes the one that is cheapest for it, from the column that has it if need be, which then
// does the same. Such chains may be long, and end only where there are rows enough: so their work is limited.
void Assignment::bid_for_rows() noexcept {
  std::int64_t work = kBiddingWork * matrix_.starts[n_];
  for (int round = 0; round < kBiddingRounds; ++round) {
    for (int first = 0; first < n_; ++first) {
      if (row_of_[first] != kNone) continue;
      for (int j = first; j != kNone && work > 0; j = bid(j)) work -= matrix_.starts[j + 1] - matrix_.starts[j];
    }
  }
}

// The column takes its cheapest row and lowers u there until another row is as cheap: no other row is cheaper for it
// now, and no reduced cost has fallen. Returns the column that has lost its row, kNone if none has.
int Assignment::bid(int j) noexcept {
  double least = kForbidden, second = kForbidden;
  int entry = kNone;
  for (int k = matrix_.starts[j]; k < matrix_.starts[j + 1]; ++k) {
    const int i = matrix_.indices[k];
    const double cost = matrix_.costs[k] - u_[i];
    if (cost < least || (cost == least && column_of_[i] == kNone)) {
      second = least;
      least = cost;
      entry = k;
    } else {
      second = std::min(second, cost);
    }
  }
  if (entry == kNone || least == kForbidden) return kNone;
  v_[j] = least;
  const int i = matrix_.indices[entry], loser = column_of_[i];
  if (loser != kNone) {
    if (second == least || second == kForbidden) return kNone;
    row_of_[loser] = kNone;
    u_[i] -= second - least;
    v_[j] = matrix_.costs[entry] - u_[i];
  }
  match(i, j, entry);
  return loser;
}

// One row more, from the free column `root`. Distances are sums of reduced costs along alternating paths; they ascend
// in the tree. False if no free row can be reached.
bool Assignment::augment(int root) noexcept {
  bound_ = kFar;
  end_ = kNone;
  tree_size_ = 0;
  heap_size_ = 0;
  scan(root, 0);
  for (int k = 0;; ++k) {
    if (k == tree_size_) {
      if (heap_size_ == 0) break;
      const int nearest = heap_[0];
      if (distance_[nearest] >= bound_) break;
      remove_from_heap(nearest);
      place_[nearest] = kInTree;
      tree_[tree_size_++] = nearest;
    }
    const int i = tree_[k];
    if (distance_[i] >= bound_) break;
    scan(column_of_[i], distance_[i]);
  }
  if (end_ == kNone) {
    bury_tree(root);
    return false;
  }
  update_row_duals();
  flip_path(root);
  forget_tree();
  return true;
}

// Reaches the rows of a column at the given distance.
void Assignment::scan(int j, double distance) noexcept {
  for (int k = matrix_.starts[j]; k < matrix_.starts[j + 1]; ++k) {
    const int i = matrix_.indices[k];
    if (place_[i] <= kInTree) continue;
    const double by_way_of_j = distance + reduced_cost(k, i, j);
    if (!(by_way_of_j < bound_ && by_way_of_j < distance_[i])) continue;
    from_[i] = j;
    by_[i] = k;
    if (column_of_[i] == kNone) {
      bound_ = by_way_of_j;
      end_ = i;
    } else if (by_way_of_j <= distance) {  // no row is nearer
      if (place_[i] != kOutside) remove_from_heap(i);
      distance_[i] = distance;
      place_[i] = kInTree;
      tree_[tree_size_++] = i;
    } else {
      distance_[i] = by_way_of_j;
      rise(i, place_[i] == kOutside ? heap_size_++ : place_[i]);
    }
  }
}

// All rows nearer than the path's end: together with what flip_path does to the columns, this keeps reduced costs from
// falling below 0 and makes those along the path 0.
void Assignment::update_row_duals() noexcept {
  for (int k = 0; k < tree_size_; ++k) {
    const int i = tree_[k];
    u_[i] += std::min(distance_[i] - bound_, 0.0);
  }
}

// Matches along the path, and makes all matched entries of the tree tight.
void Assignment::flip_path(int root) noexcept {
  for (int i = end_;;) {
    const int j = from_[i], next = row_of_[j];
    match(i, j, by_[i]);
    if (j == root) break;
    i = next;
  }
  const auto tighten = [this](int i) { v_[column_of_[i]] = matrix_.costs[entry_of_[column_of_[i]]] - u_[i]; };
  for (int k = 0; k < tree_size_; ++k) tighten(tree_[k]);
  tighten(end_);
}

void Assignment::forget_tree() noexcept {
  const auto forget = [this](int i) {
    place_[i] = kOutside;
    distance_[i] = kFar;
  };
  std::for_each(tree_, tree_ + tree_size_, forget);
  std::for_each(heap_, heap_ + heap_size_, forget);
}

// The columns of the tree have entries in its rows and in rows that were buried before only. No later path can lead
// through it to a free row, so no later search enters it.
void Assignment::bury_tree(int root) noexcept {
  const auto bury = [this](int j) {
    group_[j] = group_count_;
    buried_[buried_count_++] = j;
  };
  bury(root);
  for (int k = 0; k < tree_size_; ++k) {
    place_[tree_[k]] = kBuried;
    bury(column_of_[tree_[k]]);
  }
  ++group_count_;
}

// Searches have passed over the buried rows, so that their reduced costs may have fallen below 0 in columns that were
// not buried with them. To lower u in the rows of a group and raise v in its columns by the same leaves the costs
// within it as they are, and outside touches only rows that were buried earlier: so the last group comes first.
void Assignment::lower_buried_rows() noexcept {
  if (group_count_ == 0) return;
  double* const excess = distance_;  // by group
  std::fill_n(excess, group_count_, 0.0);
  const auto measure = [&](int j) {
    const double raised = group_[j] == kNone ? 0 : excess[group_[j]];
    for (int k = matrix_.starts[j]; k < matrix_.starts[j + 1]; ++k) {
      const int i = matrix_.indices[k];
      const int group = place_[i] == kBuried ? group_[column_of_[i]] : kNone;
      if (group != kNone && group != group_[j]) excess[group] = std::max(excess[group], raised - reduced_cost(k, i, j));
    }
  };
  for (int j = 0; j < n_; ++j) {
    if (group_[j] == kNone) measure(j);
  }
  for (int k = buried_count_ - 1; k >= 0; --k) measure(buried_[k]);
  for (int k = 0; k < buried_count_; ++k) {
    const int j = buried_[k];
    v_[j] += excess[group_[j]];
    if (row_of_[j] != kNone) u_[row_of_[j]] -= excess[group_[j]];
  }
}

void Assignment::rise(int i, int place) noexcept {
  while (place > 0) {
    const int above = (place - 1) / 2;
    if (distance_[heap_[above]] <= distance_[i]) break;
    put(heap_[above], place);
    place = above;
  }
  put(i, place);
}

void Assignment::sink(int i, int place) noexcept {
  for (int below = 2 * place + 1; below < heap_size_; below = 2 * place + 1) {
    if (below + 1 < heap_size_ && distance_[heap_[below + 1]] < distance_[heap_[below]]) ++below;
    if (distance_[i] <= distance_[heap_[below]]) break;
    put(heap_[below], place);
    place = below;
  }
  put(i, place);
}

void Assignment::remove_from_heap(int i) noexcept {
  const int place = place_[i], last = heap_[--heap_size_];
  if (last == i) return;
  sink(last, place);
  rise(last, place_[last]);
}

}  // namespace quorin::sparse
