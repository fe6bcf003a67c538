// UMFPACK with float entries, Control and Info, over UMFPACK in double precision.
//
// What hosts see, matrices, Control, Info and statuses among it, is told in exports/tables/umfpack.table. A routine
// allocates double copies of the arrays that it reads and writes, for the time of the call.
//
// Source: T. A. Davis, Algorithm 832: UMFPACK V4.3 -- an unsymmetric-pattern multifrontal method, ACM TOMS 30 (2004)
// 196-199; UMFPACK User Guide.
#pragma once

#include "families/umfpack_single/contents.hpp"
#include "families/umfpack_single/conversions.hpp"
#include "families/umfpack_single/factorization.hpp"
#include "families/umfpack_single/objects.hpp"
#include "families/umfpack_single/reports.hpp"
#include "families/umfpack_single/settings.hpp"
#include "families/umfpack_single/solution.hpp"

namespace quorin::umfpack_single {

// Called once, at load: gives UMFPACK, with AMD and COLAMD, the library's allocator and text output.
void start() noexcept;

// Routines that take handles of either family, or no entries.
void free_symbolic(void** Symbolic) noexcept;
void free_numeric(void** Numeric) noexcept;
void defaults(float* Control) noexcept;
int col_to_triplet(int n_col, const int* Ap, int* Tj) noexcept;
void report_status(const float* Control, int status) noexcept;
void report_info(const float* Control, const float* Info) noexcept;
void report_control(const float* Control) noexcept;
int report_perm(int np, const int* Perm, const float* Control) noexcept;

void tic(double* stats) noexcept;
void toc(double* stats) noexcept;
double timer() noexcept;

// The routines of one family. E: its entries. An array of entries is one array of the host for each of Parts: one for
// real entries; for complex ones two, of real and of imaginary parts.
template <class E, class... Parts>
struct Routines {
  static int symbolic(int n_row, int n_col, const int* Ap, const int* Ai, const Parts*... Ax, void** Symbolic,
                      const float* Control, float* Info) noexcept {
    return umfpack_single::qsymbolic<E>(n_row, n_col, {Ap, Ai, {Ax...}}, nullptr, Symbolic, Control, Info);
  }

  static int qsymbolic(int n_row, int n_col, const int* Ap, const int* Ai, const Parts*... Ax, const int* Qinit,
                       void** Symbolic, const float* Control, float* Info) noexcept {
    return umfpack_single::qsymbolic<E>(n_row, n_col, {Ap, Ai, {Ax...}}, Qinit, Symbolic, Control, Info);
  }

  static int numeric(const int* Ap, const int* Ai, const Parts*... Ax, void* Symbolic, void** Numeric,
                     const float* Control, float* Info) noexcept {
    return umfpack_single::numeric<E>({Ap, Ai, {Ax...}}, Symbolic, Numeric, Control, Info);
  }

  static int solve(int sys, const int* Ap, const int* Ai, const Parts*... Ax, Parts*... X, const Parts*... B,
                   void* Numeric, const float* Control, float* Info) noexcept {
    return umfpack_single::solve<E>(sys, {Ap, Ai, {Ax...}}, {X...}, {B...}, Numeric, Control, Info);
  }

  static int wsolve(int sys, const int* Ap, const int* Ai, const Parts*... Ax, Parts*... X, const Parts*... B,
                    void* Numeric, const float* Control, float* Info, int* Wi, float* W) noexcept {
    return umfpack_single::wsolve<E>(sys, {Ap, Ai, {Ax...}}, {X...}, {B...}, Numeric, Control, Info, Wi, W);
  }

  static int scale(Parts*... X, const Parts*... B, void* Numeric) noexcept {
    return umfpack_single::scale<E>({X...}, {B...}, Numeric);
  }

  static int get_lunz(int* lnz, int* unz, int* n_row, int* n_col, int* nz_udiag, void* Numeric) noexcept {
    return E::kGetLunz(lnz, unz, n_row, n_col, nz_udiag, contents(Numeric, kNumericOf<E>));
  }

  static int get_numeric(int* Lp, int* Lj, Parts*... Lx, int* Up, int* Ui, Parts*... Ux, int* P, int* Q, Parts*... Dx,
                         int* do_recip, float* Rs, void* Numeric) noexcept {
    return umfpack_single::get_numeric<E>({Lp, Lj, {Lx...}, Up, Ui, {Ux...}, P, Q, {Dx...}, do_recip, Rs}, Numeric);
  }

  static int get_symbolic(int* n_row, int* n_col, int* n1, int* nz, int* nfr, int* nchains, int* P, int* Q,
                          int* Front_npivcol, int* Front_parent, int* Front_1strow, int* Front_leftmostdesc,
                          int* Chain_start, int* Chain_maxrows, int* Chain_maxcols, void* Symbolic) noexcept {
    return E::kGetSymbolic(n_row, n_col, n1, nz, nfr, nchains, P, Q, Front_npivcol, Front_parent, Front_1strow,
                           Front_leftmostdesc, Chain_start, Chain_maxrows, Chain_maxcols,
                           contents(Symbolic, kSymbolicOf<E>));
  }

  static int get_determinant(Parts*... Mx, float* Ex, void* Numeric, float* Info) noexcept {
    return umfpack_single::get_determinant<E>({Mx...}, Ex, Numeric, Info);
  }

  static int triplet_to_col(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const Parts*... Tx, int* Ap,
                            int* Ai, Parts*... Ax, int* Map) noexcept {
    return umfpack_single::triplet_to_col<E>(n_row, n_col, {nz, Ti, Tj, {Tx...}}, {Ap, Ai, {Ax...}}, Map);
  }

  // Only complex entries can be conjugated.
  static int transpose(int n_row, int n_col, const int* Ap, const int* Ai, const Parts*... Ax, const int* P,
                       const int* Q, int* Rp, int* Ri, Parts*... Rx, int do_conjugate = 0) noexcept {
    return umfpack_single::transpose<E>(n_row, n_col, {Ap, Ai, {Ax...}}, P, Q, {Rp, Ri, {Rx...}}, do_conjugate);
  }

  static int report_matrix(int n_row, int n_col, const int* Ap, const int* Ai, const Parts*... Ax, int col_form,
                           const float* Control) noexcept {
    return umfpack_single::report_matrix<E>(n_row, n_col, {Ap, Ai, {Ax...}}, col_form, Control);
  }

  static int report_triplet(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const Parts*... Tx,
                            const float* Control) noexcept {
    return umfpack_single::report_triplet<E>(n_row, n_col, {nz, Ti, Tj, {Tx...}}, Control);
  }

  static int report_vector(int n, const Parts*... X, const float* Control) noexcept {
    return umfpack_single::report_vector<E>(n, {X...}, Control);
  }

  static int report_symbolic(void* Symbolic, const float* Control) noexcept {
    return E::kReportSymbolic(contents(Symbolic, kSymbolicOf<E>), Settings(Control).data());
  }

  static int report_numeric(void* Numeric, const float* Control) noexcept {
    return E::kReportNumeric(contents(Numeric, kNumericOf<E>), Settings(Control).data());
  }
};

using real = Routines<Real, float>;
using complex = Routines<Complex, float, float>;

}  // namespace quorin::umfpack_single
