// What the factorizations share: a view of a column-major matrix, and functions of real and complex scalars alike.
#pragma once

#include <complex>
#include <cstddef>

#include "dense/backend/scalar.hpp"

namespace quorin::dense {

template <Scalar T>
class Matrix {
 public:
  Matrix(T* elements, int lda) : elements_(elements), lda_(lda) {}
  T* column(int j) const { return elements_ + static_cast<std::ptrdiff_t>(j) * lda_; }
  T& operator()(int i, int j) const { return column(j)[i]; }
  Matrix from(int i, int j) const { return {column(j) + i, lda_}; }
  T* data() const { return elements_; }
  int lda() const { return lda_; }

 private:
  T* elements_;
  int lda_;
};

template <Scalar T>
T conjugate(T x) {
  if constexpr (kIsComplex<T>) {
    return std::conj(x);
  } else {
    return x;
  }
}

template <Scalar T>
RealOf<T> real_part(T x) {
  if constexpr (kIsComplex<T>) {
    return x.real();
  } else {
    return x;
  }
}

template <Scalar T>
RealOf<T> imaginary_part(T x) {
  if constexpr (kIsComplex<T>) {
    return x.imag();
  } else {
    return 0;
  }
}

}  // namespace quorin::dense
