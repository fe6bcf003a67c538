#include "families/slap/diagonal.hpp"

#include <algorithm>
#include <cmath>

#include "families/slap/vector_updates.hpp"

namespace quorin::slap {

void invert_diagonal(const ColumnMatrix& matrix, float* inverse) {
  for (int j = 0; j < matrix.n; ++j) {
    const int first = matrix.begin(j);
    inverse[j] = 1 / (first < matrix.end(j) ? matrix.a[first] : 0.0F);
  }
}

void invert_row_squares(const ColumnMatrix& matrix, float* inverse) {
  std::fill_n(inverse, matrix.n, 0.0F);
  float largest = 0;
  for_each_entry(matrix, [&](int, int, float a) { largest = std::max(largest, std::fabs(a)); });
  const float scale = power_near_reciprocal(largest, largest);
  for_each_entry(matrix, [&](int i, int j, float a) {
    const float scaled = scale * a;
    inverse[i] += scaled * scaled;
    if (matrix.is_lower && i > j) inverse[j] += scaled * scaled;
  });
  for (int i = 0; i < matrix.n; ++i) inverse[i] = 1 / inverse[i];
}

}  // namespace quorin::slap
