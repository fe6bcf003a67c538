// Matrix times vector.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// b <- A x for A as its flags describe it: symmetric and Hermitian matrices act as the full matrix of which they store
// one triangle. x has n elements; the first n elements of b are set, and beyond them those in whose rows A has entries,
// so that b needs max(m, n). x and b do not overlap. Nothing happens for a matrix of another type. Cost: one pass over
// A.
template <Element T>
void times_vec(const CcsMatrix* A, const T* x, T* b) noexcept;
void ccs_times_vec(const CcsMatrix* A, const void* x, void* b) noexcept;

// B <- A X for `count` columns, n elements apart in both; for m <= n.
template <Element T>
void times_vec_many(const CcsMatrix* A, std::int32_t count, const T* X, T* B) noexcept;
void ccs_times_vec_many(const CcsMatrix* A, std::int32_t count, const void* X, void* B) noexcept;

}  // namespace quorin::taucs
