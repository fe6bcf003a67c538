#include "families/amos/uniform.hpp"

#include <numbers>

#include "families/amos/limits.hpp"
#include "families/amos/tables/tables.hpp"

namespace quorin::amos {
namespace {

// nu |xi| below which the terms of Debye's expansions do not reach full precision.
constexpr double kTurningRegion = 20.0;

constexpr Complex kImaginary{0.0, 1.0};

// |w / nu| below which 1 + (w / nu)^2 is 1 to double-double precision.
constexpr double kNegligible = 1.0e-20;

struct DebyeSums {
  Complex plus;   // sum U_k(t) / nu^k
  Complex minus;  // sum (-1)^k U_k(t) / nu^k
};

DebyeSums debye_sums(double nu, Complex t) {
  const Complex t2 = t * t;
  const Complex t_over_nu = t / nu;
  Complex power = 1.0;
  Complex even = 1.0;
  Complex odd = 0.0;
  for (int k = 1; k < tables::kDebyeTerms; ++k) {
    const double* p = tables::kDebye.data() + k * (k + 1) / 2;
    Complex polynomial = p[k];
    for (int j = k - 1; j >= 0; --j) polynomial = polynomial * t2 + p[j];
    power *= t_over_nu;
    const Complex term = power * polynomial;
    (k % 2 == 0 ? even : odd) += term;
    if (largest_part(term) < 0.05 * kTol) break;
  }
  return {even + odd, even - odd};
}

}  // namespace

Scaled uniform(Kind kind, DoubleDouble order, Complex w) {
  const double nu = order.hi;
  ComplexDoubleDouble s = widen(1.0);
  if (modulus(w) > kNegligible * nu) {
    const ComplexDoubleDouble z = widen(w) / order;
    s = sqrt(widen(1.0) + z * z);
  }
  // eta = s + log(z / (1 + s)), DLMF 10.41.7.
  const Scaled u = scaled(w);
  ComplexDoubleDouble eta = log(widen(u.m) / ((widen(1.0) + s) * order));
  eta.re = eta.re + kLn2 * static_cast<double>(u.e);
  eta = eta + s;

  const ComplexDoubleDouble xi = ComplexDoubleDouble{{}, kHalfPi} - eta;
  const Complex xi_rounded = narrow(xi);
  if (nu * modulus(xi_rounded) < kTurningRegion) return turning_point(kind, order, w, xi);

  const Complex t = divide(1.0, narrow(s));
  const DebyeSums sums = debye_sums(nu, t);
  const Complex root = square_root(t * (0.5 / (nu * std::numbers::pi)));
  const ComplexDoubleDouble exponent = eta * order - widen(w);
  if (kind == Kind::kK) return exponential(-exponent) * (root * std::numbers::pi * sums.minus);

  const Scaled growing = exponential(exponent) * (root * sums.plus);
  // Beyond the Stokes line Im eta = pi/2 that leaves the turning point to the right, the other exponential appears; it
  // matters near the imaginary axis.
  const bool oscillating = -xi_rounded.imag() > std::fmax(0.0, xi_rounded.real());
  if (!oscillating) return normalized(growing);
  const Scaled second = exponential(-(eta * order) - widen(w)) * (kImaginary * half_turns(order) * root * sums.minus);
  return normalized(growing + second);
}

}  // namespace quorin::amos
