#include "sparse/symbolic/column_order.hpp"

#include <algorithm>
#include <bit>
#include <limits>
#include <numeric>
#include <utility>

namespace quorin::sparse {

namespace {

// Classes of steps that stand side by side: at first one for each supernode.
class Partition {
 public:
  bool create(const SupernodeRows& supernodes, int n) noexcept {
    const auto size = static_cast<std::size_t>(n);
    memory_ = base::Workspace<int>(base::saturating_product(size, 4));
    classes_ = base::Workspace<Class>(size);
    if (!memory_ || !classes_) return false;
    order_ = memory_.data();
    place_ = order_ + n;
    class_of_ = place_ + n;
    touched_ = class_of_ + n;
    std::iota(order_, order_ + n, 0);
    std::iota(place_, place_ + n, 0);
    std::copy_n(supernodes.supernode_of, n, class_of_);
    for (int s = 0; s < supernodes.supernodes; ++s) add_class(supernodes.first[s], supernodes.first[s + 1]);
    return true;
  }

  int place(int step) const noexcept { return place_[step]; }

  // Splits the classes of the supernode of steps first, ..., end - 1 so that each has all of the set's steps or none.
  // What is split off a class moves to the side where its neighbour has steps of the set, too.
  void refine(const int* set, int size, int end) noexcept {
    int touched = 0;
    for (int i = 0; i < size; ++i) {
      const int c = class_of_[set[i]];
      if (class_at(c).taken++ == 0) touched_[touched++] = c;
    }
    bool is_split = false;
    for (int t = 0; t < touched; ++t) {
      Class& c = class_at(touched_[t]);
      c.moved = 0;
      c.goes_right = c.end < end && class_at(class_of_[order_[c.end]]).taken > 0;
      is_split = is_split || c.is_cut();
    }
    if (is_split) {
      for (int i = 0; i < size; ++i) {
        Class& c = class_at(class_of_[set[i]]);
        if (!c.is_cut()) continue;
        exchange(place_[set[i]], c.goes_right ? c.end - 1 - c.moved : c.begin + c.moved);
        ++c.moved;
      }
    }
    for (int t = 0; t < touched; ++t) {
      Class& c = class_at(touched_[t]);
      const bool is_cut = c.is_cut();
      const int moved = std::exchange(c.taken, 0);
      if (!is_cut) continue;
      const int begin = c.goes_right ? c.end - moved : c.begin, fresh = add_class(begin, begin + moved);
      (c.goes_right ? c.end : c.begin) += c.goes_right ? -moved : moved;
      for (int k = begin; k < begin + moved; ++k) class_of_[order_[k]] = fresh;
    }
  }

 private:
  struct Class {
    int begin, end;  // its places
    int taken = 0;   // how many of its steps are in the set
    int moved = 0;   // how many of these have been moved, and whither
    bool goes_right = false;

    bool is_cut() const noexcept { return taken < end - begin; }
  };

  Class& class_at(int c) noexcept { return classes_[static_cast<std::size_t>(c)]; }
  int add_class(int begin, int end) noexcept {
    class_at(count_) = {begin, end};
    return count_++;
  }
  void exchange(int p, int q) noexcept {
    std::swap(order_[p], order_[q]);
    place_[order_[p]] = p;
    place_[order_[q]] = q;
  }

  base::Workspace<int> memory_;
  base::Workspace<Class> classes_;
  int *order_ = nullptr, *place_ = nullptr;  // of each place the step, and its inverse
  int *class_of_ = nullptr, *touched_ = nullptr;
  int count_ = 0;
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

// A set of numbers, as bits.
using Mark = std::size_t;
constexpr int kMarkBits = std::numeric_limits<Mark>::digits;

std::size_t mark_words(int range) noexcept { return static_cast<std::size_t>(range / kMarkBits) + 1; }

// Sorts different numbers first, ..., first + range - 1. `marks`: mark_words(range).
void sort_in_range(int* numbers, int count, int first, int range, Mark* marks) noexcept {
  std::fill_n(marks, mark_words(range), Mark{0});
  for (int i = 0; i < count; ++i) {
    const int number = numbers[i] - first;
    marks[number / kMarkBits] |= Mark{1} << number % kMarkBits;
  }
  for (int base = first; count > 0; base += kMarkBits) {
    for (Mark word = *marks++; word != 0; word &= word - 1) {
      *numbers++ = base + std::countr_zero(word);
      --count;
    }
  }
}

}  // namespace

bool order_columns(const SupernodeRows& supernodes, int movable, int n, const Ordering& ordering) noexcept {
  Partition partition;
  base::Workspace<int> vertices(static_cast<std::size_t>(n));
  base::Workspace<Mark> marks(mark_words(n));
  if (!vertices || !marks || !partition.create(supernodes, n)) return false;
  // Supernodes that come last have the largest updates: their rows are put together first. Those of few columns have
  // little to add, and of a narrow panel little is scattered.
  constexpr int kFewAdded = 16, kFewColumns = 32;
  for (int d = supernodes.supernodes - 1; d >= 0; --d) {
    if (supernodes.first[d + 1] - supernodes.first[d] <= kFewAdded) continue;
    for_each_block(supernodes, d, [&](const int* rows, int count, int s) {
      const int end = supernodes.first[s + 1], columns = end - supernodes.first[s];
      if (count > 1 && count < columns && columns > kFewColumns && s < movable) partition.refine(rows, count, end);
    });
  }
  int* const rows = supernodes.rows;
  const int row_count = supernodes.row_starts[supernodes.supernodes];
  for (int k = 0; k < row_count; ++k) rows[k] = partition.place(rows[k]);
  // Rows stay in their supernodes' places.
  for (int d = 0; d < supernodes.supernodes; ++d) {
    const int begin = supernodes.row_starts[d], end = supernodes.row_starts[d + 1];
    for (int k = begin + 1; k < end; ++k) {
      if (rows[k - 1] < rows[k]) continue;
      const int s = supernodes.supernode_of[rows[k]], first = supernodes.first[s], last = supernodes.first[s + 1] - 1;
      int block = k - 1;
      while (block > begin && rows[block - 1] >= first) --block;
      while (k < end && rows[k] <= last) ++k;
      sort_in_range(rows + block, k - block, first, last - first + 1, marks.data());
    }
  }
  std::copy_n(ordering.permutation, n, vertices.begin());
  for (int k = 0; k < n; ++k) ordering.place(vertices[static_cast<std::size_t>(k)], partition.place(k));
  return true;
}

}  // namespace quorin::sparse
