// Defaults and checks of the stopping criteria, which all solvers share.
#pragma once

#include "families/rci/messages.hpp"
#include "families/rci/parameters.hpp"

namespace quorin::rci {

inline constexpr int kDefaultIterations = 150;

// ipar(1..11) and dpar(1..6) as they are before a run.
void set_stopping_defaults(int n, int initial_stage, Ipar ipar, Dpar dpar);

// Judges the stopping criteria and turns tests on when there are none; `sizes_valid` is the caller's verdict on the
// sizes.
[[nodiscard]] Check check_stopping(bool sizes_valid, Ipar ipar, ConstDpar dpar, Messages& messages);

}  // namespace quorin::rci
