// The recurrence y(nu +- 1) = (2 nu / w) y(nu) + y(nu -+ 1), which I satisfies downwards and K upwards (DLMF 10.29.1).
// Both are the growing solution in the direction in which they are taken here.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

class Recurrence {
 public:
  // Begins with y at two consecutive orders, `current` being the one towards which the steps go.
  Recurrence(Complex w, Scaled previous, Scaled current);

  // From `order`, the order of value(), to the next one. The coefficient 2 order / w is rounded but once: the same
  // error in every step, of the order or of 2 / w, would add up.
  void step(DoubleDouble order) {
    const auto part = [order](double hi, double lo) {
      const DoubleDouble p = two_product(order.hi, hi);
      return p.hi + (p.lo + (order.hi * lo + order.lo * hi));
    };
    const Complex coefficient{part(two_over_w_.real(), correction_.real()),
                              part(two_over_w_.imag(), correction_.imag())};
    const Complex next = coefficient * current_ + previous_;
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
  Complex correction_;      // what rounding took from it,
  std::int64_t shift_ = 0;  // and that power of two
  Complex previous_;        // y / 2^exponent_; when shift_ > 0, y / 2^(exponent_ + shift_)
  Complex current_;
  std::int64_t exponent_ = 0;
};

}  // namespace quorin::amos
