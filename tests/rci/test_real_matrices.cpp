// The preconditioners and solvers on matrices from applications, that come with the dependencies.
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "tests/rci/ilu_oracle.hpp"
#include "tests/rci/rci_host.hpp"

namespace rci_test {
namespace {

// Zero-based triplets, a line each; of a symmetric matrix one triangle.
Csr read_triplets(const std::string& name, bool symmetric) {
  std::ifstream file(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/" + name);
  std::vector<std::map<int, double>> rows;
  int i = 0, j = 0;
  double value = 0.0;
  const auto add = [&](int row, int column) {
    if (rows.size() <= static_cast<std::size_t>(std::max(row, column))) rows.resize(std::max(row, column) + 1);
    rows[row][column] += value;
  };
  while (file >> i >> j >> value) {
    add(i, j);
    if (symmetric && i != j) add(j, i);
  }
  return from_rows(rows);
}

struct Case {
  const char* name;
  bool symmetric;
  int size;
};

Csr load(const Case& c) {
  Csr A = read_triplets(c.name, c.symmetric);
  EXPECT_EQ(A.n, c.size) << c.name;
  return A;
}

TEST(RealMatrices, Ilu0AgreesOnThePattern) {
  for (const Case c : {Case{"bcsstk01", true, 48}, Case{"bcsstk16", true, 4884}, Case{"fs_183_1", false, 183}}) {
    const Csr A = load(c);
    const Ilu0 ilu(A);
    ASSERT_EQ(ilu.ierr, 0) << c.name;
    EXPECT_LT(pattern_residual(A, ilu.factors), 1e-12) << c.name;
  }
  EXPECT_EQ(Ilu0(load({"west0067", false, 67})).ierr, -101);
}

TEST(RealMatrices, IlutEqualsTheFactorizationByMaps) {
  const Case cases[] = {{"bcsstk01", true, 48}, {"bcsstk16", true, 4884}, {"fs_183_1", false, 183}};
  for (const Case& c : cases) {
    const Csr A = load(c);
    for (const int fill : {3, 20}) {
      for (const double tol : {1e-2, 1e-4}) {
        const Ilut ilu(A, tol, fill, Settings().replace(1.0, 0.0));
        ASSERT_EQ(ilu.ierr, 0) << c.name;
        EXPECT_TRUE(ilu.guarded);
        const Csr oracle = map_ilut(A, tol, fill, 1.0);
        ASSERT_EQ(ilu.factors.ia, oracle.ia) << c.name;
        EXPECT_EQ(ilu.factors.ja, oracle.ja) << c.name;
        double worst = 0.0;
        for (std::size_t k = 0; k < oracle.a.size(); ++k) {
          worst = std::max(worst, std::fabs(ilu.factors.a[k] - oracle.a[k]) / std::fabs(oracle.a[k]));
        }
        EXPECT_LT(worst, 1e-6) << c.name;
      }
    }
  }
  // No diagonal: pivots come from fill or are replaced.
  const Csr A = load({"west0067", false, 67});
  EXPECT_EQ(Ilut(A, 1e-3, 10).ierr, -102);
  EXPECT_EQ(Ilut(A, 1e-3, 10, Settings().replace(1e-1, 0.0)).ierr, 0);
}

TEST(RealMatrices, CgOnAStiffnessMatrix) {
  const Csr A = load({"bcsstk16", true, 4884});
  const Vector b = A * Vector(A.n, 1.0);
  Vector diagonal(A.n);
  for (int i = 0; i < A.n; ++i) {
    for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) diagonal[i] = A.ja[k] == i + 1 ? A.a[k] : diagonal[i];
  }
  CgHost host(A, b, Vector(A.n, 0.0), true);
  host.precondition = [&](int, const double* in, double* out) {
    for (int i = 0; i < A.n; ++i) out[i] = in[i] / diagonal[i];
  };
  host.ipar[4] = 2000;
  host.ipar[8] = 1;
  host.ipar[9] = 0;
  host.dpar[0] = 1e-16;
  EXPECT_EQ(host.run().status, 0);
  EXPECT_LE(residual_norm(A, b.data(), host.x.data()), 1.01e-8 * norm(b));
}

TEST(RealMatrices, FgmresWithIlut) {
  for (const Case c : {Case{"bcsstk16", true, 4884}, Case{"fs_183_1", false, 183}, Case{"bcsstk01", true, 48}}) {
    const Csr A = load(c);
    const Vector b = A * Vector(A.n, 1.0);
    const Ilut ilu(A, 1e-6, 60, Settings().replace(1.0, 0.0));
    ASSERT_GE(ilu.ierr, 0);
    FgmresHost host(A, b, Vector(A.n, 0.0), std::min(A.n, 30), true);
    host.precondition = [&](int, const double* in, double* out) { solve_lu(ilu.factors, in, out); };
    host.ipar[4] = 300;
    host.ipar[8] = 1;
    host.ipar[9] = 0;
    host.ipar[11] = 1;
    host.dpar[0] = 1e-9;
    EXPECT_EQ(host.run().status, 0) << c.name;
    EXPECT_EQ(host.get(), 0);
    EXPECT_NEAR(residual_norm(A, b.data(), host.x.data()), host.dpar[4], 1e-12 * norm(b)) << c.name;
  }
}

}  // namespace
}  // namespace rci_test
