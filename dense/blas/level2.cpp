#include "dense/blas/level2.hpp"

#include <cstddef>
#include <cstdint>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/blas/argument_check.hpp"
#include "dense/blas/partition.hpp"
#include "dense/kernels/matrix_vector.hpp"
#include "dense/kernels/vector_kernels.hpp"

namespace quorin::dense {
namespace {

using Complex = std::complex<float>;
using DoubleComplex = std::complex<double>;

// A thread should have this many matrix elements, 1.5 MiB of floats, to be worth waking.
constexpr double kElementsPerThread = 3 << 17;

// Strided vectors go through copies of so many elements at a time, on the stack.
constexpr int kChunk = 512;

// The names of symmetric and Hermitian operations differ only in the published name.
template <Scalar T>
constexpr const char* named(const char* real_name, const char* complex_name) {
  return kIsComplex<T> ? complex_name : real_name;
}

// Where the first entry of a strided vector stands.
template <class Pointer>
Pointer first_entry(Pointer x, int length, int inc) {
  return inc > 0 ? x : x - static_cast<std::ptrdiff_t>(length - 1) * inc;
}

// y <- beta y; what y holds does not matter for beta = 0.
template <Scalar T>
void scale(int n, T beta, T* y, std::ptrdiff_t incy) {
  if (beta == T{1}) return;
  for (int i = 0; i < n; ++i, y += incy) *y = beta == T{} ? T{} : product(beta, *y);
}

// Runs `part` over the ranges of 0..total-1, one for each thread.
template <class Part>
void run_parts(int total, int threads, const Part& part) {
  constexpr int kTile = 16;
  base::parallel_for(threads, threads, [&](int i) { part(part_range(total, threads, i, kTile)); });
}

int threads_for_matrix(int m, int n) {
  const double elements = static_cast<double>(m) * n;
  if (elements < 2 * kElementsPerThread || base::in_parallel_region()) return 1;
  return threads_for(elements, kElementsPerThread, base::region_threads(base::Domain::kBlas));
}

// A vector by its first entry and the step to the next.
template <class Element>
struct Strided {
  Strided(Element* x, int length, int inc) : first(first_entry(x, length, inc)), step(inc) {}
  Strided(Element* first_element, std::ptrdiff_t step_to_next) : first(first_element), step(step_to_next) {}
  Element& operator[](int i) const { return first[i * step]; }
  Strided from(int i) const { return {first + i * step, step}; }

  Element* first;
  std::ptrdiff_t step;
};

// A piece of a strided vector where kernels want it: in place if its step is 1, else copied.
template <Scalar T>
class Gathered {
 public:
  Gathered(const Strided<const T>& x, int count) : data_(x.step == 1 ? x.first : copy_) {
    for (int i = 0; i < count && x.step != 1; ++i) copy_[i] = x[i];
  }
  Gathered(const Gathered&) = delete;
  Gathered& operator=(const Gathered&) = delete;
  const T* data() const { return data_; }

 private:
  const T* data_;
  T copy_[kChunk];
};

// The same for a piece that is changed: what was made of it goes back when this goes out of scope.
template <Scalar T>
class Updated {
 public:
  Updated(const Strided<T>& x, int count) : x_(x), count_(count), is_copy_(x.step != 1) {
    for (int i = 0; i < count && is_copy_; ++i) copy_[i] = x[i];
  }
  ~Updated() {
    for (int i = 0; i < count_ && is_copy_; ++i) x_[i] = copy_[i];
  }
  Updated(const Updated&) = delete;
  Updated& operator=(const Updated&) = delete;
  T* data() { return is_copy_ ? copy_ : x_.first; }

