// Graphs, elimination trees and counts against elimination on sets.
#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <set>

#include "tests/sparse/matrices.hpp"

namespace quorin::sparse::test {
namespace {

using Columns = std::vector<std::set<int>>;

Columns neighbour_sets(const Matrix& A) {
  Columns sets(A.columns);
  for (int j = 0; j < A.columns; ++j) {
    for (const int i : A.pattern().column(j)) {
      if (i != j) sets[i].insert(j), sets[j].insert(i);
    }
  }
  return sets;
}

std::vector<int> list(std::span<const int> span) { return {span.begin(), span.end()}; }

// Patterns with both triangles, repetitions and unsorted columns.
Matrix jumbled(int n, int entries, unsigned seed) {
  std::mt19937 numbers(seed);
  std::vector<std::vector<int>> columns(n);
  for (int k = 0; k < entries; ++k) columns[numbers() % n].push_back(static_cast<int>(numbers() % n));
  return from_columns("jumbled", n, columns);
}

TEST(Graph, HasEveryEdgeOnceInBothLists) {
  for (const auto& [n, entries] : std::vector<std::pair<int, int>>{{1, 0}, {1, 3}, {5, 60}, {40, 100}, {300, 500}}) {
    const Matrix A = jumbled(n, entries, 11);
    const Graph graph = graph_of(A);
    const Columns expected = neighbour_sets(A);
    ASSERT_EQ(graph.size(), n);
    std::size_t directed = 0;
    for (int v = 0; v < n; ++v) {
      EXPECT_EQ(list(graph.neighbours(v)), std::vector<int>(expected[v].begin(), expected[v].end()));
      directed += expected[v].size();
    }
    EXPECT_EQ(graph.directed_edges(), static_cast<int>(directed));
  }
  EXPECT_EQ(graph_of(Matrix{}).size(), 0);
}

TEST(Graph, OfWrongPatternsIsRefused) {
  const auto outcome = [](int rows, std::vector<int> starts, std::vector<int> indices) {
    Graph graph;
    const Pattern pattern{rows, static_cast<int>(starts.size()) - 1, starts.data(), indices.data()};
    return build_graph(pattern, graph);
  };
  EXPECT_EQ(outcome(2, {0, 1, 2}, {1, 0}), Outcome::kDone);
  EXPECT_EQ(outcome(2, {0, 1, 2}, {2, 0}), Outcome::kBadPattern);
  EXPECT_EQ(outcome(2, {0, 1, 2}, {0, -1}), Outcome::kBadPattern);
  EXPECT_EQ(outcome(2, {0, 2, 1}, {0, 1}), Outcome::kBadPattern);
  EXPECT_EQ(outcome(2, {1, 1, 2}, {0, 1}), Outcome::kBadPattern);
  EXPECT_EQ(outcome(3, {0, 1, 2}, {0, 1}), Outcome::kBadPattern);
  Graph graph;
  for (const char* name : {"ldl/A25", "ldl/A28", "ldl/A29"}) {
    EXPECT_EQ(build_graph(read_columns(name).pattern(), graph), Outcome::kBadPattern) << name;
  }
  EXPECT_EQ(build_graph({-1, -1, nullptr, nullptr}, graph), Outcome::kBadPattern);
}

// Each rule alone, and where it is broken.
TEST(Compressed, TellsTheRuleThatIsBroken) {
  using Fault = PatternFault;
  const PatternRules plain, one_based{.base = 1}, later{.base = 1, .begins_at_base = false};
  const PatternRules full{.has_no_empty_list = true}, ascending{.ascends = true}, lower{.is_lower = true};
  const PatternRules diagonal{.base = 1, .has_diagonal = true};
  const struct {
    int m;
    std::vector<int> starts, indices;
    PatternRules rules;
    Fault fault;
    int list, entry;
  } cases[] = {
      {3, {0, 2, 2, 3}, {2, 0, 2}, plain, Fault::kNoFault, kNone, kNone},
      {3, {1, 3, 3, 4}, {3, 1, 3}, one_based, Fault::kNoFault, kNone, kNone},
      {3, {3, 4, 4, 4}, {9, 9, 3}, later, Fault::kNoFault, kNone, kNone},
      {0, {0, 0}, {}, plain, Fault::kNoFault, kNone, kNone},
      {-1, {0, 0}, {}, plain, Fault::kNegativeSize, kNone, kNone},
      {3, {1, 2}, {0, 0}, plain, Fault::kFirstStart, 0, kNone},
      {3, {0, 1}, {1}, later, Fault::kFirstStart, 0, kNone},
      {3, {0, 2, 1}, {0, 1}, plain, Fault::kDecreasingStarts, 1, kNone},
      {3, {0, 1, 1}, {0}, full, Fault::kEmptyList, 1, kNone},
      {3, {0, 1, 3}, {0, 2, 3}, plain, Fault::kOutside, 1, 2},
      {3, {0, 1, 3}, {0, -1, 2}, plain, Fault::kOutside, 1, 1},
      {3, {1, 2, 4}, {1, 0, 3}, one_based, Fault::kOutside, 1, 1},
      {3, {1, 2, 4}, {1, 3, 4}, one_based, Fault::kOutside, 1, 2},
      {3, {1, 2}, {std::numeric_limits<int>::min()}, one_based, Fault::kOutside, 0, 0},
      {3, {1, 2}, {std::numeric_limits<int>::max()}, one_based, Fault::kOutside, 0, 0},
      {0, {0, 1}, {0}, plain, Fault::kOutside, 0, 0},
      {3, {0, 2, 3}, {0, 0, 2}, ascending, Fault::kNotAscending, 0, 1},
      {3, {0, 2, 4}, {1, 2, 2, 0}, ascending, Fault::kNotAscending, 1, 3},
      {3, {0, 2, 4}, {0, 2, 2, 0}, lower, Fault::kAboveDiagonal, 1, 3},
      {3, {1, 3, 4}, {2, 1, 1}, diagonal, Fault::kNoDiagonal, 1, kNone},
  };
  for (const auto& c : cases) {
    const int n = static_cast<int>(c.starts.size()) - 1;
    const PatternCheck check = check_compressed(n, c.m, c.starts.data(), c.indices.data(), c.rules);
    EXPECT_EQ(check.fault, c.fault) << "case " << &c - cases;
    EXPECT_EQ(check.list, c.list) << "case " << &c - cases;
    EXPECT_EQ(check.entry, c.entry) << "case " << &c - cases;
  }
  const int starts[] = {0, 1};
  EXPECT_EQ(check_starts(1, nullptr).fault, Fault::kMissingArray);
  EXPECT_EQ(check_compressed(1, 1, starts, nullptr).fault, Fault::kMissingArray);
  EXPECT_EQ(check_starts(-1, starts).fault, Fault::kNegativeSize);
}

struct Factor {
  std::vector<int> parent, counts;
};

// Eliminates for real: the fill of each step is written down.
Factor eliminate(const Matrix& A, const Arrays& arrays) {
  const Columns sets = neighbour_sets(A);
  Columns left(A.columns);
  for (int v = 0; v < A.columns; ++v) {
    for (const int w : sets[v]) left[arrays.inverse[v]].insert(arrays.inverse[w]);
  }
  Factor factor;
  for (int k = 0; k < A.columns; ++k) {
    left[k].erase(left[k].begin(), left[k].lower_bound(k));
    factor.counts.push_back(static_cast<int>(left[k].size()) + 1);
    factor.parent.push_back(left[k].empty() ? kNone : *left[k].begin());
    for (const int i : left[k]) {
      left[i].insert(left[k].begin(), left[k].end());
      left[i].erase(i);
    }
  }
  return factor;
}

TEST(EliminationTree, AndCountsAreThoseOfElimination) {
  std::vector<Matrix> matrices = {grid(9, 7, 1, false),     grid(4, 5, 3, true),         wheel(30),
                                  complete_bipartite(5, 9), Edges(7).matrix("no edges"), Matrix{}};
  for (unsigned seed = 0; seed < 60; ++seed)
    matrices.push_back(random_matrix(60, 10 + 3 * static_cast<int>(seed), seed));
  for (const Matrix& A : matrices) {
    const int n = A.columns;
    const Graph graph = graph_of(A);
    Arrays arrays(n);
    order_random(n, 7, arrays.ordering());
    const Factor expected = eliminate(A, arrays);

    std::vector<int> parent(n), order(n), counts(n), scratch(4 * n);
    elimination_tree(graph, arrays.ordering(), parent.data(), scratch.data());
    EXPECT_EQ(parent, expected.parent) << A.name;
    postorder(n, parent.data(), order.data(), scratch.data());
    column_counts(graph, arrays.ordering(), parent.data(), order.data(), counts.data(), scratch.data());
    EXPECT_EQ(counts, expected.counts) << A.name;
    EXPECT_EQ(factor_entries(graph, arrays.ordering()), std::accumulate(counts.begin(), counts.end(), std::int64_t{0}));

    // Every subtree is contiguous and ends with its root.
    std::vector<int> position(n), size(n, 1), first(n);
    for (int k = 0; k < n; ++k) first[order[k]] = position[order[k]] = k;
    for (int j = 0; j < n; ++j) {
      EXPECT_EQ(position[j] - first[j] + 1, size[j]);
      if (parent[j] == kNone) continue;
      size[parent[j]] += size[j];
      first[parent[j]] = std::min(first[parent[j]], first[j]);
    }
  }
}

TEST(EliminationTree, FillMayExceed32Bits) {
  constexpr int n = 70'000;
  Edges star(n);
  for (int i = 1; i < n; ++i) star.add(0, i);
  Arrays arrays(n);
  order_identity(n, arrays.ordering());  // the hub first
  EXPECT_EQ(factor_entries(graph_of(star.matrix("star")), arrays.ordering()), std::int64_t{n} * (n + 1) / 2);
}

}  // namespace
}  // namespace quorin::sparse::test
