// Factors as matrices: L L^H, L D L^H against A entry by entry, and what incomplete ones keep.
#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

constexpr double kRoundoff = 1.2e-16, kInfinity = std::numeric_limits<double>::infinity();

// L D L^H, with D on L's diagonal, or L L^H.
template <class T>
Dense<T> multiplied(const taucs_ccs_matrix& L, bool has_d) {
  Dense<T> factor(L.m, L.n);
  std::vector<T> d(static_cast<std::size_t>(L.n), T(1));
  for (int j = 0; j < L.n; ++j) {
    for (int k = L.colptr[j]; k < L.colptr[j + 1]; ++k) factor.at(L.rowind[k], j) = values<T>(L)[k];
    if (!has_d) continue;
    d[j] = factor.at(j, j);
    factor.at(j, j) = 1;
  }
  Dense<T> product(L.n, L.n);
  for (int i = 0; i < L.n; ++i) {
    for (int j = 0; j < L.n; ++j) {
      for (int k = 0; k <= std::min(i, j); ++k) {
        product.at(i, j) += factor.at(i, k) * d[k] * conjugate(factor.at(j, k));
      }
    }
  }
  return product;
}

template <class T>
void expect_close(const Dense<T>& actual, const Dense<T>& expected, double size) {
  for (std::size_t k = 0; k < actual.a.size(); ++k) {
    EXPECT_LE(std::abs(actual.a[k] - expected.a[k]), 4 * (expected.n + 1) * kRoundoff * size) << "entry " << k;
  }
}

void expect_lower_factor(const taucs_ccs_matrix& L, int type) {
  EXPECT_EQ(L.flags, type | TAUCS_TRIANGULAR | TAUCS_LOWER);
  EXPECT_EQ(L.m, L.n);
  for (int j = 0; j < L.n; ++j) {
    ASSERT_LT(L.colptr[j], L.colptr[j + 1]);
    EXPECT_EQ(L.rowind[L.colptr[j]], j);
    for (int k = L.colptr[j] + 1; k < L.colptr[j + 1]; ++k) EXPECT_LT(L.rowind[k - 1], L.rowind[k]);
  }
}

template <class T>
class ColumnFactors : public testing::Test {
 protected:
  static constexpr bool kComplex = !std::is_same_v<T, double>;
  std::mt19937 random_{11};
};
using Types = testing::Types<double, Complex>;
TYPED_TEST_SUITE(ColumnFactors, Types);

TYPED_TEST(ColumnFactors, MultiplyToA) {
  using T = TypeParam;
  for (const int n : {0, 1, 2, 3, 9, 40, 90}) {
    for (const double density : {0.02, 0.1, 0.6, 1.0}) {
      SCOPED_TRACE("n " + std::to_string(n) + ", density " + std::to_string(density));
      const auto random_record = [&](int negative) {
        return record<T>(random_triangle(n, density, 1.1, this->kComplex, this->random_, negative), kLowerOf<T>);
      };
      const Matrix A = random_record(-1), Q = random_record(n / 2);
      const Matrix L(taucs_ccs_factor_llt(A.get(), 0, 0)), LD(taucs_ccs_factor_ldlt(Q.get()));
      ASSERT_NE(L, nullptr);
      ASSERT_NE(LD, nullptr);
      expect_lower_factor(*L, kType<T>);
      expect_lower_factor(*LD, kType<T>);
      expect_close(multiplied<T>(*L, false), Dense<T>(*A), size_of<T>(*A));
      expect_close(multiplied<T>(*LD, true), Dense<T>(*Q), size_of<T>(*Q));
      if (n > 1) {
        EXPECT_EQ(taucs_ccs_factor_llt(Q.get(), 0, 0), nullptr) << "indefinite";
      }

      const std::vector<T> b = random_vector<T>(static_cast<std::size_t>(n), this->random_);
      std::vector<T> x(b.size()), y = b;
      EXPECT_EQ(taucs_ccs_solve_llt(L.get(), x.data(), b.data()), n > 0 ? TAUCS_SUCCESS : TAUCS_ERROR_BADARGS);
      EXPECT_LE(backward_error(*A, x.data(), b.data()), 10 * (n + 1) * kRoundoff);
      EXPECT_EQ(taucs_ccs_solve_ldlt(LD.get(), y.data(), y.data()), n > 0 ? TAUCS_SUCCESS : TAUCS_ERROR_BADARGS);
      EXPECT_LE(backward_error(*Q, y.data(), b.data()), 10 * (n + 1) * kRoundoff);
    }
  }
}

