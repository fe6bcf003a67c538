// Files that are read and written at any place, for what does not fit into memory or outlives the process.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorin::platform {

// A regular file of up to 2^63 bytes; a device, a pipe or a folder is never opened. Whoever has it open for writing has
// it alone: nobody else, in this process or another, may open it until it is closed, and while somebody reads it,
// nobody may open it for writing. Reading is safe from several threads at once. Closed when it goes out of scope.
class BlockFile {
 public:
  BlockFile() = default;
  BlockFile(BlockFile&& other) noexcept : handle_(other.handle_) { other.handle_ = kClosed; }
  BlockFile& operator=(BlockFile&& other) noexcept;
  ~BlockFile() { close(); }

  // Made, or emptied if there is one; to be written and read.
  [[nodiscard]] bool create(const char* name);
  // To be read.
  [[nodiscard]] bool open(const char* name);
  void close();

  explicit operator bool() const { return handle_ != kClosed; }
  // Bytes in all, 0 if the system cannot tell.
  [[nodiscard]] std::uint64_t size() const;
  // Whether all of it was read or written.
  [[nodiscard]] bool read(std::uint64_t offset, void* buffer, std::size_t bytes) const;
  [[nodiscard]] bool write(std::uint64_t offset, const void* buffer, std::size_t bytes);
  // Whether what was written will outlive a loss of power.
  [[nodiscard]] bool flush();

 private:
  static constexpr std::intptr_t kClosed = -1;
  std::intptr_t handle_ = kClosed;
};

// Takes the place of a file of the new name, in one step: there is always one or the other.
[[nodiscard]] bool rename_file(const char* from, const char* to);
bool remove_file(const char* name);
// Whether there is one of that name, whoever has it.
[[nodiscard]] bool file_exists(const char* name);

// The operations above, but for closing and removing, can be made to fail as on a full or broken disk: by a function
// that is asked before each. Tests set it; null otherwise.
enum class FileOperation { kCreate, kOpen, kRead, kWrite, kFlush, kRename };
extern bool (*refuse_file_operation)(FileOperation operation);

}  // namespace quorin::platform
