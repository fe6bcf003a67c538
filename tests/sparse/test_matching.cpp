// Matchings. Scalings with all entries at most 1 that are 1 along the permutation prove, by the duality of linear
// programs, that no permutation has a larger product: no second implementation is needed.
#include "tests/sparse/matrices.hpp"
#include "tests/sparse/values.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

using quorin::test::SparseMatrix;

// What rounding may add to a scaled entry: logarithms up to 2100 in double precision, and the scalings themselves.
template <class Real>
constexpr double kTolerance = std::is_same_v<Real, float> ? 1e-6 : 1e-12;

bool is_permutation_of(const base::Workspace<int>& p, int n) {
  std::vector<int> sorted(p.data(), p.data() + n);
  std::sort(sorted.begin(), sorted.end());
  for (int k = 0; k < n; ++k) {
    if (sorted[k] != k) return false;
  }
  return true;
}

// The size of a largest matching of entries that are not 0, by augmenting paths without costs.
int structural_rank(const SparseMatrix& A) {
  std::vector<std::vector<int>> rows(A.columns);
  for (const auto& [i, j, value] : A.entries) {
    if (value != 0.0) rows[j].push_back(i);
  }
  std::vector<int> column_of(A.rows, kNone);
  std::vector<bool> seen;
  const std::function<bool(int)> augment = [&](int j) {
    for (const int i : rows[j]) {
      if (seen[i]) continue;
      seen[i] = true;
      if (column_of[i] == kNone || augment(column_of[i])) return column_of[i] = j, true;
    }
    return false;
  };
  int rank = 0;
  for (int j = 0; j < A.columns; ++j) {
    seen.assign(A.rows, false);
    rank += augment(j) ? 1 : 0;
  }
  return rank;
}

// Of the largest range there is: r c alone may overflow where a is subnormal.
template <Scalar T>
double scaled(RealOf<T> r, RealOf<T> c, T a) {
  return static_cast<double>(static_cast<long double>(r) * c * std::abs(std::complex<long double>(a)));
}

template <Scalar T>
Matching<RealOf<T>> check_matching(const SparseMatrix& A) {
  SCOPED_TRACE(A.name);
  using Real = RealOf<T>;
  const TypedMatrix<T> values(A);
  const int n = A.columns;
  Matching<Real> matching;
  const MatchingOutcome outcome = match(values.matrix(), matching);
  EXPECT_EQ(outcome == MatchingOutcome::kDone, matching.rank == n);
  EXPECT_EQ(outcome == MatchingOutcome::kStructurallySingular, matching.rank < n);
  EXPECT_TRUE(is_permutation_of(matching.row_of, n));
  int ones = 0;
  double most = 0;
  for (int j = 0; j < n; ++j) {
    bool is_one = false;
    for (int k = values.starts[j]; k < values.starts[j + 1]; ++k) {
      const int i = values.indices[k];
      const double entry = scaled(matching.row_scale[i], matching.column_scale[j], values.values[k]);
      most = std::max(most, entry);
      is_one = is_one || (i == matching.row_of[j] && std::abs(entry - 1) < kTolerance<Real>);
    }
    ones += is_one ? 1 : 0;
  }
  EXPECT_LE(most, 1 + kTolerance<Real>);
  EXPECT_GE(ones, matching.rank);
  return matching;
}

template <Scalar T>
SymmetricMatching<RealOf<T>> check_symmetric(const SparseMatrix& lower) {
  SCOPED_TRACE(lower.name);
  using Real = RealOf<T>;
  const TypedMatrix<T> values(lower);
  const int n = lower.columns;
  SymmetricMatching<Real> matching;
  const MatchingOutcome outcome = match_symmetric(values.matrix(), matching);
  EXPECT_EQ(outcome == MatchingOutcome::kDone, matching.rank == n);
  double most = 0;
  std::vector<double> of_partner(n);
  for (int j = 0; j < n; ++j) {
    EXPECT_EQ(matching.partner[matching.partner[j]], j);
    for (int k = values.starts[j]; k < values.starts[j + 1]; ++k) {
      const int i = values.indices[k];
      const double entry = scaled(matching.scale[i], matching.scale[j], values.values[k]);
      most = std::max(most, entry);
      if (i == matching.partner[j]) of_partner[i] = of_partner[j] = entry;
    }
  }
  EXPECT_LE(most, 1 + kTolerance<Real>);
  const double least = matching.rank == n ? 1 - kTolerance<Real> : 1e-300;
  int left = 0;
  for (int j = 0; j < n; ++j) {
    if (matching.partner[j] == j) {
      left += of_partner[j] < least ? 1 : 0;
    } else {
      EXPECT_GE(of_partner[j], least) << j;
    }
  }
  EXPECT_LE(left, n / 3 + n - matching.rank) << "a row of each odd cycle, of three rows or more, or chain";
  return matching;
}

