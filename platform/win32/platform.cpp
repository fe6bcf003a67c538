#include "platform/platform.hpp"

#undef NDEBUG  // for the declaration of the assertion handler
#include <cassert>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>

#include "platform/win32/later_functions.hpp"

namespace quorin::platform {
namespace {

static_assert(sizeof(SRWLOCK) <= 64 && sizeof(CONDITION_VARIABLE) <= 64);

// Both are a pointer that is zero at first, as the zeroed storage is.
SRWLOCK* as_lock(std::byte* storage) { return std::launder(reinterpret_cast<SRWLOCK*>(storage)); }
CONDITION_VARIABLE* as_condition(std::byte* storage) {
  return std::launder(reinterpret_cast<CONDITION_VARIABLE*>(storage));
}

// The module that this code is part of: the DLL, or the program that it is linked into.
HMODULE own_module() {
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  HMODULE module = nullptr;
  return GetModuleHandleExA(kFlags, reinterpret_cast<LPCSTR>(&own_module), &module) ? module : nullptr;
}

// The library `name` in the folder of a module, of the program if that is null. What it needs itself is not searched
// for in the current directory either.
HMODULE open_beside(HMODULE module, const char* name) {
  char path[MAX_PATH];
  const DWORD length = GetModuleFileNameA(module, path, sizeof path);
  const char* const slash = std::strrchr(path, '\\');
  if (length == 0 || length >= sizeof path || slash == nullptr) return nullptr;
  const auto folder_length = static_cast<std::size_t>(slash + 1 - path);
  if (folder_length + std::strlen(name) >= sizeof path) return nullptr;
  std::strcpy(path + folder_length, name);
  constexpr DWORD kFlags = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS;
  HMODULE found = LoadLibraryExA(path, nullptr, kFlags);
  // Before Windows 8 the flags are known since an update only.
  if (found == nullptr && GetLastError() == ERROR_INVALID_PARAMETER) {
    found = LoadLibraryExA(path, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  }
  return found;
}

}  // namespace

void Mutex::lock() { AcquireSRWLockExclusive(as_lock(storage_)); }
void Mutex::unlock() { ReleaseSRWLockExclusive(as_lock(storage_)); }

void ConditionVariable::wait(Mutex& mutex) { wait_for(mutex, kForever); }

bool ConditionVariable::wait_for(Mutex& mutex, std::int32_t milliseconds) {
  const DWORD timeout = milliseconds == kForever ? INFINITE : static_cast<DWORD>(milliseconds);
  return SleepConditionVariableSRW(as_condition(storage_), as_lock(mutex.storage_), timeout, 0) != 0;
}

void ConditionVariable::notify_one() { WakeConditionVariable(as_condition(storage_)); }
void ConditionVariable::notify_all() { WakeAllConditionVariable(as_condition(storage_)); }

void spin_pause() { YieldProcessor(); }

int physical_core_count() {
  DWORD_PTR process_mask = 0, system_mask = 0;
  GetProcessAffinityMask(GetCurrentProcess(), &process_mask, &system_mask);
  // A row for each core, each cache, each node: the system tells how many.
  DWORD bytes = 0;
  GetLogicalProcessorInformation(nullptr, &bytes);
  auto* const rows =
      static_cast<SYSTEM_LOGICAL_PROCESSOR_INFORMATION*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, bytes));
  int cores = 0;
  if (rows != nullptr && GetLogicalProcessorInformation(rows, &bytes)) {
    for (std::size_t i = 0; i < bytes / sizeof rows[0]; ++i) {
      if (rows[i].Relationship == RelationProcessorCore && (rows[i].ProcessorMask & process_mask) != 0) ++cores;
    }
  }
  if (rows != nullptr) HeapFree(GetProcessHeap(), 0, rows);
  return cores > 0 ? cores : 1;
}

void ThreadSlot::create() {
  const DWORD key = TlsAlloc();
  created_ = key != TLS_OUT_OF_INDEXES;
  key_ = key;
}
void ThreadSlot::destroy() {
  if (created_) TlsFree(key_);
  created_ = false;
}
void* ThreadSlot::get() const {
  if (!created_) return nullptr;
  // TlsGetValue clears the calling thread's last error, which belongs to the host.
  const DWORD error = GetLastError();
  void* const value = TlsGetValue(key_);
  SetLastError(error);
  return value;
}
void ThreadSlot::set(void* value) {
  if (created_) TlsSetValue(key_, value);
}

