#include "families/taucs/process.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <limits>

#include "base/allocator.hpp"
#include "platform/platform.hpp"

namespace quorin::taucs {
namespace {

constexpr double kMegabyte = 1048576;

constinit std::array<char, 512> log_file_name{};

bool is_granted(double bytes) {
  void* const memory = base::allocate(static_cast<std::size_t>(bytes));
  base::release(memory);
  return memory != nullptr;
}

// The largest block up to `most` bytes, by halving the interval between what is granted and what is not.
double largest_block(double most) {
  if (is_granted(most)) return most;
  double granted = 0, refused = most;
  while (refused - granted > refused / 64 && refused > kMegabyte) {
    const double middle = (granted + refused) / 2;
    (is_granted(middle) ? granted : refused) = middle;
  }
  return granted;
}

}  // namespace

void logfile(const char* name) noexcept {
  if (name == nullptr) return;
  for (const char* const none : {"stderr", "stdout", "none"}) {
    if (std::strcmp(name, none) == 0) return;
  }
  const std::size_t length = std::min(std::strlen(name), log_file_name.size() - 1);
  std::memcpy(log_file_name.data(), name, length);
  log_file_name[length] = '\0';
}

double wtime() noexcept { return platform::seconds_of_day(); }

double ctime() noexcept { return 0.0; }

double system_memory_size() noexcept { return platform::memory_status().total_physical; }

double available_memory_size() noexcept {
  const double available = platform::memory_status().available_physical;
  constexpr double kAddressable = static_cast<double>(std::numeric_limits<std::size_t>::max()) / 2;
  return largest_block(std::min(available, kAddressable));
}

std::int32_t maximize_stacksize() noexcept { return -1; }

}  // namespace quorin::taucs
