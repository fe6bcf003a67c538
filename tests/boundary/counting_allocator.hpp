// What the test library libimalloc tells its host, in its exported variable `imalloc_state`.
#pragma once

#include <atomic>
#include <cstddef>

struct CountingAllocatorState {
  std::atomic<int> allocate{0}, allocate_zeroed{0}, reallocate{0}, release{0};
  // Blocks handed out and not given back, their bytes, and the most of these at a time.
  std::atomic<int> live{0};
  std::atomic<std::size_t> bytes{0}, most_bytes{0};
  // The allocation with this number fails, and so do `failures - 1` after it. 1 is the next one, 0 none.
  std::atomic<int> fail_at{0}, failures{1};
};
