// Diagonal preconditioners.
#pragma once

#include "families/slap/column_matrix.hpp"
#include "families/slap/preconditioner.hpp"
#include "families/slap/triangular_rows.hpp"

namespace quorin::slap {

// M = the diagonal that the inverse of is given.
template <class T>
class Diagonal final : public Preconditioner<T> {
 public:
  Diagonal(int n, const float* inverse) : n_(n), inverse_(inverse) {}
  void solve(const T* r, T* z) const override { scale_into(n_, inverse_, r, z); }

 private:
  int n_;
  const float* inverse_;
};

// inverse(j) <- 1 / the first entry of column j, which the column format makes the diagonal. Infinite where that is
// zero, or the column empty.
void invert_diagonal(const ColumnMatrix& matrix, float* inverse);

// inverse(i) <- 1 / the diagonal entry i of A A^T, the square of row i's length. Where squares
// would overflow or vanish, all are those of A times one power of two: the iteration does not notice.
void invert_row_squares(const ColumnMatrix& matrix, float* inverse);

}  // namespace quorin::slap
