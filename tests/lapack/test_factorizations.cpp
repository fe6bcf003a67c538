// The factorizations of our own, at orders where they recurse, beside the published routines (of LAPACK, on the
// reference BLAS): L U, Cholesky's, and Q R as LAPACK's other routines understand it; what cannot be factored is told
// as published. Errors are multiples of the unit roundoff (Higham, Accuracy and Stability of Numerical Algorithms, 2nd
// ed., theorems 9.3, 10.3 and 19.4).
#include "quorin/lapack.h"
#include "quorin/services.h"
#include "tests/support/capture_output.hpp"
#include "tests/support/failing_host.hpp"
#include "tests/support/guarded.hpp"
#include "tests/support/standard.hpp"

using Complex = std::complex<float>;

extern "C" {
// The reference finds the same wrong arguments, and need not say so.
void xerbla_(const char*, const int*, std::size_t) {}

void sgeqrf_(const int* m, const int* n, float* a, const int* lda, float* tau, float* work, const int* lwork,
             int* info);
void cgeqrf_(const int* m, const int* n, Complex* a, const int* lda, Complex* tau, Complex* work, const int* lwork,
             int* info);
void sgetrf_(const int* m, const int* n, float* a, const int* lda, int* ipiv, int* info);
void cgetrf_(const int* m, const int* n, Complex* a, const int* lda, int* ipiv, int* info);
// Without the length of `uplo`, which nobody looks at.
void spotrf_(const char* uplo, const int* n, float* a, const int* lda, int* info);
void cpotrf_(const char* uplo, const int* n, Complex* a, const int* lda, int* info);
void sormqr_(const char* side, const char* trans, const int* m, const int* n, const int* k, const float* a,
             const int* lda, const float* tau, float* c, const int* ldc, float* work, const int* lwork, int* info,
             std::size_t, std::size_t);
void cunmqr_(const char* side, const char* trans, const int* m, const int* n, const int* k, const Complex* a,
             const int* lda, const Complex* tau, Complex* c, const int* ldc, Complex* work, const int* lwork, int* info,
             std::size_t, std::size_t);
}

namespace quorin::test {
namespace {

constexpr double kUnitRoundoff = 6e-8;

const FailingHost& host() {
  static const FailingHost loaded;
  return loaded;
}

template <class T>
class Factorization : public testing::Test {
 protected:
  static constexpr bool kComplex = std::is_same_v<T, Complex>;
  using Geqrf = std::conditional_t<kComplex, decltype(cgeqrf_), decltype(sgeqrf_)>;
  using Getrf = std::conditional_t<kComplex, decltype(cgetrf_), decltype(sgetrf_)>;
  using Potrf = std::conditional_t<kComplex, decltype(cpotrf_), decltype(spotrf_)>;
  using Wide = std::complex<double>;
  static constexpr float kSpare = 77;

  // Column-major, with spare rows that must keep their contents.
  struct Matrix {
    Matrix(int rows, int columns, int spare)
        : m(rows), n(columns), lda(std::max(1, rows + spare)), a(at(0, columns), T(kSpare)) {}
    std::size_t at(int i, int j) const {
      return static_cast<std::size_t>(j) * static_cast<std::size_t>(lda) + static_cast<std::size_t>(i);
    }
    T& operator()(int i, int j) { return a[at(i, j)]; }
    Wide wide(int i, int j) const { return Wide(a[at(i, j)]); }

    int m, n, lda;
    std::vector<T> a;
  };

  struct Factors {
    explicit Factors(const Matrix& matrix)
        : qr(matrix), k(std::min(matrix.m, matrix.n)), tau(static_cast<std::size_t>(k), T(kSpare)) {}
    Matrix qr;
    int k;
    std::vector<T> tau;
    T best = 0;
    std::int32_t info = -99;
  };

