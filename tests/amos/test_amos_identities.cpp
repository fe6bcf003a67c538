// Relations between functions that come from different methods: Wronskians, connection formulas, symmetry, recurrences.
// Bound: a small multiple of 10 u 10^S, u = 2.22e-16, against the largest term of the relation.
#include "calls.hpp"
#include "tests/support/test.hpp"

namespace quorin_test {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr Complex kImaginary{0.0, 1.0};

double bound(double nu, Complex z) {
  const double s = std::max({1.0, std::fabs(std::log10(std::abs(z))), std::fabs(std::log10(nu + 1.0))});
  return 4.0 * 10.0 * 2.22e-16 * std::pow(10.0, s);
}

struct Point {
  double nu;
  Complex z;
};

class Identities : public testing::Test {
 protected:
  // Orders to 20000, |z| from 1e-2 to 20000, near the order as often as not; every fourth point on an axis.
  Point point() {
    const double nu = random_() % 2 == 0 ? std::exp(uniform(0.0, 9.9)) - 1.0 : uniform(0.0, 3.0);
    const double size = random_() % 2 == 0 ? (nu + 0.1) * std::exp(uniform(-0.7, 0.7)) : std::exp(uniform(-4.6, 9.9));
    const double phi = random_() % 4 == 0 ? kPi / 2 * static_cast<double>(random_() % 4) : uniform(-kPi, kPi);
    return {random_() % 3 == 0 ? std::floor(nu) : nu, std::polar(size, phi)};
  }

  double uniform(double low, double high) { return std::uniform_real_distribution<double>(low, high)(random_); }

  // The members of order nu and nu + 1, or false when they are out of range.
  static bool pair(char f, int kind, const Point& p, Complex& a, Complex& b) {
    const Answer r = run({f, kind, 2, p.nu, 2, p.z});
    a = r.cy[0];
    b = r.cy[1];
    return r.ierr == 0 && r.nz == 0;
  }

  static void expect_sum(Complex x, Complex y, Complex total, const Point& p) {
    const double size = std::max({std::abs(x), std::abs(y), std::abs(total)});
    EXPECT_LT(std::abs(x + y - total), bound(p.nu, p.z) * size) << "nu " << p.nu << " z " << p.z;
  }

