// The arrays of a run, in one block of memory.
#pragma once

#include <cstddef>
#include <limits>

#include "base/workspace.hpp"

namespace quorin::trust_region {

// Cuts arrays out of a block, one after another. Without a block nothing is cut, and bytes() tells how many the same
// calls would take.
class Arrays {
 public:
  Arrays() = default;
  explicit Arrays(std::byte* block) : block_(block) {}

  template <class T>
  T* take(std::size_t count) {
    T* const array = block_ == nullptr ? nullptr : reinterpret_cast<T*>(block_ + bytes_);
    const std::size_t bytes = base::saturating_product(count, sizeof(T));
    bytes_ = bytes > kMost - bytes_ ? kMost : (bytes_ + bytes + kUnit - 1) / kUnit * kUnit;
    return array;
  }
  double* take(std::size_t count) { return take<double>(count); }

  // More than any allocator grants where the sum is too large for a number.
  std::size_t bytes() const { return bytes_; }

 private:
  static constexpr std::size_t kUnit = 16, kMost = std::numeric_limits<std::size_t>::max() / kUnit * kUnit;

  std::byte* block_ = nullptr;
  std::size_t bytes_ = 0;
};

}  // namespace quorin::trust_region
