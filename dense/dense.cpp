#include "dense/dense.hpp"
#include "dense/blocked/buffers.hpp"
#include "dense/kernels/kernel_set.hpp"

namespace quorin::dense {

void start() noexcept {
  kernels::choose_kernels();
  blocked::start_buffers();
  start_selection();
}
void stop() noexcept {
  stop_selection();
  blocked::stop_buffers();
}

void release_buffers() noexcept { blocked::trim_buffers(); }

}  // namespace quorin::dense
