#include "families/feast/contour.hpp"

#include <cmath>
#include <numbers>

namespace quorin::feast {

void gauss_legendre(int count, double* nodes, double* weights) {
  constexpr int kMostSteps = 20;  // four are enough
  constexpr double kSmallStep = 1e-15;
  for (int k = 0; k < count; ++k) {
    double t = std::cos(std::numbers::pi * (k + 0.75) / (count + 0.5)), derivative = 0;
    for (int step = 0; step < kMostSteps; ++step) {
      double before = 1, value = t;  // P_{j-1}(t), P_j(t)
      for (int j = 2; j <= count; ++j) {
        const double next = ((2 * j - 1) * t * value - (j - 1) * before) / j;
        before = value;
        value = next;
      }
      derivative = count * (t * value - before) / (t * t - 1);
      const double change = value / derivative;
      t -= change;
      if (std::fabs(change) < kSmallStep) break;
    }
    nodes[k] = t;
    weights[k] = 2 / ((1 - t * t) * derivative * derivative);
  }
}

Contour::Contour(const Interval& interval, int nodes) : size_(nodes) {
  std::array<double, kMostNodes> t{}, w{};
  gauss_legendre(nodes, t.data(), w.data());
  for (std::size_t k = 0; k < static_cast<std::size_t>(nodes); ++k) {
    const double angle = std::numbers::pi / 2 * (1 - t[k]);
    const std::complex<double> spoke = std::polar(interval.radius(), angle);
    nodes_[k] = {interval.centre() + spoke, w[k] / 2 * spoke};
  }
}

}  // namespace quorin::feast
