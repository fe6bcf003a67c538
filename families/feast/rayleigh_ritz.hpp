// The Rayleigh-Ritz step: the best approximations of eigenpairs that a subspace holds.
#pragma once

#include "base/workspace.hpp"
#include "families/feast/hermitian_eigensolver.hpp"
#include "families/feast/pencil.hpp"
#include "families/feast/subspace.hpp"

namespace quorin::feast {

// T is double or std::complex<double>.
template <Scalar T>
class RayleighRitz {
 public:
  // Work space for subspaces of up to `capacity` vectors; false without memory.
  [[nodiscard]] bool reserve(int capacity);

  // X becomes Ritz vectors, B-orthonormal, in the order of their Ritz values; directions without substance are dropped.
  // The basis is orthonormalised twice, from the eigenvalues of its Gram matrix, so that no rank makes it fail
  // (Stewart, Matrix Algorithms II, 4.2.3, on why twice is enough). False if B is not positive definite on the
  // subspace.
  [[nodiscard]] bool run(const Pencil<T>& pencil, Subspace<T>& X);

  double value(int j) const { return values_.data()[j]; }
  // The squared factor by which filtering made vector j longer, in the norm of B, if the basis was filtered from a
  // B-orthonormal one: 1 for an eigenvector well inside, 1/4 at an end.
  double squared_gain(int j) const { return gains_.data()[j]; }
  // How many dimensions of the basis, if so filtered, have at least that squared length.
  int count_of_gains(double least) const;

 private:
  int orthonormalizer(int size, double tolerance, T* gram);
  T* matrix(int which) { return matrices_.data() + static_cast<std::ptrdiff_t>(which) * capacity_ * capacity_; }

  int capacity_ = 0, filtered_ = 0;
  base::Workspace<T> matrices_;
  base::Workspace<double> values_, gains_, lengths_;
  HermitianEigensolver<T> eigensolver_;
};

}  // namespace quorin::feast
