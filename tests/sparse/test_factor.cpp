// Factors and solves, by residuals, by inertias that are known, and by what must fail.
#include "tests/sparse/systems.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

Matrix complete(int n) {
  Edges edges(n);
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i; ++j) edges.add(i, j);
  }
  return edges.matrix("complete");
}

Matrix path(int n) {
  Edges edges(n);
  for (int i = 0; i + 1 < n; ++i) edges.add(i, i + 1);
  return edges.matrix("path");
}

std::vector<Matrix> patterns() {
  Edges blocks(60), arrow(50);
  for (int i = 0; i < 60; ++i) {
    for (int j = i / 7 * 7; j < i; ++j) blocks.add(i, j);
  }
  for (int i = 1; i < 50; ++i) arrow.add(i, 0);
  return {Edges(0).matrix("none"),
          Edges(1).matrix("one"),
          Edges(2).add(0, 1).matrix("two"),
          Edges(30).matrix("diagonal"),
          complete(9),
          complete(40),
          complete(150),
          path(200),
          blocks.matrix("blocks"),
          arrow.matrix("arrow"),
          grid(17, 13, 1, false),
          grid(7, 7, 7, false),
          random_matrix(90, 60, 1),
          random_matrix(90, 200, 2),
          random_matrix(90, 700, 3),
          random_forest(80, 5, 3, 2),
          complete_bipartite(12, 30)};
}

template <class T>
class Factors : public testing::Test {};
TYPED_TEST_SUITE(Factors, Scalars);

TYPED_TEST(Factors, SolveForEveryPatternKindAndOperation) {
  using T = TypeParam;
  unsigned seed = 0;
  for (const Matrix& pattern : patterns()) {
    SCOPED_TRACE(pattern.name);
    for (const Kind& kind : kKinds) {
      SCOPED_TRACE(text(kind));
      const System<T> A = dominant_system<T>(pattern, kind.symmetry, kind.is_definite(), 1.1, ++seed);
      Solved<T> solved(A);
      ASSERT_EQ(solved.compute(kind.options()), FactorOutcome::kDone);
      EXPECT_EQ(solved.factor.report().pivots.perturbed, 0);
      EXPECT_EQ(solved.factor.report().bytes, factor_bytes<T>(solved.plan, kind.options()));
      EXPECT_EQ(solved.factor.report().peak_bytes, peak_bytes<T>(solved.plan, kind.options()));
      EXPECT_GE(solved.factor.report().peak_bytes, solved.factor.report().bytes);
      for (const Operation operation : kOperations) {
        for (const int nrhs : {1, 3, 5, 37}) {
          EXPECT_LE(solved.error(operation, nrhs), tolerance<T>(A.n)) << static_cast<int>(operation) << ' ' << nrhs;
        }
        EXPECT_LE(solved.error(operation, 1, 1, true), tolerance<T>(A.n)) << "in stages";
        EXPECT_LE(solved.error(operation, 6, 1, true), tolerance<T>(A.n)) << "in stages";
      }
    }
  }
}

