#include "sparse/symbolic/supernodes.hpp"

#include <algorithm>

namespace quorin::sparse {

void find_supernodes(int n, const int* parent, const int* counts, int cut, Supernodes& supernodes) noexcept {
  int count = 0;
  for (int k = 0; k < n; ++k) {
    const bool goes_on = k > 0 && k != cut && parent[k - 1] == k && counts[k - 1] == counts[k] + 1;
    if (!goes_on) supernodes.columns[count++] = 0;
    const int s = count - 1;
    supernodes.of[k] = s;
    ++supernodes.columns[s];
    supernodes.below[s] = counts[k] - 1;
  }
  supernodes.count = count;
  int last = -1;
  for (int s = 0; s < count; ++s) {
    last += supernodes.columns[s];
    supernodes.parent[s] = parent[last] == kNone ? kNone : supernodes.of[parent[last]];
  }
}

namespace {

// Entries of a lower trapezoid: `columns` columns and `below` rows below them.
double trapezoid(double columns, double below) { return columns * (columns + 1) / 2 + columns * below; }

// Up to how many columns which part of the entries may be zeros.
bool is_worth_merging(int columns, int below, double zeros) noexcept {
  if (zeros == 0) return true;
  const double share = columns <= 4 ? 0.8 : columns <= 16 ? 0.4 : columns <= 48 ? 0.1 : 0.05;
  return zeros < share * trapezoid(columns, below);
}

}  // namespace

bool merge_supernodes(int fixed, const int* must_merge, Supernodes& supernodes, int* merged_into) noexcept {
  const int count = supernodes.count;
  const auto size = static_cast<std::size_t>(count);
  base::Workspace<double> zeros(size);
  base::Workspace<int> links(2 * size), children(size);
  if (!zeros || !links || !children) return false;
  int* const first_child = links.data();
  int* const next_sibling = first_child + count;
  std::fill_n(first_child, count, kNone);
  for (int s = 0; s < count; ++s) {
    merged_into[s] = s;
    zeros[static_cast<std::size_t>(s)] = 0;
    if (const int p = supernodes.parent[s]; p != kNone) {
      next_sibling[s] = first_child[p];
      first_child[p] = s;
    }
  }
  // From the leaves up, so that a supernode has taken in its own children when it is offered to its parent. The more
  // rows a child has, the more of them it shares with the parent.
  for (int p = 0; p < fixed; ++p) {
    int* end = children.data();
    for (int c = first_child[p]; c != kNone; c = next_sibling[c]) *end++ = c;
    std::sort(children.data(), end, [&](int a, int b) {
      return supernodes.below[a] != supernodes.below[b] ? supernodes.below[a] > supernodes.below[b] : a > b;
    });
    for (const int* child = children.data(); child != end; ++child) {
      const int c = *child;
      const int columns = supernodes.columns[c] + supernodes.columns[p], below = supernodes.below[p];
      // The child's columns get the parent's rows.
      const double rows_gained = static_cast<double>(supernodes.columns[p]) + below - supernodes.below[c];
      const double merged_zeros =
          zeros[static_cast<std::size_t>(c)] + zeros[static_cast<std::size_t>(p)] + supernodes.columns[c] * rows_gained;
      if ((must_merge == nullptr || must_merge[c] == 0) && !is_worth_merging(columns, below, merged_zeros)) continue;
      merged_into[c] = p;
      supernodes.columns[p] = columns;
      zeros[static_cast<std::size_t>(p)] = merged_zeros;
    }
  }
  for (int s = count - 1; s >= 0; --s) {
    if (merged_into[s] != s) merged_into[s] = merged_into[merged_into[s]];
  }
  return true;
}

}  // namespace quorin::sparse
