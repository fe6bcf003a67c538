// Conjugate gradients, for one and for several right-hand sides, driven as a host does.
#include <gtest/gtest.h>

#include <limits>

#include "tests/rci/rci_host.hpp"

namespace rci_test {
namespace {

Csr symmetric_of(int n, const std::vector<int>& ia, const std::vector<int>& ja, const Vector& a) {
  Dense m(n, Vector(n, 0.0));
  for (int i = 0; i < n; ++i) {
    for (int k = ia[i] - 1; k < ia[i + 1] - 1; ++k) m[i][ja[k] - 1] = m[ja[k] - 1][i] = a[k];
  }
  return sparse(m);
}

// Symmetric and indefinite; CG gets by.
Csr indefinite8() {
  return symmetric_of(8, {1, 5, 8, 10, 12, 15, 17, 18, 19}, {1, 3, 6, 7, 2, 3, 5, 3, 8, 4, 7, 5, 6, 7, 6, 8, 7, 8},
                      {7, 1, 2, 7, -4, 8, 2, 1, 5, 7, 9, 5, 1, 5, -1, 5, 11, 5});
}

Csr spd4() {
  return {4, {1, 4, 7, 10, 13}, {1, 2, 3, 1, 2, 4, 1, 3, 4, 2, 3, 4}, {4, -1, -1, -1, 4, -1, -1, 4, -1, -1, -1, 4}};
}

// Residuals of the published example: from ones, and from zeros, which is the same system with the other solution.
const Vector kSolution{1, 0, 1, 0, 1, 0, 1, 0}, kOtherSolution{0, 1, 0, 1, 0, 1, 0, 1};
const Vector kFromOnes{444, 578.6901467, 374.6999443, 17.14862875, 103.1976448, 3.082386377, 288.5519540, 0.2587329568,
                       0};
const Vector kFromZeros{
    1073, 165.7471056, 246.7620135, 10.76123174, 4.508925637, 1.076334291, 0.09102747566, 1.856972798, 0};

TEST(Cg, PublishedExampleFromOnesAndFromZeros) {
  const Csr A = indefinite8();
  const Vector b = A * kSolution;
  ASSERT_EQ(b, (Vector{15, 10, 2, 9, 10, 3, 23, 5}));
  for (const double start : {1.0, 0.0}) {
    CgHost host(A, b, Vector(8, start));
    host.test_residual(1e-5);
    ASSERT_EQ(host.check(), 0);
    if (start == 0.0) host.dpar[0] = 1e-9;  // 1.0763 and 0.0910 would pass 1e-5 * 1073
    const Record record = host.run();
    EXPECT_EQ(record.status, 0);
    EXPECT_EQ(host.itercount(), 8);
    EXPECT_EQ(record.requests, "111111111");
    expect_history(record.residuals, start == 1.0 ? kFromOnes : kFromZeros, 1e-18);
    expect_near(host.x, kSolution, 1e-10);
    EXPECT_TRUE(host.intact());
  }
}

TEST(Cg, StepsOfThePublishedExample) {
  const Csr A = indefinite8();
  CgHost host(A, A * kSolution, Vector(8, 1.0));
  Vector alphas, curvatures;  // (p, A p)
  while (host.step() > 0 && alphas.size() < 8) {
    host.serve();
    if (host.request == 1) curvatures.push_back(dot(8, host.tmp.data(), host.tmp.data() + 8));
    if (host.request != 2) continue;
    alphas.push_back(host.dpar[6]);
    EXPECT_EQ(host.dpar[7], host.dpar[4] / host.dpar[5]);
  }
  expect_history(
      alphas,
      {0.0991071429, -0.0805444986, 0.0556496162, 0.467523851, -0.0895363279, 1.98136479, -0.0214279287, 0.205278291},
      0.0);
  curvatures.erase(curvatures.begin());  // the first product is that of the start vector
  curvatures.resize(8);
  expect_history(curvatures, {4480, -7184.726, 6733.199, 36.67969, -1152.578, 1.555688, -13466.16, 1.260401}, 0.0);
}

TEST(Cg, Preconditioned) {
  const Csr A = indefinite8();
  const Dense m = dense(A);
  const Vector b = A * kSolution;
  const auto jacobi = [&](int, const double* in, double* out) {
    for (int i = 0; i < 8; ++i) out[i] = in[i] / m[i][i];
  };
  // M = (D + L) D^-1 (D + U)
  const auto gauss_seidel = [&](int, const double* in, double* out) {
    for (int i = 0; i < 8; ++i) {
      out[i] = in[i];
      for (int j = 0; j < i; ++j) out[i] -= m[i][j] * out[j];
      out[i] /= m[i][i];
    }
    for (int i = 7; i >= 0; --i) {
      double sum = 0.0;
      for (int j = i + 1; j < 8; ++j) sum += m[i][j] * out[j];
      out[i] -= sum / m[i][i];
    }
  };
  const auto solve = [&](const Preconditioner& preconditioner, double tolerance) {
    CgHost host(A, b, Vector(8, 1.0), true);
    host.test_residual(tolerance);
    host.precondition = preconditioner;
    const Record record = host.run();
    EXPECT_EQ(record.status, 0);
    std::string requests = "1";
    for (int k = 0; k < host.itercount(); ++k) requests += "31";
    EXPECT_EQ(record.requests, requests);
    return record.residuals;
  };
  expect_history(solve(jacobi, 1e-5),
                 {444, 1336.17624, 238.291727, 238.518056, 166.223082, 13.9070891, 7.24487116, 0.171965766, 0}, 1e-18);
  const Vector stopped{444, 182.301049, 13.2784696, 1.45203827, 1.2532e-8};
  expect_history(solve(gauss_seidel, 1e-5), stopped, 0.0, 4e-5);
  // 2.1e-17 follows: rounding errors of the four steps.
  expect_history(solve(gauss_seidel, 1e-15), joined(stopped, {0}), 5e-17, 4e-5);
}

TEST(Cg, SmallSystems) {
  const Csr A = spd4();
  const Vector b(4, 2.0);
  CgHost far(A, b, {100, 0, 0, 0});
  far.test_residual(1e-9);
  expect_history(far.run().residuals, {179216, 10456.046785, 1001.04578, 0}, 1e-20);
  CgHost near(A, b, Vector(4, 0.0));
  near.test_residual(1e-9);
  EXPECT_EQ(near.run().residuals, (Vector{16, 0}));
  EXPECT_EQ(near.step(), 0) << "the answer stands when the host calls again";

  Dense m(10, Vector(10, 0.0));
  for (int i = 0; i < 10; ++i) {
    m[i][i] = 2.0;
    if (i > 0) m[i][i - 1] = m[i - 1][i] = -1.0;
  }
  const Csr T = sparse(m);
  CgHost host(T, Vector(10, 1.0), Vector(10, 0.0));
  host.test_residual(1e-9);
  expect_history(host.run().residuals, {10, 40, 24, 12, 4, 0}, 1e-26);
  expect_near(host.x, {5, 9, 12, 14, 15, 15, 14, 12, 9, 5}, 1e-12);
}

TEST(Cg, EndsOfARun) {
  const Csr A = spd4();
  const Vector b{1, 2, 3, 4};
  {
    const Csr longer = indefinite8();
    CgHost host(longer, Vector(8, 1.0), Vector(8, 0.0));
    host.test_residual(1e-20);
    host.ipar[4] = 2;
    EXPECT_EQ(host.run().status, -1);
    EXPECT_EQ(host.itercount(), 2);
    host.ipar[4] = 8;
    EXPECT_EQ(host.run().status, 0) << "a host that raises the limit goes on";
  }
  {
    CgHost host(A, b, Vector(4, 0.0));
    host.ipar[4] = 1;
    host.ipar[9] = 0;
    EXPECT_EQ(host.run().status, 0) << "the limit alone is no failure";
    EXPECT_EQ(host.itercount(), 1);
  }
  {
    CgHost host(A, b, Vector(4, 0.0));
    int asked = 0;
    host.satisfied = [&] { return ++asked == 2; };
    EXPECT_EQ(host.run().requests, "11212");
    EXPECT_LT(residual_norm(A, b.data(), host.x.data()), 1e-12);
  }
  {
    CgHost host(A, A * Vector(4, 1.0), Vector(4, 1.0));
    const Record record = host.run();
    EXPECT_EQ(record.requests, "12") << "an exact start is shown to the host once";
    EXPECT_EQ(record.status, -2);
    EXPECT_EQ(host.step(), -2);
  }
  {
    const Csr swap{2, {1, 2, 3}, {2, 1}, {1, 1}};
    CgHost host(swap, {1, 0}, {0, 0});
    EXPECT_EQ(host.run().status, -2);
    EXPECT_EQ(host.step(), -2);
  }
}

TEST(Cg, CheckAndInitCodes) {
  const Csr A = spd4();
  const Vector b(4, 2.0);
  CgHost host(A, b, Vector(4, 0.0));
  EXPECT_EQ(host.check(), 0);
  host.ipar[4] = 0;
  EXPECT_EQ(host.check(), -1001);
  host.ipar[4] = 4;
  host.dpar[1] = -1.0;
  EXPECT_EQ(host.check(), -1001);
  EXPECT_EQ(host.dpar[1], -1.0);
  host.dpar[1] = 0.0;
  host.ipar[7] = host.ipar[9] = 0;
  EXPECT_EQ(host.step(), -11);
  EXPECT_EQ(host.check(), -1011);
  EXPECT_EQ(host.ipar[7], 1);
  EXPECT_EQ(host.ipar[8], 1);
  host.ipar[0] = 0;
  EXPECT_EQ(host.check(), -1100);
  EXPECT_LT(host.step(), 0);
  const int zero = 0;
  DCG_INIT(&zero, host.x.data(), host.b.data(), &host.request, host.ipar.data(), host.dpar.data(), host.tmp.data());
  EXPECT_EQ(host.request, -10000);
  EXPECT_TRUE(host.intact());
}

TEST(Cg, MisuseEndsTheRun) {
  const Csr A = spd4();
  const double bad_norms[] = {std::nan(""), std::numeric_limits<double>::infinity(), -1.0};
  for (const double bad : bad_norms) {
    for (const std::size_t entry : {4u, 5u}) {
      CgHost host(A, {1, 2, 3, 4}, Vector(4, 0.0));
      while (host.step() != 2) host.serve();
      host.dpar[entry] = bad;
      EXPECT_EQ(host.run().status, -10) << "dpar entry " << entry << " = " << bad;
    }
  }
  CgHost zeroed(A, {1, 2, 3, 4}, Vector(4, 0.0));
  while (zeroed.step() != 2) zeroed.serve();
  zeroed.dpar[5] = 0.0;
  EXPECT_EQ(zeroed.step(), -10);

  CgHost not_numbers(A, {1, std::nan(""), 3, 4}, Vector(4, 0.0));
  EXPECT_EQ(not_numbers.run().status, -10);
  for (const int stage : {0, -5, 99, std::numeric_limits<int>::max()}) {
    CgHost host(A, {1, 2, 3, 4}, Vector(4, 0.0));
    host.ipar[2] = stage;
    EXPECT_EQ(host.step(), -11);
  }
  CgHost nan_preconditioner(A, {1, 2, 3, 4}, Vector(4, 0.0), true);
  nan_preconditioner.precondition = [](int, const double*, double* out) { std::fill_n(out, 4, std::nan("")); };
  EXPECT_EQ(nan_preconditioner.run().status, -2);
}

// The host turns the preconditioner on, or off, on the way: the run goes on with a fresh direction.
TEST(Cg, PreconditionerSwitchedOnTheWay) {
  std::mt19937 random(7);
  const Csr A = random_matrix(40, 0.1, 1.0, true, random);
  const Dense m = dense(A);
  const Vector b = random_vector(40, random);
  for (const int first : {0, 1}) {
    CgHost host(A, b, Vector(40, 0.0), true);
    host.ipar[10] = first;
    host.ipar[8] = 1;
    host.dpar[0] = 1e-20;
    host.ipar[4] = 200;
    host.precondition = [&](int, const double* in, double* out) {
      for (int i = 0; i < 40; ++i) out[i] = in[i] / m[i][i];
    };
    host.satisfied = [&] {
      if (host.ipar[3] == 3) host.ipar[10] = 1 - first;
      return false;
    };
    EXPECT_EQ(host.run().status, 0);
    EXPECT_LT(residual_norm(A, b.data(), host.x.data()), 1e-9 * norm(b));
  }
}

// The two right-hand sides go the two published ways.
TEST(CgMany, PublishedSystemWithTwoRightHandSides) {
  const Csr A = indefinite8();
  const Vector solutions = joined(kSolution, kOtherSolution);
  const Vector b{15, 10, 2, 9, 10, 3, 23, 5, 2, -4, 13, 7, 3, 4, 9, 10};
  for (const double start : {1.0, 0.0}) {
    ManyHost host(A, b, Vector(16, start));
    host.test_residual(1e-12);
    const Record record = host.run();
    EXPECT_EQ(record.status, 0);
    EXPECT_EQ(record.requests, std::string(18, '1'));
    expect_history(record.residuals, start == 1.0 ? joined(kFromOnes, kFromZeros) : joined(kFromZeros, kFromOnes),
                   1e-18);
    EXPECT_EQ(host.counts(), (std::vector<int>{8, 8}));
    EXPECT_EQ(host.request, 0) << "GET has no status";
    expect_near(host.x, solutions, 1e-9);
    EXPECT_TRUE(host.intact());
  }
}

// A right-hand side that is solved by its start does not hold up the next one, whether or not the solver tests.
TEST(CgMany, SolvedFromTheStart) {
  const Csr A = spd4();
  const Vector b{1, 2, 3, 4, 0, 0, 0, 0, 4, 3, 2, 1};
  for (const int automatic : {1, 0}) {
    ManyHost host(A, b, Vector(12, 0.0));
    host.ipar[8] = automatic;
    host.ipar[4] = 10;
    host.dpar[0] = 1e-24;
    const int status = host.run().status;
    EXPECT_TRUE(status == 0 || automatic == 0);
    const std::vector<int> counts = host.counts();
    EXPECT_EQ(counts[1], 0);
    EXPECT_GT(counts[2], 1);
    EXPECT_LT(residual_norm(A, b.data() + 8, host.x.data() + 8), 1e-9);
  }
}

TEST(CgMany, CodesAndMisuse) {
  const Csr A = spd4();
  const Vector b{1, 2, 3, 4, 4, 3, 2, 1};
  ManyHost host(A, b, Vector(8, 0.0));
  EXPECT_EQ(host.init(0, 1), -10000);
  EXPECT_EQ(host.init(2, 2), -10000);
  EXPECT_EQ(host.check(2), 0);
  EXPECT_EQ(host.check(0), -1100);
  host.ipar[7] = host.ipar[9] = 0;
  EXPECT_EQ(host.step(), -11);
  EXPECT_EQ(host.check(2), -1011);
  host.ipar[4] = 1;
  host.dpar[0] = 1e-20;
  EXPECT_EQ(host.run().status, -1);
  EXPECT_EQ(host.counts()[0], 1);
  for (const int index : {0, 3, -1}) {
    host.ipar[2] = index;
    EXPECT_EQ(host.step(), -11);
  }
  // A host that fills ipar itself, without INIT, leaves anything in the reserved entries.
  ManyHost filled(A, b, Vector(8, 0.0));
  for (std::size_t i = 11; i < filled.ipar.size(); ++i) filled.ipar[i] = 123456;
  for (std::size_t i = 8; i < filled.dpar.size(); ++i) filled.dpar[i] = std::nan("");
  filled.test_residual(1e-6);
  EXPECT_EQ(filled.run().status, 0);
  filled.ipar[2] = 1;
  filled.ipar[3] = 0;
  std::fill(filled.x.begin(), filled.x.end(), 0.0);
  EXPECT_EQ(filled.run().status, 0);
  EXPECT_LT(residual_norm(A, filled.b.data() + 4, filled.x.data() + 4), 1e-2);
}

}  // namespace
}  // namespace rci_test
