// Plans beside dense symbolic elimination.
#include "tests/sparse/systems.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

using Dense = std::vector<std::vector<int>>;

// Row lists of L by eliminating the dense pattern in that order.
Dense dense_factor(const Graph& graph, const int* permutation) {
  const int n = graph.size();
  Dense has(n, std::vector<int>(n, 0));
  std::vector<int> step(n);
  for (int k = 0; k < n; ++k) step[permutation[k]] = k;
  for (int v = 0; v < n; ++v) {
    for (const int w : graph.neighbours(v)) has[step[v]][step[w]] = 1;
  }
  for (int k = 0; k < n; ++k) {
    for (int i = k + 1; i < n; ++i) {
      for (int j = k + 1; has[i][k] != 0 && j < n; ++j) has[i][j] |= has[j][k];
    }
  }
  return has;
}

Plan plan_of(const Matrix& A, const Ordering& ordering, const PlanOptions& options = {}) {
  Plan plan;
  EXPECT_EQ(plan.build(graph_of(A), ordering, options), Outcome::kDone);
  return plan;
}

void check_tree(const Plan& plan, bool is_cut = false) {
  for (int s = 0; s < plan.supernodes(); ++s) {
    const auto below = plan.below(s);
    EXPECT_TRUE(std::is_sorted(below.begin(), below.end()));
    EXPECT_TRUE(below.empty() || below[0] >= plan.first(s + 1));
    // The supernode of the first row; of one that was cut the first part, which has all of its rows, too.
    const int p = plan.parent(s), above = below.empty() ? kNone : plan.supernode_of(below[0]);
    EXPECT_TRUE(p == above || (is_cut && p > s && p < above)) << s;
    for (const int k : below) {
      const auto rows = plan.below(p);
      EXPECT_TRUE(plan.supernode_of(k) == p || std::binary_search(rows.begin(), rows.end(), k));
    }
    for (int d = plan.first_descendant(s); d < s; ++d) {
      EXPECT_LE(plan.parent(d), s);
      EXPECT_GE(plan.first_descendant(d), plan.first_descendant(s));
    }
    for (int k = 0; k < plan.columns(s); ++k) EXPECT_EQ(plan.supernode_of(plan.first(s) + k), s);
  }
  for (const int parts : {1, 3, 16}) {
    std::vector<SupernodeRange> ranges(kRangesPerPart * parts);
    for (const bool by_elements : {false, true}) {
      const int count =
          by_elements ? plan.cut_by_elements(parts, ranges.data()) : plan.cut_by_operations(parts, ranges.data());
      int end = 0;
      for (int r = 0; r < count; ++r) {
        EXPECT_GE(ranges[r].first, end);
        end = ranges[r].end;
        EXPECT_LE(end, plan.eliminated());
        for (int s = ranges[r].first; s < end; ++s) EXPECT_GE(plan.first_descendant(s), ranges[r].first);
      }
      for (int s = 0; s < plan.supernodes(); ++s) {
        const bool is_inside = std::any_of(ranges.begin(), ranges.begin() + count,
                                           [&](SupernodeRange range) { return s >= range.first && s < range.end; });
        if (is_inside || plan.parent(s) == kNone) continue;
        for (int r = 0; r < count; ++r)
          EXPECT_FALSE(plan.parent(s) >= ranges[r].first && plan.parent(s) < ranges[r].end);
      }
    }
  }
}

double entries_of(const Dense& L) {
  double entries = 0;
  for (std::size_t i = 0; i < L.size(); ++i) entries += 1 + std::accumulate(L[i].begin(), L[i].begin() + i, 0);
  return entries;
}

