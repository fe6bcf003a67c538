#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "base/rotated_hessenberg.hpp"
#include "dense/dense.hpp"
#include "families/slap/iterations.hpp"

namespace quorin::slap {
namespace {

// Whether the preconditioned residual is made least, M^-1 A x = M^-1 b, or the residual, A M^-1 (M x) = b.
enum class Side { kLeft, kRight };

// One cycle: the Krylov basis V, and the least-squares problem for the coefficients of the correction in it.
class Cycle {
 public:
  Cycle(const System<float>& system, Side side, int length, float* memory)
      : system_(system), side_(side), n_(system.n()), v_(memory), z_(v(length) + n_), hessenberg_(z_ + n_, length) {}

  float* v(int k) const { return v_ + static_cast<std::ptrdiff_t>(k) * n_; }
  float* scratch() const { return z_; }

  // V(0) <- the residual that is made least; returns its norm.
  float take_residual() {
    system_.residual(v(0));
    if (side_ == Side::kLeft) system_.precondition(v(0), v(0));
    return dense::nrm2(n_, v(0), 1);
  }

  void start(float norm) {
    dense::scal(n_, 1 / norm, v(0), 1);
    hessenberg_.g()[0] = norm;
    steps_ = 0;
  }

  // Adds a vector to the basis. False if that cannot be used, as A is singular or something is not finite.
  bool step() {
    const int k = steps_;
    float* const w = v(k + 1);
    apply(v(k), w);
    const float before = dense::nrm2(n_, w, 1);
    // Modified Gram-Schmidt, which is backward stable here: C. C. Paige, M. Rozloznik, Z. Strakos, SIAM J. Matrix Anal.
    // Appl. 28 (2006) 264-284.
    for (int i = 0; i <= k; ++i) {
      const float h = dense::dotu(n_, v(i), 1, w, 1);
      dense::axpy(n_, -h, v(i), 1, w, 1);
      hessenberg_.column(k)[i] = h;
    }
    const float after = dense::nrm2(n_, w, 1);
    const float noise = static_cast<float>(k + 1) * std::numeric_limits<float>::epsilon() * before;
    if (!hessenberg_.take_step(k, after, noise)) return false;
    if (after > 0) dense::scal(n_, 1 / after, w, 1);
    ++steps_;
    return true;
  }

  // The norm of the residual, as the recurrence has it.
  float residual_norm() const { return hessenberg_.residual_norm(steps_); }

  // x <- x + V y, or x + M^-1 V y.
  void correct() {
    if (steps_ == 0) return;
    float* const y = hessenberg_.g();
    hessenberg_.solve(steps_, y);
    float* const target = side_ == Side::kLeft ? system_.x : z_;
    if (side_ == Side::kRight) std::fill_n(z_, n_, 0.0F);
    for (int i = 0; i < steps_; ++i) dense::axpy(n_, y[i], v(i), 1, target, 1);
    if (side_ == Side::kRight) {
      system_.precondition(z_, z_);
      dense::axpy(n_, 1.0F, z_, 1, system_.x, 1);
    }
  }

 private:
  void apply(const float* x, float* y) const {
    if (side_ == Side::kLeft) {
      system_.matrix.multiply(x, z_);
      system_.precondition(z_, y);
    } else {
      system_.precondition(x, z_);
      system_.matrix.multiply(z_, y);
    }
  }

  const System<float>& system_;
  Side side_;
  int n_;
  float *v_, *z_;
  base::RotatedHessenberg<float> hessenberg_;
  int steps_ = 0;
};

enum class CycleEnd { kRestart, kClaimed, kBreakdown };

CycleEnd run_cycle(Cycle& cycle, int length, Progress& progress) {
  for (int k = 0; k < length && !progress.is_over(); ++k) {
    progress.next();
    if (!cycle.step()) return CycleEnd::kBreakdown;
    // A test of the solution, which is not there yet, waits for the end of the cycle.
    if (!progress.tests_solution() && progress.claims_convergence(cycle.residual_norm())) return CycleEnd::kClaimed;
  }
  return CycleEnd::kRestart;
}

}  // namespace

void minimal_residuals(const System<float>& system, int length, Progress& progress, float* vectors) {
  Cycle cycle(system, progress.tests_preconditioned() ? Side::kLeft : Side::kRight, length, vectors);
  if (!progress.start_tests(system, cycle.scratch())) return;
  CycleEnd end = CycleEnd::kRestart;
  for (;;) {
    const float norm = cycle.take_residual();
    const float tested = progress.tests_solution() ? dense::nrm2(system.n(), system.x, 1) : norm;
    if (end == CycleEnd::kClaimed ? progress.is_settled(tested) : progress.has_converged(tested)) return;
    if (end == CycleEnd::kBreakdown || !(norm > 0) || !std::isfinite(norm)) {
      progress.fail(kBreakdown);
      return;
    }
    if (progress.is_over()) {
      progress.next();
      return;
    }
    cycle.start(norm);
    end = run_cycle(cycle, length, progress);
    cycle.correct();
  }
}

}  // namespace quorin::slap
