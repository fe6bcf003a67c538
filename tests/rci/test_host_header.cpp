// The header for C++ hosts, and the solvers on systems of a realistic size.
#include <gtest/gtest.h>

#include <stdexcept>

#include "quorin/rci.hpp"
#include "tests/rci/rci_host.hpp"

namespace rci_test {
namespace {

namespace rci = quorin::rci;

// Five-point convection-diffusion on the unit square, k x k inner points, upwind; a Poisson problem when wind is 0.
Csr grid(int k, double wind) {
  Csr A{k * k, {1}, {}, {}};
  const auto add = [&](int column, double value) {
    A.ja.push_back(column + 1);
    A.a.push_back(value);
  };
  const double w = wind / (k + 1);
  for (int i = 0; i < k; ++i) {
    for (int j = 0; j < k; ++j) {
      const int row = i * k + j;
      if (i > 0) add(row - k, -1.0 - w);
      if (j > 0) add(row - 1, -1.0 - 0.5 * w);
      add(row, 4.0 + 1.5 * w);
      if (j + 1 < k) add(row + 1, -1.0);
      if (i + 1 < k) add(row + k, -1.0);
      A.ia.push_back(static_cast<int>(A.ja.size()) + 1);
    }
  }
  return A;
}

auto product(const Csr& A) {
  return [&A](std::span<const double> in, std::span<double> out) { A.multiply(in.data(), out.data()); };
}

// One sweep of symmetric successive over-relaxation.
auto ssor(const Csr& A, double omega) {
  return [&A, omega](std::span<const double> in, std::span<double> out) {
    const auto diagonal = [&](int i) {
      int k = A.ia[i] - 1;
      while (A.ja[k] - 1 < i) ++k;
      return k;
    };
    for (int i = 0; i < A.n; ++i) {
      double sum = in[i];
      const int d = diagonal(i);
      for (int k = A.ia[i] - 1; k < d; ++k) sum -= omega * A.a[k] * out[A.ja[k] - 1];
      out[i] = sum / A.a[d];
    }
    for (int i = A.n - 1; i >= 0; --i) {
      double sum = 0.0;
      const int d = diagonal(i);
      for (int k = d + 1; k < A.ia[i + 1] - 1; ++k) sum += A.a[k] * out[A.ja[k] - 1];
      out[i] -= omega * sum / A.a[d];
    }
  };
}

TEST(HostHeader, CgOnPoisson) {
  const Csr A = grid(60, 0.0);
  const Vector b(A.n, 1.0);
  Vector x(A.n, 0.0), y(A.n, 0.0);
  const rci::Result plain = rci::solve_cg(b, x, product(A));
  EXPECT_TRUE(plain.converged());
  EXPECT_LE(residual_norm(A, b.data(), x.data()), 1.01e-8 * norm(b));
  EXPECT_NEAR(plain.residual, residual_norm(A, b.data(), x.data()), 1e-12 * norm(b));
  const rci::Result helped = rci::solve_cg(b, y, product(A), ssor(A, 1.8));
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
    const rci::Result result = preconditioned ? rci::solve_cg_many(4, b, x, product(A), ssor(A, 1.5))
                                              : rci::solve_cg_many(4, b, x, product(A));
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
  const int ilu0 = run(rci::IncompleteLu::on_pattern(A.n, A.a.data(), A.ia.data(), A.ja.data()));
  const int ilut = run(rci::IncompleteLu::with_threshold(A.n, A.a.data(), A.ia.data(), A.ja.data(), 1e-4, 10));
  EXPECT_LT(2 * ilu0, plain);
  EXPECT_LT(2 * ilut, ilu0);
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
  const int starts[] = {1, 2, 3}, columns[] = {2, 1};
  const double ones[] = {1, 1};
  EXPECT_THROW(rci::IncompleteLu::on_pattern(2, ones, starts, columns), std::runtime_error);
}

}  // namespace
}  // namespace rci_test
