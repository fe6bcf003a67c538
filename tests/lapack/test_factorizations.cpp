// The factorizations of our own, at orders where they recurse: the product of the factors is the matrix, and what
// cannot be factored is told as published. Errors are multiples of the unit roundoff (Higham, Accuracy and Stability of
// Numerical Algorithms, 2nd ed., theorems 9.3 and 10.3).
#include "quorin/lapack.h"
#include "tests/support/capture_output.hpp"
#include "tests/support/test.hpp"

namespace {

using Complex = std::complex<float>;
using Wide = std::complex<double>;
constexpr double kUnitRoundoff = 6e-8;

void getrf(std::int32_t m, std::int32_t n, float* a, std::int32_t lda, std::int32_t* ipiv, std::int32_t* info) {
  sgetrf(&m, &n, a, &lda, ipiv, info);
}
void getrf(std::int32_t m, std::int32_t n, Complex* a, std::int32_t lda, std::int32_t* ipiv, std::int32_t* info) {
  cgetrf(&m, &n, reinterpret_cast<quorin_complex*>(a), &lda, ipiv, info);
}
void potrf(char uplo, std::int32_t n, float* a, std::int32_t lda, std::int32_t* info) {
  spotrf(&uplo, &n, a, &lda, info);
}
void potrf(char uplo, std::int32_t n, Complex* a, std::int32_t lda, std::int32_t* info) {
  cpotrf(&uplo, &n, reinterpret_cast<quorin_complex*>(a), &lda, info);
}

template <class T>
class Factorization : public testing::Test {
 protected:
  // Column-major with rows to spare, which must keep their contents.
  struct Matrix {
    int m, n, lda;
    std::vector<T> a;
    T& operator()(int i, int j) {
      return a[static_cast<std::size_t>(j) * static_cast<std::size_t>(lda) + static_cast<std::size_t>(i)];
    }
    Wide wide(int i, int j) { return Wide((*this)(i, j)); }
  };
  static constexpr float kSpare = 77;

  Matrix random(int m, int n) {
    Matrix matrix{m, n, m + 3, std::vector<T>(static_cast<std::size_t>((m + 3) * n), T(kSpare))};
    std::uniform_real_distribution<float> uniform(-1, 1);
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < m; ++i) {
        if constexpr (std::is_same_v<T, Complex>) {
          const float re = uniform(generator_);
          matrix(i, j) = {re, uniform(generator_)};
        } else {
          matrix(i, j) = uniform(generator_);
        }
      }
    }
    return matrix;
  }

  Matrix positive(int n) {
    Matrix matrix = random(n, n);
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < j; ++i) {
        if constexpr (std::is_same_v<T, Complex>) {
          matrix(j, i) = std::conj(matrix(i, j));
        } else {
          matrix(j, i) = matrix(i, j);
        }
      }
      matrix(j, j) = static_cast<float>(n);
    }
    return matrix;
  }

  std::mt19937 generator_{7};
};

using Scalars = testing::Types<float, Complex>;
TYPED_TEST_SUITE(Factorization, Scalars);

TYPED_TEST(Factorization, LuTimesItsFactorsIsTheMatrix) {
  for (const auto& [m, n] : {std::pair{1, 1}, {1, 40}, {40, 1}, {17, 17}, {33, 90}, {90, 33}, {150, 150}}) {
    SCOPED_TRACE(testing::Message() << m << " x " << n);
    auto a = this->random(m, n), lu = a;
    std::vector<std::int32_t> ipiv(static_cast<std::size_t>(std::min(m, n)));
    std::int32_t info = -1;
    getrf(m, n, lu.a.data(), lu.lda, ipiv.data(), &info);
    ASSERT_EQ(info, 0);
    for (int i = 0; i < std::min(m, n); ++i) {
      const int pivot = ipiv[static_cast<std::size_t>(i)] - 1;
      ASSERT_TRUE(pivot >= i && pivot < m);
      for (int j = 0; j < n; ++j) std::swap(a(i, j), a(pivot, j));
    }
    double worst = 0;
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < m; ++i) {
        Wide sum = 0;
        double size = 0;
        for (int k = 0; k <= std::min({i, j, m - 1, n - 1}); ++k) {
          const Wide l = k == i ? Wide(1) : lu.wide(i, k);
          sum += l * lu.wide(k, j);
          size += std::abs(l) * std::abs(lu.wide(k, j));
          EXPECT_LE(std::abs(l), 1.4143);  // pivots are the largest by |Re| + |Im|
        }
        worst = std::max(worst, std::abs(sum - a.wide(i, j)) / size);
      }
      for (int i = m; i < lu.lda; ++i) EXPECT_EQ(lu(i, j), TypeParam(this->kSpare));
    }
    EXPECT_LE(worst, 4 * std::min(m, n) * kUnitRoundoff);
  }
}

