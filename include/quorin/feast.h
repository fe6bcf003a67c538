/* FEAST: all eigenvalues in an interval.
 *
 * All eigenvalues in [emin, emax], and their eigenvectors, of A x = lambda x or A x = lambda B x, for sparse A, real
 * symmetric or complex Hermitian, and positive definite B. Fill fpm with feastinit_32f, change what you like, and call
 * the routine for the kind of problem. Matrices come row by row, with one-based indices (in C, too). Of a matrix given
 * whole (uplo F) the lower triangle is read; entries of the other triangle of one given as U or L and imaginary parts
 * on the diagonal are ignored, and entries of the same place add up.
 *
 * The subspace to begin with is made by Lanczos runs with (A - sigma B)^-1 for one or several shifts sigma in the
 * interval, each with one factorization, and a Rayleigh-Ritz step gives eigenvalues. Mostly they are all there then,
 * with small residuals, and the call ends with loop = 0. Otherwise, and when the host gives the subspace, the
 * interval's eigenvectors are filtered out of it by a contour integral of (z B - A)^-1 around the interval, which takes
 * fpm(2) factorizations; that and another Rayleigh-Ritz step are repeated until the residuals are small. The trace
 * test, fpm(6) = 1, takes one such loop at least. All of it is computed in double precision; e, x and res are rounded
 * to floats at the end. Eigenvectors are orthonormal: x_i^H x_j or x_i^H B x_j is 1 for i = j and 0 otherwise.
 *
 * Before it begins, the routine counts: the signs of the pivots of A - sigma B, for sigma a little (a thousandth of the
 * half width) outside of each end, tell how many eigenvalues there are. So status 1 is certain, and no status 0 leaves
 * an eigenvalue out. It also tells with how many vectors to compute: m0 need not be larger than the number of
 * eigenvalues, and one that is much larger costs nothing. An eigenvalue that is an end, or differs from it by no more
 * than the double precision's rounding of the matrices, counts as inside. Where no count can be trusted, because A -
 * sigma B has no stable factorization at several points near an end, the lengths of the filtered vectors take its
 * place.
 *
 * Residuals are relative to the larger of the ends, abs(emin) or abs(emax), not to the matrices. Where the norm of A is
 * much larger, x and e, rounded to floats, have a larger residual than res tells. Where the interval is narrow compared
 * with its ends, a small residual says little about an eigenvalue: a pair then has to have a residual so small that the
 * eigenvalue, too, is right to float precision.
 *
 * Generated from exports/tables/feast.table. Do not edit. */
#ifndef QUORIN_FEAST_H
#define QUORIN_FEAST_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* How a call ended. */
enum quorin_feast_status {
  QUORIN_FEAST_DONE = 0, /* done: all eigenvalues in the interval */
  QUORIN_FEAST_NONE_FOUND = 1, /* there is no eigenvalue in the interval; m = 0 */
  QUORIN_FEAST_NOT_CONVERGED = 2, /* no convergence within fpm(4) loops; the results are those of the last one */
  QUORIN_FEAST_SUBSPACE_TOO_SMALL = 3, /* there are more than m0 eigenvalues in the interval; the results are
      approximations for some of them */
  QUORIN_FEAST_FILTERED_SUBSPACE = 4, /* fpm(14) = 1: x is the filtered subspace of m = m0 vectors, and nothing else was
      computed; e and res are 0 */
  QUORIN_FEAST_NO_MEMORY = -1, /* no memory */
  QUORIN_FEAST_SOLVER_FAILED = -2, /* a shifted matrix could not be factored, as when an entry is not finite */
  QUORIN_FEAST_REDUCED_FAILED = -3, /* the reduced eigenproblem failed: B is not positive definite */
  QUORIN_FEAST_B_NOT_DEFINITE = -4, /* fpm(28) = 1: B is not positive definite */
  QUORIN_FEAST_BAD_INTERVAL = 200, /* emin >= emax, or one of them is not finite */
  QUORIN_FEAST_BAD_SUBSPACE_SIZE = 201, /* m0 <= 0 or m0 > n */
  QUORIN_FEAST_BAD_ORDER = 202 /* n <= 0 */
};

