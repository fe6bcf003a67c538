// Whether a pattern is the one that was analysed before.
#pragma once

#include <cstdint>

namespace quorin::umfpack_single {

// A number that tells patterns apart, all but certainly.
std::uint64_t fingerprint(int n_col, const int* Ap, const int* Ai) noexcept;

}  // namespace quorin::umfpack_single
