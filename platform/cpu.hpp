// What the processor can do, and what the operating system lets it do.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace quorin::platform {

// The instruction sets that numerical kernels are compiled for, each a superset of those before it.
enum class InstructionSet : int { kSse2, kAvx2, kAvx512 };

// What a set needs: every processor feature in `features`, and registers that the operating system saves.
struct InstructionSetRow {
  InstructionSet set;
  const char* name;        // in QUORIN_CPU, in benchmarks and in messages
  const char* registers;   // the widest it uses
  std::uint32_t features;  // a mask of CpuFeature
};

enum CpuFeature : std::uint32_t {
  kFeatureSse2 = 1U << 0,
  kFeatureAvx = 1U << 1,
  kFeatureFma = 1U << 2,
  kFeatureAvx2 = 1U << 3,
  kFeatureAvx512F = 1U << 4,
  kFeatureAvx512Dq = 1U << 5,
  kFeatureAvx512Bw = 1U << 6,
  kFeatureAvx512Vl = 1U << 7,
  kFeatureYmmState = 1U << 8,  // the system saves ymm registers
  kFeatureZmmState = 1U << 9,  // the system saves zmm and mask registers
};

inline constexpr std::uint32_t kAvx2Features =
    kFeatureSse2 | kFeatureAvx | kFeatureFma | kFeatureAvx2 | kFeatureYmmState;
inline constexpr std::array<InstructionSetRow, 3> kInstructionSets = {{
    {InstructionSet::kSse2, "sse2", "xmm", kFeatureSse2},
    {InstructionSet::kAvx2, "avx2", "ymm", kAvx2Features},
    {InstructionSet::kAvx512, "avx512", "zmm",
     kAvx2Features | kFeatureAvx512F | kFeatureAvx512Dq | kFeatureAvx512Bw | kFeatureAvx512Vl | kFeatureZmmState},
}};

// Sizes in bytes of the data caches that one core sees. What the processor does not tell is a modest guess.
struct CacheSizes {
  std::size_t level1 = std::size_t{32} << 10;
  std::size_t level2 = std::size_t{256} << 10;
};

// What this processor and this system offer, as a mask of CpuFeature. Asks the processor each time: some 0.1 ms in a
// virtual machine.
std::uint32_t cpu_features() noexcept;
CacheSizes cache_sizes() noexcept;

// Whether a set with these needs runs where `features` are.
constexpr bool can_run(const InstructionSetRow& row, std::uint32_t features) noexcept {
  return (row.features & ~features) == 0;
}

// The set to use: the best that runs here or, if the environment variable QUORIN_CPU names a lower one, that.
InstructionSet choose_instruction_set(std::uint32_t features) noexcept;

}  // namespace quorin::platform
