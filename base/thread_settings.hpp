// How many threads the library may use, and how long idle workers wait for more work.
//
// Counts are limits that a host sets before numerical work. Until it does, they come from the environment, read once at
// the first question: MKL_DOMAIN_NUM_THREADS, MKL_NUM_THREADS, OMP_NUM_THREADS, else one thread per physical core.
// A call outranks the environment, and a domain's own count outranks the count for all.
#pragma once

namespace quorin::base {

enum class Domain : int { kAll = 0, kBlas = 1, kFft = 2, kVectorMath = 3, kSparseDirect = 4 };
inline constexpr int kDomainCount = 5;

// The most threads that one region ever runs on.
inline constexpr int kMostThreads = 64;

// A count of 0 means unset: the environment and then the core count decide again.
void set_thread_count(Domain domain, int count);
[[nodiscard]] int thread_count(Domain domain);

// With dynamic adjustment, the default, no more threads run than there are physical cores, and fewer on small problems.
void set_dynamic(bool enabled);
[[nodiscard]] bool dynamic();

// Milliseconds that an idle worker waits before it ends; platform::kForever never ends it. Negative values are ignored.
void set_block_time(int milliseconds);
[[nodiscard]] int block_time();

// The number of threads on which a region of the domain should run: thread_count limited by the physical cores while
// dynamic adjustment is on, by kMostThreads always.
[[nodiscard]] int region_threads(Domain domain);

}  // namespace quorin::base