  struct Routines {
    Geqrf* geqrf;
    Getrf* getrf;
    Potrf* potrf;
  };
  static Routines ours() {
    const auto routines = [](auto* geqrf, auto* getrf, auto* potrf) -> Routines {
      return {reinterpret_cast<Geqrf*>(geqrf), reinterpret_cast<Getrf*>(getrf), reinterpret_cast<Potrf*>(potrf)};
    };
    if constexpr (kComplex) {
      return routines(host()->cgeqrf, host()->cgetrf, host()->cpotrf);
    } else {
      return routines(host()->sgeqrf, host()->sgetrf, host()->spotrf);
    }
  }
  static Routines published() {
    if constexpr (kComplex) {
      return {cgeqrf_, cgetrf_, cpotrf_};
    } else {
      return {sgeqrf_, sgetrf_, spotrf_};
    }
  }

  static Factors factor(Routines routines, const Matrix& matrix, int lwork = 0) {
    Factors f(matrix);
    lwork = std::max({1, lwork, matrix.n});
    Guarded<T> work(static_cast<std::size_t>(lwork), T{});
    Guarded<T> tau(f.tau.size(), T(kSpare));
    routines.geqrf(&f.qr.m, &f.qr.n, f.qr.a.data(), &f.qr.lda, tau.data(), work.data(), &lwork, &f.info);
    EXPECT_TRUE(work.intact() && tau.intact());
    for (std::size_t i = 0; i < f.tau.size(); ++i) f.tau[i] = tau[i];
    f.best = work[0];
    return f;
  }

  T random_number() {
    std::uniform_real_distribution<float> uniform(-1, 1);
    const float re = uniform(generator_);
    if constexpr (kComplex) {
      return {re, uniform(generator_)};
    } else {
      return re;
    }
  }

  Matrix random(int m, int n, int spare = 0) {
    Matrix matrix(m, n, spare);
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < m; ++i) matrix(i, j) = random_number();
    }
    return matrix;
  }

  Matrix positive(int n) {
    Matrix matrix = random(n, n, 2);
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < j; ++i) {
        if constexpr (kComplex) {
          matrix(j, i) = std::conj(matrix(i, j));
        } else {
          matrix(j, i) = matrix(i, j);
        }
      }
      matrix(j, j) = static_cast<float>(n);
    }
    return matrix;
  }

  // y <- Q y
  static void multiply(const Factors& f, Matrix& y) {
    std::vector<T> work(static_cast<std::size_t>(64 + 65 * 64));
    const auto lwork = static_cast<int>(work.size());
    int info = -1;
    const auto call = [&](auto* routine) {
      routine("L", "N", &y.m, &y.n, &f.k, f.qr.a.data(), &f.qr.lda, f.tau.data(), y.a.data(), &y.lda, work.data(),
              &lwork, &info, 1, 1);
    };
    if constexpr (kComplex) {
      call(cunmqr_);
    } else {
      call(sormqr_);
    }
    ASSERT_EQ(info, 0);
  }

  // Q (R x) = A x for a random x, and Q keeps lengths.
  void expect_factors(const Matrix& a, Factors& f) {
    ASSERT_EQ(f.info, 0);
    const Matrix x = random(a.n, 1);
    Matrix y(a.m, 1, 0);
    std::vector<Wide> ax(static_cast<std::size_t>(a.m));
    double before = 0, after = 0, size = 0, residual = 0;
    for (int i = 0; i < a.m; ++i) {
      Wide rx = 0;
      for (int j = 0; j < a.n; ++j) {
        ax[static_cast<std::size_t>(i)] += a.wide(i, j) * x.wide(j, 0);
        if (j >= i) rx += f.qr.wide(i, j) * x.wide(j, 0);
        size += std::norm(a.wide(i, j));
      }
      if constexpr (kComplex) {
        y(i, 0) = T(rx);
      } else {
        y(i, 0) = static_cast<T>(rx.real());
      }
      before += std::norm(y.wide(i, 0));
    }
    multiply(f, y);
    for (int i = 0; i < a.m; ++i) {
      residual += std::norm(y.wide(i, 0) - ax[static_cast<std::size_t>(i)]);
      after += std::norm(y.wide(i, 0));
    }
    const double tolerance = (10 + a.m / 10.0) * kUnitRoundoff;
    EXPECT_LE(std::sqrt(residual), tolerance * std::sqrt(size) * std::sqrt(a.n));
    EXPECT_NEAR(std::sqrt(after), std::sqrt(before), tolerance * std::sqrt(before));
    for (int j = 0; j < f.k; ++j) EXPECT_EQ(f.qr.wide(j, j).imag(), 0);
    for (int j = 0; j < a.n; ++j) {
      for (int i = a.m; i < a.lda; ++i) EXPECT_EQ(f.qr(i, j), T(kSpare));
    }
  }

  // The largest difference of R, V and tau.
  static double difference(const Factors& f, const Factors& g) {
    return std::max(difference(f.qr.a, g.qr.a), difference(f.tau, g.tau));
  }
  static double difference(const std::vector<T>& a, const std::vector<T>& b) {
    double worst = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
      const double value = std::abs(Wide(a[i]) - Wide(b[i]));
      worst = value <= worst ? worst : value;
    }
    return worst;
  }

  std::mt19937 generator_{11};
};

