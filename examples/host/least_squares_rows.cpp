// Nonlinear least squares: regressions of NIST with certified parameters, with and without bounds, and packing.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

using Reals = std::vector<double>;
using Floats = std::vector<float>;

constexpr double kNever = std::numeric_limits<double>::infinity();

// y(x) for the parameters b.
using Model = double (*)(const Reals& b, double x);

double misra1a(const Reals& b, double x) { return b[0] * (1 - std::exp(-b[1] * x)); }

double hahn1(const Reals& b, double x) {
  return (b[0] + x * (b[1] + x * (b[2] + x * b[3]))) / (1 + x * (b[4] + x * (b[5] + x * b[6])));
}

struct Regression {
  Regression(const std::string& name, Model m) : model(m) {
    std::ifstream in(std::string(QUORIN_NIST_DIR) + "/" + name + ".dat");
    std::size_t n = 0, count = 0, width = 0;
    double sum = 0;
    in >> n >> count >> width;
    Reals far(n);
    start.resize(n);
    certified.resize(n);
    for (double& b : far) in >> b;
    for (double& b : start) in >> b;
    for (double& b : certified) in >> b;
    in >> sum;
    for (double value = 0; in >> value;) (y.size() == x.size() ? y : x).push_back(value);
  }

  // Parameters of the fit are relative to the start, so that one step of differences suits them all.
  Reals parameters(const float* relative) const {
    Reals b = start;
    for (double& value : b) value *= *relative++;
    return b;
  }

  Model model;
  Reals start, certified, x, y;
};

// sjacobi calls a function that has no way to be given data.
const Regression* current = nullptr;

void residual(int32_t* m, int32_t*, float* relative, float* f) {
  const Reals b = current->parameters(relative);
  for (int32_t i = 0; i < *m; ++i) {
    const auto k = static_cast<std::size_t>(i);
    f[i] = static_cast<float>(current->y[k] - current->model(b, current->x[k]));
  }
}

// The fitted parameters; empty if a call fails. With `upper`, the first one is bounded. Arrays lie behind each other in
// one, as in hosts that have no pointers into arrays.
Reals fit(const Library& library, const Regression& regression, Timer& timer, const double* upper = nullptr) {
  current = &regression;
  const auto n = static_cast<int32_t>(regression.start.size()), m = static_cast<int32_t>(regression.y.size());
  const int32_t f_at = n, jacobian_at = n + m, limit = 500, step_limit = 50;
  const float first_radius = 0, difference = 1.0F / 256;
  const std::array<float, 6> eps = {};
  Floats memory(static_cast<std::size_t>(n + m + m * n), 1.0F);
  Floats bounds(static_cast<std::size_t>(2 * n), 1e6F);
  std::fill_n(bounds.begin(), n, -1e6F);
  if (upper != nullptr) bounds[regression.start.size()] = static_cast<float>(*upper / regression.start[0]);
  float* const base = memory.data();

  void* handle = nullptr;
  const int32_t status =
      upper == nullptr
          ? library.strnlsp_init_Idx(&handle, &n, &m, base, 0, eps.data(), 0, &limit, &step_limit, &first_radius)
          : library.strnlspbc_init_Idx(&handle, &n, &m, base, 0, bounds.data(), 0, bounds.data(), n, eps.data(), 0,
                                       &limit, &step_limit, &first_radius);
  if (status != 1501) return {};
  for (int32_t request = 0; request >= 0;) {
    const auto solve = upper == nullptr ? library.strnlsp_solve_Idx : library.strnlspbc_solve_Idx;
    timer.time([&] { solve(&handle, base, f_at, base, jacobian_at, &request); });
    if (request == 1) {
      int32_t rows = m, columns = n;
      residual(&rows, &columns, base, base + f_at);
    } else if (request == 2) {
      library.sjacobi_Idx(residual, &n, &m, base, jacobian_at, base, 0, &difference, 0);
    }
  }
  (upper == nullptr ? library.strnlsp_delete_Idx : library.strnlspbc_delete_Idx)(&handle);
  return regression.parameters(base);
}

double worst_deviation(const Reals& found, const Reals& certified) {
  if (found.size() != certified.size() || found.empty()) return kNever;
  double worst = 0;
  for (std::size_t j = 0; j < found.size(); ++j) {
    worst = std::fmax(worst, std::fabs(found[j] / certified[j] - 1));
  }
  return worst;
}

// Misra1a with the first parameter at a bound that is too low: for the second one, the slope of the sum of squares
// along it is zero; returned relative to what the residual and its derivative have in size.
double slope_at_bound(const Library& library, const Regression& regression, Timer& timer) {
  const double upper = 230;
  const Reals b = fit(library, regression, timer, &upper);
  if (b.empty() || std::fabs(b[0] - upper) > 1e-4) return kNever;
  double product = 0, squares = 0, slopes = 0;
  for (std::size_t i = 0; i < regression.x.size(); ++i) {
    const double r = regression.y[i] - misra1a(b, regression.x[i]);
    const double slope = b[0] * regression.x[i] * std::exp(-b[1] * regression.x[i]);
    product += r * slope;
    squares += r * r;
    slopes += slope * slope;
  }
  return std::fabs(product) / std::sqrt(squares * slopes);
}

// Takes every third element out by its mask and puts it back; the share of elements that are not as they were.
double pack_and_unpack(const Library& library, Timer& timer) {
  const int32_t n = 1000000;
  Floats a(static_cast<std::size_t>(n)), packed(a.size() / 3 + 1), back(a.size() + 1);
  std::vector<int32_t> mask(a.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    a[i] = static_cast<float>(i);
    mask[i] = i % 3 == 0 ? -1 : 0;
  }
  timer.time([&] {
    library.vspackm(&n, a.data(), mask.data(), packed.data());
    library.vsunpackm_Idx(&n, packed.data(), 0, back.data(), 1, mask.data(), 0);
  });
  double wrong = 0;
  for (std::size_t i = 0; i < a.size(); ++i) wrong += back[i + 1] == (i % 3 == 0 ? a[i] : 0.0F) ? 0 : 1;
  return wrong / n;
}

}  // namespace

void least_squares_rows(const Library& library, Report& report) {
  report.heading("Nonlinear least squares (error: worst relative deviation from NIST's certified parameters)");
  const Regression misra("Misra1a", misra1a), hahn("Hahn1", hahn1);
  report.row("Misra1a, derivatives by sjacobi", "14 points, 2 param.", 1e-5,
             [&](Timer& timer) { return worst_deviation(fit(library, misra, timer), misra.certified); });
  report.row("Hahn1, derivatives by sjacobi", "236 points, 7 param.", 1e-3,
             [&](Timer& timer) { return worst_deviation(fit(library, hahn, timer), hahn.certified); });
  report.row("Misra1a with a bound: slope along the free one", "14 points, 2 param.", 1e-3,
             [&](Timer& timer) { return slope_at_bound(library, misra, timer); });
  report.row("Pack and unpack by a mask", "1000000", 0, [&](Timer& timer) { return pack_and_unpack(library, timer); });
}

}  // namespace demo
