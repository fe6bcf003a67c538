// Eigen's incomplete LU, as a peer. Only a program that was configured where Eigen's headers are has it.
#pragma once

#include <memory>

#include "tests/support/sparse.hpp"

namespace quorin::bench {

class EigenIncompleteLu {
 public:
  // Whether the functions below may be called.
  static bool is_there();

  // At most fill_factor times as many entries as A has, those above `tolerance` in relation to their row. Orders the
  // unknowns to save fill.
  EigenIncompleteLu(const test::SparseMatrix& matrix, double tolerance, int fill_factor);
  EigenIncompleteLu(EigenIncompleteLu&&) noexcept;
  ~EigenIncompleteLu();

  // The numerical part alone. Throws std::runtime_error when it fails.
  void factorize();
  // Entries of L, without its diagonal, and U. Costs as much as many solves.
  double fill() const;

 private:
  struct Factors;
  std::unique_ptr<Factors> factors_;
};

}  // namespace quorin::bench
