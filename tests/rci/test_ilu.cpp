// Incomplete LU: against the defining identities, and against an independent factorization that keeps its rows in maps.
#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

#include "tests/rci/ilu_oracle.hpp"
#include "tests/rci/rci_host.hpp"

namespace rci_test {
namespace {

// L U from the factors in one pattern.
Dense product(const Csr& factors) {
  const int n = factors.n;
  const Dense m = dense(factors);
  Dense lu(n, Vector(n, 0.0));
  for (int i = 0; i < n; ++i) {
    for (int k = 0; k <= i; ++k) {
      const double l = k == i ? 1.0 : m[i][k];
      for (int j = k; l != 0.0 && j < n; ++j) lu[i][j] += l * m[k][j];
    }
  }
  return lu;
}

Csr matrix4() {
  return {4, {1, 4, 7, 10, 13}, {1, 2, 3, 1, 2, 4, 1, 3, 4, 2, 3, 4}, {4, -1, -1, -1, 4, -1, -1, 4, -1, -1, -1, 4}};
}

TEST(Ilu0, PublishedExample) {
  const Ilu0 ilu(matrix4(), Settings().replace(1e-20, 1e-16));
  EXPECT_EQ(ilu.ierr, 0);
  expect_near(ilu.factors.a, {4, -1, -1, -0.25, 3.75, -1, -0.25, 3.75, -1, -4.0 / 15, -4.0 / 15, 52.0 / 15}, 1e-15);
  EXPECT_NEAR(norm(ilu.factors.a), 7.772387, 5e-7);
}

// ILU(0) is the one factorization on the pattern of A whose product agrees with A there.
TEST(Ilu0, AgreesWithTheMatrixOnItsPattern) {
  std::mt19937 random(17);
  for (int trial = 0; trial < 30; ++trial) {
    const int n = 1 + trial * 3;
    const Csr A = random_matrix(n, 0.05 + 0.02 * (trial % 10), 0.5, false, random);
    const Ilu0 ilu(A);
    ASSERT_EQ(ilu.ierr, 0);
    EXPECT_TRUE(ilu.guarded);
    EXPECT_LT(pattern_residual(A, ilu.factors), 1e-14);
    // In place.
    Csr B = A;
    const Settings s;
    int ierr = 7;
    DCSRILU0(&B.n, B.a.data(), B.ia.data(), B.ja.data(), B.a.data(), s.ipar.data(), s.dpar.data(), &ierr);
    EXPECT_EQ(ierr, 0);
    EXPECT_EQ(B.a, ilu.factors.a);
  }
}

TEST(Ilu0, PivotRules) {
  const Csr swap{2, {1, 3, 5}, {1, 2, 1, 2}, {0, 1, 1, 0}};
  Settings s;
  EXPECT_EQ(Ilu0(swap, s).ierr, -102);
  s.ipar[30] = 1;
  const Ilu0 replaced(swap, s);
  EXPECT_EQ(replaced.ierr, 0);
  expect_near(replaced.factors.a, {1e-10, 1, 1e10, -1e10}, 1e-2);
  EXPECT_EQ(replaced.factors.a[0], 1e-10);
  EXPECT_EQ(Ilu0(swap, Settings().replace(0.0, 1e-10)).ierr, -102) << "a threshold of 0 replaces nothing";
  EXPECT_EQ(Ilu0(swap, Settings().replace(1e-16, 0.0)).ierr, -102);

  const Csr small{2, {1, 3, 5}, {1, 2, 1, 2}, {1e-20, 1, 1, 1}};
  Settings stop;
  EXPECT_EQ(Ilu0(small, stop).ierr, -103);
  stop.dpar[30] = -1e-19;  // its magnitude counts
  EXPECT_EQ(Ilu0(small, stop).ierr, -103);
  stop.dpar[30] = 0.0;
  EXPECT_EQ(Ilu0(small, stop).ierr, 0);
  const Csr bad{1, {1, 2}, {1}, {std::nan("")}};
  EXPECT_EQ(Ilu0(bad).ierr, -103);
}

TEST(Ilu0, RefusesOtherInput) {
  EXPECT_EQ(Ilu0({2, {1, 2, 3}, {2, 1}, {1, 1}}).ierr, -101);
  EXPECT_EQ(Ilu0({2, {1, 2, 2}, {1}, {1}}).ierr, -101) << "empty row";
  EXPECT_EQ(Ilu0({2, {1, 3, 4}, {2, 1, 2}, {1, 1, 1}}).ierr, -106);
  EXPECT_EQ(Ilu0({2, {1, 3, 5}, {1, 1, 1, 2}, {1, 1, 1, 1}}).ierr, -106) << "column twice";
  EXPECT_EQ(Ilu0({2, {1, 3, 5}, {1, 3, 1, 2}, {1, 1, 1, 1}}).ierr, -106) << "column outside";
  EXPECT_EQ(Ilu0({2, {0, 1, 2}, {0, 1}, {1, 1}}).ierr, -106) << "zero-based";
  for (const int n : {0, -4, std::numeric_limits<int>::min()}) {
    const Csr empty{n, {1}, {}, {}};
    EXPECT_EQ(Ilu0(empty).ierr, -105);
  }
}

TEST(Ilut, PublishedExample) {
  const Csr A = matrix4();
  const Ilut ilu(A, 1e-6, 1, Settings().replace(1e-5, 0.0));
  EXPECT_EQ(ilu.ierr, 0);
  EXPECT_TRUE(ilu.guarded);
  EXPECT_EQ(ilu.factors.ia, (std::vector<int>{1, 3, 6, 9, 11}));
  EXPECT_EQ(ilu.factors.ja, (std::vector<int>{1, 2, 1, 2, 4, 1, 3, 4, 2, 4}));
  expect_near(ilu.factors.a, {4, -1, -0.25, 3.75, -1, -0.25, 4, -16.0 / 15, -4.0 / 15, 52.0 / 15}, 1e-14);
  EXPECT_NEAR(norm(ilu.factors.a), 7.836719, 5e-7);

  const Vector full{4,     -1,         -1,        -0.25,      3.75,       -0.25,      -1,
                    -0.25, -0.0666667, 3.7333333, -1.0666667, -0.2666667, -0.2857143, 3.4285714};
  for (const int fill : {2, 3}) {
    for (const double tol : {0.0, 1e-6}) expect_near(Ilut(A, tol, fill).factors.a, full, 6e-8);
    EXPECT_NEAR(norm(Ilut(A, 0.0, fill).factors.a), 7.761304, 5e-7);
  }
  for (const int fill : {0, 1, 3}) EXPECT_EQ(Ilut(A, 0.3, fill).factors.a, Vector(4, 4.0));
  EXPECT_EQ(Ilut(A, 0.05, 2).factors.a.size(), 13u) << "the norm of a row is the Euclidean one";
}

TEST(Ilut, EqualsTheFactorizationByMaps) {
  std::mt19937 random(23);
  for (int trial = 0; trial < 60; ++trial) {
    const int n = 1 + trial * 2;
    Csr A = random_matrix(n, 0.02 + 0.03 * (trial % 7), 0.4, false, random);
    if (trial % 3 == 0) {
      // Few distinct magnitudes make many ties.
      for (double& e : A.a) e = std::copysign(std::fabs(e) < 0.5 ? 0.25 : 0.5, e);
      for (int i = 0; i < n; ++i) {
        for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) A.a[k] = A.ja[k] == i + 1 ? 4.0 : A.a[k];
      }
    }
    const double tol = trial % 4 == 0 ? 0.0 : std::pow(10.0, -(trial % 5));
    const int fill = trial % 6;
    Settings s;
    s.replace(10.0, 0.0);
    s.ipar[30] = 0;
    const Ilut ilu(A, 1e-3 * tol, fill, s);
    const int expected = fill >= n ? 101 : 0;
    ASSERT_EQ(ilu.ierr, expected) << n;
    EXPECT_TRUE(ilu.guarded);
    const Csr oracle = map_ilut(A, 1e-3 * tol, std::min(fill, n - 1), 0.0);
    EXPECT_EQ(ilu.factors.ia, oracle.ia);
    EXPECT_EQ(ilu.factors.ja, oracle.ja);
    expect_near(ilu.factors.a, oracle.a, 1e-12);
  }
}

// Without dropping, L U = A, for sizes on both sides of the words and levels of the column tree.
TEST(Ilut, WithoutDroppingFactorsExactly) {
  std::mt19937 random(29);
  for (const int n : {1, 2, 31, 32, 33, 63, 64, 65, 129}) {
    const Csr A = random_matrix(n, 0.1, 0.6, false, random);
    const Ilut ilu(A, 0.0, n - 1);
    ASSERT_EQ(ilu.ierr, 0);
    const Dense lu = product(ilu.factors), a = dense(A);
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) EXPECT_NEAR(lu[i][j], a[i][j], 1e-12) << n << ": " << i << ", " << j;
    }
  }
}

