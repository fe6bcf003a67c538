// Sparse iterative solvers through their index forms, or by name where they have none: the host hands over triads.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

// Triads, one-based.
struct Triads {
  int32_t n = 0;
  std::vector<int32_t> rows, columns;
  std::vector<float> values;
  void add(int32_t row, int32_t column, double value) {
    rows.push_back(row);
    columns.push_back(column);
    values.push_back(static_cast<float>(value));
  }
};

// Five-point differences on k x k inner points of the unit square: -laplace u + wind (u_x + u_y / 2), upwind.
Triads grid(int32_t k, double wind) {
  Triads a;
  a.n = k * k;
  const double w = wind / (k + 1);
  for (int32_t row = 1; row <= a.n; ++row) {
    const int32_t i = (row - 1) / k, j = (row - 1) % k;
    if (i > 0) a.add(row, row - k, -1 - w / 2);
    if (j > 0) a.add(row, row - 1, -1 - w);
    a.add(row, row, 4 + 1.5 * w);
    if (j + 1 < k) a.add(row, row + 1, -1);
    if (i + 1 < k) a.add(row, row + k, -1);
  }
  return a;
}

// ||b - A x|| / ||b|| in double precision.
double residual(const Triads& a, const std::vector<float>& b, const std::vector<float>& x) {
  std::vector<double> r(b.begin(), b.end());
  for (std::size_t k = 0; k < a.values.size(); ++k) {
    const auto row = static_cast<std::size_t>(a.rows.data()[k] - 1);
    const auto column = static_cast<std::size_t>(a.columns.data()[k] - 1);
    r.data()[row] -= static_cast<double>(a.values.data()[k]) * x.data()[column];
  }
  double squares = 0, whole = 0;
  for (std::size_t i = 0; i < b.size(); ++i) {
    squares += r.data()[i] * r.data()[i];
    whole += static_cast<double>(b.data()[i]) * b.data()[i];
  }
  return std::sqrt(squares / whole);
}

// One solver: one of its forms, with or without an argument NSAVE.
struct Solver {
  const char* name;
  decltype(Library::SSDCG) plain = nullptr;
  decltype(Library::SSGS_Idx) indexed = nullptr;
  decltype(Library::SSDGMR) plain_with_nsave = nullptr;
  decltype(Library::SSLUGM_Idx) indexed_with_nsave = nullptr;
};

struct Solution {
  double residual = 0;
  int32_t iterations = 0;
};

// Arrays start at element kOffset, as a host's may that keeps several things in one array.
constexpr int32_t kOffset = 3;
constexpr int32_t kDirections = 20;

template <class T>
std::vector<T> shifted(const std::vector<T>& x, std::size_t length) {
  std::vector<T> y(static_cast<std::size_t>(kOffset) + length);
  for (std::size_t i = 0; i < x.size(); ++i) y.data()[i + kOffset] = x.data()[i];
  return y;
}