SparseMatrix random_sparse(int n, double density, double decades, unsigned seed) {
  std::mt19937 numbers(seed);
  std::uniform_real_distribution<double> uniform(0, 1);
  SparseMatrix A{"random " + std::to_string(seed), n, n, {}, seed % 2 == 1};
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) {
      if (uniform(numbers) > density) continue;
      const double size = std::pow(10.0, decades * (uniform(numbers) - 0.5));
      A.add(i, j, std::polar(size, A.is_complex ? 6.3 * uniform(numbers) : 0.0));
    }
  }
  return A;
}

template <Scalar T>
class MatchingOf : public testing::Test {};
TYPED_TEST_SUITE(MatchingOf, Scalars);

TYPED_TEST(MatchingOf, MakesTheProductOfTheDiagonalLargest) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    const int n = static_cast<int>(seed % 7);
    SparseMatrix A = random_sparse(n, 0.2 + 0.1 * (seed % 9), seed % 3 * 4.0, seed);
    if (!kIsComplex<TypeParam>) {
      for (auto& entry : A.entries) entry.value = std::abs(entry.value);
    }
    const auto matching = check_matching<TypeParam>(A);
    EXPECT_EQ(matching.rank, structural_rank(A));
  }
}

TYPED_TEST(MatchingOf, ScalesLargeMatricesWhateverTheirRowsAre) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    // Few entries a column make it singular, more of them leave much to the augmenting paths.
    SparseMatrix A = random_sparse(400, (1.0 + seed) / 400, 6, 2 * seed + (kIsComplex<TypeParam> ? 1 : 0));
    std::mt19937 numbers(seed);
    std::vector<double> rows(400);
    for (double& row : rows) row = std::pow(10.0, static_cast<int>(numbers() % 25) - 12);
    for (auto& [i, j, value] : A.entries) value *= rows[i];
    EXPECT_EQ(check_matching<TypeParam>(A).rank, structural_rank(A));
  }
}

TYPED_TEST(MatchingOf, PairsRowsOfSymmetricMatrices) {
  for (unsigned seed = 0; seed < 60; ++seed) {
    const int n = 5 + static_cast<int>(seed * 3);
    SparseMatrix A = random_sparse(n, (1.0 + seed % 6) / n, 6, 2 * seed + (kIsComplex<TypeParam> ? 1 : 0));
    std::erase_if(A.entries, [](const auto& entry) { return entry.row < entry.column; });
    SparseMatrix full = A;
    full.mirror();
    EXPECT_EQ(check_symmetric<TypeParam>(A).rank, structural_rank(full));
  }
}

TEST(Matching, ScalesMatricesFromApplications) {
  for (const SparseMatrix& A : quorin::test::from_applications(QUORIN_MATRICES_DIR)) {
    EXPECT_EQ(check_matching<std::complex<double>>(A).rank, structural_rank(A)) << A.name;
  }
}

TEST(Matching, CompletesThePermutationAndKeepsTheDiagonalWhereItIsFree) {
  SparseMatrix A{"singular", 4, 4, {}};
  A.add(0, 0), A.add(3, 1, 2.0), A.add(0, 3, 0.5), A.add(1, 1, 0.0);
  const auto matching = check_matching<double>(A);
  EXPECT_EQ(matching.rank, 2);
  EXPECT_EQ(std::vector<int>(matching.row_of.data(), matching.row_of.data() + 4), (std::vector<int>{0, 3, 2, 1}));

  // All permutations of a matrix of ones are as good as each other.
  SparseMatrix ones{"ones", 30, 30, {}};
  for (int k = 0; k < 900; ++k) ones.add(k / 30, k % 30);
  const auto identity = check_matching<double>(ones);
  for (int j = 0; j < 30; ++j) EXPECT_EQ(identity.row_of[j], j);
}

