// Graphs beside sets of neighbours. Orderings: permutations they must be, and fill beside AMD's.
#include <amd.h>

#include "base/thread_settings.hpp"
#include "sparse/orderings/dissection.hpp"
#include "tests/sparse/matrices.hpp"
#include "tests/support/test.hpp"

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

std::vector<Matrix> real_matrices() {
  std::vector<Matrix> all;
  for (const auto& A : quorin::test::from_applications(QUORIN_MATRICES_DIR)) all.push_back(pattern_of(A, A.name));
  return all;
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

TEST(EliminationTree, FillMayExceed32Bits) {
  constexpr int n = 70'000;
  Edges star(n);
  for (int i = 1; i < n; ++i) star.add(0, i);
  Arrays arrays(n);
  order_identity(n, arrays.ordering());  // the hub first
  EXPECT_EQ(factor_entries(graph_of(star.matrix("star")), arrays.ordering()), std::int64_t{n} * (n + 1) / 2);
}

// More than AMD's that minimum degree may leave.
constexpr double kMostFill = 1.1;

double entries(const Graph& graph, Arrays& arrays) {
  return static_cast<double>(factor_entries(graph, arrays.ordering()));
}

double amd_entries(const Matrix& A, const Graph& graph) {
  Arrays amd(A.columns);
  EXPECT_GE(amd_order(A.columns, A.starts.data(), A.indices.data(), amd.permutation.data(), nullptr, nullptr), AMD_OK);
  for (int k = 0; k < A.columns; ++k) amd.inverse[amd.permutation[k]] = k;
  return entries(graph, amd);
}

void check_order(const Matrix& A, Outcome (*order)(const Graph&, const Ordering&) noexcept) {
  const Graph graph = graph_of(A);
  Arrays arrays(A.columns);
  ASSERT_EQ(order(graph, arrays.ordering()), Outcome::kDone) << A.name;
  EXPECT_TRUE(arrays.is_valid()) << A.name;
  if (A.columns > 0) {
    EXPECT_LE(entries(graph, arrays), kMostFill * amd_entries(A, graph)) << A.name;
  }
}

TEST(MinimumDegree, FillsNoMoreThanAmdOnMatricesFromApplicationsAndGrids) {
  for (const Matrix& A : real_matrices()) check_order(A, order_minimum_degree);
  for (const bool corners : {false, true}) {
    for (const int side : {1, 2, 3, 17, 40, 64, 101, 200, 316}) {
      check_order(grid(side, side, 1, corners), order_minimum_degree);
      check_order(grid(side, side / 3 + 1, 1, corners), order_minimum_degree);
    }
    for (const int side : {2, 5, 12, 20, 30, 46}) {
      check_order(grid(side, side, side, corners), order_minimum_degree);
      check_order(grid(side, side, side / 4 + 1, corners), order_minimum_degree);
    }
  }
}

TEST(MinimumDegree, PutsVerticesWithVeryManyNeighboursLastTheLargestAtTheEnd) {
  constexpr int n = 600;
  Edges edges(n);
  for (const auto& [hub, degree] : {std::pair{3, 590}, {5, 400}, {9, 500}, {11, 400}}) {
    for (int i = n - degree; i < n; ++i) edges.add(hub, i);
  }
  Arrays arrays(n);
  ASSERT_EQ(order_minimum_degree(graph_of(edges.matrix("hubs")), arrays.ordering()), Outcome::kDone);
  EXPECT_EQ(std::vector<int>(arrays.permutation.end() - 4, arrays.permutation.end()), (std::vector<int>{5, 11, 9, 3}));
}

// Few edges and many, hubs, cliques, vertices without neighbours; some are full of vertices that cannot be told apart.
TEST(MinimumDegree, OrdersGraphsOfAllKinds) {
  std::vector<Matrix> matrices = {Matrix{},
                                  Edges(1).matrix("one"),
                                  Edges(1000).matrix("no edges"),
                                  wheel(20000),
                                  complete_bipartite(40, 3000),
                                  complete_bipartite(3, 60000),
                                  random_forest(20000, 20000, 5, 1),
                                  random_forest(20000, 3, 1, 2)};
  for (const int n : {2, 3, 5, 8, 13, 50}) {
    for (unsigned seed = 0; seed < 200; ++seed)
      matrices.push_back(random_matrix(n, n * static_cast<int>(seed % 7), seed));
  }
  for (const int degree : {1, 2, 4, 16, 60}) matrices.push_back(random_matrix(3000, 3000 * degree, 9));
  for (const Matrix& A : matrices) {
    const Graph graph = graph_of(A);
    Arrays arrays(A.columns);
    ASSERT_EQ(order_minimum_degree(graph, arrays.ordering()), Outcome::kDone);
    EXPECT_TRUE(arrays.is_valid()) << A.name;
    if (A.columns < 1000) continue;
    EXPECT_LE(entries(graph, arrays), kMostFill * amd_entries(A, graph)) << A.name;
  }
}

// Large graphs in parts: METIS's random numbers are others then, so that the fill is, a little.
TEST(Dissection, IsTheSameOnAnyThreadsAndAsGoodAsMetis) {
  constexpr double kMostOfWhole = 1.1;
  for (const Matrix& A : {grid(100, 100, 1, false), grid(31, 30, 32, false), grid(20, 21, 20, true),
                          Edges(10'000).add(3, 700).matrix("an edge"), Edges(9000).matrix("no edges")}) {
    const Graph graph = graph_of(A);
    Arrays one(A.columns), three(A.columns), whole(A.columns);
    base::set_thread_count(base::Domain::kAll, 1);
    ASSERT_EQ(order_dissection(graph, one.ordering()), Outcome::kDone);
    base::set_thread_count(base::Domain::kAll, 3);
    ASSERT_EQ(order_dissection(graph, three.ordering()), Outcome::kDone);
    base::set_thread_count(base::Domain::kAll, 0);
    EXPECT_TRUE(one.is_valid()) << A.name;
    EXPECT_EQ(one.permutation, three.permutation) << A.name;
    ASSERT_EQ(order_metis(graph, whole.ordering()), Outcome::kDone);
    EXPECT_LE(entries(graph, one), kMostOfWhole * entries(graph, whole)) << A.name;
  }
}

TEST(Tree, LeavesAForestWithoutFill) {
  std::vector<Matrix> forests = {Matrix{}, Edges(1).matrix("one"), Edges(20).matrix("no edges"),
                                 complete_bipartite(1, 5000), grid(300'000, 1, 1, false)};
  for (unsigned seed = 0; seed < 50; ++seed) {
    for (const int reach : {1, 3, 1000})
      forests.push_back(random_forest(500, reach, 1 + static_cast<int>(seed % 5), seed));
  }
  for (const Matrix& A : forests) {
    const Graph graph = graph_of(A);
    Arrays arrays(A.columns);
    ASSERT_EQ(order_tree(graph, arrays.ordering()), Outcome::kDone);
    EXPECT_TRUE(arrays.is_valid()) << A.name;
    EXPECT_EQ(factor_entries(graph, arrays.ordering()), A.columns + graph.directed_edges() / 2) << A.name;
  }
}

// A grid with trees on it: what hangs on the grid adds its edges, and the grid what it has alone, about.
TEST(Tree, OrdersOtherGraphsAsWellAsMinimumDegree) {
  std::vector<Matrix> matrices = real_matrices();
  Edges edges(5000);
  const Matrix inner = grid(30, 30, 1, false);
  for (int j = 0; j < inner.columns; ++j) {
    for (const int i : inner.pattern().column(j)) edges.add(i, j);
  }
  for (int i = inner.columns; i < 5000; ++i) edges.add(i, i * 7 % std::min(i, 2000));
  matrices.push_back(edges.matrix("grid with trees"));
  for (const Matrix& A : matrices) check_order(A, order_tree);
}

// All 24 permutations of four, each in its share of cases: chi-squared with 23 degrees of freedom stays below 49.7 with
// probability 0.999.
TEST(Random, GivesEveryPermutationItsShare) {
  constexpr int kDraws = 24'000;
  std::map<std::vector<int>, int> seen;
  for (int seed = 0; seed < kDraws; ++seed) {
    Arrays arrays(4);
    order_random(4, static_cast<std::uint64_t>(seed), arrays.ordering());
    ASSERT_TRUE(arrays.is_valid());
    ++seen[arrays.permutation];
  }
  ASSERT_EQ(seen.size(), 24U);
  double chi_squared = 0;
  for (const auto& [permutation, count] : seen) chi_squared += (count - 1000.0) * (count - 1000.0) / 1000.0;
  EXPECT_LT(chi_squared, 49.7);
}

}  // namespace
}  // namespace quorin::sparse::test
