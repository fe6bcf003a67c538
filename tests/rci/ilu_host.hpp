// The incomplete factorizations called as a host does, through the index forms.
#pragma once

#include "tests/rci/rci_host.hpp"
#include "tests/support/standard.hpp"

namespace rci_test {

struct Settings {
  // What becomes of a pivot below the threshold, which ILUT takes for the multiplier.
  explicit Settings(double threshold = 1e-16, bool replaces = false, double value = 1e-10);
  std::vector<int> ipar;
  Vector dpar;
};

struct Ilu0 {
  Ilu0(const Csr& A, const Settings& s = Settings());
  Csr factors;
  Guarded<double> values;
  int ierr = 7;
  bool guarded = false;
};

struct Ilut {
  Ilut(const Csr& A, double tol, int fill, const Settings& s = Settings());
  Csr factors;
  int ierr = 7;
  bool guarded = false;
};

}  // namespace rci_test
