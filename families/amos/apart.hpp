// Numbers as a rounded value and what is left out of it, kept beside each other without an order of size: recurrences
// in double-double precision whose parts wait for each other but once a step.
#pragma once

#include "families/amos/complex_double_double.hpp"

namespace quorin::amos {

// The value hi + lo. Plain is double, or Lanes for the real and the imaginary part.
template <class Plain>
struct Apart {
  Plain hi;
  Plain lo;
};

// a + b and a b exactly.
template <class Plain>
Apart<Plain> exact_sum(Plain a, Plain b) {
  const Plain s = a + b, t = s - a;
  return {s, (a - (s - t)) + (b - t)};
}
template <class Plain>
Apart<Plain> exact_product(Plain a, Plain b) {
  constexpr double kSplit = 134217729.0;  // 2^27 + 1
  const Plain p = a * b, ta = kSplit * a, tb = kSplit * b;
  const Plain ah = ta - (ta - a), bh = tb - (tb - b);
  const Plain al = a - ah, bl = b - bh;
  return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
}

// lo made as small as it can be, which recurrences do now and then, with both of their numbers: of one alone, the other
// would let the next ones grow.
template <class Plain>
Apart<Plain> in_order(const Apart<Plain>& a) {
  return exact_sum(a.hi, a.lo);
}

inline Apart<double> apart(const DoubleDouble& a) { return {a.hi, a.lo}; }
inline Apart<Lanes> apart(const ComplexDoubleDouble& a) { return {Lanes{a.re.hi, a.im.hi}, Lanes{a.re.lo, a.im.lo}}; }
inline DoubleDouble joined(const Apart<double>& a) { return two_sum(a.hi, a.lo); }
inline ComplexDoubleDouble joined(const Apart<Lanes>& a) {
  return {two_sum(a.hi[0], a.lo[0]), two_sum(a.hi[1], a.lo[1])};
}

inline Lanes both(double a) { return Lanes{a, a}; }
inline Lanes times_i(Lanes a) { return Lanes{-a[1], a[0]}; }

// c y + factor z for a real number or a complex one c, and a double as factor.
inline Apart<double> combined(const Apart<double>& c, const Apart<double>& y, double factor, const Apart<double>& z) {
  const auto p = exact_product(c.hi, y.hi), q = exact_product(factor, z.hi), s = exact_sum(p.hi, q.hi);
  return {s.hi, (c.hi * y.lo + factor * z.lo) + (((p.lo + q.lo) + s.lo) + c.lo * y.hi)};
}
inline Apart<Lanes> combined(const Apart<Lanes>& c, const Apart<Lanes>& y, double factor, const Apart<Lanes>& z) {
  const Lanes re = both(c.hi[0]), im = both(c.hi[1]), turned = times_i(y.hi);
  const auto p = exact_product(re, y.hi), q = exact_product(im, turned), r = exact_product(both(factor), z.hi);
  const auto inner = exact_sum(q.hi, r.hi), s = exact_sum(p.hi, inner.hi);
  const Lanes errors = ((p.lo + q.lo) + (r.lo + inner.lo)) + (s.lo + (c.lo[0] * y.hi + c.lo[1] * turned));
  return {s.hi, (re * y.lo + im * times_i(y.lo) + factor * z.lo) + errors};
}

}  // namespace quorin::amos
