#define QUORIN_LOADER_IMPLEMENTATION
#include "tests/support/host_module.hpp"

#include <utility>

namespace quorin::test {

#if defined(_WIN32)
std::string library_file(const std::string& base_name) { return base_name + ".dll"; }

std::filesystem::path program_directory() {
  char path[MAX_PATH] = {};
  GetModuleFileNameA(nullptr, path, sizeof path);
  return std::filesystem::path(path).parent_path();
}

bool is_loaded(const std::string& file_name) { return GetModuleHandleA(file_name.c_str()) != nullptr; }
#else
std::string library_file(const std::string& base_name) { return base_name + ".so"; }

std::filesystem::path program_directory() { return std::filesystem::read_symlink("/proc/self/exe").parent_path(); }

bool is_loaded(const std::string& file_name) {
  void* const module = dlopen(file_name.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (module != nullptr) dlclose(module);
  return module != nullptr;
}
#endif

Product::Product() { quorin_load((program_directory() / QUORIN_PRODUCT_FILE).string().c_str(), &library_); }

Product::Product(Product&& other) noexcept : library_(std::exchange(other.library_, quorin_library{})) {}

TestLibrary::TestLibrary(const std::string& folder, const std::string& base_name) {
  const std::string path = (program_directory() / "test_libraries" / folder / library_file(base_name)).string();
#if defined(_WIN32)
  module_ = LoadLibraryA(path.c_str());
#else
  module_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
#endif
}

void TestLibrary::close() noexcept {
  if (module_ == nullptr) return;
#if defined(_WIN32)
  FreeLibrary(static_cast<HMODULE>(std::exchange(module_, nullptr)));
#else
  dlclose(std::exchange(module_, nullptr));
#endif
}

void* TestLibrary::find(const char* name) const noexcept {
#if defined(_WIN32)
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module_), name));
#else
  return dlsym(module_, name);
#endif
}

}  // namespace quorin::test
