// Sums and lanes against plain loops over whole numbers so small that products and sums are exact, and the ends
// of the range of doubles.
//
// Wide lanes are put together of narrow ones here; what that means for calls does not matter to functions that are
// inlined.
#pragma GCC diagnostic ignored "-Wpsabi"
#include "base/lanes.hpp"
#include "base/sums.hpp"
#include "tests/support/test.hpp"

namespace {

using namespace quorin;

TEST(Sums, CoverAllLengthsAndPlaces) {
  for (std::size_t n = 0; n < 40; ++n) {
    for (const std::size_t place : {0, 1}) {
      std::vector<double> x(n + 2), y(n + 2);
      std::vector<float> floats(n);
      double product = 0.0, squares = 0.0;
      for (std::size_t i = 0; i < n + 2; ++i) {
        x[i] = static_cast<double>(i * i) - 7.0;
        y[i] = 3.0 - static_cast<double>(5 * i);
      }
      for (std::size_t i = 0; i < n; ++i) {
        product += x[i + place] * y[i + place];
        floats[i] = static_cast<float>(x[i]);
        squares += x[i] * x[i];
      }
      EXPECT_EQ(base::dot(n, x.data() + place, y.data() + place), product) << n;
      EXPECT_EQ(base::sum_of_squares(n, floats.data()), squares) << n;
      EXPECT_EQ(base::norm(n, floats.data()), static_cast<float>(std::sqrt(squares))) << n;

      std::vector<double> sums = y;
      base::add_multiple(n, 2.0, x.data() + place, sums.data() + place);
      for (std::size_t i = 0; i < sums.size(); ++i) {
        const bool is_touched = i >= place && i < n + place;
        EXPECT_EQ(sums[i], y[i] + (is_touched ? 2.0 * x[i] : 0.0)) << n << ' ' << i;
      }
    }
  }
}

TEST(Sums, NormsStayInRange) {
  const double huge = std::ldexp(1.0, 1000), tiny = std::ldexp(1.0, -1060), infinity = HUGE_VAL;
  for (const double scale : {1.0, huge, tiny, -huge}) {
    std::vector<double> x(9, 0.0);
    x[1] = 3 * scale;
    x[8] = 4 * scale;
    EXPECT_EQ(base::norm(x.size(), x.data()), 5 * std::fabs(scale));
    x[4] = -infinity;
    EXPECT_EQ(base::norm(x.size(), x.data()), infinity);
    x[0] = std::nan("");
    EXPECT_TRUE(std::isnan(base::norm(x.size(), x.data())));
  }
  EXPECT_EQ(base::norm(0, static_cast<const double*>(nullptr)), 0.0);
  // All digits at every scale, where squares are subnormal too.
  const std::vector<double> x = {1.0 / 3, 1.0 / 7, -0.1};
  for (int exponent = -1000; exponent <= 1020; ++exponent) {
    std::vector<double> scaled = x;
    for (double& entry : scaled) entry = std::ldexp(entry, exponent);
    EXPECT_NEAR(std::ldexp(base::norm(3, scaled.data()), -exponent), base::norm(3, x.data()), 2e-16) << exponent;
  }
  const std::vector<float> largest(5, std::numeric_limits<float>::max());
  EXPECT_TRUE(std::isfinite(base::sum_of_squares(5, largest.data())));
}

template <Scalar T>
T number(int real, int imaginary) {
  if constexpr (kIsComplex<T>) {
    return T(static_cast<RealOf<T>>(real), static_cast<RealOf<T>>(imaginary));
  } else {
    return static_cast<T>(real);
  }
}

template <Scalar T, int kBytes>
void multiplies_and_adds() {
  constexpr int n = kElements<T, kBytes>;
  std::vector<T> x(n), y(n + 1), z(n);
  T plain{}, conjugated{}, first = number<T>(3, -7);
  for (int i = 0; i < n; ++i) {
    x[i] = number<T>(i + 1, 2 - 3 * i);
    y[i + 1] = number<T>(5 - i * i, 4 * i + 1);
    plain += product(x[i], y[i + 1]);
    conjugated += product(conjugate(x[i]), y[i + 1]);
  }
  ProductSum<T, kBytes> sum, twice;
  sum.add(load<kBytes>(x.data()), load<kBytes>(y.data() + 1));  // one of the two is not aligned
  EXPECT_EQ(sum.template value<false>(), plain);
  EXPECT_EQ(sum.template value<true>(), conjugated);
  twice.add(sum);
  twice.add(sum);
  EXPECT_EQ(twice.template value<false>(), plain + plain);

  store(z.data(), Factor<T, kBytes>(first)(load<kBytes>(x.data())));
  for (int i = 0; i < n; ++i) EXPECT_EQ(z[i], product(first, x[i])) << i;
}

template <class T>
class Lanes : public testing::Test {};
using Scalars = testing::Types<float, double, std::complex<float>, std::complex<double>>;
TYPED_TEST_SUITE(Lanes, Scalars);

TYPED_TEST(Lanes, MultiplyAndAddInAllWidths) {
  multiplies_and_adds<TypeParam, 16>();
  multiplies_and_adds<TypeParam, 32>();
  multiplies_and_adds<TypeParam, 64>();
}

}  // namespace
