// Iterative solvers with reverse communication and incomplete-LU preconditioners, in double precision.
//
// A solver never sees the matrix. It returns with a request, the host does what the request asks on parts of `tmp`, and
// calls again. All state lies in the host's `ipar`, `dpar`, `tmp` and `x`, so any number of solves may run in turn or
// on several threads. `ipar` and `dpar` hold 128 entries unless said otherwise; parameters.hpp names them. Only the
// init routines read `n` (and `nrhs`); the others take the size from ipar(1).
//
// Literature: M. R. Hestenes, E. Stiefel, Methods of conjugate gradients for solving linear systems, J. Res. NBS 49
// (1952); Y. Saad, Iterative Methods for Sparse Linear Systems, 2nd ed., SIAM 2003, sections 6.7, 9.2, 9.4, 10.3
// and 10.4.
#pragma once

namespace quorin::rci {

/// Fills `ipar` (1..11) and `dpar` (1..8) with the defaults of CG and clears column 1 of tmp(n,4).
/// *request: 0, or -10000 when n <= 0 (nothing is written then).
void cg_init(int n, const double* x, const double* b, int* request, int* ipar, double* dpar, double* tmp);

/// Judges the parameters. *request: 0 consistent; -1100 size not positive; -1001 iteration limit not positive or a
/// tolerance negative; -1011 no stopping test was on, so the limit and residual tests were turned on.
void cg_check(int n, const double* x, const double* b, int* request, int* ipar, const double* dpar, const double* tmp);

/// One leg of conjugate gradients for a symmetric positive definite A; x holds the start vector and then the iterate.
/// tmp(n,4): direction, A * direction, residual, preconditioned residual (column 4 is touched only when ipar(11) is not
/// 0). *request: 1 column 2 <- A * column 1; 2 the host's test of x; 3 column 4 <- M^-1 * column 3; 0 finished; -1
/// iteration limit; -2 division by zero; -10 invalid residual norm in dpar; -11 no stopping test, size or stage
/// corrupt.
void cg(int n, double* x, const double* b, int* request, int* ipar, double* dpar, double* tmp);

/// *itercount <- iterations done. The rest is left alone.
void cg_get(int n, const double* x, const double* b, const int* request, const int* ipar, const double* dpar,
            const double* tmp, int* itercount);

/// As cg_init for x(n,nrhs), b(n,nrhs), tmp(n,3+nrhs) and ipar, dpar of 128 + 2 nrhs entries. `method` is 1.
/// *request: 0, or -10000 when n or nrhs is not positive or the method is unknown.
void cg_mrhs_init(int n, const double* x, int nrhs, const double* b, int method, int* request, int* ipar, double* dpar,
                  double* tmp);

/// As cg_check; also -1100 when nrhs is not positive.
void cg_mrhs_check(int n, const double* x, int nrhs, const double* b, int* request, int* ipar, const double* dpar,
                   const double* tmp);

/// One leg of conjugate gradients for one right-hand side after the other, ipar(3) being the one in progress.
/// tmp(n,3+nrhs): direction, A * direction, preconditioned residual, then the residual of each right-hand side.
/// *request: as cg, but 3 asks for column 3 <- M^-1 * column 3+ipar(3).
void cg_mrhs(int n, double* x, int nrhs, const double* b, int* request, int* ipar, double* dpar, double* tmp);

/// itercount(nrhs) <- iterations done for each right-hand side.
void cg_mrhs_get(int n, const double* x, int nrhs, const double* b, const int* request, const int* ipar,
                 const double* dpar, const double* tmp, int* itercount);

/// Fills `ipar` (1..23, 31) and `dpar` (1..8, 31, 32) with the defaults of FGMRES and of ILU0; tmp is left alone.
/// *request: 0, or -10000 when n <= 0 (nothing is written then).
void fgmres_init(int n, const double* x, const double* b, int* request, int* ipar, double* dpar, const double* tmp);

/// As cg_check; also -1100 when the cycle length is not positive or tmp cannot be addressed with it. Positions
/// ipar(16..21) that do not suit ipar(1) and ipar(15) are put right, with a printed warning, and count as consistent.
void fgmres_check(int n, const double* x, const double* b, int* request, int* ipar, const double* dpar,
                  const double* tmp);

/// One leg of flexible GMRES(m), m = ipar(15), for a general nonsingular A; x changes at restarts only, see fgmres_get.
/// tmp: (2m+1) n + m(m+9)/2 + 1 entries, the last m n of them untouched when ipar(11) is 0.
/// With src = tmp(ipar(22)...) and dst = tmp(ipar(23)...), *request: 1 dst <- A * src; 2 the host's test (fgmres_get
/// gives the iterate); 3 dst <- M^-1 * src; 4 the host's test whether dpar(7) is zero; 0 finished; -1 iteration limit;
/// -10 division by zero; -11 no stopping test; -12 corrupt parameters.
void fgmres(int n, double* x, double* b, int* request, int* ipar, double* dpar, double* tmp);

/// The iterate x + Z y of the cycle in progress, at any time: into x when ipar(13) is 0, into b when it is positive (x
/// and the iteration are then left alone); *itercount <- iterations done, and nothing else when ipar(13) is negative.
/// *request: 0; -12 corrupt parameters.
void fgmres_get(int n, double* x, double* b, int* request, const int* ipar, const double* dpar, double* tmp,
                int* itercount);

/// ILU(0): bilu0 holds L (unit diagonal not stored) and U on the pattern of A. A is in compressed rows, one-based,
/// columns ascending; bilu0 may be the array a itself. *ierr: 0; -101 diagonal entry absent; -102 zero pivot; -103
/// pivot below abs(dpar(31)) or not finite; -104 no memory; -105 n <= 0; -106 columns not ascending, or outside 1..n.
void ilu0(int n, const double* a, const int* ia, const int* ja, double* bilu0, const int* ipar, const double* dpar,
          int* ierr);

/// ILUT(maxfil, tol), in rows with ascending columns: at most maxfil entries beside the diagonal in each row of L and
/// of U, each greater in magnitude than tol times the Euclidean norm of the row of A; of equal ones the lower column
/// stays. bilut, jbilut: (2 maxfil + 1) n - maxfil (maxfil + 1) + 1 entries; ibilut: n + 1. *ierr: 0; -101 empty row;
/// -102 pivot too small, or not finite; -103 row starts decrease; -104 no memory; -105 maxfil < 0; -106 n <= 0; -107
/// column outside 1..n. Warnings, with a result: 101 maxfil >= n, n-1 is used; 102 tol < 0, abs(tol) is used; 103
/// abs(tol) > dpar(31); 104 dpar(31) = 0; the first that applies is returned.
void ilut(int n, const double* a, const int* ia, const int* ja, double* bilut, int* ibilut, int* jbilut, double tol,
          int maxfil, const int* ipar, const double* dpar, int* ierr);

}  // namespace quorin::rci
