#include "dense/backend/buffers.hpp"
#include "dense/dense.hpp"

namespace quorin::dense {

void start() noexcept { backend::start_buffers(); }
void stop() noexcept { backend::stop_buffers(); }

void release_buffers() noexcept { backend::trim_buffers(); }

}  // namespace quorin::dense
