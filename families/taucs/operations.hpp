// Operations that make a matrix of a matrix. Results belong to the caller; no routine frees its input. Null means that
// there is no memory or that A has the wrong structure; a matrix without an element type stops the process through the
// assertion handler.
#pragma once

#include <cstdint>

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

/// A^T, rows ascending in each column. A stored triangle becomes the other one, so the flags kLower and kUpper are
/// exchanged; nothing is conjugated.
CcsMatrix* ccs_transpose(const CcsMatrix* A) noexcept;

/// P A P^T for a symmetric or Hermitian A of which the lower triangle is stored; of the result, too. Entry (i, j) goes
/// to (invperm[i], invperm[j]), mirrored (and conjugated, if Hermitian) where that is above the diagonal.
CcsMatrix* ccs_permute_symmetrically(const CcsMatrix* A, const std::int32_t* perm,
                                     const std::int32_t* invperm) noexcept;

/// Row i becomes row perm[i]. Double only.
void ccs_permute_rows_inplace(CcsMatrix* A, const std::int32_t* perm) noexcept;

/// Cuts a lower-stored matrix behind its first p columns: L is n-by-p and takes them as they are, general and flagged
/// kLower; R is (n-p)-by-(n-p), takes the other columns, renumbered from zero, and has A's flags. Both are null on
/// failure, which p < 0 and p > n are too.
void ccs_split(const CcsMatrix* A, CcsMatrix** L, CcsMatrix** R, std::int32_t p) noexcept;

/// For a symmetric or Hermitian lower-stored A = D + N + P with diagonal D, off-diagonal entries N of non-positive and
/// P of positive real part: the matrix
///     M = [ D + N   -P  ]     of twice the size, of which   M [ x] = [ A x]
///         [  -P    D + N]     no off-diagonal entry is        [-x]   [-A x].
///                             positive, and
/// K. D. Gremban, Combinatorial preconditioners for sparse, symmetric, diagonally dominant linear systems, PhD thesis,
/// Carnegie Mellon University (1996), section 7.
CcsMatrix* ccs_augment_nonpositive_offdiagonals(const CcsMatrix* A) noexcept;

}  // namespace quorin::taucs
