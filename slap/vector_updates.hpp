// Updates of long vectors that the BLAS has no routine for.
#pragma once

#include "dense/dense.hpp"

namespace quorin::slap {

// The next direction: p <- z + beta p, and p <- z for the first.
inline void turn(int n, bool is_first, const float* z, float beta, float* p) {
  if (is_first) return dense::copy(n, z, 1, p, 1);
  for (int i = 0; i < n; ++i) p[i] = z[i] + beta * p[i];
}

}  // namespace quorin::slap
