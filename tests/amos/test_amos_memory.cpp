// No function of the family allocates, whatever way it takes.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <new>
#include <random>
#include <vector>

#include "families/amos/amos.hpp"

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

}  // namespace
}  // namespace quorin::amos
