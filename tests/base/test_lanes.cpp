// Lanes in all widths against plain complex arithmetic on small whole numbers, whose products and sums are exact.
// Here wide lanes are put together of narrow ones; what that means for calls does not matter to functions that are
// inlined.
#pragma GCC diagnostic ignored "-Wpsabi"
#include "base/lanes.hpp"

#include <gtest/gtest.h>

#include <complex>
#include <vector>

namespace {

using quorin::Factor, quorin::ProductSum, quorin::kElements, quorin::kIsComplex, quorin::Scalar;

template <Scalar T>
T number(int real, int imaginary) {
  if constexpr (kIsComplex<T>) {
    return T(static_cast<quorin::RealOf<T>>(real), static_cast<quorin::RealOf<T>>(imaginary));
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
    plain += quorin::product(x[i], y[i + 1]);
    conjugated += quorin::product(quorin::conjugate(x[i]), y[i + 1]);
  }
  ProductSum<T, kBytes> sum, twice;
  sum.add(quorin::load<kBytes>(x.data()), quorin::load<kBytes>(y.data() + 1));  // one of the two is not aligned
  EXPECT_EQ(sum.template value<false>(), plain);
  EXPECT_EQ(sum.template value<true>(), conjugated);
  twice.add(sum);
  twice.add(sum);
  EXPECT_EQ(twice.template value<false>(), plain + plain);

  quorin::store(z.data(), Factor<T, kBytes>(first)(quorin::load<kBytes>(x.data())));
  for (int i = 0; i < n; ++i) EXPECT_EQ(z[i], quorin::product(first, x[i])) << i;
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
