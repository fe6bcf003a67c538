// UMFPACK in double precision, linked into this program, as a peer of the float interface over the same code.
#pragma once

#include <vector>

#include "tests/support/sparse.hpp"

namespace quorin::bench {

// Analyses, factorizes, solves for the vector b + i b and frees all that. Returns the status.
int solve_with_umfpack(const test::CompressedArrays& a, const std::vector<double>& b, std::vector<double>& x,
                       std::vector<double>& z);

}  // namespace quorin::bench
