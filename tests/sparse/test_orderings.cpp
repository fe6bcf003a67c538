// Orderings: permutations they must be; fill beside AMD's; those of the dependencies equal to calling them.
#include <amd.h>
#include <colamd.h>
#include <gtest/gtest.h>
#include <metis.h>

#include <map>

#include "tests/sparse/matrices.hpp"

namespace quorin::sparse::test {
namespace {

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

// The fill relative to AMD's.
double check_minimum_degree(const Matrix& A) {
  const Graph graph = graph_of(A);
  Arrays arrays(A.columns);
  EXPECT_EQ(order_minimum_degree(graph, arrays.ordering()), Outcome::kDone) << A.name;
  EXPECT_TRUE(arrays.is_valid()) << A.name;
  const double fill = entries(graph, arrays) / amd_entries(A, graph);
  EXPECT_LE(fill, kMostFill) << A.name;
  return fill;
}

TEST(MinimumDegree, FillsNoMoreThanAmdOnMatricesFromApplications) {
  for (const Matrix& A : real_matrices()) check_minimum_degree(A);
}

TEST(MinimumDegree, FillsNoMoreThanAmdOnGrids) {
  double worst = 0;
  for (const bool corners : {false, true}) {
    for (const int side : {1, 2, 3, 17, 40, 64, 101, 200, 316}) {
      worst = std::max(worst, check_minimum_degree(grid(side, side, 1, corners)));
      worst = std::max(worst, check_minimum_degree(grid(side, side / 3 + 1, 1, corners)));
    }
    for (const int side : {2, 5, 12, 20, 30, 46}) {
      worst = std::max(worst, check_minimum_degree(grid(side, side, side, corners)));
      worst = std::max(worst, check_minimum_degree(grid(side, side, side / 4 + 1, corners)));
    }
  }
  RecordProperty("worst_fill_beside_amd", std::to_string(worst));
}

// Few edges and many, hubs, cliques, vertices without neighbours; some are full of vertices that cannot be told apart.
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

TEST(Metis, IsItsNodeDissection) {
  std::vector<Matrix> matrices = real_matrices();
  matrices.insert(matrices.end(),
                  {grid(100, 100, 1, false), grid(46, 46, 46, false), Edges(1000).add(3, 700).matrix("an edge")});
  for (unsigned seed = 0; seed < 300; ++seed) {
    const int n = 2 + static_cast<int>(seed * seed % 1500);
    matrices.push_back(random_matrix(n, static_cast<int>(seed % 17) * n / 16 + 1, seed));
  }
  for (const Matrix& A : matrices) {
    int n = A.columns;
    const Graph graph = graph_of(A);
    if (graph.directed_edges() == 0) continue;
    Arrays ours(n), theirs(n);
    ASSERT_EQ(order_metis(graph, ours.ordering()), Outcome::kDone);
    std::vector<int> starts(graph.starts(), graph.starts() + n + 1);
    std::vector<int> adjacency(graph.adjacency(), graph.adjacency() + graph.directed_edges());
    ASSERT_EQ(METIS_NodeND(&n, starts.data(), adjacency.data(), nullptr, nullptr, theirs.permutation.data(),
                           theirs.inverse.data()),
              METIS_OK);
    EXPECT_TRUE(ours.is_valid()) << A.name;
    EXPECT_EQ(ours.permutation, theirs.permutation) << A.name;
  }
  for (const int n : {0, 1, 1000}) {
    Arrays arrays(n);
    EXPECT_EQ(order_metis(graph_of(Edges(n).matrix("no edges")), arrays.ordering()), Outcome::kDone);
    EXPECT_TRUE(arrays.is_valid());
  }
}

TEST(Amd, IsItsOrder) {
  std::vector<Matrix> matrices = real_matrices();
  matrices.insert(matrices.end(), {grid(316, 316, 1, false), grid(46, 46, 46, false), Matrix{}});
  for (const Matrix& A : matrices) {
    Arrays ours(A.columns), theirs(A.columns);
    ASSERT_EQ(order_amd(A.pattern(), ours.ordering()), Outcome::kDone);
    if (A.columns > 0) {
      EXPECT_GE(amd_order(A.columns, A.starts.data(), A.indices.data(), theirs.permutation.data(), nullptr, nullptr),
                AMD_OK);
    }
    EXPECT_TRUE(ours.is_valid()) << A.name;
    EXPECT_EQ(ours.permutation, theirs.permutation) << A.name;
  }
}

TEST(Colamd, IsItsOrderOfTheColumns) {
  std::vector<Matrix> matrices = real_matrices();
  matrices.push_back(from_columns("wide", 2, {{0}, {}, {0, 1}, {1}, {0, 1}}));
  matrices.push_back(from_columns("tall", 9, {{0, 3, 8}, {}, {1, 2, 3, 4, 5, 6, 7, 8}}));
  matrices.push_back(from_columns("no rows", 0, {{}, {}, {}}));
  matrices.push_back(Matrix{});
  for (const Matrix& A : matrices) {
    Arrays ours(A.columns);
    ASSERT_EQ(order_colamd(A.pattern(), ours.ordering()), Outcome::kDone) << A.name;
    EXPECT_TRUE(ours.is_valid()) << A.name;
    std::vector<int> indices = A.indices, starts = A.starts;
    indices.resize(colamd_recommended(static_cast<int>(A.indices.size()), A.rows, A.columns));
    std::array<int, COLAMD_STATS> stats{};
    ASSERT_TRUE(colamd(A.rows, A.columns, static_cast<int>(indices.size()), indices.data(), starts.data(), nullptr,
                       stats.data()));
    EXPECT_TRUE(std::equal(ours.permutation.begin(), ours.permutation.end(), starts.begin())) << A.name;
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
  for (const Matrix& A : matrices) {
    const Graph graph = graph_of(A);
    Arrays arrays(A.columns);
    ASSERT_EQ(order_tree(graph, arrays.ordering()), Outcome::kDone);
    EXPECT_TRUE(arrays.is_valid()) << A.name;
    EXPECT_LE(entries(graph, arrays), kMostFill * amd_entries(A, graph)) << A.name;
  }
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
  Arrays large(100'000), empty(0);
  order_random(100'000, 1, large.ordering());
  EXPECT_TRUE(large.is_valid());
  order_random(0, 1, empty.ordering());
}

}  // namespace
}  // namespace quorin::sparse::test
