#include "dense/blas/level2.hpp"

#include <cstddef>
#include <cstdint>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/blas/argument_check.hpp"
#include "dense/blas/partition.hpp"
#include "dense/kernels/matrix_vector.hpp"
#include "dense/kernels/vector_kernels.hpp"
#include "dense/openblas/buffers.hpp"
#include "dense/openblas/routines.hpp"

namespace quorin::dense {
namespace {

using Complex = std::complex<float>;
using openblas::Routines;

// A thread should have this many matrix elements, about 1 MiB of floats, to be worth waking.
constexpr double kElementsPerThread = 1 << 18;

// OpenBLAS copies strided vectors into its buffer, so what one call of it sees is bounded.
constexpr int kLongestVector = static_cast<int>(openblas::kBufferBytes / sizeof(Complex) / 8);

// The names of symmetric and Hermitian operations differ only in the published name.
template <Scalar T>
constexpr const char* named(const char* real_name, const char* complex_name) {
  return kIsComplex<T> ? complex_name : real_name;
}

// The first element in memory order of entries first..first+count-1 of a strided vector with `length` entries.
template <class Pointer>
Pointer slice(Pointer x, int length, int inc, Range range) {
  const int skipped = inc > 0 ? range.first : length - range.first - range.count;
  return x + static_cast<std::ptrdiff_t>(skipped) * (inc > 0 ? inc : -inc);
}

int part_count(int total, int threads) {
  const int longest = (total + kLongestVector - 1) / kLongestVector;
  return std::max({1, threads, longest});
}

// Runs `part` over the ranges of 0..total-1 with buffers for every thread, or reports that there are none.
template <Scalar T, class Part>
void run_parts(const char* operation, int total, int threads, const Part& part) {
  const openblas::BufferReservation buffers(threads);
  if (buffers.granted() == 0) return ArgumentCheck<T>::report(operation, base::kInsufficientWorkspace);
  const int parts = part_count(total, buffers.granted());
  constexpr int kTile = 16;
  base::parallel_for(parts, buffers.granted(), [&](int i) { part(part_range(total, parts, i, kTile)); });
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

// The same without buffers, for kernels of our own.
template <class Part>
void run_own_parts(int total, int threads, const Part& part) {
  constexpr int kTile = 16;
  base::parallel_for(threads, threads, [&](int i) { part(part_range(total, threads, i, kTile)); });
}

int threads_for_matrix(int m, int n) {
  const double elements = static_cast<double>(m) * n;
  if (elements < 2 * kElementsPerThread || base::in_parallel_region()) return 1;
  return threads_for(elements, kElementsPerThread, base::region_threads(base::Domain::kBlas));
}

template <Scalar T>
using Triangular2 = openblas::Triangular2<T>;

template <Scalar T>
using TriangularKernel = void(kernels::Triangle shape, int n, const T* a, int lda, T* x);

template <Scalar T>
void triangular(const char* operation, Triangular2<T>* routine, TriangularKernel<T>* kernel, char uplo, char trans,
                char diag, int n, const T* a, int lda, T* x, int incx) {
  const bool arguments_hold = ArgumentCheck<T>(operation)
                                  .require(1, is_one_of(uplo, "UL"))
                                  .require(2, is_one_of(trans, "NTC"))
                                  .require(3, is_one_of(diag, "UN"))
                                  .require(4, n >= 0)
                                  .require(6, lda >= least_leading_dimension(n))
                                  .require(8, incx != 0)
                                  .passed();
  if (!arguments_hold || n == 0) return;
  if (incx == 1) {
    return kernel({is_one_of(uplo, "U"), !is_one_of(trans, "N"), is_one_of(trans, "C"), is_one_of(diag, "U")}, n, a,
                  lda, x);
  }
  run_parts<T>(operation, 1, 1, [&](Range) { routine(&uplo, &trans, &diag, &n, a, &lda, x, &incx); });
}

template <Scalar T>
void rank_one(const char* operation, openblas::Ger<T>* routine, bool conjugate, int m, int n, T alpha, const T* x,
              int incx, const T* y, int incy, T* a, int lda) {
  const bool arguments_hold = ArgumentCheck<T>(operation)
                                  .require(1, m >= 0)
                                  .require(2, n >= 0)
                                  .require(5, incx != 0)
                                  .require(7, incy != 0)
                                  .require(9, lda >= least_leading_dimension(m))
                                  .passed();
  if (!arguments_hold || m == 0 || n == 0 || alpha == T{}) return;
  const int threads = threads_for_matrix(m, n);
  if (incx == 1) {
    return run_own_parts(n, threads, [&](Range columns) {
      kernels::add_outer_product(conjugate, m, columns.count, alpha, x,
                                 first_entry(y, n, incy) + static_cast<std::ptrdiff_t>(columns.first) * incy, incy,
                                 a + static_cast<std::ptrdiff_t>(columns.first) * lda, lda);
    });
  }
  if (n >= m) {
    run_parts<T>(operation, n, threads, [&](Range columns) {
      routine(&m, &columns.count, &alpha, x, &incx, slice(y, n, incy, columns), &incy,
              a + static_cast<std::ptrdiff_t>(columns.first) * lda, &lda);
    });
  } else {
    run_parts<T>(operation, m, threads, [&](Range rows) {
      routine(&rows.count, &n, &alpha, slice(x, m, incx, rows), &incx, y, &incy, a + rows.first, &lda);
    });
  }
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
  // Each part makes some entries of y, from rows of A or, transposed, from columns; a very long x comes in pieces.
  const bool transposed = !is_one_of(trans, "N");
  const int made = transposed ? n : m, summed = transposed ? m : n;
  if ((transposed ? incx : incy) == 1) {
    return run_own_parts(made, threads_for_matrix(m, n), [&](Range out) {
      if (out.count == 0) return;
      T* const part = first_entry(y, made, incy) + static_cast<std::ptrdiff_t>(out.first) * incy;
      scale(out.count, beta, part, incy);
      if (alpha == T{}) return;
      if (transposed) {
        kernels::add_transposed_product(is_one_of(trans, "C"), m, out.count, alpha,
                                        a + static_cast<std::ptrdiff_t>(out.first) * lda, lda, x, part, incy);
      } else {
        kernels::add_product(out.count, n, alpha, a + out.first, lda, first_entry(x, n, incx), incx, part);
      }
    });
  }
  const int pieces = part_count(summed, 1);
  run_parts<T>("GEMV", made, threads_for_matrix(m, n), [&](Range out) {
    for (int i = 0; i < pieces; ++i) {
      const Range in = part_range(summed, pieces, i, 1);
      const Range rows = transposed ? in : out, columns = transposed ? out : in;
      const T factor = i == 0 ? beta : T{1};
      Routines<T>::gemv(&trans, &rows.count, &columns.count, &alpha,
                        a + rows.first + static_cast<std::ptrdiff_t>(columns.first) * lda, &lda,
                        slice(x, summed, incx, in), &incx, &factor, slice(y, made, incy, out), &incy);
    }
  });
}

template <Scalar T>
void trmv(char uplo, char trans, char diag, int n, const T* a, int lda, T* x, int incx) {
  triangular<T>("TRMV", Routines<T>::trmv, kernels::multiply_by_triangle<T>, uplo, trans, diag, n, a, lda, x, incx);
}

template <Scalar T>
void trsv(char uplo, char trans, char diag, int n, const T* a, int lda, T* x, int incx) {
  triangular<T>("TRSV", Routines<T>::trsv, kernels::solve_triangle<T>, uplo, trans, diag, n, a, lda, x, incx);
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
  if (incx == 1 && incy == 1) {
    scale(n, beta, y, 1);
    if (alpha != T{}) kernels::add_hermitian_product(is_one_of(uplo, "U"), n, alpha, a, lda, x, y);
    return;
  }
  run_parts<T>(kOperation, 1, 1,
               [&](Range) { Routines<T>::hemv(&uplo, &n, &alpha, a, &lda, x, &incx, &beta, y, &incy); });
}

template <Scalar T>
void geru(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda) {
  rank_one<T>(named<T>("GER", "GERU"), Routines<T>::geru, false, m, n, alpha, x, incx, y, incy, a, lda);
}

template <Scalar T>
void gerc(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda) {
  rank_one<T>(named<T>("GER", "GERC"), Routines<T>::gerc, true, m, n, alpha, x, incx, y, incy, a, lda);
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
  if (incx == 1) return kernels::add_hermitian_square(is_one_of(uplo, "U"), n, alpha, x, a, lda);
  run_parts<T>(kOperation, 1, 1, [&](Range) { Routines<T>::her(&uplo, &n, &alpha, x, &incx, a, &lda); });
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
  if (incx == 1 && incy == 1) return kernels::add_hermitian_pair(is_one_of(uplo, "U"), n, alpha, x, y, a, lda);
  run_parts<T>(kOperation, 1, 1, [&](Range) { Routines<T>::her2(&uplo, &n, &alpha, x, &incx, y, &incy, a, &lda); });
}

template void gemv(char, int, int, float, const float*, int, const float*, int, float, float*, int);
template void trmv(char, char, char, int, const float*, int, float*, int);
template void trsv(char, char, char, int, const float*, int, float*, int);
template void hemv(char, int, float, const float*, int, const float*, int, float, float*, int);
template void geru(int, int, float, const float*, int, const float*, int, float*, int);
template void her<float>(char, int, float, const float*, int, float*, int);
template void her2(char, int, float, const float*, int, const float*, int, float*, int);

template void gemv(char, int, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*, int);
template void trmv(char, char, char, int, const Complex*, int, Complex*, int);
template void trsv(char, char, char, int, const Complex*, int, Complex*, int);
template void hemv(char, int, Complex, const Complex*, int, const Complex*, int, Complex, Complex*, int);
template void geru(int, int, Complex, const Complex*, int, const Complex*, int, Complex*, int);
template void gerc(int, int, Complex, const Complex*, int, const Complex*, int, Complex*, int);
template void her<Complex>(char, int, float, const Complex*, int, Complex*, int);
template void her2(char, int, Complex, const Complex*, int, const Complex*, int, Complex*, int);

}  // namespace quorin::dense
