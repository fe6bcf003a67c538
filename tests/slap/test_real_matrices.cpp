// The solvers on matrices from applications, scaled to a unit diagonal.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>

#include "tests/slap/slap_host.hpp"

namespace slap_test {
namespace {

// Zero-based triplets, a line each; of a symmetric matrix one triangle.
Triads read_triplets(const std::string& name, bool is_symmetric) {
  std::ifstream file(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/" + name);
  Triads t;
  Doubles values;
  int i = 0, j = 0;
  double value = 0;
  const auto add = [&](int row, int column) {
    t.n = std::max({t.n, row + 1, column + 1});
    t.add(row + 1, column + 1, 0);
    values.push_back(value);
  };
  while (file >> i >> j >> value) {
    add(i, j);
    if (is_symmetric && i != j) add(j, i);
  }
  Doubles scale(t.n, 1.0);
  for (int k = 0; k < t.nelt(); ++k) {
    if (t.ia[k] == t.ja[k] && values[k] != 0) scale[t.ia[k] - 1] = 1 / std::sqrt(std::fabs(values[k]));
  }
  for (int k = 0; k < t.nelt(); ++k) {
    t.a[k] = static_cast<float>(values[k] * scale[t.ia[k] - 1] * scale[t.ja[k] - 1]);
  }
  return t;
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
    const Triads a = read_triplets(c.name, c.is_symmetric);
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
