// Fill-reducing orderings by name.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// Orders A's n columns by the method that `name` says, exactly: "metis", "genmmd", "camd", "tree" (symmetric or
// Hermitian matrices whose lower triangle is stored), "colamd" (other matrices, rectangular too), "random" (always the
// same one for the same n) or "identity" (any). perm and invperm get new arrays of n from the library's allocator,
// which the caller owns: perm[i] is the old index at the new position i, invperm[perm[i]] = i. Both are null for any
// other name ("amd", "amdbar" and "md" among them), a matrix of another structure or with an index outside of it, or
// without memory. "colamd" stops the process if there is no memory for the two.
void ccs_order(const CcsMatrix* A, std::int32_t** perm, std::int32_t** invperm, const char* name) noexcept;

}  // namespace quorin::taucs
