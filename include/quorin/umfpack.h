/* Sparse LU factorization.
 *
 * UMFPACK's interface with float entries, Control and Info: the names umfpack_di_ stand for real and umfpack_zi_ for
 * complex matrices. The computation runs in double precision; floats are widened on the way in and results narrowed on
 * the way out. Matrices are compressed columns, zero-based: Ap[0] = 0, Ap[n_col] entries nz, row indices ascending in
 * each column. Complex values are split, real parts in the array x and imaginary parts in z; if z is null, both stand
 * in x, one behind the other.
 *
 * Order of calls: symbolic or qsymbolic, numeric (again for new values of the same pattern), solve and the rest as
 * often as wanted, free_numeric, free_symbolic. Symbolic and Numeric objects belong to their family; one that was
 * freed, never made, or made by the other family is refused.
 *
 * Status, returned and stored in Info[0]: 0 done; 1 the matrix is singular, the Numeric object is usable; 2, 3 the
 * determinant under- or overflows a float; -1 out of memory, no object; -3 invalid Numeric object; -4 invalid Symbolic
 * object; -5 missing argument; -6 n_row or n_col not positive; -8 invalid matrix; -11 the pattern is not the analysed
 * one; -13 invalid system; -15 invalid permutation. report_status has a text for each but 2 and 3.
 *
 * Control, null for defaults (a NaN is taken as the default, too): 0 print level, 1; 1, 2 dense row and column
 * parameter, 0.2; 3 pivot tolerance, 0.1; 4 block size, 32; 5 strategy: 0 automatic, 1 unsymmetric, 2 and 3 symmetric;
 * 6 initial allocation ratio, 0.7; 7 most refinement steps, 2; 8 to 11 compile-time options, 1, 0, 0, 0; 12 2-by-2
 * pivot tolerance, 0.01, not used; 13 Q fixed (0 automatic, positive yes, negative no), 0; 14 AMD dense parameter, 10;
 * 15 diagonal pivot tolerance, 0.001; 16 scaling: 0 none, 1 by the sum, 2 by the largest magnitude of each row, 1; 17
 * frontal allocation ratio, 0.5; 18 drop tolerance, 0; 19 aggressive absorption, 1.
 *
 * Info may be null. Its entries are those of UMFPACK 5.7.9, -1 where nothing was computed; counts above 2^24 are
 * rounded to a float. Reports go to the text-output callback: level 1 errors, 2 status, Control and Info, 3 checks of
 * arrays and objects, 4 their first entries, 5 all, 6 the terms of use with the status.
 *
 * Generated from exports/tables/umfpack.table. Do not edit. */
#ifndef QUORIN_UMFPACK_H
#define QUORIN_UMFPACK_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Factorization and solution ---- */

