// The grammars of the environment variables that seed the thread settings.
#include <gtest/gtest.h>

#include <climits>

#include "base/thread_environment.hpp"

namespace quorin::base {
namespace {

TEST(ThreadEnvironment, CountsAreDecimalOctalOrHexadecimalAndPositive) {
  EXPECT_EQ(parse_count(" 12 "), 12);
  EXPECT_EQ(parse_count("010"), 8);
  EXPECT_EQ(parse_count("0x10"), 16);
  for (const char* bad : {"", "0", "-2", "3x", "2.5", "99999999999"}) EXPECT_FALSE(parse_count(bad)) << bad;
}

TEST(ThreadEnvironment, FlagsInEverySpelling) {
  for (const char* on : {"TRUE", "true", ".True.", "t", "1"}) EXPECT_EQ(parse_flag(on), true) << on;
  for (const char* off : {"FALSE", "false", ".false.", "F", "0"}) EXPECT_EQ(parse_flag(off), false) << off;
  EXPECT_FALSE(parse_flag("maybe"));
}

TEST(ThreadEnvironment, BlockTimesWithUnits) {
  EXPECT_EQ(parse_block_time("200"), 200);
  EXPECT_EQ(parse_block_time("0"), 0);
  EXPECT_EQ(parse_block_time("3s"), 3000);
  EXPECT_EQ(parse_block_time("2 M"), 120000);
  EXPECT_EQ(parse_block_time("1h"), 3600000);
  EXPECT_EQ(parse_block_time("1D"), 86400000);
  EXPECT_EQ(parse_block_time("100d"), INT_MAX);
  EXPECT_EQ(parse_block_time("Infinite"), INT_MAX);
  for (const char* bad : {"", "-1", "5 weeks"}) EXPECT_FALSE(parse_block_time(bad)) << bad;
}

TEST(ThreadEnvironment, DomainListsInEveryForm) {
  const std::array<int, kDomainCount> expected{2, 1, 0, 0, 0};
  for (const char* text :
       {"MKL_DOMAIN_ALL=2, MKL_DOMAIN_BLAS=1", "MKL_DOMAIN_ALL 2 : MKL_DOMAIN_BLAS 1",
        "MKL_DOMAIN_ALL,2: MKL_DOMAIN_BLAS 1", "mkl_all=0x2;mkl_blas=01", "MKL_DOMAIN_ALL = 2 nonsense 7 MKL_BLAS 1",
        "MKL_DOMAIN_PARDISO=x MKL_DOMAIN_ALL=2 MKL_DOMAIN_BLAS=1 MKL_DOMAIN_FFT"}) {
    EXPECT_EQ(parse_domain_counts(text), expected) << text;
  }
  const std::array<int, kDomainCount> all{1, 2, 3, 4, 5};
  for (const char* text : {"MKL_DOMAIN_ALL=1 MKL_DOMAIN_BLAS=2 MKL_DOMAIN_FFT=3 MKL_DOMAIN_VML=4 MKL_DOMAIN_PARDISO=5",
                           "MKL_ALL=1 MKL_BLAS=2 MKL_FFT=3 MKL_VML=4 MKL_PARDISO=5"}) {
    EXPECT_EQ(parse_domain_counts(text), all) << text;
  }
}

}  // namespace
}  // namespace quorin::base
