// Factors in panels, through their own entry points: residuals, inertia by eigenvalues, numbers that come and go, and
// whatever a host may pass for a handle.
#include "tests/taucs/log.hpp"
#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

constexpr double kTolerance = 2e-15;

struct FreeFactor {
  void operator()(void* L) const { taucs_supernodal_factor_free(L); }
};
using Factor = std::unique_ptr<void, FreeFactor>;

// Zero, positive and negative eigenvalues, as the library tells them. Those of a matrix whose diagonal dominates have
// the signs of the diagonal (Gershgorin).
std::vector<int> inertia(void* L) {
  std::vector<int> count(3, -7);
  EXPECT_EQ(taucs_inertia_calc(L, count.data()), TAUCS_SUCCESS);
  return count;
}

template <class T>
void expect_solved(const taucs_ccs_matrix& A, void* L, bool is_ldlt, std::mt19937& random, double tolerance) {
  const int n = A.n, ld = n + 2, nrhs = is_ldlt ? 3 : 1;
  const auto B = random_vector<T>(static_cast<std::size_t>(nrhs) * ld, random);
  std::vector<T> X = B;
  if (is_ldlt) {
    EXPECT_EQ(taucs_supernodal_solve_ldlt_many(L, nrhs, X.data(), ld, X.data(), ld), TAUCS_SUCCESS);
  } else {
    EXPECT_EQ(taucs_supernodal_solve_llt(L, X.data(), B.data()), TAUCS_SUCCESS);
  }
  for (int c = 0; c < nrhs; ++c) {
    const std::size_t place = static_cast<std::size_t>(c) * ld;
    EXPECT_LE(backward_error(A, &X[place], &B[place]), tolerance);
    for (int i = n; i < ld; ++i) EXPECT_EQ(X[place + i], B[place + i]);
  }
}

template <class T>
class Supernodal : public testing::Test {
 protected:
  static constexpr bool kComplex = !std::is_same_v<T, double>;
  Matrix random_record(int n, double density, int negative = -1, int structure = kLowerOf<T>) {
    return record<T>(random_triangle(n, density, 1.05, kComplex, random_, negative), structure);
  }
  std::mt19937 random_{31};
};
using Types = testing::Types<double, Complex>;
TYPED_TEST_SUITE(Supernodal, Types);

TYPED_TEST(Supernodal, FactorsOfEitherMethodSolve) {
  using T = TypeParam;
  for (const int n : {0, 1, 2, 3, 20, 100}) {
    for (const double density : {0.02, 0.1, 1.0}) {
      SCOPED_TRACE("n " + std::to_string(n) + ", density " + std::to_string(density));
      const Matrix A = this->random_record(n, density), Q = this->random_record(n, density, n / 2);
      for (const auto factor : {&taucs_ccs_factor_llt_ll, &taucs_ccs_factor_llt_mf}) {
        const Factor L(factor(A.get()));
        ASSERT_NE(L, nullptr);
        expect_solved<T>(*A, L.get(), false, this->random_, kTolerance);
        if (n > 1) {
          EXPECT_EQ(factor(Q.get()), nullptr) << "indefinite";
        }
      }
      const std::vector<int> expected = {0, n / 2, n - n / 2};
      for (const auto factor : {&taucs_ccs_factor_ldlt_ll, &taucs_ccs_factor_ldlt_mf}) {
        const Factor L(factor(Q.get()));
        ASSERT_NE(L, nullptr);
        expect_solved<T>(*Q, L.get(), true, this->random_, kTolerance);
        EXPECT_EQ(inertia(L.get()), expected);
      }
    }
  }
}

// Singular with exact zeros: whole rows.
TYPED_TEST(Supernodal, CountZeroPivots) {
  SparseMatrix A = random_triangle(12, 0.4, 1.1, this->kComplex, this->random_, 5);
  std::erase_if(A.entries, [](const auto& e) { return e.row == 3 || e.column == 3 || e.row == 8 || e.column == 8; });
  const Matrix Q = record<TypeParam>(A, kLowerOf<TypeParam>);
  const Factor L(taucs_ccs_factor_ldlt_ll(Q.get()));
  ASSERT_NE(L, nullptr);
  EXPECT_EQ(inertia(L.get()), (std::vector{2, 4, 6}));
}

