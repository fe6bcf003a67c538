#include "dense/dense.hpp"
#include "dense/openblas/buffers.hpp"

namespace quorin::dense {

void start() noexcept { openblas::start_buffers(); }
void stop() noexcept { openblas::stop_buffers(); }

void release_buffers() noexcept { openblas::trim_buffers(); }

}  // namespace quorin::dense
