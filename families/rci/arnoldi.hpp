// One Arnoldi step.
#pragma once

#include "families/rci/fgmres_state.hpp"

namespace quorin::rci {

// Orthogonalises w = v(k+1) against v(1)...v(k), leaving the coefficients in column k of R; returns the norm of what
// is left, h(k+1,k), and exactly 0 when w lies in their span up to rounding.
[[nodiscard]] double orthogonalise(const FgmresArrays& arrays, int k);

}  // namespace quorin::rci
