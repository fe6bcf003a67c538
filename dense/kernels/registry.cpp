#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>

#include "dense/kernels/sets.hpp"
#include "platform/platform.hpp"

namespace quorin::dense::kernels {
namespace {

using MakeSets = void(const platform::CacheSizes& caches, KernelSets& sets) noexcept;
constexpr std::array<MakeSets*, platform::kInstructionSets.size()> kMakers = {make_sse2_sets, make_avx2_sets,
                                                                              make_avx512_sets};

// For each instruction set the kernels for operations of any size, and those for small ones.
struct Family {
  KernelSets all, small;
};
std::array<Family, kMakers.size()> families;
constinit std::atomic<const Family*> chosen{nullptr};
constinit platform::Mutex mutex;

std::size_t index_of(platform::InstructionSet set) { return static_cast<std::size_t>(set); }

// The packed panel and block of the largest product must fit into the buffer, and tiles must not straddle blocks.
template <Scalar T>
void check(const KernelSet<T>& set) noexcept {
  const auto depth = static_cast<std::size_t>(set.blocking.depth),
             columns = static_cast<std::size_t>(set.blocking.columns);
  const std::size_t parts = kIsComplex<T> ? 2 : 1;  // a complex panel holds every element twice
  const std::size_t panel = depth * parts * static_cast<std::size_t>(set.tile_rows) * sizeof(T);
  const bool holds = set.blocking.depth > 0 && set.blocking.columns % set.tile_columns == 0 &&
                     panel + depth * columns * sizeof(T) <= kBufferBytes;
  if (!holds) platform::fail_assertion("blocks of a kernel set fit its buffer", __FILE_NAME__, __LINE__);
}

void check(const KernelSets& sets) noexcept {
  check(sets.s);
  check(sets.d);
  check(sets.c);
  check(sets.z);
}

void make(std::size_t index, const platform::CacheSizes& caches) noexcept {
  auto& [all, small] = families[index];
  kMakers[index](caches, all);
  small = all;
  if (all.s.uses_wide_registers) make_avx2_small_sets(caches, small);
  check(all);
  check(small);
}

const Family& chosen_family() noexcept {
  if (const Family* const family = chosen.load(std::memory_order_acquire)) return *family;
  choose_kernels();  // in a program that links the engine without the library's entry point
  return *chosen.load();
}

template <Scalar T>
const KernelSet<T>& select(const KernelSets& sets) noexcept {
  if constexpr (std::same_as<T, float>) {
    return sets.s;
  } else if constexpr (std::same_as<T, double>) {
    return sets.d;
  } else if constexpr (std::same_as<T, std::complex<float>>) {
    return sets.c;
  } else {
    return sets.z;
  }
}

}  // namespace

void choose_kernels() noexcept {
  const std::lock_guard lock(mutex);
  if (chosen.load() != nullptr) return;
  const std::uint32_t features = platform::cpu_features();
  const platform::CacheSizes caches = platform::cache_sizes();
  for (const platform::InstructionSetRow& row : platform::kInstructionSets) {
    if (platform::can_run(row, features)) make(index_of(row.set), caches);
  }
  choose_kernels(platform::choose_instruction_set(features));
}

void choose_kernels(platform::InstructionSet set) noexcept { chosen.store(&families[index_of(set)]); }

template <Scalar T>
const KernelSet<T>& kernels() noexcept {
  return select<T>(chosen_family().all);
}

template <Scalar T>
const KernelSet<T>& small_kernels() noexcept {
  return select<T>(chosen_family().small);
}

template <Scalar T>
const KernelSet<T>& kernels_of(platform::InstructionSet set) noexcept {
  return select<T>(families[index_of(set)].all);
}

#if defined(__i386__)

// In 32-bit code VZEROUPPER reaches eight registers of sixteen, and there are processors (AMD's Zen 4) that then take
// the others for used: from there on each SSE instruction waits for the upper half of the register that it writes, and
// code for SSE runs at a fourth of its speed. Only XRSTOR puts all registers into their initial state.
[[gnu::target("xsave")]] void leave_wide_registers() noexcept {
  // A saved state in which the header says that the AVX registers are as at the start, and MXCSR is as it is.
  struct alignas(64) SavedState {
    unsigned char legacy[24];
    std::uint32_t mxcsr;
    unsigned char unused[484];
    std::array<std::uint64_t, 8> header;
    unsigned char upper_halves[256];
  } state;  // NOLINT(cppcoreguidelines-pro-type-member-init): only what is read
  static_assert(offsetof(SavedState, header) == 512);
  constexpr std::uint32_t kUpperHalves = 1U << 2;
  state.header = {};
  state.mxcsr = __builtin_ia32_stmxcsr();
  asm volatile("xrstor %0" : : "m"(state), "a"(kUpperHalves), "d"(0));
}

#else

void leave_wide_registers() noexcept {}  // the kernels have executed VZEROUPPER

#endif

template const KernelSet<float>& kernels() noexcept;
template const KernelSet<double>& kernels() noexcept;
template const KernelSet<std::complex<float>>& kernels() noexcept;
template const KernelSet<std::complex<double>>& kernels() noexcept;
template const KernelSet<float>& small_kernels() noexcept;
template const KernelSet<double>& small_kernels() noexcept;
template const KernelSet<std::complex<float>>& small_kernels() noexcept;
template const KernelSet<std::complex<double>>& small_kernels() noexcept;
template const KernelSet<float>& kernels_of(platform::InstructionSet) noexcept;
template const KernelSet<double>& kernels_of(platform::InstructionSet) noexcept;
template const KernelSet<std::complex<float>>& kernels_of(platform::InstructionSet) noexcept;
template const KernelSet<std::complex<double>>& kernels_of(platform::InstructionSet) noexcept;

}  // namespace quorin::dense::kernels
