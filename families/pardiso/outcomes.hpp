// The codes of what happens in the engine.
#pragma once

#include "generated/pardiso_constants.hpp"
#include "sparse/sparse.hpp"

namespace quorin::pardiso {

[[nodiscard]] Error error_of(sparse::Outcome outcome);
[[nodiscard]] Error error_of(sparse::FactorOutcome outcome);
[[nodiscard]] Error error_of(sparse::MatchingOutcome outcome);

}  // namespace quorin::pardiso
