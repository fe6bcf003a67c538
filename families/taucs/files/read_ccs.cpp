// Compressed columns, as text and as they stand in memory.
#include <bit>
#include <utility>

#include "base/allocator.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/files/files.hpp"
#include "families/taucs/files/text_scanner.hpp"
#include "families/taucs/messages.hpp"
#include "families/taucs/pattern_check.hpp"

namespace quorin::taucs {
namespace {

static_assert(std::endian::native == std::endian::little, "binary files hold the lowest byte first");

// A matrix under construction: freed unless it is released to the caller.
class NewMatrix {
 public:
  explicit NewMatrix(CcsMatrix* A) noexcept : A_(A) {}
  NewMatrix(const NewMatrix&) = delete;
  NewMatrix& operator=(const NewMatrix&) = delete;
  ~NewMatrix() { ccs_free(A_); }

  explicit operator bool() const noexcept { return A_ != nullptr; }
  CcsMatrix* operator->() const noexcept { return A_; }
  CcsMatrix* release() noexcept { return std::exchange(A_, nullptr); }

 private:
  CcsMatrix* A_;
};

// Column pointers on their own, before it is known how many entries the matrix has.
class ColumnPointers {
 public:
  explicit ColumnPointers(std::int32_t n) noexcept
      : data_(static_cast<std::int32_t*>(base::allocate(base::saturating_product(count(n), sizeof(std::int32_t))))) {}
  ColumnPointers(const ColumnPointers&) = delete;
  ColumnPointers& operator=(const ColumnPointers&) = delete;
  ~ColumnPointers() { base::release(data_); }

  static std::size_t count(std::int32_t n) noexcept { return static_cast<std::size_t>(n) + 1; }
  std::int32_t* data() const noexcept { return data_; }

 private:
  std::int32_t* data_;
};

template <class Number>
bool read_numbers(TextScanner& text, Number* numbers, std::size_t count) noexcept {
  return std::all_of(numbers, numbers + count, [&](Number& number) { return text.next(number); });
}

void stop_above_diagonal(const CcsMatrix& A) noexcept {
  for (std::int32_t j = 0; j < A.n; ++j) {
    for (std::int32_t k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      if (A.rowind[k] < j) platform::fail_assertion("i >= j", kFilesSource, __LINE__);
    }
  }
}

// Null, too, where the text ends early or the pattern is none.
template <Element T>
CcsMatrix* read_body(TextScanner& text, std::uint64_t file_size, bool is_symmetric) noexcept {
  std::int32_t n = -1;
  // Every number takes two characters at least, so a larger n is none that this file can have.
  if (!text.next(n) || n < 0 || static_cast<std::uint64_t>(n) > file_size / 2) return nullptr;
  const ColumnPointers colptr(n);
  if (colptr.data() == nullptr || !read_numbers(text, colptr.data(), ColumnPointers::count(n)) ||
      !are_column_starts(colptr.data(), n)) {
    return nullptr;
  }
  const std::int32_t nnz = colptr.data()[n];
  if (static_cast<std::uint64_t>(nnz) > file_size / 2) return nullptr;
  NewMatrix A(create<T>(n, n, nnz));
  if (!A) return nullptr;
  std::copy_n(colptr.data(), ColumnPointers::count(n), A->colptr);
  if (!read_numbers(text, A->rowind, static_cast<std::size_t>(nnz)) || !are_rows_of(A->rowind, nnz, n) ||
      !read_numbers(text, A->template elements<T>(), static_cast<std::size_t>(nnz))) {
    return nullptr;
  }
  if (is_symmetric) {
    stop_above_diagonal(*A.operator->());
    A->flags |= kSymmetric | kLower;
  }
  return A.release();
}

template <Element T>
CcsMatrix* read_ccs(const char* filename, std::int32_t flags) noexcept {
  platform::File file;
  file.open_for_reading(filename);
  if (!file) {
    print("taucs_ccs_read_ccs: could not open ccs file %s\n", filename);
    return nullptr;
  }
  TextScanner text(file);
  CcsMatrix* const A = read_body<T>(text, file.size(), (flags & kSymmetric) != 0);
  if (A != nullptr) {
    print("taucs_ccs_read_ccs: read %s, n=%d\n", filename, A->n);
  } else {
    print("taucs_ccs_read_ccs: no ccs file, or out of memory: %s\n", filename);
  }
  return A;
}

struct BinaryHeader {
  std::int32_t m, n, flags;
};

bool read_array(platform::File& file, void* array, std::size_t count, std::size_t bytes_each) noexcept {
  return file.read(array, count * bytes_each) == count * bytes_each;
}

void preview(const std::int32_t* colptr, std::int32_t n) noexcept {
  constexpr std::int32_t kShown = 10;
  print("colptr = [");
  for (std::int32_t j = 0; j < std::min(n, kShown); ++j) print("%d,", colptr[j]);
  print("...,%d]\n", colptr[n]);
}

CcsMatrix* read_binary(platform::File& file) noexcept {
  const std::uint64_t file_size = file.size();
  BinaryHeader header{};
  if (file.read(&header, sizeof header) != sizeof header) return nullptr;
  const auto [m, n, flags] = header;
  print("\t%d-by-%d, flags = %08x\n", m, n, static_cast<unsigned>(flags));
  print("\t%d-by-%d, flags = %d  \n", m, n, flags);
  const bool is_mirrored = (flags & (kSymmetric | kHermitian)) != 0;
  if (m < 0 || n < 0 || (is_mirrored && m != n)) return nullptr;
  if (static_cast<std::uint64_t>(n) > file_size / sizeof(std::int32_t)) return nullptr;
  const ColumnPointers colptr(n);
  if (colptr.data() == nullptr) platform::fail_assertion("colptr", kFilesSource, __LINE__);
  if (!read_array(file, colptr.data(), ColumnPointers::count(n), sizeof(std::int32_t)) ||
      !are_column_starts(colptr.data(), n)) {
    return nullptr;
  }
  preview(colptr.data(), n);
  const std::int32_t nnz = colptr.data()[n];
  if (static_cast<std::uint64_t>(nnz) > file_size / sizeof(std::int32_t)) return nullptr;
  NewMatrix A(ccs_create(m, n, nnz, flags));
  if (!A) return nullptr;
  std::copy_n(colptr.data(), ColumnPointers::count(n), A->colptr);
  const auto count = static_cast<std::size_t>(nnz);
  const std::size_t element = A->has(kDcomplex) ? sizeof(std::complex<double>) : sizeof(double);
  if (!read_array(file, A->rowind, count, sizeof(std::int32_t)) || !are_rows_of(A->rowind, nnz, m) ||
      !read_array(file, A->values.v, count, element)) {
    return nullptr;
  }
  return A.release();
}

}  // namespace

CcsMatrix* ccs_read_ccs(const char* filename, std::int32_t flags) noexcept {
  return dispatch_or_stop(flags, kFilesSource, __LINE__, [&]<class T>() { return read_ccs<T>(filename, flags); });
}

CcsMatrix* ccs_read_binary(const char* filename) noexcept {
  platform::File file;
  file.open_for_reading(filename);
  CcsMatrix* const A = file ? read_binary(file) : nullptr;
  print(A != nullptr ? "taucs_ccs_read_binary: done reading\n" : "taucs_ccs_read_binary: no binary matrix\n");
  return A;
}

}  // namespace quorin::taucs
