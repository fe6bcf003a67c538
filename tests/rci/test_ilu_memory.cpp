// The incomplete factorizations when memory fails: each allocation in turn.
#include <algorithm>

#include "tests/rci/ilu_oracle.hpp"
#include "tests/rci/rci_host.hpp"
#include "tests/support/failing_host.hpp"

namespace rci_test {
namespace {

TEST(IluWithoutMemory, ReportsItAndLeavesTheOutputs) {
  const quorin::test::FailingHost host;
  const Csr A = spd4();
  const Settings s(1.0);
  const double tolerance = 1e-6;
  const int full = 3;
  Vector values;
  std::vector<int> starts(5), columns(17);
  const auto is_marked = [&] { return std::all_of(values.begin(), values.end(), [](double v) { return v == -7.0; }); };
  const auto ilu0 = [&] {
    values.assign(A.a.size(), -7.0);
    int ierr = 7;
    host->DCSRILU0(&A.n, A.a.data(), A.ia.data(), A.ja.data(), values.data(), s.ipar.data(), s.dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilu0, is_marked);
  EXPECT_NEAR(values.back(), 52.0 / 15, 1e-15);
  const auto ilut = [&] {
    values.assign(columns.size(), -7.0);
    int ierr = 7;
    host->DCSRILUT(&A.n, A.a.data(), A.ia.data(), A.ja.data(), values.data(), starts.data(), columns.data(), &tolerance,
                   &full, s.ipar.data(), s.dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilut, is_marked);
  EXPECT_EQ(starts.back(), 15);
}

}  // namespace
}  // namespace rci_test
