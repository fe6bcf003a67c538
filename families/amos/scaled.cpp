#include "families/amos/scaled.hpp"

#include <cstdlib>

#include "families/amos/tables/tables.hpp"

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

namespace {

constexpr double kSteps = 64.0;  // of the tables, in a factor of 2 and in a right angle

// a - k unit / kSteps for the nearest integer k.
struct Reduced {
  double k;
  double rest;
};
Reduced reduced(DoubleDouble a, DoubleDouble unit) {
  const double k = round_to_integer(a.hi * (kSteps / unit.hi));
  const double part = k / kSteps;
  const DoubleDouble p = two_product(unit.hi, part);
  return {k, ((a.hi - p.hi) - p.lo) + (a.lo - unit.lo * part)};
}

// e^{i (k pi / 128 + r)} for an integer k, |r| < 0.0125: by the addition theorems, from a table and two short series.
Complex unit_vector(double k, double r) {
  const double quarters = round_to_integer(k / kSteps);
  const int fraction = static_cast<int>(k - kSteps * quarters);  // -32 to 32
  const std::size_t at = 2 * static_cast<std::size_t>(std::abs(fraction));
  const double sign = fraction < 0 ? -1.0 : 1.0;
  const double c = tables::kCosine[at], c_low = tables::kCosine[at + 1];
  const double s = sign * tables::kSine[at], s_low = sign * tables::kSine[at + 1];
  const double r2 = r * r;
  const double sine = r - r * r2 * (1.0 / 6.0 - r2 * (1.0 / 120.0));
  const double cosine_less_1 = -r2 * (0.5 - r2 * (1.0 / 24.0 - r2 * (1.0 / 720.0)));
  const Complex turned{c + (c_low + (c * cosine_less_1 - s * sine)), s + (s_low + (s * cosine_less_1 + c * sine))};
  return times_i_power(turned, static_cast<int>(quarters - 4.0 * round_to_integer(0.25 * quarters)));
}

}  // namespace

RealScaled exponential(DoubleDouble a) {
  const auto [k, r] = reduced(a, kLn2);
  const double power = round_to_integer(k / kSteps);
  const std::size_t at = 2 * static_cast<std::size_t>(32 + static_cast<int>(k - kSteps * power));
  const double e = tables::kExponential[at], low = tables::kExponential[at + 1];
  const double less_1 = r + r * r * (0.5 + r * (1.0 / 6.0 + r * (1.0 / 24.0 + r * (1.0 / 120.0))));
  return {e + (low + e * less_1), power};
}

Scaled exponential(const ComplexDoubleDouble& a) {
  const auto [size, power] = exponential(a.re);
  const auto [k, r] = reduced(a.im, kHalfPi);
  return {size * unit_vector(k, r), static_cast<std::int64_t>(power)};
}

double exponential(double a) {
  const auto [m, power] = exponential(DoubleDouble{a});
  return std::fabs(power) < 1000.0 ? m * power_of_two(static_cast<int>(power)) : std::exp(a);
}

Complex phase(DoubleDouble a) {
  const auto [k, r] = reduced(a, kHalfPi);
  return unit_vector(k, r);
}

Complex quarter_turns(DoubleDouble x) {
  const double k = round_to_integer(kSteps * x.hi);
  return unit_vector(k, kHalfPi.hi * ((x.hi - k / kSteps) + x.lo));
}

}  // namespace quorin::amos
