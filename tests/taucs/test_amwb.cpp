// AMWB preconditioners: what M has of A, that it is positive definite, and that it saves iterations.
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

// The weight of a maximum spanning tree of a connected graph, by Prim's method.
double tree_weight(const taucs_ccs_matrix& A) {
  const auto all = edges(A);
  std::set<int> tree{0};
  double sum = 0;
  while (static_cast<int>(tree.size()) < A.n) {
    double best = 0;
    int vertex = -1;
    for (const auto& [ends, value] : all) {
      const bool has_first = tree.count(ends.first) > 0, has_second = tree.count(ends.second) > 0;
      if (has_first == has_second || std::fabs(value) <= best) continue;
      best = std::fabs(value);
      vertex = has_first ? ends.second : ends.first;
    }
    tree.insert(vertex);
    sum += best;
  }
  return sum;
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

// Solves with a factor, or not, and counts.
struct Counted {
  taucs_ccs_matrix* L;
  std::size_t n;
  int calls = 0;

  static int32_t apply(void* self, void* x, const void* b) {
    auto& counted = *static_cast<Counted*>(self);
    ++counted.calls;
    if (counted.L != nullptr) return taucs_ccs_solve_llt(counted.L, x, b);
    std::copy_n(static_cast<const double*>(b), counted.n, static_cast<double*>(x));
    return 0;
  }
};

// Of conjugate gradients with L L^T for the preconditioner.
int steps(const Matrix& A, const Matrix& L, const std::vector<double>& b) {
  std::vector<double> x(b.size());
  Counted counted{L.get(), b.size()};
  EXPECT_EQ(taucs_conjugate_gradients(A.get(), Counted::apply, &counted, x.data(), b.data(), 4000, 1e-8),
            TAUCS_SUCCESS);
  return counted.calls;
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
      EXPECT_NEAR(total_weight(chosen), tree_weight(*A), 1e-10);
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

// The edges of a maximum-weight basis of the vectors e_i - e_j (negative entries), e_i + e_j (positive ones) and, with
// dominance everywhere, e_i: each is taken that does not depend on the heavier ones.
std::set<std::pair<int, int>> basis(const taucs_ccs_matrix& A, bool is_dominant) {
  const auto all = edges(A);
  std::vector<std::pair<std::pair<int, int>, double>> sorted(all.begin(), all.end());
  std::sort(sorted.begin(), sorted.end(), [](auto& a, auto& b) { return std::fabs(a.second) > std::fabs(b.second); });
  std::vector<std::vector<double>> reduced(static_cast<std::size_t>(A.n));  // by the place of the first nonzero
  std::set<std::pair<int, int>> chosen;
  if (is_dominant) return chosen;
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

TEST(Amwb, TakesPositiveEntriesOfDominantMatrices) {
  std::mt19937 random(3);
  for (const double shift : {0.0, 0.01}) {
    const Matrix A = weighted_grid(8, 8, random, 0.4, shift);
    for (const double subgraphs : {1.0, 10.0, 64.0}) {
      const Matrix M = preconditioner(A, subgraphs);
      ASSERT_NE(M, nullptr);
      const auto all = edges(*A), chosen = edges(*M);
      for (const auto& [ends, value] : chosen) EXPECT_EQ(all.at(ends), value);
      for (const auto& ends : basis(*A, shift > 0))
        EXPECT_TRUE(chosen.count(ends)) << ends.first << ", " << ends.second;
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

TEST(Amwb, SavesIterations) {
  std::mt19937 random(4);
  const auto b = random_vector<double>(900, random);
  for (const auto& [x_weight, y_weight] : {std::pair(1.0, 1.0), std::pair(1000.0, 1.0), std::pair(1.0, 0.001)}) {
    SCOPED_TRACE(x_weight / y_weight);
    const Matrix A = record<double>(laplacian(30, 30, 1, 1e-4, x_weight, y_weight), kSymmetricLower);
    int last = 900;
    for (const double subgraphs : {9.0, 36.0, 225.0}) {
      const Matrix M = preconditioner(A, subgraphs), L(taucs_ccs_factor_llt(M.get(), 0, 0));
      const int with = steps(A, L, b);
      EXPECT_LE(with, last) << subgraphs << " subgraphs";
      last = with;
    }
    EXPECT_LT(last, steps(A, nullptr, b) / 2);
  }
}

// Not dominant: the positive entries of a structure go to the diagonal.
TEST(Amwb, PreconditionsAStructure) {
  SparseMatrix structure = quorin::test::read_triplets(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/bcsstk01");
  std::erase_if(structure.entries, [](const auto& e) { return e.row < e.column; });
  const Matrix A = record<double>(structure, kSymmetricLower);
  std::mt19937 random(6);
  const auto b = random_vector<double>(48, random);
  for (const double subgraphs : {1.0, 8.0, 48.0}) {
    const Matrix M = preconditioner(A, subgraphs);
    ASSERT_NE(M, nullptr);
    for (const auto& [ends, value] : edges(*M)) EXPECT_LT(value, 0);
    const Matrix L(taucs_ccs_factor_llt(M.get(), 0, 0));
    ASSERT_NE(L, nullptr);
    EXPECT_LT(steps(A, L, b), 200);
  }
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
  EXPECT_EQ(taucs_amwb_preconditioner_create(nullptr, 1, 1, 0), nullptr);
  for (const double value : {0.0, -1.0, std::numeric_limits<double>::infinity()}) {
    const double good = std::exchange(A->values.d[0], value);
    EXPECT_EQ(preconditioner(A, 1), nullptr);
    A->values.d[0] = good;
  }
  A->flags = TAUCS_DOUBLE | TAUCS_LOWER;
  EXPECT_EQ(preconditioner(A, 1), nullptr);
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
