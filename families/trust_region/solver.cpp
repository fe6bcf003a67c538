#include "families/trust_region/solver.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/sums.hpp"
#include "families/trust_region/vectors.hpp"

namespace quorin::trust_region {
namespace {

// A step is taken if it brings this part of the decrease that the model predicts.
constexpr double kAcceptable = 1e-4;
constexpr double kPoor = 0.25, kGood = 0.75;
// The least share of a step that the next radius is after a failure.
constexpr double kStrongestShrink = 0.1, kMildestShrink = 0.5;
// || ||D s|| - radius | relative to the radius, if the host wants no better.
constexpr double kLooseLength = 0.1;

// Times that the radius is doubled for a step that floats can tell from none, and such steps in vain that end the run.
constexpr int kEnlargements = 20, kFailedEnlargements = 5;
// What rounding of F to floats may change in ||F||^2, relative to it.
constexpr double kNoise = std::numeric_limits<float>::epsilon();
constexpr int kPolishingSteps = 5;

// The first radius in units of ||D x||; the first step is also held to the length that the host wants.
constexpr double kFirstRadius = 100.0;

// By how much D_j may exceed the norm of its column at the start.
constexpr double kMostBalance = 10.0;

// ||F||; not finite if an entry is not, as squares of floats do not overflow.
double norm_of(std::size_t m, const float* residual) { return std::sqrt(base::sum_of_squares(m, residual)); }

StepLimits step_limits(const Setup& setup) {
  const double asked = double{setup.tolerances.step_precision};
  return {.iterations = setup.step_iteration_limit,
          .tolerance = asked > 0.0 ? std::min(asked, kLooseLength) : kLooseLength};
}

}  // namespace

Solver::Solver(const Setup& setup) : setup_(setup) {
  Arrays needed;
  lay_out(needed);
  memory_ = base::Workspace<std::byte>(needed.bytes());
  if (!memory_) return;
  Arrays arrays(memory_.data());
  lay_out(arrays);
  if (setup.lower != nullptr) {
    box_ = {.lower = bounds_, .upper = bounds_ + setup.n};
    std::copy_n(setup.lower, setup.n, bounds_);
    std::copy_n(setup.upper, setup.n, bounds_ + setup.n);
  }
  std::fill_n(largest_norms_, setup.n, 0.0);
}

void Solver::lay_out(Arrays& arrays) {
  const std::size_t n = setup_.n, m = setup_.m;
  bounds_ = arrays.take<float>(setup_.lower != nullptr ? base::saturating_product(2, n) : 0);
  x_ = arrays.take<float>(n);
  trial_x_ = arrays.take<float>(n);
  residual_ = arrays.take<float>(m);
  trial_residual_ = arrays.take<float>(m);
  largest_norms_ = arrays.take(n);
  scale_ = arrays.take(n);
  model_ = LinearModel(n, m, arrays);
  trial_model_ = LinearModel(n, m, arrays);
  step_ = BoxStep(n, arrays);
}

bool Solver::advance(float* residual, const float* jacobian, int* request) {
  const bool has_ended = stage_ == kStopped;
  request_ = resume(residual, jacobian);
  // What the host finds at the end belongs together.
  if (stage_ == kStopped && !has_ended && !failed_) {
    std::copy_n(x_, setup_.n, setup_.x);
    std::copy_n(residual_, setup_.m, residual);
  }
  *request = static_cast<int>(request_);
  return !failed_;
}

// Goes on from where the run stands.
Request Solver::resume(const float* residual, const float* jacobian) {
  switch (stage_) {
    case kStart:
      return start();
    case kFirstResidual:
      return take_first_residual(residual);
    case kFirstJacobian:
      return take_first_jacobian(jacobian);
    case kTrialResidual:
      return take_trial_residual(residual);
    case kTrialJacobian:
      return take_trial_jacobian(jacobian);
    default:
      return request_;
  }
}

Request Solver::start() {
  for (std::size_t j = 0; j < setup_.n; ++j) x_[j] = box_.project(j, setup_.x[j]);
  std::copy_n(x_, setup_.n, setup_.x);
  return ask(kResidual, kFirstResidual);
}

Request Solver::take_first_residual(const float* residual) {
  first_norm_ = norm_ = norm_of(setup_.m, residual);
  if (!std::isfinite(norm_)) return fail();
  std::copy_n(residual, setup_.m, residual_);
  return ask(kJacobian, kFirstJacobian);
}

Request Solver::take_first_jacobian(const float* jacobian) {
  if (!model_.take(jacobian, residual_)) return fail();
  update_scale();
  double length = scaled_norm(setup_.n, scale_, x_);
  // Where F is hardly sensitive to a variable, the norm of its column alone would give it too much room, in units of
  // its own start.
  for (std::size_t j = 0; j < setup_.n; ++j) {
    if (x_[j] == 0.0F) continue;
    const double balanced = length / std::fabs(double{x_[j]});
    largest_norms_[j] = std::max(largest_norms_[j], std::min(balanced, kMostBalance * scale_[j]));
  }
  update_scale();
  length = scaled_norm(setup_.n, scale_, x_);
  radius_ = kFirstRadius * (length > 0.0 ? length : 1.0);
  return go_on_from_new_point();
}

Request Solver::take_trial_residual(const float* residual) {
  trial_norm_ = norm_of(setup_.m, residual);
  if (!std::isfinite(trial_norm_)) return reject_not_finite();
  std::copy_n(residual, setup_.m, trial_residual_);
  const double quotient = trial_norm_ / norm_;
  // Far up, the exact amount says nothing.
  const double actual = quotient < 10.0 ? 1.0 - quotient * quotient : -1.0;
  if (is_within_noise(actual)) {
    ++polishing_steps_;
    return ask(kJacobian, kTrialJacobian);
  }
  update_radius(actual, predicted_decrease_);
  if (actual < kAcceptable * predicted_decrease_) return reject();
  failed_enlargements_ = 0;
  return ask(kJacobian, kTrialJacobian);
}

Request Solver::take_trial_jacobian(const float* jacobian) {
  if (!trial_model_.take(jacobian, trial_residual_)) return reject_not_finite();
  std::swap(model_, trial_model_);
  std::swap(x_, trial_x_);
  std::swap(residual_, trial_residual_);
  norm_ = trial_norm_;
  update_scale();
  return go_on_from_new_point();
}

// At the end of a run the decrease that a step promises is less than the rounding of F in floats, and what is found
// says nothing. The model still knows better, so a few such steps are taken on its word.
bool Solver::is_within_noise(double actual) const {
  return predicted_decrease_ < kNoise && std::fabs(actual) < kNoise && polishing_steps_ < kPolishingSteps;
}

// F or its Jacobian is not finite at the point tried.
Request Solver::reject_not_finite() {
  radius_ = kStrongestShrink * std::min(radius_, step_length_);
  return reject();
}

Request Solver::reject() {
  failed_enlargements_ += is_enlarged_ ? 1 : 0;
  return go_on();
}

Request Solver::go_on_from_new_point() {
  step_.start(model_, box_, x_, scale_);
  if (norm_ < double{setup_.tolerances.residual}) return stop(kResidualSmall);
  if (is_singular()) return stop(kJacobianSingular);
  return go_on();
}

Request Solver::go_on() {
  if (longest_axis() < double{setup_.tolerances.radius}) return stop(kRadiusSmall);
  if (iterations_ >= setup_.iteration_limit) return stop(kIterationLimit);
  return propose();
}

Request Solver::propose() {
  is_enlarged_ = false;
  const double* s = iterations_ == 0 ? find_first_step() : find_step();
  // Floats are too coarse for a short step along a narrow valley; a longer one may still lead down.
  for (int i = 0; i < kEnlargements && failed_enlargements_ < kFailedEnlargements; ++i) {
    if (step_.decrease() > 0.0 || step_length_ < (1.0 - 2.0 * kLooseLength) * radius_) break;
    radius_ *= 2.0;
    is_enlarged_ = true;
    s = find_step();
  }
  const double decrease = 2.0 * step_.decrease();
  if (!(decrease > 0.0)) return stop(kDecreaseSmall);
  const double trial_norm = std::sqrt(std::max(norm_ * norm_ - decrease, 0.0));
  if (decrease / (norm_ + trial_norm) < double{setup_.tolerances.decrease}) return stop(kDecreaseSmall);
  if (norm(setup_.n, s) < double{setup_.tolerances.step}) return stop(kStepSmall);

  slope_ = 0.0;
  for (std::size_t j = 0; j < setup_.n; ++j) slope_ += step_.gradient(j) * s[j] / (norm_ * norm_);
  predicted_decrease_ = decrease / (norm_ * norm_);
  if (iterations_ == 0) radius_ = std::min(radius_, step_length_);
  ++iterations_;
  std::copy_n(trial_x_, setup_.n, setup_.x);
  return ask(kResidual, kTrialResidual);
}

// The step for the present radius, and its length.
const double* Solver::find_step() {
  const double* const s = step_.solve(radius_, step_limits(setup_), trial_x_);
  step_length_ = scaled_norm(setup_.n, scale_, s);
  return s;
}

// The first step: the region shrinks until the step is about as long as the host wants, and no longer. That length is
// Euclidean, as only D knows the units that the variables turn out to have.
const double* Solver::find_first_step() {
  constexpr double kShort = 0.5, kClose = 1.1;
  const double most = double{setup_.first_length};
  double fits = 0.0, exceeds = std::numeric_limits<double>::infinity();
  for (;;) {
    const double* const s = find_step();
    const double length = norm(setup_.n, s);
    if (!(length > most)) {
      fits = radius_;
      if (!(length < kShort * most) || exceeds < kClose * fits || !std::isfinite(exceeds)) return s;
    } else {
      exceeds = std::min(radius_, step_length_);
    }
    if (fits == 0.0) {
      radius_ = 0.9 * most / length * exceeds;
    } else {
      radius_ = exceeds < kClose * fits ? fits : std::sqrt(fits) * std::sqrt(exceeds);
    }
  }
}

// From the decreases of ||F||^2, relative to it. After a failure: to the minimum of the parabola that has the slope of
// the model at the start of the step and the value found at its end.
void Solver::update_radius(double actual, double predicted) {
  if (actual <= kPoor * predicted) {
    const double share = actual >= 0.0 ? kMildestShrink : slope_ / (2.0 * slope_ + actual);
    radius_ = std::clamp(share, kStrongestShrink, kMildestShrink) * std::min(radius_, step_length_ / kStrongestShrink);
  } else if (actual >= kGood * predicted || step_length_ < (1.0 - kLooseLength) * radius_) {
    radius_ = box_.is_bounded() ? std::max(radius_, 2.0 * step_length_) : 2.0 * step_length_;
  }
}

void Solver::update_scale() {
  for (std::size_t j = 0; j < setup_.n; ++j) {
    largest_norms_[j] = std::max(largest_norms_[j], model_.column_norm(j));
    scale_[j] = largest_norms_[j] > 0.0 ? largest_norms_[j] : 1.0;
  }
}

bool Solver::is_singular() const {
  if (setup_.tolerances.column == 0.0F) return false;
  for (std::size_t j = 0; j < setup_.n; ++j) {
    if (model_.column_norm(j) >= double{setup_.tolerances.column}) continue;
    if (!box_.freezes(j, x_[j], step_.gradient(j))) return true;
  }
  return false;
}

// The largest ||s|| that the ellipsoid admits.
double Solver::longest_axis() const { return radius_ / *std::min_element(scale_, scale_ + setup_.n); }

Request Solver::ask(Request request, Stage stage) {
  stage_ = stage;
  return request;
}

Request Solver::stop(Request request) {
  stage_ = kStopped;
  return request;
}

Request Solver::fail() {
  failed_ = true;
  return stop(kIterationLimit);
}

}  // namespace quorin::trust_region
