// Loops over vectors of unit stride in registers of 16 bytes.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <complex>
#include <cstddef>
#include <utility>

#include "base/lanes.hpp"

namespace quorin::dense::kernels {

template <bool kConjugate, Scalar T>
T maybe_conjugate(T value) noexcept {
  if constexpr (kConjugate && kIsComplex<T>) {
    return std::conj(value);
  } else {
    return value;
  }
}

template <Scalar T>
T maybe_conjugate(bool conjugate, T value) noexcept {
  return conjugate ? maybe_conjugate<true>(value) : value;
}

// y <- y + s x
template <Scalar T>
void axpy(std::ptrdiff_t n, T s, const T* x, T* y) noexcept {
  constexpr int kStep = kElements<T>;
  const Factor<T> times(s);
  std::ptrdiff_t i = 0;
  for (; i + 2 * kStep <= n; i += 2 * kStep) {
    const auto first = load(y + i) + times(load(x + i));
    const auto second = load(y + i + kStep) + times(load(x + i + kStep));
    store(y + i, first);
    store(y + i + kStep, second);
  }
  if (i + kStep <= n) {
    store(y + i, load(y + i) + times(load(x + i)));
    i += kStep;
  }
  for (; i < n; ++i) y[i] += product(s, x[i]);
}

// y <- y + s x + t z
template <Scalar T>
void axpy_pair(std::ptrdiff_t n, T s, const T* x, T t, const T* z, T* y) noexcept {
  constexpr int kStep = kElements<T>;
  const Factor<T> times_s(s), times_t(t);
  std::ptrdiff_t i = 0;
  for (; i + kStep <= n; i += kStep) store(y + i, load(y + i) + times_s(load(x + i)) + times_t(load(z + i)));
  for (; i < n; ++i) y[i] = y[i] + product(s, x[i]) + product(t, z[i]);
}

template <Scalar T>
void copy(std::ptrdiff_t n, const T* x, T* y) noexcept {
  constexpr std::ptrdiff_t kStep = kElements<T>, kShort = 32 * kStep;  // beyond, the library's copy is as fast
  if (n > kShort) return static_cast<void>(std::copy_n(x, n, y));
  std::ptrdiff_t i = 0;
  for (; i + kStep <= n; i += kStep) store(y + i, load(x + i));
  for (; i < n; ++i) y[i] = x[i];
}

template <Scalar T>
void swap(std::ptrdiff_t n, T* x, T* y) noexcept {
  constexpr int kStep = kElements<T>;
  std::ptrdiff_t i = 0;
  for (; i + kStep <= n; i += kStep) {
    const auto xi = load(x + i), yi = load(y + i);
    store(x + i, yi);
    store(y + i, xi);
  }
  for (; i < n; ++i) std::swap(x[i], y[i]);
}

// The sum of the terms that terms(i) returns for lanes from i on and term(i) for one i, in sums that do not wait for
// each other. Inlined, for 32-bit code returns a float by way of memory and the x87.
template <class Real, class Terms, class Term>
[[gnu::always_inline]] inline Real sum_of_reals(std::ptrdiff_t n, const Terms& terms, const Term& term) noexcept {
  constexpr int kStep = kElements<Real>;
  Lanes<Real> sum0{}, sum1{}, sum2{}, sum3{};  // an array would not stay in registers
  std::ptrdiff_t i = 0;
  if (n >= 4 * kStep) {  // what is added to nothing need not be added
    sum0 = terms(0);
    sum1 = terms(kStep);
    sum2 = terms(2 * kStep);
    sum3 = terms(3 * kStep);
    i = 4 * kStep;
  }
  for (; i + 4 * kStep <= n; i += 4 * kStep) {
    sum0 += terms(i);
    sum1 += terms(i + kStep);
    sum2 += terms(i + 2 * kStep);
    sum3 += terms(i + 3 * kStep);
  }
  for (; i + kStep <= n; i += kStep) sum0 += terms(i);
  Real total = sum_of_lanes<Real>((sum0 + sum1) + (sum2 + sum3));
  for (; i < n; ++i) total += term(i);
  return total;
}

// x^T y or x^H y
template <bool kConjugate, Scalar T>
[[gnu::always_inline]] inline T dot(std::ptrdiff_t n, const T* x, const T* y) noexcept {
  if constexpr (!kIsComplex<T>) {
    return sum_of_reals<T>(
        n, [=](std::ptrdiff_t i) __attribute__((always_inline)) { return load(x + i) * load(y + i); },
        [=](std::ptrdiff_t i) { return x[i] * y[i]; });
  } else {
    constexpr int kStep = kElements<T>;
    ProductSum<T> sum0, sum1;
    std::ptrdiff_t i = 0;
    for (; i + 2 * kStep <= n; i += 2 * kStep) {
      sum0.add(load(x + i), load(y + i));
      sum1.add(load(x + i + kStep), load(y + i + kStep));
    }
    for (; i + kStep <= n; i += kStep) sum0.add(load(x + i), load(y + i));
    sum0.add(sum1);
    T total = sum0.template value<kConjugate>();
    for (; i < n; ++i) total += product(maybe_conjugate<kConjugate>(x[i]), y[i]);
    return total;
  }
}

template <Scalar T>
[[gnu::always_inline]] inline T dot(bool conjugate, std::ptrdiff_t n, const T* x, const T* y) noexcept {
  if (kIsComplex<T> && conjugate) return dot<true>(n, x, y);
  return dot<false>(n, x, y);
}

// x <- c x + s y and y <- c y - s x, for real c and s.
template <Scalar T>
void rot(std::ptrdiff_t n, T* x, T* y, RealOf<T> c, RealOf<T> s) noexcept {
  constexpr int kStep = kElements<T>;
  const auto all_c = Lanes<RealOf<T>>{} + c, all_s = Lanes<RealOf<T>>{} + s;
  std::ptrdiff_t i = 0;
  for (; i + kStep <= n; i += kStep) {
    const auto xi = load(x + i), yi = load(y + i);
    store(x + i, all_c * xi + all_s * yi);
    store(y + i, all_c * yi - all_s * xi);
  }
  for (; i < n; ++i) {
    const T rotated = c * x[i] + s * y[i];
    y[i] = c * y[i] - s * x[i];
    x[i] = rotated;
  }
}

// Bits of floats in four lanes.
using Bits [[gnu::vector_size(16)]] = int;
inline constexpr int kMagnitudeBits = 0x7FFFFFFF, kInfinityBits = 0x7F800000;

inline float magnitude(float x) noexcept { return std::abs(x); }
inline float magnitude(std::complex<float> x) noexcept { return std::abs(x.real()) + std::abs(x.imag()); }

// The sum of |x_i|.
inline float sum_of_magnitudes(std::ptrdiff_t n, const float* x) noexcept {
  const auto magnitudes = [x](std::ptrdiff_t i) __attribute__((always_inline)) {
    return std::bit_cast<Lanes<float>>(std::bit_cast<Bits>(load(x + i)) & kMagnitudeBits);
  };
  return sum_of_reals<float>(n, magnitudes, [x](std::ptrdiff_t i) { return std::abs(x[i]); });
}

// Magnitudes as integers, whose order is that of the numbers, or for the smallest first the other way round. A NaN
// ranks behind all numbers. Floats are not computed with, so that settings of the host's do not matter.
template <bool kLargest, Scalar T>
int rank(T x) noexcept {
  const int bits = std::bit_cast<int>(magnitude(x)) & kMagnitudeBits;
  if (!kLargest) return -bits;
  return bits > kInfinityBits ? -1 : bits;
}

// The first element's: it is the answer if it is a NaN.
template <bool kLargest, Scalar T>
int first_rank(T x) noexcept {
  const int bits = std::bit_cast<int>(magnitude(x)) & kMagnitudeBits;
  return bits > kInfinityBits ? kMagnitudeBits : rank<kLargest>(x);
}

// In four lanes; those of complex numbers stand there twice.
template <bool kLargest, Scalar T>
Bits ranks(Lanes<RealOf<T>> x) noexcept {
  Bits bits = std::bit_cast<Bits>(x) & kMagnitudeBits;
  if constexpr (kIsComplex<T>) {
    const auto positive = std::bit_cast<Lanes<RealOf<T>>>(bits);
    bits = std::bit_cast<Bits>(positive + exchanged(positive)) & kMagnitudeBits;
  }
  return kLargest ? bits | (bits > kInfinityBits) : -bits;
}

// The first position for which no other element ranks higher, as in the published loop. Blocks without a higher rank
// are not looked at twice.
template <bool kLargest, Scalar T>
std::ptrdiff_t first_extreme(std::ptrdiff_t n, const T* x) noexcept {
  constexpr int kStep = kElements<T>, kBlock = 64;
  int extreme = first_rank<kLargest>(x[0]);
  std::ptrdiff_t position = 0, i = 1;
  const auto scan = [&](std::ptrdiff_t end) {
    for (; i < end; ++i) {
      const int next = rank<kLargest>(x[i]);
      if (next <= extreme) continue;
      extreme = next;
      position = i;
    }
  };
  while (i + kBlock <= n) {
    const Bits known = Bits{} + extreme;
    Bits best = known;
    for (int k = 0; k < kBlock; k += kStep) {
      const Bits next = ranks<kLargest, T>(load(x + i + k));
      best = next > best ? next : best;
    }
    const Bits is_better = best > known;
    if ((is_better[0] | is_better[1] | is_better[2] | is_better[3]) != 0) {
      scan(i + kBlock);
    } else {
      i += kBlock;
    }
  }
  scan(n);
  return position;
}

}  // namespace quorin::dense::kernels
