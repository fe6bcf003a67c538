// Numbers in files, against the C library's scanf, which is the definition of what a file says; and the formats that
// tell where they stand.
#include "families/taucs/files/fortran_format.hpp"
#include "families/taucs/files/number_parser.hpp"
#include "tests/support/temporary_file.hpp"
#include "tests/support/test.hpp"

namespace quorin::taucs {
namespace {

// What scanf makes of a text: whether it is a number, its bits, how many characters it took.
struct Reading {
  bool is_number = false;
  std::uint64_t bits = 0;
  long length = 0;
  bool operator==(const Reading&) const = default;
};

std::uint64_t bits_of(double value) {
  return std::isnan(value) ? 1 : std::bit_cast<std::uint64_t>(value);  // the sign and payload of a NaN are free
}

template <class Number>
Reading scanned(const std::string& text, const char* format) {
  Number number{};
  int length = 0;
  if (std::sscanf(text.c_str(), format, &number, &length) != 1) return {};
  // The scanf of some C libraries rounds twice; their strtod does not.
  if constexpr (std::is_same_v<Number, double>) number = std::strtod(text.c_str(), nullptr);
  return {true, bits_of(number), length};
}

template <class Number>
Reading parsed(const std::string& text) {
  Number number{};
  const char* const stop = parse_number(text.data(), text.data() + text.size(), number);
  if (stop == nullptr) return {};
  return {true, bits_of(number), static_cast<long>(stop - text.data())};
}

void expect_same(const std::string& text) {
  EXPECT_EQ(parsed<double>(text), scanned<double>(text, "%lg%n")) << '"' << text << '"';
}

TEST(NumberParser, ReadsDoublesAsScanfDoes) {
  std::mt19937_64 random(11);
  char text[400];
  for (int k = 0; k < 200000; ++k) {
    const double any = std::bit_cast<double>(random());
    const double usual = std::ldexp(static_cast<double>(random() >> 11), -40 - static_cast<int>(random() % 20));
    const double number = k % 2 == 0 && std::isfinite(any) ? any : usual;
    constexpr const char* kFormats[] = {"%.17e", "%.16g", "%.15g", "%g", "%.5f", "%.0e", "%.25e", "%+.3E"};
    std::snprintf(text, sizeof text, kFormats[random() % std::size(kFormats)], std::min(number, 1e200));
    const double expected = std::strtod(text, nullptr);
    const Reading reading = parsed<double>(text);
    ASSERT_EQ(reading.bits, bits_of(expected)) << text;
    ASSERT_EQ(reading.length, static_cast<long>(std::strlen(text))) << text;
  }
}

// As good as half-way between two doubles, where the last digit and the rule for ties decide.
TEST(NumberParser, RoundsTiesToEven) {
  std::mt19937_64 random(12);
  for (int k = 0; k < 3000; ++k) {
    const std::uint64_t below = (random() >> 11 | std::uint64_t{1} << 52) << (k % 4);
    const std::uint64_t tie = 2 * below + (std::uint64_t{1} << (k % 4));
    for (const std::uint64_t whole : {tie - 1, tie, tie + 1}) {
      const std::string digits = std::to_string(whole);
      for (const std::string& text :
           {digits, digits + "0e-1", digits + "000e-3", digits + ".000", digits + "e2", digits + "e-19",
            digits.substr(0, 1) + "." + digits.substr(1) + "e+" + std::to_string(digits.size() - 1),
            "0." + digits + "e" + std::to_string(digits.size())}) {
        ASSERT_EQ(parsed<double>(text).bits, bits_of(std::strtod(text.c_str(), nullptr))) << text;
      }
    }
  }
}

TEST(NumberParser, StopsWhereScanfStops) {
  std::istringstream texts(
      "1 -1 +7 1. .5 -.5e1 1.e3 . - + e5 1e5x 1,5 1.5.5 007 -0 0e0 0e999999 1e400 -1e400 1e-400 4.9e-324 "
      "2e-324 1e99999999999999999999 1e-99999999999999999999 inf -INF infinity nan 1x --1 +-1 "
      "1.7976931348623157e308 1.7976931348623159e308 2.2250738585072011e-308 9007199254740993 "
      "9007199254740992.9999999999999999 123456789012345678901234567890 "
      "0.000000000000000000000000000000000000001 8.5e22 1e23 8388608.5 100000000000000016777215 "
      "100000000000000016777216");
  for (std::string text; texts >> text;) expect_same(text);
  for (const char* const text : {"", "5e-1 7"}) expect_same(text);
  const std::string zeros(5000, '0');
  expect_same("0." + zeros + "1e5001");
  expect_same("1" + zeros + "e-5000");
  expect_same("0." + zeros + "1");
  expect_same("1" + zeros);
  // Incomplete numbers are none; what the C library of old makes of these is its own affair.
  for (const char* const text : {"1e", "1e+", "1e-x", "in", "infin", "na", "nan(", "0x", "0xg", "0x1p", "0x-1"}) {
    EXPECT_FALSE(parsed<double>(text).is_number) << text;
  }
  EXPECT_EQ(parsed<double>("0x1.8p3"), (Reading{true, bits_of(12.0), 7}));
  EXPECT_EQ(parsed<double>("-0xAx"), (Reading{true, bits_of(-10.0), 4}));
  EXPECT_EQ(parsed<double>("nan(12)3"), (Reading{true, bits_of(NAN), 7}));
  EXPECT_EQ(parsed<double>("0x1p99999"), (Reading{true, bits_of(HUGE_VAL), 9}));
}

TEST(NumberParser, ReadsIntegersAsScanfDoes) {
  for (const char* const text :
       {"0", "-0", "+5", "12 3", "-12x", "2147483647", "-2147483648", "007", "1.5", "", "x", "+", "-", "+-1"}) {
    EXPECT_EQ(parsed<int>(text), scanned<int>(text, "%d%n")) << '"' << text << '"';
  }
  EXPECT_FALSE(parsed<int>("2147483648").is_number);
  EXPECT_FALSE(parsed<int>("99999999999999999999").is_number);
}

// Fortran's formatted input. The expected numbers are those that programs of GNU Fortran 12 read from the same lines.
using test::TemporaryFile;

// The numbers of a section as far as they can be read, `most` at most.
std::vector<double> numbers(const std::string& format, const std::string& lines, std::size_t most = 20) {
  const TemporaryFile file(lines);
  platform::File opened;
  opened.open_for_reading(file.name());
  TextScanner text(opened);
  FortranFormat program;
  EXPECT_TRUE(program.parse(format)) << format;
  FieldReader reader(text, program);
  std::vector<double> result;
  Field field;
  double number = 0;
  while (result.size() < most && reader.next(field) && parse_field(field, number)) result.push_back(number);
  return result;
}

TEST(FortranFormat, Fields) {
  const struct {
    const char* format;
    const char* field;
    double expected;
  } cases[] = {{"(E12.4)", "  1.5E+02 ", 150},  {"(E12.4)", "1.5D2", 150},
               {"(E12.4)", "1.5-3", 1.5e-3},    {"(E12.4)", "-1.5+3", -1500},
               {"(F10.3)", "   12345", 12.345}, {"(F10.3)", "12.5", 12.5},
               {"(2PF10.3)", "12.5", 0.125},    {"(-2PF10.3)", "12.5", 1250},
               {"(1PE10.3)", "1.25E1", 12.5},   {"(I10)", "  -42", -42},
               {"(E10.2)", "1234E2", 1234},     {" ( g25.16e3 ) ", "0.1000000000000000D+00", 0.1}};
  for (const auto& [format, field, expected] : cases) {
    EXPECT_EQ(numbers(format, field), std::vector{expected}) << format << ' ' << field;
  }
  for (const char* const field :
       {"", "   ", "1.5E", "E5", "1.5E+", "1 5", "abc", "1.5F2", "-", ".", "1.2.3", "inf", "1E99999999999"}) {
    EXPECT_EQ(numbers("(E20.4)", field), std::vector<double>()) << field;
  }
}

TEST(FortranFormat, ListsGroupsAndPositions) {
  using Numbers = std::vector<double>;
  const std::string two = " 1.5E+00   2.5E+00 \n 3.5E+00   4.5E+00 \n";
  const Numbers four{1.5, 2.5, 3.5, 4.5};
  for (const char* const format :
       {"(2E10.3)", "(2(E10.3))", "(1P,2(E10.3))", "(2(1P,E10.3))", "(E10.3,E10.3)", "(2ES10.3)", "(2EN10.3)",
        "(E10.3,1PE10.3)", "(1P2E10.3)", "(0P,(2E10.3))", "(T1,2E10.3)", "(E10.3,T11,E10.3)", "(SP,BN,2E10.3,:)",
        "(2(TR1,E9.2))", "(E10.3,TL9,T11,D10.3)", "(2E10.3/2F10.3)", "(2G10.3,/,2E10.3)"}) {
    EXPECT_EQ(numbers(format, two), four) << format;
  }
  const struct {
    const char* format;
    const char* lines;
    Numbers expected;
  } cases[] = {
      {"(2(1X,I2))", "X12X34\nX56X78\n", {12, 34, 56, 78}},
      {"(I1,2(I2))", "12233\n44556\n77", {1, 22, 33, 44, 55, 77}},  // starts over with the group
      {"(I1,2(I1,2I2),I3)", "1233445667\n566778", {1, 2, 33, 44, 5, 66, 7}},
      {"(I2/I3)", "12\n345\n67\n890\n", {12, 345, 67, 890}},
      {"(2(I1/))", "1\n2\n\n3\n4\n\n", {1, 2, 3, 4}},
      {"(3/,I2)", "x\nx\nx\n12\nx\nx\nx\n34", {12, 34}},
      {"(F3.0,2P,F3.0)", "1.02.0\n3.04.0\n", {1, 0.02, 0.03, 0.04}},  // a scale holds from there on
      {"(I2,TL2,I1,TL99,I2)", "12", {12, 1, 12}},
      {"(T4,I2,T1,I3)", "12345", {45, 123}},
      {"(2(2(I1),1X))", "12 34\n56 78\n", {1, 2, 3, 4, 5, 6, 7, 8}},
  };
  for (const auto& [format, lines, expected] : cases) EXPECT_EQ(numbers(format, lines), expected) << format;
}

TEST(FortranFormat, RefusesWhatIsNoneOrLeadsNowhere) {
  FortranFormat format;
  for (const char* const text : {"",         "(",
                                 "()",       "(I)",
                                 "(0I5)",    "(5I0)",
                                 "(5I5",     "5I5)",
                                 "(5A5)",    "(-3I5)",
                                 "(5I1000)", "(99999999999I5)",
                                 "(5E10.)",  "(PI5)",
                                 "(1X)",     "(I5,(1X))",
                                 "(I5,)",    "(,I5)",
                                 "(I5,,I5)", "(I5I5)",
                                 "(2(I5)",   "((((((((((I5))))))))))",
                                 "(T0,I5)",  "(TL,I5)",
                                 "(0X,I5)",  "(2:I5)",
                                 "(B,I5)",   "(5H12345)"}) {
    EXPECT_FALSE(format.parse(text)) << text;
  }
  for (const char* const text :
       {"(99999(99999(1P)),I5)", "(99999(99999(1X)),I5)", "(99999(99999(TL1)),I5)", "(99999(99999/),I5)"}) {
    EXPECT_EQ(numbers(text, "1\n2\n3\n"), std::vector<double>()) << text;
  }
  EXPECT_TRUE(format.parse("(2(I5),1X,3I6)") && format.is_integer());
  EXPECT_TRUE(format.parse("(2(I5),1X,3F6.2)") && !format.is_integer());
}

}  // namespace
}  // namespace quorin::taucs
