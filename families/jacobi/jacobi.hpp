// The Jacobian matrix of a host's function F: R^n -> R^m by central differences, with reverse communication or with a
// callback. Requests and statuses are told in exports/tables/jacobi.table.
#pragma once

namespace quorin::jacobi {

// Computes f (m entries) at x (n entries), which it leaves as it is. Called with the addresses of m and n, in this
// order.
using Function = void (*)(int* m, int* n, float* x, float* f);
using FunctionWithData = void (*)(int* m, int* n, float* x, float* f, void* user_data);

// x (n) and fjac (m x n, column-major) stay the host's until the handle is deleted: both are used by later calls.
int init(void** handle, const int* n, const int* m, float* x, float* fjac, const float* eps) noexcept;
int solve(void** handle, const float* f1, const float* f2, int* request) noexcept;
int destroy(void** handle) noexcept;

int differentiate(Function fcn, const int* n, const int* m, float* fjac, float* x, const float* eps) noexcept;
int differentiate_with_data(FunctionWithData fcn, const int* n, const int* m, float* fjac, float* x, const float* eps,
                            void* user_data) noexcept;

}  // namespace quorin::jacobi
