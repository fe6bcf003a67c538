// Permutations of vectors and of symmetric matrices. A permutation p lists old positions: position k gets what stood at
// p[k]. Its inverse tells where what stood at i goes: inverse[p[k]] = k.
#pragma once

#include <algorithm>

#include "sparse/pattern/column_matrix.hpp"

namespace quorin::sparse {

// y = P x: y[k] <- x[p[k]]
template <Scalar T>
void permute(int n, const int* p, const T* x, T* y) {
#pragma GCC unroll 8
  for (int k = 0; k < n; ++k) y[k] = x[p[k]];
}

// y = P^T x: y[p[k]] <- x[k]
template <Scalar T>
void permute_back(int n, const int* p, const T* x, T* y) {
#pragma GCC unroll 8
  for (int k = 0; k < n; ++k) y[p[k]] = x[k];
}

// C <- P A P^T for a square A of which one triangle is stored, the lower one in C: entry (i, j) goes to (inverse[i],
// inverse[j]), or to its mirror image where that is above the diagonal. `next`: n. Time: O(n + entries).
template <Scalar T>
void permute_symmetrically(const ColumnMatrix<T>& A, Symmetry symmetry, const int* inverse, const ColumnArrays<T>& C,
                           int* next) {
  std::fill_n(next, A.columns, 0);
  for (int j = 0; j < A.columns; ++j) {
    for (int k = A.starts[j], end = A.starts[j + 1]; k < end; ++k) ++next[std::min(inverse[A.indices[k]], inverse[j])];
  }
  cumulate(A.columns, next, C.starts);
  for (int j = 0; j < A.columns; ++j) {
    for (int k = A.starts[j], end = A.starts[j + 1]; k < end; ++k) {
      const int row = inverse[A.indices[k]], column = inverse[j];
      const bool is_conjugated = row < column && symmetry == Symmetry::kHermitian;
      const T value = is_conjugated ? conjugate(A.values[k]) : A.values[k];
      C.put(next[std::min(row, column)]++, std::max(row, column), value);
    }
  }
}

}  // namespace quorin::sparse
