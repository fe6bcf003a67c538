#include "families/amos/complex_double_double.hpp"

#include <algorithm>
#include <cstdlib>

#include "families/amos/scaled.hpp"
#include "families/amos/tables/tables.hpp"

namespace quorin::amos {
namespace {

constexpr DoubleDouble kThird{0.3333333333333333, 1.850371707708594e-17};
constexpr DoubleDouble kFifth{0.2, -1.1102230246251566e-17};

// x + sign x^3/3 + x^5/5 + ..., |x| < 0.013: artanh x (sign 1) or arctan x (sign -1). From x^7 on a double is enough.
DoubleDouble odd_series(DoubleDouble x, double sign) {
  const DoubleDouble square = x * x;
  const DoubleDouble x2{square.hi * sign, square.lo * sign};
  const double y = x2.hi;
  const double rest = y * (1.0 / 7.0 + y * (1.0 / 9.0 + y * (1.0 / 11.0 + y / 13.0)));
  return fused(x, x2 * fused(x2, kFifth + DoubleDouble{rest, 0.0}, kThird), x);
}

// Guesses that choose an entry of a table, with errors of about 1e-3: log2 x for 1 <= x <= 8, and arg (x + i y).
double rough_log2(double x) {
  const int exponent = exponent_of(x);
  const double m = x * power_of_two(-exponent);
  return exponent - 2.1536207 + m * (3.0478842 + m * (-1.0518751 + m * 0.15824871));
}
double rough_angle(double y, double x) {
  const bool steep = std::fabs(y) > std::fabs(x);
  const double t = steep ? x / y : y / x, t2 = t * t;
  const double small = t * (0.995354 - t2 * (0.288679 - 0.079331 * t2));
  if (steep) return (y < 0.0 ? -kHalfPi.hi : kHalfPi.hi) - small;
  return x > 0.0 ? small : (y < 0.0 ? -2.0 : 2.0) * kHalfPi.hi + small;
}

DoubleDouble scaled_by_power(DoubleDouble x, double power) { return {x.hi * power, x.lo * power}; }

DoubleDouble entry(const double* table, int i) { return {table[2 * i], table[2 * i + 1]}; }

// log x for 1 <= x <= 8: x is divided by the nearest 2^(steps/64), and the rest is near 1.
DoubleDouble log(DoubleDouble x) {
  const int steps = static_cast<int>(round_to_integer(64.0 * rough_log2(x.hi)));
  const int power = (steps + 32) / 64;
  const int fraction = steps - 64 * power;  // -32 to 32
  const DoubleDouble ratio =
      scaled_by_power(x * entry(tables::kExponential.data(), 32 - fraction), power_of_two(-power));
  const DoubleDouble difference = quick_two_sum(ratio.hi - 1.0, ratio.lo);
  const DoubleDouble u = quotient(difference, difference + DoubleDouble{2.0, 0.0});
  return kLn2 * (steps / 64.0) + odd_series(u, 1.0) * 2.0;
}

// arg q: q is turned by the nearest multiple of pi/128, and what is left is a small angle.
DoubleDouble angle(const ComplexDoubleDouble& q) {
  const int steps = static_cast<int>(round_to_integer(rough_angle(q.im.hi, q.re.hi) * (64.0 / kHalfPi.hi)));
  const int quarters = (steps + 64 * 4 + 32) / 64 - 4;
  const int fraction = steps - 64 * quarters;  // -32 to 32
  const ComplexDoubleDouble turned = quarters == 0    ? q
                                     : quarters == 1  ? ComplexDoubleDouble{q.im, -q.re}
                                     : quarters == -1 ? ComplexDoubleDouble{-q.im, q.re}
                                                      : -q;
  const DoubleDouble sine = entry(tables::kSine.data(), std::abs(fraction));
  const ComplexDoubleDouble back{entry(tables::kCosine.data(), std::abs(fraction)), fraction > 0 ? -sine : sine};
  const ComplexDoubleDouble rest = turned * back;
  return kHalfPi * (steps / 64.0) + odd_series(quotient(rest.im, rest.re), -1.0);
}

}  // namespace

ComplexDoubleDouble sqrt(const ComplexDoubleDouble& a) {
  // A step of Newton's method from the root of the high parts.
  const std::complex<double> s = square_root(narrow(a));
  if (s == 0.0) return {};
  const DoubleDouble cross = two_product(2.0 * s.real(), s.imag());
  const DoubleDouble square = two_product(s.real(), s.real()) - two_product(s.imag(), s.imag());
  const std::complex<double> rest{(a.re - square).hi, (a.im - cross).hi};
  const std::complex<double> step = divide(rest, 2.0 * s);
  return {two_sum(s.real(), step.real()), two_sum(s.imag(), step.imag())};
}

ComplexDoubleDouble log(const ComplexDoubleDouble& a) {
  const double size = std::max(std::fabs(a.re.hi), std::fabs(a.im.hi));
  const int exponent = exponent_of(size);
  ComplexDoubleDouble q = a;
  if (std::abs(exponent) < 1000) {
    const double power = power_of_two(-exponent);
    q = {scaled_by_power(a.re, power), scaled_by_power(a.im, power)};
  } else {
    const auto scaled = [exponent](DoubleDouble x) {
      return DoubleDouble{std::scalbn(x.hi, -exponent), std::scalbn(x.lo, -exponent)};
    };
    q = {scaled(a.re), scaled(a.im)};
  }
  const DoubleDouble log_norm = log(q.re * q.re + q.im * q.im);
  return {log_norm * 0.5 + kLn2 * static_cast<double>(exponent), angle(q)};
}

ScaledWide exp(const ComplexDoubleDouble& a) {
  // a = (p ln 2 + i q pi/2) / 64 + rest, p and q taken apart into a whole part and what the tables have.
  const double p = round_to_integer(a.re.hi * (64.0 / kLn2.hi));
  const double q = round_to_integer(a.im.hi * (64.0 / kHalfPi.hi));
  const ComplexDoubleDouble rest{a.re - kLn2 * (p / 64.0), a.im - kHalfPi * (q / 64.0)};
  const double power = round_to_integer(p / 64.0), quarters = round_to_integer(q / 64.0);
  const int fraction = static_cast<int>(q - 64.0 * quarters);  // -32 to 32
  // The series of e^rest, |rest| < 0.014, up to rest^15 / 15! < 1e-33.
  ComplexDoubleDouble sum{};
  for (int k = static_cast<int>(tables::kInverseFactorial.size()) / 2 - 1; k >= 0; --k) {
    sum = fused(sum, rest, {entry(tables::kInverseFactorial.data(), k), {}});
  }
  const DoubleDouble sine = entry(tables::kSine.data(), std::abs(fraction));
  const ComplexDoubleDouble turn{entry(tables::kCosine.data(), std::abs(fraction)), fraction < 0 ? -sine : sine};
  const DoubleDouble size = entry(tables::kExponential.data(), 32 + static_cast<int>(p - 64.0 * power));
  return {times_i_power(turn * sum * size, static_cast<int>(std::fmod(quarters, 4.0))),
          static_cast<std::int64_t>(power)};
}

}  // namespace quorin::amos