  std::mt19937_64 random_{42};
  static constexpr int kPoints = 3000;
};

TEST_F(Identities, Wronskians) {
  int tested = 0;
  for (int k = 0; k < kPoints; ++k) {
    const Point p = point();
    Complex a;
    Complex b;
    Complex c;
    Complex d;
    // I_nu K_{nu+1} + I_{nu+1} K_nu = 1/z; kode 2 leaves exp(z - |Re z|), and exp(z) for Re z < 0 grows without need.
    if (p.z.real() >= 0.0 && pair('I', 0, p, a, b) && pair('K', 0, p, c, d) && std::abs(a) > 1e-150) {
      expect_sum(a * d, b * c, std::polar(1.0, p.z.imag()) / p.z, p);
      ++tested;
    }
    // H1_{nu+1} H2_nu - H1_nu H2_{nu+1} = -4i... / (pi z): DLMF 10.5.5 with the derivative replaced.
    if (pair('H', 1, p, a, b) && pair('H', 2, p, c, d) && std::abs(a) < 1e150 && std::abs(c) < 1e150) {
      expect_sum(b * c, -a * d, -4.0 * kImaginary / (kPi * p.z), p);
      ++tested;
    }
  }
  EXPECT_GT(tested, kPoints / 2);
}

TEST_F(Identities, HankelFunctionsAreJPlusMinusIY) {
  int tested = 0;
  for (int k = 0; k < kPoints; ++k) {
    Point p = point();
    p.z = {p.z.real(), std::fmod(p.z.imag(), 3.0)};
    if (std::abs(p.z) < 1e-2) continue;
    const auto value = [&](char f, int kind) { return run({f, kind, 1, p.nu, 1, p.z}); };
    const Answer j = value('J', 0);
    const Answer y = value('Y', 0);
    const Answer h1 = value('H', 1);
    const Answer h2 = value('H', 2);
    if (j.ierr + y.ierr + h1.ierr + h2.ierr + j.nz != 0) continue;
    expect_sum(j.cy[0], kImaginary * y.cy[0], h1.cy[0], p);
    expect_sum(j.cy[0], -kImaginary * y.cy[0], h2.cy[0], p);
    ++tested;
  }
  EXPECT_GT(tested, kPoints / 4);
}

TEST_F(Identities, ConjugateSymmetryIsExact) {
  for (int k = 0; k < kPoints; ++k) {
    const Point p = point();
    if (p.z.imag() == 0.0) continue;
    for (const char f : {'H', 'I', 'J', 'K', 'Y'}) {
      const Answer a = run({f, 1, 2, p.nu, 3, p.z});
      const Answer b = run({f, 2, 2, p.nu, 3, std::conj(p.z)});
      ASSERT_EQ(a.ierr, b.ierr);
      ASSERT_EQ(a.nz, b.nz);
      if (a.ierr != 0 && a.ierr != 3) continue;
      for (std::size_t i = 0; i < 3; ++i) ASSERT_EQ(a.cy[i], std::conj(b.cy[i])) << f << p.nu << p.z;
    }
  }
}

// A sequence against its members one by one: they begin in different regions.
TEST_F(Identities, SequencesAgreeWithSingleMembers) {
  for (int k = 0; k < 300; ++k) {
    Point p = point();
    p.nu = std::fmod(p.nu, 120.0);
    for (const char f : {'H', 'I', 'J', 'K', 'Y'}) {
      const Answer sequence = run({f, 1, 2, p.nu, 60, p.z});
      if (sequence.ierr != 0) continue;
      for (int j = 0; j < 60; j += 7) {
        const Answer single = run({f, 1, 2, p.nu + j, 1, p.z});
        ASSERT_EQ(single.ierr, 0);
        const Complex member = sequence.cy[static_cast<std::size_t>(j)];
        const double rounded_order = 1.0e-16 * p.nu * std::fabs(std::log(std::abs(p.z)) - 10.0);
        EXPECT_LE(std::abs(single.cy[0] - member), (bound(p.nu + j, p.z) + rounded_order) * std::abs(member))
            << f << " nu " << p.nu << " + " << j << " z " << p.z;
      }
    }
  }
}

TEST_F(Identities, AiryFunctions) {
  for (int k = 0; k < kPoints; ++k) {
    const Complex z = std::polar(std::exp(uniform(-3.0, 3.5)), uniform(-kPi, kPi));
    const auto value = [](char f, int id, Complex at) { return run({f, id, 2, 0.0, 1, at}).cy[0]; };
    const auto zeta = [](Complex at) { return 2.0 / 3.0 * at * std::sqrt(at); };
    const Point p{0.0, z};
    // Ai Bi' - Ai' Bi = 1/pi (DLMF 9.2.7), times the factors of kode 2.
    const Complex factor = std::exp(zeta(z) - std::fabs(zeta(z).real()));
    expect_sum(value('A', 0, z) * value('B', 1, z), -value('A', 1, z) * value('B', 0, z), factor / kPi, p);
    // Ai(z) + e^{-2 pi i/3} Ai(z e^{-2 pi i/3}) + e^{2 pi i/3} Ai(z e^{2 pi i/3}) = 0 (DLMF 9.2.12).
    if (std::abs(z) > 20.0) continue;
    const Complex r = std::polar(1.0, 2.0 * kPi / 3.0);
    const auto ai = [](Complex at) { return run({'A', 0, 1, 0.0, 1, at}).cy[0]; };
    expect_sum(std::conj(r) * ai(z * std::conj(r)), r * ai(z * r), -ai(z), {10.0 * std::pow(std::abs(z), 1.5), z});
  }
}

}  // namespace
}  // namespace quorin_test
