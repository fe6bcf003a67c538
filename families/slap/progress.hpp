// Stopping tests, the iteration count and the status: what all iterations share.
#pragma once

#include "generated/slap_constants.hpp"

namespace quorin::slap {

using enum Status;

template <class T>
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

// What an iteration divides by or tests for zero: squares of the residual r, or its products with z = M^-1 r.
enum class Scaling { kBySquares, kByProducts };

// A leg is a stretch of an iteration in which the residual comes from a recurrence. It begins with r = b - A x computed
// anew and ends when the recurrence has to be checked, or has lost its way. This is how a leg ended.
enum class Leg {
  kFirst,    // there was none yet
  kLost,     // rounding made the recurrence useless
  kClaimed,  // the recurrence's residual passed the test
  kOver,     // nothing more is to be done
};

class Progress {
 public:
  // Iteration 0. A tolerance below 500 half epsilons cannot be reached in single precision; it is raised to that.
  explicit Progress(const StoppingArguments& arguments);

  // Fixes the denominator of the test; `scratch` has n entries. False: the test is unknown, and that is the end.
  template <class T>
  [[nodiscard]] bool start_tests(const System<T>& system, T* scratch);

  // What the test is about: the norm of r, of z = M^-1 r (read only if tests_preconditioned()), or of the error.
  template <class T>
  [[nodiscard]] float tested_norm(const System<T>& system, const T* r, const T* z) const;

  // Scales r and z, just computed, by a power of two if products of theirs might overflow or vanish. Until the next
  // residual the iteration's vectors are scaled with them; tested_norm() knows.
  void rescale(int n, Scaling scaling, float* r, float* z);
  // The step along a scaled direction that x takes.
  float unscaled(float step) const { return step / scale_; }

  // The test of a residual that was computed as b - A x.
  [[nodiscard]] bool has_converged(float norm);
  // The test of a recurrence's residual. It asks for more once such a claim was found untrue.
  [[nodiscard]] bool claims_convergence(float norm);
  // The test of a residual that was computed anew after a claim. True also if three in turn did not make it less:
  // rounding keeps it there, which is no convergence, and ERR tells where.
  [[nodiscard]] bool is_settled(float norm);
  // Whether nothing is left to do after a leg (or before the first, which starts the tests), r being computed anew.
  template <class T>
  [[nodiscard]] bool is_done_after(Leg leg, const System<T>& system, const T* r, const T* z, T* scratch);

  // Goes to the next iteration; false when none is left.
  bool next();
  // Whether next() would be false.
  bool is_over() const { return *arguments_.iter >= arguments_.itmax; }
  // The end by a breakdown.
  Leg fail(Status status) {
    set(status);
    return Leg::kOver;
  }
  // Goes back: the iteration that next() went to has not begun.
  [[nodiscard]] Leg lose() {
    --*arguments_.iter;
    return Leg::kLost;
  }

  bool tests_preconditioned() const { return arguments_.itol == kPreconditionedResidual; }
  bool tests_solution() const { return arguments_.itol == kKnownSolution; }

 private:
  // The end without convergence.
  void give_up();
  void set(Status status) { *arguments_.ierr = static_cast<int>(status); }

  StoppingArguments arguments_;
  float denominator_ = 0;
  float scale_ = 1;
  float least_claimed_;  // the least error behind a claim
  int untrue_claims_ = 0, idle_claims_ = 0;
};

}  // namespace quorin::slap
