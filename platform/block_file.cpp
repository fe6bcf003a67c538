#include "platform/block_file.hpp"

#include <utility>

#include "platform/native_file.hpp"

namespace quorin::platform {

bool (*refuse_file_operation)(FileOperation operation) = nullptr;

BlockFile& BlockFile::operator=(BlockFile&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

bool BlockFile::create(const char* name) {
  close();
  if (!is_refused(FileOperation::kCreate)) handle_ = create_native_file(name);
  return handle_ != kClosed;
}

bool BlockFile::open(const char* name) {
  close();
  if (!is_refused(FileOperation::kOpen)) handle_ = open_native_file(name);
  return handle_ != kClosed;
}

}  // namespace quorin::platform
