// The hosts' parameter arrays, entry by entry.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "generated/rci_constants.hpp"

namespace quorin::rci {

using enum Request;

// The host's integer parameters under their names; `Int` is int or const int. Entries from zero_norm_test() on belong
// to FGMRES alone, except the private CG ones.
template <class Int>
class IntegerParameters {
 public:
  explicit IntegerParameters(Int* values) : values_(values) {}
  IntegerParameters<const Int> as_const() const { return IntegerParameters<const Int>(values_); }

  Int& size() const { return at(kIparSize); }
  Int& message_destination() const { return at(kIparMessages); }
  Int& stage() const { return at(kIparStage); }                    // CG with one right-hand side, and FGMRES
  Int& right_hand_side() const { return at(kIparRightHandSide); }  // CG with several: the one in progress, from 1
  Int& iteration() const { return at(kIparIteration); }
  Int& iteration_limit() const { return at(kIparIterationLimit); }
  Int& print_errors() const { return at(kIparPrintErrors); }
  Int& print_warnings() const { return at(kIparPrintWarnings); }
  Int& limit_test() const { return at(kIparLimitTest); }
  Int& residual_test() const { return at(kIparResidualTest); }
  Int& host_test() const { return at(kIparHostTest); }
  Int& preconditioned() const { return at(kIparPreconditioned); }
  Int& zero_norm_test() const { return at(kIparZeroNormTest); }
  Int& solution_target() const { return at(kIparSolutionTarget); }
  Int& cycle_iteration() const { return at(kIparCycleIteration); }  // steps completed since the last restart
  Int& cycle_length() const { return at(kIparCycleLength); }
  Int& hessenberg_start() const { return at(kIparHessenberg); }
  Int& cosines_start() const { return at(kIparCosines); }
  Int& sines_start() const { return at(kIparSines); }
  Int& rotated_residual_start() const { return at(kIparRotatedResidual); }
  Int& solution_start() const { return at(kIparSolution); }
  Int& preconditioned_start() const { return at(kIparPreconditionedVectors); }
  Int& source_start() const { return at(kIparSource); }
  Int& destination_start() const { return at(kIparDestination); }
  Int& replace_pivots() const { return at(kIparReplacePivots); }  // incomplete LU

  // Reserved entries that CG with several right-hand sides uses: the stage, and a count for each right-hand side.
  Int& private_stage() const { return at(kIparPrivateStage); }
  Int& iterations_of(int right_hand_side) const { return at(kParameters + right_hand_side); }

  bool has_stopping_test() const { return limit_test() != 0 || residual_test() != 0 || host_test() != 0; }

  // A host may have put any number there.
  void count_iteration() const { iteration() = std::min(iteration(), std::numeric_limits<int>::max() - 1) + 1; }

 private:
  Int& at(int position) const { return values_[position - 1]; }
  Int* values_;
};

// The host's real parameters under their names; `Real` is double or const double. CG keeps squared norms in the norm
// entries, FGMRES plain ones.
template <class Real>
class RealParameters {
 public:
  explicit RealParameters(Real* values) : values_(values) {}

  Real& relative_tolerance() const { return at(kDparRelativeTolerance); }
  Real& absolute_tolerance() const { return at(kDparAbsoluteTolerance); }
  Real& initial_residual() const { return at(kDparInitialResidual); }
  Real& target_residual() const { return at(kDparTargetResidual); }
  Real& residual() const { return at(kDparResidual); }
  Real& previous_residual() const { return at(kDparPreviousResidual); }
  Real& alpha() const { return at(kDparAlpha); }                                   // CG
  Real& beta() const { return at(kDparBeta); }                                     // CG
  Real& preconditioned_product() const { return at(kDparPreconditionedProduct); }  // reserved: CG's (r, M^-1 r)
  Real& vector_norm() const { return at(kDparVectorNorm); }                        // FGMRES: h(k+1,k)
  Real& zero_norm_tolerance() const { return at(kDparZeroNormTolerance); }         // FGMRES
  Real& pivot_threshold() const { return at(kDparPivotThreshold); }                // ILU0: smallest accepted pivot
  Real& pivot_multiplier() const { return at(kDparPivotMultiplier); }    // ILUT: a replaced pivot over its row's norm
  Real& replacement_pivot() const { return at(kDparReplacementPivot); }  // ILU0

  // An infinite residual is not above an infinite target, and no success.
  bool residual_passes() const { return std::isfinite(residual()) && residual() <= target_residual(); }

 private:
  Real& at(int position) const { return values_[position - 1]; }
  Real* values_;
};

using Ipar = IntegerParameters<int>;
using ConstIpar = IntegerParameters<const int>;
using Dpar = RealParameters<double>;
using ConstDpar = RealParameters<const double>;

}  // namespace quorin::rci
