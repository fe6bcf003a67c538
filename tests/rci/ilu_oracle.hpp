// The incomplete factorizations called as a host does, through the index forms, and independent ones that keep their
// rows in maps.
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

using Rows = std::vector<std::map<int, double>>;

Csr from_rows(const Rows& rows);

// Saad's ILUT; of equal magnitudes the lower column stays. A pivot below tol times the norm of its row becomes
// `multiplier` times that norm.
Csr map_ilut(const Csr& A, double tol, int fill, double multiplier);

// The largest of |(L U - A)(i,j)| over the pattern of A, each relative to the terms it is summed from.
double pattern_residual(const Csr& A, const Csr& factors);

}  // namespace rci_test
