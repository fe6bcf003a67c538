// AMWB preconditioners: what M has of A, and that it is positive definite.
#include "tests/support/standard.hpp"
#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

Matrix preconditioner(const Matrix& A, double subgraphs, int seed = 1) {
  return Matrix(taucs_amwb_preconditioner_create(A.get(), seed, subgraphs, 0));
}

// Off-diagonal entries by place.
std::map<std::pair<int, int>, double> edges(const taucs_ccs_matrix& A) {
  std::map<std::pair<int, int>, double> found;
  for (int j = 0; j < A.n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      if (A.rowind[k] != j) found[{A.rowind[k], j}] += A.values.d[k];
    }
  }
  return found;
}

double total_weight(const std::map<std::pair<int, int>, double>& edges) {
  return std::accumulate(edges.begin(), edges.end(), 0.0,
                         [](double sum, auto& e) { return sum + std::fabs(e.second); });
}

// The edges of a maximum-weight basis of the vectors e_i - e_j (negative entries) and e_i + e_j (positive ones): each
// is taken that does not depend on the heavier ones. Without positive entries they are a maximum spanning tree.
std::set<std::pair<int, int>> basis(const taucs_ccs_matrix& A) {
  const auto all = edges(A);
  std::vector<std::pair<std::pair<int, int>, double>> sorted(all.begin(), all.end());
  std::sort(sorted.begin(), sorted.end(), [](auto& a, auto& b) { return std::fabs(a.second) > std::fabs(b.second); });
  std::vector<std::vector<double>> reduced(static_cast<std::size_t>(A.n));  // by the place of the first nonzero
  std::set<std::pair<int, int>> chosen;
  for (const auto& [ends, value] : sorted) {
    std::vector<double> v(static_cast<std::size_t>(A.n));
    v[ends.first] = 1;
    v[ends.second] = value > 0 ? 1 : -1;
    for (int i = 0; i < A.n; ++i) {
      if (std::fabs(v[i]) < 1e-9) continue;
      if (reduced[i].empty()) {
        reduced[i] = v;
        chosen.insert(ends);
        break;
      }
      const double factor = v[i] / reduced[i][i];
      for (int k = i; k < A.n; ++k) v[k] -= factor * reduced[i][k];
    }
  }
  return chosen;
}

std::vector<double> row_sums(const taucs_ccs_matrix& A) {
  const std::vector<double> ones(static_cast<std::size_t>(A.n), 1.0);
  return apply(A, ones.data());
}

// x^T A x
double form(const taucs_ccs_matrix& A, const std::vector<double>& x) {
  const auto y = apply(A, x.data());
  return std::inner_product(x.begin(), x.end(), y.begin(), 0.0);
}

Matrix weighted_grid(int a, int b, std::mt19937& random, double positive_share, double shift) {
  SparseMatrix A = quorin::test::grid(a, b, 1);
  std::uniform_real_distribution<double> weight(0.1, 10), share(0, 1);
  std::vector<double> diagonal(static_cast<std::size_t>(A.rows), shift);
  for (auto& e : A.entries) {
    if (e.row == e.column) continue;
    e.value = weight(random) * (share(random) < positive_share ? 1 : -1);
    diagonal[e.row] += std::abs(e.value);
    diagonal[e.column] += std::abs(e.value);
  }
  for (auto& e : A.entries) {
    if (e.row == e.column) e.value = diagonal[e.row];
  }
  return record<double>(A, kSymmetricLower);
}

TEST(Amwb, IsAMaximumSpanningTreeAndMoreWithMoreSubgraphs) {
  std::mt19937 random(2);
  const Matrix A = weighted_grid(12, 9, random, 0, 0.01);
  const auto all = edges(*A);
  double last = 0;
  for (const double subgraphs : {1.0, 4.0, 20.0, 60.0, 108.0, 1e9}) {
    SCOPED_TRACE(subgraphs);
    const Matrix M = preconditioner(A, subgraphs);
    ASSERT_NE(M, nullptr);
    EXPECT_EQ(M->flags, A->flags);
    const auto chosen = edges(*M);
    for (const auto& [ends, value] : chosen) EXPECT_EQ(all.at(ends), value);
    if (subgraphs == 1) {
      EXPECT_EQ(chosen.size(), 107U);
      for (const auto& ends : basis(*A)) EXPECT_TRUE(chosen.count(ends)) << ends.first << ", " << ends.second;
    }
    EXPECT_GE(total_weight(chosen), last);
    last = total_weight(chosen);
    const auto sums = row_sums(*M), expected = row_sums(*A);
    for (std::size_t i = 0; i < sums.size(); ++i) EXPECT_NEAR(sums[i], expected[i], 1e-12);
    EXPECT_NE(Matrix(taucs_ccs_factor_llt(M.get(), 0, 0)), nullptr);
  }
  EXPECT_EQ(last, total_weight(all)) << "n subgraphs are all of A";
  EXPECT_EQ(edges(*preconditioner(A, std::numeric_limits<double>::quiet_NaN())).size(), 107U);
}

