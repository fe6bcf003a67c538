#include "bench/limits.hpp"

#include "dense/kernels/kernel_set.hpp"
#include "platform/cpu.hpp"

namespace quorin::bench {
namespace {

// The set that the product chooses here, too.
platform::InstructionSet chosen_set() {
  static const platform::InstructionSet set = platform::choose_instruction_set(platform::cpu_features());
  return set;
}

// Vector registers; they may look at any array.
struct Sse {
  using Floats [[gnu::vector_size(16), gnu::may_alias]] = float;
  using Bits [[gnu::vector_size(16), gnu::may_alias]] = int;
};
struct Avx {
  using Floats [[gnu::vector_size(32), gnu::may_alias]] = float;
  using Bits [[gnu::vector_size(32), gnu::may_alias]] = int;
};
struct Avx512 {
  using Floats [[gnu::vector_size(64), gnu::may_alias]] = float;
};

// 32-bit code has eight vector registers, and eight chains are what two FMA units with four cycles of latency want. A
// chain is x <- x x + x with no other operand; from -1/2 it creeps towards 0 and never gets subnormal.
constexpr int kChains = 8;

template <class Floats>
[[gnu::always_inline]] inline void fma_chains(int rounds) {
  Floats x0 = Floats{} - 0.5F, x1 = x0, x2 = x0, x3 = x0, x4 = x0, x5 = x0, x6 = x0, x7 = x0;
  for (int i = 0; i < rounds; ++i) {
    x0 += x0 * x0;
    x1 += x1 * x1;
    x2 += x2 * x2;
    x3 += x3 * x3;
    x4 += x4 * x4;
    x5 += x5 * x5;
    x6 += x6 * x6;
    x7 += x7 * x7;
    // Equal chains are not to be merged.
    asm volatile("" : "+v"(x0), "+v"(x1), "+v"(x2), "+v"(x3), "+v"(x4), "+v"(x5), "+v"(x6), "+v"(x7));
  }
}
[[gnu::target("avx2,fma")]] void avx_chains(int rounds) { fma_chains<Avx::Floats>(rounds); }
[[gnu::target("avx512f")]] void avx512_chains(int rounds) { fma_chains<Avx512::Floats>(rounds); }

// Six sums, one product at a time: what fits into eight registers when a product needs one of its own.
constexpr int kSums = 6;

template <class Target>
constexpr std::size_t kVectorsPerBlock = kStreamBlock * sizeof(float) / sizeof(typename Target::Floats);

// Disjunctions take one cycle, so that only the loads count.
template <class Target>
[[gnu::always_inline]] inline void read_stream(const float* x, std::size_t blocks) {
  const auto* const vectors = reinterpret_cast<const typename Target::Bits*>(x);
  typename Target::Bits s0{}, s1{}, s2{}, s3{};
  for (std::size_t i = 0; i < blocks * kVectorsPerBlock<Target>; i += 4) {
    s0 |= vectors[i];
    s1 |= vectors[i + 1];
    s2 |= vectors[i + 2];
    s3 |= vectors[i + 3];
  }
  asm volatile("" : : "m"(s0), "m"(s1), "m"(s2), "m"(s3));
}

template <class Target>
[[gnu::always_inline]] inline void triad_stream(float a, const float* x, float* y, std::size_t blocks) {
  const auto* const from = reinterpret_cast<const typename Target::Floats*>(x);
  auto* const to = reinterpret_cast<typename Target::Floats*>(y);
  for (std::size_t i = 0; i < blocks * kVectorsPerBlock<Target>; ++i) to[i] += a * from[i];
  asm volatile("" : : : "memory");
}

void sse_read(const float* x, std::size_t blocks) { read_stream<Sse>(x, blocks); }
[[gnu::target("avx2,fma")]] void avx_read(const float* x, std::size_t blocks) { read_stream<Avx>(x, blocks); }

void sse_triad(float a, const float* x, float* y, std::size_t blocks) { triad_stream<Sse>(a, x, y, blocks); }
[[gnu::target("avx2,fma")]] void avx_triad(float a, const float* x, float* y, std::size_t blocks) {
  triad_stream<Avx>(a, x, y, blocks);
}

}  // namespace

const char* instruction_set() { return platform::kInstructionSets[static_cast<std::size_t>(chosen_set())].name; }

void sse_arithmetic(int rounds) {
  Sse::Floats s0{}, s1{}, s2{}, s3{}, s4{}, s5{};
  Sse::Floats x = {1, 1, 1, 1};
  const auto next_product = [&x] {
    asm volatile("" : "+x"(x));
    return x * x;
  };
  for (int i = 0; i < rounds; ++i) {
    s0 += next_product();
    s1 += next_product();
    s2 += next_product();
    s3 += next_product();
    s4 += next_product();
    s5 += next_product();
  }
  asm volatile("" : : "x"(s0), "x"(s1), "x"(s2), "x"(s3), "x"(s4), "x"(s5));
}

double sse_arithmetic_flops(int rounds) { return 2.0 * kSums * 4 * rounds; }

ArithmeticLoop* best_arithmetic() {
  switch (chosen_set()) {
    case platform::InstructionSet::kSse2:
      return sse_arithmetic;
    case platform::InstructionSet::kAvx2:
      return avx_chains;
    case platform::InstructionSet::kAvx512:
      break;
  }
  return avx512_chains;
}

double best_arithmetic_flops(int rounds) {
  if (chosen_set() == platform::InstructionSet::kSse2) return sse_arithmetic_flops(rounds);
  return 2.0 * kChains * (chosen_set() == platform::InstructionSet::kAvx2 ? 8 : 16) * rounds;
}

ReadLoop* best_read() { return chosen_set() == platform::InstructionSet::kSse2 ? sse_read : avx_read; }
TriadLoop* best_triad() { return chosen_set() == platform::InstructionSet::kSse2 ? sse_triad : avx_triad; }

LeaveWideRegisters::~LeaveWideRegisters() { dense::kernels::leave_wide_registers(); }

}  // namespace quorin::bench
