// The dense family as other rooms see it.
#pragma once

#include "dense/factorizations.hpp"
#include "dense/lapack.hpp"
#include "dense/level1.hpp"
#include "dense/level2.hpp"
#include "dense/level3.hpp"

namespace quorin::dense {

// Called at load, and at unload after all else.
void start() noexcept;
void stop() noexcept;

// Frees the packing buffers that no running call uses. Safe at any time.
void release_buffers() noexcept;

}  // namespace quorin::dense
