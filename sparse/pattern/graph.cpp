#include "sparse/pattern/graph.hpp"

#include <algorithm>
#include <limits>

namespace quorin::sparse {

using base::Workspace;

Outcome build_graph(const Pattern& pattern, Graph& graph) noexcept {
  if (pattern.rows != pattern.columns || !pattern.check()) return Outcome::kBadPattern;
  if (pattern.entries() > std::numeric_limits<int>::max() / 2) return Outcome::kTooLarge;
  const int n = pattern.columns;
  Workspace<int> starts(static_cast<std::size_t>(n) + 1), next(static_cast<std::size_t>(n));
  if (!starts || !next) return Outcome::kOutOfMemory;

  // Both directions of every entry off the diagonal: count, cumulate, scatter.
  std::fill_n(next.data(), n, 0);
  for (int j = 0; j < n; ++j) {
    for (const int i : pattern.column(j)) {
      if (i != j) ++next[i], ++next[j];
    }
  }
  cumulate(n, next.data(), starts.data());
  const auto entries = static_cast<std::size_t>(starts[n]);
  Workspace<int> unsorted(entries), adjacency(entries);
  if (!unsorted || !adjacency) return Outcome::kOutOfMemory;
  for (int j = 0; j < n; ++j) {
    for (const int i : pattern.column(j)) {
      if (i != j) unsorted[next[i]++] = j, unsorted[next[j]++] = i;
    }
  }

  // The transpose of that is the same graph with ascending lists, in which repetitions have come together: they are
  // dropped.
  std::copy_n(starts.data(), n, next.data());
  for (int v = 0; v < n; ++v) {
    for (int k = starts[v]; k < starts[v + 1]; ++k) {
      const int w = unsorted[k];
      if (next[w] == starts[w] || adjacency[next[w] - 1] != v) adjacency[next[w]++] = v;
    }
  }
  int* end = adjacency.data();
  for (int v = 0; v < n; ++v) {
    const int* const list = adjacency.data() + starts[v];
    const int* const list_end = adjacency.data() + next[v];
    starts[v] = static_cast<int>(end - adjacency.data());
    end = std::copy(list, list_end, end);
  }
  starts[n] = static_cast<int>(end - adjacency.data());
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
  for (std::size_t k = 0; k < n; ++k) {
    const auto list = graph.neighbours(vertices[k]);
    starts[k] = static_cast<int>(std::count_if(list.begin(), list.end(), is_inside));
  }
  cumulate(static_cast<int>(n), starts.data(), starts.data());
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

Outcome quotient_graph(const Graph& graph, std::span<const int> part, int parts, Graph& quotient) noexcept {
  const auto count = static_cast<std::size_t>(parts);
  Workspace<int> members(part.size()), member_starts(count + 1), seen(count), starts(count + 1);
  Workspace<int> adjacency(static_cast<std::size_t>(graph.directed_edges()));
  if (!members || !member_starts || !seen || !starts || !adjacency) return Outcome::kOutOfMemory;
  std::fill(seen.begin(), seen.end(), 0);
  for (const int p : part) ++seen[p];
  cumulate(parts, seen.data(), member_starts.data());
  for (std::size_t v = 0; v < part.size(); ++v) members[seen[part[v]]++] = static_cast<int>(v);

  std::fill(seen.begin(), seen.end(), kNone);  // the last part in whose list a part was put
  int end = 0;
  for (int p = 0; p < parts; ++p) {
    starts[p] = end;
    seen[p] = p;
    for (int k = member_starts[p]; k < member_starts[p + 1]; ++k) {
      for (const int w : graph.neighbours(members[k])) {
        const int other = part[static_cast<std::size_t>(w)];
        if (seen[other] == p) continue;
        seen[other] = p;
        adjacency[end++] = other;
      }
    }
  }
  starts[parts] = end;
  quotient.size_ = parts;
  quotient.starts_ = std::move(starts);
  quotient.adjacency_ = std::move(adjacency);
  return Outcome::kDone;
}

}  // namespace quorin::sparse
