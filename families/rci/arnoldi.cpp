#include "families/rci/arnoldi.hpp"

#include <cmath>

#include "base/sums.hpp"
#include "families/rci/vector_kernels.hpp"

namespace quorin::rci {
namespace {

// w <- w - (v1 . w) v1, then the same with v2 and so on (modified Gram-Schmidt); h(i) receives (or gains) the
// coefficients. Each sweep subtracts one vector and forms the product with the next, so w passes through memory once
// per vector. Returns ||w||.
double subtract_projections(const FgmresArrays& arrays, int k, bool gain, double* h) {
  const std::size_t n = arrays.n();
  double* w = arrays.v(k + 1);
  double product = base::dot(n, arrays.v(1), w);
  for (int i = 1; i <= k; ++i) {
    h[i - 1] = gain ? h[i - 1] + product : product;
    product = subtract_and_dot(n, product, arrays.v(i), w, i < k ? arrays.v(i + 1) : w);
  }
  const double length = std::sqrt(product);
  // Squares near the ends of the range have lost digits.
  constexpr double kSafeLow = 1e-140, kSafeHigh = 1e150;
  return length >= kSafeLow && length <= kSafeHigh ? length : base::norm(n, w);
}

}  // namespace

double orthogonalise(const FgmresArrays& arrays, int k) {
  // A vector that lost more than a digit to cancellation is orthogonalised once more; one that loses a digit again lies
  // in the span (Parlett, The Symmetric Eigenvalue Problem, 6.9: twice is enough). Its norm before the subtraction
  // follows from the coefficients, so the question itself costs no pass over long vectors.
  constexpr double kKept = 0.1;
  double* h = arrays.hessenberg().column(k - 1);
  const double once = subtract_projections(arrays, k, false, h);
  if (once >= kKept * base::norm(static_cast<std::size_t>(k), h) || !std::isfinite(once)) return once;
  const double twice = subtract_projections(arrays, k, true, h);
  return twice < kKept * once ? 0.0 : twice;
}

}  // namespace quorin::rci
