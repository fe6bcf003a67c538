#include "base/sums.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorin::base {

double dot(std::size_t n, const double* x, const double* y) {
  return sum_over(n, [=](std::size_t i, auto access) { return access.get(x + i) * access.get(y + i); });
}

double sum_of_squares(std::size_t n, const float* x) {
  constexpr std::size_t kSums = 8;
  double sums[kSums] = {};
  std::size_t i = 0;
  for (; i + kSums <= n; i += kSums) {
    for (std::size_t k = 0; k < kSums; ++k) sums[k] += static_cast<double>(x[i + k]) * x[i + k];
  }
  for (; i < n; ++i) sums[0] += static_cast<double>(x[i]) * x[i];
  for (std::size_t half = kSums / 2; half > 0; half /= 2) {
    for (std::size_t k = 0; k < half; ++k) sums[k] += sums[k + half];
  }
  return sums[0];
}

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
