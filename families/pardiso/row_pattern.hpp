// The host's matrix: compressed rows of entries or of dense blocks, in whatever order they come.
#pragma once

#include <cstdint>

#include "base/workspace.hpp"
#include "families/pardiso/parameters.hpp"
#include "sparse/sparse.hpp"

namespace quorin::pardiso {

// Borrowed from the host. n rows of blocks of order `block`, or of entries if that is 0.
struct HostRows {
  int n = 0;
  const std::int32_t* ia = nullptr;
  const std::int32_t* ja = nullptr;
  int base = 1;
  int block = 0;
};

// The pattern as the solver sees it: rows of entries, counted from 0, ascending, without repetitions; of kinds that
// store their upper triangle that alone, and of all but the unsymmetric ones with all of the diagonal.
class RowPattern {
 public:
  // kInconsistent for starts that do not begin at the base or decrease, a column outside, or, if it is checked, any
  // other broken rule; kTooLarge, kNoMemory.
  [[nodiscard]] Error read(const HostRows& rows, const Kind& kind, bool is_checked);

  // Whether the rows are those that were read, by their ends; if `all`, by a fingerprint of everything.
  [[nodiscard]] bool agrees(const HostRows& rows, bool all) const;

  int size() const { return size_; }
  int entries() const { return starts_[size_]; }
  const int* starts() const { return starts_.data(); }
  const int* columns() const { return columns_.data(); }
  // As the columns of A^T.
  sparse::Pattern view() const { return {size_, size_, starts_.data(), columns_.data()}; }
  bool is_diagonal() const;
  std::size_t bytes() const;

  // For files, and whether what was read from one can be a pattern.
  template <class Archive>
  void transfer(Archive& archive) {
    archive.number(size_);
    archive.number(host_entries_);
    archive.number(is_as_given_);
    archive.number(fingerprint_);
    archive.array(starts_);
    archive.array(columns_);
    archive.array(places_);
  }
  bool is_sound() const;

  // The entries' values, those of the same place added up: the host's own array where it has them in this very order,
  // else in `storage`. Null if there is no memory.
  template <Scalar T>
  const T* gather(const T* a, base::Workspace<T>& storage) const {
    if (is_as_given_) return a;
    storage = base::Workspace<T>(static_cast<std::size_t>(entries()));
    if (!storage) return nullptr;
    std::fill(storage.begin(), storage.end(), T{});
    for (std::size_t k = 0; k < places_.size(); ++k) {
      if (places_[k] != sparse::kNone) storage[static_cast<std::size_t>(places_[k])] += a[k];
    }
    return storage.data();
  }

 private:
  [[nodiscard]] Error copy(const HostRows& rows);
  [[nodiscard]] Error arrange(const HostRows& rows, const Kind& kind);

  int size_ = 0;
  base::Workspace<int> starts_, columns_;
  base::Workspace<int> places_;  // of the host's k-th value; kNone for one that is left out
  bool is_as_given_ = false;
  int host_entries_ = 0;  // or blocks
  std::uint64_t fingerprint_ = 0;
};

}  // namespace quorin::pardiso
