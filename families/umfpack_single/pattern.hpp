// What must hold of the arrays of a compressed matrix before anything is read through them.
#pragma once

#include <cstdint>

namespace quorin::umfpack_single {

// Whether Ap[0] = 0 and Ap never decreases over n vectors, so that Ap[n] entries may be read. False for n <= 0 and for
// a null Ap.
bool has_valid_starts(int n, const int* Ap) noexcept;

// Whether all nz indices are in 0..bound-1.
bool are_in_range(int nz, const int* Ai, int bound) noexcept;

// A number that tells patterns apart, all but certainly.
std::uint64_t fingerprint(int n_col, const int* Ap, const int* Ai) noexcept;

}  // namespace quorin::umfpack_single
