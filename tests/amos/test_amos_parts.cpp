// The methods from inside: no function of the family allocates, whatever way it takes.
#include <new>

#include "families/amos/amos.hpp"
#include "families/amos/finish.hpp"
#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/moderate_argument.hpp"
#include "families/amos/power_series.hpp"
#include "families/amos/sequences.hpp"
#include "tests/support/test.hpp"

namespace {
int allocations = 0;
}

[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* p = std::malloc(size)) return p;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept { std::free(p); }
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace quorin::amos {
namespace {

TEST(Memory, NothingIsAllocated) {
  EXPECT_FALSE(std::vector<int>(1).empty());
  ASSERT_GT(allocations, 0);  // the counter sees
  std::mt19937 random(5);
  std::uniform_real_distribution<double> exponent(-3.0, 6.5), angle(-3.15, 3.15);
  std::array<std::complex<double>, 40> cy, work;
  int nz = 0, ierr = 0;
  allocations = 0;
  for (int i = 0; i < 3000; ++i) {
    const double size = std::exp(exponent(random)), nu = std::exp(exponent(random)), phi = angle(random);
    const std::complex<double> z = i % 3 == 0 ? std::complex{size, 0.0} : std::polar(size, phi);
    const int n = 1 + i % 40, kode = 1 + i % 2;
    besh(z, nu, kode, 1 + i % 2, n, cy.data(), &nz, &ierr);
    besi(z, nu, kode, n, cy.data(), &nz, &ierr);
    besj(z, nu, kode, n, cy.data(), &nz, &ierr);
    besk(z, nu, kode, n, cy.data(), &nz, &ierr);
    besy(z, nu, kode, n, cy.data(), &nz, work.data(), &ierr);
    airy(z, i % 2, kode, cy.data(), &nz, &ierr);
    biry(z, i % 2, kode, cy.data(), &ierr);
  }
  EXPECT_EQ(allocations, 0);
}

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
