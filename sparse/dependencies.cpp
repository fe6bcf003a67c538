// The orderings of the libraries that we link.
#include <amd.h>
#include <colamd.h>
#include <metis.h>

#include <algorithm>
#include <mutex>
#include <type_traits>

#include "platform/platform.hpp"
#include "sparse/orderings.hpp"

namespace quorin::sparse {

using base::Workspace;

static_assert(std::is_same_v<idx_t, int>);

namespace {

// METIS keeps its heap's bookkeeping and its jump target in global variables.
constinit platform::Mutex metis_lock;

}  // namespace

// An allocation that fails inside of METIS raises a signal that METIS itself catches and returns as METIS_ERROR_MEMORY.
Outcome order_metis(const Graph& graph, const Ordering& ordering) noexcept {
  if (graph.size() == 0) return Outcome::kDone;
  // METIS has no const; it reads these.
  int n = graph.size();
  int* const starts = const_cast<int*>(graph.starts());
  int* const adjacency = const_cast<int*>(graph.adjacency());
  const std::lock_guard guard(metis_lock);
  switch (METIS_NodeND(&n, starts, adjacency, nullptr, nullptr, ordering.permutation, ordering.inverse)) {
    case METIS_OK:
      return Outcome::kDone;
    case METIS_ERROR_MEMORY:
      return Outcome::kOutOfMemory;
    default:
      return Outcome::kFailed;
  }
}

Outcome order_amd(const Pattern& pattern, const Ordering& ordering, int& code) noexcept {
  code = 0;
  if (pattern.rows != pattern.columns) return Outcome::kBadPattern;
  if (const Outcome outcome = pattern.check(); outcome != Outcome::kDone) return outcome;
  const int n = pattern.columns;
  if (n == 0) return Outcome::kDone;
  code = amd_order(n, pattern.starts, pattern.indices, ordering.permutation, nullptr, nullptr);
  if (code == AMD_OUT_OF_MEMORY) return Outcome::kOutOfMemory;
  if (code != AMD_OK && code != AMD_OK_BUT_JUMBLED) return Outcome::kFailed;
  invert(n, ordering);
  return Outcome::kDone;
}

// COLAMD works in place on the pattern, in an array with room for its own records behind it.
Outcome order_colamd(const Pattern& pattern, const Ordering& ordering) noexcept {
  if (const Outcome outcome = pattern.check(); outcome != Outcome::kDone) return outcome;
  const int n = pattern.columns;
  if (n == 0) return Outcome::kDone;
  const std::size_t length = colamd_recommended(pattern.entries(), pattern.rows, n);
  if (length == 0 || length > static_cast<std::size_t>(std::numeric_limits<int>::max())) return Outcome::kTooLarge;
  Workspace<int> entries(length), starts(static_cast<std::size_t>(n) + 1);
  if (!entries || !starts) return Outcome::kOutOfMemory;
  std::copy_n(pattern.indices, pattern.entries(), entries.data());
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
