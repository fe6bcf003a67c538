// Solves with a factor, all of it or a stage, for many right-hand sides.
#pragma once

#include "base/scalar.hpp"
#include "sparse/numeric/factor.hpp"
#include "sparse/symbolic/solve_paths.hpp"

namespace quorin::sparse {

// op(A) in op(A) x = b.
enum class Operation { kPlain, kTransposed, kAdjoint, kConjugated };

// With P A P^T = L D L' or L U (D is 1 where a factorization has none): L^-1 P, D^-1, P^T L'^-1 or P^T U^-1. One after
// the other they make kAll. For transposed operations of LU, U^T takes the place of L.
//
// With a Schur complement S, kForward leaves b - ... in its unknowns, the right-hand side of S, and kBackward takes the
// solution of S from there; kAll leaves these unknowns to the two stages, as if S were the identity.
enum class Stage { kAll, kForward, kDiagonal, kBackward };

// x <- the solution for x, in the plan's order of unknowns: row k of x belongs to vertex plan.permutation()[k] (for a
// matrix with permuted rows, the right-hand side's row k to the row that was put there). `nrhs` columns of n, leading
// dimension ldx >= n. kOutOfMemory, which leaves x as it was; what the factor's store says, which does not. Beside x,
// the work takes nrhs * (most_columns + most_below) scalars for each thread, at most 64 right-hand sides at a time, and
// with threads n of them.
//
// Results have the same bits for any number of threads.
template <Scalar T>
FactorOutcome solve(const Factor<T>& factor, Operation operation, Stage stage, int nrhs, T* x, int ldx,
                    int threads = 1) noexcept;

// The wanted rows of the solution for a right-hand side of which only the given rows are read; the others count as
// zero. `paths` were found for the factor's plan. Other rows of x are neither read nor written. All else is as above.
template <Scalar T>
FactorOutcome solve_partly(const Factor<T>& factor, Operation operation, const SolvePaths& paths, int nrhs, T* x,
                           int ldx, int threads = 1) noexcept;

}  // namespace quorin::sparse
