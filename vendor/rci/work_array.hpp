// Scratch memory of the factorizations.
#pragma once

#include <cstddef>
#include <memory>
#include <new>

namespace quorin::rci {

/// `size` entries with value 0, or none when memory is short.
template <class T>
class WorkArray {
 public:
  explicit WorkArray(std::size_t size) : entries_(new (std::nothrow) T[size]()) {}
  explicit operator bool() const { return entries_ != nullptr; }
  T* data() const { return entries_.get(); }

 private:
  std::unique_ptr<T[]> entries_;
};

}  // namespace quorin::rci
