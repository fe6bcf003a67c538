/* Library services.
 *
 * Thread counts, the text-output callback, the error handler of the dense routines, and buffers. Scalars are passed by
 * value here, unlike everywhere else in the library.
 *
 * Thread counts are seeded from the environment at the first question: MKL_DOMAIN_NUM_THREADS, MKL_NUM_THREADS,
 * OMP_NUM_THREADS, else the number of physical cores; MKL_DYNAMIC and KMP_BLOCKTIME likewise. A call outranks the
 * environment, a domain's own count outranks the count for all domains. Domains: 0 all, 1 BLAS, 2 FFT, 3 vector math, 4
 * sparse direct solver.
 *
 * Set these before numerical work; they are plain shared values.
 *
 * Generated from exports/tables/services.table. Do not edit. */
#ifndef QUORIN_SERVICES_H
#define QUORIN_SERVICES_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A host function that receives one zero-terminated text. It is called with the stdcall convention. */
typedef void(QUORIN_CALLBACK* quorin_text_output_callback)(const char* text);

/* ---- Threads ---- */

/* Sets the number of threads for all domains that have no count of their own. n <= 0 changes nothing. */
QUORIN_API void QUORIN_CDECL sMKL_Set_Num_Threads(int32_t n);

/* The number of threads that the library may use. */
QUORIN_API int32_t QUORIN_CDECL sMKL_Get_Max_Threads(void);

/* Sets a domain's own count; 0 takes it back. Returns 1, or 0 for a negative count or an unknown domain, which change
   nothing. Domain 0 is the count for all domains. */
QUORIN_API int32_t QUORIN_CDECL sMKL_Domain_Set_Num_Threads(int32_t n, int32_t domain);

/* The number of threads that a domain may use; for an unknown domain, that for all domains. */
QUORIN_API int32_t QUORIN_CDECL sMKL_Domain_Get_Max_Threads(int32_t domain);

/* Non-zero lets the library use fewer threads than set: never more than physical cores. On at first. */
QUORIN_API void QUORIN_CDECL sMKL_Set_Dynamic(int32_t flag);

/* 1 if dynamic adjustment is on, else 0. */
QUORIN_API int32_t QUORIN_CDECL sMKL_Get_Dynamic(void);

/* How long idle worker threads wait for more work before they end, 200 at first; 2147483647 for ever, negative values
   are ignored. The value is also handed to kmp_set_blocktime of libiomp5md.dll when the process has that module loaded. */
QUORIN_API void QUORIN_CDECL sokmp_set_blocktime(int32_t milliseconds);

/* ---- Memory ---- */

/* Gives back the work memory that no running call uses. Safe at any time; the next large operation takes new memory. */
QUORIN_API void QUORIN_CDECL sMKL_FreeBuffers(void);

/* ---- Text ---- */

/* Installs the host function that receives the text of report routines; null drops the text. It is called with the
   stdcall convention, in pieces of at most 1024 characters. */
QUORIN_API void QUORIN_CDECL set_printf_callback_32f(quorin_text_output_callback callback);

/* Prints nothing, never calls the callback, and returns 0. */
QUORIN_API int32_t QUORIN_CDECL taucs_printf(const char* format, ...);

/* ---- Errors ---- */

/* The error handler of the dense routines: writes one line to standard output that names the routine (20 characters at
   most) and the number of the wrong parameter, and returns. Nothing happens if srname or info is null or len negative.
     srname: [len] */
QUORIN_API void QUORIN_CDECL XERBLA(const char* srname, const int32_t* info, int32_t len);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