Solution solve(const Solver& solver, const Triads& a, Timer& timer) {
  const auto n = static_cast<std::size_t>(a.n), entries = a.values.size();
  const std::vector<float> ones(n, 1.0F);
  std::vector<float> b = shifted(ones, n), x = shifted<float>({}, n), values = shifted(a.values, entries);
  std::vector<int32_t> rows = shifted(a.rows, entries), columns = shifted(a.columns, entries + 2);
  const auto directions = static_cast<std::size_t>(kDirections);
  std::vector<float> rwork = shifted<float>({}, entries + 8 * n + directions * (3 * n + directions + 4));
  std::vector<int32_t> iwork = shifted<int32_t>({}, entries + 4 * n + 32);
  const auto nelt = static_cast<int32_t>(entries), lenw = static_cast<int32_t>(rwork.size()) - kOffset;
  const auto leniw = static_cast<int32_t>(iwork.size()) - kOffset;
  const int32_t isym = 0, itol = 1, itmax = 5000, iunit = 0, k = kOffset;
  float tol = 1e-3F, err = 0;
  int32_t iter = 0, ierr = -1;
  timer.time([&] {
    if (solver.indexed_with_nsave != nullptr) {
      solver.indexed_with_nsave(&a.n, b.data(), k, x.data(), k, &nelt, rows.data(), k, columns.data(), k, values.data(),
                                k, &isym, &kDirections, &itol, &tol, &itmax, &iter, &err, &ierr, &iunit, rwork.data(),
                                k, &lenw, iwork.data(), k, &leniw);
    } else if (solver.indexed != nullptr) {
      solver.indexed(&a.n, b.data(), k, x.data(), k, &nelt, rows.data(), k, columns.data(), k, values.data(), k, &isym,
                     &itol, &tol, &itmax, &iter, &err, &ierr, &iunit, rwork.data(), k, &lenw, iwork.data(), k, &leniw);
    } else if (solver.plain_with_nsave != nullptr) {
      solver.plain_with_nsave(&a.n, b.data() + k, x.data() + k, &nelt, rows.data() + k, columns.data() + k,
                              values.data() + k, &isym, &kDirections, &itol, &tol, &itmax, &iter, &err, &ierr, &iunit,
                              rwork.data() + k, &lenw, iwork.data() + k, &leniw);
    } else {
      solver.plain(&a.n, b.data() + k, x.data() + k, &nelt, rows.data() + k, columns.data() + k, values.data() + k,
                   &isym, &itol, &tol, &itmax, &iter, &err, &ierr, &iunit, rwork.data() + k, &lenw, iwork.data() + k,
                   &leniw);
    }
  });
  const std::vector<float> result(x.begin() + kOffset, x.end());
  return {ierr == 0 ? residual(a, ones, result) : HUGE_VAL, iter};
}

}  // namespace

void slap_rows(const Library& library, Report& report) {
  report.heading("SLAP: sparse iterative solvers in single precision (the error is ||b - A x|| / ||b||)");
  const Triads poisson = grid(100, 0), wind = grid(100, 200);
  const auto row = [&](const Solver& solver, const Triads& a, const char* problem) {
    // The recurrence of conjugate gradients drifts from the residual that is shown here.
    constexpr double kBound = 2e-3;
    Timer untimed;
    const int32_t iterations = solve(solver, a, untimed).iterations;
    const std::string size = "100x100 grid, " + std::to_string(iterations) + " it.";
    report.row(std::string(solver.name) + ", " + problem, size, kBound,
               [&](Timer& timer) { return solve(solver, a, timer).residual; });
  };
  const auto plain = [](const char* name, auto form) { return Solver{.name = name, .plain = form}; };
  const auto indexed = [](const char* name, auto form) { return Solver{.name = name, .indexed = form}; };
  const auto gmres = Solver{.name = "SSLUGM", .indexed_with_nsave = library.SSLUGM_Idx};
  row(plain("SSDCG", library.SSDCG), poisson, "Poisson");
  row(indexed("SSICCG", library.SSICCG_Idx), poisson, "Poisson");
  const Solver general[] = {plain("SSDBCG", library.SSDBCG),
                            indexed("SSLUBC", library.SSLUBC_Idx),
                            plain("SSDCGS", library.SSDCGS),
                            indexed("SSLUCS", library.SSLUCS_Idx),
                            {.name = "SSDGMR", .plain_with_nsave = library.SSDGMR},
                            gmres,
                            {.name = "SSDOMN", .plain_with_nsave = library.SSDOMN},
                            {.name = "SSLUOM", .indexed_with_nsave = library.SSLUOM_Idx},
                            plain("SSDCGN", library.SSDCGN),
                            indexed("SSLUCN", library.SSLUCN_Idx),
                            indexed("SSJAC", library.SSJAC_Idx),
                            indexed("SSGS", library.SSGS_Idx),
                            indexed("SSILUR", library.SSILUR_Idx)};
  for (const Solver& solver : general) row(solver, wind, "convection and diffusion");
  row(indexed("SSLUBC", library.SSLUBC_Idx), poisson, "Poisson");
  row(gmres, poisson, "Poisson");
}

}  // namespace demo
