// Complex numbers of about 31 digits: exponents and phases that are later multiplied by an order or an argument in the
// thousands are carried in them, so that the exponential keeps all of its 16.
#pragma once

#include <complex>
#include <cstdint>

#include "base/double_double.hpp"

namespace quorin::amos {

using base::DoubleDouble;
using base::quick_two_sum;
using base::two_product;
using base::two_sum;

inline constexpr DoubleDouble kOne{1.0, 0.0};
inline constexpr DoubleDouble kLn2{0.6931471805599453, 2.3190468138462996e-17};
inline constexpr DoubleDouble kHalfPi{1.5707963267948966, 6.123233995736766e-17};

struct ComplexDoubleDouble {
  DoubleDouble re;
  DoubleDouble im;
};

inline ComplexDoubleDouble widen(std::complex<double> a) { return {{a.real(), 0.0}, {a.imag(), 0.0}}; }
inline std::complex<double> narrow(const ComplexDoubleDouble& a) { return {a.re.hi, a.im.hi}; }

inline ComplexDoubleDouble operator-(const ComplexDoubleDouble& a) { return {-a.re, -a.im}; }
inline ComplexDoubleDouble operator+(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  return {a.re + b.re, a.im + b.im};
}
inline ComplexDoubleDouble operator-(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  return {a.re - b.re, a.im - b.im};
}
inline ComplexDoubleDouble operator*(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
inline ComplexDoubleDouble operator*(const ComplexDoubleDouble& a, DoubleDouble b) { return {a.re * b, a.im * b}; }
inline ComplexDoubleDouble operator*(const ComplexDoubleDouble& a, double b) { return {a.re * b, a.im * b}; }
inline ComplexDoubleDouble operator/(const ComplexDoubleDouble& a, DoubleDouble b) { return {a.re / b, a.im / b}; }
inline ComplexDoubleDouble operator/(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  const ComplexDoubleDouble conjugate{b.re, -b.im};
  return (a * conjugate) / (b.re * b.re + b.im * b.im);
}

// Principal square root; a signed zero does not move it: the cut belongs to the upper half plane.
ComplexDoubleDouble sqrt(const ComplexDoubleDouble& a);

// Principal logarithm of a != 0 with an absolute error near 1e-27, for any exponent of a.
ComplexDoubleDouble log(const ComplexDoubleDouble& a);

// e^a to about 31 digits, for |Re a| below 600; of a large Im a, the digits that multiples of pi leave.
ComplexDoubleDouble exp(const ComplexDoubleDouble& a);

}  // namespace quorin::amos
