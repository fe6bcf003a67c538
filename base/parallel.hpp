// Parallel regions on the library's own worker threads.
//
// Workers are started when a region first wants them and end after the block time without work (thread_settings.hpp).
// A region takes the workers that are free; with none it runs on the calling thread alone. So regions of several host
// threads share one bounded set of workers, and a region inside a region is sequential.
#pragma once

#include <memory>
#include <type_traits>

namespace quorin::base {

// Prepares and gives back the thread slot that marks regions; called at load and unload.
void start_parallel();
void stop_parallel();

// Makes idle workers look at the block time again.
void apply_block_time();

// Whether the calling thread is inside a region: more parallelism would oversubscribe the cores.
[[nodiscard]] bool in_parallel_region();

namespace detail {
void run_region(int parts, int threads, void (*part)(void* context, int index), void* context);
}

// Calls body(0), ..., body(parts - 1), each exactly once, in any order, on at most `threads` threads of which the
// caller is one, and returns when all are done. `body` must not throw.
template <class Body>
void parallel_for(int parts, int threads, Body&& body) {
  if (parts == 1) return static_cast<void>(body(0));
  using Plain = std::remove_reference_t<Body>;
  detail::run_region(
      parts, threads, [](void* context, int index) noexcept { (*static_cast<Plain*>(context))(index); },
      const_cast<std::remove_const_t<Plain>*>(std::addressof(body)));
}

}  // namespace quorin::base
