// The dense family as other rooms see it.
#pragma once

#include "dense/blas/level1.hpp"
#include "dense/blas/level2.hpp"
#include "dense/blas/level3.hpp"
#include "dense/lapack/call_guard.hpp"
#include "dense/lapack/factorizations.hpp"
#include "dense/lapack/qr.hpp"
#include "dense/openblas/buffers.hpp"

namespace quorin::dense {

// Called at load, and at unload after all else.
void start() noexcept;
void stop() noexcept;

// Frees the packing buffers that no running call uses. Safe at any time.
void release_buffers() noexcept;

// For rooms that run code which calls OpenBLAS by itself, UMFPACK's for one: the packing buffer of the
// calling thread. There is none, and that code must not run, if granted() is 0.
using KernelBuffer = openblas::BufferReservation;

}  // namespace quorin::dense
