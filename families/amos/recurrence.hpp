// The recurrence y(nu +- 1) = (2 nu / w) y(nu) + y(nu -+ 1), which I satisfies downwards and K upwards (DLMF 10.29.1).
// Both are the growing solution in the direction in which they are taken here.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

class Recurrence {
 public:
  // Begins with y at two consecutive orders, `current` being the one towards which the steps go.
  Recurrence(Complex w, Scaled previous, Scaled current);

  // From `order`, the order of value(), to the next one.
  void step(double order) {
    const Complex next = order * (two_over_w_ * current_ + correction_ * current_) + previous_;
    previous_ = shift_ == 0 ? current_ : shift(current_, -shift_);
    current_ = next;
    exponent_ += shift_;
    const double size = largest_part(next);
    if (size > kLarge || size < 1.0 / kLarge) rescale();
  }

  Scaled value() const { return normalized({current_, exponent_}); }

 private:
  static constexpr double kLarge = 0x1p300;

  void rescale();

  Complex two_over_w_;      // 2 / w without its power of two when w is very small,
  Complex correction_;      // what rounding took from it: the same error in every step would add up,
  std::int64_t shift_ = 0;  // and that power of two
  Complex previous_;        // y / 2^exponent_; when shift_ > 0, y / 2^(exponent_ + shift_)
  Complex current_;
  std::int64_t exponent_ = 0;
};

}  // namespace quorin::amos
