// Calls from any of the four alignments that a 32-bit host's stack may have.
#pragma once

#if defined(__i386__)
#include <cstdint>

// Calls a cdecl function with `count` stack slots while esp mod 16 is `residue`. Two names for one body, because a
// float comes back in another register than an integer.
extern "C" {
std::int32_t call_with_stack(void (*function)(), const std::uintptr_t* slots, std::uint32_t count,
                             std::uint32_t residue);
float call_with_stack_for_float(void (*function)(), const std::uintptr_t* slots, std::uint32_t count,
                                std::uint32_t residue);
}
#endif
