#include "families/signal/chebyshev_series.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorin::signal {
namespace {

using std::numbers::pi;

constexpr int kDegree = kSamples - 1;
using Series = std::array<double, kSamples>;

double sample_angle(int j) { return pi * (2 * (kSamples - 1 - j) + 1) / (2 * kSamples); }

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

// The zero of a series that is monotone between a and b and changes its sign there: Newton's rule, kept in the bracket
// by bisection. Good to 1e-10, which makes the value at an extremum good to the square of that.
double zero_between(const Series& f, const Series& slope, int degree, double a, double b, bool rising) {
  constexpr int kMostSteps = 60;
  constexpr double kTolerance = 1e-10;
  double x = (a + b) / 2;
  for (int step = 0; step < kMostSteps && b - a > kTolerance; ++step) {
    const double fx = value(f, degree, x);
    if (fx == 0.0) break;
    ((fx > 0) == rising ? b : a) = x;
    const double dx = value(slope, degree - 1, x);
    const double newton = dx == 0.0 ? a : x - fx / dx;
    const double next = newton > a && newton < b ? newton : (a + b) / 2;
    const bool done = std::abs(next - x) < kTolerance;
    x = next;
    if (done) break;
  }
  return x;
}

}  // namespace

std::array<double, kSamples> sample_points() {
  std::array<double, kSamples> x{};
  for (int j = 0; j < kSamples; ++j) x[j] = std::cos(sample_angle(j));
  return x;
}

CriticalPoints::CriticalPoints() {
  for (int k = 0; k < kSamples; ++k) {
    const double scale = (k == 0 ? 1.0 : 2.0) / kSamples;
    for (int j = 0; j < kSamples; ++j) transform_[k][j] = scale * std::cos(k * sample_angle(j));
  }
}

// Between neighbouring zeros of its derivative a function is monotone. So the zeros of the last derivative but one,
// which is linear, bracket those of the one before it, and so on down to the first.
int CriticalPoints::find(const double* samples, double* zeros) const {
  std::array<Series, kSamples> derivatives{};
  for (int k = 0; k < kSamples; ++k) {
    for (int j = 0; j < kSamples; ++j) derivatives[0][k] += transform_[k][j] * samples[j];
  }
  for (int m = 1; m < kSamples; ++m) derivatives[m] = derivative(derivatives[m - 1], kDegree - m + 1);

  std::array<double, kSamples + 1> points{-1.0, 1.0};  // the ends and, between them, the zeros found last
  int count = 0;
  for (int m = kDegree - 1; m >= 1; --m) {
    const Series& f = derivatives[m];
    const int degree = kDegree - m;
    std::array<double, kSamples + 1> next{-1.0};
    int found = 0;
    double at_left = value(f, degree, -1.0);
    for (int i = 0; i <= count; ++i) {
      const double at_right = value(f, degree, points[i + 1]);
      if (at_left != 0.0 && (at_left > 0) != (at_right > 0)) {
        next[++found] = zero_between(f, derivatives[m + 1], degree, points[i], points[i + 1], at_left < 0);
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
