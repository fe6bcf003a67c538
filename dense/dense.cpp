#include "dense/dense.hpp"
#include "dense/kernels/kernel_set.hpp"
#include "dense/openblas/buffers.hpp"

namespace quorin::dense {

void start() noexcept {
  kernels::choose_kernels();
  openblas::start_buffers();
  start_selection();
}
void stop() noexcept {
  stop_selection();
  openblas::stop_buffers();
}

void release_buffers() noexcept { openblas::trim_buffers(); }

}  // namespace quorin::dense
