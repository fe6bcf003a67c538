#include "families/amos/real_axis.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "families/amos/confluent.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/power_series.hpp"
#include "families/amos/second_look.hpp"
#include "families/amos/sequences.hpp"
#include "families/amos/temme_series.hpp"

namespace quorin::amos {
namespace {

constexpr double kPiValue = std::numbers::pi;
constexpr double kLogPrecision = 38.0;  // e^-38 = 3e-17

// Argument below which integer orders have a way of their own, and orders up to which the recurrence is worth its
// steps.
constexpr double kNeumann = 12.0;
constexpr double kMostOrder = 400.0;

// Results in this range have kept all digits on the way.
constexpr double kLeast = 1.0e-280;
constexpr double kLargest = 1.0e280;

std::optional<double> in_range(double value) {
  const double size = std::fabs(value);
  if (size > kLeast && size < kLargest) return value;
  return std::nullopt;
}

struct RealPair {
  double at;
  double above;
};

// y at orders mu + steps and the next one, from mu and mu + 1: y_{nu+1} = (2 nu / x) y_nu + sign y_{nu-1}.
RealPair climb(double mu, int steps, double x, double sign, RealPair y) {
  const double two_over_x = 2.0 / x;
  for (int k = 1; k <= steps; ++k) y.at = std::exchange(y.above, (mu + k) * two_over_x * y.above + sign * y.at);
  return y;
}

// f_{nu+1}(x) / f_nu(x) for f = J (sign -1) or I (sign 1) by Miller's recurrence.
double ratio(double nu, double x, double sign) {
  constexpr double kGrowth = 1.0e9;  // the error of the ratio is about its inverse square
  constexpr int kMostSteps = 2000;
  const double two_over_x = 2.0 / x;
  double before = 0.0, p = 1.0;
  int last = 0;
  while (std::fabs(p) < kGrowth && ++last < kMostSteps) {
    before = std::exchange(p, (nu + last) * two_over_x * p + sign * before);
  }
  double above = 0.0, y = 1.0;
  for (int k = last; k > 0; --k) above = std::exchange(y, (nu + k) * two_over_x * y + sign * above);
  return above / y;
}

// The power series of J (sign -1) or I (sign 1), DLMF 10.2.2 and 10.25.2, for x^2 <= 4 (nu + 1).
std::optional<double> power_series(double nu, double x, double sign) {
  const double quarter = sign * 0.25 * x * x;
  double term = 1.0, sum = 1.0;
  for (int k = 1; std::fabs(term) > 0.1 * kTol * std::fabs(sum); ++k) {
    term *= quarter / (k * (nu + k));
    sum += term;
  }
  const double power = std::pow(0.5 * x, nu);
  if (!in_range(power)) return std::nullopt;
  return in_range(power * reciprocal_gamma({nu}) * sum);
}

// J and Y at orders mu and mu + 1.
struct Cylinders {
  RealPair j;
  RealPair y;
};

// From H1 = sqrt(2 / (pi x)) e^{i (x - (mu/2 + 1/4) pi)} f with f of the recurrence of Tricomi's function at w = -ix.
Cylinders cylinders_by_confluence(double mu, double x) {
  const auto [at, above] = confluent(mu, Complex{0.0, -x}, confluent_terms(kLogPrecision, x, 0.0));
  const double quarters = round_to_integer(x / kHalfPi.hi);
  const DoubleDouble p = two_product(quarters, kHalfPi.hi);
  const double angle = ((x - p.hi) - p.lo) - quarters * kHalfPi.lo - (mu + 0.5) * kHalfPi.hi;
  const double size = std::sqrt(2.0 / (kPiValue * x));
  const Complex phase = times_i_power(Complex{size * std::cos(angle), size * std::sin(angle)},
                                      static_cast<int>(std::fmod(quarters, 4.0)));
  const Complex h = phase * at;
  const Complex h_above = times_i_power(phase, 3) * above;
  return {{h.real(), h_above.real()}, {h.imag(), h_above.imag()}};
}

// Y of orders mu and mu + 1 for x <= 2, from Temme's series of Y, that of K with other signs.
RealPair y_by_series(double mu, double x) {
  const Pair k = k_power_series(mu, Complex{0.0, -x});
  // Y = Im H1, H1 = (2/(pi i)) e^{-i pi nu/2} K(-ix)
  const Complex turn = std::conj(quarter_turns(mu)) * (2.0 / kPiValue);
  const Complex h = times_i_power(turn * shift(k.at.m, k.at.e), 3);
  const Complex h_above = times_i_power(turn * shift(k.above.m, k.above.e), 2);
  return {h.imag(), h_above.imag()};
}

// J_n(x), and Y_0(x), Y_1(x), by Miller's recurrence downwards and
// 1 = J_0 + 2 J_2 + 2 J_4 + ...,  Y_0 = (2/pi) ((log(x/2) + gamma) J_0 - 2 sum (-1)^k J_{2k} / k),
// Y_1 = (J_1 Y_0 - 2 / (pi x)) / J_0, or from the sum of its own where J_0 is small.
struct IntegerValues {
  double j;
  RealPair y;
};

IntegerValues integer_cylinders(int n, double x) {
  const double two_over_x = 2.0 / x;
  const int top = 2 * (static_cast<int>(0.5 * std::max<double>(n, x) + 4.5 * std::cbrt(std::max<double>(n, x))) + 8);
  double above = 0.0, at = 1.0e-280, j = 0.0, sum = 0.0, y0 = 0.0, y1 = 0.0;
  for (int k = top; k > 0; --k) {
    if (k == n) j = at;
    if (k % 2 == 0) {
      sum += at;
      y0 += (k % 4 == 0 ? at : -at) / k;
    } else if (k > 1) {
      // Y_1 = -2/(pi x) + (2/pi) ((log(x/2) + gamma - 1) J_1 - sum (-1)^m (2m+1) / (m (m+1)) J_{2m+1}), m = (k - 1) / 2
      const double m = 0.5 * (k - 1);
      y1 += (k % 4 == 1 ? at : -at) * k / (m * (m + 1.0));
    }
    above = std::exchange(at, k * two_over_x * at - above);
  }
  const double scale = 1.0 / (at + 2.0 * sum);
  const double j0 = at * scale, j1 = above * scale;
  const double logarithm = std::log(0.5 * x) + std::numbers::egamma;
  constexpr double kTwo = 2.0 / kPiValue;
  return {n == 0 ? j0 : j * scale,
          {kTwo * (logarithm * j0 - 4.0 * scale * y0), kTwo * ((logarithm - 1.0) * j1 - scale * y1 - j0 / x)}};
}

// Whether J or Y is so small against the function around it that it wants a second look (Nicholson, DLMF 10.18.17).
bool is_small(double nu, double x, double value) {
  if (x <= nu) return false;
  const double part = small_part_on_axis(nu, x);
  return value * value * std::sqrt((x - nu) * (x + nu)) < part * part * (2.0 / kPiValue);
}

bool is_integer_case(double nu, double x) { return x < kNeumann && nu == round_to_integer(nu); }

}  // namespace

std::optional<double> real_j(double nu, double x) {
  if (nu > kMostOrder) return std::nullopt;
  if (x <= 2.0 || (x * x <= 4.0 * (nu + 1.0) && nu < 100.0)) return power_series(nu, x, -1.0);
  const bool oscillates = is_oscillating(nu, x);
  double value = 0.0;
  if (is_integer_case(nu, x)) {
    value = integer_cylinders(static_cast<int>(nu), x).j;
  } else {
    const int steps = static_cast<int>(round_to_integer(nu));
    const double mu = nu - steps;
    const Cylinders c = cylinders_by_confluence(mu, x);
    if (oscillates) {
      value = climb(mu, steps, x, -1.0, c.j).at;
    } else {
      // J_{nu+1} Y_nu - J_nu Y_{nu+1} = 2 / (pi x)
      const RealPair y = climb(mu, steps, x, -1.0, c.y);
      value = 2.0 / (kPiValue * x * (ratio(nu, x, -1.0) * y.at - y.above));
    }
  }
  if (oscillates && is_small(nu, x, value)) return std::nullopt;
  return in_range(value);
}

std::optional<double> real_y(double nu, double x) {
  if (nu > kMostOrder || x < 1.0e-200) return std::nullopt;
  const int steps = static_cast<int>(round_to_integer(nu));
  const double mu = nu - steps;
  const RealPair low = x <= 2.0                 ? y_by_series(mu, x)
                       : is_integer_case(nu, x) ? integer_cylinders(0, x).y
                                                : cylinders_by_confluence(mu, x).y;
  const double value = climb(mu, steps, x, -1.0, low).at;
  if (is_small(nu, x, value)) return std::nullopt;
  return in_range(value);
}

std::optional<double> real_k(double nu, double x) {
  if (nu > kMostOrder || x < 1.0e-200) return std::nullopt;
  const int steps = static_cast<int>(round_to_integer(nu));
  const double mu = nu - steps;
  RealPair k{};
  if (x <= kSmallArgument) {
    const double l = -std::log(0.5 * x), power = std::exp(mu * l), growth = std::exp(x);
    const auto sums = temme_series(mu, l, power, 1.0 / power, 0.25 * x * x);
    k = {growth * sums.at, growth * sums.above * (2.0 / x)};
  } else {
    const auto [at, above] = confluent(mu, x, confluent_terms(kLogPrecision, x, x));
    const double size = std::sqrt(kPiValue / (2.0 * x));
    k = {size * at, size * above};
  }
  return in_range(climb(mu, steps, x, 1.0, k).at);
}

std::optional<double> real_i(double nu, double x) {
  if (nu > kMostOrder) return std::nullopt;
  if (x * x <= 4.0 * (nu + 1.0) && nu < 100.0) {
    const std::optional<double> value = power_series(nu, x, 1.0);
    return value ? in_range(*value * std::exp(-x)) : value;
  }
  if (x > kMostOrder || x <= kSmallArgument) return std::nullopt;
  const int steps = static_cast<int>(round_to_integer(nu));
  const double mu = nu - steps;
  const auto [at, above] = confluent(mu, x, confluent_terms(kLogPrecision, x, x));
  const RealPair k = climb(mu, steps, x, 1.0, {at, above});
  // I_nu K_{nu+1} + I_{nu+1} K_nu = 1 / x
  return in_range(1.0 / (x * std::sqrt(kPiValue / (2.0 * x)) * (k.above + ratio(nu, x, 1.0) * k.at)));
}

}  // namespace quorin::amos
