// Option strings: what each sets, and what is said of those that set nothing.
#include "families/taucs/solvers/options.hpp"
#include "tests/support/test.hpp"
#include "tests/taucs/log.hpp"

namespace quorin::taucs {
namespace {

class OptionStrings : public testing::Test {
 protected:
  // Parses the strings; the messages are in `said`.
  Options parse(std::vector<const char*> strings, std::vector<void*> arguments = {}) {
    strings.push_back(nullptr);
    arguments.push_back(nullptr);
    Options options;
    said = taucs_test::logged([&] { options = parse_options(strings.data(), arguments.data()); });
    return options;
  }
  std::string said;
};

TEST_F(OptionStrings, EachKeySetsItsOwn) {
  const struct {
    const char* key;
    bool Options::*field;
  } keys[] = {{"taucs.approximate.sg", &Options::approximate_sg},
              {"taucs.approximate.amwb", &Options::amwb},
              {"taucs.factor", &Options::factor},
              {"taucs.factor.symbolic", &Options::symbolic},
              {"taucs.factor.numeric", &Options::numeric},
              {"taucs.factor.LLT", &Options::llt},
              {"taucs.factor.LU", &Options::lu},
              {"taucs.factor.indefinite", &Options::indefinite},
              {"taucs.factor.mf", &Options::mf},
              {"taucs.factor.ll", &Options::ll},
              {"taucs.ooc", &Options::ooc},
              {"taucs.solve.cg", &Options::cg},
              {"taucs.solve.minres", &Options::minres}};
  for (const auto& changed : keys) {
    const std::string string = std::string(changed.key) + (Options{}.*changed.field ? "=false" : "=true");
    const Options o = parse({string.c_str()});
    for (const auto& key : keys) EXPECT_EQ(o.*key.field != Options{}.*key.field, key.field == changed.field) << string;
    EXPECT_EQ(said, "");
  }
  const struct {
    const char* key;
    double Options::*field;
  } numbers[] = {{"taucs.cilk.nproc", &Options::cilk_nproc},
                 {"taucs.approximate.amwb.randomseed", &Options::amwb_randomseed},
                 {"taucs.approximate.amwb.subgraphs", &Options::amwb_subgraphs},
                 {"taucs.maxdepth", &Options::maxdepth},
                 {"taucs.ooc.memory", &Options::ooc_memory},
                 {"taucs.solve.maxits", &Options::maxits},
                 {"taucs.solve.convergetol", &Options::convergetol}};
  for (const auto& changed : numbers) {
    const std::string string = std::string(changed.key) + "= 2.5e3steps";
    EXPECT_EQ(parse({string.c_str()}).*changed.field, 2500) << string;
    EXPECT_EQ(said, "");
  }
  EXPECT_STREQ(parse({"taucs.factor.ordering=genmmd"}).ordering, "genmmd");
  EXPECT_STREQ(parse({"taucs.ooc.basename="}).ooc_basename, "");
  EXPECT_STREQ(parse({"taucs.factor.ordering=camd", "taucs.factor.ordering=tree"}).ordering, "tree");
}

TEST_F(OptionStrings, TakeWhatArgumentsPointTo) {
  double number = 50;
  int yes = 7, no = 0;
  void *pointer = &number, *arguments[] = {&number, &yes, &no, &pointer};
  const std::vector<void*> all(std::begin(arguments), std::end(arguments));
  EXPECT_EQ(parse({"taucs.solve.maxits=#0"}, all).maxits, 50);
  EXPECT_TRUE(parse({"taucs.solve.cg=#1"}, all).cg);
  EXPECT_FALSE(parse({"taucs.factor=#2"}, all).factor);
  EXPECT_EQ(parse({"taucs.ooc.iohandle=#3"}, all).ooc_iohandle, &number);
  char name[] = "metis";
  EXPECT_EQ(parse({"taucs.factor.ordering=#0"}, {name}).ordering, name);
  EXPECT_EQ(said, "");
}

TEST_F(OptionStrings, WhatSetsNothingIsSaid) {
  const std::string illegal = "taucs: WARNING, illegal argument in [%]\n",
                    pointer = "taucs: WARNING, illegal pointer argument in [%]\n",
                    range = "taucs: WARNING, pointer argument out of range in [%]\n",
                    unknown = "taucs_linsolve: illegal option [[%]]\n";
  const struct {
    const char* string;
    std::string messages;
  } cases[] = {
      {"taucs.solve=true", unknown},
      {"", unknown},
      {"taucs", unknown},
      {"Taucs.factor=true", unknown},
      {"taucs.factor.LLTs=true", illegal + unknown},
      {"taucs.factor.LLT", illegal + unknown},
      {"taucs.factor.LLT=yes", illegal + unknown},
      {"taucs.factor.LLT=True", illegal + unknown},
      {"taucs.factor.LLT=", illegal + unknown},
      {"taucs.factor.llt=true", illegal + unknown},  // "taucs.factor.ll", and then a "t"
      {"taucs.maxdepth=deep", illegal + unknown},
      {"taucs.ooc.iohandle=12", illegal + unknown},
      {"taucs.solve.maxits=#1", range + pointer + unknown},
      {"taucs.solve.maxits=#-1", range + pointer + unknown},
      {"taucs.solve.maxits=#x", pointer + unknown},
      {"taucs.solve.maxits#0", illegal + unknown},
      {"taucs.factor.LLT.more=true", unknown},
      {"taucs.factor.mf=true", ""},
  };
  double number = 50;
  for (const auto& test : cases) {
    std::string expected;
    for (const char c : test.messages) expected += c == '%' ? std::string(test.string) : std::string(1, c);
    const Options o = parse({test.string}, {&number});
    EXPECT_EQ(said, expected);
    EXPECT_FALSE(o.llt);
    EXPECT_EQ(o.maxits, 300);
  }
  // Others are read all the same, and a value that cannot be read leaves the one before.
  EXPECT_EQ(parse({"taucs.maxdepth=7", "taucs.maxdepth=deep", "nonsense"}).maxdepth, 7);
  const char* const strings[] = {"taucs.solve.maxits=#0", nullptr};
  EXPECT_EQ(parse_options(strings, nullptr).maxits, 300);
}

TEST(Truncation, SaturatesAndTakesNaNForZero) {
  EXPECT_EQ(truncated(2.99), 2);
  EXPECT_EQ(truncated(-2.99), -2);
  EXPECT_EQ(truncated(1e300), std::numeric_limits<int>::max());
  EXPECT_EQ(truncated(-1e300), std::numeric_limits<int>::min());
  EXPECT_EQ(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

}  // namespace
}  // namespace quorin::taucs
