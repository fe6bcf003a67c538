// Orders of elimination. All functions fill both arrays of the ordering, or return something else than kDone.
//
// minimum_degree.hpp has one more.
#pragma once

#include <cstdint>

#include "sparse/pattern/graph.hpp"

namespace quorin::sparse {

// Nested dissection by METIS with its default options, as METIS_NodeND does it; the identity for a graph without edges.
// kOutOfMemory; kFailed for any other error of METIS.
Outcome order_metis(const Graph& graph, const Ordering& ordering) noexcept;

// Approximate minimum degree by AMD with its default settings, on the graph of A + A^T for a square pattern.
// kBadPattern, kOutOfMemory, kFailed.
Outcome order_amd(const Pattern& pattern, const Ordering& ordering) noexcept;

// Columns, by COLAMD with its default settings: for LU with row exchanges, or the Cholesky factor of A^T A. The pattern
// may be rectangular; the ordering is one of its columns. kBadPattern, kOutOfMemory, kTooLarge, kFailed.
Outcome order_colamd(const Pattern& pattern, const Ordering& ordering) noexcept;

// Leaves first, each followed by what its removal makes a leaf; then what has no leaves, by minimum degree. A forest
// has no fill in this order; in any other graph, the trees that hang on it have none. kOutOfMemory, kTooLarge.
Outcome order_tree(const Graph& graph, const Ordering& ordering) noexcept;

// One of the n! permutations: Fisher & Yates, with the SplitMix64 generator (Steele, Lea & Flood, OOPSLA 2014). The
// same seed gives the same permutation on every system.
void order_random(int n, std::uint64_t seed, const Ordering& ordering) noexcept;

void order_identity(int n, const Ordering& ordering) noexcept;

// inverse[permutation[k]] = k
void invert(int n, const Ordering& ordering) noexcept;

}  // namespace quorin::sparse
