// Triads to columns.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
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

// Whether ja, in ascending order, holds all of 1..n and nothing else.
bool has_all_columns(int n, int nelt, const int* ja) {
  if (ja[0] != 1 || ja[nelt - 1] != n) return false;
  return std::adjacent_find(ja, ja + nelt, [](int c, int next) { return next > c + 1; }) == ja + nelt;
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

// The numbers of smaller keys that go before each place, as a tree of partial sums: P. M. Fenwick, A new data structure
// for cumulative frequency tables, Software: Practice and Experience 24 (1994) 327-336.
class Counts {
 public:
  Counts(int size, int* sums) : size_(size), sums_(sums) { std::fill_n(sums, size, 0); }
  void add(int rank) {
    for (int i = rank; i < size_; i |= i + 1) ++sums_[i];
  }
  int below(int rank) const {
    int count = 0;
    for (int i = rank; i > 0; i &= i - 1) count += sums_[i - 1];
    return count;
  }

 private:
  int size_;
  int* sums_;
};

// Entries in a ring, whose first one can be sent behind the others.
class Ring {
 public:
  // next(k) of an entry k in the ring is the entry behind it.
  explicit Ring(int* next) : next_(next) {}

  void append(int k) {
    next_[k] = length_ == 0 ? k : next_[last_];
    if (length_ != 0) next_[last_] = k;
    last_ = k;
    ++length_;
  }
  void turn(int times) {
    for (times %= length_; times > 0; --times) last_ = next_[last_];
  }
  int take_turn() { return last_ = next_[last_]; }

 private:
  int* next_;
  int last_ = 0, length_ = 0;
};

// What exchange_sort does, in time n^1.5 at worst. An exchange moves an entry behind equal ones only on behalf of a
// smaller one: in turn, each smaller entry sends the first of the equal entries in front of it behind the others of
// those. False if there is no memory.
bool sort_like_exchanges(int count, int* rows, float* a) {
  const auto size = static_cast<std::size_t>(count);
  base::Workspace<int> order(size), rank(size), links(size);
  base::Workspace<float> values(size);
  if (!order || !rank || !links || !values) return false;
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](int p, int q) { return std::pair(rows[p], p) < std::pair(rows[q], q); });
  for (int k = 0; k < count; ++k) {
    const bool is_equal = k > 0 && rows[order[k]] == rows[order[k - 1]];
    rank[order[k]] = is_equal ? rank[order[k - 1]] : k;
  }
  Counts counts(count, links.data());
  base::Workspace<int>& smaller_before = rank;
  for (int k = 0; k < count; ++k) {
    const int own = rank[k];
    smaller_before[k] = counts.below(own);
    counts.add(own);
  }
  for (int begin = 0, end = 0; begin < count; begin = end) {
    Ring equals(links.data());
    int smaller = smaller_before[order[begin]];
    for (; end < count && rows[order[end]] == rows[order[begin]]; ++end) {
      if (end > begin) equals.turn(smaller_before[order[end]] - std::exchange(smaller, smaller_before[order[end]]));
      equals.append(order[end]);
    }
    equals.turn(begin - smaller);
    for (int k = begin; k < end; ++k) values[k] = a[equals.take_turn()];
  }
  std::sort(rows, rows + count);
  std::copy(values.begin(), values.end(), a);
  return true;
}

// Sorts rows(first..last). Exchanges take quadratic time.
void sort_rows(int first, int last, int* rows, float* a) {
  constexpr int kLong = 100;
  if (std::is_sorted(rows + first - 1, rows + last)) return;
  const int count = last - first + 1;
  if (count > kLong && sort_like_exchanges(count, rows + first - 1, a + first - 1)) return;
  exchange_sort(first, last, rows, a);
}

void order_column(int column, int begin, int end, int* ia, float* a) {
  int* const diagonal = std::find(ia + begin - 1, ia + end, column);
  const auto place = static_cast<int>(diagonal - ia);
  if (place < end) KeyedArrays(ia, a).exchange(begin, place + 1);
  if (begin + 1 < end) sort_rows(begin + 1, end, ia, a);
}

// Forms columns from triads in ascending order of their columns.
void form_columns(int n, int nelt, int* ia, int* ja, float* a) {
  mark_column_starts(n, nelt, ja);
  for (int c = 1; c <= n; ++c) {
    const int begin = ja[c - 1], next = ja[c];
    if (begin >= 1 && begin <= nelt && begin < next) order_column(c, begin, std::min(next - 1, nelt), ia, a);
  }
}

}  // namespace

void to_column_format(int n, int nelt, int* ia, int* ja, float* a, const int*) noexcept {
  if (n < 1 || nelt < 1 || ja[n] == nelt + 1) return;
  if (std::any_of(ja, ja + nelt, [n](int c) { return c < 1 || c > n; })) return;
  sort_by(1, nelt, ja, ia, a);
  form_columns(n, nelt, ia, ja, a);
}

bool bring_to_columns(int n, int nelt, int* ia, int* ja, float* a) {
  if (ja[n] == nelt + 1) return true;
  sort_by(1, nelt, ja, ia, a);
  if (!has_all_columns(n, nelt, ja)) return false;
  form_columns(n, nelt, ia, ja, a);
  return true;
}

void print_structure(const int*, const int*, const int*, const int*, const float*, const int*, const int*) noexcept {}

}  // namespace quorin::slap
