// Columns with ascending rows, as factorizations want them.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// A as it is stored, but with ascending rows in each column, and entries of the same place added up. Null if an entry
// lies outside, or without memory. Two transpositions: time O(m + n + entries).
template <Element T>
OwnedMatrix sorted_columns(const CcsMatrix& A);

// The same of the full matrix that a symmetric or Hermitian A of order n stands for.
template <Element T>
OwnedMatrix full_sorted_columns(const CcsMatrix& A);

// Whether no entry is infinite or NaN.
template <Element T>
bool is_finite(const CcsMatrix& A);

}  // namespace quorin::taucs
