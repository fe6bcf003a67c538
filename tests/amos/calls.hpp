// The exports of the family, called as a host calls them, behind C++ types.
#pragma once

#include "quorin/amos.h"
#include "tests/support/standard.hpp"

namespace quorin_test {

using Complex = std::complex<double>;

// One request. `kind` is the m of H or the id of Ai and Bi.
struct Call {
  char function = 'J';  // H I J K Y, A (Ai), B (Bi)
  int kind = 0;
  int kode = 1;
  double nu = 0.0;
  int n = 1;
  Complex z;
};

struct Answer {
  int ierr = -1;
  int nz = -1;
  std::vector<Complex> cy;
};

inline constexpr Complex kUntouched{-7.0e77, 7.0e77};

// With `twin`, through the index form.
Answer run(const Call& call, bool twin = false);

}  // namespace quorin_test
