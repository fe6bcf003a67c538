// The one source of the library's own memory: work arrays, factor objects, handles.
//
// A host may put an allocator of its own under the library by shipping a library "libimalloc" that exports four
// variables, each holding a function address: i_malloc_dll, i_calloc_dll, i_realloc_dll, i_free_dll. It is taken only
// whole.
#pragma once

#include <cstddef>

namespace quorin::base {

// Chooses the allocator: libimalloc's if it can be found, has all four variables and none is null, else the C
// runtime's. The reference to libimalloc is given back at once; a host that uses one keeps it loaded, and one that
// vanishes with the reference is not taken. Called once, at load.
void choose_allocator();

// These behave like the C library's functions: null if there is no memory, and `release(nullptr)` does nothing.
[[nodiscard]] void* allocate(std::size_t bytes) noexcept;
[[nodiscard]] void* allocate_zeroed(std::size_t count, std::size_t bytes_each) noexcept;
[[nodiscard]] void* reallocate(void* memory, std::size_t bytes) noexcept;
void release(void* memory) noexcept;

// False once the host has unloaded the library behind the allocator: memory from it can then only be abandoned.
bool allocator_is_mapped();

}  // namespace quorin::base
