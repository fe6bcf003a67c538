// The formats ijv and mtx.
#include <cmath>
#include <utility>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/files/files.hpp"
#include "families/taucs/files/text_scanner.hpp"
#include "families/taucs/files/triplets.hpp"
#include "families/taucs/messages.hpp"

namespace quorin::taucs {
namespace {

template <Element T>
struct Entry {
  double row = 0, column = 0;  // as they stand in the file
  T value{};

  bool read(TextScanner& text) noexcept { return text.next(row) && text.next(column) && text.next(value); }
};

// A one-based index, or 0 for what is none. NaN fails the comparison.
int index(double number, int shift) noexcept {
  const double whole = std::trunc(number) + shift;
  return whole >= 1 && whole < std::numeric_limits<int>::max() ? static_cast<int>(whole) : 0;
}

// Reads entries to the end; take(row, column, value) is false if there is no memory.
template <Element T, class Take>
bool read_entries(TextScanner& text, int shift, Take take) {
  for (Entry<T> entry; entry.read(text);) {
    const int row = index(entry.row, shift), column = index(entry.column, shift);
    if (row == 0 || column == 0 || !take(row, column, entry.value)) return false;
  }
  return true;
}

template <Element T>
CcsMatrix* read_ijv(const char* filename, int flags, int shift) {
  platform::File file;
  file.open_for_reading(filename);
  if (!file) return refuse("taucs_ccs_read_ijv: could not open ijv file %s\n", filename);
  int structure = 0;
  if ((flags & kSymmetric) != 0) structure = kSymmetric | kLower;
  if ((flags & kHermitian) != 0) structure = kHermitian | kLower;
  TextScanner text(file);
  Triplets<T> triplets;
  const bool is_read = text && read_entries<T>(text, shift, [&](int row, int column, T value) {
                         return (structure != 0 && row < column) || triplets.add(row, column, value);
                       });
  CcsMatrix* const A = is_read ? triplets.assemble(structure) : nullptr;
  return A != nullptr ? A : refuse("taucs_ccs_read_ijv: a wrong index, or out of memory\n");
}

template <Element T>
CcsMatrix* read_mtx(const char* filename, int flags) {
  platform::File file;
  file.open_for_reading(filename);
  if (!file) return refuse("taucs_ccs_read_mtx: could not open mtx file %s\n", filename);
  TextScanner text(file);
  int rows = 0, columns = 0, entries = 0;
  if (!text.next(rows) || !text.next(columns) || !text.next(entries)) {
    return refuse("taucs_ccs_read_mtx: wrong header\n");
  }
  const bool is_symmetric = (flags & kSymmetric) != 0;
  Triplets<T> triplets;
  const bool is_read = read_entries<T>(text, 0, [&](int row, int column, T value) {
    if (is_symmetric && row < column) std::swap(row, column);
    return triplets.add(row, column, row == column ? value : T{-1.0});
  });
  CcsMatrix* const A = is_read ? triplets.assemble(is_symmetric ? kSymmetric | kLower : 0) : nullptr;
  return A != nullptr ? A : refuse("taucs_ccs_read_mtx: a wrong index, or out of memory\n");
}

CcsMatrix* read_ijv(const char* filename, int flags, int shift) {
  return is_complex_or_stop(flags, kFilesSource) ? read_ijv<Complex>(filename, flags, shift)
                                                 : read_ijv<double>(filename, flags, shift);
}

}  // namespace

CcsMatrix* ccs_read_ijv(const char* filename, std::int32_t flags) noexcept { return read_ijv(filename, flags, 0); }

CcsMatrix* ccs_read_ijv_zero_based(const char* filename, std::int32_t flags) noexcept {
  return read_ijv(filename, flags, 1);
}

CcsMatrix* ccs_read_mtx(const char* filename, std::int32_t flags) noexcept {
  return is_complex_or_stop(flags, kFilesSource) ? read_mtx<Complex>(filename, flags)
                                                 : read_mtx<double>(filename, flags);
}

}  // namespace quorin::taucs
