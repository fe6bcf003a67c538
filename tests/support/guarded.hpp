// An array between guard words, for tests of what a routine writes.
#pragma once

#include "tests/support/standard.hpp"

namespace quorin::test {

// An array between guard words, `shift` bytes past an address that is a multiple of 8. On targets with 4-byte pointers
// that is 4 for larger types, as hosts may have it.
template <class T>
class Guarded {
 public:
  Guarded(std::size_t size, T fill, std::size_t shift = kShift)
      : size_(size), begin_(kGuard + shift), bytes_(size * sizeof(T) + 2 * kGuard + shift, kMark) {
    for (std::size_t i = 0; i < size; ++i) std::memcpy(data() + i, &fill, sizeof fill);
  }
  T* data() { return static_cast<T*>(static_cast<void*>(bytes_.data() + begin_)); }
  T& operator[](std::size_t i) { return data()[i]; }
  std::size_t size() const { return size_; }
  bool intact() const {
    const std::size_t end = begin_ + size_ * sizeof(T);
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
      if ((i < begin_ || i >= end) && bytes_[i] != kMark) return false;
    }
    return true;
  }

 private:
  static constexpr unsigned char kMark = 0xa5;
  static constexpr std::size_t kGuard = 64;
  static constexpr std::size_t kShift = sizeof(void*) == 4 && alignof(T) > 4 ? 4 : 0;
  std::size_t size_, begin_;
  std::vector<unsigned char> bytes_;
};

}  // namespace quorin::test
