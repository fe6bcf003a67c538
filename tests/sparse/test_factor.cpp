// Factors and solves, by residuals and by what must fail.
#include "sparse/numeric/loops.hpp"
#include "tests/sparse/systems.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

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
      // A complete search leaves nothing larger than the pivot in its row, nor, up to rounding, in its column.
      if (kind.pivoting != Pivoting::kComplete || n > 64) continue;
      const T* const lu = solved.factor.panels().pin(0);
      for (int k = 0; k < n; ++k) {
        const T pivot = lu[k * (n + 1)];
        for (int j = k + 1; j < n; ++j) {
          ASSERT_LE(magnitude(lu[k + j * n]), magnitude(pivot)) << k << ", " << j;
          ASSERT_LE(magnitude(lu[j + k * n] * pivot), RealOf<T>{1.001F} * magnitude(pivot)) << j << ", " << k;
        }
      }
    }
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
