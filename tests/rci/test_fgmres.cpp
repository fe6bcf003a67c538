// Flexible GMRES, driven as a host does.
#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <sstream>

#include "tests/rci/rci_host.hpp"

namespace rci_test {
namespace {

Csr nonsymmetric5() {
  return {5,
          {1, 3, 6, 9, 12, 14},
          {1, 3, 1, 2, 4, 2, 3, 5, 3, 4, 5, 4, 5},
          {1, -1, -1, 1, -1, 1, -2, 1, -1, 2, -1, -1, -3}};
}

const Vector kSolution5{-1, 1, 0, 1, -1};

void test_automatically(FgmresHost& host, double relative) {
  host.ipar[8] = 1;
  host.ipar[9] = 0;
  host.ipar[11] = 1;
  host.dpar[0] = relative;
}

TEST(Fgmres, PublishedPlainExample) {
  const Csr A = nonsymmetric5();
  const Vector b = A * kSolution5;
  ASSERT_EQ(b, (Vector{-1, 1, 0, 3, 2}));
  const std::pair<double, Vector> cases[] = {
      {1.0, {7.071067812, 4.372705497, 4.141871372, 2.435360652, 0.1393762442, 0}},
      {0.0, {3.872983346, 3.829708431, 2.407657176, 2.402986425, 0.04577914643, 0}}};
  for (const auto& [start, history] : cases) {
    FgmresHost host(A, b, Vector(5, start));
    test_automatically(host, 1e-3);
    ASSERT_EQ(host.check(), 0);
    const Record record = host.run();
    EXPECT_EQ(record.status, 0);
    expect_history(record.residuals, history, 1e-12);
    EXPECT_EQ(host.get(), 0);
    EXPECT_EQ(host.itercount, 5);
    expect_near(host.x, kSolution5, 1e-13);
    EXPECT_EQ(host.b, b);
    EXPECT_TRUE(host.intact());
  }
}

TEST(Fgmres, NormsOfTheGeneratedVectors) {
  const Csr A = nonsymmetric5();
  FgmresHost host(A, A * kSolution5, Vector(5, 1.0));
  Vector norms;
  host.satisfied = [&] {
    norms.push_back(host.dpar[6]);
    return false;
  };
  EXPECT_EQ(host.run().requests,
            "1"
            "124"
            "124"
            "124"
            "124"
            "124");
  expect_history(norms, {1.967232, 1.470368, 1.230850, 0.1186402, 0}, 1e-14);
}

// Restart after two steps, host tests, a preconditioner that depends on the iteration.
TEST(Fgmres, PublishedExampleOfAllFeatures) {
  const Csr A = nonsymmetric5();
  const Vector b = A * kSolution5;
  FgmresHost host(A, b, Vector(5, 1.0), 2, true);
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
      expect_near(host.trial(), {1, 0.9148039841389, 1.1590871369607, 0.6579193968746, -0.7566005147670}, 1e-12);
    return host.true_residual() < 1e-3;
  };
  const Record record = host.run();
  EXPECT_EQ(record.requests,
            "1"
            "3124"
            "3124"
            "1"
            "3124"
            "312");
  expect_history(record.residuals, {7.071068, 3.654275, 3.593855, 2.914676, 0}, 1e-12);
  expect_history(norms, {6.254, 4.811, 3.774, 0}, 1e-12, 1.5e-4);
  EXPECT_EQ(host.get(), 0);
  EXPECT_EQ(host.itercount, 4);
  expect_near(host.x, kSolution5, 1e-12);
  EXPECT_TRUE(host.intact());
}

TEST(Fgmres, SmallEnds) {
  const Csr two{3, {1, 2, 3, 4}, {1, 2, 3}, {2, 2, 2}};
  FgmresHost happy(two, {1, 2, 3}, Vector(3, 0.0));
  test_automatically(happy, 1e-10);
  EXPECT_EQ(happy.run().status, 0);
  EXPECT_EQ(happy.get(), 0);
  EXPECT_EQ(happy.itercount, 1);
  EXPECT_EQ(happy.dpar[4], 0.0);
  EXPECT_EQ(happy.dpar[6], 0.0);
  expect_near(happy.x, {0.5, 1, 1.5}, 1e-15);

  const Csr zero{2, {1, 2, 3}, {1, 2}, {0, 0}};
  FgmresHost degenerate(zero, {1, 2}, {0, 0});
  EXPECT_EQ(degenerate.run().status, -10);
  EXPECT_EQ(degenerate.step(), -10);
  EXPECT_EQ(degenerate.get(), 0);
  EXPECT_EQ(degenerate.x, (Vector{0, 0}));

  // The host goes on from a zero vector.
  FgmresHost stubborn(two, {1, 2, 3}, Vector(3, 0.0));
  while (stubborn.step() != 4) stubborn.serve();
  EXPECT_EQ(stubborn.step(), -10);

  FgmresHost exact(two, {2, 4, 6}, {1, 2, 3});
  EXPECT_EQ(exact.run().requests, "12");
  EXPECT_EQ(exact.request, -10);
  FgmresHost exact_tested(two, {2, 4, 6}, {1, 2, 3});
  test_automatically(exact_tested, 1e-3);
  EXPECT_EQ(exact_tested.run().status, 0);
  EXPECT_EQ(exact_tested.get(), 0);
  EXPECT_EQ(exact_tested.itercount, 0);
}

TEST(Fgmres, LimitAndGoingOn) {
  const Csr A = nonsymmetric5();
  const Vector b = A * kSolution5;
  FgmresHost host(A, b, Vector(5, 1.0));
  test_automatically(host, 1e-3);
  host.ipar[4] = 2;
  EXPECT_EQ(host.run().status, -1);
  EXPECT_NEAR(host.true_residual(), 4.141871372, 1e-8);
  EXPECT_EQ(host.step(), -1);
  host.ipar[4] = 5;
  EXPECT_EQ(host.run().status, 0);
  EXPECT_EQ(host.get(), 0);
  expect_near(host.x, kSolution5, 1e-12);

  FgmresHost limit_only(A, b, Vector(5, 1.0));
  limit_only.ipar[4] = 2;
  limit_only.ipar[9] = 0;
  limit_only.ipar[11] = 1;
  EXPECT_EQ(limit_only.run().status, 0);
}

TEST(Fgmres, GetAtAnyTime) {
  std::mt19937 random(11);
  const Csr A = random_matrix(30, 0.2, 0.6, false, random);
  const Vector b = random_vector(30, random);
  const auto halve = [](int, const double* in, double* out) {
    for (int i = 0; i < 30; ++i) out[i] = 0.5 * in[i] + 0.01 * i;
  };
  for (const bool preconditioned : {false, true}) {
    // The residual of the iterate never grows, GET before, between and within the steps.
    FgmresHost host(A, b, Vector(30, 0.5), 7, preconditioned);
    host.precondition = halve;
    host.ipar[7] = 0;
    double last = host.true_residual();
    EXPECT_EQ(host.trial(), host.x);
    int gets = 0;
    while (host.step() > 0 && host.ipar[3] < 40 && last > 1e-9) {
      const double now = host.true_residual();
      EXPECT_LE(now, last * (1 + 1e-10));
      if (host.request == 2) {
        EXPECT_NEAR(now, host.dpar[4], 1e-10 * norm(b));
      }
      last = now;
      ++gets;
      if (!host.serve()) break;
    }
    EXPECT_GT(gets, 40);
    // Into x, twice: the same; and the iteration may even go on.
    EXPECT_EQ(host.get(), 0);
    const Vector once = host.x;
    EXPECT_EQ(host.get(), 0);
    EXPECT_EQ(host.x, once);
    host.ipar[12] = -1;
    Vector untouched(30, 7.0);
    EXPECT_EQ(host.get(untouched), 0);
    EXPECT_EQ(untouched, Vector(30, 7.0));
    EXPECT_TRUE(host.intact());
  }
}

TEST(Fgmres, GetIntoXDoesNotEndTheIteration) {
  std::mt19937 random(12);
  const Csr A = random_matrix(30, 0.2, 0.6, false, random);
  FgmresHost host(A, random_vector(30, random), Vector(30, 0.0));
  host.ipar[8] = 1;
  host.dpar[0] = 1e-10;
  host.satisfied = [&] { return host.ipar[3] % 4 == 0 && host.get() != 0; };
  EXPECT_EQ(host.run().status, 0);
  EXPECT_EQ(host.get(), 0);
  EXPECT_LE(residual_norm(A, host.b.data(), host.x.data()), 1.0001e-10 * host.dpar[2]);
}

TEST(Fgmres, PreconditionerSwitchedWithinACycle) {
  std::mt19937 random(5);
  const Csr A = random_matrix(30, 0.2, 0.8, false, random);
  const Dense m = dense(A);
  const Vector b = random_vector(30, random);
  for (const int first : {0, 1}) {
    FgmresHost host(A, b, Vector(30, 0.0), 20, true);
    host.precondition = [&](int, const double* in, double* out) {
      for (int i = 0; i < 30; ++i) out[i] = in[i] / m[i][i];
    };
    host.ipar[10] = first;
    host.ipar[8] = 1;
    host.dpar[0] = 1e-8;
    host.satisfied = [&] {
      if (host.ipar[3] == 3) host.ipar[10] = 1 - first;
      return false;
    };
    EXPECT_EQ(host.run().status, 0);
    EXPECT_NEAR(host.true_residual(), host.dpar[4], 1e-12);
  }
}

TEST(Fgmres, CheckCodes) {
  const Csr A = nonsymmetric5();
  FgmresHost host(A, A * kSolution5, Vector(5, 1.0), 5);
  const int starts[] = {31, 46, 51, 56, 62, 67};
  for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(host.ipar[15 + i], starts[i]);
  EXPECT_EQ(host.ipar[4], 5);
  EXPECT_EQ(host.ipar[14], 5);
  EXPECT_EQ(host.check(), 0);
  host.ipar[14] = 2;
  EXPECT_EQ(host.check(), 0);
  EXPECT_EQ(host.ipar[20], 28);
  host.dpar[0] = -1;
  EXPECT_EQ(host.check(), -1001);
  host.ipar[7] = host.ipar[9] = 0;
  EXPECT_EQ(host.step(), -11);
  EXPECT_EQ(host.check(), -1011);
  EXPECT_EQ(host.ipar[7], 1);
  EXPECT_EQ(host.ipar[8], 1);
  for (const int bad : {0, -3, std::numeric_limits<int>::max()}) {
    host.ipar[14] = bad;
    EXPECT_EQ(host.check(), -1100);
    EXPECT_EQ(host.step(), -12);
  }
  const int negative = -1;
  DFGMRES_INIT(&negative, host.x.data(), host.b.data(), &host.request, host.ipar.data(), host.dpar.data(),
               host.tmp.data());
  EXPECT_EQ(host.request, -10000);
  EXPECT_TRUE(host.intact());
}

TEST(Fgmres, MisuseEndsTheRun) {
  const Csr A = nonsymmetric5();
  const Vector b = A * kSolution5;
  const auto begun = [&](int calls) {
    FgmresHost host(A, b, Vector(5, 1.0), 3);
    while (calls-- > 0) {
      host.step();
      host.serve();
    }
    return host;
  };
  // Sizes, stage, step count and positions are those of the run, or the call refuses; GET likewise.
  const std::pair<std::size_t, int> changes[] = {{0, 0},  {0, 6},  {2, 0},  {2, 77}, {2, -1}, {13, -1},
                                                 {13, 4}, {14, 0}, {14, 2}, {15, 1}, {17, 9}, {20, 1000000}};
  for (const auto& [entry, value] : changes) {
    FgmresHost host = begun(4);
    host.ipar[entry] = value;
    EXPECT_EQ(host.step(), -12) << "ipar entry " << entry << " = " << value;
    EXPECT_EQ(host.get(), -12) << "ipar entry " << entry << " = " << value;
  }
  for (const int calls : {1, 2, 3, 4, 5, 6}) {
    FgmresHost host = begun(calls);
    host.ipar[13] = 0;  // at stages that follow a step this is wrong, at others right
    host.run(50);
    EXPECT_TRUE(host.intact());
    FgmresHost switched = begun(calls);
    switched.ipar[7] = switched.ipar[8] = switched.ipar[9] = 0;
    EXPECT_EQ(switched.step(), -11);
  }
  FgmresHost not_numbers(A, {1, 2, std::nan(""), 0, 0}, Vector(5, 1.0));
  EXPECT_EQ(not_numbers.run().status, -10);
  FgmresHost bad_preconditioner(A, b, Vector(5, 1.0), 3, true);
  bad_preconditioner.precondition = [](int, const double*, double* out) { std::fill_n(out, 5, std::nan("")); };
  EXPECT_EQ(bad_preconditioner.run().status, -10);
}

// A step that cancels all but a few digits: the basis must stay orthogonal.
TEST(Fgmres, ReorthogonalisesWhenDigitsCancel) {
  constexpr int kSize = 60;
  std::mt19937 random(21);
  Csr A = random_matrix(kSize, 0.3, 0.0, false, random);
  for (double& e : A.a) e *= 1e-9;
  for (int i = 0; i < kSize; ++i) {
    for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) A.a[k] += A.ja[k] == i + 1 ? 1.0 : 0.0;
  }
  FgmresHost host(A, random_vector(kSize, random), Vector(kSize, 0.0), 10);
  host.ipar[4] = 10;
  host.satisfied = [&] { return host.ipar[3] == 10; };
  host.run();
  double worst = 0.0;
  for (int i = 0; i < 10; ++i) {
    for (int j = 0; j < i; ++j) {
      double product = 0.0;
      for (int l = 0; l < kSize; ++l) product += host.tmp[i * kSize + l] * host.tmp[j * kSize + l];
      worst = std::max(worst, std::fabs(product));
    }
  }
  EXPECT_LT(worst, 1e-13);
}