/* Positions in fpm, one-based: the first is fpm[0] in C. */
enum {
  QUORIN_FEAST_FPM_PRINT = 1, /* 1: a line for each loop goes to standard output */
  QUORIN_FEAST_FPM_NODES = 2, /* nodes of the quadrature on half of the contour: 3, 4, 5, 6, 8, 10, 12, 16, 20, 24, 32,
      40 or 48. More of them are fewer loops */
  QUORIN_FEAST_FPM_DOUBLE_TOLERANCE = 3, /* not read: the tolerance of double-precision routines */
  QUORIN_FEAST_FPM_LOOP_LIMIT = 4, /* most loops after the first Rayleigh-Ritz step */
  QUORIN_FEAST_FPM_INITIAL_SUBSPACE = 5, /* 1: x holds m0 vectors to begin with. 0: what Lanczos runs find, the same
      each time */
  QUORIN_FEAST_FPM_STOPPING_TEST = 6, /* 0: the largest res must be below the tolerance. 1: epsout must */
  QUORIN_FEAST_FPM_TOLERANCE = 7, /* the tolerance is 10^-fpm(7), which is from 0 to 7 */
  QUORIN_FEAST_FPM_FILTER_ONLY = 14, /* 1: one contour integral; x becomes the filtered subspace of m0 vectors, status
      4 */
  QUORIN_FEAST_FPM_CHECK_ARRAYS = 27, /* 1: rows must ascend, and have no entries of the other triangle */
  QUORIN_FEAST_FPM_CHECK_B = 28, /* 1: a B that is not positive definite gives status -4 instead of -3 */
  QUORIN_FEAST_FPM_SOLVER_SETTINGS = 64 /* 1: fpm(65) to fpm(128) are iparm(1) to iparm(64) of the direct solver, of
      which the ordering, iparm(2), is heeded unless iparm(1) is 0 */
};

/* ---- Parameters ---- */

/* Sets all parameters to their defaults.
     fpm: out, [128]: parameters */
QUORIN_API void QUORIN_CDECL feastinit_32f(int32_t* fpm);

/* ---- A x = lambda x ---- */

/* Eigenvalues and eigenvectors of a real symmetric A.
     uplo: what is stored, of A and of B (F all; U the upper triangle; L the lower triangle)
     n: order of the matrices
     a: [nnz]: entries of A, row by row
     ia: [n+1]: place in a and ja at which each row begins, one-based; ia(n+1) - 1 is the number of entries
     ja: [nnz]: column of each entry of A, one-based
     fpm: in, out, [128]: parameters
     epsout: out: change of the sum of the eigenvalues inside in the last loop, divided by max(abs(emin), abs(emax))
     loop: out: loops done after the first Rayleigh-Ritz step; 0 if that was enough
     emin: lower end of the interval
     emax: upper end, larger than emin
     m0: in, out: the most eigenvalues that e, x and res have room for; becomes the size of the subspace at the end if
         that is smaller
     e: out, [m0]: the m eigenvalues inside, ascending; behind them may be others, which were not accepted
     x: in, out, [n x m0]: the first m columns are the eigenvectors; with fpm(5) = 1, on entry, vectors that span about
         the wanted space
     m: out: number of eigenvalues found inside
     res: out, [m0]: residual of each pair: norm1(A x - e B x) / (max(abs(emin), abs(emax)) norm1(B x)); of the pairs
         before they were rounded to floats
     info: out: how the call ended. With an error, m and loop are 0, and e, x and res are untouched */
QUORIN_API void QUORIN_CDECL sfeast_scsrev(const char* uplo, const int32_t* n, const float* a, const int32_t* ia,
                                           const int32_t* ja, int32_t* fpm, float* epsout, int32_t* loop,
                                           const float* emin, const float* emax, int32_t* m0, float* e, float* x,
                                           int32_t* m, float* res, int32_t* info);
