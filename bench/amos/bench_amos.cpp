// Evaluations per second of the Bessel and Airy functions by region, and on the real axis against GSL and Boost.Math.
//
// Each figure is the median of rounds in which the libraries take turns; the last columns are ratios of medians.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstdio>
#include <functional>
#include <vector>

#include "quorin/amos.h"

#if defined(QUORIN_BENCH_GSL)
#include <gsl/gsl_errno.h>
#include <gsl/gsl_sf_airy.h>
#include <gsl/gsl_sf_bessel.h>
#endif
#if defined(QUORIN_BENCH_BOOST)
#include <boost/math/special_functions/airy.hpp>
#include <boost/math/special_functions/bessel.hpp>
#endif

namespace {

using Function = std::function<double(double)>;
using Bessel = decltype(CBESJ);

constexpr int kRounds = 15;
constexpr int kCalls = 400;

double sink = 0;

// Nanoseconds per call; the arguments differ a little from each other.
double time_once(const Function& f, double x) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < kCalls; ++i) sink += f(x * (1 + 1e-5 * i));
  return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / kCalls;
}

std::vector<double> medians(const std::vector<Function>& functions, double x) {
  std::vector<std::vector<double>> times(functions.size());
  for (int round = 0; round < kRounds; ++round) {
    for (std::size_t i = 0; i < functions.size(); ++i) times[i].push_back(time_once(functions[i], x));
  }
  std::vector<double> result;
  for (auto& t : times) {
    std::nth_element(t.begin(), t.begin() + kRounds / 2, t.end());
    result.push_back(t[kRounds / 2]);
  }
  return result;
}

Function on_ray(Bessel* f, double nu, std::complex<double> direction) {
  return [=](double size) {
    const quorin_double_complex z{size * direction.real(), size * direction.imag()};
    const int32_t kode = 2, n = 1;
    quorin_double_complex cy{};
    int32_t nz = 0, ierr = 0;
    f(&z, &nu, &kode, &n, &cy, &nz, &ierr);
    return cy.re;
  };
}

double neumann(double nu, double x) {
  const quorin_double_complex z{x, 0};
  const int32_t kode = 1, n = 1;
  quorin_double_complex cy{}, work{};
  int32_t nz = 0, ierr = 0;
  CBESY(&z, &nu, &kode, &n, &cy, &nz, &work, &ierr);
  return cy.re;
}

double airy(double x) {
  const quorin_double_complex z{x, 0};
  const int32_t id = 0, kode = 1;
  quorin_double_complex ai{};
  int32_t nz = 0, ierr = 0;
  CAIRY(&z, &id, &kode, &ai, &nz, &ierr);
  return ai.re;
}

struct Region {
  const char* name;
  double nu;
  double size;
};

constexpr Region kRegions[] = {{"power series", 0.3, 1.0},
                               {"moderate argument", 2.3, 10.0},
                               {"large argument", 0.3, 200.0},
                               {"recurrence from large order", 40.3, 60.0},
                               {"large order", 300.3, 150.0},
                               {"turning point", 300.3, 300.0},
                               {"large order, oscillating", 300.3, 900.0}};

void complex_plane() {
  std::printf("\nThousand evaluations per second, n = 1, arg z = 0.5\n%-28s %10s %10s\n", "region", "J", "K");
  for (const Region& r : kRegions) {
    const std::complex<double> direction = std::polar(1.0, 0.5);
    const auto t = medians({on_ray(CBESJ, r.nu, direction), on_ray(CBESK, r.nu, direction)}, r.size);
    std::printf("%-28s %10.0f %10.0f\n", r.name, 1e6 / t[0], 1e6 / t[1]);
  }
}

// One row: our time, and the peers' times divided by it.
void row(const char* name, const char* function, const std::vector<Function>& functions, double x) {
  const auto t = medians(functions, x);
  std::printf("%-28s %-3s %9.0f", name, function, t[0]);
  for (std::size_t i = 1; i < t.size(); ++i) std::printf(" %9.2f", t[i] / t[0]);
  std::printf("\n");
}

void real_axis() {
  std::printf("\nReal axis: nanoseconds per value, and the time of the peers over ours\n%-28s %-3s %9s", "region", "f",
              "ours");
#if defined(QUORIN_BENCH_GSL)
  gsl_set_error_handler_off();
  std::printf(" %9s", "GSL");
#endif
#if defined(QUORIN_BENCH_BOOST)
  std::printf(" %9s", "Boost");
#endif
  std::printf("\n");
  for (const Region& r : kRegions) {
    const double nu = r.nu;
    std::vector<Function> j{on_ray(CBESJ, nu, 1.0)}, y{[nu](double x) { return neumann(nu, x); }};
#if defined(QUORIN_BENCH_GSL)
    j.emplace_back([nu](double x) { return gsl_sf_bessel_Jnu(nu, x); });
    y.emplace_back([nu](double x) { return gsl_sf_bessel_Ynu(nu, x); });
#endif
#if defined(QUORIN_BENCH_BOOST)
    j.emplace_back([nu](double x) { return boost::math::cyl_bessel_j(nu, x); });
    y.emplace_back([nu](double x) { return boost::math::cyl_neumann(nu, x); });
#endif
    row(r.name, "J", j, r.size);
    row(r.name, "Y", y, r.size);
  }
  for (const double x : {0.5, 4.0, -5.0, 30.0, -60.0}) {
    std::vector<Function> f{airy};
#if defined(QUORIN_BENCH_GSL)
    f.emplace_back([](double t) { return gsl_sf_airy_Ai(t, GSL_PREC_DOUBLE); });
#endif
#if defined(QUORIN_BENCH_BOOST)
    f.emplace_back([](double t) { return boost::math::airy_ai(t); });
#endif
    char name[32];
    std::snprintf(name, sizeof name, "x = %g", x);
    row(name, "Ai", f, x);
  }
}

}  // namespace

int main() {
  complex_plane();
  real_axis();
  return std::isnan(sink) ? 1 : 0;
}
