// Eigenvalues and eigenvectors of small dense matrices.
#pragma once

#include <cstdint>

#include "base/scalar.hpp"
#include "base/workspace.hpp"

namespace quorin::feast {

// All of a symmetric or Hermitian matrix by LAPACK's divide and conquer (DSYEVD, ZHEEVD). T is double or
// std::complex<double>.
template <Scalar T>
class HermitianEigensolver {
 public:
  // Work space for matrices of up to n rows; false without memory.
  [[nodiscard]] bool reserve(int n);

  // M = V diag(values) V^H for an n x n matrix, column by column without gaps, of which the lower triangle is read.
  // V replaces M; `values` ascend. False if M is not finite, or the iteration did not converge. The calling thread
  // holds a packing buffer.
  [[nodiscard]] bool decompose(int n, T* M, double* values);

 private:
  base::Workspace<T> work_;
  base::Workspace<double> real_work_;
  base::Workspace<std::int32_t> integer_work_;
};

}  // namespace quorin::feast
