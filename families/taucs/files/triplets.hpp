// Entries in the order of a file, and the matrix that they make.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

#include "base/workspace.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/matrix.hpp"
#include "families/taucs/messages.hpp"

namespace quorin::taucs {

/// Entries stay where they were put: a new block holds what a larger capacity adds.
template <Element T>
class Triplets {
 public:
  /// `reader` stands in the messages: "ijv" or "mtx".
  explicit Triplets(const char* reader) noexcept : reader_(reader) {}

  /// Adds an entry with one-based indices; false if there is no memory.
  bool add(std::int32_t row, std::int32_t column, T value) noexcept {
    if (count_ == capacity_ && !grow()) return false;
    *next_++ = {row, column, value};
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
    for_each([&](const Entry& entry) { ++next.data()[entry.column - 1]; });
    std::int32_t sum = 0;
    for (std::int32_t j = 0; j <= longest; ++j) {
      A->colptr[j] = sum;
      sum += next.data()[j];
      next.data()[j] = A->colptr[j];
    }
    if (sum != count_) platform::fail_assertion("k == nnz", kFilesSource, __LINE__);
    T* const values = A->elements<T>();
    for_each([&](const Entry& entry) {
      const std::int32_t place = next.data()[entry.column - 1]++;
      A->rowind[place] = entry.row - 1;
      values[place] = entry.value;
    });
    A->n = row_count_;
    A->m = column_count_;
    A->flags |= structure;
    return A;
  }

 private:
  struct Entry {
    std::int32_t row, column;
    T value;
  };

  static constexpr std::int32_t kFirstCapacity = 10000;
  static constexpr std::size_t kMostBlocks = 64;  // 57 hold as many entries as an index can count

  bool grow() noexcept {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    const double wanted = capacity_ == 0 ? kFirstCapacity : 1.25 * capacity_;
    const auto capacity = static_cast<std::int32_t>(std::min<double>(wanted, kMost));
    print("taucs_ccs_read_%s: allocating %d ijv's\n", reader_, capacity);
    base::Workspace<Entry> block;
    if (capacity > capacity_) block = base::Workspace<Entry>(static_cast<std::size_t>(capacity - capacity_));
    if (!block) {
      print("taucs_ccs_read_%s: out of memory\n", reader_);
      return false;
    }
    next_ = block.data();
    blocks_[block_count_++] = std::move(block);
    capacity_ = capacity;
    return true;
  }

  // In the order in which they came.
  template <class Visit>
  void for_each(Visit visit) const noexcept {
    std::size_t left = static_cast<std::size_t>(count_);
    for (const base::Workspace<Entry>& block : blocks_) {
      const std::size_t size = std::min(block.size(), left);
      std::for_each_n(block.data(), size, visit);
      left -= size;
    }
  }

  const char* reader_;
  std::array<base::Workspace<Entry>, kMostBlocks> blocks_;
  std::size_t block_count_ = 0;
  Entry* next_ = nullptr;
  std::int32_t count_ = 0, capacity_ = 0;
  std::int32_t row_count_ = 0, column_count_ = 0;
};

}  // namespace quorin::taucs
