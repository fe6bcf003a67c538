// Sees to it that calls return.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

namespace quorin::test {

// Ends the program when a call takes too long: it cannot be left in any other way.
class Watchdog {
 public:
  // Calls take milliseconds, but the machine may be busy.
  static constexpr std::chrono::seconds kPatience{60};

  Watchdog() : thread_([this] { watch(); }) {}
  ~Watchdog() {
    stopped_ = true;
    thread_.join();
  }
  void begin(const std::string& call) {
    std::snprintf(call_, sizeof call_, "%s", call.c_str());
    ++calls_;
  }

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
  std::atomic<int> calls_ = 0;
  std::atomic<bool> stopped_ = false;
  std::thread thread_;
};

}  // namespace quorin::test
