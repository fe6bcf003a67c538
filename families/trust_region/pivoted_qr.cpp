#include "families/trust_region/pivoted_qr.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "families/trust_region/vectors.hpp"

namespace quorin::trust_region {

PivotedQr::PivotedQr(std::size_t n, Arrays& arrays)
    : n_(n),
      a_(arrays.take(base::saturating_product(n, n))),
      rhs_(arrays.take(n)),
      order_(arrays.take<std::size_t>(n)) {}

void PivotedQr::factor(const LinearModel& model, const std::size_t* columns, std::size_t count, const double* rhs) {
  count_ = count;
  for (std::size_t j = 0; j < count; ++j) {
    std::copy_n(model.column(columns[j]), n_, a_ + j * n_);
    order_[j] = j;
  }
  std::copy_n(rhs, n_, rhs_);
  for (std::size_t k = 0; k < count; ++k) {
    bring_longest(k);
    eliminate(k);
  }
}

void PivotedQr::bring_longest(std::size_t k) {
  std::size_t longest = k;
  double most = -1.0;
  for (std::size_t j = k; j < count_; ++j) {
    const double* const rest = a_ + j * n_ + k;
    const double square = dot(n_ - k, rest, rest);
    if (square > most) {
      most = square;
      longest = j;
    }
  }
  if (longest == k) return;
  std::swap_ranges(a_ + k * n_, a_ + (k + 1) * n_, a_ + longest * n_);
  std::swap(order_[k], order_[longest]);
}

void PivotedQr::eliminate(std::size_t k) {
  double* const v = a_ + k * n_ + k;
  const std::size_t rows = n_ - k;
  const double length = -std::copysign(norm(rows, v), v[0]);
  if (length == 0.0) return;
  v[0] -= length;
  const double factor = -1.0 / (length * v[0]);
  const auto reflect = [&](double* x) { base::add_multiple(rows, -factor * dot(rows, v, x), v, x); };
  for (std::size_t j = k + 1; j < count_; ++j) reflect(a_ + j * n_ + k);
  reflect(rhs_ + k);
  v[0] = length;
}

std::size_t PivotedQr::rank() const {
  constexpr double kRoundoff = std::numeric_limits<double>::epsilon();
  const double least = count_ == 0 ? 0.0 : 10.0 * static_cast<double>(n_) * kRoundoff * std::fabs(entry(0, 0));
  std::size_t k = 0;
  while (k < count_ && std::fabs(entry(k, k)) > least) ++k;
  return k;
}

}  // namespace quorin::trust_region
