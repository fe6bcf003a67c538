// Other codes for Bessel and Airy functions of real arguments.
#pragma once

#include <vector>

namespace quorin::bench {

struct BesselPeer {
  const char* side;
  double (*j)(double order, double x);
  double (*y)(double order, double x);
  double (*i)(double order, double x);
  double (*ai)(double x);
};

// Those that the program was built with: GSL (natively only) and Boost.Math.
std::vector<BesselPeer> bessel_peers();

}  // namespace quorin::bench