// L and U, which are unique without exchanges, beside elimination of the dense matrix in the widest precision.
TYPED_TEST(Factors, AreThoseOfDenseElimination) {
  using T = TypeParam;
  for (const Matrix& pattern : patterns()) {
    const int n = pattern.columns;
    if (n > 100) continue;
    SCOPED_TRACE(pattern.name);
    const System<T> A = dominant_system<T>(pattern, Symmetry::kGeneral, false, 1.1, 91);
    Solved<T> solved(A);
    ASSERT_EQ(solved.compute({.factorization = Factorization::kLU}), FactorOutcome::kDone);
    const Plan& plan = solved.plan;
    std::vector<std::vector<Exact<T>>> lu(n, std::vector<Exact<T>>(n));
    long double largest = 0;
    for (const auto& e : A.entries) {
      lu[plan.inverse()[e.row]][plan.inverse()[e.column]] += exact(e.value);
      largest = std::max(largest, std::abs(exact(e.value)));
    }
    for (int k = 0; k < n; ++k) {
      for (int i = k + 1; i < n; ++i) {
        lu[i][k] /= lu[k][k];
        for (int j = k + 1; j < n; ++j) lu[i][j] -= lu[i][k] * lu[k][j];
      }
    }
    std::vector<std::vector<Exact<T>>> found(n, std::vector<Exact<T>>(n));
    for (int s = 0; s < plan.supernodes(); ++s) {
      const int first = plan.first(s), columns = plan.columns(s), height = plan.height(PanelKind::kUnsymmetric, s);
      const auto below = plan.below(s);
      const T* panel = solved.factor.panels().pin(s);
      for (int c = 0; c < columns; ++c, panel += height) {
        for (int r = 0; r < columns; ++r) found[first + r][first + c] = exact(panel[r]);
        for (std::size_t r = 0; r < below.size(); ++r) {
          found[below[r]][first + c] = exact(panel[columns + r]);
          found[first + c][below[r]] = exact(panel[columns + below.size() + r]);
        }
      }
    }
    const long double bound = 4 * n * largest * std::numeric_limits<RealOf<T>>::epsilon();
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) ASSERT_LE(std::abs(found[i][j] - lu[i][j]), bound) << i << ' ' << j;
    }
  }
}

// Without a dominant diagonal: pivots must be exchanged. One supernode holds all, so that they may be.
TYPED_TEST(Factors, ExchangeInsideADiagonalBlock) {
  using T = TypeParam;
  for (const int n : {2, 3, 5, 8, 9, 24, 25, 33, 64, 65, 100, 131}) {
    for (const Kind& kind : kKinds) {
      if (kind.pivoting == Pivoting::kInOrder || kind.pivoting == Pivoting::kDiagonal) continue;
      SCOPED_TRACE(text(kind) + ", " + std::to_string(n));
      System<T> A = dominant_system<T>(complete(n), kind.symmetry, false, 0, static_cast<unsigned>(n));
      for (auto& e : A.entries) {
        if (e.row == e.column)
          e.value =
              kind.pivoting == Pivoting::kBunchKaufman && e.row % 3 != 0 ? T{} : T{1} / T(static_cast<RealOf<T>>(n));
      }
      Solved<T> solved(A);
      ASSERT_EQ(solved.compute(kind.options()), FactorOutcome::kDone);
      for (const Operation operation : kOperations) {
        EXPECT_LE(solved.error(operation, 1), 10 * tolerance<T>(n));
        EXPECT_LE(solved.error(operation, 7), 10 * tolerance<T>(n));
      }
    }
  }
}

// A = X D X' with D of known signs and X unit lower triangular: A's inertia is D's (Sylvester).
template <Scalar T>
System<T> with_inertia(int n, int positive, int zero, Symmetry symmetry, unsigned seed) {
  std::mt19937 numbers(seed);
  std::vector<std::vector<T>> X(n, std::vector<T>(n));
  std::vector<int> order(n);
  for (int i = 0; i < n; ++i) {
    order[i] = i;
    X[i][i] = 1;
    for (int j = 0; j < i; ++j) {
      if (numbers() % 4 == 0) X[i][j] = static_cast<RealOf<T>>(static_cast<int>(numbers() % 5) - 2);
    }
  }
  std::shuffle(order.begin(), order.end(), numbers);
  System<T> A{"of known inertia", n, symmetry, {}};
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j <= i; ++j) {
      T sum{};
      for (int k = 0; k <= j; ++k) {
        const int sign = order[k] < positive ? 1 : order[k] < positive + zero ? 0 : -1;
        sum += T(static_cast<RealOf<T>>(sign)) * X[i][k] * conjugate(X[j][k]);
      }
      if (sum != T{} || i == j) A.entries.push_back({i, j, sum});
    }
  }
  return A;
}

