#include "base/argument_error.hpp"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "platform/platform.hpp"

namespace quorin::base {
namespace {

constexpr int kLongestName = 20;

// The message text for a code, with a place for the number if `number` is not 0.
void format_message(char* text, std::size_t size, const char* name, int code) {
  switch (code) {
    case kInsufficientWorkspace:
      std::snprintf(text, size, "\nIntel MKL INTERNAL ERROR: Insufficient workspace available in function %s.\n", name);
      return;
    case kIncompatibleOptions:
      std::snprintf(text, size, "\nIntel MKL ERROR: Incompatible optional parameters on entry to %s.\n", name);
      return;
    case 1102:
      std::snprintf(text, size, "\nIntel MKL ERROR: Processor is not supported by function %s.\n", name);
      return;
    case 1225:
      std::snprintf(text, size, "\nIntel MKL INTERNAL ERROR: Required library component not found in function %s.\n",
                    name);
      return;
    default:
      break;
  }
  if (code > 0) {
    std::snprintf(text, size, "\nIntel MKL ERROR: Parameter %d was incorrect on entry to %s.\n", code, name);
  } else {
    // Negated without overflow: INT_MIN prints its own magnitude.
    const unsigned condition = 0U - static_cast<unsigned>(code);
    std::snprintf(text, size, "\nIntel MKL INTERNAL ERROR: Condition %u detected in function %s.\n", condition, name);
  }
}

}  // namespace

void report_argument_error(const char* routine, int length, int code) {
  if (routine == nullptr || length < 0) return;
  char name[kLongestName + 1] = {};
  std::memcpy(name, routine, static_cast<std::size_t>(std::min(length, kLongestName)));
  // Fortran callers pad the name with blanks.
  for (std::size_t end = std::strlen(name); end > 0 && name[end - 1] == ' '; --end) name[end - 1] = '\0';
  char text[160];
  format_message(text, sizeof text, name, code);
  platform::write_standard_output(text);
}

}  // namespace quorin::base
