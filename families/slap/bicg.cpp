#include <cmath>

#include "dense/dense.hpp"
#include "families/slap/iterations.hpp"
#include "families/slap/legs.hpp"
#include "families/slap/vector_updates.hpp"

namespace quorin::slap {
namespace {

struct BicgVectors {
  BicgVectors(int n, float* memory) : r(memory), z(r + n), p(z + n), rr(p + n), zz(rr + n), pp(zz + n) {}
  float *r, *z, *p;
  float *rr, *zz, *pp;  // their shadows, which A^T moves
};

// From r = b - A x and z = M^-1 r, with r as its own shadow.
Leg run_leg(const System<float>& system, Progress& progress, const BicgVectors& v) {
  const int n = system.n();
  progress.rescale(n, Scaling::kByProducts, v.r, v.z);
  dense::copy(n, v.r, 1, v.rr, 1);
  float old_zr = 1;  // the first direction needs none
  for (bool is_first = true; progress.next(); is_first = false) {
    const float zr = dense::dotu(n, v.z, 1, v.rr, 1);
    if (!is_first && is_lost(zr, dense::nrm2(n, v.z, 1), dense::nrm2(n, v.rr, 1))) return progress.lose();
    if (!(std::fabs(zr) > 0)) return progress.fail(kBreakdown);
    system.transposed.solve(v.rr, v.zz);
    update_direction(n, is_first, v.z, zr / old_zr, v.p);
    update_direction(n, is_first, v.zz, zr / old_zr, v.pp);
    old_zr = zr;
    float* const q = v.z;  // A p
    system.matrix.multiply(v.p, q);
    const float pq = dense::dotu(n, v.pp, 1, q, 1);
    if (!(std::fabs(pq) > 0)) return progress.fail(kSecondBreakdown);
    const float alpha = zr / pq;
    dense::axpy(n, progress.unscaled(alpha), v.p, 1, system.x, 1);
    dense::axpy(n, -alpha, q, 1, v.r, 1);
    float* const qq = v.zz;  // A^T pp
    system.matrix.multiply_transposed(v.pp, qq);
    dense::axpy(n, -alpha, qq, 1, v.rr, 1);
    system.precondition(v.r, v.z);
    if (progress.claims_convergence(progress.tested_norm(system, v.r, v.z))) return Leg::kClaimed;
  }
  return Leg::kOver;
}

}  // namespace

void biconjugate_gradients(const System<float>& system, Progress& progress, float* vectors) {
  const BicgVectors v(system.n(), vectors);
  run_legs(system, progress, v.r, v.z, v.p, [&] { return run_leg(system, progress, v); });
}

}  // namespace quorin::slap
