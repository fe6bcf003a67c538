// One real call of each family, for tests of what a host may do to the library as a whole.
#pragma once

#include "quorin/loader.h"
#include "tests/support/standard.hpp"

namespace quorin::test {

// Everything that a call computes.
using Results = std::vector<double>;

struct FamilyCall {
  const char* name;
  // Arguments are the same each time but for `seed`, a small number; empty if the call failed.
  Results (*run)(const quorin_library& library, int seed);
};

std::span<const FamilyCall> family_calls();

// results = call.run(library, seed). On 32-bit targets the stack is not aligned on the way: whatever alignment the
// caller had, and others, arrive at the library.
void run_family_call(const FamilyCall& call, const quorin_library& library, int seed, Results& results);

}  // namespace quorin::test
