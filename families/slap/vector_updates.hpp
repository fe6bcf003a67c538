// What iterations do with vectors, beside the BLAS.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>

#include "base/sums.hpp"
#include "dense/dense.hpp"

namespace quorin::slap {

// The Euclidean norm.
inline float norm(int n, const float* x) { return dense::nrm2(n, x, 1); }
inline float norm(int n, const double* x) { return static_cast<float>(base::norm(n, x)); }

// The next direction: p <- z + beta p, and p <- z for the first.
template <class T>
void update_direction(int n, bool is_first, const T* z, T beta, T* p) {
  if (is_first) {
    std::copy_n(z, n, p);
    return;
  }
  base::sweep<T>(n,
                 [=](std::size_t i, auto access) { access.put(p + i, access.get(z + i) + beta * access.get(p + i)); });
}

// A power of two that brings the geometric mean of two magnitudes near 1; 1 itself where squares are in no danger, and
// for what is zero or not finite.
inline float power_near_reciprocal(float a, float b) {
  constexpr int kHarmless = 24;
  if (!(a > 0 && b > 0) || !std::isfinite(a) || !std::isfinite(b)) return 1;
  const int exponent = (std::ilogb(a) + std::ilogb(b)) / 2;
  return std::abs(exponent) <= kHarmless ? 1 : std::ldexp(1.0F, -std::max(exponent, -126));
}

// Whether x . y, as computed for vectors of these norms, has lost nearly all its digits to cancellation. A recurrence
// that divides by it then has nothing to go by; one that starts anew, with the residual of the moment as its shadow,
// gets further.
inline bool is_lost(float product, float norm_x, float norm_y) {
  constexpr float kNoise = 32 * std::numeric_limits<float>::epsilon();
  return !(std::fabs(product) > kNoise * norm_x * norm_y);
}

}  // namespace quorin::slap
