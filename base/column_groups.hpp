// Loops over a few columns of a matrix at a time.
#pragma once

#include <type_traits>

#include "base/scalar.hpp"

namespace quorin {

// Columns that are taken at once, so that factors and sums stay in the eight registers of 32-bit processors.
template <Scalar T>
inline constexpr int kColumnsAtOnce = kIsComplex<T> ? 2 : 4;

// Calls body(count, k) for groups of columns k, ..., k + count - 1, `count` being a constant: whole groups, and what is
// left in one.
template <Scalar T, class Body>
void for_column_groups(int columns, const Body& body) {
  constexpr int kGroup = kColumnsAtOnce<T>;
  int k = 0;
  for (; k + kGroup <= columns; k += kGroup) body(std::integral_constant<int, kGroup>{}, k);
  if constexpr (kGroup > 2) {
    if (columns - k == 3) return body(std::integral_constant<int, 3>{}, k);
    if (columns - k == 2) return body(std::integral_constant<int, 2>{}, k);
  }
  if (columns - k == 1) body(std::integral_constant<int, 1>{}, k);
}

}  // namespace quorin
