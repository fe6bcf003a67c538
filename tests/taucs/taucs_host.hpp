// Matrices as a host holds them, their dense form, and files that vanish with the test.
#pragma once

#include "quorin/taucs.h"
#include "tests/support/temporary_file.hpp"
#include "tests/support/test.hpp"

namespace taucs_test {

using quorin::test::TemporaryFile;

using Complex = std::complex<double>;

template <class T>
inline constexpr int kType = std::is_same_v<T, double> ? TAUCS_DOUBLE : TAUCS_DCOMPLEX;

struct FreeMatrix {
  void operator()(taucs_ccs_matrix* A) const { taucs_ccs_free(A); }
};
using Matrix = std::unique_ptr<taucs_ccs_matrix, FreeMatrix>;

template <class T>
T* values(const taucs_ccs_matrix& A) {
  return static_cast<T*>(A.values.v);
}

template <class T>
T conjugate(T value) {
  if constexpr (std::is_same_v<T, double>) {
    return value;
  } else {
    return std::conj(value);
  }
}

// m x n, with sums of duplicates.
template <class T>
struct Dense {
  Dense(int rows, int columns) : m(rows), n(columns), a(static_cast<std::size_t>(rows) * columns) {}

  // The matrix that the record stands for: both triangles of a symmetric or Hermitian one.
  explicit Dense(const taucs_ccs_matrix& A) : Dense(A.m, A.n) {
    for (int j = 0; j < n; ++j) {
      for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
        const int i = A.rowind[k];
        const T value = values<T>(A)[k];
        at(i, j) += value;
        if (i != j && (A.flags & TAUCS_SYMMETRIC)) at(j, i) += value;
        if (i != j && (A.flags & TAUCS_HERMITIAN)) at(j, i) += conjugate(value);
      }
    }
  }
  T& at(int i, int j) { return a[static_cast<std::size_t>(j) * m + i]; }
  const T& at(int i, int j) const { return a[static_cast<std::size_t>(j) * m + i]; }
  bool operator==(const Dense&) const = default;

  int m, n;
  std::vector<T> a;
};

// Small whole numbers: sums and products of them are exact in any order.
template <class T>
T whole(std::mt19937& random) {
  const auto number = [&] { return static_cast<double>(static_cast<int>(random() % 19) - 9); };
  if constexpr (std::is_same_v<T, double>) {
    return number();
  } else {
    const double real = number();
    return {real, number()};
  }
}

template <class T>
std::vector<T> whole_vector(int n, std::mt19937& random) {
  std::vector<T> x(n);
  for (T& entry : x) entry = whole<T>(random);
  return x;
}

// A random sparse matrix, rows unsorted, some columns empty, but with its last entry, so that a file of its entries
// tells its size; `structure` as in flags.
template <class T>
Matrix random_matrix(int m, int n, int structure, std::mt19937& random) {
  const bool one_triangle = structure & (TAUCS_SYMMETRIC | TAUCS_HERMITIAN);
  std::vector<std::vector<int>> columns(n);
  int nnz = 0;
  for (int j = 0; j < n; ++j) {
    for (int i = one_triangle ? j : 0; i < m; ++i) {
      const bool is_last = i == m - 1 && j == n - 1;
      if (is_last || (j % 5 != 3 && random() % 3 == 0)) columns[j].push_back(i);
    }
    std::shuffle(columns[j].begin(), columns[j].end(), random);
    nnz += static_cast<int>(columns[j].size());
  }
  Matrix A(taucs_ccs_create(m, n, nnz, kType<T> | structure | (one_triangle ? TAUCS_LOWER : 0)));
  A->colptr[0] = 0;
  for (int j = 0, k = 0; j < n; ++j) {
    for (const int i : columns[j]) {
      const T value = whole<T>(random);
      values<T>(*A)[k] = i == j && (structure & TAUCS_HERMITIAN) ? T(std::real(value)) : value;
      A->rowind[k++] = i;
    }
    A->colptr[j + 1] = k;
  }
  return A;
}

// What every reader promises, whatever it read: indices inside of the record's own arrays.
inline void expect_consistent(const taucs_ccs_matrix& A) {
  ASSERT_GE(A.n, 0);
  ASSERT_EQ(A.colptr[0], 0);
  const int size = std::max(A.m, A.n);
  for (int j = 0; j < A.n; ++j) {
    ASSERT_LE(A.colptr[j], A.colptr[j + 1]);
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      ASSERT_GE(A.rowind[k], 0);
      ASSERT_LT(A.rowind[k], size);
    }
  }
}

template <class T>
std::string bytes_of(const T* data, std::size_t count) {
  return {reinterpret_cast<const char*>(data), count * sizeof(T)};
}

}  // namespace taucs_test
