// Sees to it that calls return, and soon.
#pragma once

#include <atomic>
#include <chrono>
#include <thread>

#include "tests/support/standard.hpp"
#include "tests/support/system.hpp"

namespace quorin::test {

// Processor time that this thread has had, in seconds: a machine that is busy with something else does not count.
inline double thread_seconds() {
#if defined(_WIN32)
  FILETIME created, ended, kernel, user;
  GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
  const auto seconds = [](const FILETIME& time) {
    return 429.4967296 * time.dwHighDateTime + 1e-7 * time.dwLowDateTime;
  };
  return seconds(kernel) + seconds(user);
#else
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
#endif
}

// Measures calls, and ends the program when one does not return: it cannot be left in any other way.
class Watchdog {
 public:
  // Processor time that a call may take, in seconds; the sanitizers slow it down.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  static constexpr double kMost = 10;
#else
  static constexpr double kMost = 1;
#endif
  // Until a call is taken for one that never returns; the machine may be busy.
  static constexpr std::chrono::seconds kPatience{60};

  Watchdog() : thread_([this] { watch(); }) {}
  ~Watchdog() {
    stopped_ = true;
    thread_.join();
  }
  void begin(const std::string& call) {
    std::snprintf(call_, sizeof call_, "%s", call.c_str());
    ++calls_;
    begun_ = thread_seconds();
  }
  // The seconds since begin().
  double end() {
    const double seconds = thread_seconds() - begun_;
    if (seconds > slowest_seconds_) {
      slowest_seconds_ = seconds;
      slowest_ = call_;
    }
    return seconds;
  }
  // The call that took longest.
  std::string slowest() const { return std::to_string(slowest_seconds_) + " s: " + slowest_; }

 private:
  void watch() {
    int seen = -1;
    auto since = std::chrono::steady_clock::now();
    while (!stopped_) {
      std::this_thread::sleep_for(std::chrono::milliseconds{50});
      const auto now = std::chrono::steady_clock::now();
      if (seen != calls_) {
        seen = calls_;
        since = now;
      } else if (now - since > kPatience) {
        std::fprintf(stderr, "Does not return: %s\n", call_);
        std::_Exit(1);
      }
    }
  }
  char call_[400] = "";
  double begun_ = 0, slowest_seconds_ = 0;
  std::string slowest_;
  std::atomic<int> calls_ = 0;
  std::atomic<bool> stopped_ = false;
  std::thread thread_;
};

}  // namespace quorin::test
