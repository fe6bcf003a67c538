#include "sparse/orderings/minimum_degree.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "sparse/orderings/degree_lists.hpp"
#include "sparse/symbolic/elimination_tree.hpp"

namespace quorin::sparse {
namespace {

using base::Workspace;

// From this size on, two threads are worth their start.
constexpr int kLeastForThreads = 2000;

// How many variables a pass eliminates.
enum class Passes { kOfMany, kOfOne };

// The quotient graph and the elimination on it. A node is a variable (not yet eliminated; those that cannot be told
// apart are one, of the weight of all), an element (eliminated; its variables are a clique), or gone. A variable lists
// its elements, then those variables that no element of it reaches; an element lists its variables. Elements are p, e;
// variables i, j, v.
class MinimumDegree {
 public:
  explicit MinimumDegree(const Graph& graph) noexcept;
  explicit operator bool() const noexcept { return storage_ && nodes_ && degrees_; }

  void run(Passes passes, const Ordering& ordering) noexcept;

 private:
  void load() noexcept;
  void eliminate(int p) noexcept;
  void form_element(int p) noexcept;
  int* take_variables(const int* begin, const int* end, int* to, int p) noexcept;
  bool prune(int i, int p) noexcept;
  void update_degrees(int p) noexcept;
  void measure_overlaps(int p) noexcept;
  bool bound_outside(int i, int p) noexcept;
  void merge_indistinguishable(int p) noexcept;
  void merge_equals(int i) noexcept;
  bool has_marked_list(int j) const noexcept;
  void relist(int i) noexcept;
  void make_room(int length) noexcept;
  void new_marks() noexcept;
  void write(const Ordering& ordering) noexcept;

  bool is_variable(int i) const noexcept { return weight_[i] > 0; }
  bool is_alive(int node) const noexcept { return mark_[node] != 0; }
  int* list(int node) noexcept { return storage_.data() + start_[node]; }
  const int* list(int node) const noexcept { return storage_.data() + start_[node]; }
  std::span<const int> variables_of(int p) const noexcept { return {list(p), static_cast<std::size_t>(length_[p])}; }
  std::span<const int> elements_of(int i) const noexcept { return {list(i), static_cast<std::size_t>(elements_[i])}; }
  void bury(int node) noexcept {
    mark_[node] = 0;
    length_[node] = 0;
  }
  // `from` follows `into` in the ordering.
  void join(int from, int into) noexcept {
    next_member_[last_member_[into]] = from;
    last_member_[into] = last_member_[from];
    weight_[from] = 0;
    bury(from);
  }

  const Graph& graph_;
  const int n_;
  const int most_neighbours_;  // of a vertex that takes part
  Workspace<int> storage_;
  Workspace<int> nodes_;  // the arrays below
  DegreeLists degrees_;

  int* start_ = nullptr;
  int* length_ = nullptr;
  int* elements_ = nullptr;     // a variable's elements, at the head of its list
  int* weight_ = nullptr;       // variables: vertices that it stands for, negative while in the element being formed
  int* span_ = nullptr;         // elements: the weight of its variables
  int* mark_ = nullptr;         // 0 when gone; base_ and more in the course of a step
  int* degree_ = nullptr;       // a bound on the weight of a variable's neighbours
  int* direct_ = nullptr;       // the weight of the variables in a variable's list
  int* outside_ = nullptr;      // a bound on the weight of a variable's neighbours outside of the element at hand
  int* direct_hash_ = nullptr;  // of the variables in its list
  int* next_equal_ = nullptr;   // variables with the same hash
  int* first_equal_ = nullptr;
  int* hash_ = nullptr;
  int* pivots_ = nullptr;   // in the order of elimination
  int* touched_ = nullptr;  // variables whose degrees changed in this pass
  int* next_member_ = nullptr;
  int* last_member_ = nullptr;

