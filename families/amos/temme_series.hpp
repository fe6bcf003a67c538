// Temme's power series of K, and the reciprocal gamma function that it needs, in any precision.
// N. M. Temme, J. Comput. Phys. 19 (1975) 324-337.
#pragma once

#include "families/amos/scaled.hpp"
#include "families/amos/tables/tables.hpp"

namespace quorin::amos {

// What a precision needs: the coefficients of 1 / Gamma(1 + x) = sum c_k x^k for |x| <= 1/2, and the size of a last
// term.
template <class Real>
struct Precision;

template <>
struct Precision<double> {
  static constexpr int kGammaTerms = 24;
  static constexpr double kTol = 2.2e-17;
  static double gamma_coefficient(int k) { return tables::kReciprocalGamma[2 * static_cast<std::size_t>(k)]; }
};

template <>
struct Precision<DoubleDouble> {
  static constexpr int kGammaTerms = 34;
  static constexpr double kTol = 1.0e-33;
  static DoubleDouble gamma_coefficient(int k) {
    const double* c = tables::kReciprocalGamma.data() + 2 * static_cast<std::size_t>(k);
    return {c[0], c[1]};
  }
};

// The even and the odd part of 1 / Gamma(1 + mu), the latter divided by mu. |mu| <= 1/2
template <class Real>
struct GammaParts {
  Real even{};
  Real odd{};

  explicit GammaParts(Real mu) {
    const Real mu2 = mu * mu;
    for (int k = Precision<Real>::kGammaTerms - 2; k >= 0; k -= 2) {
      odd = odd * mu2 + Precision<Real>::gamma_coefficient(k + 1);
      even = even * mu2 + Precision<Real>::gamma_coefficient(k);
    }
  }
};

// sinh(x) / x for |x| <= 1/2
template <class Number, class Real>
Number sinh_over_x(const Number& x) {
  const Number x2 = x * x;
  Number sum = Number{} + Real{1.0};
  for (int k = 25; k > 1; k -= 2) sum = x2 * sum * (Real{1.0} / Real{static_cast<double>(k * (k - 1))}) + Real{1.0};
  return sum;
}

template <class Number>
struct TemmeSums {
  Number at;     // K_mu(w)
  Number above;  // (w / 2) K_{mu+1}(w)
  bool converged = false;
};

// f_k, p_k, q_k and c_k as in the paper: K_mu = sum c_k f_k, (w/2) K_{mu+1} = sum c_k (p_k - k f_k). Arguments:
// l = log(2/w), power = e^{mu l} and its inverse, quarter = (w/2)^2. |w| <= 2, or |w| <= 5 near the imaginary axis,
// where the terms grow as little. With quarter = -(x/2)^2 and q_weight = (2/mu) sin^2(pi mu / 2) the sums are those of
// -(pi/2) Y_mu(x) and -(pi/2) (x/2) Y_{mu+1}(x), for f_k + q_weight q_k takes the place of f_k.
template <class Number, class Real>
TemmeSums<Number> temme_series(Real mu, const Number& l, const Number& power, const Number& inverse,
                               const Number& quarter, Real q_weight = Real{}) {
  constexpr int kMostTerms = 200;
  const GammaParts<Real> parts(mu);
  const Real one{1.0}, half{0.5};
  const Real gamma_plus = one / (parts.even + parts.odd * mu);
  const Real gamma_minus = one / (parts.even - parts.odd * mu);
  const Number x = l * mu;
  const Number cosh = (power + inverse) * half;
  const bool large = largest_part(narrow(x)) > 0.5;
  const Number sinh = large ? (power - inverse) * half / mu : l * sinh_over_x<Number, Real>(x);  // sinh(x) / mu
  Number f = (sinh * parts.even - cosh * parts.odd) * (gamma_plus * gamma_minus);
  Number p = power * (half * gamma_plus);
  Number q = inverse * (half * gamma_minus);
  Number c = Number{} + one;
  TemmeSums<Number> sums{f + q * q_weight, p};
  for (int i = 1; i < kMostTerms; ++i) {
    const Real k{static_cast<double>(i)};
    const Real over_minus = one / (k - mu), over_plus = one / (k + mu);
    f = (f * k + p + q) * (over_minus * over_plus);
    p = p * over_minus;
    q = q * over_plus;
    c = c * quarter * (one / k);
    const Number g = f + q * q_weight;
    const Number term = c * g;
    const Number term_above = c * (p - g * k);
    sums.at = sums.at + term;
    sums.above = sums.above + term_above;
    if (largest_part(narrow(term)) < Precision<Real>::kTol * largest_part(narrow(sums.at)) &&
        largest_part(narrow(term_above)) < Precision<Real>::kTol * largest_part(narrow(sums.above))) {
      sums.converged = true;
      break;
    }
  }
  return sums;
}

}  // namespace quorin::amos
