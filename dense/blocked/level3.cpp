#include "dense/blocked/level3.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

#include "base/parallel.hpp"
#include "dense/blas/partition.hpp"
#include "dense/blocked/buffers.hpp"
#include "dense/kernels/kernel_set.hpp"
#include "dense/places.hpp"

namespace quorin::dense::blocked {
namespace {

using kernels::Part;
using kernels::Product;
using kernels::Structure;
using kernels::TriangleBlock;
using kernels::View;

// Rows are cut at whole cache lines of the result, columns at whole tiles.
constexpr int kRowTile = 16, kColumnTile = 28;

template <class Pointer>
Pointer at(Pointer a, int lda, int row, int column) noexcept {
  return a + row + static_cast<std::ptrdiff_t>(column) * lda;
}

// op(A) for `trans` N, T or C.
template <Scalar T>
View<T> view_of(char trans, const T* a, int lda) noexcept {
  if (trans == 'N') return {a, 1, lda};
  return {a, lda, 1, kIsComplex<T> && trans == 'C'};
}

template <Scalar T>
View<T> symmetric_view(char uplo, bool is_hermitian, const T* a, int lda) noexcept {
  return {a, 1, lda, false, uplo == 'U' ? Structure::kUpper : Structure::kLower, is_hermitian && kIsComplex<T>};
}

// What one thread computes a part of an operation with: kernels, a buffer, and the care for registers. The size of the
// whole operation chooses, so that bits do not depend on how it is cut.
template <Scalar T>
class Workshop {
 public:
  explicit Workshop(bool is_small) noexcept : set_(is_small ? kernels::small_kernels<T>() : kernels::kernels<T>()) {
    buffer_ = is_small ? small_buffer_.data() : lent_.emplace().data();
  }
  ~Workshop() {
    if (set_.uses_wide_registers) kernels::leave_wide_registers();
  }
  Workshop(const Workshop&) = delete;
  Workshop& operator=(const Workshop&) = delete;

  void multiply(const Product<T>& product) const noexcept { set_.multiply(product, set_.blocking, buffer_); }
  void solve_triangle(const TriangleBlock<T>& block) const noexcept { set_.solve_triangle(block, buffer_); }
  void multiply_triangle(const TriangleBlock<T>& block) const noexcept { set_.multiply_triangle(block, buffer_); }