 private:
  Strided<T> x_;
  int count_;
  bool is_copy_;
  T copy_[kChunk];
};

// Calls body(first, count) for pieces of 0..n-1 that are short enough to be copied, or once if nothing need be.
template <class Body>
void in_chunks(bool is_contiguous, int n, const Body& body) {
  if (is_contiguous) return body(0, n);
  for (int i = 0; i < n; i += kChunk) body(i, std::min(kChunk, n - i));
}

template <Scalar T>
const T* at(const T* a, int lda, int row, int column) {
  return a + row + static_cast<std::ptrdiff_t>(column) * lda;
}

// y <- y + alpha op(A) x with A m by n as stored, for vectors of any strides.
template <Scalar T>
void add_op_product(bool transposed, bool conjugate, int m, int n, T alpha, const T* a, int lda, Strided<const T> x,
                    Strided<T> y) {
  // The vector along the columns of A is the one that kernels want contiguous.
  in_chunks((transposed ? x.step : y.step) == 1, m, [&](int i, int count) {
    if (transposed) {
      const Gathered<T> xi(x.from(i), count);
      kernels::add_transposed_product(conjugate, count, n, alpha, a + i, lda, xi.data(), y.first, y.step);
    } else {
      Updated<T> yi(y.from(i), count);
      kernels::add_product(count, n, alpha, a + i, lda, x.first, x.step, yi.data());
    }
  });
}

// The off-diagonal block of a triangle beside columns first..first+count-1: above or below its diagonal block.
Range beside(bool is_upper, int n, int first, int count) {
  return is_upper ? Range{0, first} : Range{first + count, n - first - count};
}

template <Scalar T>
using TriangularKernel = void(kernels::Triangle shape, int n, const T* a, int lda, T* x) noexcept;

// x <- op(A) x (kSolves: op(A)^-1 x) by diagonal blocks, each with what stands beside it, in the
// order in which entries of x are final or needed no more.
template <bool kSolves, Scalar T>
void run_triangle(kernels::Triangle shape, int n, const T* a, int lda, Strided<T> x) {
  TriangularKernel<T>* const kernel = kSolves ? kernels::solve_triangle<T> : kernels::multiply_by_triangle<T>;
  if (x.step == 1) return kernel(shape, n, a, lda, x.first);
  const bool from_first = (shape.is_upper != shape.is_transposed) != kSolves;
  const int blocks = (n + kChunk - 1) / kChunk;
  for (int k = 0; k < blocks; ++k) {
    const int first = (from_first ? k : blocks - 1 - k) * kChunk, count = std::min(kChunk, n - first);
    const Range rows = beside(shape.is_upper, n, first, count);
    const auto add_beside = [&](T sign) {
      const Strided<T> along = x.from(rows.first), own = x.from(first);
      const T* const block = at(a, lda, rows.first, first);
      if (shape.is_transposed) {
        return add_op_product(true, shape.is_conjugated, rows.count, count, sign, block, lda,
                              Strided<const T>(along.first, along.step), own);
      }
      for (int j = 0; j < count; ++j) {  // as published, a zero hides what stands in its column
        if (own[j] == T{}) continue;
        add_op_product(false, false, rows.count, 1, sign, at(block, lda, 0, j), lda,
                       Strided<const T>(&own[j], own.step), along);
      }
    };
    const auto run_block = [&] {
      Updated<T> block(x.from(first), count);
      kernel(shape, count, at(a, lda, first, first), lda, block.data());
    };
    // What stands beside uses the entries of the block as they were (a product of A) or as they have become (a
    // solution), or adds to them before (a solution with A^T) or after (a product with A^T) their own turn.
    if (kSolves == shape.is_transposed) add_beside(kSolves ? T{-1} : T{1});
    run_block();
    if (kSolves != shape.is_transposed) add_beside(kSolves ? T{-1} : T{1});
  }
}

template <bool kSolves, Scalar T>
void triangular(const char* operation, char uplo, char trans, char diag, int n, const T* a, int lda, T* x, int incx) {
  const bool arguments_hold = ArgumentCheck<T>(operation)
                                  .require(1, is_one_of(uplo, "UL"))
                                  .require(2, is_one_of(trans, "NTC"))
                                  .require(3, is_one_of(diag, "UN"))
                                  .require(4, n >= 0)
                                  .require(6, lda >= least_leading_dimension(n))
                                  .require(8, incx != 0)
                                  .passed();
  if (!arguments_hold || n == 0) return;
  run_triangle<kSolves>({is_one_of(uplo, "U"), !is_one_of(trans, "N"), is_one_of(trans, "C"), is_one_of(diag, "U")}, n,
                        a, lda, Strided<T>(x, n, incx));
}

template <Scalar T>
void rank_one(const char* operation, bool conjugate, int m, int n, T alpha, const T* x, int incx, const T* y, int incy,
              T* a, int lda) {
  const bool arguments_hold = ArgumentCheck<T>(operation)
                                  .require(1, m >= 0)
                                  .require(2, n >= 0)
                                  .require(5, incx != 0)
                                  .require(7, incy != 0)
                                  .require(9, lda >= least_leading_dimension(m))
                                  .passed();
  if (!arguments_hold || m == 0 || n == 0 || alpha == T{}) return;
  const Strided<const T> xs(x, m, incx), ys(y, n, incy);
  run_parts(n, threads_for_matrix(m, n), [&](Range columns) {
    in_chunks(incx == 1, m, [&](int i, int count) {
      const Gathered<T> xi(xs.from(i), count);
      kernels::add_outer_product(conjugate, count, columns.count, alpha, xi.data(), &ys[columns.first], ys.step,
                                 a + i + static_cast<std::ptrdiff_t>(columns.first) * lda, lda);
    });
  });
}

}  // namespace

template <Scalar T>
void gemv(char trans, int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y, int incy) {
  const bool arguments_hold = ArgumentCheck<T>("GEMV")
                                  .require(1, is_one_of(trans, "NTC"))
                                  .require(2, m >= 0)
                                  .require(3, n >= 0)
                                  .require(6, lda >= least_leading_dimension(m))
                                  .require(8, incx != 0)
                                  .require(11, incy != 0)
                                  .passed();
  if (!arguments_hold || m == 0 || n == 0 || (alpha == T{} && beta == T{1})) return;
  // Each part makes some entries of y, from rows of A or, transposed, from columns.
  const bool transposed = !is_one_of(trans, "N");
  const int made = transposed ? n : m, summed = transposed ? m : n;
  const Strided<const T> xs(x, summed, incx);
  const Strided<T> ys(y, made, incy);
  run_parts(made, threads_for_matrix(m, n), [&](Range out) {
    if (out.count == 0) return;
    const Strided<T> part = ys.from(out.first);
    scale(out.count, beta, part.first, part.step);
    if (alpha == T{}) return;
    add_op_product(transposed, is_one_of(trans, "C"), transposed ? m : out.count, transposed ? out.count : n, alpha,
                   transposed ? at(a, lda, 0, out.first) : a + out.first, lda, xs, part);
  });
}

template <Scalar T>
void trmv(char uplo, char trans, char diag, int n, const T* a, int lda, T* x, int incx) {
  triangular<false, T>("TRMV", uplo, trans, diag, n, a, lda, x, incx);
}

template <Scalar T>
void trsv(char uplo, char trans, char diag, int n, const T* a, int lda, T* x, int incx) {
  triangular<true, T>("TRSV", uplo, trans, diag, n, a, lda, x, incx);
}

template <Scalar T>
void hemv(char uplo, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y, int incy) {
  constexpr const char* kOperation = named<T>("SYMV", "HEMV");
  const bool arguments_hold = ArgumentCheck<T>(kOperation)
                                  .require(1, is_one_of(uplo, "UL"))
                                  .require(2, n >= 0)
                                  .require(5, lda >= least_leading_dimension(n))
                                  .require(7, incx != 0)
                                  .require(10, incy != 0)
                                  .passed();
  if (!arguments_hold || n == 0 || (alpha == T{} && beta == T{1})) return;
  const bool is_upper = is_one_of(uplo, "U");
  const Strided<const T> xs(x, n, incx);
  const Strided<T> ys(y, n, incy);
  scale(n, beta, ys.first, ys.step);
  if (alpha == T{}) return;
  // Diagonal blocks, and what stands beside them with its mirror image.
  in_chunks(incx == 1 && incy == 1, n, [&](int first, int count) {
    {
      const Gathered<T> xi(xs.from(first), count);
      Updated<T> yi(ys.from(first), count);
      kernels::add_hermitian_product(is_upper, count, alpha, at(a, lda, first, first), lda, xi.data(), yi.data());
    }
    const Range rows = beside(is_upper, n, first, count);
    const T* const block = at(a, lda, rows.first, first);
    if (rows.count == 0) return;
    add_op_product(false, false, rows.count, count, alpha, block, lda, xs.from(first), ys.from(rows.first));
    add_op_product(true, true, rows.count, count, alpha, block, lda, xs.from(rows.first), ys.from(first));
  });
}

template <Scalar T>
void geru(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda) {
  rank_one<T>(named<T>("GER", "GERU"), false, m, n, alpha, x, incx, y, incy, a, lda);
}

template <Scalar T>
void gerc(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda) {
  rank_one<T>(named<T>("GER", "GERC"), true, m, n, alpha, x, incx, y, incy, a, lda);
}

template <Scalar T>
void her(char uplo, int n, RealOf<T> alpha, const T* x, int incx, T* a, int lda) {
  constexpr const char* kOperation = named<T>("SYR", "HER");
  const bool arguments_hold = ArgumentCheck<T>(kOperation)
                                  .require(1, is_one_of(uplo, "UL"))
                                  .require(2, n >= 0)
                                  .require(5, incx != 0)
                                  .require(7, lda >= least_leading_dimension(n))
                                  .passed();
  if (!arguments_hold || n == 0 || alpha == 0) return;
  const bool is_upper = is_one_of(uplo, "U");
  const Strided<const T> xs(x, n, incx);
  in_chunks(incx == 1, n, [&](int first, int count) {
    const Gathered<T> xi(xs.from(first), count);
    T* const columns = a + static_cast<std::ptrdiff_t>(first) * lda;
    kernels::add_hermitian_square(is_upper, count, alpha, xi.data(), columns + first, lda);
    const Range rows = beside(is_upper, n, first, count);
    if (rows.count == 0) return;
    in_chunks(incx == 1, rows.count, [&](int i, int height) {
      const Gathered<T> along(xs.from(rows.first + i), height);
      kernels::add_outer_product(true, height, count, T(alpha), along.data(), xi.data(), 1, columns + rows.first + i,
                                 lda);
    });
  });
}

template <Scalar T>
void her2(char uplo, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda) {
  constexpr const char* kOperation = named<T>("SYR2", "HER2");
  const bool arguments_hold = ArgumentCheck<T>(kOperation)
                                  .require(1, is_one_of(uplo, "UL"))
                                  .require(2, n >= 0)
                                  .require(5, incx != 0)
                                  .require(7, incy != 0)
                                  .require(9, lda >= least_leading_dimension(n))
                                  .passed();
  if (!arguments_hold || n == 0 || alpha == T{}) return;
  const bool is_upper = is_one_of(uplo, "U"), is_contiguous = incx == 1 && incy == 1;
  const Strided<const T> xs(x, n, incx), ys(y, n, incy);
  in_chunks(is_contiguous, n, [&](int first, int count) {
    const Gathered<T> xi(xs.from(first), count), yi(ys.from(first), count);
    T* const columns = a + static_cast<std::ptrdiff_t>(first) * lda;
    kernels::add_hermitian_pair(is_upper, count, alpha, xi.data(), yi.data(), columns + first, lda);
    const Range rows = beside(is_upper, n, first, count);
    if (rows.count == 0) return;
    in_chunks(is_contiguous, rows.count, [&](int i, int height) {
      const Gathered<T> x_along(xs.from(rows.first + i), height), y_along(ys.from(rows.first + i), height);
      T* const block = columns + rows.first + i;
      kernels::add_outer_product(true, height, count, alpha, x_along.data(), yi.data(), 1, block, lda);
      kernels::add_outer_product(true, height, count, conjugate(alpha), y_along.data(), xi.data(), 1, block, lda);
    });
  });
}

template void gemv(char, int, int, float, const float*, int, const float*, int, float, float*, int);
template void trmv(char, char, char, int, const float*, int, float*, int);
template void trsv(char, char, char, int, const float*, int, float*, int);
template void hemv(char, int, float, const float*, int, const float*, int, float, float*, int);
template void geru(int, int, float, const float*, int, const float*, int, float*, int);
template void her<float>(char, int, float, const float*, int, float*, int);
template void her2(char, int, float, const float*, int, const float*, int, float*, int);

// For the library's own use.
template void gemv(char, int, int, double, const double*, int, const double*, int, double, double*, int);
template void trsv(char, char, char, int, const double*, int, double*, int);
template void geru(int, int, double, const double*, int, const double*, int, double*, int);
template void gemv(char, int, int, DoubleComplex, const DoubleComplex*, int, const DoubleComplex*, int, DoubleComplex,
                   DoubleComplex*, int);
template void trsv(char, char, char, int, const DoubleComplex*, int, DoubleComplex*, int);
template void geru(int, int, DoubleComplex, const DoubleComplex*, int, const DoubleComplex*, int, DoubleComplex*, int);

template void gemv(char, int, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*, int);
template void trmv(char, char, char, int, const Complex*, int, Complex*, int);
template void trsv(char, char, char, int, const Complex*, int, Complex*, int);
template void hemv(char, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*, int);
template void geru(int, int, Complex, const Complex*, int, const Complex*, int, Complex*, int);
template void gerc(int, int, Complex, const Complex*, int, const Complex*, int, Complex*, int);
template void her<Complex>(char, int, float, const Complex*, int, Complex*, int);
template void her2(char, int, Complex, const Complex*, int, const Complex*, int, Complex*, int);

}  // namespace quorin::dense
