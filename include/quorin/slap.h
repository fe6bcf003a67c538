/* SLAP: preconditioned iterative solvers.
 *
 * Sixteen iterative solvers for A x = B with a sparse A, in single precision. The matrix comes as triads or in columns;
 * the solver brings it to columns in place, so that the next call finds it ready.
 *
 * Triads: entry k of NELT is A(k) in row IA(k) and column JA(k), one-based, in any order. Repeated entries are kept,
 * and add up. Every column must have an entry, and its diagonal should be stored. Columns: JA(j) is the place of the
 * first entry of column j, JA(N+1) = NELT+1, which is how the format is told, JA(N+2) = 0; in each column the diagonal
 * stands first, then rows ascend. JA holds max(NELT, N+2) elements. With ISYM 0 all entries are stored, else the lower
 * triangle of a symmetric matrix with its diagonal.
 *
 * X holds a first guess, then the solution. The iteration ends when ERR <= TOL, where ERR is, for ITOL = 1, ||r|| /
 * ||B|| with r = B - A X; for ITOL = 2, ||M^-1 r|| / ||M^-1 B|| with the preconditioner M (that of A A^T in SSDCGN and
 * SSLUCN); for ITOL = 11, the distance to a known solution, which this library has no way to give, so that it never
 * passes. SSDGMR and SSLUGM take ITOL = 0 as 1. A TOL below 500 R1MACH(3) = 2.98e-5 is raised to that. Where the
 * recurrence of an iteration passes the test, the residual is computed anew and ERR is that of X itself (not in SSDCG,
 * SSICCG and SSICCGC, which trust the recurrence as published); if rounding keeps it above TOL, X is returned as good
 * as it gets, and ERR tells. ITMAX bounds the iterations; ITER is their number, ITMAX+1 without convergence. NSAVE is
 * the number of steps between restarts (GMRES) or of earlier directions that a new one is made orthogonal to
 * (Orthomin).
 *
 * IERR: 0 converged; 2 not converged within ITMAX iterations; 3 bad input: N < 1 or NELT < 1 (nothing is touched then),
 * an unknown ITOL (ERR = 1.0E10), NSAVE too small (below 2 in SSDGMR, 1 in SSLUGM, 0 in SSDOMN and SSLUOM), or a row
 * outside the matrix or columns without entries that leave no usable matrix (X is not touched then); 4 converged, but
 * TOL was raised; 5 and 6 breakdown, see the solvers. Nothing is ever printed: IUNIT is not used.
 *
 * The lengths of the work arrays are not checked, LENW and LENIW are not read. With NL and NU the numbers of entries
 * below and above the diagonal (for ISYM not 0 both are those below) the solvers need the following. SSDCG: LENW 5N,
 * LENIW 10. SSDCGN, SSDBCG, SSDCGS: 8N, 10. SSJAC: 4N, 10. SSDOMN: 7N + NSAVE(3N+1), 10. SSDGMR: 1 + N(NSAVE+6) +
 * NSAVE(NSAVE+3), 30. SSICCG, SSICCGC, with NL = NELT for ISYM not 0, else (NELT+N)/2: NL + 5N, NL + N + 11. SSGS, with
 * the diagonal in NL: NL + 3N + 1, NL + N + 11. SSILUR: NL + NU + 4N, NL + NU + 4N + 12. SSLUBC, SSLUCN, SSLUCS: NL +
 * NU + 8N, NL + NU + 4N + 12. SSLUOM: NL + NU + 4N + NSAVE(3N+1), NL + NU + 4N + 12. SSLUGM: 1 + N(NSAVE+6) +
 * NSAVE(NSAVE+3) + NL + NU, NL + NU + 4N + 32. SSDCGN and SSLUCN compute in double precision and keep doubles in RWORK,
 * which needs no other alignment than that of floats all the same. On return IWORK(9) and IWORK(10) are the places
 * behind what is used in IWORK and RWORK.
 *
 * Diagonal preconditioners take the first entry of each column; a zero there makes the result useless, and is not
 * reported otherwise. The incomplete factorizations keep the pattern of A and replace pivots that will not do, so that
 * the iteration goes on.
 *
 * Generated from exports/tables/slap.table. Do not edit. */
#ifndef QUORIN_SLAP_H
#define QUORIN_SLAP_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Storage ---- */

/* Brings triads to the column format; a matrix with JA(N+1) = NELT+1 is left alone. ISYM is not read.
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT] */
QUORIN_API void QUORIN_CDECL SS2Y(const int32_t* N, const int32_t* NELT, int32_t* IA, int32_t* JA, float* A,
                                  const int32_t* ISYM);

/* Does nothing: no picture is printed.
     IA: [NELT]
     JA: [NELT or N+2]
     A: [NELT] */
QUORIN_API void QUORIN_CDECL SCPPLT(const int32_t* N, const int32_t* NELT, const int32_t* IA, const int32_t* JA,
                                    const float* A, const int32_t* ISYM, const int32_t* IUNIT);

/* ---- Symmetric positive definite systems ---- */

