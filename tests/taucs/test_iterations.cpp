// CG and MINRES: residuals computed here, and how each way of ending is told.
#include <limits>

#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

using Method = decltype(&taucs_minres);

// Divides by the diagonal, and counts; fails, or gives what is asked for, on demand.
template <class T>
struct Jacobi {
  const taucs_ccs_matrix* A;
  int calls = 0;
  int fails_at = 0;
  double factor = 1;

  static int32_t apply(void* self, void* x, const void* b) {
    auto& jacobi = *static_cast<Jacobi*>(self);
    if (++jacobi.calls == jacobi.fails_at) return 7;
    const auto& A = *jacobi.A;
    for (int j = 0; j < A.n; ++j) {
      for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
        if (A.rowind[k] != j) continue;
        static_cast<T*>(x)[j] = jacobi.factor * static_cast<const T*>(b)[j] / std::abs(values<T>(A)[k]);
      }
    }
    return 0;
  }
};

template <class T>
class Iterations : public testing::Test {
 protected:
  static constexpr bool kComplex = !std::is_same_v<T, double>;
  Matrix random_record(int n, int negative) {
    return record<T>(random_triangle(n, 8.0 / n, 1.01, kComplex, random_, negative), kLowerOf<T>);
  }
  std::vector<T> right_hand_side(int n) { return random_vector<T>(static_cast<std::size_t>(n), random_); }
  std::mt19937 random_{21};
};
using Types = testing::Types<double, Complex>;
TYPED_TEST_SUITE(Iterations, Types);

TYPED_TEST(Iterations, ReachTheTolerance) {
  using T = TypeParam;
  for (const int n : {1, 2, 50, 400}) {
    for (const double tolerance : {1e-3, 1e-11}) {
      SCOPED_TRACE("n " + std::to_string(n) + ", tolerance " + std::to_string(tolerance));
      const Matrix A = this->random_record(n, -1), Q = this->random_record(n, n / 2);
      const auto b = this->right_hand_side(n);
      std::vector<T> x(b.size(), std::numeric_limits<double>::quiet_NaN());
      Jacobi<T> jacobi_A{A.get()}, jacobi_Q{Q.get()};
      for (const bool is_preconditioned : {false, true}) {
        const auto f = is_preconditioned ? Jacobi<T>::apply : nullptr;
        EXPECT_EQ(taucs_conjugate_gradients(A.get(), f, &jacobi_A, x.data(), b.data(), 2000, tolerance), TAUCS_SUCCESS);
        EXPECT_LE(relative_residual(*A, x, b), tolerance * 1.01);
        EXPECT_EQ(taucs_minres(A.get(), f, &jacobi_A, x.data(), b.data(), 2000, tolerance), TAUCS_SUCCESS);
        EXPECT_LE(relative_residual(*A, x, b), tolerance * 1.01);
        EXPECT_EQ(taucs_minres(Q.get(), f, &jacobi_Q, x.data(), b.data(), 2000, tolerance), TAUCS_SUCCESS);
        EXPECT_LE(relative_residual(*Q, x, b), tolerance * 1.01);
      }
      EXPECT_GT(jacobi_A.calls, 0);
    }
  }
}

// With the exact factor for M, one step is the solution. In exact arithmetic, n steps are without M.
TYPED_TEST(Iterations, NeedNoMoreStepsThanTheyMust) {
  using T = TypeParam;
  const Matrix A = this->random_record(60, -1), L(taucs_ccs_factor_llt(A.get(), 0, 0));
  const auto b = this->right_hand_side(60);
  std::vector<T> x(b.size());
  for (const Method method : {&taucs_conjugate_gradients, &taucs_minres}) {
    EXPECT_EQ(method(A.get(), taucs_ccs_solve_llt, L.get(), x.data(), b.data(), 1, 1e-12), TAUCS_SUCCESS);
    EXPECT_LE(relative_residual(*A, x, b), 1e-12);
    EXPECT_EQ(method(A.get(), nullptr, nullptr, x.data(), b.data(), 60, 1e-8), TAUCS_SUCCESS);
  }
}

TYPED_TEST(Iterations, TellHowTheyEnded) {
  using T = TypeParam;
  constexpr int n = 200;
  const Matrix A = this->random_record(n, -1), Q = this->random_record(n, n / 2);
  const auto b = this->right_hand_side(n);
  std::vector<T> x(b.size());
  Jacobi<T> negative{A.get(), 0, 0, -1};
  for (const Method method : {&taucs_conjugate_gradients, &taucs_minres}) {
    const auto run = [&](const taucs_ccs_matrix* M, int steps, double tolerance) {
      return method(M, nullptr, nullptr, x.data(), b.data(), steps, tolerance);
    };
    EXPECT_EQ(run(A.get(), 3, 1e-12), TAUCS_ITERATION_LIMIT);
    const double after_three = relative_residual(*A, x, b);
    EXPECT_LT(after_three, 1);
    EXPECT_EQ(run(A.get(), 6, 1e-12), TAUCS_ITERATION_LIMIT);
    EXPECT_LT(relative_residual(*A, x, b), after_three);
    for (const double never : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
      EXPECT_NE(run(A.get(), 400, never), TAUCS_SUCCESS);
      EXPECT_LT(relative_residual(*A, x, b), 1e-12);
    }
    EXPECT_EQ(run(A.get(), 0, 1e-12), TAUCS_ITERATION_LIMIT);
    EXPECT_EQ(run(A.get(), -5, 1e-12), TAUCS_ITERATION_LIMIT);

    EXPECT_EQ(method(A.get(), Jacobi<T>::apply, &negative, x.data(), b.data(), 100, 1e-12), TAUCS_BREAKDOWN);
    for (const int k : {1, 2, 5}) {
      Jacobi<T> failing{A.get(), 0, k};
      EXPECT_EQ(method(A.get(), Jacobi<T>::apply, &failing, x.data(), b.data(), 100, 1e-12), TAUCS_ERROR);
      EXPECT_EQ(failing.calls, k);
    }
    const Matrix zero = record<T>(laplacian(5, 1, 1, 0, 0), kLowerOf<T>);
    EXPECT_EQ(run(zero.get(), 100, 1e-12), TAUCS_BREAKDOWN);
    for (const double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
      auto bad = b;
      bad[7] = value;
      EXPECT_EQ(method(A.get(), nullptr, nullptr, x.data(), bad.data(), 100, 1e-12), TAUCS_NOT_FINITE);
      const T good = std::exchange(values<T>(*A)[9], value);
      EXPECT_EQ(run(A.get(), 100, 1e-12), TAUCS_NOT_FINITE);
      values<T>(*A)[9] = good;
    }
    const std::vector<T> none(b.size());
    EXPECT_EQ(method(A.get(), nullptr, nullptr, x.data(), none.data(), 0, 0), TAUCS_SUCCESS);
    EXPECT_EQ(norm(x), 0);
  }
  EXPECT_EQ(taucs_conjugate_gradients(Q.get(), nullptr, nullptr, x.data(), b.data(), 400, 1e-12), TAUCS_BREAKDOWN);
}

}  // namespace
}  // namespace taucs_test
