// The worker pool: every part runs once, from many host threads at once, and idle workers come and go.
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "tests/support/test.hpp"

namespace quorin::base {
namespace {

class Parallel : public testing::Test {
 protected:
  static void SetUpTestSuite() { start_parallel(); }
  void TearDown() override { set_block_time(200); }
};

void expect_each_part_once(int parts, int threads) {
  std::vector<std::atomic<int>> calls(static_cast<std::size_t>(parts));
  parallel_for(parts, threads, [&](int i) { calls[static_cast<std::size_t>(i)].fetch_add(1); });
  for (const auto& count : calls) ASSERT_EQ(count.load(), 1);
}

TEST_F(Parallel, RunsEveryPartOnceForAnyBlockTime) {
  for (const int milliseconds : {200, 1, 0}) {
    set_block_time(milliseconds);
    for (int repeat = 0; repeat < 200; ++repeat) {
      for (const int parts : {0, 1, 2, 7, 64}) expect_each_part_once(parts, 4);
    }
  }
}

TEST_F(Parallel, ServesManyHostThreadsAtOnce) {
  set_block_time(1);
  std::array<std::jthread, 8> hosts;
  for (auto& host : hosts) {
    host = std::jthread([] {
      for (int repeat = 0; repeat < 300; ++repeat) expect_each_part_once(16, 3);
    });
  }
}

TEST_F(Parallel, RunsOnSeveralThreadsAndNestsSequentially) {
  // Two parts that wait for each other can only end if two threads run them.
  std::atomic<int> arrived{0};
  parallel_for(2, 2, [&](int) {
    arrived.fetch_add(1);
    while (arrived.load() < 2) std::this_thread::yield();
    EXPECT_TRUE(in_parallel_region());
    const auto outer = std::this_thread::get_id();
    parallel_for(4, 4, [&](int) { EXPECT_EQ(std::this_thread::get_id(), outer); });
  });
  EXPECT_FALSE(in_parallel_region());
}

// Regions of several hosts share the workers, of which there are never more than one region can have.
TEST_F(Parallel, KeepsToTheMostThreads) {
  constexpr int kHosts = 4;
  std::mutex mutex;
  std::set<std::thread::id> threads;
  const auto run = [&] {
    parallel_for(2 * kMostThreads, 2 * kMostThreads, [&](int) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
      const std::lock_guard lock(mutex);
      threads.insert(std::this_thread::get_id());
    });
  };
  set_block_time(1000);
  {
    std::array<std::jthread, kHosts> hosts;
    for (auto& host : hosts) host = std::jthread(run);
  }
  EXPECT_LE(threads.size(), kMostThreads - 1 + kHosts);
}

}  // namespace
}  // namespace quorin::base
