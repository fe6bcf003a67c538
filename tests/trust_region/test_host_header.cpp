// The header for C++ hosts: fits with and without bounds and derivatives, and exceptions out of callables.
#include "quorin/least_squares.hpp"
#include "tests/support/test.hpp"
#include "tests/trust_region/nist.hpp"

namespace trust_region_test {
namespace {

namespace ls = quorin::least_squares;

class HostHeader : public testing::Test {
 protected:
  static NistProblem find(const std::string& name) {
    for (const NistProblem& problem : nist_problems(QUORIN_NIST_DIR)) {
      if (problem.name == name) return problem;
    }
    throw std::runtime_error(name);
  }

  static auto residual_of(const NistProblem& problem) {
    return [&problem](std::span<const float> x, std::span<float> f) {
      const std::vector<double> b(x.begin(), x.end());
      for (std::size_t i = 0; i < f.size(); ++i) f[i] = static_cast<float>(problem.residual(b.data(), i));
    };
  }
};

TEST_F(HostHeader, FitsWithDifferences) {
  for (const char* name : {"Misra1a", "Hahn1", "Thurber"}) {
    const NistProblem problem = find(name);
    std::vector<float> x(problem.starts[1].begin(), problem.starts[1].end());
    const ls::Result result = ls::minimize(problem.m(), x, residual_of(problem));
    EXPECT_TRUE(result.converged());
    EXPECT_GT(result.iterations, 0);
    EXPECT_LT(result.norm, result.first_norm);
    for (std::size_t j = 0; j < x.size(); ++j) {
      EXPECT_NEAR(x[j], problem.certified[j], 1e-3 * std::fabs(problem.certified[j])) << name;
    }
  }
}

TEST_F(HostHeader, FitsWithABoundAndDerivatives) {
  const NistProblem problem = find("Misra1a");
  std::array<float, 2> x = {250, 0.0005F};
  const std::array<float, 2> lower = {0, 0.0006F}, upper = {1000, 1};
  const auto jacobian = [&](std::span<const float> at, std::span<float> columns) {
    const std::size_t m = problem.m();
    for (std::size_t i = 0; i < m; ++i) {
      const double t = problem.rows[2 * i + 1], decay = std::exp(-at[1] * t);
      columns[i] = static_cast<float>(decay - 1);
      columns[m + i] = static_cast<float>(-at[0] * t * decay);
    }
  };
  const ls::Result result = ls::minimize(problem.m(), x, residual_of(problem), jacobian, {lower, upper});
  EXPECT_EQ(result.stop, ls::Stop::kDecreaseSmall);
  EXPECT_EQ(x[1], lower[1]);
  // What is left is linear: b1 = y.g / g.g with g = 1 - exp(-b2 x).
  double yg = 0, gg = 0;
  for (std::size_t i = 0; i < problem.m(); ++i) {
    const double g = 1 - std::exp(-double{lower[1]} * problem.rows[2 * i + 1]);
    yg += problem.rows[2 * i] * g;
    gg += g * g;
  }
  EXPECT_NEAR(x[0], yg / gg, 1e-5 * yg / gg);
}

TEST_F(HostHeader, ExceptionsOfCallablesComeThroughAndXIsWhole) {
  const NistProblem problem = find("Misra1a");
  for (int failing = 1; failing <= 6; ++failing) {
    std::array<float, 2> x = {250, 0.0005F};
    int calls = 0;
    const auto residual = [&](std::span<const float> at, std::span<float> f) {
      if (++calls == failing) throw std::runtime_error("host");
      residual_of(problem)(at, f);
    };
    EXPECT_THROW(ls::minimize(problem.m(), x, residual), std::runtime_error);
    if (failing < 6) {
      EXPECT_EQ(x, (std::array<float, 2>{250, 0.0005F}));
    }
    calls = 0;
    std::vector<float> columns(2 * problem.m());
    const auto differences = [&] { ls::Differences()(residual, x, problem.m(), columns); };
    if (failing > 4) continue;
    x = {250, 0.0005F};
    EXPECT_THROW(differences(), std::runtime_error);
    EXPECT_EQ(x, (std::array<float, 2>{250, 0.0005F}));
  }
}

TEST_F(HostHeader, RefusesSizesAndTellsOfResidualsThatAreNotFinite) {
  const auto bad = [](std::span<const float>, std::span<float> f) { f[0] = std::numeric_limits<float>::quiet_NaN(); };
  std::array<float, 2> x = {1, 2};
  const std::array<float, 1> one = {0};
  EXPECT_THROW(ls::minimize(1, x, bad), std::invalid_argument);
  EXPECT_THROW(ls::minimize(2, x, bad, ls::Bounds{one, one}), std::invalid_argument);
  EXPECT_THROW(ls::minimize(2, x, bad, {}, ls::Options{.step = -1}), std::invalid_argument);
  const ls::Result result = ls::minimize(2, x, bad);
  EXPECT_EQ(result.stop, ls::Stop::kNotFinite);
  EXPECT_FALSE(result.converged());
}

}  // namespace
}  // namespace trust_region_test
