// Input checks and their order, range limits, overflow, underflow counts, index forms, machine constants.
#include "calls.hpp"
#include "tests/support/test.hpp"

namespace quorin_test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct StatusCase {
  Call call;
  int ierr;
  int nz;
};

void expect(const StatusCase& c) {
  SCOPED_TRACE(testing::Message() << c.call.function << ' ' << c.call.kind << " kode " << c.call.kode << " nu "
                                  << c.call.nu << " n " << c.call.n << " z " << c.call.z);
  const Answer a = run(c.call);
  EXPECT_EQ(a.ierr, c.ierr);
  EXPECT_EQ(a.nz, c.nz);
  for (const Complex& v : a.cy) {
    if (c.ierr == 0 || c.ierr == 3) {
      EXPECT_TRUE(std::isfinite(v.real()) && std::isfinite(v.imag()) && v != kUntouched) << v;
    } else if (c.ierr != 2) {
      EXPECT_EQ(v, kUntouched);
    }
  }
}

TEST(Status, InputErrorsComeFirst) {
  for (const char f : {'H', 'I', 'J', 'K', 'Y'}) {
    const int m = f == 'H' ? 1 : 0;
    const Complex z{1.0, 1.0};
    const Complex far{1.0e300, 0.0};
    const Complex unit = f == 'I' || f == 'K' ? Complex{0.0, 1.0} : Complex{1.0, 0.0};  // towards the turning point
    const bool singular = f != 'I' && f != 'J';
    for (const StatusCase& c : std::vector<StatusCase>{
             {{f, m, 1, -0.5, 1, z}, 1, 0},
             {{f, m, 1, kNaN, 1, z}, 1, 0},
             {{f, m, 0, 0.0, 1, z}, 1, 0},
             {{f, m, 3, 0.0, 1, z}, 1, 0},
             {{f, m, 1, 0.0, 0, z}, 1, 0},
             {{f, m, 1, 0.0, -5, z}, 1, 0},
             {{f, m, 3, 0.0, 1, far}, 1, 0},  // before the range test
             {{f, m, 1, 0.0, 1, 0.0}, singular ? 1 : 0, 0},
             {{f, m, 1, 0.0, 1, {0.0, 1.0e-305}}, singular ? 2 : 0, 0},
             {{f, m, 1, 2.0e9, 1, {0.0, 1.0e-305}}, 4, 0},  // range before overflow
             {{f, m, 2, 0.0, 1, 40000.0}, 3, 0},
             {{f, m, 2, 0.0, 1, 32767.9999}, 0, 0},
             {{f, m, 2, 0.0, 1, {0.0, 32767.99999999}}, 3, 0},
             {{f, m, 2, 0.0, 1, 1073741823.5}, 3, 0},
             {{f, m, 2, 0.0, 1, 1073741823.5000002}, 4, 0},
             {{f, m, 2, 1073741823.5, 1, 1073741823.5 * unit}, 3, 0},
             {{f, m, 2, 1073741822.5, 2, 1073741823.5 * unit}, 3, 0},
             {{f, m, 2, 1073741822.5, 3, 1073741823.5 * unit}, 4, 0},
             {{f, m, 2, 1073741823.75, 1, 1.0}, 4, 0},
             {{f, m, 2, 0.0, 1, {0.0, -1.07e9}}, 3, 0},
             {{f, m, 2, 32767.0, 1, 32767.0 * unit}, 0, 0},
             {{f, m, 2, 32768.0, 1, 32768.0 * unit}, 3, 0},
             {{f, m, 2, 32760.0, 10, 32760.0 * unit}, 3, 0},
             {{f, m, 1, 0.0, 1, 2.0e9}, 4, 0},
             {{f, m, 1, 1.1e9, 1, 1.0}, 4, 0},
             {{f, m, 1, kInfinity, 1, 1.0}, 4, 0},
             {{f, m, 1, 0.0, 1, {kNaN, 0.0}}, 4, 0},
             {{f, m, 1, 0.0, 1, {0.0, -kInfinity}}, 4, 0},
         }) {
      expect(c);
    }
  }
  expect({{'H', 0, 1, 0.0, 1, 1.0}, 1, 0});
  expect({{'H', 3, 1, 0.0, 1, 1.0}, 1, 0});
  // A sequence that would reach beyond the limit is refused before an element is touched.
  Call huge{'J', 0, 1, 0.0, 1, 1.0};
  int nz = -1;
  int ierr = -1;
  const int n = std::numeric_limits<int>::max();
  const quorin_double_complex z{1.0, 0.0};
  quorin_double_complex cy{1.0, 2.0};
  CBESJ(&z, &huge.nu, &huge.kode, &n, &cy, &nz, &ierr);
  EXPECT_EQ(ierr, 4);
  EXPECT_EQ(cy.re, 1.0);
}

