// Nonlinear least squares with reverse communication: minimizes ||F(x)||, F: R^n -> R^m, m >= n, with or without bounds
// on x.
//
// A host makes a handle, calls the solver until it returns a negative request, asks how the run went and deletes the
// handle. All calls return a status. Handles are told from everything else a host may pass without looking at memory;
// one handle serves one thread at a time, different ones are independent.
//
// Data are floats, all computation is in double precision. solver.hpp names the literature.
#pragma once

namespace quorin::trust_region {

/// *handle <- a run for n variables and m residuals; null if the status is not 1501. `x` (n) stays the host's: the
/// solver reads the start from it at its first call and writes to it at each later one, until the handle is deleted.
/// `eps` (6) and all others are copied. 1502: a null address, n < 1, m < n, a limit below 1, an eps or rs that is
/// negative or NaN, x not finite; 1503: no memory. rs is the radius of the first region, relative to the scaled length
/// of x: 0 stands for 100, others are brought into [0.1, 100].
int init(void** handle, const int* n, const int* m, float* x, const float* eps, const int* iter1, const int* iter2,
         const float* rs);

/// The same with bounds lower <= x <= upper (n each), which may be infinite but not NaN; lower > upper gives 1502. The
/// start is projected on them and every x of a request lies within. eps(5) may have either sign.
int init_bounded(void** handle, const int* n, const int* m, float* x, const float* lower, const float* upper,
                 const float* eps, const int* iter1, const int* iter2, const float* rs);

/// One leg. *request: 1 fvec (m) <- F(x); 2 fjac (m x n, column-major) <- dF/dx; negative: the run has ended, x is the
/// best point found and fvec its F. -1 limit of iterations; -2 region smaller than eps(1); -3 ||F|| < eps(2); -4 a
/// column of J shorter than eps(3); -5 ||s|| < eps(4); -6 ||F|| - ||F + J s|| < eps(5), or no step in floats lowers it.
/// 1502: no such handle, a null address, or the first F or Jacobian is not finite (the request is then -1).
int solve(void** handle, float* fvec, const float* fjac, int* request);
int solve_bounded(void** handle, float* fvec, const float* fjac, int* request);

/// Steps tried; why the run ended, 1...6 for -1...-6, 0 if it has not; ||F|| at the start and at the best point.
/// 1502: no such handle, or a null address.
int get(void** handle, int* iter, int* st_cr, float* r1, float* r2);
int get_bounded(void** handle, int* iter, int* st_cr, float* r1, float* r2);

/// *handle <- null, and its memory is free. 1502: no such handle.
int destroy(void** handle);
int destroy_bounded(void** handle);

}  // namespace quorin::trust_region
