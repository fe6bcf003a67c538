// A host of the trust-region solvers: answers requests and watches what it is asked.
#pragma once

#include "quorin/jacobi.h"
#include "quorin/trust_region.h"
#include "tests/support/test.hpp"

namespace trust_region_test {

constexpr int kSuccess = 1501, kInvalid = 1502, kOutOfMemory = 1503;
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

using Floats = std::vector<float>;
using Reals = std::vector<double>;
// f <- F(x), in double precision.
using Function = std::function<void(const Reals& x, Reals& f)>;

inline Floats to_floats(const Reals& x) { return Floats(x.begin(), x.end()); }

// dF/dx by central differences in double precision, exact to more digits than a float has; m x n, column-major.
// `start` tells what size the variables have.
inline Reals jacobian_of(const Function& function, const Floats& start, Reals x, std::size_t m) {
  Reals columns(m * x.size()), above(m), below(m);
  for (std::size_t j = 0; j < x.size(); ++j) {
    const double centre = x[j], typical = start[j] == 0.0F ? 1.0 : 0.1 * std::fabs(double{start[j]});
    const double h = 1e-6 * std::max(std::fabs(centre), typical);
    x[j] = centre + h;
    function(x, above);
    x[j] = centre - h;
    function(x, below);
    for (std::size_t i = 0; i < m; ++i) columns[j * m + i] = (above[i] - below[i]) / (2 * h);
    x[j] = centre;
  }
  return columns;
}

struct Fit {
  // Setup.
  std::size_t m = 0;
  Function function;
  Floats x, lower, upper;
  std::array<float, 6> eps = {};
  int limit = 2000, step_limit = 100;
  float rs = 0;

  // What happened.
  Floats start, f, columns;
  int status = 0, request = 0, requests[2] = {}, iterations = -1, criterion = -1;
  float r1 = -1, r2 = -1;
  bool all_within = true;
  void* handle = nullptr;

  bool is_bounded() const { return !lower.empty(); }

  int begin() {
    const int n = static_cast<int>(x.size()), rows = static_cast<int>(m);
    start = x;
    f.assign(m, kNaN);
    columns.assign(m * x.size(), kNaN);
    return is_bounded() ? strnlspbc_init(&handle, &n, &rows, x.data(), lower.data(), upper.data(), eps.data(), &limit,
                                         &step_limit, &rs)
                        : strnlsp_init(&handle, &n, &rows, x.data(), eps.data(), &limit, &step_limit, &rs);
  }

  // One call of the solver, and the answer; false at the end.
  bool step() {
    auto* const solve = is_bounded() ? strnlspbc_solve : strnlsp_solve;
    status = solve(&handle, f.data(), columns.data(), &request);
    if (status != kSuccess || request < 0) return false;
    EXPECT_TRUE(request == 1 || request == 2);
    ++requests[request - 1];
    for (std::size_t j = 0; j < lower.size(); ++j) all_within = all_within && lower[j] <= x[j] && x[j] <= upper[j];
    const Reals point(x.begin(), x.end());
    if (request == 1) {
      Reals values(m);
      function(point, values);
      f = to_floats(values);
    } else {
      columns = to_floats(jacobian_of(function, start, point, m));
    }
    return true;
  }

  void finish() {
    auto* const get = is_bounded() ? strnlspbc_get : strnlsp_get;
    auto* const destroy = is_bounded() ? strnlspbc_delete : strnlsp_delete;
    EXPECT_EQ(get(&handle, &iterations, &criterion, &r1, &r2), kSuccess);
    EXPECT_EQ(destroy(&handle), kSuccess);
    EXPECT_EQ(handle, nullptr);
  }

  // The whole run. At its end x, fvec and r2 belong together.
  void go() {
    ASSERT_EQ(begin(), kSuccess);
    while (step()) {
    }
    finish();
    EXPECT_TRUE(all_within);
    if (status != kSuccess) return;
    EXPECT_EQ(criterion, -request);
    Reals values(m);
    function(Reals(x.begin(), x.end()), values);
    EXPECT_EQ(f, to_floats(values));
    EXPECT_FLOAT_EQ(r2, static_cast<float>(norm_of(f)));
  }

  template <class Vector>
  static double norm_of(const Vector& v) {
    double sum = 0;
    for (const double a : v) sum += a * a;
    return std::sqrt(sum);
  }
};

// Blocks of four variables.
inline void extended_powell(const Reals& x, Reals& f) {
  for (std::size_t k = 0; k + 4 <= x.size(); k += 4) {
    f[k] = x[k] + 10 * x[k + 1];
    f[k + 1] = std::sqrt(5.0) * (x[k + 2] - x[k + 3]);
    f[k + 2] = (x[k + 1] - 2 * x[k + 2]) * (x[k + 1] - 2 * x[k + 2]);
    f[k + 3] = std::sqrt(10.0) * (x[k] - x[k + 3]) * (x[k] - x[k + 3]);
  }
}

inline Floats repeated(const std::array<float, 4>& block, std::size_t times) {
  Floats all(4 * times);
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = block[i % 4];
  return all;
}

inline Fit powell_run(std::size_t blocks, float eps) {
  Fit run;
  run.m = 4 * blocks;
  run.function = extended_powell;
  run.x = repeated({3, -1, 0, 1}, blocks);
  run.eps.fill(eps);
  return run;
}

inline Fit bounded_powell_run(std::size_t blocks, float eps) {
  Fit run = powell_run(blocks, eps);
  run.lower = repeated({0.1F, -20, -1, -1}, blocks);
  run.upper = repeated({100, 20, 1, 50}, blocks);
  return run;
}

}  // namespace trust_region_test
