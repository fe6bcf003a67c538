// Everything that depends on the operating system, behind one header: one implementation in win32/, one in posix/.
//
// The types here are constant-initialised and trivially destructible, because the library is loaded and unloaded by
// hosts many times: a lock that allocated on first use would leak with every unload.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorin::platform {

// --- Locks -----------------------------------------------------------------------------------------------------------

namespace detail {
// Not std::max_align_t's: MinGW has two headers for that, which do not agree.
inline constexpr std::size_t kLockAlignment = 8;
}  // namespace detail

class Mutex {
 public:
  constexpr Mutex() = default;
  Mutex(const Mutex&) = delete;
  Mutex& operator=(const Mutex&) = delete;
  void lock();
  void unlock();

 private:
  friend class ConditionVariable;
  alignas(detail::kLockAlignment) std::byte storage_[64] = {};
};

class ConditionVariable {
 public:
  constexpr ConditionVariable() = default;
  ConditionVariable(const ConditionVariable&) = delete;
  ConditionVariable& operator=(const ConditionVariable&) = delete;
  void wait(Mutex& mutex);
  // False after `milliseconds` without a notification; kForever never times out.
  bool wait_for(Mutex& mutex, std::int32_t milliseconds);
  void notify_one();
  void notify_all();

 private:
  alignas(detail::kLockAlignment) std::byte storage_[64] = {};
};

inline constexpr std::int32_t kForever = INT32_MAX;

// Tells the processor that this thread spins.
void spin_pause();

// --- Threads ---------------------------------------------------------------------------------------------------------

// Runs `body(argument)` in a thread of its own, which ends after it. Before the library is unloaded, await_workers()
// (workers.hpp) has to see all of them out. False if the system has no thread to give.
[[nodiscard]] bool start_worker(void (*body)(void*), void* argument);

// Physical cores that this process may run on, at least 1.
[[nodiscard]] int physical_core_count();

// One pointer-sized value per thread, null at first. Creating it can fail; then it reads null and ignores writes.
class ThreadSlot {
 public:
  void create();
  void destroy();
  void* get() const;
  void set(void* value);

 private:
  std::uint32_t key_ = 0;
  bool created_ = false;
};

// --- Modules ---------------------------------------------------------------------------------------------------------

// A shared library's handle, or null.
using Module = void*;
// Adds a reference.
[[nodiscard]] Module open_module(const char* file);
// The same for a library that is loaded, or else stands in the folder of this library or of the program; on
// posix, where the loader finds it. Never one in the current directory.
[[nodiscard]] Module open_companion(const char* name);
// Adds none.
[[nodiscard]] Module find_loaded_module(const char* name);
void close_module(Module module);
[[nodiscard]] void* find_symbol(Module module, const char* name);

// Whether there is still code at this address: not after the module that held it was unloaded. Code that run-time
// systems make counts as well.
[[nodiscard]] bool is_code_mapped(const void* address);

// The file name under which a library is known here: "libimalloc" is libimalloc.dll or libimalloc.so.
#if defined(_WIN32)
inline constexpr const char* kAllocatorLibrary = "libimalloc.dll";
inline constexpr const char* kOpenMpLibrary = "libiomp5md.dll";
#else
inline constexpr const char* kAllocatorLibrary = "libimalloc.so";
inline constexpr const char* kOpenMpLibrary = "libiomp5.so";
#endif

// --- Clock, memory ---------------------------------------------------------------------------------------------------

// Seconds since midnight, universal time, to the millisecond.
double seconds_of_day();

// What the system tells about memory, in bytes. On 32-bit Windows the figures stop below 4 GiB.
struct MemoryStatus {
  unsigned load_percent = 0;
  double total_physical = 0, available_physical = 0;
  double total_page_file = 0, available_page_file = 0;
  double total_virtual = 0, available_virtual = 0;
};
MemoryStatus memory_status();

// --- Files -----------------------------------------------------------------------------------------------------------

// A file that is read or written from its beginning, closed when it goes out of scope. False if it could not be opened.
class File {
 public:
  File() = default;
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File();

  void open_for_reading(const char* name);
  // The C library's mode "w": the file is made or emptied, and a line ends as the system's text files want it.
  void open_for_text(const char* name);
  // The same, but what the file holds stays, and every write goes behind it.
  void open_for_appending(const char* name);
  // Made with mode 0700 if there is none; what an existing file holds stays until it is written over.
  void open_for_overwriting(const char* name);

  explicit operator bool() const { return handle_ >= 0; }
  // Bytes in all; the largest number if the system cannot tell, as for a pipe.
  std::uint64_t size() const;
  // Bytes read, fewer only at the end of the file or after an error.
  [[nodiscard]] std::size_t read(void* buffer, std::size_t bytes);
  // Whether all of it was written.
  bool write(const void* buffer, std::size_t bytes);

 private:
  int handle_ = -1;
};

// --- Environment, output ---------------------------------------------------------------------------------------------

// Copies the value of an environment variable, zero-terminated; false if it is unset or longer than the buffer.
[[nodiscard]] bool read_environment(const char* name, char* buffer, std::size_t size);

// The one door to the process's standard output; flushed at once.
void write_standard_output(const char* text);

// The one door through which the library stops the process: the C runtime's assertion handler.
[[noreturn]] void fail_assertion(const char* expression, const char* file, unsigned line);

}  // namespace quorin::platform
