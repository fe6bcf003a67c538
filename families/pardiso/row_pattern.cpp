#include "families/pardiso/row_pattern.hpp"

#include <algorithm>
#include <limits>

#include "families/pardiso/fingerprint.hpp"

namespace quorin::pardiso {
namespace {

constexpr auto kMostEntries = static_cast<std::uint64_t>(std::numeric_limits<int>::max());

std::uint64_t fingerprint_of(const HostRows& rows) {
  const auto words = [](int count) { return static_cast<std::size_t>(count); };
  const std::uint64_t starts = fingerprint(rows.ia, words(rows.n) + 1);
  return fingerprint(rows.ja, words(rows.ia[rows.n] - rows.base), starts);
}

// Calls visit(row, column, place in a) for all entries in the order of a. Blocks are stored by columns if indices begin
// at 1, and by rows if they begin at 0.
template <class Visit>
void for_each_entry(const HostRows& rows, const Visit& visit) {
  const int order = std::max(rows.block, 1);
  int k = 0;
  for (int i = 0; i < rows.n; ++i) {
    for (int p = rows.ia[i] - rows.base; p < rows.ia[i + 1] - rows.base; ++p) {
      const int j = rows.ja[p] - rows.base;
      for (int outer = 0; outer < order; ++outer) {
        for (int inner = 0; inner < order; ++inner, ++k) {
          const int row = rows.base == 1 ? inner : outer, column = rows.base == 1 ? outer : inner;
          visit(i * order + row, j * order + column, k);
        }
      }
    }
  }
}

}  // namespace

Error RowPattern::read(const HostRows& rows, const Kind& kind, bool is_checked) {
  const bool needs_diagonal = !kind.is_unsymmetric();
  const sparse::PatternRules range = {.base = rows.base};
  const sparse::PatternRules rules = {
      .base = rows.base, .ascends = true, .is_lower = kind.stores_upper, .has_diagonal = needs_diagonal};
  if (!sparse::check_compressed(rows.n, rows.n, rows.ia, rows.ja, range)) return Error::kInconsistent;
  const bool is_clean = static_cast<bool>(sparse::check_compressed(rows.n, rows.n, rows.ia, rows.ja, rules));
  if (is_checked && !is_clean) return Error::kInconsistent;
  const auto order = static_cast<std::uint64_t>(std::max(rows.block, 1));
  host_entries_ = rows.ia[rows.n] - rows.base;
  const auto size = static_cast<std::uint64_t>(rows.n) * order, blocks = static_cast<std::uint64_t>(host_entries_);
  // Each row gets a diagonal entry; order^2 does not overflow.
  if (size > kMostEntries || (blocks != 0 && order * order > kMostEntries / blocks) ||
      blocks * order * order + size > kMostEntries) {
    return Error::kTooLarge;
  }
  size_ = static_cast<int>(size);
  fingerprint_ = fingerprint_of(rows);
  is_as_given_ = is_clean && order == 1;
  return is_as_given_ ? copy(rows) : arrange(rows, kind);
}

Error RowPattern::copy(const HostRows& rows) {
  starts_ = base::Workspace<int>(static_cast<std::size_t>(size_) + 1);
  columns_ = base::Workspace<int>(static_cast<std::size_t>(host_entries_));
  if (!starts_ || !columns_) return Error::kNoMemory;
  const auto from_base = [base = rows.base](int index) { return index - base; };
  std::transform(rows.ia, rows.ia + size_ + 1, starts_.data(), from_base);
  std::transform(rows.ja, rows.ja + host_entries_, columns_.data(), from_base);
  return Error::kDone;
}

// Entries are put by columns, then by rows, so that columns ascend in each row and those of one place meet.
Error RowPattern::arrange(const HostRows& rows, const Kind& kind) {
  const auto n = static_cast<std::size_t>(size_), order = static_cast<std::size_t>(std::max(rows.block, 1));
  const std::size_t given = static_cast<std::size_t>(host_entries_) * order * order;
  const auto is_used = [&kind](int i, int j) { return !kind.stores_upper || i <= j; };
  base::Workspace<int> column_starts(n + 1), next(n), by_column(given), row_of(given), last(n);
  starts_ = base::Workspace<int>(n + 1);
  places_ = base::Workspace<int>(given);
  if (!column_starts || !next || !by_column || !row_of || !last || !starts_ || !places_) return Error::kNoMemory;

  std::fill(next.begin(), next.end(), 0);
  for_each_entry(rows, [&](int i, int j, int) {
    if (is_used(i, j)) ++next[j];
  });
  sparse::cumulate(size_, next.data(), column_starts.data());
  std::fill(places_.begin(), places_.end(), sparse::kNone);
  for_each_entry(rows, [&](int i, int j, int k) {
    if (!is_used(i, j)) return;
    const int place = next[j]++;
    by_column[place] = k;
    row_of[place] = i;
  });

  // Visits (row, column, place in a, whether it is the first one there); diagonals without an entry have no place.
  const auto for_each_sorted = [&](const auto& visit) {
    std::fill(last.begin(), last.end(), sparse::kNone);
    for (int j = 0; j < size_; ++j) {
      for (int p = column_starts[j]; p < column_starts[j + 1]; ++p) {
        const int i = row_of[p];
        visit(i, j, by_column[p], last[i] != j);
        last[i] = j;
      }
      if (!kind.is_unsymmetric() && last[j] != j) {
        visit(j, j, sparse::kNone, true);
        last[j] = j;
      }
    }
  };
  std::fill(next.begin(), next.end(), 0);
  for_each_sorted([&](int i, int, int, bool is_first) { next[i] += is_first ? 1 : 0; });
  sparse::cumulate(size_, next.data(), starts_.data());
  columns_ = base::Workspace<int>(static_cast<std::size_t>(starts_[n]));
  if (!columns_) return Error::kNoMemory;
  for_each_sorted([&](int i, int j, int k, bool is_first) {
    if (is_first) columns_[next[i]++] = j;
    if (k != sparse::kNone) places_[k] = next[i] - 1;
  });
  return Error::kDone;
}

bool RowPattern::agrees(const HostRows& rows, bool all) const {
  if (rows.ia == nullptr || rows.ja == nullptr) return !all;
  if (rows.ia[0] != rows.base || rows.ia[rows.n] - rows.base != host_entries_) return false;
  return !all || fingerprint_of(rows) == fingerprint_;
}

bool RowPattern::is_diagonal() const {
  if (entries() != size_) return false;
  for (int i = 0; i < size_; ++i) {
    if (starts_[i] != i || columns_[i] != i) return false;
  }
  return true;
}

bool RowPattern::is_sound() const {
  if (size_ < 1 || starts_.size() != static_cast<std::size_t>(size_) + 1 || host_entries_ < 0) return false;
  if (!sparse::check_starts(size_, starts_.data()) || columns_.size() != static_cast<std::size_t>(entries())) {
    return false;
  }
  if (!sparse::check_compressed(size_, size_, starts_.data(), columns_.data(), {.ascends = true})) return false;
  if (is_as_given_) return entries() == host_entries_;
  return std::all_of(places_.data(), places_.data() + places_.size(),
                     [this](int place) { return place >= sparse::kNone && place < entries(); });
}

std::size_t RowPattern::bytes() const { return (starts_.size() + columns_.size() + places_.size()) * sizeof(int); }

}  // namespace quorin::pardiso
