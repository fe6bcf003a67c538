#include "dense/dense.hpp"
#include "families/slap/iterations.hpp"

namespace quorin::slap {

void refinement(const System<float>& system, Progress& progress, float* vectors) {
  const int n = system.n();
  float *const r = vectors, *const z = r + n;
  system.residual(r);
  if (!progress.start_tests(system, z)) return;
  system.precondition(r, z);
  if (progress.has_converged(progress.tested_norm(system, r, z))) return;
  while (progress.next()) {
    dense::axpy(n, 1.0F, z, 1, system.x, 1);
    system.residual(r);
    system.precondition(r, z);
    if (progress.has_converged(progress.tested_norm(system, r, z))) return;
  }
}

}  // namespace quorin::slap
