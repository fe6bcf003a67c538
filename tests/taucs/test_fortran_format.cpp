// Fortran's formatted input. The expected numbers are those that programs of GNU Fortran 12 read from the same lines.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "families/taucs/files/fortran_format.hpp"
#include "tests/support/temporary_file.hpp"

namespace quorin::taucs {
namespace {

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
