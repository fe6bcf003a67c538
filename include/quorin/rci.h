/* Iterative solvers with reverse communication.
 *
 * Conjugate gradients, for one and for several right-hand sides, flexible GMRES, and incomplete-LU preconditioners, in
 * double precision. A solver never sees the matrix: it returns with a request in RCI_request, the host does what the
 * request asks on parts of tmp, and calls again. A positive request asks, 0 means finished, a negative one tells why
 * the run ended.
 *
 * All state lies in the host's ipar, dpar, tmp and x, so any number of solves may run in turn or on several threads.
 * Call the init routine, change options in ipar and dpar, call the check routine if you like, then the solver until it
 * asks no more, then the get routine. Only init reads n and nrhs; the others take the size from ipar. C++ hosts find
 * these loops written out in quorin/rci.hpp.
 *
 * Generated from exports/tables/rci.table. Do not edit. */
#ifndef QUORIN_RCI_H
#define QUORIN_RCI_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Constants. */
enum {
  QUORIN_RCI_PARAMETERS = 128, /* entries of ipar and of dpar; two more for each right-hand side where there are
      several */
  QUORIN_RCI_SCREEN = 6 /* in ipar(2): messages go to standard output, else to files */
};

/* Requests, and how a run ended. */
enum quorin_rci_request {
  QUORIN_RCI_FINISHED = 0, /* finished */
  QUORIN_RCI_MULTIPLY = 1, /* a product with A */
  QUORIN_RCI_HOST_TEST = 2, /* the host's test of x; it goes on by another call */
  QUORIN_RCI_PRECONDITION = 3, /* a solution with the preconditioner M */
  QUORIN_RCI_ZERO_NORM_TEST = 4, /* the host's test whether dpar(7) is zero, which ends the run */
  QUORIN_RCI_ITERATION_LIMIT = -1, /* the iteration limit was reached before the residual test was met */
  QUORIN_RCI_CG_ZERO_DIVISION = -2, /* division by zero: A is not, or almost not, positive definite */
  QUORIN_RCI_CG_INVALID_NORM = -10, /* the residual norm is invalid: it is not finite, or dpar was altered */
  QUORIN_RCI_GMRES_ZERO_DIVISION = -10, /* division by zero: A is degenerate or nearly so, the residual is not finite,
      dpar was altered, or the run went on from the solution */
  QUORIN_RCI_ENDLESS_LOOP = -11, /* no stopping test is on */
  QUORIN_RCI_CORRUPT_PARAMETERS = -12, /* ipar is not that of a run under way */
  QUORIN_RCI_NOT_COMPLETED = -10000 /* n <= 0; nothing was written */
};

/* What the check routines find. */
enum quorin_rci_check {
  QUORIN_RCI_CHECK_CONSISTENT = 0, /* consistent */
  QUORIN_RCI_CHECK_ERRORS = -1100, /* a size is not positive, or too large for the positions in tmp */
  QUORIN_RCI_CHECK_WARNINGS = -1001, /* the iteration limit is not positive, or a tolerance is negative or NaN */
  QUORIN_RCI_CHECK_ALTERED = -1011 /* no stopping test was on: ipar(8) and ipar(9) are on now */
};

/* How an ILU0 factorization ended. */
enum quorin_rci_ilu0_status {
  QUORIN_RCI_ILU0_DONE = 0, /* factorized */
  QUORIN_RCI_ILU0_NO_DIAGONAL = -101, /* a diagonal entry is absent */
  QUORIN_RCI_ILU0_ZERO_PIVOT = -102, /* a pivot is zero */
  QUORIN_RCI_ILU0_SMALL_PIVOT = -103, /* a pivot is below abs(dpar(31)), or not finite */
  QUORIN_RCI_ILU0_NO_MEMORY = -104, /* no memory */
  QUORIN_RCI_ILU0_BAD_SIZE = -105, /* n <= 0 */
  QUORIN_RCI_ILU0_UNSORTED_COLUMNS = -106 /* the columns of a row do not ascend, or are outside the matrix */
};

