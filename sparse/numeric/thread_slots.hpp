// Memory for each thread of a parallel region, which does not number its threads.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>

#include "base/thread_settings.hpp"

namespace quorin::sparse {

// The numbers 0, ..., threads - 1, each lent to one part of a region at a time.
class ThreadSlots {
 public:
  // A number while the object lives; no more than `threads` parts may run at a time.
  class Slot {
   public:
    Slot(ThreadSlots& slots, int threads) noexcept : slots_(slots) {
      while (slots_.is_taken_[number_].test_and_set(std::memory_order_acquire)) {
        number_ = (number_ + 1) % static_cast<std::size_t>(threads);
      }
    }
    ~Slot() { slots_.is_taken_[number_].clear(std::memory_order_release); }
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    std::size_t number() const noexcept { return number_; }

   private:
    ThreadSlots& slots_;
    std::size_t number_ = 0;
  };

 private:
  std::array<std::atomic_flag, base::kMostThreads> is_taken_{};
};

}  // namespace quorin::sparse
