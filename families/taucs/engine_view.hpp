// A record as the engine in sparse/ sees it.
#pragma once

#include "families/taucs/matrix.hpp"
#include "sparse/sparse.hpp"

namespace quorin::taucs {

inline sparse::Symmetry symmetry_of(const CcsMatrix& A) {
  if (A.has(kSymmetric)) return sparse::Symmetry::kSymmetric;
  return A.has(kHermitian) ? sparse::Symmetry::kHermitian : sparse::Symmetry::kGeneral;
}

// The columns of a matrix of `rows` rows, to be read.
template <Element T>
sparse::ColumnMatrix<T> columns_of(const CcsMatrix& A, int rows) {
  return {{rows, A.n, A.colptr, A.rowind}, A.elements<T>()};
}

// The columns of a new matrix, to be filled.
template <Element T>
sparse::ColumnArrays<T> arrays_of(const CcsMatrix& A) {
  return {A.colptr, A.rowind, A.elements<T>()};
}

// Whether the numbers of a list lie from 0 to bound - 1. Without a way out in the middle, several at a time.
inline bool are_indices(const int* list, int count, int bound) {
  bool is_stray = false;
  for (int k = 0; k < count; ++k) is_stray |= static_cast<unsigned>(list[k]) >= static_cast<unsigned>(bound);
  return !is_stray;
}

// The rows that the entries of A need: m, or n where the two are exchanged, as two of the readers leave them. kNone if
// an entry lies outside of both, or the columns do not follow each other.
inline int rows_of(const CcsMatrix& A) {
  for (const int rows : {A.m, A.n}) {
    if (sparse::check_compressed(A.n, rows, A.colptr, A.rowind)) return rows;
  }
  return sparse::kNone;
}

inline bool is_lower_stored(const CcsMatrix& A) { return A.is_symmetric_or_hermitian() && A.has(kLower); }

// Whether all entries lie in the n x n matrix.
inline bool is_within_order(const CcsMatrix& A) {
  return static_cast<bool>(sparse::check_compressed(A.n, A.n, A.colptr, A.rowind));
}

// Whether A is a sound symmetric or Hermitian matrix of this element type with its lower triangle stored.
template <Element T>
bool is_sound_triangle(const CcsMatrix* A) {
  return holds<T>(A) && is_lower_stored(*A) &&
         sparse::check_compressed(A->n, A->n, A->colptr, A->rowind, {.is_lower = true});
}

}  // namespace quorin::taucs
