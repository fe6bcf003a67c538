// Factors of symmetric and Hermitian matrices in panels: the engine of sparse/ with the published routines' names.
//
// A is given in the order in which it is to be eliminated, its lower triangle stored. L L^H wants it positive definite,
// symmetric of doubles or Hermitian; L D L^T takes complex symmetric ones, too, and L D L^H Hermitian ones.
//
// Factors are handles, freed by supernodal_factor_free; what is none is told from one. A factor that is being used may
// be shared by several threads that solve with it, but not with one that changes it.
#pragma once

#include "families/taucs/solvers/panel_factors.hpp"

namespace quorin::taucs {

// The whole of it: left-looking (..._ll), or multifrontal (..._mf). Null if the elimination tree has more than
// `maxdepth` levels (0: any number), A is not positive definite (or singular), has another structure, an entry outside
// or one that is not finite, and without memory.
void* ccs_factor_llt_ll(const CcsMatrix* A) noexcept;
void* ccs_factor_llt_ll_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept;
void* ccs_factor_llt_mf(const CcsMatrix* A) noexcept;
void* ccs_factor_llt_mf_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept;

// Pivots of order 1 and 2, sought inside a supernode: J. R. Bunch, L. Kaufman, Math. Comp. 31 (1977) 163-179. Rows that
// a weighted matching pairs become neighbours in the order. Where a pivot is zero all the same, the factorization is
// done again with pivots below 1e-8 times the norm of A replaced by that; solutions are then as inexact, and want
// refinement.
void* ccs_factor_ldlt_ll(const CcsMatrix* A) noexcept;
void* ccs_factor_ldlt_ll_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept;
void* ccs_factor_ldlt_mf(const CcsMatrix* A) noexcept;
void* ccs_factor_ldlt_mf_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept;

// The analysis alone: a factor without numbers.
void* ccs_factor_llt_symbolic(const CcsMatrix* A) noexcept;
void* ccs_factor_llt_symbolic_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept;
void* ccs_factor_ldlt_symbolic(const CcsMatrix* A) noexcept;
void* ccs_factor_ldlt_symbolic_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept;

// The numbers, multifrontal, of a matrix with the analysed pattern, or a part of it. Those that the factor had are
// replaced; after a failure it has none. kErrorBadargs for what is no factor of the kind, or another n; kErrorNomem;
// kError: not positive definite, singular, not finite, or an entry where the pattern had none.
std::int32_t ccs_factor_llt_numeric(const CcsMatrix* A, void* L) noexcept;
std::int32_t ccs_factor_ldlt_numeric(const CcsMatrix* A, void* L) noexcept;

// x <- A^-1 b for one right-hand side, or n of them, ld_X and ld_B elements apart (at least the order of A). x may be
// b. kErrorBadargs for what is no factor with numbers of this kind; kErrorNomem.
std::int32_t supernodal_solve_llt(void* L, void* x, const void* b) noexcept;
std::int32_t supernodal_solve_ldlt_many(void* L, std::int32_t n, void* X, std::int32_t ld_X, const void* B,
                                        std::int32_t ld_B) noexcept;

// Zero, positive and negative pivots (inertia[0], [1], [2]) of L D L^T or L D L^H, by Sylvester's law the numbers of
// such eigenvalues of A. kErrorBadargs for what is no such factor with numbers, or of a complex symmetric matrix, which
// has no signs.
std::int32_t inertia_calc(void* L, std::int32_t* inertia) noexcept;

// Frees the numbers, and the analysis, too. What is no factor, null or freed before, is left alone.
void supernodal_factor_free_numeric(void* L) noexcept;
void supernodal_factor_free(void* L) noexcept;

// For the driver: what of these the options ask for.
void* factor_supernodal(const CcsMatrix* A, FactorKind kind, FactorMethod method, int maxdepth) noexcept;
void* analyze_supernodal(const CcsMatrix* A, FactorKind kind, int maxdepth) noexcept;
Status factor_numeric(const CcsMatrix* A, FactorKind kind, void* L) noexcept;
// X <- A^-1 X for nrhs columns of the order n.
Status solve_supernodal(void* L, int nrhs, void* X) noexcept;
// The order of the matrix; 0 for what is no factor.
int supernodal_order(void* L) noexcept;

}  // namespace quorin::taucs
