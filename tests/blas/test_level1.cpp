// Level 1 where the table of all routines does not look: special values, ties, extreme scales, the sparse routines.
#include "quorin/blas.h"
#include "tests/blas/reference.hpp"
#include "tests/support/test.hpp"

namespace {

constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
// The library may add in another order than the reference, and in double precision.
constexpr float kUnitRoundoff = 6e-8F;

std::mt19937 generator(20261121);

std::vector<float> random_vector(std::size_t n) {
  std::uniform_real_distribution<float> uniform(-1, 1);
  std::vector<float> x(n);
  for (float& value : x) value = uniform(generator);
  return x;
}

quorin_complex* c(std::vector<float>& x) { return reinterpret_cast<quorin_complex*>(x.data()); }
Complex* z(std::vector<float>& x) { return reinterpret_cast<Complex*>(x.data()); }

// Equal as numbers, with every NaN equal to every other.
void expect_same(const std::vector<float>& a, const std::vector<float>& b, float tolerance) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::isnan(a[i]) || std::isnan(b[i])) {
      EXPECT_EQ(std::isnan(a[i]), std::isnan(b[i])) << i;
    } else if (std::isinf(a[i]) || std::isinf(b[i])) {
      EXPECT_EQ(a[i], b[i]) << i;
    } else {
      EXPECT_NEAR(a[i], b[i], tolerance) << i;
    }
  }
}

TEST(Level1, ScalingKeepsNaNAndInfinity) {
  for (const std::int32_t n : {1, 2, 5, 16, 33}) {
    for (const std::int32_t inc : {1, 2}) {
      for (const float a : {0.0F, 1.0F, -2.0F, kNaN}) {
        auto x = random_vector(160);
        x[0] = kNaN;
        x[4] = kInf;
        auto x1 = x, x2 = x;
        sscal(&n, &a, x1.data(), &inc);
        sscal_(&n, &a, x2.data(), &inc);
        expect_same(x1, x2, 2 * kUnitRoundoff);
        x1 = x2 = x;
        csscal(&n, &a, c(x1), &inc);
        csscal_(&n, &a, z(x2), &inc);
        expect_same(x1, x2, 2 * kUnitRoundoff);
        x1 = x2 = x;
        const quorin_complex factor{a, 0};
        const Complex factor2(a, 0);
        cscal(&n, &factor, c(x1), &inc);
        cscal_(&n, &factor2, z(x2), &inc);
        expect_same(x1, x2, 2 * kUnitRoundoff);
      }
    }
  }
}

TEST(Level1, ExtremesTakeTheFirstOfEqualsAndThePublishedNorm) {
  const std::int32_t none = 0, one = 1, two = 2, four = 4, n = 7, count = 400;
  const float x[] = {1, -3, 3, 0, -0.0F, kNaN, 3};
  EXPECT_EQ(isamax(&n, x, &one), 2);
  EXPECT_EQ(isamin(&n, x, &one), 4);
  EXPECT_EQ(isamin(&none, x, &one), 0);
  EXPECT_EQ(isamin(&n, x, &none), 0);
  // NaN within and in front of a vector that is looked at block by block.
  std::vector<float> length(count, 2);
  length[140] = kNaN;
  length[261] = -3;
  length[266] = 1;
  EXPECT_EQ(isamax(&count, length.data(), &one), 262);
  EXPECT_EQ(isamin(&count, length.data(), &one), 267);
  length[0] = kNaN;
  EXPECT_EQ(isamax(&count, length.data(), &one), 1);
  const quorin_complex pairs[] = {{3, 4}, {-5, 2.5F}, {0, 7.5F}, {0, 0}};
  EXPECT_EQ(icamax(&four, pairs, &one), 2);  // |Re| + |Im|: 7, 7.5, 7.5
  EXPECT_EQ(icamin(&four, pairs, &one), 4);
  EXPECT_EQ(icamax(&two, pairs, &two), 2);
  EXPECT_EQ(icamin(&two, pairs, &two), 1);
}

TEST(Level1, NormsNeitherOverflowNorUnderflow) {
  const std::int32_t n = 4, one = 1;
  for (const float scale : {1e-40F, 1e-30F, 1.0F, 1e30F, 1e38F}) {
    const std::vector<float> x{scale, -scale, scale, scale};
    const double exact = 2 * static_cast<double>(scale);
    EXPECT_NEAR(static_cast<double>(snrm2(&n, x.data(), &one)) / exact, 1, 1e-5) << scale;
    const std::int32_t two = 2;
    EXPECT_NEAR(static_cast<double>(scnrm2(&two, reinterpret_cast<const quorin_complex*>(x.data()), &one)) / exact, 1,
                1e-5);
  }
}

