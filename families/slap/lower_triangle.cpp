#include "families/slap/lower_triangle.hpp"

#include <algorithm>

namespace quorin::slap {

LowerTriangle::LowerTriangle(const ColumnMatrix& matrix, const TriangularRows& rows, float* inverse)
    : scaled_(rows), inverse_(inverse) {
  std::fill_n(inverse, matrix.n, 0.0F);
  for_each_entry(matrix, [&](int i, int j, float a) {
    if (i == j) inverse[i] += a;
  });
  extract_lower(matrix, matrix.nelt, rows);
  for (int i = 0; i < matrix.n; ++i) {
    inverse[i] = 1 / inverse[i];
    for (int k = rows.begin(i), end = rows.end(i); k < end; ++k) rows.values[k] *= inverse[i];
  }
}

void LowerTriangle::solve(const float* r, float* z) const { solve_lower(scaled_, inverse_, r, z); }

}  // namespace quorin::slap
