// Dense vectors: bare arrays of n elements, typed or of the type that a flag word names. Where it names none, nothing
// happens (functions return null, or NaN). Arrays may be aligned to 4 bytes only.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// An uninitialised vector from the library's allocator, or null.
template <Element T>
T* create_vector(std::int32_t n) noexcept;
void* vec_create(std::int32_t n, std::int32_t flags) noexcept;

// r <- a x + b y. r may be x or y.
template <Element T>
void axpby(std::int32_t n, double a, const T* x, double b, const T* y, T* r) noexcept;
void vec_axpby(std::int32_t n, std::int32_t flags, double a, const void* x, double b, const void* y, void* r) noexcept;

// pv[i] <- v[p[i]]
template <Element T>
void permute(std::int32_t n, const T* v, T* pv, const std::int32_t* p) noexcept;
void vec_permute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept;

// pv[p[i]] <- v[i]
template <Element T>
void permute_back(std::int32_t n, const T* v, T* pv, const std::int32_t* p) noexcept;
void vec_ipermute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept;

// ||v||, without overflow or underflow on the way.
double vec_norm2(std::int32_t n, std::int32_t flags, const void* v) noexcept;

}  // namespace quorin::taucs
