// The recurrence in order in double-double precision, for a solution that no direction of it harms.
#pragma once

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "families/amos/apart.hpp"

namespace quorin::amos {

// y_{nu+1} = nu factor y_nu + sign y_{nu-1} at orders nu = mu + k. Numbers are DoubleDouble or ComplexDoubleDouble.
//
// The recurrence runs in plain numbers, and beside it the one of what is left out: the rounding errors of each step,
// which are known exactly, are carried on by the same recurrence.
template <class Number>
class Climber {
 public:
  // Begins with y at orders mu + k and mu + k + 1. sign is 1 or -1.
  Climber(DoubleDouble mu, const Number& factor, double sign, const Number& at, const Number& above, int k = 0)
      : mu_(mu), factor_(apart(factor)), sign_(sign), at_(apart(at)), above_(apart(above)), k_(k) {}

  // y_{mu+k} 2^-exponent() and its neighbour above become at() and above().
  void move_to(int k) {
    for (; k_ < k; ++k_) {
      const auto next = combined(coefficient(k_ + 1, 1.0), above_, sign_, at_);
      at_ = above_;
      above_ = next;
      if (k_ % kOrdered == 0) order();
      rescale();
    }
    for (; k_ > k; --k_) {
      const auto next = combined(coefficient(k_, -sign_), at_, sign_, above_);
      above_ = at_;
      at_ = next;
      if (k_ % kOrdered == 0) order();
    }
  }

  Number at() const { return joined(at_); }
  Number above() const { return joined(above_); }
  int exponent() const { return exponent_; }

 private:
  using Plain = std::conditional_t<std::is_same_v<Number, DoubleDouble>, double, Lanes>;

  static double size(double a) { return std::fabs(a); }
  static double size(Lanes a) { return std::max(std::fabs(a[0]), std::fabs(a[1])); }

  // turn (mu + k) factor, turn being 1 or -1. The order is kept whole: errors of large ones are not left in small ones.
  Apart<Plain> coefficient(int k, double turn) const {
    const DoubleDouble order = two_sum(turn * k, turn * mu_.hi);
    const double low = order.lo + turn * mu_.lo;
    const Plain high = Plain{} + order.hi;
    const auto p = exact_product(factor_.hi, high);
    return {p.hi, p.lo + (factor_.hi * low + factor_.lo * high)};
  }

  // What is left out grows by the rounding errors of each step; now and then it is made small again.
  static constexpr int kOrdered = 4;
  void order() {
    for (Apart<Plain>* a : {&at_, &above_}) *a = in_order(*a);
  }

  // K grows out of the range of doubles.
  void rescale() {
    constexpr double kLarge = 0x1p300;
    if (size(above_.hi) < kLarge) return;
    for (Apart<Plain>* a : {&at_, &above_}) *a = {a->hi * (1.0 / kLarge), a->lo * (1.0 / kLarge)};
    exponent_ += 300;
  }

  DoubleDouble mu_;
  Apart<Plain> factor_;
  double sign_;
  Apart<Plain> at_, above_;
  int k_;
  int exponent_ = 0;
};

}  // namespace quorin::amos
