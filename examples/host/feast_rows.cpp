// FEAST: eigenvalues in an interval, of a plate that vibrates and of electrons on a lattice in a magnetic field.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity(), kPi = 3.14159265358979323846;

// The upper triangle in compressed rows, one-based.
template <class T>
struct Rows {
  std::vector<int32_t> starts{1}, columns;
  std::vector<T> values;

  void add(int32_t column, T value) {
    columns.push_back(column + 1);
    values.push_back(value);
  }
  void end_row() { starts.push_back(static_cast<int32_t>(columns.size()) + 1); }
};

struct Settings {
  explicit Settings(const Library& library) : fpm(128) { library.feastinit_32f(fpm.data()); }
  std::vector<int32_t> fpm;
  char uplo = 'U';
};

// A simply supported square plate, k x k points: the square of the five-point Laplacian, and the mass of bilinear
// elements times 36, all in whole numbers.
struct Plate {
  explicit Plate(int32_t points) : k(points) {
    for (int32_t i = 0; i < k; ++i) {
      for (int32_t j = 0; j < k; ++j) {
        for (int32_t di = 0; di <= 2; ++di) {
          for (int32_t dj = di == 0 ? 0 : -2; dj <= 2; ++dj) add_neighbour(i, j, di, dj);
        }
        stiffness.end_row();
        mass.end_row();
      }
    }
  }
  void add_neighbour(int32_t i, int32_t j, int32_t di, int32_t dj) {
    if (i + di >= k || j + dj < 0 || j + dj >= k) return;
    const int32_t column = (i + di) * k + j + dj, far = di + std::abs(dj);
    if (far == 0) {
      const int sides = (i == 0) + (i == k - 1) + (j == 0) + (j == k - 1);
      stiffness.add(column, static_cast<float>(20 - sides));
    } else if (far <= 2) {
      const bool is_diagonal = di == 1 && far == 2;
      stiffness.add(column, far == 1 ? -8.0F : is_diagonal ? 2.0F : 1.0F);
    }
    if (di <= 1 && std::abs(dj) <= 1) mass.add(column, far == 0 ? 16.0F : far == 1 ? 4.0F : 1.0F);
  }
  // Stiffness and mass have the same modes, products of sines.
  double frequency(int32_t a, int32_t b) const {
    const double x = std::cos(kPi * a / (k + 1)), y = std::cos(kPi * b / (k + 1));
    const double laplacian = 4 - 2 * x - 2 * y;
    return laplacian * laplacian / ((4 + 2 * x) * (4 + 2 * y));
  }

  int32_t k;
  Rows<float> stiffness, mass;
};

// The lowest modes; the error relative to each.
double vibration_modes(const Library& library, int32_t points, Timer& timer) {
  const Plate plate(points);
  std::vector<double> exact;
  for (int32_t a = 1; a <= points; ++a) {
    for (int32_t b = 1; b <= points; ++b) exact.push_back(plate.frequency(a, b));
  }
  std::sort(exact.begin(), exact.end());
  constexpr std::size_t kModes = 20;
  Settings settings(library);
  const int32_t n = points * points;
  int32_t room = 40, found = 0, loops = 0, info = -1;
  const float low = 0, high = static_cast<float>((exact.data()[kModes - 1] + exact.data()[kModes]) / 2);
  float change = 0;
  std::vector<float> modes(40), residuals(40), shapes(40 * static_cast<std::size_t>(n));
  timer.time([&] {
    library.sfeast_scsrgv(&settings.uplo, &n, plate.stiffness.values.data(), plate.stiffness.starts.data(),
                          plate.stiffness.columns.data(), plate.mass.values.data(), plate.mass.starts.data(),
                          plate.mass.columns.data(), settings.fpm.data(), &change, &loops, &low, &high, &room,
                          modes.data(), shapes.data(), &found, residuals.data(), &info);
  });
  if (info != 0 || found != static_cast<int32_t>(kModes)) return kNever;
  double error = 0;
  for (std::size_t i = 0; i < kModes; ++i) {
    error = std::fmax(error, std::fabs(modes.data()[i] / exact.data()[i] - 1));
  }
  return error;
}

// Electrons on width x length sites; a round trip of a cell turns the phase by `flux`. Their inner states against
// those of LAPACK.
double inner_states(const Library& library, int32_t width, int32_t length, double flux, Timer& timer) {
  using Complex = std::complex<float>;
  const int32_t n = width * length;
  Rows<Complex> hops;
  std::vector<Complex> dense(static_cast<std::size_t>(n) * static_cast<std::size_t>(n));
  const auto hop = [&](int32_t from, int32_t to, Complex value) {
    hops.add(to, value);
    dense.data()[from + static_cast<std::ptrdiff_t>(to) * n] = value;
  };
  for (int32_t i = 0; i < length; ++i) {
    for (int32_t j = 0; j < width; ++j) {
      const int32_t site = i * width + j;
      if (j + 1 < width) hop(site, site + 1, Complex(std::polar(1.0, flux * i)));
      if (i + 1 < length) hop(site, site + width, 1.0F);
      hops.end_row();
    }
  }
  const auto as_c = [](Complex* x) { return reinterpret_cast<quorin_complex*>(x); };
  Settings settings(library);
  const char no_vectors = 'N', in_interval = 'V';
  const float low = -0.5F, high = 0.25F, precise = 0;
  const int32_t lwork = 64 * n, one = 1, none = 0;
  const std::size_t order = static_cast<std::size_t>(n);
  std::vector<Complex> work(64 * order), no_states(1);
  std::vector<float> expected(order), rwork(7 * order);
  std::vector<int32_t> iwork(5 * order), ifail(order);
  int32_t count = 0, info = -1;
  library.cheevx(&no_vectors, &in_interval, &settings.uplo, &n, as_c(dense.data()), &n, &low, &high, &none, &none,
                 &precise, &count, expected.data(), as_c(no_states.data()), &one, as_c(work.data()), &lwork,
                 rwork.data(), iwork.data(), ifail.data(), &info);
  if (info != 0 || count < 1) return kNever;
  expected.resize(static_cast<std::size_t>(count));

  int32_t room = static_cast<int32_t>(expected.size()) + 10, found = 0, loops = 0;
  float change = 0;
  std::vector<float> energies(static_cast<std::size_t>(room)), residuals(energies.size());
  std::vector<Complex> states(energies.size() * static_cast<std::size_t>(n));
  timer.time([&] {
    library.cfeast_hcsrev(&settings.uplo, &n, as_c(hops.values.data()), hops.starts.data(), hops.columns.data(),
                          settings.fpm.data(), &change, &loops, &low, &high, &room, energies.data(),
                          as_c(states.data()), &found, residuals.data(), &info);
  });
  if (info != 0 || found != static_cast<int32_t>(expected.size())) return kNever;
  double error = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    error = std::fmax(error, std::fabs(energies.data()[i] - expected.data()[i]));
  }
  return error;
}

}  // namespace

void feast_rows(const Library& library, Report& report) {
  report.heading("Eigenvalues in an interval (FEAST)");
  report.row("20 lowest vibrations of a plate, A x = lambda B x", "50x50 points", 1e-6,
             [&](Timer& timer) { return vibration_modes(library, 50, timer); });
  report.row("electrons in a magnetic field, inner states", "24x18 sites", 1e-5,
             [&](Timer& timer) { return inner_states(library, 24, 18, 2 * kPi / 7, timer); });
}

}  // namespace demo