using Scalars = testing::Types<float, Complex>;
TYPED_TEST_SUITE(Factorization, Scalars);

// The whole arrays: what is not part of the factors stays.
TYPED_TEST(Factorization, LuIsThatOfThePublishedRoutine) {
  for (const auto& [m, n] :
       {std::pair{1, 1}, {1, 40}, {40, 1}, {2, 2}, {17, 17}, {33, 90}, {90, 33}, {150, 150}, {300, 260}}) {
    SCOPED_TRACE(testing::Message() << m << " x " << n);
    auto ours = this->random(m, n, 3);
    // Larger ones well conditioned, with the pivots all over.
    const bool is_large = m > 20;
    for (int j = 0; is_large && j < std::min(m, n); ++j)
      ours((7 * j + 3) % m, j) += 4 * std::sqrt(static_cast<float>(m));
    auto published = ours;
    std::vector<std::int32_t> ipiv(static_cast<std::size_t>(std::min(m, n)), -1), expected = ipiv;
    std::int32_t info = -1;
    this->published().getrf(&m, &n, published.a.data(), &ours.lda, expected.data(), &info);
    this->ours().getrf(&m, &n, ours.a.data(), &ours.lda, ipiv.data(), &info);
    EXPECT_EQ(info, 0);
    EXPECT_EQ(ipiv, expected);
    EXPECT_LE(this->difference(ours.a, published.a), (is_large ? 3e-5 : 1e-3) * std::sqrt(std::max(m, n)));
  }
}

TYPED_TEST(Factorization, CholeskysIsThatOfThePublishedRoutine) {
  for (const char uplo : {'L', 'u'}) {
    for (const int n : {1, 24, 25, 48, 150}) {
      SCOPED_TRACE(testing::Message() << uplo << ' ' << n);
      auto ours = this->positive(n), published = ours;
      std::int32_t info = -1;
      this->published().potrf(&uplo, &n, published.a.data(), &ours.lda, &info);
      this->ours().potrf(&uplo, &n, ours.a.data(), &ours.lda, &info);
      EXPECT_EQ(info, 0);
      EXPECT_LE(this->difference(ours.a, published.a), 3e-5 * std::sqrt(n));
    }
  }
}

