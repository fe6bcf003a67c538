// The packing buffers: no buffer is ever in two hands, and none gets lost.
#include <atomic>
#include <thread>

#include "base/parallel.hpp"
#include "dense/blocked/buffers.hpp"
#include "tests/support/test.hpp"

namespace quorin::dense::blocked {
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
  const LentBuffer buffer;
  return use_alone(buffer.data(), user);
}

TEST_F(Buffers, BuffersInUseAtTheSameTimeDiffer) {
  const BufferReservation outer(1);
  void* first_data = nullptr;
  {
    const LentBuffer first;
    first_data = first.data();
    const BufferReservation inner(1);
    const LentBuffer second, third;
    EXPECT_EQ((std::set<void*>{first.data(), second.data(), third.data()}).size(), 3U);
  }
  EXPECT_EQ(LentBuffer().data(), first_data);
}

// What has been promised must not depend on memory that there may be none of any more.
TEST_F(Buffers, TrimmingLeavesThePromisedOnes) {
  constexpr int kMark = 0x5eed, kPromised = 3;
  const auto mark = [](const LentBuffer& buffer) -> int& { return reinterpret_cast<int*>(buffer.data())[16]; };
  {
    const BufferReservation more(5);
    ASSERT_EQ(more.granted(), 5);
    const LentBuffer buffers[5];
    for (const LentBuffer& buffer : buffers) mark(buffer) = kMark;
  }
  const BufferReservation reservation(kPromised);
  ASSERT_EQ(reservation.granted(), kPromised);
  trim_buffers();
  const LentBuffer buffers[kPromised];
  for (const LentBuffer& buffer : buffers) EXPECT_EQ(mark(buffer), kMark) << "a new buffer";
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
}  // namespace quorin::dense::blocked
