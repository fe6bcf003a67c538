// A host of the SLAP solvers: matrices as triads, the sixteen solvers by name, and calls with work arrays of exactly
// the documented lengths between guard words.
#pragma once

#include "quorin/slap.h"
#include "tests/support/sparse.hpp"
#include "tests/support/standard.hpp"

namespace slap_test {

using Floats = std::vector<float>;
using Doubles = std::vector<double>;
using Integers = std::vector<std::int32_t>;

// Triads, one-based. With isym, the lower triangle of a symmetric matrix.
struct Triads {
  int n = 0;
  Integers ia, ja;
  Floats a;
  int isym = 0;

  int nelt() const { return static_cast<int>(a.size()); }
  void add(int i, int j, double value);
  // The lower triangle, marked as such.
  Triads lower() const;
  Triads shuffled(std::mt19937& random) const;
  Triads converted() const;  // by SS2Y
};

// Products in double precision.
Doubles multiply(const Triads& a, const Doubles& x, bool transposed = false);
Floats right_hand_side(const Triads& a, const Doubles& solution);
double norm(const Doubles& x);
double relative_residual(const Triads& a, const Floats& b, const Floats& x);
Doubles to_double(const Floats& x);

Triads triads(const quorin::test::SparseMatrix& A);
// convection_diffusion() and random_dominant() of tests/support.
Triads grid(int k, double wind);
Triads random_dominant(int n, double density, double dominance, bool symmetric, std::mt19937& random);
Doubles random_solution(int n, std::mt19937& random);

struct Options {
  int itol = 1;
  float tol = 1e-4F;
  int itmax = 1000;
  int nsave = 10;
  int ifact = 1;
  bool index_form = false;
  int iunit = 0;
  bool shifted = false;  // the reals begin between two multiples of 8
};

struct Solver {
  std::string name;
  enum class Preconditioner { kDiagonal, kLower, kCholesky, kLu } preconditioner;
  enum class Iteration { kCg, kNormal, kBicg, kCgs, kGmres, kOrthomin, kRefinement } iteration;
  decltype(&SSDCG) common = nullptr;
  decltype(&SSICCG_Idx) common_index = nullptr;
  decltype(&SSDGMR) with_nsave = nullptr;
  decltype(&SSLUGM_Idx) with_nsave_index = nullptr;

  bool is_symmetric_only() const { return iteration == Iteration::kCg; }
  bool has_index_form() const { return common_index != nullptr || with_nsave_index != nullptr; }
};
const std::vector<Solver>& solvers();
const Solver& solver(const std::string& name);

// What a call leaves. `matrix` has column starts in ja.
struct Outcome {
  Floats x;
  int iter = -7;
  int ierr = -7;
  float err = -7;
  float tol = 0;
  Triads matrix;
  Floats rwork;
  Integers iwork;
  bool is_guarded = false;  // nothing was written behind or in front of the work arrays
};

Outcome run(const Solver& s, const Triads& a, const Floats& b, const Options& options = {}, const Floats& start = {});
// SSICCGC, which takes the work arrays of `earlier` if that is given.
Outcome run_reusing(const Triads& a, const Floats& b, const Options& options, const Outcome* earlier = nullptr);

}  // namespace slap_test
