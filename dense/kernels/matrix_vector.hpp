// Matrix-vector operations on one thread. The vector along the columns of A has unit stride; the other may have any,
// its first entry being the one that x or y points to. Entries that the published routines do not touch are not
// touched.
#pragma once

#include <cstddef>

#include "base/scalar.hpp"

namespace quorin::dense::kernels {

/// y <- y + alpha A x with A m by n, y of unit stride.
template <Scalar T>
void add_product(int m, int n, T alpha, const T* a, int lda, const T* x, std::ptrdiff_t incx, T* y) noexcept;

/// y <- y + alpha A^T x, or A^H, with A m by n, x of unit stride.
template <Scalar T>
void add_transposed_product(bool conjugate, int m, int n, T alpha, const T* a, int lda, const T* x, T* y,
                            std::ptrdiff_t incy) noexcept;

/// y <- y + alpha A x with a Hermitian (real: symmetric) A, of which one triangle is stored; both of unit stride.
template <Scalar T>
void add_hermitian_product(bool is_upper, int n, T alpha, const T* a, int lda, const T* x, T* y) noexcept;

/// A <- A + alpha x y^T, or y^H, with A m by n, x of unit stride.
template <Scalar T>
void add_outer_product(bool conjugate, int m, int n, T alpha, const T* x, const T* y, std::ptrdiff_t incy, T* a,
                       int lda) noexcept;

/// One triangle of A + alpha x x^H (real: x x^T); the diagonal becomes real.
template <Scalar T>
void add_hermitian_square(bool is_upper, int n, RealOf<T> alpha, const T* x, T* a, int lda) noexcept;

/// One triangle of A + alpha x y^H + conj(alpha) y x^H; the diagonal becomes real.
template <Scalar T>
void add_hermitian_pair(bool is_upper, int n, T alpha, const T* x, const T* y, T* a, int lda) noexcept;

/// How a triangular matrix is stored and meant.
struct Triangle {
  bool is_upper, is_transposed, is_conjugated, has_unit_diagonal;
};

/// x <- op(A) x and x <- op(A)^-1 x for a triangular A of order n.
template <Scalar T>
void multiply_by_triangle(Triangle shape, int n, const T* a, int lda, T* x) noexcept;
template <Scalar T>
void solve_triangle(Triangle shape, int n, const T* a, int lda, T* x) noexcept;

}  // namespace quorin::dense::kernels
