// What the cores can do at best, measured beside the rows: arithmetic in registers, and memory streams.
#pragma once

#include <cstddef>

namespace quorin::bench {

// The instruction set of the loops below: the best that runs here or, if QUORIN_CPU names a lower one, that, as in the
// product.
const char* instruction_set();

// `rounds` rounds of independent multiply-add chains that stay in registers.
using ArithmeticLoop = void(int rounds);

// Multiply-adds in the set's registers, or SSE multiplications and additions.
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

// Whoever calls these loops owns one of these, so that code for SSE which is measured next finds the registers as it
// wants them.
struct LeaveWideRegisters {
  ~LeaveWideRegisters();
};

}  // namespace quorin::bench
