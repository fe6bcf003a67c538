#include "families/signal/chebyshev_series.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <tuple>

namespace quorin::signal {
namespace {

using std::numbers::pi;

constexpr int kDegree = kSamples - 1;
using Series = std::array<double, kSamples>;
using Coefficients = std::array<double, kSamples - 1>;  // of a derivative

double sample_angle(int j) { return pi * (2 * (kSamples - 1 - j) + 1) / (2 * kSamples); }

// A matrix times the samples, column by column, so that no addition waits for the one before.
template <std::size_t kRows>
std::array<double, kRows> product(const std::array<Series, kRows>& matrix, const double* samples) {
  std::array<double, kRows> result{};
  for (std::size_t j = 0; j < kSamples; ++j) {
    for (std::size_t k = 0; k < kRows; ++k) result[k] += matrix[k][j] * samples[j];
  }
  return result;
}

// Clenshaw's rule for sum c(k) T_k(x).
double value(const Series& c, int degree, double x) {
  double b1 = 0.0, b2 = 0.0;
  for (int k = degree; k > 0; --k) {
    const double b0 = c[k] + 2 * x * b1 - b2;
    b2 = b1;
    b1 = b0;
  }
  return c[0] + x * b1 - b2;
}

// The series of the derivative: d(k-1) = d(k+1) + 2 k c(k), d(0) halved (Mason & Handscomb, Chebyshev
// Polynomials, 2.4.5).
Series derivative(const Series& c, int degree) {
  Series d{};
  for (int k = degree; k > 0; --k) d[k - 1] = (k + 1 < degree ? d[k + 1] : 0.0) + 2 * k * c[k];
  d[0] /= 2;
  return d;
}

// A value and the slope there.
struct Local {
  double value, slope;
};

// The only zero of a function between a and b, where it changes its sign: Newton's rule from x, kept in the bracket by
// bisection. Good to 1e-10, which makes the value at an extremum good to the square of that.
template <class Function>
double zero_between(const Function& function, double a, double b, double x, bool rising) {
  constexpr int kMostSteps = 60;
  constexpr double kTolerance = 1e-10, kQuadratic = 1e-6;
  for (int step = 0; step < kMostSteps && b - a > kTolerance; ++step) {
    const auto [f, slope] = function(x);
    if (f == 0.0) break;
    ((f > 0) == rising ? b : a) = x;
    const double newton = slope == 0.0 ? a : x - f / slope;
    const bool within = newton > a && newton < b;
    const double next = within ? newton : (a + b) / 2;
    const bool done = within && std::abs(next - x) < kQuadratic;
    x = next;
    if (done) break;
  }
  return x;
}

// Horner's rule for a polynomial and its derivative.
Local horner(const Coefficients& c, double x) {
  double value = c.back(), slope = 0.0;
  for (std::size_t k = c.size() - 1; k-- > 0;) {
    slope = slope * x + value;
    value = value * x + c[k];
  }
  return {value, slope};
}

// From a series to powers, by the recurrence of the T_k.
Coefficients to_powers(const Series& series) {
  Coefficients powers{}, before{}, now{1.0};
  for (std::size_t k = 0; k < powers.size(); ++k) {
    Coefficients next{};
    for (std::size_t i = 0; i < powers.size(); ++i) {
      powers[i] += series[k] * now[i];
      next[i] = (k == 0 ? 1.0 : 2.0) * (i > 0 ? now[i - 1] : 0.0) - before[i];
    }
    before = now;
    now = next;
  }
  return powers;
}

// From powers of x to Bernstein polynomials on [-1, 1]: b(i) = sum over k of C(i, k) / C(n, k) a(k), the a(k) being
// coefficients in powers of u, x = 2 u - 1 (Farouki, Comput. Aided Geom. Design 29 (2012) 379-419).
Coefficients to_bernstein(const Coefficients& powers) {
  constexpr std::size_t n = std::tuple_size_v<Coefficients> - 1;
  Coefficients u{}, bernstein{};
  for (std::size_t k = n + 1; k-- > 0;) {  // u <- u (2 u - 1) + powers[k]
    for (std::size_t i = n + 1; i-- > 0;) u[i] = 2 * (i > 0 ? u[i - 1] : 0.0) - u[i];
    u[0] += powers[k];
  }
  for (std::size_t i = 0; i <= n; ++i) {
    double ratio = 1.0;
    for (std::size_t k = 0; k <= i; ++k) {
      bernstein[i] += ratio * u[k];
      ratio *= static_cast<double>(i - k) / static_cast<double>(n - k);
    }
  }
  return bernstein;
}

}  // namespace

std::array<double, kSamples> sample_points() {
  std::array<double, kSamples> x{};
  for (int j = 0; j < kSamples; ++j) x[j] = std::cos(sample_angle(j));
  return x;
}

CriticalPoints::CriticalPoints() {
  for (int j = 0; j < kSamples; ++j) {
    Series series;
    for (int k = 0; k < kSamples; ++k) {
      series[k] = (k == 0 ? 1.0 : 2.0) / kSamples * std::cos(k * sample_angle(j));
      series_[k][j] = series[k];
    }
    const Coefficients powers = to_powers(derivative(series, kDegree)), bernstein = to_bernstein(powers);
    for (std::size_t k = 0; k < powers.size(); ++k) {
      powers_[k][j] = powers[k];
      bernstein_[k][j] = bernstein[k];
    }
  }
}

// A polynomial has as many zeros in the interval as its Bernstein coefficients have changes of sign, or fewer by an
// even number (Descartes' rule). Nearly always there is no change, or one, or one near each end.
int CriticalPoints::find(const double* samples, double* zeros) const {
  constexpr int kMost = 2;
  const auto coefficients = product(bernstein_, samples);
  int changes = 0;
  std::size_t last = 0;
  std::array<double, kMost> starts{};
  for (std::size_t i = 1; i < coefficients.size(); ++i) {
    const double before = coefficients[last], here = coefficients[i];
    if (here == 0.0) continue;
    if (before * here < 0.0) {
      if (changes == kMost) return find_several(samples, zeros);
      // Where the control polygon crosses zero.
      const double place = std::lerp(static_cast<double>(last), static_cast<double>(i), before / (before - here));
      starts[changes++] = 2 * place / static_cast<double>(coefficients.size() - 1) - 1;
    }
    last = i;
  }
  if (changes == 0) return 0;

  const auto powers = product(powers_, samples);
  const auto local = [&](double x) { return horner(powers, x); };
  const double at_left = coefficients.front(), at_right = coefficients.back();
  if (changes == 1) {
    zeros[0] = zero_between(local, -1.0, 1.0, starts[0], at_left < 0 || at_right > 0);
    return 1;
  }
  const double middle = (starts[0] + starts[1]) / 2, in_middle = local(middle).value;
  if (!(at_left * in_middle < 0.0 && in_middle * at_right < 0.0)) return find_several(samples, zeros);
  zeros[0] = zero_between(local, -1.0, middle, starts[0], in_middle > 0);
  zeros[1] = zero_between(local, middle, 1.0, starts[1], in_middle < 0);
  return 2;
}

// Between neighbouring zeros of its derivative a function is monotone. So the zeros of the last derivative but one,
// which is linear, bracket those of the one before it, and so on down to the first.
int CriticalPoints::find_several(const double* samples, double* zeros) const {
  std::array<Series, kSamples> derivatives{product(series_, samples)};
  for (int m = 1; m < kSamples; ++m) derivatives[m] = derivative(derivatives[m - 1], kDegree - m + 1);

  std::array<double, kSamples + 1> points{-1.0, 1.0};  // the ends and, between them, the zeros found last
  int count = 0;
  for (int m = kDegree - 1; m >= 1; --m) {
    const Series &f = derivatives[m], &slope = derivatives[m + 1];
    const int degree = kDegree - m;
    const auto local = [&](double x) { return Local{value(f, degree, x), value(slope, degree - 1, x)}; };
    std::array<double, kSamples + 1> next{-1.0};
    int found = 0;
    double at_left = value(f, degree, -1.0);
    for (int i = 0; i <= count; ++i) {
      const double at_right = value(f, degree, points[i + 1]);
      if (at_left != 0.0 && (at_left > 0) != (at_right > 0)) {
        const double middle = (points[i] + points[i + 1]) / 2;
        next[++found] = zero_between(local, points[i], points[i + 1], middle, at_left < 0);
      }
      at_left = at_right;
    }
    next[found + 1] = 1.0;
    points = next;
    count = found;
  }
  std::copy_n(points.begin() + 1, count, zeros);
  return count;
}

}  // namespace quorin::signal
