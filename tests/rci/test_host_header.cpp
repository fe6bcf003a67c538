// The header for C++ hosts, and the solvers on systems of a realistic size.
#include "quorin/rci.hpp"
#include "tests/rci/ilu_host.hpp"
#include "tests/rci/rci_host.hpp"
#include "tests/support/test.hpp"

namespace rci_test {
namespace {

namespace rci = quorin::rci;

Csr grid(int k, double wind) { return csr(quorin::test::convection_diffusion(k, wind)); }

auto product(const Csr& A) {
  return [&A](std::span<const double> in, std::span<double> out) { A.multiply(in.data(), out.data()); };
}

auto ilu0(const Csr& A) { return rci::IncompleteLu::on_pattern(A.n, A.a.data(), A.ia.data(), A.ja.data()); }

// Neither squares that leave the range nor FGMRES's absolute test for zero are the host's worry.
TEST(HostHeader, EveryScale) {
  const Csr A = grid(12, 0.0);
  std::mt19937 random(2);
  const Vector solution = random_vector(A.n, random), b = A * solution;
  const auto scaled = [](Vector v, int power) {
    for (double& e : v) e = std::ldexp(e, power);
    return v;
  };
  for (const int power : {-900, -566, -40, 566, 900}) {
    Vector x(A.n, 0.0), y(A.n, 0.0);
    const rci::Result result = rci::solve_cg(scaled(b, power), x, product(A));
    EXPECT_TRUE(result.converged());
    EXPECT_NEAR(std::ldexp(result.residual, -power), residual_norm(A, b.data(), scaled(x, -power).data()), 1e-10);
    expect_near(scaled(x, -power), solution, 1e-6);
    Csr small = A;
    small.a = scaled(A.a, power / 2);
    EXPECT_TRUE(rci::solve_fgmres(scaled(b, power / 2), y, product(small)).converged());
    expect_near(y, solution, 1e-5);
  }
  // A tolerance is of the norm and in the host's units, whatever the solver keeps.
  rci::Options absolute;
  absolute.relative_tolerance = 0.0;
  for (const int power : {0, 600}) {
    absolute.absolute_tolerance = std::ldexp(1e-3, power);
    Vector x(A.n, 0.0), y(A.n, 0.0);
    EXPECT_TRUE(rci::solve_cg(scaled(b, power), x, product(A), rci::NoPreconditioner{}, absolute).converged());
    EXPECT_TRUE(rci::solve_fgmres(scaled(b, power), y, product(A), rci::NoPreconditioner{}, absolute).converged());
    for (const Vector& each : {x, y}) {
      const double residual = residual_norm(A, b.data(), scaled(each, -power).data());
      EXPECT_LE(residual, 1.01e-3);
      EXPECT_GE(residual, 1e-6) << "that is more than was asked for";
    }
  }
  // Each of several right-hand sides has its own.
  Vector x(2 * A.n, 0.0);
  EXPECT_TRUE(rci::solve_cg_many(2, joined(scaled(b, -600), b), x, product(A), ilu0(A)).converged());
  expect_near(scaled(Vector(x.begin(), x.begin() + A.n), 600), solution, 1e-6);
  expect_near(Vector(x.begin() + A.n, x.end()), solution, 1e-6);
}

TEST(HostHeader, FgmresWithIncompleteFactors) {
  const Csr A = grid(40, 30.0);
  const Vector b(A.n, 1.0);
  rci::Options options;
  options.restart = 20;
  options.max_iterations = 5000;
  const auto run = [&](auto&& preconditioner) {
    Vector x(A.n, 0.0);
    const rci::Result result = rci::solve_fgmres(b, x, product(A), preconditioner, options);
    EXPECT_TRUE(result.converged());
    EXPECT_LE(residual_norm(A, b.data(), x.data()), 1.01e-8 * norm(b));
    EXPECT_NEAR(result.residual, residual_norm(A, b.data(), x.data()), 1e-12 * norm(b));
    return result.iterations;
  };
  const int plain = run(rci::NoPreconditioner{});
  const int on_pattern = run(ilu0(A));
  const int ilut = run(rci::IncompleteLu::with_threshold(A.n, A.a.data(), A.ia.data(), A.ja.data(), 1e-4, 10));
  EXPECT_LT(2 * on_pattern, plain);
  EXPECT_LT(2 * ilut, on_pattern);
}

TEST(HostHeader, FailuresAndExceptions) {
  const Csr A = grid(10, 0.0);
  const Vector b(A.n, 1.0);
  Vector x(A.n, 0.0), wrong(3, 0.0);
  rci::Options options;
  options.max_iterations = 3;
  const rci::Result limited = rci::solve_cg(b, x, product(A), rci::NoPreconditioner{}, options);
  EXPECT_TRUE(limited.reached_limit());
  EXPECT_EQ(limited.iterations, 3);
  EXPECT_LT(residual_norm(A, b.data(), x.data()), norm(b));
  // The first right-hand side that fails is the last one.
  Vector both(2 * A.n, 0.0);
  EXPECT_TRUE(rci::solve_cg_many(2, joined(b, b), both, product(A), rci::NoPreconditioner{}, options).reached_limit());
  EXPECT_EQ(Vector(both.begin() + A.n, both.end()), Vector(A.n, 0.0));
  // Lengths of cycles are brought into their range.
  options.max_iterations = 2000;
  std::vector<int> iterations;
  for (const int restart : {-1, 0, 1, A.n, A.n + 1}) {
    options.restart = restart;
    std::fill(x.begin(), x.end(), 0.0);
    const rci::Result result = rci::solve_fgmres(b, x, product(A), rci::NoPreconditioner{}, options);
    EXPECT_TRUE(result.converged()) << restart;
    iterations.push_back(result.iterations);
  }
  EXPECT_EQ(iterations[0], iterations[2]);
  EXPECT_EQ(iterations[1], iterations[2]);
  EXPECT_EQ(iterations[4], iterations[3]);
  EXPECT_THROW(rci::solve_cg(b, wrong, product(A)), std::invalid_argument);
  EXPECT_THROW(rci::solve_cg_many(3, b, x, product(A)), std::invalid_argument);
  const auto throwing = [](std::span<const double>, std::span<double>) { throw std::runtime_error("host"); };
  EXPECT_THROW(rci::solve_fgmres(b, x, throwing), std::runtime_error);
  EXPECT_THROW(ilu0(sparse({{0, 1}, {1, 0}})), std::runtime_error);
}

}  // namespace
}  // namespace rci_test
