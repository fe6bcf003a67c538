// The complex family: argument lists as published, onto the implementation that both families share.
#include "families/umfpack_single/contents.hpp"
#include "families/umfpack_single/conversions.hpp"
#include "families/umfpack_single/factorization.hpp"
#include "families/umfpack_single/reports.hpp"
#include "families/umfpack_single/solution.hpp"
#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single::complex {

int symbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, void** Symbolic,
             const float* Control, float* Info) noexcept {
  return umfpack_single::qsymbolic<Complex>(n_row, n_col, {Ap, Ai, {Ax, Az}}, nullptr, Symbolic, Control, Info);
}

int qsymbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, const int* Qinit,
              void** Symbolic, const float* Control, float* Info) noexcept {
  return umfpack_single::qsymbolic<Complex>(n_row, n_col, {Ap, Ai, {Ax, Az}}, Qinit, Symbolic, Control, Info);
}

int numeric(const int* Ap, const int* Ai, const float* Ax, const float* Az, void* Symbolic, void** Numeric,
            const float* Control, float* Info) noexcept {
  return umfpack_single::numeric<Complex>({Ap, Ai, {Ax, Az}}, Symbolic, Numeric, Control, Info);
}

int solve(int sys, const int* Ap, const int* Ai, const float* Ax, const float* Az, float* Xx, float* Xz,
          const float* Bx, const float* Bz, void* Numeric, const float* Control, float* Info) noexcept {
  return umfpack_single::solve<Complex>(sys, {Ap, Ai, {Ax, Az}}, {Xx, Xz}, {Bx, Bz}, Numeric, Control, Info);
}

int wsolve(int sys, const int* Ap, const int* Ai, const float* Ax, const float* Az, float* Xx, float* Xz,
           const float* Bx, const float* Bz, void* Numeric, const float* Control, float* Info, int* Wi,
           float* W) noexcept {
  return umfpack_single::wsolve<Complex>(sys, {Ap, Ai, {Ax, Az}}, {Xx, Xz}, {Bx, Bz}, Numeric, Control, Info, Wi, W);
}

int scale(float* Xx, float* Xz, const float* Bx, const float* Bz, void* Numeric) noexcept {
  return umfpack_single::scale<Complex>({Xx, Xz}, {Bx, Bz}, Numeric);
}

int get_lunz(int* lnz, int* unz, int* n_row, int* n_col, int* nz_udiag, void* Numeric) noexcept {
  return umfpack_single::get_lunz<Complex>(lnz, unz, n_row, n_col, nz_udiag, Numeric);
}

int get_numeric(int* Lp, int* Lj, float* Lx, float* Lz, int* Up, int* Ui, float* Ux, float* Uz, int* P, int* Q,
                float* Dx, float* Dz, int* do_recip, float* Rs, void* Numeric) noexcept {
  return umfpack_single::get_numeric<Complex>({Lp, Lj, {Lx, Lz}, Up, Ui, {Ux, Uz}, P, Q, {Dx, Dz}, do_recip, Rs},
                                              Numeric);
}

int get_symbolic(int* n_row, int* n_col, int* n1, int* nz, int* nfr, int* nchains, int* P, int* Q, int* Front_npivcol,
                 int* Front_parent, int* Front_1strow, int* Front_leftmostdesc, int* Chain_start, int* Chain_maxrows,
                 int* Chain_maxcols, void* Symbolic) noexcept {
  return umfpack_single::get_symbolic<Complex>(n_row, n_col, n1, nz, nfr, nchains, P, Q, Front_npivcol, Front_parent,
                                               Front_1strow, Front_leftmostdesc, Chain_start, Chain_maxrows,
                                               Chain_maxcols, Symbolic);
}

int get_determinant(float* Mx, float* Mz, float* Ex, void* Numeric, float* Info) noexcept {
  return umfpack_single::get_determinant<Complex>({Mx, Mz}, Ex, Numeric, Info);
}

int triplet_to_col(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx, const float* Tz,
                   int* Ap, int* Ai, float* Ax, float* Az, int* Map) noexcept {
  return umfpack_single::triplet_to_col<Complex>(n_row, n_col, {nz, Ti, Tj, {Tx, Tz}}, {Ap, Ai, {Ax, Az}}, Map);
}

int transpose(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, const int* P,
              const int* Q, int* Rp, int* Ri, float* Rx, float* Rz, int do_conjugate) noexcept {
  return umfpack_single::transpose<Complex>(n_row, n_col, {Ap, Ai, {Ax, Az}}, P, Q, {Rp, Ri, {Rx, Rz}}, do_conjugate);
}

int report_matrix(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, int col_form,
                  const float* Control) noexcept {
  return umfpack_single::report_matrix<Complex>(n_row, n_col, {Ap, Ai, {Ax, Az}}, col_form, Control);
}

int report_triplet(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx, const float* Tz,
                   const float* Control) noexcept {
  return umfpack_single::report_triplet<Complex>(n_row, n_col, {nz, Ti, Tj, {Tx, Tz}}, Control);
}

int report_vector(int n, const float* Xx, const float* Xz, const float* Control) noexcept {
  return umfpack_single::report_vector<Complex>(n, {Xx, Xz}, Control);
}

int report_symbolic(void* Symbolic, const float* Control) noexcept {
  return umfpack_single::report_symbolic<Complex>(Symbolic, Control);
}

int report_numeric(void* Numeric, const float* Control) noexcept {
  return umfpack_single::report_numeric<Complex>(Numeric, Control);
}

}  // namespace quorin::umfpack_single::complex
