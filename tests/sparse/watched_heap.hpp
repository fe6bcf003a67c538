// The C library's allocator, watched: it counts, measures and fails on demand. Of a program that is linked with
// --wrap for malloc, calloc, realloc and free, so that the libraries that we call are watched, too.
#pragma once

#include "tests/support/standard.hpp"

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
  bool forget(void* block) {
    if (!watches || block == nullptr) return false;
    for (Block& entry : blocks) {
      if (entry.address != block) continue;
      bytes -= entry.bytes;
      entry = {};
      --live;
      return true;
    }
    return false;
  }
};
extern Heap heap;