QUORIN_API void QUORIN_CDECL sfeast_scsrev_Idx(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                               const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                               int32_t* fpm, int32_t fpm_index, float* epsout, int32_t* loop,
                                               const float* emin, const float* emax, int32_t* m0, float* e,
                                               int32_t e_index, float* x, int32_t x_index, int32_t* m, float* res,
                                               int32_t res_index, int32_t* info);

/* Eigenvalues and eigenvectors of a complex Hermitian A.
     uplo: what is stored, of A and of B (F all; U the upper triangle; L the lower triangle)
     n: order of the matrices
     a: [nnz]: entries of A, row by row
     ia: [n+1]: place in a and ja at which each row begins, one-based; ia(n+1) - 1 is the number of entries
     ja: [nnz]: column of each entry of A, one-based
     fpm: in, out, [128]: parameters
     epsout: out: change of the sum of the eigenvalues inside in the last loop, divided by max(abs(emin), abs(emax))
     loop: out: loops done after the first Rayleigh-Ritz step; 0 if that was enough
     emin: lower end of the interval
     emax: upper end, larger than emin
     m0: in, out: the most eigenvalues that e, x and res have room for; becomes the size of the subspace at the end if
         that is smaller
     e: out, [m0]: the m eigenvalues inside, ascending; behind them may be others, which were not accepted
     x: in, out, [n x m0]: the first m columns are the eigenvectors; with fpm(5) = 1, on entry, vectors that span about
         the wanted space
     m: out: number of eigenvalues found inside
     res: out, [m0]: residual of each pair: norm1(A x - e B x) / (max(abs(emin), abs(emax)) norm1(B x)); of the pairs
         before they were rounded to floats
     info: out: how the call ended. With an error, m and loop are 0, and e, x and res are untouched */
QUORIN_API void QUORIN_CDECL cfeast_hcsrev(const char* uplo, const int32_t* n, const quorin_complex* a,
                                           const int32_t* ia, const int32_t* ja, int32_t* fpm, float* epsout,
                                           int32_t* loop, const float* emin, const float* emax, int32_t* m0, float* e,
                                           quorin_complex* x, int32_t* m, float* res, int32_t* info);
QUORIN_API void QUORIN_CDECL cfeast_hcsrev_Idx(const char* uplo, const int32_t* n, const quorin_complex* a,
                                               int32_t a_index, const int32_t* ia, int32_t ia_index, const int32_t* ja,
                                               int32_t ja_index, int32_t* fpm, int32_t fpm_index, float* epsout,
                                               int32_t* loop, const float* emin, const float* emax, int32_t* m0,
                                               float* e, int32_t e_index, quorin_complex* x, int32_t x_index,
                                               int32_t* m, float* res, int32_t res_index, int32_t* info);

/* ---- A x = lambda B x ---- */

/* Eigenvalues and eigenvectors of a real symmetric A and a positive definite B.
     uplo: what is stored, of A and of B (F all; U the upper triangle; L the lower triangle)
     n: order of the matrices
     a: [nnz]: entries of A, row by row
     ia: [n+1]: place in a and ja at which each row begins, one-based; ia(n+1) - 1 is the number of entries
     ja: [nnz]: column of each entry of A, one-based
     b: [nnzb]: entries of B, row by row
     ib: [n+1]: place in b and jb at which each row begins, one-based; ib(n+1) - 1 is the number of entries
     jb: [nnzb]: column of each entry of B, one-based
     fpm: in, out, [128]: parameters
     epsout: out: change of the sum of the eigenvalues inside in the last loop, divided by max(abs(emin), abs(emax))
     loop: out: loops done after the first Rayleigh-Ritz step; 0 if that was enough
     emin: lower end of the interval
     emax: upper end, larger than emin
     m0: in, out: the most eigenvalues that e, x and res have room for; becomes the size of the subspace at the end if
         that is smaller
     e: out, [m0]: the m eigenvalues inside, ascending; behind them may be others, which were not accepted
     x: in, out, [n x m0]: the first m columns are the eigenvectors; with fpm(5) = 1, on entry, vectors that span about
         the wanted space
     m: out: number of eigenvalues found inside
     res: out, [m0]: residual of each pair: norm1(A x - e B x) / (max(abs(emin), abs(emax)) norm1(B x)); of the pairs
         before they were rounded to floats
     info: out: how the call ended. With an error, m and loop are 0, and e, x and res are untouched */
