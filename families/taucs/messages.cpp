#include "families/taucs/messages.hpp"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>

#include "platform/platform.hpp"

namespace quorin::taucs {

namespace {

void append(const char* format, va_list arguments) {
  std::array<char, 512> name{}, text{};
  if (!platform::read_environment("QUORIN_TAUCS_LOG", name.data(), name.size())) return;
  const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
  platform::File file;
  file.open_for_appending(name.data());
  if (!file || length <= 0) return;
  file.write(text.data(), std::min<std::size_t>(static_cast<std::size_t>(length), text.size() - 1));
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
