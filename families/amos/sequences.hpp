// Sequences of I and K in the right half plane: the choice of the method and the direction of the recurrence.
#pragma once

#include "families/amos/recurrence.hpp"
#include "families/amos/scaled.hpp"

namespace quorin::amos {

// I at two consecutive orders, the lower of which lies `steps` above the order asked for: methods that need a larger
// order than the host's begin there and leave the way down to the recurrence.
struct Start {
  Pair values;
  int steps = 0;
};

// e^-w I for w != 0 in the first quadrant. Without `wants_above` and steps the second of the pair may be missing.
Start start_i(DoubleDouble nu, Complex w, bool wants_above);

// e^w K_nu(w) and, if asked for, e^w K_{nu+1}(w) for w != 0 in the first quadrant.
Pair start_k(DoubleDouble nu, Complex w, bool wants_above);

// The functions are real on the real axis, so the lower quadrant is the mirror image of the upper one.
inline Complex mirrored(Complex w, bool below) { return below ? std::conj(w) : w; }
inline Scaled mirrored(Scaled a, bool below) { return below ? conj(a) : a; }

// Visits e^-w I_{nu+j}(w), j = to - 1, ..., from, for Re w >= 0, w != 0, until `visit`, which gets j and the value,
// returns false. nu + j is kept unrounded at the first step: next to w = 0 a function changes by log(w) times the
// change of the order.
template <class Visit>
void descend_i(double nu, int from, int to, Complex w, const Visit& visit) {
  const bool below = w.imag() < 0.0;
  const Complex quadrant = mirrored(w, below);
  const DoubleDouble top = two_sum(nu, to - 1);
  const Start start = start_i(top, quadrant, to - from > 1);
  if (to - from == 1 && start.steps == 0) {
    visit(from, mirrored(start.values.at, below));
    return;
  }
  Recurrence i(quadrant, start.values.above, start.values.at, top + DoubleDouble{static_cast<double>(start.steps)});
  i.step_down(start.steps);
  for (int j = to - 1; visit(j, mirrored(i.value(), below)) && j > from; --j) i.step_down();
}

// Visits e^w K_{nu+j}(w), j = from, ..., to - 1, in the same way.
template <class Visit>
void ascend_k(double nu, int from, int to, Complex w, const Visit& visit) {
  const bool below = w.imag() < 0.0;
  const Complex quadrant = mirrored(w, below);
  const Pair start = start_k(two_sum(nu, from), quadrant, to - from > 1);
  if (!visit(from, mirrored(start.at, below)) || to - from == 1) return;
  Recurrence k(quadrant, start.at, start.above, two_sum(nu, from + 1));
  for (int j = from + 1; visit(j, mirrored(k.value(), below)) && j < to - 1; ++j) k.step_up();
}

// Whether J_nu(x) and Y_nu(x) have zeros around x > 2: the first zero of Y lies 0.93 nu^(1/3) beyond the order, that of
// J 1.86 nu^(1/3).
bool is_oscillating(double nu, double x);

// |Re w| beyond which I has no zero near.
inline constexpr double kBesideAxis = 0.5;

// Whether |I_nu(w)| = `size` is so small against the function around that it wants a second look.
bool is_next_to_zero(double nu, Complex w, double size);

}  // namespace quorin::amos
