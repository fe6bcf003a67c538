#include "base/allocator.hpp"

#include <array>
#include <cstdlib>
#include <cstring>

#include "platform/platform.hpp"

namespace quorin::base {
namespace {

struct Allocator {
  void* (*allocate)(std::size_t) = std::malloc;
  void* (*allocate_zeroed)(std::size_t, std::size_t) = std::calloc;
  void* (*reallocate)(void*, std::size_t) = std::realloc;
  void (*release)(void*) = std::free;
};

constinit Allocator current;

// The function whose address the exported variable `name` holds, or null.
template <class Function>
Function* exported_function(platform::Module module, const char* name) {
  const void* const variable = platform::find_symbol(module, name);
  Function* function = nullptr;
  if (variable != nullptr) std::memcpy(&function, variable, sizeof function);
  return function;
}

template <class Function>
bool is_function_mapped(Function* function) {
  return platform::is_code_mapped(reinterpret_cast<const void*>(function));
}

// Whether none of the four functions is missing, null or gone.
bool is_whole(const Allocator& allocator) {
  return is_function_mapped(allocator.allocate) && is_function_mapped(allocator.allocate_zeroed) &&
         is_function_mapped(allocator.reallocate) && is_function_mapped(allocator.release);
}

}  // namespace

void choose_allocator() {
  const platform::Module module = platform::open_companion(platform::kAllocatorLibrary);
  if (module == nullptr) return;
  const Allocator found{
      .allocate = exported_function<void*(std::size_t)>(module, "i_malloc_dll"),
      .allocate_zeroed = exported_function<void*(std::size_t, std::size_t)>(module, "i_calloc_dll"),
      .reallocate = exported_function<void*(void*, std::size_t)>(module, "i_realloc_dll"),
      .release = exported_function<void(void*)>(module, "i_free_dll"),
  };
  platform::close_module(module);
  // A library that nobody else has loaded is gone now, and its functions with it.
  if (is_whole(found)) current = found;
}

void* allocate(std::size_t bytes) noexcept { return current.allocate(bytes); }
void* allocate_zeroed(std::size_t count, std::size_t bytes_each) noexcept {
  return current.allocate_zeroed(count, bytes_each);
}
void* reallocate(void* memory, std::size_t bytes) noexcept { return current.reallocate(memory, bytes); }
void release(void* memory) noexcept {
  if (memory != nullptr) current.release(memory);
}

bool allocator_is_mapped() { return is_function_mapped(current.release); }

}  // namespace quorin::base
