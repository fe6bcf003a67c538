// What is known of a residual F near a point: F(x + s) ~ F + J s.
#pragma once

#include <cstddef>

#include "families/trust_region/arrays.hpp"

namespace quorin::trust_region {

// Q^T (J F) = (R c; 0 rho) for an orthogonal Q: ||F + J s||^2 = ||R s + c||^2 + rho^2, so the n x n triangle R and c
// say all that steps depend on. J itself is not kept. Columns are those of J, in double precision.
//
// Householder triangularization by blocks of rows: Golub, Van Loan, Matrix Computations, 4th ed., sections 5.2 and
// 6.5.3 (appending rows).
class LinearModel {
 public:
  LinearModel() = default;
  LinearModel(std::size_t n, std::size_t m, Arrays& arrays);

  std::size_t size() const { return n_; }

  // From J (m x n, column-major) and F. False if an entry is not finite; the model is then void.
  [[nodiscard]] bool take(const float* jacobian, const float* residual);

  // R(:,j), n entries, zero below the j-th; c for j = n.
  const double* column(std::size_t j) const { return triangle_ + j * (n_ + 1); }
  const double* right_side() const { return column(n_); }
  // ||J(:,j)||
  double column_norm(std::size_t j) const;
  // (J^T F)_j
  double gradient(std::size_t j) const;
  // image <- R s
  void multiply(const double* s, double* image) const;
  // (||F||^2 - ||F + J s||^2) / 2, without cancellation; `image` has room for n entries.
  double decrease(const double* s, double* image) const;

 private:
  double* column(std::size_t j) { return triangle_ + j * (n_ + 1); }
  double* block_column(std::size_t j) { return block_ + j * block_rows_; }
  void append(std::size_t rows);
  bool is_finite() const;

  std::size_t n_ = 0, m_ = 0, block_rows_ = 0;
  double* triangle_ = nullptr;  // n + 1 columns of n + 1 entries: (R c); the last row is zero
  double* block_ = nullptr;     // rows of (J F) under way
};

}  // namespace quorin::trust_region