TEST(Fgmres, SurvivesExtremeScales) {
  const Csr A = nonsymmetric5();
  for (const double scale : {1e-250, 1e250}) {
    Vector b = A * kSolution5;
    for (double& e : b) e *= scale;
    FgmresHost host(A, b, Vector(5, 0.0));
    test_automatically(host, 1e-10);
    EXPECT_EQ(host.run().status, 0);
    host.get();
    for (int i = 0; i < 5; ++i) EXPECT_NEAR(host.x[i] / scale, kSolution5[i], 1e-12);
  }
}

std::string contents(const char* file) {
  std::string text;
  if (std::FILE* stream = std::fopen(file, "r")) {
    for (int c; (c = std::fgetc(stream)) != EOF;) text += static_cast<char>(c);
    std::fclose(stream);
  }
  return text;
}

// Whether the text is `count` whole lines that all begin with `prefix` and say something.
bool has_lines(const std::string& text, int count, const std::string& prefix) {
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line); --count) {
    if (!line.starts_with(prefix) || line.size() < prefix.size() + 10) return false;
  }
  return count == 0 && text.ends_with('\n');
}

// Whole lines in the family's files when ipar(2) is not 6, anew for each call, and nothing at all when switched off.
TEST(Messages, Files) {
  const char* log = "MKL_RCI_FGMRES_Log.txt";
  const char *cg_errors = "dcg_errors.txt", *cg_warnings = "dcg_check_warnings.txt";
  for (const char* file : {log, cg_errors, cg_warnings}) std::remove(file);
  const Csr A = nonsymmetric5();
  FgmresHost host(A, A * kSolution5, Vector(5, 1.0), 5);
  host.ipar[1] = 0;
  host.ipar[4] = 0;
  host.dpar[0] = -1.0;
  EXPECT_EQ(host.check(), -1001);
  EXPECT_EQ(contents(log), "");
  host.ipar[6] = 1;
  EXPECT_EQ(host.check(), -1001);
  EXPECT_TRUE(has_lines(contents(log), 2, "dfgmres_check: warning -1001: "));
  host.ipar[5] = 1;
  host.ipar[0] = 0;
  EXPECT_EQ(host.check(), -1100);
  EXPECT_TRUE(has_lines(contents(log), 1, "dfgmres_check: error -1100: "));
  CgHost cg(A, A * kSolution5, Vector(5, 1.0));
  cg.ipar[1] = 1;
  cg.ipar[4] = -1;
  cg.ipar[5] = cg.ipar[6] = 1;
  cg.check();
  cg.ipar[0] = 0;
  cg.step();
  EXPECT_TRUE(has_lines(contents(cg_errors), 1, "dcg: error -11: "));
  EXPECT_TRUE(has_lines(contents(cg_warnings), 1, "dcg_check: warning -1001: "));
  for (const char* file : {log, cg_errors, cg_warnings}) std::remove(file);
}

}  // namespace
}  // namespace rci_test
