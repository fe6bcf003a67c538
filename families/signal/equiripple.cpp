#include "families/signal/equiripple.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <numbers>
#include <numeric>

#include "families/signal/equilibrium.hpp"
#include "families/signal/exchange.hpp"
#include "families/signal/linear_phase.hpp"
#include "families/signal/precise_polynomial.hpp"

namespace quorin::signal {
namespace {

using std::numbers::pi;

constexpr int kFewestTaps = 3;

// The hosts' doubles may lie on any multiple of 4 bytes.
double load(const double* array, int i) {
  double value;
  std::memcpy(&value, array + i, sizeof value);
  return value;
}

void store(double* array, int i, double value) { std::memcpy(array + i, &value, sizeof value); }

bool is_valid(const DesignRequest& r) {
  const bool type_known =
      r.type >= static_cast<int>(ResponseType::kMultiband) && r.type <= static_cast<int>(ResponseType::kHilbert);
  if (!type_known || r.taps < kFewestTaps || r.band_count < 1 || r.most_iterations < 0 || r.grid_density < -kFinestGrid)
    return false;
  if (r.taps > std::numeric_limits<int>::max() / 4 || r.band_count > std::numeric_limits<int>::max() / 4) return false;
  double last = -1.0;
  for (int i = 0; i < 2 * r.band_count; ++i) {
    const double edge = load(r.edges, i);
    if (!(edge > last && edge >= 0.0 && edge <= 0.5)) return false;
    last = edge;
  }
  for (int b = 0; b < r.band_count; ++b) {
    const double weight = load(r.weight, b);
    if (!std::isfinite(load(r.desired, b)) || !(weight > 0.0) || !std::isfinite(weight)) return false;
  }
  return true;
}

// A band that ends nearer to a zero of the form than this reaches it.
constexpr double kAtZero = 1e-6;

// The bands in radians, cut where the form has a zero (see the header). A band keeps at least half its width.
void set_bands(const DesignRequest& r, Problem& problem) {
  const LinearPhase& form = problem.form;
  const int density = r.grid_density == 0 ? kDefaultGridDensity : std::abs(r.grid_density);
  const bool on_grid = r.grid_density < 0;
  const double step = pi / (static_cast<double>(density) * (form.degree() + 1));
  if (on_grid) problem.grid_step = step;
  for (int b = 0; b < r.band_count; ++b) {
    Band band{2 * pi * load(r.edges, 2 * b), 2 * pi * load(r.edges, 2 * b + 1), load(r.desired, b), load(r.weight, b),
              false};
    band.relative = r.type == static_cast<int>(ResponseType::kDifferentiator) && band.desired != 0.0;
    const double cut = std::min(step, (band.upper - band.lower) / 4);
    const double margin = on_grid ? cut : kAtZero;
    if (form.vanishes_at_zero() && (on_grid || !band.relative) && band.lower < margin) band.lower = cut;
    if (form.vanishes_at_pi() && band.upper > pi - margin) {
      band.upper = on_grid ? problem.grid_point(band, problem.grid_points(band) - 2) : pi - cut;
    }
    problem.bands[b] = band;
  }
}

// Into how many parts the search divides the space between reference points. On a grid there are no parts, but as many
// candidates as grid points.
int search_pieces(int grid_density) {
  constexpr int kMostPieces = 64;
  if (grid_density < 0) return 1 - grid_density / kSamples;
  return std::clamp(grid_density / kDefaultGridDensity, 1, kMostPieces);
}

// An error of so many times what rounding costs is as good as any.
constexpr double kNearRounding = 1000;

// Rounding in the response, relative to its size and times the largest weight: of what is computed inside the bands,
// where the sums are long, and of what is left when the coefficients are rounded.
struct Rounding {
  explicit Rounding(const Problem& problem) {
    for (int b = 0; b < problem.band_count(); ++b) {
      desired = std::max(desired, std::abs(problem.bands[b].desired));
      weight = std::max(weight, problem.bands[b].weight);
    }
    const double units = 32 + std::sqrt(static_cast<double>(problem.form.taps()));
    computation = units * kEpsilon * desired * weight;
  }
  // `peak` is the largest response between the bands.
  double of_coefficients(double peak) const { return 4 * kEpsilon * weight * std::max(desired, peak); }

