// The incomplete factorizations when memory fails: each allocation in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/support/failing_host.hpp"

namespace rci_test {
namespace {

TEST(IluWithoutMemory, ReportsItAndLeavesTheOutputs) {
  const quorin::test::FailingHost host;
  const int n = 4, ia[] = {1, 4, 7, 10, 13}, ja[] = {1, 2, 3, 1, 2, 4, 1, 3, 4, 2, 3, 4};
  const double a[] = {4, -1, -1, -1, 4, -1, -1, 4, -1, -1, -1, 4};
  const std::vector<int> ipar(128);
  std::vector<double> dpar(128), values;
  dpar[30] = 1;
  const double tolerance = 1e-6;
  const int full = 3;
  std::vector<int> starts(5), columns(17);
  const auto is_marked = [&] { return std::all_of(values.begin(), values.end(), [](double v) { return v == -7.0; }); };
  const auto ilu0 = [&] {
    values.assign(std::size(a), -7.0);
    int ierr = 7;
    host->DCSRILU0(&n, a, ia, ja, values.data(), ipar.data(), dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilu0, is_marked);
  EXPECT_NEAR(values.back(), 52.0 / 15, 1e-15);
  const auto ilut = [&] {
    values.assign(columns.size(), -7.0);
    int ierr = 7;
    host->DCSRILUT(&n, a, ia, ja, values.data(), starts.data(), columns.data(), &tolerance, &full, ipar.data(),
                   dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilut, is_marked);
  EXPECT_EQ(starts.back(), 15);
}

}  // namespace
}  // namespace rci_test