/* Analyses the pattern of a matrix and orders its columns. Ax may be null.
     Ap: [n_col+1]
     Symbolic: out
     Control: [20]
     Info: out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_symbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                    const float* Ax, void** Symbolic, const float* Control,
                                                    float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_symbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                        int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                        const float* Ax, int32_t Ax_index, void** Symbolic,
                                                        const float* Control, int32_t Control_index, float* Info,
                                                        int32_t Info_index);

/* Analyses the pattern of a matrix and orders its columns. Ax may be null.
     Ap: [n_col+1]
     Symbolic: out
     Control: [20]
     Info: out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_symbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                    const float* Ax, const float* Az, void** Symbolic,
                                                    const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_symbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                        int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                        const float* Ax, int32_t Ax_index, const float* Az,
                                                        int32_t Az_index, void** Symbolic, const float* Control,
                                                        int32_t Control_index, float* Info, int32_t Info_index);

/* As symbolic, with a column order of the host; if Qinit is null, it is symbolic.
     Ap: [n_col+1]
     Qinit: [n_col]
     Symbolic: out
     Control: [20]
     Info: out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_qsymbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const int32_t* Qinit, void** Symbolic,
                                                     const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_qsymbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const int32_t* Qinit,
                                                         int32_t Qinit_index, void** Symbolic, const float* Control,
                                                         int32_t Control_index, float* Info, int32_t Info_index);

/* As symbolic, with a column order of the host; if Qinit is null, it is symbolic.
     Ap: [n_col+1]
     Qinit: [n_col]
     Symbolic: out
     Control: [20]
     Info: out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_qsymbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const float* Az, const int32_t* Qinit,
                                                     void** Symbolic, const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_qsymbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const float* Az,
                                                         int32_t Az_index, const int32_t* Qinit, int32_t Qinit_index,
                                                         void** Symbolic, const float* Control, int32_t Control_index,
                                                         float* Info, int32_t Info_index);

/* Factorizes a matrix of the analysed pattern: P (R A) Q = L U.
     Numeric: out
     Control: [20]
     Info: in, out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_numeric(const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                   void* Symbolic, void** Numeric, const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_numeric_Idx(const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                                       int32_t Ai_index, const float* Ax, int32_t Ax_index,
                                                       void* Symbolic, void** Numeric, const float* Control,
                                                       int32_t Control_index, float* Info, int32_t Info_index);

/* Factorizes a matrix of the analysed pattern: P (R A) Q = L U.
     Numeric: out
     Control: [20]
     Info: in, out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_numeric(const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                   const float* Az, void* Symbolic, void** Numeric,
                                                   const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_numeric_Idx(const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                                       int32_t Ai_index, const float* Ax, int32_t Ax_index,
                                                       const float* Az, int32_t Az_index, void* Symbolic,
                                                       void** Numeric, const float* Control, int32_t Control_index,
                                                       float* Info, int32_t Info_index);

/* Solves a system with a square matrix and refines the solution. sys: 0 A x = b; 1 A^H x = b; 2 A^T x = b, the same
   without conjugation; 3 to 14 with the factors: P'L, L, L'P, L.'P, L', L.', UQ', U, QU', QU.', U', U.'. The matrix is
   read only for 0, 1, 2 with refinement.
     X: out
     Control: [20]
     Info: in, out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_solve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                 float* X, const float* B, void* Numeric, const float* Control,
                                                 float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_solve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                     const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                     int32_t Ax_index, float* X, int32_t X_index, const float* B,
                                                     int32_t B_index, void* Numeric, const float* Control,
                                                     int32_t Control_index, float* Info, int32_t Info_index);

/* Solves a system with a square matrix and refines the solution. sys: 0 A x = b; 1 A^H x = b; 2 A^T x = b, the same
   without conjugation; 3 to 14 with the factors: P'L, L, L'P, L.'P, L', L.', UQ', U, QU', QU.', U', U.'. The matrix is
   read only for 0, 1, 2 with refinement.
     Xx: out
     Xz: out
     Control: [20]
     Info: in, out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_solve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                 const float* Az, float* Xx, float* Xz, const float* Bx,
                                                 const float* Bz, void* Numeric, const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_solve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                     const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                     int32_t Ax_index, const float* Az, int32_t Az_index, float* Xx,
                                                     int32_t Xx_index, float* Xz, int32_t Xz_index, const float* Bx,
                                                     int32_t Bx_index, const float* Bz, int32_t Bz_index, void* Numeric,
                                                     const float* Control, int32_t Control_index, float* Info,
                                                     int32_t Info_index);

/* As solve, with work space of the host for matrices of order n: Wi n, W n (real) or 4 n (complex) elements, 5 n or 10
   n with refinement.
     X: out
     Control: [20]
     Info: in, out, [90]
     Wi: out
     W: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_wsolve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                  float* X, const float* B, void* Numeric, const float* Control,
                                                  float* Info, int32_t* Wi, float* W);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_wsolve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                      const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                      int32_t Ax_index, float* X, int32_t X_index, const float* B,
                                                      int32_t B_index, void* Numeric, const float* Control,
                                                      int32_t Control_index, float* Info, int32_t Info_index,
                                                      int32_t* Wi, int32_t Wi_index, float* W, int32_t W_index);

/* As solve, with work space of the host for matrices of order n: Wi n, W n (real) or 4 n (complex) elements, 5 n or 10
   n with refinement.
     Xx: out
     Xz: out
     Control: [20]
     Info: in, out, [90]
     Wi: out
     W: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_wsolve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                  const float* Az, float* Xx, float* Xz, const float* Bx,
                                                  const float* Bz, void* Numeric, const float* Control, float* Info,
                                                  int32_t* Wi, float* W);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_wsolve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                      const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                      int32_t Ax_index, const float* Az, int32_t Az_index, float* Xx,
                                                      int32_t Xx_index, float* Xz, int32_t Xz_index, const float* Bx,
                                                      int32_t Bx_index, const float* Bz, int32_t Bz_index,
                                                      void* Numeric, const float* Control, int32_t Control_index,
                                                      float* Info, int32_t Info_index, int32_t* Wi, int32_t Wi_index,
                                                      float* W, int32_t W_index);

/* Frees an object of either family and sets its handle to null. A handle of no such object is left alone.
     Symbolic: in, out */
