#include <algorithm>
#include <utility>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "platform/native_file.hpp"

namespace quorin::platform {
namespace {

// The most that one call of the system transfers.
constexpr std::size_t kPiece = std::size_t{1} << 26;

HANDLE as_handle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

std::intptr_t open_on_disk(const char* name, DWORD access, DWORD share, DWORD disposition) {
  HANDLE const file = CreateFileA(name, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE && GetFileType(file) != FILE_TYPE_DISK) {
    CloseHandle(file);
    return reinterpret_cast<std::intptr_t>(INVALID_HANDLE_VALUE);
  }
  return reinterpret_cast<std::intptr_t>(file);
}

// The place of a transfer.
OVERLAPPED at(std::uint64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

}  // namespace

std::intptr_t create_native_file(const char* name) {
  return open_on_disk(name, GENERIC_READ | GENERIC_WRITE, 0, CREATE_ALWAYS);
}

bool file_exists(const char* name) { return GetFileAttributesA(name) != INVALID_FILE_ATTRIBUTES; }

std::intptr_t open_native_file(const char* name) {
  return open_on_disk(name, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
}

void BlockFile::close() {
  if (handle_ != kClosed) CloseHandle(as_handle(std::exchange(handle_, kClosed)));
}

std::uint64_t BlockFile::size() const {
  LARGE_INTEGER size{};
  return GetFileSizeEx(as_handle(handle_), &size) ? static_cast<std::uint64_t>(size.QuadPart) : 0;
}

bool BlockFile::read(std::uint64_t offset, void* buffer, std::size_t bytes) const {
  if (is_refused(FileOperation::kRead)) return false;
  for (std::size_t done = 0; done < bytes;) {
    OVERLAPPED place = at(offset + done);
    DWORD got = 0;
    const auto piece = static_cast<DWORD>(std::min(bytes - done, kPiece));
    if (!ReadFile(as_handle(handle_), static_cast<char*>(buffer) + done, piece, &got, &place) || got == 0) return false;
    done += got;
  }
  return true;
}

bool BlockFile::write(std::uint64_t offset, const void* buffer, std::size_t bytes) {
  if (is_refused(FileOperation::kWrite)) return false;
  for (std::size_t done = 0; done < bytes;) {
    OVERLAPPED place = at(offset + done);
    DWORD put = 0;
    const auto piece = static_cast<DWORD>(std::min(bytes - done, kPiece));
    const char* const from = static_cast<const char*>(buffer) + done;
    if (!WriteFile(as_handle(handle_), from, piece, &put, &place) || put == 0) return false;
    done += put;
  }
  return true;
}

bool BlockFile::flush() { return !is_refused(FileOperation::kFlush) && FlushFileBuffers(as_handle(handle_)) != 0; }

bool rename_file(const char* from, const char* to) {
  return !is_refused(FileOperation::kRename) && MoveFileExA(from, to, MOVEFILE_REPLACE_EXISTING) != 0;
}

bool remove_file(const char* name) { return DeleteFileA(name) != 0; }

}  // namespace quorin::platform
