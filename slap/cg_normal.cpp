#include "dense/dense.hpp"
#include "slap/iterations.hpp"
#include "slap/vector_updates.hpp"

namespace quorin::slap {

namespace {

struct NormalVectors {
  NormalVectors(int n, float* memory) : r(memory), z(r + n), p(z + n), q(p + n) {}
  float *r, *z, *p, *q;
};

// From r = b - A x and z = M^-1 r.
Leg run_leg(const System& system, Progress& progress, const NormalVectors& v) {
  const int n = system.n();
  float old_zr = 1;  // the first direction needs none
  for (bool is_first = true; progress.next(); is_first = false) {
    const float zr = dense::dotu(n, v.z, 1, v.r, 1);
    if (!(zr > 0)) return progress.fail(kBreakdown);
    turn(n, is_first, v.z, zr / old_zr, v.p);
    old_zr = zr;
    system.matrix.multiply_transposed(v.p, v.q);
    const float qq = dense::dotu(n, v.q, 1, v.q, 1);  // (p, A A^T p)
    if (!(qq > 0)) return progress.fail(kSecondBreakdown);
    const float alpha = zr / qq;
    dense::axpy(n, alpha, v.q, 1, system.x, 1);
    system.matrix.multiply(v.q, v.z);
    dense::axpy(n, -alpha, v.z, 1, v.r, 1);
    system.precondition(v.r, v.z);
    if (progress.claims_convergence(progress.tested_norm(system, v.r, v.z))) return Leg::kClaimed;
  }
  return Leg::kOver;
}

}  // namespace

void normal_equations(const System& system, Progress& progress, float* vectors) {
  const NormalVectors v(system.n(), vectors);
  for (Leg leg = Leg::kFirst; leg != Leg::kOver; leg = run_leg(system, progress, v)) {
    system.residual(v.r);
    system.precondition(v.r, v.z);
    if (progress.is_done_after(leg, system, v.r, v.z, v.p)) return;
  }
}

}  // namespace quorin::slap
