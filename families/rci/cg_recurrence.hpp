// The recurrence of conjugate gradients, cut where the host has to act. It knows neither how many right-hand sides
// there are nor where a driver keeps the stage.
#pragma once

#include "families/rci/messages.hpp"
#include "families/rci/parameters.hpp"

namespace quorin::rci {

// Where one right-hand side's run stands. The values are stored in the hosts' arrays; a run begins with kCgStart.
// Two steps are conjugate only when both were or both were not preconditioned, so the stages tell the two apart: a
// host that changes ipar(11) on the way gets a fresh direction.
enum class CgStage : int {
  kCgStart = 1,
  kCgInitialProduct,         // A x0 asked for
  kCgInitialTest,            // start residual known
  kCgFirstPreconditioning,   // M^-1 r asked for; the direction will be M^-1 r itself
  kCgPreconditioning,        // M^-1 r asked for; the direction will be made conjugate to the last
  kCgPlainProduct,           // A p asked for
  kCgPreconditionedProduct,  // the same for p from M^-1 r
  kCgPlainTest,              // step done
  kCgPreconditionedTest,     // the same for p from M^-1 r
  kCgBroken,                 // a division by zero ended the run
};
using enum CgStage;

// The vectors of one right-hand side, each with `n` entries in the host's memory.
struct CgVectors {
  int n;
  double* x;
  const double* b;
  double* direction;
  double* product;  // A * direction
  double* residual;
  double* preconditioned;  // M^-1 * residual
};

// Goes on from `stage` to the next request or the end, and returns which. Tests are made on each entry, so a
// host that calls again after the end gets the same answer unless it changed a limit or tolerance.
[[nodiscard]] Request advance_cg(const CgVectors& v, CgStage& stage, Ipar ipar, Dpar dpar);

// The defaults that all CG runs begin with.
void set_cg_defaults(int n, Ipar ipar, Dpar dpar);

// What both check routines do. `sizes_valid`: the sizes beyond ipar(1) are.
[[nodiscard]] Check check_cg(bool sizes_valid, Ipar ipar, ConstDpar dpar, Messages messages);

}  // namespace quorin::rci
