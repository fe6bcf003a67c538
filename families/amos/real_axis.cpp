#include "families/amos/real_axis.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

#include "families/amos/confluent.hpp"
#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/power_series.hpp"
#include "families/amos/second_look.hpp"
#include "families/amos/sequences.hpp"
#include "families/amos/temme_series.hpp"

namespace quorin::amos {
namespace {

constexpr double kPiValue = std::numbers::pi;
constexpr double kLogPrecision = 38.0;  // e^-38 = 3e-17

// Orders up to which the recurrence is worth its steps.
constexpr double kMostOrder = 400.0;

// Below this argument x^nu loses digits when its exponent is a double.
constexpr double kLeastArgument = 1.0e-4;

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
  const double power = nu == 0.0 ? 1.0 : nu == 1.0 ? 0.5 * x : std::pow(0.5 * x, nu);
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
  const Complex front =
      times_i_power(size * phase({angle}), static_cast<int>(quarters - 4.0 * round_to_integer(0.25 * quarters)));
  const Complex h = front * at;
  const Complex h_above = times_i_power(front, 3) * above;
  return {{h.real(), h_above.real()}, {h.imag(), h_above.imag()}};
}

// Y of orders mu and mu + 1 for x <= 2.
RealPair y_by_series(double mu, double x) {
  const double l = -std::log(0.5 * x), power = exponential(mu * l), sine = std::sin(0.5 * kPiValue * mu);
  const auto sums = temme_series(mu, l, power, 1.0 / power, -0.25 * x * x, mu == 0.0 ? 0.0 : 2.0 * sine * sine / mu);
  return {-2.0 / kPiValue * sums.at, -4.0 / (kPiValue * x) * sums.above};
}

// c_0 + c_1 t + ... with an even number of terms.
template <int kTerms>
double polynomial(const double* c, double t) {
  static_assert(kTerms % 2 == 0);
  const double t2 = t * t;
  double even = 0.0, odd = 0.0;
  for (int k = kTerms - 2; k >= 0; k -= 2) {
    even = even * t2 + c[k];
    odd = odd * t2 + c[k + 1];
  }
  return even + t * odd;
}

// J_0, J_1, Y_0 or Y_1 (function 0 to 3) for 2 <= x <= kPiecesEnd: (x - zero) p(x - zero) around each zero.
constexpr double kPiecesEnd = 25.0;

double by_pieces(int function, double x) {
  constexpr int kSize = 3 + tables::kPieceTerms;
  const double* piece =
      tables::kCylinderPieces.data() + static_cast<std::ptrdiff_t>(function) * tables::kPieces * kSize;
  while (x > piece[0]) piece += kSize;
  const double t = (x - piece[1]) - piece[2];
  return t * polynomial<tables::kPieceTerms>(piece + 3, t);
}

// e^-x I_0(x) or e^-x I_1(x) for x <= tables::kModifiedEnd.
double modified_by_pieces(int order, double x) {
  constexpr int kSize = 2 + tables::kModifiedTerms;
  const double* piece = tables::kModified.data() + static_cast<std::ptrdiff_t>(order) * tables::kModifiedPieces * kSize;
  while (x > piece[0]) piece += kSize;
  const double value = polynomial<tables::kModifiedTerms>(piece + 2, x - piece[1]);
  return order == 0 ? value : x * value;
}

// Miller's recurrence for J, from an order that is large against n and x down to 0; `take` gets order and value.
// Returns the factor that makes J_0 + 2 J_2 + 2 J_4 + ... = 1.
template <class Take>
double descend_integers(double largest, double x, const Take& take) {
  const double two_over_x = 2.0 / x;
  double above = 0.0, at = 1.0e-280, sum = 0.0;
  for (int k = 2 * (static_cast<int>(0.5 * largest + 4.5 * std::cbrt(largest)) + 8); k > 0; --k) {
    take(k, at);
    if (k % 2 == 0) sum += at;
    above = std::exchange(at, k * two_over_x * at - above);
  }
  take(0, at);
  return 1.0 / (at + 2.0 * sum);
}

double integer_j(int n, double x) {
  double j = 0.0;
  const double scale =
      descend_integers(std::max<double>(n, x), x, [&](int k, double value) { j = k == n ? value : j; });
  return j * scale;
}

// Y_0 = (2/pi) ((log(x/2) + gamma) J_0 - 2 sum (-1)^m J_{2m} / m) and
// Y_1 = (2/pi) ((log(x/2) + gamma - 1) J_1 - J_0 / x - sum (-1)^m (2m+1) / (m (m+1)) J_{2m+1}), m = 1, 2, ...
RealPair integer_y(double x) {
  double j0 = 0.0, j1 = 0.0, even = 0.0, odd = 0.0;
  const double scale = descend_integers(x, x, [&](int k, double value) {
    const double m = 0.5 * (k - k % 2), term = (k & 2) != 0 ? -value : value;
    j1 = std::exchange(j0, value);
    if (k < 2) return;
    if (k % 2 == 0) {
      even += term / m;
    } else {
      odd += term * k / (m * (m + 1.0));
    }
  });
  const double logarithm = std::log(0.5 * x) + std::numbers::egamma, factor = scale * 2.0 / kPiValue;
  return {factor * (logarithm * j0 - 2.0 * even), factor * ((logarithm - 1.0) * j1 - j0 / x - odd)};
}

// Whether J or Y is so small against the function around it that it wants a second look (Nicholson, DLMF 10.18.17).
bool is_small(double nu, double x, double value) {
  if (x <= nu) return false;
  const double part = small_part_on_axis(nu, x);
  return value * value * std::sqrt((x - nu) * (x + nu)) < part * part * (2.0 / kPiValue);
}

bool is_integer_case(double nu, double x) { return x < kPiecesEnd && nu == round_to_integer(nu); }

}  // namespace

