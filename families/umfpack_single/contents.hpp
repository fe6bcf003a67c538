// What Symbolic and Numeric objects hold. The facade describes arguments and statuses.
#pragma once

#include "families/umfpack_single/values.hpp"

namespace quorin::umfpack_single {

template <class E>
int get_lunz(int* lnz, int* unz, int* n_row, int* n_col, int* nz_udiag, const void* Numeric) noexcept;

// Where the factors go; any part may be null.
struct Factors {
  int* Lp = nullptr;
  int* Lj = nullptr;
  FloatOutput Lx;
  int* Up = nullptr;
  int* Ui = nullptr;
  FloatOutput Ux;
  int* P = nullptr;
  int* Q = nullptr;
  FloatOutput Dx;
  int* do_recip = nullptr;
  float* Rs = nullptr;
};

template <class E>
int get_numeric(const Factors& to, const void* Numeric) noexcept;

template <class E>
int get_symbolic(int* n_row, int* n_col, int* n1, int* nz, int* nfr, int* nchains, int* P, int* Q, int* Front_npivcol,
                 int* Front_parent, int* Front_1strow, int* Front_leftmostdesc, int* Chain_start, int* Chain_maxrows,
                 int* Chain_maxcols, const void* Symbolic) noexcept;

}  // namespace quorin::umfpack_single
