#include "sparse/pattern/graph.hpp"

#include <algorithm>
#include <limits>
#include <numeric>

namespace quorin::sparse {

using base::Workspace;

Outcome Pattern::check() const noexcept {
  if (rows < 0 || columns < 0 || starts == nullptr || starts[0] != 0) return Outcome::kBadPattern;
  for (int j = 0; j < columns; ++j) {
    if (starts[j + 1] < starts[j]) return Outcome::kBadPattern;
  }
  if (entries() == 0) return Outcome::kDone;
  if (indices == nullptr) return Outcome::kBadPattern;
  const bool inside = std::all_of(indices, indices + entries(), [this](int i) { return i >= 0 && i < rows; });
  return inside ? Outcome::kDone : Outcome::kBadPattern;
}

namespace {

// The starts of lists with the given lengths: lengths[v] becomes the sum of those before, lengths[n] the sum of all.
void lengths_to_starts(Workspace<int>& lengths) noexcept {
  std::exclusive_scan(lengths.begin(), lengths.end(), lengths.begin(), 0);
}

template <class Visit>
void for_each_off_diagonal(const Pattern& pattern, Visit visit) {
  for (int j = 0; j < pattern.columns; ++j) {
    for (const int i : pattern.column(j)) {
      if (i != j) visit(i, j);
    }
  }
}

// Lists, sized by counting first and filled at cursors.
struct Lists {
  explicit Lists(int n) noexcept : starts(static_cast<std::size_t>(n) + 1), cursors(static_cast<std::size_t>(n)) {}

  bool reserve() noexcept {
    lengths_to_starts(starts);
    std::copy_n(starts.data(), cursors.size(), cursors.data());
    entries = Workspace<int>(static_cast<std::size_t>(starts[cursors.size()]));
    return static_cast<bool>(entries);
  }
  void append(int list, int entry) noexcept { entries[cursors[list]++] = entry; }
  bool ends_with(int list, int entry) const noexcept {
    return cursors[list] > starts[list] && entries[cursors[list] - 1] == entry;
  }

  Workspace<int> starts, cursors, entries;
};

}  // namespace

// Both directions of every entry, then the transpose of that, which is the same graph with ascending lists: repetitions
// have come together.
Outcome build_graph(const Pattern& pattern, Graph& graph) noexcept {
  if (pattern.rows != pattern.columns) return Outcome::kBadPattern;
  if (const Outcome outcome = pattern.check(); outcome != Outcome::kDone) return outcome;
  if (pattern.entries() > std::numeric_limits<int>::max() / 2) return Outcome::kTooLarge;
  const int n = pattern.columns;

  Lists unsorted(n);
  if (!unsorted.starts || !unsorted.cursors) return Outcome::kOutOfMemory;
  std::fill_n(unsorted.starts.data(), unsorted.starts.size(), 0);
  for_each_off_diagonal(pattern, [&](int i, int j) { ++unsorted.starts[i], ++unsorted.starts[j]; });
  if (!unsorted.reserve()) return Outcome::kOutOfMemory;
  for_each_off_diagonal(pattern, [&](int i, int j) { unsorted.append(i, j), unsorted.append(j, i); });

  Workspace<int> adjacency(unsorted.entries.size());
  if (!adjacency) return Outcome::kOutOfMemory;
  // Lists keep their places for now, short of what is repeated.
  Workspace<int>& starts = unsorted.starts;
  Workspace<int>& ends = unsorted.cursors;
  std::copy_n(starts.data(), ends.size(), ends.data());
  for (int v = 0; v < n; ++v) {
    for (int k = starts[v]; k < starts[v + 1]; ++k) {
      const int w = unsorted.entries[k];
      if (ends[w] == starts[w] || adjacency[ends[w] - 1] != v) adjacency[ends[w]++] = v;
    }
  }
  int length = 0;
  for (int v = 0; v < n; ++v) {
    const int begin = starts[v];
    starts[v] = length;
    length = static_cast<int>(
        std::copy(adjacency.data() + begin, adjacency.data() + ends[v], adjacency.data() + length) - adjacency.data());
  }
  starts[n] = length;
  graph.size_ = n;
  graph.starts_ = std::move(starts);
  graph.adjacency_ = std::move(adjacency);
  return Outcome::kDone;
}

Outcome induced_subgraph(const Graph& graph, std::span<const int> vertices, std::span<int> number,
                         Graph& subgraph) noexcept {
  const std::size_t n = vertices.size();
  Workspace<int> starts(n + 1);
  if (!starts) return Outcome::kOutOfMemory;
  const auto is_inside = [&](int w) { return number[static_cast<std::size_t>(w)] >= 0; };
  starts[n] = 0;
  for (std::size_t k = 0; k < n; ++k) {
    const auto list = graph.neighbours(vertices[k]);
    starts[k] = static_cast<int>(std::count_if(list.begin(), list.end(), is_inside));
  }
  lengths_to_starts(starts);
  Workspace<int> adjacency(static_cast<std::size_t>(starts[n]));
  if (!adjacency) return Outcome::kOutOfMemory;
  int* end = adjacency.data();
  for (const int v : vertices) {
    for (const int w : graph.neighbours(v)) {
      if (is_inside(w)) *end++ = number[static_cast<std::size_t>(w)];
    }
  }
  subgraph.size_ = static_cast<int>(n);
  subgraph.starts_ = std::move(starts);
  subgraph.adjacency_ = std::move(adjacency);
  return Outcome::kDone;
}

}  // namespace quorin::sparse