TYPED_TEST(Supernodal, NumbersComeAndGo) {
  using T = TypeParam;
  const Matrix A = this->random_record(60, 0.1), Q = this->random_record(60, 0.1, 20);
  std::vector<T> x(60, 1);
  for (const bool is_ldlt : {false, true}) {
    SCOPED_TRACE(is_ldlt);
    const auto numeric = is_ldlt ? taucs_ccs_factor_ldlt_numeric : taucs_ccs_factor_llt_numeric;
    const auto other = is_ldlt ? taucs_ccs_factor_llt_numeric : taucs_ccs_factor_ldlt_numeric;
    const Matrix& M = is_ldlt ? Q : A;
    const Factor L(is_ldlt ? taucs_ccs_factor_ldlt_symbolic(M.get()) : taucs_ccs_factor_llt_symbolic(M.get()));
    const auto solve = [&] {
      return is_ldlt ? taucs_supernodal_solve_ldlt_many(L.get(), 1, x.data(), 60, x.data(), 60)
                     : taucs_supernodal_solve_llt(L.get(), x.data(), x.data());
    };
    ASSERT_NE(L, nullptr);
    EXPECT_EQ(solve(), TAUCS_ERROR_BADARGS);
    for (int round = 0; round < 3; ++round) {
      EXPECT_EQ(numeric(M.get(), L.get()), TAUCS_SUCCESS);
      expect_solved<T>(*M, L.get(), is_ldlt, this->random_, kTolerance);
      for (int k = 0; k < M->colptr[60]; ++k) values<T>(*M)[k] *= -1.25;
      if (!is_ldlt) {
        EXPECT_EQ(numeric(M.get(), L.get()), TAUCS_ERROR) << "not positive definite";
        EXPECT_EQ(solve(), TAUCS_ERROR_BADARGS);
        for (int k = 0; k < M->colptr[60]; ++k) values<T>(*M)[k] = -values<T>(*M)[k];
      }
    }
    EXPECT_EQ(numeric(M.get(), L.get()), TAUCS_SUCCESS);
    taucs_supernodal_factor_free_numeric(L.get());
    EXPECT_EQ(solve(), TAUCS_ERROR_BADARGS);
    EXPECT_EQ(numeric(M.get(), L.get()), TAUCS_SUCCESS);
    EXPECT_EQ(solve(), TAUCS_SUCCESS);

    EXPECT_EQ(other(M.get(), L.get()), TAUCS_ERROR_BADARGS);
    EXPECT_EQ(numeric(this->random_record(59, 0.1).get(), L.get()), TAUCS_ERROR_BADARGS);
    EXPECT_EQ(numeric(nullptr, L.get()), TAUCS_ERROR_BADARGS);
    EXPECT_EQ(numeric(this->random_record(60, 1, is_ldlt ? 20 : -1).get(), L.get()), TAUCS_ERROR) << "another pattern";
  }
}

