/* Packing and unpacking of vectors.
 *
 * Gather elements of a vector into contiguous memory, and scatter them back. Bits are moved and nothing is computed:
 * payloads of NaN, -0 and denormal numbers stay what they are. n = 0 touches nothing; n < 0, an increment that is not
 * positive and a null array are reported through XERBLA and touch nothing. Elements go in ascending order, so that of
 * repeated targets the last one stays. Packing may be done in place, y being a, and so may unpacking with an increment
 * or a mask; other overlaps are not supported.
 *
 * Generated from exports/tables/pack.table. Do not edit. */
#ifndef QUORIN_PACK_H
#define QUORIN_PACK_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Packing ---- */

/* y(j) <- a(j inca), j = 0...n-1.
     n: number of elements
     a: [n, stride inca]: elements to be taken
     inca: distance of one element to the next, at least 1
     y: out, [n]: where they go; other elements stay as they are */
QUORIN_API void QUORIN_CDECL vspacki(const int32_t* n, const float* a, const int32_t* inca, float* y);
QUORIN_API void QUORIN_CDECL vspacki_Idx(const int32_t* n, const float* a, int32_t a_index, const int32_t* inca,
                                         float* y, int32_t y_index);

/* y(j) <- a(ia(j)), j = 0...n-1.
     n: number of elements
     a: [max(ia)+1]: elements to be taken
     ia: [n]: indices of elements of a, zero-based, not checked
     y: out, [n]: where they go; other elements stay as they are */
QUORIN_API void QUORIN_CDECL vspackv(const int32_t* n, const float* a, const int32_t* ia, float* y);
QUORIN_API void QUORIN_CDECL vspackv_Idx(const int32_t* n, const float* a, int32_t a_index, const int32_t* ia,
                                         int32_t ia_index, float* y, int32_t y_index);

/* y(0), y(1), ... <- the a(j) with ma(j) not 0; y needs as many elements as are selected.
     n: number of elements
     a: [n]: elements to be taken
     ma: [n]: mask: any entry but 0 selects
     y: out, [n]: where they go; other elements stay as they are */
QUORIN_API void QUORIN_CDECL vspackm(const int32_t* n, const float* a, const int32_t* ma, float* y);
QUORIN_API void QUORIN_CDECL vspackm_Idx(const int32_t* n, const float* a, int32_t a_index, const int32_t* ma,
                                         int32_t ma_index, float* y, int32_t y_index);

/* ---- Unpacking ---- */

/* y(j incy) <- a(j), j = 0...n-1.
     n: number of elements
     a: [n]: elements to be taken
     y: in, out, [n, stride incy]: where they go; other elements stay as they are
     incy: distance of one element to the next, at least 1 */
QUORIN_API void QUORIN_CDECL vsunpacki(const int32_t* n, const float* a, float* y, const int32_t* incy);
QUORIN_API void QUORIN_CDECL vsunpacki_Idx(const int32_t* n, const float* a, int32_t a_index, float* y, int32_t y_index,
                                           const int32_t* incy);

/* y(iy(j)) <- a(j), j = 0...n-1.
     n: number of elements
     a: [n]: elements to be taken
     y: in, out, [max(iy)+1]: where they go; other elements stay as they are
     iy: [n]: indices of elements of y, zero-based, not checked */
QUORIN_API void QUORIN_CDECL vsunpackv(const int32_t* n, const float* a, float* y, const int32_t* iy);
QUORIN_API void QUORIN_CDECL vsunpackv_Idx(const int32_t* n, const float* a, int32_t a_index, float* y, int32_t y_index,
                                           const int32_t* iy, int32_t iy_index);

/* The y(j) with my(j) not 0 <- a(0), a(1), ...
     n: number of elements
     a: [n]: elements to be taken
     y: in, out, [n]: where they go; other elements stay as they are
     my: [n]: mask: any entry but 0 selects */
QUORIN_API void QUORIN_CDECL vsunpackm(const int32_t* n, const float* a, float* y, const int32_t* my);
QUORIN_API void QUORIN_CDECL vsunpackm_Idx(const int32_t* n, const float* a, int32_t a_index, float* y, int32_t y_index,
                                           const int32_t* my, int32_t my_index);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