// The reciprocal of such a pivot is no float.
TYPED_TEST(Factorization, LuDividesBySubnormalPivots) {
  using T = TypeParam;
  const float pivot = std::ldexp(1.0F, -140);
  T a[] = {pivot / 2, pivot, pivot / 4};
  const std::int32_t m = 3, n = 1;
  std::int32_t ipiv = 0, info = -1;
  this->ours().getrf(&m, &n, a, &m, &ipiv, &info);
  EXPECT_EQ(info, 0);
  EXPECT_EQ(ipiv, 2);
  EXPECT_TRUE(a[0] == T(pivot) && a[1] == T(0.5F) && a[2] == T(0.25F));
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
      this->ours().getrf(&n, &n, singular.a.data(), &singular.lda, ipiv.data(), &info);
      EXPECT_EQ(info, zero + 1);
      for (const float bad : {-1.0F, 0.0F, std::numeric_limits<float>::quiet_NaN()}) {
        for (const char uplo : {'L', 'U'}) {
          auto indefinite = this->positive(n);
          indefinite(zero, zero) = bad;
          this->ours().potrf(&uplo, &n, indefinite.a.data(), &indefinite.lda, &info);
          EXPECT_EQ(info, zero + 1);
        }
      }
    }
  }
}

TYPED_TEST(Factorization, QrIsThatOfThePublishedRoutine) {
  host()->sMKL_Set_Num_Threads(4);
  // One column or row, loops only, panels, blocks of one and of several panels, and blocks that end early.
  const int shapes[][2] = {{1, 1},   {1, 40},    {40, 1},    {2, 2},     {7, 5},     {16, 90},  {17, 300},  {90, 33},
                           {98, 97}, {100, 100}, {150, 113}, {113, 150}, {2000, 50}, {60, 400}, {331, 330}, {400, 321}};
  int spare = 0;
  for (const auto& [m, n] : shapes) {
    SCOPED_TRACE(testing::Message() << m << " x " << n);
    const auto a = this->random(m, n, spare++ % 4);
    auto f = this->factor(this->ours(), a), with_room = this->factor(this->ours(), a, 64 * n);
    this->expect_factors(a, f);
    EXPECT_EQ(this->difference(f, with_room), 0);
    EXPECT_LE(this->difference(f, this->factor(this->published(), a)), 3e-5 * std::sqrt(std::max(m, n)));
  }
  const auto large = this->random(1010, 1003, 1);
  auto f = this->factor(this->ours(), large);
  this->expect_factors(large, f);
}

TYPED_TEST(Factorization, QrOfWhatHasNoFullRank) {
  using T = TypeParam;
  for (const int n : {5, 120}) {
    SCOPED_TRACE(n);
    auto a = this->random(n + 3, n);
    for (int i = 0; i < a.m; ++i) {
      a(i, 0) = a(i, 2) = 0;
      a(i, n - 1) = a(i, 1);
      for (int j = 40; j < std::min(n, 60); ++j) a(i, j) = a(i, j - 20);
    }
    auto f = this->factor(this->ours(), a);
    this->expect_factors(a, f);
    EXPECT_EQ(f.tau[0], T{});

    std::fill(a.a.begin(), a.a.end(), T{});
    f = this->factor(this->ours(), a);
    EXPECT_EQ(f.info, 0);
    EXPECT_EQ(f.tau, std::vector<T>(f.tau.size()));
    EXPECT_EQ(f.qr.a, a.a);
  }
}

// Powers of two change R by that factor and the reflectors not at all, but for what is lost below the least float.
TYPED_TEST(Factorization, QrIsTheSameForTinyAndHugeMatrices) {
  for (const int n : {12, 110}) {
    const auto a = this->random(n + 10, n);
    const auto plain = this->factor(this->ours(), a);
    for (const int power : {-135, -126, -70, 60, 120}) {
      SCOPED_TRACE(testing::Message() << n << ", 2^" << power);
      auto scaled = a;
      for (auto& x : scaled.a) x *= std::ldexp(1.0F, power);
      auto f = this->factor(this->ours(), scaled);
      for (int j = 0; j < n; ++j) {
        for (int i = 0; i <= j; ++i) f.qr(i, j) *= std::ldexp(1.0F, -power / 2);
        for (int i = 0; i <= j; ++i) f.qr(i, j) *= std::ldexp(1.0F, -power + power / 2);
      }
      EXPECT_LE(this->difference(f, plain), n * (5e-6 + std::ldexp(1.0, -149 - power)));
    }
  }
}

