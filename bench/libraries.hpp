// The libraries that are compared. Both are loaded at run time, so that neither sees the other's symbols and each call
// takes the way that a host's call takes.
#pragma once

#include <optional>
#include <string>

#include "quorin/loader.h"

namespace quorin::bench {

// A library with the routines it has, by the product's names and types; the others are null.
struct Library : quorin_library {
  std::string name;  // as the results name it
  void (*set_threads)(int count) = nullptr;

  bool has_lapack() const { return sgetrf != nullptr; }
};

struct Libraries {
  Library product;
  std::optional<Library> peer;
  std::string peer_description;
};

// Loads the product, which must be there, and a threaded OpenBLAS, which need not. Throws std::runtime_error.
Libraries load_libraries(const std::string& product_file, const std::string& peer_file);

}  // namespace quorin::bench
