// The dense family as other rooms see it.
#pragma once

#include "dense/level1.hpp"
#include "dense/level2.hpp"
#include "dense/level3.hpp"

namespace quorin::dense {

// Frees the packing buffers that no running call uses. Safe at any time.
void release_buffers() noexcept;

}  // namespace quorin::dense