TYPED_TEST(Factorization, CholeskyTimesItsFactorIsTheMatrix) {
  for (const char uplo : {'L', 'u'}) {
    for (const int n : {1, 24, 25, 48, 150}) {
      SCOPED_TRACE(testing::Message() << uplo << ' ' << n);
      auto a = this->positive(n), factor = a;
      std::int32_t info = -1;
      potrf(uplo, n, factor.a.data(), factor.lda, &info);
      ASSERT_EQ(info, 0);
      const auto lower = [&](int i, int k) { return uplo == 'L' ? factor.wide(i, k) : std::conj(factor.wide(k, i)); };
      double worst = 0;
      for (int j = 0; j < n; ++j) {
        for (int i = j; i < n; ++i) {
          Wide sum = 0;
          for (int k = 0; k <= j; ++k) sum += lower(i, k) * std::conj(lower(j, k));
          worst = std::max(worst, std::abs(sum - a.wide(i, j)) / n);
          // The other triangle is not touched.
          EXPECT_TRUE(i == j || (uplo == 'L' ? factor(j, i) == a(j, i) : factor(i, j) == a(i, j)));
        }
        for (int i = n; i < factor.lda; ++i) EXPECT_EQ(factor(i, j), TypeParam(this->kSpare));
      }
      EXPECT_LE(worst, 4 * n * kUnitRoundoff);
    }
  }
}

// The reciprocal of such a pivot is no float.
TYPED_TEST(Factorization, DividesBySubnormalPivots) {
  const float pivot = std::ldexp(1.0F, -140);
  TypeParam a[] = {pivot / 2, pivot, pivot / 4};
  std::int32_t ipiv = 0, info = -1;
  getrf(3, 1, a, 3, &ipiv, &info);
  EXPECT_EQ(info, 0);
  EXPECT_EQ(ipiv, 2);
  EXPECT_EQ(a[0], TypeParam(pivot));
  EXPECT_EQ(a[1], TypeParam(0.5F));
  EXPECT_EQ(a[2], TypeParam(0.25F));
}

TYPED_TEST(Factorization, TellsWhereItFails) {
  std::int32_t info = -1;
  for (const int n : {9, 100}) {
    std::vector<std::int32_t> ipiv(static_cast<std::size_t>(n));
    for (const int zero : {0, 3 * n / 8, n - 1}) {
      auto singular = this->random(n, n);
      for (const int column : {zero, std::min(zero + 1, n - 1), n - 1}) {  // the first one counts
        for (int i = 0; i < n; ++i) singular(i, column) = 0;
      }
      getrf(n, n, singular.a.data(), singular.lda, ipiv.data(), &info);
      EXPECT_EQ(info, zero + 1);
      for (const float bad : {-1.0F, 0.0F, std::numeric_limits<float>::quiet_NaN()}) {
        for (const char uplo : {'L', 'U'}) {
          auto indefinite = this->positive(n);
          indefinite(zero, zero) = bad;
          potrf(uplo, n, indefinite.a.data(), indefinite.lda, &info);
          EXPECT_EQ(info, zero + 1);
        }
      }
    }
  }
}

// Positions, the order of the checks, and every letter that is none of the two.
TYPED_TEST(Factorization, RefusesWrongArguments) {
  TypeParam a[4] = {};
  std::int32_t ipiv[2], info = 0;
  quorin::test::captured([&] {
    for (const auto& [m, n, lda, expected] :
         {std::tuple{-1, -1, 0, -1}, {2, -1, 0, -2}, {2, 2, 1, -4}, {0, 2, 0, -4}, {0, 2, 1, 0}}) {
      getrf(m, n, a, lda, ipiv, &info);
      EXPECT_EQ(info, expected);
    }
    for (int letter = 0; letter < 256; ++letter) {
      const auto uplo = static_cast<char>(letter);
      const bool is_known = std::strchr("ULul", uplo) != nullptr && uplo != 0;
      for (const auto& [n, lda, expected] : {std::tuple{-1, 0, -2}, {2, 1, -4}, {0, 0, -4}, {0, 1, 0}}) {
        potrf(uplo, n, a, lda, &info);
        EXPECT_EQ(info, is_known ? expected : -1) << letter;
      }
    }
  });
}

}  // namespace
