#include "families/slap/progress.hpp"

#include <algorithm>
#include <limits>

#include "base/machine_constants.hpp"
#include "families/slap/iterations.hpp"
#include "families/slap/vector_updates.hpp"

namespace quorin::slap {

Progress::Progress(const StoppingArguments& arguments)
    : arguments_(arguments), least_claimed_(std::numeric_limits<float>::infinity()) {
  *arguments_.iter = 0;
  set(kConverged);
  const float least = 500 * base::machine_constant(3);
  if (*arguments_.tol < least) {
    *arguments_.tol = least;
    set(kToleranceRaised);
  }
}

template <class T>
bool Progress::start_tests(const System<T>& system, T* scratch) {
  switch (arguments_.itol) {
    case kResidual:
      denominator_ = norm(system.n(), system.b);
      return true;
    case kPreconditionedResidual:
      std::copy_n(system.b, system.n(), scratch);
      system.precondition(scratch, scratch);
      denominator_ = norm(system.n(), scratch);
      return true;
    case kKnownSolution:
      denominator_ = 0;
      return true;
    default:
      *arguments_.err = 1.0E10F;
      set(kBadInput);
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

bool Progress::is_settled(float norm) {
  if (has_converged(norm)) return true;
  const float error = *arguments_.err;
  ++untrue_claims_;
  idle_claims_ = error > 0.95F * least_claimed_ ? idle_claims_ + 1 : 0;
  least_claimed_ = std::min(error, least_claimed_);
  const bool is_stuck = idle_claims_ >= 3 && error <= 2 * least_claimed_;
  if (is_stuck) give_up();
  return is_stuck;
}

template <class T>
float Progress::tested_norm(const System<T>& system, const T* r, const T* z) const {
  if (tests_solution()) return norm(system.n(), system.x);
  return norm(system.n(), tests_preconditioned() ? z : r) / scale_;
}

template <class T>
bool Progress::is_done_after(Leg leg, const System<T>& system, const T* r, const T* z, T* scratch) {
  if (leg == Leg::kOver) return true;
  scale_ = 1;  // r and z are new
  if (leg == Leg::kFirst && !start_tests(system, scratch)) return true;
  const float tested = tested_norm(system, r, z);
  return leg == Leg::kClaimed ? is_settled(tested) : has_converged(tested);
}

void Progress::rescale(int n, Scaling scaling, float* r, float* z) {
  const float norm_r = norm(n, r);
  scale_ = power_near_reciprocal(norm_r, scaling == Scaling::kBySquares ? norm_r : norm(n, z));
  if (scale_ == 1) return;
  dense::scal(n, scale_, r, 1);
  dense::scal(n, scale_, z, 1);
}

bool Progress::next() {
  if (!is_over()) {
    ++*arguments_.iter;
    return true;
  }
  give_up();
  return false;
}

void Progress::give_up() {
  // One more than the limit; the largest limit has no such number.
  *arguments_.iter = static_cast<int>(static_cast<unsigned>(arguments_.itmax) + 1U);
  set(kNotConverged);
}

// What iterations in single precision need, and the one in double.
template bool Progress::start_tests(const System<float>&, float*);
template float Progress::tested_norm(const System<float>&, const float*, const float*) const;
template float Progress::tested_norm(const System<double>&, const double*, const double*) const;
template bool Progress::is_done_after(Leg, const System<float>&, const float*, const float*, float*);
template bool Progress::is_done_after(Leg, const System<double>&, const double*, const double*, double*);

}  // namespace quorin::slap
