// Values next to zeros. Where the two terms of a function cancel, or the two exponentials in one of them, what is left
// has lost digits that only more of them in the terms can bring back: both are computed in double-double.
#pragma once

#include <optional>

#include "families/amos/climber.hpp"
#include "families/amos/combination.hpp"

namespace quorin::amos {

// Part of the usual size of a function below which its value wants a second look. Plain methods err by less than a
// fifth of what is allowed, which grows with the argument and the order.
double small_part(double nu, double modulus);

// The same for the methods for the real axis, which err less.
double small_part_on_axis(double nu, double x);

// Evaluates combinations for Re w >= 0, 0.5 < |w| at orders up to kMostOrders, where they are next to a zero: there
// |w| - Re w > 0. To about 28 digits of the larger term.
//
// K of small order comes from the recurrence of Tricomi's function, and so does I for large |w|, being K on another
// sheet; below that, I comes from Miller's recurrence and the Wronskian. For orders up to |w| the sum itself then
// climbs from the small order, which is stable next to a zero. Above, where one term falls and the other one grows,
// K climbs, and I is computed at each order by itself. Cost: a step of recurrence for each order, about 10 ns;
// members of a sequence share the way.
class SecondLook {
 public:
  static constexpr int kMostOrders = 1 << 21;

  SecondLook(const Combination& c, Order order);

  // The member of order nu + j.
  Scaled member(int j);

 private:
  using Wide = ComplexDoubleDouble;

  struct WidePair {
    Wide at;
    Wide above;
  };

  Wide coefficient(const Term& term, int steps) const;
  WidePair small_k(const Wide& w) const;
  WidePair small_k_by_series(const Wide& w) const;
  WidePair small_i(const WidePair& k) const;
  Wide i_ratio(int steps) const;
  WidePair start();
  void start_sum();
  Scaled sum_at(int steps);
  Scaled terms_at(int steps);

  Combination c_;  // for w in the first quadrant
  Order order_;
  bool below_;  // w was in the fourth one
  Wide w_;
  Wide two_over_w_;  // of all quotients the one whose error counts |w| times
  Wide turn_;        // e^{i pi mu / 2}
  Wide decay_;       // e^-2w 2^-decay_exponent_: what K has in front, less what I has
  std::int64_t decay_exponent_ = 0;
  std::optional<Climber<DoubleDouble>> real_sum_;
  std::optional<Climber<Wide>> sum_;
  std::optional<Climber<Wide>> k_;
};

}  // namespace quorin::amos
