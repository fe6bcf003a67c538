// The choice of the instruction set: the best that the processor and the system have, unless the environment names a
// lower one.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/cpu.hpp"

namespace quorin::platform {
namespace {

TEST(InstructionSets, AreChosenAmongThoseThatRun) {
  const auto chosen = [](std::size_t best, const char* wanted) {
#if defined(_WIN32)
    _putenv_s("QUORIN_CPU", wanted);
#else
    setenv("QUORIN_CPU", wanted, 1);
#endif
    return static_cast<std::size_t>(choose_instruction_set(kInstructionSets[best].features));
  };
  for (std::size_t best = 0; best < kInstructionSets.size(); ++best) {
    for (std::size_t wanted = 0; wanted < kInstructionSets.size(); ++wanted) {
      EXPECT_EQ(chosen(best, kInstructionSets[wanted].name), std::min(best, wanted));
    }
    EXPECT_EQ(chosen(best, "none of them"), best);
    EXPECT_EQ(chosen(best, ""), best);
  }
  // The processor has it, and the system does not save its registers.
  const std::uint32_t features = kInstructionSets[2].features & ~static_cast<std::uint32_t>(kFeatureZmmState);
  EXPECT_EQ(choose_instruction_set(features), InstructionSet::kAvx2);
}

}  // namespace
}  // namespace quorin::platform
