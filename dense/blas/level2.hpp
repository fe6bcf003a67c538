// BLAS level 2: matrix-vector operations. T is float or std::complex<float>.
//
// Matrices are column-major with a leading dimension; option characters may be lower case. A wrong argument is reported
// by its position through base::report_argument_error, and nothing is touched. Large matrices are worked on by several
// threads (base/thread_settings.hpp, domain BLAS).
//
// Source: J. J. Dongarra, J. Du Croz, S. Hammarling, R. J. Hanson, An extended set of Fortran Basic Linear Algebra
// Subprograms, ACM TOMS 14 (1988) 1-17.
#pragma once

#include <complex>

#include "base/scalar.hpp"

namespace quorin::dense {

template <Scalar T>
void gemv(char trans, int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y, int incy);
template <Scalar T>
void trmv(char uplo, char trans, char diag, int n, const T* a, int lda, T* x, int incx);
template <Scalar T>
void trsv(char uplo, char trans, char diag, int n, const T* a, int lda, T* x, int incx);
// Symmetric for real T, Hermitian for complex T; so are her and her2.
template <Scalar T>
void hemv(char uplo, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y, int incy);
template <Scalar T>
void geru(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda);
template <Scalar T>
void gerc(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda);
template <Scalar T>
void her(char uplo, int n, RealOf<T> alpha, const T* x, int incx, T* a, int lda);
template <Scalar T>
void her2(char uplo, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda);

}  // namespace quorin::dense
