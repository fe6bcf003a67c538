#include <algorithm>
#include <array>
#include <complex>
#include <cstddef>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/blocked.hpp"
#include "dense/places.hpp"
#include "sparse/numeric/factor_task.hpp"
#include "sparse/numeric/loops.hpp"
#include "sparse/numeric/thread_slots.hpp"

namespace quorin::sparse {

using base::Workspace;

namespace {

std::size_t to_size(std::int64_t n) noexcept { return static_cast<std::size_t>(n); }

// Scalars that panels are eliminated with, and that L D is made in for some rows at a time.
template <Scalar T>
std::size_t buffer_size(const Plan& plan, PanelKind kind, int threads) noexcept {
  constexpr std::int64_t kEnough = 512 * 1024 / sizeof(T);
  const std::int64_t largest = std::int64_t{plan.most_below()} * plan.most_columns();
  const std::int64_t share = plan.panel_elements(kind) / (40 * threads);
  return std::max({to_size(plan.most_columns()), elimination_scratch(plan.most_columns()),
                   to_size(std::min({largest, kEnough, share}))});
}

// The memory of one thread.
template <Scalar T>
class Worker {
 public:
  static std::size_t bytes(const Plan& plan, PanelKind kind, int threads) noexcept {
    return buffer_size<T>(plan, kind, threads) * sizeof(T) +
           (to_size(plan.size()) + to_size(plan.most_below())) * sizeof(int);
  }

  bool create(const Plan& plan, PanelKind kind, int threads) noexcept {
    buffer = Workspace<T>(buffer_size<T>(plan, kind, threads));
    position = Workspace<int>(to_size(plan.size()));
    places = Workspace<int>(to_size(plan.most_below()));
    return buffer && position && places;
  }

  Workspace<T> buffer;
  Workspace<int> position;  // of the rows of the panel that this thread makes
  Workspace<int> places;    // most_below: rows of an update in a panel
};

// A panel that is being made, and its place in the matrix.
template <Scalar T>
struct Target {
  int s;
  T* panel;
  std::ptrdiff_t height;
  int u_offset;  // rows between a row of L and the same of U^T
  const int* position;
};

// Of the m rows below a descendant's diagonal block, those that make columns of the target are rows [first, last). Of
// these, the columns [p, q) are at hand.
struct Span {
  int first, last, p, q, m;
};

template <Scalar T>
class LeftLooking {
 public:
  explicit LeftLooking(FactorTask<T>& task) noexcept : task_(task), plan_(task.plan), kind_(task.panels.kind()) {}

  static std::int64_t bytes(const Plan& plan, Factorization factorization, int threads) noexcept {
    return static_cast<std::int64_t>(5 * to_size(plan.supernodes()) * sizeof(int) +
                                     to_size(threads) * Worker<T>::bytes(plan, panel_kind(factorization), threads));
  }

  void run() noexcept {
    if (!create()) return task_.fail(0, FactorOutcome::kOutOfMemory);
    const int count = plan_.supernodes();
    // A store's budget need not have room for the panels of several threads.
    const bool is_divided = task_.threads > 1 && task_.panels.store() == nullptr;
    const int range_count = is_divided ? cut() : 0;
    base::parallel_for(range_count, task_.threads, [&](int r) {
      const SupernodeRange range = ranges_[to_size(r)];
      const ThreadSlots::Slot slot(slots_, task_.threads);
      Worker<T>& worker = workers_[slot.number()];
      for (int s = range.first; s < range.end && task_.may_go_on(s); ++s) make_panel(s, range, worker, 1);
    });
    // What subtrees do to panels above them. A range that has been cut short means that nothing above is made.
    for (int r = 0; r < range_count && task_.may_go_on(ranges_[to_size(r)].end - 1); ++r) {
      for (int d = ranges_[to_size(r)].first; d < ranges_[to_size(r)].end; ++d) link(d, {0, count});
    }
    int next_range = 0;
    for (int s = 0; s < count && task_.may_go_on(s);) {
      if (next_range < range_count && s == ranges_[to_size(next_range)].first) {
        s = ranges_[to_size(next_range++)].end;
      } else {
        make_panel(s++, {0, count}, workers_[0], task_.threads);
      }
    }
  }

 private:
  static constexpr int kMostPartsPerThread = 8;

  // Subtrees for threads. Small ones are easily dealt out evenly, large ones leave less work above them, on which
  // threads work together and not as well: the cut that promises to take the least time. Returns the number of ranges.
  int cut() noexcept {
    constexpr double kTogether = 0.8;  // of their speed alone
    const int threads = task_.threads;
    double least = 0;
    int best = 0;
    for (int parts = kMostPartsPerThread; parts >= 2; --parts) {
      const int count = plan_.cut_by_operations(parts * threads, ranges_.data());
      std::array<double, base::kMostThreads> loads{};
      const auto first = loads.begin(), last = first + threads;
      double rest = plan_.operations();
      for (int r = 0; r < count; ++r) {
        const SupernodeRange range = ranges_[to_size(r)];
        const double work = plan_.operations_before(range.end) - plan_.operations_before(range.first);
        *std::min_element(first, last) += work;
        rest -= work;
      }
      const double time = *std::max_element(first, last) + rest / (kTogether * threads);
      if (best == 0 || time < least) {
        least = time;
        best = parts;
      }
    }
    return plan_.cut_by_operations(best * threads, ranges_.data());
  }

