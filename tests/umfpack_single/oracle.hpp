// UMFPACK in double precision, called directly with its default Control.
#pragma once

#include <array>

#include "tests/umfpack_single/matrices.hpp"

namespace umfpack_test {

struct OracleResult {
  int symbolic = 0, numeric = 0, solve = 0;
  std::array<double, 90> info{};
  Doubles Xx, Xz;
};

// A x = b, as far as it gets.
OracleResult oracle_solve(const Matrix& A, const Doubles& Bx, const Doubles& Bz);

}  // namespace umfpack_test