TYPED_TEST(MatchingOf, ScalesOneNumberOfAnySizeToOne) {
  using Limits = std::numeric_limits<RealOf<TypeParam>>;
  for (int exponent = Limits::min_exponent - Limits::digits; exponent < Limits::max_exponent; ++exponent) {
    for (const std::complex<double> unit : {std::complex<double>(1, 0), {0, -1}}) {
      SparseMatrix A{"one " + std::to_string(exponent), 1, 1, {}, kIsComplex<TypeParam>};
      A.add(0, 0, std::ldexp(1.0, exponent) * (kIsComplex<TypeParam> ? unit : 1.0));
      EXPECT_EQ(check_matching<TypeParam>(A).rank, 1);
    }
  }
}

TEST(Matching, SurvivesTheLargestAndTheSmallestNumbers) {
  SparseMatrix small{"small", 3, 3, {}, true}, large{"large", 3, 3, {}, true};
  small.add(0, 0, 5e-324), small.add(1, 0, 1e-310), small.add(1, 1, {1e-200, 1e-320}), small.add(2, 2, {0, 1e-323});
  large.add(0, 0, {1e308, 1e308}), large.add(1, 0, 1.0), large.add(1, 1, {0, 1e300}), large.add(2, 2, {-1e308, 1});
  for (const SparseMatrix& A : {small, large}) EXPECT_EQ(check_matching<std::complex<double>>(A).rank, 3);
  SparseMatrix steep{"steep", 40, 40, {}};  // scalings of a range that no type has
  for (int j = 0; j < 40; ++j) steep.add(j, j, 1.0), steep.add(std::min(j + 1, 39), j, j < 39 ? 1e300 : 0.0);
  Matching<double> matching;
  const TypedMatrix<double> values(steep);
  ASSERT_EQ(match(values.matrix(), matching), MatchingOutcome::kDone);
  for (int j = 0; j < 40; ++j) {
    EXPECT_EQ(matching.row_of[j], j);
    EXPECT_TRUE(std::isnormal(matching.row_scale[j]) && std::isnormal(matching.column_scale[j]));
  }
}

TEST(Matching, TellsWhatIsWrong) {
  Matching<double> matching;
  SymmetricMatching<double> symmetric;
  for (const std::complex<double> bad : {std::complex<double>{INFINITY, 0},
                                         {NAN, 0},
                                         {0, -INFINITY},
                                         {INFINITY, NAN},
                                         {NAN, INFINITY},
                                         {0, NAN},
                                         {NAN, 1}}) {
    SparseMatrix A = random_sparse(6, 0.9, 1, 1);
    A.entries[3].value = bad;
    const TypedMatrix<std::complex<double>> values(A);
    EXPECT_EQ(match(values.matrix(), matching), MatchingOutcome::kNotFinite);
    EXPECT_EQ(match_symmetric(values.matrix(), symmetric), MatchingOutcome::kNotFinite);
  }
  const int starts[] = {0, 1, 3}, indices[] = {0, 2, 1};
  const double ones[] = {1, 1, 1};
  for (const int rows : {2, 3}) {
    EXPECT_EQ(match(ColumnMatrix<double>{{rows, 2, starts, indices}, ones}, matching), MatchingOutcome::kBadPattern);
  }
  EXPECT_EQ(matching.row_of.size(), 0);
}

// Each column has the row of its own and the next one's, and the cheap assignment starts them all on the wrong foot:
// the last column's path goes through all of them.
TEST(Matching, FollowsAPathOf100000Rows) {
  constexpr int n = 100000;
  SparseMatrix A{"path", n, n, {}};
  for (int j = 0; j + 1 < n; ++j) A.add(j, j, 1.0), A.add(j + 1, j, 1.001);
  A.add(n - 1, n - 1, 1.0);
  const auto matching = check_matching<double>(A);
  EXPECT_EQ(matching.rank, n);
  for (int j = 0; j < n; ++j) ASSERT_EQ(matching.row_of[j], j);

  SparseMatrix symmetric{"symmetric path", n, n, {}};
  for (int j = 0; j + 1 < n; ++j) symmetric.add(j + 1, j, 1.0 + j % 7);
  EXPECT_EQ(check_symmetric<double>(symmetric).rank, n);
}

