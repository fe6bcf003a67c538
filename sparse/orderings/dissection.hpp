// Nested dissection on threads.
#pragma once

#include "sparse/pattern/graph.hpp"

namespace quorin::sparse {

// As order_metis does it, but in parts, which the threads of the domain of sparse direct solvers share: METIS finds the
// first separators of a large graph, and orders what is between them. The order has no more fill, on average, and is
// the same for any number of threads; that of a small graph is order_metis's. kOutOfMemory; kFailed for any other error
// of METIS.
Outcome order_dissection(const Graph& graph, const Ordering& ordering) noexcept;

// Gives back what calls of METIS keep from one to the next, a thread slot. There may be calls again afterwards.
void stop_orderings() noexcept;

}  // namespace quorin::sparse
