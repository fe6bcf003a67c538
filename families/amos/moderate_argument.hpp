// Arguments between the power series and the large-argument expansion: Miller's recurrence for I, normalized by the
// Wronskian, and the recurrence of Tricomi's function for K.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// e^w K_mu(w), e^w K_{mu+1}(w) for |mu| <= 1/2, Re w >= 0: series for |w| <= 2, the recurrence above, expansion
// for large argument from kLargeArgument on.
Pair k_small_order(double mu, Complex w);

// e^w K_nu(w), e^w K_{nu+1}(w) for any nu >= -1/2 by recurrence from small order.
Pair k_by_recurrence(DoubleDouble nu, Complex w);

// Multiples of I_nu(w) and I_{nu+1}(w) by Miller's backward recurrence; the starting index comes from Olver's forward
// estimate (F. W. J. Olver, J. Res. Nat. Bur. Standards 71B (1967) 111-129).
struct Neighbours {
  Complex at;
  Complex above;
};
Neighbours i_neighbours(DoubleDouble nu, Complex w);

// e^-w I_nu(w), e^-w I_{nu+1}(w) from those and the Wronskian I_nu K_{nu+1} + I_{nu+1} K_nu = 1/w; k holds e^w K
// at the same orders.
Pair i_by_wronskian(DoubleDouble nu, Complex w, const Pair& k);

// e^-w I_nu(w) and, if asked for, e^-w I_{nu+1}(w) for -1/2 <= nu < 100, 0 < |w| <= kLargeArgument, w in the first
// quadrant.
Pair i_moderate_argument(DoubleDouble nu, Complex w, bool wants_above);

}  // namespace quorin::amos
