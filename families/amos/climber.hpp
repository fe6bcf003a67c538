// The recurrence in order in double-double precision, for a solution that no direction of it harms.
#pragma once

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

#include "families/amos/apart.hpp"

namespace quorin::amos {

// y_{nu+1} = nu factor y_nu + sign y_{nu-1} at orders nu = mu + k. Numbers are DoubleDouble or ComplexDoubleDouble.
//
// The recurrence runs in plain numbers, and beside it the one of what is left out: the rounding errors of each step,
// which are known exactly, are carried on by the same recurrence. Every other y is kept multiplied by the factor, which
// leaves every other step a real coefficient.
template <class Number>
class Climber {
 public:
  // Begins with y at orders mu + k and mu + k + 1, |mu| <= 1/2, |k| < 2^21. sign is 1 or -1.
  Climber(DoubleDouble mu, const Number& factor, double sign, const Number& at, const Number& above, int k = 0)
      : mu_(mu),
        factor_(factor),
        sign_(sign),
        at_(apart(is_scaled(k) ? at * factor : at)),
        above_(apart(is_scaled(k + 1) ? above * factor : above)),
        k_(k) {
    const Number square = factor * factor;
    const Apart<Plain> s = apart(square);
    constexpr double kSplit = 0x1p22 + 1.0;
    const Plain t = kSplit * s.hi;
    high_ = t - (t - s.hi);
    low_ = s.hi - high_;
    lowest_ = s.lo;
    offset_ = apart(square * mu);
  }

  // y_{mu+k} 2^-exponent() and its neighbour above become at() and above().
  void move_to(int k) {
    if (k_ < k && is_scaled(k_)) rise();
    Apart<Plain> at = at_, above = above_;
    for (; k_ + 2 <= k; k_ += 2) {
      at = after_scaled(k_ + 1, 1.0, above, at);
      above = after_plain(k_ + 2, 1.0, at, above);
      if (k_ % kOrdered == 0) tidy(at, above);
    }
    at_ = at;
    above_ = above;
    if (k_ < k) rise();
    while (k_ > k) fall();
  }

  Number at() const { return is_scaled(k_) ? quotient(joined(at_), factor_) : joined(at_); }
  Number above() const { return is_scaled(k_ + 1) ? quotient(joined(above_), factor_) : joined(above_); }
  int exponent() const { return exponent_; }

 private:
  using Plain = std::conditional_t<std::is_same_v<Number, DoubleDouble>, double, Lanes>;

  static bool is_scaled(int k) { return (k & 1) != 0; }
  static double size(double a) { return std::fabs(a); }
  static double size(Lanes a) { return std::max(std::fabs(a[0]), std::fabs(a[1])); }

  void rise() {
    ++k_;
    at_ = std::exchange(above_, after(k_, 1.0, above_, at_));
    if (k_ % kOrdered == 0) tidy(at_, above_);
  }
  void fall() {
    above_ = std::exchange(at_, after(k_, -sign_, at_, above_));
    --k_;
    if (k_ % kOrdered == 0) tidy(at_, above_);
  }

  // The one that follows `here` at order mu + k, away from `before`; turn is 1 upwards and -sign downwards.
  Apart<Plain> after(int k, double turn, const Apart<Plain>& here, const Apart<Plain>& before) const {
    return is_scaled(k) ? after_scaled(k, turn, here, before) : after_plain(k, turn, here, before);
  }
  Apart<Plain> after_scaled(int k, double turn, const Apart<Plain>& here, const Apart<Plain>& before) const {
    const auto order = exact_sum_of_ordered(turn * k, turn * mu_.hi);
    return fused(Apart<double>{order.hi, order.lo + turn * mu_.lo}, here, with_sign(before));
  }
  Apart<Plain> after_plain(int k, double turn, const Apart<Plain>& here, const Apart<Plain>& before) const {
    const double steps = turn * k;
    const auto sum = exact_sum_of_ordered(steps * high_, turn * offset_.hi);
    const auto c = exact_sum_of_ordered(sum.hi, steps * low_);
    const Plain rest = (sum.lo + c.lo) + (steps * lowest_ + turn * offset_.lo);
    return fused(Apart<Plain>{c.hi, rest}, here, with_sign(before));
  }
  Apart<Plain> with_sign(const Apart<Plain>& y) const { return {sign_ * y.hi, sign_ * y.lo}; }

  // What is left out grows by the rounding errors of each step, and K out of the range of doubles; now and then both
  // are mended.
  static constexpr int kOrdered = 8;
  void tidy(Apart<Plain>& at, Apart<Plain>& above) {
    constexpr double kLarge = 0x1p300;
    for (Apart<Plain>* a : {&at, &above}) *a = in_order(*a);
    if (size(above.hi) < kLarge) return;
    for (Apart<Plain>* a : {&at, &above}) *a = {a->hi * (1.0 / kLarge), a->lo * (1.0 / kLarge)};
    exponent_ += 300;
  }

  DoubleDouble mu_;
  Number factor_;
  Plain high_, low_, lowest_;  // of the square of the factor 31 bits, 22, whose products with k are exact, and the rest
  Apart<Plain> offset_;        // mu times that square
  double sign_;
  Apart<Plain> at_, above_;
  int k_;
  int exponent_ = 0;
};

}  // namespace quorin::amos
