// Filter design and Toeplitz systems when memory fails: each allocation in turn.
#include <cmath>
#include <vector>

#include "tests/support/failing_host.hpp"

namespace quorin::test {
namespace {

TEST(SignalWithoutMemory, RemezReportsItAndLeavesTheFilter) {
  const FailingHost host;
  constexpr double kMark = 12345.0;
  constexpr int kTaps = 61;
  std::vector<double> h;
  const auto design = [&] {
    const int taps = kTaps, band_count = 2, type = 1, by_default = 0;
    const double bands[] = {0, 0.1, 0.15, 0.5}, desired[] = {1, 0}, weight[] = {1, 10};
    h.assign(kTaps, kMark);
    int ierr = -1;
    host->REMEZ(h.data(), &taps, &band_count, bands, desired, weight, &type, &by_default, &by_default, &ierr);
    return ierr;
  };
  expect_status_without_memory(host, 3, design, [&] { return h == std::vector<double>(kTaps, kMark); });
}

// They have no code for it, and need none: the host's work arrays do instead.
TEST(SignalWithoutMemory, ToeplitzSystemsAreSolvedInTheWorkArrays) {
  const FailingHost host;
  constexpr int kOrder = 50;
  std::vector<float> row(kOrder), column(kOrder - 1), b(kOrder, 1.0F), with(kOrder), without(kOrder), c1(kOrder - 1),
      c2(kOrder - 1);
  for (int i = 0; i < kOrder; ++i) row[i] = 1.0F / static_cast<float>(1 + i * i);
  for (int i = 1; i < kOrder; ++i) column[i - 1] = -row[i] / 2;
  const auto solve = [&](std::vector<float>& x) {
    const int m = kOrder;
    host->TSLS1(row.data(), column.data(), b.data(), x.data(), c1.data(), c2.data(), &m);
  };
  EXPECT_TRUE(host.run_failing(1, 1, [&] { solve(without); }));
  EXPECT_NE(c1, std::vector<float>(kOrder - 1));
  solve(with);
  for (int i = 0; i < kOrder; ++i) EXPECT_NEAR(without[i], with[i], 1e-5F * std::fabs(with[i])) << i;
  EXPECT_EQ(host.live_blocks(), 0);
}

}  // namespace
}  // namespace quorin::test