/* How an ILUT factorization ended. */
enum quorin_rci_ilut_status {
  QUORIN_RCI_ILUT_DONE = 0, /* factorized */
  QUORIN_RCI_ILUT_EMPTY_ROW = -101, /* a row has no entries */
  QUORIN_RCI_ILUT_BAD_PIVOT = -102, /* a pivot is too small for its row, or not finite */
  QUORIN_RCI_ILUT_DECREASING_ROWS = -103, /* row starts decrease */
  QUORIN_RCI_ILUT_NO_MEMORY = -104, /* no memory */
  QUORIN_RCI_ILUT_BAD_FILL = -105, /* maxfil < 0 */
  QUORIN_RCI_ILUT_BAD_SIZE = -106, /* n <= 0 */
  QUORIN_RCI_ILUT_BAD_COLUMN = -107, /* a column is outside the matrix */
  QUORIN_RCI_ILUT_FILL_REDUCED = 101, /* maxfil >= n; factorized with n-1 */
  QUORIN_RCI_ILUT_TOLERANCE_NEGATIVE = 102, /* tol < 0; factorized with abs(tol) */
  QUORIN_RCI_ILUT_TOLERANCE_LARGE = 103, /* factorized, but abs(tol) > dpar(31) */
  QUORIN_RCI_ILUT_MULTIPLIER_ZERO = 104 /* factorized, but dpar(31) = 0 */
};

/* Values of method: how the right-hand sides are solved for. */
enum {
  QUORIN_RCI_INDEPENDENT_RUNS = 1 /* one after the other */
};

/* Positions in ipar, one-based: the first is ipar[0] in C. */
enum {
  QUORIN_RCI_IPAR_SIZE = 1, /* order of A */
  QUORIN_RCI_IPAR_MESSAGES = 2, /* where messages go: 6 standard output, else files */
  QUORIN_RCI_IPAR_STAGE = 3, /* stage of the run */
  QUORIN_RCI_IPAR_RIGHT_HAND_SIDE = 3, /* the right-hand side in progress */
  QUORIN_RCI_IPAR_ITERATION = 4, /* iterations so far */
  QUORIN_RCI_IPAR_ITERATION_LIMIT = 5, /* most iterations (for each right-hand side) */
  QUORIN_RCI_IPAR_PRINT_ERRORS = 6, /* whether errors are told in words */
  QUORIN_RCI_IPAR_PRINT_WARNINGS = 7, /* whether warnings are told in words */
  QUORIN_RCI_IPAR_LIMIT_TEST = 8, /* whether the iteration limit ends the run */
  QUORIN_RCI_IPAR_RESIDUAL_TEST = 9, /* whether the residual test ends the run */
  QUORIN_RCI_IPAR_HOST_TEST = 10, /* whether the host is asked to test (request 2) */
  QUORIN_RCI_IPAR_PRECONDITIONED = 11, /* whether there is a preconditioner (request 3) */
  QUORIN_RCI_IPAR_ZERO_NORM_TEST = 12, /* whether dpar(7) is tested against dpar(8); else the host is asked (request
      4) */
  QUORIN_RCI_IPAR_PRIVATE_STAGE = 12, /* reserved */
  QUORIN_RCI_IPAR_SOLUTION_TARGET = 13, /* where DFGMRES_GET puts the iterate: 0 x, positive b, negative nowhere */
  QUORIN_RCI_IPAR_CYCLE_ITERATION = 14, /* steps since the last restart */
  QUORIN_RCI_IPAR_CYCLE_LENGTH = 15, /* steps between restarts */
  QUORIN_RCI_IPAR_HESSENBERG = 16, /* position in tmp of the triangle of the Hessenberg matrix */
  QUORIN_RCI_IPAR_COSINES = 17, /* of the rotations' cosines */
  QUORIN_RCI_IPAR_SINES = 18, /* of their sines */
  QUORIN_RCI_IPAR_ROTATED_RESIDUAL = 19, /* of the rotated residual */
  QUORIN_RCI_IPAR_SOLUTION = 20, /* of the least squares solution */
  QUORIN_RCI_IPAR_PRECONDITIONED_VECTORS = 21, /* of the preconditioned vectors */
  QUORIN_RCI_IPAR_SOURCE = 22, /* of the source of a request */
  QUORIN_RCI_IPAR_DESTINATION = 23, /* of the target of a request */
  QUORIN_RCI_IPAR_REPLACE_PIVOTS = 31 /* whether the ILU routines replace small pivots */
};

