// Dense vectors: bare arrays of n elements whose type a flag names. A flag word without a type of matrices does nothing
// (functions return null, or NaN). Arrays may be aligned to 4 bytes only.
#pragma once

#include <cstdint>

namespace quorin::taucs {

/// An uninitialised vector from the library's allocator, or null.
void* vec_create(std::int32_t n, std::int32_t flags) noexcept;

/// r <- a x + b y. r may be x or y.
void vec_axpby(std::int32_t n, std::int32_t flags, double a, const void* x, double b, const void* y, void* r) noexcept;

/// pv[i] <- v[p[i]]
void vec_permute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept;

/// pv[p[i]] <- v[i]
void vec_ipermute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept;

/// ||v||, without overflow or underflow on the way. E. Anderson, Algorithm 978: Safe scaling in the level 1 BLAS, ACM
/// TOMS 44 (2017) 12.
double vec_norm2(std::int32_t n, std::int32_t flags, const void* v) noexcept;

}  // namespace quorin::taucs
