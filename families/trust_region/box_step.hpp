// The step of a trust-region iteration: within an ellipsoid and, if there are bounds, within their box.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>

#include "families/trust_region/arrays.hpp"
#include "families/trust_region/damped_step.hpp"
#include "families/trust_region/linear_model.hpp"
#include "families/trust_region/pivoted_qr.hpp"

namespace quorin::trust_region {

// Bounds on x; none if the pointers are null. lower <= upper.
struct Box {
  const float* lower = nullptr;
  const float* upper = nullptr;

  bool is_bounded() const { return lower != nullptr; }
  float project(std::size_t j, float value) const {
    return is_bounded() ? std::min(std::max(value, lower[j]), upper[j]) : value;
  }
  // Whether x_j sits on a bound and going down the gradient would leave the box.
  bool freezes(std::size_t j, float value, double gradient) const {
    return is_bounded() && ((value <= lower[j] && gradient >= 0.0) || (value >= upper[j] && gradient <= 0.0));
  }
};

// Reduces ||F + J s|| over ||D s|| <= radius and lower <= x + s <= upper.
//
// Bounds are handled by active sets: minimize over the free variables, go towards the minimum as far as the box
// allows, freeze the variable that stops the step there, and minimize over the others. Each pass lowers the model. The
// result is at least as good as the generalized Cauchy point, from which the passes start anew if it is not; that
// makes the iteration converge (Conn, Gould, Toint, Trust-Region Methods, SIAM 2000, sections 12.1 and 12.2). Without
// bounds this is the damped step.
class BoxStep {
 public:
  BoxStep() = default;
  BoxStep(std::size_t n, Arrays& arrays);

  // The steps to come start at x, within the box; D is `scale`. All that is given stays the caller's, and as it is.
  void start(const LinearModel& model, const Box& box, const float* x, const double* scale);

  // `trial`, n floats, is x + s: s is made such that its entries are what differences of floats are. Returns the
  // entries of s; they are valid until the next call.
  const double* solve(double radius, const StepLimits& limits, float* trial);

  // (J^T F)_j
  double gradient(std::size_t j) const { return gradient_[j]; }
  // (||F||^2 - ||F + J s||^2) / 2 of the last step.
  double decrease() const { return decrease_; }

 private:
  // How far entry j of a step may go down and up.
  double least(std::size_t j) const { return box_->is_bounded() ? double{box_->lower[j]} - double{x_[j]} : -kFar; }
  double most(std::size_t j) const { return box_->is_bounded() ? double{box_->upper[j]} - double{x_[j]} : kFar; }
  double project(std::size_t j, double s) const { return std::min(std::max(s, least(j)), most(j)); }

  void start_at_origin();
  bool start_at_cauchy_point(double radius);
  void descend(double radius, const StepLimits& limits);
  bool advance(double radius, const StepLimits& limits);
  std::size_t collect_free();
  double factor_free(std::size_t count);
  double share_within(std::size_t count, std::size_t* blocking) const;
  void settle(float* trial);

  static constexpr double kFar = std::numeric_limits<double>::infinity();

  std::size_t n_ = 0;
  PivotedQr qr_;
  DampedStep damped_;
  double *gradient_ = nullptr, *step_ = nullptr, *other_step_ = nullptr, *rhs_ = nullptr, *image_ = nullptr;
  double *free_scale_ = nullptr, *target_ = nullptr;
  std::size_t* free_ = nullptr;
  char* frozen_ = nullptr;

  // The point where steps start.
  const LinearModel* model_ = nullptr;
  const Box* box_ = nullptr;
  const float* x_ = nullptr;
  const double* scale_ = nullptr;

  bool is_all_factored_ = false;  // qr_ is that of all columns at this point
  bool ends_within_ = false;      // the last pass ended within the box, with a factorization of the free columns
  double decrease_ = 0.0;
};

}  // namespace quorin::trust_region
