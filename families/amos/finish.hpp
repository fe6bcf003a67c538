// From scaled numbers to the host's doubles: the decision on overflow and underflow.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// The error codes of the package.
enum class Status : int {
  kOk = 0,
  kInputError = 1,
  kOverflow = 2,
  kPrecisionLoss = 3,
  kNoPrecision = 4,
  kNotConverged = 5,
};

// Stores a in result. A value below exp(-kElim), or one whose components reach so far below the normal range that its
// phase is lost, is stored as zero and counted in underflows. Returns kOk, kOverflow (beyond the largest double) or
// kNotConverged, and stores nothing in the last two cases.
Status finish(Scaled a, Complex& result, int& underflows);

}  // namespace quorin::amos
