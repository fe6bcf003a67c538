#include "families/signal/equilibrium.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorin::signal {
namespace {

using std::numbers::pi;

// Points of the midpoint rule in the angle of x = middle + half cos(angle), which takes away the roots at both ends.
constexpr int kGapPoints = 24, kBandPoints = 32;

double midpoint(int i, int points) { return pi * (i + 0.5) / points; }

}  // namespace

Equilibrium::Equilibrium(const Problem& problem, int degree)
    : problem_(problem), degree_(degree), gap_count_(problem.band_count() - 1) {
  for (int b = 0; b <= gap_count_; ++b) total_width_ += problem.bands[b].upper - problem.bands[b].lower;
  is_even_ = problem.band_count() > kMostBands || !solve();
}

// The interval of x for one of t.
Equilibrium::Interval Equilibrium::between(double t, double later) {
  const double right = std::cos(t), left = std::cos(later);
  return {(right + left) / 2, (right - left) / 2};
}

// Of P in the middle of a band.
double Equilibrium::weight(int b) const {
  const Band& band = problem_.bands[b];
  return band.weight * std::abs(problem_.shape((band.lower + band.upper) / 2, band));
}

// prod (x - middle(k)) / sqrt |(x - left end(k)) (x - right end(k))| over all gaps; without the root of one of them.
double Equilibrium::product(double x, int open) const {
  double result = 1.0;
  for (int k = 0; k < gap_count_; ++k) {
    const double d = x - gaps_[k].middle, half = gaps_[k].half;
    result *= k == open ? d : d / std::sqrt(std::abs((d - half) * (d + half)));
  }
  return result;
}

double Equilibrium::outer_root(double x) const { return std::sqrt(std::abs((x - left_) * (right_ - x))); }

// sqrt(H) changes its sign from one gap to the next. The largest entry of a row of the equations is on the diagonal, as
// the other terms of p change their signs within the row's gap.
bool Equilibrium::solve() {
  const int n = gap_count_;
  right_ = std::cos(problem_.bands[0].lower);
  left_ = std::cos(problem_.bands[n].upper);
  for (int k = 0; k < n; ++k) gaps_[k] = between(problem_.bands[k].upper, problem_.bands[k + 1].lower);

  std::array<std::array<double, kMostBands>, kMostBands> rows{};
  for (int k = 0; k < n; ++k) {
    auto& row = rows[k];
    for (int i = 0; i < kGapPoints; ++i) {
      const double x = gaps_[k].middle + gaps_[k].half * std::cos(midpoint(i, kGapPoints));
      const double value = pi / kGapPoints * product(x, k) / outer_root(x);
      for (int j = 0; j < n; ++j) row[j] += value / (x - gaps_[j].middle);
      row[n] -= value * degree_;
    }
    const double growth = std::log(weight(k + 1) / weight(k));
    row[n] += k % 2 == 0 ? -growth : growth;
  }
  for (int k = 0; k < n; ++k) {
    for (int i = k + 1; i < n; ++i) {
      const double share = rows[i][k] / rows[k][k];
      for (int j = k; j <= n; ++j) rows[i][j] -= share * rows[k][j];
    }
  }
  for (int k = n; k-- > 0;) {
    double sum = rows[k][n];
    for (int j = k + 1; j < n; ++j) sum -= rows[k][j] * residues_[j];
    residues_[k] = sum / rows[k][k];
    if (!std::isfinite(residues_[k])) return false;
  }
  return true;
}

// Extrema of band b to a unit of the angle. Where the weights are so unequal that p has its zero within a band, the
// error does not reach the level in a part of it.
double Equilibrium::density(int b, double angle) const {
  const Band& band = problem_.bands[b];
  if (is_even_) return degree_ / pi * (band.upper - band.lower) / total_width_;
  const auto [middle, half] = between(band.lower, band.upper);
  const double x = middle + half * std::cos(angle);
  double sum = degree_;
  for (int k = 0; k < gap_count_; ++k) sum += residues_[k] / (x - gaps_[k].middle);
  const double p = b % 2 == 0 ? sum : -sum;
  return std::max(0.0, p * product(x, -1) * half * std::sin(angle) / (pi * outer_root(x)));
}

double Equilibrium::extrema(int b) const {
  double sum = 0.0;
  for (int i = 0; i < kBandPoints; ++i) sum += density(b, midpoint(i, kBandPoints));
  return sum * pi / kBandPoints;
}

void Equilibrium::place(int b, int count, double* t) const {
  const Band& band = problem_.bands[b];
  if (count == 1) t[0] = (band.lower + band.upper) / 2;
  if (count < 2) return;
  const auto [middle, half] = between(band.lower, band.upper);
  const int cells = kBandPoints + 2 * count;
  double total = 0.0;
  for (int i = 0; i < cells; ++i) total += density(b, midpoint(i, cells));
  t[0] = band.lower;
  t[count - 1] = band.upper;
  double reached = 0.0, here = density(b, midpoint(0, cells));
  for (int i = 1, cell = 0; i < count - 1; ++i) {
    const double u = static_cast<double>(i) / (count - 1);
    while (cell + 1 < cells && reached + here < u * total) {
      reached += here;
      here = density(b, midpoint(++cell, cells));
    }
    const double part = here > 0.0 ? std::min((u * total - reached) / here, 1.0) : 0.5;
    const double x = middle + half * std::cos(pi * (cell + part) / cells);
    t[i] = is_even_ ? std::lerp(band.lower, band.upper, u) : std::clamp(std::acos(x), band.lower, band.upper);
  }
}

}  // namespace quorin::signal
