// Libraries loaded at run time, as hosts load them: no test that uses this is linked against the product.
#pragma once

#include <filesystem>
#include <string>
#include <utility>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <gtest/gtest.h>

namespace quorin::test {

inline std::string library_file(const std::string& base_name) {
#if defined(_WIN32)
  return base_name + ".dll";
#else
  return base_name + ".so";
#endif
}

// Programs that load the product stand beside it; test libraries stand in folders below.
inline std::filesystem::path program_directory() {
#if defined(_WIN32)
  char path[MAX_PATH] = {};
  GetModuleFileNameA(nullptr, path, sizeof path);
  return std::filesystem::path(path).parent_path();
#else
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
#endif
}

// One reference to a loaded library.
class HostModule {
 public:
  explicit HostModule(const std::filesystem::path& path) {
#if defined(_WIN32)
    module_ = LoadLibraryA(path.string().c_str());
#else
    module_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
#endif
  }
  HostModule(HostModule&& other) noexcept : module_(std::exchange(other.module_, nullptr)) {}
  HostModule& operator=(HostModule&&) = delete;
  ~HostModule() { close(); }

  void close() noexcept {
    if (module_ == nullptr) return;
#if defined(_WIN32)
    FreeLibrary(static_cast<HMODULE>(std::exchange(module_, nullptr)));
#else
    dlclose(std::exchange(module_, nullptr));
#endif
  }

  explicit operator bool() const noexcept { return module_ != nullptr; }

  // A function or a variable, or null. T is its type: symbol<decltype(sgemm)>("sgemm").
  template <class T>
  T* symbol(const char* name) const noexcept {
#if defined(_WIN32)
    return reinterpret_cast<T*>(reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module_), name)));
#else
    return reinterpret_cast<T*>(dlsym(module_, name));
#endif
  }

 private:
  void* module_ = nullptr;
};

inline bool is_loaded(const std::string& file_name) {
#if defined(_WIN32)
  return GetModuleHandleA(file_name.c_str()) != nullptr;
#else
  void* const module = dlopen(file_name.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (module != nullptr) dlclose(module);
  return module != nullptr;
#endif
}

inline HostModule load_product() { return HostModule(program_directory() / QUORIN_PRODUCT_FILE); }

inline HostModule load_test_library(const std::string& folder, const std::string& base_name) {
  return HostModule(program_directory() / "test_libraries" / folder / library_file(base_name));
}

// Runs a body that loads the product for the first time. Elsewhere than on Windows the product stays loaded until the
// process ends, so that the body needs a process of its own.
template <class Body>
void with_fresh_product(const Body& body) {
#if defined(_WIN32)
  body();
#else
  const pid_t child = fork();
  if (child == 0) {
    body();
    std::fflush(stdout);
    _exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0) << "in the child process";
#endif
}

}  // namespace quorin::test
