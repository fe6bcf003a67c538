// What a process holds of the system's resources.
#pragma once

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

#include "tests/support/standard.hpp"
#include "tests/support/system.hpp"

namespace quorin::test {

#if defined(_WIN32)

inline int thread_count() {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  int count = 0;
  for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
    if (entry.th32OwnerProcessID == GetCurrentProcessId()) ++count;
  }
  CloseHandle(snapshot);
  return count;
}

// Open handles, by asking for each number that one may have: Wine's GetProcessHandleCount knows none.
inline int handle_count() {
  constexpr std::uintptr_t kMost = 0x1000;
  int count = 0;
  for (std::uintptr_t number = 4; number < kMost; number += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags) != 0) ++count;
  }
  return count;
}

// Committed memory that is not part of a file: heaps, stacks, and whatever was allocated by pages.
inline std::size_t private_bytes() {
  std::size_t bytes = 0;
  MEMORY_BASIC_INFORMATION area{};
  for (const char* address = nullptr; VirtualQuery(address, &area, sizeof area) == sizeof area;) {
    if (area.State == MEM_COMMIT && area.Type == MEM_PRIVATE) bytes += area.RegionSize;
    const char* const next = static_cast<const char*>(area.BaseAddress) + area.RegionSize;
    if (next <= address) break;
    address = next;
  }
  return bytes;
}

// How many more thread-local slots, or fiber-local ones, the process can have.
template <class Allocate, class Free>
int free_slot_count(const Allocate& allocate, const Free& free) {
  std::vector<DWORD> taken;
  for (DWORD slot = allocate(); slot != TLS_OUT_OF_INDEXES; slot = allocate()) taken.push_back(slot);
  for (const DWORD slot : taken) free(slot);
  return static_cast<int>(taken.size());
}
inline int free_thread_slots() { return free_slot_count(TlsAlloc, TlsFree); }
inline int free_fiber_slots() {
  return free_slot_count([] { return FlsAlloc(nullptr); }, FlsFree);
}

// Bytes in use on all heaps of the process.
inline std::size_t heap_bytes() {
  std::size_t bytes = 0;
  HANDLE heaps[64];
  const DWORD heap_count = GetProcessHeaps(64, heaps);
  for (DWORD i = 0; i < heap_count && i < 64; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry)) {
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    }
    HeapUnlock(heaps[i]);
  }
  return bytes;
}

#else

inline int entries_of(const char* directory) {
  using std::filesystem::directory_iterator;
  return static_cast<int>(std::distance(directory_iterator(directory), directory_iterator()));
}
inline int thread_count() { return entries_of("/proc/self/task"); }
inline int handle_count() { return entries_of("/proc/self/fd"); }

#endif

// The threads of a process that has no workers. Sanitizers begin a thread of their own with the program's first one. A
// thread that has been joined may still be counted for a moment.
inline int thread_count_alone() {
  std::thread([] {}).join();
  int least = thread_count();
  for (int i = 0; i < 50; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    least = std::min(least, thread_count());
  }
  return least;
}

}  // namespace quorin::test
