// A Hermitian (real: symmetric) matrix times a vector. Reading the matrix bounds the speed, so each element of the
// stored triangle is read once and works in both halves, for a few columns at a time.
#pragma once

#include "dense/kernels/target/packing.hpp"

namespace quorin::dense::kernels::target {

// y <- y + A t and, for the sums, A^H x, with m rows and kColumns columns of a general matrix A.
template <class Isa, Scalar T, int kColumns>
void multiply_columns(int m, const T* a, std::ptrdiff_t lda, const T* t, const T* x, T* y, T* sums) noexcept {
  using Real = RealOf<T>;
  using V = Vector<Isa, Real>;
  constexpr int kParts = kIsComplex<T> ? 2 : 1, kWidth = kLanes<Isa, Real>;
  constexpr auto kLaneNumbers = std::make_integer_sequence<int, kWidth>{};
  const Real* const xr = reinterpret_cast<const Real*>(x);
  Real* const yr = reinterpret_cast<Real*>(y);
  // t a = re t (re a, im a) + im t (-im a, re a), and conj(a) x = re a re x + im a im x + i (re a im x - im a re x).
  V straight[kColumns], crossed[kColumns], even[kColumns] = {}, odd[kColumns] = {};
  for (int k = 0; k < kColumns; ++k) {
    straight[k] = all<Isa>(std::real(t[k]));
    crossed[k] = all<Isa>(std::imag(t[k]));
    if constexpr (kIsComplex<T>) {
      for (int i = 0; i < kWidth; i += 2) crossed[k][i] = -crossed[k][i];
    }
  }
  int i = 0;
  for (; i + kWidth <= kParts * m; i += kWidth) {
    const V xi = load<Isa>(xr + i);
    V yi = load<Isa>(yr + i);
#pragma GCC unroll 4
    for (int k = 0; k < kColumns; ++k) {
      const V ai = load<Isa>(reinterpret_cast<const Real*>(a + k * lda) + i);
      yi += straight[k] * ai;
      even[k] += ai * xi;
      if constexpr (kIsComplex<T>) {
        yi += crossed[k] * swapped_parts<Isa, Real>(ai, kLaneNumbers);
        odd[k] += ai * swapped_parts<Isa, Real>(xi, kLaneNumbers);
      }
    }
    store<Isa>(yr + i, yi);
  }
  for (int k = 0; k < kColumns; ++k) {
    Real re = 0, im = 0;
    for (int lane = 0; lane < kWidth; ++lane) {
      re += even[k][lane];
      im += lane % 2 == 0 ? odd[k][lane] : -odd[k][lane];
    }
    if constexpr (kIsComplex<T>) {
      sums[k] = T(re, im);
    } else {
      sums[k] = re;
    }
  }
  for (int row = i / kParts; row < m; ++row) {
    for (int k = 0; k < kColumns; ++k) {
      const T element = a[row + k * lda];
      y[row] += plain_product<Isa>(t[k], element);
      sums[k] += plain_product<Isa>(maybe_conjugated<Isa>(true, element), x[row]);
    }
  }
}

template <class Isa, Scalar T>
void add_hermitian_product(bool is_upper, int n, T alpha, const T* a, int lda, const T* x, T* y) noexcept {
  constexpr int kColumns = kIsComplex<T> ? 2 : 4;
  for (int j = 0, count = 0; j < n; j += count) {
    count = n - j < kColumns ? 1 : kColumns;
    const T* const columns = a + std::ptrdiff_t{j} * lda;
    T t[kColumns], sums[kColumns];
    for (int k = 0; k < count; ++k) t[k] = plain_product<Isa>(alpha, x[j + k]);
    // What stands beside the square on the diagonal, and the square.
    const int first = is_upper ? 0 : j + count, rows = is_upper ? j : n - j - count;
    if (count == 1) {
      multiply_columns<Isa, T, 1>(rows, columns + first, lda, t, x + first, y + first, sums);
    } else {
      multiply_columns<Isa, T, kColumns>(rows, columns + first, lda, t, x + first, y + first, sums);
    }
    for (int k = 0; k < count; ++k) {
      const T* const column = columns + std::ptrdiff_t{k} * lda + j;
      for (int p = is_upper ? 0 : k + 1; p < (is_upper ? k : count); ++p) {
        y[j + p] += plain_product<Isa>(t[k], column[p]);
        sums[k] += plain_product<Isa>(maybe_conjugated<Isa>(true, column[p]), x[j + p]);
      }
      y[j + k] += t[k] * std::real(column[k]) + plain_product<Isa>(alpha, sums[k]);
    }
  }
}

}  // namespace quorin::dense::kernels::target
