/* Jacobian matrices by central differences.
 *
 * The m x n matrix of the derivatives of the host's function F: R^n -> R^m at x, from 2 n evaluations: (F(x + eps e_j)
 * - F(x - eps e_j)) / (2 eps). What is divided by is the distance of the two floats that the entry of x becomes. A good
 * eps for variables of size one is 1e-3 to 4e-3; for others, that times their size: the truncation error is eps^2 / 6
 * times the third derivative, that of rounding about 6e-8 |F| / eps.
 *
 * With reverse communication, call sjacobi_init with a handle variable, which it fills, then sjacobi_solve until
 * RCI_Request is 0, then sjacobi_delete. Or give sjacobi the function. x comes back bit for bit as it was.
 *
 * Generated from exports/tables/jacobi.table. Do not edit. */
#ifndef QUORIN_JACOBI_H
#define QUORIN_JACOBI_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A host function that computes the m values f of a function of the n values x. It leaves m, n and x as they are. */
typedef void(QUORIN_CDECL* quorin_vector_function)(int32_t* m, int32_t* n, float* x, float* f);

/* The same, with the address that the host gave. */
typedef void(QUORIN_CDECL* quorin_vector_function_with_data)(int32_t* m, int32_t* n, float* x, float* f,
                                                             void* user_data);

/* What all routines return. */
enum quorin_jacobi_status {
  QUORIN_JACOBI_SUCCESS = 1501, /* success */
  QUORIN_JACOBI_INVALID = 1502, /* invalid argument: a null address, n < 1, m < 1, eps not positive or not finite */
  QUORIN_JACOBI_NO_MEMORY = 1503 /* no memory */
};

/* Requests. */
enum quorin_jacobi_request {
  QUORIN_JACOBI_DONE = 0, /* finished: fjac is complete. A further call begins anew at the present x */
  QUORIN_JACOBI_FORWARD = 1, /* put F(x) into f1 */
  QUORIN_JACOBI_BACKWARD = 2 /* put F(x), x having changed, into f2 */
};

/* ---- With reverse communication ---- */

/* Starts a computation.
     handle: out: the computation; null unless the status is 1501
     n: number of variables, at least 1
     m: number of values, at least 1
     x: in, out, [n]: where the derivatives are taken; kept: its address is used by later calls
     fjac: out, [m x n]: the derivatives, column-major; kept: its address is used by later calls
     eps: [1]: the step, one positive number */
QUORIN_API int32_t QUORIN_CDECL sjacobi_init(void** handle, const int32_t* n, const int32_t* m, float* x, float* fjac,
                                             const float* eps);
QUORIN_API int32_t QUORIN_CDECL sjacobi_init_Idx(void** handle, const int32_t* n, const int32_t* m, float* x,
                                                 int32_t x_index, float* fjac, int32_t fjac_index, const float* eps,
                                                 int32_t eps_index);

/* One leg.
     handle: in, out: the computation
     f1: [m]: F(x) of request 1
     f2: [m]: F(x) of request 2
     RCI_Request: out: what the host is to do */
QUORIN_API int32_t QUORIN_CDECL sjacobi_solve(void** handle, const float* f1, const float* f2, int32_t* RCI_Request);
QUORIN_API int32_t QUORIN_CDECL sjacobi_solve_Idx(void** handle, const float* f1, int32_t f1_index, const float* f2,
                                                  int32_t f2_index, int32_t* RCI_Request);

/* Frees the computation and sets handle to null.
     handle: in, out: the computation */
QUORIN_API int32_t QUORIN_CDECL sjacobi_delete(void** handle);
QUORIN_API int32_t QUORIN_CDECL sjacobi_delete_Idx(void** handle);

/* ---- With a function of the host ---- */

/* The whole computation. fcn(m, n, x, f) puts F(x) into f.
     fcn: the function F
     n: number of variables, at least 1
     m: number of values, at least 1
     fjac: out, [m x n]: the derivatives, column-major
     x: in, out, [n]: where the derivatives are taken
     eps: [1]: the step, one positive number */
QUORIN_API int32_t QUORIN_CDECL sjacobi(quorin_vector_function fcn, const int32_t* n, const int32_t* m, float* fjac,
                                        float* x, const float* eps);
QUORIN_API int32_t QUORIN_CDECL sjacobi_Idx(quorin_vector_function fcn, const int32_t* n, const int32_t* m, float* fjac,
                                            int32_t fjac_index, float* x, int32_t x_index, const float* eps,
                                            int32_t eps_index);

/* The whole computation. fcn(m, n, x, f, user_data) puts F(x) into f.
     fcn: the function F
     n: number of variables, at least 1
     m: number of values, at least 1
     fjac: out, [m x n]: the derivatives, column-major
     x: in, out, [n]: where the derivatives are taken
     eps: [1]: the step, one positive number
     user_data: may be null: an address that fcn gets */
QUORIN_API int32_t QUORIN_CDECL sjacobix(quorin_vector_function_with_data fcn, const int32_t* n, const int32_t* m,
                                         float* fjac, float* x, const float* eps, void* user_data);
QUORIN_API int32_t QUORIN_CDECL sjacobix_Idx(quorin_vector_function_with_data fcn, const int32_t* n, const int32_t* m,
                                             float* fjac, int32_t fjac_index, float* x, int32_t x_index,
                                             const float* eps, int32_t eps_index, void* user_data);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
