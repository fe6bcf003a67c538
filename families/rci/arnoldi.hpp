// One Arnoldi step and the plane rotations that keep its Hessenberg matrix triangular.
#pragma once

#include "families/rci/fgmres_state.hpp"

namespace quorin::rci {

/// Orthogonalises w = v(k+1) against v(1)...v(k), leaving the coefficients in column k of R; returns the norm of what
/// is left, h(k+1,k), and exactly 0 when w lies in their span up to rounding.
double orthogonalise(const FgmresArrays& arrays, int k);

/// Applies the rotations of the earlier steps to column k, makes the one that annihilates h(k+1,k) = `below`, and
/// applies it to the rotated residual. Returns false, with the residual untouched, when column k has become zero or is
/// not finite.
bool rotate(const FgmresArrays& arrays, int k, double below);

}  // namespace quorin::rci
