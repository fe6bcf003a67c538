// Block Lanczos for the inverse of a shifted pencil: the eigenpairs nearest to a point.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <random>

#include "base/workspace.hpp"
#include "families/feast/arguments.hpp"
#include "families/feast/direct_solver.hpp"
#include "families/feast/hermitian_eigensolver.hpp"
#include "families/feast/pencil.hpp"
#include "sparse/sparse.hpp"

namespace quorin::feast {

enum class Side { kBelow, kAbove };

// Eigenpairs of A x = lambda B x next to a shift sigma, from Krylov spaces of M = (A - sigma B)^-1 B, whose eigenvalues
// theta = 1 / (lambda - sigma) are largest there. M is self-adjoint in the inner product of B, and so V^H B M V is
// block tridiagonal for a basis V that is made of M V by orthogonalization. All of V takes part in that, as rounding
// errors would let found eigenvectors come back otherwise. Where a block loses rank, random vectors take the place of
// what is missing, so that multiple eigenvalues are found, too.
//
// R. G. Grimes, J. G. Lewis, H. D. Simon, A shifted block Lanczos algorithm for solving sparse symmetric generalized
// eigenproblems, SIAM J. Matrix Anal. Appl. 15 (1994) 228-272. T is double or std::complex<double>.
template <Scalar T>
class Lanczos {
 public:
  // Vectors that are solved for together.
  static constexpr int kBlock = 8;

  // What is wanted on a side of the shift: all that is no farther away than `reach`. There are `count` eigenvalues no
  // farther away than `within`.
  struct Wanted {
    double reach = 0;
    int count = 0;
    double within = 0;
  };
  struct Goal {
    double shift;
    double tolerance;  // for the norm of A x - lambda B x in the inverse of B, where x has norm 1 in B
    Wanted below, above;
  };

  // Work space for `capacity` basis vectors of length n, capacity <= n, and for `threads` threads; false without
  // memory.
  [[nodiscard]] bool reserve(int n, int capacity, int threads);

  // Ends when all that is wanted has converged, or nothing more does. `factor` is that of A - shift B. kNoMemory,
  // kReducedFailed. The calling thread holds packing buffers for all threads; any number gives the same bits.
  [[nodiscard]] Status run(const Pencil<T>& pencil, const sparse::Factor<T>& factor, const Goal& goal);

  // Pairs on a side of the shift, the nearest first: how many have converged before the first that has not, their
  // eigenvalues, and the Ritz value of that first one, if there is one.
  int converged(Side side) const { return converged_[index(side)]; }
  double value(Side side, int k) const { return goal_.shift + 1 / theta_[place(side, k)]; }
  std::optional<double> next_value(Side side) const;
  // The vectors of the first `count` into X, n x count; false without memory.
  [[nodiscard]] bool vectors(Side side, int count, T* X) const;

 private:
  // Rows of the basis that are worked on together, and columns where these are not changed; parts of a sum over rows.
  static constexpr int kRows = 256, kColumns = 21, kMostParts = 64;

  T* column(int j) { return V_.data() + offset(j); }
  std::ptrdiff_t offset(int j) const { return static_cast<std::ptrdiff_t>(j) * n_; }
  T& projected(int i, int j) { return projected_.data()[i + static_cast<std::ptrdiff_t>(j) * capacity_]; }
  T* coupling(int j) { return coupling_.data() + static_cast<std::ptrdiff_t>(j) * kBlock; }
  int row_blocks() const { return (n_ + kRows - 1) / kRows; }
  int rows_of(int block) const { return std::min(kRows, n_ - block * kRows); }
  static constexpr std::size_t index(Side side) { return side == Side::kBelow ? 0 : 1; }
  // Where a pair stands: theta ascends, from that of the nearest eigenvalue below the shift to that of the nearest
  // above.
  std::size_t place(Side side, int k) const {
    return static_cast<std::size_t>(side == Side::kBelow ? k : size_ - 1 - k);
  }
  bool is_on(Side side, int k) const {
    return k < size_ && (side == Side::kBelow ? theta_[place(side, k)] < 0 : theta_[place(side, k)] > 0);
  }

  void randomize(T* x);
  const T* times_b(const T* W, int width);
  Status apply(const T* from, int count, T* to);
  Status begin();
  Status expand();
  bool contract(bool keeps_converged_only);
  void combine(const T* C, int count);
  void measure(const T* W, const T* bw, int width);
  const T* multiply(int width, const T* Y, int count, const T* X);
  const T* project_out(int first, int count, T* W, const T* bw, int width);
  int orthonormalize(T* W, int width, int wanted, T* R, bool& is_good);
  int mend(T* W, int width, int wanted, T* R);
  bool examine();
  T next_component(int i, std::size_t k) const;
  bool is_reached(Side side, const Wanted& wanted) const;
  bool lacks(Side side, const Wanted& wanted) const;

  const Pencil<T>* pencil_ = nullptr;
  const sparse::Factor<T>* factor_ = nullptr;
  Goal goal_{};
  int n_ = 0, capacity_ = 0, threads_ = 1;
  // V: `size_` vectors that M was applied to, and `next_` more, to which M leads from the last `width_` of these. V^H B
  // M V, lower triangle, and the coupling of these last with the next, next_ x width_.
  int size_ = 0, width_ = 0, next_ = 0;
  std::array<int, 2> converged_{};
  base::Workspace<T> V_, projected_, coupling_, Y_, Z_, products_, S_, rows_;
  base::Workspace<double> theta_, residuals_, lengths_;
  HermitianEigensolver<T> eigensolver_;
  std::mt19937_64 random_;
};

}  // namespace quorin::feast
