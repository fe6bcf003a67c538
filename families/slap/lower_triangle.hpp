// The lower triangle with its diagonal, M = D + L, as in Gauss and Seidel's iteration.
#pragma once

#include "families/slap/column_matrix.hpp"
#include "families/slap/preconditioner.hpp"
#include "families/slap/triangular_rows.hpp"

namespace quorin::slap {

class LowerTriangle final : public Preconditioner<float> {
 public:
  // `rows` has room for count_lower(matrix) entries; inverse(n) receives D^-1, infinite where D is zero.
  LowerTriangle(const ColumnMatrix& matrix, const TriangularRows& rows, float* inverse);

  void solve(const float* r, float* z) const override;

 private:
  TriangularRows scaled_;  // D^-1 L
  const float* inverse_;
};

}  // namespace quorin::slap
