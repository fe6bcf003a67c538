// The packing buffers: no buffer is ever in two hands, and none gets lost.
#include "dense/openblas/buffers.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <thread>
#include <vector>

#include "base/parallel.hpp"

// What OpenBLAS calls.
extern "C" {
void* blas_memory_alloc(int position);
void blas_memory_free(void* buffer);
}

namespace quorin::dense::openblas {
namespace {

class Buffers : public testing::Test {
 protected:
  void SetUp() override {
    base::start_parallel();
    start_buffers();
  }
  void TearDown() override {
    trim_buffers();
    stop_buffers();
    base::stop_parallel();
  }
};

// Marks a buffer as this user's, lets others run, and looks whether the mark is still there.
bool use_alone(void* memory, int user) {
  auto* const mark = static_cast<std::atomic<int>*>(memory);
  mark->store(user);
  std::this_thread::yield();
  return mark->load() == user;
}

bool take_and_return(int user) {
  void* const buffer = blas_memory_alloc(0);
  const bool alone = use_alone(buffer, user);
  blas_memory_free(buffer);
  return alone;
}

TEST_F(Buffers, OneThreadGetsTheSameBufferAgain) {
  std::set<void*> seen;
  for (int i = 0; i < 3; ++i) {
    const BufferReservation reservation(1);
    ASSERT_EQ(reservation.granted(), 1);
    for (int k = 0; k < 2; ++k) {
      void* const buffer = blas_memory_alloc(0);
      seen.insert(buffer);
      blas_memory_free(buffer);
    }
  }
  EXPECT_EQ(seen.size(), 1U);
}

TEST_F(Buffers, BuffersInUseAtTheSameTimeDiffer) {
  const BufferReservation outer(1);
  void* const first = blas_memory_alloc(0);
  void* second = nullptr;
  {
    const BufferReservation inner(1);
    second = blas_memory_alloc(0);
    void* const third = blas_memory_alloc(0);
    EXPECT_EQ((std::set<void*>{first, second, third}).size(), 3U);
    blas_memory_free(third);
    blas_memory_free(second);
  }
  blas_memory_free(first);
  void* const again = blas_memory_alloc(0);
  EXPECT_EQ(again, first);
  blas_memory_free(again);
}

// What has been promised must not depend on memory that there may be none of any more.
TEST_F(Buffers, TrimmingLeavesThePromisedOnes) {
  constexpr int kMark = 0x5eed, kPromised = 3;
  int* marks[5];
  {
    const BufferReservation more(5);
    ASSERT_EQ(more.granted(), 5);
    for (int*& mark : marks) mark = static_cast<int*>(blas_memory_alloc(0)) + 16;
    for (int* mark : marks) {
      *mark = kMark;
      blas_memory_free(mark - 16);
    }
  }
  const BufferReservation reservation(kPromised);
  ASSERT_EQ(reservation.granted(), kPromised);
  trim_buffers();
  for (int i = 0; i < kPromised; ++i) {
    marks[i] = static_cast<int*>(blas_memory_alloc(0)) + 16;
    EXPECT_EQ(*marks[i], kMark) << "a new buffer";
  }
  for (int i = 0; i < kPromised; ++i) blas_memory_free(marks[i] - 16);
}

TEST_F(Buffers, ManyThreadsNeverShareOne) {
  constexpr int kThreads = 8, kRounds = 300;
  std::atomic<int> shared{0};
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int user = 0; user < kThreads; ++user) {
    threads.emplace_back([&, user] {
      for (int i = 0; i < kRounds; ++i) {
        if (i % 50 == 0 && user == 0) trim_buffers();
        if (i % 5 == 4) {  // without a reservation, as LAPACK does
          if (!take_and_return(user)) ++shared;
          continue;
        }
        const BufferReservation reservation(i % 4 == 3 ? 2 : 1);
        if (!take_and_return(user)) ++shared;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(shared, 0);
}

}  // namespace
}  // namespace quorin::dense::openblas
