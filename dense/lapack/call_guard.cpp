#include "dense/lapack/call_guard.hpp"

#include <cstring>

#include "base/argument_error.hpp"
#include "platform/platform.hpp"

namespace quorin::dense {
namespace {

constinit platform::ThreadSlot selection_slot;

}  // namespace

LapackCall::LapackCall(const char* routine, std::int32_t* info) noexcept : buffer_(1) {
  if (may_begin()) return;
  base::report_argument_error(routine, static_cast<int>(std::strlen(routine)), base::kInsufficientWorkspace);
  *info = kInfoNoMemory;
}

void start_selection() noexcept { selection_slot.create(); }
void stop_selection() noexcept { selection_slot.destroy(); }

void* running_selection() noexcept { return selection_slot.get(); }
void set_running_selection(void* selection) noexcept { selection_slot.set(selection); }

}  // namespace quorin::dense
