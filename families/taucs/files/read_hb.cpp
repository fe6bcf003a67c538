// The Harwell-Boeing format: a header of four or five lines of fixed columns, then column pointers, row indices and
// values, each beginning on a line of its own, in the formats that the header names.
#include <algorithm>
#include <cstddef>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/files/files.hpp"
#include "families/taucs/files/fortran_format.hpp"
#include "families/taucs/files/text_scanner.hpp"
#include "families/taucs/messages.hpp"
#include "sparse/sparse.hpp"

namespace quorin::taucs {
namespace {

constexpr std::size_t kCountWidth = 14;

std::string_view columns(std::string_view line, std::size_t first, std::size_t width) noexcept {
  return first < line.size() ? line.substr(first, width) : std::string_view{};
}

char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

struct Header {
  char value_type = '\0', structure = '\0';  // lower case
  int m = 0, n = 0, nnz = 0;
  FortranFormat pointers, rows, values;

  bool is_pattern() const noexcept { return value_type == 'p'; }
  bool is_complex() const noexcept { return value_type == 'c'; }

  bool read(TextScanner& text) noexcept {
    std::string_view line;
    if (!text.next_line(line) || !text.next_line(line)) return false;  // the title, the numbers of lines
    int right_hand_side_lines = 0;
    parse_field(columns(line, 4 * kCountWidth, kCountWidth), right_hand_side_lines);
    return text.next_line(line) && read_type(line) && text.next_line(line) && read_formats(line) &&
           (right_hand_side_lines <= 0 || text.next_line(line));
  }

 private:
  bool read_type(std::string_view line) noexcept {
    if (line.size() < 3 || lower(line[2]) != 'a') return false;  // elemental matrices are not assembled
    value_type = lower(line[0]);
    structure = lower(line[1]);
    const auto count = [&](std::size_t position, int& number) {
      return parse_field(columns(line, position * kCountWidth, kCountWidth), number) && number >= 0;
    };
    const bool has_known_type = value_type == 'p' || value_type == 'r' || value_type == 'c';
    const bool is_mirrored = structure == 's' || structure == 'h';
    return has_known_type && count(1, m) && count(2, n) && count(3, nnz) && (!is_mirrored || m == n);
  }

  bool read_formats(std::string_view line) noexcept {
    constexpr std::size_t kShort = 16, kLong = 20;
    const bool is_known = pointers.parse(columns(line, 0, kShort)) && pointers.is_integer() &&
                          rows.parse(columns(line, kShort, kShort)) && rows.is_integer() &&
                          (is_pattern() || values.parse(columns(line, 2 * kShort, kLong)));
    if (!is_known) {
      const std::string_view formats = columns(line, 0, 2 * kShort + kLong);
      message("taucs_ccs_read_hb: unknown formats %.*s\n", static_cast<int>(formats.size()), formats.data());
    }
    return is_known;
  }
};

// Calls store(k, number) for `count` numbers, which begin on a new line.
template <class Number, class Store>
bool read_section(TextScanner& text, const FortranFormat& format, std::size_t count, Store store) noexcept {
  FieldReader reader(text, format);
  for (std::size_t k = 0; k < count; ++k) {
    Field field;
    Number number{};
    if (!reader.next(field) || !parse_field(field, number)) return false;
    store(k, number);
  }
  return true;
}

// Indices, counted from one in the file. What is out of range is found when the pattern is checked.
bool read_indices(TextScanner& text, const FortranFormat& format, int* indices, std::size_t count) noexcept {
  bool is_good = true;
  const bool is_read = read_section<int>(text, format, count, [&](std::size_t k, int number) {
    is_good = is_good && number > 0;
    indices[k] = is_good ? number - 1 : -1;
  });
  return is_read && is_good;
}

template <Element T>
bool read_values(TextScanner& text, const Header& header, T* values) noexcept {
  const auto count = static_cast<std::size_t>(header.nnz);
  if (header.is_pattern()) {
    std::fill_n(values, count, T{1.0});
    return true;
  }
  auto* const parts = reinterpret_cast<double*>(values);
  return read_section<double>(text, header.values, kParts<T> * count,
                              [&](std::size_t k, double number) { parts[k] = number; });
}

bool read_body(TextScanner& text, const Header& header, CcsMatrix& A) noexcept {
  if (!read_indices(text, header.pointers, A.colptr, static_cast<std::size_t>(A.n) + 1) ||
      A.colptr[A.n] != header.nnz || !read_indices(text, header.rows, A.rowind, static_cast<std::size_t>(header.nnz)) ||
      !sparse::check_compressed(A.n, A.m, A.colptr, A.rowind)) {
    return false;
  }
  return A.has(kDcomplex) ? read_values(text, header, A.values.z) : read_values(text, header, A.values.d);
}

// The flags of the matrix. What cannot be asked for stops the process.
int matrix_flags(const Header& header, int requested) noexcept {
  const bool wants_complex = (requested & kDcomplex) != 0;
  if (!wants_complex && ((requested & kDouble) == 0 || header.is_complex())) {
    platform::fail_assertion("0", kFilesSource, __LINE__);
  }
  int flags = wants_complex && header.value_type != 'r' ? kDcomplex : kDouble;
  if (header.structure == 's') flags |= kSymmetric | kLower;
  if (header.structure == 'h') flags |= kHermitian | kLower;
  return flags;
}

CcsMatrix* read_hb(platform::File& file, int requested) noexcept {
  TextScanner text(file);
  Header header;
  if (!text) return refuse("taucs_ccs_read_hb: out of memory\n");
  if (!header.read(text)) return refuse("taucs_ccs_read_hb: wrong header\n");
  const int flags = matrix_flags(header, requested);
  // A pointer and an index take a character at least, so larger counts are none that this file can have.
  if (static_cast<std::uint64_t>(header.n) + static_cast<std::uint64_t>(header.nnz) > file.size()) {
    return refuse("taucs_ccs_read_hb: the file is too short for its header\n");
  }
  OwnedMatrix A(ccs_create(header.m, header.n, header.nnz, flags));
  if (A == nullptr) return refuse("taucs_ccs_read_hb: out of memory\n");
  if (!read_body(text, header, *A)) return refuse("taucs_ccs_read_hb: wrong or missing numbers\n");
  return A.release();
}

}  // namespace

CcsMatrix* ccs_read_hb(const char* filename, std::int32_t flags) noexcept {
  platform::File file;
  file.open_for_reading(filename);
  return file ? read_hb(file, flags) : refuse("taucs_ccs_read_hb: could not open HB file %s\n", filename);
}

}  // namespace quorin::taucs
