#include "families/trust_region/linear_model.hpp"

#include <algorithm>
#include <cmath>

#include "families/trust_region/vectors.hpp"

namespace quorin::trust_region {

LinearModel::LinearModel(std::size_t n, std::size_t m, Arrays& arrays)
    : n_(n),
      m_(m),
      block_rows_(std::min<std::size_t>(m, 64)),
      triangle_(arrays.take(base::saturating_product(n + 1, n + 1))),
      block_(arrays.take(base::saturating_product(block_rows_, n + 1))) {}

bool LinearModel::take(const float* jacobian, const float* residual) {
  std::fill_n(triangle_, (n_ + 1) * (n_ + 1), 0.0);
  for (std::size_t row = 0; row < m_; row += block_rows_) {
    const std::size_t rows = std::min(block_rows_, m_ - row);
    for (std::size_t j = 0; j < n_; ++j) std::copy_n(jacobian + m_ * j + row, rows, block_column(j));
    std::copy_n(residual + row, rows, block_column(n_));
    append(rows);
  }
  return is_finite();
}

// (R c) <- the triangle of (R c) with the rows of the block below it. Row k of the triangle is the only one in which
// column k, and the reflection that clears it, are not zero. What then is left of the last column below c, rho, is not
// needed.
void LinearModel::append(std::size_t rows) {
  for (std::size_t k = 0; k < n_; ++k) {
    double* const v = block_column(k);
    const double below = dot(rows, v, v);
    if (below == 0.0) continue;
    double& head = column(k)[k];
    const double length = -std::copysign(std::sqrt(head * head + below), head);
    const double v0 = head - length;
    const double factor = 2.0 / (v0 * v0 + below);
    head = length;
    for (std::size_t j = k + 1; j <= n_; ++j) {
      const double share = factor * (v0 * column(j)[k] + dot(rows, v, block_column(j)));
      column(j)[k] -= share * v0;
      base::add_multiple(rows, -share, v, block_column(j));
    }
  }
}

// An entry that is not finite makes its column's length so.
bool LinearModel::is_finite() const {
  return std::all_of(triangle_, triangle_ + (n_ + 1) * (n_ + 1), [](double a) { return std::isfinite(a); });
}

double LinearModel::column_norm(std::size_t j) const { return norm(j + 1, column(j)); }

double LinearModel::gradient(std::size_t j) const { return dot(j + 1, column(j), right_side()); }

void LinearModel::multiply(const double* s, double* image) const {
  std::fill_n(image, n_, 0.0);
  for (std::size_t j = 0; j < n_; ++j) base::add_multiple(j + 1, s[j], column(j), image);
}

double LinearModel::decrease(const double* s, double* image) const {
  multiply(s, image);
  return -(dot(n_, image, right_side()) + dot(n_, image, image) / 2);
}

}  // namespace quorin::trust_region
