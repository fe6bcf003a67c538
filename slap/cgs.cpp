#include <cmath>

#include "dense/dense.hpp"
#include "slap/iterations.hpp"

namespace quorin::slap {

void conjugate_gradients_squared(const System& system, Progress& progress, float* vectors) {
  const int n = system.n();
  float *const r = vectors, *const r0 = r + n, *const p = r0 + n, *const q = p + n, *const u = q + n;
  float *const t = u + n, *const v = t + n;
  system.residual(r);
  if (progress.tests_preconditioned()) system.precondition(r, t);
  if (progress.ends_at_start(system, r, t, v)) return;
  dense::copy(n, r, 1, r0, 1);
  float old_rho = 0;
  for (bool is_first = true; progress.next(); is_first = false) {
    const float rho = dense::dotu(n, r0, 1, r, 1);
    if (!(std::fabs(rho) > 0)) return progress.fail(kBreakdown);
    // u = r + beta q, p = u + beta (q + beta p)
    const float beta = is_first ? 0 : rho / old_rho;
    if (is_first) {
      dense::copy(n, r, 1, u, 1);
      dense::copy(n, r, 1, p, 1);
    } else {
      for (int i = 0; i < n; ++i) {
        u[i] = r[i] + beta * q[i];
        p[i] = u[i] + beta * (q[i] + beta * p[i]);
      }
    }
    old_rho = rho;
    system.precondition(p, t);
    system.matrix.multiply(t, v);
    const float sigma = dense::dotu(n, r0, 1, v, 1);
    if (!(std::fabs(sigma) > 0)) return progress.fail(kSecondBreakdown);
    const float alpha = rho / sigma;
    // q = u - alpha v, and t = M^-1 (u + q)
    for (int i = 0; i < n; ++i) {
      q[i] = u[i] - alpha * v[i];
      t[i] = u[i] + q[i];
    }
    system.precondition(t, t);
    dense::axpy(n, alpha, t, 1, system.x, 1);
    system.matrix.multiply(t, v);
    dense::axpy(n, -alpha, v, 1, r, 1);
    if (progress.tests_preconditioned()) system.precondition(r, t);
    if (progress.has_converged(system, r, t)) return;
  }
}

}  // namespace quorin::slap
