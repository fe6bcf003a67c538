#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>

#include "dense/kernels/sets.hpp"
#include "platform/platform.hpp"

namespace quorin::dense::kernels {
namespace {

using MakeSets = void(const platform::CacheSizes& caches, KernelSets& sets) noexcept;
constexpr std::array<MakeSets*, platform::kInstructionSets.size()> kMakers = {make_sse2_sets, make_avx2_sets,
                                                                              make_avx512_sets};

std::array<KernelSets, kMakers.size()> all_sets;
constinit std::atomic<const KernelSets*> chosen{nullptr};
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
  if (!holds) platform::fail_assertion("blocks of a kernel set fit its buffer", __FILE__, __LINE__);
}

void make(std::size_t index, const platform::CacheSizes& caches) noexcept {
  KernelSets& sets = all_sets[index];
  kMakers[index](caches, sets);
  check(sets.s);
  check(sets.d);
  check(sets.c);
  check(sets.z);
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

void choose_kernels(platform::InstructionSet set) noexcept { chosen.store(&all_sets[index_of(set)]); }

template <Scalar T>
const KernelSet<T>& kernels() noexcept {
  const KernelSets* sets = chosen.load(std::memory_order_acquire);
  if (sets == nullptr) {  // in a program that links the engine without the library's entry point
    choose_kernels();
    sets = chosen.load();
  }
  return select<T>(*sets);
}

template <Scalar T>
const KernelSet<T>& kernels_of(platform::InstructionSet set) noexcept {
  return select<T>(all_sets[index_of(set)]);
}

template const KernelSet<float>& kernels() noexcept;
template const KernelSet<double>& kernels() noexcept;
template const KernelSet<std::complex<float>>& kernels() noexcept;
template const KernelSet<std::complex<double>>& kernels() noexcept;
template const KernelSet<float>& kernels_of(platform::InstructionSet) noexcept;
template const KernelSet<double>& kernels_of(platform::InstructionSet) noexcept;
template const KernelSet<std::complex<float>>& kernels_of(platform::InstructionSet) noexcept;
template const KernelSet<std::complex<double>>& kernels_of(platform::InstructionSet) noexcept;

}  // namespace quorin::dense::kernels
