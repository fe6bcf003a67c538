// Expansions for large order, uniform in the argument: Debye's away from the turning points w = +-i nu, the Airy-type
// ones near them. F. W. J. Olver, Phil. Trans. R. Soc. A 247 (1954) 328-368; DLMF 10.20 and 10.41.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// For nu >= kLargeOrder and w != 0 in the first quadrant.
class Uniform {
 public:
  Uniform(DoubleDouble order, Complex w);

  // e^-w I_nu(w) and e^w K_nu(w)
  Scaled i() const;
  Scaled k() const;

 private:
  DoubleDouble order_;
  Complex w_;
  ComplexDoubleDouble xi_;
  bool turning_;
  ComplexDoubleDouble exponent_;  // nu eta
  Complex root_;                  // sqrt(t / (2 pi nu))
  Complex plus_;                  // sum U_k(t) / nu^k
  Complex minus_;                 // sum (-1)^k U_k(t) / nu^k
};

enum class Kind { kI, kK };

// The same near the turning point. xi = log((1 + s)/x) - s with x = -i w / nu, s = sqrt(1 - x^2); nu |xi| <= 20.
Scaled turning_point(Kind kind, DoubleDouble order, Complex w, const ComplexDoubleDouble& xi);

}  // namespace quorin::amos
