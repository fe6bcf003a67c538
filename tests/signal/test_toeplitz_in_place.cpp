// The recursion as it runs when there is no memory: in the host's work arrays, with vectors in single precision.
#include "families/signal/toeplitz.hpp"
#include "tests/signal/toeplitz_systems.hpp"
#include "tests/support/test.hpp"

namespace quorin::signal_tests {
namespace {

constexpr double kUnitRoundoff = 1.0 / (1 << 24);

template <class T>
void expect_solved(const System<T>& s, double bound) {
  const auto m = static_cast<std::size_t>(s.order());
  std::vector<T> x = s.b, c1(m - 1), c2(m - 1);
  ASSERT_TRUE(signal::solve_toeplitz_in_place(s.row.data(), s.column.data(), x.data(), x.data(), c1.data(), c2.data(),
                                              s.order()));
  EXPECT_LE(relative_error(x.data(), solve_densely(s)), bound) << "order " << m;
}

// Well conditioned by a large diagonal (condition number below 3), with one rounding of each vector in each step.
TEST(ToeplitzInPlace, ErrorGrowsWithTheOrderAtMost) {
  for (const int m : {1, 2, 3, 4, 5, 16, 33, 100}) {
    const auto order = static_cast<unsigned>(m);
    const float diagonal = 2.0F * static_cast<float>(m);
    expect_solved(random_system<float>(m, diagonal, order), 2 * m * kUnitRoundoff);
    expect_solved(random_system<std::complex<float>>(m, {diagonal, 1.0F}, order), 2 * m * kUnitRoundoff);
  }
}

TEST(ToeplitzInPlace, ReportsSingularMinor) {
  const float row[] = {1, 1, 5}, column[] = {1, 2}, b[] = {1, 2, 3};
  float x[3], c1[2], c2[2];
  EXPECT_FALSE(signal::solve_toeplitz_in_place(row, column, b, x, c1, c2, 3));
}

}  // namespace
}  // namespace quorin::signal_tests
