// The dense family as other rooms see it.
#pragma once

#include "dense/backend/buffers.hpp"
#include "dense/factorizations.hpp"
#include "dense/lapack.hpp"
#include "dense/level1.hpp"
#include "dense/level2.hpp"
#include "dense/level3.hpp"
#include "dense/orthogonal_factorization.hpp"

namespace quorin::dense {

// Called at load, and at unload after all else.
void start() noexcept;
void stop() noexcept;

// Frees the packing buffers that no running call uses. Safe at any time.
void release_buffers() noexcept;

// For rooms that run code which calls the BLAS dependency by itself, UMFPACK's for one: the packing buffer of the
// calling thread. There is none, and that code must not run, if granted() is 0.
using KernelBuffer = backend::BufferReservation;

}  // namespace quorin::dense
