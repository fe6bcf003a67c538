// Libraries loaded at run time, as hosts load them: no test that uses this is linked against the product.
#pragma once

#include <filesystem>

#include "quorin/loader.h"
#include "tests/support/system.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {

// "name.dll", "name.so"
std::string library_file(const std::string& base_name);

// Programs that load the product stand beside it; test libraries stand in folders below.
std::filesystem::path program_directory();

bool is_loaded(const std::string& file_name);

// One reference to the product. False if it could not be loaded or lacks an export.
class Product {
 public:
  Product();
  Product(Product&& other) noexcept;
  Product& operator=(Product&&) = delete;
  ~Product() { close(); }

  void close() noexcept { quorin_unload(&library_); }
  explicit operator bool() const noexcept { return library_.module != nullptr && library_.missing == nullptr; }
  // product->sgemm(...)
  const quorin_library* operator->() const noexcept { return &library_; }
  const quorin_library& operator*() const noexcept { return library_; }

 private:
  quorin_library library_;
};

// One reference to test_libraries/<folder>/<base_name>.
class TestLibrary {
 public:
  TestLibrary(const std::string& folder, const std::string& base_name);
  TestLibrary(const TestLibrary&) = delete;
  TestLibrary& operator=(const TestLibrary&) = delete;
  ~TestLibrary() { close(); }

  void close() noexcept;
  explicit operator bool() const noexcept { return module_ != nullptr; }

  // A function or a variable of type T, or null.
  template <class T>
  T* symbol(const char* name) const noexcept {
    return reinterpret_cast<T*>(find(name));
  }

 private:
  void* find(const char* name) const noexcept;
  void* module_ = nullptr;
};

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
