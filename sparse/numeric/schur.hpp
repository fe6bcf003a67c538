// Schur complements: what elimination of all unknowns but those of a plan's schur_size leaves of a matrix,
//
//   S = A_GG - A_GI A_II^-1 A_IG,   A = [A_II A_IG; A_GI A_GG],
//
// and solves with A by way of S. Stage::kForward makes the right-hand side of S from b, Stage::kBackward takes its
// solution from there (solve.hpp); between the two anybody may solve with S, here it is done densely.
//
// Scales of the unknowns G have to be 1 for S to be that of A itself, as preprocess() makes them.
#pragma once

#include "base/scalar.hpp"
#include "base/workspace.hpp"
#include "sparse/numeric/factor.hpp"
#include "sparse/numeric/solve.hpp"

namespace quorin::sparse {

// S <- the Schur complement of a factor whose plan has one, by columns or by rows, `lds` elements from one to the next;
// rows and columns as the last steps of the plan, which are those of the ordering. All of it, of symmetric and
// Hermitian matrices, too. What the factor's store says.
template <Scalar T>
FactorOutcome copy_schur_complement(const Factor<T>& factor, bool by_rows, T* S, int lds) noexcept;

// P S = L U with row exchanges.
template <Scalar T>
class SchurFactor {
 public:
  // Factors an n x n matrix, stored as above. kOutOfMemory, kNotFinite, kSingular; pivots below `perturbation` times
  // the largest row sum are replaced by that number if it is not 0.
  FactorOutcome compute(int n, const T* S, int lds, bool by_rows, double perturbation = 0, int threads = 1) noexcept;
  int size() const noexcept { return size_; }
  int perturbed() const noexcept { return perturbed_; }

  // x <- op(S)^-1 x for nrhs columns. kOutOfMemory.
  FactorOutcome solve(Operation operation, int nrhs, T* x, int ldx, int threads = 1) const noexcept;

 private:
  int size_ = 0, perturbed_ = 0;
  base::Workspace<T> panel_;
  base::Workspace<int> rows_;
};

// x <- op(A)^-1 x in the plan's order of unknowns. S has been factored, or is another matrix of that order that should
// take its place. As solve().
template <Scalar T>
FactorOutcome solve_with_schur(const Factor<T>& factor, const SchurFactor<T>& S, Operation operation, int nrhs, T* x,
                               int ldx, int threads = 1) noexcept;

}  // namespace quorin::sparse
