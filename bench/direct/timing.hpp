// How long a call takes.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
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

}  // namespace quorin::bench
