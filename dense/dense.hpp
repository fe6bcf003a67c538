// The dense family as other rooms see it.
#pragma once

#include "dense/blas/level1.hpp"
#include "dense/blas/level2.hpp"
#include "dense/blas/level3.hpp"
#include "dense/blocked.hpp"
#include "dense/lapack/call_guard.hpp"
#include "dense/lapack/factorizations.hpp"
#include "dense/lapack/qr.hpp"

namespace quorin::dense {

// Called at load, and at unload after all else.
void start() noexcept;
void stop() noexcept;

// Frees the packing buffers that no running call uses. Safe at any time.
void release_buffers() noexcept;

}  // namespace quorin::dense
