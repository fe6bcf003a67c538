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
 * ipar, one-based: 1 size; 2 where messages go, 6 screen, else files; 3 stage (or, with several right-hand sides, the
 * number of the one in progress); 4 iterations so far; 5 their limit, min(150,n); 6, 7 error and warning messages on,
 * 1; 8 test of the limit, 1; 9 test of the residual, 0; 10 host's test, 1; 11 preconditioned, 0. FGMRES: 12 automatic
 * zero-norm test, 0; 13 where get puts the solution: 0 x, positive b, negative nowhere; 14 steps since the restart; 15
 * steps between restarts, min(150,n); 16 to 21 positions of the parts of tmp; 22, 23 positions of the source and the
 * target of a request; 31 ILU: replace small pivots, 0.
 *
 * dpar: 1 relative tolerance, 1e-6; 2 absolute tolerance, 0; 3 norm of the first residual; 4 dpar(1) dpar(3) + dpar(2),
 * below which the residual test passes; 5 norm of the residual; 6 of the one before; CG keeps the squares of these
 * norms. CG: 7 alpha, 8 beta. FGMRES: 7 norm of the new basis vector, 8 tolerance for it, 1e-12; 31 ILU0: least pivot,
 * 1e-16; ILUT: small pivots become dpar(31) times the norm of the row; 32 ILU0: value of a replaced pivot, 1e-10.
 *
 * The check routines return 0, or -1100 for sizes that are not positive, -1001 for an iteration limit that is not
 * positive or a negative tolerance, -1011 when no stopping test was on: 8 and 9 are then turned on.
 *
 * Generated from exports/tables/rci.table. Do not edit. */
#ifndef QUORIN_RCI_H
#define QUORIN_RCI_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Conjugate gradients ---- */

/* Sets the defaults. RCI_request: 0, or -10000 for n <= 0.
     x: [n]
     b: [n]
     RCI_request: out
     ipar: out, [128]
     dpar: out, [128]
     tmp: out, [n x 4] */
QUORIN_API void QUORIN_CDECL DCG_INIT(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                      int32_t* ipar, double* dpar, double* tmp);
QUORIN_API void QUORIN_CDECL sDCG_INIT_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                           int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                           double* dpar, int32_t dpar_index, double* tmp, int32_t tmp_index);

/* Checks the parameters.
     x: [n]
     b: [n]
     RCI_request: out
     ipar: in, out, [128]
     dpar: [128]
     tmp: [n x 4] */
QUORIN_API void QUORIN_CDECL DCG_CHECK(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                       int32_t* ipar, const double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDCG_CHECK_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                            int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                            const double* dpar, int32_t dpar_index, const double* tmp,
                                            int32_t tmp_index);

/* One leg of conjugate gradients for a symmetric positive definite A; x holds the start vector, then the iterate.
   RCI_request: 1 column 2 of tmp <- A * column 1; 2 test x; 3 column 4 <- M^-1 * column 3; 0 finished; -1 iteration
   limit; -2 division by zero; -10 invalid residual norm; -11 no stopping test, or size or stage corrupt.
     x: in, out, [n]
     b: [n]
     RCI_request: out
     ipar: in, out, [128]
     dpar: in, out, [128]
     tmp: in, out, [n x 4] */
QUORIN_API void QUORIN_CDECL DCG(const int32_t* n, double* x, const double* b, int32_t* RCI_request, int32_t* ipar,
                                 double* dpar, double* tmp);
QUORIN_API void QUORIN_CDECL sDCG_Idx(const int32_t* n, double* x, int32_t x_index, const double* b, int32_t b_index,
                                      int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                                      int32_t dpar_index, double* tmp, int32_t tmp_index);

/* The number of iterations.
     x: [n]
     b: [n]
     ipar: [128]
     dpar: [128]
     tmp: [n x 4]
     itercount: out */
QUORIN_API void QUORIN_CDECL DCG_GET(const int32_t* n, const double* x, const double* b, const int32_t* RCI_request,
                                     const int32_t* ipar, const double* dpar, const double* tmp, int32_t* itercount);
QUORIN_API void QUORIN_CDECL sDCG_GET_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                          int32_t b_index, const int32_t* RCI_request, const int32_t* ipar,
                                          int32_t ipar_index, const double* dpar, int32_t dpar_index, const double* tmp,
                                          int32_t tmp_index, int32_t* itercount);

