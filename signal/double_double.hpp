// Numbers of about 32 digits as unevaluated sums of two doubles.
//
// Source: Dekker, Numer. Math. 18 (1971) 224-242; the sums are Knuth's. Holds for results that neither overflow nor
// underflow, in round-to-nearest without contraction.
#pragma once

namespace quorin::signal {

struct DoubleDouble {
  double high, low;
};

// a + b exactly.
inline DoubleDouble exact_sum(double a, double b) {
  const double sum = a + b;
  const double part = sum - a;
  return {sum, (a - (sum - part)) + (b - part)};
}

// a + b exactly, for |a| >= |b|.
inline DoubleDouble exact_sum_ordered(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

// a b exactly.
inline DoubleDouble exact_product(double a, double b) {
  constexpr double kSplitter = 134217729.0;  // 2^27 + 1 cuts a double into halves of 26 bits
  const double pa = kSplitter * a, pb = kSplitter * b;
  const double a1 = pa - (pa - a), b1 = pb - (pb - b);
  const double a2 = a - a1, b2 = b - b1;
  const double product = a * b;
  return {product, ((a1 * b1 - product) + a1 * b2 + a2 * b1) + a2 * b2};
}

inline DoubleDouble operator+(DoubleDouble a, DoubleDouble b) {
  const DoubleDouble high = exact_sum(a.high, b.high);
  const DoubleDouble low = exact_sum(a.low, b.low);
  const DoubleDouble sum = exact_sum_ordered(high.high, high.low + low.high);
  return exact_sum_ordered(sum.high, sum.low + low.low);
}

inline DoubleDouble operator-(DoubleDouble a) { return {-a.high, -a.low}; }
inline DoubleDouble operator-(DoubleDouble a, DoubleDouble b) { return a + -b; }

inline DoubleDouble operator*(DoubleDouble a, DoubleDouble b) {
  const DoubleDouble high = exact_product(a.high, b.high);
  return exact_sum_ordered(high.high, high.low + (a.high * b.low + a.low * b.high));
}

inline DoubleDouble operator/(DoubleDouble a, DoubleDouble b) {
  const double first = a.high / b.high;
  const DoubleDouble rest = a - b * DoubleDouble{first, 0.0};
  return exact_sum_ordered(first, (rest.high + rest.low) / b.high);
}

}  // namespace quorin::signal