// Rows far apart in a wide matrix: all levels of the column tree are in use.
TEST(Ilut, WideMatrix) {
  constexpr int kSize = 70000;
  Csr A{kSize, {1}, {}, {}};
  for (int i = 0; i < kSize; ++i) {
    const int reach[] = {i - 65000, i - 1, i, i + 1, i + 33000};
    for (const int j : reach) {
      if (j < 0 || j >= kSize) continue;
      A.ja.push_back(j + 1);
      A.a.push_back(j == i ? 4.0 : -1.0 + 0.1 * ((i + j) % 3));
    }
    A.ia.push_back(static_cast<int>(A.ja.size()) + 1);
  }
  Settings s;
  s.dpar[30] = 1.0;
  const Ilut ilu(A, 1e-2, 5, s);
  ASSERT_EQ(ilu.ierr, 0);
  const Csr oracle = map_ilut(A, 1e-2, 5, 0.0);
  EXPECT_EQ(ilu.factors.ja, oracle.ja);
  expect_near(ilu.factors.a, oracle.a, 1e-12);
}

TEST(Ilut, CodesAndWarnings) {
  const Csr A = matrix4();
  Settings s;
  s.dpar[30] = 1e-5;
  EXPECT_EQ(Ilut(A, 1e-6, 4, s).ierr, 101);
  EXPECT_EQ(Ilut(A, 1e-6, 4, s).factors.a, Ilut(A, 1e-6, 3, s).factors.a);
  EXPECT_EQ(Ilut(A, -1e-6, 1, s).ierr, 102);
  EXPECT_EQ(Ilut(A, -1e-6, 1, s).factors.a, Ilut(A, 1e-6, 1, s).factors.a);
  EXPECT_EQ(Ilut(A, 1e-4, 1, s).ierr, 103);
  EXPECT_EQ(Ilut(A, -1.0, 9, s).ierr, -102) << "an error outranks the warnings";
  s.dpar[30] = 0.0;
  EXPECT_EQ(Ilut(A, 0.0, 1, s).ierr, 104);
  EXPECT_EQ(Ilut(A, 1e-9, 1, s).ierr, 103);

  s.dpar[30] = 1.0;
  EXPECT_EQ(Ilut({2, {1, 1, 2}, {2}, {1}}, 0.0, 1, s).ierr, -101);
  EXPECT_EQ(Ilut({2, {2, 1, 2}, {2}, {1}}, 0.0, 1, s).ierr, -103);
  EXPECT_EQ(Ilut(A, 0.0, -1, s).ierr, -105);
  EXPECT_EQ(Ilut({-1, {1}, {}, {}}, 0.0, 1, s).ierr, -106);
  EXPECT_EQ(Ilut({1, {1, 2}, {2}, {1}}, 0.0, 0, s).ierr, -107);
  EXPECT_EQ(Ilut({1, {1, 2}, {0}, {1}}, 0.0, 0, s).ierr, -107);

  const Csr swap{2, {1, 2, 3}, {2, 1}, {3, 1}};
  EXPECT_EQ(Ilut(swap, 0.1, 1, s).ierr, -102);
  const Ilut replaced(swap, 0.1, 1, Settings().replace(0.5, 0.0));
  EXPECT_EQ(replaced.ierr, 0);
  expect_near(replaced.factors.a, {1.5, 3, 1 / 1.5, -2}, 1e-15);
  EXPECT_EQ(Ilut({1, {1, 2}, {1}, {0}}, 0.1, 0, Settings().replace(0.5, 0.0)).ierr, -102) << "a row of zeros";
  EXPECT_EQ(Ilut({1, {1, 2}, {1}, {std::nan("")}}, 0.1, 0, Settings().replace(0.5, 0.0)).ierr, -102);
  EXPECT_EQ(Ilut(A, std::nan(""), 1, s).ierr, -102);
}

