// The incomplete factorizations when memory fails: each allocation in turn.
#include <vector>

#include "quorin/rci.h"
#include "tests/support/failing_host.hpp"

namespace quorin::test {
namespace {

constexpr double kMark = -7.0;

// The same four rows as in the published examples, with full fill.
struct Matrix {
  int n = 4;
  std::vector<int> ia{1, 4, 7, 10, 13}, ja{1, 2, 3, 1, 2, 4, 1, 3, 4, 2, 3, 4};
  std::vector<double> a{4, -1, -1, -1, 4, -1, -1, 4, -1, -1, -1, 4};
  std::vector<int> ipar = std::vector<int>(128, 0);
  std::vector<double> dpar = std::vector<double>(128, 1.0);
};

bool is_marked(const std::vector<double>& values) { return values == std::vector<double>(values.size(), kMark); }

TEST(IluWithoutMemory, ReportsItAndLeavesTheOutputs) {
  const FailingHost host;
  const Matrix m;
  std::vector<double> values;
  const auto ilu0 = [&] {
    values.assign(m.a.size(), kMark);
    int ierr = 7;
    host.symbol<decltype(DCSRILU0)>("DCSRILU0")(&m.n, m.a.data(), m.ia.data(), m.ja.data(), values.data(),
                                                m.ipar.data(), m.dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilu0, [&] { return is_marked(values); });
  EXPECT_NEAR(values.back(), 52.0 / 15, 1e-15);

  std::vector<int> starts(5), columns(17);
  const auto ilut = [&] {
    const double tolerance = 1e-6;
    const int fill = 3;
    values.assign(columns.size(), kMark);
    int ierr = 7;
    host.symbol<decltype(DCSRILUT)>("DCSRILUT")(&m.n, m.a.data(), m.ia.data(), m.ja.data(), values.data(),
                                                starts.data(), columns.data(), &tolerance, &fill, m.ipar.data(),
                                                m.dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilut, [&] { return is_marked(values); });
  EXPECT_EQ(starts.back(), 15);
}

}  // namespace
}  // namespace quorin::test
