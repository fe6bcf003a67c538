// Triads to columns.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/workspace.hpp"
#include "families/slap/slap.hpp"

namespace quorin::slap {
namespace {

// Parallel arrays that are sorted by the first of them; places are one-based. What a host gets for repeated entries and
// for columns without a diagonal depends on every exchange below, so none may change.
template <class... Carried>
class KeyedArrays {
 public:
  explicit KeyedArrays(int* keys, Carried*... carried) : keys_(keys), carried_(carried...) {}

  int key(int place) const { return keys_[place - 1]; }

  void exchange(int p, int q) {
    std::swap(keys_[p - 1], keys_[q - 1]);
    std::apply([p, q](auto*... array) { (std::swap(array[p - 1], array[q - 1]), ...); }, carried_);
  }

  // Moves the entry at `from` down to `to` < from, and those between up by one.
  void insert(int from, int to) {
    std::rotate(keys_ + to - 1, keys_ + from - 1, keys_ + from);
    std::apply([from, to](auto*... array) { (std::rotate(array + to - 1, array + from - 1, array + from), ...); },
               carried_);
  }

 private:
  int* keys_;
  std::tuple<Carried*...> carried_;
};

// R. C. Singleton, Algorithm 347: an efficient algorithm for sorting with minimal storage, CACM 12 (1969) 185-187, with
// a split that wanders.
template <class Arrays>
class SingletonSort {
 public:
  SingletonSort(Arrays arrays, int first, int last) : arrays_(arrays), first_(first), last_(last) {}

  void run() {
    Segment segment{first_, last_};
    for (;;) {
      if (is_split(segment)) {
        segment = split(segment);
        continue;
      }
      insert_all(segment);
      if (pending_count_ == 0) return;
      segment = pending_[--pending_count_];
    }
  }

 private:
  struct Segment {
    int begin, end;
    int length() const { return end - begin; }
  };

  // The very first segment is split down to nothing, so that the insertion always meets an entry that is not greater.
  bool is_split(Segment s) const { return s.length() > kShort || (s.begin == first_ && s.length() > 0); }

  int split_place(Segment s) {
    ratio_ += ratio_ <= 0.5898437 ? 0.0390625 : -0.21875;
    return s.begin + static_cast<int>(s.length() * ratio_);
  }

  // The middle one of three keys, which are put in order.
  int median(Segment s, int place) {
    if (arrays_.key(s.begin) > arrays_.key(place)) arrays_.exchange(s.begin, place);
    if (arrays_.key(s.end) < arrays_.key(place)) {
      arrays_.exchange(s.end, place);
      if (arrays_.key(s.begin) > arrays_.key(place)) arrays_.exchange(s.begin, place);
    }
    return arrays_.key(place);
  }

  // Returns the shorter part, and keeps the longer one for later.
  Segment split(Segment s) {
    const int pivot = median(s, split_place(s));
    int low = s.begin, high = s.end;
    for (;;) {
      do --high;
      while (arrays_.key(high) > pivot);
      do ++low;
      while (arrays_.key(low) < pivot);
      if (low > high) break;
      arrays_.exchange(low, high);
    }
    const Segment left{s.begin, high}, right{low, s.end};
    const bool keeps_left = left.length() > right.length();
    pending_[pending_count_++] = keeps_left ? left : right;
    return keeps_left ? right : left;
  }

  void insert_all(Segment s) {
    for (int i = s.begin + 1; i <= s.end; ++i) {
      int place = i;
      while (arrays_.key(place - 1) > arrays_.key(i)) --place;
      if (place < i) arrays_.insert(i, place);
    }
  }

  static constexpr int kShort = 10;
  Arrays arrays_;
  int first_, last_;
  double ratio_ = 0.375;
  // Each kept segment is at least as long as all that follow it together.
  std::array<Segment, 64> pending_;
  std::size_t pending_count_ = 0;
};

template <class... Carried>
void sort_by(int first, int last, int* keys, Carried*... carried) {
  SingletonSort(KeyedArrays(keys, carried...), first, last).run();
}

// ja(c) <- first place of column c, from columns ja in ascending order. It reads ja in front of where it writes as long
// as no column is empty; an empty one leaves ja(c) as it was, which may be anything.
void mark_column_starts(int n, int nelt, int* ja) {
  ja[0] = 1;
  for (int c = 1; c < n; ++c) {
    const std::int64_t start = ja[c - 1];
    for (std::int64_t j = std::max<std::int64_t>(start + 1, 1); j <= nelt; ++j) {
      if (ja[j - 1] == c) continue;
      ja[c] = static_cast<int>(j);
      break;
    }
  }
  ja[n] = nelt + 1;
  ja[n + 1] = 0;
}

// Sorts by exchanges in the order that decides where repeated rows end.
void exchange_sort(int first, int last, int* rows, float* a) {
  KeyedArrays column(rows, a);
  for (int i = first; i < last; ++i) {
    for (int j = i + 1; j <= last; ++j) {
      if (column.key(i) > column.key(j)) column.exchange(i, j);
    }
  }
}

// Whether rows(first..last) are all different, and all within 1..n. False also when there is no memory to tell.
bool are_different(int n, int first, int last, const int* rows) {
  base::Workspace<bool> seen(static_cast<std::size_t>(n));
  if (!seen) return false;
  std::fill(seen.begin(), seen.end(), false);
  for (int k = first; k <= last; ++k) {
    const int row = rows[k - 1];
    if (row < 1 || row > n || seen[static_cast<std::size_t>(row - 1)]) return false;
    seen[static_cast<std::size_t>(row - 1)] = true;
  }
  return true;
}

// Sorts rows(first..last). Exchanges take quadratic time, so a long column goes another way if the result is the same.
void sort_rows(int n, int first, int last, int* rows, float* a) {
  constexpr int kLong = 100;
  if (std::is_sorted(rows + first - 1, rows + last)) return;
  if (last - first >= kLong && are_different(n, first, last, rows)) {
    sort_by(first, last, rows, a);
  } else {
    exchange_sort(first, last, rows, a);
  }
}

void order_column(int n, int column, int begin, int end, int* ia, float* a) {
  int* const diagonal = std::find(ia + begin - 1, ia + end, column);
  const auto place = static_cast<int>(diagonal - ia);
  if (place < end) KeyedArrays(ia, a).exchange(begin, place + 1);
  if (begin + 1 < end) sort_rows(n, begin + 1, end, ia, a);
}

}  // namespace

void to_column_format(int n, int nelt, int* ia, int* ja, float* a, const int*) noexcept {
  if (n < 1 || nelt < 1 || ja[n] == nelt + 1) return;
  sort_by(1, nelt, ja, ia, a);
  mark_column_starts(n, nelt, ja);
  for (int c = 1; c <= n; ++c) {
    const int begin = ja[c - 1], end = std::min(ja[c] - 1, nelt);
    if (begin >= 1 && begin <= end) order_column(n, c, begin, end, ia, a);
  }
}

void print_structure(const int*, const int*, const int*, const int*, const float*, const int*, const int*) noexcept {}

}  // namespace quorin::slap
