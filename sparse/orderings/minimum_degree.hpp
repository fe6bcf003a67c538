// Multiple minimum degree.
#pragma once

#include "sparse/pattern/graph.hpp"

namespace quorin::sparse {

// Passes over the graph: one eliminates all vertices of least degree that are not neighbours of each other, then brings
// degrees up to date. Ties are broken in two ways, which differ by up to a fifth either way on regular grids: by these
// passes, and by passes of one elimination each, at the same time where there are threads; of the two orders, the one
// with less fill is returned. kOutOfMemory, kTooLarge. Deterministic. Memory: 2.4 times the adjacency and 44 n
// integers.
//
// Liu, Modification of the minimum-degree algorithm by multiple elimination, ACM TOMS 11 (1985); George & Liu, The
// evolution of the minimum degree ordering algorithm, SIAM Review 31 (1989): quotient graph, element absorption, mass
// elimination, indistinguishable vertices, external degrees. Degrees are the upper bounds of Amestoy, Davis & Duff,
// SIAM J. Matrix Anal. Appl. 17 (1996), taken once for all eliminations of a pass.
Outcome order_minimum_degree(const Graph& graph, const Ordering& ordering) noexcept;

}  // namespace quorin::sparse
