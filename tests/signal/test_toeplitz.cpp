// TSLS1 and TSLC1 against dense elimination in double precision, and against LAPACK.
#include <gtest/gtest.h>

#include <cfenv>
#include <cstring>
#include <limits>
#include <numbers>
#include <string>

#include "quorin/signal.h"
#include "tests/signal/toeplitz_systems.hpp"

extern "C" {
// LAPACK's report of a wrong argument.
void xerbla_(const char* routine, const int* position, std::size_t length) {
  ADD_FAILURE() << std::string(routine, length) << ", argument " << *position;
}
void sgesv_(const int* n, const int* nrhs, float* a, const int* lda, int* ipiv, float* b, const int* ldb, int* info);
void cgesv_(const int* n, const int* nrhs, std::complex<float>* a, const int* lda, int* ipiv, std::complex<float>* b,
            const int* ldb, int* info);
void sgerfs_(const char* trans, const int* n, const int* nrhs, const float* a, const int* lda, const float* af,
             const int* ldaf, const int* ipiv, const float* b, const int* ldb, float* x, const int* ldx, float* ferr,
             float* berr, float* work, int* iwork, int* info, std::size_t trans_length);
void cgerfs_(const char* trans, const int* n, const int* nrhs, const std::complex<float>* a, const int* lda,
             const std::complex<float>* af, const int* ldaf, const int* ipiv, const std::complex<float>* b,
             const int* ldb, std::complex<float>* x, const int* ldx, float* ferr, float* berr,
             std::complex<float>* work, float* rwork, int* info, std::size_t trans_length);
}

namespace {

using namespace quorin::signal_tests;
using Complex = std::complex<float>;

// Half a unit in the last place of the largest element, and a little for the oracle.
constexpr double kOneRounding = 1.01 / (1 << 24);
constexpr float kGuard = 12345.0F;
constexpr int kMargin = 3;

const quorin_complex* c(const Complex* p) { return reinterpret_cast<const quorin_complex*>(p); }
quorin_complex* c(Complex* p) { return reinterpret_cast<quorin_complex*>(p); }

void call(const float* a1, const float* a2, const float* b, float* x, float* c1, float* c2, int m) {
  TSLS1(a1, a2, b, x, c1, c2, &m);
}
void call(const Complex* a1, const Complex* a2, const Complex* b, Complex* x, Complex* c1, Complex* c2, int m) {
  TSLC1(c(a1), c(a2), c(b), c(x), c(c1), c(c2), &m);
}
void call_indexed(const float* a1, const float* a2, const float* b, float* x, float* c1, float* c2, int m) {
  TSLS1_Idx(a1 - 1, 1, a2 - 2, 2, b + 3, -3, x - 4, 4, c1 - 5, 5, c2 - 6, 6, &m);
}
void call_indexed(const Complex* a1, const Complex* a2, const Complex* b, Complex* x, Complex* c1, Complex* c2, int m) {
  TSLC1_Idx(c(a1) - 1, 1, c(a2) - 2, 2, c(b) + 3, -3, c(x) - 4, 4, c(c1) - 5, 5, c(c2) - 6, 6, &m);
}

// An output array between guard words.
template <class T>
class Guarded {
 public:
  explicit Guarded(int n) : data_(static_cast<std::size_t>(n) + 2 * kMargin, T(kGuard)) {}
  T* get() { return data_.data() + kMargin; }
  bool intact() const {
    const auto is_guard = [](T v) { return v == T(kGuard); };
    return std::all_of(data_.begin(), data_.begin() + kMargin, is_guard) &&
           std::all_of(data_.end() - kMargin, data_.end(), is_guard);
  }

