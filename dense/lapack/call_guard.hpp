// What the published LAPACK routines need around them when a host calls them.
#pragma once

#include <complex>
#include <cstdint>

#include "dense/openblas/buffers.hpp"

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
  openblas::BufferReservation buffer_;
};

// Some routines store the best size of `work` in its first element before they look at their arguments. Puts that
// element back if they then find one wrong: a refused call touches nothing.
template <class T>
class KeptWhenRefused {
 public:
  KeptWhenRefused(T* work, const std::int32_t* info) noexcept
      : work_(work), info_(info), first_(work != nullptr ? *work : T{}) {}
  ~KeptWhenRefused() {
    if (*info_ < 0 && work_ != nullptr) *work_ = first_;
  }
  KeptWhenRefused(const KeptWhenRefused&) = delete;
  KeptWhenRefused& operator=(const KeptWhenRefused&) = delete;

 private:
  T* work_;
  const std::int32_t* info_;
  T first_;
};

}  // namespace quorin::dense
