// Products so small that setting up the kernels would take longer than the product.
#pragma once

#include <cstddef>
#include <utility>

#include "base/scalar.hpp"
#include "dense/blas/argument_check.hpp"

namespace quorin::dense {

/// Whether small_product is the faster way to an m-by-n product over k terms.
template <Scalar T>
constexpr bool is_small_product(int m, int n, int k) noexcept {
  return static_cast<double>(m) * n * k <= (kIsComplex<T> ? 32 : 100);
}

/// op(A): the matrix as it is stored, its transpose, or the conjugate of that.
template <Scalar T>
class Operand {
 public:
  Operand(char trans, const T* a, int lda) noexcept
      : a_(a), is_conjugate_(is_one_of(trans, "C")), row_step_(1), column_step_(lda) {
    if (!is_one_of(trans, "N")) std::swap(row_step_, column_step_);
  }

  T operator()(int i, int j) const noexcept {
    const T value = a_[i * row_step_ + j * column_step_];
    if constexpr (kIsComplex<T>) {
      return is_conjugate_ ? std::conj(value) : value;
    } else {
      return value;
    }
  }

 private:
  const T* a_;
  bool is_conjugate_;
  std::ptrdiff_t row_step_, column_step_;
};

/// C <- alpha A B + beta C, where A is m by k and B is k by n. As in the published routine, A and B are not read for
/// alpha = 0, and C is not read for beta = 0.
template <Scalar T>
void small_product(int m, int n, int k, T alpha, const Operand<T>& a, const Operand<T>& b, T beta, T* c,
                   int ldc) noexcept {
  if (alpha == T{}) k = 0;
  for (int j = 0; j < n; ++j) {
    T* const column = c + static_cast<std::ptrdiff_t>(j) * ldc;
    for (int i = 0; i < m; ++i) {
      T sum{};
      for (int l = 0; l < k; ++l) sum += product(a(i, l), b(l, j));
      const T kept = beta == T{} ? T{} : product(beta, column[i]);
      column[i] = k == 0 ? kept : product(alpha, sum) + kept;
    }
  }
}

}  // namespace quorin::dense
