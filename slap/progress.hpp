// Stopping tests, the iteration count and the status: what all iterations share.
#pragma once

namespace quorin::slap {

enum Status : int {
  kConverged = 0,
  kNotConverged = 2,
  kBadInput = 3,
  kToleranceRaised = 4,
  kBreakdown = 5,
  kSecondBreakdown = 6,
  kFactorizationBreakdown = 7,
};

enum StoppingTest : int {
  kResidual = 1,                // ||r|| / ||b||
  kPreconditionedResidual = 2,  // ||M^-1 r|| / ||M^-1 b||
  kKnownSolution = 11,          // ||x - s|| / ||s||, and s is zero in this library: infinite, or a NaN
};

struct System;

// The host's arguments that have to do with stopping.
struct StoppingArguments {
  int itol;
  float* tol;
  int itmax;
  int* iter;
  float* err;
  int* ierr;
};

class Progress {
 public:
  // Iteration 0. A tolerance below 500 half epsilons cannot be reached in single precision; it is raised to that.
  explicit Progress(const StoppingArguments& arguments);

  // The test at iteration 0, which fixes the denominator of all others: `r` is the residual, `z` = M^-1 r, `scratch`
  // has n entries. True: nothing is left to do, the solution is good enough or the test unknown.
  bool ends_at_start(const System& system, const float* r, const float* z, float* scratch);

  // The test after an iteration. z = M^-1 r is read only if tests_preconditioned().
  bool has_converged(const System& system, const float* r, const float* z);

  // The same in two parts, for iterations that know the norm.
  bool start_tests(const System& system, float* scratch);  // false: the test is unknown
  bool has_converged(float norm);

  // Goes to the next iteration; false when none is left.
  bool next();
  // Whether next() would be false.
  bool is_over() const { return *arguments_.iter >= arguments_.itmax; }
  void fail(Status status) { *arguments_.ierr = status; }

  bool tests_preconditioned() const { return arguments_.itol == kPreconditionedResidual; }
  bool tests_solution() const { return arguments_.itol == kKnownSolution; }

 private:
  StoppingArguments arguments_;
  float denominator_ = 0;
};

}  // namespace quorin::slap
