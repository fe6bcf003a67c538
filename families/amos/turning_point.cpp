#include <numbers>

#include "families/amos/limits.hpp"
#include "families/amos/tables/tables.hpp"
#include "families/amos/thirds.hpp"
#include "families/amos/uniform.hpp"

namespace quorin::amos {
namespace {

constexpr double kSqrt3 = std::numbers::sqrt3;

// Ai and its derivative at the argument that belongs to the function wanted.
struct AiryPair {
  Complex ai;
  Complex ai_prime;
};

// sum_k nu^-2k sum_n c_kn zeta^n
template <std::size_t kRows, std::size_t kSize>
Complex double_sum(const std::array<int, kRows>& lengths, const std::array<double, kSize>& c, double nu, Complex zeta) {
  Complex total = 0.0;
  std::size_t end = kSize;
  for (std::size_t k = kRows; k-- > 0;) {
    const std::size_t begin = end - static_cast<std::size_t>(lengths[k]);
    Complex row = 0.0;
    for (std::size_t n = end; n-- > begin;) row = row * zeta + c[n];
    total = total / (nu * nu) + row;
    end = begin;
  }
  return total;
}

// e^{-2 pi i / 3}
constexpr Complex kRotation{-0.5, -0.5 * kSqrt3};
// e^{i pi / 3}
constexpr Complex kSixth{0.5, 0.5 * kSqrt3};

// Ai(Z) and Ai'(Z) for kI; Ai(rZ) and r Ai'(rZ) with r = e^{-2 pi i/3} for kK. x = (2/3) Z^(3/2), 0 <= arg Z <= pi.
AiryPair airy_pair(Kind kind, Complex z, const ComplexDoubleDouble& x) {
  if (modulus(z) < 0.75) {
    const AiryValues a = airy_power_series(kind == Kind::kI ? z : z * kRotation);
    if (kind == Kind::kI) return {a.ai, a.ai_prime};
    return {a.ai, a.ai_prime * kRotation};
  }
  // Ai(Z) = (1/pi) sqrt(Z/3) K_{1/3}(x), Ai'(Z) = -Z/(pi sqrt 3) K_{2/3}(x), and the same with x e^{-i pi} for rZ.
  // Of the two arguments, x and x e^{-i pi}, one lies in the right half plane; the other comes from it by
  // K_nu(w e^{+-i pi}) = e^{-+i pi nu} K_nu(w) -+ i pi I_nu(w).
  const Complex rounded = narrow(x);
  const bool right = rounded.real() >= 0.0 && rounded.imag() >= -rounded.real();
  const ComplexDoubleDouble wide_w = right ? x : -x;
  const Complex w{std::fmax(0.0, wide_w.re.hi), wide_w.im.hi};
  const bool continued = right != (kind == Kind::kI);
  const Thirds t = bessel_thirds(w, continued);
  const Scaled decay = exponential(-wide_w);
  const Scaled growth = exponential(wide_w);
  const Complex e_minus = shift(decay.m, decay.e);
  Complex k_one = t.k_one * e_minus;
  Complex k_two = t.k_two * e_minus;
  if (continued) {
    const Complex e_plus = shift(growth.m, growth.e);
    const Complex i_pi{0.0, right ? std::numbers::pi : -std::numbers::pi};
    const Complex turn = right ? kSixth : std::conj(kSixth);
    k_one = turn * k_one + i_pi * t.i_one * e_plus;
    k_two = turn * turn * k_two + i_pi * t.i_two * e_plus;
  }
  // sqrt(rZ) = e^{-i pi/3} sqrt(Z), and r * r Z = e^{-4 pi i/3} Z.
  const Complex root = square_root(z / 3.0) / std::numbers::pi;
  const Complex line = -z / (std::numbers::pi * kSqrt3);
  if (kind == Kind::kI) return {root * k_one, line * k_two};
  return {std::conj(kSixth) * root * k_one, std::conj(kRotation) * line * k_two};
}

}  // namespace

Scaled turning_point(Kind kind, DoubleDouble order, Complex w, const ComplexDoubleDouble& xi) {
  const double nu = order.hi;
  // v = 1 - x^2 = s^2 without cancellation.
  const Complex v = (Complex{(nu - w.imag()) + order.lo, w.real()} / nu) * (Complex{nu + w.imag(), -w.real()} / nu);
  // (2/3) zeta^(3/2) = artanh(s) - s = s^3/3 (1 + (3/5) v + (3/7) v^2 + ...), so zeta = v (bracket/2)^(2/3).
  Complex bracket = 0.0;
  if (modulus(v) < 0.25) {
    for (int k = 26; k >= 0; --k) bracket = bracket * v + 3.0 / (2 * k + 3);
  } else {
    bracket = divide(3.0 * narrow(xi), v * square_root(v));
  }
  const Complex half = 0.5 * bracket;
  const Complex log_half{std::log(modulus(half)), std::atan2(half.imag(), half.real())};
  const auto power = [log_half](double exponent) {
    const Scaled e = exponential(exponent * log_half);
    return shift(e.m, e.e);
  };
  Complex zeta = v * power(2.0 / 3.0);
  if (zeta.imag() < 0.0) zeta = zeta.real();  // rounding next to the axis; zeta lies in the closed upper half plane

  const double nu_third = std::cbrt(nu);
  const AiryPair airy = airy_pair(kind, nu_third * nu_third * zeta, xi * order);
  const Complex a = double_sum(tables::kAiryATerms, tables::kAiryA, nu, zeta);
  const Complex b = double_sum(tables::kAiryBTerms, tables::kAiryB, nu, zeta);
  const Complex sum =
      std::numbers::sqrt2 * power(1.0 / 6.0) / nu_third * (airy.ai * a + airy.ai_prime * b / (nu_third * nu));

  // I_nu(w) = e^{i pi nu/2} J_nu(-i w), K_nu(w) = -(pi i/2) e^{-i pi nu/2} H2_nu(-i w), H2 = 2 e^{i pi/3} (...).
  if (kind == Kind::kI) return normalized(exponential(-w) * (quarter_turns(order) * sum));
  return normalized(exponential(w) *
                    (std::conj(quarter_turns(order)) * Complex{0.0, -std::numbers::pi} * kSixth * sum));
}

}  // namespace quorin::amos
