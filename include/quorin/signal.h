/* Signal design and structured solvers.
 *
 * Equiripple design of linear-phase filters in double precision, and solvers for Toeplitz systems in single (TSLS1) and
 * single-complex (TSLC1) precision. Every argument is passed by reference. Calls from several host threads on separate
 * data are independent.
 *
 * REMEZ, types of design. TYPE 1, multiband: H is symmetric, its response is to be DES in each band, and its error
 * counts times WEIGHT > 0. TYPE 2, differentiator: H is antisymmetric, its response at frequency f is to be DES f (2 pi
 * f for the derivative), and its error counts times WEIGHT / f, so that it is relative; a band with DES = 0 is as in
 * type 1. TYPE 3, Hilbert transformer: H is antisymmetric, otherwise as type 1. The response is meant without the delay
 * of (NUMTAPS - 1) / 2 samples, and without the factor i of antisymmetric filters.
 *
 * REMEZ, IERR. 0: converged, to the best possible filter within a part in 1e9 of its error or within what rounding
 * costs. 1: bad input, nothing is written. 2: not converged within MAXITER exchanges, or the best filter is too large
 * between the bands for double precision; H is the best filter met. 3: no memory, nothing is written.
 *
 * REMEZ, MAXITER and GRIDDENSITY. MAXITER bounds the exchanges at full length; 0 stands for 40. The result is optimal
 * over all frequencies of the bands, not on a grid: a positive GRIDDENSITY only says how finely the search for extrema
 * divides the bands (0 stands for 16). A negative one designs for a grid of -GRIDDENSITY frequencies per coefficient
 * alone, as older programs did; -16 repeats published filters to their printed digits. Negative MAXITER and GRIDDENSITY
 * below -4096 are bad input.
 *
 * REMEZ, forced zeros. Antisymmetric filters vanish at frequency 0, symmetric ones with an even NUMTAPS and
 * antisymmetric ones with an odd NUMTAPS at 0.5. A band that reaches such a zero is cut short of it by one step of the
 * grid.
 *
 * Generated from exports/tables/signal.table. Do not edit. */
#ifndef QUORIN_SIGNAL_H
#define QUORIN_SIGNAL_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Equiripple filter design ---- */

/* The linear-phase filter of NUMTAPS >= 3 coefficients whose largest weighted error over NUMBANDS bands is least (Parks
   and McClellan). BANDS holds the lower and upper edge of each band in cycles per sample, strictly ascending within 0
   to 0.5.
     H: out, [NUMTAPS]
     BANDS: [2 x NUMBANDS]
     DES: [NUMBANDS]
     WEIGHT: [NUMBANDS]
     IERR: out */
QUORIN_API void QUORIN_CDECL REMEZ(double* H, const int32_t* NUMTAPS, const int32_t* NUMBANDS, const double* BANDS,
                                   const double* DES, const double* WEIGHT, const int32_t* TYPE,
                                   const int32_t* GRIDDENSITY, const int32_t* MAXITER, int32_t* IERR);
QUORIN_API void QUORIN_CDECL sREMEZ_Idx(double* H, int32_t H_index, const int32_t* NUMTAPS, const int32_t* NUMBANDS,
                                        const double* BANDS, int32_t BANDS_index, const double* DES, int32_t DES_index,
                                        const double* WEIGHT, int32_t WEIGHT_index, const int32_t* TYPE,
                                        const int32_t* GRIDDENSITY, const int32_t* MAXITER, int32_t* IERR);

/* ---- Toeplitz systems ---- */

/* Solves T X = B for a general Toeplitz matrix T of order M by Levinson's recursion: A1 is the first row, A2 the first
   column from its second element on. X may be B. C1 and C2 are work arrays, used only when the library gets no memory
   for its own. M <= 0 does nothing. The recursion runs in double precision: X is T's solution rounded once, unless a
   leading minor of T is nearly singular. A leading minor that is singular to working precision fills X with NaN;
   nothing is divided by zero. About 3 M^2 multiplications.
     A1: [M]
     A2: [M-1]
     B: [M]
     X: out, [M]
     C1: out, [M-1]
     C2: out, [M-1] */
QUORIN_API void QUORIN_CDECL TSLS1(const float* A1, const float* A2, const float* B, float* X, float* C1, float* C2,
                                   const int32_t* M);
QUORIN_API void QUORIN_CDECL TSLS1_Idx(const float* A1, int32_t A1_index, const float* A2, int32_t A2_index,
                                       const float* B, int32_t B_index, float* X, int32_t X_index, float* C1,
                                       int32_t C1_index, float* C2, int32_t C2_index, const int32_t* M);

/* As TSLS1, for complex systems. Nothing is conjugated.
     A1: [M]
     A2: [M-1]
     B: [M]
     X: out, [M]
     C1: out, [M-1]
     C2: out, [M-1] */
QUORIN_API void QUORIN_CDECL TSLC1(const quorin_complex* A1, const quorin_complex* A2, const quorin_complex* B,
                                   quorin_complex* X, quorin_complex* C1, quorin_complex* C2, const int32_t* M);
QUORIN_API void QUORIN_CDECL TSLC1_Idx(const quorin_complex* A1, int32_t A1_index, const quorin_complex* A2,
                                       int32_t A2_index, const quorin_complex* B, int32_t B_index, quorin_complex* X,
                                       int32_t X_index, quorin_complex* C1, int32_t C1_index, quorin_complex* C2,
                                       int32_t C2_index, const int32_t* M);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
