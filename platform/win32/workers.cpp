// Workers are threads of a pool of the system's. They start in the system's code and return to it, so that the system
// can tell when none is in the library's any more, and none needs a reference that keeps the library loaded.
#include "platform/workers.hpp"

#include <utility>

#include "platform/platform.hpp"
#include "platform/win32/later_functions.hpp"

namespace quorin::platform {
namespace {

struct WorkerStart {
  void (*body)(void*);
  void* argument;
  WorkerStart* following;
};

constinit SRWLOCK workers_lock = SRWLOCK_INIT;
constinit PTP_POOL pool = nullptr;            // while there are workers: its threads end with it
constinit PTP_CLEANUP_GROUP group = nullptr;  // all workers since load
constinit WorkerStart* not_begun = nullptr;
constinit int worker_count = 0;  // those that have not begun among them

void close_pool() {
  if (pool != nullptr) CloseThreadpool(std::exchange(pool, nullptr));
}

// Takes one of those that wait for a thread.
WorkerStart pop_start() {
  WorkerStart* const first = not_begun;
  const WorkerStart start = *first;
  not_begun = start.following;
  HeapFree(GetProcessHeap(), 0, first);
  return start;
}

void CALLBACK worker_main(PTP_CALLBACK_INSTANCE, void*) noexcept {
  AcquireSRWLockExclusive(&workers_lock);
  const WorkerStart start = pop_start();
  ReleaseSRWLockExclusive(&workers_lock);
  start.body(start.argument);
  AcquireSRWLockExclusive(&workers_lock);
  // The system would keep the threads, and a megabyte of addresses for each, for seconds.
  if (--worker_count == 0) close_pool();
  ReleaseSRWLockExclusive(&workers_lock);
}

bool open_pool() {
  if (group == nullptr) group = CreateThreadpoolCleanupGroup();
  if (group == nullptr) return false;
  if (pool != nullptr) return true;
  pool = CreateThreadpool(nullptr);
  if (pool == nullptr) return false;
  // Otherwise stacks are as large as the host's program wants its own.
  TP_POOL_STACK_INFORMATION stack{.StackReserve = 1 << 20, .StackCommit = 1 << 16};
  using SetStack = BOOL WINAPI(PTP_POOL, TP_POOL_STACK_INFORMATION*);
  if (auto* const set_stack = later_function<SetStack>("SetThreadpoolStackInformation")) set_stack(pool, &stack);
  return true;
}

bool submit() {
  TP_CALLBACK_ENVIRON environment;
  InitializeThreadpoolEnvironment(&environment);
  SetThreadpoolCallbackPool(&environment, pool);
  SetThreadpoolCallbackCleanupGroup(&environment, group, nullptr);
  SetThreadpoolCallbackRunsLong(&environment);
  return TrySubmitThreadpoolCallback(worker_main, nullptr, &environment) != FALSE;
}

bool start(void (*body)(void*), void* argument) {
  if (!open_pool()) return false;
  auto* const added = static_cast<WorkerStart*>(HeapAlloc(GetProcessHeap(), 0, sizeof(WorkerStart)));
  if (added == nullptr) return false;
  *added = {body, argument, not_begun};
  not_begun = added;
  if (!submit()) {
    pop_start();
    return false;
  }
  ++worker_count;
  return true;
}

}  // namespace

bool start_worker(void (*body)(void*), void* argument) {
  AcquireSRWLockExclusive(&workers_lock);
  const bool is_started = start(body, argument);
  if (worker_count == 0) close_pool();
  ReleaseSRWLockExclusive(&workers_lock);
  return is_started;
}

// Workers that are about to leave take no lock but this file's and their pool's. Those that have not begun, and may
// wait for the loader, are never called.
void await_workers() {
  if (group == nullptr) return;
  CloseThreadpoolCleanupGroupMembers(group, TRUE, nullptr);
  CloseThreadpoolCleanupGroup(std::exchange(group, nullptr));
  while (not_begun != nullptr) pop_start();
  worker_count = 0;
  close_pool();
}

}  // namespace quorin::platform
