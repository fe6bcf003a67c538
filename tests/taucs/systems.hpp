// Sparse systems for tests of solvers: matrices, products in higher precision, residuals.
#pragma once

#include "tests/support/sparse.hpp"
#include "tests/support/standard.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {

using quorin::test::SparseMatrix;

template <class T>
T from_complex(std::complex<double> value) {
  if constexpr (std::is_same_v<T, double>) {
    return value.real();
  } else {
    return value;
  }
}

// The entries as they are, under these flags and T's.
template <class T>
Matrix record(const SparseMatrix& A, int structure) {
  const auto columns = compressed_columns(A);
  Matrix B(taucs_ccs_create(A.rows, A.columns, static_cast<int>(columns.indices.size()), kType<T> | structure));
  std::copy(columns.starts.begin(), columns.starts.end(), B->colptr);
  std::copy(columns.indices.begin(), columns.indices.end(), B->rowind);
  for (std::size_t k = 0; k < columns.indices.size(); ++k) {
    values<T>(*B)[k] = from_complex<T>({columns.re[k], A.is_complex ? columns.im[k] : 0.0});
  }
  return B;
}

constexpr int kSymmetricLower = TAUCS_SYMMETRIC | TAUCS_LOWER, kHermitianLower = TAUCS_HERMITIAN | TAUCS_LOWER;

// One triangle of a symmetric matrix for doubles, of a Hermitian one for complex numbers.
template <class T>
inline constexpr int kLowerOf = std::is_same_v<T, double> ? kSymmetricLower : kHermitianLower;

// Lower triangle of -d/dx a_x d/dx - ... on a grid, plus `shift` times the identity.
inline SparseMatrix laplacian(int a, int b, int c, double shift, double x_weight = 1, double y_weight = 1) {
  SparseMatrix A = quorin::test::grid(a, b, c);
  std::vector<double> diagonal(static_cast<std::size_t>(A.rows), shift);
  for (auto& e : A.entries) {
    if (e.row == e.column) continue;
    const int distance = e.row - e.column;
    const double weight = distance == 1 && a > 1 ? x_weight : distance == a ? y_weight : 1;
    e.value = -weight;
    diagonal[e.row] += weight;
    diagonal[e.column] += weight;
  }
  for (auto& e : A.entries) {
    if (e.row == e.column) e.value = diagonal[e.row];
  }
  return A;
}

// A random lower triangle; the diagonal is `dominance` times the sum of the magnitudes of its row, or, from `negative`
// on, minus that. Complex numbers if it is to be a Hermitian one.
inline SparseMatrix random_triangle(int n, double density, double dominance, bool is_complex, std::mt19937& random,
                                    int negative = -1) {
  SparseMatrix A;
  A.rows = A.columns = n;
  A.is_complex = is_complex;
  std::uniform_real_distribution<double> number(-1, 1), unit(0, 1);
  std::vector<double> sums(static_cast<std::size_t>(n), 0.1);
  for (int j = 0; j < n; ++j) {
    for (int i = j + 1; i < n; ++i) {
      if (unit(random) > density) continue;
      const double re = number(random);
      const std::complex<double> value(re, is_complex ? number(random) : 0);
      A.add(i, j, value);
      sums[i] += std::abs(value);
      sums[j] += std::abs(value);
    }
  }
  for (int j = 0; j < n; ++j) A.add(j, j, (negative >= 0 && j >= negative ? -dominance : dominance) * sums[j]);
  return A;
}

template <class T>
std::vector<T> random_vector(std::size_t n, std::mt19937& random) {
  std::uniform_real_distribution<double> number(-1, 1);
  std::vector<T> x(n);
  for (T& entry : x) {
    const double re = number(random);
    entry = from_complex<T>({re, number(random)});
  }
  return x;
}

// A x for the matrix that the record stands for, summed in long double.
template <class T>
std::vector<T> apply(const taucs_ccs_matrix& A, const T* x) {
  using Wide = std::complex<long double>;
  std::vector<Wide> y(static_cast<std::size_t>(std::max(A.m, A.n)));
  for (int j = 0; j < A.n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const int i = A.rowind[k];
      const T value = values<T>(A)[k];
      y[i] += Wide(value) * Wide(x[j]);
      if (i == j) continue;
      if (A.flags & TAUCS_SYMMETRIC) {
        y[j] += Wide(value) * Wide(x[i]);
      } else if (A.flags & TAUCS_HERMITIAN) {
        y[j] += Wide(conjugate(value)) * Wide(x[i]);
      }
    }
  }
  std::vector<T> narrow(y.size());
  for (std::size_t i = 0; i < y.size(); ++i) narrow[i] = from_complex<T>(std::complex<double>(y[i]));
  return narrow;
}

template <class T>
double norm(const T* x, std::size_t n) {
  double sum = 0;
  for (std::size_t i = 0; i < n; ++i) sum += std::norm(x[i]);
  return std::sqrt(sum);
}
template <class T>
double norm(const std::vector<T>& x) {
  return norm(x.data(), x.size());
}

// The largest sum of magnitudes in a column: the norm of the full matrix if that is symmetric, up to a factor of 2.
template <class T>
double size_of(const taucs_ccs_matrix& A) {
  double most = 0;
  for (int j = 0; j < A.n; ++j) {
    double sum = 0;
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) sum += std::abs(values<T>(A)[k]);
    most = std::max(most, sum);
  }
  return most;
}

// ||b - A x|| / (||A|| ||x|| + ||b||), and ||b - A x|| / ||b||.
template <class T>
double backward_error(const taucs_ccs_matrix& A, const T* x, const T* b) {
  std::vector<T> r = apply(A, x);
  const auto n = static_cast<std::size_t>(A.n);
  for (std::size_t i = 0; i < n; ++i) r[i] -= b[i];
  const double scale = size_of<T>(A) * norm(x, n) + norm(b, n);
  return scale == 0 ? 0 : norm(r.data(), n) / scale;
}
template <class T>
double relative_residual(const taucs_ccs_matrix& A, const std::vector<T>& x, const std::vector<T>& b) {
  std::vector<T> r = apply(A, x.data());
  for (std::size_t i = 0; i < x.size(); ++i) r[i] -= b[i];
  return norm(r) / norm(b);
}

}  // namespace taucs_test