TEST(Amwb, TakesPositiveEntriesOfDominantMatrices) {
  std::mt19937 random(3);
  for (const double shift : {0.0, 0.01}) {
    const Matrix A = weighted_grid(8, 8, random, 0.4, shift);
    for (const double subgraphs : {1.0, 10.0, 64.0}) {
      const Matrix M = preconditioner(A, subgraphs);
      ASSERT_NE(M, nullptr);
      const auto all = edges(*A), chosen = edges(*M);
      for (const auto& [ends, value] : chosen) EXPECT_EQ(all.at(ends), value);
      for (const auto& ends : basis(*A)) {
        EXPECT_TRUE(shift > 0 || chosen.count(ends)) << ends.first << ", " << ends.second;
      }
      if (subgraphs == 1) {
        EXPECT_GE(chosen.size(), shift > 0 ? 63U : 64U);
        EXPECT_LE(chosen.size(), shift > 0 ? 63U : 72U);
      }
      EXPECT_NE(Matrix(taucs_ccs_factor_llt(M.get(), 0, 0)), nullptr);
      for (int trial = 0; trial < 20; ++trial) {  // A - M is positive semidefinite
        const auto x = random_vector<double>(64, random);
        EXPECT_GE(form(*A, x) - form(*M, x), -1e-10);
      }
    }
  }
}

// Without dominance a positive entry goes to the diagonal, so that A 1 = M 1.
TEST(Amwb, MovesPositiveEntriesOfOthersToTheDiagonal) {
  SparseMatrix path;
  for (int i = 0; i < 6; ++i) path.add(i, i, i == 0 || i == 5 ? 1.125 : 2.125);
  for (int i = 1; i < 6; ++i) path.add(i, i - 1, -1);
  path.add(3, 0, 0.25);
  const Matrix A = record<double>(path, kSymmetricLower), M = preconditioner(A, 6);
  EXPECT_EQ(edges(*M).size(), 5U);
  EXPECT_EQ(row_sums(*M), row_sums(*A));
}

// A cycle of edges that want their ends equal, but for one.
TEST(Amwb, TiesDownWhatContradictsItself) {
  SparseMatrix cycle;
  for (int i = 0; i < 6; ++i) cycle.add(i, i, 2);
  for (int i = 1; i < 6; ++i) cycle.add(i, i - 1, -1);
  cycle.add(5, 0, 1);
  const Matrix odd = record<double>(cycle, kSymmetricLower);
  EXPECT_EQ(edges(*preconditioner(odd, 1)).size(), 6U);
  EXPECT_EQ(form(*preconditioner(odd, 1), std::vector(6, 1.0)), form(*odd, std::vector(6, 1.0)));
  cycle.entries.back().value = -1;  // now A is singular; M is not
  const Matrix even = record<double>(cycle, kSymmetricLower), M = preconditioner(even, 1);
  EXPECT_EQ(edges(*M).size(), 5U);
  EXPECT_NE(Matrix(taucs_ccs_factor_llt(M.get(), 0, 0)), nullptr);
}

TEST(Amwb, DependsOnTheSeedAlone) {
  const Matrix A = record<double>(laplacian(9, 9, 1, 1), kSymmetricLower);
  const auto chosen = edges(*preconditioner(A, 5, 7));
  EXPECT_EQ(edges(*preconditioner(A, 5, 7)), chosen);
  int others = 0;
  for (const int seed : {-3, 0, 8, 170566}) others += edges(*preconditioner(A, 5, seed)) != chosen ? 1 : 0;
  EXPECT_GT(others, 1);
}

TEST(Amwb, RefusesAndStandsOddShapes) {
  std::mt19937 random(9);
  const Matrix complex = record<Complex>(random_triangle(5, 0.5, 1, true, random), kHermitianLower);
  EXPECT_EQ(preconditioner(complex, 1), nullptr);
  const Matrix A = record<double>(laplacian(3, 3, 1, 1), kSymmetricLower);
  EXPECT_EQ(taucs_amwb_preconditioner_create(A.get(), 1, 1, 1), nullptr);
  for (const double value : {0.0, -1.0}) {
    const double good = std::exchange(A->values.d[0], value);
    EXPECT_EQ(preconditioner(A, 1), nullptr);
    A->values.d[0] = good;
  }
  for (const int n : {0, 1, 2}) {
    SparseMatrix diagonal;
    diagonal.rows = diagonal.columns = n;
    for (int i = 0; i < n; ++i) diagonal.add(i, i, 3);
    const Matrix D = record<double>(diagonal, kSymmetricLower), M = preconditioner(D, 4);
    ASSERT_NE(M, nullptr);
    EXPECT_EQ(M->colptr[n], n);
    for (int i = 0; i < n; ++i) EXPECT_EQ(M->values.d[i], 3);
  }
}

}  // namespace
}  // namespace taucs_test
