// The header for C++ hosts, and the solvers on systems of a realistic size.
#include <gtest/gtest.h>

#include <stdexcept>

#include "quorin/rci.hpp"
#include "tests/rci/ilu_oracle.hpp"
#include "tests/rci/rci_host.hpp"

namespace rci_test {
namespace {

namespace rci = quorin::rci;

Csr grid(int k, double wind) { return csr(quorin::test::convection_diffusion(k, wind)); }

auto product(const Csr& A) {
  return [&A](std::span<const double> in, std::span<double> out) { A.multiply(in.data(), out.data()); };
}

auto ilu0(const Csr& A) { return rci::IncompleteLu::on_pattern(A.n, A.a.data(), A.ia.data(), A.ja.data()); }

TEST(HostHeader, CgOnPoisson) {
  const Csr A = grid(60, 0.0);
  const Vector b(A.n, 1.0);
  Vector x(A.n, 0.0), y(A.n, 0.0);
  const rci::Result plain = rci::solve_cg(b, x, product(A));
  EXPECT_TRUE(plain.converged());
  EXPECT_LE(residual_norm(A, b.data(), x.data()), 1.01e-8 * norm(b));
  EXPECT_NEAR(plain.residual, residual_norm(A, b.data(), x.data()), 1e-12 * norm(b));
  const rci::Result helped = rci::solve_cg(b, y, product(A), ilu0(A));
  EXPECT_TRUE(helped.converged());
  EXPECT_LE(residual_norm(A, b.data(), y.data()), 1.01e-8 * norm(b));
  EXPECT_LT(2 * helped.iterations, plain.iterations);
}

TEST(HostHeader, CgForSeveralRightHandSides) {
  const Csr A = grid(25, 0.0);
  std::mt19937 random(1);
  const Vector b = random_vector(4 * A.n, random);
  for (const bool preconditioned : {false, true}) {
    Vector x(b.size(), 0.0);
    const rci::Result result =
        preconditioned ? rci::solve_cg_many(4, b, x, product(A), ilu0(A)) : rci::solve_cg_many(4, b, x, product(A));
    EXPECT_TRUE(result.converged());
    for (int k = 0; k < 4; ++k) {
      EXPECT_LE(residual_norm(A, b.data() + k * A.n, x.data() + k * A.n), 1e-6);
    }
  }
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
  EXPECT_THROW(rci::solve_cg(b, wrong, product(A)), std::invalid_argument);
  EXPECT_THROW(rci::solve_cg_many(3, b, x, product(A)), std::invalid_argument);
  const auto throwing = [](std::span<const double>, std::span<double>) { throw std::runtime_error("host"); };
  EXPECT_THROW(rci::solve_fgmres(b, x, throwing), std::runtime_error);
  EXPECT_THROW(ilu0(sparse({{0, 1}, {1, 0}})), std::runtime_error);
}

}  // namespace
}  // namespace rci_test