  int free_ = 0;  // the end of the lists
  int left_ = 0;  // the weight of all variables
  int base_ = 2;
  int longest_span_ = 0;
  int pivot_count_ = 0;
  int touched_count_ = 0;
};

MinimumDegree::MinimumDegree(const Graph& graph) noexcept
    : graph_(graph),
      n_(graph.size()),
      most_neighbours_(std::max(16, static_cast<int>(10 * std::sqrt(n_)))),
      degrees_(n_) {
  int** const arrays[] = {&start_,  &length_, &elements_, &weight_,      &span_,       &mark_,
                          &degree_, &direct_, &outside_,  &direct_hash_, &next_equal_, &first_equal_,
                          &hash_,   &pivots_, &touched_,  &next_member_, &last_member_};
  const auto n = static_cast<std::size_t>(n_);
  const auto entries = static_cast<std::size_t>(graph.directed_edges());
  // With room for n more than the lists ever need together, a new element always fits; the rest saves compressions.
  const std::size_t room = entries + entries / 5 + n + 1;
  if (room > static_cast<std::size_t>(std::numeric_limits<int>::max())) return;
  storage_ = Workspace<int>(room);
  nodes_ = Workspace<int>(base::saturating_product(n, std::size(arrays)));
  if (!nodes_) return;
  int* next = nodes_.data();
  for (int** const array : arrays) {
    *array = next;
    next += n_;
  }
}

void MinimumDegree::run(Passes passes, const Ordering& ordering) noexcept {
  load();
  while (left_ > 0) {
    const int pass = pivot_count_;
    touched_count_ = 0;
    // The pass takes only vertices that are pairwise not adjacent: elimination takes neighbours out of the lists.
    for (int p = degrees_.take_least(); p != kNone;) {
      eliminate(p);
      p = passes == Passes::kOfMany ? degrees_.take_another() : kNone;
    }
    for (int k = pass; k < pivot_count_; ++k) update_degrees(pivots_[k]);
    // The lists give out first what they got last. After a pass of many, the next begins where this one did.
    if (passes == Passes::kOfMany) std::reverse(touched_, touched_ + touched_count_);
    for (int k = 0; k < touched_count_; ++k) relist(touched_[k]);
  }
  write(ordering);
}

// Vertices with many neighbours are left out, to be eliminated last: their lists would be read over and over.
void MinimumDegree::load() noexcept {
  for (int i = 0; i < n_; ++i) {
    const bool takes_part = graph_.degree(i) <= most_neighbours_;
    weight_[i] = mark_[i] = takes_part ? 1 : 0;
    left_ += weight_[i];
    elements_[i] = 0;
    first_equal_[i] = next_member_[i] = kNone;
    last_member_[i] = i;
  }
  for (int i = 0; i < n_; ++i) {
    start_[i] = free_;
    if (is_variable(i)) {
      for (const int v : graph_.neighbours(i)) {
        if (is_variable(v)) storage_[free_++] = v;
      }
      degrees_.insert(i, free_ - start_[i]);
    }
    degree_[i] = length_[i] = free_ - start_[i];
  }
}

void MinimumDegree::eliminate(int p) noexcept {
  pivots_[pivot_count_++] = p;
  left_ -= weight_[p];
  form_element(p);
  int* const variables = list(p);
  int* kept = variables;
  for (int k = 0; k < length_[p]; ++k) {
    const int i = variables[k];
    if (prune(i, p)) {
      *kept++ = i;
    } else {  // i has no neighbours outside of p: it may as well go with p
      span_[p] += weight_[i];
      left_ += weight_[i];
      join(i, p);
    }
  }
  length_[p] = static_cast<int>(kept - variables);
  if (length_[p] == 0) bury(p);
  longest_span_ = std::max(longest_span_, span_[p]);
  for (const int i : variables_of(p)) {
    weight_[i] = -weight_[i];
    degree_[i] = std::min(degree_[i] + span_[p] - weight_[i], n_ - 1);
  }
}

// The element's variables are those of the pivot and of all its elements, which it absorbs.
void MinimumDegree::form_element(int p) noexcept {
  weight_[p] = 0;
  span_[p] = 0;
  const bool is_in_place = elements_[p] == 0;
  if (!is_in_place) {
    int length = length_[p];
    for (const int e : elements_of(p)) length += is_alive(e) ? length_[e] : 0;
    make_room(std::min(length, n_));
  }
  int* const begin = is_in_place ? list(p) : storage_.data() + free_;
  int* end = begin;
  for (const int e : elements_of(p)) {
    if (!is_alive(e)) continue;
    end = take_variables(list(e), list(e) + length_[e], end, p);
    bury(e);
  }
  end = take_variables(list(p) + elements_[p], list(p) + length_[p], end, p);
  start_[p] = static_cast<int>(begin - storage_.data());
  length_[p] = static_cast<int>(end - begin);
  if (!is_in_place) free_ = start_[p] + length_[p];
}

int* MinimumDegree::take_variables(const int* begin, const int* end, int* to, int p) noexcept {
  for (; begin != end; ++begin) {
    const int i = *begin;
    if (!is_variable(i)) continue;
    if (degrees_.contains(i)) {
      degrees_.remove(i);
      touched_[touched_count_++] = i;
    }
    span_[p] += weight_[i];
    weight_[i] = -weight_[i];
    *to++ = i;
  }
  return to;
}

// Puts p at the head of i's list in the place of what p reaches. False if nothing but p is left.
bool MinimumDegree::prune(int i, int p) noexcept {
  int* const entries = list(i);
  int* kept = entries;
  for (int k = 0; k < elements_[i]; ++k) {
    if (is_alive(entries[k])) *kept++ = entries[k];
  }
  int* const first_direct = kept;
  int direct = 0;
  unsigned hash = 0;
  for (int k = elements_[i]; k < length_[i]; ++k) {
    const int v = entries[k];
    if (!is_variable(v)) continue;
    *kept++ = v;
    direct += weight_[v];
    hash += static_cast<unsigned>(v);
  }
  if (kept == entries) return false;
  // i knew p as a neighbour or through an element that is gone: there is room for one more.
  *kept++ = *first_direct;
  *first_direct = *entries;
  *entries = p;
  elements_[i] = static_cast<int>(first_direct - entries) + 1;
  length_[i] = static_cast<int>(kept - entries);
  direct_[i] = direct;
  direct_hash_[i] = static_cast<int>(hash);
  return true;
}

// The degree of i is at most the weight of p without i, of what i lists, and of its other elements outside of p.
void MinimumDegree::update_degrees(int p) noexcept {
  if (!is_alive(p)) return;
  measure_overlaps(p);
  int* const variables = list(p);
  int* kept = variables;
  for (int k = 0; k < length_[p]; ++k) {
    const int i = variables[k];
    if (!is_variable(i)) continue;
    if (bound_outside(i, p)) {
      *kept++ = i;
    } else {  // i's other elements turned out to be parts of p: its elimination adds nothing
      pivots_[pivot_count_++] = i;
      span_[p] -= weight_[i];
      left_ -= weight_[i];
      weight_[i] = 0;
      bury(i);
    }
  }
  length_[p] = static_cast<int>(kept - variables);
  merge_indistinguishable(p);
  for (const int i : variables_of(p)) {
    if (is_variable(i)) degree_[i] = std::min(degree_[i], outside_[i] + span_[p] - weight_[i]);
  }
}

// mark_[e] - base_ becomes the weight of e's variables outside of p, for all elements that share variables with p.
void MinimumDegree::measure_overlaps(int p) noexcept {
  new_marks();
  for (const int i : variables_of(p)) {
    if (!is_variable(i)) continue;
    for (const int e : elements_of(i)) {
      if (mark_[e] >= base_) {
        mark_[e] -= weight_[i];
      } else if (is_alive(e)) {
        mark_[e] = base_ + span_[e] - weight_[i];
      }
    }
  }
}

// Elements that are parts of p are absorbed. False if nothing is left of i's list but p.
bool MinimumDegree::bound_outside(int i, int p) noexcept {
  int* const entries = list(i);
  int* kept = entries;
  int outside = direct_[i];
  auto hash = static_cast<unsigned>(direct_hash_[i]);
  for (int k = 0; k < elements_[i]; ++k) {
    const int e = entries[k];
    if (!is_alive(e)) continue;
    const int overlap = mark_[e] - base_;
    if (overlap == 0 && e != p) {
      bury(e);
      continue;
    }
    outside += overlap;
    hash += static_cast<unsigned>(e);
    *kept++ = e;
  }
  if (kept != entries + elements_[i]) {
    int* const end = std::copy(entries + elements_[i], entries + length_[i], kept);
    elements_[i] = static_cast<int>(kept - entries);
    length_[i] = static_cast<int>(end - entries);
  }
  outside_[i] = outside;
  hash_[i] = static_cast<int>(hash % static_cast<unsigned>(n_));
  return length_[i] > 1;
}

// Variables with the same list are one from now on.
void MinimumDegree::merge_indistinguishable(int p) noexcept {
  for (const int i : variables_of(p)) {
    next_equal_[i] = first_equal_[hash_[i]];
    first_equal_[hash_[i]] = i;
  }
  new_marks();
  for (const int k : variables_of(p)) {
    int i = first_equal_[hash_[k]];
    first_equal_[hash_[k]] = kNone;
    for (; i != kNone && next_equal_[i] != kNone; i = next_equal_[i]) merge_equals(i);
  }
}

void MinimumDegree::merge_equals(int i) noexcept {
  ++base_;
  for (int k = 0; k < length_[i]; ++k) mark_[list(i)[k]] = base_;
  for (int before = i, j = next_equal_[i]; j != kNone; j = next_equal_[before]) {
    if (length_[j] == length_[i] && elements_[j] == elements_[i] && has_marked_list(j)) {
      degree_[i] = std::min(degree_[i] - weight_[j], degree_[j] - weight_[i]);
      weight_[i] += weight_[j];
      next_equal_[before] = next_equal_[j];
      join(j, i);
    } else {
      before = j;
    }
  }
}

bool MinimumDegree::has_marked_list(int j) const noexcept {
  const int* const entries = list(j);
  return std::all_of(entries, entries + length_[j], [this](int node) { return mark_[node] == base_; });
}

void MinimumDegree::relist(int i) noexcept {
  if (!is_variable(i)) return;
  degree_[i] = std::clamp(degree_[i], 0, left_ - weight_[i]);
  degrees_.insert(i, degree_[i]);
}

// Moves all lists together if there is no room for `length` behind them. The first entry of each list changes places
// with the list's owner meanwhile, as a negative number, so that lists are found in the order of storage.
void MinimumDegree::make_room(int length) noexcept {
  int* const all = storage_.data();
  if (static_cast<std::size_t>(free_) + static_cast<std::size_t>(length) <= storage_.size()) return;
  for (int node = 0; node < n_; ++node) {
    if (!is_alive(node) || length_[node] == 0) continue;
    int& first = all[start_[node]];
    start_[node] = first;
    first = -1 - node;
  }
  int end = 0;
  for (int k = 0; k < free_;) {
    if (all[k] >= 0) {
      ++k;
      continue;
    }
    const int node = -1 - all[k];
    all[k] = start_[node];
    start_[node] = end;
    end = static_cast<int>(std::copy(all + k, all + k + length_[node], all + end) - all);
    k += length_[node];
  }
  free_ = end;
}

// Raises base_ above all marks.
void MinimumDegree::new_marks() noexcept {
  // Merging raises it by up to n before the next call, and overlaps lie at most n above it.
  if (base_ > std::numeric_limits<int>::max() - 4 * (n_ + 1)) {
    for (int node = 0; node < n_; ++node) mark_[node] = std::min(mark_[node], 1);
    base_ = 1;
  }
  base_ += longest_span_ + 1;
}

void MinimumDegree::write(const Ordering& ordering) noexcept {
  int step = 0;
  for (int k = 0; k < pivot_count_; ++k) {
    for (int i = pivots_[k]; i != kNone; i = next_member_[i]) ordering.place(i, step++);
  }
  // What was left out, the vertices with the fewest neighbours first.
  int* const postponed = touched_;
  int count = 0;
  for (int i = 0; i < n_; ++i) {
    if (graph_.degree(i) > most_neighbours_) postponed[count++] = i;
  }
  // Not a stable sort, which takes memory of its own.
  std::sort(postponed, postponed + count, [this](int a, int b) {
    const int degree_a = graph_.degree(a), degree_b = graph_.degree(b);
    return degree_a != degree_b ? degree_a < degree_b : a < b;
  });
  for (int k = 0; k < count; ++k) ordering.place(postponed[k], step++);
}

}  // namespace

Outcome order_minimum_degree(const Graph& graph, const Ordering& ordering) noexcept {
  const int n = graph.size();
  if (n > std::numeric_limits<int>::max() / 8) return Outcome::kTooLarge;
  std::optional<MinimumDegree> of_many(std::in_place, graph), of_one(std::in_place, graph);
  Workspace<int> arrays(base::saturating_product(static_cast<std::size_t>(n), 2));
  if (!*of_many || !*of_one || !arrays) return Outcome::kOutOfMemory;
  const Ordering second{arrays.data(), arrays.data() + n};
  std::int64_t entries[2];
  const int threads = n < kLeastForThreads ? 1 : base::region_threads(base::Domain::kSparseDirect);
  // What the elimination gives back is more than what counting takes: whichever trial ends first, memory does not grow.
  const auto entries_of = [&graph](std::optional<MinimumDegree>& elimination, Passes passes, const Ordering& order) {
    elimination->run(passes, order);
    elimination.reset();
    return factor_entries(graph, order);
  };
  base::parallel_for(2, threads, [&](int trial) {
    entries[trial] =
        trial == 0 ? entries_of(of_many, Passes::kOfMany, ordering) : entries_of(of_one, Passes::kOfOne, second);
  });
  if (entries[0] < 0 || entries[1] < 0) return Outcome::kOutOfMemory;
  if (entries[1] < entries[0]) {
    std::copy_n(second.permutation, n, ordering.permutation);
    std::copy_n(second.inverse, n, ordering.inverse);
  }
  return Outcome::kDone;
}

}  // namespace quorin::sparse
