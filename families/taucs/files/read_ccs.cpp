// Compressed columns, as text and as they stand in memory.
#include <algorithm>
#include <bit>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/files/files.hpp"
#include "families/taucs/files/text_scanner.hpp"
#include "families/taucs/messages.hpp"
#include "sparse/sparse.hpp"

namespace quorin::taucs {
namespace {

static_assert(std::endian::native == std::endian::little, "binary files hold the lowest byte first");

template <class Number>
bool read_numbers(TextScanner& text, Number* numbers, int count) {
  return std::all_of(numbers, numbers + count, [&](Number& number) { return text.next(number); });
}

// Null, too, where the text ends early or the pattern is none. Column pointers are read on their own first: only they
// tell how many entries there are.
template <Element T>
CcsMatrix* read_text(TextScanner& text, std::uint64_t file_size, bool is_symmetric) {
  int n = -1;
  // Every number takes two characters at least, so a larger n is none that this file can have.
  if (!text.next(n) || n < 0 || static_cast<std::uint64_t>(n) > file_size / 2) return nullptr;
  const OwnedIndices colptr(new_array<int>(static_cast<std::size_t>(n) + 1));
  if (colptr == nullptr || !read_numbers(text, colptr.get(), n + 1)) return nullptr;
  if (!sparse::check_starts(n, colptr.get())) return nullptr;
  const int nnz = colptr.get()[n];
  if (static_cast<std::uint64_t>(nnz) > file_size / 2) return nullptr;
  OwnedMatrix A(create<T>(n, n, nnz));
  if (A == nullptr) return nullptr;
  std::copy_n(colptr.get(), n + 1, A->colptr);
  if (!read_numbers(text, A->rowind, nnz)) return nullptr;
  const sparse::PatternCheck check = sparse::check_compressed(n, n, A->colptr, A->rowind, {.is_lower = is_symmetric});
  if (check.fault == sparse::PatternFault::kAboveDiagonal) platform::fail_assertion("i >= j", kFilesSource, __LINE__);
  if (!check || !read_numbers(text, A->template elements<T>(), nnz)) return nullptr;
  if (is_symmetric) A->flags |= kSymmetric | kLower;
  return A.release();
}

template <Element T>
CcsMatrix* read_ccs(const char* filename, int flags) {
  platform::File file;
  file.open_for_reading(filename);
  if (!file) return refuse("taucs_ccs_read_ccs: could not open ccs file %s\n", filename);
  TextScanner text(file);
  CcsMatrix* const A = read_text<T>(text, file.size(), (flags & kSymmetric) != 0);
  return A != nullptr ? A : refuse("taucs_ccs_read_ccs: wrong or missing numbers, or out of memory\n");
}

template <class Number>
bool read_array(platform::File& file, Number* array, int count) {
  const std::size_t bytes = static_cast<std::size_t>(count) * sizeof(Number);
  return file.read(array, bytes) == bytes;
}

CcsMatrix* read_binary(platform::File& file) {
  const std::uint64_t file_size = file.size();
  int header[3];
  if (!read_array(file, header, 3)) return nullptr;
  const auto [m, n, flags] = header;
  const bool is_mirrored = (flags & (kSymmetric | kHermitian)) != 0;
  if (m < 0 || n < 0 || (is_mirrored && m != n)) return nullptr;
  if (static_cast<std::uint64_t>(n) > file_size / sizeof(int)) return nullptr;
  const OwnedIndices colptr(new_array<int>(static_cast<std::size_t>(n) + 1));
  if (colptr == nullptr) platform::fail_assertion("colptr", kFilesSource, __LINE__);
  if (!read_array(file, colptr.get(), n + 1) || !sparse::check_starts(n, colptr.get())) return nullptr;
  const int nnz = colptr.get()[n];
  if (static_cast<std::uint64_t>(nnz) > file_size / sizeof(int)) return nullptr;
  OwnedMatrix A(ccs_create(m, n, nnz, flags));
  if (A == nullptr) return nullptr;
  std::copy_n(colptr.get(), n + 1, A->colptr);
  if (!read_array(file, A->rowind, nnz) || !sparse::check_compressed(n, m, A->colptr, A->rowind)) return nullptr;
  const bool is_read = A->has(kDcomplex) ? read_array(file, A->values.z, nnz) : read_array(file, A->values.d, nnz);
  return is_read ? A.release() : nullptr;
}

}  // namespace

CcsMatrix* ccs_read_ccs(const char* filename, std::int32_t flags) noexcept {
  return is_complex_or_stop(flags, kFilesSource) ? read_ccs<Complex>(filename, flags)
                                                 : read_ccs<double>(filename, flags);
}

CcsMatrix* ccs_read_binary(const char* filename) noexcept {
  platform::File file;
  file.open_for_reading(filename);
  if (!file) return refuse("taucs_ccs_read_binary: could not open binary file %s\n", filename);
  CcsMatrix* const A = read_binary(file);
  return A != nullptr ? A : refuse("taucs_ccs_read_binary: wrong or missing numbers, or out of memory\n");
}

}  // namespace quorin::taucs
