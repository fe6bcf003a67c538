// The methods from inside: what they say where they do not converge.
#include "families/amos/finish.hpp"
#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/moderate_argument.hpp"
#include "families/amos/power_series.hpp"
#include "tests/support/test.hpp"

namespace quorin::amos {
namespace {

// Status 5. No input leads to it: each method meets its termination condition everywhere in the region in which it is
// used. So the methods are taken to the borders of their regions, and beyond, where they must own up.
Status status_of(Scaled a) {
  Complex value;
  int underflows = 0;
  return finish(a, value, underflows);
}

TEST(Termination, AtTheBordersOfTheRegions) {
  constexpr double kJustBeyond = 1.0 + 1.0e-15;
  for (int step = 0; step <= 64; ++step) {
    const double angle = step == 64 ? 0.5 * 3.14159265358979323846 : step * (1.5707963267948966 / 64);
    const Complex ray{std::fmax(0.0, std::cos(angle)), std::sin(angle)};
    SCOPED_TRACE(testing::Message() << "ray " << ray);
    for (const double nu : {0.0, 1.0e-300, 1.0e-12, 1.0 / 3, 0.5, 1.0, 20.0, 84.5, 86.0}) {
      const double last_of_series = 2.0 * std::sqrt(nu + 1.0);
      EXPECT_EQ(status_of(i_power_series({nu, 0.0}, last_of_series * ray)), Status::kOk) << nu;
    }
    for (const double nu : {0.0, 6.6, 84.9}) {
      EXPECT_TRUE(is_finite(i_neighbours({nu}, kLargeArgument * ray).at)) << nu;
      const double first = std::fmax(kLargeArgument, 0.5 * nu * nu) * kJustBeyond;
      const LargeArgumentSums<Complex> sums = large_argument_sums(nu, first * ray);
      EXPECT_TRUE(is_finite(sums.i) && is_finite(sums.k)) << nu;
    }
    for (const double mu : {-0.5, -1.0 / 3, -1.0e-300, 0.0, 1.0e-12, 0.5}) {
      for (const double size : {1.0e-304, 1.0e-8, kSmallArgument, kSmallArgument * kJustBeyond, kLargeArgument}) {
        const Pair k = k_small_order(mu, size * ray);
        EXPECT_EQ(status_of(k.at), Status::kOk) << mu << ' ' << size;
        EXPECT_TRUE(is_finite(k.above.m)) << mu << ' ' << size;
      }
    }
  }
}

TEST(Termination, BeyondThemIsReported) {
  EXPECT_EQ(status_of(k_large_argument(0.0, 5.0)), Status::kNotConverged);
  EXPECT_EQ(status_of(i_large_argument({80.0, 0.0}, 25.0)), Status::kNotConverged);
  EXPECT_EQ(status_of(i_power_series({0.0, 0.0}, 1000.0)), Status::kNotConverged);
  EXPECT_FALSE(is_finite(i_neighbours({0.0}, 1.0e5).at));
}

}  // namespace
}  // namespace quorin::amos
