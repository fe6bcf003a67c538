// Loops over one or a few columns in registers of four floats, for panels that are too small for the BLAS to pay.
// T is float or std::complex<float>; columns need no alignment beyond that of a float.
#pragma once

#include <array>

#include "base/column_groups.hpp"
#include "base/lanes.hpp"
#include "dense/matrix.hpp"

namespace quorin::dense {

// x^H c_k for the first kColumns columns of c.
template <int kColumns, Scalar T>
std::array<T, kColumns> project(int rows, const T* x, Matrix<T> c) {
  std::array<ProductSum<T>, kColumns> sums;
  int i = 0;
  for (; i + kElements<T> <= rows; i += kElements<T>) {
    const auto xi = load(x + i);
    for (int k = 0; k < kColumns; ++k) sums[k].add(xi, load(c.column(k) + i));
  }
  std::array<T, kColumns> totals;
  for (int k = 0; k < kColumns; ++k) totals[k] = sums[k].template value<true>();
  for (; i < rows; ++i) {
    for (int k = 0; k < kColumns; ++k) totals[k] += product(conjugate(x[i]), c(i, k));
  }
  return totals;
}

// c_k -= f_k x for the first kColumns columns of c.
template <int kColumns, Scalar T>
void subtract_multiples(int rows, const T* x, const std::array<T, kColumns>& f, Matrix<T> c) {
  std::array<Factor<T>, kColumns> factors;
  for (int k = 0; k < kColumns; ++k) factors[k] = Factor<T>(f[k]);
  int i = 0;
  for (; i + kElements<T> <= rows; i += kElements<T>) {
    const auto xi = load(x + i);
    for (int k = 0; k < kColumns; ++k) {
      T* const target = c.column(k) + i;
      store(target, load(target) - factors[k](xi));
    }
  }
  for (; i < rows; ++i) {
    for (int k = 0; k < kColumns; ++k) c(i, k) -= product(f[k], x[i]);
  }
}

// x <- f x
template <Scalar T>
void scale_column(int rows, T f, T* x) {
  const Factor<T> factor(f);
  int i = 0;
  for (; i + kElements<T> <= rows; i += kElements<T>) store(x + i, factor(load(x + i)));
  for (; i < rows; ++i) x[i] = product(f, x[i]);
}

// The square of the Euclidean norm, in plain floats: for sums far from overflow and underflow.
template <Scalar T>
float sum_of_squares(int rows, const T* x) {
  constexpr int kUnroll = 4, kStep = kUnroll * kElements<T>;
  Lanes<RealOf<T>> sums[kUnroll] = {};
  int i = 0;
  for (; i + kStep <= rows; i += kStep) {
    for (int u = 0; u < kUnroll; ++u) {
      const auto xi = load(x + i + u * kElements<T>);
      sums[u] += xi * xi;
    }
  }
  float total = sum_of_lanes<float>((sums[0] + sums[1]) + (sums[2] + sums[3]));
  for (; i < rows; ++i) {
    total += real_part(x[i]) * real_part(x[i]);
    if constexpr (kIsComplex<T>) total += x[i].imag() * x[i].imag();
  }
  return total;
}

}  // namespace quorin::dense
