#include "dense/lapack/factorizations.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "dense/blas/argument_check.hpp"
#include "dense/blas/level3.hpp"
#include "dense/kernels/column_kernels.hpp"
#include "dense/kernels/vector_kernels.hpp"
#include "dense/lapack/call_guard.hpp"
#include "dense/matrix.hpp"

namespace quorin::dense {
namespace {

// Below these orders, calls cost more than the loops here.
constexpr int kSmallestLu = 16;
constexpr int kSmallestCholesky = 24;

// The published measure of a pivot.
template <Scalar T>
RealOf<T> magnitude(T x) {
  if constexpr (kIsComplex<T>) {
    return std::fabs(x.real()) + std::fabs(x.imag());
  } else {
    return std::fabs(x);
  }
}

// y[first..last) -= factor x[first..last)
template <Scalar T>
void subtract_multiple(T factor, const T* x, T* y, int first, int last) {
  for (int i = first; i < last; ++i) y[i] -= product(factor, x[i]);
}

// A cut of n into two parts, the first of full register tiles.
int first_half(int n) { return n < 32 ? n / 2 : n / 2 / 16 * 16; }

// ---- LU -----------------------------------------------------------------------------------------------------------

// Rows first, ..., last - 1 with those that ipiv names, one pair after the other.
template <Scalar T>
void exchange_rows(Matrix<T> a, int columns, const std::int32_t* ipiv, int first, int last) {
  constexpr int kPairs = 512, kColumns = 8;  // at a time, so that columns stay in the cache
  std::array<std::array<int, 2>, kPairs> pairs;
  for (int j = 0; j < columns; j += kColumns) {
    for (int i = first; i < last;) {
      std::size_t count = 0;
      for (; i < last && count < kPairs; ++i) {
        if (ipiv[i] != i + 1) pairs[count++] = {i, ipiv[i] - 1};
      }
      for (int k = j; k < std::min(columns, j + kColumns); ++k) {
        T* const x = a.column(k);
        T* const next = a.column(std::min(columns - 1, k + 1));
        for (std::size_t pair = 0; pair < count; ++pair) {
          const auto [upper, lower] = pairs[pair];
          __builtin_prefetch(next + lower, 1);
          std::swap(x[upper], x[lower]);
        }
      }
    }
  }
}

template <Scalar T>
void divide(T* x, int count, T pivot) {
  if (magnitude(pivot) >= std::numeric_limits<RealOf<T>>::min()) {
    scale_column(count, T{1} / pivot, x);
  } else {
    for (int i = 0; i < count; ++i) x[i] /= pivot;
  }
}

// A panel of few columns, one after the other.
template <Scalar T>
int factor_panel(int m, int n, Matrix<T> a, std::int32_t* ipiv) {
  int first_zero = 0;
  for (int j = 0; j < std::min(m, n); ++j) {
    T* const x = a.column(j);
    const int pivot = j + static_cast<int>(kernels::first_extreme<true>(m - j, x + j)), below = m - j - 1;
    ipiv[j] = pivot + 1;
    if (x[pivot] == T{}) {
      if (first_zero == 0) first_zero = j + 1;
    } else {
      if (pivot != j) {
        for (int k = 0; k < n; ++k) std::swap(a(j, k), a(pivot, k));
      }
      divide(x + j + 1, below, x[j]);
    }
    const Matrix<T> rest = a.from(j, j + 1);
    for_column_groups<T>(n - j - 1, [&](auto count, int k) {
      std::array<T, count> factors;
      for (int i = 0; i < count; ++i) factors[i] = rest(0, k + i);
      subtract_multiples<count>(below, x + j + 1, factors, rest.from(1, k));
    });
  }
  return first_zero;
}

// Returns the first zero pivot, 0 if there is none.
template <Scalar T>
int factor_lu(int m, int n, Matrix<T> a, std::int32_t* ipiv) {
  if (n <= kSmallestLu) return factor_panel(m, n, a, ipiv);
  const int left = m <= kSmallestLu ? m : first_half(std::min(m, n)), right = n - left, below = m - left;
  int zero = factor_lu(m, left, a, ipiv);

  const Matrix<T> top = a.from(0, left), rest = a.from(left, left);
  exchange_rows(top, right, ipiv, 0, left);
  trsm('L', 'L', 'N', 'U', left, right, T{1}, a.column(0), a.lda(), top.column(0), a.lda());
  if (below == 0) return zero;
  gemm('N', 'N', below, right, left, T{-1}, a.column(0) + left, a.lda(), top.column(0), a.lda(), T{1}, rest.column(0),
       a.lda());

  const int zero_below = factor_lu(below, right, rest, ipiv + left);
  if (zero == 0 && zero_below != 0) zero = zero_below + left;
  for (int i = left; i < std::min(m, n); ++i) ipiv[i] += left;
  exchange_rows(a, left, ipiv, left, std::min(m, n));
  return zero;
}

// ---- Cholesky -----------------------------------------------------------------------------------------------------

// The lower triangle, column by column.
template <Scalar T>
int factor_small_cholesky(int n, Matrix<T> a) {
  for (int j = 0; j < n; ++j) {
    T* const x = a.column(j);
    for (int k = 0; k < j; ++k) subtract_multiple(conjugate(a(j, k)), a.column(k), x, j, n);
    const RealOf<T> square = real_part(x[j]);
    x[j] = square;
    if (!(square > 0)) return j + 1;  // NaN too
    const RealOf<T> root = std::sqrt(square);
    x[j] = root;
    for (int i = j + 1; i < n; ++i) x[i] *= 1 / root;
  }
  return 0;
}

// The upper triangle is the conjugate transpose of a lower one.
template <Scalar T>
int factor_small_upper(int n, Matrix<T> a) {
  T transposed[kSmallestCholesky * kSmallestCholesky];
  const Matrix<T> lower(transposed, kSmallestCholesky);
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i <= j; ++i) lower(j, i) = conjugate(a(i, j));
  }
  const int info = factor_small_cholesky(n, lower);
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i <= j; ++i) a(i, j) = conjugate(lower(j, i));
  }
  return info;
}

