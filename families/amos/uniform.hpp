// Expansions for large order, uniform in the argument: Debye's away from the turning points w = +-i nu, the Airy-type
// ones near them. F. W. J. Olver, Phil. Trans. R. Soc. A 247 (1954) 328-368; DLMF 10.20 and 10.41.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

enum class Kind { kI, kK };

// e^-w I_nu(w) or e^w K_nu(w) for nu >= kLargeOrder and w != 0 in the first quadrant.
Scaled uniform(Kind kind, DoubleDouble order, Complex w);

// The same near the turning point. xi = log((1 + s)/x) - s with x = -i w / nu, s = sqrt(1 - x^2); nu |xi| <= 20.
Scaled turning_point(Kind kind, DoubleDouble order, Complex w, const ComplexDoubleDouble& xi);

}  // namespace quorin::amos
