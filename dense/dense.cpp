#include "dense/dense.hpp"
#include "dense/kernels/kernel_set.hpp"
#include "dense/openblas/buffers.hpp"

namespace quorin::dense {

void start() noexcept {
  kernels::choose_kernels();
  openblas::start_buffers();
}
void stop() noexcept { openblas::stop_buffers(); }

void release_buffers() noexcept { openblas::trim_buffers(); }

}  // namespace quorin::dense
