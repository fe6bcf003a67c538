#include "families/trust_region/box_step.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/sums.hpp"

namespace quorin::trust_region {

float Box::project(std::size_t j, float value) const {
  return is_bounded() ? std::min(std::max(value, lower[j]), upper[j]) : value;
}

bool Box::freezes(std::size_t j, float value, double gradient) const {
  return is_bounded() && ((value <= lower[j] && gradient >= 0.0) || (value >= upper[j] && gradient <= 0.0));
}

// What a step is made from.
struct BoxStep::Task {
  const LinearModel& model;
  const Box& box;
  const float* x;
  const double* scale;
  double radius;
  const StepLimits& limits;

  // How far entry j of a step may go down and up.
  double least(std::size_t j) const { return box.is_bounded() ? double{box.lower[j]} - double{x[j]} : -kFar; }
  double most(std::size_t j) const { return box.is_bounded() ? double{box.upper[j]} - double{x[j]} : kFar; }
  double project(std::size_t j, double s) const { return std::min(std::max(s, least(j)), most(j)); }

  static constexpr double kFar = std::numeric_limits<double>::infinity();
};

BoxStep::BoxStep(std::size_t n)
    : n_(n),
      qr_(n),
      damped_(n),
      step_(n),
      other_step_(n),
      rhs_(n),
      image_(n),
      free_scale_(n),
      target_(n),
      free_(n),
      frozen_(n) {}

BoxStep::operator bool() const {
  return qr_ && damped_ && step_ && other_step_ && rhs_ && image_ && free_scale_ && target_ && free_ && frozen_;
}

const double* BoxStep::solve(const LinearModel& model, const Box& box, const float* x, const double* scale,
                             double radius, const StepLimits& limits, float* trial) {
  const Task task{model, box, x, scale, radius, limits};
  start_at_origin(task);
  descend(task);
  if (box.is_bounded()) {
    const double reached = model.decrease(step_.data(), image_.data());
    step_.swap(other_step_);
    if (start_at_cauchy_point(task) && model.decrease(step_.data(), image_.data()) > reached) {
      descend(task);
    } else {
      step_.swap(other_step_);
    }
  }
  settle(task, trial);
  decrease_ = model.decrease(step_.data(), image_.data());
  return step_.data();
}

void BoxStep::start_at_origin(const Task& task) {
  for (std::size_t j = 0; j < n_; ++j) {
    step_[j] = 0.0;
    frozen_[j] = task.box.freezes(j, task.x[j], task.model.gradient(j)) ? 1 : 0;
  }
}

double BoxStep::length(const Task& task) const {
  double length = 0.0;
  for (std::size_t j = 0; j < n_; ++j) length = std::hypot(length, task.scale[j] * step_[j]);
  return length;
}

// A point of the path s(t) = P(-t D^-2 g) with a sufficient decrease: t is halved from the minimum along the line that
// the path begins with. Freezes what sits on a bound there. False if there is no such point.
bool BoxStep::start_at_cauchy_point(const Task& task) {
  start_at_origin(task);
  double* const direction = target_.data();
  double slope = 0.0;
  for (std::size_t j = 0; j < n_; ++j) {
    const double gradient = task.model.gradient(j);
    direction[j] = frozen_[j] != 0 ? 0.0 : -gradient / (task.scale[j] * task.scale[j]);
    slope += direction[j] * gradient;
  }
  task.model.multiply(direction, image_.data());
  const double curvature = base::dot(n_, image_.data(), image_.data());
  if (!(slope < 0.0) || curvature == 0.0) return false;

  constexpr int kHalvings = 60;
  constexpr double kSufficient = 0.1;
  double t = -slope / curvature;
  for (int i = 0; i < kHalvings; ++i, t /= 2) {
    double change = 0.0;
    for (std::size_t j = 0; j < n_; ++j) {
      step_[j] = task.project(j, t * direction[j]);
      change += step_[j] * task.model.gradient(j);
    }
    if (length(task) > task.radius || task.model.decrease(step_.data(), image_.data()) < -kSufficient * change)
      continue;
    for (std::size_t j = 0; j < n_; ++j) {
      if (step_[j] <= task.least(j) || step_[j] >= task.most(j)) frozen_[j] = 1;
    }
    return true;
  }
  return false;
}

// Passes until one ends within the box, or nothing is free.
void BoxStep::descend(const Task& task) {
  has_factor_ = false;
  while (advance(task)) {
  }
}

std::size_t BoxStep::collect_free(const Task& task) {
  std::size_t count = 0;
  for (std::size_t j = 0; j < n_; ++j) {
    if (frozen_[j] != 0) continue;
    free_scale_[count] = task.scale[j];
    free_[count++] = j;
  }
  return count;
}

// One pass; true if the box stopped it and another one may follow.
bool BoxStep::advance(const Task& task) {
  const std::size_t count = collect_free(task);
  if (count == 0) return false;

  // rhs <- c + (columns of what is frozen) s, and the room that their part of the step leaves.
  double frozen_length = 0.0;
  std::copy_n(task.model.right_side(), n_, rhs_.data());
  for (std::size_t j = 0; j < n_; ++j) {
    if (frozen_[j] == 0 || step_[j] == 0.0) continue;
    base::add_multiple(j + 1, step_[j], task.model.column(j), rhs_.data());
    frozen_length = std::hypot(frozen_length, task.scale[j] * step_[j]);
  }
  const double room = std::sqrt(task.radius - frozen_length) * std::sqrt(task.radius + frozen_length);
  if (!(room > 0.0)) return false;

  qr_.factor(task.model, free_.data(), count, rhs_.data());
  damped_.solve(qr_, free_scale_.data(), room, task.limits, target_.data());
  std::size_t blocking = 0;
  const double share = share_within(task, count, &blocking);
  const bool is_stopped_below = target_[blocking] < step_[free_[blocking]];
  for (std::size_t k = 0; k < count; ++k) {
    double& s = step_[free_[k]];
    s = share == 1.0 ? target_[k] : task.project(free_[k], s + share * (target_[k] - s));
  }
  if (share == 1.0) {
    has_factor_ = true;
    return false;
  }
  const std::size_t j = free_[blocking];
  frozen_[j] = 1;
  step_[j] = is_stopped_below ? task.least(j) : task.most(j);
  return true;
}

// How far the free variables may go from the step towards the target: the share of the way, and which of them
// stops it.
double BoxStep::share_within(const Task& task, std::size_t count, std::size_t* blocking) const {
  double share = 1.0;
  for (std::size_t k = 0; k < count; ++k) {
    const std::size_t j = free_[k];
    const double way = target_[k] - step_[j];
    const double room = (way < 0.0 ? task.least(j) : task.most(j)) - step_[j];
    if (std::fabs(way) > std::fabs(room) && room / way < share) {
      share = room / way;
      *blocking = k;
    }
  }
  return share;
}

// x + s in floats: what sits on a bound goes there exactly, the rest to the nearest floats or, where the last pass left
// a factorization, to those that fit together.
void BoxStep::settle(const Task& task, float* trial) {
  const auto round = [&](std::size_t j, double s) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    const double value = std::clamp(double{task.x[j]} + s, -kLargest, kLargest);
    trial[j] = task.box.project(j, static_cast<float>(value));
    return double{trial[j]} - double{task.x[j]};
  };
  for (std::size_t j = 0; j < n_; ++j) {
    const double s = step_[j];
    step_[j] = round(j, s);
    target_[j] = s;
  }
  if (!has_factor_) return;
  for (std::size_t k = 0; k < qr_.size(); ++k) free_scale_[k] = target_[free_[k]];
  damped_.settle(free_scale_.data(), [&](std::size_t k, double s) { return round(free_[k], s); });
  for (std::size_t k = 0; k < qr_.size(); ++k) step_[free_[k]] = free_scale_[k];
}

}  // namespace quorin::trust_region
