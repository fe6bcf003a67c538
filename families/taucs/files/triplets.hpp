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
#include "sparse/sparse.hpp"

namespace quorin::taucs {

// Entries stay where they were put: a new block holds what a larger capacity adds.
template <Element T>
class Triplets {
 public:
  // Adds an entry with one-based indices; false if there is no memory.
  bool add(int row, int column, T value) noexcept {
    if (count_ == capacity_ && !grow()) return false;
    *next_++ = {row, column, value};
    ++count_;
    row_count_ = std::max(row_count_, row);
    column_count_ = std::max(column_count_, column);
    return true;
  }

  // The matrix with the type's flag and `structure`, entries in the order in which they came. Its n is the number of
  // rows and its m that of columns; colptr goes on to the larger of the two. Null if there is no memory, and for an
  // index so large that it must be a slip.
  CcsMatrix* assemble(int structure) const {
    const int longest = std::max(row_count_, column_count_);
    if (longest > kMostWithoutEntries && longest / kMostForAnEntry > count_) return nullptr;
    base::Workspace<int> next(static_cast<std::size_t>(longest));
    CcsMatrix* const A = next ? create<T>(column_count_, longest, count_) : nullptr;
    if (A == nullptr) return nullptr;
    std::fill(next.begin(), next.end(), 0);
    for_each([&](const Entry& entry) { ++next[entry.column - 1]; });
    sparse::cumulate(longest, next.data(), A->colptr);
    if (A->colptr[longest] != count_) platform::fail_assertion("k == nnz", kFilesSource, __LINE__);
    const sparse::ColumnArrays<T> to{A->colptr, A->rowind, A->template elements<T>()};
    for_each([&](const Entry& entry) { to.put(next[entry.column - 1]++, entry.row - 1, entry.value); });
    A->n = row_count_;
    A->m = column_count_;
    A->flags |= structure;
    return A;
  }

 private:
  struct Entry {
    int row, column;
    T value;
  };

  // A matrix of a larger order has an entry for so many rows and columns at least: nobody has one that is emptier.
  static constexpr int kMostWithoutEntries = 1000000, kMostForAnEntry = 64;

  static constexpr int kFirstCapacity = 10000;
  static constexpr std::size_t kMostBlocks = 64;  // 57 hold as many entries as an index can count

  bool grow() noexcept {
    constexpr int kMost = std::numeric_limits<int>::max();
    const double wanted = capacity_ == 0 ? kFirstCapacity : 1.25 * capacity_;
    const auto capacity = static_cast<int>(std::min<double>(wanted, kMost));
    base::Workspace<Entry> block;
    if (capacity > capacity_) block = base::Workspace<Entry>(static_cast<std::size_t>(capacity - capacity_));
    if (!block) return false;
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

  std::array<base::Workspace<Entry>, kMostBlocks> blocks_;
  std::size_t block_count_ = 0;
  Entry* next_ = nullptr;
  int count_ = 0, capacity_ = 0;
  int row_count_ = 0, column_count_ = 0;
};

}  // namespace quorin::taucs
