// The k-th allocation fails, alone or with all after it, for k = 1, 2, ...: a call then says so and holds nothing.
#include <gtest/gtest.h>

#include <cstdint>

#include "quorin/quorin.h"
#include "tests/boundary/counting_allocator.hpp"
#include "tests/support/host_module.hpp"

namespace quorin::test {
namespace {

void twice(int32_t* m, int32_t*, float* x, float* f) {
  for (int32_t i = 0; i < *m; ++i) f[i] = 2 * x[0];
}

TEST(AllocationFaults, AreAStatusAndLeakNothing) {
  const HostModule allocator = load_test_library("complete", "libimalloc"), product = load_product();
  auto* const init = product.symbol<decltype(strnlsp_init)>("strnlsp_init");
  auto* const bounded_init = product.symbol<decltype(strnlspbc_init)>("strnlspbc_init");
  auto* const jacobi_init = product.symbol<decltype(sjacobi_init)>("sjacobi_init");
  auto* const jacobi = product.symbol<decltype(sjacobi)>("sjacobi");
  auto* const destroy = product.symbol<decltype(strnlsp_delete)>("strnlsp_delete");
  auto* const bounded_destroy = product.symbol<decltype(strnlspbc_delete)>("strnlspbc_delete");
  auto* const jacobi_destroy = product.symbol<decltype(sjacobi_delete)>("sjacobi_delete");
  CountingAllocatorState& state = *allocator.symbol<CountingAllocatorState>("imalloc_state");

  constexpr int kSuccess = 1501, kOutOfMemory = 1503, kMostAllocations = 100;
  const int32_t n = 3, m = 5, limit = 10;
  float x[] = {1, 2, 3}, low[] = {0, 0, 0}, high[] = {9, 9, 9}, eps[6] = {}, columns[15] = {};
  const float step = 0.5F, rs = 0;
  for (int call = 0; call < 4; ++call) {
    for (const int failures : {1, 1000}) {
      SCOPED_TRACE(testing::Message() << "call " << call << ", failing " << failures);
      int status = kOutOfMemory, k = 0;
      while (status == kOutOfMemory && ++k < kMostAllocations) {
        const int live = state.live;
        state.failures = failures;
        state.fail_at = k;
        void* handle = &state;
        if (call == 0) status = init(&handle, &n, &m, x, eps, &limit, &limit, &rs);
        if (call == 1) status = bounded_init(&handle, &n, &m, x, low, high, eps, &limit, &limit, &rs);
        if (call == 2) status = jacobi_init(&handle, &n, &m, x, columns, &step);
        if (call == 3) status = jacobi(twice, &n, &m, columns, x, &step);
        state.fail_at = 0;
        if (status == kOutOfMemory) {
          EXPECT_TRUE(call == 3 || handle == nullptr);
          EXPECT_EQ(state.live, live);
          continue;
        }
        ASSERT_EQ(status, kSuccess);
        if (call == 0) status = destroy(&handle);
        if (call == 1) status = bounded_destroy(&handle);
        if (call == 2) status = jacobi_destroy(&handle);
        EXPECT_EQ(status, kSuccess);
        EXPECT_EQ(state.live, live);
      }
      EXPECT_GT(k, 1) << "no allocation failed";
      EXPECT_LT(k, kMostAllocations);
    }
  }
}

}  // namespace
}  // namespace quorin::test