TYPED_TEST(Supernodal, HandlesAreToldFromAnythingElse) {
  using T = TypeParam;
  const Matrix A = this->random_record(5, 1);
  void* const L = taucs_ccs_factor_llt_ll(A.get());
  void* const D = taucs_ccs_factor_ldlt_ll(A.get());
  std::vector<T> x(5, 1);
  int count[3];
  EXPECT_EQ(taucs_supernodal_solve_llt(D, x.data(), x.data()), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_supernodal_solve_ldlt_many(L, 1, x.data(), 5, x.data(), 5), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_ooc_solve_llt(L, x.data(), x.data()), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_multilu_solve_many(L, 1, x.data(), 5, x.data(), 5), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_inertia_calc(L, count), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_inertia_calc(D, nullptr), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_supernodal_solve_ldlt_many(D, -1, x.data(), 5, x.data(), 5), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_supernodal_solve_ldlt_many(D, 1, x.data(), 4, x.data(), 5), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_supernodal_solve_ldlt_many(D, 1, x.data(), 5, x.data(), 4), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_supernodal_solve_ldlt_many(D, 0, nullptr, 5, nullptr, 5), TAUCS_SUCCESS);
  EXPECT_EQ(taucs_supernodal_solve_llt(L, nullptr, x.data()), TAUCS_ERROR_BADARGS);
  for (void* const factor : {L, D}) {
    taucs_multilu_factor_free(factor);
    taucs_supernodal_factor_free(factor);
    taucs_supernodal_factor_free(factor);
    taucs_supernodal_factor_free_numeric(factor);
  }
  for (void* const none : {L, D, static_cast<void*>(nullptr), static_cast<void*>(A.get())}) {
    taucs_supernodal_factor_free(none);
    EXPECT_EQ(taucs_supernodal_solve_llt(none, x.data(), x.data()), TAUCS_ERROR_BADARGS);
    EXPECT_EQ(taucs_supernodal_solve_ldlt_many(none, 1, x.data(), 5, x.data(), 5), TAUCS_ERROR_BADARGS);
    EXPECT_EQ(taucs_ccs_factor_llt_numeric(A.get(), none), TAUCS_ERROR_BADARGS);
    EXPECT_EQ(taucs_inertia_calc(none, count), TAUCS_ERROR_BADARGS);
  }
  EXPECT_EQ(x, std::vector<T>(5, 1));
}

TEST(SupernodalComplexSymmetric, IsForLdltAlone) {
  std::mt19937 random(8);
  const Matrix A = record<Complex>(random_triangle(40, 0.2, 1.1, true, random, 15), TAUCS_SYMMETRIC | TAUCS_LOWER);
  EXPECT_EQ(taucs_ccs_factor_llt_ll(A.get()), nullptr);
  const Factor L(taucs_ccs_factor_ldlt_ll(A.get()));
  ASSERT_NE(L, nullptr);
  expect_solved<Complex>(*A, L.get(), true, random, kTolerance);
  int count[3];
  EXPECT_EQ(taucs_inertia_calc(L.get(), count), TAUCS_ERROR_BADARGS) << "no signs";
}

// A path in its order has the deepest tree that there is.
TEST(Depth, IsLimited) {
  const Matrix path = record<double>(laplacian(9, 1, 1, 1), kSymmetricLower);
  const taucs_ccs_matrix* const A = path.get();
  const std::string depth = "\t\tElimination tree depth is 9\n";
  const struct {
    const char* prefix;
    std::function<bool(int)> is_made;
  } factors[] = {
      {"", [A](int limit) { return Matrix(taucs_ccs_factor_llt_maxdepth(A, 0, 0, limit)) != nullptr; }},
      {"ldlt_", [A](int limit) { return Matrix(taucs_ccs_factor_ldlt_maxdepth(A, limit)) != nullptr; }},
      {"", [A](int limit) { return Factor(taucs_ccs_factor_llt_ll_maxdepth(A, limit)) != nullptr; }},
      {"", [A](int limit) { return Factor(taucs_ccs_factor_llt_mf_maxdepth(A, limit)) != nullptr; }},
      {"", [A](int limit) { return Factor(taucs_ccs_factor_llt_symbolic_maxdepth(A, limit)) != nullptr; }},
      {"ldlt_", [A](int limit) { return Factor(taucs_ccs_factor_ldlt_ll_maxdepth(A, limit)) != nullptr; }},
      {"ldlt_", [A](int limit) { return Factor(taucs_ccs_factor_ldlt_mf_maxdepth(A, limit)) != nullptr; }},
      {"ldlt_", [A](int limit) { return Factor(taucs_ccs_factor_ldlt_symbolic_maxdepth(A, limit)) != nullptr; }},
  };
  for (const auto& factor : factors) {
    SCOPED_TRACE(&factor - factors);
    for (const int limit : {0, 9, 10}) {
      EXPECT_EQ(logged([&] { EXPECT_TRUE(factor.is_made(limit)); }), depth);
    }
    EXPECT_EQ(logged([&] { EXPECT_FALSE(factor.is_made(8)); }), depth + "taucs_ccs_" + factor.prefix +
                                                                    "symbolic_elimination: etree depth 9, maximum "
                                                                    "allowed is 8\n");
  }
}

}  // namespace
}  // namespace taucs_test
