// What the LAPACK routines of the dependency need around them when a host calls them.
#pragma once

#include <complex>
#include <cstdint>

#include "dense/backend/buffers.hpp"

namespace quorin::dense {

// Host functions that select eigenvalues: non-zero for one that is to lead.
using SelectReal = std::int32_t (*)(const float* re, const float* im);
using SelectComplex = std::int32_t (*)(const std::complex<float>* w);
using SelectRealPair = std::int32_t (*)(const float* alpha_re, const float* alpha_im, const float* beta);
using SelectComplexPair = std::int32_t (*)(const std::complex<float>* alpha, const std::complex<float>* beta);

inline constexpr std::int32_t kInfoNoMemory = -1000;

// Holds a packing buffer for the BLAS operations inside a LAPACK routine, so that none of them can run out of memory
// half way. Without memory it reports that and sets info; the routine must not begin then.
class LapackCall {
 public:
  LapackCall(const char* routine, std::int32_t* info) noexcept;
  bool may_begin() const noexcept { return buffer_.granted() > 0; }

 private:
  backend::BufferReservation buffer_;
};

}  // namespace quorin::dense
