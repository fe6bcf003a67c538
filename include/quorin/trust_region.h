/* Nonlinear least squares with a trust region.
 *
 * Minimizes ||F(x)||, F: R^n -> R^m with m >= n, with or without bounds on x, from derivatives that the host gives
 * (sjacobi computes them by differences). The solver never calls the host: it returns with a request in RCI_Request,
 * the host does what it asks, and calls again. Positive requests ask, negative ones end the run. Data are floats; all
 * computation is in double precision.
 *
 * Call the init routine with a handle variable, which it fills, then the solve routine until RCI_Request is negative,
 * then the get routine if you like, then the delete routine. From init to delete x stays where it is: every call of the
 * solve routine may change it. One handle serves one thread at a time; different handles are independent. C++ hosts
 * find the loop written out in quorin/least_squares.hpp.
 *
 * eps: 1 least radius of the trust region; 2 ||F||; 3 norm of a column of the Jacobian; 4 ||s||, s being a step; 5
 * ||F|| - ||F + J s||; 6 relative precision of the length of a step, 0 stands for 1e-10. iter1 limits the steps, iter2
 * the iterations for one step. rs, from 0.1 to 100, is the radius of the first region, relative to the length of x; 0
 * stands for 100.
 *
 * fjac is dF/dx, column-major: the derivative of fvec as it is, whatever its sign. F or a Jacobian that is not finite
 * makes the solver try a shorter step.
 *
 * All routines return 1501 for success, 1502 for an invalid argument (a handle that is null, deleted or of another
 * kind, a null address, n < 1, m < n, a limit below 1, a negative or NaN tolerance or radius, x not finite, a lower
 * bound above the upper one), 1503 when there is no memory.
 *
 * Generated from exports/tables/trust_region.table. Do not edit. */
#ifndef QUORIN_TRUST_REGION_H
#define QUORIN_TRUST_REGION_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Without bounds ---- */

/* Starts a run from x, and fills handle. eps is copied.
     handle: out
     x: in, out, [n]
     eps: [6] */
QUORIN_API int32_t QUORIN_CDECL strnlsp_init(void** handle, const int32_t* n, const int32_t* m, float* x,
                                             const float* eps, const int32_t* iter1, const int32_t* iter2,
                                             const float* rs);
QUORIN_API int32_t QUORIN_CDECL strnlsp_init_Idx(void** handle, const int32_t* n, const int32_t* m, float* x,
                                                 int32_t x_index, const float* eps, int32_t eps_index,
                                                 const int32_t* iter1, const int32_t* iter2, const float* rs);

/* One leg. fvec has m entries, fjac m x n. RCI_Request: 1 put F(x) into fvec; 2 put the Jacobian at x into fjac; -1
   iter1 steps done; -2 the region is smaller than eps(1); -3 ||F|| < eps(2); -4 a column of the Jacobian is shorter
   than eps(3); -5 the step is shorter than eps(4); -6 the step would lower ||F|| by less than eps(5), or not at all. At
   the end x is the best point found and fvec its F. 1502 also when the first F or Jacobian is not finite; RCI_Request
   is then -1.
     handle: in, out
     fvec: in, out
     RCI_Request: in, out */
QUORIN_API int32_t QUORIN_CDECL strnlsp_solve(void** handle, float* fvec, const float* fjac, int32_t* RCI_Request);
QUORIN_API int32_t QUORIN_CDECL strnlsp_solve_Idx(void** handle, float* fvec, int32_t fvec_index, const float* fjac,
                                                  int32_t fjac_index, int32_t* RCI_Request);

/* How the run went: steps; why it ended, 1 to 6 for the requests -1 to -6, 0 if it has not; ||F|| at the start and at
   the best point.
     handle: in, out
     iter: out
     st_cr: out
     r1: out
     r2: out */
QUORIN_API int32_t QUORIN_CDECL strnlsp_get(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
QUORIN_API int32_t QUORIN_CDECL strnlsp_get_Idx(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);

/* Frees the run and sets handle to null.
     handle: in, out */
QUORIN_API int32_t QUORIN_CDECL strnlsp_delete(void** handle);
QUORIN_API int32_t QUORIN_CDECL strnlsp_delete_Idx(void** handle);

/* ---- With bounds ---- */

/* Starts a run from x with LW <= x <= UP, and fills handle. The start is moved to the bounds if it is outside; no point
   outside is ever asked for. Bounds may be infinite. LW, UP and eps are copied; the sign of eps(5) does not matter.
     handle: out
     x: in, out, [n]
     LW: [n]
     UP: [n]
     eps: [6] */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_init(void** handle, const int32_t* n, const int32_t* m, float* x,
                                               const float* LW, const float* UP, const float* eps, const int32_t* iter1,
                                               const int32_t* iter2, const float* rs);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_init_Idx(void** handle, const int32_t* n, const int32_t* m, float* x,
                                                   int32_t x_index, const float* LW, int32_t LW_index, const float* UP,
                                                   int32_t UP_index, const float* eps, int32_t eps_index,
                                                   const int32_t* iter1, const int32_t* iter2, const float* rs);

/* As strnlsp_solve. Variables that a bound keeps are left out of the test with eps(3).
     handle: in, out
     fvec: in, out
     RCI_Request: in, out */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_solve(void** handle, float* fvec, const float* fjac, int32_t* RCI_Request);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_solve_Idx(void** handle, float* fvec, int32_t fvec_index, const float* fjac,
                                                    int32_t fjac_index, int32_t* RCI_Request);

/* As strnlsp_get.
     handle: in, out
     iter: out
     st_cr: out
     r1: out
     r2: out */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_get(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_get_Idx(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);

/* Frees the run and sets handle to null.
     handle: in, out */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_delete(void** handle);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_delete_Idx(void** handle);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
