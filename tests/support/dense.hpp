// Small dense systems in the widest precision, as an oracle.
#pragma once

#include "tests/support/standard.hpp"

namespace quorin::test {

using Widest = std::complex<long double>;

struct DenseMatrix {
  DenseMatrix(int m, int n) : rows(m), columns(n), a(static_cast<std::size_t>(m) * static_cast<std::size_t>(n)) {}
  Widest& operator()(int i, int j) { return a[static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * rows]; }
  const Widest& operator()(int i, int j) const { return const_cast<DenseMatrix&>(*this)(i, j); }

  int rows, columns;
  std::vector<Widest> a;
};

// A^-1 B, by Gaussian elimination with row exchanges.
inline DenseMatrix solve(DenseMatrix A, DenseMatrix B) {
  const int n = A.rows;
  for (int k = 0; k < n; ++k) {
    int p = k;
    for (int i = k; i < n; ++i) p = std::abs(A(i, k)) > std::abs(A(p, k)) ? i : p;
    for (int j = 0; j < n; ++j) std::swap(A(k, j), A(p, j));
    for (int j = 0; j < B.columns; ++j) std::swap(B(k, j), B(p, j));
    for (int i = 0; i < n; ++i) {
      if (i == k) continue;
      const Widest l = A(i, k) / A(k, k);
      for (int j = k; j < n; ++j) A(i, j) -= l * A(k, j);
      for (int j = 0; j < B.columns; ++j) B(i, j) -= l * B(k, j);
    }
  }
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < B.columns; ++j) B(k, j) /= A(k, k);
  }
  return B;
}

}  // namespace quorin::test
