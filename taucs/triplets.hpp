// Entries in the order of a file, and the matrix that they make.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "base/allocator.hpp"
#include "base/workspace.hpp"
#include "taucs/dispatch.hpp"
#include "taucs/matrix.hpp"
#include "taucs/messages.hpp"

namespace quorin::taucs {

// An array that grows without moving constructors or exceptions.
template <class T>
class GrowingArray {
 public:
  GrowingArray() = default;
  GrowingArray(const GrowingArray&) = delete;
  GrowingArray& operator=(const GrowingArray&) = delete;
  ~GrowingArray() { base::release(data_); }

  bool grow(std::size_t count) noexcept {
    void* const memory = base::reallocate(data_, base::saturating_product(count, sizeof(T)));
    if (memory != nullptr) data_ = static_cast<T*>(memory);
    return memory != nullptr;
  }
  T& operator[](std::int32_t i) noexcept { return data_[i]; }
  const T& operator[](std::int32_t i) const noexcept { return data_[i]; }

 private:
  T* data_ = nullptr;
};

template <Element T>
class Triplets {
 public:
  /// `reader` stands in the messages: "ijv" or "mtx".
  explicit Triplets(const char* reader) noexcept : reader_(reader) {}

  /// Adds an entry with one-based indices; false if there is no memory.
  bool add(std::int32_t row, std::int32_t column, T value) noexcept {
    if (count_ == capacity_ && !grow()) return false;
    rows_[count_] = row;
    columns_[count_] = column;
    values_[count_] = value;
    ++count_;
    row_count_ = std::max(row_count_, row);
    column_count_ = std::max(column_count_, column);
    return true;
  }

  /// The matrix with the type's flag and `structure`, entries in the order in which they came. Its n is the number of
  /// rows and its m that of columns; colptr goes on to the larger of the two. Null if there is no memory.
  CcsMatrix* assemble(std::int32_t structure) const noexcept {
    const std::int32_t longest = std::max(row_count_, column_count_);
    base::Workspace<std::int32_t> next(static_cast<std::size_t>(longest) + 1);
    CcsMatrix* const A = next ? create<T>(column_count_, longest, count_) : nullptr;
    if (A == nullptr) {
      print("taucs_ccs_read_%s: out of memory: ncols=%d nnz=%d\n", reader_, column_count_, count_);
      return nullptr;
    }
    std::fill_n(next.data(), next.size(), 0);
    for (std::int32_t k = 0; k < count_; ++k) ++next.data()[columns_[k] - 1];
    std::int32_t sum = 0;
    for (std::int32_t j = 0; j <= longest; ++j) {
      A->colptr[j] = sum;
      sum += next.data()[j];
      next.data()[j] = A->colptr[j];
    }
    if (sum != count_) platform::fail_assertion("k == nnz", kFilesSource, __LINE__);
    T* const values = A->elements<T>();
    for (std::int32_t k = 0; k < count_; ++k) {
      const std::int32_t place = next.data()[columns_[k] - 1]++;
      A->rowind[place] = rows_[k] - 1;
      values[place] = values_[k];
    }
    A->n = row_count_;
    A->m = column_count_;
    A->flags |= structure;
    return A;
  }

 private:
  bool grow() noexcept {
    constexpr std::int32_t kFirst = 10000, kMost = std::numeric_limits<std::int32_t>::max();
    const double wanted = capacity_ == 0 ? kFirst : 1.25 * capacity_;
    const auto count = static_cast<std::int32_t>(std::min<double>(wanted, kMost));
    print("taucs_ccs_read_%s: allocating %d ijv's\n", reader_, count);
    const auto size = static_cast<std::size_t>(count);
    if (count == capacity_ || !rows_.grow(size) || !columns_.grow(size) || !values_.grow(size)) {
      print("taucs_ccs_read_%s: out of memory\n", reader_);
      return false;
    }
    capacity_ = count;
    return true;
  }

  const char* reader_;
  GrowingArray<std::int32_t> rows_, columns_;
  GrowingArray<T> values_;
  std::int32_t count_ = 0, capacity_ = 0;
  std::int32_t row_count_ = 0, column_count_ = 0;
};

}  // namespace quorin::taucs
