// Loops over vectors of unit stride in registers of 16 bytes.
#pragma once

#include <array>
#include <cmath>
#include <complex>
#include <cstddef>

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
  for (; i < n; ++i) y[i] += product(s, x[i]);
}

// x^T y or x^H y
template <bool kConjugate, Scalar T>
T dot(std::ptrdiff_t n, const T* x, const T* y) noexcept {
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
T dot(bool conjugate, std::ptrdiff_t n, const T* x, const T* y) noexcept {
  return conjugate ? dot<true>(n, x, y) : dot<false>(n, x, y);
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
