// The least-squares problem of GMRES: min || g - H y || for a Hessenberg matrix H that gains a column with each step.
//
// Plane rotations keep H an upper triangle R, and g rotated with it. Y. Saad, M. H. Schultz, SIAM J. Sci. Stat.
// Comput. 7 (1986) 856-869, section 3.2.
#pragma once

#include <cmath>
#include <cstddef>

namespace quorin::base {

// The state for up to m steps lies in memory of the caller, one part behind the other: R by packed columns, m (m + 1) /
// 2 entries; cosines and sines, m each; g, m + 1. All indices are zero-based.
template <class Real>
class RotatedHessenberg {
 public:
  RotatedHessenberg(Real* memory, int m)
      : triangle_(memory), cosines_(column(m)), sines_(cosines_ + m), g_(sines_ + m) {}

  // Column k of R, k + 1 entries. Before step k is taken: the first k + 1 entries of column k of H.
  Real* column(int k) const { return triangle_ + static_cast<std::ptrdiff_t>(k) * (k + 1) / 2; }
  Real* g() const { return g_; }
  // The norm of the residual after `steps` steps.
  Real residual_norm(int steps) const { return std::fabs(g_[steps]); }

  // Takes step k: rotates column k by the rotations of the earlier steps, and `below`, the entry H(k+1, k), into its
  // diagonal. False if that is then not finite or not greater than `least`; g is untouched in this case.
  [[nodiscard]] bool take_step(int k, Real below, Real least) const {
    Real* const h = column(k);
    for (int i = 0; i < k; ++i) {
      const Real upper = cosines_[i] * h[i] + sines_[i] * h[i + 1];
      h[i + 1] = cosines_[i] * h[i + 1] - sines_[i] * h[i];
      h[i] = upper;
    }
    const Real length = std::hypot(h[k], below);
    if (!(length > least) || !std::isfinite(length)) return false;
    cosines_[k] = h[k] / length;
    sines_[k] = below / length;
    h[k] = length;
    g_[k + 1] = -sines_[k] * g_[k];
    g_[k] *= cosines_[k];
    return true;
  }

  // y <- the solution after `steps` steps, R y = g; y may be g.
  void solve(int steps, Real* y) const {
    for (int i = 0; i < steps; ++i) y[i] = g_[i];
    for (int j = steps - 1; j >= 0; --j) {
      const Real* const r = column(j);
      y[j] /= r[j];
      for (int i = 0; i < j; ++i) y[i] -= r[i] * y[j];
    }
  }

 private:
  Real *triangle_, *cosines_, *sines_, *g_;
};

}  // namespace quorin::base
