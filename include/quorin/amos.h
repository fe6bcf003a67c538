/* Bessel and Airy functions.
 *
 * Bessel functions J, Y, I, K, H and Airy functions of complex argument, orders fnu >= 0, in double precision (the
 * published AMOS interface). Complex values are two doubles, real part first. The index forms take the same arguments
 * as the plain ones: arrays stay plain addresses.
 *
 * A call gives the members of order fnu, fnu+1, ..., fnu+n-1. kode 1 asks for the function, kode 2 for the function
 * times the factor named with each routine, which removes its exponential growth. nz counts the members that were set
 * to zero by underflow (below exp(-700.92), or so small that their phase is lost). Branch cut: the negative real axis,
 * continuous from above.
 *
 * ierr: 0 done. 1 input error (fnu < 0, kode not 1 or 2, n < 1, m not 1 or 2, id not 0 or 1, z = 0 for H, K, Y). 2
 * overflow: a member exceeds exp(700.92), or |z| < 2.2e-305 for H, K, Y; no result. 3 |z| or fnu+n-1 above 32767.99:
 * done, but half of the digits or more may be lost to the rounding of the arguments. 4 |z| or fnu+n-1 above
 * 1073741823.5, or not a number: nothing computed. 5 a method did not converge; no result. The Airy functions have the
 * limits 1023.99 and 1048575.99 for |z|, and none for |z| <= 1.
 *
 * Relative error of a member, measured against values of 60 digits: docs/accuracy-amos.md. Every call is independent of
 * every other; no memory is allocated.
 *
 * Generated from exports/tables/amos.table. Do not edit. */
#ifndef QUORIN_AMOS_H
#define QUORIN_AMOS_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Bessel functions ---- */

/* Hankel functions H1 (m = 1) or H2 (m = 2). kode 2: times exp(-i z) for H1, exp(i z) for H2.
     cy: out, [n]
     nz: out
     ierr: out */
QUORIN_API void QUORIN_CDECL CBESH(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* m, const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                   int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESH_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* m, const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                        int32_t* ierr);

/* Modified Bessel function I. kode 2: times exp(-|Re z|).
     cy: out, [n]
     nz: out
     ierr: out */
QUORIN_API void QUORIN_CDECL CBESI(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESI_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);

/* Bessel function J. kode 2: times exp(-|Im z|).
     cy: out, [n]
     nz: out
     ierr: out */
QUORIN_API void QUORIN_CDECL CBESJ(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESJ_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);

/* Modified Bessel function K. kode 2: times exp(z).
     cy: out, [n]
     nz: out
     ierr: out */
QUORIN_API void QUORIN_CDECL CBESK(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESK_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);

/* Bessel function Y. kode 2: times exp(-|Im z|). cwrk is work space of the published interface; it is not touched.
     cy: out, [n]
     nz: out
     cwrk: out, [n]
     ierr: out */
QUORIN_API void QUORIN_CDECL CBESY(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                   quorin_double_complex* cwrk, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESY_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                        quorin_double_complex* cwrk, int32_t* ierr);

/* ---- Airy functions ---- */

/* Airy function Ai (id = 0) or its derivative (id = 1). kode 2: times exp(zeta), zeta = (2/3) z sqrt(z).
     ai: out
     nz: out
     ierr: out */
QUORIN_API void QUORIN_CDECL CAIRY(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                   quorin_double_complex* ai, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCAIRY_Idx(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                        quorin_double_complex* ai, int32_t* nz, int32_t* ierr);

/* Airy function Bi (id = 0) or its derivative (id = 1). kode 2: times exp(-|Re zeta|), zeta = (2/3) z sqrt(z).
     bi: out
     ierr: out */
QUORIN_API void QUORIN_CDECL CBIRY(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                   quorin_double_complex* bi, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBIRY_Idx(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                        quorin_double_complex* bi, int32_t* ierr);

/* ---- Machine constants ---- */

/* Constants of single precision: 1 smallest normal, 2 largest, 3 half epsilon, 4 epsilon, 5 log10(2). Any other index
   gives a NaN. */
QUORIN_API float QUORIN_CDECL R1MACH(const int32_t* i);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
