// The preconditioners and solvers on matrices from applications, that come with the dependencies.
#include "tests/rci/ilu_oracle.hpp"
#include "tests/rci/rci_host.hpp"
#include "tests/support/test.hpp"

namespace rci_test {
namespace {

Csr read_triplets(const std::string& name, bool symmetric, int size) {
  auto A = quorin::test::read_triplets(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/" + name);
  if (symmetric) A.mirror();
  EXPECT_EQ(A.rows, size);
  return csr(A);
}

const Csr& stiffness() {
  static const Csr A = read_triplets("bcsstk16", true, 4884);
  return A;
}

struct Case {
  const char* name;
  Csr A;
};

std::vector<Case> cases() {
  return {{"bcsstk01", read_triplets("bcsstk01", true, 48)},
          {"bcsstk16", stiffness()},
          {"fs_183_1", read_triplets("fs_183_1", false, 183)}};
}

TEST(RealMatrices, Ilu0AgreesOnThePattern) {
  for (const auto& [name, A] : cases()) {
    const Ilu0 ilu(A);
    ASSERT_EQ(ilu.ierr, 0) << name;
    EXPECT_LT(pattern_residual(A, ilu.factors), 1e-12) << name;
  }
}

TEST(RealMatrices, IlutEqualsTheFactorizationByMaps) {
  for (const auto& [name, A] : cases()) {
    for (const int fill : {3, 20}) {
      for (const double tol : {1e-2, 1e-4}) {
        const Ilut ilu(A, tol, fill, Settings(1.0, true));
        ASSERT_EQ(ilu.ierr, 0) << name;
        EXPECT_TRUE(ilu.guarded);
        const Csr oracle = map_ilut(A, tol, fill, 1.0);
        ASSERT_EQ(ilu.factors.ia, oracle.ia) << name;
        EXPECT_EQ(ilu.factors.ja, oracle.ja) << name;
        double worst = 0.0;
        for (std::size_t k = 0; k < oracle.a.size(); ++k) {
          worst = std::max(worst, std::fabs(ilu.factors.a[k] - oracle.a[k]) / std::fabs(oracle.a[k]));
        }
        EXPECT_LT(worst, 1e-6) << name;
      }
    }
  }
}

// Pivots come from fill or are replaced.
TEST(RealMatrices, WithoutADiagonal) {
  const Csr A = read_triplets("west0067", false, 67);
  EXPECT_EQ(Ilu0(A).ierr, -101);
  EXPECT_EQ(Ilut(A, 1e-3, 10).ierr, -102);
  EXPECT_EQ(Ilut(A, 1e-3, 10, Settings(1e-1, true)).ierr, 0);
}

TEST(RealMatrices, CgOnAStiffnessMatrix) {
  const Csr& A = stiffness();
  CgHost host(A, A * Vector(A.n, 1.0), Vector(A.n, 0.0), true);
  host.precondition = jacobi(A);
  host.ipar[4] = 2000;
  host.test_residual(1e-16);
  EXPECT_EQ(host.run(), 0);
  EXPECT_LE(host.true_residual(), 1.01e-8 * norm(host.b));
}

TEST(RealMatrices, FgmresWithIlut) {
  for (const auto& [name, A] : cases()) {
    const Ilut ilu(A, 1e-6, 60, Settings(1.0, true));
    ASSERT_GE(ilu.ierr, 0);
    FgmresHost host(A, A * Vector(A.n, 1.0), Vector(A.n, 0.0), std::min(A.n, 30), true);
    host.precondition = [&](int, const double* in, double* out) { solve_lu(ilu.factors, in, out); };
    host.ipar[4] = 300;
    host.test_residual(1e-9);
    EXPECT_EQ(host.run(), 0) << name;
    EXPECT_NEAR(host.true_residual(), host.dpar[4], 1e-12 * norm(host.b)) << name;
  }
}

}  // namespace
}  // namespace rci_test
