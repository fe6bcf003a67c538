#include "sparse/pattern/compressed.hpp"

#include <cstdint>

namespace quorin::sparse {
namespace {

// Whether all indices are from base to base + m - 1. The sign bit of i | (m - 1 - i), for i counted from zero, is set
// where i is out of range: no comparison, and several entries at a time.
bool are_inside(const int* indices, int count, int base, int m) {
  const auto last = static_cast<std::uint32_t>(m) - 1;
  std::uint32_t signs = 0;
  for (int k = 0; k < count; ++k) {
    const std::uint32_t i = static_cast<std::uint32_t>(indices[k]) - static_cast<std::uint32_t>(base);
    signs |= i | (last - i);
  }
  return signs >> 31U == 0;
}

// Whether list j keeps all rules: signs of differences as above, a handful of operations an entry and no branch.
bool is_sound_list(int j, int m, int begin, int end, const int* indices, const PatternRules& rules) {
  const auto last = static_cast<std::uint32_t>(m) - 1;
  const std::uint32_t if_ascends = rules.ascends ? ~0U : 0U, if_lower = rules.is_lower ? ~0U : 0U;
  std::uint32_t signs = 0, next = 0;
  bool has_diagonal = !rules.has_diagonal;
  for (int k = begin; k < end; ++k) {
    const std::uint32_t i = static_cast<std::uint32_t>(indices[k]) - static_cast<std::uint32_t>(rules.base);
    const std::uint32_t below = i - static_cast<std::uint32_t>(j);
    signs |= i | (last - i) | ((i - next) & if_ascends) | (below & if_lower);
    has_diagonal |= below == 0;
    next = i + 1;
  }
  return has_diagonal && signs >> 31U == 0;
}

// The first rule that list j breaks.
PatternCheck fault_of_list(int j, int m, int begin, int end, const int* indices, const PatternRules& rules) {
  int previous = -1;
  for (int k = begin; k < end; ++k) {
    if (indices[k] < rules.base || indices[k] - rules.base >= m) return {PatternFault::kOutside, j, k};
    const int i = indices[k] - rules.base;
    if (rules.ascends && i <= previous) return {PatternFault::kNotAscending, j, k};
    if (rules.is_lower && i < j) return {PatternFault::kAboveDiagonal, j, k};
    previous = i;
  }
  return {PatternFault::kNoDiagonal, j};
}

}  // namespace

PatternCheck check_starts(int n, const int* starts, const PatternRules& rules) {
  if (n < 0) return {PatternFault::kNegativeSize};
  if (starts == nullptr) return {PatternFault::kMissingArray};
  if (starts[0] < rules.base || (rules.begins_at_base && starts[0] != rules.base)) {
    return {PatternFault::kFirstStart, 0};
  }
  for (int j = 0; j < n; ++j) {
    if (starts[j + 1] < starts[j]) return {PatternFault::kDecreasingStarts, j};
    if (rules.has_no_empty_list && starts[j + 1] == starts[j]) return {PatternFault::kEmptyList, j};
  }
  return {};
}

PatternCheck check_compressed(int n, int m, const int* starts, const int* indices, const PatternRules& rules) {
  if (m < 0) return {PatternFault::kNegativeSize};
  if (const PatternCheck check = check_starts(n, starts, rules); !check) return check;
  const int first = starts[0] - rules.base, entries = starts[n] - starts[0];
  if (entries > 0 && indices == nullptr) return {PatternFault::kMissingArray};
  const bool is_range_all = !rules.ascends && !rules.is_lower && !rules.has_diagonal;
  if (is_range_all && are_inside(indices + first, entries, rules.base, m)) return {};
  for (int j = 0; j < n; ++j) {
    const int begin = starts[j] - rules.base, end = starts[j + 1] - rules.base;
    if (!is_sound_list(j, m, begin, end, indices, rules)) return fault_of_list(j, m, begin, end, indices, rules);
  }
  return {};
}

void cumulate(int n, int* lengths, int* starts) {
  int sum = 0;
  for (int j = 0; j < n; ++j) {
    const int length = lengths[j];
    lengths[j] = starts[j] = sum;
    sum += length;
  }
  starts[n] = sum;
}

}  // namespace quorin::sparse
