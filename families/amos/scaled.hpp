// Complex numbers with a binary exponent of their own. Bessel functions leave the range of doubles long before their
// arguments do; every method here works on scaled numbers, and only the last step decides on overflow and underflow.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>

#include "families/amos/complex_double_double.hpp"

namespace quorin::amos {

using Complex = std::complex<double>;

// The value m * 2^e. A mantissa that is not finite marks a method that did not converge.
struct Scaled {
  Complex m;
  std::int64_t e = 0;
};

inline double narrow(double a) { return a; }
inline double largest_part(double a) { return std::fabs(a); }
inline double fused(double a, double b, double c) { return a * b + c; }
inline Complex narrow(Complex a) { return a; }  // beside the one of ComplexDoubleDouble, for any precision

inline double largest_part(Complex a) { return std::max(std::fabs(a.real()), std::fabs(a.imag())); }

// |a| without overflow inside.
inline double modulus(Complex a) {
  const double size = largest_part(a);
  if (size > 0x1p-400 && size < 0x1p400) return std::sqrt(a.real() * a.real() + a.imag() * a.imag());
  return std::hypot(a.real(), a.imag());
}

inline bool is_finite(Complex a) { return std::isfinite(a.real()) && std::isfinite(a.imag()); }

// The runtime's scalbn and ilogb take longer than a step of a recurrence; these two do the work inside the normal
// range.
inline double power_of_two(int k) { return std::bit_cast<double>(static_cast<std::uint64_t>(k + 1023) << 52); }
inline int exponent_of(double size) {
  const auto biased = static_cast<int>(std::bit_cast<std::uint64_t>(size) >> 52);
  return biased > 0 ? biased - 1023 : std::ilogb(size);
}

// a * 2^k for any k, flushing to zero far below the range of doubles.
inline Complex shift(Complex a, std::int64_t k) {
  if (k >= -1022 && k <= 1023) {
    const double factor = power_of_two(static_cast<int>(k));
    return {a.real() * factor, a.imag() * factor};
  }
  const int n = static_cast<int>(std::clamp<std::int64_t>(k, -5000, 5000));
  return {std::scalbn(a.real(), n), std::scalbn(a.imag(), n)};
}

// The same number with the larger part of the mantissa in [1, 2).
inline Scaled normalized(Scaled a) {
  const double size = largest_part(a.m);
  if (size == 0.0 || !is_finite(a.m)) return a;
  const int k = exponent_of(size);
  return {shift(a.m, -k), a.e + k};
}

inline Scaled scaled(Complex a) { return normalized({a, 0}); }

// Mantissas near 1 are expected: every function that returns a Scaled number returns a normalized one, or nearly so.
inline Complex fused(Complex a, Complex b, Complex c) { return a * b + c; }
inline Scaled operator*(Scaled a, Scaled b) { return {a.m * b.m, a.e + b.e}; }
inline Scaled operator*(Scaled a, Complex b) { return {a.m * b, a.e}; }
inline Scaled operator*(Scaled a, double b) { return {a.m * b, a.e}; }
inline Scaled conj(Scaled a) { return {std::conj(a.m), a.e}; }

inline Scaled operator+(Scaled a, Scaled b) {
  a = normalized(a);
  b = normalized(b);
  if (a.m == 0.0) return b;
  if (b.m == 0.0) return a;
  if (a.e < b.e) std::swap(a, b);
  return {a.m + shift(b.m, b.e - a.e), a.e};
}

// Values of a function at two consecutive orders, nu and nu + 1.
struct Pair {
  Scaled at;
  Scaled above;
};

// a / b without overflow inside.
Complex divide(Complex a, Complex b);

// Square root with Re >= 0; on the cut Im >= 0 whatever the sign of the zero.
Complex square_root(Complex a);

// The exponent of the largest doubles, whose mantissas are in [1, 2).
inline constexpr std::int64_t kLargestExponent = 1023;

inline constexpr Complex kFailed{std::numeric_limits<double>::quiet_NaN(), 0.0};

// exp(a) with the phase reduced to full precision. (The runtime's functions take 20 to 50 ns each on the 32-bit
// target.)
Scaled exponential(const ComplexDoubleDouble& a);
inline Scaled exponential(Complex a) { return exponential(widen(a)); }
double exponential(double a);

// The same for a real number, as m 2^e.
struct RealScaled {
  double m;
  double e;
};
RealScaled exponential(DoubleDouble a);

// exp(i a)
Complex phase(DoubleDouble a);

// exp(i pi x / 2), exact at the multiples of a quarter turn.
Complex quarter_turns(DoubleDouble x);
inline Complex quarter_turns(double x) { return quarter_turns(DoubleDouble{x, 0.0}); }

// exp(i pi x)
inline Complex half_turns(DoubleDouble x) { return quarter_turns(DoubleDouble{2.0 * x.hi, 2.0 * x.lo}); }
inline Complex half_turns(double x) { return half_turns(DoubleDouble{x, 0.0}); }

// a times i^k.
Complex times_i_power(Complex a, int k);

}  // namespace quorin::amos
