// Work arrays from the library's allocator, freed when they go out of scope.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

#include "base/allocator.hpp"

namespace quorin::base {

// a * b, or the largest size_t if that overflows, which no allocator grants.
[[nodiscard]] constexpr std::size_t saturating_product(std::size_t a, std::size_t b) {
  constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max();
  return a != 0 && b > kMost / a ? kMost : a * b;
}

// An uninitialised array of `count` elements of a trivial type, aligned to kAlignment. `data()` is null, and the object
// false, if there is no memory; a count of 0 succeeds. Never throws.
template <class T>
class Workspace {
  static_assert(std::is_trivially_destructible_v<T> && std::is_trivially_copyable_v<T>);

 public:
  static constexpr std::size_t kAlignment = 64;

  Workspace() = default;
  explicit Workspace(std::size_t count) {
    const std::size_t bytes = saturating_product(count, sizeof(T));
    if (bytes > std::numeric_limits<std::size_t>::max() - kAlignment) return;
    block_ = allocate(bytes + kAlignment);
    if (block_ == nullptr) return;
    const auto address = reinterpret_cast<std::uintptr_t>(block_);
    data_ = reinterpret_cast<T*>((address + kAlignment - 1) & ~std::uintptr_t{kAlignment - 1});
    size_ = count;
  }
  Workspace(Workspace&& other) noexcept { swap(other); }
  Workspace& operator=(Workspace&& other) noexcept {
    Workspace(std::move(other)).swap(*this);
    return *this;
  }
  ~Workspace() { release(block_); }

  void swap(Workspace& other) noexcept {
    std::swap(block_, other.block_);
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
  }

  explicit operator bool() const { return block_ != nullptr; }
  T* data() { return data_; }
  const T* data() const { return data_; }
  std::size_t size() const { return size_; }
  T* begin() { return data_; }
  T* end() { return data_ + size_; }
  T& operator[](std::size_t i) { return data_[i]; }
  const T& operator[](std::size_t i) const { return data_[i]; }

 private:
  void* block_ = nullptr;
  T* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace quorin::base
