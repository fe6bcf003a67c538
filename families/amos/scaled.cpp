#include "families/amos/scaled.hpp"

#include <numbers>

namespace quorin::amos {

Complex divide(Complex a, Complex b) {
  const double size = largest_part(b);
  if (size > 0x1p-400 && size < 0x1p400) {
    return a * std::conj(b) / (b.real() * b.real() + b.imag() * b.imag());
  }
  // Scaling by powers of two is exact; afterwards the textbook formula is safe.
  if (size == 0.0 || !std::isfinite(size)) return {a.real() / size, a.imag() / size};
  const int k = exponent_of(size);
  const Complex d = shift(b, -k);
  return shift(a * std::conj(d) / (d.real() * d.real() + d.imag() * d.imag()), -k);
}

Complex square_root(Complex a) {
  const double size = modulus(a);
  if (size == 0.0) return {};
  if (size < 0x1p-900) return shift(square_root(shift(a, 400)), -200);
  const double larger = std::sqrt(0.5 * size + 0.5 * std::fabs(a.real()));
  const double smaller = std::fabs(a.imag()) / (2.0 * larger);
  const double sign = a.imag() < 0.0 ? -1.0 : 1.0;
  if (a.real() >= 0.0) return {larger, sign * smaller};
  return {smaller, sign * larger};
}

Complex times_i_power(Complex a, int k) {
  switch (k & 3) {
    case 0:
      return a;
    case 1:
      return {-a.imag(), a.real()};
    case 2:
      return -a;
    default:
      return {a.imag(), -a.real()};
  }
}

Scaled exponential(const ComplexDoubleDouble& a) {
  const double power = round_to_integer(a.re.hi / kLn2.hi);
  const DoubleDouble re = a.re - kLn2 * power;
  const double size = std::exp(re.hi) * (1.0 + re.lo);
  const double quarters = round_to_integer(a.im.hi / kHalfPi.hi);
  const DoubleDouble im = a.im - kHalfPi * quarters;
  const double c = std::cos(im.hi);
  const double s = std::sin(im.hi);
  const Complex phase{c - im.lo * s, s + im.lo * c};
  return {size * times_i_power(phase, static_cast<int>(std::fmod(quarters, 4.0))), static_cast<std::int64_t>(power)};
}

Complex quarter_turns(DoubleDouble x) {
  const double reduced = std::fmod(x.hi, 4.0);
  const double quarters = round_to_integer(reduced);
  const double angle = std::numbers::pi / 2 * ((reduced - quarters) + x.lo);  // at most pi/4
  return times_i_power(Complex{std::cos(angle), std::sin(angle)}, static_cast<int>(quarters));
}

}  // namespace quorin::amos
