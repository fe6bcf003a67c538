#include "families/taucs/products.hpp"

#include <algorithm>

#include "families/taucs/arithmetic.hpp"
#include "families/taucs/dispatch.hpp"

namespace quorin::taucs {
namespace {

// Rows beyond the n-th, in a matrix that has more rows than columns.
template <Element T>
void clear(const CcsMatrix& A, T* b) noexcept {
  std::fill_n(b, A.n, T{});
  if (A.m <= A.n) return;
  for (std::int32_t k = 0; k < A.colptr[A.n]; ++k) {
    if (A.rowind[k] >= A.n) b[A.rowind[k]] = T{};
  }
}

// b += A x for a general matrix, column by column.
template <Element T>
void add_general(const CcsMatrix& A, const T* x, T* b) noexcept {
  const T* const values = A.elements<T>();
  for (std::int32_t j = 0; j < A.n; ++j) {
    const T x_j = x[j];
    for (std::int32_t k = A.colptr[j]; k < A.colptr[j + 1]; ++k) b[A.rowind[k]] += times(values[k], x_j);
  }
}

// b += A x where a stored entry (i, j) stands for (j, i) too, there as mirror(value).
template <Element T, class Mirror>
void add_mirrored(const CcsMatrix& A, const T* x, T* b, Mirror mirror) noexcept {
  const T* const values = A.elements<T>();
  for (std::int32_t j = 0; j < A.n; ++j) {
    const T x_j = x[j];
    T sum{};  // of row j, from the entries below the diagonal
    for (std::int32_t k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const std::int32_t i = A.rowind[k];
      b[i] += times(values[k], x_j);
      if (i != j) sum += times(mirror(values[k]), x[i]);
    }
    b[j] += sum;
  }
}

}  // namespace

template <Element T>
void times_vec(const CcsMatrix& A, const T* x, T* b) noexcept {
  clear(A, b);
  if (A.has(kSymmetric)) {
    add_mirrored(A, x, b, [](T value) { return value; });
  } else if (A.has(kHermitian)) {
    add_mirrored(A, x, b, [](T value) { return conjugate(value); });
  } else {
    add_general(A, x, b);
  }
}

template void times_vec(const CcsMatrix&, const double*, double*) noexcept;
template void times_vec(const CcsMatrix&, const std::complex<double>*, std::complex<double>*) noexcept;

void ccs_times_vec(const CcsMatrix* A, const void* x, void* b) noexcept { ccs_times_vec_many(A, 1, x, b); }

void ccs_times_vec_many(const CcsMatrix* A, std::int32_t count, const void* X, void* B) noexcept {
  if (A == nullptr) return;
  dispatch(A->flags, [&]<class T>() {
    const auto* x = static_cast<const T*>(X);
    auto* b = static_cast<T*>(B);
    for (std::int32_t column = 0; column < count; ++column, x += A->n, b += A->n) times_vec(*A, x, b);
  });
}

}  // namespace quorin::taucs
