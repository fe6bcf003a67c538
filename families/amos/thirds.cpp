#include "families/amos/thirds.hpp"

#include "families/amos/limits.hpp"
#include "families/amos/moderate_argument.hpp"
#include "families/amos/power_series.hpp"

namespace quorin::amos {
namespace {

// Ai(0), -Ai'(0), Bi(0), Bi'(0).
constexpr double kAi = 0.3550280538878172;
constexpr double kMinusAiPrime = 0.2588194037928068;
constexpr double kBi = 0.6149266274460007;
constexpr double kBiPrime = 0.4482883573538264;

constexpr double kThird = 1.0 / 3.0;

Complex value(Scaled a) { return shift(a.m, a.e); }

// 1 + x/d_1 + x^2/(d_1 d_2) + ... with d_k = (3k + first)(3k + second).
Complex cubic_series(Complex x, int first, int second) {
  Complex term = 1.0;
  Complex sum = 1.0;
  for (int k = 1; k <= 25; ++k) {
    term *= x / static_cast<double>((3 * k + first) * (3 * k + second));
    sum += term;
    if (largest_part(term) < 0.05 * kTol) break;
  }
  return sum;
}

}  // namespace

Thirds bessel_thirds(Complex w, bool wants_i) {
  const bool below = w.imag() < 0.0;
  if (below) w = std::conj(w);
  const Pair k = k_small_order(-kThird, w);  // orders -1/3, which is 1/3, and 2/3
  Thirds t{value(k.at), value(k.above), 0.0, 0.0};
  if (wants_i && modulus(w) <= kSmallArgument) {
    const Complex factor = value(exponential(-w));
    t.i_one = value(i_power_series({kThird, 0.0}, w)) * factor;
    t.i_two = value(i_power_series({2.0 * kThird, 0.0}, w)) * factor;
  } else if (wants_i) {
    // K of orders 4/3 and 5/3 by one step of the recurrence, K_{-nu} = K_nu.
    const Complex step = divide(2.0 * kThird, w);
    const Scaled four{t.k_one * step + t.k_two};
    const Scaled five{2.0 * t.k_two * step + t.k_one};
    t.i_one = value(i_by_wronskian({kThird, 0.0}, w, {k.at, four}).at);
    t.i_two = value(i_by_wronskian({2.0 * kThird, 0.0}, w, {k.above, five}).at);
  }
  if (below) t = {std::conj(t.k_one), std::conj(t.k_two), std::conj(t.i_one), std::conj(t.i_two)};
  return t;
}

AiryValues airy_power_series(Complex z) {
  const Complex z2 = z * z;
  const Complex z3 = z2 * z;
  // The two even-odd solutions f = 1 + ..., g = z + ... and their derivatives.
  const Complex f = cubic_series(z3, -1, 0);
  const Complex g = z * cubic_series(z3, 0, 1);
  const Complex f_prime = 0.5 * z2 * cubic_series(z3, 0, 2);
  const Complex g_prime = cubic_series(z3, -2, 0);
  return {kAi * f - kMinusAiPrime * g, kAi * f_prime - kMinusAiPrime * g_prime, kBi * f + kBiPrime * g,
          kBi * f_prime + kBiPrime * g_prime};
}

}  // namespace quorin::amos
