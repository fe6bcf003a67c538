// Bounds: the published example, and optimality of answers from random starts in random boxes.
#include "tests/support/test.hpp"
#include "tests/trust_region/fit.hpp"

namespace trust_region_test {
namespace {

TEST(BoundedPowell, ReachesTheMinimumOnTheBound) {
  for (const auto& [eps, norm] : {std::pair(1e-3F, 0.013959F), {1e-5F, 0.013709F}, {1e-7F, 0.013705F}}) {
    for (const float sign : {1.0F, -1.0F}) {
      Fit run = bounded_powell_run(1, eps);
      run.eps[4] *= sign;
      run.go();
      EXPECT_LE(run.r2, norm * 1.002F);
      EXPECT_GE(run.r2, 0.0137047F);
      EXPECT_EQ(run.criterion, 6);
      EXPECT_LE(run.iterations, 14);
      EXPECT_EQ(run.x[0], 0.1F);
    }
  }
  Fit run = bounded_powell_run(1, 0.0F);
  run.go();
  EXPECT_NEAR(run.r2, 0.0137047302, 1e-8);
  const Floats best = {0.1F, -0.0099822342F, 0.0430731078F, 0.0437837415F};
  for (std::size_t j = 0; j < 4; ++j) EXPECT_NEAR(run.x[j], best[j], 2e-5F);
}

TEST(Bounds, ThatHoldNothingChangeNothing) {
  Fit free = powell_run(2, 1e-5F), run = free;
  run.lower.assign(8, -kInfinity);
  run.upper.assign(8, kInfinity);
  free.go();
  run.go();
  EXPECT_NEAR(run.iterations, free.iterations, 1);
  EXPECT_EQ(run.criterion, 3);
}

TEST(Bounds, StartOutsideIsMovedInside) {
  Fit run = bounded_powell_run(1, 1e-5F);
  run.x = {500, -100, 5, -7};
  ASSERT_EQ(run.begin(), kSuccess);
  ASSERT_TRUE(run.step());
  EXPECT_EQ(run.x, (Floats{100, -20, 1, -1}));
  while (run.step()) {
  }
  run.finish();
  EXPECT_TRUE(run.all_within);
  EXPECT_NEAR(run.r2, 0.0137047302, 1e-4);
}

TEST(Bounds, EqualOnesHoldAVariable) {
  Fit run = bounded_powell_run(1, 1e-6F);
  run.lower.assign(4, 0.5F);
  run.upper.assign(4, 0.5F);
  run.go();
  EXPECT_EQ(run.x, Floats(4, 0.5F));
  EXPECT_EQ(run.requests[0], 1);
  run = bounded_powell_run(1, 1e-6F);
  run.lower[2] = run.upper[2] = 0.25F;
  run.go();
  EXPECT_EQ(run.x[2], 0.25F);
  EXPECT_LT(run.r2, run.r1);
}

// J^T F, and ||J(:,j)||.
struct Slope {
  Reals gradient, norms;
};

Slope slope_of(const Fit& run) {
  const Reals x(run.x.begin(), run.x.end());
  Reals f(run.m);
  run.function(x, f);
  const Reals columns = jacobian_of(run.function, run.start, x, run.m);
  Slope slope;
  for (std::size_t j = 0; j < x.size(); ++j) {
    double product = 0, square = 0;
    for (std::size_t i = 0; i < run.m; ++i) {
      product += columns[j * run.m + i] * f[i];
      square += columns[j * run.m + i] * columns[j * run.m + i];
    }
    slope.gradient.push_back(product);
    slope.norms.push_back(std::sqrt(square));
  }
  return slope;
}

// The largest |cos| of the angles of F with the columns of J, not counting those that push against their bound: 0 at a
// constrained minimum.
double optimality(const Fit& run) {
  const Slope slope = slope_of(run);
  double most = 0;
  for (std::size_t j = 0; j < run.x.size(); ++j) {
    const double g = slope.gradient[j];
    const bool is_held = (run.x[j] <= run.lower[j] && g >= 0) || (run.x[j] >= run.upper[j] && g <= 0);
    if (!is_held) most = std::max(most, std::fabs(g) / (slope.norms[j] * double{run.r2}));
  }
  return most;
}

// A residual that bends in every variable and mixes them: A x + b + 0.3 sin(A x).
Function random_function(std::size_t n, std::size_t m, std::mt19937& random) {
  std::normal_distribution<double> normal;
  Reals a(m * n), b(m);
  for (double& entry : a) entry = normal(random);
  for (double& entry : b) entry = 3 * normal(random);
  return [=](const Reals& x, Reals& f) {
    for (std::size_t i = 0; i < m; ++i) {
      double product = 0;
      for (std::size_t j = 0; j < n; ++j) product += a[j * m + i] * x[j];
      f[i] = product + b[i] + 0.3 * std::sin(product);
    }
  };
}

TEST(Bounds, AnswersAreStationaryInTheBox) {
  std::mt19937 random(20);
  std::uniform_real_distribution<float> uniform(-1, 1);
  int held = 0;
  for (int trial = 0; trial < 60; ++trial) {
    const std::size_t n = 1 + static_cast<std::size_t>(trial) % 12, m = n + static_cast<std::size_t>(trial) % 5;
    Fit run;
    run.m = m;
    run.function = random_function(n, m, random);
    for (std::size_t j = 0; j < n; ++j) {
      const float low = uniform(random), width = 1 + uniform(random);
      run.lower.push_back(j % 5 == 4 ? -kInfinity : low);
      run.upper.push_back(j % 7 == 6 ? kInfinity : low + width);
      run.x.push_back(3 * uniform(random));
    }
    run.rs = trial % 2 == 0 ? 0.0F : 0.1F;
    run.go();
    EXPECT_LT(run.iterations, 200);
    // Rounding x to floats turns F by 6e-8 ||J|| ||x|| / ||F||.
    if (double{run.r2} > 1e-2) {
      EXPECT_LT(optimality(run), 1e-4) << "trial " << trial << ", n " << n;
    }
    for (std::size_t j = 0; j < n; ++j) held += run.x[j] == run.lower[j] || run.x[j] == run.upper[j] ? 1 : 0;
  }
  EXPECT_GT(held, 60);  // bounds did bind
}

}  // namespace
}  // namespace trust_region_test
