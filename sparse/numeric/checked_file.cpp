#include "sparse/numeric/checked_file.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace quorin::sparse {
namespace {

constexpr std::size_t kBuffer = std::size_t{1} << 16;

struct Header {
  // A file that was carried as text would have lost one of the line's ends.
  std::array<char, 8> magic = {'Q', 'u', 'o', 'r', 'i', 'n', '\r', '\n'};
  std::uint32_t version = 2;
  std::uint32_t kind = 0;
  std::uint64_t length = 0;  // of what follows
  std::uint32_t check = 0;   // of what follows
  std::uint32_t own_check = 0;

  std::uint32_t compute_check() const { return crc32(this, offsetof(Header, own_check)); }
};
static_assert(sizeof(Header) == 32);

// tables[k][b]: the check of byte b with k zero bytes behind it, so that eight bytes are taken at a time.
constexpr auto kTables = [] {
  std::array<std::array<std::uint32_t, 256>, 8> tables{};
  for (std::uint32_t b = 0; b < 256; ++b) {
    std::uint32_t check = b;
    for (int bit = 0; bit < 8; ++bit) check = (check >> 1) ^ ((check & 1) * 0xedb88320U);
    tables[0][b] = check;
  }
  for (std::size_t k = 1; k < 8; ++k) {
    for (std::size_t b = 0; b < 256; ++b) {
      const std::uint32_t check = tables[k - 1][b];
      tables[k][b] = (check >> 8) ^ tables[0][check & 255];
    }
  }
  return tables;
}();

}  // namespace

std::uint32_t crc32(const void* data, std::size_t bytes, std::uint32_t before) {
  const auto* byte = static_cast<const unsigned char*>(data);
  std::uint32_t check = ~before;
  for (; bytes >= 8; bytes -= 8, byte += 8) {
    std::uint32_t low = 0, high = 0;
    std::memcpy(&low, byte, 4);
    std::memcpy(&high, byte + 4, 4);
    low ^= check;
    check = kTables[7][low & 255] ^ kTables[6][(low >> 8) & 255] ^ kTables[5][(low >> 16) & 255] ^
            kTables[4][low >> 24] ^ kTables[3][high & 255] ^ kTables[2][(high >> 8) & 255] ^
            kTables[1][(high >> 16) & 255] ^ kTables[0][high >> 24];
  }
  for (; bytes > 0; --bytes, ++byte) check = (check >> 8) ^ kTables[0][(check ^ *byte) & 255];
  return ~check;
}

base::Workspace<char> file_name(const char* base_name, const char* text, int number) {
  char digits[16] = "";
  if (number >= 0) std::snprintf(digits, sizeof digits, "%d", number);
  base::Workspace<char> name(std::strlen(base_name) + std::strlen(text) + std::strlen(digits) + 1);
  if (name) std::snprintf(name.data(), name.size(), "%s%s%s", base_name, text, digits);
  return name;
}

FactorOutcome FileWriter::begin(const char* name, FileKind kind, Replacing replacing) {
  abandon();
  kind_ = kind;
  written_ = buffered_ = check_ = 0;
  outcome_ = FactorOutcome::kDone;
  if (name == nullptr || *name == '\0') return outcome_ = FactorOutcome::kCannotOpen;
  const bool in_place = replacing == Replacing::kInPlace;
  buffer_ = base::Workspace<std::byte>(kBuffer);
  name_ = file_name(name, in_place ? "" : ".unfinished");
  final_name_ = in_place ? base::Workspace<char>() : file_name(name, "");
  if (!buffer_ || !name_ || (!in_place && !final_name_)) return outcome_ = FactorOutcome::kOutOfMemory;
  if (!file_.create(name_.data())) return outcome_ = FactorOutcome::kCannotOpen;
  return outcome_;
}

void FileWriter::write_out(const void* data, std::size_t bytes) {
  if (outcome_ != FactorOutcome::kDone || bytes == 0) return;
  if (!file_.write(sizeof(Header) + written_, data, bytes)) outcome_ = FactorOutcome::kFileFailed;
  written_ += bytes;
}

