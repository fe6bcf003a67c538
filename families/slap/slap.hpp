// Preconditioned iterative solvers for sparse systems A x = b in single precision, the matrix in triads or columns.
//
// Literature: A. Greenbaum, M. Seager, SLAP: Sparse Linear Algebra Package, user's guide, UCRL-100195, Lawrence
// Livermore National Laboratory 1988; the methods' own sources stand in the files of the iterations and in README.md.
#pragma once

#include "families/slap/driver.hpp"

namespace quorin::slap {

// Brings a matrix of triads (row ia, column ja, value a, one-based, in any order) to the column format: ja(j) becomes
// the place of column j's first entry, ja(n+1) = nelt + 1, ja(n+2) = 0; the diagonal stands first in its column, then
// rows ascend. ja holds max(nelt, n + 2) entries. A matrix with ja(n+1) = nelt + 1 is taken as converted and left
// alone, and so is one with a column outside 1..n. Repeated entries stay. Every column must hold an entry, or columns
// come out wrong (never out of bounds).
void to_column_format(int n, int nelt, int* ia, int* ja, float* a, const int* isym) noexcept;

// Reads nothing and prints nothing.
void print_structure(const int* n, const int* nelt, const int* ia, const int* ja, const float* a, const int* isym,
                     const int* iunit) noexcept;

// What a solver's arguments ask for.
template <Iteration kIteration, Preconditioning kPreconditioning>
Call describe(int n, const float* b, float* x, int nelt, int* ia, int* ja, float* a, int isym,
              const StoppingArguments& stopping, float* rwork, int* iwork) {
  return {.iteration = kIteration,
          .preconditioning = kPreconditioning,
          .n = n,
          .b = b,
          .x = x,
          .nelt = nelt,
          .ia = ia,
          .ja = ja,
          .a = a,
          .isym = isym,
          .stopping = stopping,
          .rwork = rwork,
          .iwork = iwork};
}

// The arguments are told in exports/tables/slap.table. rwork and iwork are as long as it says, which is not checked.
template <Iteration kIteration, Preconditioning kPreconditioning>
void solve(int n, const float* b, float* x, int nelt, int* ia, int* ja, float* a, int isym, int itol, float* tol,
           int itmax, int* iter, float* err, int* ierr, const int*, float* rwork, const int*, int* iwork,
           const int*) noexcept {
  run(describe<kIteration, kPreconditioning>(n, b, x, nelt, ia, ja, a, isym, {itol, tol, itmax, iter, err, ierr}, rwork,
                                             iwork));
}

// The same for an iteration that keeps `nsave` direction vectors.
template <Iteration kIteration, Preconditioning kPreconditioning>
void solve_with_directions(int n, const float* b, float* x, int nelt, int* ia, int* ja, float* a, int isym, int nsave,
                           int itol, float* tol, int itmax, int* iter, float* err, int* ierr, const int*, float* rwork,
                           const int*, int* iwork, const int*) noexcept {
  Call call = describe<kIteration, kPreconditioning>(n, b, x, nelt, ia, ja, a, isym,
                                                     {itol, tol, itmax, iter, err, ierr}, rwork, iwork);
  call.nsave = nsave;
  run(call);
}

// The same with ifact: 0 takes the preconditioner that an earlier call for the same matrix left in rwork and iwork.
template <Iteration kIteration, Preconditioning kPreconditioning>
void solve_reusing(int n, const float* b, float* x, int nelt, int* ia, int* ja, float* a, int isym, int itol,
                   float* tol, int itmax, int* iter, float* err, int* ierr, const int*, float* rwork, const int*,
                   int* iwork, const int*, int ifact) noexcept {
  Call call = describe<kIteration, kPreconditioning>(n, b, x, nelt, ia, ja, a, isym,
                                                     {itol, tol, itmax, iter, err, ierr}, rwork, iwork);
  call.sets_up = ifact != 0;
  run(call);
}

inline constexpr auto& ssdcg = solve<Iteration::kCg, Preconditioning::kDiagonal>;
inline constexpr auto& ssiccg = solve<Iteration::kCg, Preconditioning::kIncompleteCholesky>;
inline constexpr auto& ssiccgc = solve_reusing<Iteration::kCg, Preconditioning::kIncompleteCholesky>;
inline constexpr auto& ssdcgn = solve<Iteration::kCgNormal, Preconditioning::kDiagonal>;
inline constexpr auto& sslucn = solve<Iteration::kCgNormal, Preconditioning::kIncompleteLu>;
inline constexpr auto& ssdbcg = solve<Iteration::kBicg, Preconditioning::kDiagonal>;
inline constexpr auto& sslubc = solve<Iteration::kBicg, Preconditioning::kIncompleteLu>;
inline constexpr auto& ssdcgs = solve<Iteration::kCgs, Preconditioning::kDiagonal>;
inline constexpr auto& sslucs = solve<Iteration::kCgs, Preconditioning::kIncompleteLu>;
inline constexpr auto& ssdgmr = solve_with_directions<Iteration::kGmres, Preconditioning::kDiagonal>;
inline constexpr auto& sslugm = solve_with_directions<Iteration::kGmres, Preconditioning::kIncompleteLu>;
inline constexpr auto& ssdomn = solve_with_directions<Iteration::kOrthomin, Preconditioning::kDiagonal>;
inline constexpr auto& ssluom = solve_with_directions<Iteration::kOrthomin, Preconditioning::kIncompleteLu>;
inline constexpr auto& ssjac = solve<Iteration::kRefinement, Preconditioning::kDiagonal>;
inline constexpr auto& ssgs = solve<Iteration::kRefinement, Preconditioning::kLowerTriangle>;
inline constexpr auto& ssilur = solve<Iteration::kRefinement, Preconditioning::kIncompleteLu>;

}  // namespace quorin::slap