std::optional<double> real_j(double nu, double x) {
  if (nu > kMostOrder) return std::nullopt;
  if (x <= 2.0 || (x * x <= 4.0 * (nu + 1.0) && nu < 100.0)) return power_series(nu, x, -1.0);
  const bool oscillates = is_oscillating(nu, x);
  const int steps = static_cast<int>(round_to_integer(nu));
  const double mu = nu - steps;
  double value = 0.0;
  if (is_integer_case(nu, x)) {
    if (steps <= 1) return by_pieces(steps, x);
    value = oscillates ? climb(0.0, steps, x, -1.0, {by_pieces(0, x), by_pieces(1, x)}).at : integer_j(steps, x);
  } else {
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
  if (nu > kMostOrder || x < kLeastArgument) return std::nullopt;
  const int steps = static_cast<int>(round_to_integer(nu));
  const double mu = nu - steps;
  RealPair low{};
  if (is_integer_case(nu, x)) {
    if (x > 2.0 && steps <= 1) return by_pieces(2 + steps, x);
    low = x > 2.0 ? RealPair{by_pieces(2, x), by_pieces(3, x)} : integer_y(x);
  } else {
    low = x <= 2.0 ? y_by_series(mu, x) : cylinders_by_confluence(mu, x).y;
  }
  const double value = climb(mu, steps, x, -1.0, low).at;
  if (is_small(nu, x, value)) return std::nullopt;
  return in_range(value);
}

std::optional<double> real_k(double nu, double x) {
  if (nu > kMostOrder || x < kLeastArgument) return std::nullopt;
  const int steps = static_cast<int>(round_to_integer(nu));
  const double mu = nu - steps;
  RealPair k{};
  if (x <= kSmallArgument) {
    const double l = -std::log(0.5 * x), power = exponential(mu * l), growth = exponential(x);
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
  if (x <= tables::kModifiedEnd && (nu == 0.0 || nu == 1.0)) return modified_by_pieces(static_cast<int>(nu), x);
  if (x * x <= 4.0 * (nu + 1.0) && nu < 100.0) {
    const std::optional<double> value = power_series(nu, x, 1.0);
    return value ? in_range(*value * exponential(-x)) : value;
  }
  if (x > kLargeArgument && (nu + 1.0) * (nu + 1.0) <= 2.0 * x)
    return large_argument_sums(nu, x).i / std::sqrt(2.0 * kPiValue * x);
  if (x > kMostOrder || x <= kSmallArgument) return std::nullopt;
  const int steps = static_cast<int>(round_to_integer(nu));
  const double mu = nu - steps;
  const auto [at, above] = confluent(mu, x, confluent_terms(kLogPrecision, x, x));
  const RealPair k = climb(mu, steps, x, 1.0, {at, above});
  // I_nu K_{nu+1} + I_{nu+1} K_nu = 1 / x
  return in_range(1.0 / (x * std::sqrt(kPiValue / (2.0 * x)) * (k.above + ratio(nu, x, 1.0) * k.at)));
}

}  // namespace quorin::amos
