// The buffers that kernels pack matrices into.
//
// A computation cannot fail in its middle, so every call reserves its buffers before it begins: one for each thread, of
// kernels::kBufferBytes. They come from the library's allocator, are kept for the next call, and are given back by
// trim_buffers().
#pragma once

#include <cstddef>

namespace quorin::dense::blocked {

struct FreeBuffer;

// Prepares and gives back the thread slot in which a call keeps its buffer; called at load and unload. Without the slot
// all works, with more locking.
void start_buffers() noexcept;
void stop_buffers() noexcept;

// Keeps up to `wanted` buffers ready for kernels while it lives: one for each thread of the parallel region that
// the caller is about to run. A single buffer is held at hand for the calling thread, so that small operations need no
// lock; a reservation inside another one of the same thread shares its buffer.
class BufferReservation {
 public:
  explicit BufferReservation(int wanted) noexcept;
  ~BufferReservation();
  BufferReservation(const BufferReservation&) = delete;
  BufferReservation& operator=(const BufferReservation&) = delete;

  // How many threads may run kernels; 0 if there is no memory for a single one.
  int granted() const noexcept { return granted_; }

  bool can_lend() const noexcept { return own_ != nullptr && !own_is_lent_; }
  // Gives the buffer held for this thread back while a host function runs, which may never return, and takes one again.
  void suspend() noexcept;
  void resume() noexcept;

  // The buffer held for this thread, unless it has been lent already.
  void* lend() noexcept;
  // Whether `buffer` is the one held, and thereby back.
  bool take_back(const void* buffer) noexcept;

 private:
  int granted_ = 0;
  int promised_ = 0;
  FreeBuffer* own_ = nullptr;
  bool own_is_lent_ = false;
  BufferReservation* outer_ = nullptr;
};

// A buffer for a kernel that the calling thread is about to run, out of those reserved.
class LentBuffer {
 public:
  LentBuffer() noexcept;
  ~LentBuffer();
  LentBuffer(const LentBuffer&) = delete;
  LentBuffer& operator=(const LentBuffer&) = delete;
  std::byte* data() const noexcept { return data_; }

 private:
  std::byte* data_;
};

// Frees the buffers that no call has reserved. Safe at any time.
void trim_buffers() noexcept;

}  // namespace quorin::dense::blocked