/* ---- Conjugate gradients for several right-hand sides ---- */

/* Sets the defaults; method is 1. RCI_request: 0, or -10000 for n <= 0, nrhs <= 0 or another method.
     x: [n x nrhs]
     b: [n x nrhs]
     RCI_request: out
     ipar: out, [128+2*nrhs]
     dpar: out, [128+2*nrhs]
     tmp: out, [n x 3+nrhs] */
QUORIN_API void QUORIN_CDECL DCGMRHS_INIT(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                          const int32_t* method, int32_t* RCI_request, int32_t* ipar, double* dpar,
                                          double* tmp);
QUORIN_API void QUORIN_CDECL sDCGMRHS_INIT_Idx(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                               const double* b, int32_t b_index, const int32_t* method,
                                               int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                                               int32_t dpar_index, double* tmp, int32_t tmp_index);

/* Checks the parameters.
     x: [n x nrhs]
     b: [n x nrhs]
     RCI_request: out
     ipar: in, out, [128+2*nrhs]
     dpar: [128+2*nrhs]
     tmp: [n x 3+nrhs] */
QUORIN_API void QUORIN_CDECL DCGMRHS_CHECK(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                           int32_t* RCI_request, int32_t* ipar, const double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDCGMRHS_CHECK_Idx(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                                const double* b, int32_t b_index, int32_t* RCI_request, int32_t* ipar,
                                                int32_t ipar_index, const double* dpar, int32_t dpar_index,
                                                const double* tmp, int32_t tmp_index);

/* One leg of conjugate gradients for one right-hand side after the other, ipar(3) being the one in progress.
   RCI_request: as DCG, but 3 asks for column 3 of tmp <- M^-1 * column 3+ipar(3). The limit ipar(5) holds for each
   right-hand side.
     x: in, out, [n x nrhs]
     b: [n x nrhs]
     RCI_request: out
     ipar: in, out, [128+2*nrhs]
     dpar: in, out, [128+2*nrhs]
     tmp: in, out, [n x 3+nrhs] */
QUORIN_API void QUORIN_CDECL sDCGMRHS_Idx(const int32_t* n, double* x, int32_t x_index, const int32_t* nrhs,
                                          const double* b, int32_t b_index, int32_t* RCI_request, int32_t* ipar,
                                          int32_t ipar_index, double* dpar, int32_t dpar_index, double* tmp,
                                          int32_t tmp_index);

/* The number of iterations for each right-hand side.
     x: [n x nrhs]
     b: [n x nrhs]
     ipar: [128+2*nrhs]
     dpar: [128+2*nrhs]
     tmp: [n x 3+nrhs]
     itercount: out, [nrhs] */
QUORIN_API void QUORIN_CDECL DCGMRHS_GET(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                         const int32_t* RCI_request, const int32_t* ipar, const double* dpar,
                                         const double* tmp, int32_t* itercount);
QUORIN_API void QUORIN_CDECL sDCGMRHS_GET_Idx(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                              const double* b, int32_t b_index, const int32_t* RCI_request,
                                              const int32_t* ipar, int32_t ipar_index, const double* dpar,
                                              int32_t dpar_index, const double* tmp, int32_t tmp_index,
                                              int32_t* itercount);

/* ---- Flexible GMRES ---- */

/* Sets the defaults, those of ILU0 too; tmp is not touched. RCI_request: 0, or -10000 for n <= 0.
     x: [n]
     b: [n]
     RCI_request: out
     ipar: out, [128]
     dpar: out, [128]
     tmp: [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1] */
QUORIN_API void QUORIN_CDECL DFGMRES_INIT(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                          int32_t* ipar, double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDFGMRES_INIT_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                               int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                               double* dpar, int32_t dpar_index, const double* tmp, int32_t tmp_index);

/* Checks the parameters, and puts ipar(16) to ipar(21) right after a change of ipar(15); tmp is not touched.
     x: [n]
     b: [n]
     RCI_request: out
     ipar: in, out, [128]
     dpar: [128]
     tmp: [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1] */
QUORIN_API void QUORIN_CDECL DFGMRES_CHECK(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                           int32_t* ipar, const double* dpar, const double* tmp);
QUORIN_API void QUORIN_CDECL sDFGMRES_CHECK_Idx(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                                int32_t b_index, int32_t* RCI_request, int32_t* ipar,
                                                int32_t ipar_index, const double* dpar, int32_t dpar_index,
                                                const double* tmp, int32_t tmp_index);

/* One leg of flexible GMRES(m), m = ipar(15), for a general nonsingular A. tmp has (2m+1) n + m(m+9)/2 + 1 entries; the
   last m n of them are not touched without a preconditioner. With src and dst at ipar(22) and ipar(23) of tmp,
   RCI_request: 1 dst <- A * src; 2 test the iterate that DFGMRES_GET gives; 3 dst <- M^-1 * src; 4 test whether dpar(7)
   is zero; 0 finished, call DFGMRES_GET for x; -1 iteration limit; -10 division by zero; -11 no stopping test; -12
   corrupt parameters.
     x: in, out, [n]
     b: in, out, [n]
     RCI_request: out
     ipar: in, out, [128]
     dpar: in, out, [128]
     tmp: in, out, [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1] */
QUORIN_API void QUORIN_CDECL DFGMRES(const int32_t* n, double* x, double* b, int32_t* RCI_request, int32_t* ipar,
                                     double* dpar, double* tmp);
QUORIN_API void QUORIN_CDECL sDFGMRES_Idx(const int32_t* n, double* x, int32_t x_index, double* b, int32_t b_index,
                                          int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                                          int32_t dpar_index, double* tmp, int32_t tmp_index);

/* The number of iterations and, at any time, the iterate: in x when ipar(13) is 0, in b when it is positive, nowhere
   when it is negative. RCI_request: 0, or -12 for corrupt parameters.
     x: in, out, [n]
     b: in, out, [n]
     RCI_request: out
     ipar: [128]
     dpar: [128]
     tmp: in, out, [(2*ipar(15)+1)*n+ipar(15)*(ipar(15)+9)/2+1]
     itercount: out */
QUORIN_API void QUORIN_CDECL DFGMRES_GET(const int32_t* n, double* x, double* b, int32_t* RCI_request,
                                         const int32_t* ipar, const double* dpar, double* tmp, int32_t* itercount);
QUORIN_API void QUORIN_CDECL sDFGMRES_GET_Idx(const int32_t* n, double* x, int32_t x_index, double* b, int32_t b_index,
                                              int32_t* RCI_request, const int32_t* ipar, int32_t ipar_index,
                                              const double* dpar, int32_t dpar_index, double* tmp, int32_t tmp_index,
                                              int32_t* itercount);

/* ---- Incomplete LU preconditioners ---- */

/* ILU(0) of a matrix in compressed rows, one-based, columns ascending: L without its unit diagonal and U on the pattern
   of A. ierr: 0; -101 diagonal entry absent; -102 zero pivot; -103 pivot too small or not finite; -104 no memory; -105
   n <= 0; -106 columns not ascending.
     a: [ia(n+1)-1]
     ia: [n+1]
     ja: [ia(n+1)-1]
     bilu0: out, [ia(n+1)-1]
     ipar: [128]
     dpar: [128]
     ierr: out */
QUORIN_API void QUORIN_CDECL DCSRILU0(const int32_t* n, const double* a, const int32_t* ia, const int32_t* ja,
                                      double* bilu0, const int32_t* ipar, const double* dpar, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sDCSRILU0_Idx(const int32_t* n, const double* a, int32_t a_index, const int32_t* ia,
                                           int32_t ia_index, const int32_t* ja, int32_t ja_index, double* bilu0,
                                           int32_t bilu0_index, const int32_t* ipar, int32_t ipar_index,
                                           const double* dpar, int32_t dpar_index, int32_t* ierr);

/* ILUT: at most maxfil entries beside the diagonal in each row of L and of U, each greater than tol times the Euclidean
   norm of the row of A. ierr: 0; -101 empty row; -102 pivot too small or not finite; -103 row starts decrease; -104 no
   memory; -105 maxfil < 0; -106 n <= 0; -107 column outside the matrix; warnings 101 maxfil >= n; 102 tol < 0; 103
   abs(tol) > dpar(31); 104 dpar(31) = 0.
     a: [ia(n+1)-1]
     ia: [n+1]
     ja: [ia(n+1)-1]
     bilut: out, [(2*maxfil+1)*n-maxfil*(maxfil+1)+1]
     ibilut: out, [n+1]
     jbilut: out, [(2*maxfil+1)*n-maxfil*(maxfil+1)+1]
     ipar: [128]
     dpar: [128]
     ierr: out */
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
