// Values, underflow counts and overflow against the tables that make_reference.py and make_random_reference.py computed
// with mpmath.
//
// Bound, of every value: |error| <= 10 u 10^S |value|, u = 2.22e-16, S = max(1, |log10 |z||, log10 nu), for the first
// order nu of the call, and never more than 1e-13 for |z| < 1; 99.5 % of the values within 2e-14.
//
// Arguments: the small table, the full one, which is compared instead when QUORIN_FULL_TESTS is "true", those of points
// next to real zeros, of random points, of points next to complex zeros and of whole sequences, and optionally a file
// for one line per value (function, z, order, relative error): tools/plot_amos_errors.py draws it.
#include <fstream>

#include "calls.hpp"
#include "tests/support/test.hpp"

namespace quorin_test {
namespace {

constexpr double kUnit = 2.22e-16;
constexpr double kElim = 700.9217936944459;
constexpr double kLogLargest = 709.782712893384;
constexpr double kLn2 = 0.6931471805599453;
constexpr double kMargin = 1.0e-9;  // of logarithms that are compared with kElim

std::vector<std::string> paths;  // in the order of the arguments, without the table that is not compared

struct Member {
  int j = 0;
  Complex m;
  int e = 0;

  double log_modulus() const { return e * kLn2 + std::log(std::abs(m)); }
  double log_larger_part() const { return e * kLn2 + std::log(std::max(std::fabs(m.real()), std::fabs(m.imag()))); }
};

struct Row {
  Call call;
  std::vector<Member> members;
};

bool read_row(const std::string& line, Row& row) {
  std::istringstream in(line);
  double x = 0.0;
  double y = 0.0;
  Call& c = row.call;
  in >> c.function >> c.kind >> c.kode >> c.nu >> c.n >> x >> y;
  c.z = {x, y};
  row.members.clear();
  // The first and the last member, or those that are named: "@j re im e".
  const bool parsed = !in.fail();
  std::string word;
  while (in >> word) {
    Member member;
    const bool named = word[0] == '@';
    member.j = named ? std::stoi(word.substr(1)) : row.members.empty() ? 0 : c.n - 1;
    if (named) in >> word;
    x = std::strtod(word.c_str(), nullptr);
    in >> y >> member.e;
    member.m = {x, y};
    row.members.push_back(member);
  }
  return parsed && !row.members.empty();
}

double allowed(const Call& c) {
  const double size = std::abs(c.z);
  const double s = std::max({1.0, std::fabs(std::log10(size)), std::log10(std::max(c.nu, 1.0))});
  const double bound = 10.0 * kUnit * std::pow(10.0, std::min(s, 14.0));
  return size < 1.0 ? std::min(bound, 1.0e-13) : bound;
}

double relative_error(Complex value, const Member& r) {
  const int half = -r.e / 2;
  const auto scaled = [&](double x) { return std::ldexp(std::ldexp(x, half), -r.e - half); };
  return std::abs(Complex{scaled(value.real()), scaled(value.imag())} - r.m) / std::abs(r.m);
}

// Below exp(-kElim), or a component that has lost its phase at the underflow limit.
bool may_underflow(const Member& r) {
  if (r.log_modulus() < -kElim + kMargin) return true;
  const double a = std::fabs(std::ldexp(r.m.real(), r.e));
  const double b = std::fabs(std::ldexp(r.m.imag(), r.e));
  return std::min(a, b) <= 2.2251e-305 && std::max(a, b) * 2.22e-16 < std::min(a, b) * 1.001;
}

bool may_overflow(const Row& row) {
  return std::any_of(row.members.begin(), row.members.end(),
                     [](const Member& r) { return r.log_larger_part() > kLogLargest - kMargin; });
}

struct Statistics {
  std::vector<double> errors;
  double largest = -1.0;
  std::string worst;
};

class Reference : public testing::Test {
 protected:
  void compare(const Row& row, const Answer& a) {
    if (a.ierr == 2) {
      EXPECT_TRUE(may_overflow(row)) << "overflow reported";
      EXPECT_EQ(a.nz, 0);
      ++overflows_;
      return;
    }
    const Call& c = row.call;
    const bool airy = c.function == 'A' || c.function == 'B';
    const double largest = std::max(std::abs(c.z), c.nu + c.n - 1);
    ASSERT_EQ(a.ierr, largest > (airy ? 1023.99 : 32767.99) ? 3 : 0);
    ASSERT_EQ(a.nz, std::count(a.cy.begin(), a.cy.end(), Complex{}));
    for (const Member& r : row.members) compare(row.call, r, a.cy[static_cast<std::size_t>(r.j)]);
  }