// The plan counts the entries of L in the given order. Those in its own, where the columns of a supernode may change
// places, stand in the panels; what stands there beside them are the zeros of merged supernodes.
void check_rows(const Plan& plan, const Graph& graph, const int* given, double most_zeros) {
  const int n = plan.size();
  const Dense L = dense_factor(graph, plan.permutation());
  const double entries = entries_of(dense_factor(graph, given));
  EXPECT_EQ(static_cast<double>(plan.entries()), entries);
  double stored = 0;
  for (int k = 0; k < n; ++k) {
    const int s = plan.supernode_of(k);
    const auto below = plan.below(s);
    const std::set<int> rows(below.begin(), below.end());
    stored += plan.first(s + 1) - k + static_cast<double>(below.size());
    for (int i = k + 1; i < n; ++i) {
      if (L[i][k] != 0) {
        EXPECT_TRUE(i < plan.first(s + 1) || rows.count(i) == 1) << "entry " << i << ", " << k;
      }
    }
  }
  EXPECT_LE(stored, most_zeros * entries);
}

std::vector<Matrix> small_matrices() {
  std::vector<Matrix> all = {grid(9, 7, 1, false),
                             grid(4, 4, 4, false),
                             wheel(25),
                             random_forest(60, 5, 3, 2),
                             complete_bipartite(5, 9),
                             Edges(12).matrix("diagonal"),
                             Edges(1).matrix("one"),
                             Edges(2).add(0, 1).matrix("two"),
                             Edges(0).matrix("none")};
  for (unsigned seed = 1; seed < 12; ++seed) all.push_back(random_matrix(70, static_cast<int>(15 * seed), seed));
  return all;
}

TEST(Plan, IsTheFactorOfDenseElimination) {
  for (const Matrix& A : small_matrices()) {
    SCOPED_TRACE(A.name);
    const int n = A.columns;
    Arrays given(n);
    for (const std::uint64_t seed : {0, 1, 2}) {
      order_random(n, seed, given.ordering());
      if (seed == 0) {
        ASSERT_EQ(order_minimum_degree(graph_of(A), given.ordering()), Outcome::kDone);
      }
      const Plan plan = plan_of(A, given.ordering());
      Arrays arrays(n);
      std::copy_n(plan.permutation(), n, arrays.permutation.begin());
      std::copy_n(plan.inverse(), n, arrays.inverse.begin());
      EXPECT_TRUE(arrays.is_valid());
      EXPECT_EQ(plan.entries(), factor_entries(graph_of(A), given.ordering()));
      check_rows(plan, graph_of(A), given.permutation.data(), 2.5);
      check_tree(plan);

      // Wide supernodes in parts, which hold no zeros more.
      for (const PanelKind kind : {PanelKind::kSymmetric, PanelKind::kUnsymmetric}) {
        const Plan cut = plan_of(A, given.ordering(), {.most_elements = 150, .panels = kind});
        check_rows(cut, graph_of(A), given.permutation.data(), 2.5);
        check_tree(cut, true);
        for (int s = 0; s < cut.supernodes(); ++s) EXPECT_TRUE(cut.panel_size(kind, s) <= 150 || cut.columns(s) <= 8);
      }
    }
  }
}

TEST(Plan, LeavesASchurComplementAtTheEnd) {
  for (const Matrix& A : small_matrices()) {
    SCOPED_TRACE(A.name);
    const int n = A.columns;
    Arrays given(n);
    order_random(n, 5, given.ordering());
    for (const int schur_size : {1, 3, n / 2, n}) {
      if (schur_size > n || schur_size == 0) continue;
      const Plan cut = plan_of(A, given.ordering(), {.schur_size = schur_size, .most_elements = 1});
      EXPECT_EQ(cut.eliminated(), cut.supernodes() - 1);
      EXPECT_EQ(cut.columns(cut.eliminated()), schur_size);
      EXPECT_EQ(cut.below_count(cut.eliminated()), 0);
      for (int k = n - schur_size; k < n; ++k) EXPECT_EQ(cut.permutation()[k], given.permutation[k]);
      check_tree(cut, true);
    }
  }
}

