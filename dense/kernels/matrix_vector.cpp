#include "dense/kernels/matrix_vector.hpp"

#include <algorithm>
#include <array>
#include <complex>
#include <type_traits>

#include "dense/kernels/column_kernels.hpp"
#include "dense/kernels/kernel_set.hpp"
#include "dense/kernels/vector_kernels.hpp"

namespace quorin::dense::kernels {
namespace {

using Complex = std::complex<float>;
using DoubleComplex = std::complex<double>;

// So many rows at a time, whose vector stays in the first cache while columns pass.
constexpr int kRows = 2048;

template <class Pointer>
Pointer column(Pointer a, int lda, int j) noexcept {
  return a + static_cast<std::ptrdiff_t>(j) * lda;
}

// The stored part of column j of one triangle, with the diagonal.
struct Stored {
  Stored(bool is_upper, int n, int j) noexcept : first(is_upper ? 0 : j), count(is_upper ? j + 1 : n - j) {}
  int first, count;
};
// The same without the diagonal.
struct Beside {
  Beside(bool is_upper, int n, int j) noexcept : first(is_upper ? 0 : j + 1), count(is_upper ? j : n - j - 1) {}
  int first, count;
};

// x / y. For complex floats through doubles, in which nothing overflows or underflows on the way: a few instructions,
// where the operator of std::complex is a call. It is left for what is not finite, and for y = 0.
template <Scalar T>
T quotient(T x, T y) noexcept {
  if constexpr (std::is_same_v<T, Complex>) {
    const double re = y.real(), im = y.imag(), scale = 1 / (re * re + im * im);
    const Complex result(static_cast<float>((x.real() * re + x.imag() * im) * scale),
                         static_cast<float>((x.imag() * re - x.real() * im) * scale));
    const float zero_or_nan = result.real() * 0 + result.imag() * 0;
    if (zero_or_nan == 0) return result;
  }
  return x / y;
}

// Calls visit(j) for the columns of a triangle, from the first on or from the last.
template <class Visit>
void for_each_column(bool from_first, int n, const Visit& visit) noexcept {
  for (int k = 0; k < n; ++k) visit(from_first ? k : n - 1 - k);
}

// y <- y + A s for a few columns.
template <Scalar T, std::size_t kCount>
void add_columns(int m, const T* a, int lda, const std::array<T, kCount>& s, T* y) noexcept {
  constexpr int kStep = kElements<T>;
  const auto times = [&]<std::size_t... k>(std::index_sequence<k...>) {
    return std::array<Factor<T>, kCount>{Factor<T>(s[k])...};
  }
  (std::make_index_sequence<kCount>{});
  int i = 0;
  for (; i + kStep <= m; i += kStep) {
    Lanes<RealOf<T>> sum = load(y + i);
    for (std::size_t k = 0; k < kCount; ++k) sum += times[k](load(column(a, lda, static_cast<int>(k)) + i));
    store(y + i, sum);
  }
  for (; i < m; ++i) {
    for (std::size_t k = 0; k < kCount; ++k) y[i] += product(s[k], column(a, lda, static_cast<int>(k))[i]);
  }
}

// A^T x or A^H x for a few columns.
template <bool kConjugate, Scalar T, std::size_t kCount>
std::array<T, kCount> dot_columns(int m, const T* a, int lda, const T* x) noexcept {
  constexpr int kStep = kElements<T>;
  std::array<ProductSum<T>, kCount> sums;
  std::array<T, kCount> results{};
  int i = 0;
  for (; i + kStep <= m; i += kStep) {
    const auto xi = load(x + i);
    for (std::size_t k = 0; k < kCount; ++k) sums[k].add(load(column(a, lda, static_cast<int>(k)) + i), xi);
  }
  for (; i < m; ++i) {
    for (std::size_t k = 0; k < kCount; ++k) {
      results[k] += product(maybe_conjugate<kConjugate>(column(a, lda, static_cast<int>(k))[i]), x[i]);
    }
  }
  for (std::size_t k = 0; k < kCount; ++k) results[k] += sums[k].template value<kConjugate>();
  return results;
}

template <bool kConjugate, Scalar T>
void add_transposed_product(int m, int n, T alpha, const T* a, int lda, const T* x, T* y,
                            std::ptrdiff_t incy) noexcept {
  for (int i = 0, rows = 0; i < m; i += rows) {
    rows = std::min(kRows, m - i);
    for_column_groups<T>(n, [&](auto count, int j) {
      if constexpr (count == 1) {  // which has more sums than one
        y[j * incy] += product(alpha, dot<kConjugate>(rows, column(a, lda, j) + i, x + i));
      } else {
        const auto sums = dot_columns<kConjugate, T, count>(rows, column(a, lda, j) + i, lda, x + i);
        for (std::size_t k = 0; k < count; ++k) y[(j + static_cast<int>(k)) * incy] += product(alpha, sums[k]);
      }
    });
  }
}

}  // namespace

template <Scalar T>
void add_product(int m, int n, T alpha, const T* a, int lda, const T* x, std::ptrdiff_t incx, T* y) noexcept {
  for (int i = 0, rows = 0; i < m; i += rows) {
    rows = std::min(kRows, m - i);
    for_column_groups<T>(n, [&](auto count, int j) {
      std::array<T, count> s;
      for (std::size_t k = 0; k < count; ++k) s[k] = product(alpha, x[(j + static_cast<int>(k)) * incx]);
      add_columns(rows, column(a, lda, j) + i, lda, s, y + i);
    });
  }
}

template <Scalar T>
void add_transposed_product(bool conjugate, int m, int n, T alpha, const T* a, int lda, const T* x, T* y,
                            std::ptrdiff_t incy) noexcept {
  if (conjugate && kIsComplex<T>) return add_transposed_product<true>(m, n, alpha, a, lda, x, y, incy);
  return add_transposed_product<false>(m, n, alpha, a, lda, x, y, incy);
}

template <Scalar T>
void add_hermitian_product(bool is_upper, int n, T alpha, const T* a, int lda, const T* x, T* y) noexcept {
  constexpr int kFew = 48;  // rows that do not pay for leaving wide registers
  const KernelSet<T>& set = n <= kFew ? small_kernels<T>() : kernels<T>();
  set.add_hermitian_product(is_upper, n, alpha, a, lda, x, y);
  if (set.uses_wide_registers) leave_wide_registers();
}

template <Scalar T>
void add_outer_product(bool conjugate, int m, int n, T alpha, const T* x, const T* y, std::ptrdiff_t incy, T* a,
                       int lda) noexcept {
  for (int j = 0; j < n; ++j) {
    const T yj = maybe_conjugate(conjugate, y[j * incy]);
    if (yj != T{}) axpy(m, product(alpha, yj), x, column(a, lda, j));
  }
}

template <Scalar T>
void add_hermitian_square(bool is_upper, int n, RealOf<T> alpha, const T* x, T* a, int lda) noexcept {
  for (int j = 0; j < n; ++j) {
    const Stored stored(is_upper, n, j);
    T* const aj = column(a, lda, j);
    if (x[j] != T{}) axpy(stored.count, T(alpha * maybe_conjugate<true>(x[j])), x + stored.first, aj + stored.first);
    aj[j] = std::real(aj[j]);
  }
}

template <Scalar T>
void add_hermitian_pair(bool is_upper, int n, T alpha, const T* x, const T* y, T* a, int lda) noexcept {
  for (int j = 0; j < n; ++j) {
    const Stored stored(is_upper, n, j);
    T* const aj = column(a, lda, j);
    if (x[j] != T{} || y[j] != T{}) {
      axpy_pair(stored.count, product(alpha, maybe_conjugate<true>(y[j])), x + stored.first,
                maybe_conjugate<true>(product(alpha, x[j])), y + stored.first, aj + stored.first);
    }
    aj[j] = std::real(aj[j]);
  }
}

template <Scalar T>
void multiply_by_triangle(Triangle shape, int n, const T* a, int lda, T* x) noexcept {
  // Entries of x are replaced when no column needs them any more.
  for_each_column(shape.is_upper != shape.is_transposed, n, [=](int j) {
    const Beside beside(shape.is_upper, n, j);
    const T* const aj = column(a, lda, j);
    const T diagonal = shape.has_unit_diagonal ? T{1} : maybe_conjugate(shape.is_conjugated, aj[j]);
    if (shape.is_transposed) {
      x[j] = product(diagonal, x[j]) +
             dot(shape.is_conjugated, beside.count, aj + beside.first, static_cast<const T*>(x) + beside.first);
    } else if (x[j] != T{}) {
      axpy(beside.count, x[j], aj + beside.first, x + beside.first);
      x[j] = product(diagonal, x[j]);
    }
  });
}

template <Scalar T>
void solve_triangle(Triangle shape, int n, const T* a, int lda, T* x) noexcept {
  for_each_column(shape.is_upper == shape.is_transposed, n, [=](int j) {
    const Beside beside(shape.is_upper, n, j);
    const T* const aj = column(a, lda, j);
    if (shape.is_transposed) {
      x[j] -= dot(shape.is_conjugated, beside.count, aj + beside.first, static_cast<const T*>(x) + beside.first);
    } else if (x[j] == T{}) {
      return;
    }
    if (!shape.has_unit_diagonal) x[j] = quotient(x[j], maybe_conjugate(shape.is_conjugated, aj[j]));
    if (!shape.is_transposed) axpy(beside.count, -x[j], aj + beside.first, x + beside.first);
  });
}

template void add_product(int, int, float, const float*, int, const float*, std::ptrdiff_t, float*) noexcept;
template void add_product(int, int, Complex, const Complex*, int, const Complex*, std::ptrdiff_t, Complex*) noexcept;
template void add_transposed_product(bool, int, int, float, const float*, int, const float*, float*,
                                     std::ptrdiff_t) noexcept;
template void add_transposed_product(bool, int, int, Complex, const Complex*, int, const Complex*, Complex*,
                                     std::ptrdiff_t) noexcept;
template void add_hermitian_product(bool, int, float, const float*, int, const float*, float*) noexcept;
template void add_hermitian_product(bool, int, Complex, const Complex*, int, const Complex*, Complex*) noexcept;
template void add_outer_product(bool, int, int, float, const float*, const float*, std::ptrdiff_t, float*,
                                int) noexcept;
template void add_outer_product(bool, int, int, Complex, const Complex*, const Complex*, std::ptrdiff_t, Complex*,
                                int) noexcept;
template void add_hermitian_square<float>(bool, int, float, const float*, float*, int) noexcept;
template void add_hermitian_square<Complex>(bool, int, float, const Complex*, Complex*, int) noexcept;
template void add_hermitian_pair(bool, int, float, const float*, const float*, float*, int) noexcept;
template void add_hermitian_pair(bool, int, Complex, const Complex*, const Complex*, Complex*, int) noexcept;
template void multiply_by_triangle(Triangle, int, const float*, int, float*) noexcept;
template void multiply_by_triangle(Triangle, int, const Complex*, int, Complex*) noexcept;
template void solve_triangle(Triangle, int, const float*, int, float*) noexcept;
template void solve_triangle(Triangle, int, const Complex*, int, Complex*) noexcept;

template void add_product(int, int, double, const double*, int, const double*, std::ptrdiff_t, double*) noexcept;
template void add_product(int, int, DoubleComplex, const DoubleComplex*, int, const DoubleComplex*, std::ptrdiff_t,
                          DoubleComplex*) noexcept;
template void add_transposed_product(bool, int, int, double, const double*, int, const double*, double*,
                                     std::ptrdiff_t) noexcept;
template void add_transposed_product(bool, int, int, DoubleComplex, const DoubleComplex*, int, const DoubleComplex*,
                                     DoubleComplex*, std::ptrdiff_t) noexcept;
template void add_outer_product(bool, int, int, double, const double*, const double*, std::ptrdiff_t, double*,
                                int) noexcept;
template void add_outer_product(bool, int, int, DoubleComplex, const DoubleComplex*, const DoubleComplex*,
                                std::ptrdiff_t, DoubleComplex*, int) noexcept;
template void solve_triangle(Triangle, int, const double*, int, double*) noexcept;
template void solve_triangle(Triangle, int, const DoubleComplex*, int, DoubleComplex*) noexcept;

}  // namespace quorin::dense::kernels
