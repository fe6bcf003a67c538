// Loops over vectors of unit stride in registers of 16 bytes.
#pragma once

#include <algorithm>
#include <array>
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

// x^T y or x^H y. Inlined, for 32-bit code returns a float by way of memory and the x87.
template <bool kConjugate, Scalar T>
[[gnu::always_inline]] inline T dot(std::ptrdiff_t n, const T* x, const T* y) noexcept {
  constexpr int kStep = kElements<T>, kSums = kIsComplex<T> ? 2 : 4;  // so many that additions overlap
  ProductSum<T> sum0, sum1, sum2, sum3;                               // an array would not stay in registers
  std::ptrdiff_t i = 0;
  for (; i + kSums * kStep <= n; i += kSums * kStep) {
    sum0.add(load(x + i), load(y + i));
    sum1.add(load(x + i + kStep), load(y + i + kStep));
    if constexpr (kSums == 4) {
      sum2.add(load(x + i + 2 * kStep), load(y + i + 2 * kStep));
      sum3.add(load(x + i + 3 * kStep), load(y + i + 3 * kStep));
    }
  }
  for (; i + kStep <= n; i += kStep) sum0.add(load(x + i), load(y + i));
  sum0.add(sum1);
  sum2.add(sum3);
  sum0.add(sum2);
  T total = sum0.template value<kConjugate>();
  for (; i < n; ++i) total += product(maybe_conjugate<kConjugate>(x[i]), y[i]);
  return total;
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

inline float magnitude(float x) noexcept { return std::abs(x); }
inline float magnitude(std::complex<float> x) noexcept { return std::abs(x.real()) + std::abs(x.imag()); }

// The sum of |x_i|, in sums that do not wait for each other.
inline float sum_of_magnitudes(std::ptrdiff_t n, const float* x) noexcept {
  constexpr int kStep = kElements<float>;
  const auto at = [x](std::ptrdiff_t i) {
    const auto value = load(x + i);
    return value > -value ? value : -value;
  };
  Lanes<float> sum0{}, sum1{}, sum2{}, sum3{};
  std::ptrdiff_t i = 0;
  for (; i + 4 * kStep <= n; i += 4 * kStep) {
    sum0 += at(i);
    sum1 += at(i + kStep);
    sum2 += at(i + 2 * kStep);
    sum3 += at(i + 3 * kStep);
  }
  for (; i + kStep <= n; i += kStep) sum0 += at(i);
  float total = sum_of_lanes<float>((sum0 + sum1) + (sum2 + sum3));
  for (; i < n; ++i) total += std::abs(x[i]);
  return total;
}

// The magnitudes of the elements in four lanes; those of complex numbers stand there twice.
template <Scalar T>
Lanes<RealOf<T>> magnitudes(Lanes<RealOf<T>> x) noexcept {
  const auto positive = x > -x ? x : -x;
  if constexpr (kIsComplex<T>) {
    return positive + exchanged(positive);
  } else {
    return positive;
  }
}

// The first position for which no other element's magnitude is `better`, as in the published loop: a NaN is passed
// over, but as the first element it is the answer. Blocks without a better magnitude are not looked at twice.
template <Scalar T, class Better>
std::ptrdiff_t first_extreme(std::ptrdiff_t n, const T* x, const Better& better) noexcept {
  constexpr int kStep = kElements<T>, kBlock = 64;
  float extreme = magnitude(x[0]);
  std::ptrdiff_t position = 0, i = 0;
  const auto scan = [&](std::ptrdiff_t end) {
    for (; i < end; ++i) {
      if (!better(magnitude(x[i]), extreme)) continue;
      extreme = magnitude(x[i]);
      position = i;
    }
  };
  while (i + kBlock <= n) {
    const auto known = Lanes<RealOf<T>>{} + extreme;
    Lanes<RealOf<T>> best = known;
    for (int k = 0; k < kBlock; k += kStep) {
      const auto values = magnitudes<T>(load(x + i + k));
      best = better(values, best) ? values : best;
    }
    const auto is_better = better(best, known);
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
