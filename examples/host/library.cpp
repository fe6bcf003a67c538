#define QUORIN_LOADER_IMPLEMENTATION
#include "examples/host/library.hpp"

#include <cstdio>
#include <cstdlib>

namespace demo {

Library load_library() {
  Library library;
  if (quorin_load(nullptr, &library) == 0) return library;
  if (library.module == nullptr) {
    std::printf("%s cannot be loaded\n", QUORIN_LIBRARY_NAME);
  } else {
    std::printf("%s has no export %s\n", QUORIN_LIBRARY_NAME, library.missing);
  }
  std::exit(2);
}

}  // namespace demo