QUORIN_API void QUORIN_CDECL umfpack_di_free_symbolic(void** Symbolic);
QUORIN_API void QUORIN_CDECL umfpack_zi_free_symbolic(void** Symbolic);
QUORIN_API void QUORIN_CDECL umfpack_si_free_symbolic_Idx(void** Symbolic);
QUORIN_API void QUORIN_CDECL umfpack_ci_free_symbolic_Idx(void** Symbolic);

/* Frees an object of either family and sets its handle to null. A handle of no such object is left alone.
     Numeric: in, out */
QUORIN_API void QUORIN_CDECL umfpack_di_free_numeric(void** Numeric);
QUORIN_API void QUORIN_CDECL umfpack_zi_free_numeric(void** Numeric);
QUORIN_API void QUORIN_CDECL umfpack_si_free_numeric_Idx(void** Numeric);
QUORIN_API void QUORIN_CDECL umfpack_ci_free_numeric_Idx(void** Numeric);

/* ---- Settings and contents ---- */

/* Stores the defaults.
     Control: out, [20] */
QUORIN_API void QUORIN_CDECL umfpack_di_defaults(float* Control);
QUORIN_API void QUORIN_CDECL umfpack_si_defaults_Idx(float* Control, int32_t Control_index);
QUORIN_API void QUORIN_CDECL umfpack_zi_defaults(float* Control);
QUORIN_API void QUORIN_CDECL umfpack_ci_defaults_Idx(float* Control, int32_t Control_index);

