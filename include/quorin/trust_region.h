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
 * F or a Jacobian that is not finite makes the solver try a shorter step.
 *
 * Generated from exports/tables/trust_region.table. Do not edit. */
#ifndef QUORIN_TRUST_REGION_H
#define QUORIN_TRUST_REGION_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What all routines return. */
enum quorin_trust_region_status {
  QUORIN_TRUST_REGION_SUCCESS = 1501, /* success */
  QUORIN_TRUST_REGION_INVALID = 1502, /* invalid argument: a handle that is null, deleted or of another kind, or a null
      address */
  QUORIN_TRUST_REGION_NO_MEMORY = 1503 /* no memory; handle is null */
};

/* Requests, and why a run ended. */
enum quorin_trust_region_request {
  QUORIN_TRUST_REGION_RESIDUAL = 1, /* put F(x) into fvec */
  QUORIN_TRUST_REGION_JACOBIAN = 2, /* put the Jacobian at x into fjac */
  QUORIN_TRUST_REGION_ITERATION_LIMIT = -1, /* iter1 steps are done; with the result 1502: the first F or Jacobian is
      not finite, and there is no point to go back to */
  QUORIN_TRUST_REGION_RADIUS_SMALL = -2, /* the region is smaller than eps(1) */
  QUORIN_TRUST_REGION_RESIDUAL_SMALL = -3, /* ||F|| < eps(2) */
  QUORIN_TRUST_REGION_JACOBIAN_SINGULAR = -4, /* a column of the Jacobian is shorter than eps(3) */
  QUORIN_TRUST_REGION_STEP_SMALL = -5, /* the step is shorter than eps(4) */
  QUORIN_TRUST_REGION_DECREASE_SMALL = -6 /* the step would lower ||F|| by less than eps(5), or not at all in floats */
};

/* Positions in eps, one-based: the first is eps[0] in C. */
enum {
  QUORIN_TRUST_REGION_EPS_RADIUS = 1, /* radius of the trust region */
  QUORIN_TRUST_REGION_EPS_RESIDUAL = 2, /* ||F|| */
  QUORIN_TRUST_REGION_EPS_COLUMN = 3, /* norm of a column of the Jacobian */
  QUORIN_TRUST_REGION_EPS_STEP = 4, /* ||s||, s being a step */
  QUORIN_TRUST_REGION_EPS_DECREASE = 5, /* ||F|| - ||F + J s||; with bounds, its sign does not matter */
  QUORIN_TRUST_REGION_EPS_STEP_PRECISION = 6 /* no test, but the relative precision of the length of a step; 0 stands
      for 0.1, which is also the most. Exact steps are no better: a run may even end farther from the minimum */
};

/* ---- Without bounds ---- */

/* Starts a run from x.
     handle: out: the run; null unless the status is 1501
     n: number of variables, at least 1
     m: number of residuals, the entries of F, at least n
     x: in, out, [n]: the start; every call of the solve routine may change it, at the end to the best point found;
         kept: its address is used by later calls
     eps: [6]: when to stop, copied
     iter1: most steps, at least 1
     iter2: most iterations for one step, at least 1
     rs: size of the first region: the first step is no longer than that (in the Euclidean norm), brought into 0.1 to
         100; 0 leaves it to the solver, which begins with 100 times the scaled length of x */
QUORIN_API int32_t QUORIN_CDECL strnlsp_init(void** handle, const int32_t* n, const int32_t* m, float* x,
                                             const float* eps, const int32_t* iter1, const int32_t* iter2,
                                             const float* rs);
QUORIN_API int32_t QUORIN_CDECL strnlsp_init_Idx(void** handle, const int32_t* n, const int32_t* m, float* x,
                                                 int32_t x_index, const float* eps, int32_t eps_index,
                                                 const int32_t* iter1, const int32_t* iter2, const float* rs);

/* One leg. At the end x is the best point found and fvec its F.
     handle: in, out: the run
     fvec: in, out, [m]: F
     fjac: [m x n]: dF/dx, column-major: the derivative of fvec as it is, whatever its sign
     RCI_Request: in, out: what the host is to do, or why the run ended */
QUORIN_API int32_t QUORIN_CDECL strnlsp_solve(void** handle, float* fvec, const float* fjac, int32_t* RCI_Request);
QUORIN_API int32_t QUORIN_CDECL strnlsp_solve_Idx(void** handle, float* fvec, int32_t fvec_index, const float* fjac,
                                                  int32_t fjac_index, int32_t* RCI_Request);

/* How the run went.
     handle: in, out: the run
     iter: out: steps tried
     st_cr: out: why the run ended: 1 to 6 for the requests -1 to -6, 0 if it has not
     r1: out: ||F|| at the start
     r2: out: ||F|| at the best point */
QUORIN_API int32_t QUORIN_CDECL strnlsp_get(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
QUORIN_API int32_t QUORIN_CDECL strnlsp_get_Idx(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);

/* Frees the run and sets handle to null.
     handle: in, out: the run */
QUORIN_API int32_t QUORIN_CDECL strnlsp_delete(void** handle);
QUORIN_API int32_t QUORIN_CDECL strnlsp_delete_Idx(void** handle);

/* ---- With bounds ---- */

/* Starts a run from x with LW <= x <= UP. The start is moved to the bounds if it is outside; no point outside is ever
   asked for.
     handle: out: the run; null unless the status is 1501
     n: number of variables, at least 1
     m: number of residuals, the entries of F, at least n
     x: in, out, [n]: the start; every call of the solve routine may change it, at the end to the best point found;
         kept: its address is used by later calls
     LW: [n]: lower bounds, copied; may be infinite
     UP: [n]: upper bounds, copied; may be infinite
     eps: [6]: when to stop, copied
     iter1: most steps, at least 1
     iter2: most iterations for one step, at least 1
     rs: size of the first region: the first step is no longer than that (in the Euclidean norm), brought into 0.1 to
         100; 0 leaves it to the solver, which begins with 100 times the scaled length of x */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_init(void** handle, const int32_t* n, const int32_t* m, float* x,
                                               const float* LW, const float* UP, const float* eps, const int32_t* iter1,
                                               const int32_t* iter2, const float* rs);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_init_Idx(void** handle, const int32_t* n, const int32_t* m, float* x,
                                                   int32_t x_index, const float* LW, int32_t LW_index, const float* UP,
                                                   int32_t UP_index, const float* eps, int32_t eps_index,
                                                   const int32_t* iter1, const int32_t* iter2, const float* rs);

/* One leg. At the end x is the best point found and fvec its F.
     handle: in, out: the run
     fvec: in, out, [m]: F
     fjac: [m x n]: dF/dx, column-major: the derivative of fvec as it is, whatever its sign
     RCI_Request: in, out: what the host is to do, or why the run ended */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_solve(void** handle, float* fvec, const float* fjac, int32_t* RCI_Request);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_solve_Idx(void** handle, float* fvec, int32_t fvec_index, const float* fjac,
                                                    int32_t fjac_index, int32_t* RCI_Request);

/* How the run went.
     handle: in, out: the run
     iter: out: steps tried
     st_cr: out: why the run ended: 1 to 6 for the requests -1 to -6, 0 if it has not
     r1: out: ||F|| at the start
     r2: out: ||F|| at the best point */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_get(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_get_Idx(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);

/* Frees the run and sets handle to null.
     handle: in, out: the run */
QUORIN_API int32_t QUORIN_CDECL strnlspbc_delete(void** handle);
QUORIN_API int32_t QUORIN_CDECL strnlspbc_delete_Idx(void** handle);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
