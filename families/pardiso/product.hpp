// Products with the host's matrix.
#pragma once

#include <algorithm>

#include "sparse/sparse.hpp"

namespace quorin::pardiso {

// y <- op(A) x for an A by rows, of which symmetric and Hermitian ones have the upper triangle. x and y do not overlap.
// Time: O(n + entries).
template <Scalar T>
void multiply(const sparse::LinearSystem<T>& system, const T* x, T* y) {
  using enum sparse::Operation;
  const sparse::ColumnMatrix<T>& A = system.A;
  const sparse::Operation operation = system.operation;
  const bool is_mirrored = system.symmetry != sparse::Symmetry::kGeneral;
  const bool is_hermitian = system.symmetry == sparse::Symmetry::kHermitian;
  // Of symmetric matrices the transposed ones are themselves, of Hermitian ones the conjugate.
  const bool is_transposed = !is_mirrored && (operation == kTransposed || operation == kAdjoint);
  const bool is_conjugated =
      operation == kConjugated || (is_hermitian ? operation == kTransposed : operation == kAdjoint);
  const auto taken = [](T value, bool conjugates) { return conjugates ? conjugate(value) : value; };
  std::fill_n(y, A.columns, T{});
  for (int i = 0; i < A.columns; ++i) {
    T sum{};
    for (int k = A.starts[i]; k < A.starts[i + 1]; ++k) {
      const int j = A.indices[k];
      const T value = is_hermitian && i == j ? T{real_part(A.values[k])} : taken(A.values[k], is_conjugated);
      if (!is_transposed) sum += product(value, x[j]);
      if (is_transposed) y[j] += product(value, x[i]);
      if (is_mirrored && i != j) y[j] += product(taken(value, is_hermitian), x[i]);
    }
    y[i] += sum;
  }
}

}  // namespace quorin::pardiso
