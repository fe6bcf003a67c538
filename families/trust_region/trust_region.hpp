// Nonlinear least squares with reverse communication: minimizes ||F(x)||, F: R^n -> R^m, m >= n, with or without bounds
// on x. Requests, statuses and tolerances are told in exports/tables/trust_region.table; solver.hpp has the method.
//
// Handles are told from everything else a host may pass without looking at memory; one handle serves one thread at a
// time, different ones are independent.
#pragma once

namespace quorin::trust_region {

// *handle <- a run for n variables and m residuals. `x` (n) stays the host's: the solver reads the start from it at its
// first call and writes to it at each later one, until the handle is deleted. All else is copied. Statuses are
// returned.
int init(void** handle, const int* n, const int* m, float* x, const float* eps, const int* iter1, const int* iter2,
         const float* rs) noexcept;
int init_bounded(void** handle, const int* n, const int* m, float* x, const float* lower, const float* upper,
                 const float* eps, const int* iter1, const int* iter2, const float* rs) noexcept;

int solve(void** handle, float* fvec, const float* fjac, int* request) noexcept;
int solve_bounded(void** handle, float* fvec, const float* fjac, int* request) noexcept;

int get(void** handle, int* iter, int* st_cr, float* r1, float* r2) noexcept;
int get_bounded(void** handle, int* iter, int* st_cr, float* r1, float* r2) noexcept;

int destroy(void** handle) noexcept;
int destroy_bounded(void** handle) noexcept;

}  // namespace quorin::trust_region