TEST(Plan, NeverCutsPairsApart) {
  const Matrix A = random_matrix(80, 800, 3);
  const Graph graph = graph_of(A);
  const int n = A.columns;
  Arrays given(n);
  order_random(n, 8, given.ordering());
  // Neighbours in the graph and in the order become pairs.
  std::vector<int> pair_of(n, kNone);
  int pairs = 0;
  for (int k = 0; k + 1 < n; ++k) {
    const int v = given.permutation[k], w = given.permutation[k + 1];
    const auto list = graph.neighbours(v);
    if (pair_of[v] != kNone || !std::binary_search(list.begin(), list.end(), w)) continue;
    pair_of[v] = w;
    pair_of[w] = v;
    ++pairs;
  }
  ASSERT_GT(pairs, 10);
  const Plan plan = plan_of(A, given.ordering(), {.pair_of = pair_of.data()});
  for (int v = 0; v < n; ++v) {
    if (pair_of[v] == kNone) continue;
    EXPECT_EQ(plan.supernode_of(plan.inverse()[v]), plan.supernode_of(plan.inverse()[pair_of[v]]));
  }
  check_rows(plan, graph, given.permutation.data(), 3);
}

// Cliques of twenty that hang on parts of one large clique, each part within the next or beside it: in any numbering of
// the large clique's vertices each part's rows become neighbours.
TEST(Plan, PutsTheRowsOfDescendantsTogether) {
  constexpr int kParts = 7, kWidth = 20, kCommon = 40, n = kParts * kWidth + kCommon;
  const int parts[kParts][2] = {{3, 6}, {0, 8}, {22, 24}, {20, 28}, {28, 33}, {0, 12}, {20, 40}};
  std::vector<int> shuffled(kCommon);
  std::iota(shuffled.begin(), shuffled.end(), kParts * kWidth);
  std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(4));
  Edges edges(n);
  const auto join_all = [&](const std::vector<int>& clique) {
    for (const int v : clique) {
      for (const int w : clique) {
        if (v < w) edges.add(v, w);
      }
    }
  };
  join_all(shuffled);
  for (int p = 0; p < kParts; ++p) {
    std::vector<int> clique(shuffled.begin() + parts[p][0], shuffled.begin() + parts[p][1]);
    for (int k = 0; k < kWidth; ++k) clique.push_back(p * kWidth + k);
    join_all(clique);
  }
  Arrays given(n);
  for (int k = 0; k < n; ++k) given.ordering().place(k, k);
  const Plan plan = plan_of(edges.matrix("parts of a clique"), given.ordering());
  int found = 0;
  for (int s = 0; s + 1 < plan.supernodes(); ++s) {
    const auto below = plan.below(s);
    EXPECT_EQ(below.back() - below.front(), static_cast<int>(below.size()) - 1) << "supernode " << s;
    ++found;
  }
  EXPECT_EQ(found, kParts);
}

// Cliques above cliques: one branch needs a large stack and leaves little, which is least if it comes first.
TEST(Plan, PutsTheChildrenInTheOrderOfTheSmallestStack) {
  constexpr int kBranches = 10, kLeaf = 60, kMiddle = 100, kRoot = 100, kShared = 10, kLarge = 80;
  constexpr int root = (kBranches + 1) * kLeaf + kMiddle;
  Edges edges(root + kRoot);
  const auto join = [&edges](int first, int count, int other, int others) {
    for (int i = first; i < first + count; ++i) {
      for (int j = i + 1; j < first + count; ++j) edges.add(i, j);
      for (int j = other; j < other + others; ++j) edges.add(i, j);
    }
  };
  int next = 0;
  for (int branch = 0; branch < kBranches; ++branch, next += kLeaf) join(next, kLeaf, root, kShared);
  join(next, kLeaf, next + kLeaf, kLarge);
  join(next + kLeaf, kMiddle, root, kShared);
  join(root, kRoot, root, 0);
  const Matrix A = edges.matrix("cliques");
  Arrays given(root + kRoot);
  order_identity(root + kRoot, given.ordering());
  const Plan plan = plan_of(A, given.ordering());
  ASSERT_EQ(plan.supernodes(), kBranches + 3);
  EXPECT_EQ(plan.stack_elements(), kLarge * kLarge + kShared * kShared);
}

}  // namespace
}  // namespace quorin::sparse::test
