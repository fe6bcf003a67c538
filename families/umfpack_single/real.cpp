// The real family: argument lists as published, onto the implementation that both families share.
#include "families/umfpack_single/contents.hpp"
#include "families/umfpack_single/conversions.hpp"
#include "families/umfpack_single/factorization.hpp"
#include "families/umfpack_single/reports.hpp"
#include "families/umfpack_single/solution.hpp"
#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single::real {

int symbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, void** Symbolic, const float* Control,
             float* Info) noexcept {
  return umfpack_single::qsymbolic<Real>(n_row, n_col, {Ap, Ai, {Ax}}, nullptr, Symbolic, Control, Info);
}

int qsymbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const int* Qinit, void** Symbolic,
              const float* Control, float* Info) noexcept {
  return umfpack_single::qsymbolic<Real>(n_row, n_col, {Ap, Ai, {Ax}}, Qinit, Symbolic, Control, Info);
}

int numeric(const int* Ap, const int* Ai, const float* Ax, void* Symbolic, void** Numeric, const float* Control,
            float* Info) noexcept {
  return umfpack_single::numeric<Real>({Ap, Ai, {Ax}}, Symbolic, Numeric, Control, Info);
}

int solve(int sys, const int* Ap, const int* Ai, const float* Ax, float* X, const float* B, void* Numeric,
          const float* Control, float* Info) noexcept {
  return umfpack_single::solve<Real>(sys, {Ap, Ai, {Ax}}, {X}, {B}, Numeric, Control, Info);
}

int wsolve(int sys, const int* Ap, const int* Ai, const float* Ax, float* X, const float* B, void* Numeric,
           const float* Control, float* Info, int* Wi, float* W) noexcept {
  return umfpack_single::wsolve<Real>(sys, {Ap, Ai, {Ax}}, {X}, {B}, Numeric, Control, Info, Wi, W);
}

int scale(float* X, const float* B, void* Numeric) noexcept { return umfpack_single::scale<Real>({X}, {B}, Numeric); }

int get_lunz(int* lnz, int* unz, int* n_row, int* n_col, int* nz_udiag, void* Numeric) noexcept {
  return umfpack_single::get_lunz<Real>(lnz, unz, n_row, n_col, nz_udiag, Numeric);
}

int get_numeric(int* Lp, int* Lj, float* Lx, int* Up, int* Ui, float* Ux, int* P, int* Q, float* Dx, int* do_recip,
                float* Rs, void* Numeric) noexcept {
  return umfpack_single::get_numeric<Real>({Lp, Lj, {Lx}, Up, Ui, {Ux}, P, Q, {Dx}, do_recip, Rs}, Numeric);
}

int get_symbolic(int* n_row, int* n_col, int* n1, int* nz, int* nfr, int* nchains, int* P, int* Q, int* Front_npivcol,
                 int* Front_parent, int* Front_1strow, int* Front_leftmostdesc, int* Chain_start, int* Chain_maxrows,
                 int* Chain_maxcols, void* Symbolic) noexcept {
  return umfpack_single::get_symbolic<Real>(n_row, n_col, n1, nz, nfr, nchains, P, Q, Front_npivcol, Front_parent,
                                            Front_1strow, Front_leftmostdesc, Chain_start, Chain_maxrows, Chain_maxcols,
                                            Symbolic);
}

int get_determinant(float* Mx, float* Ex, void* Numeric, float* Info) noexcept {
  return umfpack_single::get_determinant<Real>({Mx}, Ex, Numeric, Info);
}

int triplet_to_col(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx, int* Ap, int* Ai,
                   float* Ax, int* Map) noexcept {
  return umfpack_single::triplet_to_col<Real>(n_row, n_col, {nz, Ti, Tj, {Tx}}, {Ap, Ai, {Ax}}, Map);
}

int transpose(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const int* P, const int* Q, int* Rp,
              int* Ri, float* Rx) noexcept {
  return umfpack_single::transpose<Real>(n_row, n_col, {Ap, Ai, {Ax}}, P, Q, {Rp, Ri, {Rx}}, 0);
}

int report_matrix(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, int col_form,
                  const float* Control) noexcept {
  return umfpack_single::report_matrix<Real>(n_row, n_col, {Ap, Ai, {Ax}}, col_form, Control);
}

int report_triplet(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx,
                   const float* Control) noexcept {
  return umfpack_single::report_triplet<Real>(n_row, n_col, {nz, Ti, Tj, {Tx}}, Control);
}

int report_vector(int n, const float* X, const float* Control) noexcept {
  return umfpack_single::report_vector<Real>(n, {X}, Control);
}

int report_symbolic(void* Symbolic, const float* Control) noexcept {
  return umfpack_single::report_symbolic<Real>(Symbolic, Control);
}

int report_numeric(void* Numeric, const float* Control) noexcept {
  return umfpack_single::report_numeric<Real>(Numeric, Control);
}

}  // namespace quorin::umfpack_single::real
