// What peers want of the BLAS and LAPACK beside what UMFPACK does: over the product's kernels, too.
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>

#include "dense/dense.hpp"

namespace {

using Int = std::int32_t;
using Complex = std::complex<double>;
namespace blocked = quorin::dense::blocked;

template <class T>
void rank_k(char uplo, char trans, int n, int k, double alpha, const T* a, int lda, double beta, T* c, int ldc) {
  if constexpr (quorin::kIsComplex<T>) {
    blocked::herk<T>(uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
  } else {
    blocked::syrk<T>(uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
  }
}

// The lower triangle of L L^H by recursion. Returns the order of the first minor that is not positive, or 0.
template <class T>
int factor(int n, T* a, int lda) {
  if (n <= 16) {
    for (int k = 0; k < n; ++k) {
      T* const x = a + static_cast<std::ptrdiff_t>(k) * lda;
      const double pivot = quorin::real_part(x[k]);
      if (!(pivot > 0)) return k + 1;
      x[k] = std::sqrt(pivot);
      for (int i = k + 1; i < n; ++i) x[i] /= x[k];
      for (int j = k + 1; j < n; ++j) {
        T* const y = a + static_cast<std::ptrdiff_t>(j) * lda;
        for (int i = j; i < n; ++i) y[i] -= quorin::product(x[i], quorin::conjugate(x[j]));
      }
    }
    return 0;
  }
  const int first = n < 64 ? n / 2 : n / 2 / 32 * 32, second = n - first;
  if (const int failed = factor(first, a, lda)) return failed;
  T* const beside = a + first;
  T* const rest = beside + static_cast<std::ptrdiff_t>(first) * lda;
  blocked::trsm('R', 'L', 'C', 'N', second, first, T{1}, a, lda, beside, lda);
  rank_k('L', 'N', second, first, -1.0, beside, lda, 1.0, rest, lda);
  const int failed = factor(second, rest, lda);
  return failed == 0 ? 0 : failed + first;
}

}  // namespace

extern "C" {
void dsyrk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const double* a,
            const Int* lda, const double* beta, double* c, const Int* ldc);
void zherk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const Complex* a,
            const Int* lda, const double* beta, Complex* c, const Int* ldc);
void dpotrf_(const char* uplo, const Int* n, double* a, const Int* lda, Int* info);
void zpotrf_(const char* uplo, const Int* n, Complex* a, const Int* lda, Int* info);

void dsyrk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const double* a,
            const Int* lda, const double* beta, double* c, const Int* ldc) {
  const quorin::dense::KernelBuffer buffer(1);
  rank_k(*uplo, *trans, *n, *k, *alpha, a, *lda, *beta, c, *ldc);
}
void zherk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const Complex* a,
            const Int* lda, const double* beta, Complex* c, const Int* ldc) {
  const quorin::dense::KernelBuffer buffer(1);
  rank_k(*uplo, *trans, *n, *k, *alpha, a, *lda, *beta, c, *ldc);
}
// CHOLMOD asks for lower triangles alone.
void dpotrf_(const char*, const Int* n, double* a, const Int* lda, Int* info) {
  const quorin::dense::KernelBuffer buffer(1);
  *info = *n == 0 ? 0 : factor(*n, a, *lda);
}
void zpotrf_(const char*, const Int* n, Complex* a, const Int* lda, Int* info) {
  const quorin::dense::KernelBuffer buffer(1);
  *info = *n == 0 ? 0 : factor(*n, a, *lda);
}
}
