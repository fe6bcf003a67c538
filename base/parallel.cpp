#include "base/parallel.hpp"

#include <algorithm>
#include <atomic>
#include <mutex>

#include "base/idle.hpp"
#include "base/thread_settings.hpp"
#include "platform/floating_point.hpp"
#include "platform/platform.hpp"
#include "platform/workers.hpp"

namespace quorin::base {
namespace {

// One parallel region; lives on the stack of the thread that runs it.
struct Region {
  Region(void (*part_function)(void*, int), void* part_context, int part_count)
      : part(part_function), context(part_context), parts(part_count) {}

  void (*part)(void*, int);
  void* context;
  int parts;
  std::atomic<int> next{0};
  // Guarded by the pool's mutex.
  int wanted = 0;               // workers that may still join
  std::atomic<int> working{0};  // workers that have joined and not left
  Region* following = nullptr;
  platform::ConditionVariable left;

  void run_parts() {
    for (int i = next.fetch_add(1); i < parts; i = next.fetch_add(1)) part(context, i);
  }
};

constinit platform::ThreadSlot region_slot;

class RegionMark {
 public:
  RegionMark() { region_slot.set(&region_slot); }
  ~RegionMark() { region_slot.set(nullptr); }
  RegionMark(const RegionMark&) = delete;
  RegionMark& operator=(const RegionMark&) = delete;
};

class Pool {
 public:
  void run(Region& region, int helpers) {
    open(region, helpers);
    {
      const RegionMark mark;
      region.run_parts();
    }
    close(region);
  }

  void wake_idle() {
    const std::lock_guard lock(mutex_);
    work_arrived_.notify_all();
  }

  // Workers neither stay nor come between the two.
  void end() {
    const std::lock_guard lock(mutex_);
    has_ended_ = true;
    work_arrived_.notify_all();
  }
  void begin() { has_ended_ = false; }

  void set_idle_action(void (*action)() noexcept) { idle_action_ = action; }

 private:
  static void worker_main(void* pool) noexcept { static_cast<Pool*>(pool)->work(); }

  void open(Region& region, int helpers) {
    mutex_.lock();
    region.wanted = helpers;
    region.following = regions_;
    regions_ = &region;
    opened_.fetch_add(1, std::memory_order_relaxed);
    // Workers still on their way count as idle, so that simultaneous regions do not start too many.
    const int missing = std::clamp(helpers - idle_, 0, kMostThreads - 1 - workers_);
    workers_ += missing;
    idle_ += missing;
    for (int i = 0; i < std::min(helpers, idle_ - missing); ++i) work_arrived_.notify_one();
    mutex_.unlock();
    for (int i = 0; i < missing; ++i) {
      if (platform::start_worker(worker_main, this)) continue;
      const std::lock_guard lock(mutex_);
      --workers_;
      --idle_;
    }
  }

  // No worker joins any more; waits for those that have.
  void close(Region& region) {
    mutex_.lock();
    for (Region** link = &regions_; *link != nullptr; link = &(*link)->following) {
      if (*link == &region) {
        *link = region.following;
        break;
      }
    }
    spin_while([&region] { return region.working.load(std::memory_order_relaxed) > 0; });
    while (region.working > 0) region.left.wait(mutex_);
    mutex_.unlock();
  }

  Region* joinable() {
    Region* region = regions_;
    while (region != nullptr && (region->wanted == 0 || region->next.load() >= region->parts))
      region = region->following;
    return region;
  }

  void work() {
    platform::use_own_floating_point();
    const RegionMark mark;
    mutex_.lock();
    while (Region* const region = wait_for_region()) {
      --idle_;
      --region->wanted;
      ++region->working;
      mutex_.unlock();
      region->run_parts();
      mutex_.lock();
      ++idle_;
      if (--region->working == 0) region->left.notify_one();
    }
    --idle_;
    // With the mutex held, so that it is over when the library ends.
    if (--workers_ == 0 && !has_ended_ && idle_action_ != nullptr) idle_action_();
    mutex_.unlock();
  }

  // The next region to join, or null after the block time. Called and left with the mutex held.
  Region* wait_for_region() {
    Region* region = joinable();
    if (region == nullptr && block_time() > 0) {
      const unsigned before = opened_.load(std::memory_order_relaxed);
      spin_while([&] { return opened_.load(std::memory_order_relaxed) == before; });
      region = joinable();
    }
    while (region == nullptr) {
      // A wake-up may be for a region that others have finished; the wait then starts afresh, which only errs on the
      // side of patience. It may also be because the block time has changed, or because all is over.
      const int patience = has_ended_ ? 0 : block_time();
      const bool notified = patience > 0 && work_arrived_.wait_for(mutex_, patience);
      region = joinable();
      if (!notified) break;
    }
    return region;
  }

  // A sleeping thread takes longer to wake up than most regions and what is between them take. Called and left with the
  // mutex held, which others may have in between.
  template <class Condition>
  void spin_while(const Condition& holds) {
    constexpr int kSpins = 20'000;  // half a millisecond, or twice that
    if (!holds()) return;
    mutex_.unlock();
    for (int i = 0; i < kSpins && holds(); ++i) platform::spin_pause();
    mutex_.lock();
  }

  platform::Mutex mutex_;
  platform::ConditionVariable work_arrived_;
  Region* regions_ = nullptr;
  int workers_ = 0;
  int idle_ = 0;
  bool has_ended_ = false;
  void (*idle_action_)() noexcept = nullptr;
  std::atomic<unsigned> opened_{0};  // regions so far
};

constinit Pool pool;

}  // namespace

void start_parallel() {
  region_slot.create();
  pool.begin();
}

void stop_parallel() {
  pool.end();
  platform::await_workers();
  region_slot.destroy();
}

void apply_block_time() { pool.wake_idle(); }

void set_idle_action(void (*action)() noexcept) { pool.set_idle_action(action); }

bool in_parallel_region() { return region_slot.get() != nullptr; }

void detail::run_region(int parts, int threads, void (*part)(void*, int), void* context) {
  const int helpers = std::min(parts, threads) - 1;
  if (helpers < 1 || in_parallel_region()) {
    for (int i = 0; i < parts; ++i) part(context, i);
    return;
  }
  Region region(part, context, parts);
  pool.run(region, helpers);
}

}  // namespace quorin::base
