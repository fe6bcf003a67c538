// Patterns of sparse matrices in compressed form, and the rules that must hold before anything is read through them.
#pragma once

#include <cstddef>
#include <span>

namespace quorin::sparse {

// No vertex, no node, no list, no entry.
inline constexpr int kNone = -1;

// A compressed pattern is n lists (the columns of a matrix, or its rows) of indices of its m rows (or columns). List j
// is indices[starts[j] - base], ..., indices[starts[j + 1] - base - 1], each from `base` to base + m - 1.
struct PatternRules {
  int base = 0;
  bool begins_at_base = true;  // starts[0] is `base`; otherwise it may be larger
  bool has_no_empty_list = false;
  bool ascends = false;       // within each list, so that no index repeats
  bool is_lower = false;      // no index of list j lies before j
  bool has_diagonal = false;  // list j has the index j
};

enum class PatternFault {
  kNoFault,
  kNegativeSize,
  kMissingArray,
  kFirstStart,        // the first list does not begin where it must
  kDecreasingStarts,  // a list ends before it begins
  kEmptyList,
  kOutside,        // an index outside of the matrix
  kNotAscending,   //
  kAboveDiagonal,  //
  kNoDiagonal,     //
};

// The first rule that is broken, by which list, and by which of `indices`: kNone where it is not one of them.
struct [[nodiscard]] PatternCheck {
  PatternFault fault = PatternFault::kNoFault;
  int list = kNone;
  int entry = kNone;

  explicit operator bool() const { return fault == PatternFault::kNoFault; }
};

// The starts alone: when they are sound, starts[n] - base entries may be read. Time: O(n).
PatternCheck check_starts(int n, const int* starts, const PatternRules& rules = {});

// All of the pattern, the starts first. Time: O(n + entries).
PatternCheck check_compressed(int n, int m, const int* starts, const int* indices, const PatternRules& rules = {});

// The pattern of a rows x columns matrix in compressed columns, zero-based; borrowed. The rows of a column come in any
// order and perhaps more than once.
struct Pattern {
  int rows = 0;
  int columns = 0;
  const int* starts = nullptr;
  const int* indices = nullptr;

  int entries() const noexcept { return starts[columns]; }
  std::span<const int> column(int j) const noexcept {
    return {indices + starts[j], static_cast<std::size_t>(starts[j + 1] - starts[j])};
  }
  PatternCheck check() const { return check_compressed(columns, rows, starts, indices); }
};

// The starts of n lists of the given lengths, one behind the other: starts[0] = 0, starts[n] is the sum. lengths[j]
// becomes starts[j], too: the place of the list's next entry. Both may be the same array.
void cumulate(int n, int* lengths, int* starts);

}  // namespace quorin::sparse
