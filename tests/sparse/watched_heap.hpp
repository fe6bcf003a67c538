// The C library's allocator, watched: it counts, measures and fails on demand. For one source file of a program that is
// linked with --wrap for malloc, calloc, realloc and free, so that the libraries that we call are watched, too.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

struct Heap {
  bool watches = false;
  int asked = 0, live = 0;
  int fail_at = 0, failures = 1;
  // Of the blocks that have been asked for while it watched.
  std::int64_t bytes = 0, most_bytes = 0;
  struct Block {
    void* address;
    std::int64_t bytes;
  };
  std::array<Block, 4096> blocks{};

  bool refuses() {
    if (!watches) return false;
    ++asked;
    return asked >= fail_at && asked < fail_at + failures;
  }
  void* count(void* block, std::size_t size) {
    if (!watches || block == nullptr) return block;
    for (Block& entry : blocks) {
      if (entry.address != nullptr) continue;
      entry = {block, static_cast<std::int64_t>(size)};
      bytes += entry.bytes;
      most_bytes = std::max(most_bytes, bytes);
      ++live;
      break;
    }
    return block;
  }
  // What was there before is not counted: a worker may give back then what it was started with.
  void forget(void* block) {
    if (!watches || block == nullptr) return;
    for (Block& entry : blocks) {
      if (entry.address != block) continue;
      bytes -= entry.bytes;
      entry = {};
      --live;
      break;
    }
  }
};
inline Heap heap;

extern "C" {
void* __real_malloc(std::size_t bytes);
void* __real_calloc(std::size_t count, std::size_t bytes);
void* __real_realloc(void* block, std::size_t bytes);
void __real_free(void* block);

void* __wrap_malloc(std::size_t bytes) { return heap.refuses() ? nullptr : heap.count(__real_malloc(bytes), bytes); }
void* __wrap_calloc(std::size_t count, std::size_t bytes) {
  return heap.refuses() ? nullptr : heap.count(__real_calloc(count, bytes), count * bytes);
}
void* __wrap_realloc(void* block, std::size_t bytes) {
  if (heap.refuses()) return nullptr;
  void* const moved = __real_realloc(block, bytes);
  return block == nullptr ? heap.count(moved, bytes) : moved;
}
void __wrap_free(void* block) {
  heap.forget(block);
  __real_free(block);
}
}
