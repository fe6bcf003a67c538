// Factors as compressed-column matrices, computed a column at a time; complete or incomplete.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// The lower triangular L with L L^H = A, for a symmetric or Hermitian positive definite A of which the lower triangle
// is stored, in the order in which A is: rows ascend, kTriangular and kLower are flagged. Freed by ccs_free.
//
// With `droptol` > 0 the factor is incomplete: an entry of L below the diagonal, at a place where A has none, is
// dropped if it is smaller than droptol times the norm of its column. An infinite droptol leaves A's pattern, IC(0).
// `modified` other than 0: what is dropped is added to the diagonal of its row and of its column instead (its real
// part), so that L L^T and A have the same row sums.
//
// `maxdepth` > 0 refuses an elimination tree with more levels. Null also for a pivot that is not positive, an entry
// that is not finite, another structure, and without memory.
//
// Left-looking: A. George, J. W. Liu, Computer Solution of Large Sparse Positive Definite Systems (1981), section 5.4;
// dropping: N. Munksgaard, ACM TOMS 6 (1980) 206-219; modified: I. Gustafsson, BIT 18 (1978) 142-156.
CcsMatrix* ccs_factor_llt(const CcsMatrix* A, double droptol, std::int32_t modified) noexcept;
CcsMatrix* ccs_factor_llt_maxdepth(const CcsMatrix* A, double droptol, std::int32_t modified,
                                   std::int32_t maxdepth) noexcept;

// L and D with L D L^H = A, D diagonal and L with a unit diagonal, in whose place D stands. No pivoting: for matrices
// of which all leading principal minors are well away from zero, quasidefinite ones for instance. Null where a pivot is
// zero, for a complex symmetric A, and as above.
CcsMatrix* ccs_factor_ldlt(const CcsMatrix* A) noexcept;
CcsMatrix* ccs_factor_ldlt_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept;

// x <- (L L^H)^-1 b, and x <- (L D L^H)^-1 b, for n elements; x may be b. kErrorBadargs for a null, or an L that is not
// lower triangular with the diagonal entry first in each column. A zero diagonal entry divides by zero.
std::int32_t ccs_solve_llt(void* L, void* x, const void* b) noexcept;
std::int32_t ccs_solve_ldlt(void* L, void* x, const void* b) noexcept;

}  // namespace quorin::taucs
