#include "families/signal/linear_phase.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorin::signal {

using std::numbers::pi;

int LinearPhase::degree() const {
  if (!odd_) return taps_ / 2 - 1;
  return antisymmetric_ ? (taps_ - 3) / 2 : (taps_ - 1) / 2;
}

double LinearPhase::factor(double t) const {
  if (antisymmetric_) return odd_ ? std::sin(t) : std::sin(t / 2);
  return odd_ ? 1.0 : std::cos(t / 2);
}

double LinearPhase::slope_at_zero() const {
  if (!antisymmetric_) return 0.0;
  return odd_ ? 1.0 : 0.5;
}

// The inverse discrete Fourier transform, with the symmetry used: with u(k, j) = pi k (2 j - N + 1) / N,
//
//   N h(j) = A(0) + 2 sum A(2 pi k / N) cos u(k, j)          k = 1 .. (N-1)/2     (symmetric; A(pi) = 0 if N is even)
//   N h(j) = -2 sum A(2 pi k / N) sin u(k, j)                the last term, at pi, once (antisymmetric; A(0) = 0)
//
// The angles are multiples of pi / N, so all cosines and sines come from one table of a full circle.
void LinearPhase::taps_from_response(const double* response, double* table, double* h) const {
  const int circle = 2 * taps_;
  for (int i = 0; i < circle; ++i) {
    const double angle = pi * i / taps_;
    table[i] = antisymmetric_ ? -std::sin(angle) : std::cos(angle);
  }
  const int half = (taps_ - 1) / 2;
  for (int j = 0; j < (taps_ + 1) / 2; ++j) {
    const int step = circle + 2 * j - taps_ + 1;
    double sum = 0.0;
    int position = 0;
    for (int k = 1; k <= half; ++k) {
      position = (position + step) % circle;
      sum += response[k] * table[position];
    }
    sum *= 2;
    if (!antisymmetric_) sum += response[0];
    if (antisymmetric_ && !odd_) sum += response[taps_ / 2] * table[(position + step) % circle];
    h[j] = sum / taps_;
    h[taps_ - 1 - j] = antisymmetric_ ? -h[j] : h[j];
  }
  if (antisymmetric_ && odd_) h[taps_ / 2] = 0.0;
}

double Problem::shape(double t, const Band& band) const {
  if (!band.relative) return form.factor(t);
  return 2 * pi * (t == 0.0 ? form.slope_at_zero() : form.factor(t) / t);
}

int Problem::grid_points(const Band& band) const {
  return std::max(2, 1 + static_cast<int>((band.upper - band.lower) / grid_step * (1 + 1e-12)));
}

double Problem::grid_point(const Band& band, int i) const {
  return i + 1 < grid_points(band) ? band.lower + i * grid_step : band.upper;
}

}  // namespace quorin::signal
