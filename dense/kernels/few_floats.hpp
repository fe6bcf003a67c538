// Level 1 on a few floats, in the x87: its settings are read in a fifth of the time that SSE's take, which is half of a
// short call. Sums have 64 bits until they are rounded to a float.
#pragma once

#include <bit>
#include <cstdint>

#include "platform/floating_point.hpp"

namespace quorin::dense::kernels {

// For as many, SSE's registers are faster.
inline constexpr int kFewFloats = 16, kFewForDot = 20, kFewForNorm = 24;

// The sum of term(0), ..., term(n - 1), or its square root, in sums that do not wait for each other.
template <bool kRoot, class Term>
[[gnu::always_inline]] inline float sum_of_few(int n, const Term& term) noexcept {
  const platform::X87Settings settings;
  long double sum0 = 0, sum1 = 0, sum2 = 0, sum3 = 0;
  int i = 0;
  for (; i + 4 <= n; i += 4) {
    sum0 += term(i);
    sum1 += term(i + 1);
    sum2 += term(i + 2);
    sum3 += term(i + 3);
  }
  for (; i < n; ++i) sum0 += term(i);
  long double total = n < 4 ? sum0 : (sum0 + sum1) + (sum2 + sum3);
  if constexpr (kRoot) asm("fsqrt" : "+t"(total));  // without a call of the C library's for a NaN
  float result = static_cast<float>(total);
  asm volatile("" : "+m"(result));
  return result;
}

inline float dot_few(int n, const float* x, const float* y) noexcept {
  return sum_of_few<false>(n, [=](int i) { return static_cast<long double>(x[i]) * y[i]; });
}

inline float norm_of_few(int n, const float* x) noexcept {
  return sum_of_few<true>(n, [=](int i) { return static_cast<long double>(x[i]) * x[i]; });
}

inline float sum_of_few_magnitudes(int n, const float* x) noexcept {
  return sum_of_few<false>(
      n, [=](int i) __attribute__((always_inline)) {
        long double magnitude = x[i];
        asm("fabs" : "+t"(magnitude));  // of a float the compiler would clear the sign in SSE's registers
        return magnitude;
      });
}

// y <- y + s x
inline void axpy_few(int n, float s, const float* x, float* y) noexcept {
  const bool is_zero = std::bit_cast<std::uint32_t>(s) << 1 == 0;
  if (is_zero) return;
  const platform::X87Settings settings;
  const long double factor = s;
  for (int i = 0; i < n; ++i) y[i] = static_cast<float>(factor * x[i] + y[i]);
}

}  // namespace quorin::dense::kernels
