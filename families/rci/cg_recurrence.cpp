#include "families/rci/cg_recurrence.hpp"

#include <cmath>

#include "base/sums.hpp"
#include "families/rci/stopping.hpp"
#include "families/rci/vector_kernels.hpp"

namespace quorin::rci {
namespace {

bool is_squared_norm(double value) { return std::isfinite(value) && value >= 0.0; }

// One run of the recurrence up to the host's next turn. Notation as in Saad, algorithm 9.1: r residual, z = M^-1 r, p
// direction.
class CgRun {
 public:
  CgRun(const CgVectors& v, CgStage& stage, Ipar ipar, Dpar dpar)
      : v_(v), n_(static_cast<std::size_t>(v.n)), stage_(stage), ipar_(ipar), dpar_(dpar) {}

  Request advance() {
    switch (stage_) {
      case kCgStart:
        return ask_for_initial_product();
      case kCgInitialProduct:
        return take_initial_residual();
      case kCgInitialTest:
      case kCgPlainTest:
      case kCgPreconditionedTest:
        return residual_stops() ? kFinished : begin_step();
      case kCgFirstPreconditioning:
        return take_preconditioned(false);
      case kCgPreconditioning:
        return take_preconditioned(true);
      case kCgPlainProduct:
        return take_step(dpar_.residual(), kCgPlainTest);
      case kCgPreconditionedProduct:
        return take_step(dpar_.preconditioned_product(), kCgPreconditionedTest);
      case kCgBroken:
        return kCgZeroDivision;
      default:
        return kEndlessLoop;
    }
  }

 private:
  Request ask_for_initial_product() {
    ipar_.iteration() = 0;
    dpar_.previous_residual() = 0.0;
    copy(n_, v_.x, v_.direction);
    return ask(kMultiply, kCgInitialProduct);
  }

  // r0 = b - A x0
  Request take_initial_residual() {
    dpar_.residual() = subtract(n_, v_.b, v_.product, v_.residual);
    dpar_.initial_residual() = dpar_.residual();
    dpar_.target_residual() = dpar_.relative_tolerance() * dpar_.initial_residual() + dpar_.absolute_tolerance();
    if (!is_squared_norm(dpar_.residual())) return kCgInvalidNorm;
    stage_ = kCgInitialTest;
    if (residual_stops()) return kFinished;
    // The host is asked about its own start vector only when there is nothing left to improve.
    return dpar_.residual() == 0.0 ? test(kCgInitialTest) : begin_step();
  }

  Request begin_step() {
    if (dpar_.residual() == 0.0) return break_down();
    if (ipar_.limit_test() != 0 && ipar_.iteration() >= ipar_.iteration_limit()) {
      return ipar_.residual_test() != 0 ? kIterationLimit : kFinished;
    }
    if (ipar_.preconditioned() != 0) {
      return ask(kPrecondition, stage_ == kCgPreconditionedTest ? kCgPreconditioning : kCgFirstPreconditioning);
    }
    // p <- r + beta p, beta = (r, r) / (r', r')
    if (stage_ == kCgPlainTest) {
      if (dpar_.previous_residual() == 0.0) return kCgInvalidNorm;
      update_direction(n_, v_.residual, dpar_.beta(), v_.direction);
    } else {
      copy(n_, v_.residual, v_.direction);
    }
    return ask(kMultiply, kCgPlainProduct);
  }

  // p <- z + beta p, beta = (r, z) / (r', z')
  Request take_preconditioned(bool conjugate) {
    const double previous = dpar_.preconditioned_product();
    const double product = base::dot(n_, v_.residual, v_.preconditioned);
    dpar_.preconditioned_product() = product;
    if (product == 0.0 || !std::isfinite(product)) return break_down();
    if (conjugate) {
      dpar_.beta() = product / previous;
      if (!std::isfinite(dpar_.beta())) return break_down();
      update_direction(n_, v_.preconditioned, dpar_.beta(), v_.direction);
    } else {
      copy(n_, v_.preconditioned, v_.direction);
    }
    return ask(kMultiply, kCgPreconditionedProduct);
  }

  // alpha = (r, z) / (p, A p); x <- x + alpha p; r <- r - alpha A p. A negative (p, A p) is no obstacle: a host may
  // know that its indefinite system gets by.
  Request take_step(double numerator, CgStage next) {
    const double alpha = numerator / base::dot(n_, v_.direction, v_.product);
    if (!std::isfinite(alpha)) return break_down();
    dpar_.alpha() = alpha;
    dpar_.previous_residual() = dpar_.residual();
    dpar_.residual() = advance(alpha);
    if (next == kCgPlainTest) dpar_.beta() = dpar_.residual() / dpar_.previous_residual();
    ipar_.count_iteration();
    stage_ = next;
    if (!is_squared_norm(dpar_.residual())) return kCgInvalidNorm;
    return residual_stops() ? kFinished : test(next);
  }

  double advance(double alpha) { return rci::advance(n_, alpha, v_.direction, v_.product, v_.x, v_.residual); }

  Request test(CgStage stage) { return ipar_.host_test() != 0 ? ask(kHostTest, stage) : begin_step(); }

  bool residual_stops() const { return ipar_.residual_test() != 0 && dpar_.residual_passes(); }

  Request ask(Request what, CgStage stage) {
    stage_ = stage;
    return what;
  }

  Request break_down() {
    stage_ = kCgBroken;
    return kCgZeroDivision;
  }

  const CgVectors& v_;
  std::size_t n_;
  CgStage& stage_;
  Ipar ipar_;
  Dpar dpar_;
};

}  // namespace

Request advance_cg(const CgVectors& v, CgStage& stage, Ipar ipar, Dpar dpar) {
  if (!ipar.has_stopping_test()) return kEndlessLoop;
  const bool has_residual = stage > kCgInitialProduct && stage < kCgBroken;
  if (has_residual && !(is_squared_norm(dpar.residual()) && is_squared_norm(dpar.previous_residual()))) {
    return kCgInvalidNorm;
  }
  return CgRun(v, stage, ipar, dpar).advance();
}

void set_cg_defaults(int n, Ipar ipar, Dpar dpar) {
  set_stopping_defaults(n, static_cast<int>(kCgStart), ipar, dpar);
  dpar.alpha() = 0.0;
  dpar.beta() = 0.0;
}

Check check_cg(bool sizes_valid, Ipar ipar, ConstDpar dpar, Messages messages) {
  return check_stopping(sizes_valid && ipar.size() > 0, ipar, dpar, messages);
}

}  // namespace quorin::rci
