// From scaled numbers to the host's doubles: the decision on overflow and underflow.
#pragma once

#include "families/amos/scaled.hpp"
#include "generated/amos_constants.hpp"

namespace quorin::amos {

// Stores a in result. A value below exp(-kElim), or one whose components reach so far below the normal range that its
// phase is lost, is stored as zero and counted in underflows. Returns kOk, kOverflow (beyond the largest double) or
// kNotConverged, and stores nothing in the last two cases.
Status finish(Scaled a, Complex& result, int& underflows);

}  // namespace quorin::amos
