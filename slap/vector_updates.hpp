// What iterations with directions share.
#pragma once

#include <cmath>
#include <limits>

#include "dense/dense.hpp"

namespace quorin::slap {

// The next direction: p <- z + beta p, and p <- z for the first.
inline void turn(int n, bool is_first, const float* z, float beta, float* p) {
  if (is_first) return dense::copy(n, z, 1, p, 1);
  for (int i = 0; i < n; ++i) p[i] = z[i] + beta * p[i];
}

// Whether x . y, as computed for vectors of these norms, has lost nearly all its digits to cancellation. A recurrence
// that divides by it then has nothing to go by; one that starts anew, with the residual of the moment as its shadow,
// gets further.
inline bool is_lost(float product, float norm_x, float norm_y) {
  constexpr float kNoise = 32 * std::numeric_limits<float>::epsilon();
  return !(std::fabs(product) > kNoise * norm_x * norm_y);
}

}  // namespace quorin::slap