 private:
  std::vector<T> data_;
};

// Plain, in place and through the index form: the same numbers, and nothing beside them is touched.
template <class T>
std::vector<T> solve(const System<T>& s) {
  const int m = s.order();
  std::vector<T> column = s.column;
  column.reserve(static_cast<std::size_t>(m));  // an address, even of no elements
  Guarded<T> x(m), in_place(m), indexed(m), c1(m - 1), c2(m - 1);
  call(s.row.data(), column.data(), s.b.data(), x.get(), c1.get(), c2.get(), m);
  std::copy(s.b.begin(), s.b.end(), in_place.get());
  call(s.row.data(), column.data(), in_place.get(), in_place.get(), c1.get(), c2.get(), m);
  call_indexed(s.row.data(), column.data(), s.b.data(), indexed.get(), c1.get(), c2.get(), m);
  EXPECT_TRUE(x.intact() && in_place.intact() && indexed.intact() && c1.intact() && c2.intact()) << "order " << m;
  std::vector<T> result(x.get(), x.get() + m);
  const std::size_t bytes = result.size() * sizeof(T);
  EXPECT_EQ(std::memcmp(result.data(), in_place.get(), bytes), 0) << "order " << m;
  EXPECT_EQ(std::memcmp(result.data(), indexed.get(), bytes), 0) << "order " << m;
  return result;
}

template <class T>
void expect_one_rounding(const System<T>& s) {
  EXPECT_LE(relative_error(solve(s).data(), solve_densely(s)), kOneRounding) << "order " << s.order();
}

template <class T>
class Toeplitz : public testing::Test {};
using Elements = testing::Types<float, Complex>;
TYPED_TEST_SUITE(Toeplitz, Elements);

TYPED_TEST(Toeplitz, UnsymmetricSystemsOfEveryOrder) {
  using T = TypeParam;
  for (int m = 1; m <= 20; ++m) expect_one_rounding(random_system<T>(m, T(3), static_cast<unsigned>(m)));
  for (const int m : {64, 101, 200}) expect_one_rounding(random_system<T>(m, T(30), static_cast<unsigned>(m)));
  // Indefinite, as they come: the error is what the recursion makes of 2^-53.
  for (unsigned seed = 1; seed <= 20; ++seed) expect_one_rounding(random_system<T>(30, T(0.7F), seed));
}

// Condition numbers from 1e4 to 1e8: in single precision nothing of the last ones would be left.
TYPED_TEST(Toeplitz, IllConditionedSystemsLoseNothing) {
  using T = TypeParam;
  for (const double r : {0.99, 0.999, 0.9999}) {
    expect_one_rounding(hermitian_system<T>(
        100, [&](int k) { return std::pow(r, k); }, 1));
  }
  for (const double width : {1.0, 1.4, 1.8}) {
    expect_one_rounding(hermitian_system<T>(
        40, [&](int k) { return std::exp(-k * k / (2 * width * width)); }, 2));
  }
  // Two sinusoids in a little noise.
  const auto tones = [](int k) { return (k == 0 ? 1e-4 : 0.0) + std::cos(0.3 * k) + 0.5 * std::cos(1.1 * k); };
  expect_one_rounding(hermitian_system<T>(60, tones, 3));
}

TEST(ToeplitzComplex, HermitianSystem) {
  const auto f = [](int k) { return std::polar(std::pow(0.999, k), 0.7 * k); };
  expect_one_rounding(hermitian_system<Complex>(80, f, 4));
}

// Solves with LAPACK and returns its own bound of the solution's relative error.
template <class T>
double solve_with_lapack(const System<T>& s, std::vector<T>& x) {
  const int m = s.order(), one = 1;
  const std::size_t order = s.row.size();
  std::vector<T> a(order * order), factors, work(3 * order);
  for (int j = 0; j < m; ++j) {
    for (int i = 0; i < m; ++i) a[i + j * order] = static_cast<T>(s.entry(i, j));
  }
  factors = a;
  x = s.b;
  std::vector<int> pivots(order), integers(order);
  std::vector<float> reals(order);
  int info = -1;
  float forward = 0, backward = 0;
  if constexpr (std::is_same_v<T, float>) {
    sgesv_(&m, &one, factors.data(), &m, pivots.data(), x.data(), &m, &info);
    sgerfs_("N", &m, &one, a.data(), &m, factors.data(), &m, pivots.data(), s.b.data(), &m, x.data(), &m, &forward,
            &backward, work.data(), integers.data(), &info, 1);
  } else {
    cgesv_(&m, &one, factors.data(), &m, pivots.data(), x.data(), &m, &info);
    cgerfs_("N", &m, &one, a.data(), &m, factors.data(), &m, pivots.data(), s.b.data(), &m, x.data(), &m, &forward,
            &backward, work.data(), reals.data(), &info, 1);
  }
  EXPECT_EQ(info, 0);
  return static_cast<double>(forward);
}

TYPED_TEST(Toeplitz, AgreesWithLapackWithinItsErrorBound) {
  using T = TypeParam;
  std::vector<System<T>> systems;
  for (const int m : {1, 2, 7, 50, 150}) systems.push_back(random_system<T>(m, T(4), static_cast<unsigned>(m)));
  for (const double r : {0.9, 0.99}) {
    systems.push_back(hermitian_system<T>(
        100, [&](int k) { return std::pow(r, k); }, 5));
  }
  for (const System<T>& s : systems) {
    std::vector<T> lapack;
    const double bound = solve_with_lapack(s, lapack);
    const std::vector<T> x = solve(s);
    EXPECT_LE(relative_error(lapack.data(), std::vector<Wide<T>>(x.begin(), x.end())), bound + kOneRounding);
    EXPECT_LT(bound, 0.1) << "the bound says nothing, order " << s.order();
  }
}

// The recursion's own bound, which its reflection coefficients k give in closed form for a positive definite matrix:
// G. Cybenko (SIAM J. Sci. Stat. Comput. 1 (1980) 303-319) shows that its residual is as small as that of Cholesky's
// method, and that the norm of the inverse is at most (1/e) prod (1 + |k|) / (1 - |k|), e = t(0). So the error is at
// most m u ||T|| / e times this product, u being 2^-53 here, and one rounding of each element.
template <class T>
double recursion_bound(const System<T>& s) {
  const int m = s.order();
  std::vector<Wide<T>> a, next;  // Durbin: predictor of order j
  double product = 1.0, power = std::abs(s.entry(0, 0)), norm = power;
  for (int j = 0; j + 1 < m; ++j) {
    Wide<T> miss = s.entry(j + 1, 0);
    for (int i = 0; i < j; ++i) miss += a[i] * s.entry(j - i, 0);
    const Wide<T> k = -miss / power;
    next = a;
    for (int i = 0; i < j; ++i) {
      if constexpr (std::is_same_v<T, float>) {
        next[i] += k * a[j - 1 - i];
      } else {
        next[i] += k * std::conj(a[j - 1 - i]);
      }
    }
    next.push_back(k);
    a = next;
    power *= 1.0 - std::norm(k);
    product *= (1.0 + std::abs(k)) / (1.0 - std::abs(k));
    norm += 2 * std::abs(s.entry(j + 1, 0));
    EXPECT_LT(std::abs(k), 1.0) << "not positive definite";
  }
  return m * 0x1p-53 * norm / std::abs(s.entry(0, 0)) * product;
}

TYPED_TEST(Toeplitz, StaysWithinTheBoundOfItsReflectionCoefficients) {
  using T = TypeParam;
  std::vector<System<T>> systems;
  const auto add = [&](int m, const auto& f) { systems.push_back(hermitian_system<T>(m, f, 6)); };
  for (const double r : {0.5, 0.99, 0.9999}) add(100, [=](int k) { return std::pow(r, k); });
  for (const double width : {0.8, 1.4, 1.8}) add(30, [=](int k) { return std::exp(-k * k / (2 * width * width)); });
  add(60, [](int k) { return (k == 0 ? 1e-2 : 0.0) + std::cos(0.3 * k); });
  if constexpr (!std::is_same_v<T, float>) add(80, [](int k) { return std::polar(std::pow(0.99, k), 0.7 * k); });
  for (const System<T>& s : systems) {
    const std::vector<Wide<T>> exact = solve_densely(s);
    const std::vector<T> x = solve(s);
    double error = 0.0, size = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
      error += std::abs(Wide<T>(x[i]) - exact[i]);
      size += std::abs(exact[i]);
    }
    const double bound = recursion_bound(s);
    EXPECT_LE(error, (bound + kOneRounding) * size) << "order " << s.order();
    EXPECT_LT(bound, 0.1) << "the bound says nothing, order " << s.order();
  }
}

