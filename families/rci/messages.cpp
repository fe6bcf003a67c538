#include "families/rci/messages.hpp"

#include <cstdio>
#include <cstring>

#include "platform/platform.hpp"

namespace quorin::rci {
namespace {

// The one place that puts text out. `file` is null for the screen.
void put_line(const char* line, const char* file, bool append) {
  if (file == nullptr) {
    platform::write_standard_output(line);
    return;
  }
  // A host that asked for a file in a folder that it may not write to gets its result without the words.
  if (std::FILE* stream = std::fopen(file, append ? "a" : "w"); stream != nullptr) {
    std::fputs(line, stream);
    std::fclose(stream);
  }
}

}  // namespace

void Messages::print(const char* kind, int code, const char* text, const char* file) {
  for (const StatusText& known : texts_) {
    if (text == nullptr && known.status == code) text = known.text;
  }
  char line[256];
  if (code != 0) {
    std::snprintf(line, sizeof line, "%s: %s %d: %s\n", routine_, kind, code, text);
  } else {
    std::snprintf(line, sizeof line, "%s: %s: %s\n", routine_, kind, text);
  }
  const bool append = begun_file_ != nullptr && std::strcmp(begun_file_, file) == 0;
  put_line(line, to_screen_ ? nullptr : file, append);
  begun_file_ = file;
}

}  // namespace quorin::rci
