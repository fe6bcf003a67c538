// BLAS through plain and index forms.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

// A reproducible number in [-1, 1) for every (i, j).
float entry(int i, int j) {
  const std::uint32_t mixed =
      (static_cast<std::uint32_t>(i) * 2654435761U) ^ (static_cast<std::uint32_t>(j) * 40503U + 977U);
  return static_cast<float>((mixed * 2246822519U) >> 8) / 8388608.0F - 1.0F;
}

std::vector<float> matrix(int rows, int columns) {
  std::vector<float> a;
  for (int j = 0; j < columns; ++j) {
    for (int i = 0; i < rows; ++i) a.push_back(entry(i, j));
  }
  return a;
}

double saxpy_error(const Library& library, Timer& timer) {
  const int32_t n = 100000, one = 1;
  const float a = 0.5F;
  std::vector<float> x(n + 10), y(n + 20);
  for (int32_t i = 0; i < n; ++i) {
    x.data()[10 + i] = entry(i, 1);
    y.data()[20 + i] = entry(i, 2);
  }
  // Once in each form: y + 2 a x, with a a power of two, is exact up to one rounding of each step.
  timer.time([&] {
    library.saxpy(&n, &a, x.data() + 10, &one, y.data() + 20, &one);
    library.saxpy_Idx(&n, &a, x.data(), 10, &one, y.data(), 20, &one);
  });
  double worst = 0;
  for (int32_t i = 0; i < n; ++i) {
    const double exact = static_cast<double>(entry(i, 2)) + static_cast<double>(entry(i, 1));
    worst = std::fmax(worst, std::fabs(static_cast<double>(y.data()[20 + i]) - exact));
  }
  return worst;
}

// C <- A B block by block inside larger host matrices, checked against a product with a vector: C v = A (B v).
double blocked_product_error(const Library& library, int32_t n, int32_t block, Timer& timer) {
  const int32_t ld = n + 3;
  const std::vector<float> a = matrix(ld, n), b = matrix(ld, n);
  std::vector<float> c(a.size(), 0.0F);
  const float one = 1;
  timer.time([&] {
    for (int32_t j = 0; j < n; j += block) {
      for (int32_t i = 0; i < n; i += block) {
        for (int32_t k = 0; k < n; k += block) {
          library.sgemm_Idx("N", "N", &block, &block, &block, &one, a.data(), i + k * ld, &ld, b.data(), k + j * ld,
                            &ld, &one, c.data(), i + j * ld, &ld);
        }
      }
    }
  });
  const auto column = [ld](const std::vector<float>& m, int32_t j) {
    return m.data() + static_cast<std::ptrdiff_t>(j) * ld;
  };
  const auto times = [&](const std::vector<float>& m, const std::vector<double>& v) {
    std::vector<double> product(v.size());
    for (int32_t j = 0; j < n; ++j) {
      for (int32_t i = 0; i < n; ++i) product.data()[i] += static_cast<double>(column(m, j)[i]) * v.data()[j];
    }
    return product;
  };
  std::vector<double> v(static_cast<std::size_t>(n));
  for (int32_t i = 0; i < n; ++i) v.data()[i] = static_cast<double>(entry(i, 9));
  const std::vector<double> expected = times(a, times(b, v)), found = times(c, v);
  double difference = 0, size = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    difference += std::pow(expected[i] - found[i], 2);
    size += std::pow(expected[i], 2);
  }
  // The rows between the matrix's and the leading dimension belong to the host and must stay zero.
  for (int32_t j = 0; j < n; ++j) {
    for (int32_t i = n; i < ld; ++i) difference += column(c, j)[i] != 0 ? 1 : 0;
  }
  return std::sqrt(difference / size);
}

double cdotc_error(const Library& library, Timer& timer) {
  const int32_t n = 1000, one = 1, minus_two = -2;
  std::vector<quorin_complex> x(n + 5), y(2 * n + 5);
  double re = 0, im = 0;
  for (int32_t i = 0; i < n; ++i) {
    const quorin_complex p{entry(i, 3), entry(i, 4)}, q{entry(i, 5), entry(i, 6)};
    x.data()[5 + i] = p;
    y.data()[4 + 2 * (n - 1 - i)] = q;  // walked backwards with stride -2
    re += static_cast<double>(p.re) * static_cast<double>(q.re) + static_cast<double>(p.im) * static_cast<double>(q.im);
    im += static_cast<double>(p.re) * static_cast<double>(q.im) - static_cast<double>(p.im) * static_cast<double>(q.re);
  }
  quorin_complex result{};
  timer.time([&] { library.cdotc_Idx(&result, &n, x.data(), 5, &one, y.data(), 4, &minus_two); });
  return std::hypot(static_cast<double>(result.re) - re, static_cast<double>(result.im) - im) / n;
}

// A wrong leading dimension is reported, and C stays as it was.
double wrong_argument_error(const Library& library, Timer& timer) {
  const int32_t n = 4, too_small = 3;
  const float one = 1;
  const std::vector<float> a(16, 1.0F);
  std::vector<float> c(16, 7.0F);
  std::printf("(XERBLA says:)");
  timer.time(
      [&] { library.sgemm("N", "N", &n, &n, &n, &one, a.data(), &too_small, a.data(), &n, &one, c.data(), &n); });
  return c == std::vector<float>(16, 7.0F) ? 0 : 1;
}

}  // namespace

void blas_rows(const Library& library, Report& report) {
  constexpr double kUnitRoundoff = 6e-8;
  report.heading("BLAS");
  report.row("y + a x with saxpy, then saxpy_Idx", "100000", 4 * kUnitRoundoff,
             [&](Timer& timer) { return saxpy_error(library, timer); });
  report.row("blocked product of sub-matrices with sgemm_Idx", "1024, blocks of 256", 64 * kUnitRoundoff,
             [&](Timer& timer) { return blocked_product_error(library, 1024, 256, timer); });
  const int at_first = library.sMKL_Get_Max_Threads();
  library.sMKL_Set_Num_Threads(1);
  report.row("the same on one thread", "1024, blocks of 256", 64 * kUnitRoundoff,
             [&](Timer& timer) { return blocked_product_error(library, 1024, 256, timer); });
  library.sMKL_Set_Num_Threads(at_first);
  report.row("x^H y with cdotc_Idx, stride -2", "1000", 4 * kUnitRoundoff,
             [&](Timer& timer) { return cdotc_error(library, timer); });
  report.row("wrong argument of sgemm: reported, C untouched", "4", 0,
             [&](Timer& timer) { return wrong_argument_error(library, timer); });
}

}  // namespace demo
