/* BLAS and sparse BLAS level 1.
 *
 * Basic Linear Algebra Subprograms in single (s) and single-complex (c) precision, as published. Every argument is
 * passed by reference; matrices are column-major with a leading dimension; an option is one character, upper or lower
 * case, with no hidden length.
 *
 * The index form of a routine takes each array as its base address and an element index by value, and works in place
 * from that element on.
 *
 * Levels 2 and 3 report a wrong argument through XERBLA with the routine's name and the argument's position, and touch
 * nothing. Level 1 and the sparse level 1 check nothing; a count of 0 or less does nothing, and functions then return
 * 0. If there is no memory for the work buffers of a level 2 or 3 routine, XERBLA reports that (code 1000) and nothing
 * is touched.
 *
 * A vector of n elements with stride incx takes (n - 1) |incx| + 1 elements of its array. ^T is the transpose, ^H the
 * conjugate transpose, which is the same for real matrices. With m = 0 or n = 0 nothing is done; with alpha = 0 or k =
 * 0 the result is only multiplied by beta. An array that is written must not overlap with any other one.
 *
 * Threads: levels 2 and 3 use several when the operation is large enough (see the services page). Calls from several
 * host threads on separate data are independent.
 *
 * Generated from exports/tables/blas.table. Do not edit. */
#ifndef QUORIN_BLAS_H
#define QUORIN_BLAS_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Level 1 ---- */

/* y <- a x + y.
     n: number of elements; 0 or less does nothing
     a: factor a
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: in, out, [n, stride incy]: vector y; on return the sum
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL saxpy(const int32_t* n, const float* a, const float* x, const int32_t* incx, float* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL SAXPY(const int32_t* n, const float* a, const float* x, const int32_t* incx, float* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL saxpy_Idx(const int32_t* n, const float* a, const float* x, int32_t x_index,
                                       const int32_t* incx, float* y, int32_t y_index, const int32_t* incy);
QUORIN_API void QUORIN_CDECL caxpy(const int32_t* n, const quorin_complex* a, const quorin_complex* x,
                                   const int32_t* incx, quorin_complex* y, const int32_t* incy);
QUORIN_API void QUORIN_CDECL caxpy_Idx(const int32_t* n, const quorin_complex* a, const quorin_complex* x,
                                       int32_t x_index, const int32_t* incx, quorin_complex* y, int32_t y_index,
                                       const int32_t* incy);

/* y <- x.
     n: number of elements; 0 or less does nothing
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: out, [n, stride incy]: on return x
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL scopy(const int32_t* n, const float* x, const int32_t* incx, float* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL SCOPY(const int32_t* n, const float* x, const int32_t* incx, float* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL scopy_Idx(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx, float* y,
                                       int32_t y_index, const int32_t* incy);
QUORIN_API void QUORIN_CDECL ccopy(const int32_t* n, const quorin_complex* x, const int32_t* incx, quorin_complex* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL ccopy_Idx(const int32_t* n, const quorin_complex* x, int32_t x_index, const int32_t* incx,
                                       quorin_complex* y, int32_t y_index, const int32_t* incy);

/* Exchanges x and y.
     n: number of elements; 0 or less does nothing
     x: in, out, [n, stride incx]: vector x; on return y
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: in, out, [n, stride incy]: vector y; on return x
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL sswap(const int32_t* n, float* x, const int32_t* incx, float* y, const int32_t* incy);
QUORIN_API void QUORIN_CDECL sswap_Idx(const int32_t* n, float* x, int32_t x_index, const int32_t* incx, float* y,
                                       int32_t y_index, const int32_t* incy);
QUORIN_API void QUORIN_CDECL cswap(const int32_t* n, quorin_complex* x, const int32_t* incx, quorin_complex* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL cswap_Idx(const int32_t* n, quorin_complex* x, int32_t x_index, const int32_t* incx,
                                       quorin_complex* y, int32_t y_index, const int32_t* incy);

/* Returns x^T y.
     n: number of elements; 0 or less does nothing
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: [n, stride incy]: vector y
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API float QUORIN_CDECL sdot(const int32_t* n, const float* x, const int32_t* incx, const float* y,
                                   const int32_t* incy);
QUORIN_API float QUORIN_CDECL SDOT(const int32_t* n, const float* x, const int32_t* incx, const float* y,
                                   const int32_t* incy);
QUORIN_API float QUORIN_CDECL sdot_Idx(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx,
                                       const float* y, int32_t y_index, const int32_t* incy);
QUORIN_API void QUORIN_CDECL cdotu(quorin_complex* result, const int32_t* n, const quorin_complex* x,
                                   const int32_t* incx, const quorin_complex* y, const int32_t* incy);
QUORIN_API void QUORIN_CDECL cdotu_Idx(quorin_complex* result, const int32_t* n, const quorin_complex* x,
                                       int32_t x_index, const int32_t* incx, const quorin_complex* y, int32_t y_index,
                                       const int32_t* incy);

/* Returns x^T y.
     n: number of elements; 0 or less does nothing
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: [n, stride incy]: vector y
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL cdotc(quorin_complex* result, const int32_t* n, const quorin_complex* x,
                                   const int32_t* incx, const quorin_complex* y, const int32_t* incy);
QUORIN_API void QUORIN_CDECL cdotc_Idx(quorin_complex* result, const int32_t* n, const quorin_complex* x,
                                       int32_t x_index, const int32_t* incx, const quorin_complex* y, int32_t y_index,
                                       const int32_t* incy);

/* Returns the Euclidean norm of x, without overflow or underflow on the way.
     n: number of elements; 0 or less does nothing
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API float QUORIN_CDECL snrm2(const int32_t* n, const float* x, const int32_t* incx);
QUORIN_API float QUORIN_CDECL SNRM2(const int32_t* n, const float* x, const int32_t* incx);
QUORIN_API float QUORIN_CDECL snrm2_Idx(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
QUORIN_API float QUORIN_CDECL scnrm2(const int32_t* n, const quorin_complex* x, const int32_t* incx);
QUORIN_API float QUORIN_CDECL scnrm2_Idx(const int32_t* n, const quorin_complex* x, int32_t x_index,
                                         const int32_t* incx);

/* Returns the sum of |Re x_i| + |Im x_i|.
     n: number of elements; 0 or less does nothing
     x: [n, stride incx]: vector x
     incx: stride of x; if it is below 1, the result is 0 */