// alpha - beta overflows here, and the reflector does not.
TYPED_TEST(Factorization, QrDividesByMoreThanTheLargestFloat) {
  auto a = this->random(2, 1);
  a(0, 0) = 2e38F;
  a(1, 0) = 1e38F;
  auto f = this->factor(this->ours(), a);
  EXPECT_NEAR(f.qr.wide(0, 0).real() / 1e38, -std::sqrt(5), 1e-6);
  EXPECT_NEAR(f.qr.wide(1, 0).real(), std::sqrt(5) - 2, 2e-8);
  EXPECT_NEAR(std::abs(f.tau[0]), 1 + 2 / std::sqrt(5), 1e-6);
}

TYPED_TEST(Factorization, QrCarriesNotANumberToTheColumnsBehind) {
  for (const auto& [n, bad] : {std::pair{9, 4}, {120, 70}}) {
    const auto a = this->random(n, n);
    const auto clean = this->factor(this->ours(), a);
    auto spoilt = a;
    spoilt(n - 1, bad) = std::numeric_limits<float>::quiet_NaN();
    auto f = this->factor(this->ours(), spoilt);
    EXPECT_EQ(f.info, 0);
    for (int j = 0; j < n; ++j) {
      const double diagonal = std::abs(f.qr.wide(j, j));
      EXPECT_EQ(std::isnan(diagonal), j >= bad && j < n) << j;
      if (j < bad) {
        EXPECT_EQ(f.tau[static_cast<std::size_t>(j)], clean.tau[static_cast<std::size_t>(j)]);
      }
    }
  }
}

TYPED_TEST(Factorization, QrAnswersCallsWithoutWorkAsPublished) {
  using T = TypeParam;
  for (const int m : {-1, 0, 1, 40}) {
    for (const int n : {-1, 0, 1, 5, 200}) {
      for (const int lda : {0, 1, 40}) {
        for (const int lwork : {-2, -1, 0, 1, 4, 200}) {
          SCOPED_TRACE(testing::Message() << m << ' ' << n << ' ' << lda << ' ' << lwork);
          std::vector<T> a(8000, T(1)), tau(200), work(200, T(this->kSpare)), expected = work;
          std::int32_t info = -99, expected_info = -99;
          this->published().geqrf(&m, &n, a.data(), &lda, tau.data(), expected.data(), &lwork, &expected_info);
          captured([&] { this->ours().geqrf(&m, &n, a.data(), &lda, tau.data(), work.data(), &lwork, &info); });
          EXPECT_EQ(info, expected_info);
          if (info != 0) {
            EXPECT_EQ(work[0], T(this->kSpare));
          } else if (lwork == -1 || std::min(m, n) == 0) {
            EXPECT_EQ(work[0], expected[0]);
          }
        }
      }
    }
  }
}

TYPED_TEST(Factorization, QrDoesWithoutBlocksWhenMemoryFails) {
  const auto free_buffers = host()->sMKL_FreeBuffers;
  const auto a = this->random(140, 130);
  for (const int failures : {1, 1000}) {
    int k = 1, refused = 0;
    for (bool failed = true; failed; ++k) {
      free_buffers();
      EXPECT_EQ(host().live_blocks(), 0);
      std::vector<typename TestFixture::Factors> result;
      failed =
          host().run_failing(k, failures, [&] { captured([&] { result.push_back(this->factor(this->ours(), a)); }); });
      if (result[0].info == -1000) {
        ++refused;
        EXPECT_EQ(result[0].qr.a, a.a);
      } else {
        this->expect_factors(a, result[0]);
      }
      ASSERT_LT(k, 100);
    }
    EXPECT_EQ(refused, 1) << "only without memory for products";
    EXPECT_GT(k, 3) << "blocks take memory";
  }
}

}  // namespace
}  // namespace quorin::test
