#include "base/sums.hpp"

#include <emmintrin.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorin::base {

double dot(std::size_t n, const double* x, const double* y) {
  return sum_over(n, [=](std::size_t i, auto access) { return access.get(x + i) * access.get(y + i); });
}

namespace {

// Inlined: 32-bit code returns a double by way of memory and the x87.
[[gnu::always_inline]] inline double squares(std::size_t n, const float* x) {
  Lanes<double> sum0{}, sum1{}, sum2{}, sum3{};  // an array would not stay in registers
  const auto add_squares = [](Lanes<float> four, Lanes<double>& low, Lanes<double>& high) {
    const Lanes<double> first = _mm_cvtps_pd(four), last = _mm_cvtps_pd(_mm_movehl_ps(four, four));
    low += first * first;
    high += last * last;
  };
  std::size_t i = 0;
  for (; i + 8 <= n; i += 8) {
    add_squares(load(x + i), sum0, sum1);
    add_squares(load(x + i + 4), sum2, sum3);
  }
  if (i + 4 <= n) {
    add_squares(load(x + i), sum0, sum1);
    i += 4;
  }
  double rest = 0;
  for (; i < n; ++i) rest += static_cast<double>(x[i]) * x[i];
  return sum_of_lanes<double>((sum0 + sum2) + (sum1 + sum3)) + rest;
}

}  // namespace

double sum_of_squares(std::size_t n, const float* x) { return squares(n, x); }

float norm(std::size_t n, const float* x) { return static_cast<float>(std::sqrt(squares(n, x))); }

double norm(std::size_t n, const double* x) {
  constexpr double kLeast = std::numeric_limits<double>::min() / std::numeric_limits<double>::epsilon();
  const double square = dot(n, x, x);
  if (square >= kLeast && square <= std::numeric_limits<double>::max()) return std::sqrt(square);
  if (std::isnan(square)) return square;
  double largest = 0.0;
  for (std::size_t i = 0; i < n; ++i) largest = std::max(largest, std::fabs(x[i]));
  if (largest == 0.0 || std::isinf(largest)) return largest;
  // A power of two as the scale keeps the quotients exact, save those too small to count.
  const int exponent = std::ilogb(largest);
  double scaled = 0.0;
  for (std::size_t i = 0; i < n; ++i) {
    const double entry = std::scalbn(x[i], -exponent);
    scaled += entry * entry;
  }
  return std::scalbn(std::sqrt(scaled), exponent);
}

}  // namespace quorin::base