 private:
  const kernels::KernelSet<T>& set_;
  std::byte* buffer_ = nullptr;
  std::optional<LentBuffer> lent_;
  alignas(kernels::kBufferAlignment) std::array<std::byte, kernels::kSmallBufferBytes> small_buffer_;
};

// A whole product, cut into a grid.
template <Scalar T>
void multiply(const Product<T>& product, int most_threads) noexcept {
  const bool is_small = kernels::is_small<T>(product.rows, product.columns, product.k);
  const int threads = threads_for_products<T>(product_work(product.rows, product.columns, product.k), most_threads);
  if (threads == 1) return Workshop<T>(is_small).multiply(product);
  const Grid grid = make_grid(product.rows, product.columns, threads);
  base::parallel_for(grid.rows * grid.columns, threads, [&](int cell) {
    const Range rows = part_range(product.rows, grid.rows, cell % grid.rows, kRowTile);
    const Range columns = part_range(product.columns, grid.columns, cell / grid.rows, kColumnTile);
    Product<T> part = product;
    part.first_row = rows.first;
    part.rows = rows.count;
    part.first_column = columns.first;
    part.columns = columns.count;
    Workshop<T>(is_small).multiply(part);
  });
}

// Calls body for the column ranges of an n-by-n triangle, cut so that all have nearly the same area.
template <class Body>
void split_triangle(bool is_upper, int n, int threads, const Body& body) noexcept {
  // More parts than threads even out what one of them is late by, but each of them packs for itself.
  constexpr int kWideEnough = 128;
  const int most = threads == 1 ? 1 : std::clamp(n / kWideEnough, threads, 2 * threads);
  const int parts = std::clamp((n + kColumnTile - 1) / kColumnTile, 1, most);
  const auto boundary = [&](int i) {
    if (i == 0 || i == parts) return i == 0 ? 0 : n;
    const double share = static_cast<double>(i) / parts;
    const double column = n * (is_upper ? std::sqrt(share) : 1 - std::sqrt(1 - share));
    return std::min(n, static_cast<int>(std::lround(column / kColumnTile)) * kColumnTile);
  };
  base::parallel_for(parts, threads, [&](int i) {
    const int first = boundary(i);
    body(Range{first, boundary(i + 1) - first});
  });
}

// The rows of a triangle that some columns of it reach.
Range rows_of(bool is_upper, int n, Range columns) noexcept {
  const int end = columns.first + columns.count;
  return is_upper ? Range{0, end} : Range{columns.first, n - columns.first};
}

// A Hermitian diagonal is real, whatever stands there.
template <Scalar T>
void make_diagonal_real(T* c, int ldc, Range columns) noexcept {
  if constexpr (kIsComplex<T>) {
    for (int j = columns.first; j < columns.first + columns.count; ++j) *at(c, ldc, j, j) = at(c, ldc, j, j)->real();
  }
}

// One triangle of C <- beta C + sums of products, for `count` products, all with terms of C's size.
template <Scalar T, class BetaFactor>
void update_triangle(char uplo, bool is_hermitian, int n, BetaFactor beta, T* c, int ldc, int most_threads,
                     const Product<T>* products, int count) noexcept {
  const bool is_upper = uplo == 'U';
  const int threads = threads_for_products<T>(count * triangle_work(n, products[0].k), most_threads);
  const bool is_small = kernels::is_small<T>(n, n, products[0].k);
  split_triangle(is_upper, n, threads, [&](Range columns) {
    const Workshop<T> workshop(is_small);
    const Range rows = rows_of(is_upper, n, columns);
    if (is_hermitian) make_diagonal_real(c, ldc, columns);
    T rest = beta;
    if constexpr (kIsComplex<T> && !kIsComplex<BetaFactor>) {
      // A real factor leaves an infinite part alone, which as a complex one it would make a NaN of.
      if (beta != 0 && beta != 1) {
        for (int j = columns.first; j < columns.first + columns.count; ++j) {
          T* const cj = at(c, ldc, 0, j);
          for (int i = is_upper ? 0 : j; i < (is_upper ? j + 1 : n); ++i) {
            cj[i] = T(beta * cj[i].real(), beta * cj[i].imag());
          }
        }
        rest = 1;
      }
    }
    for (int i = 0; i < count; ++i) {
      Product<T> part = products[i];
      part.beta = i == 0 ? rest : T{1};
      part.first_row = rows.first;
      part.rows = rows.count;
      part.first_column = columns.first;
      part.columns = columns.count;
      part.part = is_upper ? Part::kUpper : Part::kLower;
      workshop.multiply(part);
    }
    if (is_hermitian) make_diagonal_real(c, ldc, columns);
  });
}

// alpha op(A) op(B)'
template <Scalar T>
Product<T> rank_k_product(char trans, bool is_hermitian, int k, T alpha, const T* a, int lda, const T* b, int ldb, T* c,
                          int ldc) noexcept {
  const char prime = is_hermitian ? 'C' : 'T';
  const View<T> left = view_of(trans == 'N' ? 'N' : prime, a, lda), right = view_of(trans == 'N' ? prime : 'N', b, ldb);
  return {left, right, k, alpha, T{}, c, ldc, 0, 0, 0, 0};
}

// ---- Triangles ------------------------------------------------------------------------------------------------------

// The eight forms of op(A) B and B op(A) with an upper or lower A are one: vectors x (columns or rows of B), and a
// lower triangle L that multiplies or divides them, elements being counted from the one that depends on no other. Steps
// are negative where that one is the last.
template <Scalar T>
struct Triangular {
  bool is_left;
  TriangleBlock<T> whole;  // order, count: all
  const Workshop<T>& workshop;

