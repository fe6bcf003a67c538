// What every reader of column pointers and row indices makes sure of before anybody uses them.
#pragma once

#include <algorithm>
#include <cstdint>

namespace quorin::taucs {

/// Whether colptr, of n + 1, starts at 0 and never decreases.
inline bool are_column_starts(const std::int32_t* colptr, std::int32_t n) noexcept {
  return colptr[0] == 0 && std::is_sorted(colptr, colptr + n + 1);
}

/// Whether all row indices are from 0 to m - 1.
inline bool are_rows_of(const std::int32_t* rowind, std::int32_t count, std::int32_t m) noexcept {
  return std::all_of(rowind, rowind + count, [m](std::int32_t i) { return i >= 0 && i < m; });
}

}  // namespace quorin::taucs
