// Schur complements beside dense elimination, solves by way of them, and solves of parts of systems beside whole ones.
#include "tests/sparse/systems.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

// What elimination of all but the last `left` unknowns, in the order of `permutation`, makes of A; column-major.
template <Scalar T>
std::vector<Exact<T>> dense_complement(const System<T>& A, const int* permutation, int left) {
  const int n = A.n;
  std::vector<int> step(n);
  for (int k = 0; k < n; ++k) step[permutation[k]] = k;
  std::vector<Exact<T>> a(std::size_t(n) * n);
  A.for_each([&](int i, int j, T value) { a[step[i] + std::size_t(step[j]) * n] += exact(value); });
  for (int k = 0; k < n - left; ++k) {
    for (int j = k + 1; j < n; ++j) {
      const Exact<T> u = a[k + std::size_t(j) * n] / a[k + std::size_t(k) * n];
      for (int i = k + 1; i < n; ++i) a[i + std::size_t(j) * n] -= a[i + std::size_t(k) * n] * u;
    }
  }
  std::vector<Exact<T>> S;
  for (int j = n - left; j < n; ++j) {
    for (int i = n - left; i < n; ++i) S.push_back(a[i + std::size_t(j) * n]);
  }
  return S;
}

std::vector<int> random_order(int n, unsigned seed) {
  std::vector<int> order(n);
  std::iota(order.begin(), order.end(), 0);
  std::shuffle(order.begin(), order.end(), std::mt19937(seed));
  return order;
}

template <Scalar T>
class SchurOf : public testing::Test {};
TYPED_TEST_SUITE(SchurOf, Scalars);

TYPED_TEST(SchurOf, IsThatOfDenseEliminationAndSolvesTheSystem) {
  using T = TypeParam;
  const Matrix pattern = grid(8, 7, 1, true);
  const int n = pattern.columns;
  for (const Kind& kind : kKinds) {
    SCOPED_TRACE(text(kind));
    const System<T> A = dominant_system<T>(pattern, kind.symmetry, kind.is_definite(), 1.1, 3);
    for (const int m : {1, 6, 25, n}) {
      SCOPED_TRACE(m);
      const std::vector<int> order = random_order(n, static_cast<unsigned>(m));
      Solved<T> solved(A, {.schur_size = m}, order.data());
      ASSERT_EQ(solved.compute(kind.options()), FactorOutcome::kDone);
      const Plan& plan = solved.plan;
      for (int k = n - m; k < n; ++k) ASSERT_EQ(plan.permutation()[k], order[k]);

      const int lds = m + 2;
      const auto expected = dense_complement(A, plan.permutation(), m);
      std::vector<T> S(std::size_t(lds) * m, T{-9}), by_rows = S;
      ASSERT_EQ(copy_schur_complement(solved.factor, false, S.data(), lds), FactorOutcome::kDone);
      ASSERT_EQ(copy_schur_complement(solved.factor, true, by_rows.data(), lds), FactorOutcome::kDone);
      double largest = 0, error = 0;
      for (int j = 0; j < m; ++j) {
        for (int i = 0; i < m; ++i) {
          const auto value = expected[i + std::size_t(j) * m];
          largest = std::max(largest, static_cast<double>(std::abs(value)));
          error = std::max(error, static_cast<double>(std::abs(exact(S[i + std::size_t(j) * lds]) - value)));
          EXPECT_EQ(S[i + std::size_t(j) * lds], by_rows[j + std::size_t(i) * lds]);
        }
        EXPECT_EQ(S[m + std::size_t(j) * lds], T{-9});
      }
      EXPECT_LE(error, tolerance<T>(n) * largest);

      SchurFactor<T> factor;
      ASSERT_EQ(factor.compute(m, by_rows.data(), lds, true), FactorOutcome::kDone);
      EXPECT_EQ(factor.perturbed(), 0);
      std::mt19937 numbers(1);
      for (const Operation operation : kOperations) {
        for (const int nrhs : {1, 5}) {
          std::vector<T> b(std::size_t(n) * nrhs), x(b.size()), y(b.size());
          for (T& value : b) value = random_value<T>(numbers);
          for (int r = 0; r < nrhs; ++r) permute(n, plan.permutation(), &b[std::size_t(n) * r], &y[std::size_t(n) * r]);
          ASSERT_EQ(solve_with_schur(solved.factor, factor, operation, nrhs, y.data(), n), FactorOutcome::kDone);
          for (int r = 0; r < nrhs; ++r) {
            permute_back(n, plan.permutation(), &y[std::size_t(n) * r], &x[std::size_t(n) * r]);
            EXPECT_LE(backward_error(A, operation, &x[std::size_t(n) * r], &b[std::size_t(n) * r]), tolerance<T>(n));
          }
        }
      }
    }
  }
}

