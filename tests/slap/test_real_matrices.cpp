// The solvers on matrices from applications, scaled to a unit diagonal.
#include "tests/slap/slap_host.hpp"
#include "tests/support/test.hpp"

namespace slap_test {
namespace {

Triads scaled(const std::string& name, bool is_symmetric) {
  quorin::test::SparseMatrix A = quorin::test::read_triplets(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/" + name);
  if (is_symmetric) A.mirror();
  Doubles scale(A.rows, 1.0);
  for (const auto& e : A.entries) {
    if (e.row == e.column && e.value != 0.0) scale[e.row] = 1 / std::sqrt(std::abs(e.value));
  }
  for (auto& e : A.entries) e.value *= scale[e.row] * scale[e.column];
  return triads(A);
}

struct Case {
  const char* name;
  bool is_symmetric;
  int size;
  std::vector<const char*> solvers;
};

TEST(RealMatrices, ScaledSystems) {
  const Case cases[] = {
      {"bcsstk01",
       true,
       48,
       {"SSDCG", "SSICCG", "SSDBCG", "SSLUBC", "SSLUCS", "SSDGMR", "SSLUGM", "SSDOMN", "SSLUOM", "SSGS"}},
      {"bcsstk16", true, 4884, {"SSDCG", "SSICCG", "SSDBCG", "SSLUBC", "SSLUCS", "SSLUGM", "SSLUOM", "SSILUR"}},
      {"fs_183_1", false, 183, {"SSLUBC", "SSLUCS", "SSLUGM", "SSLUOM", "SSILUR", "SSLUCN"}},
  };
  for (const Case& c : cases) {
    const Triads a = scaled(c.name, c.is_symmetric);
    ASSERT_EQ(a.n, c.size) << c.name;
    const Floats b = right_hand_side(a, Doubles(a.n, 1.0));
    for (const char* name : c.solvers) {
      const Outcome o = run(solver(name), a, b, {.tol = 1e-3F, .itmax = 3000, .nsave = 30});
      EXPECT_EQ(o.ierr, 0) << c.name << ", " << name << ", " << o.iter << " iterations, " << o.err;
      EXPECT_NEAR(relative_residual(a, b, o.x), o.err, 2e-4) << c.name << ", " << name;
      EXPECT_TRUE(o.is_guarded);
    }
  }
}

}  // namespace
}  // namespace slap_test
