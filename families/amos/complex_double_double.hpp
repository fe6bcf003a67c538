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

// The nearest integer, |x| < 2^51. (The runtime's takes 60 ns on the 32-bit target.)
inline double round_to_integer(double x) {
  constexpr double kShifter = 0x1.8p52;
  return (x + kShifter) - kShifter;
}

// The real and the imaginary part side by side.
using Lanes = double __attribute__((vector_size(16)));
inline Lanes swapped(Lanes a) { return __builtin_shufflevector(a, a, 1, 0); }

struct ComplexDoubleDouble {
  DoubleDouble re;
  DoubleDouble im;
};

// The value m * 2^e.
struct ScaledWide {
  ComplexDoubleDouble m;
  std::int64_t e = 0;
};

// a b + c with one normalization; the error is relative to the larger of the two terms.
inline DoubleDouble fused(DoubleDouble a, DoubleDouble b, DoubleDouble c) {
  const DoubleDouble p = two_product(a.hi, b.hi);
  const DoubleDouble s = two_sum(p.hi, c.hi);
  return quick_two_sum(s.hi, s.lo + (((a.hi * b.lo + a.lo * b.hi) + p.lo) + c.lo));
}

// a / b but for the last two bits, in half the time of the quotient with all of them.
inline DoubleDouble quotient(DoubleDouble a, DoubleDouble b) {
  const double q = a.hi / b.hi;
  const DoubleDouble p = two_product(q, b.hi);
  const double rest = ((a.hi - p.hi) - p.lo) + (a.lo - q * b.lo);
  return quick_two_sum(q, rest / b.hi);
}

inline ComplexDoubleDouble widen(std::complex<double> a) { return {{a.real(), 0.0}, {a.imag(), 0.0}}; }
inline std::complex<double> narrow(const ComplexDoubleDouble& a) { return {a.re.hi, a.im.hi}; }

inline ComplexDoubleDouble operator-(const ComplexDoubleDouble& a) { return {-a.re, -a.im}; }
inline ComplexDoubleDouble operator+(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  return {a.re + b.re, a.im + b.im};
}
inline ComplexDoubleDouble operator-(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  return {a.re - b.re, a.im - b.im};
}
inline ComplexDoubleDouble operator+(const ComplexDoubleDouble& a, DoubleDouble b) { return {a.re + b, a.im}; }
// a b + c. Both parts go through the same operations, so they share registers.
inline ComplexDoubleDouble fused(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b,
                                 const ComplexDoubleDouble& c) {
  struct Wide {
    Lanes hi, lo;
  };
  const auto multiply_add = [](Wide x, Wide y, Wide z) {
    constexpr double kSplit = 134217729.0;  // 2^27 + 1
    const Lanes p = x.hi * y.hi;
    const Lanes tx = kSplit * x.hi, ty = kSplit * y.hi;
    const Lanes xh = tx - (tx - x.hi), yh = ty - (ty - y.hi);
    const Lanes xl = x.hi - xh, yl = y.hi - yh;
    const Lanes error = ((xh * yh - p) + xh * yl + xl * yh) + xl * yl;
    const Lanes s = p + z.hi, t = s - p;
    const Lanes lo = ((p - (s - t)) + (z.hi - t)) + (((x.hi * y.lo + x.lo * y.hi) + error) + z.lo);
    const Lanes hi = s + lo;
    return Wide{hi, lo - (hi - s)};
  };
  const Wide inner = multiply_add({Lanes{-a.im.hi, a.im.hi}, Lanes{-a.im.lo, a.im.lo}},
                                  {Lanes{b.im.hi, b.re.hi}, Lanes{b.im.lo, b.re.lo}},
                                  {Lanes{c.re.hi, c.im.hi}, Lanes{c.re.lo, c.im.lo}});
  const Wide sum = multiply_add({Lanes{a.re.hi, a.re.hi}, Lanes{a.re.lo, a.re.lo}},
                                {Lanes{b.re.hi, b.im.hi}, Lanes{b.re.lo, b.im.lo}}, inner);
  return {{sum.hi[0], sum.lo[0]}, {sum.hi[1], sum.lo[1]}};
}
inline ComplexDoubleDouble operator*(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  return fused(a, b, ComplexDoubleDouble{});
}
inline ComplexDoubleDouble operator*(const ComplexDoubleDouble& a, DoubleDouble b) { return {a.re * b, a.im * b}; }
inline ComplexDoubleDouble operator*(const ComplexDoubleDouble& a, double b) { return {a.re * b, a.im * b}; }
inline ComplexDoubleDouble operator/(const ComplexDoubleDouble& a, DoubleDouble b) { return {a.re / b, a.im / b}; }
inline ComplexDoubleDouble operator/(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  const ComplexDoubleDouble conjugate{b.re, -b.im};
  return (a * conjugate) / (b.re * b.re + b.im * b.im);
}
inline ComplexDoubleDouble quotient(const ComplexDoubleDouble& a, const ComplexDoubleDouble& b) {
  const ComplexDoubleDouble product = a * ComplexDoubleDouble{b.re, -b.im};
  const DoubleDouble norm = b.re * b.re + b.im * b.im;
  return {quotient(product.re, norm), quotient(product.im, norm)};
}

inline ComplexDoubleDouble fused(DoubleDouble a, const ComplexDoubleDouble& b, const ComplexDoubleDouble& c) {
  return {fused(a, b.re, c.re), fused(a, b.im, c.im)};
}

inline ComplexDoubleDouble conj(const ComplexDoubleDouble& a) { return {a.re, -a.im}; }

// a i^k
inline ComplexDoubleDouble times_i_power(const ComplexDoubleDouble& a, int k) {
  const ComplexDoubleDouble half = (k & 2) != 0 ? -a : a;
  return (k & 1) != 0 ? ComplexDoubleDouble{-half.im, half.re} : half;
}

// Principal square root; a signed zero does not move it: the cut belongs to the upper half plane.
ComplexDoubleDouble sqrt(const ComplexDoubleDouble& a);

// Principal logarithm of a != 0 with an absolute error near 1e-27, for any exponent of a.
ComplexDoubleDouble log(const ComplexDoubleDouble& a);

// e^a to about 31 digits; of a large a, the digits that multiples of pi and log 2 leave.
ScaledWide exp(const ComplexDoubleDouble& a);

}  // namespace quorin::amos
