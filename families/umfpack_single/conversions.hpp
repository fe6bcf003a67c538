// Between triplets, compressed columns and the transpose. The facade describes arguments and statuses.
#pragma once

#include "families/umfpack_single/factorization.hpp"

namespace quorin::umfpack_single {

struct Triplets {
  int nz = 0;
  const int* Ti = nullptr;
  const int* Tj = nullptr;
  FloatInput Tx;
};

// Where a matrix in compressed form goes.
struct MatrixOutput {
  int* Ap = nullptr;
  int* Ai = nullptr;
  FloatOutput Ax;
};

template <class E>
[[nodiscard]] int triplet_to_col(int n_row, int n_col, const Triplets& T, const MatrixOutput& A, int* Map);

template <class E>
[[nodiscard]] int transpose(int n_row, int n_col, const Matrix& A, const int* P, const int* Q, const MatrixOutput& R,
                            int do_conjugate);

}  // namespace quorin::umfpack_single
