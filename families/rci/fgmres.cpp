// Flexible GMRES with restarts. Within a cycle x keeps its value of the last restart; the correction is formed at the
// next restart or when the host asks for it.
#include <cmath>

#include "base/sums.hpp"
#include "families/rci/arnoldi.hpp"
#include "families/rci/rci.hpp"
#include "families/rci/stopping.hpp"
#include "families/rci/vector_kernels.hpp"

namespace quorin::rci {
namespace {

// A run up to the host's next turn. Notation as in Saad, algorithm 9.6: v basis, z preconditioned basis, g rotated
// residual.
class FgmresRun {
 public:
  FgmresRun(const FgmresLayout& layout, double* x, const double* b, Ipar ipar, Dpar dpar, double* tmp)
      : arrays_(ipar.size(), layout, tmp),
        x_(x),
        b_(b),
        ipar_(ipar),
        dpar_(dpar),
        mark_(FgmresMark::unpack(ipar.stage())) {}

  Request advance() {
    const Request what = resume(mark_.stage);
    ipar_.stage() = mark_.pack();
    return what;
  }

 private:
  // Goes on from where the run stands.
  Request resume(FgmresStage stage) {
    switch (stage) {
      case kGmresStart:
        return start();
      case kGmresInitialProduct:
        return take_initial_residual();
      case kGmresInitialTest:
        return residual_stops() ? kFinished : begin_cycle();
      case kGmresRestartProduct:
        return take_restart_residual();
      case kGmresPreconditioning:
        return ask_for_product(arrays_.z(step()));
      case kGmresStepProduct:
        return take_step();
      case kGmresResidualTested:
        return residual_stops() ? kFinished : test_norm();
      case kGmresNormTested:
        return continue_cycle();
      case kGmresBroken:
        return kGmresZeroDivision;
      default:
        return kCorruptParameters;
    }
  }

  Request start() {
    mark_.cycle_length = ipar_.cycle_length();
    ipar_.iteration() = 0;
    dpar_.previous_residual() = 0.0;
    return ask_for_residual(kGmresInitialProduct);
  }

  // Both residuals at x: v(1) lends its place to x.
  Request ask_for_residual(FgmresStage stage) {
    ipar_.cycle_iteration() = 0;
    mark_.keeps_preconditioned = false;
    copy(arrays_.n(), x_, arrays_.v(1));
    return ask(kMultiply, arrays_.v(1), arrays_.v(2), stage);
  }

  // v(1) <- b - A x; the rounding of the steps so far is gone with the residual that they updated.
  void take_residual() {
    subtract(arrays_.n(), b_, arrays_.v(2), arrays_.v(1));
    dpar_.residual() = base::norm(arrays_.n(), arrays_.v(1));
  }

  Request take_initial_residual() {
    take_residual();
    dpar_.initial_residual() = dpar_.residual();
    dpar_.target_residual() = dpar_.relative_tolerance() * dpar_.initial_residual() + dpar_.absolute_tolerance();
    mark_.stage = kGmresInitialTest;
    if (residual_stops()) return kFinished;
    // The host is asked about its own start vector only when there is nothing left to improve.
    if (dpar_.residual() == 0.0 && ipar_.host_test() != 0) return kHostTest;
    return begin_cycle();
  }

  Request take_restart_residual() {
    take_residual();
    mark_.stage = kGmresInitialTest;
    return residual_stops() ? kFinished : begin_cycle();
  }

  // v(1) <- r / ||r||, g <- ||r|| e1
  Request begin_cycle() {
    const double length = dpar_.residual();
    if (length == 0.0 || !std::isfinite(length)) return break_down();
    if (limit_stops()) return end_at_limit();
    divide(arrays_.n(), length, arrays_.v(1));
    arrays_.hessenberg().g()[0] = length;
    return begin_step();
  }

  // Step k of the cycle: z(k) <- M^-1 v(k), then v(k+1) <- A z(k).
  Request begin_step() {
    ipar_.count_iteration();
    const int k = step();
    if (ipar_.preconditioned() != 0) {
      keep_preconditioned_vectors();
      return ask(kPrecondition, arrays_.v(k), arrays_.z(k), kGmresPreconditioning);
    }
    if (!mark_.keeps_preconditioned) return ask_for_product(arrays_.v(k));
    copy(arrays_.n(), arrays_.v(k), arrays_.z(k));
    return ask_for_product(arrays_.z(k));
  }

