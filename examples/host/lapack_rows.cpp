// LAPACK through index forms: a fit with published coefficients, a table taken apart and put together again, and the
// vibrations of a structure.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <functional>
#include <limits>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

constexpr double kUnitRoundoff = 6e-8;
constexpr std::size_t kYears = 16, kColumns = 7;

// J. W. Longley, J. Am. Stat. Assoc. 62 (1967) 819: employment in the United States 1947 to 1962, then price deflator,
// gross national product, unemployed, armed forces, population, year. Columns nearly depend on each other.
constexpr std::array<std::array<double, kColumns>, kYears> kEconomy = {{
    {60323, 83.0, 234289, 2356, 1590, 107608, 1947},
    {61122, 88.5, 259426, 2325, 1456, 108632, 1948},
    {60171, 88.2, 258054, 3682, 1616, 109773, 1949},
    {61187, 89.5, 284599, 3351, 1650, 110929, 1950},
    {63221, 96.2, 328975, 2099, 3099, 112075, 1951},
    {63639, 98.1, 346999, 1932, 3594, 113270, 1952},
    {64989, 99.0, 365385, 1870, 3547, 115094, 1953},
    {63761, 100.0, 363112, 3578, 3350, 116219, 1954},
    {66019, 101.2, 397469, 2904, 3048, 117388, 1955},
    {67857, 104.6, 419180, 2822, 2857, 118734, 1956},
    {68169, 108.4, 442769, 2936, 2798, 120445, 1957},
    {66513, 110.8, 444546, 4681, 2637, 121950, 1958},
    {68655, 112.6, 482704, 3813, 2552, 123366, 1959},
    {69564, 114.2, 502601, 3931, 2514, 125368, 1960},
    {69331, 115.7, 518173, 4806, 2572, 127852, 1961},
    {70551, 116.9, 554894, 4007, 2827, 130081, 1962},
}};
// Certified by the Statistical Reference Datasets of NIST, for the six columns that explain employment.
constexpr std::array<double, 6> kCertified = {15.0618722713733,  -0.358191792925910E-01, -2.02022980381683,
                                              -1.03322686717359, -0.511041056535807E-01, 1829.15146461355};

// The table with each column's mean taken off, scaled to length 1; column-major.
struct Standardized {
  std::vector<float> values;
  std::vector<double> lengths;
};

Standardized standardized_economy() {
  Standardized table;
  for (std::size_t j = 0; j < kColumns; ++j) {
    double mean = 0, squares = 0;
    for (const auto& year : kEconomy) mean += year[j] / kYears;
    for (const auto& year : kEconomy) squares += std::pow(year[j] - mean, 2);
    table.lengths.push_back(std::sqrt(squares));
    for (const auto& year : kEconomy) {
      table.values.push_back(static_cast<float>((year[j] - mean) / table.lengths.back()));
    }
  }
  return table;
}

// Relative error of the coefficients, with the work space that the library asks for.
double fit_error(const Library& library, Timer& timer) {
  Standardized table = standardized_economy();
  const int32_t m = kYears, n = kColumns - 1, one = 1, query = -1;
  const float machine_precision = -1;
  // Employment is the right-hand side: the first column of the table. The others follow at index m.
  std::vector<float> singular_values(n), work(1);
  std::vector<int32_t> iwork(1);
  int32_t rank = 0, info = 0;
  const auto call = [&](int32_t lwork) {
    library.sgelsd_Idx(&m, &n, &one, table.values.data(), m, &m, table.values.data(), 0, &m, singular_values.data(), 0,
                       &machine_precision, &rank, work.data(), 0, &lwork, iwork.data(), 0, &info);
  };
  call(query);
  if (info != 0) return std::numeric_limits<double>::infinity();
  work.resize(static_cast<std::size_t>(work[0]));
  iwork.resize(static_cast<std::size_t>(iwork[0]));
  timer.time([&] { call(static_cast<int32_t>(work.size())); });
  if (info != 0 || rank != n) return std::numeric_limits<double>::infinity();
  double worst = 0;
  for (std::size_t i = 0; i < kCertified.size(); ++i) {
    const double coefficient = static_cast<double>(table.values[i]) * table.lengths[0] / table.lengths[i + 1];
    worst = std::max(worst, std::fabs(coefficient / kCertified[i] - 1));
  }
  return worst;
}