TYPED_TEST(Toeplitz, SingularLeadingMinorGivesNaNWithoutDividingByZero) {
  using T = TypeParam;
  const auto minor = [](std::vector<T> row, std::vector<T> column) {
    System<T> s{std::move(row), std::move(column), {}};
    s.b.assign(s.row.size(), T(1));
    return s;
  };
  const System<T> systems[] = {
      minor({T(0)}, {}),
      minor({T(0), T(1)}, {T(1)}),
      minor({T(1), T(1), T(2)}, {T(1), T(3)}),
      minor({T(2), T(4), T(1), T(7)}, {T(1), T(5), T(3)}),
      // 2401/49 * 1/49 is not 1 as rounded: order 2 is singular to working precision.
      minor({T(49), T(2401), T(1)}, {T(1), T(2)}),
      // Rank 2 in tenths, which are not exact: order 3 is singular to working precision.
      minor({T(0.5F), T(-0.5F), T(-0.5F), T(0.1F)}, {T(-0.5F), T(-0.5F), T(0.3F)}),
  };
  for (const System<T>& s : systems) {
    std::feclearexcept(FE_ALL_EXCEPT);
    const std::vector<T> x = solve(System<T>{s.row, s.column, s.b});
    EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID), 0);
    for (const T v : x) EXPECT_TRUE(std::isnan(std::abs(v)));
  }
}

TYPED_TEST(Toeplitz, OrderZeroTouchesNothing) {
  using T = TypeParam;
  Guarded<T> x(0);
  for (const int m : {0, -1}) {
    call(static_cast<T*>(nullptr), static_cast<T*>(nullptr), static_cast<T*>(nullptr), x.get(),
         static_cast<T*>(nullptr), static_cast<T*>(nullptr), m);
  }
  EXPECT_TRUE(x.intact());
}

}  // namespace
