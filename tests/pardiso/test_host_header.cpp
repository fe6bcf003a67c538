// The C++ header: an object that owns a handle.
#include "quorin/pardiso.hpp"
#include "tests/pardiso/systems.hpp"
#include "tests/support/standard.hpp"

namespace pardiso_test {
namespace {

using quorin::pardiso::Kind;
using quorin::pardiso::Operation;
using quorin::pardiso::Solver;

template <class T>
struct Given {
  explicit Given(const Matrix& A) : starts(A.ia), columns(A.ja) {
    for (auto* indices : {&starts, &columns}) {
      for (auto& index : *indices) --index;
    }
    for (const Complex value : A.a) values.push_back(from<T>(value));
  }
  std::vector<std::int32_t> starts, columns;
  std::vector<T> values;
};

template <class T>
void expect_solved(const Matrix& A, Kind kind) {
  const Given<T> given(A);
  Solver<T> solver(kind);
  solver.analyze(given.starts, given.columns, given.values);
  solver.factor(given.values);
  const auto n = static_cast<std::size_t>(A.n());
  EXPECT_EQ(solver.size(), A.n());
  const std::vector<T> b(2 * n, T(1));
  for (const Operation operation : {Operation::kPlain, Operation::kAdjoint, Operation::kTransposed}) {
    std::vector<T> x(2 * n);
    solver.solve(b, x, operation);
    const auto product = A.times(std::vector<Complex>(x.begin(), x.begin() + A.n()), static_cast<int>(operation));
    for (std::size_t i = 0; i < n; ++i) {
      EXPECT_NEAR(std::abs(product[i] - 1.0), 0.0, 1e3 * kEpsilon<T>) << i;
      EXPECT_EQ(x[i], x[n + i]);
    }
  }
}

TEST(HostHeader, SolvesAllKinds) {
  expect_solved<double>(unsymmetric8(), Kind::kUnsymmetric);
  expect_solved<float>(structurally_symmetric5(), Kind::kStructurallySymmetric);
  expect_solved<double>(indefinite8(), Kind::kSymmetric);
  expect_solved<float>(definite8(), Kind::kPositiveDefinite);
  expect_solved<double>(indefinite8(), Kind::kHermitian);
  expect_solved<Complex>(complex5(), Kind::kUnsymmetric);
  expect_solved<Complex>(with_type(structurally_symmetric5(), 3), Kind::kStructurallySymmetric);
  expect_solved<Complex>(complex8(indefinite8(), -4), Kind::kHermitian);
  expect_solved<std::complex<float>>(complex8(definite8(), 4), Kind::kPositiveDefinite);
  expect_solved<Complex>(complex8(indefinite8(), 6), Kind::kSymmetric);
}

TEST(HostHeader, OwnsItsHandle) {
  const Given<double> given(indefinite8());
  std::optional<Solver<double>> first(Kind::kSymmetric);
  first->analyze(given.starts, given.columns);
  first->factor(given.values);
  EXPECT_EQ(first->positive_eigenvalues(), 5);
  EXPECT_EQ(first->negative_eigenvalues(), 3);
  Solver<double> second = std::move(*first);
  first.reset();
  second.factor(given.values);
  std::vector<double> b(8, 1.0), x(8);
  second.solve(b, x);
  EXPECT_NEAR(x[0], -0.041860201286809, 1e-14);
  second.release();
  EXPECT_THROW(second.solve(b, x), quorin::pardiso::Error);
}

TEST(HostHeader, TellsErrors) {
  const Given<double> given(with_type(indefinite5(), 2));
  Solver<double> solver(Kind::kPositiveDefinite);
  std::vector<double> b(7, 1.0), x(7);
  EXPECT_THROW(solver.solve(b, x), std::invalid_argument) << "nothing is analysed";
  EXPECT_THROW(solver.analyze(given.starts, std::span(given.columns).first(3)), std::invalid_argument);
  EXPECT_THROW(solver.analyze(given.starts, given.columns, std::span(given.values).first(3)), std::invalid_argument);
  solver.analyze(given.starts, given.columns);
  EXPECT_THROW(solver.factor(std::span(given.values).first(3)), std::invalid_argument);
  EXPECT_THROW(solver.solve(b, x), std::invalid_argument) << "7 numbers are no right-hand sides of 5";
  EXPECT_THROW(solver.solve(std::span(b).first(5), x), std::invalid_argument);
  try {
    solver.factor(given.values);
    ADD_FAILURE();
  } catch (const quorin::pardiso::Error& error) {
    EXPECT_EQ(error.code(), -4);
    EXPECT_NE(std::string(error.what()).find("not positive"), std::string::npos);
  }
  for (const int code : {-12, -14, 1}) EXPECT_STREQ(quorin::pardiso::describe(code), quorin::pardiso::describe(-5));
}

}  // namespace
}  // namespace pardiso_test
