// Conjugate gradients for several right-hand sides, one after the other: one direction serves them all, so they cannot
// go side by side.
#include <algorithm>

#include "families/rci/cg_recurrence.hpp"
#include "families/rci/rci.hpp"

namespace quorin::rci {
namespace {

// ipar(3) counts the right-hand sides, so the stage lives in a reserved entry. A host that fills ipar itself instead of
// calling the init routine leaves anything there; the stage counts only with this mark, and everything else is a start.
constexpr int kStageMark = 0x52434900;
constexpr int kStageBits = 0xff;

class StageEntry {
 public:
  explicit StageEntry(Ipar ipar) : entry_(ipar.private_stage()) {
    const bool marked = (entry_ & ~kStageBits) == kStageMark;
    value = marked ? CgStage{entry_ & kStageBits} : kCgStart;
    const bool between_requests = value == kCgInitialTest || value == kCgPlainTest || value == kCgPreconditionedTest;
    // First call of a further solve with the same arrays: the host has put the counters back.
    if (between_requests && ipar.right_hand_side() == 1 && ipar.iteration() == 0) value = kCgStart;
  }
  void store() const { entry_ = kStageMark | static_cast<int>(value); }

  CgStage value;

 private:
  int& entry_;
};

CgVectors vectors_of(int right_hand_side, int n, double* x, const double* b, double* tmp) {
  const auto column = [n](auto* array, int index) { return array + static_cast<std::ptrdiff_t>(index) * n; };
  const int k = right_hand_side - 1;
  return {n, column(x, k), column(b, k), tmp, column(tmp, 1), column(tmp, 3 + k), column(tmp, 2)};
}

// A right-hand side is also done when its residual is exactly zero though no automatic test is on: the next ones wait.
// The host is not even asked about an exact start: before the first iteration, going on could not be told from a
// further solve.
bool is_done(Request request, CgStage stage, Dpar dpar) {
  if (request == kFinished) return true;
  const bool goes_nowhere = request == kCgZeroDivision || (request == kHostTest && stage == kCgInitialTest);
  return goes_nowhere && dpar.residual() == 0.0;
}

Request advance_all(int n, double* x, int nrhs, const double* b, Ipar ipar, Dpar dpar, double* tmp) {
  if (n <= 0 || nrhs <= 0 || ipar.right_hand_side() < 1 || ipar.right_hand_side() > nrhs) return kEndlessLoop;
  StageEntry stage(ipar);
  for (;;) {
    const int current = ipar.right_hand_side();
    const Request request = advance_cg(vectors_of(current, n, x, b, tmp), stage.value, ipar, dpar);
    ipar.iterations_of(current) = ipar.iteration();
    const bool done = is_done(request, stage.value, dpar);
    if (!done || current == nrhs) {
      stage.store();
      return done ? kFinished : request;
    }
    ++ipar.right_hand_side();
    stage.value = kCgStart;
  }
}

}  // namespace

void cg_mrhs_init(int n, const double*, int nrhs, const double*, int method, int* request, int* ipar, double* dpar,
                  double* tmp) noexcept {
  *request = static_cast<int>(kNotCompleted);
  if (n <= 0 || nrhs <= 0 || method != kIndependentRuns) return;
  const int length = kParameters + 2 * nrhs;
  std::fill_n(ipar, length, 0);
  std::fill_n(dpar, length, 0.0);
  set_cg_defaults(n, Ipar(ipar), Dpar(dpar));
  std::fill_n(tmp, n, 0.0);
  *request = static_cast<int>(kFinished);
}

void cg_mrhs_check(int, const double*, int nrhs, const double*, int* request, int* ipar, const double* dpar,
                   const double*) noexcept {
  const Messages messages("dcgmrhs_check", kDcgmrhsCheckTexts, kCgFiles, ConstIpar(ipar));
  *request = static_cast<int>(check_cg(nrhs > 0, Ipar(ipar), ConstDpar(dpar), messages));
}

void cg_mrhs(int, double* x, int nrhs, const double* b, int* request, int* ipar, double* dpar, double* tmp) noexcept {
  const Ipar parameters(ipar);
  const Request what = advance_all(parameters.size(), x, nrhs, b, parameters, Dpar(dpar), tmp);
  Messages("dcgmrhs", kDcgmrhsTexts, kCgFiles, ConstIpar(ipar)).report(what);
  *request = static_cast<int>(what);
}

void cg_mrhs_get(int, const double*, int nrhs, const double*, const int*, const int* ipar, const double*, const double*,
                 int* itercount) noexcept {
  const ConstIpar parameters(ipar);
  for (int k = 1; k <= nrhs; ++k) itercount[k - 1] = parameters.iterations_of(k);
}

}  // namespace quorin::rci
