#include "slap/column_matrix.hpp"

#include <algorithm>

namespace quorin::slap {
namespace {

void multiply_full(const ColumnMatrix& matrix, const float* x, float* y) {
  std::fill_n(y, matrix.n, 0.0F);
  for (int j = 0; j < matrix.n; ++j) {
    const float xj = x[j];
    for (int k = matrix.begin(j), end = matrix.end(j); k < end; ++k) y[matrix.row(k)] += matrix.a[k] * xj;
  }
}

void multiply_full_transposed(const ColumnMatrix& matrix, const float* x, float* y) {
  for (int j = 0; j < matrix.n; ++j) {
    float sum = 0;
    for (int k = matrix.begin(j), end = matrix.end(j); k < end; ++k) sum += matrix.a[k] * x[matrix.row(k)];
    y[j] = sum;
  }
}

// Entries above the diagonal, which should not be there, have no mirror image.
void multiply_lower(const ColumnMatrix& matrix, const float* x, float* y) {
  std::fill_n(y, matrix.n, 0.0F);
  for (int j = 0; j < matrix.n; ++j) {
    const float xj = x[j];
    float sum = 0;
    for (int k = matrix.begin(j), end = matrix.end(j); k < end; ++k) {
      const int i = matrix.row(k);
      y[i] += matrix.a[k] * xj;
      if (i > j) sum += matrix.a[k] * x[i];
    }
    y[j] += sum;
  }
}

}  // namespace

bool ColumnMatrix::is_sound() const {
  if (ja[0] != 1 || ja[n] != nelt + 1 || !std::is_sorted(ja, ja + n + 1)) return false;
  return std::all_of(ia, ia + nelt, [this](int i) { return i >= 1 && i <= n; });
}

void ColumnMatrix::multiply(const float* x, float* y) const {
  is_lower ? multiply_lower(*this, x, y) : multiply_full(*this, x, y);
}

void ColumnMatrix::multiply_transposed(const float* x, float* y) const {
  is_lower ? multiply_lower(*this, x, y) : multiply_full_transposed(*this, x, y);
}

}  // namespace quorin::slap
