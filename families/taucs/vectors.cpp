#include "families/taucs/vectors.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "base/workspace.hpp"
#include "families/taucs/dispatch.hpp"

namespace quorin::taucs {
namespace {

// Squares of numbers between kSmall and kBig neither underflow nor overflow, nor do sums of 2^32 of them; the others
// are scaled by powers of two first (Anderson 2017, table 1, after J. L. Blue, ACM TOMS 4 (1978) 15-23).
constexpr double kSmall = 0x1p-511, kSmallScale = 0x1p537;
constexpr double kBig = 0x1p486, kBigScale = 0x1p-538;

double norm2(std::size_t n, const double* v) noexcept {
  double small = 0, medium = 0, big = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const double size = std::fabs(v[i]);
    if (size > kBig) {
      big += (size * kBigScale) * (size * kBigScale);
    } else if (size < kSmall) {
      small += (size * kSmallScale) * (size * kSmallScale);
    } else {
      medium += size * size;  // NaN too
    }
  }
  if (big > 0) return std::sqrt(big + (medium * kBigScale) * kBigScale) / kBigScale;
  if (small == 0 || medium > 0 || std::isnan(medium)) {
    return std::sqrt(medium + (small / kSmallScale) / kSmallScale);
  }
  return std::sqrt(small) / kSmallScale;
}

}  // namespace

void* vec_create(std::int32_t n, std::int32_t flags) noexcept {
  void* vector = nullptr;
  if (n < 0) return vector;
  dispatch(flags, [&]<class T>() {
    const auto count = std::max<std::size_t>(static_cast<std::size_t>(n), 1);
    vector = base::allocate(base::saturating_product(count, sizeof(T)));
  });
  return vector;
}

void vec_axpby(std::int32_t n, std::int32_t flags, double a, const void* x, double b, const void* y, void* r) noexcept {
  dispatch(flags, [&]<class T>() {
    const auto* const from_x = static_cast<const T*>(x);
    const auto* const from_y = static_cast<const T*>(y);
    auto* const to = static_cast<T*>(r);
    for (std::int32_t i = 0; i < n; ++i) to[i] = a * from_x[i] + b * from_y[i];
  });
}

void vec_permute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept {
  dispatch(flags, [&]<class T>() {
    const auto* const from = static_cast<const T*>(v);
    auto* const to = static_cast<T*>(pv);
#pragma GCC unroll 8
    for (std::int32_t i = 0; i < n; ++i) to[i] = from[p[i]];
  });
}

void vec_ipermute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept {
  dispatch(flags, [&]<class T>() {
    const auto* const from = static_cast<const T*>(v);
    auto* const to = static_cast<T*>(pv);
#pragma GCC unroll 8
    for (std::int32_t i = 0; i < n; ++i) to[p[i]] = from[i];
  });
}

double vec_norm2(std::int32_t n, std::int32_t flags, const void* v) noexcept {
  double norm = std::numeric_limits<double>::quiet_NaN();
  dispatch(flags, [&]<class T>() {
    // A complex vector's norm is that of its parts.
    const std::size_t count = n > 0 ? static_cast<std::size_t>(n) * kParts<T> : 0;
    norm = norm2(count, static_cast<const double*>(v));
  });
  return norm;
}

}  // namespace quorin::taucs
