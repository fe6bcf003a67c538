#include "examples/host/library.hpp"

#include <cstdio>
#include <cstdlib>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace demo {
namespace {

#if defined(_WIN32)
constexpr const char* kFile = "Quorin.Lapacks.6.2.dll";
void* load() { return LoadLibraryA(kFile); }
void* symbol(void* module, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}
#else
constexpr const char* kFile = "libquorin_lapacks.so";
void* load() { return dlopen(kFile, RTLD_NOW); }
void* symbol(void* module, const char* name) { return dlsym(module, name); }
#endif

}  // namespace

Library::Library() : module_(load()) {
  if (module_ != nullptr) return;
  std::printf("%s cannot be loaded\n", kFile);
  std::exit(2);
}

void* Library::find(const char* name) const {
  void* const address = symbol(module_, name);
  if (address == nullptr) {
    std::printf("%s has no export %s\n", kFile, name);
    std::exit(2);
  }
  return address;
}

}  // namespace demo
