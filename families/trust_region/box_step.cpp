#include "families/trust_region/box_step.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "families/trust_region/vectors.hpp"

namespace quorin::trust_region {

BoxStep::BoxStep(std::size_t n, Arrays& arrays)
    : n_(n),
      qr_(n, arrays),
      damped_(n, arrays),
      gradient_(arrays.take(n)),
      step_(arrays.take(n)),
      other_step_(arrays.take(n)),
      rhs_(arrays.take(n)),
      image_(arrays.take(n)),
      free_scale_(arrays.take(n)),
      target_(arrays.take(n)),
      free_(arrays.take<std::size_t>(n)),
      frozen_(arrays.take<char>(n)) {}

void BoxStep::start(const LinearModel& model, const Box& box, const float* x, const double* scale) {
  model_ = &model;
  box_ = &box;
  x_ = x;
  scale_ = scale;
  is_all_factored_ = false;
  for (std::size_t j = 0; j < n_; ++j) gradient_[j] = model.gradient(j);
}

const double* BoxStep::solve(double radius, const StepLimits& limits, float* trial) {
  start_at_origin();
  descend(radius, limits);
  if (box_->is_bounded()) {
    const double reached = model_->decrease(step_, image_);
    std::swap(step_, other_step_);
    if (start_at_cauchy_point(radius) && model_->decrease(step_, image_) > reached) {
      descend(radius, limits);
    } else {
      std::swap(step_, other_step_);
    }
  }
  settle(trial);
  decrease_ = model_->decrease(step_, image_);
  return step_;
}

void BoxStep::start_at_origin() {
  for (std::size_t j = 0; j < n_; ++j) {
    step_[j] = 0.0;
    frozen_[j] = box_->freezes(j, x_[j], gradient_[j]) ? 1 : 0;
  }
}

// A point of the path s(t) = P(-t D^-2 g) with a sufficient decrease: t is halved from the minimum along the line that
// the path begins with. Freezes what sits on a bound there. False if there is no such point.
bool BoxStep::start_at_cauchy_point(double radius) {
  start_at_origin();
  double* const direction = target_;
  for (std::size_t j = 0; j < n_; ++j) {
    direction[j] = frozen_[j] != 0 ? 0.0 : -gradient_[j] / (scale_[j] * scale_[j]);
  }
  const double slope = dot(n_, direction, gradient_);
  model_->multiply(direction, image_);
  const double curvature = dot(n_, image_, image_);
  if (!(slope < 0.0) || curvature == 0.0) return false;

  constexpr int kHalvings = 60;
  constexpr double kSufficient = 0.1;
  double t = -slope / curvature;
  for (int i = 0; i < kHalvings; ++i, t /= 2) {
    for (std::size_t j = 0; j < n_; ++j) step_[j] = project(j, t * direction[j]);
    const double change = dot(n_, step_, gradient_);
    if (scaled_norm(n_, scale_, step_) > radius || model_->decrease(step_, image_) < -kSufficient * change) continue;
    for (std::size_t j = 0; j < n_; ++j) {
      if (step_[j] <= least(j) || step_[j] >= most(j)) frozen_[j] = 1;
    }
    return true;
  }
  return false;
}

// Passes until one ends within the box, or nothing is free.
void BoxStep::descend(double radius, const StepLimits& limits) {
  ends_within_ = false;
  while (advance(radius, limits)) {
  }
}

std::size_t BoxStep::collect_free() {
  std::size_t count = 0;
  for (std::size_t j = 0; j < n_; ++j) {
    if (frozen_[j] != 0) continue;
    free_scale_[count] = scale_[j];
    free_[count++] = j;
  }
  return count;
}

// Factors the free columns, with c + (the others) s as right side; returns ||D s|| of the others.
double BoxStep::factor_free(std::size_t count) {
  if (count == n_ && is_all_factored_) return 0.0;
  is_all_factored_ = count == n_;
  double frozen_length = 0.0;
  std::copy_n(model_->right_side(), n_, rhs_);
  for (std::size_t j = 0; j < n_; ++j) {
    if (frozen_[j] == 0 || step_[j] == 0.0) continue;
    base::add_multiple(j + 1, step_[j], model_->column(j), rhs_);
    frozen_length = hypotenuse(frozen_length, scale_[j] * step_[j]);
  }
  qr_.factor(*model_, free_, count, rhs_);
  return frozen_length;
}

// One pass; true if the box stopped it and another one may follow.
bool BoxStep::advance(double radius, const StepLimits& limits) {
  const std::size_t count = collect_free();
  if (count == 0) return false;
  const double frozen_length = factor_free(count);
  const double room =
      frozen_length == 0.0 ? radius : std::sqrt(radius - frozen_length) * std::sqrt(radius + frozen_length);
  if (!(room > 0.0)) return false;

  damped_.solve(qr_, free_scale_, room, limits, target_);
  std::size_t blocking = 0;
  const double share = share_within(count, &blocking);
  const bool is_stopped_below = target_[blocking] < step_[free_[blocking]];
  for (std::size_t k = 0; k < count; ++k) {
    double& s = step_[free_[k]];
    s = share == 1.0 ? target_[k] : project(free_[k], s + share * (target_[k] - s));
  }
  if (share == 1.0) {
    ends_within_ = true;
    return false;
  }
  const std::size_t j = free_[blocking];
  frozen_[j] = 1;
  step_[j] = is_stopped_below ? least(j) : most(j);
  return true;
}

// How far the free variables may go from the step towards the target: the share of the way, and which of them
// stops it.
double BoxStep::share_within(std::size_t count, std::size_t* blocking) const {
  double share = 1.0;
  if (!box_->is_bounded()) return share;
  for (std::size_t k = 0; k < count; ++k) {
    const std::size_t j = free_[k];
    const double way = target_[k] - step_[j];
    const double room = (way < 0.0 ? least(j) : most(j)) - step_[j];
    if (std::fabs(way) > std::fabs(room) && room / way < share) {
      share = room / way;
      *blocking = k;
    }
  }
  return share;
}

// x + s in floats: what sits on a bound goes there exactly, the rest to the nearest floats or, where the last pass left
// a factorization, to those that fit together.
void BoxStep::settle(float* trial) {
  const auto round = [&](std::size_t j, double s) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    const double value = std::clamp(double{x_[j]} + s, -kLargest, kLargest);
    trial[j] = box_->project(j, static_cast<float>(value));
    return double{trial[j]} - double{x_[j]};
  };
  for (std::size_t j = 0; j < n_; ++j) {
    const double s = step_[j];
    step_[j] = round(j, s);
    target_[j] = s;
  }
  if (!ends_within_) return;
  for (std::size_t k = 0; k < qr_.size(); ++k) free_scale_[k] = target_[free_[k]];
  damped_.settle(free_scale_, [&](std::size_t k, double s) { return round(free_[k], s); });
  for (std::size_t k = 0; k < qr_.size(); ++k) step_[free_[k]] = free_scale_[k];
}

}  // namespace quorin::trust_region
