// TSLS1 and TSLC1 against dense elimination.
#include <cfenv>

#include "quorin/signal.h"
#include "tests/support/guarded.hpp"
#include "tests/support/test.hpp"

namespace {

using quorin::test::Guarded;
using Complex = std::complex<float>;

// Half a unit in the last place of the largest element, and a little for the oracle.
constexpr double kOneRounding = 1.01 / (1 << 24);

template <class T>
using Wide = std::conditional_t<std::is_same_v<T, float>, double, std::complex<double>>;

template <class T>
struct System {
  std::vector<T> row, column, b;
  int order() const { return static_cast<int>(row.size()); }
  Wide<T> entry(int i, int j) const { return j >= i ? Wide<T>(row[j - i]) : Wide<T>(column[i - j - 1]); }
};

template <class T>
T random_value(std::mt19937& engine) {
  const auto one = [&] { return static_cast<float>(engine()) / 2147483648.0F - 1.0F; };
  if constexpr (std::is_same_v<T, float>) {
    return one();
  } else {
    const float re = one();
    return {re, one()};
  }
}

// Elements in [-1, 1) but for the diagonal.
template <class T>
System<T> random_system(int m, T diagonal, unsigned seed) {
  std::mt19937 engine(seed);
  System<T> s;
  for (int i = 0; i < m; ++i) s.row.push_back(i == 0 ? diagonal : random_value<T>(engine));
  for (int i = 1; i < m; ++i) s.column.push_back(random_value<T>(engine));
  for (int i = 0; i < m; ++i) s.b.push_back(random_value<T>(engine));
  return s;
}

// A symmetric (or, with a phase, Hermitian) system with T(i, j) = f(j - i).
template <class T, class Function>
System<T> hermitian_system(int m, const Function& f, unsigned seed) {
  System<T> s = random_system<T>(m, T(1), seed);
  for (int i = 0; i < m; ++i) s.row[i] = static_cast<T>(Wide<T>(f(i)));
  for (int i = 1; i < m; ++i) {
    s.column[i - 1] = s.row[i];
    if constexpr (!std::is_same_v<T, float>) s.column[i - 1] = std::conj(s.row[i]);
  }
  return s;
}

// Gaussian elimination with partial pivoting, in the widest precision.
template <class T>
std::vector<Wide<T>> solve_densely(const System<T>& s) {
  using W = std::conditional_t<std::is_same_v<T, float>, long double, std::complex<long double>>;
  const int m = s.order();
  std::vector<std::vector<W>> a(m, std::vector<W>(m + 1));
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < m; ++j) a[i][j] = W(s.entry(i, j));
    a[i][m] = W(s.b[i]);
  }
  for (int k = 0; k < m; ++k) {
    for (int i = k + 1; i < m; ++i) {
      if (std::abs(a[i][k]) > std::abs(a[k][k])) std::swap(a[i], a[k]);
    }
    for (int i = k + 1; i < m; ++i) {
      const W factor = a[i][k] / a[k][k];
      for (int j = k; j <= m; ++j) a[i][j] -= factor * a[k][j];
    }
  }
  std::vector<Wide<T>> x(m);
  for (int k = m; k-- > 0;) {
    for (int j = k + 1; j < m; ++j) a[k][m] -= a[k][j] * W(x[j]);
    x[k] = Wide<T>(a[k][m] / a[k][k]);
  }
  return x;
}

// The largest error of an element, relative to the largest element.
template <class T>
double relative_error(const T* x, const std::vector<Wide<T>>& exact) {
  double error = 0.0, size = 0.0;
  for (std::size_t i = 0; i < exact.size(); ++i) {
    const double difference = std::abs(Wide<T>(x[i]) - exact[i]);
    if (std::isnan(difference)) return difference;
    error = std::max(error, difference);
    size = std::max(size, std::abs(exact[i]));
  }
  return error / size;
}

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

// Plain, in place and through the index form: the same numbers, and nothing beside them is touched.
template <class T>
std::vector<T> solve(const System<T>& s) {
  const int m = s.order();
  std::vector<T> column = s.column;
  column.reserve(static_cast<std::size_t>(m));  // an address, even of no elements
  const auto length = static_cast<std::size_t>(m);
  Guarded<T> x(length, T{}), in_place(length, T{}), indexed(length, T{}), c1(length - 1, T{}), c2(length - 1, T{});
  call(s.row.data(), column.data(), s.b.data(), x.data(), c1.data(), c2.data(), m);
  std::copy(s.b.begin(), s.b.end(), in_place.data());
  call(s.row.data(), column.data(), in_place.data(), in_place.data(), c1.data(), c2.data(), m);
  call_indexed(s.row.data(), column.data(), s.b.data(), indexed.data(), c1.data(), c2.data(), m);
  EXPECT_TRUE(x.intact() && in_place.intact() && indexed.intact() && c1.intact() && c2.intact()) << "order " << m;
  std::vector<T> result(x.data(), x.data() + m);
  const std::size_t bytes = result.size() * sizeof(T);
  EXPECT_EQ(std::memcmp(result.data(), in_place.data(), bytes), 0) << "order " << m;
  EXPECT_EQ(std::memcmp(result.data(), indexed.data(), bytes), 0) << "order " << m;
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
  for (const double r : {0.5, 0.99, 0.999, 0.9999}) {
    expect_one_rounding(hermitian_system<T>(
        100, [&](int k) { return std::pow(r, k); }, 1));
  }
  for (const double width : {0.8, 1.0, 1.4, 1.8}) {
    expect_one_rounding(hermitian_system<T>(
        40, [&](int k) { return std::exp(-k * k / (2 * width * width)); }, 2));
  }
  // Two sinusoids in a little noise.
  const auto tones = [](int k) { return (k == 0 ? 1e-4 : 0.0) + std::cos(0.3 * k) + 0.5 * std::cos(1.1 * k); };
  expect_one_rounding(hermitian_system<T>(60, tones, 3));
  // Singular but for the last bit of a float.
  expect_one_rounding(System<T>{{T(1), T(1 - 0x1p-24F)}, {T(1)}, {T(1), T(0)}});
}

TEST(ToeplitzComplex, HermitianSystem) {
  for (const double r : {0.99, 0.999}) {
    expect_one_rounding(hermitian_system<Complex>(
        80, [=](int k) { return std::polar(std::pow(r, k), 0.7 * k); }, 4));
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
  Guarded<T> x(0, T{});
  for (const int m : {0, -1}) {
    call(static_cast<T*>(nullptr), static_cast<T*>(nullptr), static_cast<T*>(nullptr), x.data(),
         static_cast<T*>(nullptr), static_cast<T*>(nullptr), m);
  }
  EXPECT_TRUE(x.intact());
}

}  // namespace
