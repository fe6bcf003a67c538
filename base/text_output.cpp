#include "base/text_output.hpp"

#include <atomic>
#include <cstdio>

#include "platform/floating_point.hpp"
#include "platform/platform.hpp"

namespace quorin::base {
namespace {

constinit std::atomic<TextOutputCallback> slot{nullptr};

}  // namespace

void set_text_output(TextOutputCallback callback) { slot.store(callback, std::memory_order_release); }

int print_list(const char* format, std::va_list arguments) {
  char buffer[kTextOutputLimit + 1] = {};
  const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
  const TextOutputCallback callback = slot.load(std::memory_order_acquire);
  // A plug-in that was unloaded may have left its function here.
  if (callback != nullptr && platform::is_code_mapped(reinterpret_cast<const void*>(callback))) {
    const platform::HostSettings settings;
    callback(buffer);
  }
  return length > kTextOutputLimit ? -1 : length;
}

int print(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const int length = print_list(format, arguments);
  va_end(arguments);
  return length;
}

}  // namespace quorin::base