void FileWriter::write(const void* data, std::size_t bytes) {
  if (outcome_ != FactorOutcome::kDone || bytes == 0) return;
  check_ = crc32(data, bytes, check_);
  if (bytes > kBuffer - buffered_) write_buffer();
  if (bytes > kBuffer) return write_out(data, bytes);
  std::memcpy(buffer_.data() + buffered_, data, bytes);
  buffered_ += bytes;
}

FactorOutcome FileWriter::complete() {
  write_buffer();
  // The data first: a header on the disk must not tell of what is not there yet.
  if (outcome_ == FactorOutcome::kDone && !file_.flush()) outcome_ = FactorOutcome::kFileFailed;
  Header header;
  header.kind = static_cast<std::uint32_t>(kind_);
  header.length = written_;
  header.check = check_;
  header.own_check = header.compute_check();
  if (outcome_ == FactorOutcome::kDone && !(file_.write(0, &header, sizeof header) && file_.flush())) {
    outcome_ = FactorOutcome::kFileFailed;
  }
  if (outcome_ == FactorOutcome::kDone && final_name_) {
    file_.close();
    if (!platform::rename_file(name_.data(), final_name_.data())) {
      platform::remove_file(name_.data());
      outcome_ = FactorOutcome::kFileFailed;
    }
  }
  if (outcome_ != FactorOutcome::kDone) abandon();
  // Nothing is left to be removed; a file in place stays locked.
  name_ = {};
  final_name_ = {};
  buffer_ = {};
  return outcome_;
}

void FileWriter::abandon() {
  if (file_) {
    file_.close();
    if (name_) platform::remove_file(name_.data());
  }
  name_ = {};
  final_name_ = {};
  buffer_ = {};
}

FactorOutcome FileReader::begin(const char* name, FileKind kind) {
  next_ = buffered_ = check_ = 0;
  outcome_ = FactorOutcome::kDone;
  left_ = 0;
  buffer_ = base::Workspace<std::byte>(kBuffer);
  if (!buffer_) return outcome_ = FactorOutcome::kOutOfMemory;
  if (name == nullptr || !file_.open(name)) return outcome_ = FactorOutcome::kCannotOpen;
  const std::uint64_t size = file_.size();
  Header header;
  if (size < sizeof header) return outcome_ = FactorOutcome::kWrongFormat;
  if (!file_.read(0, &header, sizeof header)) return outcome_ = FactorOutcome::kFileFailed;
  const bool is_ours = header.magic == Header().magic && header.version == Header().version &&
                       header.own_check == header.compute_check();
  if (!is_ours || header.kind != static_cast<std::uint32_t>(kind) || header.length != size - sizeof header) {
    return outcome_ = FactorOutcome::kWrongFormat;
  }
  offset_ = sizeof header;
  left_ = header.length;
  expected_check_ = header.check;
  return outcome_;
}

// From the file behind what is in the buffer.
void FileReader::read_in(void* data, std::size_t bytes) {
  if (!file_.read(offset_, data, bytes)) outcome_ = FactorOutcome::kFileFailed;
  offset_ += bytes;
}

void FileReader::read(void* data, std::size_t bytes) {
  if (bytes > left_) reject();
  auto* to = static_cast<std::byte*>(data);
  for (std::size_t rest = bytes; rest > 0 && outcome_ == FactorOutcome::kDone;) {
    std::size_t piece = std::min(rest, buffered_ - next_);
    if (piece > 0) {
      std::memcpy(to, buffer_.data() + next_, piece);
      next_ += piece;
    } else if (rest >= kBuffer) {
      piece = rest;
      read_in(to, piece);
    } else {
      next_ = 0;
      buffered_ = static_cast<std::size_t>(std::min<std::uint64_t>(kBuffer, left_ - (bytes - rest)));
      read_in(buffer_.data(), buffered_);
    }
    to += piece;
    rest -= piece;
  }
  if (outcome_ != FactorOutcome::kDone) {
    if (bytes > 0) std::memset(data, 0, bytes);
    return;
  }
  left_ -= bytes;
  check_ = crc32(data, bytes, check_);
}

FactorOutcome FileReader::complete() {
  if (left_ != 0 || check_ != expected_check_) reject();
  buffer_ = {};
  return outcome_;
}

}  // namespace quorin::sparse
