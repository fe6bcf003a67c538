// The four forms of a linear-phase filter, and what its response is to approximate.
//
// A filter h(0..N-1) with h(N-1-k) = h(k) (symmetric) or h(N-1-k) = -h(k) (antisymmetric) has the frequency response
// A(t) exp(-i t (N-1)/2), times i if antisymmetric, where t = 2 pi f runs from 0 to pi and
//
//   A(t) = Q(t) P(cos t),   Q = 1 (symmetric, N odd), cos(t/2) (symmetric, N even),
//                               sin t (antisymmetric, N odd), sin(t/2) (antisymmetric, N even),
//
// with a polynomial P of `degree` (McClellan & Parks, IEEE Trans. Circuit Theory 20 (1973) 697-701).
#pragma once

#include "base/workspace.hpp"

namespace quorin::signal {

class LinearPhase {
 public:
  LinearPhase(int taps, bool antisymmetric) : taps_(taps), odd_(taps % 2 != 0), antisymmetric_(antisymmetric) {}

  int taps() const { return taps_; }
  bool antisymmetric() const { return antisymmetric_; }
  int degree() const;             // of P; negative if there is no such filter
  double factor(double t) const;  // Q(t)
  double slope_at_zero() const;   // Q'(0)
  bool vanishes_at_zero() const { return antisymmetric_; }
  bool vanishes_at_pi() const { return odd_ == antisymmetric_; }

  // The filter h[taps] from A at t = 2 pi k / taps, k = 0 .. taps / 2.
  // `table` is workspace of 2 taps doubles. Cost: taps^2 / 2 multiplications.
  void taps_from_response(const double* response, double* table, double* h) const;

 private:
  int taps_;
  bool odd_;
  bool antisymmetric_;
};

// One band of a design, edges in radians per sample. The error there is
//
//   E(t) = weight (desired - S(t) P(cos t)),   S = Q, or Q(t) / f if `relative`:
//
// a differentiator's response desired f is weighted by weight / f, so that its error is relative.
struct Band {
  double lower, upper;
  double desired, weight;
  bool relative;
};

struct Problem {
  LinearPhase form;
  base::Workspace<Band> bands;
  double grid_step = 0.0;  // if positive, only lower + k grid_step and upper of each band count
  int band_count() const { return static_cast<int>(bands.size()); }
  double shape(double t, const Band& band) const;  // S(t)

  // The grid of a band: its first point is lower, and its last upper, in place of the last step that fits.
  int grid_points(const Band& band) const;
  double grid_point(const Band& band, int i) const;
};

}  // namespace quorin::signal
