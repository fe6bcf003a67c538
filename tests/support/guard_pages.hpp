// Arrays flush against memory that cannot be accessed: whoever reads or writes one byte outside crashes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>

#if defined(_WIN32)
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace quorin::test {

// Which end of the array the inaccessible memory touches; at the other end there may be some bytes of padding.
enum class Flush { kBegin, kEnd };

// `size` elements, not initialised. Elements need no alignment beyond 4 bytes, as in 32-bit hosts.
template <class T>
class PageGuarded {
 public:
  PageGuarded(std::size_t size, Flush flush)
      : size_(size), inside_(((size * sizeof(T)) + kPage - 1) / kPage * kPage), whole_(inside_ + 2 * kPage) {
#if defined(_WIN32)
    memory_ = static_cast<std::byte*>(VirtualAlloc(nullptr, whole_, MEM_RESERVE, PAGE_NOACCESS));
    if (memory_ == nullptr) throw std::bad_alloc();
    if (inside_ > 0 && VirtualAlloc(memory_ + kPage, inside_, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
      throw std::bad_alloc();
    }
#else
    void* const mapped = mmap(nullptr, whole_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) throw std::bad_alloc();
    memory_ = static_cast<std::byte*>(mapped);
    if (inside_ > 0 && mprotect(memory_ + kPage, inside_, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
#endif
    first_ = memory_ + kPage + (flush == Flush::kBegin ? 0 : inside_ - size * sizeof(T));
  }
  ~PageGuarded() {
#if defined(_WIN32)
    VirtualFree(memory_, 0, MEM_RELEASE);
#else
    munmap(memory_, whole_);
#endif
  }
  PageGuarded(const PageGuarded&) = delete;
  PageGuarded& operator=(const PageGuarded&) = delete;

  T* data() const { return reinterpret_cast<T*>(first_); }
  std::size_t size() const { return size_; }
  T& operator[](std::size_t i) const { return data()[i]; }
  T* begin() const { return data(); }
  T* end() const { return data() + size_; }

 private:
  static constexpr std::size_t kPage = 4096;
  std::size_t size_, inside_, whole_;
  std::byte *memory_ = nullptr, *first_ = nullptr;
};

}  // namespace quorin::test
