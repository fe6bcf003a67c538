#include "families/amos/moderate_argument.hpp"

#include <numbers>

#include "families/amos/confluent.hpp"
#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/power_series.hpp"
#include "families/amos/recurrence.hpp"

namespace quorin::amos {
namespace {

constexpr int kMostSteps = 2000;

constexpr double kLogPrecision = 38.0;  // e^-38 = 3e-17

Pair k_by_confluence(double mu, Complex w) {
  const auto [at, above] = confluent(mu, w, confluent_terms(kLogPrecision, modulus(w), w.real()));
  const Complex factor = square_root(divide(std::numbers::pi / 2, w));
  return {scaled(factor * at), scaled(factor * above)};
}

}  // namespace

Pair k_small_order(double mu, Complex w) {
  const double size = modulus(w);
  if (size > kLargeArgument) {
    const Complex factor = square_root(divide(std::numbers::pi / 2, w));
    return {scaled(factor * large_argument_sums(mu, w).k), scaled(factor * large_argument_sums(mu + 1.0, w).k)};
  }
  if (size > kSmallArgument) return k_by_confluence(mu, w);
  const Pair k = k_power_series(mu, w);
  const Scaled factor = exponential(w);
  return {k.at * factor, k.above * factor};
}

Pair k_by_recurrence(DoubleDouble nu, Complex w) {
  const double steps = round_to_integer(nu.hi);
  const double mu = (nu.hi - steps) + nu.lo;
  const Pair first = k_small_order(mu, w);
  if (steps == 0.0) return first;
  Recurrence k(w, first.at, first.above, two_sum(1.0, mu));
  k.step_up(static_cast<int>(steps) - 1);
  const Scaled at = k.value();
  k.step_up();
  return {at, k.value()};
}

Neighbours i_neighbours(DoubleDouble nu, Complex w) {
  constexpr double kGrowth = 1.0e10;  // the error of the ratio is about its inverse square
  const Complex two_over_w = divide(2.0, w);
  Complex before = 0.0;
  Complex p = 1.0;
  int last = 0;
  while (largest_part(p) < kGrowth) {
    if (++last > kMostSteps) return {kFailed, kFailed};
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
  return {y, above};
}

Pair i_by_wronskian(DoubleDouble nu, Complex w, const Pair& k) {
  const Neighbours i = i_neighbours(nu, w);
  const Scaled sum = normalized(k.above * i.at + k.at * i.above);
  const Scaled factor{divide(divide(1.0, w), sum.m), -sum.e};
  return {normalized(factor * i.at), normalized(factor * i.above)};
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
