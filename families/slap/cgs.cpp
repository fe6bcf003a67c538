#include <cmath>

#include "dense/dense.hpp"
#include "families/slap/iterations.hpp"
#include "families/slap/legs.hpp"
#include "families/slap/vector_updates.hpp"

namespace quorin::slap {
namespace {

struct CgsVectors {
  CgsVectors(int n, float* memory) : r(memory), r0(r + n), p(r0 + n), q(p + n), u(q + n), t(u + n), v(t + n) {}
  float *r, *r0, *p, *q, *u, *t, *v;
};

// u <- r + beta q, p <- u + beta (q + beta p)
void update_directions(int n, bool is_first, float beta, const CgsVectors& w) {
  if (is_first) {
    dense::copy(n, w.r, 1, w.u, 1);
    dense::copy(n, w.r, 1, w.p, 1);
    return;
  }
  for (int i = 0; i < n; ++i) {
    w.u[i] = w.r[i] + beta * w.q[i];
    w.p[i] = w.u[i] + beta * (w.q[i] + beta * w.p[i]);
  }
}

// From r = b - A x.
Leg run_leg(const System<float>& system, Progress& progress, const CgsVectors& w) {
  const int n = system.n();
  progress.rescale(n, Scaling::kBySquares, w.r, w.t);
  dense::copy(n, w.r, 1, w.r0, 1);
  const float norm_r0 = dense::nrm2(n, w.r0, 1);
  float old_rho = 1;  // the first direction needs none
  for (bool is_first = true; progress.next(); is_first = false) {
    const float rho = dense::dotu(n, w.r0, 1, w.r, 1);
    if (!is_first && is_lost(rho, norm_r0, dense::nrm2(n, w.r, 1))) return progress.lose();
    if (!(std::fabs(rho) > 0)) return progress.fail(kBreakdown);
    update_directions(n, is_first, rho / old_rho, w);
    old_rho = rho;
    system.precondition(w.p, w.t);
    system.matrix.multiply(w.t, w.v);
    const float sigma = dense::dotu(n, w.r0, 1, w.v, 1);
    if (!is_first && is_lost(sigma, norm_r0, dense::nrm2(n, w.v, 1))) return progress.lose();
    if (!(std::fabs(sigma) > 0)) return progress.fail(kSecondBreakdown);
    const float alpha = rho / sigma;
    // q = u - alpha v, and t = M^-1 (u + q)
    for (int i = 0; i < n; ++i) {
      w.q[i] = w.u[i] - alpha * w.v[i];
      w.t[i] = w.u[i] + w.q[i];
    }
    system.precondition(w.t, w.t);
    dense::axpy(n, progress.unscaled(alpha), w.t, 1, system.x, 1);
    system.matrix.multiply(w.t, w.v);
    dense::axpy(n, -alpha, w.v, 1, w.r, 1);
    if (progress.tests_preconditioned()) system.precondition(w.r, w.t);
    if (progress.claims_convergence(progress.tested_norm(system, w.r, w.t))) return Leg::kClaimed;
  }
  return Leg::kOver;
}

}  // namespace

void conjugate_gradients_squared(const System<float>& system, Progress& progress, float* vectors) {
  const CgsVectors w(system.n(), vectors);
  run_legs(system, progress, w.r, w.t, w.v, [&] { return run_leg(system, progress, w); });
}

}  // namespace quorin::slap