// Incomplete factors of A = L L^H - E: E is zero where L has entries, and with compensation its rows sum to zero.
TEST(IncompleteFactors, KeepWhatTheyPromise) {
  const Matrix A = record<double>(laplacian(7, 6, 1, 0.1, 1, 0.3), kSymmetricLower);
  const Dense<double> full(*A);
  for (const double droptol : {0.01, 0.1, kInfinity}) {
    for (const int modified : {0, 1}) {
      SCOPED_TRACE("droptol " + std::to_string(droptol) + ", modified " + std::to_string(modified));
      const Matrix L(taucs_ccs_factor_llt(A.get(), droptol, modified));
      ASSERT_NE(L, nullptr);
      expect_lower_factor(*L, TAUCS_DOUBLE);
      if (droptol == kInfinity) {
        EXPECT_EQ(std::vector(L->colptr, L->colptr + L->n + 1), std::vector(A->colptr, A->colptr + A->n + 1));
        EXPECT_EQ(std::vector(L->rowind, L->rowind + L->colptr[L->n]),
                  std::vector(A->rowind, A->rowind + A->colptr[A->n]));
      }
      const Dense<double> product = multiplied<double>(*L, false);
      for (int i = 0; i < A->n; ++i) {
        double row_sum = 0;
        for (int j = 0; j < A->n; ++j) row_sum += product.at(i, j) - full.at(i, j);
        if (modified) {
          EXPECT_NEAR(row_sum, 0, 1e-14) << "row " << i;
        }
      }
      for (int j = 0; j < L->n; ++j) {
        double column = 0;
        for (int k = L->colptr[j]; k < L->colptr[j + 1]; ++k) column += L->values.d[k] * L->values.d[k];
        for (int k = L->colptr[j]; k < L->colptr[j + 1]; ++k) {
          const int i = L->rowind[k];
          if (!modified || i != j) {
            EXPECT_NEAR(product.at(i, j), full.at(i, j), 1e-14) << i << ", " << j;
          }
          const bool is_fill = full.at(i, j) == 0;
          // Of the column before the drop, whose norm was no smaller.
          if (is_fill && !modified) {
            EXPECT_GE(std::fabs(L->values.d[k]), droptol * std::sqrt(column) * (1 - 1e-12));
          }
        }
      }
    }
  }
}

// A structure of 4884 unknowns; its factor is grown without knowing its size when dropping is asked for.
TEST(ColumnFactorsOfAStructure, SolveAndGrow) {
  SparseMatrix structure = quorin::test::read_triplets(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/bcsstk16");
  std::erase_if(structure.entries, [](const auto& e) { return e.row < e.column; });
  const Matrix A = record<double>(structure, kSymmetricLower);
  std::mt19937 random(5);
  const auto b = random_vector<double>(static_cast<std::size_t>(A->n), random);
  std::vector<double> x(b.size());
  for (const double droptol : {0.0, 1e-30}) {
    const Matrix L(taucs_ccs_factor_llt(A.get(), droptol, 0));
    ASSERT_NE(L, nullptr);
    EXPECT_GT(L->colptr[L->n], 2 * A->colptr[A->n]);
    EXPECT_EQ(taucs_ccs_solve_llt(L.get(), x.data(), b.data()), TAUCS_SUCCESS);
    EXPECT_LE(backward_error(*A, x.data(), b.data()), 1e-14);
  }
}

}  // namespace
}  // namespace taucs_test
