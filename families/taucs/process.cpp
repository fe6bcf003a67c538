#include "families/taucs/process.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <limits>

#include "base/allocator.hpp"
#include "families/taucs/messages.hpp"
#include "platform/platform.hpp"

namespace quorin::taucs {
namespace {

constexpr double kMegabyte = 1048576;

constinit std::array<char, 512> log_file_name{};

bool is_granted(double bytes) noexcept {
  void* const memory = base::allocate(static_cast<std::size_t>(bytes));
  base::release(memory);
  return memory != nullptr;
}

// The largest block up to `most` bytes, by halving the interval between what is granted and what is not.
double largest_block(double most) noexcept {
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

double system_memory_size() noexcept {
  const platform::MemoryStatus status = platform::memory_status();
  print("taucs_system_memory_size: returning information from GlobalMemoryStatus\n");
  print("  Warning: may be incorrect when the machine has more than 4 GB,\n");
  print("  Warning: or if there are more than 2 GB but the executable was\n");
  print("  Warning: compiled without the /LARGEADDRESSWARE liner flag.\n");
  print("  Memory load                    = %03d%%\n", static_cast<int>(status.load_percent));
  print("  Total Physical Memory          = %.0f MB\n", status.total_physical / kMegabyte);
  print("  Available Physical Memory      = %.0f MB\n", status.available_physical / kMegabyte);
  print("  Total Page File                = %.0f MB\n", status.total_page_file / kMegabyte);
  print("  Available Page File            = %.0f MB\n", status.available_page_file / kMegabyte);
  print("  Total Virtual Memory           = %.0f MB\n", status.total_virtual / kMegabyte);
  print("  Available Virtual Memory       = %.0f MB\n", status.available_virtual / kMegabyte);
  return status.total_physical;
}

double available_memory_size() noexcept {
  const double available = platform::memory_status().available_physical;
  constexpr double kAddressable = static_cast<double>(std::numeric_limits<std::size_t>::max()) / 2;
  const double granted = largest_block(std::min(available, kAddressable));
  print("taucs_avail_memory_size: malloc test=%.0lf MB sys test=%.0lf MB\n", granted / kMegabyte,
        available / kMegabyte);
  const double result = std::min(granted, available);
  print("taucs_avail_memory_size: [%.0lf %.0lf %.0lf]\n", granted / kMegabyte, available / kMegabyte,
        result / kMegabyte);
  return result;
}

std::int32_t maximize_stacksize() noexcept {
  print("taucs_maximize_stacksize: not supported on Win32,\n");
  print("taucs_maximize_stacksize: compile with /F[stacksize] or run\n");
  print("taucs_maximize_stacksize: EDITBIN /STACK:[stacksize] *.EXE\n");
  return -1;
}

}  // namespace quorin::taucs
