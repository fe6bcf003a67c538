#include "families/umfpack_single/conversions.hpp"

#include "families/umfpack_single/pattern.hpp"
#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single {

template <class E>
int triplet_to_col(int n_row, int n_col, const Triplets& T, const MatrixOutput& A, int* Map) {
  const bool has_values = n_row > 0 && n_col > 0 && T.nz >= 0 && T.Tx && A.Ax;
  const Doubles<E> Tx(has_values ? T.Tx : FloatInput{}, length(T.nz));
  Doubles<E> Ax(has_values, length(T.nz));
  if (Tx.has_failed() || Ax.has_failed()) return UMFPACK_ERROR_out_of_memory;
  const int status =
      call<E>(E::kTripletToCol, n_row, n_col, T.nz, T.Ti, T.Tj, Tx.input(), A.Ap, A.Ai, Ax.output(), Map);
  if (status == UMFPACK_OK && has_values) Ax.narrow_to(A.Ax, length(A.Ap[n_col]));
  return status;
}

int col_to_triplet(int n_col, const int* Ap, int* Tj) noexcept { return umfpack_di_col_to_triplet(n_col, Ap, Tj); }

template <class E>
int transpose(int n_row, int n_col, const Matrix& A, const int* P, const int* Q, const MatrixOutput& R,
              int do_conjugate) {
  const Starts Ap(n_row, n_col, A.Ap, A.Ai);
  const bool has_values = Ap.are_sound() && A.Ax && R.Ax;
  const std::size_t nz = has_values ? length(A.Ap[n_col]) : 0;
  const Doubles<E> Ax(has_values ? A.Ax : FloatInput{}, nz);
  Doubles<E> Rx(has_values, nz);
  if (Ap.has_failed() || Ax.has_failed() || Rx.has_failed()) return UMFPACK_ERROR_out_of_memory;
  int status = UMFPACK_OK;
  if constexpr (E::kParts == 1) {
    status = call<E>(E::kTranspose, n_row, n_col, Ap.data(), A.Ai, Ax.input(), P, Q, R.Ap, R.Ai, Rx.output());
  } else {
    status =
        call<E>(E::kTranspose, n_row, n_col, Ap.data(), A.Ai, Ax.input(), P, Q, R.Ap, R.Ai, Rx.output(), do_conjugate);
  }
  if (status == UMFPACK_OK && has_values) Rx.narrow_to(R.Ax, length(R.Ap[n_row]));
  return status;
}

template int triplet_to_col<Real>(int, int, const Triplets&, const MatrixOutput&, int*);
template int triplet_to_col<Complex>(int, int, const Triplets&, const MatrixOutput&, int*);
template int transpose<Real>(int, int, const Matrix&, const int*, const int*, const MatrixOutput&, int);
template int transpose<Complex>(int, int, const Matrix&, const int*, const int*, const MatrixOutput&, int);

}  // namespace quorin::umfpack_single
