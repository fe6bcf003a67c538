// Bessel functions of order 1/3 and 2/3: what the Airy functions are made of (DLMF 9.6).
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// e^w K and, if asked for, e^-w I of orders 1/3 and 2/3 at one w with Re w >= 0, 0 < |w| <= kLargeArgument.
struct Thirds {
  Complex k_one;
  Complex k_two;
  Complex i_one;
  Complex i_two;
};

Thirds bessel_thirds(Complex w, bool wants_i);

// Ai, Ai', Bi, Bi' by their Maclaurin series (DLMF 9.4), for |z| <= 1.
struct AiryValues {
  Complex ai;
  Complex ai_prime;
  Complex bi;
  Complex bi_prime;
};

AiryValues airy_power_series(Complex z);

}  // namespace quorin::amos
