// Every export but LAPACK's (which have tests/lapack/test_hostile_input.cpp) over hostile arguments: it returns within
// a second of processor time, stays in its arrays, which lie flush against pages that cannot be accessed, leaves its
// input alone, and prints nothing that its interface does not say.
#include <filesystem>
#include <set>

#include "tests/hostile/draw.hpp"

namespace hostile {
namespace {

#include "hostile_calls.inc"

class HostileCalls : public testing::TestWithParam<const char*> {};

TEST_P(HostileCalls, ReturnAndStayInTheirArrays) {
  const std::string family = GetParam();
  const char* const full = std::getenv("QUORIN_FULL_TESTS");
  const int rounds = full != nullptr && std::string(full) == "true" ? 1000 : 20;
  const int repeats = family == "pardiso" ? 30 : 3;  // of which some come in an order that makes sense
  const std::filesystem::path before = std::filesystem::current_path();
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("quorin-hostile-" + std::to_string(getpid()));
  std::filesystem::create_directory(folder);
  std::filesystem::current_path(folder);  // some routines write files
  quorin::test::Watchdog watchdog;
  quorin::test::CapturedOutput output;
  int printed = 0;
  for (int round = 0; round < rounds && !HasFailure(); ++round) {
    const auto seed = static_cast<std::uint32_t>(1000 * round) + 1;
    Draw draw(family, seed, watchdog, output);
    std::minstd_rand random(seed);
    std::vector<const Call*> calls;
    for (const Call& call : kCalls) {
      for (int repeat = 0; family == call.family && repeat < repeats; ++repeat) calls.push_back(&call);
    }
    std::shuffle(calls.begin(), calls.end(), random);
    for (const Call* call : calls) call->call(draw);
    printed += draw.printed();
  }
  const std::string text = output.stop();
  if (HasFailure()) std::fputs(text.c_str(), stderr);
  EXPECT_EQ(text, "");
  const std::set<std::string> talkative = {"blas", "feast", "pack", "pardiso", "rci", "services"};
  EXPECT_EQ(printed > 0, talkative.contains(family)) << "calls that print: " << printed;
  RecordProperty("slowest", watchdog.slowest());
  set_printf_callback_32f(nullptr);
  sMKL_Set_Num_Threads(2);
  std::filesystem::current_path(before);
  std::filesystem::remove_all(folder);
}

INSTANTIATE_TEST_SUITE_P(Families, HostileCalls,
                         testing::Values("blas", "amos", "feast", "jacobi", "pack", "pardiso", "rci", "services",
                                         "signal", "slap", "taucs", "trust_region", "umfpack"),
                         [](const auto& family) { return std::string(family.param); });

}  // namespace
}  // namespace hostile
