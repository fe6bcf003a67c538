#include "slap/progress.hpp"

#include "base/machine_constants.hpp"
#include "dense/dense.hpp"
#include "slap/iterations.hpp"

namespace quorin::slap {

Progress::Progress(const StoppingArguments& arguments) : arguments_(arguments) {
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

bool Progress::has_converged(const System& system, const float* r, const float* z) {
  const float* tested = tests_solution() ? system.x : tests_preconditioned() ? z : r;
  return has_converged(dense::nrm2(system.n(), tested, 1));
}

bool Progress::ends_at_start(const System& system, const float* r, const float* z, float* scratch) {
  return !start_tests(system, scratch) || has_converged(system, r, z);
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