template <Scalar T>
void subtract_square(char uplo, int n, int k, Matrix<T> factor, Matrix<T> a) {
  const char trans = uplo == 'L' ? 'N' : 'C';
  if constexpr (kIsComplex<T>) {
    herk<T>(uplo, trans, n, k, -1, factor.column(0), factor.lda(), 1, a.column(0), a.lda());
  } else {
    syrk<T>(uplo, trans, n, k, -1, factor.column(0), factor.lda(), 1, a.column(0), a.lda());
  }
}

// Returns the order of the first leading minor that is not positive, 0 if all are.
template <Scalar T>
int factor_cholesky(char uplo, int n, Matrix<T> a) {
  const bool is_lower = uplo == 'L';
  if (n <= kSmallestCholesky) return is_lower ? factor_small_cholesky(n, a) : factor_small_upper(n, a);
  const int first = first_half(n), second = n - first;
  if (const int info = factor_cholesky(uplo, first, a)) return info;
  const Matrix<T> beside = is_lower ? a.from(first, 0) : a.from(0, first), rest = a.from(first, first);
  if (is_lower) {
    trsm('R', 'L', 'C', 'N', second, first, T{1}, a.column(0), a.lda(), beside.column(0), a.lda());
  } else {
    trsm('L', 'U', 'C', 'N', first, second, T{1}, a.column(0), a.lda(), beside.column(0), a.lda());
  }
  subtract_square(uplo, second, first, beside, rest);
  const int info = factor_cholesky(uplo, second, rest);
  return info == 0 ? 0 : info + first;
}

}  // namespace

template <Scalar T>
void getrf(int m, int n, T* a, int lda, std::int32_t* ipiv, std::int32_t* info) noexcept {
  *info = -ArgumentCheck<T>("GETRF")
               .require(1, m >= 0)
               .require(2, n >= 0)
               .require(4, lda >= least_leading_dimension(m))
               .reported();
  if (*info != 0 || m == 0 || n == 0) return;
  const LapackCall call(ScalarTraits<T>::kLetter == 'S' ? "SGETRF" : "CGETRF", info);
  if (call.may_begin()) *info = factor_lu(m, n, Matrix<T>(a, lda), ipiv);
}

template <Scalar T>
void potrf(char uplo, int n, T* a, int lda, std::int32_t* info) noexcept {
  *info = -ArgumentCheck<T>("POTRF")
               .require(1, is_one_of(uplo, "UL"))
               .require(2, n >= 0)
               .require(4, lda >= least_leading_dimension(n))
               .reported();
  if (*info != 0 || n == 0) return;
  const LapackCall call(ScalarTraits<T>::kLetter == 'S' ? "SPOTRF" : "CPOTRF", info);
  if (call.may_begin()) *info = factor_cholesky(upper(uplo), n, Matrix<T>(a, lda));
}

template void getrf<float>(int, int, float*, int, std::int32_t*, std::int32_t*) noexcept;
template void getrf<std::complex<float>>(int, int, std::complex<float>*, int, std::int32_t*, std::int32_t*) noexcept;
template void potrf<float>(char, int, float*, int, std::int32_t*) noexcept;
template void potrf<std::complex<float>>(char, int, std::complex<float>*, int, std::int32_t*) noexcept;

}  // namespace quorin::dense