QUORIN_API void QUORIN_CDECL sfeast_scsrgv(const char* uplo, const int32_t* n, const float* a, const int32_t* ia,
                                           const int32_t* ja, const float* b, const int32_t* ib, const int32_t* jb,
                                           int32_t* fpm, float* epsout, int32_t* loop, const float* emin,
                                           const float* emax, int32_t* m0, float* e, float* x, int32_t* m, float* res,
                                           int32_t* info);
QUORIN_API void QUORIN_CDECL sfeast_scsrgv_Idx(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                               const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                               const float* b, int32_t b_index, const int32_t* ib, int32_t ib_index,
                                               const int32_t* jb, int32_t jb_index, int32_t* fpm, int32_t fpm_index,
                                               float* epsout, int32_t* loop, const float* emin, const float* emax,
                                               int32_t* m0, float* e, int32_t e_index, float* x, int32_t x_index,
                                               int32_t* m, float* res, int32_t res_index, int32_t* info);

/* Eigenvalues and eigenvectors of a complex Hermitian A and a positive definite B. The index form ignores the index of
   a: a host adds the offset to its address.
     uplo: what is stored, of A and of B (F all; U the upper triangle; L the lower triangle)
     n: order of the matrices
     a: [nnz]: entries of A, row by row
     ia: [n+1]: place in a and ja at which each row begins, one-based; ia(n+1) - 1 is the number of entries
     ja: [nnz]: column of each entry of A, one-based
     b: [nnzb]: entries of B, row by row
     ib: [n+1]: place in b and jb at which each row begins, one-based; ib(n+1) - 1 is the number of entries
     jb: [nnzb]: column of each entry of B, one-based
     fpm: in, out, [128]: parameters
     epsout: out: change of the sum of the eigenvalues inside in the last loop, divided by max(abs(emin), abs(emax))
     loop: out: loops done after the first Rayleigh-Ritz step; 0 if that was enough
     emin: lower end of the interval
     emax: upper end, larger than emin
     m0: in, out: the most eigenvalues that e, x and res have room for; becomes the size of the subspace at the end if
         that is smaller
     e: out, [m0]: the m eigenvalues inside, ascending; behind them may be others, which were not accepted
     x: in, out, [n x m0]: the first m columns are the eigenvectors; with fpm(5) = 1, on entry, vectors that span about
         the wanted space
     m: out: number of eigenvalues found inside
     res: out, [m0]: residual of each pair: norm1(A x - e B x) / (max(abs(emin), abs(emax)) norm1(B x)); of the pairs
         before they were rounded to floats
     info: out: how the call ended. With an error, m and loop are 0, and e, x and res are untouched */
QUORIN_API void QUORIN_CDECL cfeast_hcsrgv(const char* uplo, const int32_t* n, const quorin_complex* a,
                                           const int32_t* ia, const int32_t* ja, const quorin_complex* b,
                                           const int32_t* ib, const int32_t* jb, int32_t* fpm, float* epsout,
                                           int32_t* loop, const float* emin, const float* emax, int32_t* m0, float* e,
                                           quorin_complex* x, int32_t* m, float* res, int32_t* info);
QUORIN_API void QUORIN_CDECL cfeast_hcsrgv_Idx(const char* uplo, const int32_t* n, const quorin_complex* a,
                                               int32_t a_index, const int32_t* ia, int32_t ia_index, const int32_t* ja,
                                               int32_t ja_index, const quorin_complex* b, int32_t b_index,
                                               const int32_t* ib, int32_t ib_index, const int32_t* jb, int32_t jb_index,
                                               int32_t* fpm, int32_t fpm_index, float* epsout, int32_t* loop,
                                               const float* emin, const float* emax, int32_t* m0, float* e,
                                               int32_t e_index, quorin_complex* x, int32_t x_index, int32_t* m,
                                               float* res, int32_t res_index, int32_t* info);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
