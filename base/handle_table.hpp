// Handles that hosts keep for objects of the library. A handle is a number, never an address: whatever a host passes
// in its place, a null, a deleted handle, another family's or the address of something, is told from a live one
// without being looked at.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

#include "base/allocator.hpp"
#include "platform/platform.hpp"

namespace quorin::base {

// What an object with a handle derives from.
class HandleNode {
 public:
  HandleNode() = default;
  HandleNode(const HandleNode&) = delete;
  HandleNode& operator=(const HandleNode&) = delete;

 private:
  friend class HandleList;
  HandleNode* next_ = nullptr;
  std::uintptr_t handle_ = 0;
};

// The live objects of one kind, by handle. Safe from several threads; an object itself is its caller's to guard.
class HandleList {
 public:
  constexpr HandleList() = default;

  // The new handle of `node`. Handles are odd, which no address of an array is, and of all lists together each comes up
  // once in 2^31 calls.
  [[nodiscard]] void* insert(HandleNode& node);
  [[nodiscard]] HandleNode* find(const void* handle);
  [[nodiscard]] HandleNode* remove(const void* handle);

 private:
  static constexpr std::size_t kBuckets = 64;

  HandleNode** link_to(std::uintptr_t handle);

  platform::Mutex mutex_;
  std::array<HandleNode*, kBuckets> buckets_{};
};

// A list of objects of type T, which it makes and destroys.
template <class T>
class HandleTable {
 public:
  constexpr HandleTable() = default;

  // Null if there is no memory for the object, or if it says, by being false, that it found none for its parts.
  template <class... Arguments>
  [[nodiscard]] void* create(Arguments&&... arguments) {
    static_assert(alignof(T) <= alignof(std::max_align_t));
    void* const memory = allocate(sizeof(T));
    if (memory == nullptr) return nullptr;
    T* const object = new (memory) T(std::forward<Arguments>(arguments)...);
    if (!*object) {
      destroy(object);
      return nullptr;
    }
    return list_.insert(*object);
  }

  // Null for what is no live handle of this table.
  [[nodiscard]] T* find(const void* handle) { return static_cast<T*>(list_.find(handle)); }

  // False for what is no live handle of this table.
  [[nodiscard]] bool erase(const void* handle) {
    T* const object = static_cast<T*>(list_.remove(handle));
    if (object != nullptr) destroy(object);
    return object != nullptr;
  }

 private:
  static void destroy(T* object) {
    object->~T();
    release(object);
  }

  HandleList list_;
};

}  // namespace quorin::base
