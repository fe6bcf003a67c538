#include "dense/dense.hpp"
#include "families/slap/iterations.hpp"
#include "families/slap/vector_updates.hpp"

namespace quorin::slap {

void conjugate_gradients(const System<float>& system, Progress& progress, float* vectors) {
  const int n = system.n();
  float *const r = vectors, *const z = r + n, *const p = z + n;
  system.residual(r);
  system.precondition(r, z);
  if (progress.is_done_after(Leg::kFirst, system, r, z, p)) return;
  progress.rescale(n, Scaling::kByProducts, r, z);
  float old_zr = 1;  // the first direction needs none
  for (bool is_first = true; progress.next(); is_first = false) {
    const float zr = dense::dotu(n, z, 1, r, 1);
    if (zr <= 0) {
      progress.fail(kBreakdown);
      return;
    }
    update_direction(n, is_first, z, zr / old_zr, p);
    old_zr = zr;
    float* const q = z;  // A p
    system.matrix.multiply(p, q);
    const float pq = dense::dotu(n, p, 1, q, 1);
    if (pq <= 0) {
      progress.fail(kSecondBreakdown);
      return;
    }
    const float alpha = zr / pq;
    dense::axpy(n, progress.unscaled(alpha), p, 1, system.x, 1);
    dense::axpy(n, -alpha, q, 1, r, 1);
    system.precondition(r, z);
    if (progress.has_converged(progress.tested_norm(system, r, z))) return;
  }
}

}  // namespace quorin::slap
