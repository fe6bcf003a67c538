#include "families/amos/large_argument.hpp"

#include <array>
#include <cstddef>
#include <limits>
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

template <class Number>
LargeArgumentSums<Number> expansion(double nu, Number over_8w) {
  const double four_nu2 = 4.0 * nu * nu;
  Number term = 1.0, even = 1.0, odd = 0.0;
  for (std::size_t k = 1; k < kMostTerms; ++k) {
    const double odd_number = 2.0 * static_cast<double>(k) - 1.0;
    term *= (four_nu2 - odd_number * odd_number) * kInverse[k] * over_8w;
    (k % 2 == 0 ? even : odd) += term;
    if (largest_part(term) < 0.05 * kTol) return {even - odd, even + odd};
  }
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  return {kNone, kNone};
}

}  // namespace

LargeArgumentSums<Complex> large_argument_sums(double nu, Complex w) { return expansion(nu, divide(0.125, w)); }
LargeArgumentSums<double> large_argument_sums(double nu, double w) { return expansion(nu, 0.125 / w); }

Scaled k_large_argument(double nu, Complex w) {
  return scaled(large_argument_sums(nu, w).k * square_root(divide(std::numbers::pi / 2, w)));
}

Scaled i_large_argument(DoubleDouble order, Complex w) {
  const LargeArgumentSums<Complex> sums = large_argument_sums(order.hi, w);
  // The second exponential counts near the imaginary axis: I = e^w (...) + e^{i pi (nu + 1/2)} e^-w (...).
  const Scaled second = exponential(-2.0 * w) * (Complex{0.0, 1.0} * half_turns(order) * sums.k);
  return (Scaled{sums.i} + second) * square_root(divide(0.5 / std::numbers::pi, w));
}

}  // namespace quorin::amos
