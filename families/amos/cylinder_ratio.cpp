#include "families/amos/cylinder_ratio.hpp"

#include <numbers>
#include <type_traits>
#include <utility>

#include "families/amos/limits.hpp"

namespace quorin::amos {
namespace {

// From here on the expansions for large argument reach 32 digits.
constexpr double kWideLargeArgument = 38.0;

constexpr double kWideTol = 1.0e-33;

constexpr DoubleDouble kHalf{0.5, 0.0};
constexpr DoubleDouble kHalfSqrt3{0.8660254037844386, 5.017542110903451e-17};

// i z and -i z
ComplexDoubleDouble times_i(const ComplexDoubleDouble& z) { return {-z.im, z.re}; }
ComplexDoubleDouble times_minus_i(const ComplexDoubleDouble& z) { return {z.im, -z.re}; }

ComplexDoubleDouble operator+(const ComplexDoubleDouble& a, DoubleDouble b) { return {a.re + b, a.im}; }
ComplexDoubleDouble operator+(const ComplexDoubleDouble& a, double b) { return a + DoubleDouble{b, 0.0}; }

ComplexDoubleDouble conj(const ComplexDoubleDouble& a) { return {a.re, -a.im}; }

DoubleDouble order_at(DoubleDouble mu, int k) { return mu + DoubleDouble{static_cast<double>(k), 0.0}; }

// The quotients of three solutions at orders mu + 1 and mu, and H2_mu / H1_mu.
struct Quotients {
  ComplexDoubleDouble h1;
  ComplexDoubleDouble h2;
  ComplexDoubleDouble rho;
};

// K_{mu+1}(w) / K_mu(w) = (mu + 1/2 + w + f) / w, f = a_1 / (b_1 + a_2 / (b_2 + ...)) with a_k = mu^2 - (k - 1/2)^2 and
// b_k = 2 (w + k). Its error falls like exp(-4 Re sqrt(2 N w)) with the number N of terms, and |w| - |Re w| is
// 2 (Re sqrt w)^2 left of the imaginary axis.
ComplexDoubleDouble k_quotient(DoubleDouble mu, const ComplexDoubleDouble& w) {
  const int terms = 16 + static_cast<int>(500.0 / (std::abs(narrow(w)) - std::fabs(w.re.hi)));
  const DoubleDouble mu2 = mu * mu;
  ComplexDoubleDouble f{};
  for (int k = terms; k > 0; --k) {
    const DoubleDouble a = mu2 - two_product(k - 0.5, k - 0.5);
    const ComplexDoubleDouble d = (w + static_cast<double>(k)) * 2.0 + f;
    const DoubleDouble scale = a / (d.re * d.re + d.im * d.im);
    f = {d.re * scale, -(d.im * scale)};
  }
  return (w + (mu + kHalf) + f) / w;
}

// J_{mu+1}(z) / J_mu(z) by Miller's recurrence, begun where J is 17 digits smaller than the other solution is larger.
ComplexDoubleDouble j_quotient(DoubleDouble mu, const ComplexDoubleDouble& z) {
  constexpr double kGrowth = 1.0e17;
  constexpr int kMostSteps = 1000;
  const Complex two_over_z = divide(2.0, narrow(z));
  Complex before = 0.0, p = 1.0;
  int last = 0;
  while (largest_part(p) < kGrowth && last < kMostSteps) {
    ++last;
    before = std::exchange(p, (mu.hi + last) * two_over_z * p - before);
  }
  const ComplexDoubleDouble factor = widen(2.0) / z;
  ComplexDoubleDouble above{}, y = widen(1.0);
  for (int k = last; k > 0; --k) above = std::exchange(y, factor * order_at(mu, k) * y - above);
  return above / y;
}

Quotients by_fractions(DoubleDouble mu, const ComplexDoubleDouble& z) {
  // H1_nu(z) is e^{-i pi nu/2} K_nu(-iz) and H2_nu(z) is e^{i pi nu/2} K_nu(iz), times what does not depend on nu.
  Quotients q{times_minus_i(k_quotient(mu, times_minus_i(z))), {}, {}};
  const bool on_axis = z.im.hi == 0.0;
  q.h2 = on_axis ? conj(q.h1) : times_i(k_quotient(mu, times_i(z)));
  // j = (h1 H1 + h2 H2) / (H1 + H2)
  const ComplexDoubleDouble j = j_quotient(mu, z);
  q.rho = (q.h1 - j) / (j - q.h2);
  return q;
}

// sum a_k(mu) / w^k, the K of DLMF 10.40.2 without its factor.
ComplexDoubleDouble large_argument_sum(DoubleDouble mu, const ComplexDoubleDouble& w) {
  constexpr int kMostTerms = 100;
  const DoubleDouble four_mu2 = mu * mu * 4.0;
  const ComplexDoubleDouble over_8w = widen(0.125) / w;
  ComplexDoubleDouble term = widen(1.0), sum = term;
  for (int k = 1; k < kMostTerms && largest_part(narrow(term)) > kWideTol; ++k) {
    const double odd = 2.0 * k - 1.0;
    term = term * ((four_mu2 - DoubleDouble{odd * odd, 0.0}) / DoubleDouble{static_cast<double>(k), 0.0}) * over_8w;
    sum = sum + term;
  }
  return sum;
}

Quotients by_expansions(DoubleDouble mu, const ComplexDoubleDouble& z) {
  const ComplexDoubleDouble w1 = times_minus_i(z), w2 = times_i(z);
  const ComplexDoubleDouble s1 = large_argument_sum(mu, w1), s2 = large_argument_sum(mu, w2);
  // H2 / H1 = e^{-2iz + i pi (mu + 1/2)} s2 / s1
  ComplexDoubleDouble exponent = w1 * 2.0;
  exponent.im = exponent.im + kHalfPi * ((mu + kHalf) * 2.0);
  return {times_minus_i(large_argument_sum(mu + kOne, w1) / s1), times_i(large_argument_sum(mu + kOne, w2) / s2),
          exp(exponent) * (s2 / s1)};
}

// From the orders mu, mu + 1 to mu + steps, mu + steps + 1. Numbers are real or complex.
template <class Number>
Complex climb(Number at, Number above, Number two_over_z, DoubleDouble mu, int steps) {
  for (int k = 1; k <= steps; ++k) at = std::exchange(above, two_over_z * order_at(mu, k) * above - at);
  if constexpr (std::is_same_v<Number, DoubleDouble>) {
    return (at / above).hi;
  } else {
    return narrow(at / above);
  }
}

}  // namespace

Complex cylinder_ratio(Cylinder function, DoubleDouble mu, int steps, const ComplexDoubleDouble& z) {
  const bool is_small = std::abs(narrow(z)) < kWideLargeArgument;
  if (function == Cylinder::kJ && is_small) return narrow(widen(1.0) / j_quotient(order_at(mu, steps), z));
  const Quotients q = is_small ? by_fractions(mu, z) : by_expansions(mu, z);
  // C / (a H1) = 1 + (b/a) H2/H1, b/a being 1, -1, e^{i pi/3} or its negative.
  const bool airy = function == Cylinder::kAi || function == Cylinder::kBi;
  const ComplexDoubleDouble b_over_a = airy ? ComplexDoubleDouble{kHalf, kHalfSqrt3} : widen(1.0);
  const bool negative = function == Cylinder::kY || function == Cylinder::kBi;
  const ComplexDoubleDouble part = (negative ? -b_over_a : b_over_a) * q.rho;
  const ComplexDoubleDouble at = widen(1.0) + part;
  const ComplexDoubleDouble above = q.h1 + part * q.h2;
  const ComplexDoubleDouble two_over_z = widen(2.0) / z;
  if (z.im.hi != 0.0) return climb(at, above, two_over_z, mu, steps);
  // On the axis the functions are real: all numbers here have the phase of the larger of the first two.
  const bool at_is_larger = std::abs(narrow(at)) > std::abs(narrow(above));
  const DoubleDouble real_at = at_is_larger ? kOne : (at / above).re;
  const DoubleDouble real_above = at_is_larger ? (above / at).re : kOne;
  return climb(real_at, real_above, two_over_z.re, mu, steps);
}

bool is_next_to_zero(double nu, Complex z, double size) {
  const double x = std::abs(z);
  // The first zero of Y lies 0.93 nu^(1/3) beyond the order, that of J 1.86 nu^(1/3); of Y_0 at 0.89.
  const bool oscillating = x > 0.7 && x > nu + 0.8 * std::cbrt(nu);
  if (!oscillating || !(nu <= kHalfPrecisionLimit) || std::fabs(z.imag()) > kBesideAxis) return false;
  // |H1|^2 is 2 / (pi sqrt(x^2 - nu^2)) (Nicholson; DLMF 10.18.17). The phases at orders nu and nu + 1 differ by the
  // angle whose sine is the `turn`: nearer to the turning point, a larger function's neighbour may itself be small.
  const double root = std::sqrt((x - nu) * (x + nu));
  const double turn = root / x;
  const double part = std::fmin(0.25, turn / 3.0);
  return size * size < part * part * (2.0 / std::numbers::pi) / root;
}

}  // namespace quorin::amos
