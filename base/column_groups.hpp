// Loops over a few columns of a matrix at a time.
#pragma once

#include <type_traits>

#include "base/scalar.hpp"

namespace quorin {

// Columns that are taken at once, so that factors and sums stay in the eight registers of 32-bit processors.
template <Scalar T>
inline constexpr int kColumnsAtOnce = kIsComplex<T> ? 2 : 4;

// Calls body(count, k) for groups of columns k, ..., k + count - 1, `count` being a constant.
template <Scalar T, class Body>
void for_column_groups(int columns, const Body& body) {
  int k = 0;
  for (; k + kColumnsAtOnce<T> <= columns; k += kColumnsAtOnce<T>) {
    body(std::integral_constant<int, kColumnsAtOnce<T>>{}, k);
  }
  for (; k < columns; ++k) body(std::integral_constant<int, 1>{}, k);
}

}  // namespace quorin
