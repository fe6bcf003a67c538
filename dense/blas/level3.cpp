#include "dense/blas/level3.hpp"

#include <cmath>
#include <cstddef>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/blas/argument_check.hpp"
#include "dense/blas/partition.hpp"
#include "dense/kernels/small_product.hpp"
#include "dense/openblas/buffers.hpp"
#include "dense/openblas/routines.hpp"

namespace quorin::dense {
namespace {

using Complex = std::complex<float>;
using openblas::Routines;

// A thread should have this many multiplications, some tens of microseconds, to be worth waking.
constexpr double kMultiplicationsPerThread = 1 << 18;
// Parts are cut at multiples of the largest register tile of the kernels.
constexpr int kTile = 16;

template <class Pointer>
Pointer at(Pointer a, int lda, int row, int column) {
  return a + row + static_cast<std::ptrdiff_t>(column) * lda;
}

template <Scalar T>
int threads_for_work(double multiplications) {
  const double work = multiplications * (kIsComplex<T> ? 4 : 1);
  if (work < 2 * kMultiplicationsPerThread || base::in_parallel_region()) return 1;
  return threads_for(work, kMultiplicationsPerThread, base::region_threads(base::Domain::kBlas));
}

// Calls body(threads) with that many packing buffers ready, or reports that there are none.
template <Scalar T, class Body>
void with_buffers(const char* operation, double multiplications, const Body& body) {
  const openblas::BufferReservation buffers(threads_for_work<T>(multiplications));
  if (buffers.granted() == 0) return ArgumentCheck<T>::report(operation, base::kInsufficientWorkspace);
  body(buffers.granted());
}

// Calls body for the ranges of 0..total-1, one for each thread.
template <class Body>
void split(int total, int threads, const Body& body) {
  const int parts = std::clamp((total + kTile - 1) / kTile, 1, threads);
  base::parallel_for(parts, threads, [&](int i) { body(part_range(total, parts, i, kTile)); });
}

// Calls body for the column ranges of an n-by-n triangle, cut so that all have nearly the same area.
template <class Body>
void split_triangle(bool is_upper, int n, int threads, const Body& body) {
  const int parts = std::clamp((n + kTile - 1) / kTile, 1, threads == 1 ? 1 : 2 * threads);
  const auto boundary = [&](int i) {
    if (i == 0 || i == parts) return i == 0 ? 0 : n;
    const double share = static_cast<double>(i) / parts;
    const double column = n * (is_upper ? std::sqrt(share) : 1 - std::sqrt(1 - share));
    return std::min(n, static_cast<int>(std::lround(column / kTile)) * kTile);
  };
  base::parallel_for(parts, threads, [&](int i) {
    const int first = boundary(i);
    body(Range{first, boundary(i + 1) - first});
  });
}

// The rows of column range `columns` that lie outside its diagonal block, in the stored triangle.
Range rows_beside(bool is_upper, int n, Range columns) {
  const int end = columns.first + columns.count;
  return is_upper ? Range{0, columns.first} : Range{end, n - end};
}

// What the checks of one operation with a triangle or a symmetric matrix have in common: C <- alpha A B + beta C with
// A symmetric or Hermitian on the left or on the right.
template <Scalar T>
void symmetric_product(const char* operation, openblas::Symm<T>* routine, char side, char uplo, int m, int n, T alpha,
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
  with_buffers<T>(operation, static_cast<double>(m) * n * order, [&](int threads) {
    split(left ? n : m, threads, [&](Range part) {
      const int row = left ? 0 : part.first, column = left ? part.first : 0;
      const int rows = left ? m : part.count, columns = left ? part.count : n;
      routine(&side, &uplo, &rows, &columns, &alpha, a, &lda, at(b, ldb, row, column), &ldb, &beta,
              at(c, ldc, row, column), &ldc);
    });
  });
}

// B <- alpha op(A) B or alpha B op(A), or with the inverse of A.
template <Scalar T>
void triangular(const char* operation, openblas::Triangular3<T>* routine, char side, char uplo, char transa, char diag,
                int m, int n, T alpha, const T* a, int lda, T* b, int ldb) {
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
  with_buffers<T>(operation, static_cast<double>(m) * n * order / 2, [&](int threads) {
    split(left ? n : m, threads, [&](Range part) {
      const int rows = left ? m : part.count, columns = left ? part.count : n;
      T* const block = left ? at(b, ldb, 0, part.first) : b + part.first;
      routine(&side, &uplo, &transa, &diag, &rows, &columns, &alpha, a, &lda, block, &ldb);
    });
  });
}

// The options of an update of one triangle of C with products of op(A) and op(A)' or op(B)'. Prime is the transpose or,
// with kConjugate, the conjugate transpose. `left` and `right` are what gemm calls op and op with the prime.
struct RankUpdate {
  bool is_upper;
  bool plain;
  char left, right;

