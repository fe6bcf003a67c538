// Eigen's iterative solvers in single precision, as peers. Only a program that was configured where Eigen's headers are
// has them.
#pragma once

#include <memory>
#include <vector>

#include "tests/support/sparse.hpp"

namespace quorin::bench {

enum class PeerIteration { kCg, kLeastSquaresCg, kBicgstab, kGmres };
enum class PeerPreconditioner { kDiagonal, kIncomplete };  // Cholesky for kCg, else LU with as many entries as A

class EigenSolver {
 public:
  // Whether the functions below may be called.
  static bool is_there();

  EigenSolver(const test::SparseMatrix& matrix, PeerIteration iteration, PeerPreconditioner preconditioner,
              int restart);
  EigenSolver(EigenSolver&&) noexcept;
  ~EigenSolver();

  // Sets the preconditioner up and solves for b from zero, until ||r|| <= tolerance ||b||. Throws std::runtime_error
  // when that fails.
  void solve(const std::vector<float>& b, float tolerance);

 private:
  struct Solver;
  std::unique_ptr<Solver> solver_;
};

}  // namespace quorin::bench
