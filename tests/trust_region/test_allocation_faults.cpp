// The k-th allocation fails, alone or with all after it, for k = 1, 2, ...: a call then says so and holds nothing.
#include <gtest/gtest.h>

#include <cstdint>

#include "tests/support/failing_host.hpp"

namespace quorin::test {
namespace {

void twice(int32_t* m, int32_t*, float* x, float* f) {
  for (int32_t i = 0; i < *m; ++i) f[i] = 2 * x[0];
}

TEST(AllocationFaults, AreAStatusAndLeakNothing) {
  const FailingHost host;
  constexpr int kSuccess = 1501, kOutOfMemory = 1503, kMostAllocations = 100;
  const int32_t n = 3, m = 5, limit = 10;
  float x[] = {1, 2, 3}, low[] = {0, 0, 0}, high[] = {9, 9, 9}, eps[6] = {}, columns[15] = {};
  const float step = 0.5F, rs = 0;
  for (int call = 0; call < 4; ++call) {
    for (const int failures : {1, 1000}) {
      SCOPED_TRACE(testing::Message() << "call " << call << ", failing " << failures);
      int status = kOutOfMemory, k = 0;
      while (status == kOutOfMemory && ++k < kMostAllocations) {
        const int live = host.live_blocks();
        int something = 0;
        void* handle = &something;
        host.run_failing(k, failures, [&] {
          if (call == 0) status = host->strnlsp_init(&handle, &n, &m, x, eps, &limit, &limit, &rs);
          if (call == 1) status = host->strnlspbc_init(&handle, &n, &m, x, low, high, eps, &limit, &limit, &rs);
          if (call == 2) status = host->sjacobi_init(&handle, &n, &m, x, columns, &step);
          if (call == 3) status = host->sjacobi(twice, &n, &m, columns, x, &step);
        });
        if (status == kOutOfMemory) {
          EXPECT_TRUE(call == 3 || handle == nullptr);
          EXPECT_EQ(host.live_blocks(), live);
          continue;
        }
        ASSERT_EQ(status, kSuccess);
        if (call == 0) status = host->strnlsp_delete(&handle);
        if (call == 1) status = host->strnlspbc_delete(&handle);
        if (call == 2) status = host->sjacobi_delete(&handle);
        EXPECT_EQ(status, kSuccess);
        EXPECT_EQ(host.live_blocks(), live);
      }
      EXPECT_GT(k, 1) << "no allocation failed";
      EXPECT_LT(k, kMostAllocations);
    }
  }
}

}  // namespace
}  // namespace quorin::test
