// The 64 words that the host keeps for a solver.
#pragma once

#include "families/pardiso/solver.hpp"

namespace quorin::pardiso {

enum class Words { kZero, kOurs, kForeign };

// What stands in pt; `solver` is set for kOurs. Nothing that the words may point to is looked at.
[[nodiscard]] Words look_up(void* const* pt, Solver*& solver);

// Writes a handle of the solver, which it takes over; false, and pt as it was, if there is no memory for it.
[[nodiscard]] bool write_handle(void** pt, Solver* solver);

// Frees the solver behind pt, which is kOurs, and clears pt.
void free_handle(void** pt);

void clear(void** pt);

}  // namespace quorin::pardiso