Module open_module(const char* file) { return LoadLibraryA(file); }
Module open_companion(const char* name) {
  HMODULE module = nullptr;
  if (GetModuleHandleExA(0, name, &module)) return module;
  // A missing library must not raise a message box in the host.
  auto* const set_mode = later_function<BOOL WINAPI(DWORD, DWORD*)>("SetThreadErrorMode");
  DWORD mode = 0;
  if (set_mode != nullptr) set_mode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &mode);
  if (HMODULE const own = own_module()) module = open_beside(own, name);
  if (module == nullptr) module = open_beside(nullptr, name);
  if (set_mode != nullptr) set_mode(mode, nullptr);
  return module;
}
Module find_loaded_module(const char* name) { return GetModuleHandleA(name); }
void close_module(Module module) {
  if (module != nullptr) FreeLibrary(static_cast<HMODULE>(module));
}
void* find_symbol(Module module, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}
bool is_code_mapped(const void* address) {
  // Asked of the memory, because run-time systems make functions outside of modules.
  MEMORY_BASIC_INFORMATION area{};
  constexpr DWORD kExecutable = PAGE_EXECUTE | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
  return VirtualQuery(address, &area, sizeof area) != 0 && area.State == MEM_COMMIT &&
         (area.Protect & kExecutable) != 0;
}

double seconds_of_day() {
  SYSTEMTIME now{};
  GetSystemTime(&now);
  return now.wHour * 3600.0 + now.wMinute * 60.0 + now.wSecond + now.wMilliseconds * 0.001;
}

MemoryStatus memory_status() {
  MEMORYSTATUS status{};
  status.dwLength = sizeof status;
  GlobalMemoryStatus(&status);
  const auto bytes = [](SIZE_T count) { return static_cast<double>(count); };
  return {.load_percent = static_cast<unsigned>(status.dwMemoryLoad),
          .total_physical = bytes(status.dwTotalPhys),
          .available_physical = bytes(status.dwAvailPhys),
          .total_page_file = bytes(status.dwTotalPageFile),
          .available_page_file = bytes(status.dwAvailPageFile),
          .total_virtual = bytes(status.dwTotalVirtual),
          .available_virtual = bytes(status.dwAvailVirtual)};
}

// The C runtime keeps no buffer for these, and the text mode is its own.
File::~File() {
  if (handle_ >= 0) _close(handle_);
}
void File::open_for_reading(const char* name) {
  if (name != nullptr) handle_ = _open(name, _O_RDONLY | _O_BINARY);
}
void File::open_for_text(const char* name) {
  if (name != nullptr) handle_ = _open(name, _O_WRONLY | _O_CREAT | _O_TRUNC | _O_TEXT, _S_IREAD | _S_IWRITE);
}
void File::open_for_appending(const char* name) {
  if (name != nullptr) handle_ = _open(name, _O_WRONLY | _O_CREAT | _O_APPEND | _O_TEXT, _S_IREAD | _S_IWRITE);
}
void File::open_for_overwriting(const char* name) {
  if (name != nullptr) handle_ = _open(name, _O_WRONLY | _O_CREAT | _O_BINARY, _S_IREAD | _S_IWRITE | _S_IEXEC);
}
std::uint64_t File::size() const {
  const __int64 size = _filelengthi64(handle_);
  return size >= 0 ? static_cast<std::uint64_t>(size) : UINT64_MAX;
}
std::size_t File::read(void* buffer, std::size_t bytes) {
  constexpr std::size_t kMost = std::size_t{1} << 26;
  std::size_t done = 0;
  while (handle_ >= 0 && done < bytes) {
    const auto piece = static_cast<unsigned>(std::min(bytes - done, kMost));
    const int got = _read(handle_, static_cast<char*>(buffer) + done, piece);
    if (got <= 0) break;
    done += static_cast<std::size_t>(got);
  }
  return done;
}
bool File::write(const void* buffer, std::size_t bytes) {
  constexpr std::size_t kMost = std::size_t{1} << 26;
  std::size_t done = 0;
  while (handle_ >= 0 && done < bytes) {
    const auto piece = static_cast<unsigned>(std::min(bytes - done, kMost));
    const int put = _write(handle_, static_cast<const char*>(buffer) + done, piece);
    if (put <= 0) break;
    done += static_cast<std::size_t>(put);
  }
  return handle_ >= 0 && done == bytes;
}

bool read_environment(const char* name, char* buffer, std::size_t size) {
  const DWORD length = GetEnvironmentVariableA(name, buffer, static_cast<DWORD>(size));
  return length > 0 && length < size;
}

void write_standard_output(const char* text) {
  std::fputs(text, stdout);
  std::fflush(stdout);
}

void fail_assertion(const char* expression, const char* file, unsigned line) {
  _assert(expression, file, line);
  __builtin_unreachable();
}

}  // namespace quorin::platform