TEST(SymmetricMatching, CutsLongCyclesWherePairsAreSafest) {
  // A cycle of five whose third row alone may stand by itself, and one of six where (0 1) has a determinant near 0.
  SparseMatrix five{"five", 5, 5, {}};
  for (int i = 0; i < 5; ++i) five.add(std::max(i, (i + 1) % 5), std::min(i, (i + 1) % 5), 10.0);
  five.add(2, 2, 8.0), five.add(0, 0, 3.0);
  const auto odd = check_symmetric<double>(five);
  EXPECT_EQ(std::vector<int>(odd.partner.data(), odd.partner.data() + 5), (std::vector<int>{1, 0, 2, 4, 3}));

  // The matching takes a cycle of six equal entries, or three of its pairs, which are as good. Two neighbours make a
  // determinant near 0: of the two ways to cut a cycle, the other one is taken, whichever two they are.
  std::array<int, 6> name = {0, 1, 2, 3, 4, 5};
  int cycles = 0;
  do {
    int safe = 0;
    for (const std::size_t first : {0, 1}) {
      SparseMatrix six{"six", 6, 6, {}};
      for (std::size_t k = 0; k < 6; ++k) {
        const auto [low, high] = std::minmax(name[k], name[(k + 1) % 6]);
        six.add(high, low, 1.0);
      }
      for (const int i : {name[first], name[first + 1]}) six.add(i, i, 0.999);
      safe += check_symmetric<double>(six).partner[name[first]] != name[first + 1] ? 1 : 0;
    }
    EXPECT_GE(safe, 1);
    cycles += safe == 2 ? 1 : 0;
  } while (std::next_permutation(name.begin(), name.end()));
  EXPECT_GT(cycles, 100);
}

TEST(SymmetricMatching, CompressesPairsAndKeepsThemTogether) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    SparseMatrix A = random_sparse(200, 0.01, 4, 2 * seed);
    std::erase_if(A.entries, [](const auto& entry) { return entry.row < entry.column; });
    const auto matching = check_symmetric<double>(A);
    const Graph graph = graph_of(pattern_of(A, A.name));
    Graph compressed;
    ASSERT_EQ(compress_pairs(graph, matching.partner.data(), compressed), Outcome::kDone);
    const int pairs = static_cast<int>(200 - std::count_if(matching.partner.data(), matching.partner.data() + 200,
                                                           [&, i = 0](int j) mutable { return j == i++; })) /
                      2;
    ASSERT_EQ(compressed.size(), 200 - pairs);

    // Joined if any of the members are.
    std::vector<int> vertex(200);
    for (int i = 0, count = 0; i < 200; ++i)
      vertex[i] = matching.partner[i] < i ? vertex[matching.partner[i]] : count++;
    std::vector<std::vector<int>> expected(compressed.size());
    for (const auto& [i, j, value] : A.entries) {
      if (vertex[i] == vertex[j]) continue;
      expected[vertex[i]].push_back(vertex[j]);
      expected[vertex[j]].push_back(vertex[i]);
    }
    for (int v = 0; v < compressed.size(); ++v) {
      std::vector<int> list(compressed.neighbours(v).begin(), compressed.neighbours(v).end());
      std::sort(list.begin(), list.end());
      std::sort(expected[v].begin(), expected[v].end());
      expected[v].erase(std::unique(expected[v].begin(), expected[v].end()), expected[v].end());
      EXPECT_EQ(list, expected[v]);
    }

    Arrays of_compressed(compressed.size()), arrays(200);
    ASSERT_EQ(order_minimum_degree(compressed, of_compressed.ordering()), Outcome::kDone);
    std::vector<int> scratch(200);
    expand_pairs(200, matching.partner.data(), of_compressed.permutation.data(), arrays.ordering(), scratch.data());
    EXPECT_TRUE(arrays.is_valid());
    for (int i = 0; i < 200; ++i) EXPECT_LE(std::abs(arrays.inverse[i] - arrays.inverse[matching.partner[i]]), 1);
  }
}

}  // namespace
}  // namespace quorin::sparse::test
