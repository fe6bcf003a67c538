/* Bessel and Airy functions.
 *
 * Bessel functions J, Y, I, K, H and Airy functions of complex argument, orders fnu >= 0, in double precision (the
 * published AMOS interface). Complex values are two doubles, real part first. The index forms take the same arguments
 * as the plain ones: arrays stay plain addresses.
 *
 * A call gives the members of order fnu, fnu+1, ..., fnu+n-1. Members that are set to zero lie below exp(-700.92), or
 * are so small that their phase is lost. Branch cut: the negative real axis, continuous from above. Scaling (kode 2)
 * removes the exponential growth, and with it most overflows.
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

/* How a call ended. */
enum quorin_amos_status {
  QUORIN_AMOS_OK = 0, /* done */
  QUORIN_AMOS_INPUT_ERROR = 1, /* an argument is out of range; nothing computed */
  QUORIN_AMOS_OVERFLOW = 2, /* overflow: a member does not fit a double; no result */
  QUORIN_AMOS_PRECISION_LOSS = 3, /* done, but half of the digits or more may be lost to the rounding of the
      arguments */
  QUORIN_AMOS_NO_PRECISION = 4, /* no digit would be left; nothing computed */
  QUORIN_AMOS_NOT_CONVERGED = 5 /* a method did not converge; no result */
};

/* ---- Bessel functions ---- */

/* Hankel functions H1 or H2. kode 2: times exp(-i z) for H1, exp(i z) for H2.
     z: the argument of the function
     fnu: order of the first member, at least 0
     kode: scaling (1 none; 2 times the factor named with the routine)
     m: which function (1 H1; 2 H2)
     n: number of members, at least 1
     cy: out, [n]: the members; no result if ierr is 1, 2, 4 or 5
     nz: out: number of members that underflowed and were set to zero
     ierr: out: how the call ended */
QUORIN_API void QUORIN_CDECL CBESH(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* m, const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                   int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESH_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* m, const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                        int32_t* ierr);

/* Modified Bessel function I. kode 2: times exp(-|Re z|).
     z: the argument of the function
     fnu: order of the first member, at least 0
     kode: scaling (1 none; 2 times the factor named with the routine)
     n: number of members, at least 1
     cy: out, [n]: the members; no result if ierr is 1, 2, 4 or 5
     nz: out: number of members that underflowed and were set to zero
     ierr: out: how the call ended */
QUORIN_API void QUORIN_CDECL CBESI(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESI_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);

/* Bessel function J. kode 2: times exp(-|Im z|).
     z: the argument of the function
     fnu: order of the first member, at least 0
     kode: scaling (1 none; 2 times the factor named with the routine)
     n: number of members, at least 1
     cy: out, [n]: the members; no result if ierr is 1, 2, 4 or 5
     nz: out: number of members that underflowed and were set to zero
     ierr: out: how the call ended */
QUORIN_API void QUORIN_CDECL CBESJ(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESJ_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);

/* Modified Bessel function K. kode 2: times exp(z).
     z: the argument of the function
     fnu: order of the first member, at least 0
     kode: scaling (1 none; 2 times the factor named with the routine)
     n: number of members, at least 1
     cy: out, [n]: the members; no result if ierr is 1, 2, 4 or 5
     nz: out: number of members that underflowed and were set to zero
     ierr: out: how the call ended */
QUORIN_API void QUORIN_CDECL CBESK(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESK_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);

/* Bessel function Y. kode 2: times exp(-|Im z|).
     z: the argument of the function
     fnu: order of the first member, at least 0
     kode: scaling (1 none; 2 times the factor named with the routine)
     n: number of members, at least 1
     cy: out, [n]: the members; no result if ierr is 1, 2, 4 or 5
     nz: out: number of members that underflowed and were set to zero
     cwrk: out, [n]: workspace of the published interface; not touched
     ierr: out: how the call ended */
QUORIN_API void QUORIN_CDECL CBESY(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                   const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                   quorin_double_complex* cwrk, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBESY_Idx(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                        const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                        quorin_double_complex* cwrk, int32_t* ierr);

/* ---- Airy functions ---- */

/* Airy function Ai or its derivative. kode 2: times exp(zeta), zeta = (2/3) z sqrt(z).
     z: the argument of the function
     id: which function (0 the function itself; 1 its derivative)
     kode: scaling (1 none; 2 times the factor named with the routine)
     ai: out: the value; no result if ierr is 1, 2, 4 or 5
     nz: out: 1 if the value underflowed and was set to zero, else 0
     ierr: out: how the call ended */
QUORIN_API void QUORIN_CDECL CAIRY(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                   quorin_double_complex* ai, int32_t* nz, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCAIRY_Idx(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                        quorin_double_complex* ai, int32_t* nz, int32_t* ierr);

/* Airy function Bi or its derivative. kode 2: times exp(-|Re zeta|), zeta = (2/3) z sqrt(z).
     z: the argument of the function
     id: which function (0 the function itself; 1 its derivative)
     kode: scaling (1 none; 2 times the factor named with the routine)
     bi: out: the value; no result if ierr is 1, 2, 4 or 5
     ierr: out: how the call ended */
QUORIN_API void QUORIN_CDECL CBIRY(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                   quorin_double_complex* bi, int32_t* ierr);
QUORIN_API void QUORIN_CDECL sCBIRY_Idx(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                        quorin_double_complex* bi, int32_t* ierr);

/* ---- Machine constants ---- */

/* A constant of single precision; a NaN for an index that is not listed.
     i: which constant (1 smallest normal number; 2 largest number; 3 half epsilon; 4 epsilon, the distance from 1 to
         the next number; 5 log10(2)) */
QUORIN_API float QUORIN_CDECL R1MACH(const int32_t* i);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
