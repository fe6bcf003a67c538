// Products with vectors.
#pragma once

#include "sparse/pattern/column_matrix.hpp"

namespace quorin::sparse {

// y <- y + A x, column by column.
template <Scalar T>
void add_general_product(const ColumnMatrix<T>& A, const T* x, T* y) {
  for (int j = 0; j < A.columns; ++j) {
    const T x_j = x[j];
    for (int k = A.starts[j], end = A.starts[j + 1]; k < end; ++k) y[A.indices[k]] += product(A.values[k], x_j);
  }
}

// y <- y + A x where each entry off the diagonal stands for its mirror image, too.
template <Symmetry symmetry, Scalar T>
void add_mirrored_product(const ColumnMatrix<T>& A, const T* x, T* y) {
  for (int j = 0; j < A.columns; ++j) {
    const T x_j = x[j];
    T sum{};  // of row j, from the mirror images of column j
    for (int k = A.starts[j], end = A.starts[j + 1]; k < end; ++k) {
      const int i = A.indices[k];
      const T value = A.values[k];
      y[i] += product(value, x_j);
      if (i != j) sum += product(symmetry == Symmetry::kHermitian ? conjugate(value) : value, x[i]);
    }
    y[j] += sum;
  }
}

// y <- y + A x. x and y do not overlap. Time: O(columns + entries).
template <Scalar T>
void add_product(const ColumnMatrix<T>& A, Symmetry symmetry, const T* x, T* y) {
  switch (symmetry) {
    case Symmetry::kGeneral:
      return add_general_product(A, x, y);
    case Symmetry::kSymmetric:
      return add_mirrored_product<Symmetry::kSymmetric>(A, x, y);
    case Symmetry::kHermitian:
      return add_mirrored_product<Symmetry::kHermitian>(A, x, y);
  }
}

}  // namespace quorin::sparse
