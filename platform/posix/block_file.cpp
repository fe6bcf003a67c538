#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "platform/native_file.hpp"

namespace quorin::platform {
namespace {

static_assert(sizeof(off_t) == sizeof(std::uint64_t));

int descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

// A regular file and the lock, or -1. Opening a pipe must not wait for its other end.
int open_locked(const char* name, int mode, int lock) {
  const int file = open(name, mode | O_CLOEXEC | O_NONBLOCK, 0666);
  if (file < 0) return -1;
  struct stat status {};
  const bool is_regular = fstat(file, &status) == 0 && S_ISREG(status.st_mode);
  // Some file systems know no locks.
  if (is_regular && (flock(file, lock | LOCK_NB) == 0 || errno != EWOULDBLOCK)) return file;
  close(file);
  return -1;
}

}  // namespace

std::intptr_t create_native_file(const char* name) {
  const int file = open_locked(name, O_RDWR | O_CREAT, LOCK_EX);
  if (file < 0 || ftruncate(file, 0) == 0) return file;
  close(file);
  return -1;
}

bool file_exists(const char* name) { return access(name, F_OK) == 0; }

std::intptr_t open_native_file(const char* name) { return open_locked(name, O_RDONLY, LOCK_SH); }

void BlockFile::close() {
  if (handle_ != kClosed) ::close(descriptor(std::exchange(handle_, kClosed)));
}

std::uint64_t BlockFile::size() const {
  struct stat status {};
  return fstat(descriptor(handle_), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

bool BlockFile::read(std::uint64_t offset, void* buffer, std::size_t bytes) const {
  if (is_refused(FileOperation::kRead)) return false;
  for (std::size_t done = 0; done < bytes;) {
    const ssize_t got =
        pread(descriptor(handle_), static_cast<char*>(buffer) + done, bytes - done, static_cast<off_t>(offset + done));
    if (got == 0 || (got < 0 && errno != EINTR)) return false;
    if (got > 0) done += static_cast<std::size_t>(got);
  }
  return true;
}

bool BlockFile::write(std::uint64_t offset, const void* buffer, std::size_t bytes) {
  if (is_refused(FileOperation::kWrite)) return false;
  for (std::size_t done = 0; done < bytes;) {
    const ssize_t put = pwrite(descriptor(handle_), static_cast<const char*>(buffer) + done, bytes - done,
                               static_cast<off_t>(offset + done));
    if (put == 0 || (put < 0 && errno != EINTR)) return false;
    if (put > 0) done += static_cast<std::size_t>(put);
  }
  return true;
}

bool BlockFile::flush() { return !is_refused(FileOperation::kFlush) && fsync(descriptor(handle_)) == 0; }

bool rename_file(const char* from, const char* to) {
  return !is_refused(FileOperation::kRename) && std::rename(from, to) == 0;
}

bool remove_file(const char* name) { return unlink(name) == 0; }

}  // namespace quorin::platform
