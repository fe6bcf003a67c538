// Incomplete LU: against the defining identities, and against an independent factorization that keeps its rows in maps.
#include "tests/rci/ilu_host.hpp"
#include "tests/rci/rci_host.hpp"
#include "tests/support/test.hpp"

namespace rci_test {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

using Rows = std::vector<std::map<int, double>>;

Csr from_rows(const Rows& rows) {
  Csr out{static_cast<int>(rows.size()), {1}, {}, {}};
  for (const auto& row : rows) {
    for (const auto& [j, v] : row) {
      out.ja.push_back(j + 1);
      out.a.push_back(v);
    }
    out.ia.push_back(static_cast<int>(out.ja.size()) + 1);
  }
  return out;
}

// Saad's ILUT; of equal magnitudes the lower column stays. A pivot below tol times the norm of its row becomes
// `multiplier` times that norm.
Csr map_ilut(const Csr& A, double tol, int fill, double multiplier) {
  Rows rows(A.n);
  const auto keep_largest = [&](std::map<int, double>& part) {
    std::vector<std::pair<double, int>> order;
    for (const auto& [j, v] : part) order.emplace_back(-std::fabs(v), j);
    std::sort(order.begin(), order.end());
    for (std::size_t k = fill; k < order.size(); ++k) part.erase(order[k].second);
  };
  for (int i = 0; i < A.n; ++i) {
    std::map<int, double> row, lower, upper;
    double length = 0.0;
    for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) {
      row[A.ja[k] - 1] = A.a[k];
      length = std::hypot(length, A.a[k]);
    }
    const double drop = tol * length;
    for (auto entry = row.begin(); entry != row.end() && entry->first < i; ++entry) {
      const double factor = entry->second / rows[entry->first].at(entry->first);
      if (std::fabs(factor) <= drop) continue;
      lower[entry->first] = factor;
      for (const auto& [j, v] : rows[entry->first]) {
        if (j > entry->first) row[j] -= factor * v;
      }
    }
    for (const auto& [j, v] : row) {
      if (j > i && std::fabs(v) > drop) upper[j] = v;
    }
    keep_largest(lower);
    keep_largest(upper);
    rows[i] = lower;
    rows[i].insert(upper.begin(), upper.end());
    rows[i][i] = std::fabs(row[i]) < drop ? multiplier * length : row[i];
  }
  return from_rows(rows);
}

// The largest of |(L U - A)(i,j)| over the pattern of A, each relative to the terms it is summed from.
double pattern_residual(const Csr& A, const Csr& factors) {
  double worst = 0.0;
  for (int i = 0; i < A.n; ++i) {
    std::map<int, std::pair<double, double>> row;  // sum, and sum of magnitudes
    const auto add_row = [&](int k, double l) {
      for (int u = factors.ia[k] - 1; u < factors.ia[k + 1] - 1; ++u) {
        if (factors.ja[u] - 1 < k) continue;
        row[factors.ja[u] - 1].first += l * factors.a[u];
        row[factors.ja[u] - 1].second += std::fabs(l * factors.a[u]);
      }
    };
    for (int p = factors.ia[i] - 1; factors.ja[p] - 1 < i; ++p) add_row(factors.ja[p] - 1, factors.a[p]);
    add_row(i, 1.0);
    for (int p = A.ia[i] - 1; p < A.ia[i + 1] - 1; ++p) {
      const auto& [sum, magnitude] = row[A.ja[p] - 1];
      const double scale = magnitude + std::fabs(A.a[p]);
      if (scale > 0.0) worst = std::max(worst, std::fabs(sum - A.a[p]) / scale);
    }
  }
  return worst;
}

