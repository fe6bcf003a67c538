// What happens when a process loads the library and when it unloads it.
#include "base/allocator.hpp"
#include "base/parallel.hpp"
#include "dense/dense.hpp"
#include "families/umfpack_single/umfpack_single.hpp"
#include "platform/floating_point.hpp"
#include "platform/load_hooks.hpp"

// Frees what the C++ runtime keeps for exceptions, which it holds until the process ends otherwise; a library that is
// loaded again and again must not leave it behind.
namespace __gnu_cxx {
void __freeres();
}

namespace quorin::platform {

void on_load() noexcept {
  start_floating_point();
  const HostCall host;
  base::choose_allocator();
  base::start_parallel();
  dense::start();
  umfpack_single::start();
}

void on_unload() noexcept {
  base::stop_parallel();
  if (base::allocator_is_mapped()) dense::release_buffers();
  dense::stop();
  stop_floating_point();
  __gnu_cxx::__freeres();
}

}  // namespace quorin::platform
