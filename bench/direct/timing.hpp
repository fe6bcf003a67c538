// How long a call takes.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

namespace quorin::bench {

// The median of some runs.
template <class Call>
double seconds_of(int repetitions, const Call& call) {
  std::vector<double> times;
  for (int i = 0; i < repetitions; ++i) {
    const auto start = std::chrono::steady_clock::now();
    call();
    times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  std::nth_element(times.begin(), times.begin() + repetitions / 2, times.end());
  return times[static_cast<std::size_t>(repetitions / 2)];
}

// The least time of each call. They take turns, so that what else the machine does meets all of them alike: three
// rounds at the least, and more until so many seconds have passed.
inline std::vector<double> least_by_turns(double seconds, const std::vector<std::function<void()>>& calls) {
  using Clock = std::chrono::steady_clock;
  const auto since = [](Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
  };
  std::vector<double> least(calls.size(), std::numeric_limits<double>::infinity());
  const auto begin = Clock::now();
  for (int round = 0; round < 3 || since(begin) < seconds; ++round) {
    for (std::size_t k = 0; k < calls.size(); ++k) {
      const auto start = Clock::now();
      calls[k]();
      least[k] = std::min(least[k], since(start));
    }
  }
  return least;
}

}  // namespace quorin::bench
