#include "tests/sparse/watched_heap.hpp"

Heap heap;

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
  const bool is_counted = block == nullptr || heap.forget(block);
  void* const moved = __real_realloc(block, bytes);
  return is_counted ? heap.count(moved, bytes) : moved;
}
void __wrap_free(void* block) {
  heap.forget(block);
  __real_free(block);
}
}