/* Positions in dpar, one-based: the first is dpar[0] in C. */
enum {
  QUORIN_RCI_DPAR_RELATIVE_TOLERANCE = 1, /* relative tolerance */
  QUORIN_RCI_DPAR_ABSOLUTE_TOLERANCE = 2, /* absolute tolerance */
  QUORIN_RCI_DPAR_INITIAL_RESIDUAL = 3, /* norm of the first residual */
  QUORIN_RCI_DPAR_TARGET_RESIDUAL = 4, /* dpar(1) dpar(3) + dpar(2): the residual test passes when dpar(5) is not above
      it */
  QUORIN_RCI_DPAR_RESIDUAL = 5, /* norm of the residual */
  QUORIN_RCI_DPAR_PREVIOUS_RESIDUAL = 6, /* norm of the residual before */
  QUORIN_RCI_DPAR_ALPHA = 7, /* length of the step, alpha */
  QUORIN_RCI_DPAR_VECTOR_NORM = 7, /* norm of the new basis vector */
  QUORIN_RCI_DPAR_BETA = 8, /* share of the old direction in the new one, beta */
  QUORIN_RCI_DPAR_ZERO_NORM_TOLERANCE = 8, /* tolerance for dpar(7), absolute: for an A of entries around 1e-13 the
      default ends the run after a step; set it to suit A, or to 0 */
  QUORIN_RCI_DPAR_PRECONDITIONED_PRODUCT = 9, /* reserved: (r, M^-1 r) with a preconditioner */
  QUORIN_RCI_DPAR_PIVOT_THRESHOLD = 31, /* least pivot */
  QUORIN_RCI_DPAR_PIVOT_MULTIPLIER = 31, /* a small pivot becomes this times the norm of its row */
  QUORIN_RCI_DPAR_REPLACEMENT_PIVOT = 32 /* what a small pivot becomes */
};

/* ---- Conjugate gradients ---- */

/* Sets the defaults and clears column 1 of tmp.
     n: order of A
     x: [n], may be null: the iterate; not read
     b: [n], may be null: the right-hand side; not read
     RCI_request: out: what the host is to do, or how the run ended
     ipar: out, [128]: integer parameters and state
     dpar: out, [128]: real parameters and state
     tmp: out, [n x 4]: vectors that requests are about, one behind the other; state */
QUORIN_API void QUORIN_CDECL DCG_INIT(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                      int32_t* ipar, double* dpar, double* tmp);
QUORIN_API void QUORIN_CDECL sDCG_INIT_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                           int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                           double* dpar, int32_t dpar_index, double* tmp, int32_t tmp_index);

/* Checks the parameters.
     n: order of A; not read, the solver takes it from ipar
     x: [n], may be null: the iterate; not read
     b: [n], may be null: the right-hand side; not read
     RCI_request: out: what the host is to do, or how the run ended
     ipar: in, out, [128]: integer parameters and state
     dpar: [128]: real parameters and state
     tmp: [n x 4], may be null: not read */
QUORIN_API void QUORIN_CDECL DCG_CHECK(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                       int32_t* ipar, const double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDCG_CHECK_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                            int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                            const double* dpar, int32_t dpar_index, const double* tmp,
                                            int32_t tmp_index);

/* One leg of conjugate gradients for a symmetric positive definite A.
     n: order of A; not read, the solver takes it from ipar
     x: in, out, [n]: start vector, then the iterate
     b: [n]: the right-hand side
     RCI_request: out: what the host is to do, or how the run ended
     ipar: in, out, [128]: integer parameters and state
     dpar: in, out, [128]: real parameters and state
     tmp: in, out, [n x 4]: columns: direction, A * direction, residual, preconditioned residual; the last one is
         touched only with a preconditioner */
