// What happens when a process loads the library and when it unloads it.
#include "base/allocator.hpp"
#include "base/idle.hpp"
#include "base/parallel.hpp"
#include "dense/dense.hpp"
#include "families/umfpack_single/umfpack_single.hpp"
#include "platform/floating_point.hpp"
#include "platform/load_hooks.hpp"
#include "sparse/orderings/dissection.hpp"

// Frees what the C++ runtime keeps for exceptions, which it holds until the process ends otherwise; a library that is
// loaded again and again must not leave it behind.
namespace __gnu_cxx {
void __freeres();
}

namespace quorin::platform {
namespace {

// Buffers of an allocator that the host has unloaded can only be abandoned.
void give_back_buffers() noexcept {
  if (base::allocator_is_mapped()) dense::release_buffers();
}

}  // namespace

void on_load() noexcept {
  start_floating_point();
  const HostCall host;
  base::choose_allocator();
  base::start_parallel();
  dense::start();
  base::set_idle_action(&give_back_buffers);
  umfpack_single::start();
}

void on_unload() noexcept {
  base::stop_parallel();
  give_back_buffers();
  dense::stop();
  sparse::stop_orderings();
  stop_floating_point();
  __gnu_cxx::__freeres();
}

}  // namespace quorin::platform
