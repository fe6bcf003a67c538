// Sums over vectors that often have but a few entries, for which a call costs more than the arithmetic.
#pragma once

#include <cmath>
#include <cstddef>

#include "base/sums.hpp"

namespace quorin::trust_region {

inline constexpr std::size_t kFewEntries = 8;

// x . y
[[nodiscard]] inline double dot(std::size_t n, const double* x, const double* y) {
  if (n > kFewEntries) return base::dot(n, x, y);
  double sum = 0.0;
  for (std::size_t i = 0; i < n; ++i) sum += x[i] * y[i];
  return sum;
}

// Whether a sum of squares has neither overflowed nor lost what counts to underflow.
[[nodiscard]] inline bool is_safe_square(double square) { return square > 1e-280 && square < 1e300; }

// ||x||
[[nodiscard]] inline double norm(std::size_t n, const double* x) {
  const double square = n > kFewEntries ? 0.0 : dot(n, x, x);
  return is_safe_square(square) ? std::sqrt(square) : base::norm(n, x);
}

[[nodiscard]] inline double hypotenuse(double a, double b) {
  const double square = a * a + b * b;
  return is_safe_square(square) ? std::sqrt(square) : std::hypot(a, b);
}

// ||D x||
template <class Real>
[[nodiscard]] double scaled_norm(std::size_t n, const double* d, const Real* x) {
  double square = 0.0;
  for (std::size_t i = 0; i < n; ++i) square += d[i] * double{x[i]} * (d[i] * double{x[i]});
  if (is_safe_square(square)) return std::sqrt(square);
  double length = 0.0;
  for (std::size_t i = 0; i < n; ++i) length = std::hypot(length, d[i] * double{x[i]});
  return length;
}

}  // namespace quorin::trust_region
