// Loops over columns, for blocks so small that a call of the dense kernels would take longer than the work.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "base/column_groups.hpp"
#include "base/lanes.hpp"

namespace quorin::sparse {

// Updates of so few terms, or with so few multiplications, are made by loops.
inline constexpr int kFewTerms = 8;
inline constexpr double kFewProducts = 2000;

template <Scalar T>
T conjugate_if(bool is_conjugated, T x) {
  return is_conjugated ? conjugate(x) : x;
}

// |re| + |im|
template <Scalar T>
RealOf<T> magnitude(T x) {
  return std::fabs(real_part(x)) + std::fabs(imaginary_part(x));
}

// The largest magnitude among n elements, without those that are NaN; zero if there are no others.
template <Scalar T>
RealOf<T> largest_magnitude(int n, const T* x) {
  using Vector = Lanes<RealOf<T>>;
  const auto larger = [](Vector a, Vector b) { return b > a ? b : a; };
  const auto magnitudes = [&](const T* from) {
    const Vector values = load(from), parts = larger(values, -values);
    if constexpr (kIsComplex<T>) {
      return parts + exchanged(parts);
    } else {
      return parts;
    }
  };
  Vector even{}, odd{};
  int i = 0;
  for (; i + 2 * kElements<T> <= n; i += 2 * kElements<T>) {
    even = larger(even, magnitudes(x + i));
    odd = larger(odd, magnitudes(x + i + kElements<T>));
  }
  const Vector both = larger(even, odd);
  RealOf<T> largest = both[0];
  for (std::size_t k = 1; k < sizeof(Vector) / sizeof(largest); ++k) largest = std::max(largest, both[k]);
  for (; i < n; ++i) largest = std::max(largest, magnitude(x[i]));
  return largest;
}

// y <- y - X f, X being n x count with leading dimension ldx.
template <Scalar T>
void subtract_multiples(int n, int count, const T* f, const T* x, std::ptrdiff_t ldx, T* y) {
  for_column_groups<T>(count, [&](auto group, int k) {
    constexpr int kCount = group;
    std::array<quorin::Factor<T>, kCount> factors;
    const T* const columns = x + k * ldx;
    for (int j = 0; j < kCount; ++j) factors[j] = quorin::Factor<T>(-f[k + j]);
    int i = 0;
    for (; i + kElements<T> <= n; i += kElements<T>) {
      auto sum = load(y + i);
      for (int j = 0; j < kCount; ++j) sum += factors[j](load(columns + j * ldx + i));
      store(y + i, sum);
    }
    for (; i < n; ++i) {
      T sum = y[i];
      for (int j = 0; j < kCount; ++j) sum -= product(f[k + j], columns[j * ldx + i]);
      y[i] = sum;
    }
  });
}

// y[place[i]] <- y[place[i]] - (X f)_i
template <Scalar T>
void scatter_multiples(int n, int count, const T* f, const T* x, std::ptrdiff_t ldx, const int* place, T* y) {
  for_column_groups<T>(count, [&](auto group, int k) {
    constexpr int kCount = group;
    const T* const columns = x + k * ldx;
    std::array<T, kCount> factors;
    for (int j = 0; j < kCount; ++j) factors[j] = f[k + j];
    for (int i = 0; i < n; ++i) {
      T sum = y[place[i]];
      for (int j = 0; j < kCount; ++j) sum -= product(factors[j], columns[j * ldx + i]);
      y[place[i]] = sum;
    }
  });
}

// y <- y - X^T x for the columns of an n x count matrix X.
template <Scalar T>
void subtract_products(int n, int count, const T* X, std::ptrdiff_t ldx, const T* x, T* y) {
  for_column_groups<T>(count, [&](auto group, int k) {
    constexpr int kCount = group;
    const T* const columns = X + k * ldx;
    std::array<ProductSum<T>, kCount> sums;
    int i = 0;
    for (; i + kElements<T> <= n; i += kElements<T>) {
      const auto xi = load(x + i);
      for (int j = 0; j < kCount; ++j) sums[j].add(xi, load(columns + j * ldx + i));
    }
    std::array<T, kCount> totals;
    for (int j = 0; j < kCount; ++j) totals[j] = sums[j].template value<false>();
    for (; i < n; ++i) {
      for (int j = 0; j < kCount; ++j) totals[j] += product(columns[j * ldx + i], x[i]);
    }
    for (int j = 0; j < kCount; ++j) y[k + j] -= totals[j];
  });
}

// x <- f x
template <Scalar T>
void scale_column(int n, T f, T* x) {
  const quorin::Factor<T> factor(f);
  int i = 0;
  for (; i + kElements<T> <= n; i += kElements<T>) store(x + i, factor(load(x + i)));
  for (; i < n; ++i) x[i] = product(f, x[i]);
}

}  // namespace quorin::sparse
