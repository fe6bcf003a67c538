// Short vector operations in double precision.
#pragma once

#include <cmath>
#include <cstddef>

namespace quorin::trust_region {

/// x^T y, in four partial sums.
inline double dot(std::size_t n, const double* x, const double* y) {
  double sums[4] = {};
  std::size_t i = 0;
  for (; i + 4 <= n; i += 4) {
    for (std::size_t k = 0; k < 4; ++k) sums[k] += x[i + k] * y[i + k];
  }
  for (; i < n; ++i) sums[0] += x[i] * y[i];
  return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

/// y <- a x + y
inline void add_multiple(std::size_t n, double a, const double* x, double* y) {
  for (std::size_t i = 0; i < n; ++i) y[i] += a * x[i];
}

/// Entries come from floats, so that squares neither overflow nor vanish.
inline double norm(std::size_t n, const double* x) { return std::sqrt(dot(n, x, x)); }

}  // namespace quorin::trust_region
