// Refinement, over dense solves that are wrong on purpose. Backward errors are computed again from dense matrices in
// long double.
#include "tests/sparse/matrices.hpp"
#include "tests/sparse/values.hpp"
#include "tests/support/dense.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

using quorin::test::DenseMatrix;
using Wide = quorin::test::Widest;

template <Scalar T>
constexpr double kEpsilon = std::numeric_limits<RealOf<T>>::epsilon();

long double magnitude(Wide x) { return std::abs(x.real()) + std::abs(x.imag()); }

template <Scalar T>
T scalar(double re, double im) {
  if constexpr (kIsComplex<T>) {
    return {static_cast<RealOf<T>>(re), static_cast<RealOf<T>>(im)};
  } else {
    return static_cast<T>(re);
  }
}

// x <- A^-1 x
template <Scalar T>
void solve_dense(const DenseMatrix& A, T* x) {
  DenseMatrix b(A.rows, 1);
  std::copy_n(x, A.rows, b.a.begin());
  const DenseMatrix solution = solve(A, b);
  for (int i = 0; i < A.rows; ++i) {
    x[i] = scalar<T>(static_cast<double>(solution(i, 0).real()), static_cast<double>(solution(i, 0).imag()));
  }
}

// A random system, stored in one of the ways that there are.
template <Scalar T>
struct System {
  System(int n, Symmetry symmetry, Triangle read, bool by_rows, Operation operation, unsigned seed)
      : matrix(quorin::test::SparseMatrix{}), dense(n, n) {
    std::mt19937 numbers(seed);
    std::uniform_real_distribution<double> uniform(-1, 1);
    quorin::test::SparseMatrix A{"random", n, n, {}, true};
    DenseMatrix full(n, n);
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < n; ++i) {
        if (i != j && numbers() % 4 != 0) continue;
        const bool is_real = i == j && symmetry == Symmetry::kHermitian;
        const T value = scalar<T>(uniform(numbers) + (i == j ? 6 : 0), is_real ? 0 : uniform(numbers));
        // What is not read would spoil everything.
        const bool is_read = read == Triangle::kAll ? symmetry == Symmetry::kGeneral || i >= j
                                                    : (read == Triangle::kLower ? i >= j : i <= j);
        if (!is_read && read == Triangle::kAll) continue;
        A.add(by_rows ? j : i, by_rows ? i : j, value);
        if (!is_read) continue;
        full(i, j) = Wide(value);
        if (i != j && symmetry == Symmetry::kSymmetric) full(j, i) = Wide(value);
        if (i != j && symmetry == Symmetry::kHermitian) full(j, i) = std::conj(Wide(value));
      }
    }
    const bool is_transposed = operation == Operation::kTransposed || operation == Operation::kAdjoint;
    const bool is_conjugated = operation == Operation::kConjugated || operation == Operation::kAdjoint;
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < n; ++i) {
        const Wide value = is_transposed ? full(j, i) : full(i, j);
        dense(i, j) = is_conjugated ? std::conj(value) : value;
      }
    }
    matrix = TypedMatrix<T>(A);
    system = {matrix.matrix(), by_rows, read, symmetry, operation};
  }

  TypedMatrix<T> matrix;
  LinearSystem<T> system;
  DenseMatrix dense;
};

template <Scalar T>
double error_of(const DenseMatrix& A, const T* b, const T* x) {
  long double most = 0;
  for (int i = 0; i < A.rows; ++i) {
    Wide r(b[i]);
    long double size = magnitude(r);
    for (int j = 0; j < A.rows; ++j) {
      r -= A(i, j) * Wide(x[j]);
      size += magnitude(A(i, j)) * magnitude(Wide(x[j]));
    }
    most = std::max(most, magnitude(r) / size);
  }
  return static_cast<double>(most);
}

// Solves with a matrix whose entries are wrong by a part in a thousand.
template <Scalar T>
auto sloppy_solve(const DenseMatrix& A, int& solves) {
  DenseMatrix wrong = A;
  std::mt19937 numbers(99);
  for (Wide& a : wrong.a) a *= 1 + 1e-3L * (numbers() % 2);
  return [wrong, &solves](int count, T* columns) {
    solves += count;
    for (int k = 0; k < count; ++k) solve_dense(wrong, columns + static_cast<std::size_t>(k) * wrong.rows);
    return FactorOutcome::kDone;
  };
}

