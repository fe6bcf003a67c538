// Bessel and Airy functions: published zeros, and a field that solves the Helmholtz equation.
#include <cmath>
#include <complex>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

using Complex = std::complex<double>;

constexpr double kUnitRoundoff = 1.1e-16;

// Newton's method from a rough start; `step` returns f(x) / f'(x).
template <class Step>
double zero_near(double x, const Step& step) {
  for (int i = 0; i < 20; ++i) x -= step(x);
  return x;
}

// Abramowitz & Stegun, table 9.5: the first zeros of J0.
double zeros_of_j0(const Library& library, Timer& timer) {
  const double published[] = {2.404825557695773, 5.520078110286311, 8.653727912911013, 11.79153443901428,
                              14.93091770848779};
  double worst = 0;
  for (const double expected : published) {
    const double found = zero_near(std::round(expected * 10) / 10, [&](double x) {
      const quorin_double_complex z{x, 0};
      const double order = 0;
      const int32_t kode = 1, n = 2;
      quorin_double_complex values[2];
      int32_t nz = 0, ierr = 0;
      timer.time([&] { library.CBESJ(&z, &order, &kode, &n, values, &nz, &ierr); });
      return -values[0].re / values[1].re;  // J0' = -J1
    });
    worst = std::fmax(worst, std::fabs(found / expected - 1));
  }
  return worst;
}

// Abramowitz & Stegun, table 10.13, and DLMF table 9.9.1: the first zeros of Ai.
double zeros_of_ai(const Library& library, Timer& timer) {
  const double published[] = {-2.338107410459767, -4.087949444130971, -5.520559828095551, -6.786708090071759,
                              -7.944133587120853};
  double worst = 0;
  for (const double expected : published) {
    const double found = zero_near(std::round(expected * 10) / 10, [&](double x) {
      const quorin_double_complex z{x, 0};
      quorin_double_complex values[2];
      const int32_t kode = 1;
      int32_t nz = 0, ierr = 0;
      timer.time([&] {
        for (const int32_t id : {0, 1}) library.CAIRY(&z, &id, &kode, &values[id], &nz, &ierr);
      });
      return values[0].re / values[1].re;
    });
    worst = std::fmax(worst, std::fabs(found / expected - 1));
  }
  return worst;
}

// A wave from a line source, u = H1_0(k r), in a lossy medium (k complex), seen from another centre by Graf's addition
// theorem: H1_0(k |x - s|) = sum_m J_m(k |x|) H1_m(k |s|) e^{i m angle}, for |x| < |s|.
double hankel_field(const Library& library, int size, Timer& timer) {
  constexpr int32_t kTerms = 90;
  const Complex k{2.0, 0.05};
  const double source = 12.0, zero = 0;
  const int32_t kode = 1, kind = 1, one = 1;
  int32_t nz = 0, ierr = 0;
  std::vector<quorin_double_complex> h(kTerms), j(kTerms);
  const Complex ks = k * source;
  const quorin_double_complex at_source{ks.real(), ks.imag()};
  timer.time([&] { library.CBESH(&at_source, &zero, &kode, &kind, &kTerms, h.data(), &nz, &ierr); });
  double worst = 0;
  for (int a = 0; a < size; ++a) {
    for (int b = 0; b < size; ++b) {
      const double x = 10.0 * (a + 0.5) / size - 5.0, y = 10.0 * (b + 0.5) / size - 5.0;
      const double r = std::hypot(x, y), angle = std::atan2(y, x);
      const Complex kr = k * r, direct_argument = k * std::hypot(x - source, y);
      const quorin_double_complex inner{kr.real(), kr.imag()};
      const quorin_double_complex outer{direct_argument.real(), direct_argument.imag()};
      quorin_double_complex direct{};
      timer.time([&] {
        library.CBESJ(&inner, &zero, &kode, &kTerms, j.data(), &nz, &ierr);
        library.CBESH(&outer, &zero, &kode, &kind, &one, &direct, &nz, &ierr);
      });
      Complex sum = 0;
      for (std::size_t m = kTerms; m-- > 0;) {
        const double weight = m == 0 ? 1 : 2 * std::cos(static_cast<double>(m) * angle);
        sum += weight * Complex{j[m].re, j[m].im} * Complex{h[m].re, h[m].im};
      }
      const Complex expected{direct.re, direct.im};
      worst = std::fmax(worst, std::abs(sum - expected) / std::abs(expected));
    }
  }
  return worst;
}

}  // namespace

void amos_rows(const Library& library, Report& report) {
  report.heading("Bessel and Airy functions");
  report.row("zeros of J0 against published ones", "5 zeros", 8 * kUnitRoundoff,
             [&](Timer& timer) { return zeros_of_j0(library, timer); });
  report.row("zeros of Ai against published ones", "5 zeros", 8 * kUnitRoundoff,
             [&](Timer& timer) { return zeros_of_ai(library, timer); });
  report.row("H1 field of a line source, Graf's addition theorem", "40 x 40, 90 orders", 1e-12,
             [&](Timer& timer) { return hankel_field(library, 40, timer); });
}

}  // namespace demo