TEST(Status, AiryRanges) {
  for (const char f : {'A', 'B'}) {
    for (const StatusCase& c : std::vector<StatusCase>{
             {{f, 2, 1, 0.0, 1, 1.0}, 1, 0},
             {{f, -1, 1, 0.0, 1, 1.0}, 1, 0},
             {{f, 0, 3, 0.0, 1, 2.0e6}, 1, 0},
             {{f, 0, 2, 0.0, 1, 1000.0}, 0, 0},
             {{f, 1, 2, 0.0, 1, 1023.9999}, 0, 0},
             {{f, 0, 2, 0.0, 1, {0.0, -1024.0}}, 3, 0},
             {{f, 1, 2, 0.0, 1, 2000.0}, 3, 0},
             {{f, 0, 2, 0.0, 1, 1048575.9996}, 3, 0},
             {{f, 0, 2, 0.0, 1, 1048575.9997}, 4, 0},
             {{f, 0, 2, 0.0, 1, -1.04e6}, 3, 0},
             {{f, 0, 2, 0.0, 1, {0.0, 2.0e6}}, 4, 0},
             {{f, 0, 1, 0.0, 1, {kNaN, 0.5}}, 4, 0},
             {{f, 0, 1, 0.0, 1, 0.5}, 0, 0},
             {{f, 0, 1, 0.0, 1, {-60.0, 120.0}}, 2, 0},
         }) {
      expect(c);
    }
  }
  expect({{'A', 0, 1, 0.0, 1, 2000.0}, 3, 1});
  expect({{'A', 1, 1, 0.0, 1, 105.0}, 0, 1});
  expect({{'A', 0, 1, 0.0, 1, 103.0}, 0, 0});
  expect({{'B', 0, 1, 0.0, 1, 105.0}, 2, 0});
}

TEST(Status, OverflowAndUnderflow) {
  for (const StatusCase& c : std::vector<StatusCase>{
           {{'I', 0, 1, 0.0, 1, 1000.0}, 2, 0},
           // What fits a double is returned, far beyond exp(700): I_0(713.9) = 1.3e308.
           {{'I', 0, 1, 0.0, 1, 713.9}, 0, 0},
           {{'I', 0, 1, 0.0, 1, 714.2}, 2, 0},
           {{'J', 0, 1, 0.0, 1, {1.0, 713.9}}, 0, 0},
           {{'K', 0, 1, 0.0, 1, {-712.5, 1.0}}, 0, 0},
           {{'Y', 0, 1, 0.0, 1, {1.0, -713.9}}, 0, 0},
           {{'B', 0, 1, 0.0, 1, 104.4}, 0, 0},
           {{'B', 0, 1, 0.0, 1, 104.5}, 2, 0},
           {{'I', 0, 2, 0.0, 3, 1000.0}, 0, 0},
           {{'J', 0, 1, 0.0, 1, {0.0, -1000.0}}, 2, 0},
           {{'K', 0, 1, 0.0, 3, 1000.0}, 0, 3},
           {{'K', 0, 2, 0.0, 3, 1000.0}, 0, 0},
           {{'K', 0, 1, 0.0, 1, -1000.0}, 2, 0},
           {{'K', 0, 1, 200.0, 1, 1.0e-3}, 2, 0},
           {{'H', 1, 1, 0.0, 4, {1.0, 1000.0}}, 0, 4},
           {{'H', 2, 1, 0.0, 4, {1.0, 1000.0}}, 2, 0},
           {{'H', 1, 1, 50.0, 1, 1.0e-8}, 2, 0},
           {{'Y', 0, 1, 0.0, 2, {1.0, 1000.0}}, 2, 0},
           {{'Y', 0, 1, 100.0, 1, 1.0e-4}, 2, 0},
           {{'J', 0, 1, 0.0, 10, 0.0}, 0, 0},       // exact zeros are no underflows
           {{'J', 0, 1, 0.0, 10, 1.0e-307}, 0, 9},  // J0 = 1
           {{'J', 0, 1, 300.0, 2, 1.0e-3}, 0, 2},
           {{'I', 0, 2, 500.0, 1, {0.1, 0.1}}, 0, 1},
           // I_1(z) = z / 2: the smaller part is below the guard, and the larger one decides: it has kept its phase, or
           // has not.
           {{'I', 0, 1, 1.0, 1, {2.0e-300, 2.0e-320}}, 0, 0},
           {{'I', 0, 1, 1.0, 1, {2.0e-300, 2.0e-310}}, 0, 1},
           {{'I', 0, 1, 1.0, 1, {2.0e-320, 2.0e-300}}, 0, 0},
           {{'I', 0, 1, 1.0, 1, {2.0e-304, 2.0e-306}}, 0, 1},
           {{'I', 0, 1, 1.0, 1, {2.0e-304, 4.5e-305}}, 0, 0},
       }) {
    expect(c);
  }
  // Leading members of K and trailing members of J underflow; the rest is there.
  const Answer k = run({'K', 0, 1, 0.0, 50, 698.5});
  EXPECT_EQ(k.ierr, 0);
  EXPECT_GT(k.nz, 5);
  EXPECT_LT(k.nz, 45);
  for (int j = 0; j < 50; ++j) EXPECT_EQ(k.cy[static_cast<std::size_t>(j)] == 0.0, j < k.nz) << j;
  const Answer j = run({'J', 0, 1, 0.0, 200, 1.0});
  EXPECT_EQ(j.ierr, 0);
  EXPECT_GT(j.nz, 20);
  EXPECT_EQ(j.cy[199], 0.0);
  EXPECT_NE(j.cy[static_cast<std::size_t>(199 - j.nz)], 0.0);
}

