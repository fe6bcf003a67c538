// Augmented maximum-weight-basis preconditioners.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// A sparser symmetric positive definite M for a real symmetric A of which the lower triangle is stored, and whose
// diagonal is positive: to be factored, where it has little fill, and to precondition conjugate gradients on A.
//
// Off-diagonal entries are edges of the weight |a_ij|. A negative one asks x_i and x_j to be equal, a positive one to
// be opposite. Edges are taken by weight: those that join two trees, and those that contradict a tree that neither A's
// dominance nor an edge before has tied down. That is a spanning forest of maximum weight, and all of a maximum-weight
// basis of A. The trees are then cut into about `subgraphs` connected pieces of equal size. For each pair of pieces,
// the heaviest edge that agrees with the trees on both sides and the heaviest that contradicts them are added, unless
// the basis has them, and the latter within each piece, too. `subgraphs` = 1 makes the basis alone, and n nearly all of
// A. Where weights are equal, edges near the root go first, a vertex that `seed` chooses: on grids that gives short
// paths.
//
// - A diagonally dominant: each row of M keeps the surplus that its diagonal has over the magnitudes beside it.
// - Else A = (D + N) + P, of which P has the positive off-diagonal entries: they go to the diagonal, which only adds to
//   x^T A x, and M is made of D + N with what the diagonal lacks of dominance.
// A component without any surplus would leave M singular; its root gets its own diagonal entry once more.
//
// Null if A is complex, has another structure, a diagonal entry that is not positive, or one that is not finite; for
// `stretch` other than 0 (a choice of edges by other measures than weight is not supported); and without memory.
// Time: O(m log m) for m entries.
//
// E. G. Boman, D. Chen, B. Hendrickson, S. Toledo, Maximum-weight-basis preconditioners, Numer. Linear Algebra Appl. 11
// (2004) 695-721; D. Chen, S. Toledo, Vaidya's preconditioners: implementation and experimental study, ETNA 16 (2003)
// 30-49.
CcsMatrix* amwb_preconditioner_create(const CcsMatrix* A, std::int32_t seed, double subgraphs,
                                      std::int32_t stretch) noexcept;

}  // namespace quorin::taucs