  // x_p..: sums over q < h of L(p, q) x_q, times `sign`, are added to the x_p of h <= p < order.
  void add_products(int first, int h, int order, T sign) const noexcept {
    const TriangleBlock<T>& w = whole;
    const bool is_reversed = w.x_step < 0;
    // The first ones in memory.
    const int p = first + (is_reversed ? order - 1 : h), q = first + (is_reversed ? h - 1 : 0);
    const std::ptrdiff_t direction = is_reversed ? -1 : 1;
    const T* const l = w.triangle + p * w.row_step + q * w.column_step;
    const std::ptrdiff_t row_step = direction * w.row_step, column_step = direction * w.column_step,
                         x_step = direction * w.x_step;
    T *const sums = w.x + p * w.x_step, *const terms = w.x + q * w.x_step;
    if (is_left) {
      workshop.multiply(Product<T>{{l, row_step, column_step, w.is_conjugated},
                                   {terms, 1, w.vector_step},
                                   h,
                                   sign,
                                   T{1},
                                   sums,
                                   w.vector_step,
                                   0,
                                   order - h,
                                   0,
                                   w.count});
    } else {
      workshop.multiply(Product<T>{{terms, 1, x_step},
                                   {l, column_step, row_step, w.is_conjugated},
                                   h,
                                   sign,
                                   T{1},
                                   sums,
                                   x_step,
                                   0,
                                   w.count,
                                   0,
                                   order - h});
    }
  }

  TriangleBlock<T> diagonal_block(int first, int order) const noexcept {
    TriangleBlock<T> block = whole;
    block.order = order;
    block.triangle += first * (whole.row_step + whole.column_step);
    block.x += first * whole.x_step;
    return block;
  }

  static int first_half(int order) noexcept {
    constexpr int kOrder = kernels::kTriangleOrder;
    return (order / 2 + kOrder - 1) / kOrder * kOrder;
  }

  // Columns of B by strips, which stay in the second cache while small triangles and the products between them pass;
  // rows of B lie together anyway. Calls work(strip) for each, or returns false where there is nothing to be cut.
  template <class Work>
  bool in_strips(int order, const Work& work) const noexcept {
    constexpr int kMostOrder = 256, kColumns = 128;
    if (!is_left || order <= kernels::kTriangleOrder || order > kMostOrder || whole.count <= kColumns) return false;
    for (int j = 0; j < whole.count; j += kColumns) {
      Triangular strip = *this;
      strip.whole.x += j * whole.vector_step;
      strip.whole.count = std::min(kColumns, whole.count - j);
      work(strip);
    }
    return true;
  }

  void solve(int first, int order) const noexcept {
    if (in_strips(order, [=](const Triangular& strip) { strip.solve(first, order); })) return;
    if (order == whole.order && order <= kernels::kTriangleOrder) return workshop.solve_triangle(whole);
    if (order <= kernels::kTriangleOrder) return workshop.solve_triangle(diagonal_block(first, order));
    const int h = first_half(order);
    solve(first, h);
    add_products(first, h, order, T{-1});
    solve(first + h, order - h);
  }

