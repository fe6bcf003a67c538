#include "dense/dense.hpp"
#include "slap/iterations.hpp"
#include "slap/vector_updates.hpp"

namespace quorin::slap {

void normal_equations(const System& system, Progress& progress, float* vectors) {
  const int n = system.n();
  float *const r = vectors, *const z = r + n, *const p = z + n, *const q = p + n;
  system.residual(r);
  system.precondition(r, z);
  if (progress.ends_at_start(system, r, z, p)) return;
  float old_zr = 1;  // the first direction needs none
  for (bool is_first = true; progress.next(); is_first = false) {
    const float zr = dense::dotu(n, z, 1, r, 1);
    if (!(zr > 0)) return progress.fail(kBreakdown);
    turn(n, is_first, z, zr / old_zr, p);
    old_zr = zr;
    system.matrix.multiply_transposed(p, q);
    const float qq = dense::dotu(n, q, 1, q, 1);  // (p, A A^T p)
    if (!(qq > 0)) return progress.fail(kSecondBreakdown);
    const float alpha = zr / qq;
    dense::axpy(n, alpha, q, 1, system.x, 1);
    system.matrix.multiply(q, z);
    dense::axpy(n, -alpha, z, 1, r, 1);
    system.precondition(r, z);
    if (progress.has_converged(system, r, z)) return;
  }
}

}  // namespace quorin::slap
