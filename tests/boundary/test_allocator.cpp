// The library's allocator from inside: all four functions of a libimalloc are used, what fails stays a null pointer,
// and no more is kept for later calls than is told.
#include "base/allocator.hpp"
#include "base/workspace.hpp"
#include "dense/blocked/buffers.hpp"
#include "tests/boundary/counting_allocator.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

class Allocator : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(module_);
    base::choose_allocator();
  }

  CountingAllocatorState& state() const { return *module_.symbol<CountingAllocatorState>("imalloc_state"); }

 private:
  const TestLibrary module_{"complete", "libimalloc"};
};

// However many threads have packed matrices at once, idle ones keep 64 buffers of a megabyte.
TEST_F(Allocator, GetsBackBuffersThatNobodyNeeds) {
  using dense::blocked::BufferReservation;
  const auto& state = this->state();
  {
    const BufferReservation first(50), second(50);
    ASSERT_EQ(first.granted() + second.granted(), 100);
    EXPECT_EQ(state.live, 100);
  }
  EXPECT_EQ(state.live, 64);
  dense::blocked::trim_buffers();
  EXPECT_EQ(state.live, 0);
  // So is the one that waits for the next call of one thread.
  { const BufferReservation alone(1); }
  EXPECT_EQ(state.live, 1);
  dense::blocked::trim_buffers();
  EXPECT_EQ(state.live, 0);
}

TEST_F(Allocator, GoesThroughTheFourFunctions) {
  auto& state = this->state();

  auto* bytes = static_cast<unsigned char*>(base::allocate_zeroed(7, 3));
  ASSERT_NE(bytes, nullptr);
  EXPECT_EQ(std::count(bytes, bytes + 21, 0), 21);
  std::fill_n(bytes, 21, static_cast<unsigned char>(9));
  bytes = static_cast<unsigned char*>(base::reallocate(bytes, 5000));
  ASSERT_NE(bytes, nullptr);
  EXPECT_EQ(std::count(bytes, bytes + 21, 9), 21);
  base::release(bytes);
  base::release(nullptr);
  EXPECT_EQ(state.allocate_zeroed, 1);
  EXPECT_EQ(state.reallocate, 1);
  EXPECT_EQ(state.release, 1);

  {
    base::Workspace<double> numbers(100);
    ASSERT_TRUE(numbers);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(numbers.data()) % base::Workspace<double>::kAlignment, 0U);
    EXPECT_EQ(state.live, 1);
    state.fail_at = 1;
    const base::Workspace<double> none(100);
    EXPECT_FALSE(none);
    EXPECT_EQ(none.data(), nullptr);
  }
  const int allocations = state.allocate;
  EXPECT_FALSE(base::Workspace<double>(SIZE_MAX / 4)) << "more bytes than a size_t can count";
  EXPECT_EQ(state.allocate, allocations) << "asked the allocator for a size that had wrapped";
  EXPECT_EQ(state.live, 0);
}

}  // namespace
}  // namespace quorin::test
