/* Library services.
 *
 * Thread counts, the text-output callback, the error handler of the dense routines, and buffers. Scalars are passed by
 * value here, unlike everywhere else in the library.
 *
 * Thread counts are seeded from the environment at the first question: MKL_DOMAIN_NUM_THREADS, MKL_NUM_THREADS,
 * OMP_NUM_THREADS, else the number of physical cores; MKL_DYNAMIC and KMP_BLOCKTIME likewise. A call outranks the
 * environment, a domain's own count outranks the count for all domains.
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

/* Values of domain: the kind of computation. */
enum {
  QUORIN_DOMAIN_ALL = 0, /* all that have no count of their own */
  QUORIN_DOMAIN_BLAS = 1, /* BLAS */
  QUORIN_DOMAIN_FFT = 2, /* FFT */
  QUORIN_DOMAIN_VECTOR_MATH = 3, /* vector math */
  QUORIN_DOMAIN_SPARSE_DIRECT = 4 /* sparse direct solver */
};

/* ---- Threads ---- */

/* Sets the number of threads for all domains that have no count of their own. n <= 0 changes nothing.
     n: number of threads */
QUORIN_API void QUORIN_CDECL sMKL_Set_Num_Threads(int32_t n);

/* The number of threads that the library may use. */
QUORIN_API int32_t QUORIN_CDECL sMKL_Get_Max_Threads(void);

/* Sets a domain's own count; 0 takes it back.
     n: number of threads
     domain: the kind of computation (0 all that have no count of their own; 1 BLAS; 2 FFT; 3 vector math; 4 sparse
         direct solver) */
QUORIN_API int32_t QUORIN_CDECL sMKL_Domain_Set_Num_Threads(int32_t n, int32_t domain);

/* The number of threads that a domain may use; for an unknown domain, that for all domains.
     domain: the kind of computation (0 all that have no count of their own; 1 BLAS; 2 FFT; 3 vector math; 4 sparse
         direct solver) */
QUORIN_API int32_t QUORIN_CDECL sMKL_Domain_Get_Max_Threads(int32_t domain);

/* Non-zero lets the library use fewer threads than set: never more than physical cores. On at first.
     flag: non-zero for yes */
QUORIN_API void QUORIN_CDECL sMKL_Set_Dynamic(int32_t flag);

/* Tells whether dynamic adjustment is on. */
QUORIN_API int32_t QUORIN_CDECL sMKL_Get_Dynamic(void);

/* How long idle worker threads wait for more work before they end, 200 at first. The value is also handed to
   kmp_set_blocktime of libiomp5md.dll when the process has that module loaded.
     milliseconds: how long; 2147483647 for ever, negative values are ignored */
QUORIN_API void QUORIN_CDECL sokmp_set_blocktime(int32_t milliseconds);

/* ---- Memory ---- */

/* Gives back the work memory that no running call uses. Safe at any time; the next large operation takes new memory. */
QUORIN_API void QUORIN_CDECL sMKL_FreeBuffers(void);

/* ---- Text ---- */

/* Installs the host function that receives the text of report routines, in pieces of at most 1024 characters; null
   drops the text.
     callback: may be null: the host function; kept: its address is used by later calls */
QUORIN_API void QUORIN_CDECL set_printf_callback_32f(quorin_text_output_callback callback);

/* Prints nothing and never calls the callback.
     format: a text ended by a zero, not read */
QUORIN_API int32_t QUORIN_CDECL taucs_printf(const char* format, ...);

/* ---- Errors ---- */

/* The error handler of the dense routines: writes one line to standard output that names the routine and the number of
   the wrong parameter, and returns. Nothing happens if srname or info is null or len negative.
     srname: [len], may be null: name of the routine; of more than 20 characters the first 20 count
     info: may be null: number of the wrong parameter
     len: characters of srname */
QUORIN_API void QUORIN_CDECL XERBLA(const char* srname, const int32_t* info, int32_t len);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
