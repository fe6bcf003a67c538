// Level 3 without checks, for all four scalar types: what the published routines (dense/blas/level3.hpp), LAPACK's and
// the sparse engine compute with.
//
// Matrices are column-major; options are capital letters, as published; sizes may be 0. Every function cuts its work
// into parts for at most `threads` threads, fewer if it is small, and needs as many packing buffers reserved
// (KernelBuffer, dense/dense.hpp).
// It takes no other memory and cannot fail. Results have the same bits for any number of threads.
//
// Source: J. J. Dongarra, J. Du Croz, I. S. Duff, S. Hammarling, A set of level 3 Basic Linear Algebra Subprograms,
// ACM TOMS 16 (1990) 1-17; B. Kagstrom, P. Ling, C. Van Loan, GEMM-based level 3 BLAS, ACM TOMS 24 (1998) 268-302.
#pragma once

#include <complex>

#include "base/scalar.hpp"

namespace quorin::dense::blocked {

// C <- alpha op(A) op(B) + beta C, m by n, with k terms.
template <Scalar T>
void gemm(char transa, char transb, int m, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta,
          T* c, int ldc, int threads = 1) noexcept;

// C <- alpha A B + beta C for side 'L', alpha B A + beta C for 'R', C m by n, A symmetric (symm) or Hermitian (hemm).
template <Scalar T>
void symm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc,
          int threads = 1) noexcept;
template <Scalar T>
void hemm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc,
          int threads = 1) noexcept;

// The triangle `uplo` of C <- alpha op(A) op(A)' + beta C, n by n with k terms; the prime is ^T, for herk ^H.
template <Scalar T>
void syrk(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, T beta, T* c, int ldc,
          int threads = 1) noexcept;
template <Scalar T>
void herk(char uplo, char trans, int n, int k, RealOf<T> alpha, const T* a, int lda, RealOf<T> beta, T* c, int ldc,
          int threads = 1) noexcept;

// The triangle `uplo` of C <- alpha op(A) op(B) + beta C, n by n with k terms: for products that are known to be
// symmetric or Hermitian.
template <Scalar T>
void gemmt(char uplo, char transa, char transb, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta,
           T* c, int ldc, int threads = 1) noexcept;

// The triangle `uplo` of C <- alpha op(A) op(B)' + alpha' op(B) op(A)' + beta C; alpha' is alpha, for her2k conjugated.
template <Scalar T>
void syr2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
           int ldc, int threads = 1) noexcept;
template <Scalar T>
void her2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, RealOf<T> beta, T* c,
           int ldc, int threads = 1) noexcept;

// B <- alpha op(A) B for side 'L', alpha B op(A) for 'R', and with the inverse of op(A); B m by n, A triangular.
template <Scalar T>
void trmm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb,
          int threads = 1) noexcept;
template <Scalar T>
void trsm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb,
          int threads = 1) noexcept;

}  // namespace quorin::dense::blocked
