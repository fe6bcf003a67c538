// Clocks, memory and the log file's name.
#pragma once

#include <cstdint>

namespace quorin::taucs {

// Keeps the name of the log file, cut to a fixed buffer; "stderr", "stdout" and "none" change nothing. Nothing is ever
// written to it. To be called before any concurrent use.
void logfile(const char* name) noexcept;

// Seconds since midnight, universal time: an interval across midnight is negative.
double wtime() noexcept;

// Always 0: this build does not measure processor time.
double ctime() noexcept;

// Bytes of physical memory.
double system_memory_size() noexcept;

// Bytes that a computation may plan to use: the largest block that the allocator grants (found to 1/64 and given back
// at once), but no more than the physical memory that is available.
double available_memory_size() noexcept;

// Not supported: -1.
std::int32_t maximize_stacksize() noexcept;

}  // namespace quorin::taucs
