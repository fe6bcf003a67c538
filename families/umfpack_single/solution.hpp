// Solving with a Numeric object. The facade describes arguments and statuses.
#pragma once

#include "families/umfpack_single/factorization.hpp"

namespace quorin::umfpack_single {

template <class E>
[[nodiscard]] int solve(int sys, const Matrix& A, FloatOutput X, FloatInput B, const void* Numeric,
                        const float* Control, float* Info);

// With Wi, n integers, and W, as many floats as the published interface says: E::kParts * n, or 5 times as many if
// refinement is asked for (real: 1, 5; complex: 4, 10).
template <class E>
[[nodiscard]] int wsolve(int sys, const Matrix& A, FloatOutput X, FloatInput B, const void* Numeric,
                         const float* Control, float* Info, int* Wi, float* W);

template <class E>
[[nodiscard]] int scale(FloatOutput X, FloatInput B, const void* Numeric);

template <class E>
[[nodiscard]] int get_determinant(FloatOutput M, float* Ex, const void* Numeric, float* Info);

}  // namespace quorin::umfpack_single
