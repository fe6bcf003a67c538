// K of small order from the recurrence of Tricomi's function, in any precision.
#pragma once

#include <cmath>

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// K_mu(w) = sqrt(pi / (2 w)) e^-w at and K_{mu+1}(w) = sqrt(pi / (2 w)) e^-w above.
template <class Number>
struct ConfluentValues {
  Number at;
  Number above;
};

// Terms that leave an error of e^-digits: it falls like exp(-2 Re sqrt(2 terms w)), and 2 (Re sqrt w)^2 = |w| + Re w.
inline int confluent_terms(double digits, double modulus, double real) {
  return static_cast<int>(0.2 * digits) + static_cast<int>(digits * digits / 4.0 / (modulus + real));
}

// 1 / n and (n + 1/2)^2 - mu^2
inline DoubleDouble inverse_of(DoubleDouble, double n) {
  const double q = 1.0 / n;
  const DoubleDouble p = two_product(q, n);
  return quick_two_sum(q, ((1.0 - p.hi) - p.lo) * q);
}
inline DoubleDouble confluent_a(DoubleDouble mu2, double n) {
  const DoubleDouble s = quick_two_sum((n + 0.5) * (n + 0.5), -mu2.hi);
  return quick_two_sum(s.hi, s.lo - mu2.lo);
}
inline double inverse_of(double, double n) { return 1.0 / n; }
inline double confluent_a(double mu2, double n) { return (n + 0.5) * (n + 0.5) - mu2; }

// With U_n = U(mu + 1/2 + n, 2 mu + 1, 2 w), K_mu(w) = sqrt(pi) (2 w)^mu e^-w U_0. U_n is the minimal solution of
//   U_{n-1} = 2 (n + w) U_n - a_n U_{n+1},  a_n = (n + 1/2)^2 - mu^2  (DLMF 13.3.7),
// and sum c_n U_n = (2 w)^(-mu - 1/2) with c_n = a_0 ... a_{n-1} / n!. Both are begun `terms` later, with u_n = n! U_n,
// which changes little, and the rest of the sum divided by c_n / n!.
// |mu| <= 1/2, w not on the negative real axis.
// N. M. Temme, J. Comput. Phys. 19 (1975) 324-337.
template <class Number, class Real>
ConfluentValues<Number> confluent(Real mu, Number w, int terms) {
  const Real mu2 = mu * mu;
  const Number two_w = w * 2.0;
  const Number one = Number{} + Real{1.0};
  Number above{}, at = one, sum = one;
  Real a_n = confluent_a(mu2, terms);
  Real a_over = a_n * inverse_of(mu, terms + 1.0);  // a_n / (n + 1)
  for (int n = terms; n > 0; --n) {
    // u_{n-1} = (2 (n + w) u_n - a_n / (n + 1) u_{n+1}) / n
    const Real inverse = inverse_of(mu, n);
    const Number below = fused(two_w + Real{2.0 * n}, at, above * -a_over) * inverse;
    a_n = confluent_a(mu2, n - 1.0);
    a_over = a_n * inverse;
    sum = fused(a_over * inverse, sum, below);
    above = at;
    at = below;
  }
  return {at / sum, (at * (w + (mu + Real{0.5})) - above * a_n) / (w * sum)};
}

}  // namespace quorin::amos
