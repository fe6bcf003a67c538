#include "dense/dense.hpp"
#include "dense/blocked/buffers.hpp"
#include "dense/kernels/kernel_set.hpp"

namespace quorin::dense {

void start() noexcept {
  kernels::choose_kernels();
  blocked::start_buffers();
  start_call_guard();
}
void stop() noexcept {
  stop_call_guard();
  blocked::stop_buffers();
}

void release_buffers() noexcept { blocked::trim_buffers(); }

}  // namespace quorin::dense
