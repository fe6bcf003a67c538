// The packing buffers of the BLAS dependency.
//
// The dependency asks for a buffer in the middle of a computation and cannot be told that there is none: its own
// allocator then tries for ever. So its allocator is replaced by this one, and every call reserves its buffers before
// it begins. Buffers come from the library's allocator, are kept for the next call, and are given back by
// trim_buffers().
#pragma once

#include <cstddef>

namespace quorin::dense::backend {

#if defined(__i386__)
inline constexpr std::size_t kBufferBytes = std::size_t{16} << 20;
#else
// Address space, not memory: pages are touched as the blocking of the kernels needs them.
inline constexpr std::size_t kBufferBytes = std::size_t{128} << 20;
#endif

// Keeps up to `wanted` buffers ready for the dependency while it lives. Inside a parallel region it keeps none more:
// the region's own reservation covers its threads.
class BufferReservation {
 public:
  explicit BufferReservation(int wanted) noexcept;
  ~BufferReservation();
  BufferReservation(const BufferReservation&) = delete;
  BufferReservation& operator=(const BufferReservation&) = delete;

  // How many threads may call the dependency; 0 if there is no memory for a single one.
  int granted() const noexcept { return granted_; }

 private:
  int granted_ = 0;
  int reserved_ = 0;
};

// Frees the buffers that no call has reserved. Safe at any time.
void trim_buffers() noexcept;

}  // namespace quorin::dense::backend
