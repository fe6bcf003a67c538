// Iterative refinement: what a solve with rounding errors, or with perturbed pivots, left of the residual is solved for
// once more.
//
// M. Arioli, J. W. Demmel, I. S. Duff, Solving sparse linear systems with sparse backward error, SIAM J. Matrix Anal.
// Appl. 10 (1989) 165-190. A step that leaves much of the error gets another length, as it does in GMRES, which copes
// with perturbed pivots: M. Arioli, I. S. Duff, S. Gratton, S. Pralet, A note on GMRES preconditioned by a perturbed L
// D L^T decomposition with static pivoting, SIAM J. Sci. Comput. 29 (2007) 2024-2044.
#pragma once

#include <memory>
#include <type_traits>

#include "sparse/numeric/assembly.hpp"
#include "sparse/numeric/outcome.hpp"
#include "sparse/numeric/solve.hpp"
#include "sparse/pattern/column_matrix.hpp"

namespace quorin::sparse {

// op(A) of a square A, as residuals are taken of it; without any scaling or permutation of the factorization. The
// matrix is borrowed. On the diagonal of a Hermitian matrix imaginary parts are left out, as they are in elimination.
template <Scalar T>
struct LinearSystem {
  ColumnMatrix<T> A;
  // As of AssemblyOptions: whether the lists are rows, which entries are read, and which of them stand for their mirror
  // images, too.
  bool by_rows = false;
  Triangle read = Triangle::kAll;
  Symmetry symmetry = Symmetry::kGeneral;
  Operation operation = Operation::kPlain;
};

struct RefinementOptions {
  int most_steps = 2;
  // Residuals are accumulated in twice the working precision: in double-double, or for float in double. Backward
  // errors then no longer tell how good x is, so the relative size of the last correction has to fall, too: x gets
  // accurate even where the system is ill-conditioned, as long as its condition times the unit roundoff is below 1.
  bool extended = false;
};

// How refinement of a column ended, the best first.
enum class RefinementEnd {
  kConverged,  // at most twice the machine epsilon
  kStopped,    // no steps left, or the last one did not halve the error
  kDiverged,   // a step made an error larger that was above the root of the machine epsilon
  kNotFinite,  // infinity or NaN in A, b or x
};

// Of several columns the worst of each.
struct RefinementReport {
  RefinementEnd end = RefinementEnd::kConverged;
  int steps = 0;              // solves, those included that were taken back because they made things worse
  double backward_error = 0;  // of x as it is now, see backward_error()
};

// The componentwise backward error: the least w for which there are E, f with (op(A) + E) x = b + f and |E| <= w |A|,
// |f| <= w |b|. That is max |b - op(A) x|_i / (|op(A)| |x| + |b|)_i. Where the denominator is small beside the row's
// size times ||x||, it is as good as rounding errors, and |op(A)| |x| + (row sum of |op(A)|) ||x|| stands in its place:
// there |f| is bounded by w times that. The largest quotients of both kinds of rows are added.
// Magnitudes are |re| + |im|; maximum norm. Infinity if something is not finite, -1 without memory.
template <Scalar T>
double backward_error(const LinearSystem<T>& system, const T* b, const T* x, bool extended = false) noexcept;

namespace detail {
// Overwrites `count` columns of n, one behind the other, with solutions for them.
template <Scalar T>
struct CorrectionSolve {
  void* context;
  FactorOutcome (*call)(void* context, int count, T* columns);
};
template <Scalar T>
FactorOutcome refine(const LinearSystem<T>& system, const RefinementOptions& options, int nrhs, const T* b, int ldb,
                     T* x, int ldx, CorrectionSolve<T> solve, RefinementReport& report) noexcept;
}  // namespace detail

// x <- x + op(A)^-1 (b - op(A) x), for each of the nrhs columns until it has converged or a step no longer halves its
// error, `options.most_steps` times at most. b and x are n x nrhs, and do not overlap.
//
// FactorOutcome solve(int count, T* columns) has to overwrite `count` columns of n, one behind the other, with
// solutions for them; it must not throw. What it returns ends the work unless it is kDone; x is then a mixture of more
// and less refined columns. kOutOfMemory leaves x as it was. The report is written in either case.
//
// Memory: up to 24 columns, and up to 6 doubles a row. Time: for each step a solve, and O(entries).
template <Scalar T, class Solve>
FactorOutcome refine(const LinearSystem<T>& system, const RefinementOptions& options, int nrhs, const T* b, int ldb,
                     T* x, int ldx, Solve&& solve, RefinementReport& report) noexcept {
  using Plain = std::remove_reference_t<Solve>;
  const detail::CorrectionSolve<T> plain{
      const_cast<std::remove_const_t<Plain>*>(std::addressof(solve)),
      [](void* context, int count, T* columns) { return (*static_cast<Plain*>(context))(count, columns); }};
  return detail::refine(system, options, nrhs, b, ldb, x, ldx, plain, report);
}

}  // namespace quorin::sparse
