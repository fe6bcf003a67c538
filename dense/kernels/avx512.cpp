// The kernels for AVX-512 (F, DQ, BW, VL).
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
#pragma clang attribute push(__attribute__((target("avx512f,avx512dq,avx512bw,avx512vl,avx2,fma"))), \
                             apply_to = function)
#else
#pragma GCC target("avx512f,avx512dq,avx512bw,avx512vl,avx2,fma")
#endif
#include "dense/kernels/target/set.hpp"

namespace quorin::dense::kernels {

void make_avx512_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept {
  target::make_sets<target::Avx512>(caches, sets);
}

}  // namespace quorin::dense::kernels

#if defined(__clang__)
#pragma clang attribute pop
#endif
