#include <cstddef>
#include <cstdint>
#include <new>

#include "base/sums.hpp"
#include "families/slap/iterations.hpp"
#include "families/slap/legs.hpp"
#include "families/slap/vector_updates.hpp"

namespace quorin::slap {
namespace {

// x <- x + alpha q for entries begin .. end-1. What rounding to x takes is kept in `low`, which counts as zero at
// first; so x does not depart from the recurrence, but for its last rounding.
void advance(int begin, int end, bool is_first, double alpha, const double* q, float* x, float* low) {
  for (int i = begin; i < end; ++i) {
    const double xi = x[i] + ((is_first ? 0.0F : low[i]) + alpha * q[i]);
    x[i] = static_cast<float>(xi);
    low[i] = static_cast<float>(xi - x[i]);
  }
}

// Three vectors of doubles and one of floats in 7 n reals, which are aligned for floats only. The doubles begin at the
// first place that suits them; of the floats, one stands in front of them if there is room, and the others behind.
struct NormalVectors {
  NormalVectors(int order, float* reals)
      : n(order),
        front(reinterpret_cast<std::uintptr_t>(reals) % sizeof(double) == 0 ? 0 : 1),
        low(reals),
        r(::new (static_cast<void*>(reals + front)) double[3 * static_cast<std::size_t>(n)]),
        p(r + n),
        q(p + n),
        z(q) {}

  // x <- x + alpha q
  void advance(bool is_first, double alpha, float* x) const {
    slap::advance(0, front, is_first, alpha, q, x, low);
    slap::advance(front, n, is_first, alpha, q, x, low + 6 * static_cast<std::ptrdiff_t>(n));
  }

  int n, front;
  float* low;
  double *r, *p, *q;
  double* z;  // in q's place: from the end of a step to the next direction there is z, and q in between
};

// From r = b - A x and z = M^-1 r.
Leg run_leg(const System<double>& system, Progress& progress, const NormalVectors& v) {
  const int n = system.n();
  double old_zr = 1;  // the first direction needs none
  for (bool is_first = true; progress.next(); is_first = false) {
    const double zr = base::dot(n, v.z, v.r);
    if (!(zr > 0)) return progress.fail(kBreakdown);
    update_direction(n, is_first, v.z, zr / old_zr, v.p);
    old_zr = zr;
    system.matrix.multiply_transposed(v.p, v.q);
    const double qq = base::dot(n, v.q, v.q);  // (p, A A^T p)
    if (!(qq > 0)) return progress.fail(kSecondBreakdown);
    const double alpha = zr / qq;
    v.advance(is_first, alpha, system.x);
    system.matrix.add_product(-alpha, v.q, v.r);
    system.precondition(v.r, v.z);
    if (progress.claims_convergence(progress.tested_norm(system, v.r, v.z))) return Leg::kClaimed;
  }
  return Leg::kOver;
}

}  // namespace

void normal_equations(const System<double>& system, Progress& progress, float* vectors) {
  const NormalVectors v(system.n(), vectors);
  run_legs(system, progress, v.r, v.z, v.p, [&] { return run_leg(system, progress, v); });
}

}  // namespace quorin::slap
