// A DLL made like the product, whose one export throws and catches an exception on the calling thread.
#include <new>
#include <stdexcept>

#include "platform/load_hooks.hpp"

namespace __gnu_cxx {
void __freeres();
}

namespace quorin::platform {
void on_load() noexcept {}
void on_unload() noexcept { __gnu_cxx::__freeres(); }
}  // namespace quorin::platform

extern "C" __declspec(dllexport) int throw_and_catch(int depth);

extern "C" int throw_and_catch(int depth) {
  try {
    if (depth > 0) return throw_and_catch(depth - 1) + 1;
    throw std::bad_alloc();
  } catch (const std::bad_alloc&) {
    try {
      throw std::runtime_error("while another one is handled");
    } catch (const std::exception&) {
      return 1;
    }
  }
}