  // A host may begin to precondition in the middle of a cycle: the steps before had z = v.
  void keep_preconditioned_vectors() {
    if (mark_.keeps_preconditioned) return;
    mark_.keeps_preconditioned = true;
    copy(arrays_.n() * static_cast<std::size_t>(ipar_.cycle_iteration()), arrays_.v(1), arrays_.z(1));
  }

  Request ask_for_product(const double* z) { return ask(kMultiply, z, arrays_.v(step() + 1), kGmresStepProduct); }

  Request take_step() {
    const int k = step();
    dpar_.vector_norm() = orthogonalise(arrays_, k);
    if (!arrays_.hessenberg().take_step(k - 1, dpar_.vector_norm(), 0.0)) return break_down();
    ipar_.cycle_iteration() = k;
    dpar_.previous_residual() = dpar_.residual();
    dpar_.residual() = arrays_.hessenberg().residual_norm(k);
    mark_.stage = kGmresResidualTested;
    if (residual_stops()) return kFinished;
    return ipar_.host_test() != 0 ? kHostTest : test_norm();
  }

  Request test_norm() {
    if (ipar_.zero_norm_test() == 0) {
      mark_.stage = kGmresNormTested;
      return kZeroNormTest;
    }
    return dpar_.vector_norm() <= dpar_.zero_norm_tolerance() ? kFinished : continue_cycle();
  }

  Request continue_cycle() {
    mark_.stage = kGmresNormTested;
    if (limit_stops()) return end_at_limit();
    const int done = ipar_.cycle_iteration();
    if (done == mark_.cycle_length) return restart();
    const double length = dpar_.vector_norm();
    if (!(length > 0.0) || !std::isfinite(length)) return break_down();
    divide(arrays_.n(), length, arrays_.v(done + 1));
    return begin_step();
  }

  Request restart() {
    const int done = ipar_.cycle_iteration();
    add_correction(arrays_, done, mark_.keeps_preconditioned, x_);
    return ask_for_residual(kGmresRestartProduct);
  }

  int step() const { return ipar_.cycle_iteration() + 1; }
  bool residual_stops() const { return ipar_.residual_test() != 0 && dpar_.residual_passes(); }
  bool limit_stops() const { return ipar_.limit_test() != 0 && ipar_.iteration() >= ipar_.iteration_limit(); }
  Request end_at_limit() const { return ipar_.residual_test() != 0 ? kIterationLimit : kFinished; }

  Request ask(Request what, const double* source, const double* destination, FgmresStage stage) {
    ipar_.source_start() = arrays_.position(source);
    ipar_.destination_start() = arrays_.position(destination);
    mark_.stage = stage;
    return what;
  }

  Request break_down() {
    mark_.stage = kGmresBroken;
    return kGmresZeroDivision;
  }

