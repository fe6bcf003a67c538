// A libimalloc for tests: counts its calls and fails on request. IMALLOC_LACKS, from 1 to 4, leaves one of the four
// variables out.
#include "tests/boundary/counting_allocator.hpp"

#include <malloc.h>

#include <cstdlib>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

#if defined(_WIN32)
#define IMALLOC_EXPORT __declspec(dllexport)
#else
#define IMALLOC_EXPORT
#endif

extern "C" {
extern IMALLOC_EXPORT CountingAllocatorState imalloc_state;
CountingAllocatorState imalloc_state;
}

namespace {

// Tells the process that this library has been loaded, even if it is gone by now.
[[gnu::constructor]] void tell_loaded() {
#if defined(_WIN32)
  SetEnvironmentVariableA("QUORIN_TEST_ALLOCATOR", "loaded");
#else
  setenv("QUORIN_TEST_ALLOCATOR", "loaded", 1);
#endif
}

bool is_due_to_fail() {
  const int first = imalloc_state.fail_at.load();
  if (first == 0) return false;
  if (first > 1) {
    imalloc_state.fail_at.fetch_sub(1);
    return false;
  }
  if (imalloc_state.failures.fetch_sub(1) > 0) return true;
  return false;
}

std::size_t size_of(void* memory) {
#if defined(_WIN32)
  return _msize(memory);
#else
  return malloc_usable_size(memory);
#endif
}

void add_bytes(std::size_t bytes) {
  const std::size_t now = imalloc_state.bytes += bytes;
  std::size_t most = imalloc_state.most_bytes;
  while (now > most && !imalloc_state.most_bytes.compare_exchange_weak(most, now)) continue;
}

void* counted(void* memory) {
  if (memory == nullptr) return nullptr;
  ++imalloc_state.live;
  add_bytes(size_of(memory));
  return memory;
}

[[maybe_unused]] void* counted_malloc(std::size_t bytes) {
  ++imalloc_state.allocate;
  return is_due_to_fail() ? nullptr : counted(std::malloc(bytes));
}

[[maybe_unused]] void* counted_calloc(std::size_t count, std::size_t bytes_each) {
  ++imalloc_state.allocate_zeroed;
  return is_due_to_fail() ? nullptr : counted(std::calloc(count, bytes_each));
}

[[maybe_unused]] void* counted_realloc(void* memory, std::size_t bytes) {
  ++imalloc_state.reallocate;
  if (is_due_to_fail()) return nullptr;
  if (memory == nullptr) return counted(std::malloc(bytes));
  const std::size_t before = size_of(memory);
  void* const moved = std::realloc(memory, bytes);
  if (moved == nullptr) return nullptr;
  imalloc_state.bytes -= before;
  add_bytes(size_of(moved));
  return moved;
}

[[maybe_unused]] void counted_free(void* memory) {
  ++imalloc_state.release;
  if (memory != nullptr) {
    --imalloc_state.live;
    imalloc_state.bytes -= size_of(memory);
  }
  std::free(memory);
}

}  // namespace

extern "C" {
#if IMALLOC_LACKS != 1
extern IMALLOC_EXPORT decltype(&counted_malloc) i_malloc_dll;
decltype(&counted_malloc) i_malloc_dll = counted_malloc;
#endif
#if IMALLOC_LACKS != 2
extern IMALLOC_EXPORT decltype(&counted_calloc) i_calloc_dll;
decltype(&counted_calloc) i_calloc_dll = counted_calloc;
#endif
#if IMALLOC_LACKS != 3
extern IMALLOC_EXPORT decltype(&counted_realloc) i_realloc_dll;
decltype(&counted_realloc) i_realloc_dll = counted_realloc;
#endif
#if IMALLOC_LACKS != 4
extern IMALLOC_EXPORT decltype(&counted_free) i_free_dll;
decltype(&counted_free) i_free_dll = counted_free;
#endif
}