QUORIN_API float QUORIN_CDECL sasum(const int32_t* n, const float* x, const int32_t* incx);
QUORIN_API float QUORIN_CDECL sasum_Idx(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
QUORIN_API float QUORIN_CDECL scasum(const int32_t* n, const quorin_complex* x, const int32_t* incx);
QUORIN_API float QUORIN_CDECL scasum_Idx(const int32_t* n, const quorin_complex* x, int32_t x_index,
                                         const int32_t* incx);

/* x <- a x.
     n: number of elements; 0 or less does nothing
     a: factor a
     x: in, out, [n, stride incx]: vector x; on return the product
     incx: stride of x; if it is below 1, nothing is done */
QUORIN_API void QUORIN_CDECL sscal(const int32_t* n, const float* a, float* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL SSCAL(const int32_t* n, const float* a, float* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL sscal_Idx(const int32_t* n, const float* a, float* x, int32_t x_index,
                                       const int32_t* incx);
QUORIN_API void QUORIN_CDECL cscal(const int32_t* n, const quorin_complex* a, quorin_complex* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL cscal_Idx(const int32_t* n, const quorin_complex* a, quorin_complex* x, int32_t x_index,
                                       const int32_t* incx);
QUORIN_API void QUORIN_CDECL csscal(const int32_t* n, const float* a, quorin_complex* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL csscal_Idx(const int32_t* n, const float* a, quorin_complex* x, int32_t x_index,
                                        const int32_t* incx);

/* Finds the first element with the largest |Re| + |Im|.
     n: number of elements; 0 or less does nothing
     x: [n, stride incx]: vector x
     incx: stride of x; if it is below 1, the result is 0 */
QUORIN_API int32_t QUORIN_CDECL isamax(const int32_t* n, const float* x, const int32_t* incx);
QUORIN_API int32_t QUORIN_CDECL isamax_Idx(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
QUORIN_API int32_t QUORIN_CDECL icamax(const int32_t* n, const quorin_complex* x, const int32_t* incx);
QUORIN_API int32_t QUORIN_CDECL icamax_Idx(const int32_t* n, const quorin_complex* x, int32_t x_index,
                                           const int32_t* incx);

/* Finds the first element with the smallest |Re| + |Im|.
     n: number of elements; 0 or less does nothing
     x: [n, stride incx]: vector x
     incx: stride of x; if it is below 1, the result is 0 */
QUORIN_API int32_t QUORIN_CDECL isamin(const int32_t* n, const float* x, const int32_t* incx);
QUORIN_API int32_t QUORIN_CDECL isamin_Idx(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
QUORIN_API int32_t QUORIN_CDECL icamin(const int32_t* n, const quorin_complex* x, const int32_t* incx);
QUORIN_API int32_t QUORIN_CDECL icamin_Idx(const int32_t* n, const quorin_complex* x, int32_t x_index,
                                           const int32_t* incx);

/* ---- Rotations ---- */

/* Makes the Givens rotation with (c s; -s c)(a; b) = (r; 0). On return a holds r and b the number z from which c and s
   can be recovered.
     a: in, out: on entry the first component; on return r
     b: in, out: on entry the second component; on return z: s if |a| > |b|, else 1/c, or 1 if c = 0
     c: out: cosine of the angle
     s: out: sine of the angle */
QUORIN_API void QUORIN_CDECL srotg(float* a, float* b, float* c, float* s);
QUORIN_API void QUORIN_CDECL srotg_Idx(float* a, float* b, float* c, float* s);

/* Makes the Givens rotation with (c s; -s c)(a; b) = (r; 0). On return a holds r and b the number z from which c and s
   can be recovered.
     a: in, out: on entry the first component; on return r
     b: second component
     c: out: cosine of the angle
     s: out: sine of the angle */
QUORIN_API void QUORIN_CDECL crotg(quorin_complex* a, const quorin_complex* b, float* c, quorin_complex* s);
QUORIN_API void QUORIN_CDECL crotg_Idx(quorin_complex* a, const quorin_complex* b, float* c, quorin_complex* s);

/* Applies a plane rotation with real cosine and sine to the points (x_i, y_i).
     n: number of elements; 0 or less does nothing
     x: in, out, [n, stride incx]: x; on return c x + s y
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: in, out, [n, stride incy]: y; on return c y - s x
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     c: cosine of the angle
     s: sine of the angle */
QUORIN_API void QUORIN_CDECL srot(const int32_t* n, float* x, const int32_t* incx, float* y, const int32_t* incy,
                                  const float* c, const float* s);
QUORIN_API void QUORIN_CDECL srot_Idx(const int32_t* n, float* x, int32_t x_index, const int32_t* incx, float* y,
                                      int32_t y_index, const int32_t* incy, const float* c, const float* s);
QUORIN_API void QUORIN_CDECL csrot(const int32_t* n, quorin_complex* x, const int32_t* incx, quorin_complex* y,
                                   const int32_t* incy, const float* c, const float* s);
QUORIN_API void QUORIN_CDECL csrot_Idx(const int32_t* n, quorin_complex* x, int32_t x_index, const int32_t* incx,
                                       quorin_complex* y, int32_t y_index, const int32_t* incy, const float* c,
                                       const float* s);

/* Makes the modified Givens rotation that zeroes the second component of (sqrt(d1) x1, sqrt(d2) y1).
     d1: in, out: on entry the first scale; on return the updated one
     d2: in, out: on entry the second scale; on return the updated one
     x1: in, out: on entry the first component; on return the updated one
     y1: second component
     param: out, [5]: the transformation H; param(2) to param(5) are the places of h11, h21, h12, h22. param(1) = -1:
         all are stored; 0: but h11 = h22 = 1; 1: but h12 = 1, h21 = -1; -2: H is the identity, none is stored */
QUORIN_API void QUORIN_CDECL srotmg(float* d1, float* d2, float* x1, const float* y1, float* param);
QUORIN_API void QUORIN_CDECL srotmg_Idx(float* d1, float* d2, float* x1, const float* y1, float* param,
                                        int32_t param_index);

/* Applies the modified Givens rotation that param describes to the points (x_i, y_i).
     n: number of elements; 0 or less does nothing
     x: in, out, [n, stride incx]: x; on return h11 x + h12 y
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: in, out, [n, stride incy]: y; on return h21 x + h22 y
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     param: [5]: the transformation, as stored by rotmg */
QUORIN_API void QUORIN_CDECL srotm(const int32_t* n, float* x, const int32_t* incx, float* y, const int32_t* incy,
                                   const float* param);
QUORIN_API void QUORIN_CDECL srotm_Idx(const int32_t* n, float* x, int32_t x_index, const int32_t* incx, float* y,
                                       int32_t y_index, const int32_t* incy, const float* param);

/* ---- Sparse level 1 ---- */

/* y(indx_k) <- y(indx_k) + a x_k for k = 1..nz; positions are 1-based.
     nz: number of values; 0 or less does nothing
     a: factor a
     x: [nz]: the values
     indx: [nz]: 1-based position of each value in y
     y: in, out, [max(indx)]: full vector; on return with the values added */
QUORIN_API void QUORIN_CDECL saxpyi(const int32_t* nz, const float* a, const float* x, const int32_t* indx, float* y);
QUORIN_API void QUORIN_CDECL saxpyi_Idx(const int32_t* nz, const float* a, const float* x, int32_t x_index,
                                        const int32_t* indx, int32_t indx_index, float* y, int32_t y_index);
QUORIN_API void QUORIN_CDECL caxpyi(const int32_t* nz, const quorin_complex* a, const quorin_complex* x,
                                    const int32_t* indx, quorin_complex* y);
QUORIN_API void QUORIN_CDECL caxpyi_Idx(const int32_t* nz, const quorin_complex* a, const quorin_complex* x,
                                        int32_t x_index, const int32_t* indx, int32_t indx_index, quorin_complex* y,
                                        int32_t y_index);

/* Returns the sum of x_k y(indx_k).
     nz: number of values; 0 or less does nothing
     x: [nz]: the values
     indx: [nz]: 1-based position of each value in y
     y: [max(indx)]: full vector */
QUORIN_API float QUORIN_CDECL sdoti(const int32_t* nz, const float* x, const int32_t* indx, const float* y);
QUORIN_API float QUORIN_CDECL sdoti_Idx(const int32_t* nz, const float* x, int32_t x_index, const int32_t* indx,
                                        int32_t indx_index, const float* y, int32_t y_index);
QUORIN_API void QUORIN_CDECL cdotui(quorin_complex* result, const int32_t* nz, const quorin_complex* x,
                                    const int32_t* indx, const quorin_complex* y);
QUORIN_API void QUORIN_CDECL cdotui_Idx(quorin_complex* result, const int32_t* nz, const quorin_complex* x,
                                        int32_t x_index, const int32_t* indx, int32_t indx_index,
                                        const quorin_complex* y, int32_t y_index);

/* Returns the sum of x_k y(indx_k).
     nz: number of values; 0 or less does nothing
     x: [nz]: the values
     indx: [nz]: 1-based position of each value in y
     y: [max(indx)]: full vector */
QUORIN_API void QUORIN_CDECL cdotci(quorin_complex* result, const int32_t* nz, const quorin_complex* x,
                                    const int32_t* indx, const quorin_complex* y);
QUORIN_API void QUORIN_CDECL cdotci_Idx(quorin_complex* result, const int32_t* nz, const quorin_complex* x,
                                        int32_t x_index, const int32_t* indx, int32_t indx_index,
                                        const quorin_complex* y, int32_t y_index);

/* Gathers x_k <- y(indx_k).
     nz: number of values; 0 or less does nothing
     y: [max(indx)]: full vector
     x: out, [nz]: on return the values
     indx: [nz]: 1-based position of each value in y */
QUORIN_API void QUORIN_CDECL sgthr(const int32_t* nz, const float* y, float* x, const int32_t* indx);
QUORIN_API void QUORIN_CDECL sgthr_Idx(const int32_t* nz, const float* y, int32_t y_index, float* x, int32_t x_index,
                                       const int32_t* indx, int32_t indx_index);
QUORIN_API void QUORIN_CDECL cgthr(const int32_t* nz, const quorin_complex* y, quorin_complex* x, const int32_t* indx);
QUORIN_API void QUORIN_CDECL cgthr_Idx(const int32_t* nz, const quorin_complex* y, int32_t y_index, quorin_complex* x,
                                       int32_t x_index, const int32_t* indx, int32_t indx_index);

/* Scatters y(indx_k) <- x_k.
     nz: number of values; 0 or less does nothing
     x: [nz]: the values
     indx: [nz]: 1-based position of each value in y
     y: in, out, [max(indx)]: full vector; on return with the values at their positions */
QUORIN_API void QUORIN_CDECL ssctr(const int32_t* nz, const float* x, const int32_t* indx, float* y);
QUORIN_API void QUORIN_CDECL ssctr_Idx(const int32_t* nz, const float* x, int32_t x_index, const int32_t* indx,
                                       int32_t indx_index, float* y, int32_t y_index);
QUORIN_API void QUORIN_CDECL csctr(const int32_t* nz, const quorin_complex* x, const int32_t* indx, quorin_complex* y);
QUORIN_API void QUORIN_CDECL csctr_Idx(const int32_t* nz, const quorin_complex* x, int32_t x_index, const int32_t* indx,
                                       int32_t indx_index, quorin_complex* y, int32_t y_index);

/* ---- Level 2 ---- */

/* y <- alpha op(A) x + beta y.
     trans: op(A) (N A; T A^T; C A^H)
     m: rows of A, at least 0
     n: columns of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x n]: matrix A
     lda: leading dimension of a, at least max(1,m)
     x: [n or m, stride incx]: vector x, of n elements (trans N) or m
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     beta: factor of y; with 0, y is not read
     y: in, out, [m or n, stride incy]: vector y, of m elements (trans N) or n; on return the result
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL sgemv(const char* trans, const int32_t* m, const int32_t* n, const float* alpha,
                                   const float* a, const int32_t* lda, const float* x, const int32_t* incx,
                                   const float* beta, float* y, const int32_t* incy);
QUORIN_API void QUORIN_CDECL sgemv_Idx(const char* trans, const int32_t* m, const int32_t* n, const float* alpha,
                                       const float* a, int32_t a_index, const int32_t* lda, const float* x,
                                       int32_t x_index, const int32_t* incx, const float* beta, float* y,
                                       int32_t y_index, const int32_t* incy);
QUORIN_API void QUORIN_CDECL cgemv(const char* trans, const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                   const quorin_complex* a, const int32_t* lda, const quorin_complex* x,
                                   const int32_t* incx, const quorin_complex* beta, quorin_complex* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL cgemv_Idx(const char* trans, const int32_t* m, const int32_t* n,
                                       const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                       const int32_t* lda, const quorin_complex* x, int32_t x_index,
                                       const int32_t* incx, const quorin_complex* beta, quorin_complex* y,
                                       int32_t y_index, const int32_t* incy);

/* x <- op(A) x with A triangular.
     uplo: triangle of A that is read (U upper; L lower)
     trans: op(A) (N A; T A^T; C A^H)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     a: [lda x n]: matrix A
     lda: leading dimension of a, at least max(1,n)
     x: in, out, [n, stride incx]: vector x; on return op(A) x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL strmv(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                   const float* a, const int32_t* lda, float* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL strmv_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                       const float* a, int32_t a_index, const int32_t* lda, float* x, int32_t x_index,
                                       const int32_t* incx);
QUORIN_API void QUORIN_CDECL ctrmv(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                   const quorin_complex* a, const int32_t* lda, quorin_complex* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL ctrmv_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                       const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* x,
                                       int32_t x_index, const int32_t* incx);

/* Solves op(A) x = b with A triangular; x holds b on entry. No test for singularity.
     uplo: triangle of A that is read (U upper; L lower)
     trans: op(A) (N A; T A^T; C A^H)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     a: [lda x n]: matrix A
     lda: leading dimension of a, at least max(1,n)
     x: in, out, [n, stride incx]: on entry b; on return x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL strsv(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                   const float* a, const int32_t* lda, float* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL strsv_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                       const float* a, int32_t a_index, const int32_t* lda, float* x, int32_t x_index,
                                       const int32_t* incx);
QUORIN_API void QUORIN_CDECL ctrsv(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                   const quorin_complex* a, const int32_t* lda, quorin_complex* x, const int32_t* incx);
QUORIN_API void QUORIN_CDECL ctrsv_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                       const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* x,
                                       int32_t x_index, const int32_t* incx);

/* y <- alpha A x + beta y with A symmetric.
     uplo: triangle of A that is read (U upper; L lower)
     n: order of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x n]: matrix A
     lda: leading dimension of a, at least max(1,n)
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     beta: factor of y; with 0, y is not read
     y: in, out, [n, stride incy]: vector y; on return the result
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL ssymv(const char* uplo, const int32_t* n, const float* alpha, const float* a,
                                   const int32_t* lda, const float* x, const int32_t* incx, const float* beta, float* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL ssymv_Idx(const char* uplo, const int32_t* n, const float* alpha, const float* a,
                                       int32_t a_index, const int32_t* lda, const float* x, int32_t x_index,
                                       const int32_t* incx, const float* beta, float* y, int32_t y_index,
                                       const int32_t* incy);

/* y <- alpha A x + beta y with A symmetric.
     uplo: triangle of A that is read; imaginary parts of the diagonal are not (U upper; L lower)
     n: order of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x n]: matrix A
     lda: leading dimension of a, at least max(1,n)
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     beta: factor of y; with 0, y is not read
     y: in, out, [n, stride incy]: vector y; on return the result
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array */
QUORIN_API void QUORIN_CDECL chemv(const char* uplo, const int32_t* n, const quorin_complex* alpha,
                                   const quorin_complex* a, const int32_t* lda, const quorin_complex* x,
                                   const int32_t* incx, const quorin_complex* beta, quorin_complex* y,
                                   const int32_t* incy);
QUORIN_API void QUORIN_CDECL chemv_Idx(const char* uplo, const int32_t* n, const quorin_complex* alpha,
                                       const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                       const quorin_complex* x, int32_t x_index, const int32_t* incx,
                                       const quorin_complex* beta, quorin_complex* y, int32_t y_index,
                                       const int32_t* incy);

/* A <- alpha x y^T + A.
     m: rows of A, at least 0
     n: columns of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     x: [m, stride incx]: vector x, of m elements
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: [n, stride incy]: vector y, of n elements
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     a: in, out, [lda x n]: matrix A; on return the sum
     lda: leading dimension of a, at least max(1,m) */
QUORIN_API void QUORIN_CDECL sger(const int32_t* m, const int32_t* n, const float* alpha, const float* x,
                                  const int32_t* incx, const float* y, const int32_t* incy, float* a,
                                  const int32_t* lda);
QUORIN_API void QUORIN_CDECL sger_Idx(const int32_t* m, const int32_t* n, const float* alpha, const float* x,
                                      int32_t x_index, const int32_t* incx, const float* y, int32_t y_index,
                                      const int32_t* incy, float* a, int32_t a_index, const int32_t* lda);
QUORIN_API void QUORIN_CDECL cgeru(const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                   const quorin_complex* x, const int32_t* incx, const quorin_complex* y,
                                   const int32_t* incy, quorin_complex* a, const int32_t* lda);
QUORIN_API void QUORIN_CDECL cgeru_Idx(const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                       const quorin_complex* x, int32_t x_index, const int32_t* incx,
                                       const quorin_complex* y, int32_t y_index, const int32_t* incy, quorin_complex* a,
                                       int32_t a_index, const int32_t* lda);

/* A <- alpha x y^T + A.
     m: rows of A, at least 0
     n: columns of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     x: [m, stride incx]: vector x, of m elements
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: [n, stride incy]: vector y, of n elements
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     a: in, out, [lda x n]: matrix A; on return the sum
     lda: leading dimension of a, at least max(1,m) */
QUORIN_API void QUORIN_CDECL cgerc(const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                   const quorin_complex* x, const int32_t* incx, const quorin_complex* y,
                                   const int32_t* incy, quorin_complex* a, const int32_t* lda);
QUORIN_API void QUORIN_CDECL cgerc_Idx(const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                       const quorin_complex* x, int32_t x_index, const int32_t* incx,
                                       const quorin_complex* y, int32_t y_index, const int32_t* incy, quorin_complex* a,
                                       int32_t a_index, const int32_t* lda);

/* A <- alpha x x^T + A on one triangle of a symmetric A.
     uplo: triangle of A that is read and written (U upper; L lower)
     n: order of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     a: in, out, [lda x n]: matrix A; on return the sum
     lda: leading dimension of a, at least max(1,n) */
QUORIN_API void QUORIN_CDECL ssyr(const char* uplo, const int32_t* n, const float* alpha, const float* x,
                                  const int32_t* incx, float* a, const int32_t* lda);
QUORIN_API void QUORIN_CDECL ssyr_Idx(const char* uplo, const int32_t* n, const float* alpha, const float* x,
                                      int32_t x_index, const int32_t* incx, float* a, int32_t a_index,
                                      const int32_t* lda);

/* A <- alpha x x^T + A on one triangle of a symmetric A.
     uplo: triangle of A that is read and written; imaginary parts of the diagonal become 0 (U upper; L lower)
     n: order of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     a: in, out, [lda x n]: matrix A; on return the sum
     lda: leading dimension of a, at least max(1,n) */
QUORIN_API void QUORIN_CDECL cher(const char* uplo, const int32_t* n, const float* alpha, const quorin_complex* x,
                                  const int32_t* incx, quorin_complex* a, const int32_t* lda);
QUORIN_API void QUORIN_CDECL cher_Idx(const char* uplo, const int32_t* n, const float* alpha, const quorin_complex* x,
                                      int32_t x_index, const int32_t* incx, quorin_complex* a, int32_t a_index,
                                      const int32_t* lda);

/* A <- alpha x y^T + alpha y x^T + A on one triangle of a symmetric A.
     uplo: triangle of A that is read and written (U upper; L lower)
     n: order of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: [n, stride incy]: vector y
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     a: in, out, [lda x n]: matrix A; on return the sum
     lda: leading dimension of a, at least max(1,n) */
QUORIN_API void QUORIN_CDECL ssyr2(const char* uplo, const int32_t* n, const float* alpha, const float* x,
                                   const int32_t* incx, const float* y, const int32_t* incy, float* a,
                                   const int32_t* lda);
QUORIN_API void QUORIN_CDECL ssyr2_Idx(const char* uplo, const int32_t* n, const float* alpha, const float* x,
                                       int32_t x_index, const int32_t* incx, const float* y, int32_t y_index,
                                       const int32_t* incy, float* a, int32_t a_index, const int32_t* lda);

/* A <- alpha x y^T + alpha y x^T + A on one triangle of a symmetric A.
     uplo: triangle of A that is read and written; imaginary parts of the diagonal become 0 (U upper; L lower)
     n: order of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     x: [n, stride incx]: vector x
     incx: stride of x, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     y: [n, stride incy]: vector y
     incy: stride of y, not 0 in level 2; if it is negative, the vector begins at the far end of its array
     a: in, out, [lda x n]: matrix A; on return the sum
     lda: leading dimension of a, at least max(1,n) */
QUORIN_API void QUORIN_CDECL cher2(const char* uplo, const int32_t* n, const quorin_complex* alpha,
                                   const quorin_complex* x, const int32_t* incx, const quorin_complex* y,
                                   const int32_t* incy, quorin_complex* a, const int32_t* lda);
QUORIN_API void QUORIN_CDECL cher2_Idx(const char* uplo, const int32_t* n, const quorin_complex* alpha,
                                       const quorin_complex* x, int32_t x_index, const int32_t* incx,
                                       const quorin_complex* y, int32_t y_index, const int32_t* incy, quorin_complex* a,
                                       int32_t a_index, const int32_t* lda);

/* ---- Level 3 ---- */

/* C <- alpha op(A) op(B) + beta C; op(A) is m x k, op(B) k x n.
     transa: op(A) (N A; T A^T; C A^H)
     transb: op(B) (N B; T B^T; C B^H)
     m: rows of op(A) and C, at least 0
     n: columns of op(B) and C, at least 0
     k: columns of op(A), rows of op(B), at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x k or m]: matrix A, with k columns (transa N) or m
     lda: leading dimension of a, at least max(1,m) (transa N) or max(1,k)
     b: [ldb x n or k]: matrix B, with n columns (transb N) or k
     ldb: leading dimension of b, at least max(1,k) (transb N) or max(1,n)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,m) */
QUORIN_API void QUORIN_CDECL sgemm(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                                   const int32_t* k, const float* alpha, const float* a, const int32_t* lda,
                                   const float* b, const int32_t* ldb, const float* beta, float* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL sgemm_Idx(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                                       const int32_t* k, const float* alpha, const float* a, int32_t a_index,
                                       const int32_t* lda, const float* b, int32_t b_index, const int32_t* ldb,
                                       const float* beta, float* c, int32_t c_index, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL cgemm(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                                   const int32_t* k, const quorin_complex* alpha, const quorin_complex* a,
                                   const int32_t* lda, const quorin_complex* b, const int32_t* ldb,
                                   const quorin_complex* beta, quorin_complex* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL cgemm_Idx(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                                       const int32_t* k, const quorin_complex* alpha, const quorin_complex* a,
                                       int32_t a_index, const int32_t* lda, const quorin_complex* b, int32_t b_index,
                                       const int32_t* ldb, const quorin_complex* beta, quorin_complex* c,
                                       int32_t c_index, const int32_t* ldc);

/* C <- alpha A B + beta C (side L) or alpha B A + beta C (side R) with A symmetric.
     side: side on which A stands (L left; R right)
     uplo: triangle of A that is read (U upper; L lower)
     m: rows of B and C, at least 0
     n: columns of B and C, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x m or n]: matrix A, of order m (side L) or n (side R)
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     b: [ldb x n]: matrix B
     ldb: leading dimension of b, at least max(1,m)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,m) */
QUORIN_API void QUORIN_CDECL ssymm(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                   const float* alpha, const float* a, const int32_t* lda, const float* b,
                                   const int32_t* ldb, const float* beta, float* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL ssymm_Idx(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                       const float* alpha, const float* a, int32_t a_index, const int32_t* lda,
                                       const float* b, int32_t b_index, const int32_t* ldb, const float* beta, float* c,
                                       int32_t c_index, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL csymm(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                   const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                                   const quorin_complex* b, const int32_t* ldb, const quorin_complex* beta,
                                   quorin_complex* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL csymm_Idx(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                       const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                       const int32_t* lda, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                       const quorin_complex* beta, quorin_complex* c, int32_t c_index,
                                       const int32_t* ldc);

/* C <- alpha A B + beta C (side L) or alpha B A + beta C (side R) with A symmetric.
     side: side on which A stands (L left; R right)
     uplo: triangle of A that is read; imaginary parts of the diagonal are not (U upper; L lower)
     m: rows of B and C, at least 0
     n: columns of B and C, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x m or n]: matrix A, of order m (side L) or n (side R)
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     b: [ldb x n]: matrix B
     ldb: leading dimension of b, at least max(1,m)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,m) */
QUORIN_API void QUORIN_CDECL chemm(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                   const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                                   const quorin_complex* b, const int32_t* ldb, const quorin_complex* beta,
                                   quorin_complex* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL chemm_Idx(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                       const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                       const int32_t* lda, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                       const quorin_complex* beta, quorin_complex* c, int32_t c_index,
                                       const int32_t* ldc);

/* C <- alpha A A^T + beta C (trans N) or alpha A^T A + beta C (trans T) on one triangle of C.
     uplo: triangle of C that is read and written (U upper; L lower)
     trans: the product (N A A^T; T A^T A; C A^T A, too)
     n: order of C, at least 0
     k: other dimension of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x k or n]: matrix A: n x k (trans N) or k x n
     lda: leading dimension of a, at least max(1,n) (trans N) or max(1,k)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,n) */
QUORIN_API void QUORIN_CDECL ssyrk(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                   const float* alpha, const float* a, const int32_t* lda, const float* beta, float* c,
                                   const int32_t* ldc);
QUORIN_API void QUORIN_CDECL ssyrk_Idx(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                       const float* alpha, const float* a, int32_t a_index, const int32_t* lda,
                                       const float* beta, float* c, int32_t c_index, const int32_t* ldc);

/* C <- alpha A A^T + beta C (trans N) or alpha A^T A + beta C (trans T) on one triangle of C.
     uplo: triangle of C that is read and written (U upper; L lower)
     trans: the product (N A A^T; T A^T A)
     n: order of C, at least 0
     k: other dimension of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x k or n]: matrix A: n x k (trans N) or k x n
     lda: leading dimension of a, at least max(1,n) (trans N) or max(1,k)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,n) */
QUORIN_API void QUORIN_CDECL csyrk(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                   const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                                   const quorin_complex* beta, quorin_complex* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL csyrk_Idx(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                       const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                       const int32_t* lda, const quorin_complex* beta, quorin_complex* c,
                                       int32_t c_index, const int32_t* ldc);

/* C <- alpha A A^T + beta C (trans N) or alpha A^T A + beta C (trans T) on one triangle of C.
     uplo: triangle of C that is read and written; imaginary parts of the diagonal become 0 (U upper; L lower)
     trans: the product (N A A^H; C A^H A)
     n: order of C, at least 0
     k: other dimension of A, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x k or n]: matrix A: n x k (trans N) or k x n
     lda: leading dimension of a, at least max(1,n) (trans N) or max(1,k)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,n) */
QUORIN_API void QUORIN_CDECL cherk(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                   const float* alpha, const quorin_complex* a, const int32_t* lda, const float* beta,
                                   quorin_complex* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL cherk_Idx(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                       const float* alpha, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                       const float* beta, quorin_complex* c, int32_t c_index, const int32_t* ldc);

/* C <- alpha A B^T + alpha B A^T + beta C (trans N) or alpha A^T B + alpha B^T A + beta C (trans T) on one triangle of
   C.
     uplo: triangle of C that is read and written (U upper; L lower)
     trans: the products (N A B^T and B A^T; T A^T B and B^T A; C A^T B and B^T A, too)
     n: order of C, at least 0
     k: other dimension of A and B, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x k or n]: matrix A: n x k (trans N) or k x n
     lda: leading dimension of a, at least max(1,n) (trans N) or max(1,k)
     b: [ldb x k or n]: matrix B: n x k (trans N) or k x n
     ldb: leading dimension of b, at least max(1,n) (trans N) or max(1,k)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,n) */
QUORIN_API void QUORIN_CDECL ssyr2k(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                    const float* alpha, const float* a, const int32_t* lda, const float* b,
                                    const int32_t* ldb, const float* beta, float* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL ssyr2k_Idx(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                        const float* alpha, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* b, int32_t b_index, const int32_t* ldb, const float* beta,
                                        float* c, int32_t c_index, const int32_t* ldc);

/* C <- alpha A B^T + alpha B A^T + beta C (trans N) or alpha A^T B + alpha B^T A + beta C (trans T) on one triangle of
   C.
     uplo: triangle of C that is read and written (U upper; L lower)
     trans: the products (N A B^T and B A^T; T A^T B and B^T A)
     n: order of C, at least 0
     k: other dimension of A and B, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x k or n]: matrix A: n x k (trans N) or k x n
     lda: leading dimension of a, at least max(1,n) (trans N) or max(1,k)
     b: [ldb x k or n]: matrix B: n x k (trans N) or k x n
     ldb: leading dimension of b, at least max(1,n) (trans N) or max(1,k)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,n) */
QUORIN_API void QUORIN_CDECL csyr2k(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                    const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* b, const int32_t* ldb, const quorin_complex* beta,
                                    quorin_complex* c, const int32_t* ldc);
QUORIN_API void QUORIN_CDECL csyr2k_Idx(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                        const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, const quorin_complex* beta, quorin_complex* c,
                                        int32_t c_index, const int32_t* ldc);

/* C <- alpha A B^T + alpha B A^T + beta C (trans N) or alpha A^T B + alpha B^T A + beta C (trans T) on one triangle of
   C.
     uplo: triangle of C that is read and written; imaginary parts of the diagonal become 0 (U upper; L lower)
     trans: the products (N A B^H and B A^H; C A^H B and B^H A)
     n: order of C, at least 0
     k: other dimension of A and B, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x k or n]: matrix A: n x k (trans N) or k x n
     lda: leading dimension of a, at least max(1,n) (trans N) or max(1,k)
     b: [ldb x k or n]: matrix B: n x k (trans N) or k x n
     ldb: leading dimension of b, at least max(1,n) (trans N) or max(1,k)
     beta: factor of C; with 0, c is not read
     c: in, out, [ldc x n]: matrix C; on return the result
     ldc: leading dimension of c, at least max(1,n) */
QUORIN_API void QUORIN_CDECL cher2k(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                    const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* b, const int32_t* ldb, const float* beta, quorin_complex* c,
                                    const int32_t* ldc);
QUORIN_API void QUORIN_CDECL cher2k_Idx(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                        const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, const float* beta, quorin_complex* c, int32_t c_index,
                                        const int32_t* ldc);

/* B <- alpha op(A) B (side L) or alpha B op(A) (side R) with A triangular.
     side: side on which A stands (L left; R right)
     uplo: triangle of A that is read (U upper; L lower)
     transa: op(A) (N A; T A^T; C A^H)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     m: rows of B, at least 0
     n: columns of B, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x m or n]: matrix A, of order m (side L) or n (side R)
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     b: in, out, [ldb x n]: matrix B; on return the product
     ldb: leading dimension of b, at least max(1,m) */
QUORIN_API void QUORIN_CDECL strmm(const char* side, const char* uplo, const char* transa, const char* diag,
                                   const int32_t* m, const int32_t* n, const float* alpha, const float* a,
                                   const int32_t* lda, float* b, const int32_t* ldb);
QUORIN_API void QUORIN_CDECL strmm_Idx(const char* side, const char* uplo, const char* transa, const char* diag,
                                       const int32_t* m, const int32_t* n, const float* alpha, const float* a,
                                       int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                       const int32_t* ldb);
QUORIN_API void QUORIN_CDECL ctrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                                   const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                   const quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb);
QUORIN_API void QUORIN_CDECL ctrmm_Idx(const char* side, const char* uplo, const char* transa, const char* diag,
                                       const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                       const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                       int32_t b_index, const int32_t* ldb);

/* Solves op(A) X = alpha B (side L) or X op(A) = alpha B (side R) with A triangular; X replaces B. No test for
   singularity.
     side: side on which A stands (L left; R right)
     uplo: triangle of A that is read (U upper; L lower)
     transa: op(A) (N A; T A^T; C A^H)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     m: rows of B, at least 0
     n: columns of B, at least 0
     alpha: factor of the product; with 0, its operands are not read
     a: [lda x m or n]: matrix A, of order m (side L) or n (side R)
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     b: in, out, [ldb x n]: on entry B; on return X
     ldb: leading dimension of b, at least max(1,m) */
QUORIN_API void QUORIN_CDECL strsm(const char* side, const char* uplo, const char* transa, const char* diag,
                                   const int32_t* m, const int32_t* n, const float* alpha, const float* a,
                                   const int32_t* lda, float* b, const int32_t* ldb);
QUORIN_API void QUORIN_CDECL strsm_Idx(const char* side, const char* uplo, const char* transa, const char* diag,
                                       const int32_t* m, const int32_t* n, const float* alpha, const float* a,
                                       int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                       const int32_t* ldb);
QUORIN_API void QUORIN_CDECL ctrsm(const char* side, const char* uplo, const char* transa, const char* diag,
                                   const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                   const quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb);
QUORIN_API void QUORIN_CDECL ctrsm_Idx(const char* side, const char* uplo, const char* transa, const char* diag,
                                       const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                       const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                       int32_t b_index, const int32_t* ldb);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
