#include "dense/blocked/buffers.hpp"

#include <atomic>
#include <cstdint>
#include <mutex>

#include "base/allocator.hpp"
#include "dense/kernels/kernel_set.hpp"
#include "platform/platform.hpp"

namespace quorin::dense::blocked {

// Free buffers form a list through their own first bytes.
struct FreeBuffer {
  FreeBuffer* following;
};

namespace {

// Whole pages, so that every buffer has the same place in the caches; right in front of them stands the address of the
// allocator's block.
constexpr std::size_t kAlignment = 4096;
static_assert(kAlignment % kernels::kBufferAlignment == 0);

// What is kept for later calls when several with many threads have been at work at once: 64 MB.
constexpr int kMostKept = 64;

void*& block_of(FreeBuffer* buffer) noexcept { return reinterpret_cast<void**>(buffer)[-1]; }

FreeBuffer* create_buffer() noexcept {
  void* const block = base::allocate(kernels::kBufferBytes + kAlignment + sizeof(void*));
  if (block == nullptr) return nullptr;
  const auto first = reinterpret_cast<std::uintptr_t>(block) + sizeof(void*);
  auto* const buffer = reinterpret_cast<FreeBuffer*>((first + kAlignment - 1) & ~std::uintptr_t{kAlignment - 1});
  block_of(buffer) = block;
  return buffer;
}

class BufferPool {
 public:
  // Takes a buffer for a caller that keeps it until `release`; null if there is no memory. Neither of the two locks
  // while one host thread is at work.
  FreeBuffer* acquire() noexcept {
    if (FreeBuffer* const spare = spare_.exchange(nullptr)) return spare;
    const std::lock_guard lock(mutex_);
    if ((first_ == nullptr || free_count_ <= promised_) && !grow()) return nullptr;
    return pop();
  }

  void release(FreeBuffer* buffer) noexcept {
    FreeBuffer* none = nullptr;
    if (spare_.compare_exchange_strong(none, buffer)) {
      if (waiting_.load() == 0) return;
      buffer = nullptr;  // somebody waits, and may not have seen the spare buffer
    }
    const std::lock_guard lock(mutex_);
    recall_spare();
    if (buffer != nullptr) push(buffer);
    release_beyond(promised_ + kMostKept);
    returned_.notify_one();
  }

  // Makes sure that `wanted` more buffers are free than others have been promised; returns how many it could get.
  int reserve(int wanted) noexcept {
    const std::lock_guard lock(mutex_);
    recall_spare();
    while (free_count_ - promised_ < wanted && grow()) {
    }
    const int granted = free_count_ - promised_ < wanted ? free_count_ - promised_ : wanted;
    promised_ += granted;
    return granted;
  }

  void unreserve(int count) noexcept {
    const std::lock_guard lock(mutex_);
    promised_ -= count;
    release_beyond(promised_ + kMostKept);
  }

  // A promise is consumed by taking and renewed by returning the buffer.
  void* take() noexcept {
    const std::lock_guard lock(mutex_);
    while (first_ == nullptr && !grow()) wait_for_buffer();
    --promised_;
    return pop();
  }

  void put_back(void* memory) noexcept {
    const std::lock_guard lock(mutex_);
    push(static_cast<FreeBuffer*>(memory));
    ++promised_;
    returned_.notify_one();
  }

  void trim() noexcept {
    const std::lock_guard lock(mutex_);
    recall_spare();
    release_beyond(promised_);
  }

 private:
  void release_beyond(int count) noexcept {
    while (first_ != nullptr && free_count_ > count) {
      base::release(block_of(pop()));
      --existing_;
    }
  }

  void push(FreeBuffer* buffer) noexcept {
    buffer->following = first_;
    first_ = buffer;
    ++free_count_;
  }

  FreeBuffer* pop() noexcept {
    FreeBuffer* const buffer = first_;
    first_ = buffer->following;
    --free_count_;
    return buffer;
  }

  bool grow() noexcept {
    FreeBuffer* const buffer = create_buffer();
    if (buffer == nullptr) return false;
    push(buffer);
    ++existing_;
    return true;
  }

  void recall_spare() noexcept {
    if (FreeBuffer* const spare = spare_.exchange(nullptr)) push(spare);
  }

  // Until some buffer may be free. `release` sees the announcement, or this sees what it left.
  void wait_for_buffer() noexcept {
    waiting_.fetch_add(1);
    recall_spare();
    if (first_ == nullptr) {
      if (existing_ == 0) platform::fail_assertion("memory for a packing buffer", __FILE_NAME__, __LINE__);
      returned_.wait(mutex_);
    }
    waiting_.fetch_sub(1);
  }

  // A buffer for the next caller, without the lock.
  std::atomic<FreeBuffer*> spare_{nullptr};
  std::atomic<int> waiting_{0};

  // What follows is guarded by the lock.
  platform::Mutex mutex_;
  platform::ConditionVariable returned_;
  FreeBuffer* first_ = nullptr;
  int free_count_ = 0;
  int promised_ = 0;
  int existing_ = 0;
};

constinit BufferPool pool;

// The reservation of the calling thread that holds a buffer itself.
constinit platform::ThreadSlot holder_slot;

BufferReservation* holder() noexcept { return static_cast<BufferReservation*>(holder_slot.get()); }

}  // namespace

BufferReservation::BufferReservation(int wanted) noexcept : outer_(holder()) {
  const int shared = outer_ != nullptr && outer_->can_lend() ? 1 : 0;
  if (wanted > 1) promised_ = pool.reserve(wanted - shared);
  granted_ = promised_ + shared;
  if (wanted > 1 || granted_ > 0) return;
  own_ = pool.acquire();
  if (own_ == nullptr) return;
  granted_ = 1;
  holder_slot.set(this);
}

BufferReservation::~BufferReservation() {
  if (promised_ > 0) pool.unreserve(promised_);
  if (own_ == nullptr) return;
  holder_slot.set(outer_);
  pool.release(own_);
}

void BufferReservation::suspend() noexcept {
  if (own_ == nullptr) return;
  holder_slot.set(nullptr);
  pool.release(own_);
}

void BufferReservation::resume() noexcept {
  if (own_ == nullptr) return;
  // Without memory for one there is none at hand, and OpenBLAS waits for a buffer of another thread.
  own_ = pool.acquire();
  if (own_ != nullptr) holder_slot.set(this);
}

void* BufferReservation::lend() noexcept {
  if (own_is_lent_) return nullptr;
  own_is_lent_ = true;
  return own_;
}

bool BufferReservation::take_back(const void* buffer) noexcept {
  if (buffer != own_) return false;
  own_is_lent_ = false;
  return true;
}

void start_buffers() noexcept { holder_slot.create(); }
void stop_buffers() noexcept { holder_slot.destroy(); }

void trim_buffers() noexcept { pool.trim(); }

namespace {

void* take_buffer() noexcept {
  if (BufferReservation* const reservation = holder()) {
    if (void* const buffer = reservation->lend()) return buffer;
  }
  return pool.take();
}

void put_back_buffer(void* buffer) noexcept {
  BufferReservation* const reservation = holder();
  if (reservation == nullptr || !reservation->take_back(buffer)) pool.put_back(buffer);
}

}  // namespace

LentBuffer::LentBuffer() noexcept : data_(static_cast<std::byte*>(take_buffer())) {}
LentBuffer::~LentBuffer() { put_back_buffer(data_); }

}  // namespace quorin::dense::blocked
