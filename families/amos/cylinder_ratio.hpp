// Quotients of cylinder functions at two consecutive orders, to about 30 digits: next to a real zero of a function
// nothing less tells how much of it is left, while its neighbour in order is as large as it gets.
#pragma once

#include "families/amos/scaled.hpp"

namespace quorin::amos {

// C = a H1 + b H2 with the same a and b at all orders.
enum class Cylinder {
  kJ,   // 2 J
  kY,   // 2 i Y
  kAi,  // of order -1/3 and 2/3 proportional to Ai(-x) and Ai'(-x) (DLMF 9.6), z = (2/3) x^(3/2)
  kBi,  // the same for Bi
};

// C_nu(z) / C_{nu+1}(z) for nu = mu + steps, |mu| <= 1/2, steps >= 0, with |z| > nu and |z| > 0.5 next to the positive
// real axis. The quotients of H1, H2 and J at order mu, which tell H2 / H1, come from the continued fraction of K and
// from Miller's recurrence, or from the expansions for large argument; the recurrence in order, which is stable up to
// nu = |z| for every cylinder function, does the rest. Cost: a step of it for each order, some microseconds apart.
// N. M. Temme, J. Comput. Phys. 19 (1975) 324-337, for the continued fraction; DLMF 10.17.
Complex cylinder_ratio(Cylinder function, DoubleDouble mu, int steps, const ComplexDoubleDouble& z);

// Whether |C_nu(z)| = `size`, C being J or Y, is so small against the function around that a quotient has to take its
// place: below a quarter of it. Plain methods err by up to a fifth of what is allowed there. Never for orders above
// 32768, where half of the digits are lost anyway.
bool is_next_to_zero(double nu, Complex z, double size);

// |Im z| beyond which no zero is near.
inline constexpr double kBesideAxis = 0.5;

}  // namespace quorin::amos