TEST(Ilu, MessagesGoToTheirFile) {
  const char* log = "MKL_PREC_log.txt";
  std::remove(log);
  const Csr swap{2, {1, 2, 3}, {2, 1}, {1, 1}};
  Settings s;
  EXPECT_EQ(Ilu0(swap, s).ierr, -101);
  EXPECT_EQ(std::fopen(log, "r"), nullptr) << "silent when switched off";
  s.ipar[5] = 1;
  EXPECT_EQ(Ilu0(swap, s).ierr, -101);
  std::FILE* stream = std::fopen(log, "r");
  ASSERT_NE(stream, nullptr);
  char line[200] = {};
  EXPECT_NE(std::fgets(line, sizeof line, stream), nullptr);
  std::fclose(stream);
  EXPECT_EQ(std::string(line).substr(0, 22), "dcsrilu0: error -101: ");
  std::remove(log);
}

// FGMRES with the factors, as published.
TEST(Ilu, PreconditionsFgmres) {
  const Csr A = matrix4();
  const auto solve = [&](const Csr& factors, const Vector& start, int m, bool automatic) {
    FgmresHost host(A, Vector(4, 2.0), start, m, true);
    host.precondition = [&](int, const double* in, double* out) { solve_lu(factors, in, out); };
    host.ipar[7] = 0;
    host.ipar[8] = automatic ? 1 : 0;
    host.ipar[9] = automatic ? 0 : 1;
    host.dpar[0] = 1e-3;
    host.satisfied = [&] { return host.true_residual() < 1e-3; };
    const Record record = host.run();
    EXPECT_EQ(host.get(), 0);
    expect_near(host.x, Vector(4, 1.0), automatic ? 0.2 : 1e-3);
    return std::pair(host.itercount, record.residuals);
  };
  const Vector far{100, 0, 0, 0}, zero(4, 0.0);
  const Csr ilu0 = Ilu0(A, Settings().replace(1e-20, 1e-16)).factors;
  const auto [count, history] = solve(ilu0, far, 2, false);
  EXPECT_EQ(count, 2);
  expect_history(history, {423.3391076, 0.3069071796, 0}, 1e-12);
  EXPECT_EQ(solve(ilu0, far, 2, true).first, 1);
  expect_history(solve(ilu0, zero, 2, false).second, {4, 0.2444402531, 0}, 1e-14);
  EXPECT_EQ(solve(ilu0, zero, 2, true).first, 2);

  const Csr ilut = Ilut(A, 1e-6, 1, Settings().replace(1e-5, 0.0)).factors;
  EXPECT_EQ(solve(Ilut(A, 0.0, 3).factors, far, 2, false).first, 1) << "complete factors";
  EXPECT_EQ(solve(ilut, far, 2, false).first, 4);
  EXPECT_EQ(solve(ilut, far, 2, true).first, 2);
  EXPECT_EQ(solve(ilut, far, 4, false).first, 3);
  EXPECT_EQ(solve(ilut, far, 4, true).first, 2);
  EXPECT_EQ(solve(ilut, zero, 2, false).first, 4);
  EXPECT_EQ(solve(ilut, zero, 2, true).first, 3);
}

}  // namespace
}  // namespace rci_test
