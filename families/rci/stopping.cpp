#include "families/rci/stopping.hpp"

#include <algorithm>

namespace quorin::rci {

void set_stopping_defaults(int n, int initial_stage, Ipar ipar, Dpar dpar) {
  ipar.size() = n;
  ipar.message_destination() = kIparMessagesDefault;
  ipar.stage() = initial_stage;
  ipar.iteration() = kIparIterationDefault;
  ipar.iteration_limit() = std::min(kDefaultIterations, n);
  ipar.print_errors() = kIparPrintErrorsDefault;
  ipar.print_warnings() = kIparPrintWarningsDefault;
  ipar.limit_test() = kIparLimitTestDefault;
  ipar.residual_test() = kIparResidualTestDefault;
  ipar.host_test() = kIparHostTestDefault;
  ipar.preconditioned() = kIparPreconditionedDefault;
  dpar.relative_tolerance() = kDparRelativeToleranceDefault;
  dpar.absolute_tolerance() = kDparAbsoluteToleranceDefault;
  dpar.initial_residual() = 0.0;
  dpar.target_residual() = 0.0;
  dpar.residual() = 0.0;
  dpar.previous_residual() = 0.0;
}

Check check_stopping(bool sizes_valid, Ipar ipar, ConstDpar dpar, Messages& messages) {
  if (!sizes_valid) {
    messages.report(Check::kErrors);
    return Check::kErrors;
  }
  bool warned = false;
  if (ipar.iteration_limit() <= 0) {
    messages.warning(Check::kWarnings, "the iteration limit is not positive");
    warned = true;
  }
  // Written so that a NaN is caught too.
  if (!(dpar.relative_tolerance() >= 0.0) || !(dpar.absolute_tolerance() >= 0.0)) {
    messages.warning(Check::kWarnings, "a tolerance is negative or NaN");
    warned = true;
  }
  if (ipar.has_stopping_test()) return warned ? Check::kWarnings : Check::kConsistent;
  ipar.limit_test() = 1;
  ipar.residual_test() = 1;
  messages.warning(Check::kAltered);
  return Check::kAltered;
}

}  // namespace quorin::rci
