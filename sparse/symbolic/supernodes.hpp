// The partition of a factor's columns into supernodes.
//
// Steps are in postorder here: children before parents, subtrees contiguous.
#pragma once

#include "base/workspace.hpp"
#include "sparse/pattern/compressed.hpp"

namespace quorin::sparse {

// Supernodes of n steps, numbered so that children come before their parents.
struct Supernodes {
  explicit Supernodes(int n) noexcept
      : memory(base::saturating_product(static_cast<std::size_t>(n), 4)),
        of(memory.data()),
        columns(of + n),
        below(columns + n),
        parent(below + n) {}

  int count = 0;
  base::Workspace<int> memory;
  int* of;       // the supernode of each step
  int* columns;  // how many steps the supernode has
  int* below;    // rows below them
  int* parent;   // kNone at a root
};

// Maximal runs of steps in which each is the parent of the one before and has the same rows below. `parent` and
// `counts` are the elimination tree and the entries of each column, diagonal included. A supernode begins at step
// `cut`.
//
// Liu, Ng & Peyton, On finding supernodes for sparse matrix computations, SIAM J. Matrix Anal. Appl. 14 (1993).
void find_supernodes(int n, const int* parent, const int* counts, int cut, Supernodes& supernodes) noexcept;

// Merges supernodes with their parents while few zeros come in: many of them into supernodes of a few columns, a small
// part of the entries into large ones. must_merge[s] is not 0 where supernode s has to go with its parent; null: none
// has. Supernodes from `fixed` on take no part. Numbers do not change: merged_into[s] becomes the supernode that s has
// gone to, which is s for those that remain; of[] keeps the old ones. kOutOfMemory is all that can go wrong.
//
// Ashcraft & Grimes, The influence of relaxed supernode partitions on the multifrontal method, ACM TOMS 15 (1989).
[[nodiscard]] bool merge_supernodes(int fixed, const int* must_merge, Supernodes& supernodes,
                                    int* merged_into) noexcept;

}  // namespace quorin::sparse
