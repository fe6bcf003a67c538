// There is no wall clock here: its times are always 0.
#include <algorithm>
#include <ctime>

#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single {
namespace {

// Processor time of the process. What is below the clock's own precision is 0.
double cpu_time() {
  constexpr double kLeast = 1e-4;
  const double now = timer();
  return now < kLeast ? 0 : now;
}

}  // namespace

double timer() noexcept { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

void tic(double* stats) noexcept {
  stats[0] = 0;
  stats[1] = cpu_time();
}

void toc(double* stats) noexcept {
  stats[0] = std::max(0.0, 0 - stats[0]);
  stats[1] = std::max(0.0, cpu_time() - stats[1]);
}

}  // namespace quorin::umfpack_single
