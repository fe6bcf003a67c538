// Incomplete Cholesky factorization M = (I + L) D (I + L)^T on the pattern of A's lower triangle.
//
// J. A. Meijerink, H. A. van der Vorst, An iterative solution method for linear systems of which the coefficient matrix
// is a symmetric M-matrix, Math. Comp. 31 (1977) 148-162.
#pragma once

#include "families/slap/column_matrix.hpp"
#include "families/slap/preconditioner.hpp"
#include "families/slap/triangular_rows.hpp"

namespace quorin::slap {

class IncompleteCholesky final : public Preconditioner<float> {
 public:
  // The factors as they stand in memory.
  IncompleteCholesky(const TriangularRows& l, const float* inverse) : l_(l), inverse_(inverse) {}
  void solve(const float* r, float* z) const override;

 private:
  TriangularRows l_;
  const float* inverse_;  // D^-1
};

// Factors a matrix into l, with room for `capacity` entries (the pattern is cut short if it has more), and inverse(n) =
// D^-1. `scratch` holds n entries. A pivot that is not positive is replaced by the sum of magnitudes of its column, so
// that M stays definite (D. S. Kershaw, J. Comput. Phys. 26 (1978) 43-65).
void factor_cholesky(const ColumnMatrix& matrix, int capacity, const TriangularRows& l, float* inverse, float* scratch);

// A pivot to go on with: the sum of magnitudes of the stored entries of column j, or 1.
float replacement_pivot(const ColumnMatrix& matrix, int j);

}  // namespace quorin::slap
