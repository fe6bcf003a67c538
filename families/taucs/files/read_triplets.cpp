// The formats ijv and mtx.
#include <cmath>
#include <utility>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/files/files.hpp"
#include "families/taucs/files/text_scanner.hpp"
#include "families/taucs/files/triplets.hpp"

namespace quorin::taucs {
namespace {

template <Element T>
struct Entry {
  double row = 0, column = 0;  // as they stand in the file
  T value{};

  bool read(TextScanner& text) noexcept { return text.next(row) && text.next(column) && text.next(value); }
};

// A one-based index, or 0 for what is none. NaN fails the comparison.
std::int32_t index(double number, int shift) noexcept {
  const double whole = std::trunc(number) + shift;
  return whole >= 1 && whole < std::numeric_limits<std::int32_t>::max() ? static_cast<std::int32_t>(whole) : 0;
}

// Reads entries to the end; take(row, column, value) is false if there is no memory.
template <Element T, class Take>
bool read_entries(TextScanner& text, const char* reader, int shift, Take take) noexcept {
  for (Entry<T> entry; entry.read(text);) {
    const std::int32_t row = index(entry.row, shift), column = index(entry.column, shift);
    if (row == 0 || column == 0) {
      print("taucs_ccs_read_%s: wrong index\n", reader);
      return false;
    }
    if (!take(row, column, entry.value)) return false;
  }
  return true;
}

template <Element T>
CcsMatrix* read_ijv(const char* filename, std::int32_t flags, int shift) noexcept {
  platform::File file;
  file.open_for_reading(filename);
  if (!file) {
    print("taucs_ccs_read_ijv: could not open ijv file %s\n", filename);
    return nullptr;
  }
  std::int32_t structure = 0;
  if ((flags & kSymmetric) != 0) structure = kSymmetric | kLower;
  if ((flags & kHermitian) != 0) structure = kHermitian | kLower;
  TextScanner text(file);
  Triplets<T> triplets("ijv");
  const bool is_read = text && read_entries<T>(text, "ijv", shift, [&](std::int32_t row, std::int32_t column, T value) {
                         return (structure != 0 && row < column) || triplets.add(row, column, value);
                       });
  CcsMatrix* const A = is_read ? triplets.assemble(structure) : nullptr;
  if (A != nullptr) print("taucs_ccs_read_ijv: read %s, n=%d\n", filename, A->n);
  return A;
}

template <Element T>
CcsMatrix* read_mtx(const char* filename, std::int32_t flags) noexcept {
  platform::File file;
  file.open_for_reading(filename);
  if (!file) {
    print("taucs_ccs_read_mtx: could not open mtx file %s\n", filename);
    return nullptr;
  }
  TextScanner text(file);
  std::int32_t rows = 0, columns = 0, entries = 0;
  if (!text.next(rows) || !text.next(columns) || !text.next(entries)) {
    print("taucs_ccs_read_mtx: wrong header\n");
    return nullptr;
  }
  const bool is_symmetric = (flags & kSymmetric) != 0;
  Triplets<T> triplets("mtx");
  const bool is_read = read_entries<T>(text, "mtx", 0, [&](std::int32_t row, std::int32_t column, T value) {
    if (is_symmetric && row < column) std::swap(row, column);
    return triplets.add(row, column, row == column ? value : T{-1.0});
  });
  CcsMatrix* const A = is_read ? triplets.assemble(is_symmetric ? kSymmetric | kLower : 0) : nullptr;
  if (A != nullptr) print("taucs_ccs_read_mtx: read %s, n=%d\n", filename, A->n);
  return A;
}

}  // namespace

CcsMatrix* ccs_read_ijv(const char* filename, std::int32_t flags) noexcept {
  return dispatch_or_stop(flags, kFilesSource, __LINE__, [&]<class T>() { return read_ijv<T>(filename, flags, 0); });
}

CcsMatrix* ccs_read_ijv_zero_based(const char* filename, std::int32_t flags) noexcept {
  return dispatch_or_stop(flags, kFilesSource, __LINE__, [&]<class T>() { return read_ijv<T>(filename, flags, 1); });
}

CcsMatrix* ccs_read_mtx(const char* filename, std::int32_t flags) noexcept {
  return dispatch_or_stop(flags, kFilesSource, __LINE__, [&]<class T>() { return read_mtx<T>(filename, flags); });
}

}  // namespace quorin::taucs
