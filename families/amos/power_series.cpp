#include "families/amos/power_series.hpp"

#include "families/amos/limits.hpp"
#include "families/amos/tables/tables.hpp"

namespace quorin::amos {
namespace {

constexpr int kMostTerms = 200;

// gamma1 = (1/Gamma(1-mu) - 1/Gamma(1+mu)) / (2 mu), gamma2 = (1/Gamma(1-mu) + 1/Gamma(1+mu)) / 2: the odd and the
// even coefficients of one series.
struct TemmeGammas {
  double gamma1 = 0.0;
  double gamma2 = 0.0;
};

TemmeGammas temme_gammas(double mu) {
  TemmeGammas g;
  const double mu2 = mu * mu;
  for (int k = static_cast<int>(tables::kReciprocalGamma.size()) - 2; k >= 0; k -= 2) {
    g.gamma1 = g.gamma1 * mu2 - tables::kReciprocalGamma[static_cast<std::size_t>(k) + 1];
    g.gamma2 = g.gamma2 * mu2 + tables::kReciprocalGamma[static_cast<std::size_t>(k)];
  }
  return g;
}

// sinh(x) / x and cosh(x), given e^x.
struct Hyperbolic {
  Complex sinh_over_x;
  Complex cosh;
};

Hyperbolic hyperbolic(Complex x, Complex exp_x) {
  const Complex exp_minus_x = divide(1.0, exp_x);
  const Complex cosh = 0.5 * (exp_x + exp_minus_x);
  if (largest_part(x) > 0.5) return {0.5 * divide(exp_x - exp_minus_x, x), cosh};
  const Complex x2 = x * x;
  Complex sum = 1.0;
  for (int k = 17; k > 1; k -= 2) sum = 1.0 + x2 * sum / static_cast<double>(k * (k - 1));
  return {sum, cosh};
}

ComplexDoubleDouble log_half(Complex w) {
  const ComplexDoubleDouble l = log(widen(w));
  return {l.re - kLn2, l.im};
}

}  // namespace

double reciprocal_gamma(double x) {
  const double n = std::nearbyint(x);
  const double mu = x - n;
  double sum = 0.0;
  for (std::size_t k = tables::kReciprocalGamma.size(); k-- > 0;) sum = sum * mu + tables::kReciprocalGamma[k];
  if (n < 0.0) return sum * (x + 1.0);
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
      const Scaled result = scaled(sum) * scaled(reciprocal_gamma(nu.hi));
      return nu.hi == 0.0 ? result : result * exponential(log_half(w) * nu);
    }
  }
  return {kFailed};
}

Pair k_power_series(double mu, Complex w) {
  // f_k, p_k, q_k and c_k as in Temme's paper: K_mu = sum c_k f_k, K_{mu+1} = (2/w) sum c_k (p_k - k f_k).
  const double gamma_plus = 1.0 / reciprocal_gamma(mu);
  const double gamma_minus = 1.0 / reciprocal_gamma(-mu);
  const TemmeGammas gammas = temme_gammas(mu);
  const ComplexDoubleDouble log_2_over_w = -log_half(w);
  const Complex l = narrow(log_2_over_w);
  const Scaled power = exponential(log_2_over_w * mu);
  const Complex exp_sigma = shift(power.m, power.e);
  const Hyperbolic h = hyperbolic(mu * l, exp_sigma);
  Complex f = gamma_plus * gamma_minus * (gammas.gamma1 * h.cosh + gammas.gamma2 * l * h.sinh_over_x);
  Complex p = 0.5 * gamma_plus * exp_sigma;
  Complex q = 0.5 * gamma_minus * divide(1.0, exp_sigma);
  Complex c = 1.0;
  Complex sum = f;
  Complex sum_above = p;
  const Complex quarter_w2 = 0.25 * (w * w);
  for (int k = 1; k < kMostTerms; ++k) {
    f = (static_cast<double>(k) * f + p + q) / (k * k - mu * mu);
    p /= k - mu;
    q /= k + mu;
    c *= quarter_w2 / static_cast<double>(k);
    const Complex term = c * f;
    const Complex term_above = c * (p - static_cast<double>(k) * f);
    sum += term;
    sum_above += term_above;
    if (largest_part(term) < 0.1 * kTol * largest_part(sum) &&
        largest_part(term_above) < 0.1 * kTol * largest_part(sum_above)) {
      return {scaled(sum), scaled(sum_above) * scaled(divide(2.0, w))};
    }
  }
  return {{kFailed}, {kFailed}};
}

}  // namespace quorin::amos
