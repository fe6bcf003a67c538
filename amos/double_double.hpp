// Unevaluated sums of two doubles, real and complex: exponents and phases that are later multiplied by an order or an
// argument in the thousands are carried to about 31 digits, so that the exponential keeps all of its 16.
// T. J. Dekker, Numer. Math. 18 (1971) 224-242; D. E. Knuth, TAOCP 2, 4.2.2.
#pragma once

#include <cmath>
#include <complex>
#include <cstdint>

namespace quorin::amos {

struct DoubleDouble {
  double hi = 0.0;
  double lo = 0.0;
};

inline DoubleDouble quick_two_sum(double a, double b) {
  const double s = a + b;
  return {s, b - (s - a)};
}

inline DoubleDouble two_sum(double a, double b) {
  const double s = a + b;
  const double t = s - a;
  return {s, (a - (s - t)) + (b - t)};
}

inline DoubleDouble two_product(double a, double b) {
  constexpr double kSplit = 134217729.0;  // 2^27 + 1
  const double p = a * b;
  const double ta = kSplit * a;
  const double tb = kSplit * b;
  const double ah = ta - (ta - a);
  const double bh = tb - (tb - b);
  const double al = a - ah;
  const double bl = b - bh;
  return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
}

inline DoubleDouble operator-(DoubleDouble a) { return {-a.hi, -a.lo}; }

inline DoubleDouble operator+(DoubleDouble a, DoubleDouble b) {
  const DoubleDouble s = two_sum(a.hi, b.hi);
  const DoubleDouble t = two_sum(a.lo, b.lo);
  const DoubleDouble u = quick_two_sum(s.hi, s.lo + t.hi);
  return quick_two_sum(u.hi, u.lo + t.lo);
}

inline DoubleDouble operator-(DoubleDouble a, DoubleDouble b) { return a + (-b); }

inline DoubleDouble operator*(DoubleDouble a, DoubleDouble b) {
  const DoubleDouble p = two_product(a.hi, b.hi);
  return quick_two_sum(p.hi, p.lo + (a.hi * b.lo + a.lo * b.hi));
}

inline DoubleDouble operator*(DoubleDouble a, double b) {
  const DoubleDouble p = two_product(a.hi, b);
  return quick_two_sum(p.hi, p.lo + a.lo * b);
}

inline DoubleDouble operator/(DoubleDouble a, DoubleDouble b) {
  const double q = a.hi / b.hi;
  const DoubleDouble r = a - b * q;
  const double q2 = r.hi / b.hi;
  const DoubleDouble r2 = r - b * q2;
  return quick_two_sum(q, q2) + DoubleDouble{r2.hi / b.hi, 0.0};
}

inline DoubleDouble sqrt(DoubleDouble a) {
  if (!(a.hi > 0.0)) return {0.0, 0.0};
  const double s = std::sqrt(a.hi);
  const DoubleDouble r = a - two_product(s, s);
  return quick_two_sum(s, r.hi / (2.0 * s));
}

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

}  // namespace quorin::amos
