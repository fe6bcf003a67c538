// Factors in panels, through their own entry points: residuals, inertia by eigenvalues, numbers that come and go, and
// whatever a host may pass for a handle.
#include <limits>

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

// No diagonal entry is a pivot: pairs are. What lies across dominates.
TYPED_TEST(Supernodal, ZeroDiagonalsAreNoObstacle) {
  using T = TypeParam;
  for (const int pairs : {1, 2, 20, 50}) {
    SparseMatrix A = random_triangle(2 * pairs, 2.0 / pairs, 0, this->kComplex, this->random_);
    for (int i = 0; i < pairs; ++i) A.add(2 * pairs - 1 - i, i, {4.0 * pairs, this->kComplex ? 1.0 : 0});
    const Matrix Q = record<T>(A, kLowerOf<T>);
    const Factor L(taucs_ccs_factor_ldlt_ll(Q.get()));
    ASSERT_NE(L, nullptr);
    EXPECT_EQ(inertia(L.get()), (std::vector{0, pairs, pairs}));
    expect_solved<T>(*Q, L.get(), true, this->random_, kTolerance);
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

TYPED_TEST(Supernodal, RefuseOtherStructures) {
  using T = TypeParam;
  const Matrix A = this->random_record(9, 0.5);
  const auto refused = [&] {
    int count = 0;
    for (const auto factor : {&taucs_ccs_factor_llt_ll, &taucs_ccs_factor_llt_mf, &taucs_ccs_factor_llt_symbolic,
                              &taucs_ccs_factor_ldlt_ll, &taucs_ccs_factor_ldlt_mf, &taucs_ccs_factor_ldlt_symbolic}) {
      count += Factor(factor(A.get())) == nullptr ? 1 : 0;
    }
    return count;
  };
  EXPECT_EQ(refused(), 0);
  const int good = A->flags;
  for (const int flags : {kType<T> | TAUCS_LOWER, kType<T> | TAUCS_SYMMETRIC, kLowerOf<T> | TAUCS_SINGLE}) {
    A->flags = flags;
    EXPECT_EQ(refused(), 6);
  }
  A->flags = good;
  const int row = std::exchange(A->rowind[0], 9);
  EXPECT_EQ(refused(), 6) << "row outside";
  A->rowind[0] = row;
  const T value = std::exchange(values<T>(*A)[2], std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(refused(), 4) << "the analyses do not look at values";
  values<T>(*A)[2] = value;
  EXPECT_EQ(taucs_ccs_factor_llt_ll(nullptr), nullptr);
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

TEST(SupernodalDepth, IsLimited) {
  const Matrix A = record<double>(laplacian(9, 1, 1, 1), kSymmetricLower);
  const std::string depth = "\t\tElimination tree depth is 9\n";
  for (const auto factor : {&taucs_ccs_factor_llt_ll_maxdepth, &taucs_ccs_factor_llt_mf_maxdepth,
                            &taucs_ccs_factor_llt_symbolic_maxdepth}) {
    for (const int limit : {0, 9}) {
      EXPECT_EQ(logged([&] { EXPECT_NE(Factor(factor(A.get(), limit)), nullptr); }), depth);
    }
    EXPECT_EQ(logged([&] { EXPECT_EQ(factor(A.get(), 8), nullptr); }),
              depth + "taucs_ccs_symbolic_elimination: etree depth 9, maximum allowed is 8\n");
  }
  for (const auto factor : {&taucs_ccs_factor_ldlt_ll_maxdepth, &taucs_ccs_factor_ldlt_mf_maxdepth,
                            &taucs_ccs_factor_ldlt_symbolic_maxdepth}) {
    EXPECT_EQ(logged([&] { EXPECT_NE(Factor(factor(A.get(), 9)), nullptr); }), depth);
    EXPECT_EQ(logged([&] { EXPECT_EQ(factor(A.get(), 8), nullptr); }),
              depth + "taucs_ccs_ldlt_symbolic_elimination: etree depth 9, maximum allowed is 8\n");
  }
}

TEST(SupernodalStructure, HasAResidualOfRounding) {
  SparseMatrix structure = quorin::test::read_triplets(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/bcsstk16");
  std::erase_if(structure.entries, [](const auto& e) { return e.row < e.column; });
  const Matrix A = record<double>(structure, kSymmetricLower);
  std::mt19937 random(5);
  for (const auto factor : {&taucs_ccs_factor_llt_ll, &taucs_ccs_factor_llt_mf}) {
    const Factor L(factor(A.get()));
    ASSERT_NE(L, nullptr);
    expect_solved<double>(*A, L.get(), false, random, kTolerance);
  }
  const Factor D(taucs_ccs_factor_ldlt_ll(A.get()));
  ASSERT_NE(D, nullptr);
  EXPECT_EQ(inertia(D.get()), (std::vector{0, A->n, 0}));
}

}  // namespace
}  // namespace taucs_test