  bool create() noexcept {
    const std::size_t count = to_size(plan_.supernodes());
    lists_ = Workspace<int>(5 * count);
    ranges_ = Workspace<SupernodeRange>(to_size(kRangesPerPart * kMostPartsPerThread * task_.threads));
    if (!lists_ || !ranges_) return false;
    head_ = lists_.data();
    next_ = head_ + count;
    done_ = next_ + count;
    reached_ = done_ + count;
    gathered_ = reached_ + count;
    std::fill_n(head_, count, kNone);
    for (int i = 0; i < task_.threads; ++i) {
      if (!workers_[to_size(i)].create(plan_, kind_, task_.threads)) return false;
    }
    return true;
  }

  // Puts d into the list of the next supernode that it updates, if that is within the range.
  void link(int d, SupernodeRange range) noexcept {
    const auto rows = plan_.below(d);
    if (to_size(done_[d]) == rows.size()) return;
    const int s = plan_.supernode_of(rows[to_size(done_[d])]);
    if (s >= range.end) return;
    next_[d] = head_[s];
    head_[s] = d;
  }

  void make_panel(int s, SupernodeRange range, Worker<T>& worker, int threads) noexcept {
    T* const panel = task_.panels.pin(s, true);
    if (panel == nullptr) return task_.fail(s, task_.panels.store()->outcome());
    task_.assemble_panel(s, panel);
    // Ascending, so that sums do not depend on the order in which threads finish.
    int* const descendants = gathered_ + range.first;
    int* end = descendants;
    for (int d = head_[s]; d != kNone; d = next_[d]) *end++ = d;
    if (end != descendants) {
      std::sort(descendants, end);
      for (const int* d = descendants; d != end; ++d) reached_[*d] = first_row_from(*d, done_[*d], plan_.first(s + 1));
      gather_updates(s, panel, descendants, end, worker, threads);
      for (const int* d = descendants; d != end; ++d) {
        done_[*d] = reached_[*d];
        link(*d, range);
      }
    }
    if (task_.may_go_on(s) && task_.eliminate(s, panel, worker.buffer.data(), threads)) {
      done_[s] = 0;
      link(s, range);
      task_.report_progress(s);
    }
    task_.panels.unpin(s, true);
  }

  // The first of the rows below d's block, from `begin` on, that is not above `row`: mostly not far away.
  int first_row_from(int d, int begin, int row) const noexcept {
    const auto rows = plan_.below(d).subspan(to_size(begin));
    std::size_t reach = 1;
    while (reach < rows.size() && rows[reach - 1] < row) reach *= 2;
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(reach, rows.size()));
    return begin + static_cast<int>(std::lower_bound(rows.begin() + static_cast<std::ptrdiff_t>(reach / 2), end, row) -
                                    rows.begin());
  }

  void gather_updates(int s, T* panel, const int* begin, const int* end, Worker<T>& worker, int threads) noexcept {
    const int first = plan_.first(s), columns = plan_.columns(s);
    int* const position = worker.position.data();
    for (int k = 0; k < columns; ++k) position[first + k] = k;
    int row = columns;
    for (const int k : plan_.below(s)) position[k] = row++;
    const Target<T> target{s, panel, plan_.height(kind_, s), plan_.below_count(s), position};

    // Columns of the panel to threads. An element's bits do not depend on how columns are cut.
    constexpr int kLeastColumns = 16;
    const int slices = threads == 1 ? 1 : std::clamp(columns / kLeastColumns, 1, 4 * threads);
    const auto gather = [&](const int* from, const int* to) {
      const auto cut = [&](int i) { return first + static_cast<int>(std::int64_t{columns} * i / slices); };
      const auto gather_slice = [&](int slice, Worker<T>& own) {
        for (const int* d = from; d != to && task_.may_go_on(s); ++d) {
          const PinnedPanel<T> source(task_.panels, *d);
          if (source.data() == nullptr) return task_.fail(s, task_.panels.store()->outcome());
          update(*d, source.data(), target, cut(slice), cut(slice + 1), own);
        }
      };
      if (slices == 1) return gather_slice(0, worker);
      base::parallel_for(slices, threads, [&](int slice) {
        const ThreadSlots::Slot slot(slots_, threads);
        gather_slice(slice, workers_[slot.number()]);
      });
    };
    if (task_.panels.store() == nullptr) return gather(begin, end);
    // All threads at the same descendant, so that a store needs room for one.
    for (const int* d = begin; d != end; ++d) gather(d, d + 1);
  }

