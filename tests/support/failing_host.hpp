// A host with an allocator of its own under the library, which fails when it is told to.
#pragma once

#include "tests/boundary/counting_allocator.hpp"
#include "tests/support/host_module.hpp"

namespace quorin::test {

class FailingHost {
 public:
  // host->sgemm(...)
  const quorin_library* operator->() const { return &*product_; }
  const quorin_library& product() const { return *product_; }

  // The allocator's own function, for arrays that hosts release.
  void release(void* block) const { (*allocator_.symbol<void (*)(void*)>("i_free_dll"))(block); }

  // Blocks that the library holds.
  int live_blocks() const { return state().live; }

  // How many bytes the action takes, at most at a time and in the end.
  struct Bytes {
    double most, kept;
  };
  template <class Action>
  Bytes measure(const Action& action) const {
    const std::size_t before = state().bytes;
    state().most_bytes = before;
    action();
    return {static_cast<double>(state().most_bytes - before), static_cast<double>(state().bytes - before)};
  }

  // Runs the action while its k-th allocation, from 1 on, and the `failures` - 1 after it fail. False when it did not
  // ask for so many.
  template <class Action>
  bool run_failing(int k, int failures, const Action& action) const {
    state().failures = failures;
    state().fail_at = k;
    action();
    state().fail_at = 0;
    return state().failures < failures;
  }

 private:
  CountingAllocatorState& state() const { return *allocator_.symbol<CountingAllocatorState>("imalloc_state"); }

  TestLibrary allocator_{"complete", "libimalloc"};
  Product product_;
};

// Fails each allocation of the call in turn, alone and with all that follow. `call()` returns the status, which must be
// `expected`; `is_untouched()` then tells whether the outputs are as they were. In the end the call succeeds with
// status 0.
template <class Call, class IsUntouched>
void expect_status_without_memory(const FailingHost& host, int expected, const Call& call,
                                  const IsUntouched& is_untouched) {
  constexpr int kMostAllocations = 1000;
  for (const int failures : {1, kMostAllocations}) {
    int k = 1, status = -1;
    while (host.run_failing(k, failures, [&] { status = call(); })) {
      EXPECT_EQ(status, expected) << "allocation " << k;
      EXPECT_TRUE(is_untouched()) << "allocation " << k;
      EXPECT_EQ(host.live_blocks(), 0) << "allocation " << k;
      ASSERT_LT(++k, kMostAllocations);
    }
    EXPECT_GT(k, 1) << "the call takes no memory";
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(is_untouched());
    EXPECT_EQ(host.live_blocks(), 0);
  }
}

}  // namespace quorin::test
