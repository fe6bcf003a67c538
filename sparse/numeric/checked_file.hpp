// Files of our own that are whole or refused: numbers of fixed width, lowest byte first, under a header that tells
// their format, their length and their checksum. The 32-bit Windows build and the Linux build read each other's.
//
// The header is written last, so that a file whose writing stopped at any point does not look like a whole one.
#pragma once

#include <bit>
#include <complex>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "base/workspace.hpp"
#include "platform/block_file.hpp"
#include "sparse/numeric/outcome.hpp"

namespace quorin::sparse {

static_assert(std::endian::native == std::endian::little);

// What a file holds; a reader takes no other.
enum class FileKind : std::uint32_t { kPanels = 0x4c4e4150, kHandle = 0x4c444e48 };

// What a file may hold, the same on all systems.
template <class T>
concept Storable = std::same_as<T, char> || std::same_as<T, std::int32_t> || std::same_as<T, std::uint32_t> ||
    std::same_as<T, std::int64_t> || std::same_as<T, std::uint64_t> || std::same_as<T, float> ||
    std::same_as<T, double> || std::same_as<T, std::complex<float>> || std::same_as<T, std::complex<double>>;

// base_name with text and, if it is not negative, a number behind it; without data if there is no memory.
base::Workspace<char> file_name(const char* base_name, const char* text, int number = -1);

// The cyclic redundancy check of Ethernet and of gzip (RFC 1952, section 8) of `bytes` bytes behind those whose check
// is `before`.
std::uint32_t crc32(const void* data, std::size_t bytes, std::uint32_t before = 0);

// Writes one file from its beginning to its end. A failure lasts: what is put after it is dropped, and complete() tells
// of it. A file that is not completed is removed.
class FileWriter {
 public:
  FileWriter() = default;
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;
  ~FileWriter() { abandon(); }

  // In place: a file that has the name is lost at once, and the new one is locked until the writer is gone.
  // At the end: the file has another name, with ".unfinished" behind it, until complete() lets it take the place of one
  // that has the name.
  enum class Replacing { kInPlace, kAtTheEnd };
  FactorOutcome begin(const char* name, FileKind kind, Replacing replacing = Replacing::kAtTheEnd);

  template <Storable T>
  void put(T value) {
    write(&value, sizeof value);
  }
  template <Storable T>
  void put(std::span<const T> values) {
    write(values.data(), values.size_bytes());
  }
  // For a failure of the caller's.
  void fail(FactorOutcome outcome) {
    if (outcome_ == FactorOutcome::kDone) outcome_ = outcome;
  }
  FactorOutcome outcome() const { return outcome_; }
  // Writes the header, and waits until the disk has all of it. The writer can begin anew then.
  FactorOutcome complete();
  // Removes what was written so far.
  void abandon();

 private:
  void write(const void* data, std::size_t bytes);
  void write_out(const void* data, std::size_t bytes);
  void write_buffer() { write_out(buffer_.data(), std::exchange(buffered_, 0)); }

  platform::BlockFile file_;
  base::Workspace<char> name_, final_name_;
  base::Workspace<std::byte> buffer_;
  std::size_t buffered_ = 0;
  std::uint64_t written_ = 0;  // behind the header
  std::uint32_t check_ = 0;
  FileKind kind_{};
  FactorOutcome outcome_ = FactorOutcome::kDone;
};

// Reads one file from its beginning to its end. A failure lasts: what is got after it is zero, and complete() tells of
// it. The contents are not to be trusted before complete() has compared the checksum, nor then: a file may be forged.
class FileReader {
 public:
  FactorOutcome begin(const char* name, FileKind kind);

  template <Storable T>
  T get() {
    T value{};
    read(&value, sizeof value);
    return value;
  }
  template <Storable T>
  void get(std::span<T> values) {
    read(values.data(), values.size_bytes());
  }
  // As many values as `count` says, which may be a hostile number: memory is taken for no more than the file holds.
  // False after a failure.
  template <Storable T>
  bool get(base::Workspace<T>& values, std::uint64_t count) {
    if (outcome_ == FactorOutcome::kDone && count > left_ / sizeof(T)) reject();
    if (outcome_ != FactorOutcome::kDone) return false;
    values = base::Workspace<T>(static_cast<std::size_t>(count));
    if (values) {
      get(std::span<T>(values));
    } else {
      outcome_ = FactorOutcome::kOutOfMemory;
    }
    return outcome_ == FactorOutcome::kDone;
  }

  // For a value that cannot be.
  void reject() {
    if (outcome_ == FactorOutcome::kDone) outcome_ = FactorOutcome::kWrongFormat;
  }
  // For another failure of the caller's, such as of an allocation.
  void fail(FactorOutcome outcome) {
    if (outcome_ == FactorOutcome::kDone) outcome_ = outcome;
  }
  FactorOutcome outcome() const { return outcome_; }
  // Bytes that are not got yet.
  std::uint64_t left() const { return left_; }
  // Whether all of the file was read and is as it was written. The file stays open, so that nobody writes it anew.
  FactorOutcome complete();
  void close() {
    file_.close();
    buffer_ = {};
  }

 private:
  void read(void* data, std::size_t bytes);
  void read_in(void* data, std::size_t bytes);

  platform::BlockFile file_;
  base::Workspace<std::byte> buffer_;
  std::size_t next_ = 0, buffered_ = 0;  // in the buffer
  std::uint64_t offset_ = 0;             // in the file, of what is not read from it yet
  std::uint64_t left_ = 0;               // bytes that are not got yet
  std::uint32_t check_ = 0, expected_check_ = 0;
  FactorOutcome outcome_ = FactorOutcome::kDone;
};

}  // namespace quorin::sparse
