// What the cores can do at best, measured beside the rows: arithmetic in registers, and memory streams.
#pragma once

#include <cstddef>

namespace quorin::bench {

// The widest instructions that the loops below use here.
const char* instruction_set();

// `rounds` rounds of independent multiply-add chains that stay in registers.
using ArithmeticLoop = void(int rounds);

// AVX2 with FMA if the CPU has it, else SSE multiplications and additions.
ArithmeticLoop* best_arithmetic();
double best_arithmetic_flops(int rounds);
// SSE in any case.
void sse_arithmetic(int rounds);
double sse_arithmetic_flops(int rounds);

// Memory is streamed in blocks of this many floats.
inline constexpr std::size_t kStreamBlock = 32;

using ReadLoop = void(const float* x, std::size_t blocks);
ReadLoop* best_read();
// y <- a x + y
using TriadLoop = void(float a, const float* x, float* y, std::size_t blocks);
TriadLoop* best_triad();

}  // namespace quorin::bench
