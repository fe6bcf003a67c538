#include "slap/progress.hpp"

#include <algorithm>
#include <limits>

#include "base/machine_constants.hpp"
#include "dense/dense.hpp"
#include "slap/iterations.hpp"

namespace quorin::slap {

Progress::Progress(const StoppingArguments& arguments)
    : arguments_(arguments), least_claimed_(std::numeric_limits<float>::infinity()) {
  *arguments_.iter = 0;
  *arguments_.ierr = kConverged;
  const float least = 500 * base::machine_constant(3);
  if (*arguments_.tol < least) {
    *arguments_.tol = least;
    *arguments_.ierr = kToleranceRaised;
  }
}

bool Progress::start_tests(const System& system, float* scratch) {
  switch (arguments_.itol) {
    case kResidual:
      denominator_ = dense::nrm2(system.n(), system.b, 1);
      return true;
    case kPreconditionedResidual:
      system.precondition(system.b, scratch);
      denominator_ = dense::nrm2(system.n(), scratch, 1);
      return true;
    case kKnownSolution:
      denominator_ = 0;
      return true;
    default:
      *arguments_.err = 1.0E10F;
      *arguments_.ierr = kBadInput;
      return false;
  }
}

bool Progress::has_converged(float norm) {
  *arguments_.err = norm / denominator_;
  return *arguments_.err <= *arguments_.tol;
}

bool Progress::claims_convergence(float norm) {
  if (!has_converged(norm)) return false;
  return untrue_claims_ == 0 || *arguments_.err <= *arguments_.tol / 2 || is_over();
}

bool Progress::is_confirmed(float norm) {
  if (has_converged(norm)) return true;
  const float error = *arguments_.err;
  ++untrue_claims_;
  idle_claims_ = error > 0.95F * least_claimed_ ? idle_claims_ + 1 : 0;
  least_claimed_ = std::min(error, least_claimed_);
  return idle_claims_ >= 3 && error <= 2 * least_claimed_;
}

float Progress::tested_norm(const System& system, const float* r, const float* z) const {
  const float* tested = tests_solution() ? system.x : tests_preconditioned() ? z : r;
  return dense::nrm2(system.n(), tested, 1);
}

bool Progress::is_done_after(Leg leg, const System& system, const float* r, const float* z, float* scratch) {
  if (leg == Leg::kOver) return true;
  if (leg == Leg::kFirst && !start_tests(system, scratch)) return true;
  const float norm = tested_norm(system, r, z);
  return leg == Leg::kClaimed ? is_confirmed(norm) : has_converged(norm);
}

bool Progress::next() {
  if (!is_over()) {
    ++*arguments_.iter;
    return true;
  }
  // One more than the limit; the largest limit has no such number.
  *arguments_.iter = static_cast<int>(static_cast<unsigned>(arguments_.itmax) + 1U);
  *arguments_.ierr = kNotConverged;
  return false;
}

}  // namespace quorin::slap
