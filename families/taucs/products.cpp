#include "families/taucs/products.hpp"

#include <algorithm>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"

namespace quorin::taucs {
namespace {

// Rows beyond the n-th, in a matrix that has more rows than columns, only where they have entries.
template <Element T>
void clear(const CcsMatrix& A, T* b) {
  std::fill_n(b, A.n, T{});
  if (A.m <= A.n) return;
  for (int k = 0; k < A.colptr[A.n]; ++k) {
    if (A.rowind[k] >= A.n) b[A.rowind[k]] = T{};
  }
}

}  // namespace

template <Element T>
void times_vec(const CcsMatrix* A, const T* x, T* b) noexcept {
  times_vec_many(A, 1, x, b);
}

template <Element T>
void times_vec_many(const CcsMatrix* A, std::int32_t count, const T* X, T* B) noexcept {
  if (!holds<T>(A)) return;
  for (int column = 0; column < count; ++column, X += A->n, B += A->n) {
    clear(*A, B);
    sparse::add_product(columns_of<T>(*A, A->m), symmetry_of(*A), X, B);
  }
}

template void times_vec(const CcsMatrix*, const double*, double*) noexcept;
template void times_vec(const CcsMatrix*, const Complex*, Complex*) noexcept;
template void times_vec_many(const CcsMatrix*, std::int32_t, const double*, double*) noexcept;
template void times_vec_many(const CcsMatrix*, std::int32_t, const Complex*, Complex*) noexcept;

void ccs_times_vec(const CcsMatrix* A, const void* x, void* b) noexcept { ccs_times_vec_many(A, 1, x, b); }

void ccs_times_vec_many(const CcsMatrix* A, std::int32_t count, const void* X, void* B) noexcept {
  if (holds<Complex>(A)) {
    times_vec_many(A, count, static_cast<const Complex*>(X), static_cast<Complex*>(B));
  } else {
    times_vec_many(A, count, static_cast<const double*>(X), static_cast<double*>(B));
  }
}

}  // namespace quorin::taucs