  void apply(int first, int order) const noexcept {
    if (in_strips(order, [=](const Triangular& strip) { strip.apply(first, order); })) return;
    if (order == whole.order && order <= kernels::kTriangleOrder) return workshop.multiply_triangle(whole);
    if (order <= kernels::kTriangleOrder) return workshop.multiply_triangle(diagonal_block(first, order));
    const int h = first_half(order);
    apply(first + h, order - h);
    add_products(first, h, order, T{1});
    apply(first, h);
  }
};

template <Scalar T>
Triangular<T> triangular(bool is_left, char uplo, char transa, char diag, int order, const T* a, int lda, T* b, int ldb,
                         const Workshop<T>& workshop) noexcept {
  View<T> l = view_of(transa, a, lda);
  bool is_lower = (uplo == 'L') == (transa == 'N');
  if (!is_left) {  // B op(A) is the transpose of op(A)^T B^T
    std::swap(l.row_step, l.column_step);
    is_lower = !is_lower;
  }
  std::ptrdiff_t x_step = is_left ? 1 : ldb;
  const std::ptrdiff_t vector_step = is_left ? ldb : 1;
  if (!is_lower) {
    l.data += (order - 1) * (l.row_step + l.column_step);
    b += (order - 1) * x_step;
    l.row_step = -l.row_step;
    l.column_step = -l.column_step;
    x_step = -x_step;
  }
  return {is_left,
          {order, l.data, l.row_step, l.column_step, l.is_conjugated, diag == 'U', 0, b, x_step, vector_step},
          workshop};
}

template <Scalar T, class Run>
void run_triangular(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b,
                    int ldb, int most_threads, const Run& run) noexcept {
  if (m == 0 || n == 0) return;
  const bool is_left = side == 'L';
  const int vectors = is_left ? n : m, order = is_left ? m : n;
  const int threads = threads_for_products<T>(product_work(vectors, order, order / 2), most_threads);
  const int parts = std::clamp((vectors + kRowTile - 1) / kRowTile, 1, threads);
  const bool is_small = kernels::is_small_triangle<T>(order, vectors);
  base::parallel_for(parts, threads, [&](int i) {
    const Workshop<T> workshop(is_small);
    const Range part = part_range(vectors, parts, i, kRowTile);
    T* const block = is_left ? at(b, ldb, 0, part.first) : b + part.first;
    if (alpha != T{1}) {
      const int rows = is_left ? m : part.count, columns = is_left ? part.count : n;
      workshop.multiply(Product<T>{{}, {}, 0, T{}, alpha, block, ldb, 0, rows, 0, columns});
      if (alpha == T{}) return;
    }
    Triangular<T> operation = triangular(is_left, uplo, transa, diag, order, a, lda, block, ldb, workshop);
    operation.whole.count = part.count;
    run(operation, order);
  });
}

}  // namespace

template <Scalar T>
void gemm(char transa, char transb, int m, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta,
          T* c, int ldc, int threads) noexcept {
  multiply(Product<T>{view_of(transa, a, lda), view_of(transb, b, ldb), k, alpha, beta, c, ldc, 0, m, 0, n}, threads);
}

template <Scalar T>
void subtract_at_places(bool is_conjugated, bool is_lower, int m, int n, int k, const T* a, int lda, const T* b,
                        int ldb, T* c, int ldc, const int* rows, const int* columns) noexcept {
  Workshop<T>(kernels::is_small<T>(m, n, k))
      .multiply(Product<T>{view_of('N', a, lda), view_of(is_conjugated ? 'C' : 'T', b, ldb), k, T{-1}, T{1}, c, ldc, 0,
                           m, 0, n, is_lower ? Part::kLower : Part::kAll, rows, columns});
}

template <Scalar T>
void symm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc,
          int threads) noexcept {
  const View<T> symmetric = symmetric_view(uplo, false, a, lda), general = view_of('N', b, ldb);
  multiply(side == 'L' ? Product<T>{symmetric, general, m, alpha, beta, c, ldc, 0, m, 0, n}
                       : Product<T>{general, symmetric, n, alpha, beta, c, ldc, 0, m, 0, n},
           threads);
}

template <Scalar T>
void hemm(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc,
          int threads) noexcept {
  const View<T> hermitian = symmetric_view(uplo, true, a, lda), general = view_of('N', b, ldb);
  multiply(side == 'L' ? Product<T>{hermitian, general, m, alpha, beta, c, ldc, 0, m, 0, n}
                       : Product<T>{general, hermitian, n, alpha, beta, c, ldc, 0, m, 0, n},
           threads);
}

template <Scalar T>
void syrk(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, T beta, T* c, int ldc,
          int threads) noexcept {
  const Product<T> product = rank_k_product(trans, false, k, alpha, a, lda, a, lda, c, ldc);
  update_triangle(uplo, false, n, beta, c, ldc, threads, &product, 1);
}

template <Scalar T>
void herk(char uplo, char trans, int n, int k, RealOf<T> alpha, const T* a, int lda, RealOf<T> beta, T* c, int ldc,
          int threads) noexcept {
  const Product<T> product = rank_k_product(trans, true, k, T(alpha), a, lda, a, lda, c, ldc);
  update_triangle(uplo, true, n, beta, c, ldc, threads, &product, 1);
}

template <Scalar T>
void gemmt(char uplo, char transa, char transb, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta,
           T* c, int ldc, int threads) noexcept {
  const Product<T> product{view_of(transa, a, lda), view_of(transb, b, ldb), k, alpha, T{}, c, ldc, 0, 0, 0, 0};
  update_triangle(uplo, false, n, beta, c, ldc, threads, &product, 1);
}