TYPED_TEST(Factors, CountSignsOfPivots) {
  using T = TypeParam;
  for (const int n : {1, 2, 5, 20, 28}) {
    for (int positive = 0; positive <= n; positive += 1 + n / 5) {
      for (const bool dense_in_order : {false, true}) {
        const System<T> A = with_inertia<T>(n, positive, 0, Symmetry::kHermitian, static_cast<unsigned>(n + positive));
        Solved<T> solved(A);
        const FactorOptions options{.factorization = Factorization::kLDLH,
                                    .pivoting = dense_in_order ? Pivoting::kDiagonal : Pivoting::kBunchKaufman,
                                    .perturbation = 1e-7};
        ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
        const PivotCounts& counts = solved.factor.report().pivots;
        if (counts.perturbed > 0) continue;
        EXPECT_EQ(counts.positive, positive) << n;
        EXPECT_EQ(counts.negative, n - positive) << n;
      }
    }
  }
}

// Equations of equilibrium: zeros on half of the diagonal, and pairs of unknowns in the order of elimination.
template <Scalar T>
System<T> saddle_point(int side, Symmetry symmetry) {
  std::mt19937 numbers(5);
  const Matrix G = grid(side, side, 1, false);
  System<T> A = dominant_system<T>(G, symmetry, true, 1.1, 3);
  A.name = "saddle point";
  const int m = A.n;
  for (int k = 0; k < m / 2; ++k) {
    A.entries.push_back({m + k, k, random_value<T>(numbers) + T{2}});
    A.entries.push_back({m + k, 2 * k + 1, random_value<T>(numbers)});
    A.entries.push_back({m + k, m + k, T{}});
  }
  A.n = m + m / 2;
  return A;
}

TYPED_TEST(Factors, SolveSaddlePointsByPairs) {
  using T = TypeParam;
  for (const Symmetry symmetry : {Symmetry::kHermitian, Symmetry::kSymmetric}) {
    const System<T> A = saddle_point<T>(12, symmetry);
    const int m = 144;
    std::vector<int> order, pair_of(A.n, kNone);
    for (int k = m / 2; k < m; ++k) order.push_back(k);
    for (int k = 0; k < m / 2; ++k) {
      order.push_back(k);
      order.push_back(m + k);
      pair_of[k] = m + k;
      pair_of[m + k] = k;
    }
    Solved<T> solved(A, {.pair_of = pair_of.data()}, order.data());
    const FactorOptions options{
        .factorization = symmetry == Symmetry::kHermitian ? Factorization::kLDLH : Factorization::kLDLT,
        .pivoting = Pivoting::kBunchKaufman};
    ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
    const PivotCounts& counts = solved.factor.report().pivots;
    EXPECT_EQ(counts.perturbed, 0);
    if (symmetry == Symmetry::kHermitian) {
      EXPECT_EQ(counts.positive, m);
      EXPECT_EQ(counts.negative, m / 2);
    }
    for (const Operation operation : kOperations) EXPECT_LE(solved.error(operation, 5), 100 * tolerance<T>(A.n));
  }
}