// |c|^2 + |s|^2 = 1, the rotation takes (a, b) to (r, 0), and r has the reference's sign.
TEST(Level1, RotationsAtEveryScale) {
  std::uniform_int_distribution<int> exponent(-140, 120);
  std::uniform_real_distribution<float> mantissa(-1, 1);
  for (int i = 0; i < 2000; ++i) {
    const auto draw = [&] { return std::ldexp(mantissa(generator), exponent(generator)); };
    float a = draw(), b = draw(), cosine = 0, sine = 0;
    const float a0 = a, b0 = b;
    srotg_Idx(&a, &b, &cosine, &sine);
    float ra = a0, rb = b0, rc = 0, rs = 0;
    srotg_(&ra, &rb, &rc, &rs);
    // The reference divides by the rounded r, which has few digits when it is subnormal.
    const double r1 =
        std::copysign(std::hypot(static_cast<double>(a0), static_cast<double>(b0)), static_cast<double>(ra));
    EXPECT_NEAR(static_cast<double>(a), r1, 1e-7 * std::fabs(r1) + 1e-45);
    EXPECT_NEAR(static_cast<double>(cosine), static_cast<double>(a0) / r1, 1e-7);
    EXPECT_NEAR(static_cast<double>(sine), static_cast<double>(b0) / r1, 1e-7);

    quorin_complex f{draw(), draw()}, s{};
    const quorin_complex g{draw(), draw()};
    const std::complex<double> f0(f.re, f.im), g0(g.re, g.im);
    crotg(&f, &g, &cosine, &s);
    const std::complex<double> r(f.re, f.im), sc(s.re, s.im);
    const double size = std::hypot(std::abs(f0), std::abs(g0));
    EXPECT_NEAR(static_cast<double>(cosine) * static_cast<double>(cosine) + std::norm(sc), 1, 1e-6);
    EXPECT_LE(std::abs(static_cast<double>(cosine) * f0 + sc * g0 - r), 1e-6 * size);
    EXPECT_LE(std::abs(-std::conj(sc) * f0 + static_cast<double>(cosine) * g0), 1e-6 * size + 1e-44);
  }
}

TEST(SparseLevel1, FollowsTheDefinition) {
  const std::int32_t nz = 4, none = 0, indx[] = {7, 1, 10, 1};
  const std::vector<float> x = random_vector(8), y = random_vector(20);
  const float a = 0.5F;
  const auto element = [](const std::vector<float>& v, std::size_t i) { return Complex(v[2 * i], v[2 * i + 1]); };
  auto expected = y, found = y;
  float real = 0;
  Complex plain, conjugated;
  for (std::size_t k = 0; k < 4; ++k) {
    const auto position = static_cast<std::size_t>(indx[k]) - 1;
    expected[position] += a * x[k];
    real += x[k] * y[position];
    plain += element(x, k) * element(y, position);
    conjugated += std::conj(element(x, k)) * element(y, position);
  }
  saxpyi(&nz, &a, x.data(), indx, found.data());
  saxpyi(&none, &a, x.data(), indx, found.data());
  expect_same(found, expected, 2 * kUnitRoundoff);
  EXPECT_NEAR(sdoti(&nz, x.data(), indx, y.data()), real, 8 * kUnitRoundoff);
  const auto* const cx = reinterpret_cast<const quorin_complex*>(x.data());
  const auto* const cy = reinterpret_cast<const quorin_complex*>(y.data());
  quorin_complex result{};
  cdotui(&result, &nz, cx, indx, cy);
  EXPECT_NEAR(std::abs(Complex(result.re, result.im) - plain), 0, 16 * kUnitRoundoff);
  cdotci(&result, &nz, cx, indx, cy);
  EXPECT_NEAR(std::abs(Complex(result.re, result.im) - conjugated), 0, 16 * kUnitRoundoff);
  cdotci(&result, &none, cx, indx, cy);
  EXPECT_EQ(result.re, 0);

  std::vector<quorin_complex> gathered(4), scattered(10, {-1, -1});
  cgthr(&nz, cy, gathered.data(), indx);
  csctr(&nz, gathered.data(), indx, scattered.data());
  for (std::size_t i = 0; i < 10; ++i) {
    const bool listed = i == 0 || i == 6 || i == 9;
    EXPECT_EQ(scattered[i].re, listed ? cy[i].re : -1) << i;
    EXPECT_EQ(scattered[i].im, listed ? cy[i].im : -1) << i;
  }
}

}  // namespace
