#include "families/rci/arnoldi.hpp"

#include <cmath>

#include "families/rci/vector_kernels.hpp"

namespace quorin::rci {
namespace {

// w <- w - (v1 . w) v1, then the same with v2 and so on (modified Gram-Schmidt); h(i) receives (or gains) the
// coefficients. Each sweep subtracts one vector and forms the product with the next, so w passes through memory once
// per vector. Returns ||w||.
double subtract_projections(const FgmresArrays& arrays, int k, bool gain, double* h) {
  const std::size_t n = arrays.n();
  double* w = arrays.v(k + 1);
  double product = dot(n, arrays.v(1), w);
  for (int i = 1; i <= k; ++i) {
    h[i - 1] = gain ? h[i - 1] + product : product;
    product = subtract_and_dot(n, product, arrays.v(i), w, i < k ? arrays.v(i + 1) : w);
  }
  const double length = std::sqrt(product);
  // Squares near the ends of the range have lost digits.
  constexpr double kSafeLow = 1e-140, kSafeHigh = 1e150;
  return length >= kSafeLow && length <= kSafeHigh ? length : norm(n, w);
}

}  // namespace

double orthogonalise(const FgmresArrays& arrays, int k) {
  // A vector that lost more than a digit to cancellation is orthogonalised once more; one that loses a digit again lies
  // in the span (Parlett, The Symmetric Eigenvalue Problem, 6.9: twice is enough). Its norm before the subtraction
  // follows from the coefficients, so the question itself costs no pass over long vectors.
  constexpr double kKept = 0.1;
  double* h = arrays.column_of_r(k);
  const double once = subtract_projections(arrays, k, false, h);
  if (once >= kKept * norm(static_cast<std::size_t>(k), h) || !std::isfinite(once)) return once;
  const double twice = subtract_projections(arrays, k, true, h);
  return twice < kKept * once ? 0.0 : twice;
}

bool rotate(const FgmresArrays& arrays, int k, double below) {
  double* r = arrays.column_of_r(k);
  double *c = arrays.cosines(), *s = arrays.sines(), *g = arrays.rotated_residual();
  for (int i = 0; i + 1 < k; ++i) {
    const double upper = c[i] * r[i] + s[i] * r[i + 1];
    r[i + 1] = c[i] * r[i + 1] - s[i] * r[i];
    r[i] = upper;
  }
  const int last = k - 1;
  const double length = std::hypot(r[last], below);
  if (length == 0.0 || !std::isfinite(length)) return false;
  c[last] = r[last] / length;
  s[last] = below / length;
  r[last] = length;
  g[k] = -s[last] * g[last];
  g[last] *= c[last];
  return true;
}

}  // namespace quorin::rci
