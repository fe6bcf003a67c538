#include "families/taucs/messages.hpp"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>

#include "base/workspace.hpp"
#include "platform/platform.hpp"

namespace quorin::taucs {

namespace {

void append(const char* format, va_list arguments) {
  std::array<char, 512> name{}, text{};
  if (!platform::read_environment("QUORIN_TAUCS_LOG", name.data(), name.size())) return;
  platform::File file;
  file.open_for_appending(name.data());
  if (!file) return;
  va_list again;
  va_copy(again, arguments);
  const auto length =
      static_cast<std::size_t>(std::max(std::vsnprintf(text.data(), text.size(), format, arguments), 0));
  if (length < text.size()) {
    file.write(text.data(), length);
  } else if (base::Workspace<char> whole(length + 1); whole) {
    std::vsnprintf(whole.data(), whole.size(), format, again);
    file.write(whole.data(), length);
  } else {
    file.write(text.data(), text.size() - 1);
  }
  va_end(again);
}

}  // namespace

void message(const char* format, ...) noexcept {
  va_list arguments;
  va_start(arguments, format);
  append(format, arguments);
  va_end(arguments);
}

std::nullptr_t refuse(const char* format, ...) noexcept {
  va_list arguments;
  va_start(arguments, format);
  append(format, arguments);
  va_end(arguments);
  return nullptr;
}

}  // namespace quorin::taucs
