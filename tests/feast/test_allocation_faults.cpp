// The k-th allocation fails, alone or with all after it, for k = 1, 2, ...: a call then tells so, or does with less,
// and holds nothing.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "tests/support/failing_host.hpp"

namespace quorin::test {
namespace {

constexpr int kSide = 6, kOrder = kSide * kSide, kRoom = 20;

// The lower triangle of a grid's Laplacian, one-based rows.
struct Grid {
  std::vector<float> values;
  std::vector<std::int32_t> starts, columns;
  Grid() {
    for (int i = 0; i < kOrder; ++i) {
      starts.push_back(static_cast<std::int32_t>(values.size()) + 1);
      if (i >= kSide) add(i - kSide, -1);
      if (i % kSide > 0) add(i - 1, -1);
      add(i, 4);
    }
    starts.push_back(static_cast<std::int32_t>(values.size()) + 1);
  }
  void add(int column, float value) {
    columns.push_back(column + 1);
    values.push_back(value);
  }
};

TEST(FeastWithoutMemory, TellsSoOrDoesWithLess) {
  constexpr int kNoMemory = -1, kMostAllocations = 2000;
  const FailingHost host;
  const Grid grid;
  std::vector<quorin_complex> complex_values, identity(kOrder, {1, 0});
  for (const float value : grid.values) complex_values.push_back({value, 0});
  std::vector<std::int32_t> one_each(kOrder + 1), diagonal(kOrder);
  for (int i = 0; i <= kOrder; ++i) one_each[static_cast<std::size_t>(i)] = i + 1;
  for (int i = 0; i < kOrder; ++i) diagonal[static_cast<std::size_t>(i)] = i + 1;
  const char uplo = 'L';
  const std::int32_t n = kOrder;
  const float emin = 1, emax = 3;
  std::vector<std::int32_t> fpm(128);
  host->feastinit_32f(fpm.data());
  fpm[1] = 3;
  std::vector<float> e(kRoom), res(kRoom), x(std::size_t{2} * kRoom * kOrder);
  std::int32_t loop = 0, m = 0, m0 = kRoom, info = 0;
  float epsout = 0;
  for (const bool is_complex : {false, true}) {
    int found = -1, lean = 0;
    for (const int failures : {1, kMostAllocations}) {
      int k = 0;
      bool has_failed = true;
      while (has_failed) {
        ASSERT_LT(++k, kMostAllocations);
        m0 = kRoom;
        m = loop = -7;
        e.assign(kRoom, -7);
        has_failed = host.run_failing(k, failures, [&] {
          if (is_complex) {
            host->cfeast_hcsrgv(&uplo, &n, complex_values.data(), grid.starts.data(), grid.columns.data(),
                                identity.data(), one_each.data(), diagonal.data(), fpm.data(), &epsout, &loop, &emin,
                                &emax, &m0, e.data(), reinterpret_cast<quorin_complex*>(x.data()), &m, res.data(),
                                &info);
          } else {
            host->sfeast_scsrev(&uplo, &n, grid.values.data(), grid.starts.data(), grid.columns.data(), fpm.data(),
                                &epsout, &loop, &emin, &emax, &m0, e.data(), x.data(), &m, res.data(), &info);
          }
        });
        host->sMKL_FreeBuffers();
        EXPECT_EQ(host.live_blocks(), 0) << "allocation " << k;
        if (info == 0) {
          if (found < 0) found = m;
          EXPECT_EQ(m, found);
          lean += has_failed ? 1 : 0;
          continue;
        }
        EXPECT_EQ(info, kNoMemory) << "allocation " << k;
        EXPECT_TRUE(has_failed);
        EXPECT_EQ(m, 0);
        EXPECT_EQ(loop, 0);
        EXPECT_EQ(e, std::vector<float>(kRoom, -7));
      }
      EXPECT_GT(k, 10);
    }
    EXPECT_GT(found, 3);
    EXPECT_GT(lean, 0) << "no factor was ever made again for want of memory";
  }
}

}  // namespace
}  // namespace quorin::test