TYPED_TEST(Factors, NameTheColumnThatFails) {
  using T = TypeParam;
  const Matrix pattern = grid(9, 8, 1, false);
  const int bad = 37;
  for (const auto& [method, threads] : {std::pair(Method::kLeftLooking, 1),
                                        {Method::kLeftLooking, 3},
                                        {Method::kMultifrontal, 1},
                                        {Method::kMultifrontal, 3}}) {
    System<T> A = dominant_system<T>(pattern, Symmetry::kHermitian, true, 1.1, 1);
    for (auto& e : A.entries) {
      if (e.row == bad && e.column == bad) e.value = T{-1};
    }
    Solved<T> solved(A);
    const FactorOptions llt{.factorization = Factorization::kLLT, .method = method, .threads = threads};
    EXPECT_EQ(solved.compute(llt), FactorOutcome::kNotPositiveDefinite);
    EXPECT_EQ(solved.factor.report().failed_column, bad);
    EXPECT_FALSE(solved.factor);
    // The same plan, sound values.
    for (std::size_t k = 0; k < A.entries.size(); ++k) {
      if (A.entries[k].row == bad && A.entries[k].column == bad) A.entries[k].value = T{9};
    }
    Solved<T> sound(A);
    solved.values = sound.values;
    EXPECT_EQ(solved.compute(llt), FactorOutcome::kDone);
    EXPECT_LE(solved.error(Operation::kPlain, 1), tolerance<T>(A.n));

    // A row and a column of zeros.
    System<T> S = dominant_system<T>(pattern, Symmetry::kGeneral, true, 1.1, 1);
    for (auto& e : S.entries) {
      if (e.row == bad || e.column == bad) e.value = T{};
    }
    Solved<T> singular(S);
    FactorOptions lu{
        .factorization = Factorization::kLU, .method = method, .pivoting = Pivoting::kInOrder, .threads = threads};
    EXPECT_EQ(singular.compute(lu), FactorOutcome::kSingular);
    EXPECT_EQ(singular.factor.report().failed_column, bad);
    lu.perturbation = 1e-4;
    EXPECT_EQ(singular.compute(lu), FactorOutcome::kDone);
    EXPECT_EQ(singular.factor.report().pivots.perturbed, 1);

    // For L D L' such an unknown is zero, and counted.
    S.symmetry = Symmetry::kHermitian;
    std::erase_if(S.entries, [](const auto& e) { return e.row < e.column; });
    for (auto& e : S.entries) {
      if (e.row == e.column) e.value = real_part(e.value) + std::abs(e.value) + (e.row == bad ? T{} : T{8});
    }
    Solved<T> semidefinite(S);
    const FactorOptions ldl{.factorization = Factorization::kLDLH,
                            .method = method,
                            .pivoting = Pivoting::kBunchKaufman,
                            .threads = threads};
    EXPECT_EQ(semidefinite.compute(ldl), FactorOutcome::kDone);
    EXPECT_EQ(semidefinite.factor.report().pivots.zero, 1);
    EXPECT_EQ(semidefinite.factor.report().pivots.positive, S.n - 1);
    std::vector<T> b(static_cast<std::size_t>(S.n), T{1});
    const std::vector<T> x = semidefinite.solution(Operation::kPlain, b, 1);
    EXPECT_EQ(x[bad], T{});
    b[bad] = T{};
    EXPECT_LE(backward_error(S, Operation::kPlain, x.data(), b.data()), tolerance<T>(S.n));
  }
}

// Where pivots have been exchanged, the column that is left over is told by its own number.
TYPED_TEST(Factors, NameTheColumnThatFailsAfterExchanges) {
  using T = TypeParam;
  const int order[] = {0, 1, 2};
  for (const Kind& kind : kKinds) {
    if (kind.is_definite()) continue;
    const bool has_pair = kind.factorization != Factorization::kLU;
    System<T> A{"left over", 3, kind.symmetry, {}};
    for (int j = 0; j < 3; ++j) {
      for (int i = kind.symmetry == Symmetry::kGeneral ? 0 : j; i < 3; ++i) {
        A.entries.push_back({i, j, i == 1 && j == 1 ? T{5} : has_pair && i + j == 2 ? T{1} : T{}});
      }
    }
    Solved<T> solved(A, {}, order);
    const bool takes_pairs = kind.pivoting == Pivoting::kBunchKaufman;
    EXPECT_EQ(solved.compute(kind.options()), takes_pairs ? FactorOutcome::kDone : FactorOutcome::kSingular);
    EXPECT_EQ(solved.factor.report().failed_column, takes_pairs ? kNone : 0) << text(kind);
  }
}

