// Flexible GMRES, driven as a host does.
#include "tests/rci/rci_host.hpp"
#include "tests/support/test.hpp"

namespace rci_test {
namespace {

const Vector kSolution5{-1, 1, 0, 1, -1};

TEST(Fgmres, PublishedPlainExample) {
  const Csr A = nonsymmetric5();
  const Vector b = A * kSolution5;
  ASSERT_EQ(b, (Vector{-1, 1, 0, 3, 2}));
  const std::pair<double, Vector> cases[] = {
      {1.0, {7.071067812, 4.372705497, 4.141871372, 2.435360652, 0.1393762442, 0}},
      {0.0, {3.872983346, 3.829708431, 2.407657176, 2.402986425, 0.04577914643, 0}}};
  for (const auto& [start, history] : cases) {
    FgmresHost host(A, b, Vector(5, start));
    host.test_residual(1e-3);
    ASSERT_EQ(host.check(), 0);
    EXPECT_EQ(host.run(), 0);
    EXPECT_EQ(host.step(), 0) << "the end stands when the host calls again";
    expect_history(host.residuals, history, 1e-12);
    EXPECT_EQ(host.get(), 0);
    EXPECT_EQ(host.itercount, 5);
    expect_near(host.x, kSolution5, 1e-13);
    EXPECT_EQ(host.b, b);
    EXPECT_TRUE(host.intact());
  }
}

// Restart after two steps, host tests, a preconditioner that depends on the iteration.
TEST(Fgmres, PublishedExampleOfAllFeatures) {
  const Csr A = nonsymmetric5();
  FgmresHost host(A, A * kSolution5, Vector(5, 1.0), 2, true);
  host.ipar[7] = 0;
  host.dpar[0] = 1e-3;
  ASSERT_EQ(host.check(), 0);
  const int starts[] = {16, 19, 21, 23, 26, 28};
  for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(host.ipar[15 + i], starts[i]);
  host.precondition = [](int iteration, const double* in, double* out) {
    const Vector third{-2.0, 0.08519601586107672, -1.1590871369607090, -0.65791939687456980, 0.75660051476696133};
    const Vector fourth{0, 0, 0, 1, -1};
    for (int i = 0; i < 5; ++i) out[i] = iteration == 3 ? third[i] : iteration == 4 ? fourth[i] : i * in[i];
  };
  Vector norms;
  host.satisfied = [&] {
    norms.push_back(host.dpar[6]);
    if (host.ipar[3] == 2)
      expect_near(host.solution(), {1, 0.9148039841389, 1.1590871369607, 0.6579193968746, -0.7566005147670}, 1e-12);
    return host.true_residual() < 1e-3;
  };
  host.run();
  EXPECT_EQ(host.requests, "13124312413124312");
  // The third product is that of the restart.
  expect_history(host.residuals, {7.071068, 3.654275, 3.593855, 3.593855, 2.914676, 0}, 1e-12);
  expect_history(norms, {6.254, 4.811, 3.774, 0}, 1e-12, 1.5e-4);
  EXPECT_EQ(host.get(), 0);
  EXPECT_EQ(host.itercount, 4);
  expect_near(host.x, kSolution5, 1e-12);
  EXPECT_TRUE(host.intact());
}

TEST(Fgmres, SmallEnds) {
  const Csr two = sparse({{2, 0, 0}, {0, 2, 0}, {0, 0, 2}});
  FgmresHost happy(two, {1, 2, 3}, Vector(3, 0.0));
  happy.test_residual(1e-10);
  EXPECT_EQ(happy.run(), 0);
  EXPECT_EQ(happy.get(), 0);
  EXPECT_EQ(happy.itercount, 1);
  EXPECT_EQ(happy.dpar[4], 0.0);
  EXPECT_EQ(happy.dpar[6], 0.0);
  expect_near(happy.x, {0.5, 1, 1.5}, 1e-15);

  const Csr zero = sparse({{0, 0}, {0, 0}});
  FgmresHost degenerate(zero, {1, 2}, {0, 0});
  EXPECT_EQ(degenerate.run(), -10);
  EXPECT_EQ(degenerate.step(), -10);
  EXPECT_EQ(degenerate.get(), 0);
  EXPECT_EQ(degenerate.x, (Vector{0, 0}));

  // The host goes on from a zero vector.
  FgmresHost stubborn(two, {1, 2, 3}, Vector(3, 0.0));
  while (stubborn.step() != 4) stubborn.serve();
  EXPECT_EQ(stubborn.step(), -10);

  for (const bool is_tested : {false, true}) {
    FgmresHost exact(two, {2, 4, 6}, {1, 2, 3});
    if (is_tested) exact.test_residual(1e-3);
    EXPECT_EQ(exact.run(), is_tested ? 0 : -10);
    EXPECT_EQ(exact.requests, is_tested ? "1" : "12");
  }
}

// dpar(7) is tested against dpar(8) before the run goes on to another step, when the host wants it.
TEST(Fgmres, AutomaticZeroNormTest) {
  const Csr A = sparse({{1, 1e-9, 0}, {1e-9, 2, 0}, {0, 0, 1}});
  for (const double tolerance : {1e-12, 1e-8, 0.0}) {
    FgmresHost host(A, {1, 0, 0}, Vector(3, 0.0));
    host.ipar[9] = 0;
    host.ipar[11] = 1;
    host.dpar[7] = tolerance;
    EXPECT_EQ(host.run(), 0);
    EXPECT_EQ(host.ipar[3], tolerance == 1e-8 ? 1 : 2) << "h(2,1) = 1e-9, h(3,2) = 0";
  }
}

TEST(Fgmres, LimitAndGoingOn) {
  const Csr A = nonsymmetric5();
  const Vector b = A * kSolution5;
  FgmresHost host(A, b, Vector(5, 1.0));
  host.test_residual(1e-3);
  host.ipar[4] = 2;
  EXPECT_EQ(host.run(), -1);
  EXPECT_NEAR(host.true_residual(), 4.141871372, 1e-8);
  EXPECT_EQ(host.step(), -1);
  host.ipar[4] = 5;
  EXPECT_EQ(host.run(), 0);
  expect_near(host.solution(), kSolution5, 1e-12);

  FgmresHost limit_only(A, b, Vector(5, 1.0));
  limit_only.ipar[4] = 2;
  limit_only.ipar[9] = 0;
  limit_only.ipar[11] = 1;
  EXPECT_EQ(limit_only.run(), 0);

  FgmresHost none(A, b, Vector(5, 1.0)), relaxed(A, b, Vector(5, 1.0), 2);
  none.test_residual(1e-3);
  none.ipar[4] = 0;
  EXPECT_EQ(none.run(), -1);
  EXPECT_EQ(none.requests, "1");
  relaxed.test_residual(1e-12);
  while (relaxed.ipar[3] < 2 || relaxed.ipar[13] > 0) relaxed.advance();
  relaxed.dpar[3] = 1e9;
  EXPECT_EQ(relaxed.step(), 0) << "the target is tested when a cycle begins, too";
}

// A step that cancels all but a few digits: the basis must stay orthogonal.
TEST(Fgmres, ReorthogonalisesWhenDigitsCancel) {
  constexpr int kSize = 60;
  std::mt19937 random(21);
  Csr A = random_matrix(kSize, 0.3, 0.0, false, random);
  for (int i = 0; i < kSize; ++i) {
    for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) A.a[k] = 1e-9 * A.a[k] + (A.ja[k] == i + 1 ? 1 : 0);
  }
  FgmresHost host(A, random_vector(kSize, random), Vector(kSize, 0.0), 10);
  host.ipar[4] = 10;
  host.satisfied = [&] { return host.ipar[3] == 10; };
  host.run();
  const auto v = [&](int k) { return host.tmp.data() + static_cast<std::ptrdiff_t>(k) * kSize; };
  double worst = 0.0;
  for (int i = 0; i < 10; ++i) {
    for (int j = 0; j < i; ++j) {
      worst = std::max(worst, std::fabs(std::inner_product(v(i), v(i) + kSize, v(j), 0.0)));
    }
  }
  EXPECT_LT(worst, 1e-13);
}

TEST(Fgmres, SurvivesExtremeScales) {
  const std::pair<double, double> scales[] = {{1, 1e-250}, {1, 1e250}, {1e-170, 1}, {1e170, 1}};
  for (const auto& [of_A, of_b] : scales) {
    Csr A = nonsymmetric5();
    Vector b = A * kSolution5;
    for (double& e : A.a) e *= of_A;
    for (double& e : b) e *= of_b;
    FgmresHost host(A, b, Vector(5, 0.0));
    host.test_residual(1e-10);
    host.dpar[7] = 0.0;
    EXPECT_EQ(host.run(), 0);
    Vector x = host.solution();
    for (double& e : x) e *= of_A / of_b;
    expect_near(x, kSolution5, 1e-12);
  }
}

}  // namespace
}  // namespace rci_test
