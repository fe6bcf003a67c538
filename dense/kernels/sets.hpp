// What the translation units of the instruction sets give to the registry.
#pragma once

#include <complex>

#include "dense/kernels/kernel_set.hpp"

namespace quorin::dense::kernels {

// The kernels of one instruction set for all scalar types.
struct KernelSets {
  KernelSet<float> s;
  KernelSet<double> d;
  KernelSet<std::complex<float>> c;
  KernelSet<std::complex<double>> z;
};

// Fills the table of an instruction set that the processor has.
void make_sse2_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept;
void make_avx2_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept;
// AVX2 and FMA in registers of 16 bytes, for small operations.
void make_avx2_small_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept;
void make_avx512_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept;

}  // namespace quorin::dense::kernels
