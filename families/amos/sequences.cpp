#include "families/amos/sequences.hpp"

#include "families/amos/cylinder_ratio.hpp"
#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/moderate_argument.hpp"
#include "families/amos/recurrence.hpp"
#include "families/amos/uniform.hpp"

namespace quorin::amos {
namespace {

// The large-argument expansion serves this order and the next one.
bool is_large_argument(double nu, double size) {
  return size > kLargeArgument && (nu + 1.0) * (nu + 1.0) <= 2.0 * size;
}

// The functions are real on the real axis, so the lower quadrant is the mirror image of the upper one.
Complex mirrored(Complex w, bool below) { return below ? std::conj(w) : w; }
Scaled mirrored(Scaled a, bool below) { return below ? conj(a) : a; }

// f at order nu and, if asked for, at nu + 1.
template <class Function>
Pair pair(DoubleDouble nu, bool wants_above, const Function& f) {
  return {f(nu), wants_above ? f(nu + kOne) : Scaled{}};
}

}  // namespace

// fnu + (n - 1) is kept unrounded: next to w = 0 a function changes by log(w) times the change of the order.
Start start_i(DoubleDouble nu, Complex w, bool wants_above) {
  const double size = std::abs(w);
  const auto by_uniform = [w](DoubleDouble order) { return uniform(Kind::kI, order, w); };
  if (nu.hi >= kLargeOrder) return {pair(nu, wants_above, by_uniform)};
  if (is_large_argument(nu.hi, size)) {
    return {pair(nu, wants_above, [w](DoubleDouble order) { return i_large_argument(order, w); })};
  }
  if (size <= kLargeArgument) return {i_moderate_argument(nu, w, wants_above)};
  const double steps = std::ceil(kLargeOrder - nu.hi);
  return {pair(nu + DoubleDouble{steps, 0.0}, true, by_uniform), static_cast<int>(steps)};
}

Pair start_k(double nu, Complex w, bool wants_above) {
  if (nu >= kLargeOrder) {
    return pair({nu, 0.0}, wants_above, [w](DoubleDouble order) { return uniform(Kind::kK, order, w); });
  }
  if (is_large_argument(nu, std::abs(w))) {
    return pair({nu, 0.0}, wants_above, [w](DoubleDouble order) { return k_large_argument(order.hi, w); });
  }
  return k_by_recurrence(nu, w);
}

namespace {

// descend_i without a second look at zeros.
bool descend_plainly(double nu, int n, Complex w, const Member& visit) {
  const bool below = w.imag() < 0.0;
  const Complex quadrant = mirrored(w, below);
  const DoubleDouble top = two_sum(nu, n - 1);
  const Start start = start_i(top, quadrant, n > 1);
  if (n == 1 && start.steps == 0) return visit(0, mirrored(start.values.at, below));
  Recurrence i(quadrant, start.values.above, start.values.at);
  for (int k = start.steps; k > 0; --k) i.step(top.hi + k);
  for (int j = n - 1;; --j) {
    if (!visit(j, mirrored(i.value(), below))) return false;
    if (j == 0) return true;
    i.step(nu + j);
  }
}

// e^-w I_{nu+j}(w) from the next higher order, if w is next to a zero, which all lie on the imaginary axis.
Scaled refined_i(double nu, int j, Complex w, Scaled value) {
  const bool below = w.imag() < 0.0;
  const Complex z = below ? Complex{-w.imag(), -w.real()} : Complex{w.imag(), -w.real()};
  // |J_nu(z)| = |e^w| |e^-w I_nu(w)|
  if (w.real() > 1.0 || !is_next_to_zero(nu + j, z, std::abs(shift(value.m, value.e)) * std::exp(w.real())))
    return value;
  const double steps = std::nearbyint(nu);
  const Complex ratio = cylinder_ratio(Cylinder::kJ, {nu - steps, 0.0}, static_cast<int>(steps) + j, widen(z));
  // I_nu(w) = e^{i pi nu/2} J_nu(z) in the first quadrant.
  descend_plainly(nu + j + 1, 1, w, [&](int, Scaled above) {
    value = above * mirrored(times_i_power(ratio, -1), below);
    return true;
  });
  return value;
}

}  // namespace

bool descend_i(double nu, int n, Complex w, const Member& visit) {
  return descend_plainly(nu, n, w, [&](int j, Scaled value) { return visit(j, refined_i(nu, j, w, value)); });
}

bool ascend_k(double nu, int n, Complex w, const Member& visit) {
  const bool below = w.imag() < 0.0;
  const Complex quadrant = mirrored(w, below);
  const Pair start = start_k(nu, quadrant, n > 1);
  if (!visit(0, mirrored(start.at, below))) return false;
  if (n == 1) return true;
  Recurrence k(quadrant, start.at, start.above);
  for (int j = 1; j < n; ++j) {
    if (!visit(j, mirrored(k.value(), below))) return false;
    k.step(nu + j);
  }
  return true;
}

}  // namespace quorin::amos
