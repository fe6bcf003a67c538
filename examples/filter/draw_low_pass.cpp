// Draws docs/figures/low_pass_101.svg: the response of an equiripple low-pass filter, and its ripple in the pass band.
//
//   quorin_draw_low_pass > docs/figures/low_pass_101.svg
#include <cmath>
#include <cstdio>
#include <numbers>
#include <string>
#include <vector>

#include "examples/host/library.hpp"

namespace {

double response(const std::vector<double>& h, double f) {
  const std::size_t middle = h.size() / 2;
  double a = h[middle];
  for (std::size_t k = 1; k <= middle; ++k) {
    a += 2 * h[middle + k] * std::cos(2 * std::numbers::pi * f * static_cast<double>(k));
  }
  return a;
}

// A frame with axes; values[i] is drawn at x = i / (count - 1) of its width, clipped to [low, high].
struct Plot {
  double left, top, width, height;
  double low, high;

  double y(double value) const { return top + height * (high - std::fmin(std::fmax(value, low), high)) / (high - low); }

  void line(const std::vector<double>& values) const {
    std::printf("<polyline fill='none' stroke='#1f5fa8' stroke-width='1.2' points='");
    for (std::size_t i = 0; i < values.size(); ++i) {
      const double x = left + width * static_cast<double>(i) / static_cast<double>(values.size() - 1);
      std::printf("%.2f,%.2f ", x, y(values[i]));
    }
    std::printf("'/>\n");
  }
  void level(double value, const char* label) const {
    std::printf("<line x1='%g' x2='%g' y1='%.2f' y2='%.2f' stroke='#ccc'/>\n", left, left + width, y(value), y(value));
    std::printf("<text x='%g' y='%.2f' text-anchor='end'>%s</text>\n", left - 6, y(value) + 4, label);
  }
  void frequency(double place, const char* label) const {
    const double x = left + width * place;
    std::printf("<line x1='%.2f' x2='%.2f' y1='%g' y2='%g' stroke='#ddd'/>\n", x, x, top, top + height);
    std::printf("<text x='%.2f' y='%g' text-anchor='middle'>%s</text>\n", x, top + height + 16, label);
  }
  void title(const char* text) const { std::printf("<text x='%g' y='%g'>%s</text>\n", left, top - 8, text); }
};

}  // namespace

int main() {
  const demo::Library library = demo::load_library();
  const int32_t taps = 101, band_count = 2, multiband = 1, by_default = 0;
  const double bands[] = {0, 0.1, 0.12, 0.5}, desired[] = {1, 0}, weight[] = {1, 10};
  std::vector<double> h(101);
  int32_t ierr = -1;
  library.REMEZ(h.data(), &taps, &band_count, bands, desired, weight, &multiband, &by_default, &by_default, &ierr);
  if (ierr != 0) return 1;

  std::vector<double> decibels, pass_band;
  for (int i = 0; i <= 1500; ++i) {
    decibels.push_back(20 * std::log10(std::fabs(response(h, 0.5 * i / 1500)) + 1e-12));
    pass_band.push_back(response(h, 0.1 * i / 1500));
  }
  std::printf(
      "<svg xmlns='http://www.w3.org/2000/svg' width='760' height='520' font-family='sans-serif' font-size='12'>\n");
  std::printf("<rect width='760' height='520' fill='white'/>\n");
  const Plot whole{60, 40, 680, 220, -90, 10};
  whole.title("101 taps, pass band to 0.1, stop band from 0.12, errors weighted 1 : 10 -- response in dB");
  for (const int db : {0, -20, -40, -60, -80}) whole.level(db, std::to_string(db).c_str());
  for (const double f : {0.0, 0.1, 0.12, 0.2, 0.3, 0.4, 0.5}) {
    whole.frequency(f / 0.5, f == 0.12 ? "" : std::to_string(f).substr(0, 3).c_str());
  }
  whole.line(decibels);
  const Plot ripple{60, 320, 680, 160, 0.96, 1.04};
  ripple.title("Pass band");
  for (const double a : {0.96, 0.98, 1.0, 1.02, 1.04}) ripple.level(a, std::to_string(a).substr(0, 4).c_str());
  for (int i = 0; i <= 10; i += 2) ripple.frequency(i / 10.0, std::to_string(i / 100.0).substr(0, 4).c_str());
  ripple.line(pass_band);
  std::printf("</svg>\n");
}