  static constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
  double desired = 0.0, weight = 0.0;
  double computation;
};

// A reference, the largest error of its polynomial, and what rounding may add to that.
struct Candidate {
  explicit Candidate(std::size_t capacity) : points(capacity) {}
  void take(const Exchange& exchange, double largest_error) {
    error = largest_error;
    count = exchange.count();
    for (int i = 0; i < count; ++i) points[i] = exchange.point(i);
  }
  double total() const { return error + rounding; }
  double error = std::numeric_limits<double>::infinity();
  double rounding = 0.0;
  int count = 0;
  base::Workspace<Extremum> points;
};

class Designer {
 public:
  Designer(const Problem& problem, int pieces)
      : problem_(problem),
        degree_(problem.form.degree()),
        rounding_(problem),
        exchange_(problem, degree_ + 2, pieces),
        precise_(points_at_most()),
        stage_(points_at_most()),
        best_(points_at_most()),
        places_(points_at_most()),
        share_(problem.bands.size()),
        points_in_(problem.bands.size()) {
    const int bands = problem.band_count();
    widest_gap_ = 2 * std::max(problem.bands[0].lower, pi - problem.bands[bands - 1].upper);
    for (int b = 1; b < bands; ++b) {
      widest_gap_ = std::max(widest_gap_, problem.bands[b].lower - problem.bands[b - 1].upper);
    }
  }
  explicit operator bool() const {
    return exchange_ && precise_ && stage_.points && best_.points && places_ && share_ && points_in_;
  }

  Outcome run(int most_iterations);
  Outcome write(Outcome outcome, double* h);

 private:
  // How a stage ended: at the tolerance, with errors that are lost in rounding, or neither.
  enum class Progress { kReached, kAtFloor, kStuck };

  // A polynomial that is bounded on both sides of a gap can grow in it by about exp(degree width / 2).
  static constexpr double kLargeExponent = 20;

  std::size_t points_at_most() const { return static_cast<std::size_t>(degree_) + 2; }
  Progress run_stage(int degree, int most_iterations, double tolerance);
  Progress iterate(int most_iterations, double tolerance);
  Outcome settle_at_floor();
  bool may_be_large(int degree) const { return degree * widest_gap_ > 2 * kLargeExponent; }
  double peak_between_bands() const;
  void apportion(int points);
  void start(int points);
  void evaluate_best(double* response, int samples);
  bool is_well_conditioned(double t) const;
  bool is_rounding_harmless() const;
  double error_of(const double* h, double t, const Band& band) const;
  bool keeps_its_error(const double* h) const;

