#include "families/amos/large_argument.hpp"

#include <array>
#include <cstddef>
#include <numbers>

#include "families/amos/limits.hpp"

namespace quorin::amos {

namespace {

constexpr int kMostTerms = 100;

// 1 / k
constexpr auto kInverse = [] {
  std::array<double, kMostTerms> inverse{};
  for (std::size_t k = 1; k < kMostTerms; ++k) inverse[k] = 1.0 / static_cast<double>(k);
  return inverse;
}();

}  // namespace

LargeArgumentSums large_argument_sums(double nu, Complex w) {
  const double four_nu2 = 4.0 * nu * nu;
  const Complex over_8w = divide(0.125, w);
  Complex term = 1.0;
  Complex even = 1.0;
  Complex odd = 0.0;
  for (std::size_t k = 1; k < kMostTerms; ++k) {
    const double odd_number = 2.0 * static_cast<double>(k) - 1.0;
    term *= (four_nu2 - odd_number * odd_number) * kInverse[k] * over_8w;
    (k % 2 == 0 ? even : odd) += term;
    if (largest_part(term) < 0.05 * kTol) return {even - odd, even + odd};
  }
  return {kFailed, kFailed};
}

Scaled k_large_argument(double nu, Complex w) {
  return scaled(large_argument_sums(nu, w).k * square_root(divide(std::numbers::pi / 2, w)));
}

Scaled i_large_argument(DoubleDouble order, Complex w) {
  const LargeArgumentSums sums = large_argument_sums(order.hi, w);
  // The second exponential counts near the imaginary axis: I = e^w (...) + e^{i pi (nu + 1/2)} e^-w (...).
  const Scaled second = exponential(-2.0 * w) * (Complex{0.0, 1.0} * half_turns(order) * sums.k);
  return (Scaled{sums.i} + second) * square_root(divide(0.5 / std::numbers::pi, w));
}

}  // namespace quorin::amos
