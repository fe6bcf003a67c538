/* Signal design and structured solvers.
 *
 * Equiripple design of linear-phase filters in double precision, and solvers for Toeplitz systems in single (TSLS1) and
 * single-complex (TSLC1) precision. Every argument is passed by reference. Calls from several host threads on separate
 * data are independent.
 *
 * A response is meant without the delay of (NUMTAPS - 1) / 2 samples, and without the factor i of antisymmetric
 * filters. Antisymmetric filters vanish at frequency 0, symmetric ones with an even NUMTAPS and antisymmetric ones with
 * an odd NUMTAPS at 0.5: a band that reaches such a zero is cut short of it by one step of the grid.
 *
 * Generated from exports/tables/signal.table. Do not edit. */
#ifndef QUORIN_SIGNAL_H
#define QUORIN_SIGNAL_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* How a design ended. */
enum quorin_signal_outcome {
  QUORIN_SIGNAL_CONVERGED = 0, /* converged, to the best possible filter within a part in 1e9 of its error or within
      what rounding costs */
  QUORIN_SIGNAL_BAD_INPUT = 1, /* bad input; nothing is written */
  QUORIN_SIGNAL_NOT_CONVERGED = 2, /* not converged within MAXITER exchanges, or the best filter is too large between
      the bands for double precision, or weights so different (from about 1 : 1e9 on) that rounding in the band of the
      largest spoils the error; H is the best filter met, whose error need not alternate */
  QUORIN_SIGNAL_NO_MEMORY = 3 /* no memory; nothing is written */
};

/* ---- Equiripple filter design ---- */

/* The linear-phase filter whose largest weighted error over some bands is least (Parks and McClellan).
     H: out, [NUMTAPS]: the filter
     NUMTAPS: number of coefficients, at least 3
     NUMBANDS: number of bands, at least 1
     BANDS: [2 x NUMBANDS]: lower and upper edge of each band in cycles per sample, strictly ascending within 0 to 0.5
     DES: [NUMBANDS]: response wanted in each band; for a differentiator its slope: DES f at frequency f, 2 pi f for the
         derivative
     WEIGHT: [NUMBANDS]: factor of each band's error, above 0
     TYPE: form of the filter (1, 2, 3)
     GRIDDENSITY: how finely the search for extrema divides the bands; 0 stands for 16. The result is optimal over all
         frequencies of the bands, not on a grid. Negative, down to -4096: design for a grid of -GRIDDENSITY frequencies
         per coefficient alone, as older programs did; -16 repeats published filters to their printed digits
     MAXITER: most exchanges at full length, at least 0; 0 stands for 40. 5 to 12 are usual; each costs about 5
         NUMTAPS^2 divisions
     IERR: out: how the design ended */
QUORIN_API void QUORIN_CDECL REMEZ(double* H, const int32_t* NUMTAPS, const int32_t* NUMBANDS, const double* BANDS,
                                   const double* DES, const double* WEIGHT, const int32_t* TYPE,
                                   const int32_t* GRIDDENSITY, const int32_t* MAXITER, int32_t* IERR);
QUORIN_API void QUORIN_CDECL sREMEZ_Idx(double* H, int32_t H_index, const int32_t* NUMTAPS, const int32_t* NUMBANDS,
                                        const double* BANDS, int32_t BANDS_index, const double* DES, int32_t DES_index,
                                        const double* WEIGHT, int32_t WEIGHT_index, const int32_t* TYPE,
                                        const int32_t* GRIDDENSITY, const int32_t* MAXITER, int32_t* IERR);

/* ---- Toeplitz systems ---- */

/* Solves T X = B for a general Toeplitz matrix T by Levinson's recursion. The recursion runs in double precision: X is
   T's solution rounded once, unless a leading minor of T is nearly singular. A leading minor that is singular to
   working precision fills X with NaN; nothing is divided by zero. About 3 M^2 multiplications.
     A1: [M]: first row of T
     A2: [M-1]: first column of T from its second element on
     B: [M]: right-hand side
     X: out, [M]: the solution; may be the same array as B
     C1: out, [M-1]: workspace, used only when the library gets no memory for its own
     C2: out, [M-1]: workspace, used only when the library gets no memory for its own
     M: order of T; 0 or less does nothing */
QUORIN_API void QUORIN_CDECL TSLS1(const float* A1, const float* A2, const float* B, float* X, float* C1, float* C2,
                                   const int32_t* M);
QUORIN_API void QUORIN_CDECL TSLS1_Idx(const float* A1, int32_t A1_index, const float* A2, int32_t A2_index,
                                       const float* B, int32_t B_index, float* X, int32_t X_index, float* C1,
                                       int32_t C1_index, float* C2, int32_t C2_index, const int32_t* M);

/* As TSLS1, for complex systems. Nothing is conjugated.
     A1: [M]: first row of T
     A2: [M-1]: first column of T from its second element on
     B: [M]: right-hand side
     X: out, [M]: the solution; may be the same array as B
     C1: out, [M-1]: workspace, used only when the library gets no memory for its own
     C2: out, [M-1]: workspace, used only when the library gets no memory for its own
     M: order of T; 0 or less does nothing */
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
