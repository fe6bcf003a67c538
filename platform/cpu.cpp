// Intel 64 and IA-32 Architectures Software Developer's Manual, volume 2, CPUID and XGETBV; AMD64 Architecture
// Programmer's Manual, volume 3, appendix E.
#include "platform/cpu.hpp"

#include <cpuid.h>

#include <cstring>

#include "platform/platform.hpp"

namespace quorin::platform {
namespace {

struct Registers {
  std::uint32_t eax = 0, ebx = 0, ecx = 0, edx = 0;
};

// Zeros for a leaf that the processor does not have.
Registers cpuid(std::uint32_t leaf, std::uint32_t subleaf) noexcept {
  Registers r;
  if (__get_cpuid_count(leaf, subleaf, &r.eax, &r.ebx, &r.ecx, &r.edx) == 0) return {};
  return r;
}

bool bit(std::uint32_t word, int position) noexcept { return ((word >> position) & 1) != 0; }

// Which register states the system saves. Only where CPUID says that the instruction exists.
std::uint32_t saved_states() noexcept {
  std::uint32_t low = 0, high = 0;
  asm volatile(".byte 0x0f, 0x01, 0xd0" : "=a"(low), "=d"(high) : "c"(0));  // xgetbv
  return low;
}

// The caches by CPUID's leaf of "deterministic cache parameters", which Intel (4) and AMD (8000001D) have in one
// format.
bool read_caches(std::uint32_t leaf, CacheSizes& sizes) noexcept {
  bool found = false;
  for (std::uint32_t i = 0; i < 16; ++i) {
    const Registers r = cpuid(leaf, i);
    const std::uint32_t type = r.eax & 31, level = (r.eax >> 5) & 7;
    if (type == 0) break;
    if (type == 2) continue;  // instructions
    const std::size_t ways = (r.ebx >> 22) + 1, partitions = ((r.ebx >> 12) & 1023) + 1, line = (r.ebx & 4095) + 1,
                      sets = std::size_t{r.ecx} + 1;
    const std::size_t bytes = ways * partitions * line * sets;
    if (level == 1) sizes.level1 = bytes;
    if (level == 2) sizes.level2 = bytes;
    found = true;
  }
  return found;
}

}  // namespace

std::uint32_t cpu_features() noexcept {
  std::uint32_t features = 0;
  const auto add = [&features](bool has, CpuFeature feature) {
    if (has) features |= feature;
  };
  const Registers basic = cpuid(1, 0), extended = cpuid(7, 0);
  add(bit(basic.edx, 26), kFeatureSse2);
  add(bit(basic.ecx, 12), kFeatureFma);
  add(bit(basic.ecx, 28), kFeatureAvx);
  add(bit(extended.ebx, 5), kFeatureAvx2);
  add(bit(extended.ebx, 16), kFeatureAvx512F);
  add(bit(extended.ebx, 17), kFeatureAvx512Dq);
  add(bit(extended.ebx, 30), kFeatureAvx512Bw);
  add(bit(extended.ebx, 31), kFeatureAvx512Vl);
  if (bit(basic.ecx, 27)) {
    constexpr std::uint32_t kYmm = 0x06, kZmm = 0xE6;
    const std::uint32_t saved = saved_states();
    add((saved & kYmm) == kYmm, kFeatureYmmState);
    add((saved & kZmm) == kZmm, kFeatureZmmState);
  }
  return features;
}

CacheSizes cache_sizes() noexcept {
  CacheSizes sizes;
  if (read_caches(4, sizes)) return sizes;
  read_caches(0x8000001D, sizes);
  return sizes;
}

InstructionSet choose_instruction_set(std::uint32_t features) noexcept {
  char wanted[16] = "";
  const bool limited = read_environment("QUORIN_CPU", wanted, sizeof wanted);
  InstructionSet chosen = InstructionSet::kSse2;
  for (const InstructionSetRow& row : kInstructionSets) {
    if (can_run(row, features)) chosen = row.set;
    if (limited && std::strcmp(row.name, wanted) == 0) break;
  }
  return chosen;
}

}  // namespace quorin::platform
