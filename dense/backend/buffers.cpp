#include "dense/backend/buffers.hpp"

#include <cstdint>
#include <mutex>

#include "base/allocator.hpp"
#include "base/parallel.hpp"
#include "platform/platform.hpp"

namespace quorin::dense::backend {
namespace {

// Free buffers form a list through their own first bytes.
struct FreeBuffer {
  FreeBuffer* following;
};

// The kernels want whole pages; right in front of them stands the address of the allocator's block.
constexpr std::size_t kAlignment = 4096;

void*& block_of(FreeBuffer* buffer) noexcept { return reinterpret_cast<void**>(buffer)[-1]; }

FreeBuffer* create_buffer() noexcept {
  void* const block = base::allocate(kBufferBytes + kAlignment + sizeof(void*));
  if (block == nullptr) return nullptr;
  const auto first = reinterpret_cast<std::uintptr_t>(block) + sizeof(void*);
  auto* const buffer = reinterpret_cast<FreeBuffer*>((first + kAlignment - 1) & ~std::uintptr_t{kAlignment - 1});
  block_of(buffer) = block;
  return buffer;
}

class BufferPool {
 public:
  // Makes sure that `wanted` more buffers are free than others have been promised; returns how many it could get.
  int reserve(int wanted) noexcept {
    const std::lock_guard lock(mutex_);
    while (free_count_ - promised_ < wanted) {
      FreeBuffer* const buffer = create_buffer();
      if (buffer == nullptr) break;
      push(buffer);
    }
    const int granted = free_count_ - promised_ < wanted ? free_count_ - promised_ : wanted;
    promised_ += granted;
    return granted;
  }

  void unreserve(int count) noexcept {
    const std::lock_guard lock(mutex_);
    promised_ -= count;
  }

  // For the dependency. A promise is consumed by taking and renewed by returning the buffer.
  void* take() noexcept {
    const std::lock_guard lock(mutex_);
    while (first_ == nullptr) {
      FreeBuffer* const buffer = create_buffer();
      if (buffer != nullptr) {
        push(buffer);
      } else if (taken_ > 0) {
        returned_.wait(mutex_);
      } else {
        platform::fail_assertion("memory for a BLAS buffer", __FILE__, __LINE__);
      }
    }
    FreeBuffer* const buffer = first_;
    first_ = buffer->following;
    --free_count_;
    ++taken_;
    --promised_;
    return buffer;
  }

  void put_back(void* memory) noexcept {
    const std::lock_guard lock(mutex_);
    push(static_cast<FreeBuffer*>(memory));
    --taken_;
    ++promised_;
    returned_.notify_one();
  }

  void trim() noexcept {
    const std::lock_guard lock(mutex_);
    while (first_ != nullptr && free_count_ > promised_) {
      FreeBuffer* const buffer = first_;
      first_ = buffer->following;
      --free_count_;
      base::release(block_of(buffer));
    }
  }

 private:
  void push(FreeBuffer* buffer) noexcept {
    buffer->following = first_;
    first_ = buffer;
    ++free_count_;
  }

  platform::Mutex mutex_;
  platform::ConditionVariable returned_;
  FreeBuffer* first_ = nullptr;
  int free_count_ = 0;
  int taken_ = 0;
  int promised_ = 0;
};

constinit BufferPool pool;

}  // namespace

BufferReservation::BufferReservation(int wanted) noexcept {
  if (base::in_parallel_region()) {
    granted_ = 1;
    return;
  }
  reserved_ = pool.reserve(wanted);
  granted_ = reserved_;
}

BufferReservation::~BufferReservation() { pool.unreserve(reserved_); }

void trim_buffers() noexcept { pool.trim(); }

// What the dependency calls instead of its own allocator.
extern "C" {
void* blas_memory_alloc(int position);
void blas_memory_free(void* buffer);

void* blas_memory_alloc(int) { return pool.take(); }
void blas_memory_free(void* buffer) { pool.put_back(buffer); }
}

}  // namespace quorin::dense::backend
