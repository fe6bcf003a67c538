#include "families/taucs/operations.hpp"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

#include "base/workspace.hpp"
#include "families/taucs/arithmetic.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/messages.hpp"

namespace quorin::taucs {
namespace {

std::int32_t entry_count(const CcsMatrix& A) noexcept { return A.colptr[A.n]; }

// Calls visit(i, j, value) for every stored entry, column by column.
template <Element T, class Visit>
void for_each_entry(const CcsMatrix& A, Visit visit) noexcept {
  const T* const values = A.elements<T>();
  for (std::int32_t j = 0; j < A.n; ++j) {
    for (std::int32_t k = A.colptr[j]; k < A.colptr[j + 1]; ++k) visit(A.rowind[k], j, values[k]);
  }
}

// An m-by-n matrix of the entries that produce(emit) gives to emit(i, j, value), in that order within each column.
// `produce` is called twice, first to count the columns. Null if there is no memory.
template <Element T, class Produce>
CcsMatrix* assemble(std::int32_t m, std::int32_t n, std::int32_t nnz, Produce produce) noexcept {
  base::Workspace<std::int32_t> memory(static_cast<std::size_t>(n) + 1);
  CcsMatrix* const A = memory ? create<T>(m, n, nnz) : nullptr;
  if (A == nullptr) return nullptr;
  std::int32_t* const next = memory.data();  // the next free slot of each column
  std::fill_n(next, n + 1, 0);
  produce([&](std::int32_t, std::int32_t j, T) { ++next[j]; });
  std::int32_t sum = 0;
  for (std::int32_t j = 0; j <= n; ++j) {
    A->colptr[j] = sum;
    sum += std::exchange(next[j], sum);
  }
  T* const values = A->elements<T>();
  produce([&](std::int32_t i, std::int32_t j, T value) {
    const std::int32_t k = next[j]++;
    A->rowind[k] = i;
    values[k] = value;
  });
  return A;
}

template <Element T>
CcsMatrix* transpose(const CcsMatrix& A) noexcept {
  CcsMatrix* const result = assemble<T>(A.n, A.m, entry_count(A), [&](auto emit) {
    for_each_entry<T>(A, [&](std::int32_t i, std::int32_t j, T value) { emit(j, i, value); });
  });
  if (result == nullptr) return nullptr;
  result->flags = A.flags & ~(kLower | kUpper);
  if (A.has(kLower)) result->flags |= kUpper;
  if (A.has(kUpper)) result->flags |= kLower;
  return result;
}

template <Element T>
CcsMatrix* permute_symmetrically(const CcsMatrix& A, const std::int32_t* invperm) noexcept {
  const bool conjugates = !A.has(kSymmetric);
  CcsMatrix* const result = assemble<T>(A.n, A.n, entry_count(A), [&](auto emit) {
    for_each_entry<T>(A, [&](std::int32_t i, std::int32_t j, T value) {
      const std::int32_t row = invperm[i], column = invperm[j];
      if (row >= column) return emit(row, column, value);
      emit(column, row, conjugates ? conjugate(value) : value);
    });
  });
  if (result == nullptr) {
    print("taucs_ccs_permute_symmetrically: out of memory\n");
  } else {
    result->flags = A.flags;
  }
  return result;
}

// Columns first, ..., last - 1 of A, rows and columns renumbered from `offset`.
template <Element T>
void copy_columns(const CcsMatrix& A, std::int32_t first, std::int32_t last, std::int32_t offset,
                  CcsMatrix& result) noexcept {
  const std::int32_t begin = A.colptr[first], count = A.colptr[last] - begin;
  for (std::int32_t j = first; j <= last; ++j) result.colptr[j - first] = A.colptr[j] - begin;
  for (std::int32_t k = 0; k < count; ++k) result.rowind[k] = A.rowind[begin + k] - offset;
  std::copy_n(A.elements<T>() + begin, count, result.elements<T>());
}

template <Element T>
std::pair<CcsMatrix*, CcsMatrix*> split(const CcsMatrix& A, std::int32_t p) noexcept {
  const std::int32_t of_left = A.colptr[p], of_right = entry_count(A) - of_left;
  CcsMatrix* const L = create<T>(A.n, p, of_left);
  if (L == nullptr) {
    print("taucs_ccs_split: out of memory (3): p=%d nnz=%d\n", p, of_left);
    return {};
  }
  CcsMatrix* const R = create<T>(A.n - p, A.n - p, of_right);
  if (R == nullptr) {
    print("taucs_ccs_split: out of memory: n=%d nnz=%d\n", A.n - p, of_right);
    print("taucs_ccs_split: out of memory\n");
    ccs_free(L);
    return {};
  }
  copy_columns<T>(A, 0, p, 0, *L);
  copy_columns<T>(A, p, A.n, p, *R);
  L->flags |= kLower;
  R->flags = A.flags;
  return {L, R};
}

template <Element T>
CcsMatrix* augment(const CcsMatrix& A) noexcept {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max() / 2;
  const std::int32_t n = A.n, nnz = entry_count(A);
  const bool is_too_big = n > kMost || nnz > kMost;
  CcsMatrix* const M = is_too_big ? nullptr : assemble<T>(2 * n, 2 * n, 2 * nnz, [&](auto emit) {
    for_each_entry<T>(A, [&](std::int32_t i, std::int32_t j, T value) {
      if (i == j || !(real_part(value) > 0)) {
        emit(i, j, value);
        emit(n + i, n + j, value);
      } else {
        // Both triangles of -P lie below the diagonal of M.
        emit(n + i, j, -value);
        emit(n + j, i, -(A.has(kSymmetric) ? value : conjugate(value)));
      }
    });
  });
  if (M == nullptr) {
    print("taucs_ccs_augment_nonpositive_offdiagonal: out of memory\n");
  } else {
    M->flags = A.flags;
  }
  return M;
}

}  // namespace

CcsMatrix* ccs_transpose(const CcsMatrix* A) noexcept {
  if (A == nullptr) return nullptr;
  return dispatch_or_stop(A->flags, kOperationsSource, __LINE__, [&]<class T>() { return transpose<T>(*A); });
}

CcsMatrix* ccs_permute_symmetrically(const CcsMatrix* A, const std::int32_t*, const std::int32_t* invperm) noexcept {
  if (A == nullptr) return nullptr;
  return dispatch_or_stop(A->flags, kOperationsSource, __LINE__, [&]<class T>() -> CcsMatrix* {
    if (A->is_symmetric_or_hermitian() && A->has(kLower)) return permute_symmetrically<T>(*A, invperm);
    print("taucs_ccs_permute_symmetrically: the lower part must be represented\n");
    return nullptr;
  });
}

void ccs_permute_rows_inplace(CcsMatrix* A, const std::int32_t* perm) noexcept {
  if (A == nullptr || !A->has(kDouble)) return;
  for (std::int32_t k = 0; k < entry_count(*A); ++k) A->rowind[k] = perm[A->rowind[k]];
}

void ccs_split(const CcsMatrix* A, CcsMatrix** L, CcsMatrix** R, std::int32_t p) noexcept {
  *L = *R = nullptr;
  if (A == nullptr) return;
  dispatch_or_stop(A->flags, kOperationsSource, __LINE__, [&]<class T>() {
    if (p >= 0 && p <= A->n) std::tie(*L, *R) = split<T>(*A, p);
    return 0;
  });
}

CcsMatrix* ccs_augment_nonpositive_offdiagonals(const CcsMatrix* A) noexcept {
  if (A == nullptr) return nullptr;
  return dispatch_or_stop(A->flags, kOperationsSource, __LINE__, [&]<class T>() -> CcsMatrix* {
    if (A->is_symmetric_or_hermitian() && A->has(kLower)) return augment<T>(*A);
    print("taucs_ccs_augment_nonpositive_offdiagonal: matrix not symmetric or not lower\n");
    return nullptr;
  });
}

}  // namespace quorin::taucs