/* X <- R B, the row scaling of the factorization.
     X: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_scale(float* X, const float* B, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_scale_Idx(float* X, int32_t X_index, const float* B, int32_t B_index,
                                                     void* Numeric);

/* X <- R B, the row scaling of the factorization.
     Xx: out
     Xz: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_scale(float* Xx, float* Xz, const float* Bx, const float* Bz, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_scale_Idx(float* Xx, int32_t Xx_index, float* Xz, int32_t Xz_index,
                                                     const float* Bx, int32_t Bx_index, const float* Bz,
                                                     int32_t Bz_index, void* Numeric);

/* Entries of L and of U, their sizes, and nonzeros on the diagonal of U.
     lnz: out
     unz: out
     n_row: out
     n_col: out
     nz_udiag: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_lunz(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                    int32_t* nz_udiag, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_lunz_Idx(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                        int32_t* nz_udiag, void* Numeric);

/* Entries of L and of U, their sizes, and nonzeros on the diagonal of U.
     lnz: out
     unz: out
     n_row: out
     n_col: out
     nz_udiag: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_lunz(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                    int32_t* nz_udiag, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_lunz_Idx(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                        int32_t* nz_udiag, void* Numeric);

/* Copies the factors: L by rows, U by columns, the permutations, the diagonal of U, the row scale factors, which
   multiply if do_recip is 1 and divide if it is 0. What is null is left out.
     Lp: out
     Lj: out
     Lx: out
     Up: out
     Ui: out
     Ux: out
     P: out
     Q: out
     Dx: out
     do_recip: out
     Rs: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_numeric(int32_t* Lp, int32_t* Lj, float* Lx, int32_t* Up, int32_t* Ui,
                                                       float* Ux, int32_t* P, int32_t* Q, float* Dx, int32_t* do_recip,
                                                       float* Rs, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_numeric_Idx(int32_t* Lp, int32_t Lp_index, int32_t* Lj, int32_t Lj_index,
                                                           float* Lx, int32_t Lx_index, int32_t* Up, int32_t Up_index,
                                                           int32_t* Ui, int32_t Ui_index, float* Ux, int32_t Ux_index,
                                                           int32_t* P, int32_t P_index, int32_t* Q, int32_t Q_index,
                                                           float* Dx, int32_t Dx_index, int32_t* do_recip, float* Rs,
                                                           int32_t Rs_index, void* Numeric);

/* Copies the factors: L by rows, U by columns, the permutations, the diagonal of U, the row scale factors, which
   multiply if do_recip is 1 and divide if it is 0. What is null is left out.
     Lp: out
     Lj: out
     Lx: out
     Lz: out
     Up: out
     Ui: out
     Ux: out
     Uz: out
     P: out
     Q: out
     Dx: out
     Dz: out
     do_recip: out
     Rs: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_numeric(int32_t* Lp, int32_t* Lj, float* Lx, float* Lz, int32_t* Up,
                                                       int32_t* Ui, float* Ux, float* Uz, int32_t* P, int32_t* Q,
                                                       float* Dx, float* Dz, int32_t* do_recip, float* Rs,
                                                       void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_numeric_Idx(int32_t* Lp, int32_t Lp_index, int32_t* Lj, int32_t Lj_index,
                                                           float* Lx, int32_t Lx_index, float* Lz, int32_t Lz_index,
                                                           int32_t* Up, int32_t Up_index, int32_t* Ui, int32_t Ui_index,
                                                           float* Ux, int32_t Ux_index, float* Uz, int32_t Uz_index,
                                                           int32_t* P, int32_t P_index, int32_t* Q, int32_t Q_index,
                                                           float* Dx, int32_t Dx_index, float* Dz, int32_t Dz_index,
                                                           int32_t* do_recip, float* Rs, int32_t Rs_index,
                                                           void* Numeric);

/* Copies the analysis: sizes, first permutations, the tree of frontal matrices. What is null is left out.
     n_row: out
     n_col: out
     n1: out
     nz: out
     nfr: out
     nchains: out
     P: out
     Q: out
     Front_npivcol: out
     Front_parent: out
     Front_1strow: out
     Front_leftmostdesc: out
     Chain_start: out
     Chain_maxrows: out
     Chain_maxcols: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_symbolic(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                        int32_t* nfr, int32_t* nchains, int32_t* P, int32_t* Q,
                                                        int32_t* Front_npivcol, int32_t* Front_parent,
                                                        int32_t* Front_1strow, int32_t* Front_leftmostdesc,
                                                        int32_t* Chain_start, int32_t* Chain_maxrows,
                                                        int32_t* Chain_maxcols, void* Symbolic);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_symbolic_Idx(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                            int32_t* nfr, int32_t* nchains, int32_t* P, int32_t P_index,
                                                            int32_t* Q, int32_t Q_index, int32_t* Front_npivcol,
                                                            int32_t Front_npivcol_index, int32_t* Front_parent,
                                                            int32_t Front_parent_index, int32_t* Front_1strow,
                                                            int32_t Front_1strow_index, int32_t* Front_leftmostdesc,
                                                            int32_t Front_leftmostdesc_index, int32_t* Chain_start,
                                                            int32_t Chain_start_index, int32_t* Chain_maxrows,
                                                            int32_t Chain_maxrows_index, int32_t* Chain_maxcols,
                                                            int32_t Chain_maxcols_index, void* Symbolic);

/* Copies the analysis: sizes, first permutations, the tree of frontal matrices. What is null is left out.
     n_row: out
     n_col: out
     n1: out
     nz: out
     nfr: out
     nchains: out
     P: out
     Q: out
     Front_npivcol: out
     Front_parent: out
     Front_1strow: out
     Front_leftmostdesc: out
     Chain_start: out
     Chain_maxrows: out
     Chain_maxcols: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_symbolic(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                        int32_t* nfr, int32_t* nchains, int32_t* P, int32_t* Q,
                                                        int32_t* Front_npivcol, int32_t* Front_parent,
                                                        int32_t* Front_1strow, int32_t* Front_leftmostdesc,
                                                        int32_t* Chain_start, int32_t* Chain_maxrows,
                                                        int32_t* Chain_maxcols, void* Symbolic);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_symbolic_Idx(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                            int32_t* nfr, int32_t* nchains, int32_t* P, int32_t P_index,
                                                            int32_t* Q, int32_t Q_index, int32_t* Front_npivcol,
                                                            int32_t Front_npivcol_index, int32_t* Front_parent,
                                                            int32_t Front_parent_index, int32_t* Front_1strow,
                                                            int32_t Front_1strow_index, int32_t* Front_leftmostdesc,
                                                            int32_t Front_leftmostdesc_index, int32_t* Chain_start,
                                                            int32_t Chain_start_index, int32_t* Chain_maxrows,
                                                            int32_t Chain_maxrows_index, int32_t* Chain_maxcols,
                                                            int32_t Chain_maxcols_index, void* Symbolic);

/* The determinant Mx 10^Ex with 1 <= |Mx| < 10, or Mx alone if Ex is null.
     Mx: out, [1]
     Ex: out, [1]
     Info: in, out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_determinant(float* Mx, float* Ex, void* Numeric, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_determinant_Idx(float* Mx, int32_t Mx_index, float* Ex, int32_t Ex_index,
                                                               void* Numeric, float* Info, int32_t Info_index);

/* The determinant Mx 10^Ex with 1 <= |Mx| < 10, or Mx alone if Ex is null.
     Mx: out, [1]
     Mz: out, [1]
     Ex: out, [1]
     Info: in, out, [90] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_determinant(float* Mx, float* Mz, float* Ex, void* Numeric, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_determinant_Idx(float* Mx, int32_t Mx_index, float* Mz, int32_t Mz_index,
                                                               float* Ex, int32_t Ex_index, void* Numeric, float* Info,
                                                               int32_t Info_index);

/* ---- Conversions ---- */

