// The Jacobian matrix of a host's function F: R^n -> R^m by central differences, with reverse communication or with a
// callback. 2 n evaluations of F, in pairs, columns in order; the truncation error is eps^2 / 6 times the third
// derivative, that of rounding about 6e-8 |F| / eps.
//
// All calls return a status: 1501 success, 1502 invalid argument, 1503 no memory.
#pragma once

namespace quorin::jacobi {

/// Computes f (m entries) at x (n entries), which it leaves as it is. Called with the addresses of m and n, in this
/// order.
using Function = void (*)(int* m, int* n, float* x, float* f);
using FunctionWithData = void (*)(int* m, int* n, float* x, float* f, void* user_data);

/// *handle <- a computation; null if the status is not 1501. x (n) and fjac (m x n, column-major) stay the host's until
/// the handle is deleted: both are used by later calls. eps, one number, is the step. 1502: a null address, n < 1,
/// m < 1, eps not positive.
int init(void** handle, const int* n, const int* m, float* x, float* fjac, const float* eps);

/// *request: 1 f1 <- F(x); 2 f2 <- F(x), x having been changed; 0 finished: fjac is complete and x as it was. A call
/// after that begins anew at the present x. 1502: no such handle, or a null address.
int solve(void** handle, const float* f1, const float* f2, int* request);

/// *handle <- null, and its memory is free. 1502: no such handle.
int destroy(void** handle);

/// The whole computation; x is as before at the end, and `user_data` goes through to fcn. 1502: as init; 1503: no
/// memory for the two values of F.
int differentiate(Function fcn, const int* n, const int* m, float* fjac, float* x, const float* eps);
int differentiate_with_data(FunctionWithData fcn, const int* n, const int* m, float* fjac, float* x, const float* eps,
                            void* user_data);

}  // namespace quorin::jacobi