template <Scalar T>
class RefinementOf : public testing::Test {};
TYPED_TEST_SUITE(RefinementOf, Scalars);

// However the matrix is stored, and whichever system is solved. Eleven columns: more than are worked on at a time.
TYPED_TEST(RefinementOf, MakesTheBackwardErrorAFewUlp) {
  using T = TypeParam;
  constexpr int n = 20, ld = n + 3, nrhs = 11;
  unsigned seed = 1;
  for (const auto symmetry : {Symmetry::kGeneral, Symmetry::kSymmetric, Symmetry::kHermitian}) {
    for (const auto read : {Triangle::kAll, Triangle::kLower, Triangle::kUpper}) {
      for (int variant = 0; variant < 16; ++variant) {
        const auto operation = static_cast<Operation>(variant % 4);
        const bool is_extended = variant >= 8;
        const System<T> s(n, symmetry, read, variant / 4 % 2 == 1, operation, ++seed);
        std::vector<T> b(ld * nrhs), x(ld * nrhs);
        std::mt19937 numbers(seed);
        for (T& b_i : b) b_i = scalar<T>(static_cast<int>(numbers() % 17) - 8, static_cast<int>(numbers() % 5) - 2);
        int solves = 0;
        auto solve = sloppy_solve<T>(s.dense, solves);
        for (int k = 0; k < nrhs; ++k) {
          std::copy_n(&b[ld * k], n, &x[ld * k]);
          static_cast<void>(solve(1, &x[ld * k]));
        }
        RefinementReport report;
        const RefinementOptions options{.most_steps = 30, .extended = is_extended};
        ASSERT_EQ(refine(s.system, options, nrhs, b.data(), ld, x.data(), ld, solve, report), FactorOutcome::kDone);
        EXPECT_LE(report.end, RefinementEnd::kStopped);
        EXPECT_GE(report.steps, 2);
        double worst = 0;
        for (int k = 0; k < nrhs; ++k) worst = std::max(worst, error_of(s.dense, &b[ld * k], &x[ld * k]));
        EXPECT_LE(worst, 4 * kEpsilon<T>) << static_cast<int>(symmetry) << static_cast<int>(read) << ' ' << variant;
        // A residual of the working precision is wrong by a few ulp of the largest term itself.
        EXPECT_NEAR(report.backward_error, worst, (is_extended ? 0.01 : 4) * kEpsilon<T>);
      }
    }
  }
}

TEST(Refinement, LooksAtEachColumnAlone) {
  constexpr int n = 20, nrhs = 3;
  const System<double> s(n, Symmetry::kGeneral, Triangle::kAll, false, Operation::kPlain, 5);
  std::vector<double> b(n * nrhs, 1.0), x = b;
  solve_dense(s.dense, &x[0]);  // solved already
  std::fill_n(&x[n], n, 0.0);
  std::fill_n(&b[2 * n], n, 0.0);
  std::fill_n(&x[2 * n], n, 0.0);  // solved exactly
  int solves = 0;
  RefinementReport report;
  const auto solve = sloppy_solve<double>(s.dense, solves);
  ASSERT_EQ(refine(s.system, {.most_steps = 9}, nrhs, b.data(), n, x.data(), n, solve, report), FactorOutcome::kDone);
  EXPECT_EQ(report.steps, solves) << "all of them for one column";
  EXPECT_GE(solves, 4);
  EXPECT_LE(report.backward_error, 2 * kEpsilon<double>);
  ASSERT_EQ(refine(s.system, {.most_steps = 0}, nrhs, b.data(), n, x.data(), n, solve, report), FactorOutcome::kDone);
  EXPECT_EQ(report.steps, 0);
}

// Where x_i is noise beside ||x||, the plain quotient would be 1 for ever.
TEST(Refinement, MeasuresTinyComponentsBesideTheNorm) {
  const double values[] = {1, 1}, b[] = {1, 0}, x[] = {1, 1e-20};
  const int starts[] = {0, 1, 2}, indices[] = {0, 1};
  const LinearSystem<double> system{{{2, 2, starts, indices}, values}};
  EXPECT_LE(backward_error(system, b, x), 2e-20);
  const double y[] = {1, 1e-3};
  EXPECT_EQ(backward_error(system, b, y), 1);
}

