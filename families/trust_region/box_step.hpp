// The step of a trust-region iteration: within an ellipsoid and, if there are bounds, within their box.
#pragma once

#include <cstddef>

#include "base/workspace.hpp"
#include "families/trust_region/damped_step.hpp"
#include "families/trust_region/linear_model.hpp"
#include "families/trust_region/pivoted_qr.hpp"

namespace quorin::trust_region {

// Bounds on x; none if the pointers are null. lower <= upper.
struct Box {
  const float* lower = nullptr;
  const float* upper = nullptr;

  bool is_bounded() const { return lower != nullptr; }
  float project(std::size_t j, float value) const;
  // Whether x_j sits on a bound and going down the gradient would leave the box.
  bool freezes(std::size_t j, float value, double gradient) const;
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
  explicit BoxStep(std::size_t n);
  explicit operator bool() const;

  // From x within the box; `trial`, n floats, is x + s: s is made such that its entries are what differences of floats
  // are, and D is `scale`. Returns the entries of s; they are valid until the next call.
  const double* solve(const LinearModel& model, const Box& box, const float* x, const double* scale, double radius,
                      const StepLimits& limits, float* trial);

  // (||F||^2 - ||F + J s||^2) / 2 of the last step.
  double decrease() const { return decrease_; }

 private:
  struct Task;

  void start_at_origin(const Task& task);
  bool start_at_cauchy_point(const Task& task);
  void descend(const Task& task);
  bool advance(const Task& task);
  std::size_t collect_free(const Task& task);
  double share_within(const Task& task, std::size_t count, std::size_t* blocking) const;
  void settle(const Task& task, float* trial);
  double length(const Task& task) const;

  std::size_t n_;
  PivotedQr qr_;
  DampedStep damped_;
  base::Workspace<double> step_, other_step_, rhs_, image_, free_scale_, target_;
  base::Workspace<std::size_t> free_;
  base::Workspace<char> frozen_;
  bool has_factor_ = false;  // of the free columns: the last pass ended within the box
  double decrease_ = 0.0;
};

}  // namespace quorin::trust_region
