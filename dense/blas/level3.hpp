// BLAS level 3: matrix-matrix operations. T is float or std::complex<float>.
//
// Matrices are column-major with a leading dimension; option characters may be lower case. A wrong argument is reported
// by its position through base::report_argument_error, and nothing is touched. Operations are cut into independent
// parts of the result, one for each thread that the work pays for (base/thread_settings.hpp, domain BLAS).
//
// Source: J. J. Dongarra, J. Du Croz, I. S. Duff, S. Hammarling, A set of level 3 Basic Linear Algebra Subprograms,
// ACM TOMS 16 (1990) 1-17.
#pragma once

#include <complex>

#include "base/scalar.hpp"

namespace quorin::dense {

template <Scalar T>
void gemm(char transa, char transb, int m, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta,
          T* c, int ldc);
template <Scalar T>
void symm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc);
template <Scalar T>
void hemm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc);
template <Scalar T>
void syrk(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, T beta, T* c, int ldc);
template <Scalar T>
void herk(char uplo, char trans, int n, int k, RealOf<T> alpha, const T* a, int lda, RealOf<T> beta, T* c, int ldc);
template <Scalar T>
void syr2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
           int ldc);
template <Scalar T>
void her2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, RealOf<T> beta, T* c,
           int ldc);
template <Scalar T>
void trmm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb);
template <Scalar T>
void trsm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb);

}  // namespace quorin::dense
