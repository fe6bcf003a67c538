// Dense kernels without checks, in all four scalar types, for the rooms that compute with dense blocks of their own.
#pragma once

#include "dense/blocked/buffers.hpp"
#include "dense/blocked/level3.hpp"
#include "dense/matrix.hpp"

namespace quorin::dense {

// The packing buffers of a computation: the calling thread's, or one for each thread of the region that it is about to
// run. Without any (granted() is 0) the computation must not begin.
using KernelBuffer = blocked::BufferReservation;

}  // namespace quorin::dense
