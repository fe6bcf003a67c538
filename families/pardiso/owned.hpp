// Objects in the library's memory.
#pragma once

#include <memory>
#include <new>
#include <utility>

#include "base/allocator.hpp"

namespace quorin::pardiso {

template <class T>
struct Release {
  void operator()(T* object) const {
    object->~T();
    base::release(object);
  }
};
template <class T>
using Owned = std::unique_ptr<T, Release<T>>;

// Null if there is no memory.
template <class T, class... Arguments>
[[nodiscard]] Owned<T> make_owned(Arguments&&... arguments) {
  static_assert(alignof(T) <= alignof(std::max_align_t));
  void* const memory = base::allocate(sizeof(T));
  return Owned<T>(memory == nullptr ? nullptr : new (memory) T(std::forward<Arguments>(arguments)...));
}

}  // namespace quorin::pardiso
