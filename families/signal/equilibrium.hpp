// Where the error of a best approximation on several bands alternates, to begin with.
//
// As the degree n grows, the extrema of the error spread over the bands, as sets of x = cos t, like their equilibrium
// measure: with the edges e(1..2B) of B bands, a band has
//
//   1 + 1/pi integral |p(x)| / sqrt |H(x)| dx,   H(x) = prod (x - e(i)),
//
// of them, where p has degree B - 1, leading coefficient n, and a zero between any two bands. Over such a gap p/sqrt(H)
// integrates to what the logarithm of the error grows from one band to the other, which is that of the ratio of their
// weights. These B - 1 linear conditions determine p.
//
// Sources: Shen, Strang, Wathen, "The potential theory of several intervals and its applications", Appl. Math. Optim.
// 44 (2001) 67-85; Widom, "Extremal polynomials associated with a system of curves in the complex plane", Adv. Math. 3
// (1969) 127-232, for the weights.
#pragma once

#include <array>

#include "families/signal/linear_phase.hpp"

namespace quorin::signal {

class Equilibrium {
 public:
  // For a polynomial of the given degree. With very many bands the extrema are taken as spread evenly.
  Equilibrium(const Problem& problem, int degree);

  // The extrema of band b but one.
  double extrema(int b) const;
  // Writes `count` points of band b, ascending, as dense as its extrema; two or more begin and end at the edges.
  void place(int b, int count, double* t) const;

 private:
  static constexpr int kMostBands = 32;

  struct Interval {
    double middle, half;
  };
  static Interval between(double t, double later);

  bool solve();
  double weight(int b) const;
  double product(double x, int open) const;
  double outer_root(double x) const;
  double density(int b, double angle) const;

  const Problem& problem_;
  int degree_, gap_count_;
  bool is_even_;
  double total_width_ = 0.0;
  double left_ = 0.0, right_ = 0.0;  // ends of all bands, as x
  // p(x) = prod (x - middle(k)) (degree + sum residue(k) / (x - middle(k))) with the middles of the gaps; gap k lies
  // between bands k and k + 1.
  std::array<Interval, kMostBands> gaps_;
  std::array<double, kMostBands> residues_;
};

}  // namespace quorin::signal
