/* SLAP: preconditioned iterative solvers.
 *
 * Sixteen iterative solvers for A x = B with a sparse A, in single precision. The matrix comes as triads or in columns;
 * the solver brings it to columns in place, so that the next call finds it ready.
 *
 * Triads: entry k of NELT is A(k) in row IA(k) and column JA(k), one-based, in any order. Repeated entries are kept,
 * and add up. Every column must have an entry, and its diagonal should be stored. A solver refuses triads with an empty
 * column or one outside 1..N and leaves them sorted by columns. Columns: JA(j) is the place of the first entry of
 * column j, JA(N+1) = NELT+1, which is how the format is told, JA(N+2) = 0; in each column the diagonal stands first,
 * then rows ascend.
 *
 * The iteration ends when ERR <= TOL. Where the recurrence of an iteration passes the test, the residual is computed
 * anew and ERR is that of X itself (not in SSDCG, SSICCG and SSICCGC, which trust the recurrence as published); if
 * rounding keeps it above TOL three times in turn, the iteration ends there with IERR = 2 and ITER = ITMAX+1, X is as
 * good as it gets, and ERR tells how good. An ERR that is not a number never passes.
 *
 * A and B of any scale will do: where products of residuals would overflow or vanish in single precision, the iteration
 * scales them by a power of two, which changes no digit. Elements of X, of A, of the inverse diagonal and of incomplete
 * factors have to be within the range of single precision, and rows of A that differ by more than that are not scaled.
 *
 * The lengths of the work arrays are not checked. SSDCGN and SSLUCN compute in double precision and keep doubles in
 * RWORK, which needs no other alignment than that of floats all the same. Nothing is ever printed.
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

/* How an iteration ended. */
enum quorin_slap_status {
  QUORIN_SLAP_CONVERGED = 0, /* converged */
  QUORIN_SLAP_NOT_CONVERGED = 2, /* not converged within ITMAX iterations, or kept above TOL by rounding; ITER =
      ITMAX+1 */
  QUORIN_SLAP_BAD_INPUT = 3, /* bad input: N < 1, NELT < 1 or NSAVE too small, and nothing is touched; an unknown ITOL,
      and ERR = 1.0E10; a row or a column outside the matrix, a column without entries among triads, or column starts
      that are none, and X is not touched */
  QUORIN_SLAP_TOLERANCE_RAISED = 4, /* converged, but TOL was raised */
  QUORIN_SLAP_BREAKDOWN = 5, /* breakdown */
  QUORIN_SLAP_SECOND_BREAKDOWN = 6 /* breakdown of the second kind */
};

/* Values of ISYM: what is stored. */
enum {
  QUORIN_SLAP_GENERAL = 0, /* all entries */
  QUORIN_SLAP_SYMMETRIC = 1 /* any number but 0: the lower triangle of a symmetric matrix, with its diagonal */
};

/* Values of ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and
 * SSLUCN). */
enum {
  QUORIN_SLAP_RESIDUAL = 1, /* ||r|| / ||B|| */
  QUORIN_SLAP_PRECONDITIONED_RESIDUAL = 2, /* ||M^-1 r|| / ||M^-1 B|| */
  QUORIN_SLAP_KNOWN_SOLUTION = 11 /* the distance to a known solution, which this library has no way to give, so that it
      never passes */
};

/* Values of IFACT: whether the preconditioner is made anew. */
enum {
  QUORIN_SLAP_KEEP_FACTOR = 0, /* no: an earlier call for the same matrix left it in RWORK and IWORK */
  QUORIN_SLAP_NEW_FACTOR = 1 /* any number but 0: yes */
};

/* Positions in IWORK, one-based: the first is IWORK[0] in C. */
enum {
  QUORIN_SLAP_IWORK_END = 9, /* the place behind what is used in IWORK */
  QUORIN_SLAP_RWORK_END = 10 /* the place behind what is used in RWORK */
};

/* ---- Storage ---- */

/* Brings triads to the column format. A matrix with JA(N+1) = NELT+1 is left alone, and so is one with a column outside
   1..N; an empty column makes wrong column starts, as published.
     N: order of A, at least 1
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: may be null: not read */
QUORIN_API void QUORIN_CDECL SS2Y(const int32_t* N, const int32_t* NELT, int32_t* IA, int32_t* JA, float* A,
                                  const int32_t* ISYM);

/* Does nothing: no picture is printed.
     N: may be null: not read
     NELT: may be null: not read
     IA: [NELT], may be null: not read
     JA: [max(NELT,N+2)], may be null: not read
     A: [NELT], may be null: not read
     ISYM: may be null: not read
     IUNIT: may be null: not used */
