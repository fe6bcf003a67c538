/* Jacobian matrices by central differences.
 *
 * The m x n matrix of the derivatives of the host's function F: R^n -> R^m at x, from 2 n evaluations: (F(x + eps e_j)
 * - F(x - eps e_j)) / (2 eps). What is divided by is the distance of the two floats that the entry of x becomes. A good
 * eps for variables of size one is 1e-3 to 4e-3; for others, that times their size.
 *
 * With reverse communication, call sjacobi_init with a handle variable, which it fills, then sjacobi_solve until
 * RCI_Request is 0, then sjacobi_delete; x and fjac stay where they are from init to delete. Or give sjacobi the
 * function. x comes back bit for bit as it was.
 *
 * All routines return 1501 for success, 1502 for an invalid argument (a handle that is null, deleted or of another
 * kind, a null address, n < 1, m < 1, eps not positive), 1503 when there is no memory.
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

/* ---- With reverse communication ---- */

/* Starts a computation, and fills handle.
     handle: out
     x: in, out, [n]
     fjac: out, [m x n]
     eps: [1] */
QUORIN_API int32_t QUORIN_CDECL sjacobi_init(void** handle, const int32_t* n, const int32_t* m, float* x, float* fjac,
                                             const float* eps);
QUORIN_API int32_t QUORIN_CDECL sjacobi_init_Idx(void** handle, const int32_t* n, const int32_t* m, float* x,
                                                 int32_t x_index, float* fjac, int32_t fjac_index, const float* eps,
                                                 int32_t eps_index);

/* One leg. f1 and f2 have m entries. RCI_Request: 1 put F(x) into f1; 2 put F(x), x having changed, into f2; 0
   finished. A call after that begins anew at the present x.
     handle: in, out
     RCI_Request: out */
QUORIN_API int32_t QUORIN_CDECL sjacobi_solve(void** handle, const float* f1, const float* f2, int32_t* RCI_Request);
QUORIN_API int32_t QUORIN_CDECL sjacobi_solve_Idx(void** handle, const float* f1, int32_t f1_index, const float* f2,
                                                  int32_t f2_index, int32_t* RCI_Request);

/* Frees the computation and sets handle to null.
     handle: in, out */
QUORIN_API int32_t QUORIN_CDECL sjacobi_delete(void** handle);
QUORIN_API int32_t QUORIN_CDECL sjacobi_delete_Idx(void** handle);

/* ---- With a function of the host ---- */

/* The whole computation. fcn(m, n, x, f) puts F(x) into f.
     fjac: out, [m x n]
     x: in, out, [n]
     eps: [1] */
QUORIN_API int32_t QUORIN_CDECL sjacobi(quorin_vector_function fcn, const int32_t* n, const int32_t* m, float* fjac,
                                        float* x, const float* eps);
QUORIN_API int32_t QUORIN_CDECL sjacobi_Idx(quorin_vector_function fcn, const int32_t* n, const int32_t* m, float* fjac,
                                            int32_t fjac_index, float* x, int32_t x_index, const float* eps,
                                            int32_t eps_index);

/* The whole computation. fcn(m, n, x, f, user_data) puts F(x) into f.
     fjac: out, [m x n]
     x: in, out, [n]
     eps: [1] */
QUORIN_API int32_t QUORIN_CDECL sjacobix(quorin_vector_function_with_data fcn, const int32_t* n, const int32_t* m,
                                         float* fjac, float* x, const float* eps, void* user_data);
QUORIN_API int32_t QUORIN_CDECL sjacobix_Idx(quorin_vector_function_with_data fcn, const int32_t* n, const int32_t* m,
                                             float* fjac, int32_t fjac_index, float* x, int32_t x_index,
                                             const float* eps, int32_t eps_index, void* user_data);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