QUORIN_API void QUORIN_CDECL DCG(const int32_t* n, double* x, const double* b, int32_t* RCI_request, int32_t* ipar,
                                 double* dpar, double* tmp);
QUORIN_API void QUORIN_CDECL sDCG_Idx(const int32_t* n, double* x, int32_t x_index, const double* b, int32_t b_index,
                                      int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                                      int32_t dpar_index, double* tmp, int32_t tmp_index);

/* The number of iterations.
     n: order of A; not read, the solver takes it from ipar
     x: [n], may be null: the iterate; not read
     b: [n], may be null: the right-hand side; not read
     RCI_request: may be null: not read
     ipar: [128]: integer parameters and state
     dpar: [128], may be null: not read
     tmp: [n x 4], may be null: not read
     itercount: out: iterations done */
QUORIN_API void QUORIN_CDECL DCG_GET(const int32_t* n, const double* x, const double* b, const int32_t* RCI_request,
                                     const int32_t* ipar, const double* dpar, const double* tmp, int32_t* itercount);
QUORIN_API void QUORIN_CDECL sDCG_GET_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                          int32_t b_index, const int32_t* RCI_request, const int32_t* ipar,
                                          int32_t ipar_index, const double* dpar, int32_t dpar_index, const double* tmp,
                                          int32_t tmp_index, int32_t* itercount);

/* ---- Conjugate gradients for several right-hand sides ---- */

/* Sets the defaults and clears column 1 of tmp.
     n: order of A
     x: [n x nrhs], may be null: the iterate; not read
     nrhs: number of right-hand sides
     b: [n x nrhs], may be null: the right-hand side; not read
     method: how the right-hand sides are solved for (1 one after the other)
     RCI_request: out: what the host is to do, or how the run ended
     ipar: out, [128+2*nrhs]: integer parameters and state
     dpar: out, [128+2*nrhs]: real parameters and state
     tmp: out, [n x 3+nrhs]: vectors that requests are about, one behind the other; state */
QUORIN_API void QUORIN_CDECL DCGMRHS_INIT(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                          const int32_t* method, int32_t* RCI_request, int32_t* ipar, double* dpar,
                                          double* tmp);
QUORIN_API void QUORIN_CDECL sDCGMRHS_INIT_Idx(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                               const double* b, int32_t b_index, const int32_t* method,
                                               int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                                               int32_t dpar_index, double* tmp, int32_t tmp_index);

/* Checks the parameters.
     n: order of A; not read, the solver takes it from ipar
     x: [n x nrhs], may be null: the iterate; not read
     nrhs: number of right-hand sides
     b: [n x nrhs], may be null: the right-hand side; not read
     RCI_request: out: what the host is to do, or how the run ended
     ipar: in, out, [128+2*nrhs]: integer parameters and state
     dpar: [128+2*nrhs]: real parameters and state
     tmp: [n x 3+nrhs], may be null: not read */
