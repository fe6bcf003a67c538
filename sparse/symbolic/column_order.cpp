#include "sparse/symbolic/column_order.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorin::sparse {

namespace {

// Classes of steps that stand side by side: at first one for each supernode.
class Partition {
 public:
  bool create(const SupernodeRows& supernodes, int n) noexcept {
    const auto size = static_cast<std::size_t>(n);
    memory_ = base::Workspace<int>(base::saturating_product(size, 9));
    if (!memory_) return false;
    order_ = memory_.data();
    place_ = order_ + n;
    class_of_ = place_ + n;
    begin_ = class_of_ + n;
    end_ = begin_ + n;
    taken_ = end_ + n;
    moved_ = taken_ + n;
    goes_right_ = moved_ + n;
    touched_ = goes_right_ + n;
    std::iota(order_, order_ + n, 0);
    std::iota(place_, place_ + n, 0);
    std::copy_n(supernodes.supernode_of, n, class_of_);
    count_ = supernodes.supernodes;
    std::copy_n(supernodes.first, count_, begin_);
    std::copy_n(supernodes.first + 1, count_, end_);
    std::fill_n(taken_, n, 0);
    return true;
  }

  int place(int step) const noexcept { return place_[step]; }

  // Splits the classes of the supernode of steps first, ..., end - 1 so that each has all of the set's steps or none.
  // What is split off a class moves to the side where its neighbour has steps of the set, too.
  void refine(const int* set, int size, int end) noexcept {
    int touched = 0;
    for (int i = 0; i < size; ++i) {
      const int c = class_of_[set[i]];
      if (taken_[c]++ == 0) touched_[touched++] = c;
    }
    bool is_split = false;
    for (int t = 0; t < touched; ++t) {
      const int c = touched_[t];
      moved_[c] = 0;
      is_split = is_split || taken_[c] < end_[c] - begin_[c];
      goes_right_[c] = end_[c] < end && taken_[class_of_[order_[end_[c]]]] > 0;
    }
    if (is_split) {
      for (int i = 0; i < size; ++i) {
        const int c = class_of_[set[i]];
        if (taken_[c] == end_[c] - begin_[c]) continue;
        exchange(place_[set[i]], goes_right_[c] != 0 ? end_[c] - 1 - moved_[c] : begin_[c] + moved_[c]);
        ++moved_[c];
      }
    }
    for (int t = 0; t < touched; ++t) {
      const int c = touched_[t], moved = std::exchange(taken_[c], 0);
      if (moved == end_[c] - begin_[c]) continue;
      const int fresh = count_++;
      begin_[fresh] = goes_right_[c] != 0 ? end_[c] - moved : begin_[c];
      end_[fresh] = begin_[fresh] + moved;
      (goes_right_[c] != 0 ? end_[c] : begin_[c]) += goes_right_[c] != 0 ? -moved : moved;
      for (int k = begin_[fresh]; k < end_[fresh]; ++k) class_of_[order_[k]] = fresh;
    }
  }

 private:
  void exchange(int p, int q) noexcept {
    std::swap(order_[p], order_[q]);
    place_[order_[p]] = p;
    place_[order_[q]] = q;
  }

  base::Workspace<int> memory_;
  int *order_ = nullptr, *place_ = nullptr;  // of each place the step, and its inverse
  int* class_of_ = nullptr;
  int count_ = 0;
  // Of each class: its places, how many of its steps are in the set and how many have been moved, and whither.
  int *begin_ = nullptr, *end_ = nullptr, *taken_ = nullptr, *moved_ = nullptr, *goes_right_ = nullptr;
  int* touched_ = nullptr;
};

// Calls body(rows, count, p) for the rows of supernode s that stand in one supernode p.
template <class Body>
void for_each_block(const SupernodeRows& all, int s, const Body& body) noexcept {
  int* const end = all.rows + all.row_starts[s + 1];
  for (int* block = all.rows + all.row_starts[s]; block != end;) {
    const int p = all.supernode_of[*block];
    int* next = block + 1;
    while (next != end && *next < all.first[p + 1]) ++next;
    body(block, static_cast<int>(next - block), p);
    block = next;
  }
}

}  // namespace

bool order_columns(const SupernodeRows& supernodes, int movable, int n, const Ordering& ordering) noexcept {
  Partition partition;
  base::Workspace<int> vertices(static_cast<std::size_t>(n));
  if (!vertices || !partition.create(supernodes, n)) return false;
  // Supernodes that come last have the largest updates: their rows are put together first. Those of few columns have
  // little to add, and of a narrow panel little is scattered.
  constexpr int kFewAdded = 8, kFewColumns = 16;
  for (int d = supernodes.supernodes - 1; d >= 0; --d) {
    if (supernodes.first[d + 1] - supernodes.first[d] <= kFewAdded) continue;
    for_each_block(supernodes, d, [&](const int* rows, int count, int s) {
      const int end = supernodes.first[s + 1], columns = end - supernodes.first[s];
      if (count > 1 && count < columns && columns > kFewColumns && s < movable) partition.refine(rows, count, end);
    });
  }
  for (int d = 0; d < supernodes.supernodes; ++d) {
    bool is_ascending = true;
    int before = 0;
    for (int k = supernodes.row_starts[d]; k < supernodes.row_starts[d + 1]; ++k) {
      supernodes.rows[k] = partition.place(supernodes.rows[k]);
      is_ascending = is_ascending && supernodes.rows[k] >= before;
      before = supernodes.rows[k];
    }
    // Rows stay in their supernodes' places.
    if (is_ascending) continue;
    for_each_block(supernodes, d, [&](int* rows, int count, int) {
      const auto [least, most] = std::minmax_element(rows, rows + count);
      if (*most - *least == count - 1) {
        std::iota(rows, rows + count, int{*least});
      } else {
        std::sort(rows, rows + count);
      }
    });
  }
  std::copy_n(ordering.permutation, n, vertices.begin());
  for (int k = 0; k < n; ++k) ordering.place(vertices[static_cast<std::size_t>(k)], partition.place(k));
  return true;
}

}  // namespace quorin::sparse
