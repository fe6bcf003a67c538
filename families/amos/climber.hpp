// The recurrence in order in double-double precision, for a solution that no direction of it harms.
#pragma once

#include <cmath>
#include <type_traits>
#include <utility>

#include "families/amos/combination.hpp"

namespace quorin::amos {

// factor (mu + k) for neighbouring k one after the other: by sums, which cost less than products, with a product now
// and then, so that the errors of large ones are not left in small ones.
template <class Number>
class CoefficientsInOrder {
 public:
  CoefficientsInOrder(DoubleDouble mu, const Number& factor) : mu_(mu), factor_(factor) {}

  const Number& at(int k) {
    constexpr int kSums = 16;
    if (k == k_) return value_;
    if (k % kSums == 0 || (k != k_ + 1 && k != k_ - 1)) {
      value_ = factor_ * (mu_ + DoubleDouble{static_cast<double>(k), 0.0});
    } else {
      value_ = k > k_ ? value_ + factor_ : value_ - factor_;
    }
    k_ = k;
    return value_;
  }

 private:
  DoubleDouble mu_;
  Number factor_;
  Number value_{};
  int k_ = -2;
};

// y_{nu+1} = nu factor y_nu + sign y_{nu-1} at orders nu = mu + k. Numbers are DoubleDouble or ComplexDoubleDouble.
template <class Number>
class Climber {
 public:
  // Begins with y at orders mu and mu + 1. sign is 1 or -1.
  Climber(DoubleDouble mu, const Number& factor, double sign, const Number& at, const Number& above)
      : coefficients_(mu, factor), sign_(sign), at_(at), above_(above) {}

  // y_{mu+k} 2^-exponent() and its neighbour above become at() and above(). k >= 0
  void move_to(int k) {
    for (; k_ < k; ++k_) {
      at_ = std::exchange(above_, fused(coefficients_.at(k_ + 1), above_, at_ * sign_));
      rescale();
    }
    for (; k_ > k; --k_) {
      above_ = std::exchange(at_, fused(coefficients_.at(k_) * -sign_, at_, above_ * sign_));
      rescale();
    }
  }

  const Number& at() const { return at_; }
  const Number& above() const { return above_; }
  int exponent() const { return exponent_; }

 private:
  static double size(const DoubleDouble& a) { return std::fabs(a.hi); }
  static double size(const ComplexDoubleDouble& a) { return largest_part(narrow(a)); }

  // K grows out of the range of doubles.
  void rescale() {
    constexpr double kLarge = 0x1p300;
    if (size(above_) < kLarge) return;
    at_ = at_ * (1.0 / kLarge);
    above_ = above_ * (1.0 / kLarge);
    exponent_ += 300;
  }

  CoefficientsInOrder<Number> coefficients_;
  double sign_;
  Number at_, above_;
  int k_ = 0;
  int exponent_ = 0;
};

}  // namespace quorin::amos
