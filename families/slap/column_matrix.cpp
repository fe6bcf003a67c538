#include "families/slap/column_matrix.hpp"

#include <algorithm>

#include "sparse/sparse.hpp"

namespace quorin::slap {
namespace {

// The products run k through all entries without a restart at each column: columns follow each other, and most are so
// short that their ends matter.
template <class X, class Y>
void add_full(const ColumnMatrix& matrix, Y factor, const X* x, Y* y) {
  int k = 0;
  for (int j = 0; j < matrix.n; ++j) {
    const Y xj = factor * x[j];
    for (const int end = matrix.end(j); k < end; ++k) y[matrix.row(k)] += matrix.a[k] * xj;
  }
}

template <class T>
void multiply_full_transposed(const ColumnMatrix& matrix, const T* x, T* y) {
  int k = 0;
  for (int j = 0; j < matrix.n; ++j) {
    T sum = 0;
    for (const int end = matrix.end(j); k < end; ++k) sum += matrix.a[k] * x[matrix.row(k)];
    y[j] = sum;
  }
}

// Entries above the diagonal, which should not be there, have no mirror image.
template <class X, class Y>
void add_lower(const ColumnMatrix& matrix, Y factor, const X* x, Y* y) {
  int k = 0;
  for (int j = 0; j < matrix.n; ++j) {
    const Y xj = factor * x[j];
    Y sum = 0;
    for (const int end = matrix.end(j); k < end; ++k) {
      const int i = matrix.row(k);
      const Y a = matrix.a[k];
      y[i] += a * xj;
      if (i > j) sum += a * x[i];
    }
    y[j] += factor * sum;
  }
}

}  // namespace

bool ColumnMatrix::is_sound() const { return ja[n] == nelt + 1 && sparse::check_compressed(n, n, ja, ia, {.base = 1}); }

template <class X, class Y>
void ColumnMatrix::add_product(Y factor, const X* x, Y* y) const {
  is_lower ? add_lower(*this, factor, x, y) : add_full(*this, factor, x, y);
}

template <class X, class Y>
void ColumnMatrix::multiply(const X* x, Y* y) const {
  std::fill_n(y, n, Y{0});
  add_product(Y{1}, x, y);
}

template <class T>
void ColumnMatrix::multiply_transposed(const T* x, T* y) const {
  is_lower ? multiply(x, y) : multiply_full_transposed(*this, x, y);
}

template void ColumnMatrix::multiply(const float*, float*) const;
template void ColumnMatrix::multiply(const float*, double*) const;  // b - A x in double
template void ColumnMatrix::multiply_transposed(const float*, float*) const;
template void ColumnMatrix::multiply_transposed(const double*, double*) const;
template void ColumnMatrix::add_product(double, const double*, double*) const;

}  // namespace quorin::slap
