// A host's call, and which iteration runs in it with which preconditioner.
#pragma once

#include "families/slap/progress.hpp"

namespace quorin::slap {

enum class Iteration { kCg, kCgNormal, kBicg, kCgs, kGmres, kOrthomin, kRefinement };
enum class Preconditioning { kDiagonal, kLowerTriangle, kIncompleteCholesky, kIncompleteLu };

struct Call {
  Iteration iteration;
  Preconditioning preconditioning;
  int n;
  const float* b;
  float* x;
  int nelt;
  int *ia, *ja;
  float* a;
  int isym;
  int nsave = 0;
  StoppingArguments stopping;
  float* rwork;
  int* iwork;
  bool sets_up = true;  // else the preconditioner of an earlier call is in the work arrays

  bool is(Iteration an_iteration, Preconditioning a_preconditioning) const {
    return iteration == an_iteration && preconditioning == a_preconditioning;
  }
  bool is_diagonal_gmres() const { return is(Iteration::kGmres, Preconditioning::kDiagonal); }
};

// to_column_format (slap.hpp) for a solver. False if a column is empty or lies outside 1..n: the triads are only
// sorted.
[[nodiscard]] bool bring_to_columns(int n, int nelt, int* ia, int* ja, float* a);

// Checks the call, converts its matrix and runs the iteration; all that the host gets stands in its arguments.
void run(const Call& call);

}  // namespace quorin::slap
