// Names for the entries of the hosts' parameter arrays, so that no position appears anywhere else.
#pragma once

#include <algorithm>
#include <limits>

namespace quorin::rci {

/// What a solver asks of its host (positive), or how it ended.
enum Request : int {
  kFinished = 0,
  kMultiply = 1,
  kHostTest = 2,
  kPrecondition = 3,
  kZeroNormTest = 4,
  kIterationLimit = -1,
  kCgZeroDivision = -2,
  kCgInvalidNorm = -10,
  kGmresZeroDivision = -10,
  kEndlessLoop = -11,
  kCorruptParameters = -12,
  kNotCompleted = -10000,
};

/// What the check routines return.
enum CheckResult : int {
  kConsistent = 0,
  kCheckErrors = -1100,
  kCheckWarnings = -1001,
  kCheckAltered = -1010,
  kCheckWarningsAndAltered = -1011,
};

/// The host's integer parameters under their names; `Int` is int or const int. Each accessor gives its documented,
/// one-based position to at(). Entries from zero_norm_test() on belong to FGMRES alone, except the private CG ones.
template <class Int>
class IntegerParameters {
 public:
  explicit IntegerParameters(Int* values) : values_(values) {}
  IntegerParameters<const Int> as_const() const { return IntegerParameters<const Int>(values_); }

  Int& size() const { return at(1); }
  Int& message_destination() const { return at(2); }
  Int& stage() const { return at(3); }            ///< CG with one right-hand side, and FGMRES
  Int& right_hand_side() const { return at(3); }  ///< CG with several: the one in progress, from 1
  Int& iteration() const { return at(4); }
  Int& iteration_limit() const { return at(5); }
  Int& print_errors() const { return at(6); }
  Int& print_warnings() const { return at(7); }
  Int& limit_test() const { return at(8); }
  Int& residual_test() const { return at(9); }
  Int& host_test() const { return at(10); }
  Int& preconditioned() const { return at(11); }
  Int& zero_norm_test() const { return at(12); }
  Int& solution_target() const { return at(13); }
  Int& cycle_iteration() const { return at(14); }  ///< steps completed since the last restart
  Int& cycle_length() const { return at(15); }
  Int& hessenberg_start() const { return at(16); }
  Int& cosines_start() const { return at(17); }
  Int& sines_start() const { return at(18); }
  Int& rotated_residual_start() const { return at(19); }
  Int& solution_start() const { return at(20); }
  Int& preconditioned_start() const { return at(21); }
  Int& source_start() const { return at(22); }
  Int& destination_start() const { return at(23); }
  Int& replace_pivots() const { return at(31); }  ///< incomplete LU

  /// Reserved entries that CG with several right-hand sides uses: the stage, and a count for each right-hand side.
  Int& private_stage() const { return at(12); }
  Int& iterations_of(int right_hand_side) const { return at(kLength + right_hand_side); }

  bool has_stopping_test() const { return limit_test() != 0 || residual_test() != 0 || host_test() != 0; }

  /// A host may have put any number there.
  void count_iteration() const { iteration() = std::min(iteration(), std::numeric_limits<int>::max() - 1) + 1; }

  static constexpr int kLength = 128;

 private:
  Int& at(int position) const { return values_[position - 1]; }
  Int* values_;
};

/// The host's real parameters under their names; `Real` is double or const double. CG keeps squared norms in the norm
/// entries, FGMRES plain ones.
template <class Real>
class RealParameters {
 public:
  explicit RealParameters(Real* values) : values_(values) {}

  Real& relative_tolerance() const { return at(1); }
  Real& absolute_tolerance() const { return at(2); }
  Real& initial_residual() const { return at(3); }
  Real& target_residual() const { return at(4); }
  Real& residual() const { return at(5); }
  Real& previous_residual() const { return at(6); }
  Real& alpha() const { return at(7); }                   ///< CG
  Real& beta() const { return at(8); }                    ///< CG
  Real& preconditioned_product() const { return at(9); }  ///< reserved: (r, M^-1 r) of preconditioned CG
  Real& vector_norm() const { return at(7); }             ///< FGMRES: h(k+1,k)
  Real& zero_norm_tolerance() const { return at(8); }     ///< FGMRES
  Real& pivot_threshold() const { return at(31); }        ///< ILU0: smallest accepted pivot
  Real& pivot_multiplier() const { return at(31); }       ///< ILUT: a replaced pivot over the norm of its row
  Real& replacement_pivot() const { return at(32); }      ///< ILU0

  bool residual_passes() const { return residual() <= target_residual(); }

 private:
  Real& at(int position) const { return values_[position - 1]; }
  Real* values_;
};

using Ipar = IntegerParameters<int>;
using ConstIpar = IntegerParameters<const int>;
using Dpar = RealParameters<double>;
using ConstDpar = RealParameters<const double>;

}  // namespace quorin::rci