// |A - U S V^T| in the Frobenius norm, relative; and the best table of rank 2 must be as far from A as the theorem
// says.
double table_error(const Library& library, Timer& timer) {
  const Standardized table = standardized_economy();
  std::vector<float> a = table.values, s(kColumns), u(kYears * kColumns), vt(kColumns * kColumns), work(1000);
  std::vector<int32_t> iwork(8 * kColumns);
  const int32_t m = kYears, n = kColumns, lwork = 1000;
  int32_t info = -1;
  timer.time([&] {
    library.sgesdd_Idx("S", &m, &n, a.data(), 0, &m, s.data(), 0, u.data(), 0, &m, vt.data(), 0, &n, work.data(), 0,
                       &lwork, iwork.data(), 0, &info);
  });
  if (info != 0) return std::numeric_limits<double>::infinity();
  // The distance of the sum of the first `rank` parts from the table.
  const auto distance = [&](std::size_t rank) {
    double squares = 0;
    for (std::size_t j = 0; j < kColumns; ++j) {
      for (std::size_t i = 0; i < kYears; ++i) {
        double entry = static_cast<double>(table.values[j * kYears + i]);
        for (std::size_t k = 0; k < rank; ++k) {
          entry -= static_cast<double>(u[k * kYears + i]) * static_cast<double>(s[k]) *
                   static_cast<double>(vt[j * kColumns + k]);
        }
        squares += entry * entry;
      }
    }
    return std::sqrt(squares);
  };
  double rest = 0;
  for (std::size_t k = 2; k < kColumns; ++k) rest += std::pow(static_cast<double>(s[k]), 2);
  const double length = std::sqrt(static_cast<double>(kColumns));
  return std::max(distance(kColumns), std::fabs(distance(2) - std::sqrt(rest))) / length;
}

// Eigenvalues of a symmetric matrix in double precision by Jacobi's rotations (Golub & Van Loan, section 8.5).
std::vector<double> jacobi_eigenvalues(std::vector<double> a, std::size_t n) {
  const auto at = [&](std::size_t i, std::size_t j) -> double& { return a[j * n + i]; };
  for (int sweep = 0; sweep < 30; ++sweep) {
    for (std::size_t p = 0; p < n; ++p) {
      for (std::size_t q = p + 1; q < n; ++q) {
        if (at(p, q) == 0) continue;
        const double slope = (at(q, q) - at(p, p)) / (2 * at(p, q));
        const double tangent = std::copysign(1 / (std::fabs(slope) + std::hypot(1, slope)), slope);
        const double cosine = 1 / std::hypot(1, tangent), sine = tangent * cosine;
        for (std::size_t k = 0; k < n; ++k) {
          const double x = at(k, p), y = at(k, q);
          at(k, p) = cosine * x - sine * y;
          at(k, q) = sine * x + cosine * y;
        }
        for (std::size_t k = 0; k < n; ++k) {
          const double x = at(p, k), y = at(q, k);
          at(p, k) = cosine * x - sine * y;
          at(q, k) = sine * x + cosine * y;
        }
      }
    }
  }
  std::vector<double> eigenvalues;
  for (std::size_t i = 0; i < n; ++i) eigenvalues.push_back(at(i, i));
  std::ranges::sort(eigenvalues);
  return eigenvalues;
}

// BCSSTK01: the stiffness matrix of a small structure, of order 48; its lower triangle as lines of row, column, value.
double vibration_error(const Library& library, Timer& timer) {
  const int32_t n = 48, lwork = 48 * 40, liwork = 480, none = 0;
  const std::size_t order = 48;
  std::ifstream file(QUORIN_MATRICES_DIR "/cxsparse/bcsstk01");
  std::vector<double> exact(order * order);
  double value = 0;
  for (std::size_t i = 0, j = 0; file >> i >> j >> value;) {
    if (i >= order || j >= order) return std::numeric_limits<double>::infinity();
    exact[j * order + i] = exact[i * order + j] = value;
  }
  // The file has no more than the library will be given: single precision.
  std::vector<float> a(exact.begin(), exact.end());
  exact.assign(a.begin(), a.end());
  const std::vector<double> expected = jacobi_eigenvalues(exact, order);

  const float unused = 0;
  std::vector<float> w(order + 7), z(1), work(static_cast<std::size_t>(lwork));
  std::vector<int32_t> support(2 * order), iwork(static_cast<std::size_t>(liwork));
  int32_t found = 0, info = -1;
  timer.time([&] {
    library.ssyevr_Idx("N", "A", "L", &n, a.data(), 0, &n, &unused, &unused, &none, &none, &unused, &found, w.data(), 7,
                       z.data(), 0, &n, support.data(), 0, work.data(), 0, &lwork, iwork.data(), 0, &liwork, &info);
  });
  if (info != 0 || found != n || expected.back() <= 0) return std::numeric_limits<double>::infinity();
  double worst = 0;
  for (std::size_t i = 0; i < order; ++i) {
    worst = std::max(worst, std::fabs(static_cast<double>(w[7 + i]) - expected[i]) / expected.back());
  }
  return worst;
}

}  // namespace

void lapack_rows(const Library& library, Report& report) {
  report.heading("LAPACK");
  report.row("least squares: Longley's data, sgelsd_Idx", "16 x 6", 2000 * kUnitRoundoff,
             [&](Timer& timer) { return fit_error(library, timer); });
  report.row("singular values: the same table, sgesdd_Idx", "16 x 7", 20 * kUnitRoundoff,
             [&](Timer& timer) { return table_error(library, timer); });
  report.row("eigenvalues: a structure (BCSSTK01), ssyevr_Idx", "48", 20 * kUnitRoundoff,
             [&](Timer& timer) { return vibration_error(library, timer); });
}

}  // namespace demo