/* Triplets in any order to compressed columns; values of the same place are added. Tx, Ax and Map may be null.
     Ti: [nz]
     Tj: [nz]
     Tx: [nz]
     Ap: out, [n_col+1]
     Ai: out, [nz]
     Ax: out, [nz]
     Map: out, [nz] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_triplet_to_col(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, int32_t* Ap, int32_t* Ai,
                                                          float* Ax, int32_t* Map);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_triplet_to_col_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              int32_t* Ap, int32_t Ap_index, int32_t* Ai,
                                                              int32_t Ai_index, float* Ax, int32_t Ax_index,
                                                              int32_t* Map, int32_t Map_index);

/* Triplets in any order to compressed columns; values of the same place are added. Tx, Ax and Map may be null.
     Ti: [nz]
     Tj: [nz]
     Tx: [nz]
     Tz: [nz]
     Ap: out, [n_col+1]
     Ai: out, [nz]
     Ax: out, [nz]
     Az: out, [nz]
     Map: out, [nz] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_triplet_to_col(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, const float* Tz,
                                                          int32_t* Ap, int32_t* Ai, float* Ax, float* Az, int32_t* Map);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_triplet_to_col_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              const float* Tz, int32_t Tz_index, int32_t* Ap,
                                                              int32_t Ap_index, int32_t* Ai, int32_t Ai_index,
                                                              float* Ax, int32_t Ax_index, float* Az, int32_t Az_index,
                                                              int32_t* Map, int32_t Map_index);

/* The column indices of a matrix's entries.
     Ap: [n_col+1]
     Tj: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_col_to_triplet(int32_t n_col, const int32_t* Ap, int32_t* Tj);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_col_to_triplet_Idx(int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                              int32_t* Tj, int32_t Tj_index);
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_col_to_triplet(int32_t n_col, const int32_t* Ap, int32_t* Tj);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_col_to_triplet_Idx(int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                              int32_t* Tj, int32_t Tj_index);

/* R <- (P A Q)^T, conjugated if do_conjugate says so. P, Q, Ax and Rx may be null.
     Ap: [n_col+1]
     P: [n_row]
     Q: [n_col]
     Rp: out, [n_row+1]
     Ri: out
     Rx: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_transpose(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const int32_t* P, const int32_t* Q, int32_t* Rp,
                                                     int32_t* Ri, float* Rx);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_transpose_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const int32_t* P,
                                                         int32_t P_index, const int32_t* Q, int32_t Q_index,
                                                         int32_t* Rp, int32_t Rp_index, int32_t* Ri, int32_t Ri_index,
                                                         float* Rx, int32_t Rx_index);

/* R <- (P A Q)^T, conjugated if do_conjugate says so. P, Q, Ax and Rx may be null.
     Ap: [n_col+1]
     P: [n_row]
     Q: [n_col]
     Rp: out, [n_row+1]
     Ri: out
     Rx: out
     Rz: out */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_transpose(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const float* Az, const int32_t* P,
                                                     const int32_t* Q, int32_t* Rp, int32_t* Ri, float* Rx, float* Rz,
                                                     int32_t do_conjugate);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_transpose_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const float* Az,
                                                         int32_t Az_index, const int32_t* P, int32_t P_index,
                                                         const int32_t* Q, int32_t Q_index, int32_t* Rp,
                                                         int32_t Rp_index, int32_t* Ri, int32_t Ri_index, float* Rx,
                                                         int32_t Rx_index, float* Rz, int32_t Rz_index,
                                                         int32_t do_conjugate);

