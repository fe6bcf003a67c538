// What iterations do with vectors, beside the BLAS.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "dense/dense.hpp"

namespace quorin::slap {

// x . y in four sums, so that an addition need not wait for the one before.
inline double dot(int n, const double* x, const double* y) {
  double sums[4] = {0, 0, 0, 0};
  const int whole = n - n % 4;
  for (int i = 0; i < whole; i += 4) {
    for (int k = 0; k < 4; ++k) sums[k] += x[i + k] * y[i + k];
  }
  for (int i = whole; i < n; ++i) sums[0] += x[i] * y[i];
  return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

// The Euclidean norm. Doubles that are about as large as floats need no scaling for their squares.
inline float norm(int n, const float* x) { return dense::nrm2(n, x, 1); }
inline float norm(int n, const double* x) { return static_cast<float>(std::sqrt(dot(n, x, x))); }

// The next direction: p <- z + beta p, and p <- z for the first.
template <class T>
void turn(int n, bool is_first, const T* z, T beta, T* p) {
  if (is_first) {
    std::copy_n(z, n, p);
    return;
  }
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
