// LU factors of square matrices, by UMFPACK.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// P R A Q = L U with the column order perm (of equal fill: columns are postordered along the column elimination tree),
// R scaling each row by the sum of its magnitudes. A row may be the pivot when its entry is at least `threshold` (from
// 0 to 1) times the largest of its column: 1 is partial pivoting. A symmetric or Hermitian matrix stands for the full
// one; repeated entries add up. Null if A is not square, has no type or an entry outside, perm is no permutation, an
// entry is not finite, A is singular, or there is no memory.
//
// T. A. Davis, A column pre-ordering strategy for the unsymmetric-pattern multifrontal method, ACM TOMS 30 (2004)
// 165-195; Algorithm 832, ibid. 196-199.
void* ccs_factor_lu(const CcsMatrix* A, const std::int32_t* perm, double threshold) noexcept;

// X <- A^-1 B for nrhs columns, ldX and ldB (at least n) elements apart. X may be B, if ldX is ldB. kErrorBadargs for
// what is no factor, or wrong sizes; then, and for kErrorNomem, X is not touched.
std::int32_t multilu_solve_many(void* factor, std::int32_t nrhs, void* X, std::int32_t ldX, const void* B,
                                std::int32_t ldB) noexcept;

// Frees the factor. What is none, null or freed before, is left alone.
void multilu_factor_free(void* factor) noexcept;

}  // namespace quorin::taucs
