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

// A number as the sum of two, of at most 26 bits each, whose products are exact.
template <class Plain>
struct Halves {
  Plain high;
  Plain low;

  Halves(Plain a_high, Plain a_low) : high(a_high), low(a_low) {}
  explicit Halves(Plain a) {
    constexpr double kSplit = 134217729.0;  // 2^27 + 1
    const Plain t = kSplit * a;
    high = t - (t - a);
    low = a - high;
  }
};

// a + b exactly, for any two numbers and for |larger| >= |smaller|, and a b.
template <class Plain>
Apart<Plain> exact_sum(Plain a, Plain b) {
  const Plain s = a + b, t = s - a;
  return {s, (a - (s - t)) + (b - t)};
}
template <class Plain>
Apart<Plain> exact_sum_of_ordered(Plain larger, Plain smaller) {
  const Plain s = larger + smaller;
  return {s, smaller - (s - larger)};
}
template <class Plain>
Plain product_error(Plain product, const Halves<Plain>& a, const Halves<Plain>& b) {
  return ((a.high * b.high - product) + a.high * b.low + a.low * b.high) + a.low * b.low;
}
template <class Plain>
Apart<Plain> exact_product(Plain a, Plain b) {
  const Plain p = a * b;
  return {p, product_error(p, Halves(a), Halves(b))};
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

// factor z for a whole number below 2^26.
inline Apart<Lanes> times_whole(double factor, const Apart<Lanes>& z) {
  const Halves<Lanes> halves(z.hi);
  const Lanes p = factor * z.hi;
  return {p, ((factor * halves.high - p) + factor * halves.low) + factor * z.lo};
}

// c y + z for a real c
template <class Plain>
Apart<Plain> fused(const Apart<double>& c, const Apart<Plain>& y, const Apart<Plain>& z) {
  const Halves<double> d(c.hi);
  const Halves<Plain> h(y.hi);
  const Plain p = c.hi * y.hi;
  const Plain error = ((d.high * h.high - p) + d.high * h.low + d.low * h.high) + d.low * h.low;
  const auto s = exact_sum(p, z.hi);
  return {s.hi, (c.hi * y.lo + z.lo) + ((error + s.lo) + c.lo * y.hi)};
}
// c y + z for a complex c
inline Apart<Lanes> fused(const Apart<Lanes>& c, const Apart<Lanes>& y, const Apart<Lanes>& z) {
  const Lanes re = both(c.hi[0]), im{-c.hi[1], c.hi[1]}, turned = swapped(y.hi);
  const Halves<Lanes> h(y.hi), turned_h{swapped(h.high), swapped(h.low)};
  const Lanes p = re * y.hi, q = im * turned;
  const Lanes product_errors = product_error(p, Halves(re), h) + product_error(q, Halves(im), turned_h);
  const auto inner = exact_sum(q, z.hi), s = exact_sum(p, inner.hi);
  const Lanes low = both(c.lo[0]) * y.hi + Lanes{-c.lo[1], c.lo[1]} * turned;
  const Lanes errors = (product_errors + inner.lo) + (s.lo + low);
  return {s.hi, (re * y.lo + im * swapped(y.lo) + z.lo) + errors};
}

}  // namespace quorin::amos
