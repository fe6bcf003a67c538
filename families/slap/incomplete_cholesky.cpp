#include "families/slap/incomplete_cholesky.hpp"

#include <algorithm>
#include <cmath>

namespace quorin::slap {
namespace {

// Row i of L from the rows above it; returns the sum of l(i,j) d(j) l(i,j). With v(i,j) = l(i,j) d(j),
//
//   v(i,j) = a(i,j) - sum over m < j of l(j,m) v(i,m)    for (i,j) in the pattern.
//
// `v`, all zero between calls, spreads the row out. Repeated entries of a row, which follow each other, are added up in
// the first of them.
float factor_row(const TriangularRows& l, int i, const float* inverse, float* v) {
  const int begin = l.begin(i), end = l.end(i);
  for (int k = begin; k < end; ++k) v[l.column(k)] += l.values[k];
  for (int k = begin; k < end; ++k) {
    const int j = l.column(k);
    if (k > begin && j == l.column(k - 1)) continue;
    for (int m = l.begin(j), end_j = l.end(j); m < end_j; ++m) v[j] -= l.values[m] * v[l.column(m)];
  }
  float sum = 0;
  for (int k = begin; k < end; ++k) {
    const int j = l.column(k);
    l.values[k] = v[j] * inverse[j];
    sum += v[j] * l.values[k];
    v[j] = 0;
  }
  return sum;
}

}  // namespace

void factor_cholesky(const ColumnMatrix& matrix, int capacity, const TriangularRows& l, float* inverse,
                     float* scratch) {
  std::fill_n(inverse, matrix.n, 0.0F);
  std::fill_n(scratch, matrix.n, 0.0F);
  for_each_entry(matrix, [&](int i, int j, float a) {
    if (i == j) inverse[i] += a;
  });
  extract_lower(matrix, capacity, l);
  for (int i = 0; i < matrix.n; ++i) {
    float pivot = inverse[i] - factor_row(l, i, inverse, scratch);
    if (!(pivot > 0)) pivot = replacement_pivot(matrix, i);
    inverse[i] = 1 / pivot;
  }
}

float replacement_pivot(const ColumnMatrix& matrix, int j) {
  float sum = 0;
  for (int k = matrix.begin(j); k < matrix.end(j); ++k) sum += std::fabs(matrix.a[k]);
  return sum != 0 ? sum : 1;
}

void IncompleteCholesky::solve(const float* r, float* z) const {
  solve_lower(l_, r, z);
  scale_into(l_.n, inverse_, z, z);
  solve_lower_transposed(l_, z);
}

}  // namespace quorin::slap
