#include "families/trust_region/damped_step.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "families/trust_region/vectors.hpp"

namespace quorin::trust_region {
namespace {

// The share of the upper bound that bounds the damping from below where nothing else does.
constexpr double kLeastShare = 1e-12;

}  // namespace

DampedStep::DampedStep(std::size_t n, Arrays& arrays)
    : n_(n),
      factor_(arrays.take(base::saturating_product(n, n))),
      scale_(arrays.take(n)),
      rhs_(arrays.take(n)),
      step_(arrays.take(n)),
      change_(arrays.take(n)),
      spare_(arrays.take(n)) {}

void DampedStep::solve(const PivotedQr& qr, const double* scale, double radius, const StepLimits& limits, double* s) {
  qr_ = &qr;
  count_ = qr.size();
  radius_ = radius;
  for (std::size_t k = 0; k < count_; ++k) scale_[k] = scale[qr.order(k)];

  const bool has_full_rank = qr.rank() == count_;
  const double least = has_full_rank ? 0.0 : least_damping();
  damp(least);
  double excess = solve_for_step();
  const double tolerance = limits.tolerance * radius;
  if (excess > tolerance) {
    // Newton's method comes from below, so its first value is a lower bound.
    double lower = least + newton_correction(excess), upper = std::max(lower, largest_damping());
    double parameter = std::max(lower, kLeastShare * upper);
    for (int i = 0; i < limits.iterations; ++i) {
      damp(parameter);
      excess = solve_for_step();
      if (std::fabs(excess) <= tolerance) break;
      (excess > 0.0 ? lower : upper) = parameter;
      const double next = parameter + newton_correction(excess);
      if (next == parameter) break;
      parameter =
          next > lower && next < upper ? next : std::max(std::sqrt(lower) * std::sqrt(upper), kLeastShare * upper);
    }
    // Out of iterations: the direction is right, the length need not be.
    if (excess > tolerance) {
      for (std::size_t k = 0; k < count_; ++k) step_[k] *= radius / length_;
    }
  }
  for (std::size_t k = 0; k < count_; ++k) s[qr.order(k)] = step_[k];
}

// The triangle of (R; sqrt(parameter) D) and Q^T (rhs; 0), by Givens rotations: a row of the lower part at a time.
void DampedStep::damp(double parameter) {
  for (std::size_t i = 0; i < count_; ++i) {
    for (std::size_t j = i; j < count_; ++j) factor_row(i)[j] = qr_->entry(i, j);
    rhs_[i] = qr_->right_side()[i];
  }
  if (parameter == 0.0) return;
  double* const row = spare_;
  for (std::size_t i = 0; i < count_; ++i) {
    std::fill(row + i, row + count_, 0.0);
    row[i] = std::sqrt(parameter) * scale_[i];
    double right = 0.0;
    for (std::size_t k = i; k < count_; ++k) {
      double* const upper = factor_row(k);
      const double length = hypotenuse(upper[k], row[k]);
      if (length == 0.0) continue;
      const double c = upper[k] / length, s = row[k] / length;
      for (std::size_t j = k; j < count_; ++j) {
        const double above = upper[j], below = row[j];
        upper[j] = c * above + s * below;
        row[j] = c * below - s * above;
      }
      const double above = rhs_[k];
      rhs_[k] = c * above + s * right;
      right = c * right - s * above;
    }
  }
}

// step <- -factor^-1 rhs; returns ||D step|| - radius.
double DampedStep::solve_for_step() {
  for (std::size_t k = count_; k-- > 0;) {
    const double* const row = factor_row(k);
    double sum = rhs_[k];
    for (std::size_t j = k + 1; j < count_; ++j) sum += row[j] * step_[j];
    step_[k] = row[k] == 0.0 ? 0.0 : -sum / row[k];
  }
  length_ = scaled_norm(count_, scale_, step_);
  return length_ - radius_;
}

// Newton's correction of lambda for ||D s(lambda)|| = radius, by which 1/||D s|| is taken as linear:
// (||D s|| - radius) / radius * 1 / ||factor^-T D^2 s / ||D s|| ||^2
double DampedStep::newton_correction(double excess) {
  if (length_ == 0.0) return 0.0;
  double* const w = spare_;
  double square = 0.0;
  for (std::size_t k = 0; k < count_; ++k) w[k] = scale_[k] * (scale_[k] * step_[k] / length_);
  for (std::size_t k = 0; k < count_; ++k) {
    const double* const row = factor_row(k);
    if (row[k] == 0.0) return 0.0;
    w[k] /= row[k];
    square += w[k] * w[k];
    for (std::size_t j = k + 1; j < count_; ++j) w[j] -= row[j] * w[k];
  }
  return excess / radius_ / square;
}

// A lambda for which the step is no longer than the radius: ||D^-1 A^T b|| / radius.
double DampedStep::largest_damping() const {
  double length = 0.0;
  for (std::size_t k = 0; k < count_; ++k) {
    length = hypotenuse(length, dot(k + 1, qr_->column(k), qr_->right_side()) / scale_[k]);
  }
  return std::max(length / radius_, std::numeric_limits<double>::min());
}

// Small beside what the independent columns determine, and enough for a bounded step along the others.
double DampedStep::least_damping() const {
  constexpr double kRelative = 1e-7;
  double most = 0.0;
  for (std::size_t k = 0; k < count_; ++k) most = std::max(most, std::fabs(qr_->entry(k, k)) / scale_[k]);
  return most == 0.0 ? 0.0 : kRelative * most * (kRelative * most);
}

}  // namespace quorin::trust_region
