// LAPACK's dense solver, as a peer: the reference code, linked into this program, over the BLAS of the product.
#pragma once

#include "bench/libraries.hpp"

namespace quorin::bench {

using DenseSolver = void(const int* n, const int* nrhs, float* a, const int* lda, int* pivots, float* b, const int* ldb,
                         int* info);

// sgesv, which calls the given library's routines from now on.
DenseSolver* dense_solver(const Libraries& libraries);

}  // namespace quorin::bench
