// LU factors: residuals, the order of the columns, and misuse.
#include "tests/support/standard.hpp"
#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

constexpr double kTolerance = 1e-14;

struct FreeFactor {
  void operator()(void* factor) const { taucs_multilu_factor_free(factor); }
};
using Factor = std::unique_ptr<void, FreeFactor>;

std::vector<int> identity(int n) {
  std::vector<int> p(static_cast<std::size_t>(n));
  std::iota(p.begin(), p.end(), 0);
  return p;
}

template <class T>
class LuFactors : public testing::Test {
 protected:
  // Solves three systems, in arrays with longer columns and in place.
  void expect_solved(const taucs_ccs_matrix& A, const std::vector<int>& perm, double threshold) {
    const Factor factor(taucs_ccs_factor_lu(&A, perm.data(), threshold));
    ASSERT_NE(factor, nullptr);
    const int n = A.n, ld = n + 3;
    const auto b = random_vector<T>(static_cast<std::size_t>(3) * ld, random_);
    std::vector<T> x(static_cast<std::size_t>(3) * n), y = b;
    EXPECT_EQ(taucs_multilu_solve_many(factor.get(), 3, x.data(), n, b.data(), ld), TAUCS_SUCCESS);
    EXPECT_EQ(taucs_multilu_solve_many(factor.get(), 3, y.data(), ld, y.data(), ld), TAUCS_SUCCESS);
    for (int column = 0; column < 3; ++column) {
      EXPECT_LE(backward_error(A, &x[static_cast<std::size_t>(column) * n], &b[static_cast<std::size_t>(column) * ld]),
                kTolerance);
      for (int i = 0; i < ld; ++i) {
        const std::size_t place = static_cast<std::size_t>(column) * ld + i;
        EXPECT_EQ(y[place], i < n ? x[static_cast<std::size_t>(column) * n + i] : b[place]);
      }
    }
  }
  std::mt19937 random_{3};
};
using Types = testing::Types<double, Complex>;
TYPED_TEST_SUITE(LuFactors, Types);

TYPED_TEST(LuFactors, SolveWhateverIsStored) {
  using T = TypeParam;
  for (const int structure : {0, kSymmetricLower, kHermitianLower}) {
    for (const int n : {1, 2, 9, 40}) {
      SCOPED_TRACE("structure " + std::to_string(structure) + ", n " + std::to_string(n));
      // Rows in any order, and a diagonal that no pivot has to be sought for.
      Matrix A = random_matrix<T>(n, n, structure & ~TAUCS_LOWER, this->random_);
      SparseMatrix entries;
      entries.rows = entries.columns = n;
      entries.is_complex = true;
      for (int j = 0; j < n; ++j) {
        for (int k = A->colptr[j]; k < A->colptr[j + 1]; ++k) entries.add(A->rowind[k], j, values<T>(*A)[k]);
        entries.add(j, j, 50);
      }
      A = record<T>(entries, structure);
      auto perm = identity(n);
      for (const double threshold : {1.0, 0.1}) {
        this->expect_solved(*A, perm, threshold);
        std::shuffle(perm.begin(), perm.end(), this->random_);
      }
    }
  }
}

TYPED_TEST(LuFactors, AddUpWhatRepeats) {
  using T = TypeParam;
  const Matrix A(taucs_ccs_create(2, 2, 6, kType<T>));
  const int colptr[] = {0, 4, 6}, rowind[] = {1, 0, 1, 0, 0, 1};
  const double entries[] = {1, 2, 3, 4, 5, 6};
  std::copy_n(colptr, 3, A->colptr);
  std::copy_n(rowind, 6, A->rowind);
  std::copy_n(entries, 6, values<T>(*A));
  this->expect_solved(*A, {1, 0}, 1);
}

TYPED_TEST(LuFactors, RefuseSingularAndDamagedMatrices) {
  using T = TypeParam;
  const auto factored = [](const Matrix& A, const std::vector<int>& perm) {
    return Factor(taucs_ccs_factor_lu(A.get(), perm.data(), 1.0)) != nullptr;
  };
  const Matrix A = record<T>(quorin::test::convection_diffusion(3, 20), 0);
  const auto perm = identity(9);
  EXPECT_TRUE(factored(A, perm));
  auto wrong = perm;
  for (const int index : {1, -1, 9}) {
    wrong[0] = index;
    EXPECT_FALSE(factored(A, wrong));
  }
  for (const double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    const T good = std::exchange(values<T>(*A)[3], value);
    EXPECT_FALSE(factored(A, perm));
    values<T>(*A)[3] = good;
  }
  const int row = std::exchange(A->rowind[0], 9);
  EXPECT_FALSE(factored(A, perm));
  A->rowind[0] = row;
  A->flags = TAUCS_SINGLE;
  EXPECT_FALSE(factored(A, perm));
  A->flags = kType<T>;
  for (int k = A->colptr[2]; k < A->colptr[3]; ++k) values<T>(*A)[k] = 0;
  EXPECT_FALSE(factored(A, perm)) << "singular";
  EXPECT_EQ(taucs_ccs_factor_lu(A.get(), nullptr, 1.0), nullptr);
  EXPECT_EQ(taucs_ccs_factor_lu(nullptr, perm.data(), 1.0), nullptr);
  A->flags = kType<T>;
  A->m = 10;
  EXPECT_FALSE(factored(A, perm)) << "not square";
}

TEST(LuFactorHandles, AreToldFromAnythingElse) {
  const Matrix A = record<double>(quorin::test::convection_diffusion(2, 0), 0);
  const int perm[] = {0, 1, 2, 3};
  void* const factor = taucs_ccs_factor_lu(A.get(), perm, 1.0);
  double x[4] = {1, 2, 3, 4};
  EXPECT_EQ(taucs_multilu_solve_many(factor, -1, x, 4, x, 4), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_multilu_solve_many(factor, 1, x, 3, x, 4), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_multilu_solve_many(factor, 1, x, 4, x, 3), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_multilu_solve_many(factor, 1, nullptr, 4, x, 4), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(taucs_multilu_solve_many(factor, 0, nullptr, 4, nullptr, 4), TAUCS_SUCCESS);
  taucs_multilu_factor_free(factor);
  taucs_multilu_factor_free(factor);
  taucs_multilu_factor_free(nullptr);
  taucs_multilu_factor_free(A.get());
  for (void* const none : {factor, static_cast<void*>(nullptr), static_cast<void*>(A.get())}) {
    EXPECT_EQ(taucs_multilu_solve_many(none, 1, x, 4, x, 4), TAUCS_ERROR_BADARGS);
  }
  EXPECT_EQ(x[3], 4);
  const Matrix empty(taucs_ccs_create(0, 0, 0, TAUCS_DOUBLE));
  empty->colptr[0] = 0;
  const Factor nothing(taucs_ccs_factor_lu(empty.get(), perm, 1.0));
  EXPECT_NE(nothing, nullptr);
  EXPECT_EQ(taucs_multilu_solve_many(nothing.get(), 1, x, 4, x, 4), TAUCS_SUCCESS);
}

}  // namespace
}  // namespace taucs_test