  void compare(const Call& c, const Member& r, Complex value) {
    if (value == 0.0) {
      EXPECT_TRUE(may_underflow(r)) << "member " << r.j << " underflowed";
      ++underflows_;
      return;
    }
    ASSERT_GT(r.log_modulus(), -kElim - kMargin) << "member " << r.j << " has a value";
    ASSERT_LT(r.log_larger_part(), kLogLargest + kMargin) << "member " << r.j << " has a value";
    const double error = relative_error(value, r);
    Statistics& s = statistics_[c.function];
    if (!(error <= s.largest)) {
      s.largest = error;
      s.worst = line_.substr(0, line_.find('@'));
    }
    s.errors.push_back(error);
    EXPECT_LE(error, allowed(c)) << "member " << r.j;
    EXPECT_TRUE(value.imag() == 0 || r.m.imag() != 0 || c.z.real() < 0 || c.z.imag() != 0) << "real on the real axis";
    if (errors_.is_open()) {
      errors_ << c.function << ' ' << c.z.real() << ' ' << c.z.imag() << ' ' << c.nu + r.j << ' ' << error << '\n';
    }
  }

  // Returns the number of rows.
  int compare_table(const std::string& path) {
    std::ifstream table(path);
    EXPECT_TRUE(table) << path;
    Row row;
    int rows = 0;
    for (; std::getline(table, line_); ++rows) {
      SCOPED_TRACE(line_);
      EXPECT_TRUE(read_row(line_, row));
      compare(row, run(row.call));
    }
    std::printf("%s: %d calls, %d underflows, %d overflows\n", path.c_str(), rows, underflows_, overflows_);
    std::printf("function  values   median   99.5 %%    worst\n");
    for (auto& [function, s] : statistics_) {
      std::sort(s.errors.begin(), s.errors.end());
      const double high = s.errors[s.errors.size() * 995 / 1000];
      EXPECT_LT(high, 2.0e-14) << function;
      std::printf("%c        %7zu  %.1e  %.1e  %.1e  %s\n", function, s.errors.size(), s.errors[s.errors.size() / 2],
                  high, s.errors.back(), s.worst.c_str());
    }
    return rows;
  }

  void expect_all_ranges(int rows) const {
    EXPECT_GT(rows, 1000);
    EXPECT_GT(overflows_, rows / 200);
    EXPECT_GT(underflows_, rows / 200);
    EXPECT_EQ(statistics_.size(), 7U);
  }

  void SetUp() override {
    if (paths.size() > 5) errors_.open(paths[5], std::ios::app);
  }

  std::map<char, Statistics> statistics_;
  std::string line_;
  std::ofstream errors_;
  int overflows_ = 0;
  int underflows_ = 0;
};

TEST_F(Reference, EveryValueOfTheTable) { expect_all_ranges(compare_table(paths[0])); }

// Real zeros of Ai, Ai', Bi, Bi', J, Y, and of I on the imaginary axis: rounded to a double, some units in the last
// place away, on the axis and beside it.
TEST_F(Reference, NextToZeros) {
  EXPECT_GT(compare_table(paths[1]), 1000);
  EXPECT_EQ(statistics_.size(), 5U);
  EXPECT_EQ(overflows_ + underflows_, 0);
}

// |z| up to 1e6, sequences of up to 1,000 orders, complex zeros of Y, K, H, Bi and Bi'.
TEST_F(Reference, AnywhereAndNextToComplexZeros) { expect_all_ranges(compare_table(paths[2])); }

// 2,000 points at relative distances of 1e-3 to 1e-15 from complex zeros, or at the zero rounded to a double; and every
// member of 250 sequences of up to 1,000 orders.
TEST_F(Reference, NextToComplexZerosAndInSequences) {
  EXPECT_EQ(compare_table(paths[3]), 2000);
  EXPECT_EQ(statistics_.size(), 4U);
  EXPECT_EQ(overflows_ + underflows_, 0);
  EXPECT_EQ(compare_table(paths[4]), 250);
  EXPECT_EQ(statistics_.size(), 7U);
}

}  // namespace
}  // namespace quorin_test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const char* full = std::getenv("QUORIN_FULL_TESTS");
  const bool wants_full = full != nullptr && std::string(full) == "true";
  constexpr int kLeast = 7;
  if (argc < kLeast) return 2;
  quorin_test::paths.assign(argv + 1, argv + argc);
  quorin_test::paths.erase(quorin_test::paths.begin() + (wants_full ? 0 : 1));
  return RUN_ALL_TESTS();
}
