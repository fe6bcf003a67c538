#include "families/amos/sequences.hpp"

#include <numbers>

#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/moderate_argument.hpp"
#include "families/amos/uniform.hpp"

namespace quorin::amos {
namespace {

// The large-argument expansion serves this order and the next one.
bool is_large_argument(double nu, double size) {
  return size > kLargeArgument && (nu + 1.0) * (nu + 1.0) <= 2.0 * size;
}

// f at order nu and, if asked for, at nu + 1.
template <class Function>
Pair pair(DoubleDouble nu, bool wants_above, const Function& f) {
  return {f(nu), wants_above ? f(nu + kOne) : Scaled{}};
}

}  // namespace

Start start_i(DoubleDouble nu, Complex w, bool wants_above) {
  const double size = modulus(w);
  const auto by_uniform = [w](DoubleDouble order) { return Uniform(order, w).i(); };
  if (nu.hi >= kLargeOrder) return {pair(nu, wants_above, by_uniform)};
  if (is_large_argument(nu.hi, size)) {
    return {pair(nu, wants_above, [w](DoubleDouble order) { return i_large_argument(order, w); })};
  }
  if (size <= kLargeArgument) return {i_moderate_argument(nu, w, wants_above)};
  const double steps = std::ceil(kLargeOrder - nu.hi);
  return {pair(nu + DoubleDouble{steps, 0.0}, true, by_uniform), static_cast<int>(steps)};
}

Pair start_k(DoubleDouble nu, Complex w, bool wants_above) {
  if (nu.hi >= kLargeOrder) {
    return pair(nu, wants_above, [w](DoubleDouble order) { return Uniform(order, w).k(); });
  }
  if (is_large_argument(nu.hi, modulus(w))) {
    return pair(nu, wants_above, [w](DoubleDouble order) { return k_large_argument(order.hi, w); });
  }
  return k_by_recurrence(nu, w);
}

bool is_oscillating(double nu, double x) { return x > 2.0 && x > nu + 0.8 * std::cbrt(nu); }

bool is_next_to_zero(double nu, Complex w, double size) {
  const double x = modulus(w);
  if (!is_oscillating(nu, x)) return false;
  // |J| has the size sqrt(2 / (pi sqrt(x^2 - nu^2))) between its zeros (Nicholson; DLMF 10.18.17).
  constexpr double kPart = 0.15;
  return size * size * std::sqrt((x - nu) * (x + nu)) < kPart * kPart * (2.0 / std::numbers::pi);
}

}  // namespace quorin::amos
