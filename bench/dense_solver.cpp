#include "bench/dense_solver.hpp"

#include <cstddef>

namespace quorin::bench {
namespace {

struct {
  decltype(&::sgemm) sgemm;
  decltype(&::strsm) strsm;
  decltype(&::sscal) sscal;
  decltype(&::isamax) isamax;
} g_blas;

}  // namespace

// What Fortran calls; the lengths of character arguments come last.
extern "C" {
DenseSolver sgesv_;

void sgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k, const float* alpha,
            const float* a, const int* lda, const float* b, const int* ldb, const float* beta, float* c, const int* ldc,
            std::size_t, std::size_t) {
  g_blas.sgemm(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

void strsm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m, const int* n,
            const float* alpha, const float* a, const int* lda, float* b, const int* ldb, std::size_t, std::size_t,
            std::size_t, std::size_t) {
  g_blas.strsm(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);
}

void sscal_(const int* n, const float* a, float* x, const int* incx) { g_blas.sscal(n, a, x, incx); }

int isamax_(const int* n, const float* x, const int* incx) { return g_blas.isamax(n, x, incx); }

void xerbla_(const char*, const int*, std::size_t) {}
}

DenseSolver* dense_solver(const Libraries& libraries) {
  g_blas = {libraries.product.sgemm, libraries.product.strsm, libraries.product.sscal, libraries.product.isamax};
  return sgesv_;
}

}  // namespace quorin::bench