  // Subtracts from columns first, ..., end - 1 what descendant d contributes, whose panel is `source`.
  void update(int d, const T* source, const Target<T>& target, int first, int end, Worker<T>& worker) noexcept {
    const auto rows = plan_.below(d);
    Span span{done_[d], reached_[d], done_[d], reached_[d], static_cast<int>(rows.size())};
    if (first > plan_.first(target.s)) span.p = first_row_from(d, span.first, first);
    if (end < plan_.first(target.s + 1)) span.q = first_row_from(d, span.p, end);
    if (span.p == span.q) return;
    int* const places = worker.places.data();
    for (int i = span.first; i < span.m; ++i) places[i] = target.position[rows[to_size(i)]];

    const int k = plan_.columns(d), height = plan_.height(kind_, d);
    const T* const l = source + k;
    if (task_.has_diagonal) return update_symmetric(d, source, l, height, k, span, places, target, worker);
    if (kind_ == PanelKind::kSymmetric) return subtract(l, l, height, height, k, span, span.first, target, 0, places);
    const T* const u = l + span.m;
    subtract(l, u, height, height, k, span, span.first, target, 0, places);
    subtract(u, l, height, height, k, span, span.last, target, target.u_offset, places);
  }

  // - L D L': with W = L D for the rows [p, q), some of them at a time.
  void update_symmetric(int d, const T* panel, const T* l, int height, int k, const Span& span, const int* places,
                        const Target<T>& target, Worker<T>& worker) noexcept {
    T* const w = worker.buffer.data();
    const int most =
        static_cast<int>(std::clamp<std::size_t>(worker.buffer.size() / to_size(k), 1, to_size(span.q - span.p)));
    for (int p = span.p; p < span.q; p += most) {
      Span slice = span;
      slice.p = p;
      slice.q = std::min(p + most, span.q);
      const int count = slice.q - p;
      task_.multiply_by_diagonal(d, panel, l + p, count, w);
      subtract(l, w - p, height, count, k, slice, span.first, target, 0, places);
    }
  }

  // Subtracts X Y' from the target, where X is the rows [from, m) of x and Y the rows [p, q) of y, both with k columns.
  // Of kSymmetric panels only what is not above the diagonal is made; there `from` is the span's first row. `offset` is
  // added to places of rows. How it is done depends on all of the target's columns, so that each element's bits do not
  // depend on how they were cut.
  void subtract(const T* x, const T* y, int ldx, int ldy, int k, const Span& span, int from, const Target<T>& target,
                int offset, const int* places) noexcept {
    const int p = span.p, q = span.q, m = span.m;
    if (from == m) return;
    const bool is_triangle = kind_ == PanelKind::kSymmetric;
    const auto column = [&](int c) { return target.panel + target.height * places[c] + offset; };
    if (k <= kFewTerms || static_cast<double>(m - from) * (span.last - span.first) * k <= kFewProducts) {
      const bool is_contiguous = places[m - 1] - places[from] == m - 1 - from;
      T row[kFewTerms];
      for (int c = p; c < q; ++c) {
        const int begin = is_triangle ? c : from;
        for (int first = 0; first < k; first += kFewTerms) {
          const int count = std::min(kFewTerms, k - first);
          const T* const terms = x + begin + static_cast<std::ptrdiff_t>(first) * ldx;
          for (int j = 0; j < count; ++j) {
            row[j] = conjugate_if(task_.is_conjugated, y[c + static_cast<std::ptrdiff_t>(first + j) * ldy]);
          }
          if (is_contiguous) {
            subtract_multiples(m - begin, count, row, terms, ldx, column(c) + places[begin]);
          } else {
            scatter_multiples(m - begin, count, row, terms, ldx, places + begin, column(c));
          }
        }
      }
      return;
    }
    const int begin = is_triangle ? p : from;
    dense::blocked::subtract_at_places(task_.is_conjugated, is_triangle, m - begin, q - p, k, x + begin, ldx, y + p,
                                       ldy, target.panel + offset, static_cast<int>(target.height), places + begin,
                                       places + p);
  }

  FactorTask<T>& task_;
  const Plan& plan_;
  const PanelKind kind_;

  // For each supernode the list of those that update it next, by links; how many rows of a supernode's have been dealt
  // with, and how many will be when the panel at hand is made.
  Workspace<int> lists_;
  int *head_ = nullptr, *next_ = nullptr, *done_ = nullptr, *reached_ = nullptr, *gathered_ = nullptr;
  Workspace<SupernodeRange> ranges_;
  ThreadSlots slots_;
  std::array<Worker<T>, base::kMostThreads> workers_;
};

}  // namespace

template <Scalar T>
void LeftLookingMethod<T>::factor(FactorTask<T>& task) noexcept {
  LeftLooking<T>(task).run();
}

template <Scalar T>
std::int64_t LeftLookingMethod<T>::bytes(const Plan& plan, Factorization factorization, int threads) noexcept {
  return LeftLooking<T>::bytes(plan, factorization, threads);
}

template struct LeftLookingMethod<float>;
template struct LeftLookingMethod<double>;
template struct LeftLookingMethod<std::complex<float>>;
template struct LeftLookingMethod<std::complex<double>>;

}  // namespace quorin::sparse
