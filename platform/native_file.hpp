// What the systems do differently to open a BlockFile.
#pragma once

#include <cstdint>

#include "platform/block_file.hpp"

namespace quorin::platform {

// -1 if there is none, or it is not a regular file, or somebody else has it.
[[nodiscard]] std::intptr_t create_native_file(const char* name);
[[nodiscard]] std::intptr_t open_native_file(const char* name);

[[nodiscard]] inline bool is_refused(FileOperation operation) {
  return refuse_file_operation != nullptr && refuse_file_operation(operation);
}

}  // namespace quorin::platform
