// Single values on the positive real axis, in real arithmetic.
#pragma once

#include <optional>

namespace quorin::amos {

// J_nu(x), Y_nu(x), e^-x I_nu(x), e^x K_nu(x) for x > 0, nu >= 0. Nothing where the methods for complex arguments have
// to look: next to a zero, next to overflow and underflow, and for large orders.
//
// K of small order, and H1 in the same way with w = -ix, comes from Temme's series (|w| <= 2) or the recurrence of
// Tricomi's function, for integer orders J and Y below kNeumann from Miller's recurrence with Neumann's sums (DLMF
// 10.12.4, 10.8.3); then the recurrence in order goes up. Where J and I decrease with the order, they come from their
// power series, or from the ratio to the next order (Miller's recurrence) and the Wronskian (DLMF 10.5.2, 10.28.2).
std::optional<double> real_j(double nu, double x);
std::optional<double> real_y(double nu, double x);
std::optional<double> real_i(double nu, double x);
std::optional<double> real_k(double nu, double x);

}  // namespace quorin::amos