// Of all unknowns, or of some: first ones, scattered ones, the last ones.
TYPED_TEST(SchurOf, PartialSolvesGiveWhatWholeOnesDo) {
  using T = TypeParam;
  const Matrix pattern = grid(13, 12, 1, false);
  const int n = pattern.columns;
  const std::vector<int> sets[] = {{0}, {5, 60, 61, 100}, {n - 3, n - 2, n - 1}, {}};
  using Steps = std::optional<std::span<const int>>;
  for (const Kind& kind : kKinds) {
    SCOPED_TRACE(text(kind));
    const System<T> A = dominant_system<T>(pattern, kind.symmetry, kind.is_definite(), 1.1, 4);
    Solved<T> solved(A);
    ASSERT_EQ(solved.compute(kind.options()), FactorOutcome::kDone);
    for (int variant = 0; variant < 25; ++variant) {
      const int from = variant / 5, to = variant % 5;
      const Steps given = from < 4 ? Steps(sets[from]) : std::nullopt, wanted = to < 4 ? Steps(sets[to]) : std::nullopt;
      SolvePaths paths;
      ASSERT_TRUE(paths.build(solved.plan, given, wanted));
      EXPECT_LE(paths.forward().size() + paths.backward().size(), std::size_t(2) * solved.plan.supernodes());
      EXPECT_LE(paths.forward().size(), from == 2 ? 3U : std::size_t(n));
      EXPECT_EQ(paths.backward().empty(), to == 3);
      const Operation operation = kOperations[variant % 4];
      const int nrhs = 1 + variant % 3 * 3, ldx = n + 1;
      std::mt19937 numbers(7);
      std::vector<T> x(std::size_t(ldx) * nrhs), b(x.size()), all(x.size());
      for (std::size_t k = 0; k < x.size(); ++k) {
        b[k] = random_value<T>(numbers);
        const int row = static_cast<int>(k % ldx);
        const bool is_given = row < n && (from == 4 || std::count(sets[from].begin(), sets[from].end(), row) > 0);
        all[k] = is_given ? b[k] : T{};
      }
      x = b;
      ASSERT_EQ(solve_partly(solved.factor, operation, paths, nrhs, x.data(), ldx, 2), FactorOutcome::kDone);
      ASSERT_EQ(solve(solved.factor, operation, Stage::kAll, nrhs, all.data(), ldx), FactorOutcome::kDone);
      double largest = 0, error = 0;
      for (std::size_t k = 0; k < x.size(); ++k) {
        const int row = static_cast<int>(k % ldx);
        const bool is_wanted = row < n && (to == 4 || std::count(sets[to].begin(), sets[to].end(), row) > 0);
        if (!is_wanted) {
          EXPECT_EQ(x[k], b[k]);
          continue;
        }
        largest = std::max(largest, static_cast<double>(std::abs(all[k])));
        error = std::max(error, static_cast<double>(std::abs(all[k] - x[k])));
      }
      EXPECT_LE(error, 10 * tolerance<T>(n) * largest) << variant;
    }
  }
}

// A system with another complement in the place of its own is the one whose block of these unknowns differs by as much.
TEST(Schur, ComplementsMayBeReplaced) {
  const Matrix pattern = grid(6, 6, 1, false);
  const int n = pattern.columns, m = 4;
  System<double> A = dominant_system<double>(pattern, Symmetry::kGeneral, false, 1.1, 5);
  const std::vector<int> order = random_order(n, 2);
  Solved<double> solved(A, {.schur_size = m}, order.data());
  ASSERT_EQ(solved.compute({.factorization = Factorization::kLU, .pivoting = Pivoting::kPartial}),
            FactorOutcome::kDone);
  std::vector<double> S(m * m);
  ASSERT_EQ(copy_schur_complement(solved.factor, false, S.data(), m), FactorOutcome::kDone);
  for (int k = 0; k < m; ++k) {
    S[k + m * ((k + 1) % m)] += 20 + k;
    A.entries.push_back({order[n - m + k], order[n - m + (k + 1) % m], 20.0 + k});
  }
  SchurFactor<double> factor;
  ASSERT_EQ(factor.compute(m, S.data(), m, false), FactorOutcome::kDone);
  for (const Operation operation : kOperations) {
    std::vector<double> b(n), x(n), y(n);
    for (int i = 0; i < n; ++i) b[i] = i % 7 - 2;
    permute(n, solved.plan.permutation(), b.data(), y.data());
    ASSERT_EQ(solve_with_schur(solved.factor, factor, operation, 1, y.data(), n), FactorOutcome::kDone);
    permute_back(n, solved.plan.permutation(), y.data(), x.data());
    EXPECT_LE(backward_error(A, operation, x.data(), b.data()), tolerance<double>(n));
  }
}

TEST(Schur, TellsOfSingularComplements) {
  const double S[] = {1, 2, 2, 4}, bad[] = {1, NAN, 0, 1};
  SchurFactor<double> factor;
  EXPECT_EQ(factor.compute(2, S, 2, false), FactorOutcome::kSingular);
  EXPECT_EQ(factor.compute(2, S, 2, false, 1e-13), FactorOutcome::kDone);
  EXPECT_EQ(factor.perturbed(), 1);
  EXPECT_EQ(factor.compute(2, bad, 2, false), FactorOutcome::kNotFinite);
}

}  // namespace
}  // namespace quorin::sparse::test
