// Symbolic analysis and numerical factorization. The facade describes arguments and statuses.
#pragma once

#include "families/umfpack_single/values.hpp"

namespace quorin::umfpack_single {

// A matrix in compressed columns as the host gives it.
struct Matrix {
  const int* Ap = nullptr;
  const int* Ai = nullptr;
  FloatInput Ax;
};

template <class E>
[[nodiscard]] int qsymbolic(int n_row, int n_col, const Matrix& A, const int* Qinit, void** Symbolic,
                            const float* Control, float* Info);
template <class E>
[[nodiscard]] int numeric(const Matrix& A, const void* Symbolic, void** Numeric, const float* Control, float* Info);

}  // namespace quorin::umfpack_single
