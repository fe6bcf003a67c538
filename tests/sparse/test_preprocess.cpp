// What analysis stands on: permutations, scalings and orders that fit each other and the way in which A is stored.
#include "tests/sparse/matrices.hpp"
#include "tests/sparse/values.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

using quorin::test::SparseMatrix;

SparseMatrix random_square(int n, int per_column, bool is_lower, unsigned seed) {
  std::mt19937 numbers(seed);
  std::uniform_real_distribution<double> uniform(-6, 6);
  SparseMatrix A{"random " + std::to_string(seed), n, n, {}};
  std::set<std::pair<int, int>> places;
  for (int j = 0; j < n; ++j) {
    for (int k = 0; k < per_column; ++k) {
      int i = k == 0 ? (j * 7 + 3) % n : static_cast<int>(numbers() % static_cast<unsigned>(n));
      if (is_lower) i = k == 0 ? j ^ 1 : i;
      if (i >= n) continue;
      const int row = is_lower ? std::max(i, j) : i, column = is_lower ? std::min(i, j) : j;
      if (places.emplace(row, column).second) A.add(row, column, std::pow(10.0, uniform(numbers)));
    }
  }
  return A;
}

SparseMatrix transposed(SparseMatrix A) {
  for (auto& entry : A.entries) std::swap(entry.row, entry.column);
  return A;
}

std::vector<std::vector<int>> lists_of(const Graph& graph) {
  std::vector<std::vector<int>> lists;
  for (int v = 0; v < graph.size(); ++v) lists.emplace_back(graph.neighbours(v).begin(), graph.neighbours(v).end());
  return lists;
}

bool is_order(Preprocessing<double>& result, int n) {
  Arrays arrays(n);
  std::copy_n(result.permutation.data(), n, arrays.permutation.begin());
  std::copy_n(result.inverse.data(), n, arrays.inverse.begin());
  return arrays.is_valid();
}

// By columns and by rows, with or without unknowns that come last.
TEST(Preprocess, MakesDiagonalsOfOnesInGeneralMatrices) {
  constexpr int n = 60;
  const std::vector<int> last = {17, 3, 40};
  for (unsigned seed = 0; seed < 24; ++seed) {
    const bool by_rows = seed % 2 == 1, is_schur = seed % 3 == 0;
    const SparseMatrix A = random_square(n, 4, false, seed);
    const TypedMatrix<double> stored(by_rows ? transposed(A) : A);
    PreprocessOptions options{.by_rows = by_rows, .scales = true, .matches = true, .last_are_schur = is_schur};
    options.ordering = seed % 4 < 2 ? OrderingMethod::kNestedDissection : OrderingMethod::kMinimumDegree;
    if (seed % 3 != 1) options.last = last;
    Preprocessing<double> result;
    const MatchingOutcome outcome = preprocess(stored.matrix(), options, result);
    if (outcome == MatchingOutcome::kStructurallySingular) {
      EXPECT_LT(result.rank, n);
      EXPECT_EQ(result.permutation.size(), 0);
      continue;
    }
    ASSERT_EQ(outcome, MatchingOutcome::kDone);
    EXPECT_TRUE(is_order(result, n));
    for (std::size_t k = 0; k < options.last.size(); ++k) {
      EXPECT_EQ(result.permutation[n - options.last.size() + k], last[k]);
    }

    const auto is_apart = [&](int v) { return is_schur && std::count(last.begin(), last.end(), v) > 0; };
    SparseMatrix permuted{"permuted", n, n, {}};
    int ones = 0;
    for (const auto& [i, j, value] : A.entries) {
      const int row = result.row_position[i];
      permuted.add(row, j, value);
      const double scaled = std::abs(value) * result.row_scale[i] * result.column_scale[j];
      if (is_apart(i) || is_apart(j)) continue;
      EXPECT_LE(scaled, 1 + 1e-12);
      if (row == j) ones += std::abs(scaled - 1) < 1e-12 ? 1 : 0;
    }
    EXPECT_EQ(ones, result.rank);
    for (const int v : last) {
      if (!is_schur) break;
      EXPECT_EQ(result.row_position[v], v);
      EXPECT_EQ(result.row_scale[v], 1);
      EXPECT_EQ(result.column_scale[v], 1);
    }
    EXPECT_EQ(lists_of(result.graph), lists_of(graph_of(pattern_of(permuted, ""))));
  }
}

TEST(Preprocess, PairsUnknownsOfSymmetricMatrices) {
  constexpr int n = 80;
  for (unsigned seed = 0; seed < 16; ++seed) {
    const bool by_rows = seed % 2 == 1, is_schur = seed % 4 < 2;
    const SparseMatrix lower = random_square(n, 3, true, seed);
    SparseMatrix stored = by_rows ? transposed(lower) : lower;
    const TypedMatrix<double> read(stored);
    // What lies in the triangle that is not read has no effect on scales and pairs.
    for (int k = 0; k < n; k += 9) stored.add(by_rows ? n - 1 : k, by_rows ? k : n - 1, 1e30);
    const TypedMatrix<double> matrix(stored);
    const std::vector<int> last = {30, 31, 2};
    const PreprocessOptions options{.by_rows = by_rows,
                                    .read = Triangle::kLower,
                                    .symmetry = Symmetry::kSymmetric,
                                    .scales = true,
                                    .matches = true,
                                    .last = last,
                                    .last_are_schur = is_schur};
    Preprocessing<double> result, expected;
    ASSERT_EQ(preprocess(matrix.matrix(), options, result), MatchingOutcome::kDone);
    ASSERT_EQ(preprocess(read.matrix(), options, expected), MatchingOutcome::kDone);
    EXPECT_TRUE(std::equal(result.row_scale.begin(), result.row_scale.end(), expected.row_scale.begin()));
    EXPECT_TRUE(std::equal(result.pair_of.begin(), result.pair_of.end(), expected.pair_of.begin()));
    EXPECT_TRUE(is_order(result, n));
    EXPECT_EQ(result.row_position.size(), 0);
    int pairs = 0;
    for (int i = 0; i < n; ++i) {
      EXPECT_EQ(result.row_scale[i], result.column_scale[i]);
      const int other = result.pair_of[i];
      if (other == kNone) continue;
      ++pairs;
      EXPECT_EQ(result.pair_of[other], i);
      const bool are_first = result.inverse[i] < n - 3 && result.inverse[other] < n - 3;
      EXPECT_TRUE(are_first || !is_schur);
      EXPECT_EQ(are_first, std::abs(result.inverse[i] - result.inverse[other]) == 1 && are_first);
    }
    EXPECT_GE(pairs, n / 2);
    for (const auto& [i, j, value] : lower.entries) {
      const bool is_apart = is_schur && (result.inverse[i] >= n - 3 || result.inverse[j] >= n - 3);
      EXPECT_LE(is_apart ? 0 : std::abs(value) * result.row_scale[i] * result.row_scale[j], 1 + 1e-12);
    }
  }
}

}  // namespace
}  // namespace quorin::sparse::test
