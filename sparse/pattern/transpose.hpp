// Transposition: count, cumulate, scatter.
#pragma once

#include <algorithm>

#include "sparse/pattern/column_matrix.hpp"

namespace quorin::sparse {

// B <- A^T, not conjugated. In each column of B rows ascend, and entries that repeat keep their order. B has room for
// A.rows columns; `next` for A.rows numbers. Time: O(rows + columns + entries).
//
// F. G. Gustavson, Two fast algorithms for sparse matrices: multiplication and permuted transposition, ACM TOMS 4
// (1978) 250-269.
template <Scalar T>
void transpose(const ColumnMatrix<T>& A, const ColumnArrays<T>& B, int* next) {
  std::fill_n(next, A.rows, 0);
  for (int k = 0; k < A.entries(); ++k) ++next[A.indices[k]];
  cumulate(A.rows, next, B.starts);
  for (int j = 0; j < A.columns; ++j) {
    for (int k = A.starts[j], end = A.starts[j + 1]; k < end; ++k) B.put(next[A.indices[k]]++, j, A.values[k]);
  }
}

}  // namespace quorin::sparse
