#include "families/amos/power_series.hpp"

#include "families/amos/limits.hpp"
#include "families/amos/temme_series.hpp"

namespace quorin::amos {
namespace {

constexpr int kMostTerms = 200;

ComplexDoubleDouble log_half(Complex w) {
  const ComplexDoubleDouble l = log(widen(w));
  return {l.re - kLn2, l.im};
}

}  // namespace

double reciprocal_gamma(DoubleDouble x) {
  const double n = round_to_integer(x.hi);
  const double mu = (x.hi - n) + x.lo;
  const GammaParts<double> parts(mu);
  const double sum = parts.even + parts.odd * mu;
  if (n < 0.0) return sum * (x.hi + 1.0);
  double product = 1.0;
  for (int j = 1; j <= static_cast<int>(n); ++j) product *= mu + j;
  return sum / product;
}

Scaled i_power_series(DoubleDouble nu, Complex w) {
  const Complex quarter_w2 = 0.25 * (w * w);
  Complex term = 1.0;
  Complex sum = 1.0;
  for (int k = 1; k < kMostTerms; ++k) {
    term *= quarter_w2 / (k * (nu.hi + k));
    sum += term;
    if (largest_part(term) < 0.1 * kTol * largest_part(sum)) {
      const Scaled result = scaled(sum) * scaled(reciprocal_gamma(nu));
      return nu.hi == 0.0 ? result : result * exponential(log_half(w) * nu);
    }
  }
  return {kFailed};
}

Pair k_power_series(double mu, Complex w) {
  const ComplexDoubleDouble l = -log_half(w);
  const Scaled power = exponential(l * mu);
  const Complex power_value = shift(power.m, power.e);
  const auto [at, above, converged] =
      temme_series(mu, narrow(l), power_value, divide(1.0, power_value), 0.25 * (w * w));
  if (!converged) return {{kFailed}, {kFailed}};
  return {scaled(at), scaled(above) * scaled(divide(2.0, w))};
}

}  // namespace quorin::amos
