// The POSIX thread functions that GCC's run-time library asks for, to guard its table of unwind information and its
// spare memory for exceptions, and to keep one pointer per thread.
//
// In the DLL they take the place of libwinpthread. That library never gives anything back: every load would take one of
// the process's 1,088 thread-local slots and some blocks of memory for good, and the last slot ends in a crash. This
// one holds a single fiber-local slot, and freeing that frees the values of all threads.
#include "platform/win32/gcc_threads.hpp"

#include <pthread.h>

#include <cerrno>
#include <cstddef>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace quorin::platform {
namespace {

using Destructor = void (*)(void*);

constexpr std::size_t kMostKeys = 8;
struct Values {
  void* of_key[kMostKeys];
};

constinit SRWLOCK keys_lock = SRWLOCK_INIT;
constinit Destructor destructors[kMostKeys] = {};
constinit std::size_t key_count = 0;
constinit DWORD slot = FLS_OUT_OF_INDEXES;

// Runs for a thread that ends and, when the slot is freed, for every thread.
void WINAPI destroy_values(void* memory) noexcept {
  auto* const values = static_cast<Values*>(memory);
  for (std::size_t key = 0; key < kMostKeys; ++key) {
    if (values->of_key[key] != nullptr && destructors[key] != nullptr) destructors[key](values->of_key[key]);
  }
  HeapFree(GetProcessHeap(), 0, values);
}

Values* values_of_this_thread() {
  // Reading a slot clears the calling thread's last error, which belongs to the host.
  const DWORD error = GetLastError();
  void* const values = slot == FLS_OUT_OF_INDEXES ? nullptr : FlsGetValue(slot);
  SetLastError(error);
  return static_cast<Values*>(values);
}

Values* create_values_of_this_thread() {
  if (slot == FLS_OUT_OF_INDEXES) return nullptr;
  void* const values = HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, sizeof(Values));
  if (values != nullptr && !FlsSetValue(slot, values)) {
    HeapFree(GetProcessHeap(), 0, values);
    return nullptr;
  }
  return static_cast<Values*>(values);
}

static_assert(sizeof(pthread_mutex_t) == sizeof(SRWLOCK));

SRWLOCK* as_lock(pthread_mutex_t* mutex) {
  // The static initialiser is not zero; the first use makes it so.
  auto* const word = reinterpret_cast<volatile LONG*>(mutex);
  if (*word == static_cast<LONG>(PTHREAD_MUTEX_INITIALIZER)) {
    InterlockedCompareExchange(word, 0, static_cast<LONG>(PTHREAD_MUTEX_INITIALIZER));
  }
  return reinterpret_cast<SRWLOCK*>(mutex);
}

}  // namespace

void release_gcc_threads() {
  if (slot != FLS_OUT_OF_INDEXES) FlsFree(slot);
  slot = FLS_OUT_OF_INDEXES;
}

}  // namespace quorin::platform

using namespace quorin::platform;

extern "C" {

int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes) {
  if (attributes != nullptr) return ENOTSUP;
  InitializeSRWLock(reinterpret_cast<SRWLOCK*>(mutex));
  return 0;
}

int pthread_mutex_destroy(pthread_mutex_t*) { return 0; }

int pthread_mutex_lock(pthread_mutex_t* mutex) {
  AcquireSRWLockExclusive(as_lock(mutex));
  return 0;
}

int pthread_mutex_unlock(pthread_mutex_t* mutex) {
  ReleaseSRWLockExclusive(as_lock(mutex));
  return 0;
}

int pthread_once(pthread_once_t* once, void (*routine)()) {
  enum : LONG { kNever = PTHREAD_ONCE_INIT, kRunning, kDone };
  auto* const state = reinterpret_cast<volatile LONG*>(once);
  while (*state != kDone) {
    if (InterlockedCompareExchange(state, kRunning, kNever) == kNever) {
      routine();
      InterlockedExchange(state, kDone);
    } else if (*state == kRunning) {
      Sleep(1);
    }
  }
  return 0;
}

int pthread_key_create(pthread_key_t* key, void (*destructor)(void*)) {
  AcquireSRWLockExclusive(&keys_lock);
  if (slot == FLS_OUT_OF_INDEXES) slot = FlsAlloc(destroy_values);
  const bool has_room = slot != FLS_OUT_OF_INDEXES && key_count < kMostKeys;
  if (has_room) {
    destructors[key_count] = destructor;
    *key = static_cast<pthread_key_t>(key_count++);
  }
  ReleaseSRWLockExclusive(&keys_lock);
  return has_room ? 0 : EAGAIN;
}

void* pthread_getspecific(pthread_key_t key) {
  const Values* const values = values_of_this_thread();
  return values != nullptr && key < kMostKeys ? values->of_key[key] : nullptr;
}

int pthread_setspecific(pthread_key_t key, const void* value) {
  if (key >= kMostKeys) return EINVAL;
  Values* values = values_of_this_thread();
  if (values == nullptr) values = create_values_of_this_thread();
  if (values == nullptr) return ENOMEM;
  values->of_key[key] = const_cast<void*>(value);
  return 0;
}
}
