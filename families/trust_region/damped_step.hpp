// The step of a linear least-squares model within an ellipsoid.
#pragma once

#include <cstddef>

#include "families/trust_region/arrays.hpp"
#include "families/trust_region/pivoted_qr.hpp"

namespace quorin::trust_region {

// How exactly the length of a step has to meet the radius.
struct StepLimits {
  int iterations;    // on the damping parameter
  double tolerance;  // | ||D s|| - radius | <= tolerance * radius
};

// Minimizes ||A s + b|| over ||D s|| <= radius, D diagonal and positive: the Gauss-Newton step if that is short
// enough, else s(lambda) with (A^T A + lambda D^2) s = -A^T b, lambda by Newton's method on ||D s(lambda)|| with
// safeguards. If columns depend on each other, the least damping that gives a bounded step takes the place of none.
//
// J. J. More, The Levenberg-Marquardt algorithm: implementation and theory, Lecture Notes in Mathematics 630 (1978),
// sections 3 and 5.
class DampedStep {
 public:
  DampedStep() = default;
  DampedStep(std::size_t n, Arrays& arrays);

  // `scale` is the diagonal of D and `s` the step, both in the order in which the columns were given to `qr`.
  void solve(const PivotedQr& qr, const double* scale, double radius, const StepLimits& limits, double* s);

  // Puts the entries of `s` on a grid, one after another from the least determined on: each time the later ones make
  // up for what rounding changed in the model, whose value then rises less than if all were rounded by themselves.
  // `round(j, value)` gives the grid point for entry j. (Babai, Combinatorica 6 (1986), nearest plane.)
  template <class Round>
  void settle(double* s, const Round& round) {
    for (std::size_t k = count_; k-- > 0;) {
      const double* const row = factor_row(k);
      double later = 0.0;
      for (std::size_t j = k + 1; j < count_; ++j) later += row[j] * change_[j];
      const std::size_t entry = qr_->order(k);
      const double settled = round(entry, row[k] == 0.0 ? s[entry] : s[entry] - later / row[k]);
      change_[k] = settled - s[entry];
      s[entry] = settled;
    }
  }

 private:
  double* factor_row(std::size_t i) { return factor_ + i * n_; }
  void damp(double parameter);
  double solve_for_step();
  double newton_correction(double excess);
  double largest_damping() const;
  double least_damping() const;

  std::size_t n_ = 0, count_ = 0;
  double* factor_ = nullptr;  // by rows: the triangle of (R; sqrt(lambda) D)
  double *scale_ = nullptr, *rhs_ = nullptr, *step_ = nullptr, *change_ = nullptr, *spare_ = nullptr;
  const PivotedQr* qr_ = nullptr;
  double radius_ = 0.0, length_ = 0.0;
};

}  // namespace quorin::trust_region