/* ---- Reports ---- */

/* Prints the text for a status.
     Control: [20] */
QUORIN_API void QUORIN_CDECL umfpack_di_report_status(const float* Control, int32_t status);
QUORIN_API void QUORIN_CDECL umfpack_si_report_status_Idx(const float* Control, int32_t Control_index, int32_t status);
QUORIN_API void QUORIN_CDECL umfpack_zi_report_status(const float* Control, int32_t status);
QUORIN_API void QUORIN_CDECL umfpack_ci_report_status_Idx(const float* Control, int32_t Control_index, int32_t status);

/* Prints Info, from level 2 on.
     Control: [20]
     Info: [90] */
QUORIN_API void QUORIN_CDECL umfpack_di_report_info(const float* Control, const float* Info);
QUORIN_API void QUORIN_CDECL umfpack_si_report_info_Idx(const float* Control, int32_t Control_index, const float* Info,
                                                        int32_t Info_index);
QUORIN_API void QUORIN_CDECL umfpack_zi_report_info(const float* Control, const float* Info);
QUORIN_API void QUORIN_CDECL umfpack_ci_report_info_Idx(const float* Control, int32_t Control_index, const float* Info,
                                                        int32_t Info_index);

/* Prints Control, from level 2 on.
     Control: [20] */
QUORIN_API void QUORIN_CDECL umfpack_di_report_control(const float* Control);
QUORIN_API void QUORIN_CDECL umfpack_si_report_control_Idx(const float* Control, int32_t Control_index);
QUORIN_API void QUORIN_CDECL umfpack_zi_report_control(const float* Control);
QUORIN_API void QUORIN_CDECL umfpack_ci_report_control_Idx(const float* Control, int32_t Control_index);

