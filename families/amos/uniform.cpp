#include "families/amos/uniform.hpp"

#include <numbers>
#include <utility>

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
  Complex plus;
  Complex minus;
};

DebyeSums debye_sums(double nu, Complex t) {
  const Complex t2 = t * t;
  const Complex t_over_nu = t / nu;
  const double twice = 2.0 * t2.real(), norm = std::norm(t2);
  Complex power = 1.0;
  Complex even = 1.0;
  Complex odd = 0.0;
  for (int k = 1; k < tables::kDebyeTerms; ++k) {
    const double* p = tables::kDebye.data() + k * (k + 1) / 2;
    // The remainder of the polynomial on division by (x - t^2) (x - conj t^2) (D. E. Knuth, TAOCP 2, 4.6.4): real
    // arithmetic, and the digits it may lose do not count, the terms being small.
    double above = 0.0, at = p[k];
    for (int j = k - 1; j > 0; --j) above = std::exchange(at, p[j] - norm * above + twice * at);
    power *= t_over_nu;
    const Complex term = power * (at * t2 + (p[0] - norm * above));
    (k % 2 == 0 ? even : odd) += term;
    if (largest_part(term) < 0.05 * kTol) break;
  }
  return {even + odd, even - odd};
}

}  // namespace

Uniform::Uniform(DoubleDouble order, Complex w) : order_(order), w_(w) {
  const double nu = order.hi;
  ComplexDoubleDouble s = widen(1.0);
  if (modulus(w) > kNegligible * nu) {
    const ComplexDoubleDouble z{quotient({w.real()}, order), quotient({w.imag()}, order)};
    s = sqrt(widen(1.0) + z * z);
  }
  // eta = s + log(z / (1 + s)), DLMF 10.41.7; the logarithm of the rounded quotient, and what rounding took from it.
  const Scaled u = scaled(w);
  const ComplexDoubleDouble divisor = (widen(1.0) + s) * order;
  const Complex q = divide(u.m, narrow(divisor));
  const Complex rest = narrow(widen(u.m) - widen(q) * divisor);
  ComplexDoubleDouble eta = log(widen(q)) + widen(divide(rest, u.m)) + s;
  if (u.e != 0) eta.re = eta.re + kLn2 * static_cast<double>(u.e);

  xi_ = ComplexDoubleDouble{{}, kHalfPi} - eta;
  turning_ = nu * modulus(narrow(xi_)) < kTurningRegion;
  if (turning_) return;
  const Complex t = divide(1.0, narrow(s));
  const DebyeSums sums = debye_sums(nu, t);
  plus_ = sums.plus;
  minus_ = sums.minus;
  root_ = square_root(t * (0.5 / (nu * std::numbers::pi)));
  exponent_ = eta * order;
}

Scaled Uniform::k() const {
  if (turning_) return turning_point(Kind::kK, order_, w_, xi_);
  return exponential(widen(w_) - exponent_) * (root_ * std::numbers::pi * minus_);
}

Scaled Uniform::i() const {
  if (turning_) return turning_point(Kind::kI, order_, w_, xi_);
  const Scaled growing = exponential(exponent_ - widen(w_)) * (root_ * plus_);
  // Beyond the Stokes line Im eta = pi/2 that leaves the turning point to the right, the other exponential appears; it
  // matters near the imaginary axis.
  const Complex xi = narrow(xi_);
  const bool oscillating = -xi.imag() > std::fmax(0.0, xi.real());
  if (!oscillating) return normalized(growing);
  const Scaled second = exponential(-exponent_ - widen(w_)) * (kImaginary * half_turns(order_) * root_ * minus_);
  return normalized(growing + second);
}

}  // namespace quorin::amos
