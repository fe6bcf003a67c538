#include <cmath>

#include "dense/dense.hpp"
#include "slap/iterations.hpp"
#include "slap/vector_updates.hpp"

namespace quorin::slap {

void biconjugate_gradients(const System& system, Progress& progress, float* vectors) {
  const int n = system.n();
  float *const r = vectors, *const z = r + n, *const p = z + n;
  float *const rr = p + n, *const zz = rr + n, *const pp = zz + n;  // the shadows, for A^T
  system.residual(r);
  system.precondition(r, z);
  if (progress.ends_at_start(system, r, z, p)) return;
  dense::copy(n, r, 1, rr, 1);
  float old_zr = 1;  // the first direction needs none
  for (bool is_first = true; progress.next(); is_first = false) {
    system.transposed.solve(rr, zz);
    const float zr = dense::dotu(n, z, 1, rr, 1);
    if (!(std::fabs(zr) > 0)) return progress.fail(kBreakdown);
    const float beta = zr / old_zr;
    turn(n, is_first, z, beta, p);
    turn(n, is_first, zz, beta, pp);
    old_zr = zr;
    float* const q = z;  // A p
    system.matrix.multiply(p, q);
    const float pq = dense::dotu(n, pp, 1, q, 1);
    if (!(std::fabs(pq) > 0)) return progress.fail(kSecondBreakdown);
    const float alpha = zr / pq;
    dense::axpy(n, alpha, p, 1, system.x, 1);
    dense::axpy(n, -alpha, q, 1, r, 1);
    float* const qq = zz;  // A^T pp
    system.matrix.multiply_transposed(pp, qq);
    dense::axpy(n, -alpha, qq, 1, rr, 1);
    system.precondition(r, z);
    if (progress.has_converged(system, r, z)) return;
  }
}

}  // namespace quorin::slap