/* Conjugate gradients with diagonal scaling. IERR 5: (z, r) <= 0, the diagonal is not positive; 6: (p, A p) <= 0, A is
   not positive definite.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSDCG(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                   int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                   const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                   float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);

/* Conjugate gradients with incomplete Cholesky factorization. IERR as SSDCG.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSICCG(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSICCG_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                        const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                        int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                        const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER,
                                        float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                                        int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index,
                                        const int32_t* LENIW);

/* As SSICCG. With IFACT 0 the factor that an earlier call for the same matrix left in RWORK and IWORK is used again.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSICCGC(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                     int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                     const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                     const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                     const int32_t* LENIW, const int32_t* IFACT);

/* ---- Normal equations ---- */

/* Conjugate gradients for A A^T y = B, X = A^T y, scaled by the diagonal of A A^T. IERR 5: (z, r) <= 0; 6: A^T p = 0, A
   is singular.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSDCGN(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);

/* As SSDCGN, with incomplete LU factorization.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSLUCN(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSLUCN_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                        const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                        int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                        const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER,
                                        float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                                        int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index,
                                        const int32_t* LENIW);

/* ---- General systems ---- */

/* Biconjugate gradients with diagonal scaling. It starts anew when rounding has made the residuals of A and A^T
   orthogonal. IERR 5: (M^-1 r, r) = 0; 6: the directions of A^T are orthogonal to A times those of A.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSDBCG(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);

/* Biconjugate gradients with incomplete LU factorization. IERR as SSDBCG.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSLUBC(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSLUBC_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                        const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                        int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                        const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER,
                                        float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                                        int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index,
                                        const int32_t* LENIW);

/* Conjugate gradients squared with diagonal scaling. It starts anew when rounding has made the residual orthogonal to
   the first one. IERR 5: r = 0, or not finite; 6: (r, A M^-1 r) = 0.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSDCGS(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);

/* Conjugate gradients squared with incomplete LU factorization. IERR as SSDCGS.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSLUCS(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSLUCS_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                        const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                        int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                        const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER,
                                        float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                                        int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index,
                                        const int32_t* LENIW);

/* GMRES with diagonal scaling, restarted after NSAVE steps. It makes ||r|| least, with ITOL = 2 ||M^-1 r||. IERR 5: A
   is singular, or not finite.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSDGMR(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* NSAVE,
                                    const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                    int32_t* IERR, const int32_t* IUNIT, float* RWORK, const int32_t* LENW,
                                    int32_t* IWORK, const int32_t* LENIW);

/* GMRES with incomplete LU factorization. IERR as SSDGMR.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSLUGM(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* NSAVE,
                                    const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                    int32_t* IERR, const int32_t* IUNIT, float* RWORK, const int32_t* LENW,
                                    int32_t* IWORK, const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSLUGM_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                        const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                        int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                        const int32_t* NSAVE, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                                        int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                                        int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index,
                                        const int32_t* LENIW);

/* Orthomin(NSAVE) with diagonal scaling. IERR 5: A p = 0; 6: no step along the direction makes the residual less.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSDOMN(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* NSAVE,
                                    const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                    int32_t* IERR, const int32_t* IUNIT, float* RWORK, const int32_t* LENW,
                                    int32_t* IWORK, const int32_t* LENIW);

/* Orthomin(NSAVE) with incomplete LU factorization. IERR as SSDOMN.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSLUOM(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* NSAVE,
                                    const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                    int32_t* IERR, const int32_t* IUNIT, float* RWORK, const int32_t* LENW,
                                    int32_t* IWORK, const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSLUOM_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                        const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                        int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                        const int32_t* NSAVE, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                                        int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                                        int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index,
                                        const int32_t* LENIW);

/* ---- Refinement: X <- X + M^-1 (B - A X) ---- */

/* Jacobi's iteration, M the diagonal.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSJAC(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                   int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                   const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                   float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSJAC_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                       const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                       int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                       const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                       int32_t* IERR, const int32_t* IUNIT, float* RWORK, int32_t RWORK_index,
                                       const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index, const int32_t* LENIW);

/* Gauss and Seidel's iteration, M the lower triangle with the diagonal.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSGS(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                  int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                  const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                  float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSGS_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                      const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                      float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                      const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                      const int32_t* IUNIT, float* RWORK, int32_t RWORK_index, const int32_t* LENW,
                                      int32_t* IWORK, int32_t IWORK_index, const int32_t* LENIW);

/* Refinement with incomplete LU factorization.
     B: [N]
     X: in, out, [N]
     IA: in, out, [NELT]
     JA: in, out, [NELT or N+2]
     A: in, out, [NELT]
     TOL: in, out
     ITER: out
     ERR: out
     IERR: out
     RWORK: in, out, [LENW]
     IWORK: in, out, [LENIW] */
QUORIN_API void QUORIN_CDECL SSILUR(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);
QUORIN_API void QUORIN_CDECL SSILUR_Idx(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                        const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA,
                                        int32_t JA_index, float* A, int32_t A_index, const int32_t* ISYM,
                                        const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER,
                                        float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                                        int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index,
                                        const int32_t* LENIW);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
