#include "families/amos/moderate_argument.hpp"

#include <numbers>

#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/power_series.hpp"
#include "families/amos/recurrence.hpp"

namespace quorin::amos {
namespace {

constexpr int kMostSteps = 2000;

// Steed's evaluation of the continued fraction for K_{mu+1} / K_mu together with Temme's normalizing sum.
// N. M. Temme (1975), above; I. J. Thompson, A. R. Barnett, Comput. Phys. Comm. 47 (1987) 245-257.
Pair k_continued_fraction(double mu, Complex w) {
  const double mu_term = 0.25 - mu * mu;
  Complex b = 2.0 * (1.0 + w);
  Complex d = divide(1.0, b);
  Complex step = d;
  Complex h = d;
  Complex q1 = 0.0;
  Complex q2 = 1.0;
  double c = mu_term;
  Complex q = c;
  double a = -mu_term;
  Complex sum = 1.0 + q * step;
  for (int k = 2; k < kMostSteps; ++k) {
    a -= 2 * (k - 1);
    c = -a * c / k;
    const Complex q_next = (q1 - b * q2) / a;
    q1 = q2;
    q2 = q_next;
    q += c * q_next;
    b += 2.0;
    d = divide(1.0, b + a * d);
    step *= b * d - 1.0;
    h += step;
    const Complex term = q * step;
    sum += term;
    if (largest_part(term) < 0.1 * kTol * largest_part(sum)) {
      const Complex at = divide(square_root(divide(std::numbers::pi / 2, w)), sum);
      return {scaled(at), scaled(at * (1.0 + divide(mu + 0.5 - mu_term * h, w)))};
    }
  }
  return {{kFailed}, {kFailed}};
}

}  // namespace

Pair k_small_order(double mu, Complex w) {
  const double size = std::abs(w);
  if (size > kLargeArgument) return {k_large_argument(mu, w), k_large_argument(mu + 1.0, w)};
  if (size > kSmallArgument) return k_continued_fraction(mu, w);
  const Pair k = k_power_series(mu, w);
  const Scaled factor = exponential(w);
  return {k.at * factor, k.above * factor};
}

Pair k_by_recurrence(DoubleDouble nu, Complex w) {
  const double steps = std::nearbyint(nu.hi);
  const double mu = (nu.hi - steps) + nu.lo;
  const Pair first = k_small_order(mu, w);
  if (steps == 0.0) return first;
  Recurrence k(w, first.at, first.above);
  for (int j = 1; j < static_cast<int>(steps); ++j) k.step(two_sum(mu, j));
  const Scaled at = k.value();
  k.step(nu);
  return {at, k.value()};
}

Complex i_ratio(DoubleDouble nu, Complex w) {
  constexpr double kGrowth = 1.0e10;  // the error of the ratio is about its inverse square
  const Complex two_over_w = divide(2.0, w);
  Complex before = 0.0;
  Complex p = 1.0;
  int last = 0;
  while (largest_part(p) < kGrowth) {
    if (++last > kMostSteps) return kFailed;
    const Complex next = ((nu.hi + last) + nu.lo) * two_over_w * p + before;
    before = p;
    p = next;
  }
  Complex above = 0.0;
  Complex y = 1.0;
  for (int k = last; k > 0; --k) {
    const Complex below = ((nu.hi + k) + nu.lo) * two_over_w * y + above;
    above = y;
    y = below;
  }
  return divide(above, y);
}

Pair i_by_wronskian(DoubleDouble nu, Complex w, const Pair& k) {
  const Complex ratio = i_ratio(nu, w);
  const Scaled sum = normalized(k.above + k.at * ratio);
  const Scaled at{divide(divide(1.0, w), sum.m), -sum.e};
  return {normalized(at), normalized(at * ratio)};
}

Pair i_moderate_argument(DoubleDouble order, Complex w, bool wants_above) {
  const double size = modulus(w);
  if (size > kSmallArgument && size * size > 4.0 * (order.hi + 1.0)) {
    return i_by_wronskian(order, w, k_by_recurrence(order, w));
  }
  const Scaled factor = exponential(-w);
  return {i_power_series(order, w) * factor, wants_above ? i_power_series(order + kOne, w) * factor : Scaled{}};
}

}  // namespace quorin::amos
