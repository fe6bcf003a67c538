// The recurrence y(nu +- 1) = (2 nu / w) y(nu) + y(nu -+ 1), which I satisfies downwards and K upwards (DLMF 10.29.1).
// Both are the growing solution in the direction in which they are taken here.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

class Recurrence {
 public:
  // Begins with y at two consecutive orders, `current` at `order`, towards which the steps go: up or down.
  Recurrence(Complex w, Scaled previous, Scaled current, DoubleDouble order);

  void step_up(int count = 1) { step(count, 1.0); }
  void step_down(int count = 1) { step(count, -1.0); }

  Scaled value() const { return normalized({complex(current_), exponent_}); }

 private:
  static constexpr double kLarge = 0x1p300;

  static Complex complex(Lanes a) { return {a[0], a[1]}; }
  static Lanes lanes(Complex a) { return Lanes{a.real(), a.imag()}; }

  // From the order of value() on, `count` times. The coefficient 2 order / w, order = steps + mu, is rounded but once,
  // the product with the high part being exact: the same error in every step, of the order or of 2 / w, would add up.
  void step(int count, double direction) {
    Lanes previous = previous_, current = current_;
    for (; count > 0; --count) {
      const Lanes c = steps_ * high_ + (steps_ * low_ + offset_);
      const Lanes next = c[0] * current + Lanes{-c[1], c[1]} * swapped(current) + previous;
      previous = shift_ == 0 ? current : lanes(shift(complex(current), -shift_));
      current = next;
      exponent_ += shift_;
      steps_ += direction;
      const double size = largest_part(complex(current));
      if (size > kLarge || size < 1.0 / kLarge) rescale(previous, current);
    }
    previous_ = previous;
    current_ = current;
  }

  void rescale(Lanes& previous, Lanes& current);

  Lanes high_, low_;        // 2 / w, without its power of two when w is very small: 22 bits, and the others
  Lanes offset_;            // mu 2 / w
  double steps_;            // of the order
  std::int64_t shift_ = 0;  // that power of two
  Lanes previous_;          // y / 2^exponent_; when shift_ > 0, y / 2^(exponent_ + shift_)
  Lanes current_;
  std::int64_t exponent_ = 0;
};

}  // namespace quorin::amos
