// ARPACK, as a peer for eigenvalues near a point. Only a program that was configured with it has it.
#pragma once

#include <functional>
#include <vector>

namespace quorin::bench {

// Whether the function below may be called.
bool has_arpack();

// The `count` eigenvalues of a symmetric n x n matrix that are nearest to the shift, ascending, with their vectors:
// solve(x) overwrites x with (A - shift I)^-1 x. Reverse communication, mode 3, 2 count + 10 basis vectors.
std::vector<double> arpack_eigenvalues(int n, int count, double shift, const std::function<void(double*)>& solve);

}  // namespace quorin::bench
