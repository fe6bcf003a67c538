// The table of functions of one instruction set.
#pragma once

#include "dense/kernels/target/hermitian.hpp"
#include "dense/kernels/target/product.hpp"
#include "dense/kernels/target/triangle.hpp"

namespace quorin::dense::kernels::target {

// A panel of A takes at most three quarters of the first cache where tiles read it as wide as it is, and half of it
// where they read B beside it; the block of B takes at most half of the second.
template <class Isa, Scalar T>
Blocking blocking_for(const platform::CacheSizes& caches) noexcept {
  constexpr std::size_t kParts = kIsComplex<T> ? 2 : 1;
  constexpr std::size_t kTermBytes = kParts * Isa::kTileVectors * Isa::kBytes;
  const std::size_t panel = Isa::kTileColumns == 1 ? caches.level1 * 7 / 8 : caches.level1 / 2;
  const std::size_t depth = std::clamp<std::size_t>(panel / kTermBytes / 8 * 8, 32, 384 / kParts);
  const std::size_t room = std::min(caches.level2 / 2, kBufferBytes - depth * kTermBytes);
  const std::size_t columns = std::clamp<std::size_t>(room / (depth * sizeof(T)) / 84 * 84, 84, 2016);
  return {static_cast<int>(depth), static_cast<int>(columns)};
}

template <class Isa, Scalar T>
KernelSet<T> make_set(const platform::CacheSizes& caches) noexcept {
  return {Isa::kSet,
          Isa::kBytes > 16,
          blocking_for<Isa, T>(caches),
          Tiles<Isa, T>::kMostRows,
          Isa::kTileColumns,
          multiply<Isa, T>,
          run_triangle<Isa, T, false>,
          run_triangle<Isa, T, true>,
          add_hermitian_product<Isa, T>};
}

template <class Isa>
void make_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept {
  sets = {make_set<Isa, float>(caches), make_set<Isa, double>(caches), make_set<Isa, std::complex<float>>(caches),
          make_set<Isa, std::complex<double>>(caches)};
}

}  // namespace quorin::dense::kernels::target
