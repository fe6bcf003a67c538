// Expansions for large argument. DLMF 10.40.2 and 10.40.5.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// With a_k(nu) of DLMF 10.17.1: K_nu(w) = sqrt(pi/(2w)) e^-w k, and the e^w part of I_nu(w) is e^w / sqrt(2 pi w) i.
template <class Number>
struct LargeArgumentSums {
  Number i;  // sum (-1)^k a_k / w^k
  Number k;  // sum a_k / w^k
};

// Full precision for |w| > kLargeArgument and nu^2 <= 2 |w|.
LargeArgumentSums<Complex> large_argument_sums(double nu, Complex w);
LargeArgumentSums<double> large_argument_sums(double nu, double w);

// e^-w I_nu(w) and e^w K_nu(w) for w in the first quadrant.
Scaled i_large_argument(DoubleDouble order, Complex w);
Scaled k_large_argument(double nu, Complex w);

}  // namespace quorin::amos