template <Scalar T>
void syr2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c,
           int ldc, int threads) noexcept {
  const Product<T> products[] = {rank_k_product(trans, false, k, alpha, a, lda, b, ldb, c, ldc),
                                 rank_k_product(trans, false, k, alpha, b, ldb, a, lda, c, ldc)};
  update_triangle(uplo, false, n, beta, c, ldc, threads, products, 2);
}

template <Scalar T>
void her2k(char uplo, char trans, int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, RealOf<T> beta, T* c,
           int ldc, int threads) noexcept {
  const Product<T> products[] = {rank_k_product(trans, true, k, alpha, a, lda, b, ldb, c, ldc),
                                 rank_k_product(trans, true, k, conjugate(alpha), b, ldb, a, lda, c, ldc)};
  update_triangle(uplo, true, n, beta, c, ldc, threads, products, 2);
}

template <Scalar T>
void trmm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb,
          int threads) noexcept {
  run_triangular(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb, threads,
                 [](const Triangular<T>& operation, int order) { operation.apply(0, order); });
}

template <Scalar T>
void trsm(char side, char uplo, char transa, char diag, int m, int n, T alpha, const T* a, int lda, T* b, int ldb,
          int threads) noexcept {
  run_triangular(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb, threads,
                 [](const Triangular<T>& operation, int order) { operation.solve(0, order); });
}

template void gemm<float>(char, char, int, int, int, float, const float*, int, const float*, int, float, float*, int,
                          int) noexcept;
template void subtract_at_places<float>(bool, bool, int, int, int, const float*, int, const float*, int, float*, int,
                                        const int*, const int*) noexcept;
template void symm<float>(char, char, int, int, float, const float*, int, const float*, int, float, float*, int,
                          int) noexcept;
template void hemm<float>(char, char, int, int, float, const float*, int, const float*, int, float, float*, int,
                          int) noexcept;
template void syrk<float>(char, char, int, int, float, const float*, int, float, float*, int, int) noexcept;
template void herk<float>(char, char, int, int, float, const float*, int, float, float*, int, int) noexcept;
template void gemmt<float>(char, char, char, int, int, float, const float*, int, const float*, int, float, float*, int,
                           int) noexcept;
template void syr2k<float>(char, char, int, int, float, const float*, int, const float*, int, float, float*, int,
                           int) noexcept;
template void her2k<float>(char, char, int, int, float, const float*, int, const float*, int, float, float*, int,
                           int) noexcept;
template void trmm<float>(char, char, char, char, int, int, float, const float*, int, float*, int, int) noexcept;
template void trsm<float>(char, char, char, char, int, int, float, const float*, int, float*, int, int) noexcept;

template void gemm<double>(char, char, int, int, int, double, const double*, int, const double*, int, double, double*,
                           int, int) noexcept;
template void subtract_at_places<double>(bool, bool, int, int, int, const double*, int, const double*, int, double*,
                                         int, const int*, const int*) noexcept;
template void symm<double>(char, char, int, int, double, const double*, int, const double*, int, double, double*, int,
                           int) noexcept;
template void hemm<double>(char, char, int, int, double, const double*, int, const double*, int, double, double*, int,
                           int) noexcept;
template void syrk<double>(char, char, int, int, double, const double*, int, double, double*, int, int) noexcept;
template void herk<double>(char, char, int, int, double, const double*, int, double, double*, int, int) noexcept;
template void gemmt<double>(char, char, char, int, int, double, const double*, int, const double*, int, double, double*,
                            int, int) noexcept;
template void syr2k<double>(char, char, int, int, double, const double*, int, const double*, int, double, double*, int,
                            int) noexcept;
template void her2k<double>(char, char, int, int, double, const double*, int, const double*, int, double, double*, int,
                            int) noexcept;
template void trmm<double>(char, char, char, char, int, int, double, const double*, int, double*, int, int) noexcept;
template void trsm<double>(char, char, char, char, int, int, double, const double*, int, double*, int, int) noexcept;

template void gemm<std::complex<float>>(char, char, int, int, int, std::complex<float>, const std::complex<float>*, int,
                                        const std::complex<float>*, int, std::complex<float>, std::complex<float>*, int,
                                        int) noexcept;
template void subtract_at_places<std::complex<float>>(bool, bool, int, int, int, const std::complex<float>*, int,
                                                      const std::complex<float>*, int, std::complex<float>*, int,
                                                      const int*, const int*) noexcept;
