#include "dense/lapack/call_guard.hpp"

#include <cstring>

#include "base/argument_error.hpp"

namespace quorin::dense {

LapackCall::LapackCall(const char* routine, std::int32_t* info) noexcept : buffer_(1) {
  if (may_begin()) return;
  base::report_argument_error(routine, static_cast<int>(std::strlen(routine)), base::kInsufficientWorkspace);
  *info = kInfoNoMemory;
}

}  // namespace quorin::dense
