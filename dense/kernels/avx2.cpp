// The kernels for AVX2 with fused multiply-adds.
//
// The options of the compiler hold from here on for what target/ defines, and for nothing that other headers define:
// code that is shared with the rest of the library must run on every processor.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "dense/kernels/sets.hpp"

#if defined(__clang__)
#pragma clang attribute push(__attribute__((target("avx2,fma"))), apply_to = function)
#else
#pragma GCC target("avx2,fma,prefer-vector-width=128")
#endif
#include "dense/kernels/target/set.hpp"

namespace quorin::dense::kernels {

void make_avx2_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept {
  target::make_sets<target::Avx2>(caches, sets);
}

void make_avx2_small_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept {
  target::make_sets<target::Avx2Small>(caches, sets);
}

}  // namespace quorin::dense::kernels

#if defined(__clang__)
#pragma clang attribute pop
#endif
