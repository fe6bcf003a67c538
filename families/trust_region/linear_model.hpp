// What is known of a residual F near a point: F(x + s) ~ F + J s.
#pragma once

#include <cstddef>

#include "base/workspace.hpp"

namespace quorin::trust_region {

// Q^T (J F) = (R c; 0 rho) for an orthogonal Q: ||F + J s||^2 = ||R s + c||^2 + rho^2, so the n x n triangle R and c
// say all that steps depend on. J itself is not kept. Columns are those of J, in double precision.
//
// Householder triangularization by blocks of rows: Golub, Van Loan, Matrix Computations, 4th ed., sections 5.2 and
// 6.5.3 (appending rows).
class LinearModel {
 public:
  explicit LinearModel(std::size_t n);
  explicit operator bool() const { return triangle_ && block_; }
  void swap(LinearModel& other) noexcept;

  std::size_t size() const { return n_; }

  // From J (m x n, column-major) and F (m entries). False if an entry is not finite; the model is then void.
  [[nodiscard]] bool take(std::size_t m, const float* jacobian, const float* residual);

  // R(:,j), n entries, zero below the j-th; c for j = n.
  const double* column(std::size_t j) const { return triangle_.data() + j * (n_ + 1); }
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
  static constexpr std::size_t kBlockRows = 64;

  double* column(std::size_t j) { return triangle_.data() + j * (n_ + 1); }
  double* block_column(std::size_t j) { return block_.data() + j * kBlockRows; }
  void append(std::size_t rows);
  bool is_finite() const;

  std::size_t n_;
  base::Workspace<double> triangle_;  // n + 1 columns of n + 1 entries: (R c; 0 rho)
  base::Workspace<double> block_;     // rows of (J F) under way
};

}  // namespace quorin::trust_region
