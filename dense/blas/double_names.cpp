// The double-precision routines that UMFPACK calls, under their Fortran names. The library exports none of them.
#include <complex>
#include <cstdint>

#include "dense/blas/level2.hpp"
#include "dense/blas/level3.hpp"

namespace quorin::dense {
namespace {

using Double = double;
using Complex = std::complex<double>;
using Int = std::int32_t;

}  // namespace

// Lengths of characters that callers append to the arguments are not looked at.
extern "C" {

void dgemm_(const char* transa, const char* transb, const Int* m, const Int* n, const Int* k, const Double* alpha,
            const Double* a, const Int* lda, const Double* b, const Int* ldb, const Double* beta, Double* c,
            const Int* ldc) noexcept;
void dtrsm_(const char* side, const char* uplo, const char* transa, const char* diag, const Int* m, const Int* n,
            const Double* alpha, const Double* a, const Int* lda, Double* b, const Int* ldb) noexcept;
void dgemv_(const char* trans, const Int* m, const Int* n, const Double* alpha, const Double* a, const Int* lda,
            const Double* x, const Int* incx, const Double* beta, Double* y, const Int* incy) noexcept;
void dtrsv_(const char* uplo, const char* trans, const char* diag, const Int* n, const Double* a, const Int* lda,
            Double* x, const Int* incx) noexcept;
void dger_(const Int* m, const Int* n, const Double* alpha, const Double* x, const Int* incx, const Double* y,
           const Int* incy, Double* a, const Int* lda) noexcept;

void dgemm_(const char* transa, const char* transb, const Int* m, const Int* n, const Int* k, const Double* alpha,
            const Double* a, const Int* lda, const Double* b, const Int* ldb, const Double* beta, Double* c,
            const Int* ldc) noexcept {
  gemm(*transa, *transb, *m, *n, *k, *alpha, a, *lda, b, *ldb, *beta, c, *ldc);
}

void dtrsm_(const char* side, const char* uplo, const char* transa, const char* diag, const Int* m, const Int* n,
            const Double* alpha, const Double* a, const Int* lda, Double* b, const Int* ldb) noexcept {
  trsm(*side, *uplo, *transa, *diag, *m, *n, *alpha, a, *lda, b, *ldb);
}

void dgemv_(const char* trans, const Int* m, const Int* n, const Double* alpha, const Double* a, const Int* lda,
            const Double* x, const Int* incx, const Double* beta, Double* y, const Int* incy) noexcept {
  gemv(*trans, *m, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);
}

void dtrsv_(const char* uplo, const char* trans, const char* diag, const Int* n, const Double* a, const Int* lda,
            Double* x, const Int* incx) noexcept {
  trsv(*uplo, *trans, *diag, *n, a, *lda, x, *incx);
}

void dger_(const Int* m, const Int* n, const Double* alpha, const Double* x, const Int* incx, const Double* y,
           const Int* incy, Double* a, const Int* lda) noexcept {
  geru(*m, *n, *alpha, x, *incx, y, *incy, a, *lda);
}

void zgemm_(const char* transa, const char* transb, const Int* m, const Int* n, const Int* k, const Complex* alpha,
            const Complex* a, const Int* lda, const Complex* b, const Int* ldb, const Complex* beta, Complex* c,
            const Int* ldc) noexcept;
void ztrsm_(const char* side, const char* uplo, const char* transa, const char* diag, const Int* m, const Int* n,
            const Complex* alpha, const Complex* a, const Int* lda, Complex* b, const Int* ldb) noexcept;
void zgemv_(const char* trans, const Int* m, const Int* n, const Complex* alpha, const Complex* a, const Int* lda,
            const Complex* x, const Int* incx, const Complex* beta, Complex* y, const Int* incy) noexcept;
void ztrsv_(const char* uplo, const char* trans, const char* diag, const Int* n, const Complex* a, const Int* lda,
            Complex* x, const Int* incx) noexcept;
void zgeru_(const Int* m, const Int* n, const Complex* alpha, const Complex* x, const Int* incx, const Complex* y,
            const Int* incy, Complex* a, const Int* lda) noexcept;

void zgemm_(const char* transa, const char* transb, const Int* m, const Int* n, const Int* k, const Complex* alpha,
            const Complex* a, const Int* lda, const Complex* b, const Int* ldb, const Complex* beta, Complex* c,
            const Int* ldc) noexcept {
  gemm(*transa, *transb, *m, *n, *k, *alpha, a, *lda, b, *ldb, *beta, c, *ldc);
}

void ztrsm_(const char* side, const char* uplo, const char* transa, const char* diag, const Int* m, const Int* n,
            const Complex* alpha, const Complex* a, const Int* lda, Complex* b, const Int* ldb) noexcept {
  trsm(*side, *uplo, *transa, *diag, *m, *n, *alpha, a, *lda, b, *ldb);
}

void zgemv_(const char* trans, const Int* m, const Int* n, const Complex* alpha, const Complex* a, const Int* lda,
            const Complex* x, const Int* incx, const Complex* beta, Complex* y, const Int* incy) noexcept {
  gemv(*trans, *m, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);
}

void ztrsv_(const char* uplo, const char* trans, const char* diag, const Int* n, const Complex* a, const Int* lda,
            Complex* x, const Int* incx) noexcept {
  trsv(*uplo, *trans, *diag, *n, a, *lda, x, *incx);
}

void zgeru_(const Int* m, const Int* n, const Complex* alpha, const Complex* x, const Int* incx, const Complex* y,
            const Int* incy, Complex* a, const Int* lda) noexcept {
  geru(*m, *n, *alpha, x, *incx, y, *incy, a, *lda);
}
}

}  // namespace quorin::dense