QUORIN_API void QUORIN_CDECL DCGMRHS_CHECK(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                           int32_t* RCI_request, int32_t* ipar, const double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDCGMRHS_CHECK_Idx(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                                const double* b, int32_t b_index, int32_t* RCI_request, int32_t* ipar,
                                                int32_t ipar_index, const double* dpar, int32_t dpar_index,
                                                const double* tmp, int32_t tmp_index);

/* One leg of conjugate gradients for one right-hand side after the other, ipar(3) being the one in progress.
     n: order of A; not read, the solver takes it from ipar
     x: in, out, [n x nrhs]: start vectors, then the iterates
     nrhs: number of right-hand sides
     b: [n x nrhs]: the right-hand sides
     RCI_request: out: what the host is to do, or how the run ended
     ipar: in, out, [128+2*nrhs]: integer parameters and state
     dpar: in, out, [128+2*nrhs]: real parameters and state
     tmp: in, out, [n x 3+nrhs]: columns: direction, A * direction, preconditioned residual, then the residual of each
         right-hand side */
QUORIN_API void QUORIN_CDECL sDCGMRHS_Idx(const int32_t* n, double* x, int32_t x_index, const int32_t* nrhs,
                                          const double* b, int32_t b_index, int32_t* RCI_request, int32_t* ipar,
                                          int32_t ipar_index, double* dpar, int32_t dpar_index, double* tmp,
                                          int32_t tmp_index);

/* The number of iterations for each right-hand side.
     n: order of A; not read, the solver takes it from ipar
     x: [n x nrhs], may be null: the iterate; not read
     nrhs: number of right-hand sides
     b: [n x nrhs], may be null: the right-hand side; not read
     RCI_request: may be null: not read
     ipar: [128+2*nrhs]: integer parameters and state
     dpar: [128+2*nrhs], may be null: not read
     tmp: [n x 3+nrhs], may be null: not read
     itercount: out, [nrhs]: iterations done */
QUORIN_API void QUORIN_CDECL DCGMRHS_GET(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                         const int32_t* RCI_request, const int32_t* ipar, const double* dpar,
                                         const double* tmp, int32_t* itercount);
QUORIN_API void QUORIN_CDECL sDCGMRHS_GET_Idx(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                              const double* b, int32_t b_index, const int32_t* RCI_request,
                                              const int32_t* ipar, int32_t ipar_index, const double* dpar,
                                              int32_t dpar_index, const double* tmp, int32_t tmp_index,
                                              int32_t* itercount);

/* ---- Flexible GMRES ---- */

/* Sets the defaults, those of ILU0 too.
     n: order of A
     x: [n], may be null: the iterate; not read
     b: [n], may be null: the right-hand side; not read
     RCI_request: out: what the host is to do, or how the run ended
     ipar: out, [128]: integer parameters and state
     dpar: out, [128]: real parameters and state
     tmp: [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1], may be null: not touched */
QUORIN_API void QUORIN_CDECL DFGMRES_INIT(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                          int32_t* ipar, double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDFGMRES_INIT_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                               int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                               double* dpar, int32_t dpar_index, const double* tmp, int32_t tmp_index);

/* Checks the parameters, and puts ipar(16) to ipar(21) right after a change of ipar(15), which it tells and counts as
   consistent.
     n: order of A; not read, the solver takes it from ipar
     x: [n], may be null: the iterate; not read
     b: [n], may be null: the right-hand side; not read
     RCI_request: out: what the host is to do, or how the run ended
     ipar: in, out, [128]: integer parameters and state
     dpar: [128]: real parameters and state
     tmp: [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1], may be null: not touched */
QUORIN_API void QUORIN_CDECL DFGMRES_CHECK(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                           int32_t* ipar, const double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDFGMRES_CHECK_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                                int32_t b_index, int32_t* RCI_request, int32_t* ipar,
                                                int32_t ipar_index, const double* dpar, int32_t dpar_index,
                                                const double* tmp, int32_t tmp_index);

/* One leg of flexible GMRES(m), m = ipar(15), for a general nonsingular A.
     n: order of A; not read, the solver takes it from ipar
     x: in, out, [n]: start vector; it changes at restarts only, see DFGMRES_GET
     b: in, out, [n]: the right-hand side
     RCI_request: out: what the host is to do, or how the run ended
     ipar: in, out, [128]: integer parameters and state
     dpar: in, out, [128]: real parameters and state
     tmp: in, out, [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1]: vectors of requests and state; without a
         preconditioner, the last m n entries are not touched */
QUORIN_API void QUORIN_CDECL DFGMRES(const int32_t* n, double* x, double* b, int32_t* RCI_request, int32_t* ipar,
                                     double* dpar, double* tmp);
QUORIN_API void QUORIN_CDECL sDFGMRES_Idx(const int32_t* n, double* x, int32_t x_index, double* b, int32_t b_index,
                                          int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                                          int32_t dpar_index, double* tmp, int32_t tmp_index);

/* The number of iterations and, at any time, the iterate: in x or b, as ipar(13) says. In b, it leaves x and the run
   alone.
     n: order of A; not read, the solver takes it from ipar
     x: in, out, [n]: as DFGMRES left it; the iterate, if ipar(13) is 0
     b: in, out, [n]: the iterate, if ipar(13) is positive
     RCI_request: out: what the host is to do, or how the run ended
     ipar: [128]: integer parameters and state
     dpar: [128], may be null: not read
     tmp: in, out, [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1]: as DFGMRES left it
     itercount: out: iterations done */
QUORIN_API void QUORIN_CDECL DFGMRES_GET(const int32_t* n, double* x, double* b, int32_t* RCI_request,
                                         const int32_t* ipar, const double* dpar, double* tmp, int32_t* itercount);
QUORIN_API void QUORIN_CDECL sDFGMRES_GET_Idx(const int32_t* n, double* x, int32_t x_index, double* b, int32_t b_index,
                                              int32_t* RCI_request, const int32_t* ipar, int32_t ipar_index,
                                              const double* dpar, int32_t dpar_index, double* tmp, int32_t tmp_index,
                                              int32_t* itercount);

/* ---- Incomplete LU preconditioners ---- */

/* ILU(0): L without its unit diagonal and U on the pattern of A.
     n: order of A
     a: [ia(n+1)-1]: entries of A, row by row
     ia: [n+1]: place in a and ja at which each row begins, one-based; ia(n+1) - 1 is the number of entries
     ja: [ia(n+1)-1]: column of each entry, one-based, ascending in each row
     bilu0: out, [ia(n+1)-1]: entries of L and U; may be the array a
     ipar: [128]: integer parameters and state
     dpar: [128]: real parameters and state
     ierr: out: how the factorization ended */
QUORIN_API void QUORIN_CDECL DCSRILU0(const int32_t* n, const double* a, const int32_t* ia, const int32_t* ja,
                                      double* bilu0, const int32_t* ipar, const double* dpar, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sDCSRILU0_Idx(const int32_t* n, const double* a, int32_t a_index, const int32_t* ia,
                                           int32_t ia_index, const int32_t* ja, int32_t ja_index, double* bilu0,
                                           int32_t bilu0_index, const int32_t* ipar, int32_t ipar_index,
                                           const double* dpar, int32_t dpar_index, int32_t* ierr);

/* ILUT(maxfil, tol): L without its unit diagonal and U, columns ascending in each row. Of the entries beside the
   diagonal the largest stay; of equal ones the lower column. The first warning that applies is returned.
     n: order of A
     a: [ia(n+1)-1]: entries of A, row by row
     ia: [n+1]: place in a and ja at which each row begins, one-based; ia(n+1) - 1 is the number of entries
     ja: [ia(n+1)-1]: column of each entry, one-based
     bilut: out, [(2*min(maxfil,n-1)+1)*n-min(maxfil,n-1)*(min(maxfil,n-1)+1)+1]: entries of L and U
     ibilut: out, [n+1]: place at which each row begins, one-based
     jbilut: out, [(2*min(maxfil,n-1)+1)*n-min(maxfil,n-1)*(min(maxfil,n-1)+1)+1]: column of each entry, one-based
     tol: an entry stays only if its magnitude is greater than tol times the Euclidean norm of the row of A
     maxfil: most entries beside the diagonal in each row of L and of U
     ipar: [128]: integer parameters and state
     dpar: [128]: real parameters and state
     ierr: out: how the factorization ended */
QUORIN_API void QUORIN_CDECL DCSRILUT(const int32_t* n, const double* a, const int32_t* ia, const int32_t* ja,
                                      double* bilut, int32_t* ibilut, int32_t* jbilut, const double* tol,
                                      const int32_t* maxfil, const int32_t* ipar, const double* dpar, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sDCSRILUT_Idx(const int32_t* n, const double* a, int32_t a_index, const int32_t* ia,
                                           int32_t ia_index, const int32_t* ja, int32_t ja_index, double* bilut,
                                           int32_t bilut_index, int32_t* ibilut, int32_t ibilut_index, int32_t* jbilut,
                                           int32_t jbilut_index, const double* tol, const int32_t* maxfil,
                                           const int32_t* ipar, int32_t ipar_index, const double* dpar,
                                           int32_t dpar_index, int32_t* ierr);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
