// The trust-region iteration, cut at the points where the host computes F or its Jacobian.
#pragma once

#include <cstddef>

#include "base/handle_table.hpp"
#include "base/workspace.hpp"
#include "families/trust_region/arrays.hpp"
#include "families/trust_region/box_step.hpp"
#include "families/trust_region/linear_model.hpp"
#include "generated/trust_region_constants.hpp"

namespace quorin::trust_region {

using enum Request;

// When to stop: the host's eps.
struct Tolerances {
  float radius, residual, column, step, decrease, step_precision;
};

struct Setup {
  std::size_t n, m;
  float* x;  // the host's; written with every request
  Tolerances tolerances;
  int iteration_limit, step_iteration_limit;
  float first_length;          // that the first step does not exceed
  const float *lower, *upper;  // copied; null if there are no bounds
};

// Levenberg-Marquardt in its trust-region form, with an ellipsoid ||D s|| <= radius, D being the largest norm so far
// of each column of J: More 1978 (see DampedStep), sections 4 to 7. A point where F, or its Jacobian, is not finite is
// treated like one where ||F|| has grown: the step is taken back and the radius shrinks.
class Solver : public base::HandleNode {
 public:
  explicit Solver(const Setup& setup);
  // False if there was no memory.
  explicit operator bool() const { return static_cast<bool>(memory_); }

  // Takes what was asked for and returns the next request; negative ones repeat. False if the host's first F or
  // Jacobian is not finite: there is nothing to go back to, and the run ends with kIterationLimit.
  [[nodiscard]] bool advance(float* residual, const float* jacobian, int* request);

  int iterations() const { return iterations_; }
  // 0 during a run, then 1...6 for the requests -1...-6.
  int stop_criterion() const { return stage_ == kStopped ? -static_cast<int>(request_) : 0; }
  float first_norm() const { return static_cast<float>(first_norm_); }
  float best_norm() const { return static_cast<float>(norm_); }

 private:
  enum class Stage { kStart, kFirstResidual, kFirstJacobian, kTrialResidual, kTrialJacobian, kStopped };
  using enum Stage;

  void lay_out(Arrays& arrays);
  Request resume(const float* residual, const float* jacobian);
  Request start();
  Request take_first_residual(const float* residual);
  Request take_first_jacobian(const float* jacobian);
  Request take_trial_residual(const float* residual);
  Request take_trial_jacobian(const float* jacobian);
  Request reject();
  Request reject_not_finite();
  Request go_on_from_new_point();
  Request go_on();
  Request propose();
  const double* find_step();
  const double* find_first_step();
  bool is_within_noise(double actual) const;
  void update_scale();
  void update_radius(double actual, double predicted);
  bool is_singular() const;
  double longest_axis() const;

  Request ask(Request request, Stage stage);
  Request stop(Request request);
  Request fail();

  Setup setup_;
  Box box_;
  base::Workspace<std::byte> memory_;
  float *bounds_ = nullptr, *x_ = nullptr, *trial_x_ = nullptr, *residual_ = nullptr, *trial_residual_ = nullptr;
  double *largest_norms_ = nullptr, *scale_ = nullptr;
  LinearModel model_, trial_model_;
  BoxStep step_;

  Stage stage_ = kStart;
  Request request_{};
  int iterations_ = 0, failed_enlargements_ = 0, polishing_steps_ = 0;
  bool is_enlarged_ = false, failed_ = false;
  double radius_ = 0.0, first_norm_ = 0.0, norm_ = 0.0;
  // These belong to the step under way; slope and decrease relative to ||F||^2.
  double trial_norm_ = 0.0, step_length_ = 0.0, slope_ = 0.0, predicted_decrease_ = 0.0;
};

}  // namespace quorin::trust_region
