#include "families/rci/stopping.hpp"

#include <algorithm>

namespace quorin::rci {

void set_stopping_defaults(int n, int initial_stage, Ipar ipar, Dpar dpar) {
  ipar.size() = n;
  ipar.message_destination() = kScreen;
  ipar.stage() = initial_stage;
  ipar.iteration() = 0;
  ipar.iteration_limit() = std::min(kDefaultIterations, n);
  ipar.print_errors() = 1;
  ipar.print_warnings() = 1;
  ipar.limit_test() = 1;
  ipar.residual_test() = 0;
  ipar.host_test() = 1;
  ipar.preconditioned() = 0;
  dpar.relative_tolerance() = 1.0e-6;
  dpar.absolute_tolerance() = 0.0;
  dpar.initial_residual() = 0.0;
  dpar.target_residual() = 0.0;
  dpar.residual() = 0.0;
  dpar.previous_residual() = 0.0;
}

int check_stopping(bool sizes_valid, Ipar ipar, ConstDpar dpar, Messages& messages) {
  if (!sizes_valid) {
    messages.error(kCheckErrors,
                   "a size in the parameters is not positive, or too large for the work array's positions");
    return kCheckErrors;
  }
  bool warned = false;
  if (ipar.iteration_limit() <= 0) {
    messages.warning(kCheckWarnings, "the maximum number of iterations is not positive");
    warned = true;
  }
  // Written so that a NaN is caught too.
  if (!(dpar.relative_tolerance() >= 0.0) || !(dpar.absolute_tolerance() >= 0.0)) {
    messages.warning(kCheckWarnings, "a tolerance is negative");
    warned = true;
  }
  if (ipar.has_stopping_test()) return warned ? kCheckWarnings : kConsistent;
  ipar.limit_test() = 1;
  ipar.residual_test() = 1;
  messages.warning(kCheckWarningsAndAltered,
                   "no stopping test was on; the iteration limit and the residual test are on now");
  return kCheckWarningsAndAltered;
}

}  // namespace quorin::rci
