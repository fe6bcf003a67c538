// The order of the columns within each supernode.
#pragma once

#include "base/workspace.hpp"
#include "sparse/pattern/graph.hpp"

namespace quorin::sparse {

// The supernodes of n steps and their rows, as in the plan: the rows below supernode s are rows[row_starts[s]], ...,
// rows[row_starts[s + 1] - 1], ascending.
struct SupernodeRows {
  int supernodes;
  const int *first, *supernode_of, *row_starts;
  int* rows;
};

// Rearranges the steps within each of the supernodes 0, ..., movable - 1 so that the rows which a descendant has there
// follow each other, as far as can be: what is added to a panel then goes to few runs of rows and columns. Steps,
// permutation and rows change together; the panels' sizes do not. False without memory, and nothing is changed.
// Time: O(n + rows).
//
// M. Jacquelin, E. G. Ng, B. W. Peyton, Fast and effective reordering of columns within supernodes using partition
// refinement, SIAM Workshop on Combinatorial Scientific Computing (2018) 76-86; R. Paige, R. E. Tarjan, Three partition
// refinement algorithms, SIAM J. Comput. 16 (1987) 973-989.
[[nodiscard]] bool order_columns(const SupernodeRows& supernodes, int movable, int n,
                                 const Ordering& ordering) noexcept;

}  // namespace quorin::sparse
