#include "base/thread_settings.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>

#include "base/thread_environment.hpp"
#include "platform/platform.hpp"

namespace quorin::base {
namespace {

// What the host has set by calls; 0, or kUnset, where it has not.
constexpr int kUnset = -1;
constinit std::array<std::atomic<int>, kDomainCount> set_counts{};
constinit std::atomic<int> set_dynamic_flag{kUnset};
constinit std::atomic<int> set_block_milliseconds{kUnset};

struct Defaults {
  ThreadEnvironment environment;
  int cores = 1;
};

constinit Defaults defaults_storage;
constinit std::atomic<bool> defaults_ready{false};
constinit platform::Mutex defaults_mutex;

// Read at the first question instead of at load, so that a host can set variables after loading the library.
const Defaults& defaults() {
  if (!defaults_ready.load(std::memory_order_acquire)) {
    const std::lock_guard lock(defaults_mutex);
    if (!defaults_ready.load(std::memory_order_relaxed)) {
      defaults_storage = {read_thread_environment(), platform::physical_core_count()};
      defaults_ready.store(true, std::memory_order_release);
    }
  }
  return defaults_storage;
}

std::size_t index_of(Domain domain) { return static_cast<std::size_t>(domain); }

int call_count(Domain domain) { return set_counts[index_of(domain)].load(std::memory_order_relaxed); }

int first_set(std::initializer_list<int> counts) {
  return *std::ranges::find_if(counts, [](int count) { return count > 0; });
}

}  // namespace

void set_thread_count(Domain domain, int count) {
  set_counts[index_of(domain)].store(count, std::memory_order_relaxed);
}

int thread_count(Domain domain) {
  const ThreadEnvironment& environment = defaults().environment;
  return first_set({call_count(domain), call_count(Domain::kAll), environment.domain_count[index_of(domain)],
                    environment.domain_count[index_of(Domain::kAll)], environment.count, defaults().cores});
}

void set_dynamic(bool enabled) { set_dynamic_flag.store(enabled ? 1 : 0, std::memory_order_relaxed); }

bool dynamic() {
  const int flag = set_dynamic_flag.load(std::memory_order_relaxed);
  return flag == kUnset ? defaults().environment.dynamic : flag != 0;
}

void set_block_time(int milliseconds) {
  if (milliseconds >= 0) set_block_milliseconds.store(milliseconds, std::memory_order_relaxed);
}

int block_time() {
  const int milliseconds = set_block_milliseconds.load(std::memory_order_relaxed);
  return milliseconds == kUnset ? defaults().environment.block_time : milliseconds;
}

int region_threads(Domain domain) {
  const int count = std::min(thread_count(domain), kMostThreads);
  return dynamic() ? std::min(count, defaults().cores) : count;
}

}  // namespace quorin::base
