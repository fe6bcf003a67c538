// Conjugate gradients for one right-hand side. A plain run stays within ipar(1..11), dpar(1..8) and three columns of
// tmp.
#include <algorithm>

#include "families/rci/cg_recurrence.hpp"
#include "families/rci/rci.hpp"

namespace quorin::rci {

void cg_init(int n, const double*, const double*, int* request, int* ipar, double* dpar, double* tmp) noexcept {
  *request = static_cast<int>(kNotCompleted);
  if (n <= 0) return;
  set_cg_defaults(n, Ipar(ipar), Dpar(dpar));
  std::fill_n(tmp, n, 0.0);
  *request = static_cast<int>(kFinished);
}

void cg_check(int, const double*, const double*, int* request, int* ipar, const double* dpar, const double*) noexcept {
  const Messages messages("dcg_check", kDcgCheckTexts, kCgFiles, ConstIpar(ipar));
  *request = static_cast<int>(check_cg(true, Ipar(ipar), ConstDpar(dpar), messages));
}

void cg(int, double* x, const double* b, int* request, int* ipar, double* dpar, double* tmp) noexcept {
  const Ipar parameters(ipar);
  const int n = parameters.size();
  Request what = kEndlessLoop;
  if (n > 0) {
    const auto column = [=](int index) { return tmp + static_cast<std::ptrdiff_t>(index) * n; };
    const CgVectors vectors{n, x, b, column(0), column(1), column(2), column(3)};
    CgStage stage{parameters.stage()};
    what = advance_cg(vectors, stage, parameters, Dpar(dpar));
    parameters.stage() = static_cast<int>(stage);
  }
  Messages("dcg", kDcgTexts, kCgFiles, ConstIpar(ipar)).report(what);
  *request = static_cast<int>(what);
}

void cg_get(int, const double*, const double*, const int*, const int* ipar, const double*, const double*,
            int* itercount) noexcept {
  *itercount = ConstIpar(ipar).iteration();
}

}  // namespace quorin::rci
