#include "families/taucs/operations.hpp"

#include <algorithm>
#include <limits>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"
#include "families/taucs/messages.hpp"

namespace quorin::taucs {
namespace {

using Indices = base::Workspace<int>;

std::size_t length(int n) { return static_cast<std::size_t>(n); }

// Columns first, ..., last - 1 of A as a matrix of `rows` rows, counted from `offset`.
template <Element T>
CcsMatrix* copy_columns(const CcsMatrix& A, int first, int last, int rows, int offset) {
  const int begin = A.colptr[first], count = A.colptr[last] - begin;
  CcsMatrix* const B = create<T>(rows, last - first, count);
  if (B == nullptr) return nullptr;
  for (int j = first; j <= last; ++j) B->colptr[j - first] = A.colptr[j] - begin;
  for (int k = 0; k < count; ++k) B->rowind[k] = A.rowind[begin + k] - offset;
  std::copy_n(A.elements<T>() + begin, count, B->elements<T>());
  return B;
}

}  // namespace

template <Element T>
CcsMatrix* transpose(const CcsMatrix* A) noexcept {
  const int rows = holds<T>(A) ? rows_of(*A) : sparse::kNone;
  if (rows == sparse::kNone) return refuse("taucs_ccs_transpose: wrong type or damaged matrix\n");
  Indices next(length(rows));
  CcsMatrix* const B = next ? create<T>(A->n, rows, A->colptr[A->n]) : nullptr;
  if (B == nullptr) return refuse("taucs_ccs_transpose: out of memory\n");
  sparse::transpose(columns_of<T>(*A, rows), arrays_of<T>(*B), next.data());
  B->flags = A->flags & ~(kLower | kUpper);
  if (A->has(kLower)) B->flags |= kUpper;
  if (A->has(kUpper)) B->flags |= kLower;
  return B;
}

template <Element T>
CcsMatrix* permute_symmetrically(const CcsMatrix* A, const std::int32_t*, const std::int32_t* invperm) noexcept {
  if (!holds<T>(A) || !is_lower_stored(*A) || !is_within_order(*A) || !are_indices(invperm, A->n, A->n)) {
    return refuse("taucs_ccs_permute_symmetrically: no permutation, or matrix not symmetric or not lower\n");
  }
  Indices next(length(A->n));
  CcsMatrix* const B = next ? create<T>(A->n, A->n, A->colptr[A->n]) : nullptr;
  if (B == nullptr) return refuse("taucs_ccs_permute_symmetrically: out of memory\n");
  sparse::permute_symmetrically(columns_of<T>(*A, A->n), symmetry_of(*A), invperm, arrays_of<T>(*B), next.data());
  B->flags = A->flags;
  return B;
}

void ccs_permute_rows_inplace(CcsMatrix* A, const std::int32_t* perm) noexcept {
  if (!holds<double>(A) || !sparse::check_compressed(A->n, A->m, A->colptr, A->rowind)) return;
  int* const end = A->rowind + A->colptr[A->n];
  if (!std::all_of(A->rowind, end, [&](int i) { return perm[i] >= 0 && perm[i] < A->m; })) return;
  for (int* row = A->rowind; row != end; ++row) *row = perm[*row];
}

template <Element T>
void split(const CcsMatrix* A, CcsMatrix** L, CcsMatrix** R, std::int32_t p) noexcept {
  *L = *R = nullptr;
  if (!holds<T>(A) || p < 0 || p > A->n ||
      !sparse::check_compressed(A->n, A->n, A->colptr, A->rowind, {.is_lower = true})) {
    return message("taucs_ccs_split: p=%d is no column, or matrix not lower\n", p);
  }
  OwnedMatrix left(copy_columns<T>(*A, 0, p, A->n, 0));
  OwnedMatrix right(copy_columns<T>(*A, p, A->n, A->n - p, p));
  if (left == nullptr || right == nullptr) return message("taucs_ccs_split: out of memory\n");
  left->flags |= kLower;
  right->flags = A->flags;
  *L = left.release();
  *R = right.release();
}

// Count, cumulate, scatter.
template <Element T>
CcsMatrix* augment(const CcsMatrix* A) noexcept {
  constexpr int kMost = std::numeric_limits<int>::max() / 2;
  if (!holds<T>(A) || !is_lower_stored(*A) || !is_within_order(*A)) {
    return refuse("taucs_ccs_augment_nonpositive_offdiagonal: matrix not symmetric or not lower\n");
  }
  const int n = A->n, nnz = A->colptr[n];
  const bool fits = n <= kMost && nnz <= kMost;
  Indices next(fits ? length(2 * n) : 0);
  CcsMatrix* const M = fits && next ? create<T>(2 * n, 2 * n, 2 * nnz) : nullptr;
  if (M == nullptr) return refuse("taucs_ccs_augment_nonpositive_offdiagonal: out of memory\n");

  const T* const values = A->elements<T>();
  const sparse::ColumnArrays<T> to = arrays_of<T>(*M);
  const bool is_hermitian = symmetry_of(*A) == sparse::Symmetry::kHermitian;
  const auto moves = [values](int i, int j, int k) { return i != j && real_part(values[k]) > 0; };
  std::fill(next.begin(), next.end(), 0);
  for (int j = 0; j < n; ++j) {
    for (int k = A->colptr[j]; k < A->colptr[j + 1]; ++k) {
      const int i = A->rowind[k];
      ++next[j], ++next[moves(i, j, k) ? i : n + j];
    }
  }
  sparse::cumulate(2 * n, next.data(), to.starts);
  for (int j = 0; j < n; ++j) {
    for (int k = A->colptr[j]; k < A->colptr[j + 1]; ++k) {
      const int i = A->rowind[k];
      if (moves(i, j, k)) {  // both triangles of -P lie below the diagonal of M
        to.put(next[j]++, n + i, -values[k]);
        to.put(next[i]++, n + j, -(is_hermitian ? conjugate(values[k]) : values[k]));
      } else {
        to.put(next[j]++, i, values[k]);
        to.put(next[n + j]++, n + i, values[k]);
      }
    }
  }
  M->flags = A->flags;
  return M;
}

template CcsMatrix* transpose<double>(const CcsMatrix*) noexcept;
template CcsMatrix* transpose<Complex>(const CcsMatrix*) noexcept;
template CcsMatrix* permute_symmetrically<double>(const CcsMatrix*, const std::int32_t*, const std::int32_t*) noexcept;
template CcsMatrix* permute_symmetrically<Complex>(const CcsMatrix*, const std::int32_t*, const std::int32_t*) noexcept;
template void split<double>(const CcsMatrix*, CcsMatrix**, CcsMatrix**, std::int32_t) noexcept;
template void split<Complex>(const CcsMatrix*, CcsMatrix**, CcsMatrix**, std::int32_t) noexcept;
template CcsMatrix* augment<double>(const CcsMatrix*) noexcept;
template CcsMatrix* augment<Complex>(const CcsMatrix*) noexcept;

CcsMatrix* ccs_transpose(const CcsMatrix* A) noexcept {
  if (A == nullptr) return nullptr;
  return is_complex_or_stop(A->flags, kOperationsSource) ? transpose<Complex>(A) : transpose<double>(A);
}

CcsMatrix* ccs_permute_symmetrically(const CcsMatrix* A, const std::int32_t* perm,
                                     const std::int32_t* invperm) noexcept {
  if (A == nullptr) return nullptr;
  return is_complex_or_stop(A->flags, kOperationsSource) ? permute_symmetrically<Complex>(A, perm, invperm)
                                                         : permute_symmetrically<double>(A, perm, invperm);
}

void ccs_split(const CcsMatrix* A, CcsMatrix** L, CcsMatrix** R, std::int32_t p) noexcept {
  *L = *R = nullptr;
  if (A == nullptr) return;
  is_complex_or_stop(A->flags, kOperationsSource) ? split<Complex>(A, L, R, p) : split<double>(A, L, R, p);
}

CcsMatrix* ccs_augment_nonpositive_offdiagonals(const CcsMatrix* A) noexcept {
  if (A == nullptr) return nullptr;
  return is_complex_or_stop(A->flags, kOperationsSource) ? augment<Complex>(A) : augment<double>(A);
}

}  // namespace quorin::taucs
