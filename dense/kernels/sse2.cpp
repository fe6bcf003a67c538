// The kernels for SSE2, which every processor has that the library runs on.
//
// The other instruction sets have a file like this one, in which a region of compiler options begins after the standard
// headers.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "dense/kernels/sets.hpp"

#include "dense/kernels/target/set.hpp"

namespace quorin::dense::kernels {

void make_sse2_sets(const platform::CacheSizes& caches, KernelSets& sets) noexcept {
  target::make_sets<target::Sse2>(caches, sets);
}

}  // namespace quorin::dense::kernels
