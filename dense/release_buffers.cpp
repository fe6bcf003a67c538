#include "dense/backend/buffers.hpp"
#include "dense/dense.hpp"

namespace quorin::dense {

void release_buffers() noexcept { backend::trim_buffers(); }

}  // namespace quorin::dense
