// Operations that make a matrix of a matrix: typed, and for the type that the flags name. Results belong to the caller;
// no routine frees its input. Null means that there is no memory, that A has the wrong structure, or that its entries
// lie outside of it. A typed routine returns null for a matrix of another type; of the others, a matrix without a type
// stops the process through the assertion handler.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// A^T, rows ascending in each column. A stored triangle becomes the other one, so the flags kLower and kUpper are
// exchanged; nothing is conjugated. A record with n and m exchanged gets as many rows as its entries need.
template <Element T>
CcsMatrix* transpose(const CcsMatrix* A) noexcept;
CcsMatrix* ccs_transpose(const CcsMatrix* A) noexcept;

// P A P^T for a symmetric or Hermitian A of which the lower triangle is stored; of the result, too. Entry (i, j) goes
// to (invperm[i], invperm[j]), mirrored (and conjugated, if Hermitian) where that is above the diagonal. Null if a
// number of invperm is none from 0 to n - 1.
template <Element T>
CcsMatrix* permute_symmetrically(const CcsMatrix* A, const std::int32_t* perm, const std::int32_t* invperm) noexcept;
CcsMatrix* ccs_permute_symmetrically(const CcsMatrix* A, const std::int32_t* perm,
                                     const std::int32_t* invperm) noexcept;

// Row i becomes row perm[i]. Nothing happens to matrices that are not of doubles, nor if a row of an entry, or what it
// would become, is none from 0 to m - 1.
void ccs_permute_rows_inplace(CcsMatrix* A, const std::int32_t* perm) noexcept;

// Cuts a lower-stored matrix behind its first p columns: L is n-by-p and takes them as they are, general and flagged
// kLower; R is (n-p)-by-(n-p), takes the other columns, renumbered from zero, and has A's flags. Both are null on
// failure, which p < 0, p > n and an entry above the diagonal are, too.
template <Element T>
void split(const CcsMatrix* A, CcsMatrix** L, CcsMatrix** R, std::int32_t p) noexcept;
void ccs_split(const CcsMatrix* A, CcsMatrix** L, CcsMatrix** R, std::int32_t p) noexcept;

// For a symmetric or Hermitian lower-stored A = D + N + P with diagonal D, off-diagonal entries N of non-positive and P
// of positive real part: the matrix
//     M = [ D + N   -P  ]     of twice the size, of which   M [ x] = [ A x]
//         [  -P    D + N]     no off-diagonal entry is        [-x]   [-A x].
//                             positive, and
// K. D. Gremban, Combinatorial preconditioners for sparse, symmetric, diagonally dominant linear systems, PhD thesis,
// Carnegie Mellon University (1996), section 7.
template <Element T>
CcsMatrix* augment(const CcsMatrix* A) noexcept;
CcsMatrix* ccs_augment_nonpositive_offdiagonals(const CcsMatrix* A) noexcept;

}  // namespace quorin::taucs
