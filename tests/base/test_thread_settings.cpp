// How many threads a region gets, from what the host has set.
#include "base/thread_settings.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/platform.hpp"

namespace quorin::base {
namespace {

TEST(ThreadSettings, DynamicAdjustmentKeepsRegionsToTheCores) {
  const int cores = platform::physical_core_count();
  for (const int count : {1, cores, cores + 1, 50, kMostThreads, kMostThreads + 1, 100'000}) {
    set_thread_count(Domain::kAll, count);
    set_thread_count(Domain::kFft, 1);
    set_dynamic(true);
    EXPECT_EQ(region_threads(Domain::kBlas), std::min({count, cores, kMostThreads}));
    EXPECT_EQ(region_threads(Domain::kFft), 1);
    set_dynamic(false);
    EXPECT_EQ(region_threads(Domain::kBlas), std::min(count, kMostThreads));
    EXPECT_EQ(region_threads(Domain::kFft), 1);
    EXPECT_EQ(thread_count(Domain::kBlas), count) << "the limit is not shown to the host";
  }
}

}  // namespace
}  // namespace quorin::base
