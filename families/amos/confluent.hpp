// K of small order from the recurrence of Tricomi's function, in any precision.
#pragma once

#include <cmath>

#include "families/amos/apart.hpp"
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

// a_n = (n + 1/2)^2 - mu^2, in the precision of mu^2
inline double confluent_a(double mu2, double n) { return (n + 0.5) * (n + 0.5) - mu2; }
inline DoubleDouble confluent_a(DoubleDouble mu2, double n) {
  const DoubleDouble s = quick_two_sum((n + 0.5) * (n + 0.5), -mu2.hi);
  return quick_two_sum(s.hi, s.lo - mu2.lo);
}

inline double quotient(double a, double b) { return a / b; }
inline Complex quotient(Complex a, Complex b) { return a / b; }

// t_0, t_1 and t_1 + t_2 + ... but for a common factor; the first one is multiplied by a_0, which may be 0.
template <class Number>
struct ConfluentTerms {
  Number first;
  Number second;
  Number others;
};

template <class Number>
ConfluentTerms<Number> confluent_sum(double mu2, Number w, int terms) {
  const Number two_w = w * 2.0;
  Number above{}, at = 1.0, sum = 1.0;
  for (int n = terms; n > 1; --n) {
    const Number below = fused(two_w + 2.0 * n, at, above * -(n + 1.0)) * (n / confluent_a(mu2, n - 1.0));
    sum += below;
    above = at;
    at = below;
  }
  return {fused(two_w + 2.0, at, above * -2.0), at, sum};
}

inline ConfluentTerms<ComplexDoubleDouble> confluent_sum(DoubleDouble mu2, const ComplexDoubleDouble& w, int terms) {
  constexpr int kOrdered = 4;
  const ComplexDoubleDouble two_w = w * 2.0;
  const auto coefficient = [&two_w](double n) {
    return apart(ComplexDoubleDouble{two_w.re + DoubleDouble{2.0 * n}, two_w.im});
  };
  Apart<Lanes> above{}, at{Lanes{1.0, 0.0}, Lanes{}}, sum = at;
  for (int n = terms; n > 1; --n) {
    const Apart<Lanes> t = fused(coefficient(n), at, times_whole(-(n + 1.0), above));
    const DoubleDouble ratio = quotient({static_cast<double>(n)}, confluent_a(mu2, n - 1.0));
    const auto p = exact_product(both(ratio.hi), t.hi);
    above = at;
    at = {p.hi, p.lo + (ratio.hi * t.lo + ratio.lo * t.hi)};
    if (n % kOrdered == 0) {
      at = in_order(at);
      above = in_order(above);
    }
    const auto s = exact_sum(sum.hi, at.hi);
    sum = {s.hi, sum.lo + (s.lo + at.lo)};
  }
  return {joined(fused(coefficient(1.0), at, times_whole(-2.0, above))), joined(at), joined(sum)};
}

// With U_n = U(mu + 1/2 + n, 2 mu + 1, 2 w), K_mu(w) = sqrt(pi) (2 w)^mu e^-w U_0. U_n is the minimal solution of
//   U_{n-1} = 2 (n + w) U_n - a_n U_{n+1},  a_n = (n + 1/2)^2 - mu^2  (DLMF 13.3.7),
// and sum c_n U_n = (2 w)^(-mu - 1/2) with c_n = a_0 ... a_{n-1} / n!. For the terms t_n = c_n U_n that is
//   t_{n-1} = n / a_{n-1} (2 (n + w) t_n - (n + 1) t_{n+1}),
// which is begun `terms` later.
// |mu| <= 1/2, w not on the negative real axis.
// N. M. Temme, J. Comput. Phys. 19 (1975) 324-337.
template <class Number, class Real>
ConfluentValues<Number> confluent(Real mu, Number w, int terms) {
  const Real mu2 = mu * mu, a = confluent_a(mu2, 0.0);
  const auto [first, second, others] = confluent_sum(mu2, w, terms);
  const Number sum = first + others * a;
  return {quotient(first, sum), quotient(first * (w + (mu + Real{0.5})) - second * a, w * sum)};
}

}  // namespace quorin::amos