bool same_bits(const std::vector<Complex>& a, const std::vector<Complex>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(Complex)) == 0;
}

// Any bit pattern ends, with a known status, a count in range and, when there is a result, finite numbers; the index
// form gives the same bits, and the conjugate argument the conjugate ones.
TEST(Fuzz, AnyBitPattern) {
  std::mt19937_64 random(1);
  const auto number = [&](int style) {
    const std::uint64_t bits = random();
    double x = 0.0;
    std::memcpy(&x, &bits, sizeof x);
    switch (style % 4) {
      case 0:
        return x;
      case 1:
        return std::ldexp(static_cast<double>(bits >> 11), static_cast<int>(random() % 90) - 110);
      case 2:
        return std::ldexp(static_cast<double>(static_cast<std::int64_t>(bits)), -55);
      default:
        return std::array{0.0, -0.0, 1.0, -1.0, kNaN, kInfinity, -kInfinity, 5.0e-324, 2.0}.at(
            static_cast<std::size_t>(bits % 9));
    }
  };
  int seen[6] = {};
  for (int i = 0; i < 60000; ++i) {
    const int style = static_cast<int>(random() % 16);
    Call c{
        "HIJKYAB"[random() % 7],         static_cast<int>(random() % 4),
        static_cast<int>(random() % 3),  style < 12 ? std::fabs(number(static_cast<int>(random() % 3))) : number(style),
        static_cast<int>(random() % 12), {number(style), number(static_cast<int>(random() % 4))}};
    if (c.function == 'A' || c.function == 'B') c.n = 1;
    SCOPED_TRACE(testing::Message() << c.function << c.kind << ' ' << c.kode << ' ' << c.nu << ' ' << c.n << c.z);
    const Answer a = run(c);
    ASSERT_GE(a.ierr, 0);
    ASSERT_LE(a.ierr, 4);
    ASSERT_GE(a.nz, 0);
    ASSERT_LE(a.nz, std::max(c.n, 1));
    ++seen[a.ierr];
    if (a.ierr == 0 || a.ierr == 3) {
      for (const Complex& v : a.cy) ASSERT_TRUE(std::isfinite(v.real()) && std::isfinite(v.imag()) && v != kUntouched);
      ASSERT_TRUE(same_bits(a.cy, run(c, true).cy));
      if (c.z.imag() == 0) continue;
      Call mirrored = c;
      mirrored.z = std::conj(c.z);
      if (c.function == 'H') mirrored.kind = 3 - c.kind;
      const Answer other = run(mirrored);
      ASSERT_EQ(other.ierr, a.ierr);
      ASSERT_EQ(other.nz, a.nz);
      for (std::size_t k = 0; k < a.cy.size(); ++k) ASSERT_EQ(a.cy[k], std::conj(other.cy[k]));
    } else if (a.ierr != 2) {
      for (const Complex& v : a.cy) ASSERT_EQ(v, kUntouched);
    }
  }
  for (int ierr = 0; ierr < 5; ++ierr) EXPECT_GT(seen[ierr], 100) << ierr;
}

TEST(MachineConstants, Single) {
  const float expected[] = {1.1754944e-38F, 3.4028235e+38F, 5.9604645e-08F, 1.1920929e-07F, 0.30103F};
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(R1MACH(&i), expected[i - 1]) << i;
}

}  // namespace
}  // namespace quorin_test
