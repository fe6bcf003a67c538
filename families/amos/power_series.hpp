// Power series about z = 0.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// 1 / Gamma(1 + x) for -1 < x < 100.
double reciprocal_gamma(DoubleDouble x);

// I_nu(w) for |w|^2 <= 4 (nu + 1), -1 < nu < 100, w != 0. DLMF 10.25.2.
Scaled i_power_series(DoubleDouble nu, Complex w);

// K_mu(w) and K_{mu+1}(w) for |mu| <= 1/2, 0 < |w| <= 2. N. M. Temme, J. Comput. Phys. 19 (1975) 324-337.
Pair k_power_series(double mu, Complex w);

}  // namespace quorin::amos