/* Checks and prints a matrix by columns, or by rows if col_form is 0. Ax may be null.
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_matrix(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         const int32_t* Ai, const float* Ax, int32_t col_form,
                                                         const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_matrix_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                             int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                             const float* Ax, int32_t Ax_index, int32_t col_form,
                                                             const float* Control, int32_t Control_index);

/* Checks and prints a matrix by columns, or by rows if col_form is 0. Ax may be null.
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_matrix(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         const int32_t* Ai, const float* Ax, const float* Az,
                                                         int32_t col_form, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_matrix_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                             int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                             const float* Ax, int32_t Ax_index, const float* Az,
                                                             int32_t Az_index, int32_t col_form, const float* Control,
                                                             int32_t Control_index);

/* Checks and prints triplets. Tx may be null.
     Ti: [nz]
     Tj: [nz]
     Tx: [nz]
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_triplet(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_triplet_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              const float* Control, int32_t Control_index);

/* Checks and prints triplets. Tx may be null.
     Ti: [nz]
     Tj: [nz]
     Tx: [nz]
     Tz: [nz]
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_triplet(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, const float* Tz,
                                                          const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_triplet_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              const float* Tz, int32_t Tz_index, const float* Control,
                                                              int32_t Control_index);

/* Checks and prints a vector.
     X: [n]
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_vector(int32_t n, const float* X, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_vector_Idx(int32_t n, const float* X, int32_t X_index,
                                                             const float* Control, int32_t Control_index);

/* Checks and prints a vector.
     Xx: [n]
     Xz: [n]
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_vector(int32_t n, const float* Xx, const float* Xz,
                                                         const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_vector_Idx(int32_t n, const float* Xx, int32_t Xx_index,
                                                             const float* Xz, int32_t Xz_index, const float* Control,
                                                             int32_t Control_index);

/* Checks and prints a Symbolic object.
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_symbolic(void* Symbolic, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_symbolic_Idx(void* Symbolic, const float* Control,
                                                               int32_t Control_index);

/* Checks and prints a Symbolic object.
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_symbolic(void* Symbolic, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_symbolic_Idx(void* Symbolic, const float* Control,
                                                               int32_t Control_index);

/* Checks and prints a Numeric object.
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_numeric(void* Numeric, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_numeric_Idx(void* Numeric, const float* Control,
                                                              int32_t Control_index);

/* Checks and prints a Numeric object.
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_numeric(void* Numeric, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_numeric_Idx(void* Numeric, const float* Control,
                                                              int32_t Control_index);

/* Checks and prints a permutation.
     Perm: [np]
     Control: [20] */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_perm(int32_t np, const int32_t* Perm, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_perm_Idx(int32_t np, const int32_t* Perm, int32_t Perm_index,
                                                           const float* Control, int32_t Control_index);
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_perm(int32_t np, const int32_t* Perm, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_perm_Idx(int32_t np, const int32_t* Perm, int32_t Perm_index,
                                                           const float* Control, int32_t Control_index);

/* ---- Timing ---- */

/* Begins a measurement: stats[0] <- 0, there being no wall clock; stats[1] <- processor time in seconds.
     stats: out, [2] */
QUORIN_API void QUORIN_CDECL umfpack_tic(double* stats);
QUORIN_API void QUORIN_CDECL umfpack_tic_32f_Idx(double* stats, int32_t stats_index);

/* Ends it: stats[1] <- processor time since umfpack_tic.
     stats: in, out, [2] */
QUORIN_API void QUORIN_CDECL umfpack_toc(double* stats);
QUORIN_API void QUORIN_CDECL umfpack_toc_32f_Idx(double* stats, int32_t stats_index);

/* Processor time in seconds. */
QUORIN_API double QUORIN_CDECL umfpack_timer(void);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
