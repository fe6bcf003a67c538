// Every routine of the LAPACK table, through both forms, driven by the table itself: the index form does in place what
// the plain form does and leaves alone what lies around its arrays; a wrong argument is found, and nothing is touched.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <vector>

#include "tests/lapack/paged_call.hpp"
#include "tests/support/capture_output.hpp"

namespace {

using quorin::test::captured;
using quorin::test::Content;
using quorin::test::Element;
using quorin::test::FaultReport;
using quorin::test::Kind;
using quorin::test::kRoutines;
using quorin::test::PagedCall;
using quorin::test::Routine;

constexpr std::uint32_t kCalls = 6;  // of each routine

// Draws a valid call; what its routine reports on the way is dropped.
void settle(PagedCall& call) {
  bool settled = false;
  captured([&] {
    settled = call.settle([](PagedCall& drawn) {
      FaultReport::begin(drawn.text().c_str());
      drawn.run();
    });
  });
  ASSERT_TRUE(settled);
  call.place();
}

TEST(EveryRoutine, WorksThroughIndicesAndStaysInItsArrays) {
  ASSERT_EQ(std::size(kRoutines), 159U);
  for (const Routine& routine : kRoutines) {
    bool has_worked = false;
    for (std::uint32_t seed = 0; seed < kCalls; ++seed) {
      PagedCall call(routine, seed, Content::kUsual);
      settle(call);
      SCOPED_TRACE(call.text());
      const auto before = call.contents();
      call.run();
      const auto plain = call.contents();
      call.place();
      call.run(true);
      const auto indexed = call.contents();
      EXPECT_EQ(call.spoilt(), nullptr);
      for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
        SCOPED_TRACE(routine.arguments[i].name);
        EXPECT_TRUE(indexed[i] == plain[i]);
        const bool changed = plain[i] != before[i];
        EXPECT_TRUE(routine.arguments[i].is_output() || !changed);
        has_worked = has_worked || (changed && routine.arguments[i].is_array());
      }
    }
    EXPECT_TRUE(has_worked) << routine.name;
  }
}

TEST(EveryRoutine, FindsAWrongArgumentAndTouchesNothing) {
  for (const Routine& routine : kRoutines) {
    // The first option, or the first dimension.
    std::size_t wrong = 0;
    while (routine.arguments[wrong].element != Element::kChar && wrong + 1 < routine.arguments.size()) ++wrong;
    const bool is_option = routine.arguments[wrong].element == Element::kChar;
    if (!is_option) wrong = 0;
    const std::int32_t wrong_value = is_option ? '!' : -1;
    std::string upper = routine.name;
    for (char& c : upper) c = static_cast<char>(std::toupper(c));
    PagedCall call(routine, 0, Content::kUsual);
    settle(call);
    for (const bool indexed : {false, true}) {
      SCOPED_TRACE(testing::Message() << call.text() << (indexed ? " _Idx" : ""));
      call.place();
      std::memcpy(call.data(wrong), &wrong_value, routine.arguments[wrong].element_size());
      const auto before = call.contents();
      const std::string text = captured([&] { call.run(indexed); });
      const int position = static_cast<int>(wrong) + 1;
      EXPECT_EQ(call.info(), -position);
      EXPECT_NE(text.find("Parameter " + std::to_string(position) + " was incorrect on entry to " + upper),
                std::string::npos)
          << text;
      EXPECT_EQ(call.spoilt(), nullptr);
      const auto after = call.contents();
      for (std::size_t i = 0; i + 1 < routine.arguments.size(); ++i) {
        const std::string name = routine.arguments[i].name;
        if (name == "ifail" || name == "m") continue;  // sstein clears the one first, strevc counts the other
        EXPECT_TRUE(after[i] == before[i]) << name;
      }
    }
  }
}

}  // namespace