// ILU(0) is the one factorization on the pattern of A whose product agrees with A there.
TEST(Ilu0, AgreesWithTheMatrixOnItsPattern) {
  std::mt19937 random(17);
  for (int trial = 0; trial < 30; ++trial) {
    const Csr A = random_matrix(1 + trial * 3, 0.05 + 0.02 * (trial % 10), 0.5, false, random);
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

struct Verdict {
  const char* why;
  Csr A;
  Settings settings;
  int ierr;
};

TEST(Ilu0, Verdicts) {
  const Csr swap{2, {1, 3, 5}, {1, 2, 1, 2}, {0, 1, 1, 0}}, small{2, {1, 3, 5}, {1, 2, 1, 2}, {1e-20, 1, 1, 1}};
  const Settings s;
  const Verdict cases[] = {
      {"zero pivot", swap, s, -102},
      {"a threshold of 0 replaces nothing", swap, Settings(0.0, true), -102},
      {"replaced by 0", swap, Settings(1e-16, true, 0.0), -102},
      {"small pivot", small, s, -103},
      {"the magnitude of the threshold counts", small, Settings(-1e-19), -103},
      {"no threshold", small, Settings(0.0), 0},
      {"not a number", {1, {1, 2}, {1}, {kNan}}, s, -103},
      {"no diagonal", {2, {1, 2, 3}, {2, 1}, {1, 1}}, s, -101},
      {"empty row", {2, {1, 2, 2}, {1}, {1}}, s, -101},
      {"columns not ascending", {2, {1, 3, 4}, {2, 1, 2}, {1, 1, 1}}, s, -106},
      {"column twice", {2, {1, 3, 5}, {1, 1, 1, 2}, {1, 1, 1, 1}}, s, -106},
      {"column outside", {2, {1, 3, 5}, {1, 3, 1, 2}, {1, 1, 1, 1}}, s, -106},
      {"zero-based", {2, {0, 1, 2}, {0, 1}, {1, 1}}, s, -106},
      {"the first row begins behind the first entry", {2, {2, 3, 4}, {7, 1, 2}, {7, 1, 1}}, s, 0},
      {"no size", {0, {1}, {}, {}}, s, -105},
      {"negative size", {-4, {1}, {}, {}}, s, -105},
      {"least size", {std::numeric_limits<int>::min(), {1}, {}, {}}, s, -105},
  };
  for (const Verdict& c : cases) EXPECT_EQ(Ilu0(c.A, c.settings).ierr, c.ierr) << c.why;
  const Ilu0 replaced(swap, Settings(1e-16, true));
  EXPECT_EQ(replaced.ierr, 0);
  expect_near(replaced.factors.a, {1e-10, 1, 1e10, -1e10}, 1e-2);
  EXPECT_EQ(replaced.factors.a[0], 1e-10);
}

TEST(Ilut, DropsWhatEqualsTheTolerance) {
  // The rows' norms are 5: 3 = 0.6 * 5 goes, in L (3 = 15 / 5) as in U.
  const Csr upper = sparse({{4, 3}, {0, 5}}), lower = sparse({{0.8, 0}, {3, 4}});
  EXPECT_EQ(Ilut(upper, 0.6, 1).factors.a, (Vector{4, 5}));
  EXPECT_EQ(Ilut(upper, 0.5999, 1).factors.a, (Vector{4, 3, 5}));
  EXPECT_EQ(Ilut(lower, 0.75, 1).factors.a, (Vector{0.8, 4}));
  EXPECT_EQ(Ilut(lower, 0.7499, 1).factors.a, (Vector{0.8, 3.75, 4}));
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
    const double tol = trial % 4 == 0 ? 0.0 : std::pow(10.0, -3 - trial % 5);
    const int fill = trial % 8 < 6 ? trial % 6 : n - 1;
    const Ilut ilu(A, tol, fill, Settings(10.0));
    ASSERT_EQ(ilu.ierr, fill >= n ? 101 : 0) << n;
    EXPECT_TRUE(ilu.guarded);
    const Csr oracle = map_ilut(A, tol, std::min(fill, n - 1), 0.0);
    EXPECT_EQ(ilu.factors.ia, oracle.ia);
    EXPECT_EQ(ilu.factors.ja, oracle.ja);
    expect_near(ilu.factors.a, oracle.a, 1e-12);
  }
}

// Rows far apart in a wide matrix: all levels of the column tree are in use.
TEST(Ilut, WideMatrix) {
  constexpr int kSize = 70000;
  Rows rows(kSize);
  for (int i = 0; i < kSize; ++i) {
    for (const int j : {i - 65000, i - 1, i, i + 1, i + 33000}) {
      if (j >= 0 && j < kSize) rows[i][j] = j == i ? 4.0 : -1.0 + 0.1 * ((i + j) % 3);
    }
  }
  const Csr A = from_rows(rows);
  const Ilut ilu(A, 1e-2, 5, Settings(1.0));
  ASSERT_EQ(ilu.ierr, 0);
  const Csr oracle = map_ilut(A, 1e-2, 5, 0.0);
  EXPECT_EQ(ilu.factors.ja, oracle.ja);
  expect_near(ilu.factors.a, oracle.a, 1e-12);
}

TEST(Ilut, Verdicts) {
  const Csr A = spd4(), swap{2, {1, 2, 3}, {2, 1}, {3, 1}};
  const Settings s(1.0), replacing(0.5, true, 0.0);
  struct Case : Verdict {
    double tol;
    int fill;
  };
  const Case cases[] = {
      {{"fill too large", A, Settings(1e-5), 101}, 1e-6, 4},
      {{"tolerance negative", A, Settings(1e-5), 102}, -1e-6, 1},
      {{"tolerance above dpar(31)", A, Settings(1e-5), 103}, 1e-4, 1},
      {{"dpar(31) zero", A, Settings(0.0), 104}, 0.0, 1},
      {{"both of these", A, Settings(0.0), 103}, 1e-9, 1},
      {{"an error outranks the warnings", A, Settings(1e-5), -102}, -1.0, 9},
      {{"empty row", {2, {1, 1, 2}, {2}, {1}}, s, -101}, 0.0, 1},
      {{"row starts decrease", {2, {2, 1, 2}, {2}, {1}}, s, -103}, 0.0, 1},
      {{"negative fill", A, s, -105}, 0.0, -1},
      {{"negative size", {-1, {1}, {}, {}}, s, -106}, 0.0, 1},
      {{"column beyond", {1, {1, 2}, {2}, {1}}, s, -107}, 0.0, 0},
      {{"column before", {1, {1, 2}, {0}, {1}}, s, -107}, 0.0, 0},
      {{"no diagonal", swap, s, -102}, 0.1, 1},
      {{"the replacement overflows", swap, Settings(1e308, true, 0.0), -102}, 0.1, 1},
      {{"a row of zeros", {1, {1, 2}, {1}, {0}}, replacing, -102}, 0.1, 0},
      {{"not a number", {1, {1, 2}, {1}, {kNan}}, replacing, -102}, 0.1, 0},
      {{"tolerance not a number", A, s, -102}, kNan, 1},
  };
  for (const Case& c : cases) EXPECT_EQ(Ilut(c.A, c.tol, c.fill, c.settings).ierr, c.ierr) << c.why;
  const Csr full = sparse({{4, 1, 1, 1}, {1, 4, 1, 1}, {1, 1, 4, 1}, {1, 1, 1, 4}});
  EXPECT_EQ(Ilut(full, 1e-6, 4).factors.a.size(), 16U);
  EXPECT_EQ(Ilut(A, -1e-6, 1).factors.a, Ilut(A, 1e-6, 1).factors.a);
  const Ilut replaced(swap, 0.1, 1, replacing);
  EXPECT_EQ(replaced.ierr, 0);
  expect_near(replaced.factors.a, {1.5, 3, 1 / 1.5, -2}, 1e-15);
}

}  // namespace
}  // namespace rci_test
