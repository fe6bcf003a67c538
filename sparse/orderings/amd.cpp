// The orderings of AMD and COLAMD.
#include <amd.h>
#include <colamd.h>

#include <algorithm>
#include <limits>

#include "sparse/orderings/orderings.hpp"

namespace quorin::sparse {

using base::Workspace;

Outcome order_amd(const Pattern& pattern, const Ordering& ordering) noexcept {
  if (pattern.rows != pattern.columns || !pattern.check()) return Outcome::kBadPattern;
  const int n = pattern.columns;
  if (n == 0) return Outcome::kDone;
  switch (amd_order(n, pattern.starts, pattern.indices, ordering.permutation, nullptr, nullptr)) {
    case AMD_OK:
    case AMD_OK_BUT_JUMBLED:
      invert(n, ordering);
      return Outcome::kDone;
    case AMD_OUT_OF_MEMORY:
      return Outcome::kOutOfMemory;
    default:
      return Outcome::kFailed;
  }
}

// COLAMD works in place on the pattern, in an array with room for its own records behind it.
Outcome order_colamd(const Pattern& pattern, const Ordering& ordering) noexcept {
  if (!pattern.check()) return Outcome::kBadPattern;
  const int n = pattern.columns;
  if (n == 0) return Outcome::kDone;
  const std::size_t length = colamd_recommended(pattern.entries(), pattern.rows, n);
  if (length == 0 || length > static_cast<std::size_t>(std::numeric_limits<int>::max())) return Outcome::kTooLarge;
  Workspace<int> entries(length), starts(static_cast<std::size_t>(n) + 1);
  if (!entries || !starts) return Outcome::kOutOfMemory;
  // Zeros in the room behind: where entries are repeated, COLAMD reads a part of it that it has not written.
  std::fill(std::copy_n(pattern.indices, pattern.entries(), entries.begin()), entries.end(), 0);
  std::copy_n(pattern.starts, starts.size(), starts.data());
  int stats[COLAMD_STATS];
  if (!colamd(pattern.rows, n, static_cast<int>(length), entries.data(), starts.data(), nullptr, stats)) {
    return Outcome::kFailed;
  }
  std::copy_n(starts.data(), n, ordering.permutation);
  invert(n, ordering);
  return Outcome::kDone;
}

}  // namespace quorin::sparse
