// Numbers of about 31 digits as unevaluated sums of two doubles.
//
// Holds for results that neither overflow nor underflow, in round-to-nearest without contraction.
// T. J. Dekker, Numer. Math. 18 (1971) 224-242; D. E. Knuth, TAOCP 2, 4.2.2.
#pragma once

#include <cmath>

namespace quorin::base {

struct DoubleDouble {
  double hi = 0.0;
  double lo = 0.0;
};

// a + b exactly, for |a| >= |b|.
inline DoubleDouble quick_two_sum(double a, double b) {
  const double s = a + b;
  return {s, b - (s - a)};
}

// a + b exactly.
inline DoubleDouble two_sum(double a, double b) {
  const double s = a + b;
  const double t = s - a;
  return {s, (a - (s - t)) + (b - t)};
}

// a b exactly.
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

}  // namespace quorin::base