TYPED_TEST(Factors, RefuseWhatIsNotFinite) {
  using T = TypeParam;
  const double values[] = {std::numeric_limits<double>::quiet_NaN(), kInfinity, -kInfinity};
  for (const Kind& kind : kKinds) {
    System<T> A = dominant_system<T>(grid(6, 6, 1, false), kind.symmetry, true, 1.1, 1);
    for (const double value : values) {
      for (const std::size_t k : {std::size_t{0}, A.entries.size() / 2, A.entries.size() - 1}) {
        Solved<T> solved(A);
        solved.values[k] = T(static_cast<RealOf<T>>(value));
        EXPECT_EQ(solved.compute(kind.options()), FactorOutcome::kNotFinite);
      }
    }
    // An overflow on the way: l = huge / tiny.
    if (kind.pivoting == Pivoting::kInOrder) {
      using Limits = std::numeric_limits<RealOf<T>>;
      const T large = Limits::max() / 4;
      System<T> steep{"steep", 2, kind.symmetry, {{0, 0, T{Limits::min()}}, {1, 0, large}, {1, 1, large}}};
      if (kind.symmetry == Symmetry::kGeneral) steep.entries.push_back({0, 1, large});
      const int order[] = {0, 1};
      Solved<T> solved(steep, {}, order);
      EXPECT_EQ(solved.compute(kind.options()), FactorOutcome::kNotFinite) << text(kind);
      EXPECT_EQ(solved.factor.report().failed_column, 1) << text(kind);
    }
    System<T> huge = dominant_system<T>(complete(30), kind.symmetry, true, 0, 1);
    for (auto& e : huge.entries) {
      e.value =
          std::numeric_limits<RealOf<T>>::max() * RealOf<T>{0.7F} * (e.row == e.column ? T{1} / T{1 << 20} : T{1});
    }
    Solved<T> solved(huge);
    const FactorOutcome outcome = solved.compute(kind.options());
    EXPECT_NE(outcome, FactorOutcome::kOutOfMemory) << text(kind);
  }
}

TYPED_TEST(Factors, HaveTheSameBitsOnAnyNumberOfThreads) {
  using T = TypeParam;
  for (const Matrix& pattern : {grid(60, 55, 1, false), grid(13, 12, 11, false)}) {
    for (const Kind& kind : kKinds) {
      SCOPED_TRACE(text(kind));
      const System<T> A = dominant_system<T>(pattern, kind.symmetry, kind.is_definite(), 1.1, 9);
      Solved<T> solved(A);
      std::mt19937 numbers(3);
      std::vector<T> b(static_cast<std::size_t>(A.n) * 40);
      for (T& value : b) value = random_value<T>(numbers);
      std::vector<T> first;
      for (const int threads : {1, 2, 3, 8}) {
        ASSERT_EQ(solved.compute(kind.options(Method::kLeftLooking, threads)), FactorOutcome::kDone);
        std::vector<T> all;
        for (const int nrhs : {1, 40}) {
          const std::vector<T> x = solved.solution(
              Operation::kPlain, std::vector<T>(b.begin(), b.begin() + std::ptrdiff_t{nrhs} * A.n), nrhs, threads);
          all.insert(all.end(), x.begin(), x.end());
        }
        if (threads == 1) first = all;
        EXPECT_EQ(std::memcmp(all.data(), first.data(), all.size() * sizeof(T)), 0) << threads;
        EXPECT_LE(solved.error(Operation::kTransposed, 2, threads), tolerance<T>(A.n));
      }
    }
  }
}

class Stopper : public Progress {
 public:
  explicit Stopper(double most) : most_(most) {}
  bool report(double done) noexcept override {
    is_ascending_ = is_ascending_ && done >= last_;
    last_ = done;
    return done < most_;
  }
  bool is_ascending() const { return is_ascending_; }
  double last() const { return last_; }

 private:
  double most_, last_ = 0;
  bool is_ascending_ = true;
};

TEST(Progress, IsReportedAndMayStop) {
  const System<double> A = dominant_system<double>(grid(20, 20, 1, false), Symmetry::kHermitian, true, 1.1, 1);
  for (const int threads : {1, 2}) {
    Solved<double> solved(A);
    Stopper whole(2), half(0.5);
    FactorOptions options{.threads = threads, .progress = &whole};
    EXPECT_EQ(solved.compute(options), FactorOutcome::kDone);
    EXPECT_TRUE(whole.is_ascending());
    EXPECT_NEAR(whole.last(), 1, 1e-9);
    options.progress = &half;
    EXPECT_EQ(solved.compute(options), FactorOutcome::kCancelled);
    EXPECT_LT(half.last(), 1);
    EXPECT_EQ(solved.factor.report().failed_column, kNone);
  }
}

}  // namespace
}  // namespace quorin::sparse::test
