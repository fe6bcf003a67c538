// Every routine of the LAPACK table, through both forms, driven by the table itself: the index form does in place what
// the plain form does and leaves alone what lies around its arrays; a wrong argument is found, and nothing is touched.
#include "tests/lapack/paged_call.hpp"
#include "tests/support/capture_output.hpp"
#include "tests/support/test.hpp"

namespace {

using namespace quorin::test;

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

// A value that is wrong for this argument whatever the others are; false if there is none.
bool is_made_wrong(const Argument& argument, const PagedCall& call, std::int32_t& value) {
  const std::string_view name = argument.name;
  value = -2;  // -1 asks for a length, and is a sign
  if (argument.kind == Kind::kScalar && argument.element == Element::kChar) value = '!';
  if (name.starts_with("ld")) value = 0;
  if (name == "ipiv" || name == "isplit") value = call.values.n + 1;
  if ((name == "il" || name == "iu") && call.values.range != 'I') return false;
  const bool is_list = argument.is_array() && value > 0 && call.values.n > 0;
  return !argument.is_output() && (is_list || (argument.kind == Kind::kScalar && !argument.is_floating()));
}

TEST(EveryRoutine, FindsAnyWrongArgumentAndTouchesNothing) {
  for (const Routine& routine : kRoutines) {
    std::string upper = routine.name;
    for (char& c : upper) c = static_cast<char>(std::toupper(c));
    PagedCall call(routine, 0, Content::kUsual);
    settle(call);
    for (std::size_t wrong = 0; wrong < routine.arguments.size(); ++wrong) {
      std::int32_t value = 0;
      if (!is_made_wrong(routine.arguments[wrong], call, value)) continue;
      const bool indexed = wrong % 2 == 0;
      const int position = static_cast<int>(wrong) + 1;
      SCOPED_TRACE(testing::Message() << call.text() << (indexed ? " _Idx, " : ", ") << routine.arguments[wrong].name);
      call.place();
      std::memcpy(call.data(wrong), &value, routine.arguments[wrong].element_size());
      const auto before = call.contents();
      const std::string text = captured([&] { call.run(indexed); });
      EXPECT_EQ(call.info(), -position);
      EXPECT_NE(text.find("Parameter " + std::to_string(position) + " was incorrect on entry to " + upper),
                std::string::npos)
          << text;
      EXPECT_EQ(call.spoilt(), nullptr);
      const auto after = call.contents();
      for (std::size_t i = 0; i + 1 < routine.arguments.size(); ++i) {
        const std::string name = routine.arguments[i].name;
        // These are written first: sstein clears ifail, strevc counts m and select, and lengths are told in the others.
        if (name == "ifail" || name == "m" || name == "select" || name == "rwork" || name == "iwork") continue;
        EXPECT_TRUE(after[i] == before[i]) << name;
      }
    }
  }
}

}  // namespace
