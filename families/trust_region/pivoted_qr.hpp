// QR factorization with column pivoting of chosen columns of a linear model.
#pragma once

#include <cstddef>

#include "families/trust_region/arrays.hpp"
#include "families/trust_region/linear_model.hpp"

namespace quorin::trust_region {

// Q^T A P = R, |r_11| >= |r_22| >= ..., by Householder reflections (Businger, Golub, Numer. Math. 7 (1965)). The norms
// of the columns that are left are computed anew in each step.
class PivotedQr {
 public:
  PivotedQr() = default;
  PivotedQr(std::size_t n, Arrays& arrays);

  // A: the columns columns[0...count-1] of R of the model; `rhs`, n entries, becomes Q^T rhs.
  void factor(const LinearModel& model, const std::size_t* columns, std::size_t count, const double* rhs);

  std::size_t size() const { return count_; }
  // Entry (i, j) of R; i <= j.
  double entry(std::size_t i, std::size_t j) const { return a_[j * n_ + i]; }
  // R(:,j), j + 1 entries.
  const double* column(std::size_t j) const { return a_ + j * n_; }
  // The first size() entries of Q^T rhs.
  const double* right_side() const { return rhs_; }
  // Which of the given columns is the k-th of A P.
  std::size_t order(std::size_t k) const { return order_[k]; }
  // Columns that are independent to working precision.
  std::size_t rank() const;

 private:
  void bring_longest(std::size_t k);
  void eliminate(std::size_t k);

  std::size_t n_ = 0, count_ = 0;
  double *a_ = nullptr, *rhs_ = nullptr;
  std::size_t* order_ = nullptr;
};

}  // namespace quorin::trust_region
