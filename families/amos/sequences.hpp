// Sequences of I and K in the right half plane: the choice of the method and the direction of the recurrence.
#pragma once

#include <functional>

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
Pair start_k(double nu, Complex w, bool wants_above);

// Receives the member of index j and returns false to stop.
using Member = std::function<bool(int j, Scaled value)>;

// Visits e^-w I_{nu+j}(w), j = n-1, ..., 0, for Re w >= 0, w != 0. False when the visitor stopped it.
bool descend_i(double nu, int n, Complex w, const Member& visit);

// Visits e^w K_{nu+j}(w), j = 0, ..., n-1, for Re w >= 0, w != 0. False when the visitor stopped it.
bool ascend_k(double nu, int n, Complex w, const Member& visit);

}  // namespace quorin::amos