template void symm<std::complex<float>>(char, char, int, int, std::complex<float>, const std::complex<float>*, int,
                                        const std::complex<float>*, int, std::complex<float>, std::complex<float>*, int,
                                        int) noexcept;
template void hemm<std::complex<float>>(char, char, int, int, std::complex<float>, const std::complex<float>*, int,
                                        const std::complex<float>*, int, std::complex<float>, std::complex<float>*, int,
                                        int) noexcept;
template void syrk<std::complex<float>>(char, char, int, int, std::complex<float>, const std::complex<float>*, int,
                                        std::complex<float>, std::complex<float>*, int, int) noexcept;
template void herk<std::complex<float>>(char, char, int, int, float, const std::complex<float>*, int, float,
                                        std::complex<float>*, int, int) noexcept;
template void gemmt<std::complex<float>>(char, char, char, int, int, std::complex<float>, const std::complex<float>*,
                                         int, const std::complex<float>*, int, std::complex<float>,
                                         std::complex<float>*, int, int) noexcept;
template void syr2k<std::complex<float>>(char, char, int, int, std::complex<float>, const std::complex<float>*, int,
                                         const std::complex<float>*, int, std::complex<float>, std::complex<float>*,
                                         int, int) noexcept;
template void her2k<std::complex<float>>(char, char, int, int, std::complex<float>, const std::complex<float>*, int,
                                         const std::complex<float>*, int, float, std::complex<float>*, int,
                                         int) noexcept;
template void trmm<std::complex<float>>(char, char, char, char, int, int, std::complex<float>,
                                        const std::complex<float>*, int, std::complex<float>*, int, int) noexcept;
template void trsm<std::complex<float>>(char, char, char, char, int, int, std::complex<float>,
                                        const std::complex<float>*, int, std::complex<float>*, int, int) noexcept;

template void gemm<std::complex<double>>(char, char, int, int, int, std::complex<double>, const std::complex<double>*,
                                         int, const std::complex<double>*, int, std::complex<double>,
                                         std::complex<double>*, int, int) noexcept;
template void subtract_at_places<std::complex<double>>(bool, bool, int, int, int, const std::complex<double>*, int,
                                                       const std::complex<double>*, int, std::complex<double>*, int,
                                                       const int*, const int*) noexcept;
template void symm<std::complex<double>>(char, char, int, int, std::complex<double>, const std::complex<double>*, int,
                                         const std::complex<double>*, int, std::complex<double>, std::complex<double>*,
                                         int, int) noexcept;
template void hemm<std::complex<double>>(char, char, int, int, std::complex<double>, const std::complex<double>*, int,
                                         const std::complex<double>*, int, std::complex<double>, std::complex<double>*,
                                         int, int) noexcept;
template void syrk<std::complex<double>>(char, char, int, int, std::complex<double>, const std::complex<double>*, int,
                                         std::complex<double>, std::complex<double>*, int, int) noexcept;
template void herk<std::complex<double>>(char, char, int, int, double, const std::complex<double>*, int, double,
                                         std::complex<double>*, int, int) noexcept;
template void gemmt<std::complex<double>>(char, char, char, int, int, std::complex<double>, const std::complex<double>*,
                                          int, const std::complex<double>*, int, std::complex<double>,
                                          std::complex<double>*, int, int) noexcept;
template void syr2k<std::complex<double>>(char, char, int, int, std::complex<double>, const std::complex<double>*, int,
                                          const std::complex<double>*, int, std::complex<double>, std::complex<double>*,
                                          int, int) noexcept;
template void her2k<std::complex<double>>(char, char, int, int, std::complex<double>, const std::complex<double>*, int,
                                          const std::complex<double>*, int, double, std::complex<double>*, int,
                                          int) noexcept;
template void trmm<std::complex<double>>(char, char, char, char, int, int, std::complex<double>,
                                         const std::complex<double>*, int, std::complex<double>*, int, int) noexcept;
template void trsm<std::complex<double>>(char, char, char, char, int, int, std::complex<double>,
                                         const std::complex<double>*, int, std::complex<double>*, int, int) noexcept;

}  // namespace quorin::dense::blocked
