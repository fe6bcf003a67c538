#include "families/taucs/solvers/sorted_columns.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "families/taucs/engine_view.hpp"
#include "families/taucs/operations.hpp"

namespace quorin::taucs {
namespace {

// Adds up entries of the same place in columns with ascending rows.
template <Element T>
void merge_repeated(CcsMatrix& A) {
  const sparse::ColumnArrays<T> to = arrays_of<T>(A);
  int written = 0;
  for (int j = 0, k = 0; j < A.n; ++j) {
    const int begin = written;
    for (; k < A.colptr[j + 1]; ++k) {
      if (written > begin && A.rowind[written - 1] == A.rowind[k]) {
        to.values[written - 1] += to.values[k];
      } else {
        to.put(written++, A.rowind[k], to.values[k]);
      }
    }
    A.colptr[j] = begin;
  }
  A.colptr[A.n] = written;
}

// Each entry off the diagonal, and its mirror image.
template <Element T>
OwnedMatrix both_triangles(const CcsMatrix& A) {
  const int n = A.n, entries = A.colptr[n];
  if (entries > std::numeric_limits<int>::max() / 2) return nullptr;
  base::Workspace<int> next(static_cast<std::size_t>(n));
  OwnedMatrix B(next ? create<T>(n, n, 2 * entries) : nullptr);
  if (B == nullptr) return nullptr;
  std::fill(next.begin(), next.end(), 0);
  for (int j = 0; j < n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      ++next.data()[j];
      if (A.rowind[k] != j) ++next.data()[A.rowind[k]];
    }
  }
  sparse::cumulate(n, next.data(), B->colptr);
  const bool is_hermitian = symmetry_of(A) == sparse::Symmetry::kHermitian;
  const sparse::ColumnArrays<T> to = arrays_of<T>(*B);
  for (int j = 0; j < n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const int i = A.rowind[k];
      const T value = A.elements<T>()[k];
      to.put(next.data()[j]++, i, value);
      if (i != j) to.put(next.data()[i]++, j, is_hermitian ? conjugate(value) : value);
    }
  }
  return B;
}

}  // namespace

template <Element T>
OwnedMatrix sorted_columns(const CcsMatrix& A) {
  const OwnedMatrix turned(taucs::transpose<T>(&A));
  OwnedMatrix sorted(turned != nullptr ? taucs::transpose<T>(turned.get()) : nullptr);
  if (sorted != nullptr) merge_repeated<T>(*sorted);
  return sorted;
}

template <Element T>
OwnedMatrix full_sorted_columns(const CcsMatrix& A) {
  if (!A.is_symmetric_or_hermitian()) return sorted_columns<T>(A);
  const OwnedMatrix full = both_triangles<T>(A);
  return full != nullptr ? sorted_columns<T>(*full) : nullptr;
}

template <Element T>
bool is_finite(const CcsMatrix& A) {
  const double* const numbers = A.values.d;
  const std::size_t count = static_cast<std::size_t>(A.colptr[A.n]) * kParts<T>;
  return std::all_of(numbers, numbers + count, [](double x) { return std::isfinite(x); });
}

template OwnedMatrix sorted_columns<double>(const CcsMatrix&);
template OwnedMatrix sorted_columns<Complex>(const CcsMatrix&);
template OwnedMatrix full_sorted_columns<double>(const CcsMatrix&);
template OwnedMatrix full_sorted_columns<Complex>(const CcsMatrix&);
template bool is_finite<double>(const CcsMatrix&);
template bool is_finite<Complex>(const CcsMatrix&);

}  // namespace quorin::taucs