  template <bool kConjugate>
  static RankUpdate of(char uplo, char trans) {
    const bool plain = is_one_of(trans, "N");
    const char prime = kConjugate ? 'C' : 'T';
    return {is_one_of(uplo, "U"), plain, plain ? 'N' : prime, plain ? prime : 'N'};
  }

  // Rows (or columns, if op transposes) of A from `first` on.
  template <class T>
  const T* panel(const T* a, int lda, int first) const {
    return plain ? a + first : at(a, lda, 0, first);
  }
};

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

// C <- alpha op(A) op(A)' + beta C on one triangle of C. The columns are cut into blocks: `diagonal` updates the
// triangle on the diagonal, gemm the rectangle beside it.
template <bool kConjugate, Scalar T, class Factor>
void rank_k(const char* operation, openblas::RankK<T, Factor>* diagonal, char uplo, char trans, int n, int k,
            Factor alpha, const T* a, int lda, Factor beta, T* c, int ldc) {
  const RankUpdate update = RankUpdate::of<kConjugate>(uplo, trans);
  const bool arguments_hold = check_rank_update<kConjugate, T>(operation, uplo, trans, n, k)
                                  .require(7, lda >= least_leading_dimension(update.plain ? n : k))
                                  .require(10, ldc >= least_leading_dimension(n))
                                  .passed();
  if (!arguments_hold || n == 0 || ((alpha == Factor{} || k == 0) && beta == Factor{1})) return;
  const T product_alpha = alpha, product_beta = beta;
  with_buffers<T>(operation, static_cast<double>(n) * n * k / 2, [&](int threads) {
    split_triangle(update.is_upper, n, threads, [&](Range columns) {
      const Range rows = rows_beside(update.is_upper, n, columns);
      const T* const panel = update.panel(a, lda, columns.first);
      diagonal(&uplo, &trans, &columns.count, &k, &alpha, panel, &lda, &beta, at(c, ldc, columns.first, columns.first),
               &ldc);
      if (rows.count == 0 || columns.count == 0) return;
      Routines<T>::gemm(&update.left, &update.right, &rows.count, &columns.count, &k, &product_alpha,
                        update.panel(a, lda, rows.first), &lda, panel, &lda, &product_beta,
                        at(c, ldc, rows.first, columns.first), &ldc);
    });
  });
}

// C <- alpha op(A) op(B)' + alpha' op(B) op(A)' + beta C on one triangle of C, cut as in rank_k.
template <bool kConjugate, Scalar T, class BetaFactor>
void rank_2k(const char* operation, openblas::Rank2K<T, BetaFactor>* diagonal, char uplo, char trans, int n, int k,
             T alpha, const T* a, int lda, const T* b, int ldb, BetaFactor beta, T* c, int ldc) {
  const RankUpdate update = RankUpdate::of<kConjugate>(uplo, trans);
  const bool arguments_hold = check_rank_update<kConjugate, T>(operation, uplo, trans, n, k)
                                  .require(7, lda >= least_leading_dimension(update.plain ? n : k))
                                  .require(9, ldb >= least_leading_dimension(update.plain ? n : k))
                                  .require(12, ldc >= least_leading_dimension(n))
                                  .passed();
  if (!arguments_hold || n == 0 || ((alpha == T{} || k == 0) && beta == BetaFactor{1})) return;
  const T product_beta = beta, one{1};
  T mirrored_alpha = alpha;
  if constexpr (kConjugate && kIsComplex<T>) mirrored_alpha = std::conj(alpha);
  with_buffers<T>(operation, static_cast<double>(n) * n * k, [&](int threads) {
    split_triangle(update.is_upper, n, threads, [&](Range columns) {
      const Range rows = rows_beside(update.is_upper, n, columns);
      const T* const panel_a = update.panel(a, lda, columns.first);
      const T* const panel_b = update.panel(b, ldb, columns.first);
      diagonal(&uplo, &trans, &columns.count, &k, &alpha, panel_a, &lda, panel_b, &ldb, &beta,
               at(c, ldc, columns.first, columns.first), &ldc);
      if (rows.count == 0 || columns.count == 0) return;
      T* const block = at(c, ldc, rows.first, columns.first);
      Routines<T>::gemm(&update.left, &update.right, &rows.count, &columns.count, &k, &alpha,
                        update.panel(a, lda, rows.first), &lda, panel_b, &ldb, &product_beta, block, &ldc);
      Routines<T>::gemm(&update.left, &update.right, &rows.count, &columns.count, &k, &mirrored_alpha,
                        update.panel(b, ldb, rows.first), &ldb, panel_a, &lda, &one, block, &ldc);
    });
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
  with_buffers<T>("GEMM", static_cast<double>(m) * n * k, [&](int threads) {
    const Grid grid = make_grid(m, n, threads);
    base::parallel_for(grid.rows * grid.columns, threads, [&](int cell) {
      const Range rows = part_range(m, grid.rows, cell % grid.rows, kTile);
      const Range columns = part_range(n, grid.columns, cell / grid.rows, kTile);
      if (rows.count == 0 || columns.count == 0) return;
      const T* const panel_a = plain_a ? a + rows.first : at(a, lda, 0, rows.first);
      const T* const panel_b = plain_b ? at(b, ldb, 0, columns.first) : b + columns.first;
      Routines<T>::gemm(&transa, &transb, &rows.count, &columns.count, &k, &alpha, panel_a, &lda, panel_b, &ldb, &beta,
                        at(c, ldc, rows.first, columns.first), &ldc);
    });
  });
}

template <Scalar T>
void symm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
          int ldc) {
  symmetric_product<T>("SYMM", Routines<T>::symm, side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void hemm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
          int ldc) {
  symmetric_product<T>("HEMM", Routines<T>::hemm, side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void syrk(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, T beta, T* c, int ldc) {
  rank_k<false, T, T>("SYRK", Routines<T>::syrk, uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
}

template <Scalar T>
void herk(char uplo, char trans, int n, int k, RealOf<T> alpha, const T* a, int lda, RealOf<T> beta, T* c, int ldc) {
  rank_k<true, T, RealOf<T>>("HERK", Routines<T>::herk, uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
}

template <Scalar T>
void syr2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
           int ldc) {
  rank_2k<false, T, T>("SYR2K", Routines<T>::syr2k, uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void her2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, RealOf<T> beta, T* c,
           int ldc) {
  rank_2k<true, T, RealOf<T>>("HER2K", Routines<T>::her2k, uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <Scalar T>
void trmm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb) {
  triangular<T>("TRMM", Routines<T>::trmm, side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);
}

template <Scalar T>
void trsm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb) {
  triangular<T>("TRSM", Routines<T>::trsm, side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);
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

}  // namespace quorin::dense
