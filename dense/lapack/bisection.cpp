// SSTEBZ as the published routines call it: with what overflowed on the way it looks for eigenvalues outside its
// arrays.
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "dense/lapack/call_guard.hpp"

extern "C" {

// The linker gives these names to the published routine, and to the one that stands in its place.
void __real_sstebz_(const char* range, const char* order, const std::int32_t* n, const float* vl, const float* vu,
                    const std::int32_t* il, const std::int32_t* iu, const float* abstol, const float* d, const float* e,
                    std::int32_t* m, std::int32_t* nsplit, float* w, std::int32_t* iblock, std::int32_t* isplit,
                    float* work, std::int32_t* iwork, std::int32_t* info, std::size_t, std::size_t);
void __wrap_sstebz_(const char* range, const char* order, const std::int32_t* n, const float* vl, const float* vu,
                    const std::int32_t* il, const std::int32_t* iu, const float* abstol, const float* d, const float* e,
                    std::int32_t* m, std::int32_t* nsplit, float* w, std::int32_t* iblock, std::int32_t* isplit,
                    float* work, std::int32_t* iwork, std::int32_t* info, std::size_t, std::size_t);

void __wrap_sstebz_(const char* range, const char* order, const std::int32_t* n, const float* vl, const float* vu,
                    const std::int32_t* il, const std::int32_t* iu, const float* abstol, const float* d, const float* e,
                    std::int32_t* m, std::int32_t* nsplit, float* w, std::int32_t* iblock, std::int32_t* isplit,
                    float* work, std::int32_t* iwork, std::int32_t* info, std::size_t range_length,
                    std::size_t order_length) {
  using quorin::dense::is_matrix_finite;
  constexpr float kMost = 1e18F;  // squares must not overflow
  const std::int64_t order_of_t = *n;
  const bool has_no_interval = quorin::dense::upper(*range) == 'V' && (std::isnan(*vl) || std::isnan(*vu));
  if (has_no_interval || !is_matrix_finite(d, order_of_t, 1, order_of_t, kMost) ||
      !is_matrix_finite(e, order_of_t - 1, 1, order_of_t - 1, kMost)) {
    quorin::dense::LapackCall::give_up();
    *m = 0;
    *nsplit = 0;
    *info = 1;
    return;
  }
  __real_sstebz_(range, order, n, vl, vu, il, iu, abstol, d, e, m, nsplit, w, iblock, isplit, work, iwork, info,
                 range_length, order_length);
}
}
