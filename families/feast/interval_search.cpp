#include "families/feast/interval_search.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <limits>
#include <numeric>
#include <span>

#include "base/parallel.hpp"
#include "platform/platform.hpp"

namespace quorin::feast {
namespace {

constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
// Beyond this an eigenvalue is right to float precision.
constexpr double kFloatPrecision = 0x1p-27;
// An eigenvector of the interval becomes longer than that by filtering (squared; 1/4 at an end), what is mixed from
// eigenvectors of both sides does not.
constexpr double kLeastGain = 0.2;

double largest_magnitude(const Interval& interval) {
  return std::max(std::fabs(interval.low), std::fabs(interval.high));
}

}  // namespace

template <Scalar Host>
IntervalSearch<Host>::IntervalSearch(const Arguments<Host>& arguments, int threads)
    : arguments_(arguments),
      threads_(threads),
      interval_(arguments.interval()),
      scale_(largest_magnitude(interval_)),
      room_(*arguments.m0) {}

template <Scalar Host>
Status IntervalSearch<Host>::run() {
  Status status = prepare();
  if (status == Status::kDone) status = arguments_.is_on(kFpmFilterOnly) ? filter_only() : iterate();
  return status;
}

template <Scalar Host>
Status IntervalSearch<Host>::prepare() {
  const Status status = pencil_.assign(*arguments_.n, arguments_.storage(), arguments_.A, arguments_.B);
  if (status != Status::kDone) return status;
  const Status analyzed = solver_.analyze(pencil_, ordering_method(), threads_);
  const bool tells_of_b = analyzed == Status::kReducedFailed && arguments_.is_on(kFpmCheckB);
  return tells_of_b ? Status::kBNotDefinite : analyzed;
}

// As iparm(2) of the direct solver's settings says, if they are given and not left to it.
template <Scalar Host>
OrderingMethod IntervalSearch<Host>::ordering_method() const {
  const auto iparm = [this](int number) { return arguments_.parameter(kFpmSolverSettings + number); };
  if (!arguments_.is_on(kFpmSolverSettings) || iparm(1) == 0) return OrderingMethod::kBest;
  return iparm(2) == 0 ? OrderingMethod::kMinimumDegree : OrderingMethod::kNestedDissection;
}

// ---- Before the first loop ------------------------------------------------------------------------------------------

// The number of eigenvalues below a point at a distance of about `margin` from an end, if it can be trusted at one of
// several such points.
template <Scalar Host>
Status IntervalSearch<Host>::count_beside(double end, double margin, int threads, sparse::Factor<T>& factor,
                                          Count& there, bool& is_counted) const {
  is_counted = false;
  for (const double times : {1.0, 1.375, 0.75, 1.75}) {
    there.where = end + times * margin;
    std::optional<int> below;
    const Status status = solver_.count_below(there.where, std::fabs(margin), threads, factor, below);
    if (status != Status::kDone) return status;
    if (below) {
      there.below = *below;
      is_counted = true;
      return status;
    }
  }
  return Status::kDone;
}

// The number of eigenvalues in an interval that is larger than the host's by about a margin on both sides (smaller, for
// a negative one); nothing if it cannot be told. The interval is that between ends_.
template <Scalar Host>
Status IntervalSearch<Host>::count_within(double margin, std::optional<int>& count) {
  constexpr int kEnds = 2;
  const platform::MemoryStatus memory = platform::memory_status();
  const double budget = std::min(memory.total_physical, memory.available_virtual) / 2;
  std::array<Status, kEnds> statuses;
  std::array<bool, kEnds> are_counted{};
  const auto count_both = [&](int together) {
    base::parallel_for(kEnds, together, [&](int end) {
      const auto place = static_cast<std::size_t>(end);
      statuses[place] =
          count_beside(end == 0 ? bounds_.low : bounds_.high, end == 0 ? -margin : margin, together == 1 ? threads_ : 1,
                       factors_[together == 1 ? 0 : place], ends_[place], are_counted[place]);
    });
    return statuses[0] != Status::kDone ? statuses[0] : statuses[1];
  };
  const int together = kEnds * solver_.real_factor_bytes() <= budget ? std::min(threads_, kEnds) : 1;
  Status status = count_both(together);
  factors_[1].clear();
  if (status == Status::kNoMemory && together > 1) status = count_both(1);
  count.reset();
  if (status == Status::kDone && are_counted[0] && are_counted[1]) count = std::max(0, ends_[1].below - ends_[0].below);
  return status;
}

// While there are more eigenvalues than room in the interval with a margin, but not without it, the margin is made
// smaller, as long as counts can be trusted.
template <Scalar Host>
Status IntervalSearch<Host>::take_census() {
  constexpr double kMargins[] = {0x1p-10, 0x1p-20, 0x1p-30};
  const double radius = bounds_.radius();
  std::optional<int> count;
  for (const double margin : kMargins) {
    Status status = count_within(margin * radius, count);
    if (status != Status::kDone || !count) return status;
    census_.inside = count;
    census_.interval = {ends_[0].where, ends_[1].where};
    if (*count <= room_) return status;
    status = count_within(-margin * radius, count);
    census_.exceeds_room = count > room_;
    if (status != Status::kDone || census_.exceeds_room) return status;
  }
  return Status::kDone;
}

// The number of eigenvalues in a wider interval, outside of which the filter is small.
template <Scalar Host>
Status IntervalSearch<Host>::count_passing(int& passing) {
  constexpr int kSharpFilter = 8;  // nodes with which the filter is small at 1 1/4 radii; else at 1 1/2
  const double distance = arguments_.parameter(kFpmNodes) < kSharpFilter ? 0.5 : 0.25;
  std::optional<int> count;
  const Status status = count_within(distance * bounds_.radius(), count);
  passing = count.value_or(*census_.inside + *census_.inside / 2);
  return status;
}

// Room for all that passes the filter, so that what converges slowly, or mixes, is left out. Where that is very much
// more than what is wanted, there are limits: of the reduced problem, and of memory.
template <Scalar Host>
int IntervalSearch<Host>::working_size(int passing) const {
  constexpr int kSpare = 8, kMany = 64, kReduced = 512;
  constexpr std::size_t kBytes = std::size_t{64} << 20;
  const std::size_t bytes_of_vector = static_cast<std::size_t>(pencil_.size()) * sizeof(T);
  const int affordable = static_cast<int>(std::min<std::size_t>(kReduced, kBytes / bytes_of_vector));
  const int least = *census_.inside + kSpare, most = std::max({room_, 3 * *census_.inside + kMany, affordable});
  const int wanted = std::clamp(passing + kSpare, least, most);
  return std::min(pencil_.size(), arguments_.is_on(kFpmInitialSubspace) ? std::max(wanted, room_) : wanted);
}

template <Scalar Host>
void IntervalSearch<Host>::randomize(int first) {
  X_.randomize(first, [this](int i) { return pencil_.diagonal_of_b(i); });
}

// By Lanczos runs: `found` are their pairs, if there are any. Where all are there, but residuals in the documented norm
// are large, or values next to an end are not told from it, runs to smaller residuals follow. Without memory there are
// no pairs.
template <Scalar Host>
Status IntervalSearch<Host>::start(std::optional<Tally>& found) {
  constexpr double kParts[] = {1, 0x1p-12};
  if (!census_.inside || *census_.inside > room_ || arguments_.is_on(kFpmInitialSubspace)) return Status::kDone;
  const double tolerance = std::pow(10.0, -arguments_.parameter(kFpmTolerance));
  for (const double part : kParts) {
    Slices<T> slices(pencil_, solver_, part * tolerance_of_runs(), threads_);
    const Status status = slices.run(ends_[0], ends_[1], factors_[0], X_);
    found.reset();
    if (status == Status::kNoMemory || X_.size() == 0) return Status::kDone;
    if (status != Status::kDone) return status;
    if (!reserve_results()) return Status::kNoMemory;
    if (!ritz_.run(pencil_, X_)) return Status::kReducedFailed;
    measure();
    found = tally();
    const bool is_right = found->is_resolved && found->largest_residual < tolerance;
    if (is_right || found->candidates != census_.inside) break;
  }
  return Status::kDone;
}

// Of residuals, so that they are below the documented tolerance, and values right to float precision if what is next to
// them is as far away as most of the interval is.
template <Scalar Host>
double IntervalSearch<Host>::tolerance_of_runs() const {
  constexpr double kSafety = 0.125;
  const double documented = kSafety * std::pow(10.0, -arguments_.parameter(kFpmTolerance)) * scale_;
  return std::min(documented, std::sqrt(kSafety * kFloatPrecision * largest_magnitude(bounds_) * bounds_.radius()));
}

// Room for what is computed of the vectors.
template <Scalar Host>
bool IntervalSearch<Host>::reserve_results() {
  const auto size = static_cast<std::size_t>(X_.capacity());
  pairs_ = base::Workspace<Pair>(size);
  order_ = base::Workspace<int>(size);
  previous_values_ = base::Workspace<double>(size);
  return pairs_ && order_ && previous_values_ && ritz_.reserve(X_.capacity());
}

// The subspace for the contour: random vectors, in front of them those that were found or that the host gives.
template <Scalar Host>
Status IntervalSearch<Host>::load_subspace() {
  const int n = pencil_.size();
  int size = room_;
  if (!arguments_.is_on(kFpmFilterOnly) && !census_.exceeds_room && census_.inside) {
    int passing = 0;
    if (const Status status = count_passing(passing); status != Status::kDone) return status;
    size = working_size(passing);
  }
  factors_[0].clear();
  Subspace<T> found = std::move(X_);
  X_ = {};
  contour_ = Contour(bounds_, arguments_.parameter(kFpmNodes));
  if (!X_.reserve(n, size, threads_) || !filter_.reserve(pencil_, solver_, contour_, X_) || !reserve_results()) {
    return Status::kNoMemory;
  }
  X_.resize(size);
  randomize(0);
  for (int j = 0; j < std::min(size, found.size()); ++j) std::copy_n(found.column(j), n, X_.column(j));
  if (!arguments_.is_on(kFpmInitialSubspace)) return Status::kDone;
  for (int j = 0; j < std::min(size, room_); ++j) {
    const Host* const given = arguments_.x + static_cast<std::ptrdiff_t>(j) * n;
    const double length =
        std::sqrt(std::accumulate(given, given + n, 0.0, [](double sum, Host x) { return sum + std::norm(T{x}); }));
    if (length == 0) continue;
    const double factor = arguments_.is_on(kFpmFilterOnly) ? 1 : 1 / length;
    std::transform(given, given + n, X_.column(j), [factor](Host x) { return factor * T{x}; });
  }
  return Status::kDone;
}

// ---- Loops ----------------------------------------------------------------------------------------------------------

template <Scalar Host>
Status IntervalSearch<Host>::filter_only() {
  bounds_ = interval_;
  if (const Status status = load_subspace(); status != Status::kDone) return status;
  if (const Status status = filter_.apply(X_); status != Status::kDone) return status;
  const T* const first = X_.column(0);
  std::transform(first, first + static_cast<std::ptrdiff_t>(pencil_.size()) * room_, arguments_.x,
                 [](T x) { return static_cast<Host>(x); });
  std::fill_n(arguments_.e, room_, 0.0F);
  std::fill_n(arguments_.res, room_, 0.0F);
  *arguments_.m = room_;
  *arguments_.loop = 0;
  *arguments_.epsout = 0;
  return Status::kFilteredSubspace;
}

template <Scalar Host>
Status IntervalSearch<Host>::iterate() {
  bounds_ = interval_;
  bool is_empty = false;
  Status status = solver_.clamp(bounds_, is_empty);
  if (status == Status::kDone && !is_empty) status = take_census();
  if (status != Status::kDone) return status;
  if (is_empty || census_.inside == 0) {
    *arguments_.m = *arguments_.loop = 0;
    *arguments_.epsout = 0;
    return Status::kNoneFound;
  }
  if (!census_.inside) census_.interval = bounds_;
  std::optional<Tally> found;
  status = start(found);
  if (status == Status::kDone && !found) status = load_subspace();
  for (; status == Status::kDone; ++loop_) {
    const bool is_start = loop_ == 0 && found;
    if (!is_start) {
      if (status = filter_.apply(X_); status != Status::kDone) break;
      if (!ritz_.run(pencil_, X_)) return Status::kReducedFailed;
      measure();
    }
    const Tally now = is_start ? *found : tally();
    epsout_ = std::fabs(now.sum - previous_sum_) / scale_;
    if (arguments_.is_on(kFpmPrint)) print_loop(now);
    if (const std::optional<Status> reached = verdict(now)) {
      write_results(now);
      return *reached;
    }
    remember(now);
    if (is_start) {
      status = load_subspace();
    } else {
      replenish(now);
    }
  }
  return status;
}

template <Scalar Host>
void IntervalSearch<Host>::measure() {
  constexpr double kRoundings = 16;
  const int n = pencil_.size();
  X_.for_each_block([&](int thread, int first, int count) {
    T *ax = X_.block_of(thread, 0), *bx = X_.block_of(thread, 1);
    pencil_.multiply_by_a(count, X_.column(first), ax);
    pencil_.multiply_by_b(count, X_.column(first), bx);
    for (int j = first; j < first + count; ++j, ax += n, bx += n) {
      const double value = ritz_.value(j);
      double norm_of_r = 0, norm_of_bx = 0, squares = 0;
      for (int i = 0; i < n; ++i) {
        const double square = std::norm(ax[i] - value * bx[i]);
        norm_of_r += std::sqrt(square);
        norm_of_bx += std::abs(bx[i]);
        squares += square / pencil_.diagonal_of_b(i);
      }
      const double terms = pencil_.sum_of_terms(X_.column(j), value);
      pairs_.data()[j] = {norm_of_r / norm_of_bx, std::sqrt(squares),
                          kRoundings * kEpsilon * (terms + largest_magnitude(bounds_))};
    }
  });
}

// The eigenvalues next to the interval that the candidates do not stand for, as far as it is known: the next Ritz
// values, and at most where the filter is small.
template <Scalar Host>
Interval IntervalSearch<Host>::surroundings() const {
  const Interval& around = census_.interval;
  const double reach = bounds_.radius() / 4;
  Interval result = {around.low - reach, around.high + reach};
  for (int j = 0; j < X_.size(); ++j) {
    const double value = ritz_.value(j);
    if (value < around.low) result.low = std::max(result.low, value);
    if (value > around.high) result.high = std::min(result.high, value);
  }
  return result;
}

// How far the eigenvalue next to a candidate's value may be away, apart from rounding: residual^2 / gap, where the gap
// is the distance of eigenvalues that the candidates do not stand for, and never more than the residual (Parlett, The
// Symmetric Eigenvalue Problem, 11.7).
template <Scalar Host>
double IntervalSearch<Host>::error(int j, const Interval& others) const {
  const double value = ritz_.value(j), residual = pairs_.data()[j].weighted_residual;
  return residual * std::min(1.0, residual / std::min(value - others.low, others.high - value));
}

template <Scalar Host>
bool IntervalSearch<Host>::is_candidate(int j) const {
  const double value = ritz_.value(j);
  if (value < census_.interval.low || value > census_.interval.high) return false;
  return !was_orthonormal_ || ritz_.squared_gain(j) >= kLeastGain;
}

template <Scalar Host>
bool IntervalSearch<Host>::is_inside(int j) const {
  const double value = ritz_.value(j), rounding = pairs_.data()[j].rounding;
  return is_candidate(j) && value >= interval_.low - rounding && value <= interval_.high + rounding;
}

// Whether the candidate of that number has the same value as in the loop before: then it converges no further, though
// eigenvectors far away may still be in its residual.
template <Scalar Host>
bool IntervalSearch<Host>::rests(int candidate, double value, double rounding) const {
  if (!was_orthonormal_ || candidate >= previous_candidates_) return false;
  return std::fabs(value - previous_values_.data()[candidate]) <= rounding;
}

template <Scalar Host>
void IntervalSearch<Host>::remember(const Tally& now) {
  int place = 0;
  for (int j = 0; j < X_.size(); ++j) {
    if (is_candidate(j)) previous_values_.data()[place++] = ritz_.value(j);
  }
  previous_candidates_ = place;
  previous_sum_ = now.sum;
}

template <Scalar Host>
auto IntervalSearch<Host>::tally() const -> Tally {
  constexpr double kSafety = 256;  // the diagonal of B stands for B in residuals
  Tally result;
  const double precise = kFloatPrecision * largest_magnitude(bounds_);
  const Interval others = surroundings();
  for (int j = 0; j < X_.size(); ++j) {
    if (!is_candidate(j)) continue;
    const Pair& pair = pairs_.data()[j];
    const double value = ritz_.value(j), error_of_value = error(j, others);
    const double to_end = std::min(std::fabs(value - interval_.low), std::fabs(value - interval_.high));
    ++result.candidates;
    result.largest_residual = std::max(result.largest_residual, pair.residual / scale_);
    const bool is_right = error_of_value <= std::max(pair.rounding, std::min(precise, to_end / kSafety));
    if (!is_right && !rests(result.candidates - 1, value, pair.rounding)) result.is_resolved = false;
    if (!is_inside(j)) continue;
    ++result.inside;
    result.sum += value;
  }
  return result;
}

// How many candidates there have to be, as far as it is known.
template <Scalar Host>
std::optional<int> IntervalSearch<Host>::expected() const {
  if (census_.inside) return census_.inside;
  if (was_orthonormal_) return ritz_.count_of_gains(kLeastGain);
  return std::nullopt;
}

template <Scalar Host>
std::optional<Status> IntervalSearch<Host>::verdict(const Tally& now) const {
  if (census_.exceeds_room) return Status::kSubspaceTooSmall;
  const std::optional<int> wanted = expected();
  if (wanted == 0) return Status::kNoneFound;
  const double tolerance = std::pow(10.0, -arguments_.parameter(kFpmTolerance));
  const bool is_small =
      arguments_.is_on(kFpmStoppingTest) ? loop_ > 0 && epsout_ < tolerance : now.largest_residual < tolerance;
  if (wanted == now.candidates && now.is_resolved && is_small) {
    if (now.inside > room_) return Status::kSubspaceTooSmall;
    return now.inside == 0 ? Status::kNoneFound : Status::kDone;
  }
  if (loop_ < arguments_.parameter(kFpmLoopLimit)) return std::nullopt;
  const bool is_full = !census_.inside && now.candidates == room_ && room_ < pencil_.size();
  return is_full || now.inside > room_ ? Status::kSubspaceTooSmall : Status::kNotConverged;
}

// Where eigenvectors are missing, new random vectors take the place of directions that were dropped, and after some
// loops of those that led nowhere.
template <Scalar Host>
void IntervalSearch<Host>::replenish(const Tally& now) {
  constexpr int kPatience = 2;
  const bool is_missing = now.candidates < expected().value_or(0), is_short = X_.size() < X_.capacity();
  if (!is_missing || (!is_short && loop_ < kPatience)) {
    was_orthonormal_ = true;
    return;
  }
  if (!is_short) {
    const auto order = sorted_pairs([this](int j) { return is_candidate(j); });
    X_.select(order.first(static_cast<std::size_t>(now.candidates)));
  }
  const int kept = X_.size();
  X_.resize(X_.capacity());
  randomize(kept);
  was_orthonormal_ = false;
}

// ---- Results --------------------------------------------------------------------------------------------------------

// All pairs, first those for which the predicate holds, ascending.
template <Scalar Host>
template <class Predicate>
std::span<const int> IntervalSearch<Host>::sorted_pairs(const Predicate& comes_first) {
  int* end = order_.data();
  for (const bool wanted : {true, false}) {
    for (int j = 0; j < X_.size(); ++j) {
      if (comes_first(j) == wanted) *end++ = j;
    }
  }
  return {order_.data(), end};
}

// The pairs inside, then others, as far as there is room.
template <Scalar Host>
void IntervalSearch<Host>::write_results(const Tally& now) {
  const int n = pencil_.size(), count = std::min(room_, X_.size());
  const auto order = sorted_pairs([this](int j) { return is_inside(j); });
  for (int place = 0; place < count; ++place) {
    const int j = order[static_cast<std::size_t>(place)];
    arguments_.e[place] = static_cast<float>(ritz_.value(j));
    arguments_.res[place] = static_cast<float>(pairs_.data()[j].residual / scale_);
    std::transform(X_.column(j), X_.column(j + 1), arguments_.x + static_cast<std::ptrdiff_t>(place) * n,
                   [](T x) { return static_cast<Host>(x); });
  }
  *arguments_.m = std::min(count, now.inside);
  *arguments_.m0 = count;
  *arguments_.loop = loop_;
  *arguments_.epsout = static_cast<float>(epsout_);
}

template <Scalar Host>
void IntervalSearch<Host>::print_loop(const Tally& now) const {
  constexpr int kLine = 160;
  char line[kLine];
  if (loop_ == 0) {
    std::snprintf(line, sizeof line, "FEAST: n = %d, interval [%.9g, %.9g], %d nodes, %d vectors\n", pencil_.size(),
                  interval_.low, interval_.high, arguments_.parameter(kFpmNodes), X_.capacity());
    platform::write_standard_output(line);
    if (census_.inside) {
      std::snprintf(line, sizeof line, "%d eigenvalues in [%.9g, %.9g] by the signs of pivots\n", *census_.inside,
                    census_.interval.low, census_.interval.high);
      platform::write_standard_output(line);
    }
    platform::write_standard_output("loop  found              sum    change  residual\n");
  }
  std::snprintf(line, sizeof line, "%4d %6d %16.9g  %8.2e  %8.2e\n", loop_, now.inside, now.sum, epsout_,
                now.largest_residual);
  platform::write_standard_output(line);
}

template class IntervalSearch<float>;
template class IntervalSearch<std::complex<float>>;

}  // namespace quorin::feast
