// What a process holds of the system's resources.
#pragma once

#include <cstddef>
#include <thread>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <tlhelp32.h>
#else
#include <filesystem>
#include <iterator>
#endif

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

inline int handle_count() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return static_cast<int>(count);
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

// Thread-local slots in use, of which a process has 1,088.
inline int thread_slot_count() {
  constexpr int kMost = 1088;
  DWORD taken[kMost];
  int free_slots = 0;
  while (free_slots < kMost && (taken[free_slots] = TlsAlloc()) != TLS_OUT_OF_INDEXES) ++free_slots;
  for (int i = 0; i < free_slots; ++i) TlsFree(taken[i]);
  return kMost - free_slots;
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

inline int thread_count() {
  using std::filesystem::directory_iterator;
  return static_cast<int>(std::distance(directory_iterator("/proc/self/task"), directory_iterator()));
}

#endif

// The threads of a process that has no workers. Sanitizers begin a thread of their own with the program's first one.
inline int thread_count_alone() {
  std::thread([] {}).join();
  return thread_count();
}

}  // namespace quorin::test
