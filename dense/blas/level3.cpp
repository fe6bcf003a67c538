#include "dense/blas/level3.hpp"

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/blas/argument_check.hpp"
#include "dense/blas/partition.hpp"
#include "dense/blocked/buffers.hpp"
#include "dense/blocked/level3.hpp"
#include "dense/kernels/kernel_set.hpp"
#include "dense/kernels/small_product.hpp"

namespace quorin::dense {
namespace {

using Complex = std::complex<float>;
using DoubleComplex = std::complex<double>;

// The unchecked routines.
template <class T>
using Symmetric = decltype(blocked::symm<T>);
template <class T>
using Triangular = decltype(blocked::trmm<T>);
template <class T, class Factor>
using RankK = void(char uplo, char trans, int n, int k, Factor alpha, const T* a, int lda, Factor beta, T* c, int ldc,
                   int threads) noexcept;
template <class T, class BetaFactor>
using Rank2K = void(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb,
                    BetaFactor beta, T* c, int ldc, int threads) noexcept;

template <Scalar T>
int available_threads(double multiplications) {
  if (threads_for_products<T>(multiplications, 2) < 2 || base::in_parallel_region()) return 1;
  return threads_for_products<T>(multiplications, base::region_threads(base::Domain::kBlas));
}

// For an operation of which `counted` multiplications pay for threads: calls body(threads) with that many packing
// buffers ready, or reports that there are none.
template <Scalar T, class Body>
void with_buffers(const char* operation, bool is_small, double counted, const Body& body) {
  if (is_small) return body(1);  // its buffer is on the stack
  const blocked::BufferReservation buffers(available_threads<T>(counted));
  if (buffers.granted() == 0) return ArgumentCheck<T>::report(operation, base::kInsufficientWorkspace);
  body(buffers.granted());
}

// What the checks of one operation with a triangle or a symmetric matrix have in common: C <- alpha A B + beta C with
// A symmetric or Hermitian on the left or on the right.
template <Scalar T>
void symmetric_product(const char* operation, Symmetric<T>* routine, char side, char uplo, int m, int n, T alpha,
                       const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc) {
  const bool left = is_one_of(side, "L");
  const int order = left ? m : n;
  const bool arguments_hold = ArgumentCheck<T>(operation)
                                  .require(1, is_one_of(side, "LR"))
                                  .require(2, is_one_of(uplo, "UL"))
                                  .require(3, m >= 0)
                                  .require(4, n >= 0)
                                  .require(7, lda >= least_leading_dimension(order))
                                  .require(9, ldb >= least_leading_dimension(m))
                                  .require(12, ldc >= least_leading_dimension(m))
                                  .passed();
  if (!arguments_hold || m == 0 || n == 0 || (alpha == T{} && beta == T{1})) return;
  with_buffers<T>(operation, kernels::is_small<T>(m, n, order), product_work(m, n, order), [&](int threads) {
    routine(upper(side), upper(uplo), m, n, alpha, a, lda, b, ldb, beta, c, ldc, threads);
  });
}

// B <- alpha op(A) B or alpha B op(A), or with the inverse of A.
template <Scalar T>
void triangular(const char* operation, Triangular<T>* routine, char side, char uplo, char transa, char diag, int m,
                int n, T alpha, const T* a, int lda, T* b, int ldb) {
  const bool left = is_one_of(side, "L");
  const int order = left ? m : n;
  const bool arguments_hold = ArgumentCheck<T>(operation)
                                  .require(1, is_one_of(side, "LR"))
                                  .require(2, is_one_of(uplo, "UL"))
                                  .require(3, is_one_of(transa, "NTC"))
                                  .require(4, is_one_of(diag, "UN"))
                                  .require(5, m >= 0)
                                  .require(6, n >= 0)
                                  .require(9, lda >= least_leading_dimension(order))
                                  .require(11, ldb >= least_leading_dimension(m))
                                  .passed();
  if (!arguments_hold || m == 0 || n == 0) return;
  const int vectors = left ? n : m;
  with_buffers<T>(operation, kernels::is_small_triangle<T>(order, vectors), product_work(vectors, order, order / 2),
                  [&](int threads) {
                    routine(upper(side), upper(uplo), upper(transa), upper(diag), m, n, alpha, a, lda, b, ldb, threads);
                  });
}

// The checks of the arguments that all such updates begin with.
template <bool kConjugate, Scalar T>
ArgumentCheck<T> check_rank_update(const char* operation, char uplo, char trans, int n, int k) {
  constexpr const char* kOptions = !kIsComplex<T> ? "NTC" : kConjugate ? "NC" : "NT";
  return ArgumentCheck<T>(operation)
      .require(1, is_one_of(uplo, "UL"))
      .require(2, is_one_of(trans, kOptions))
      .require(3, n >= 0)
      .require(4, k >= 0);
}

template <bool kConjugate, Scalar T, class Factor>
void rank_k(const char* operation, RankK<T, Factor>* routine, char uplo, char trans, int n, int k, Factor alpha,
            const T* a, int lda, Factor beta, T* c, int ldc) {
  const bool arguments_hold = check_rank_update<kConjugate, T>(operation, uplo, trans, n, k)
                                  .require(7, lda >= least_leading_dimension(is_one_of(trans, "N") ? n : k))
                                  .require(10, ldc >= least_leading_dimension(n))
                                  .passed();
  if (!arguments_hold || n == 0 || ((alpha == Factor{} || k == 0) && beta == Factor{1})) return;
  with_buffers<T>(operation, kernels::is_small<T>(n, n, k), triangle_work(n, k),
                  [&](int threads) { routine(upper(uplo), upper(trans), n, k, alpha, a, lda, beta, c, ldc, threads); });
}

template <bool kConjugate, Scalar T, class BetaFactor>
void rank_2k(const char* operation, Rank2K<T, BetaFactor>* routine, char uplo, char trans, int n, int k, T alpha,
             const T* a, int lda, const T* b, int ldb, BetaFactor beta, T* c, int ldc) {
  const int rows = is_one_of(trans, "N") ? n : k;
  const bool arguments_hold = check_rank_update<kConjugate, T>(operation, uplo, trans, n, k)
                                  .require(7, lda >= least_leading_dimension(rows))
                                  .require(9, ldb >= least_leading_dimension(rows))
                                  .require(12, ldc >= least_leading_dimension(n))
                                  .passed();
  if (!arguments_hold || n == 0 || ((alpha == T{} || k == 0) && beta == BetaFactor{1})) return;
  with_buffers<T>(operation, kernels::is_small<T>(n, n, k), 2 * triangle_work(n, k), [&](int threads) {
    routine(upper(uplo), upper(trans), n, k, alpha, a, lda, b, ldb, beta, c, ldc, threads);
  });
}

}  // namespace

template <Scalar T>
void gemm(char transa, char transb, int m, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta,
          T* c, int ldc) {
  const bool plain_a = is_one_of(transa, "N"), plain_b = is_one_of(transb, "N");
  const bool arguments_hold = ArgumentCheck<T>("GEMM")
                                  .require(1, is_one_of(transa, "NTC"))
                                  .require(2, is_one_of(transb, "NTC"))
                                  .require(3, m >= 0)
                                  .require(4, n >= 0)
                                  .require(5, k >= 0)
                                  .require(8, lda >= least_leading_dimension(plain_a ? m : k))
                                  .require(10, ldb >= least_leading_dimension(plain_b ? k : n))
                                  .require(13, ldc >= least_leading_dimension(m))
                                  .passed();
  if (!arguments_hold || m == 0 || n == 0 || ((alpha == T{} || k == 0) && beta == T{1})) return;
  if (is_small_product<T>(m, n, k)) {
    return small_product<T>(m, n, k, alpha, {transa, a, lda}, {transb, b, ldb}, beta, c, ldc);
  }
  with_buffers<T>("GEMM", kernels::is_small<T>(m, n, k), product_work(m, n, k), [&](int threads) {
    blocked::gemm(upper(transa), upper(transb), m, n, k, alpha, a, lda, b, ldb, beta, c, ldc, threads);
  });
}

template <Scalar T>
void symm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
          int ldc) {
  symmetric_product<T>("SYMM", blocked::symm<T>, side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void hemm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
          int ldc) {
  symmetric_product<T>("HEMM", blocked::hemm<T>, side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void syrk(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, T beta, T* c, int ldc) {
  rank_k<false, T, T>("SYRK", blocked::syrk<T>, uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
}

template <Scalar T>
void herk(char uplo, char trans, int n, int k, RealOf<T> alpha, const T* a, int lda, RealOf<T> beta, T* c, int ldc) {
  rank_k<true, T, RealOf<T>>("HERK", blocked::herk<T>, uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
}

template <Scalar T>
void syr2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
           int ldc) {
  rank_2k<false, T, T>("SYR2K", blocked::syr2k<T>, uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void her2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, RealOf<T> beta, T* c,
           int ldc) {
  rank_2k<true, T, RealOf<T>>("HER2K", blocked::her2k<T>, uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void trmm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb) {
  triangular<T>("TRMM", blocked::trmm<T>, side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);
}

template <Scalar T>
void trsm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb) {
  triangular<T>("TRSM", blocked::trsm<T>, side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);
}

template void gemm(char, char, int, int, int, float, const float*, int, const float*, int, float, float*, int);
template void symm(char, char, int, int, float, const float*, int, const float*, int, float, float*, int);
template void syrk(char, char, int, int, float, const float*, int, float, float*, int);
template void syr2k(char, char, int, int, float, const float*, int, const float*, int, float, float*, int);
template void trmm(char, char, char, char, int, int, float, const float*, int, float*, int);
template void trsm(char, char, char, char, int, int, float, const float*, int, float*, int);

template void gemm(char, char, int, int, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*,
                   int);
template void symm(char, char, int, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*, int);
template void hemm(char, char, int, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*, int);
template void syrk(char, char, int, int, Complex, const Complex*, int, Complex, Complex*, int);
template void herk<Complex>(char, char, int, int, float, const Complex*, int, float, Complex*, int);
template void syr2k(char, char, int, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*, int);
template void her2k<Complex>(char, char, int, int, Complex, const Complex*, int, const Complex*, int, float, Complex*,
                             int);
template void trmm(char, char, char, char, int, int, Complex, const Complex*, int, Complex*, int);
template void trsm(char, char, char, char, int, int, Complex, const Complex*, int, Complex*, int);

// For the library's own use.
template void gemm(char, char, int, int, int, double, const double*, int, const double*, int, double, double*, int);
template void trsm(char, char, char, char, int, int, double, const double*, int, double*, int);
template void gemm(char, char, int, int, int, DoubleComplex, const DoubleComplex*, int, const DoubleComplex*, int,
                   DoubleComplex, DoubleComplex*, int);
template void trsm(char, char, char, char, int, int, DoubleComplex, const DoubleComplex*, int, DoubleComplex*, int);

}  // namespace quorin::dense
