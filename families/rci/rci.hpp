// Iterative solvers with reverse communication and incomplete-LU preconditioners, in double precision. What hosts see,
// the parameter arrays, requests and statuses among it, is told in exports/tables/rci.table; parameters.hpp reads the
// arrays.
//
// All state lies in the host's `ipar`, `dpar`, `tmp` and `x`. Only the init routines read `n` and `nrhs`, the others
// take the size from ipar; an unnamed parameter may be null.
//
// Literature: M. R. Hestenes, E. Stiefel, Methods of conjugate gradients for solving linear systems, J. Res. NBS 49
// (1952); Y. Saad, Iterative Methods for Sparse Linear Systems, 2nd ed., SIAM 2003, sections 6.7, 9.2, 9.4, 10.3
// and 10.4.
#pragma once

namespace quorin::rci {

// Conjugate gradients. tmp(n,4): direction, A * direction, residual, preconditioned residual.
void cg_init(int n, const double*, const double*, int* request, int* ipar, double* dpar, double* tmp) noexcept;
void cg_check(int, const double*, const double*, int* request, int* ipar, const double* dpar, const double*) noexcept;
void cg(int, double* x, const double* b, int* request, int* ipar, double* dpar, double* tmp) noexcept;
void cg_get(int, const double*, const double*, const int*, const int* ipar, const double*, const double*,
            int* itercount) noexcept;

// Conjugate gradients for one right-hand side after the other. tmp(n,3+nrhs): direction, A * direction, preconditioned
// residual, then the residual of each right-hand side.
void cg_mrhs_init(int n, const double*, int nrhs, const double*, int method, int* request, int* ipar, double* dpar,
                  double* tmp) noexcept;
void cg_mrhs_check(int, const double*, int nrhs, const double*, int* request, int* ipar, const double* dpar,
                   const double*) noexcept;
void cg_mrhs(int, double* x, int nrhs, const double* b, int* request, int* ipar, double* dpar, double* tmp) noexcept;
void cg_mrhs_get(int, const double*, int nrhs, const double*, const int*, const int* ipar, const double*, const double*,
                 int* itercount) noexcept;

// Flexible GMRES; FgmresLayout tells how tmp is laid out. x changes at restarts only: between them the iterate is
// x + Z y, which fgmres_get forms.
void fgmres_init(int n, const double*, const double*, int* request, int* ipar, double* dpar, const double*) noexcept;
void fgmres_check(int, const double*, const double*, int* request, int* ipar, const double* dpar,
                  const double*) noexcept;
void fgmres(int, double* x, double* b, int* request, int* ipar, double* dpar, double* tmp) noexcept;
void fgmres_get(int, double* x, double* b, int* request, const int* ipar, const double*, double* tmp,
                int* itercount) noexcept;

// Incomplete LU factorizations of a matrix in compressed rows, one-based.
void ilu0(int n, const double* a, const int* ia, const int* ja, double* bilu0, const int* ipar, const double* dpar,
          int* ierr) noexcept;
void ilut(int n, const double* a, const int* ia, const int* ja, double* bilut, int* ibilut, int* jbilut, double tol,
          int maxfil, const int* ipar, const double* dpar, int* ierr) noexcept;

}  // namespace quorin::rci
