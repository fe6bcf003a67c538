// A view of a column-major matrix.
#pragma once

#include <cstddef>

#include "base/scalar.hpp"

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

}  // namespace quorin::dense
