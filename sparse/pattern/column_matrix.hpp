// Matrices in compressed columns, with values.
#pragma once

#include "base/scalar.hpp"
#include "sparse/pattern/compressed.hpp"

namespace quorin::sparse {

// Whether a stored entry (i, j) off the diagonal also stands for (j, i), and with which value.
enum class Symmetry {
  kGeneral,    // no
  kSymmetric,  // the same
  kHermitian,  // its conjugate
};

// Borrowed. Entry k, in the column to which the pattern assigns it, is values[k].
template <Scalar T>
struct ColumnMatrix : Pattern {
  const T* values = nullptr;
};

// Arrays that a matrix is written into: columns + 1 starts, and room for all entries.
template <Scalar T>
struct ColumnArrays {
  int* starts;
  int* indices;
  T* values;

  void put(int place, int i, T value) const {
    indices[place] = i;
    values[place] = value;
  }
};

}  // namespace quorin::sparse
