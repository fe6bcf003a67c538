// A function as the sum of two terms, one in I and one in K, of an argument in the right half plane.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// An order nu = mu + steps, |mu| <= 1/2, without rounding.
struct Order {
  DoubleDouble mu;
  int steps = 0;

  double value(int j = 0) const { return (mu.hi + static_cast<double>(steps) + j) + mu.lo; }
};

inline Order split_order(double nu) {
  const double whole = round_to_integer(nu);
  return {{nu - whole, 0.0}, static_cast<int>(whole)};
}

// size i^(power + turns nu) e^exponent times e^-w I_nu(w) or e^w K_nu(w).
struct Term {
  bool used = false;
  DoubleDouble size;
  int power = 0;
  int turns = 0;
  ComplexDoubleDouble exponent;
};

struct Combination {
  Complex w;  // Re w >= 0
  ComplexDoubleDouble wide_w;
  Term i;
  Term k;
  bool real = false;  // the value is the real part of the sum; then w is on the negative imaginary axis

  Combination() = default;
  explicit Combination(Complex argument) : w(argument), wide_w(widen(argument)) {}
};

inline constexpr DoubleDouble kPi{3.141592653589793, 1.2246467991473532e-16};
inline constexpr DoubleDouble kTwoOverPi{0.6366197723675814, -3.935735335036497e-17};

}  // namespace quorin::amos
