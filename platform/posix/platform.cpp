#include "platform/platform.hpp"

#undef NDEBUG  // for the declaration of the assertion handler
#include <cassert>

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysinfo.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>

#include "platform/workers.hpp"

namespace quorin::platform {
namespace {

static_assert(sizeof(pthread_mutex_t) <= 64 && sizeof(pthread_cond_t) <= 64);
static_assert(alignof(pthread_mutex_t) <= detail::kLockAlignment && alignof(pthread_cond_t) <= detail::kLockAlignment);

// The static initialisers of both types are all zero on this system, as the storage is.
pthread_mutex_t* as_mutex(std::byte* storage) { return std::launder(reinterpret_cast<pthread_mutex_t*>(storage)); }
pthread_cond_t* as_condition(std::byte* storage) { return std::launder(reinterpret_cast<pthread_cond_t*>(storage)); }

struct WorkerStart {
  void (*body)(void*);
  void* argument;
};

// The shared object is linked with -z nodelete, so the code stays mapped as long as a worker needs it.
void* worker_main(void* parameter) noexcept {
  const WorkerStart start = *static_cast<WorkerStart*>(parameter);
  std::free(parameter);
  start.body(start.argument);
  return nullptr;
}

// Reads one small number from a file, or -1.
int read_number(const char* path) {
  std::FILE* file = std::fopen(path, "re");
  if (file == nullptr) return -1;
  char text[32] = {};
  const bool read = std::fgets(text, sizeof text, file) != nullptr;
  std::fclose(file);
  return read ? static_cast<int>(std::strtol(text, nullptr, 10)) : -1;
}

}  // namespace

void Mutex::lock() { pthread_mutex_lock(as_mutex(storage_)); }
void Mutex::unlock() { pthread_mutex_unlock(as_mutex(storage_)); }

void ConditionVariable::wait(Mutex& mutex) { pthread_cond_wait(as_condition(storage_), as_mutex(mutex.storage_)); }

bool ConditionVariable::wait_for(Mutex& mutex, std::int32_t milliseconds) {
  if (milliseconds == kForever) {
    wait(mutex);
    return true;
  }
  timespec deadline{};
  clock_gettime(CLOCK_REALTIME, &deadline);
  constexpr long kSecond = 1'000'000'000;
  deadline.tv_sec += milliseconds / 1000;
  deadline.tv_nsec += (milliseconds % 1000) * 1'000'000L;
  if (deadline.tv_nsec >= kSecond) {
    deadline.tv_nsec -= kSecond;
    ++deadline.tv_sec;
  }
  return pthread_cond_timedwait(as_condition(storage_), as_mutex(mutex.storage_), &deadline) == 0;
}

void ConditionVariable::notify_one() { pthread_cond_signal(as_condition(storage_)); }
void ConditionVariable::notify_all() { pthread_cond_broadcast(as_condition(storage_)); }

void spin_pause() { __builtin_ia32_pause(); }

bool start_worker(void (*body)(void*), void* argument) {
  auto* start = static_cast<WorkerStart*>(std::malloc(sizeof(WorkerStart)));
  if (start == nullptr) return false;
  *start = {body, argument};
  pthread_t thread{};
  if (pthread_create(&thread, nullptr, worker_main, start) != 0) {
    std::free(start);
    return false;
  }
  pthread_detach(thread);
  return true;
}

void await_workers() {}

int physical_core_count() {
  cpu_set_t allowed;
  CPU_ZERO(&allowed);
  if (sched_getaffinity(0, sizeof allowed, &allowed) != 0) return 1;
  int cores = 0;
  for (int cpu = 0; cpu < CPU_SETSIZE; ++cpu) {
    if (!CPU_ISSET(cpu, &allowed)) continue;
    // A core is counted at the first of its logical processors.
    char path[96];
    std::snprintf(path, sizeof path, "/sys/devices/system/cpu/cpu%d/topology/thread_siblings_list", cpu);
    const int first = read_number(path);
    if (first < 0 || first == cpu || !CPU_ISSET(first, &allowed)) ++cores;
  }
  return cores > 0 ? cores : 1;
}

void ThreadSlot::create() {
  pthread_key_t key{};
  created_ = pthread_key_create(&key, nullptr) == 0;
  key_ = key;
}
void ThreadSlot::destroy() {
  if (created_) pthread_key_delete(key_);
  created_ = false;
}
void* ThreadSlot::get() const { return created_ ? pthread_getspecific(key_) : nullptr; }
void ThreadSlot::set(void* value) {
  if (created_) pthread_setspecific(key_, value);
}

Module open_module(const char* file) { return dlopen(file, RTLD_NOW | RTLD_LOCAL); }
Module open_companion(const char* name) { return open_module(name); }
Module find_loaded_module(const char* name) {
  void* const module = dlopen(name, RTLD_NOW | RTLD_NOLOAD);
  if (module != nullptr) dlclose(module);
  return module;
}
void close_module(Module module) {
  if (module != nullptr) dlclose(module);
}
void* find_symbol(Module module, const char* name) { return dlsym(module, name); }
bool is_code_mapped(const void* address) {
  // Asked of the memory, because run-time systems make functions outside of modules.
  const auto page_size = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  unsigned char resident = 0;
  return mincore(reinterpret_cast<void*>(reinterpret_cast<std::uintptr_t>(address) & ~(page_size - 1)), 1, &resident) ==
         0;
}

double seconds_of_day() {
  constexpr std::time_t kDay = 86400;
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  const long milliseconds = now.tv_nsec / 1000000;
  return static_cast<double>(now.tv_sec % kDay) + static_cast<double>(milliseconds) * 0.001;
}

MemoryStatus memory_status() {
  struct sysinfo info {};
  if (sysinfo(&info) != 0) return {};
  const auto bytes = [&](unsigned long units) { return static_cast<double>(units) * info.mem_unit; };
  MemoryStatus status;
  status.total_physical = bytes(info.totalram);
  status.available_physical = bytes(info.freeram) + bytes(info.bufferram);
  status.load_percent = static_cast<unsigned>(100 * (1 - status.available_physical / status.total_physical));
  status.total_page_file = status.total_physical + bytes(info.totalswap);
  status.available_page_file = status.available_physical + bytes(info.freeswap);
  rlimit limit{};
  const bool is_limited = getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
  status.total_virtual = status.available_virtual =
      is_limited ? static_cast<double>(limit.rlim_cur) : static_cast<double>(UINTPTR_MAX);
  return status;
}

File::~File() {
  if (handle_ >= 0) close(handle_);
}
void File::open_for_reading(const char* name) {
  if (name != nullptr) handle_ = open(name, O_RDONLY | O_CLOEXEC);
}
void File::open_for_text(const char* name) {
  if (name != nullptr) handle_ = open(name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
}
void File::open_for_appending(const char* name) {
  if (name != nullptr) handle_ = open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
}
void File::open_for_overwriting(const char* name) {
  if (name != nullptr) handle_ = open(name, O_WRONLY | O_CREAT | O_CLOEXEC, 0700);
}
std::uint64_t File::size() const {
  struct stat status {};
  const bool is_known = fstat(handle_, &status) == 0 && S_ISREG(status.st_mode);
  return is_known ? static_cast<std::uint64_t>(status.st_size) : UINT64_MAX;
}
std::size_t File::read(void* buffer, std::size_t bytes) {
  std::size_t done = 0;
  while (handle_ >= 0 && done < bytes) {
    const ssize_t got = ::read(handle_, static_cast<char*>(buffer) + done, bytes - done);
    if (got == 0 || (got < 0 && errno != EINTR)) break;
    if (got > 0) done += static_cast<std::size_t>(got);
  }
  return done;
}
bool File::write(const void* buffer, std::size_t bytes) {
  std::size_t done = 0;
  while (handle_ >= 0 && done < bytes) {
    const ssize_t put = ::write(handle_, static_cast<const char*>(buffer) + done, bytes - done);
    if (put < 0 && errno != EINTR) break;
    if (put > 0) done += static_cast<std::size_t>(put);
  }
  return handle_ >= 0 && done == bytes;
}

bool read_environment(const char* name, char* buffer, std::size_t size) {
  const char* const value = std::getenv(name);
  const std::size_t length = value == nullptr ? 0 : std::strlen(value);
  if (length == 0 || length >= size) return false;
  std::memcpy(buffer, value, length + 1);
  return true;
}

void write_standard_output(const char* text) {
  std::fputs(text, stdout);
  std::fflush(stdout);
}

void fail_assertion(const char* expression, const char* file, unsigned line) {
  __assert_fail(expression, file, line, "");
}

}  // namespace quorin::platform
