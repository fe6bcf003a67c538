// Matrices as UMFPACK takes them.
#pragma once

#include "tests/support/sparse.hpp"
#include "tests/support/standard.hpp"

namespace umfpack_test {

using quorin::test::SparseMatrix;
using Integers = std::vector<int>;
using Doubles = std::vector<double>;
using Floats = std::vector<float>;

template <class T>
std::size_t size_of(T n) {
  return static_cast<std::size_t>(n);
}

inline Floats rounded(const Doubles& values) { return {values.begin(), values.end()}; }
inline Doubles widened(const Floats& values) { return {values.begin(), values.end()}; }

// Complex if it has imaginary parts.
struct Matrix {
  Matrix() = default;
  Matrix(int rows, int columns, Integers starts, Integers indices, Doubles x, Doubles z = {})
      : n_row(rows),
        n_col(columns),
        Ap(std::move(starts)),
        Ai(std::move(indices)),
        Ax(std::move(x)),
        Az(std::move(z)) {}

  explicit Matrix(const SparseMatrix& A);

  bool is_complex() const { return !Az.empty(); }
  int nz() const { return Ap.back(); }
  std::size_t order() const { return size_of(n_row); }

  std::string name;
  int n_row = 0, n_col = 0;
  Integers Ap{0}, Ai;
  Doubles Ax, Az;
};

// Square matrices with a few entries a column, unsymmetric and diagonally dominant.
Matrix random_matrix(int n, bool is_complex, unsigned seed = 1);

// All matrices of UMFPACK's and CXSparse's demonstrations, among them rectangular and singular ones.
const std::vector<Matrix>& demo_matrices();

}  // namespace umfpack_test
