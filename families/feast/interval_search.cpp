#include "families/feast/interval_search.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <limits>
#include <numeric>
#include <span>

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

// The number of eigenvalues below `where`, a point at a distance of about `margin` from an end; nothing if it cannot be
// trusted at several such points.
template <Scalar Host>
Status IntervalSearch<Host>::count_beside(double end, double margin, std::optional<int>& below, double& where) {
  for (const double factor : {1.0, 1.375, 0.75, 1.75}) {
    where = end + factor * margin;
    const Status status = solver_.count_below(where, std::fabs(margin), below);
    if (status != Status::kDone || below) return status;
  }
  return Status::kDone;
}

// The number of eigenvalues in an interval that is larger than the host's by about a margin on both sides (smaller, for
// a negative one), and that interval; nothing if it cannot be told.
template <Scalar Host>
Status IntervalSearch<Host>::count_within(double margin, std::optional<int>& count, Interval& within) {
  std::optional<int> below_low, below_high;
  count.reset();
  Status status = count_beside(bounds_.low, -margin, below_low, within.low);
  if (status == Status::kDone && below_low) status = count_beside(bounds_.high, margin, below_high, within.high);
  if (below_low && below_high) count = std::max(0, *below_high - *below_low);
  return status;
}

// While there are more eigenvalues than room in the interval with a margin, but not without it, the margin is made
// smaller, as long as counts can be trusted.
template <Scalar Host>
Status IntervalSearch<Host>::take_census() {
  constexpr double kMargins[] = {0x1p-10, 0x1p-20, 0x1p-30};
  constexpr int kSharpFilter = 8;  // nodes with which the filter is small at 1 1/4 radii; else at 1 1/2
  const double radius = bounds_.radius();
  std::optional<int> count;
  Interval within{};
  for (const double margin : kMargins) {
    Status status = count_within(margin * radius, count, within);
    if (status != Status::kDone || !count) return status;
    census_.inside = count;
    census_.interval = within;
    if (count == 0) return status;
    if (margin == kMargins[0]) {
      const double distance = arguments_.parameter(kFpmNodes) < kSharpFilter ? 0.5 : 0.25;
      status = count_within(distance * radius, count, within);
      if (status != Status::kDone) return status;
      census_.passing = count.value_or(*census_.inside + *census_.inside / 2);
    }
    if (*census_.inside <= room_) return status;
    status = count_within(-margin * radius, count, within);
    census_.exceeds_room = count > room_;
    if (status != Status::kDone || census_.exceeds_room) return status;
  }
  return Status::kDone;
}

// Room for all that passes the filter, so that what converges slowly, or mixes, is left out. Where that is very much
// more than what is wanted, there are limits: of the reduced problem, and of memory.
template <Scalar Host>
int IntervalSearch<Host>::working_size() const {
  constexpr int kSpare = 8, kMany = 64, kReduced = 512;
  constexpr std::size_t kBytes = std::size_t{64} << 20;
  if (arguments_.is_on(kFpmFilterOnly) || census_.exceeds_room || !census_.inside) return room_;
  const std::size_t bytes_of_vector = static_cast<std::size_t>(pencil_.size()) * sizeof(T);
  const int affordable = static_cast<int>(std::min<std::size_t>(kReduced, kBytes / bytes_of_vector));
  const int least = *census_.inside + kSpare, most = std::max({room_, 3 * *census_.inside + kMany, affordable});
  const int wanted = std::clamp(census_.passing + kSpare, least, most);
  return std::min(pencil_.size(), arguments_.is_on(kFpmInitialSubspace) ? std::max(wanted, room_) : wanted);
}

template <Scalar Host>
void IntervalSearch<Host>::randomize(int first) {
  X_.randomize(first, [this](int i) { return pencil_.diagonal_of_b(i); });
}

// Random vectors, in front of them those that the host gives.
template <Scalar Host>
bool IntervalSearch<Host>::load_subspace() {
  const int n = pencil_.size(), size = working_size();
  pairs_ = base::Workspace<Pair>(static_cast<std::size_t>(size));
  order_ = base::Workspace<int>(static_cast<std::size_t>(size));
  previous_values_ = base::Workspace<double>(static_cast<std::size_t>(size));
  contour_ = Contour(bounds_, arguments_.parameter(kFpmNodes));
  if (!pairs_ || !order_ || !previous_values_ || !X_.reserve(n, size, threads_) ||
      !filter_.reserve(pencil_, solver_, contour_, X_)) {
    return false;
  }
  X_.resize(size);
  randomize(0);
  if (!arguments_.is_on(kFpmInitialSubspace)) return true;
  for (int j = 0; j < std::min(size, room_); ++j) {
    const Host* const given = arguments_.x + static_cast<std::ptrdiff_t>(j) * n;
    const double length =
        std::sqrt(std::accumulate(given, given + n, 0.0, [](double sum, Host x) { return sum + std::norm(T{x}); }));
    if (length == 0) continue;
    const double factor = arguments_.is_on(kFpmFilterOnly) ? 1 : 1 / length;
    std::transform(given, given + n, X_.column(j), [factor](Host x) { return factor * T{x}; });
  }
  return true;
}

// ---- Loops ----------------------------------------------------------------------------------------------------------

template <Scalar Host>
Status IntervalSearch<Host>::filter_only() {
  bounds_ = interval_;
  if (!load_subspace()) return Status::kNoMemory;
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
  if (!load_subspace() || !ritz_.reserve(X_.capacity())) return Status::kNoMemory;
  for (;; ++loop_) {
    if (status = filter_.apply(X_); status != Status::kDone) return status;
    if (!ritz_.run(pencil_, X_)) return Status::kReducedFailed;
    measure();
    const Tally now = tally();
    epsout_ = std::fabs(now.sum - previous_sum_) / scale_;
    if (arguments_.is_on(kFpmPrint)) print_loop(now);
    if (const std::optional<Status> reached = verdict(now)) {
      write_results(now);
      return *reached;
    }
    remember(now);
    replenish(now);
  }
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
    const bool is_right = error_of_value <= std::max(pair.rounding, std::min(precise, to_end));
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