QUORIN_API void QUORIN_CDECL SCPPLT(const int32_t* N, const int32_t* NELT, const int32_t* IA, const int32_t* JA,
                                    const float* A, const int32_t* ISYM, const int32_t* IUNIT);

/* ---- Symmetric positive definite systems ---- */

/* Conjugate gradients with diagonal scaling.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
QUORIN_API void QUORIN_CDECL SSDCG(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                   int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                   const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                   float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);

/* Conjugate gradients with incomplete Cholesky factorization.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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

/* Conjugate gradients with incomplete Cholesky factorization, which a further call may use again.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read
     IFACT: whether the preconditioner is made anew (0 no: an earlier call for the same matrix left it in RWORK and
         IWORK; 1 any number but 0: yes) */
QUORIN_API void QUORIN_CDECL SSICCGC(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                     int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                     const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                     const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                     const int32_t* LENIW, const int32_t* IFACT);

/* ---- Normal equations ---- */

/* Conjugate gradients for A A^T y = B, X = A^T y, scaled by the diagonal of A A^T.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
QUORIN_API void QUORIN_CDECL SSDCGN(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);

/* Conjugate gradients for A A^T y = B, X = A^T y, with incomplete LU factorization.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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
   orthogonal.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
QUORIN_API void QUORIN_CDECL SSDBCG(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);

/* Biconjugate gradients with incomplete LU factorization.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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
   the first one.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
QUORIN_API void QUORIN_CDECL SSDCGS(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                    const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR,
                                    const int32_t* IUNIT, float* RWORK, const int32_t* LENW, int32_t* IWORK,
                                    const int32_t* LENIW);

/* Conjugate gradients squared with incomplete LU factorization.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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

/* GMRES with diagonal scaling, restarted after NSAVE steps.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     NSAVE: steps between restarts, at least 2
     ITOL: the stopping test: what ERR is, and what is made least; r = B - A X, M is the preconditioner (0 as 1; 1 ||r||
         / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
QUORIN_API void QUORIN_CDECL SSDGMR(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* NSAVE,
                                    const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                    int32_t* IERR, const int32_t* IUNIT, float* RWORK, const int32_t* LENW,
                                    int32_t* IWORK, const int32_t* LENIW);

/* GMRES with incomplete LU factorization, restarted after NSAVE steps.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     NSAVE: steps between restarts, at least 1
     ITOL: the stopping test: what ERR is, and what is made least; r = B - A X, M is the preconditioner (0 as 1; 1 ||r||
         / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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

/* Orthomin(NSAVE) with diagonal scaling.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     NSAVE: earlier directions that a new one is made orthogonal to, at least 0
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
QUORIN_API void QUORIN_CDECL SSDOMN(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA,
                                    int32_t* JA, float* A, const int32_t* ISYM, const int32_t* NSAVE,
                                    const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                    int32_t* IERR, const int32_t* IUNIT, float* RWORK, const int32_t* LENW,
                                    int32_t* IWORK, const int32_t* LENIW);

/* Orthomin(NSAVE) with incomplete LU factorization.
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     NSAVE: earlier directions that a new one is made orthogonal to, at least 0
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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
     N: order of A, at least 1
     B: [N]: the right-hand side
     X: in, out, [N]: a first guess, then the solution
     NELT: number of stored entries, at least 1
     IA: in, out, [NELT]: rows of the entries; on return in the column format
     JA: in, out, [max(NELT,N+2)]: columns of the entries, or their starts; on return in the column format
     A: in, out, [NELT]: the entries; on return in the column format
     ISYM: what is stored (0 all entries; 1 any number but 0: the lower triangle of a symmetric matrix, with its
         diagonal)
     ITOL: the stopping test: what ERR is; r = B - A X, M is the preconditioner (that of A A^T in SSDCGN and SSLUCN) (1
         ||r|| / ||B||; 2 ||M^-1 r|| / ||M^-1 B||; 11 the distance to a known solution, which this library has no way to
         give, so that it never passes)
     TOL: in, out: tolerance; one below 500 R1MACH(3) = 2.98e-5 is raised to that
     ITMAX: most iterations
     ITER: out: iterations done; ITMAX+1 without convergence
     ERR: out: what ITOL asks for, of X
     IERR: out: how the iteration ended
     IUNIT: may be null: not used
     RWORK: in, out, [LENW]: work space
     LENW: may be null: its length, not read
     IWORK: in, out, [LENIW]: work space
     LENIW: may be null: its length, not read */
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