  const Problem& problem_;
  int degree_;
  Rounding rounding_;
  double widest_gap_;  // between bands, counting both sides of 0 and pi
  Exchange exchange_;
  PrecisePolynomial precise_;
  Candidate stage_, best_;
  base::Workspace<double> places_, share_;
  base::Workspace<int> points_in_;
};

// Divides `points` among the bands in proportion to their shares, every band getting one if there are enough, and none
// more than its grid has if another has room.
void Designer::apportion(int points) {
  const int bands = problem_.band_count();
  const double total = std::accumulate(share_.begin(), share_.end(), 0.0);
  double sum = 0.0;
  int given = 0;
  for (int b = 0; b < bands; ++b) {
    sum += share_[b];
    const int up_to = b + 1 < bands ? static_cast<int>(std::lround(points * (sum / total))) : points;
    points_in_[b] = up_to - given;
    given = up_to;
  }
  for (int& here : points_in_) {
    int& most = *std::max_element(points_in_.begin(), points_in_.end());
    if (here > 0 || most < 2) continue;
    here = 1;
    --most;
  }
  if (problem_.grid_step == 0) return;
  int surplus = 0;
  const auto most_in = [&](int b) { return problem_.grid_points(problem_.bands[b]); };
  for (int b = 0; b < bands; ++b) {
    surplus += std::max(points_in_[b] - most_in(b), 0);
    points_in_[b] = std::min(points_in_[b], most_in(b));
  }
  for (int b = 0; b < bands; ++b) {
    const int more = std::min(surplus, most_in(b) - points_in_[b]);
    surplus -= more;
    points_in_[b] += more;
  }
  points_in_[bands - 1] += surplus;
}

void Designer::start(int points) {
  const Equilibrium equilibrium(problem_, points - 2);
  const int bands = problem_.band_count();
  for (int b = 0; b < bands; ++b) share_[b] = equilibrium.extrema(b) + 2.0 / bands;
  apportion(points);
  exchange_.set_count(points);
  int next = 0;
  for (int b = 0; b < bands; ++b) {
    equilibrium.place(b, points_in_[b], places_.data());
    for (int i = 0; i < points_in_[b]; ++i) exchange_.set_point(next++, places_[i], b);
  }
  if (problem_.grid_step > 0) exchange_.move_to_grid();
}

// The largest response between the bands, where nothing holds it, from a few samples. What is uncertain about it counts
// as if it came from the rounding of a larger one.
double Designer::peak_between_bands() const {
  constexpr int kPoints = 8;
  double peak = 0.0, from = 0.0;
  for (int b = 0; b <= problem_.band_count(); ++b) {
    const double to = b < problem_.band_count() ? problem_.bands[b].lower : pi;
    for (int i = 0; i < kPoints && from < to; ++i) {
      const double t = std::lerp(from, to, (i + 0.5) / kPoints);
      const auto [value, uncertainty] = precise_.evaluate(std::cos(t));
      peak = std::max(peak, problem_.form.factor(t) * (std::abs(value) + uncertainty / Rounding::kEpsilon));
    }
    if (b < problem_.band_count()) from = problem_.bands[b].upper;
  }
  return peak;
}

// Exchanges until the largest and the leveled error agree to the tolerance. The best reference of the stage is kept.
Designer::Progress Designer::iterate(int most_iterations, double tolerance) {
  constexpr int kMostAtFloor = 5;
  int at_floor = 0;
  for (int i = 0; i < most_iterations; ++i) {
    if (!exchange_.level() || !exchange_.find_extrema()) break;
    const double leveled = std::abs(exchange_.leveled_error());
    const double largest = exchange_.largest_error();
    if (largest < stage_.error) stage_.take(exchange_, largest);
    if (largest - leveled <= std::max(tolerance * largest, rounding_.computation)) return Progress::kReached;
    at_floor = leveled > rounding_.computation ? 0 : at_floor + 1;
    if (at_floor == kMostAtFloor) return Progress::kAtFloor;
    exchange_.exchange();
  }
  return at_floor > 0 ? Progress::kAtFloor : Progress::kStuck;
}

// One stage from start to end, at the given degree. The best reference of all stages is kept: a polynomial of lower
// degree is as good as any. Where errors are small or the response between the bands is large, the coefficients'
// rounding counts, too.
Designer::Progress Designer::run_stage(int degree, int most_iterations, double tolerance) {
  constexpr double kSmall = 1e4;
  start(degree + 2);
  stage_.error = std::numeric_limits<double>::infinity();
  const Progress progress = iterate(most_iterations, tolerance);
  if (!std::isfinite(stage_.error)) return progress;

  stage_.rounding = rounding_.computation;
  if (stage_.error < kSmall * rounding_.computation || may_be_large(degree)) {
    precise_.level(problem_, stage_.points.data(), stage_.count);
    stage_.rounding = std::max(stage_.rounding, rounding_.of_coefficients(peak_between_bands()));
  }
  const bool lost = stage_.error <= stage_.rounding;
  if (best_.count == 0 || stage_.total() < best_.total()) std::swap(stage_, best_);
  if (progress != Progress::kReached) return progress;
  return lost ? Progress::kAtFloor : Progress::kReached;
}

Outcome Designer::run(int most_iterations) {
  constexpr double kTolerance = 1e-9, kToleratedRounding = 1e-3;
  const Progress progress = run_stage(degree_, most_iterations, kTolerance);
  if (progress == Progress::kAtFloor) return settle_at_floor();
  const bool is_best = best_.count == degree_ + 2 && best_.rounding <= kToleratedRounding * best_.error;
  return progress == Progress::kReached && is_best ? Outcome::kConverged : Outcome::kNotConverged;
}

// The least error is lost in rounding, and exchanges lead nowhere. A polynomial of lower degree will do, and better if
// it is smaller between the bands: looks for the highest degree whose error is not lost, by doubling and then by
// bisection.
Outcome Designer::settle_at_floor() {
  constexpr int kSmallDegree = 16, kIterations = 20;
  constexpr double kTolerance = 1e-2;
  const auto reaches = [&](int degree) { return run_stage(degree, kIterations, kTolerance) == Progress::kReached; };
  int low = -1, high = std::min(kSmallDegree, degree_);
  while (high < degree_ && reaches(high)) {
    low = high;
    high = std::min(2 * high, degree_);
  }
  while (high - low > 1 && best_.total() > 2 * rounding_.computation) {
    const int degree = low + (high - low) / 2;
    (reaches(degree) ? low : high) = degree;
  }
  const bool is_near = best_.total() <= kNearRounding * rounding_.computation;
  return is_near && is_rounding_harmless() ? Outcome::kConverged : Outcome::kNotConverged;
}

// Whether what rounding costs in the band of the largest weight is little in that of the least.
bool Designer::is_rounding_harmless() const {
  constexpr double kHarmless = 1e-3;
  double least_weight = std::numeric_limits<double>::infinity();
  for (int b = 0; b < problem_.band_count(); ++b) least_weight = std::min(least_weight, problem_.bands[b].weight);
  return rounding_.computation <= kHarmless * least_weight * rounding_.desired;
}

// The weighted error of a filter.
double Designer::error_of(const double* h, double t, const Band& band) const {
  const int taps = problem_.form.taps();
  const bool antisymmetric = problem_.form.slope_at_zero() != 0.0;
  double response = taps % 2 != 0 && !antisymmetric ? h[taps / 2] : 0.0;
  for (int k = 0; k < taps / 2; ++k) {
    const double angle = t * (taps - 1 - 2 * k) / 2;
    response += 2 * h[k] * (antisymmetric ? std::sin(angle) : std::cos(angle));
  }
  return band.weight * (band.desired - (band.relative ? 2 * pi / t : 1.0) * response);
}

// Whether a filter has the error that its polynomial is said to have, at the reference points with alternating signs
// and between them. Large weights make much of what evaluation of the polynomial, and rounding of the filter, cost. An
// error that is lost in rounding need not alternate.
bool Designer::keeps_its_error(const double* h) const {
  constexpr double kPart = 1e-3;
  const double floor = kNearRounding * rounding_.computation;
  const bool is_lost = best_.error <= floor;
  const double most = (1 + kPart) * best_.error + (is_lost ? floor : 0.0);
  double last = 0.0;
  for (int i = 0; i < best_.count; ++i) {
    const Extremum &here = best_.points[i], &next = best_.points[std::min(i + 1, best_.count - 1)];
    const Band& band = problem_.bands[here.band];
    if (here.t == 0.0 && band.relative) continue;
    const double error = error_of(h, here.t, band);
    if (!(std::abs(error) <= most)) return false;
    if (!is_lost && (std::abs(error) < (1 - kPart) * best_.error || error * last > 0.0)) return false;
    last = error;
    if (next.band == here.band && !(std::abs(error_of(h, (here.t + next.t) / 2, band)) <= most)) return false;
  }
  return true;
}

// Whether the sums of the barycentric form do not cancel at t: within a band, unless another weighs much more. Weights
// of nodes are as unlike as those of their bands, and what cancels in the lighter one would show in the heavier one,
// because the coefficients spread it.
bool Designer::is_well_conditioned(double t) const {
  constexpr double kMuch = 16;
  for (int b = 0; b < problem_.band_count(); ++b) {
    const Band& band = problem_.bands[b];
    if (band.lower <= t && t <= band.upper) return kMuch * band.weight >= rounding_.weight;
  }
  return false;
}

// The response A of the best polynomial at the frequencies k / taps.
void Designer::evaluate_best(double* response, int samples) {
  const LinearPhase& form = problem_.form;
  precise_.level(problem_, best_.points.data(), best_.count);
  exchange_.set_count(best_.count);
  for (int i = 0; i < best_.count; ++i) exchange_.set_point(i, best_.points[i].t, best_.points[i].band);
  static_cast<void>(exchange_.level());  // these points were leveled before, if there are any
  for (int begin = 0; begin < samples; begin += kLanes) {
    double x[kLanes], value[kLanes];
    for (int l = 0; l < kLanes; ++l) x[l] = std::cos(2 * pi * (begin + l) / form.taps());
    exchange_.polynomial().evaluate(x, value);
    for (int l = 0; l < kLanes && begin + l < samples; ++l) {
      const double t = 2 * pi * (begin + l) / form.taps();
      if (!is_well_conditioned(t)) value[l] = precise_.evaluate(x[l]).value;
      response[begin + l] = form.factor(t) * value[l];
    }
  }
}

// Nothing is written if there is no memory.
Outcome Designer::write(Outcome outcome, double* h) {
  const auto taps = static_cast<std::size_t>(problem_.form.taps());
  const std::size_t samples = taps / 2 + 1;
  base::Workspace<double> response(samples), table(2 * taps), filter(taps);
  if (!response || !table || !filter) return Outcome::kNoMemory;
  evaluate_best(response.data(), static_cast<int>(samples));
  problem_.form.taps_from_response(response.data(), table.data(), filter.data());
  for (std::size_t i = 0; i < taps; ++i) store(h, static_cast<int>(i), filter[i]);
  constexpr double kSafe = 1e-6;
  const bool is_safe = rounding_.computation <= kSafe * best_.error;
  return outcome != Outcome::kConverged || is_safe || keeps_its_error(filter.data()) ? outcome : Outcome::kNotConverged;
}

}  // namespace

Outcome design_equiripple(const DesignRequest& request, double* h) {
  if (!is_valid(request)) return Outcome::kBadInput;
  const int most_iterations = request.most_iterations == 0 ? kDefaultIterations : request.most_iterations;
  const bool antisymmetric = request.type != static_cast<int>(ResponseType::kMultiband);

  Problem problem{LinearPhase(request.taps, antisymmetric),
                  base::Workspace<Band>(static_cast<std::size_t>(request.band_count))};
  if (!problem.bands) return Outcome::kNoMemory;
  set_bands(request, problem);

  Designer designer(problem, search_pieces(request.grid_density));
  if (!designer) return Outcome::kNoMemory;
  return designer.write(designer.run(most_iterations), h);
}

}  // namespace quorin::signal
