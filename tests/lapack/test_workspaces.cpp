// Work arrays of every routine that takes their lengths: the published minimum suffices, flush against pages that
// cannot be accessed; one less is refused, whatever the rest is; a query answers no less than the minimum, and its
// answer suffices.
#include "tests/lapack/paged_call.hpp"
#include "tests/support/capture_output.hpp"
#include "tests/support/test.hpp"

namespace {

using namespace quorin::test;

constexpr std::uint32_t kCalls = 40;  // of each routine

bool is_length(const Argument& argument) { return argument.minimum != nullptr && !argument.is_array(); }

void run(PagedCall& call) {
  FaultReport::begin(call.text().c_str());
  call.place();
  call.run();
}

void set_lengths(const Routine& routine, Values& values) {
  for (const Argument& argument : routine.arguments) {
    if (is_length(argument)) values.*argument.member = argument.minimum(values);
  }
}

// What a query left for a length, which is in the first element of lwork's work, of liwork's iwork, of lrwork's rwork.
double answer(const Routine& routine, const PagedCall& call, std::string_view length) {
  const int position = call.position(length.substr(1));
  const void* const first = call.data(static_cast<std::size_t>(position) - 1);
  if (routine.arguments[static_cast<std::size_t>(position) - 1].element == Element::kInt) {
    std::int32_t value = 0;
    std::memcpy(&value, first, sizeof value);
    return value;
  }
  float value = 0;
  std::memcpy(&value, first, sizeof value);
  return value;
}

void check_lengths(const Routine& routine, PagedCall& call) {
  // Where the need follows from a number that the call finds, it is known now, and refused is only what is never
  // enough.
  if (const int sdim = call.position("sdim"); sdim != 0) {
    std::memcpy(&call.values.sdim, call.data(static_cast<std::size_t>(sdim) - 1), sizeof(int));
    set_lengths(routine, call.values);
    run(call);
    EXPECT_GE(call.info(), 0) << call.text();
    EXPECT_EQ(call.spoilt(), nullptr) << call.text();
  }
  const Values exact = call.values;
  for (const Argument& length : routine.arguments) {
    if (!is_length(length)) continue;
    SCOPED_TRACE(length.name);
    call.values = exact;
    call.values.sdim = 0;
    const int less = length.minimum(call.values) - 1;
    call.values.sdim = exact.sdim;
    if (less >= 0) {
      call.values.*length.member = less;
      run(call);
      EXPECT_EQ(call.info(), -call.position(length.name)) << call.text();
      EXPECT_EQ(call.spoilt(), nullptr) << call.text();
    }
  }
  call.values = exact;
  for (const Argument& length : routine.arguments) {
    if (is_length(length)) call.values.*length.member = -1;
  }
  run(call);
  EXPECT_EQ(call.info(), 0) << call.text();
  EXPECT_EQ(call.spoilt(), nullptr) << call.text();
  Values best = exact;
  for (const Argument& length : routine.arguments) {
    if (!is_length(length)) continue;
    const double most = answer(routine, call, length.name);
    EXPECT_GE(most, exact.*length.member) << length.name << " of " << call.text();
    best.*length.member = static_cast<int>(most);
  }
  call.values = best;
  run(call);
  EXPECT_GE(call.info(), 0) << call.text();
  EXPECT_EQ(call.spoilt(), nullptr) << call.text();
}

TEST(Workspaces, AreAsLongAsPublished) {
  for (const Routine& routine : kRoutines) {
    if (std::ranges::none_of(routine.arguments, is_length)) continue;
    const std::string text = captured([&] {
      for (std::uint32_t seed = 0; seed < kCalls; ++seed) {
        PagedCall call(routine, seed, Content::kUsual);
        const bool settled = call.settle([&](PagedCall& drawn) {
          FaultReport::begin(drawn.text().c_str());
          drawn.run();
          for (const Argument& length : routine.arguments) {
            if (!is_length(length)) continue;
            EXPECT_NE(drawn.info(), -drawn.position(length.name)) << drawn.text();
          }
        });
        ASSERT_TRUE(settled) << routine.name;
        check_lengths(routine, call);
      }
    });
    if (HasFailure()) std::fputs(text.c_str(), stderr);
  }
}

}  // namespace
