#include "families/umfpack_single/settings.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "families/umfpack_single/double_umfpack.hpp"
#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single {

void defaults(float* Control) noexcept {
  if (Control != nullptr) std::copy(kControlDefaults.begin(), kControlDefaults.end(), Control);
}

float setting(const float* Control, int index) {
  const auto i = static_cast<std::size_t>(index);
  return Control == nullptr || std::isnan(Control[i]) ? kControlDefaults[i] : Control[i];
}

int whole_setting(const float* Control, int index) {
  constexpr float kMost = 1 << 30;
  return static_cast<int>(std::clamp(setting(Control, index), -kMost, kMost));
}

int print_level(const float* Control) { return whole_setting(Control, UMFPACK_PRL); }

Settings::Settings(const float* Control) {
  umfpack_di_defaults(control_);
  // UMFPACK has more precise defaults; a host that passes no Control gets those.
  if (Control != nullptr) {
    for (const int i : {UMFPACK_PIVOT_TOLERANCE, UMFPACK_SYM_PIVOT_TOLERANCE, UMFPACK_DROPTOL, UMFPACK_FIXQ}) {
      control_[i] = static_cast<double>(setting(Control, i));
    }
    // UMFPACK turns these into integers, some after a multiplication: keep them where that is defined.
    constexpr double kMostUnits = 1 << 30, kMostDense = 1e4;
    for (const int i : {UMFPACK_ALLOC_INIT, UMFPACK_FRONT_ALLOC_INIT, UMFPACK_AGGRESSIVE}) {
      control_[i] = std::clamp(static_cast<double>(setting(Control, i)), -kMostUnits, kMostUnits);
    }
    for (const int i : {UMFPACK_DENSE_ROW, UMFPACK_DENSE_COL, UMFPACK_AMD_DENSE}) {
      control_[i] = std::clamp(static_cast<double>(setting(Control, i)), -kMostDense, kMostDense);
    }
    for (const int i : {UMFPACK_PRL, UMFPACK_BLOCK_SIZE, UMFPACK_STRATEGY, UMFPACK_IRSTEP, UMFPACK_SCALE}) {
      control_[i] = whole_setting(Control, i);
    }
  }
  // There is no 2-by-2 strategy any more; the symmetric one is its heir.
  if (control_[UMFPACK_STRATEGY] == kStrategy2by2) control_[UMFPACK_STRATEGY] = UMFPACK_STRATEGY_SYMMETRIC;
}

}  // namespace quorin::umfpack_single
