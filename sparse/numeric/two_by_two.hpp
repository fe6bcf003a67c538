// Pivots of order 2.
#pragma once

#include <cmath>

#include "base/scalar.hpp"

namespace quorin::sparse {

// D = (d11 d12; d21 d22) where d12 is d21, or for a Hermitian D its conjugate. Divisions are scaled by |d21|, which is
// larger than the diagonal where such a pivot is chosen, so that no product overflows.
template <Scalar T>
class TwoByTwo {
 public:
  TwoByTwo(T d11, T d21, T d22, bool is_hermitian) noexcept
      : size_(std::abs(d21)),
        a_(d11 / size_),
        b_(d22 / size_),
        u_(d21 / size_),
        v_(is_hermitian ? conjugate(u_) : u_),
        determinant_(product(a_, b_) - product(u_, v_)),
        scale_(T{1} / (determinant_ * size_)) {}

  // (w1 w2) <- (w1 w2) D^-1
  void divide_row(T& w1, T& w2) const noexcept {
    const T l1 = product(scale_, product(b_, w1) - product(u_, w2));
    w2 = product(scale_, product(a_, w2) - product(v_, w1));
    w1 = l1;
  }
  // (y1; y2) <- D^-1 (y1; y2)
  void divide_column(T& y1, T& y2) const noexcept {
    const T z1 = product(scale_, product(b_, y1) - product(v_, y2));
    y2 = product(scale_, product(a_, y2) - product(u_, y1));
    y1 = z1;
  }
  // (l1 l2) <- (l1 l2) D
  void multiply_row(T& l1, T& l2) const noexcept {
    const T w1 = (product(l1, a_) + product(l2, u_)) * size_;
    l2 = (product(l1, v_) + product(l2, b_)) * size_;
    l1 = w1;
  }

  bool is_finite() const noexcept { return std::isfinite(real_part(scale_)) && std::isfinite(imaginary_part(scale_)); }
  // Eigenvalues that are positive, of a D with real eigenvalues.
  int positive() const noexcept {
    if (real_part(determinant_) < 0) return 1;
    return real_part(a_) > 0 ? 2 : 0;
  }

 private:
  RealOf<T> size_;
  T a_, b_, u_, v_, determinant_, scale_;
};

}  // namespace quorin::sparse