TEST(Refinement, TakesBackWhatMakesThingsWorse) {
  constexpr int n = 20;
  const System<double> s(n, Symmetry::kGeneral, Triangle::kAll, false, Operation::kPlain, 7);
  std::vector<double> b(n, 1.0), x = b;
  solve_dense(s.dense, x.data());
  for (const double error : {1e-2, 1e-10}) {
    std::vector<double> y = x;
    y[3] *= 1 + error;
    const std::vector<double> before = y;
    // Changes the residual across itself, so that no length of the step makes it smaller.
    const auto worse = [&](int, double* column) {
      for (int i = 0; i < n; i += 2) column[i] = -5 * std::exchange(column[i + 1], 5 * column[i]);
      solve_dense(s.dense, column);
      return FactorOutcome::kDone;
    };
    RefinementReport report;
    ASSERT_EQ(refine(s.system, {.most_steps = 5}, 1, b.data(), n, y.data(), n, worse, report), FactorOutcome::kDone);
    EXPECT_EQ(report.end, error > 1e-5 ? RefinementEnd::kDiverged : RefinementEnd::kStopped);
    EXPECT_EQ(report.steps, 1);
    EXPECT_EQ(y, before);
    EXPECT_EQ(report.backward_error, backward_error(s.system, b.data(), y.data()));
  }
}

// As with a pivot that was replaced by a larger one, of a regular matrix and of a singular one, whose systems have no
// solution but that of a near system.
TEST(Refinement, LengthensStepsThatFallShort) {
  constexpr int n = 3;
  const int starts[] = {0, 2, 4, 5}, indices[] = {0, 1, 0, 1, 2};
  const double b[] = {1, -0.75, 1};
  for (const double pivot : {3e-14, 1e-18}) {
    const double values[] = {2, 1, 1, 0.5 + pivot, 1};
    const LinearSystem<double> system{{{n, n, starts, indices}, values}};
    const auto solve = [](int, double* column) {
      column[1] = (column[1] - column[0] / 2) / 1e-13;
      column[0] = (column[0] - column[1]) / 2;
      return FactorOutcome::kDone;
    };
    std::vector<double> x(b, b + n);
    static_cast<void>(solve(1, x.data()));
    EXPECT_GT(backward_error(system, b, x.data()), 1e-14);
    RefinementReport report;
    ASSERT_EQ(refine(system, {.most_steps = 2}, 1, b, n, x.data(), n, solve, report), FactorOutcome::kDone);
    EXPECT_LE(report.backward_error, 1e-15) << pivot;
  }
}

TEST(Refinement, EndsWhereNumbersOrSolvesDo) {
  constexpr int n = 20;
  for (const bool is_extended : {false, true}) {
    const System<double> s(n, Symmetry::kSymmetric, Triangle::kUpper, false, Operation::kPlain, 8);
    std::vector<double> b(n, 1.0), x(n, 1.0);
    const RefinementOptions options{.most_steps = 5, .extended = is_extended};
    RefinementReport report;
    const auto fails = [](int, double*) { return FactorOutcome::kFileFailed; };
    EXPECT_EQ(refine(s.system, options, 1, b.data(), n, x.data(), n, fails, report), FactorOutcome::kFileFailed);
    EXPECT_EQ(report.end, RefinementEnd::kStopped);
    const auto to_nan = [](int, double* column) { return column[2] = NAN, FactorOutcome::kDone; };
    EXPECT_EQ(refine(s.system, options, 1, b.data(), n, x.data(), n, to_nan, report), FactorOutcome::kDone);
    EXPECT_EQ(report.end, RefinementEnd::kDiverged);
    EXPECT_EQ(x, std::vector<double>(n, 1.0));
    for (double* const spoilt : {&b[7], &x[7]}) {
      for (const double bad : {NAN, INFINITY}) {
        const double good = *spoilt;
        *spoilt = bad;
        EXPECT_EQ(refine(s.system, options, 1, b.data(), n, x.data(), n, fails, report), FactorOutcome::kDone);
        EXPECT_EQ(report.end, RefinementEnd::kNotFinite);
        EXPECT_EQ(report.steps, 0);
        *spoilt = good;
      }
    }
  }
}

}  // namespace
}  // namespace quorin::sparse::test
