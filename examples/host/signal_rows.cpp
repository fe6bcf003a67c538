// Equiripple filters and Toeplitz systems.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

using std::numbers::pi;

struct LowPass {
  int32_t taps = 101;
  std::vector<double> bands{0, 0.1, 0.12, 0.5}, desired{1, 0}, weight{1, 10};
  std::vector<double> h = std::vector<double>(101);

  int32_t design(const Library& library, Timer& timer) {
    const int32_t band_count = 2, multiband = 1, by_default = 0;
    int32_t ierr = -1;
    timer.time([&] {
      library.sREMEZ_Idx(h.data(), 0, &taps, &band_count, bands.data(), 0, desired.data(), 0, weight.data(), 0,
                         &multiband, &by_default, &by_default, &ierr);
    });
    return ierr;
  }

  double response(double f) const {
    double a = h[50];
    for (int k = 1; k <= 50; ++k) a += 2 * h[static_cast<std::size_t>(k) + 50] * std::cos(2 * pi * f * k);
    return a;
  }

  // The largest error of each alternation, weighted, over both bands from a dense grid.
  std::vector<double> ripples() const {
    std::vector<double> found;
    double last = 0;
    for (std::size_t b = 0; b < 2; ++b) {
      constexpr int kSteps = 200000;
      for (int i = 0; i <= kSteps; ++i) {
        const double f = std::lerp(bands[2 * b], bands[2 * b + 1], static_cast<double>(i) / kSteps);
        const double e = weight[b] * (desired[b] - response(f));
        if (found.empty() || (e > 0) != (last > 0)) found.push_back(0);
        found.back() = std::max(found.back(), std::fabs(e));
        last = e;
      }
    }
    return found;
  }
};

// The alternation theorem: 52 errors of alternating sign and the same size prove that no filter of 101 taps is better.
// Returns how far they are from the same size.
double low_pass_error(const Library& library, Timer& timer) {
  LowPass filter;
  if (filter.design(library, timer) != 0) return 1;
  const std::vector<double> ripples = filter.ripples();
  const auto [least, most] = std::minmax_element(ripples.begin(), ripples.end());
  std::printf("  (pass band within %.6f or %.3f dB, stop band below %.6f or %.2f dB, %d alternations)\n", *most,
              20 * std::log10(1 + *most), *most / 10, 20 * std::log10(*most / 10), static_cast<int>(ripples.size()));
  return ripples.size() >= 52 ? 1 - *least / *most : 1;
}

// The alternation of a long filter takes long to check; what is checked is that it converged and that its taps sum to
// 1, the response at frequency 0, within the ripple.
double long_filter_error(const Library& library, Timer& timer) {
  const int32_t taps = 2001, band_count = 2, multiband = 1, by_default = 0;
  const double bands[] = {0, 0.1, 0.103, 0.5}, desired[] = {1, 0}, weight[] = {1, 1};
  std::vector<double> h(2001);
  int32_t ierr = -1;
  timer.time([&] {
    library.REMEZ(h.data(), &taps, &band_count, bands, desired, weight, &multiband, &by_default, &by_default, &ierr);
  });
  double sum = 0;
  for (const double v : h) sum += v;
  return ierr == 0 ? std::fabs(sum - 1) : 1;
}

// Wolf's sunspot numbers of the years 1770 to 1869.
constexpr int kYears = 100;
constexpr int kSunspots[kYears] = {
    101, 82, 66, 35,  31, 7,  20, 92, 154, 125, 85, 68, 38, 23, 10, 24, 83,  132, 131, 118, 90, 67, 60, 47, 41,
    21,  16, 6,  4,   7,  14, 34, 45, 43,  48,  42, 28, 10, 8,  2,  0,  1,   5,   12,  14,  35, 46, 41, 30, 24,
    16,  7,  4,  2,   8,  17, 36, 50, 62,  67,  71, 48, 28, 8,  13, 57, 122, 138, 103, 86,  63, 37, 24, 11, 15,
    40,  62, 98, 124, 96, 66, 64, 54, 39,  21,  7,  4,  23, 55, 94, 96, 77,  59,  44,  47,  30, 16, 7,  37, 74};

std::vector<float> autocovariance(int lags) {
  double mean = 0;
  for (const int v : kSunspots) mean += v / static_cast<double>(kYears);
  std::vector<float> gamma;
  for (int k = 0; k <= lags; ++k) {
    double sum = 0;
    for (int t = 0; t + k < kYears; ++t) sum += (kSunspots[t] - mean) * (kSunspots[t + k] - mean);
    gamma.push_back(static_cast<float>(sum / kYears));
  }
  return gamma;
}

// The Yule-Walker equations of an autoregression: a symmetric Toeplitz system of autocovariances.
std::vector<float> autoregression(const Library& library, const std::vector<float>& gamma, Timer& timer) {
  const auto order = static_cast<int32_t>(gamma.size()) - 1;
  std::vector<float> phi(gamma.size() - 1), c1(gamma.size()), c2(gamma.size());
  // First row gamma(0), ...; first column and right-hand side are the same array from its second element on.
  timer.time([&] {
    library.TSLS1_Idx(gamma.data(), 0, gamma.data(), 1, gamma.data(), 1, phi.data(), 0, c1.data(), 0, c2.data(), 0,
                      &order);
  });
  return phi;
}

// P. J. Brockwell, R. A. Davis, Time Series: Theory and Methods, 8.2: 1.318 and -0.634.
double published_autoregression_error(const Library& library, Timer& timer) {
  const std::vector<float> phi = autoregression(library, autocovariance(2), timer);
  return std::max(std::fabs(static_cast<double>(phi[0]) - 1.318), std::fabs(static_cast<double>(phi[1]) + 0.634));
}

double autoregression_residual(const Library& library, int order, Timer& timer) {
  const std::vector<float> gamma = autocovariance(order);
  const std::vector<float> phi = autoregression(library, gamma, timer);
  double worst = 0;
  for (int i = 0; i < order; ++i) {
    double r = static_cast<double>(gamma[static_cast<std::size_t>(i) + 1]);
    for (int j = 0; j < order; ++j) {
      r -= static_cast<double>(gamma[static_cast<std::size_t>(std::abs(i - j))]) *
           static_cast<double>(phi[static_cast<std::size_t>(j)]);
    }
    worst = std::max(worst, std::fabs(r));
  }
  return worst / static_cast<double>(gamma[0]);
}

}  // namespace

void signal_rows(const Library& library, Report& report) {
  constexpr double kUnitRoundoff = 6e-8;
  report.heading("Signal design and Toeplitz systems");
  report.row("equiripple low-pass by sREMEZ_Idx, alternation", "101 taps", 1e-6,
             [&](Timer& timer) { return low_pass_error(library, timer); });
  report.row("equiripple low-pass by REMEZ, gain at frequency 0", "2001 taps", 2e-3,
             [&](Timer& timer) { return long_filter_error(library, timer); });
  report.row("autoregression of sunspots by TSLS1_Idx, published", "order 2", 5e-4,
             [&](Timer& timer) { return published_autoregression_error(library, timer); });
  report.row("the same, residual", "order 40", 4 * kUnitRoundoff,
             [&](Timer& timer) { return autoregression_residual(library, 40, timer); });
}

}  // namespace demo
