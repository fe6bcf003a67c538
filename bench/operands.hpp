// What the measured routines work on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace quorin::bench {

// `count` elements at the start of a cache line, filled with random floats from [-1, 1).
template <class T>
class Array {
 public:
  explicit Array(std::size_t count) : storage_(count + kCacheLine / sizeof(T)) {
    const auto address = reinterpret_cast<std::uintptr_t>(storage_.data());
    data_ = reinterpret_cast<T*>((address + kCacheLine - 1) / kCacheLine * kCacheLine);
    auto* const bytes = reinterpret_cast<std::byte*>(data_);
    std::uint32_t bits = 0x9E3779B9;
    for (std::size_t i = 0; i < count * sizeof(T) / sizeof(float); ++i) {
      // Marsaglia's xorshift.
      bits ^= bits << 13;
      bits ^= bits >> 17;
      bits ^= bits << 5;
      const float value = static_cast<float>(static_cast<std::int32_t>(bits)) * 0x1p-31F;
      std::memcpy(bytes + i * sizeof value, &value, sizeof value);
    }
  }
  Array(Array&&) noexcept = default;
  Array(const Array&) = delete;
  Array& operator=(const Array&) = delete;

  T* data() const { return data_; }
  T& operator[](std::size_t i) const { return data_[i]; }

 private:
  static constexpr std::size_t kCacheLine = 64;
  std::vector<T> storage_;
  T* data_;
};

// An n-by-n column-major matrix.
template <class T>
Array<T> square_matrix(int n) {
  return Array<T>(static_cast<std::size_t>(n) * static_cast<std::size_t>(n));
}

}  // namespace quorin::bench