  FgmresArrays arrays_;
  double* x_;
  const double* b_;
  Ipar ipar_;
  Dpar dpar_;
  FgmresMark mark_;
};

// Whether `done` completed steps can be at this stage of a cycle.
bool fits_stage(int done, const FgmresMark& mark) {
  switch (mark.stage) {
    case kGmresPreconditioning:
    case kGmresStepProduct:
      return done >= 0 && done < mark.cycle_length;
    case kGmresResidualTested:
    case kGmresNormTested:
      return done > 0 && done <= mark.cycle_length;
    case kGmresBroken:
      return done >= 0 && done <= mark.cycle_length;
    default:
      return done == 0;
  }
}

// A run under way has the layout it began with, and steps completed within the cycle.
bool is_intact(ConstIpar ipar, const FgmresLayout& layout) {
  const FgmresMark mark = FgmresMark::unpack(ipar.stage());
  return layout.valid && layout.matches(ipar) && mark.cycle_length == ipar.cycle_length() &&
         fits_stage(ipar.cycle_iteration(), mark);
}

bool has_begun(ConstIpar ipar) { return ipar.stage() != static_cast<int>(kGmresStart); }

Request advance(double* x, const double* b, Ipar ipar, Dpar dpar, double* tmp) {
  const FgmresLayout layout(ipar.size(), ipar.cycle_length());
  if (!has_begun(ipar.as_const())) {
    if (!layout.valid) return kCorruptParameters;
    layout.store(ipar);
  } else if (!is_intact(ipar.as_const(), layout)) {
    return kCorruptParameters;
  }
  if (!ipar.has_stopping_test()) return kEndlessLoop;
  return FgmresRun(layout, x, b, ipar, dpar, tmp).advance();
}

}  // namespace

void fgmres_init(int n, const double*, const double*, int* request, int* ipar, double* dpar, const double*) noexcept {
  *request = static_cast<int>(kNotCompleted);
  if (n <= 0) return;
  const Ipar integers(ipar);
  const Dpar reals(dpar);
  set_stopping_defaults(n, static_cast<int>(kGmresStart), integers, reals);
  integers.zero_norm_test() = kIparZeroNormTestDefault;
  integers.solution_target() = kIparSolutionTargetDefault;
  integers.cycle_iteration() = kIparCycleIterationDefault;
  integers.cycle_length() = integers.iteration_limit();
  // For very large n the default length has positions beyond the range of ipar. They stay 0; the host will choose a
  // shorter one.
  FgmresLayout(n, integers.cycle_length()).store(integers);
  integers.source_start() = kIparSourceDefault;
  integers.destination_start() = kIparDestinationDefault;
  integers.replace_pivots() = kIparReplacePivotsDefault;
  reals.vector_norm() = 0.0;
  reals.zero_norm_tolerance() = kDparZeroNormToleranceDefault;
  reals.pivot_threshold() = kDparPivotThresholdDefault;
  reals.replacement_pivot() = kDparReplacementPivotDefault;
  *request = static_cast<int>(kFinished);
}

void fgmres_check(int, const double*, const double*, int* request, int* ipar, const double* dpar,
                  const double*) noexcept {
  const Ipar parameters(ipar);
  const ConstIpar values(ipar);
  Messages messages("dfgmres_check", kDfgmresCheckTexts, kFgmresFiles, values);
  const FgmresLayout layout(parameters.size(), parameters.cycle_length());
  *request = static_cast<int>(check_stopping(layout.valid, parameters, ConstDpar(dpar), messages));
  if (layout.valid && !layout.matches(values)) {
    layout.store(parameters);
    messages.warning(*request, "the positions in ipar did not suit the size and the cycle length; they are put right");
  }
}

void fgmres(int, double* x, double* b, int* request, int* ipar, double* dpar, double* tmp) noexcept {
  const Request what = advance(x, b, Ipar(ipar), Dpar(dpar), tmp);
  Messages("dfgmres", kDfgmresTexts, kFgmresFiles, ConstIpar(ipar)).report(what);
  *request = static_cast<int>(what);
}

void fgmres_get(int, double* x, double* b, int* request, const int* ipar, const double*, double* tmp,
                int* itercount) noexcept {
  const ConstIpar parameters(ipar);
  *request = static_cast<int>(kFinished);
  *itercount = parameters.iteration();
  if (parameters.solution_target() < 0) return;
  const int n = parameters.size();
  const FgmresLayout layout(n, parameters.cycle_length());
  if (n <= 0 || (has_begun(parameters) && !is_intact(parameters, layout))) {
    *request = static_cast<int>(kCorruptParameters);
    return Messages("dfgmres_get", kDfgmresGetTexts, kFgmresFiles, parameters).report(kCorruptParameters);
  }
  const bool into_b = parameters.solution_target() > 0;
  if (into_b) copy(static_cast<std::size_t>(n), x, b);
  const int done = has_begun(parameters) ? parameters.cycle_iteration() : 0;
  if (done == 0) return;
  const FgmresArrays arrays(n, layout, tmp);
  add_correction(arrays, done, FgmresMark::unpack(parameters.stage()).keeps_preconditioned, into_b ? b : x);
  if (!into_b) clear_correction(arrays, done);
}

}  // namespace quorin::rci
