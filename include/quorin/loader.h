/* All exports as function pointers in one struct, for hosts that load the library at run time instead of linking it.
 *
 *   quorin_library lapacks;
 *   if (quorin_load(NULL, &lapacks) == 0) lapacks.saxpy(&n, &a, x, &one, y, &one);
 *   quorin_unload(&lapacks);
 *
 * One C or C++ file of the host defines QUORIN_LOADER_IMPLEMENTATION before it includes this header; that file gets the
 * three functions, and links the system's loader (-ldl) where that is a library of its own. Valid C99 and C++.
 *
 * Generated from the export tables. Do not edit. */
#ifndef QUORIN_LOADER_H
#define QUORIN_LOADER_H

#include "quorin/quorin.h" /* for its types and constants; nothing is linked */

#if defined(_WIN32)
#define QUORIN_LIBRARY_NAME "Quorin.Lapacks.6.2.dll"
#else
#define QUORIN_LIBRARY_NAME "libquorin_lapacks.so"
#endif

#define QUORIN_EXPORT_COUNT 789

#ifdef __cplusplus
extern "C" {
#endif

typedef struct quorin_library {
  void* module;        /* the system's handle, or null */
  const char* missing; /* the first export that was not found, or null */

  /* quorin/amos.h */
  void(QUORIN_CDECL* CBESH)(const quorin_double_complex* z, const double* fnu, const int32_t* kode, const int32_t* m,
                            const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* sCBESH_Idx)(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                 const int32_t* m, const int32_t* n, quorin_double_complex* cy, int32_t* nz,
                                 int32_t* ierr);
  void(QUORIN_CDECL* CBESI)(const quorin_double_complex* z, const double* fnu, const int32_t* kode, const int32_t* n,
                            quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* sCBESI_Idx)(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                 const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* CBESJ)(const quorin_double_complex* z, const double* fnu, const int32_t* kode, const int32_t* n,
                            quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* sCBESJ_Idx)(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                 const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* CBESK)(const quorin_double_complex* z, const double* fnu, const int32_t* kode, const int32_t* n,
                            quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* sCBESK_Idx)(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                 const int32_t* n, quorin_double_complex* cy, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* CBESY)(const quorin_double_complex* z, const double* fnu, const int32_t* kode, const int32_t* n,
                            quorin_double_complex* cy, int32_t* nz, quorin_double_complex* cwrk, int32_t* ierr);
  void(QUORIN_CDECL* sCBESY_Idx)(const quorin_double_complex* z, const double* fnu, const int32_t* kode,
                                 const int32_t* n, quorin_double_complex* cy, int32_t* nz, quorin_double_complex* cwrk,
                                 int32_t* ierr);
  void(QUORIN_CDECL* CAIRY)(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                            quorin_double_complex* ai, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* sCAIRY_Idx)(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                 quorin_double_complex* ai, int32_t* nz, int32_t* ierr);
  void(QUORIN_CDECL* CBIRY)(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                            quorin_double_complex* bi, int32_t* ierr);
  void(QUORIN_CDECL* sCBIRY_Idx)(const quorin_double_complex* z, const int32_t* id, const int32_t* kode,
                                 quorin_double_complex* bi, int32_t* ierr);
  float(QUORIN_CDECL* R1MACH)(const int32_t* i);

  /* quorin/blas.h */
  void(QUORIN_CDECL* saxpy)(const int32_t* n, const float* a, const float* x, const int32_t* incx, float* y,
                            const int32_t* incy);
  void(QUORIN_CDECL* SAXPY)(const int32_t* n, const float* a, const float* x, const int32_t* incx, float* y,
                            const int32_t* incy);
  void(QUORIN_CDECL* saxpy_Idx)(const int32_t* n, const float* a, const float* x, int32_t x_index, const int32_t* incx,
                                float* y, int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* caxpy)(const int32_t* n, const quorin_complex* a, const quorin_complex* x, const int32_t* incx,
                            quorin_complex* y, const int32_t* incy);
  void(QUORIN_CDECL* caxpy_Idx)(const int32_t* n, const quorin_complex* a, const quorin_complex* x, int32_t x_index,
                                const int32_t* incx, quorin_complex* y, int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* scopy)(const int32_t* n, const float* x, const int32_t* incx, float* y, const int32_t* incy);
  void(QUORIN_CDECL* SCOPY)(const int32_t* n, const float* x, const int32_t* incx, float* y, const int32_t* incy);
  void(QUORIN_CDECL* scopy_Idx)(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx, float* y,
                                int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* ccopy)(const int32_t* n, const quorin_complex* x, const int32_t* incx, quorin_complex* y,
                            const int32_t* incy);
  void(QUORIN_CDECL* ccopy_Idx)(const int32_t* n, const quorin_complex* x, int32_t x_index, const int32_t* incx,
                                quorin_complex* y, int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* sswap)(const int32_t* n, float* x, const int32_t* incx, float* y, const int32_t* incy);
  void(QUORIN_CDECL* sswap_Idx)(const int32_t* n, float* x, int32_t x_index, const int32_t* incx, float* y,
                                int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* cswap)(const int32_t* n, quorin_complex* x, const int32_t* incx, quorin_complex* y,
                            const int32_t* incy);
  void(QUORIN_CDECL* cswap_Idx)(const int32_t* n, quorin_complex* x, int32_t x_index, const int32_t* incx,
                                quorin_complex* y, int32_t y_index, const int32_t* incy);
  float(QUORIN_CDECL* sdot)(const int32_t* n, const float* x, const int32_t* incx, const float* y, const int32_t* incy);
  float(QUORIN_CDECL* SDOT)(const int32_t* n, const float* x, const int32_t* incx, const float* y, const int32_t* incy);
  float(QUORIN_CDECL* sdot_Idx)(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx, const float* y,
                                int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* cdotu)(quorin_complex* result, const int32_t* n, const quorin_complex* x, const int32_t* incx,
                            const quorin_complex* y, const int32_t* incy);
  void(QUORIN_CDECL* cdotu_Idx)(quorin_complex* result, const int32_t* n, const quorin_complex* x, int32_t x_index,
                                const int32_t* incx, const quorin_complex* y, int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* cdotc)(quorin_complex* result, const int32_t* n, const quorin_complex* x, const int32_t* incx,
                            const quorin_complex* y, const int32_t* incy);
  void(QUORIN_CDECL* cdotc_Idx)(quorin_complex* result, const int32_t* n, const quorin_complex* x, int32_t x_index,
                                const int32_t* incx, const quorin_complex* y, int32_t y_index, const int32_t* incy);
  float(QUORIN_CDECL* snrm2)(const int32_t* n, const float* x, const int32_t* incx);
  float(QUORIN_CDECL* SNRM2)(const int32_t* n, const float* x, const int32_t* incx);
  float(QUORIN_CDECL* snrm2_Idx)(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
  float(QUORIN_CDECL* scnrm2)(const int32_t* n, const quorin_complex* x, const int32_t* incx);
  float(QUORIN_CDECL* scnrm2_Idx)(const int32_t* n, const quorin_complex* x, int32_t x_index, const int32_t* incx);
  float(QUORIN_CDECL* sasum)(const int32_t* n, const float* x, const int32_t* incx);
  float(QUORIN_CDECL* sasum_Idx)(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
  float(QUORIN_CDECL* scasum)(const int32_t* n, const quorin_complex* x, const int32_t* incx);
  float(QUORIN_CDECL* scasum_Idx)(const int32_t* n, const quorin_complex* x, int32_t x_index, const int32_t* incx);
  void(QUORIN_CDECL* sscal)(const int32_t* n, const float* a, float* x, const int32_t* incx);
  void(QUORIN_CDECL* SSCAL)(const int32_t* n, const float* a, float* x, const int32_t* incx);
  void(QUORIN_CDECL* sscal_Idx)(const int32_t* n, const float* a, float* x, int32_t x_index, const int32_t* incx);
  void(QUORIN_CDECL* cscal)(const int32_t* n, const quorin_complex* a, quorin_complex* x, const int32_t* incx);
  void(QUORIN_CDECL* cscal_Idx)(const int32_t* n, const quorin_complex* a, quorin_complex* x, int32_t x_index,
                                const int32_t* incx);
  void(QUORIN_CDECL* csscal)(const int32_t* n, const float* a, quorin_complex* x, const int32_t* incx);
  void(QUORIN_CDECL* csscal_Idx)(const int32_t* n, const float* a, quorin_complex* x, int32_t x_index,
                                 const int32_t* incx);
  int32_t(QUORIN_CDECL* isamax)(const int32_t* n, const float* x, const int32_t* incx);
  int32_t(QUORIN_CDECL* isamax_Idx)(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
  int32_t(QUORIN_CDECL* icamax)(const int32_t* n, const quorin_complex* x, const int32_t* incx);
  int32_t(QUORIN_CDECL* icamax_Idx)(const int32_t* n, const quorin_complex* x, int32_t x_index, const int32_t* incx);
  int32_t(QUORIN_CDECL* isamin)(const int32_t* n, const float* x, const int32_t* incx);
  int32_t(QUORIN_CDECL* isamin_Idx)(const int32_t* n, const float* x, int32_t x_index, const int32_t* incx);
  int32_t(QUORIN_CDECL* icamin)(const int32_t* n, const quorin_complex* x, const int32_t* incx);
  int32_t(QUORIN_CDECL* icamin_Idx)(const int32_t* n, const quorin_complex* x, int32_t x_index, const int32_t* incx);
  void(QUORIN_CDECL* srotg)(float* a, float* b, float* c, float* s);
  void(QUORIN_CDECL* srotg_Idx)(float* a, float* b, float* c, float* s);
  void(QUORIN_CDECL* crotg)(quorin_complex* a, const quorin_complex* b, float* c, quorin_complex* s);
  void(QUORIN_CDECL* crotg_Idx)(quorin_complex* a, const quorin_complex* b, float* c, quorin_complex* s);
  void(QUORIN_CDECL* srot)(const int32_t* n, float* x, const int32_t* incx, float* y, const int32_t* incy,
                           const float* c, const float* s);
  void(QUORIN_CDECL* srot_Idx)(const int32_t* n, float* x, int32_t x_index, const int32_t* incx, float* y,
                               int32_t y_index, const int32_t* incy, const float* c, const float* s);
  void(QUORIN_CDECL* csrot)(const int32_t* n, quorin_complex* x, const int32_t* incx, quorin_complex* y,
                            const int32_t* incy, const float* c, const float* s);
  void(QUORIN_CDECL* csrot_Idx)(const int32_t* n, quorin_complex* x, int32_t x_index, const int32_t* incx,
                                quorin_complex* y, int32_t y_index, const int32_t* incy, const float* c,
                                const float* s);
  void(QUORIN_CDECL* srotmg)(float* d1, float* d2, float* x1, const float* y1, float* param);
  void(QUORIN_CDECL* srotmg_Idx)(float* d1, float* d2, float* x1, const float* y1, float* param, int32_t param_index);
  void(QUORIN_CDECL* srotm)(const int32_t* n, float* x, const int32_t* incx, float* y, const int32_t* incy,
                            const float* param);
  void(QUORIN_CDECL* srotm_Idx)(const int32_t* n, float* x, int32_t x_index, const int32_t* incx, float* y,
                                int32_t y_index, const int32_t* incy, const float* param);
  void(QUORIN_CDECL* saxpyi)(const int32_t* nz, const float* a, const float* x, const int32_t* indx, float* y);
  void(QUORIN_CDECL* saxpyi_Idx)(const int32_t* nz, const float* a, const float* x, int32_t x_index,
                                 const int32_t* indx, int32_t indx_index, float* y, int32_t y_index);
  void(QUORIN_CDECL* caxpyi)(const int32_t* nz, const quorin_complex* a, const quorin_complex* x, const int32_t* indx,
                             quorin_complex* y);
  void(QUORIN_CDECL* caxpyi_Idx)(const int32_t* nz, const quorin_complex* a, const quorin_complex* x, int32_t x_index,
                                 const int32_t* indx, int32_t indx_index, quorin_complex* y, int32_t y_index);
  float(QUORIN_CDECL* sdoti)(const int32_t* nz, const float* x, const int32_t* indx, const float* y);
  float(QUORIN_CDECL* sdoti_Idx)(const int32_t* nz, const float* x, int32_t x_index, const int32_t* indx,
                                 int32_t indx_index, const float* y, int32_t y_index);
  void(QUORIN_CDECL* cdotui)(quorin_complex* result, const int32_t* nz, const quorin_complex* x, const int32_t* indx,
                             const quorin_complex* y);
  void(QUORIN_CDECL* cdotui_Idx)(quorin_complex* result, const int32_t* nz, const quorin_complex* x, int32_t x_index,
                                 const int32_t* indx, int32_t indx_index, const quorin_complex* y, int32_t y_index);
  void(QUORIN_CDECL* cdotci)(quorin_complex* result, const int32_t* nz, const quorin_complex* x, const int32_t* indx,
                             const quorin_complex* y);
  void(QUORIN_CDECL* cdotci_Idx)(quorin_complex* result, const int32_t* nz, const quorin_complex* x, int32_t x_index,
                                 const int32_t* indx, int32_t indx_index, const quorin_complex* y, int32_t y_index);
  void(QUORIN_CDECL* sgthr)(const int32_t* nz, const float* y, float* x, const int32_t* indx);
  void(QUORIN_CDECL* sgthr_Idx)(const int32_t* nz, const float* y, int32_t y_index, float* x, int32_t x_index,
                                const int32_t* indx, int32_t indx_index);
  void(QUORIN_CDECL* cgthr)(const int32_t* nz, const quorin_complex* y, quorin_complex* x, const int32_t* indx);
  void(QUORIN_CDECL* cgthr_Idx)(const int32_t* nz, const quorin_complex* y, int32_t y_index, quorin_complex* x,
                                int32_t x_index, const int32_t* indx, int32_t indx_index);
  void(QUORIN_CDECL* ssctr)(const int32_t* nz, const float* x, const int32_t* indx, float* y);
  void(QUORIN_CDECL* ssctr_Idx)(const int32_t* nz, const float* x, int32_t x_index, const int32_t* indx,
                                int32_t indx_index, float* y, int32_t y_index);
  void(QUORIN_CDECL* csctr)(const int32_t* nz, const quorin_complex* x, const int32_t* indx, quorin_complex* y);
  void(QUORIN_CDECL* csctr_Idx)(const int32_t* nz, const quorin_complex* x, int32_t x_index, const int32_t* indx,
                                int32_t indx_index, quorin_complex* y, int32_t y_index);
  void(QUORIN_CDECL* sgemv)(const char* trans, const int32_t* m, const int32_t* n, const float* alpha, const float* a,
                            const int32_t* lda, const float* x, const int32_t* incx, const float* beta, float* y,
                            const int32_t* incy);
  void(QUORIN_CDECL* sgemv_Idx)(const char* trans, const int32_t* m, const int32_t* n, const float* alpha,
                                const float* a, int32_t a_index, const int32_t* lda, const float* x, int32_t x_index,
                                const int32_t* incx, const float* beta, float* y, int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* cgemv)(const char* trans, const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                            const quorin_complex* a, const int32_t* lda, const quorin_complex* x, const int32_t* incx,
                            const quorin_complex* beta, quorin_complex* y, const int32_t* incy);
  void(QUORIN_CDECL* cgemv_Idx)(const char* trans, const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                const quorin_complex* a, int32_t a_index, const int32_t* lda, const quorin_complex* x,
                                int32_t x_index, const int32_t* incx, const quorin_complex* beta, quorin_complex* y,
                                int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* strmv)(const char* uplo, const char* trans, const char* diag, const int32_t* n, const float* a,
                            const int32_t* lda, float* x, const int32_t* incx);
  void(QUORIN_CDECL* strmv_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n, const float* a,
                                int32_t a_index, const int32_t* lda, float* x, int32_t x_index, const int32_t* incx);
  void(QUORIN_CDECL* ctrmv)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                            const quorin_complex* a, const int32_t* lda, quorin_complex* x, const int32_t* incx);
  void(QUORIN_CDECL* ctrmv_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* x,
                                int32_t x_index, const int32_t* incx);
  void(QUORIN_CDECL* strsv)(const char* uplo, const char* trans, const char* diag, const int32_t* n, const float* a,
                            const int32_t* lda, float* x, const int32_t* incx);
  void(QUORIN_CDECL* strsv_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n, const float* a,
                                int32_t a_index, const int32_t* lda, float* x, int32_t x_index, const int32_t* incx);
  void(QUORIN_CDECL* ctrsv)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                            const quorin_complex* a, const int32_t* lda, quorin_complex* x, const int32_t* incx);
  void(QUORIN_CDECL* ctrsv_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* x,
                                int32_t x_index, const int32_t* incx);
  void(QUORIN_CDECL* ssymv)(const char* uplo, const int32_t* n, const float* alpha, const float* a, const int32_t* lda,
                            const float* x, const int32_t* incx, const float* beta, float* y, const int32_t* incy);
  void(QUORIN_CDECL* ssymv_Idx)(const char* uplo, const int32_t* n, const float* alpha, const float* a, int32_t a_index,
                                const int32_t* lda, const float* x, int32_t x_index, const int32_t* incx,
                                const float* beta, float* y, int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* chemv)(const char* uplo, const int32_t* n, const quorin_complex* alpha, const quorin_complex* a,
                            const int32_t* lda, const quorin_complex* x, const int32_t* incx,
                            const quorin_complex* beta, quorin_complex* y, const int32_t* incy);
  void(QUORIN_CDECL* chemv_Idx)(const char* uplo, const int32_t* n, const quorin_complex* alpha,
                                const quorin_complex* a, int32_t a_index, const int32_t* lda, const quorin_complex* x,
                                int32_t x_index, const int32_t* incx, const quorin_complex* beta, quorin_complex* y,
                                int32_t y_index, const int32_t* incy);
  void(QUORIN_CDECL* sger)(const int32_t* m, const int32_t* n, const float* alpha, const float* x, const int32_t* incx,
                           const float* y, const int32_t* incy, float* a, const int32_t* lda);
  void(QUORIN_CDECL* sger_Idx)(const int32_t* m, const int32_t* n, const float* alpha, const float* x, int32_t x_index,
                               const int32_t* incx, const float* y, int32_t y_index, const int32_t* incy, float* a,
                               int32_t a_index, const int32_t* lda);
  void(QUORIN_CDECL* cgeru)(const int32_t* m, const int32_t* n, const quorin_complex* alpha, const quorin_complex* x,
                            const int32_t* incx, const quorin_complex* y, const int32_t* incy, quorin_complex* a,
                            const int32_t* lda);
  void(QUORIN_CDECL* cgeru_Idx)(const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                const quorin_complex* x, int32_t x_index, const int32_t* incx, const quorin_complex* y,
                                int32_t y_index, const int32_t* incy, quorin_complex* a, int32_t a_index,
                                const int32_t* lda);
  void(QUORIN_CDECL* cgerc)(const int32_t* m, const int32_t* n, const quorin_complex* alpha, const quorin_complex* x,
                            const int32_t* incx, const quorin_complex* y, const int32_t* incy, quorin_complex* a,
                            const int32_t* lda);
  void(QUORIN_CDECL* cgerc_Idx)(const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                const quorin_complex* x, int32_t x_index, const int32_t* incx, const quorin_complex* y,
                                int32_t y_index, const int32_t* incy, quorin_complex* a, int32_t a_index,
                                const int32_t* lda);
  void(QUORIN_CDECL* ssyr)(const char* uplo, const int32_t* n, const float* alpha, const float* x, const int32_t* incx,
                           float* a, const int32_t* lda);
  void(QUORIN_CDECL* ssyr_Idx)(const char* uplo, const int32_t* n, const float* alpha, const float* x, int32_t x_index,
                               const int32_t* incx, float* a, int32_t a_index, const int32_t* lda);
  void(QUORIN_CDECL* cher)(const char* uplo, const int32_t* n, const float* alpha, const quorin_complex* x,
                           const int32_t* incx, quorin_complex* a, const int32_t* lda);
  void(QUORIN_CDECL* cher_Idx)(const char* uplo, const int32_t* n, const float* alpha, const quorin_complex* x,
                               int32_t x_index, const int32_t* incx, quorin_complex* a, int32_t a_index,
                               const int32_t* lda);
  void(QUORIN_CDECL* ssyr2)(const char* uplo, const int32_t* n, const float* alpha, const float* x, const int32_t* incx,
                            const float* y, const int32_t* incy, float* a, const int32_t* lda);
  void(QUORIN_CDECL* ssyr2_Idx)(const char* uplo, const int32_t* n, const float* alpha, const float* x, int32_t x_index,
                                const int32_t* incx, const float* y, int32_t y_index, const int32_t* incy, float* a,
                                int32_t a_index, const int32_t* lda);
  void(QUORIN_CDECL* cher2)(const char* uplo, const int32_t* n, const quorin_complex* alpha, const quorin_complex* x,
                            const int32_t* incx, const quorin_complex* y, const int32_t* incy, quorin_complex* a,
                            const int32_t* lda);
  void(QUORIN_CDECL* cher2_Idx)(const char* uplo, const int32_t* n, const quorin_complex* alpha,
                                const quorin_complex* x, int32_t x_index, const int32_t* incx, const quorin_complex* y,
                                int32_t y_index, const int32_t* incy, quorin_complex* a, int32_t a_index,
                                const int32_t* lda);
  void(QUORIN_CDECL* sgemm)(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                            const int32_t* k, const float* alpha, const float* a, const int32_t* lda, const float* b,
                            const int32_t* ldb, const float* beta, float* c, const int32_t* ldc);
  void(QUORIN_CDECL* sgemm_Idx)(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                                const int32_t* k, const float* alpha, const float* a, int32_t a_index,
                                const int32_t* lda, const float* b, int32_t b_index, const int32_t* ldb,
                                const float* beta, float* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* cgemm)(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                            const int32_t* k, const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                            const quorin_complex* b, const int32_t* ldb, const quorin_complex* beta, quorin_complex* c,
                            const int32_t* ldc);
  void(QUORIN_CDECL* cgemm_Idx)(const char* transa, const char* transb, const int32_t* m, const int32_t* n,
                                const int32_t* k, const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                const int32_t* lda, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                const quorin_complex* beta, quorin_complex* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* ssymm)(const char* side, const char* uplo, const int32_t* m, const int32_t* n, const float* alpha,
                            const float* a, const int32_t* lda, const float* b, const int32_t* ldb, const float* beta,
                            float* c, const int32_t* ldc);
  void(QUORIN_CDECL* ssymm_Idx)(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                const float* alpha, const float* a, int32_t a_index, const int32_t* lda, const float* b,
                                int32_t b_index, const int32_t* ldb, const float* beta, float* c, int32_t c_index,
                                const int32_t* ldc);
  void(QUORIN_CDECL* csymm)(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                            const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                            const quorin_complex* b, const int32_t* ldb, const quorin_complex* beta, quorin_complex* c,
                            const int32_t* ldc);
  void(QUORIN_CDECL* csymm_Idx)(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                const int32_t* lda, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                const quorin_complex* beta, quorin_complex* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* chemm)(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                            const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                            const quorin_complex* b, const int32_t* ldb, const quorin_complex* beta, quorin_complex* c,
                            const int32_t* ldc);
  void(QUORIN_CDECL* chemm_Idx)(const char* side, const char* uplo, const int32_t* m, const int32_t* n,
                                const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                const int32_t* lda, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                const quorin_complex* beta, quorin_complex* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* ssyrk)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k, const float* alpha,
                            const float* a, const int32_t* lda, const float* beta, float* c, const int32_t* ldc);
  void(QUORIN_CDECL* ssyrk_Idx)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                const float* alpha, const float* a, int32_t a_index, const int32_t* lda,
                                const float* beta, float* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* csyrk)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                            const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                            const quorin_complex* beta, quorin_complex* c, const int32_t* ldc);
  void(QUORIN_CDECL* csyrk_Idx)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                const int32_t* lda, const quorin_complex* beta, quorin_complex* c, int32_t c_index,
                                const int32_t* ldc);
  void(QUORIN_CDECL* cherk)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k, const float* alpha,
                            const quorin_complex* a, const int32_t* lda, const float* beta, quorin_complex* c,
                            const int32_t* ldc);
  void(QUORIN_CDECL* cherk_Idx)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                const float* alpha, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                const float* beta, quorin_complex* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* ssyr2k)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                             const float* alpha, const float* a, const int32_t* lda, const float* b, const int32_t* ldb,
                             const float* beta, float* c, const int32_t* ldc);
  void(QUORIN_CDECL* ssyr2k_Idx)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                 const float* alpha, const float* a, int32_t a_index, const int32_t* lda,
                                 const float* b, int32_t b_index, const int32_t* ldb, const float* beta, float* c,
                                 int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* csyr2k)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                             const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                             const quorin_complex* b, const int32_t* ldb, const quorin_complex* beta, quorin_complex* c,
                             const int32_t* ldc);
  void(QUORIN_CDECL* csyr2k_Idx)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                 const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                 const quorin_complex* beta, quorin_complex* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* cher2k)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                             const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                             const quorin_complex* b, const int32_t* ldb, const float* beta, quorin_complex* c,
                             const int32_t* ldc);
  void(QUORIN_CDECL* cher2k_Idx)(const char* uplo, const char* trans, const int32_t* n, const int32_t* k,
                                 const quorin_complex* alpha, const quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                 const float* beta, quorin_complex* c, int32_t c_index, const int32_t* ldc);
  void(QUORIN_CDECL* strmm)(const char* side, const char* uplo, const char* transa, const char* diag, const int32_t* m,
                            const int32_t* n, const float* alpha, const float* a, const int32_t* lda, float* b,
                            const int32_t* ldb);
  void(QUORIN_CDECL* strmm_Idx)(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int32_t* m, const int32_t* n, const float* alpha, const float* a, int32_t a_index,
                                const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb);
  void(QUORIN_CDECL* ctrmm)(const char* side, const char* uplo, const char* transa, const char* diag, const int32_t* m,
                            const int32_t* n, const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                            quorin_complex* b, const int32_t* ldb);
  void(QUORIN_CDECL* ctrmm_Idx)(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                int32_t b_index, const int32_t* ldb);
  void(QUORIN_CDECL* strsm)(const char* side, const char* uplo, const char* transa, const char* diag, const int32_t* m,
                            const int32_t* n, const float* alpha, const float* a, const int32_t* lda, float* b,
                            const int32_t* ldb);
  void(QUORIN_CDECL* strsm_Idx)(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int32_t* m, const int32_t* n, const float* alpha, const float* a, int32_t a_index,
                                const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb);
  void(QUORIN_CDECL* ctrsm)(const char* side, const char* uplo, const char* transa, const char* diag, const int32_t* m,
                            const int32_t* n, const quorin_complex* alpha, const quorin_complex* a, const int32_t* lda,
                            quorin_complex* b, const int32_t* ldb);
  void(QUORIN_CDECL* ctrsm_Idx)(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int32_t* m, const int32_t* n, const quorin_complex* alpha,
                                const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                int32_t b_index, const int32_t* ldb);

  /* quorin/feast.h */
  void(QUORIN_CDECL* feastinit_32f)(int32_t* fpm);
  void(QUORIN_CDECL* sfeast_scsrev)(const char* uplo, const int32_t* n, const float* a, const int32_t* ia,
                                    const int32_t* ja, int32_t* fpm, float* epsout, int32_t* loop, const float* emin,
                                    const float* emax, int32_t* m0, float* e, float* x, int32_t* m, float* res,
                                    int32_t* info);
  void(QUORIN_CDECL* sfeast_scsrev_Idx)(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                        int32_t* fpm, int32_t fpm_index, float* epsout, int32_t* loop,
                                        const float* emin, const float* emax, int32_t* m0, float* e, int32_t e_index,
                                        float* x, int32_t x_index, int32_t* m, float* res, int32_t res_index,
                                        int32_t* info);
  void(QUORIN_CDECL* cfeast_hcsrev)(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* ia,
                                    const int32_t* ja, int32_t* fpm, float* epsout, int32_t* loop, const float* emin,
                                    const float* emax, int32_t* m0, float* e, quorin_complex* x, int32_t* m, float* res,
                                    int32_t* info);
  void(QUORIN_CDECL* cfeast_hcsrev_Idx)(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                        int32_t* fpm, int32_t fpm_index, float* epsout, int32_t* loop,
                                        const float* emin, const float* emax, int32_t* m0, float* e, int32_t e_index,
                                        quorin_complex* x, int32_t x_index, int32_t* m, float* res, int32_t res_index,
                                        int32_t* info);
  void(QUORIN_CDECL* sfeast_scsrgv)(const char* uplo, const int32_t* n, const float* a, const int32_t* ia,
                                    const int32_t* ja, const float* b, const int32_t* ib, const int32_t* jb,
                                    int32_t* fpm, float* epsout, int32_t* loop, const float* emin, const float* emax,
                                    int32_t* m0, float* e, float* x, int32_t* m, float* res, int32_t* info);
  void(QUORIN_CDECL* sfeast_scsrgv_Idx)(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                        const float* b, int32_t b_index, const int32_t* ib, int32_t ib_index,
                                        const int32_t* jb, int32_t jb_index, int32_t* fpm, int32_t fpm_index,
                                        float* epsout, int32_t* loop, const float* emin, const float* emax, int32_t* m0,
                                        float* e, int32_t e_index, float* x, int32_t x_index, int32_t* m, float* res,
                                        int32_t res_index, int32_t* info);
  void(QUORIN_CDECL* cfeast_hcsrgv)(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* ia,
                                    const int32_t* ja, const quorin_complex* b, const int32_t* ib, const int32_t* jb,
                                    int32_t* fpm, float* epsout, int32_t* loop, const float* emin, const float* emax,
                                    int32_t* m0, float* e, quorin_complex* x, int32_t* m, float* res, int32_t* info);
  void(QUORIN_CDECL* cfeast_hcsrgv_Idx)(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                        const quorin_complex* b, int32_t b_index, const int32_t* ib, int32_t ib_index,
                                        const int32_t* jb, int32_t jb_index, int32_t* fpm, int32_t fpm_index,
                                        float* epsout, int32_t* loop, const float* emin, const float* emax, int32_t* m0,
                                        float* e, int32_t e_index, quorin_complex* x, int32_t x_index, int32_t* m,
                                        float* res, int32_t res_index, int32_t* info);

  /* quorin/jacobi.h */
  int32_t(QUORIN_CDECL* sjacobi_init)(void** handle, const int32_t* n, const int32_t* m, float* x, float* fjac,
                                      const float* eps);
  int32_t(QUORIN_CDECL* sjacobi_init_Idx)(void** handle, const int32_t* n, const int32_t* m, float* x, int32_t x_index,
                                          float* fjac, int32_t fjac_index, const float* eps, int32_t eps_index);
  int32_t(QUORIN_CDECL* sjacobi_solve)(void** handle, const float* f1, const float* f2, int32_t* RCI_Request);
  int32_t(QUORIN_CDECL* sjacobi_solve_Idx)(void** handle, const float* f1, int32_t f1_index, const float* f2,
                                           int32_t f2_index, int32_t* RCI_Request);
  int32_t(QUORIN_CDECL* sjacobi_delete)(void** handle);
  int32_t(QUORIN_CDECL* sjacobi_delete_Idx)(void** handle);
  int32_t(QUORIN_CDECL* sjacobi)(quorin_vector_function fcn, const int32_t* n, const int32_t* m, float* fjac, float* x,
                                 const float* eps);
  int32_t(QUORIN_CDECL* sjacobi_Idx)(quorin_vector_function fcn, const int32_t* n, const int32_t* m, float* fjac,
                                     int32_t fjac_index, float* x, int32_t x_index, const float* eps,
                                     int32_t eps_index);
  int32_t(QUORIN_CDECL* sjacobix)(quorin_vector_function_with_data fcn, const int32_t* n, const int32_t* m, float* fjac,
                                  float* x, const float* eps, void* user_data);
  int32_t(QUORIN_CDECL* sjacobix_Idx)(quorin_vector_function_with_data fcn, const int32_t* n, const int32_t* m,
                                      float* fjac, int32_t fjac_index, float* x, int32_t x_index, const float* eps,
                                      int32_t eps_index, void* user_data);

  /* quorin/lapack.h */
  void(QUORIN_CDECL* sgetrf)(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, int32_t* ipiv,
                             int32_t* info);
  void(QUORIN_CDECL* sgetrf_Idx)(const int32_t* m, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 int32_t* ipiv, int32_t ipiv_index, int32_t* info);
  void(QUORIN_CDECL* cgetrf)(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda, int32_t* ipiv,
                             int32_t* info);
  void(QUORIN_CDECL* cgetrf_Idx)(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, int32_t* info);
  void(QUORIN_CDECL* sgetrs)(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                             const int32_t* lda, const int32_t* ipiv, float* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* sgetrs_Idx)(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                                 int32_t a_index, const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, float* b,
                                 int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* cgetrs)(const char* trans, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, const int32_t* ipiv, quorin_complex* b, const int32_t* ldb,
                             int32_t* info);
  void(QUORIN_CDECL* cgetrs_Idx)(const char* trans, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                 quorin_complex* b, int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* sgetri)(const int32_t* n, float* a, const int32_t* lda, const int32_t* ipiv, float* work,
                             const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgetri_Idx)(const int32_t* n, float* a, int32_t a_index, const int32_t* lda, const int32_t* ipiv,
                                 int32_t ipiv_index, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* cgetri)(const int32_t* n, quorin_complex* a, const int32_t* lda, const int32_t* ipiv,
                             quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgetri_Idx)(const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 const int32_t* ipiv, int32_t ipiv_index, quorin_complex* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgecon)(const char* norm, const int32_t* n, const float* a, const int32_t* lda, const float* anorm,
                             float* rcond, float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sgecon_Idx)(const char* norm, const int32_t* n, const float* a, int32_t a_index,
                                 const int32_t* lda, const float* anorm, float* rcond, float* work, int32_t work_index,
                                 int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cgecon)(const char* norm, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                             const float* anorm, float* rcond, quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgecon_Idx)(const char* norm, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const float* anorm, float* rcond, quorin_complex* work,
                                 int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgerfs)(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                             const int32_t* lda, const float* af, const int32_t* ldaf, const int32_t* ipiv,
                             const float* b, const int32_t* ldb, float* x, const int32_t* ldx, float* ferr, float* berr,
                             float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sgerfs_Idx)(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                                 int32_t a_index, const int32_t* lda, const float* af, int32_t af_index,
                                 const int32_t* ldaf, const int32_t* ipiv, int32_t ipiv_index, const float* b,
                                 int32_t b_index, const int32_t* ldb, float* x, int32_t x_index, const int32_t* ldx,
                                 float* ferr, float* berr, float* work, int32_t work_index, int32_t* iwork,
                                 int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cgerfs)(const char* trans, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, const quorin_complex* af, const int32_t* ldaf, const int32_t* ipiv,
                             const quorin_complex* b, const int32_t* ldb, quorin_complex* x, const int32_t* ldx,
                             float* ferr, float* berr, quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgerfs_Idx)(const char* trans, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const quorin_complex* af, int32_t af_index,
                                 const int32_t* ldaf, const int32_t* ipiv, int32_t ipiv_index, const quorin_complex* b,
                                 int32_t b_index, const int32_t* ldb, quorin_complex* x, int32_t x_index,
                                 const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, int32_t work_index,
                                 float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgbtrf)(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku, float* ab,
                             const int32_t* ldab, int32_t* ipiv, int32_t* info);
  void(QUORIN_CDECL* sgbtrf_Idx)(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku, float* ab,
                                 int32_t ab_index, const int32_t* ldab, int32_t* ipiv, int32_t ipiv_index,
                                 int32_t* info);
  void(QUORIN_CDECL* cgbtrf)(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku,
                             quorin_complex* ab, const int32_t* ldab, int32_t* ipiv, int32_t* info);
  void(QUORIN_CDECL* cgbtrf_Idx)(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                 quorin_complex* ab, int32_t ab_index, const int32_t* ldab, int32_t* ipiv,
                                 int32_t ipiv_index, int32_t* info);
  void(QUORIN_CDECL* sgbtrs)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                             const int32_t* nrhs, const float* ab, const int32_t* ldab, const int32_t* ipiv, float* b,
                             const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* sgbtrs_Idx)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                 const int32_t* nrhs, const float* ab, int32_t ab_index, const int32_t* ldab,
                                 const int32_t* ipiv, int32_t ipiv_index, float* b, int32_t b_index, const int32_t* ldb,
                                 int32_t* info);
  void(QUORIN_CDECL* cgbtrs)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                             const int32_t* nrhs, const quorin_complex* ab, const int32_t* ldab, const int32_t* ipiv,
                             quorin_complex* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* cgbtrs_Idx)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                 const int32_t* nrhs, const quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                 const int32_t* ipiv, int32_t ipiv_index, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* sgbcon)(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku, const float* ab,
                             const int32_t* ldab, const int32_t* ipiv, const float* anorm, float* rcond, float* work,
                             int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sgbcon_Idx)(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                 const float* ab, int32_t ab_index, const int32_t* ldab, const int32_t* ipiv,
                                 int32_t ipiv_index, const float* anorm, float* rcond, float* work, int32_t work_index,
                                 int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cgbcon)(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                             const quorin_complex* ab, const int32_t* ldab, const int32_t* ipiv, const float* anorm,
                             float* rcond, quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgbcon_Idx)(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                 const quorin_complex* ab, int32_t ab_index, const int32_t* ldab, const int32_t* ipiv,
                                 int32_t ipiv_index, const float* anorm, float* rcond, quorin_complex* work,
                                 int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgbrfs)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                             const int32_t* nrhs, const float* ab, const int32_t* ldab, const float* afb,
                             const int32_t* ldafb, const int32_t* ipiv, const float* b, const int32_t* ldb, float* x,
                             const int32_t* ldx, float* ferr, float* berr, float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sgbrfs_Idx)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                 const int32_t* nrhs, const float* ab, int32_t ab_index, const int32_t* ldab,
                                 const float* afb, int32_t afb_index, const int32_t* ldafb, const int32_t* ipiv,
                                 int32_t ipiv_index, const float* b, int32_t b_index, const int32_t* ldb, float* x,
                                 int32_t x_index, const int32_t* ldx, float* ferr, float* berr, float* work,
                                 int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cgbrfs)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                             const int32_t* nrhs, const quorin_complex* ab, const int32_t* ldab,
                             const quorin_complex* afb, const int32_t* ldafb, const int32_t* ipiv,
                             const quorin_complex* b, const int32_t* ldb, quorin_complex* x, const int32_t* ldx,
                             float* ferr, float* berr, quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgbrfs_Idx)(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                 const int32_t* nrhs, const quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                 const quorin_complex* afb, int32_t afb_index, const int32_t* ldafb,
                                 const int32_t* ipiv, int32_t ipiv_index, const quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, quorin_complex* x, int32_t x_index, const int32_t* ldx,
                                 float* ferr, float* berr, quorin_complex* work, int32_t work_index, float* rwork,
                                 int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* spotrf)(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* spotrf_Idx)(const char* uplo, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 int32_t* info);
  void(QUORIN_CDECL* cpotrf)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* cpotrf_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* spotrs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                             const int32_t* lda, float* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* spotrs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                 int32_t a_index, const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb,
                                 int32_t* info);
  void(QUORIN_CDECL* cpotrs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* cpotrs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* spotri)(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* spotri_Idx)(const char* uplo, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 int32_t* info);
  void(QUORIN_CDECL* cpotri)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* cpotri_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* spocon)(const char* uplo, const int32_t* n, const float* a, const int32_t* lda, const float* anorm,
                             float* rcond, float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* spocon_Idx)(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                 const int32_t* lda, const float* anorm, float* rcond, float* work, int32_t work_index,
                                 int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cpocon)(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                             const float* anorm, float* rcond, quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cpocon_Idx)(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const float* anorm, float* rcond, quorin_complex* work,
                                 int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sporfs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                             const int32_t* lda, const float* af, const int32_t* ldaf, const float* b,
                             const int32_t* ldb, float* x, const int32_t* ldx, float* ferr, float* berr, float* work,
                             int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sporfs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                 int32_t a_index, const int32_t* lda, const float* af, int32_t af_index,
                                 const int32_t* ldaf, const float* b, int32_t b_index, const int32_t* ldb, float* x,
                                 int32_t x_index, const int32_t* ldx, float* ferr, float* berr, float* work,
                                 int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cporfs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, const quorin_complex* af, const int32_t* ldaf, const quorin_complex* b,
                             const int32_t* ldb, quorin_complex* x, const int32_t* ldx, float* ferr, float* berr,
                             quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cporfs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const quorin_complex* af, int32_t af_index,
                                 const int32_t* ldaf, const quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                 quorin_complex* x, int32_t x_index, const int32_t* ldx, float* ferr, float* berr,
                                 quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                 int32_t* info);
  void(QUORIN_CDECL* spbtrf)(const char* uplo, const int32_t* n, const int32_t* kd, float* ab, const int32_t* ldab,
                             int32_t* info);
  void(QUORIN_CDECL* spbtrf_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, float* ab, int32_t ab_index,
                                 const int32_t* ldab, int32_t* info);
  void(QUORIN_CDECL* cpbtrf)(const char* uplo, const int32_t* n, const int32_t* kd, quorin_complex* ab,
                             const int32_t* ldab, int32_t* info);
  void(QUORIN_CDECL* cpbtrf_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, quorin_complex* ab,
                                 int32_t ab_index, const int32_t* ldab, int32_t* info);
  void(QUORIN_CDECL* spbtrs)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                             const float* ab, const int32_t* ldab, float* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* spbtrs_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                 const float* ab, int32_t ab_index, const int32_t* ldab, float* b, int32_t b_index,
                                 const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* cpbtrs)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                             const quorin_complex* ab, const int32_t* ldab, quorin_complex* b, const int32_t* ldb,
                             int32_t* info);
  void(QUORIN_CDECL* cpbtrs_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                 const quorin_complex* ab, int32_t ab_index, const int32_t* ldab, quorin_complex* b,
                                 int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* spbcon)(const char* uplo, const int32_t* n, const int32_t* kd, const float* ab,
                             const int32_t* ldab, const float* anorm, float* rcond, float* work, int32_t* iwork,
                             int32_t* info);
  void(QUORIN_CDECL* spbcon_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, const float* ab,
                                 int32_t ab_index, const int32_t* ldab, const float* anorm, float* rcond, float* work,
                                 int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cpbcon)(const char* uplo, const int32_t* n, const int32_t* kd, const quorin_complex* ab,
                             const int32_t* ldab, const float* anorm, float* rcond, quorin_complex* work, float* rwork,
                             int32_t* info);
  void(QUORIN_CDECL* cpbcon_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, const quorin_complex* ab,
                                 int32_t ab_index, const int32_t* ldab, const float* anorm, float* rcond,
                                 quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                 int32_t* info);
  void(QUORIN_CDECL* spbrfs)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                             const float* ab, const int32_t* ldab, const float* afb, const int32_t* ldafb,
                             const float* b, const int32_t* ldb, float* x, const int32_t* ldx, float* ferr, float* berr,
                             float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* spbrfs_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                 const float* ab, int32_t ab_index, const int32_t* ldab, const float* afb,
                                 int32_t afb_index, const int32_t* ldafb, const float* b, int32_t b_index,
                                 const int32_t* ldb, float* x, int32_t x_index, const int32_t* ldx, float* ferr,
                                 float* berr, float* work, int32_t work_index, int32_t* iwork, int32_t iwork_index,
                                 int32_t* info);
  void(QUORIN_CDECL* cpbrfs)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                             const quorin_complex* ab, const int32_t* ldab, const quorin_complex* afb,
                             const int32_t* ldafb, const quorin_complex* b, const int32_t* ldb, quorin_complex* x,
                             const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, float* rwork,
                             int32_t* info);
  void(QUORIN_CDECL* cpbrfs_Idx)(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                 const quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                 const quorin_complex* afb, int32_t afb_index, const int32_t* ldafb,
                                 const quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* x,
                                 int32_t x_index, const int32_t* ldx, float* ferr, float* berr, quorin_complex* work,
                                 int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* ssytrf)(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* ipiv,
                             float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* ssytrf_Idx)(const char* uplo, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 int32_t* ipiv, int32_t ipiv_index, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* csytrf)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda, int32_t* ipiv,
                             quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* csytrf_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* ssytrs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                             const int32_t* lda, const int32_t* ipiv, float* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* ssytrs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                 int32_t a_index, const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, float* b,
                                 int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* csytrs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, const int32_t* ipiv, quorin_complex* b, const int32_t* ldb,
                             int32_t* info);
  void(QUORIN_CDECL* csytrs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                 quorin_complex* b, int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* ssytri)(const char* uplo, const int32_t* n, float* a, const int32_t* lda, const int32_t* ipiv,
                             float* work, int32_t* info);
  void(QUORIN_CDECL* ssytri_Idx)(const char* uplo, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 const int32_t* ipiv, int32_t ipiv_index, float* work, int32_t work_index,
                                 int32_t* info);
  void(QUORIN_CDECL* csytri)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                             const int32_t* ipiv, quorin_complex* work, int32_t* info);
  void(QUORIN_CDECL* csytri_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                 int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* ssycon)(const char* uplo, const int32_t* n, const float* a, const int32_t* lda,
                             const int32_t* ipiv, const float* anorm, float* rcond, float* work, int32_t* iwork,
                             int32_t* info);
  void(QUORIN_CDECL* ssycon_Idx)(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                 const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                 float* rcond, float* work, int32_t work_index, int32_t* iwork, int32_t iwork_index,
                                 int32_t* info);
  void(QUORIN_CDECL* csycon)(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                             const int32_t* ipiv, const float* anorm, float* rcond, quorin_complex* work,
                             int32_t* info);
  void(QUORIN_CDECL* csycon_Idx)(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                 float* rcond, quorin_complex* work, int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* ssyrfs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                             const int32_t* lda, const float* af, const int32_t* ldaf, const int32_t* ipiv,
                             const float* b, const int32_t* ldb, float* x, const int32_t* ldx, float* ferr, float* berr,
                             float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* ssyrfs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                 int32_t a_index, const int32_t* lda, const float* af, int32_t af_index,
                                 const int32_t* ldaf, const int32_t* ipiv, int32_t ipiv_index, const float* b,
                                 int32_t b_index, const int32_t* ldb, float* x, int32_t x_index, const int32_t* ldx,
                                 float* ferr, float* berr, float* work, int32_t work_index, int32_t* iwork,
                                 int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* csyrfs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, const quorin_complex* af, const int32_t* ldaf, const int32_t* ipiv,
                             const quorin_complex* b, const int32_t* ldb, quorin_complex* x, const int32_t* ldx,
                             float* ferr, float* berr, quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* csyrfs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const quorin_complex* af, int32_t af_index,
                                 const int32_t* ldaf, const int32_t* ipiv, int32_t ipiv_index, const quorin_complex* b,
                                 int32_t b_index, const int32_t* ldb, quorin_complex* x, int32_t x_index,
                                 const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, int32_t work_index,
                                 float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* chetrf)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda, int32_t* ipiv,
                             quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* chetrf_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* chetrs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, const int32_t* ipiv, quorin_complex* b, const int32_t* ldb,
                             int32_t* info);
  void(QUORIN_CDECL* chetrs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                 quorin_complex* b, int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* chetri)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                             const int32_t* ipiv, quorin_complex* work, int32_t* info);
  void(QUORIN_CDECL* chetri_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                 int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* checon)(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                             const int32_t* ipiv, const float* anorm, float* rcond, quorin_complex* work,
                             int32_t* info);
  void(QUORIN_CDECL* checon_Idx)(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                 float* rcond, quorin_complex* work, int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* cherfs)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                             const int32_t* lda, const quorin_complex* af, const int32_t* ldaf, const int32_t* ipiv,
                             const quorin_complex* b, const int32_t* ldb, quorin_complex* x, const int32_t* ldx,
                             float* ferr, float* berr, quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cherfs_Idx)(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const quorin_complex* af, int32_t af_index,
                                 const int32_t* ldaf, const int32_t* ipiv, int32_t ipiv_index, const quorin_complex* b,
                                 int32_t b_index, const int32_t* ldb, quorin_complex* x, int32_t x_index,
                                 const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, int32_t work_index,
                                 float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* strtrs)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                             const int32_t* nrhs, const float* a, const int32_t* lda, float* b, const int32_t* ldb,
                             int32_t* info);
  void(QUORIN_CDECL* strtrs_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                 const int32_t* nrhs, const float* a, int32_t a_index, const int32_t* lda, float* b,
                                 int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* ctrtrs)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                             const int32_t* nrhs, const quorin_complex* a, const int32_t* lda, quorin_complex* b,
                             const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* ctrtrs_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                 const int32_t* nrhs, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 quorin_complex* b, int32_t b_index, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* strtri)(const char* uplo, const char* diag, const int32_t* n, float* a, const int32_t* lda,
                             int32_t* info);
  void(QUORIN_CDECL* strtri_Idx)(const char* uplo, const char* diag, const int32_t* n, float* a, int32_t a_index,
                                 const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* ctrtri)(const char* uplo, const char* diag, const int32_t* n, quorin_complex* a,
                             const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* ctrtri_Idx)(const char* uplo, const char* diag, const int32_t* n, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, int32_t* info);
  void(QUORIN_CDECL* strcon)(const char* norm, const char* uplo, const char* diag, const int32_t* n, const float* a,
                             const int32_t* lda, float* rcond, float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* strcon_Idx)(const char* norm, const char* uplo, const char* diag, const int32_t* n, const float* a,
                                 int32_t a_index, const int32_t* lda, float* rcond, float* work, int32_t work_index,
                                 int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* ctrcon)(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                             const quorin_complex* a, const int32_t* lda, float* rcond, quorin_complex* work,
                             float* rwork, int32_t* info);
  void(QUORIN_CDECL* ctrcon_Idx)(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                 const quorin_complex* a, int32_t a_index, const int32_t* lda, float* rcond,
                                 quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                 int32_t* info);
  void(QUORIN_CDECL* strrfs)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                             const int32_t* nrhs, const float* a, const int32_t* lda, const float* b,
                             const int32_t* ldb, const float* x, const int32_t* ldx, float* ferr, float* berr,
                             float* work, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* strrfs_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                 const int32_t* nrhs, const float* a, int32_t a_index, const int32_t* lda,
                                 const float* b, int32_t b_index, const int32_t* ldb, const float* x, int32_t x_index,
                                 const int32_t* ldx, float* ferr, float* berr, float* work, int32_t work_index,
                                 int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* ctrrfs)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                             const int32_t* nrhs, const quorin_complex* a, const int32_t* lda, const quorin_complex* b,
                             const int32_t* ldb, const quorin_complex* x, const int32_t* ldx, float* ferr, float* berr,
                             quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* ctrrfs_Idx)(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                 const int32_t* nrhs, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 const quorin_complex* b, int32_t b_index, const int32_t* ldb, const quorin_complex* x,
                                 int32_t x_index, const int32_t* ldx, float* ferr, float* berr, quorin_complex* work,
                                 int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgels)(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                            const int32_t* lda, float* b, const int32_t* ldb, float* work, const int32_t* lwork,
                            int32_t* info);
  void(QUORIN_CDECL* sgels_Idx)(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                int32_t a_index, const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb,
                                float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgels)(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                            quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb,
                            quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgels_Idx)(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                                quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                int32_t b_index, const int32_t* ldb, quorin_complex* work, int32_t work_index,
                                const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgelss)(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a, const int32_t* lda,
                             float* b, const int32_t* ldb, float* s, const float* rcond, int32_t* rank, float* work,
                             const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgelss_Idx)(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a, int32_t a_index,
                                 const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* s,
                                 int32_t s_index, const float* rcond, int32_t* rank, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgelss)(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, float* s, const float* rcond,
                             int32_t* rank, quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgelss_Idx)(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, float* s, int32_t s_index, const float* rcond, int32_t* rank,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                 int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgelsy)(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a, const int32_t* lda,
                             float* b, const int32_t* ldb, int32_t* jpvt, const float* rcond, int32_t* rank,
                             float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgelsy_Idx)(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a, int32_t a_index,
                                 const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, int32_t* jpvt,
                                 int32_t jpvt_index, const float* rcond, int32_t* rank, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgelsy)(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* jpvt,
                             const float* rcond, int32_t* rank, quorin_complex* work, const int32_t* lwork,
                             float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgelsy_Idx)(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, int32_t* jpvt, int32_t jpvt_index, const float* rcond,
                                 int32_t* rank, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                 float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgelsd)(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a, const int32_t* lda,
                             float* b, const int32_t* ldb, float* s, const float* rcond, int32_t* rank, float* work,
                             const int32_t* lwork, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sgelsd_Idx)(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a, int32_t a_index,
                                 const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* s,
                                 int32_t s_index, const float* rcond, int32_t* rank, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cgelsd)(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, float* s, const float* rcond,
                             int32_t* rank, quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* iwork,
                             int32_t* info);
  void(QUORIN_CDECL* cgelsd_Idx)(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, float* s, int32_t s_index, const float* rcond, int32_t* rank,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                 int32_t rwork_index, int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* sgglse)(const int32_t* m, const int32_t* n, const int32_t* p, float* a, const int32_t* lda,
                             float* b, const int32_t* ldb, float* c, float* d, float* x, float* work,
                             const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgglse_Idx)(const int32_t* m, const int32_t* n, const int32_t* p, float* a, int32_t a_index,
                                 const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* c,
                                 int32_t c_index, float* d, int32_t d_index, float* x, int32_t x_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgglse)(const int32_t* m, const int32_t* n, const int32_t* p, quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, quorin_complex* c,
                             quorin_complex* d, quorin_complex* x, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* cgglse_Idx)(const int32_t* m, const int32_t* n, const int32_t* p, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, quorin_complex* c, int32_t c_index, quorin_complex* d,
                                 int32_t d_index, quorin_complex* x, int32_t x_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sggglm)(const int32_t* n, const int32_t* m, const int32_t* p, float* a, const int32_t* lda,
                             float* b, const int32_t* ldb, float* d, float* x, float* y, float* work,
                             const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sggglm_Idx)(const int32_t* n, const int32_t* m, const int32_t* p, float* a, int32_t a_index,
                                 const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* d,
                                 int32_t d_index, float* x, int32_t x_index, float* y, int32_t y_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cggglm)(const int32_t* n, const int32_t* m, const int32_t* p, quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, quorin_complex* d,
                             quorin_complex* x, quorin_complex* y, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* cggglm_Idx)(const int32_t* n, const int32_t* m, const int32_t* p, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, quorin_complex* d, int32_t d_index, quorin_complex* x,
                                 int32_t x_index, quorin_complex* y, int32_t y_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgeqrf)(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, float* tau, float* work,
                             const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgeqrf_Idx)(const int32_t* m, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 float* tau, int32_t tau_index, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* cgeqrf)(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda,
                             quorin_complex* tau, quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgeqrf_Idx)(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, quorin_complex* tau, int32_t tau_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgeqp3)(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, int32_t* jpvt,
                             float* tau, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgeqp3_Idx)(const int32_t* m, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 int32_t* jpvt, int32_t jpvt_index, float* tau, int32_t tau_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorgqr)(const int32_t* m, const int32_t* n, const int32_t* k, float* a, const int32_t* lda,
                             const float* tau, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorgqr_Idx)(const int32_t* m, const int32_t* n, const int32_t* k, float* a, int32_t a_index,
                                 const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cungqr)(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                             const int32_t* lda, const quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* cungqr_Idx)(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const quorin_complex* tau, int32_t tau_index,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sormqr)(const char* side, const char* trans, const int32_t* m, const int32_t* n, const int32_t* k,
                             const float* a, const int32_t* lda, const float* tau, float* c, const int32_t* ldc,
                             float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sormqr_Idx)(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                 const int32_t* k, const float* a, int32_t a_index, const int32_t* lda,
                                 const float* tau, int32_t tau_index, float* c, int32_t c_index, const int32_t* ldc,
                                 float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunmqr)(const char* side, const char* trans, const int32_t* m, const int32_t* n, const int32_t* k,
                             const quorin_complex* a, const int32_t* lda, const quorin_complex* tau, quorin_complex* c,
                             const int32_t* ldc, quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunmqr_Idx)(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                 const int32_t* k, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 const quorin_complex* tau, int32_t tau_index, quorin_complex* c, int32_t c_index,
                                 const int32_t* ldc, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* sgelqf)(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, float* tau, float* work,
                             const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgelqf_Idx)(const int32_t* m, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 float* tau, int32_t tau_index, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* cgelqf)(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda,
                             quorin_complex* tau, quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgelqf_Idx)(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, quorin_complex* tau, int32_t tau_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorglq)(const int32_t* m, const int32_t* n, const int32_t* k, float* a, const int32_t* lda,
                             const float* tau, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorglq_Idx)(const int32_t* m, const int32_t* n, const int32_t* k, float* a, int32_t a_index,
                                 const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunglq)(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                             const int32_t* lda, const quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* cunglq_Idx)(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const quorin_complex* tau, int32_t tau_index,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sormlq)(const char* side, const char* trans, const int32_t* m, const int32_t* n, const int32_t* k,
                             const float* a, const int32_t* lda, const float* tau, float* c, const int32_t* ldc,
                             float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sormlq_Idx)(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                 const int32_t* k, const float* a, int32_t a_index, const int32_t* lda,
                                 const float* tau, int32_t tau_index, float* c, int32_t c_index, const int32_t* ldc,
                                 float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunmlq)(const char* side, const char* trans, const int32_t* m, const int32_t* n, const int32_t* k,
                             const quorin_complex* a, const int32_t* lda, const quorin_complex* tau, quorin_complex* c,
                             const int32_t* ldc, quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunmlq_Idx)(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                 const int32_t* k, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 const quorin_complex* tau, int32_t tau_index, quorin_complex* c, int32_t c_index,
                                 const int32_t* ldc, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* sgebrd)(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, float* d, float* e,
                             float* tauq, float* taup, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgebrd_Idx)(const int32_t* m, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 float* d, int32_t d_index, float* e, int32_t e_index, float* tauq, int32_t tauq_index,
                                 float* taup, int32_t taup_index, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* cgebrd)(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda, float* d,
                             float* e, quorin_complex* tauq, quorin_complex* taup, quorin_complex* work,
                             const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgebrd_Idx)(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                 quorin_complex* tauq, int32_t tauq_index, quorin_complex* taup, int32_t taup_index,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorgbr)(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k, float* a,
                             const int32_t* lda, const float* tau, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorgbr_Idx)(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k, float* a,
                                 int32_t a_index, const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cungbr)(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                             const int32_t* lda, const quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* cungbr_Idx)(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k,
                                 quorin_complex* a, int32_t a_index, const int32_t* lda, const quorin_complex* tau,
                                 int32_t tau_index, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* sormbr)(const char* vect, const char* side, const char* trans, const int32_t* m, const int32_t* n,
                             const int32_t* k, const float* a, const int32_t* lda, const float* tau, float* c,
                             const int32_t* ldc, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sormbr_Idx)(const char* vect, const char* side, const char* trans, const int32_t* m,
                                 const int32_t* n, const int32_t* k, const float* a, int32_t a_index,
                                 const int32_t* lda, const float* tau, int32_t tau_index, float* c, int32_t c_index,
                                 const int32_t* ldc, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* ssytrd)(const char* uplo, const int32_t* n, float* a, const int32_t* lda, float* d, float* e,
                             float* tau, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* ssytrd_Idx)(const char* uplo, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 float* d, int32_t d_index, float* e, int32_t e_index, float* tau, int32_t tau_index,
                                 float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorgtr)(const char* uplo, const int32_t* n, float* a, const int32_t* lda, const float* tau,
                             float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorgtr_Idx)(const char* uplo, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 const float* tau, int32_t tau_index, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cungtr)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                             const quorin_complex* tau, quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cungtr_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, const quorin_complex* tau, int32_t tau_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sormtr)(const char* side, const char* uplo, const char* trans, const int32_t* m, const int32_t* n,
                             const float* a, const int32_t* lda, const float* tau, float* c, const int32_t* ldc,
                             float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sormtr_Idx)(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                 const int32_t* n, const float* a, int32_t a_index, const int32_t* lda,
                                 const float* tau, int32_t tau_index, float* c, int32_t c_index, const int32_t* ldc,
                                 float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunmtr)(const char* side, const char* uplo, const char* trans, const int32_t* m, const int32_t* n,
                             const quorin_complex* a, const int32_t* lda, const quorin_complex* tau, quorin_complex* c,
                             const int32_t* ldc, quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunmtr_Idx)(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                 const int32_t* n, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 const quorin_complex* tau, int32_t tau_index, quorin_complex* c, int32_t c_index,
                                 const int32_t* ldc, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* chetrd)(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda, float* d,
                             float* e, quorin_complex* tau, quorin_complex* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* chetrd_Idx)(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                 quorin_complex* tau, int32_t tau_index, quorin_complex* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgehrd)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a, const int32_t* lda,
                             float* tau, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgehrd_Idx)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a, int32_t a_index,
                                 const int32_t* lda, float* tau, int32_t tau_index, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgehrd)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                             const int32_t* lda, quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* cgehrd_Idx)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* tau, int32_t tau_index,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorghr)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a, const int32_t* lda,
                             const float* tau, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sorghr_Idx)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a, int32_t a_index,
                                 const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cunghr)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                             const int32_t* lda, const quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* cunghr_Idx)(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, const quorin_complex* tau, int32_t tau_index,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* ssygst)(const int32_t* itype, const char* uplo, const int32_t* n, float* a, const int32_t* lda,
                             const float* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* ssygst_Idx)(const int32_t* itype, const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                 const int32_t* lda, const float* b, int32_t b_index, const int32_t* ldb,
                                 int32_t* info);
  void(QUORIN_CDECL* chegst)(const int32_t* itype, const char* uplo, const int32_t* n, quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* chegst_Idx)(const int32_t* itype, const char* uplo, const int32_t* n, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, int32_t* info);
  void(QUORIN_CDECL* sgebal)(const char* job, const int32_t* n, float* a, const int32_t* lda, int32_t* ilo,
                             int32_t* ihi, float* scale, int32_t* info);
  void(QUORIN_CDECL* sgebal_Idx)(const char* job, const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                 int32_t* ilo, int32_t* ihi, float* scale, int32_t scale_index, int32_t* info);
  void(QUORIN_CDECL* cgebal)(const char* job, const int32_t* n, quorin_complex* a, const int32_t* lda, int32_t* ilo,
                             int32_t* ihi, float* scale, int32_t* info);
  void(QUORIN_CDECL* cgebal_Idx)(const char* job, const int32_t* n, quorin_complex* a, int32_t a_index,
                                 const int32_t* lda, int32_t* ilo, int32_t* ihi, float* scale, int32_t scale_index,
                                 int32_t* info);
  void(QUORIN_CDECL* sgebak)(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                             const int32_t* ihi, const float* scale, const int32_t* m, float* v, const int32_t* ldv,
                             int32_t* info);
  void(QUORIN_CDECL* sgebak_Idx)(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                                 const int32_t* ihi, const float* scale, int32_t scale_index, const int32_t* m,
                                 float* v, int32_t v_index, const int32_t* ldv, int32_t* info);
  void(QUORIN_CDECL* cgebak)(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                             const int32_t* ihi, const float* scale, const int32_t* m, quorin_complex* v,
                             const int32_t* ldv, int32_t* info);
  void(QUORIN_CDECL* cgebak_Idx)(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                                 const int32_t* ihi, const float* scale, int32_t scale_index, const int32_t* m,
                                 quorin_complex* v, int32_t v_index, const int32_t* ldv, int32_t* info);
  void(QUORIN_CDECL* ssyevx)(const char* jobz, const char* range, const char* uplo, const int32_t* n, float* a,
                             const int32_t* lda, const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                             const float* abstol, int32_t* m, float* w, float* z, const int32_t* ldz, float* work,
                             const int32_t* lwork, int32_t* iwork, int32_t* ifail, int32_t* info);
  void(QUORIN_CDECL* ssyevx_Idx)(const char* jobz, const char* range, const char* uplo, const int32_t* n, float* a,
                                 int32_t a_index, const int32_t* lda, const float* vl, const float* vu,
                                 const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                 int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                 int32_t* ifail, int32_t ifail_index, int32_t* info);
  void(QUORIN_CDECL* ssyevr)(const char* jobz, const char* range, const char* uplo, const int32_t* n, float* a,
                             const int32_t* lda, const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                             const float* abstol, int32_t* m, float* w, float* z, const int32_t* ldz, int32_t* isuppz,
                             float* work, const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* ssyevr_Idx)(const char* jobz, const char* range, const char* uplo, const int32_t* n, float* a,
                                 int32_t a_index, const int32_t* lda, const float* vl, const float* vu,
                                 const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                 int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, int32_t* isuppz,
                                 int32_t isuppz_index, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* iwork, int32_t iwork_index, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* cheevx)(const char* jobz, const char* range, const char* uplo, const int32_t* n, quorin_complex* a,
                             const int32_t* lda, const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                             const float* abstol, int32_t* m, float* w, quorin_complex* z, const int32_t* ldz,
                             quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* iwork, int32_t* ifail,
                             int32_t* info);
  void(QUORIN_CDECL* cheevx_Idx)(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                 quorin_complex* a, int32_t a_index, const int32_t* lda, const float* vl,
                                 const float* vu, const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m,
                                 float* w, int32_t w_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                 int32_t rwork_index, int32_t* iwork, int32_t iwork_index, int32_t* ifail,
                                 int32_t ifail_index, int32_t* info);
  void(QUORIN_CDECL* cheevr)(const char* jobz, const char* range, const char* uplo, const int32_t* n, quorin_complex* a,
                             const int32_t* lda, const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                             const float* abstol, int32_t* m, float* w, quorin_complex* z, const int32_t* ldz,
                             int32_t* isuppz, quorin_complex* work, const int32_t* lwork, float* rwork,
                             const int32_t* lrwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* cheevr_Idx)(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                 quorin_complex* a, int32_t a_index, const int32_t* lda, const float* vl,
                                 const float* vu, const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m,
                                 float* w, int32_t w_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                 int32_t* isuppz, int32_t isuppz_index, quorin_complex* work, int32_t work_index,
                                 const int32_t* lwork, float* rwork, int32_t rwork_index, const int32_t* lrwork,
                                 int32_t* iwork, int32_t iwork_index, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* ssbev)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                            const int32_t* ldab, float* w, float* z, const int32_t* ldz, float* work, int32_t* info);
  void(QUORIN_CDECL* ssbev_Idx)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index, float* z,
                                int32_t z_index, const int32_t* ldz, float* work, int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* ssbevd)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                             const int32_t* ldab, float* w, float* z, const int32_t* ldz, float* work,
                             const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* ssbevd_Idx)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                 int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index, float* z,
                                 int32_t z_index, const int32_t* ldz, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* iwork, int32_t iwork_index, const int32_t* liwork,
                                 int32_t* info);
  void(QUORIN_CDECL* ssbevx)(const char* jobz, const char* range, const char* uplo, const int32_t* n, const int32_t* kd,
                             float* ab, const int32_t* ldab, float* q, const int32_t* ldq, const float* vl,
                             const float* vu, const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m,
                             float* w, float* z, const int32_t* ldz, float* work, int32_t* iwork, int32_t* ifail,
                             int32_t* info);
  void(QUORIN_CDECL* ssbevx_Idx)(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                 const int32_t* kd, float* ab, int32_t ab_index, const int32_t* ldab, float* q,
                                 int32_t q_index, const int32_t* ldq, const float* vl, const float* vu,
                                 const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                 int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* ifail,
                                 int32_t ifail_index, int32_t* info);
  void(QUORIN_CDECL* chbev)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, quorin_complex* ab,
                            const int32_t* ldab, float* w, quorin_complex* z, const int32_t* ldz, quorin_complex* work,
                            float* rwork, int32_t* info);
  void(QUORIN_CDECL* chbev_Idx)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                quorin_complex* ab, int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index,
                                quorin_complex* z, int32_t z_index, const int32_t* ldz, quorin_complex* work,
                                int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* chbevd)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                             quorin_complex* ab, const int32_t* ldab, float* w, quorin_complex* z, const int32_t* ldz,
                             quorin_complex* work, const int32_t* lwork, float* rwork, const int32_t* lrwork,
                             int32_t* iwork, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* chbevd_Idx)(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                 quorin_complex* ab, int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index,
                                 quorin_complex* z, int32_t z_index, const int32_t* ldz, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                 const int32_t* lrwork, int32_t* iwork, int32_t iwork_index, const int32_t* liwork,
                                 int32_t* info);
  void(QUORIN_CDECL* chbevx)(const char* jobz, const char* range, const char* uplo, const int32_t* n, const int32_t* kd,
                             quorin_complex* ab, const int32_t* ldab, quorin_complex* q, const int32_t* ldq,
                             const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                             const float* abstol, int32_t* m, float* w, quorin_complex* z, const int32_t* ldz,
                             quorin_complex* work, float* rwork, int32_t* iwork, int32_t* ifail, int32_t* info);
  void(QUORIN_CDECL* chbevx_Idx)(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                 const int32_t* kd, quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                 quorin_complex* q, int32_t q_index, const int32_t* ldq, const float* vl,
                                 const float* vu, const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m,
                                 float* w, int32_t w_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                 quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                 int32_t* iwork, int32_t iwork_index, int32_t* ifail, int32_t ifail_index,
                                 int32_t* info);
  void(QUORIN_CDECL* ssygvd)(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n, float* a,
                             const int32_t* lda, float* b, const int32_t* ldb, float* w, float* work,
                             const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* ssygvd_Idx)(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n, float* a,
                                 int32_t a_index, const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb,
                                 float* w, int32_t w_index, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* iwork, int32_t iwork_index, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* ssygvx)(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                             const int32_t* n, float* a, const int32_t* lda, float* b, const int32_t* ldb,
                             const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                             const float* abstol, int32_t* m, float* w, float* z, const int32_t* ldz, float* work,
                             const int32_t* lwork, int32_t* iwork, int32_t* ifail, int32_t* info);
  void(QUORIN_CDECL* ssygvx_Idx)(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                                 const int32_t* n, float* a, int32_t a_index, const int32_t* lda, float* b,
                                 int32_t b_index, const int32_t* ldb, const float* vl, const float* vu,
                                 const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                 int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                 int32_t* ifail, int32_t ifail_index, int32_t* info);
  void(QUORIN_CDECL* chegvd)(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                             quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb, float* w,
                             quorin_complex* work, const int32_t* lwork, float* rwork, const int32_t* lrwork,
                             int32_t* iwork, const int32_t* liwork, int32_t* info);
  void(QUORIN_CDECL* chegvd_Idx)(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                                 quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                 int32_t b_index, const int32_t* ldb, float* w, int32_t w_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                 const int32_t* lrwork, int32_t* iwork, int32_t iwork_index, const int32_t* liwork,
                                 int32_t* info);
  void(QUORIN_CDECL* chegvx)(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                             const int32_t* n, quorin_complex* a, const int32_t* lda, quorin_complex* b,
                             const int32_t* ldb, const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                             const float* abstol, int32_t* m, float* w, quorin_complex* z, const int32_t* ldz,
                             quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* iwork, int32_t* ifail,
                             int32_t* info);
  void(QUORIN_CDECL* chegvx_Idx)(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                                 const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 quorin_complex* b, int32_t b_index, const int32_t* ldb, const float* vl,
                                 const float* vu, const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m,
                                 float* w, int32_t w_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                 int32_t rwork_index, int32_t* iwork, int32_t iwork_index, int32_t* ifail,
                                 int32_t ifail_index, int32_t* info);
  void(QUORIN_CDECL* ssterf)(const int32_t* n, float* d, float* e, int32_t* info);
  void(QUORIN_CDECL* ssterf_Idx)(const int32_t* n, float* d, int32_t d_index, float* e, int32_t e_index, int32_t* info);
  void(QUORIN_CDECL* ssteqr)(const char* compz, const int32_t* n, float* d, float* e, float* z, const int32_t* ldz,
                             float* work, int32_t* info);
  void(QUORIN_CDECL* ssteqr_Idx)(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                 int32_t e_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* csteqr)(const char* compz, const int32_t* n, float* d, float* e, quorin_complex* z,
                             const int32_t* ldz, float* work, int32_t* info);
  void(QUORIN_CDECL* csteqr_Idx)(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                 int32_t e_index, quorin_complex* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* spteqr)(const char* compz, const int32_t* n, float* d, float* e, float* z, const int32_t* ldz,
                             float* work, int32_t* info);
  void(QUORIN_CDECL* spteqr_Idx)(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                 int32_t e_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* cpteqr)(const char* compz, const int32_t* n, float* d, float* e, quorin_complex* z,
                             const int32_t* ldz, float* work, int32_t* info);
  void(QUORIN_CDECL* cpteqr_Idx)(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                 int32_t e_index, quorin_complex* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* sstebz)(const char* range, const char* order, const int32_t* n, const float* vl, const float* vu,
                             const int32_t* il, const int32_t* iu, const float* abstol, const float* d, const float* e,
                             int32_t* m, int32_t* nsplit, float* w, int32_t* iblock, int32_t* isplit, float* work,
                             int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sstebz_Idx)(const char* range, const char* order, const int32_t* n, const float* vl,
                                 int32_t vl_index, const float* vu, int32_t vu_index, const int32_t* il,
                                 const int32_t* iu, const float* abstol, const float* d, int32_t d_index,
                                 const float* e, int32_t e_index, int32_t* m, int32_t* nsplit, float* w,
                                 int32_t w_index, int32_t* iblock, int32_t iblock_index, int32_t* isplit,
                                 int32_t isplit_index, float* work, int32_t work_index, int32_t* iwork,
                                 int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* sstein)(const int32_t* n, const float* d, const float* e, const int32_t* m, const float* w,
                             const int32_t* iblock, const int32_t* isplit, float* z, const int32_t* ldz, float* work,
                             int32_t* iwork, int32_t* ifail, int32_t* info);
  void(QUORIN_CDECL* sstein_Idx)(const int32_t* n, const float* d, const float* e, const int32_t* m, const float* w,
                                 int32_t w_index, const int32_t* iblock, int32_t iblock_index, const int32_t* isplit,
                                 int32_t isplit_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                 int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* ifail,
                                 int32_t ifail_index, int32_t* info);
  void(QUORIN_CDECL* cstein)(const int32_t* n, const float* d, const float* e, const int32_t* m, const float* w,
                             const int32_t* iblock, const int32_t* isplit, quorin_complex* z, const int32_t* ldz,
                             float* work, int32_t* iwork, int32_t* ifail, int32_t* info);
  void(QUORIN_CDECL* cstein_Idx)(const int32_t* n, const float* d, const float* e, const int32_t* m, const float* w,
                                 int32_t w_index, const int32_t* iblock, int32_t iblock_index, const int32_t* isplit,
                                 int32_t isplit_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                 float* work, int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* ifail,
                                 int32_t ifail_index, int32_t* info);
  void(QUORIN_CDECL* sgeev)(const char* jobvl, const char* jobvr, const int32_t* n, float* a, const int32_t* lda,
                            float* wr, float* wi, float* vl, const int32_t* ldvl, float* vr, const int32_t* ldvr,
                            float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgeev_Idx)(const char* jobvl, const char* jobvr, const int32_t* n, float* a, int32_t a_index,
                                const int32_t* lda, float* wr, int32_t wr_index, float* wi, int32_t wi_index, float* vl,
                                int32_t vl_index, const int32_t* ldvl, float* vr, int32_t vr_index, const int32_t* ldvr,
                                float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgeev)(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                            const int32_t* lda, quorin_complex* w, quorin_complex* vl, const int32_t* ldvl,
                            quorin_complex* vr, const int32_t* ldvr, quorin_complex* work, const int32_t* lwork,
                            float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgeev_Idx)(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                                int32_t a_index, const int32_t* lda, quorin_complex* w, int32_t w_index,
                                quorin_complex* vl, int32_t vl_index, const int32_t* ldvl, quorin_complex* vr,
                                int32_t vr_index, const int32_t* ldvr, quorin_complex* work, int32_t work_index,
                                const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgeevx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                             const int32_t* n, float* a, const int32_t* lda, float* wr, float* wi, float* vl,
                             const int32_t* ldvl, float* vr, const int32_t* ldvr, int32_t* ilo, int32_t* ihi,
                             float* scale, float* abnrm, float* rconde, float* rcondv, float* work,
                             const int32_t* lwork, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sgeevx_Idx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                 const int32_t* n, float* a, int32_t a_index, const int32_t* lda, float* wr,
                                 int32_t wr_index, float* wi, int32_t wi_index, float* vl, int32_t vl_index,
                                 const int32_t* ldvl, float* vr, int32_t vr_index, const int32_t* ldvr, int32_t* ilo,
                                 int32_t* ihi, float* scale, int32_t scale_index, float* abnrm, float* rconde,
                                 int32_t rconde_index, float* rcondv, int32_t rcondv_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                 int32_t* info);
  void(QUORIN_CDECL* cgeevx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                             const int32_t* n, quorin_complex* a, const int32_t* lda, quorin_complex* w,
                             quorin_complex* vl, const int32_t* ldvl, quorin_complex* vr, const int32_t* ldvr,
                             int32_t* ilo, int32_t* ihi, float* scale, float* abnrm, float* rconde, float* rcondv,
                             quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* info);
  void(QUORIN_CDECL* cgeevx_Idx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                 const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 quorin_complex* w, int32_t w_index, quorin_complex* vl, int32_t vl_index,
                                 const int32_t* ldvl, quorin_complex* vr, int32_t vr_index, const int32_t* ldvr,
                                 int32_t* ilo, int32_t* ihi, float* scale, int32_t scale_index, float* abnrm,
                                 float* rconde, int32_t rconde_index, float* rcondv, int32_t rcondv_index,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                 int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgees)(const char* jobvs, const char* sort, quorin_select_real select, const int32_t* n, float* a,
                            const int32_t* lda, int32_t* sdim, float* wr, float* wi, float* vs, const int32_t* ldvs,
                            float* work, const int32_t* lwork, int32_t* bwork, int32_t* info);
  void(QUORIN_CDECL* sgees_Idx)(const char* jobvs, const char* sort, quorin_select_real select, const int32_t* n,
                                float* a, int32_t a_index, const int32_t* lda, int32_t* sdim, float* wr,
                                int32_t wr_index, float* wi, int32_t wi_index, float* vs, int32_t vs_index,
                                const int32_t* ldvs, float* work, int32_t work_index, const int32_t* lwork,
                                int32_t* bwork, int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* cgees)(const char* jobvs, const char* sort, quorin_select_complex select, const int32_t* n,
                            quorin_complex* a, const int32_t* lda, int32_t* sdim, quorin_complex* w, quorin_complex* vs,
                            const int32_t* ldvs, quorin_complex* work, const int32_t* lwork, float* rwork,
                            int32_t* bwork, int32_t* info);
  void(QUORIN_CDECL* cgees_Idx)(const char* jobvs, const char* sort, quorin_select_complex select, const int32_t* n,
                                quorin_complex* a, int32_t a_index, const int32_t* lda, int32_t* sdim,
                                quorin_complex* w, int32_t w_index, quorin_complex* vs, int32_t vs_index,
                                const int32_t* ldvs, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                float* rwork, int32_t rwork_index, int32_t* bwork, int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* sgeesx)(const char* jobvs, const char* sort, quorin_select_real select, const char* sense,
                             const int32_t* n, float* a, const int32_t* lda, int32_t* sdim, float* wr, float* wi,
                             float* vs, const int32_t* ldvs, float* rconde, float* rcondv, float* work,
                             const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* bwork,
                             int32_t* info);
  void(QUORIN_CDECL* sgeesx_Idx)(const char* jobvs, const char* sort, quorin_select_real select, const char* sense,
                                 const int32_t* n, float* a, int32_t a_index, const int32_t* lda, int32_t* sdim,
                                 float* wr, int32_t wr_index, float* wi, int32_t wi_index, float* vs, int32_t vs_index,
                                 const int32_t* ldvs, float* rconde, float* rcondv, float* work, int32_t work_index,
                                 const int32_t* lwork, int32_t* iwork, int32_t iwork_index, const int32_t* liwork,
                                 int32_t* bwork, int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* cgeesx)(const char* jobvs, const char* sort, quorin_select_complex select, const char* sense,
                             const int32_t* n, quorin_complex* a, const int32_t* lda, int32_t* sdim, quorin_complex* w,
                             quorin_complex* vs, const int32_t* ldvs, float* rconde, float* rcondv,
                             quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* bwork, int32_t* info);
  void(QUORIN_CDECL* cgeesx_Idx)(const char* jobvs, const char* sort, quorin_select_complex select, const char* sense,
                                 const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 int32_t* sdim, quorin_complex* w, int32_t w_index, quorin_complex* vs,
                                 int32_t vs_index, const int32_t* ldvs, float* rconde, float* rcondv,
                                 quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                 int32_t rwork_index, int32_t* bwork, int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* shseqr)(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                             const int32_t* ihi, float* h, const int32_t* ldh, float* wr, float* wi, float* z,
                             const int32_t* ldz, float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* shseqr_Idx)(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                 const int32_t* ihi, float* h, int32_t h_index, const int32_t* ldh, float* wr,
                                 int32_t wr_index, float* wi, int32_t wi_index, float* z, int32_t z_index,
                                 const int32_t* ldz, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* chseqr)(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                             const int32_t* ihi, quorin_complex* h, const int32_t* ldh, quorin_complex* w,
                             quorin_complex* z, const int32_t* ldz, quorin_complex* work, const int32_t* lwork,
                             int32_t* info);
  void(QUORIN_CDECL* chseqr_Idx)(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                 const int32_t* ihi, quorin_complex* h, int32_t h_index, const int32_t* ldh,
                                 quorin_complex* w, int32_t w_index, quorin_complex* z, int32_t z_index,
                                 const int32_t* ldz, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* info);
  void(QUORIN_CDECL* strevc)(const char* side, const char* howmny, int32_t* select, const int32_t* n, const float* t,
                             const int32_t* ldt, float* vl, const int32_t* ldvl, float* vr, const int32_t* ldvr,
                             const int32_t* mm, int32_t* m, float* work, int32_t* info);
  void(QUORIN_CDECL* strevc_Idx)(const char* side, const char* howmny, int32_t* select, const int32_t* n,
                                 const float* t, int32_t t_index, const int32_t* ldt, float* vl, int32_t vl_index,
                                 const int32_t* ldvl, float* vr, int32_t vr_index, const int32_t* ldvr,
                                 const int32_t* mm, int32_t* m, float* work, int32_t work_index, int32_t* info);
  void(QUORIN_CDECL* ctrevc)(const char* side, const char* howmny, const int32_t* select, const int32_t* n,
                             quorin_complex* t, const int32_t* ldt, quorin_complex* vl, const int32_t* ldvl,
                             quorin_complex* vr, const int32_t* ldvr, const int32_t* mm, int32_t* m,
                             quorin_complex* work, float* rwork, int32_t* info);
  void(QUORIN_CDECL* ctrevc_Idx)(const char* side, const char* howmny, const int32_t* select, const int32_t* n,
                                 quorin_complex* t, int32_t t_index, const int32_t* ldt, quorin_complex* vl,
                                 int32_t vl_index, const int32_t* ldvl, quorin_complex* vr, int32_t vr_index,
                                 const int32_t* ldvr, const int32_t* mm, int32_t* m, quorin_complex* work,
                                 int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* strsna)(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                             const float* t, const int32_t* ldt, const float* vl, const int32_t* ldvl, const float* vr,
                             const int32_t* ldvr, float* s, float* sep, const int32_t* mm, int32_t* m, float* work,
                             const int32_t* ldwork, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* strsna_Idx)(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                                 const float* t, int32_t t_index, const int32_t* ldt, const float* vl, int32_t vl_index,
                                 const int32_t* ldvl, const float* vr, int32_t vr_index, const int32_t* ldvr, float* s,
                                 int32_t s_index, float* sep, int32_t sep_index, const int32_t* mm, int32_t* m,
                                 float* work, int32_t work_index, const int32_t* ldwork, int32_t* iwork,
                                 int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* ctrsna)(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                             const quorin_complex* t, const int32_t* ldt, const quorin_complex* vl, const int32_t* ldvl,
                             const quorin_complex* vr, const int32_t* ldvr, float* s, float* sep, const int32_t* mm,
                             int32_t* m, quorin_complex* work, const int32_t* ldwork, float* rwork, int32_t* info);
  void(QUORIN_CDECL* ctrsna_Idx)(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                                 const quorin_complex* t, int32_t t_index, const int32_t* ldt, const quorin_complex* vl,
                                 int32_t vl_index, const int32_t* ldvl, const quorin_complex* vr, int32_t vr_index,
                                 const int32_t* ldvr, float* s, int32_t s_index, float* sep, int32_t sep_index,
                                 const int32_t* mm, int32_t* m, quorin_complex* work, int32_t work_index,
                                 const int32_t* ldwork, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* strsyl)(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                             const int32_t* n, const float* a, const int32_t* lda, const float* b, const int32_t* ldb,
                             float* c, const int32_t* ldc, float* scale, int32_t* info);
  void(QUORIN_CDECL* strsyl_Idx)(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                 const int32_t* n, const float* a, int32_t a_index, const int32_t* lda, const float* b,
                                 int32_t b_index, const int32_t* ldb, float* c, int32_t c_index, const int32_t* ldc,
                                 float* scale, int32_t* info);
  void(QUORIN_CDECL* ctrsyl)(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                             const int32_t* n, const quorin_complex* a, const int32_t* lda, const quorin_complex* b,
                             const int32_t* ldb, quorin_complex* c, const int32_t* ldc, float* scale, int32_t* info);
  void(QUORIN_CDECL* ctrsyl_Idx)(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                 const int32_t* n, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 const quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* c,
                                 int32_t c_index, const int32_t* ldc, float* scale, int32_t* info);
  void(QUORIN_CDECL* sgesvd)(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n, float* a,
                             const int32_t* lda, float* s, float* u, const int32_t* ldu, float* vt, const int32_t* ldvt,
                             float* work, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* sgesvd_Idx)(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n, float* a,
                                 int32_t a_index, const int32_t* lda, float* s, int32_t s_index, float* u,
                                 int32_t u_index, const int32_t* ldu, float* vt, int32_t vt_index, const int32_t* ldvt,
                                 float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cgesvd)(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n, quorin_complex* a,
                             const int32_t* lda, float* s, quorin_complex* u, const int32_t* ldu, quorin_complex* vt,
                             const int32_t* ldvt, quorin_complex* work, const int32_t* lwork, float* rwork,
                             int32_t* info);
  void(QUORIN_CDECL* cgesvd_Idx)(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n,
                                 quorin_complex* a, int32_t a_index, const int32_t* lda, float* s, int32_t s_index,
                                 quorin_complex* u, int32_t u_index, const int32_t* ldu, quorin_complex* vt,
                                 int32_t vt_index, const int32_t* ldvt, quorin_complex* work, int32_t work_index,
                                 const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sgesdd)(const char* jobz, const int32_t* m, const int32_t* n, float* a, const int32_t* lda,
                             float* s, float* u, const int32_t* ldu, float* vt, const int32_t* ldvt, float* work,
                             const int32_t* lwork, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* sgesdd_Idx)(const char* jobz, const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                 const int32_t* lda, float* s, int32_t s_index, float* u, int32_t u_index,
                                 const int32_t* ldu, float* vt, int32_t vt_index, const int32_t* ldvt, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                 int32_t* info);
  void(QUORIN_CDECL* cgesdd)(const char* jobz, const int32_t* m, const int32_t* n, quorin_complex* a,
                             const int32_t* lda, float* s, quorin_complex* u, const int32_t* ldu, quorin_complex* vt,
                             const int32_t* ldvt, quorin_complex* work, const int32_t* lwork, float* rwork,
                             int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* cgesdd_Idx)(const char* jobz, const int32_t* m, const int32_t* n, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, float* s, int32_t s_index, quorin_complex* u,
                                 int32_t u_index, const int32_t* ldu, quorin_complex* vt, int32_t vt_index,
                                 const int32_t* ldvt, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                 float* rwork, int32_t rwork_index, int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* sbdsqr)(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                             const int32_t* ncc, float* d, float* e, float* vt, const int32_t* ldvt, float* u,
                             const int32_t* ldu, float* c, const int32_t* ldc, float* work, int32_t* info);
  void(QUORIN_CDECL* sbdsqr_Idx)(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                 const int32_t* ncc, float* d, int32_t d_index, float* e, int32_t e_index, float* vt,
                                 int32_t vt_index, const int32_t* ldvt, float* u, int32_t u_index, const int32_t* ldu,
                                 float* c, int32_t c_index, const int32_t* ldc, float* work, int32_t work_index,
                                 int32_t* info);
  void(QUORIN_CDECL* cbdsqr)(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                             const int32_t* ncc, float* d, float* e, quorin_complex* vt, const int32_t* ldvt,
                             quorin_complex* u, const int32_t* ldu, quorin_complex* c, const int32_t* ldc, float* rwork,
                             int32_t* info);
  void(QUORIN_CDECL* cbdsqr_Idx)(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                 const int32_t* ncc, float* d, int32_t d_index, float* e, int32_t e_index,
                                 quorin_complex* vt, int32_t vt_index, const int32_t* ldvt, quorin_complex* u,
                                 int32_t u_index, const int32_t* ldu, quorin_complex* c, int32_t c_index,
                                 const int32_t* ldc, float* rwork, int32_t rwork_index, int32_t* info);
  void(QUORIN_CDECL* sggsvd)(const char* jobu, const char* jobv, const char* jobq, const int32_t* m, const int32_t* n,
                             const int32_t* p, int32_t* k, int32_t* l, float* a, const int32_t* lda, float* b,
                             const int32_t* ldb, float* alpha, float* beta, float* u, const int32_t* ldu, float* v,
                             const int32_t* ldv, float* q, const int32_t* ldq, float* work, int32_t* iwork,
                             int32_t* info);
  void(QUORIN_CDECL* sggsvd_Idx)(const char* jobu, const char* jobv, const char* jobq, const int32_t* m,
                                 const int32_t* n, const int32_t* p, int32_t* k, int32_t* l, float* a, int32_t a_index,
                                 const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* alpha,
                                 int32_t alpha_index, float* beta, int32_t beta_index, float* u, int32_t u_index,
                                 const int32_t* ldu, float* v, int32_t v_index, const int32_t* ldv, float* q,
                                 int32_t q_index, const int32_t* ldq, float* work, int32_t work_index, int32_t* iwork,
                                 int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* cggsvd)(const char* jobu, const char* jobv, const char* jobq, const int32_t* m, const int32_t* n,
                             const int32_t* p, int32_t* k, int32_t* l, quorin_complex* a, const int32_t* lda,
                             quorin_complex* b, const int32_t* ldb, float* alpha, float* beta, quorin_complex* u,
                             const int32_t* ldu, quorin_complex* v, const int32_t* ldv, quorin_complex* q,
                             const int32_t* ldq, quorin_complex* work, float* rwork, int32_t* iwork, int32_t* info);
  void(QUORIN_CDECL* cggsvd_Idx)(const char* jobu, const char* jobv, const char* jobq, const int32_t* m,
                                 const int32_t* n, const int32_t* p, int32_t* k, int32_t* l, quorin_complex* a,
                                 int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                 const int32_t* ldb, float* alpha, int32_t alpha_index, float* beta, int32_t beta_index,
                                 quorin_complex* u, int32_t u_index, const int32_t* ldu, quorin_complex* v,
                                 int32_t v_index, const int32_t* ldv, quorin_complex* q, int32_t q_index,
                                 const int32_t* ldq, quorin_complex* work, int32_t work_index, float* rwork,
                                 int32_t rwork_index, int32_t* iwork, int32_t iwork_index, int32_t* info);
  void(QUORIN_CDECL* sgges)(const char* jobvsl, const char* jobvsr, const char* sort, quorin_select_real_pair selctg,
                            const int32_t* n, float* a, const int32_t* lda, float* b, const int32_t* ldb, int32_t* sdim,
                            float* alphar, float* alphai, float* beta, float* vsl, const int32_t* ldvsl, float* vsr,
                            const int32_t* ldvsr, float* work, const int32_t* lwork, int32_t* bwork, int32_t* info);
  void(QUORIN_CDECL* sgges_Idx)(const char* jobvsl, const char* jobvsr, const char* sort,
                                quorin_select_real_pair selctg, const int32_t* n, float* a, int32_t a_index,
                                const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, int32_t* sdim,
                                float* alphar, int32_t alphar_index, float* alphai, int32_t alphai_index, float* beta,
                                int32_t beta_index, float* vsl, int32_t vsl_index, const int32_t* ldvsl, float* vsr,
                                int32_t vsr_index, const int32_t* ldvsr, float* work, int32_t work_index,
                                const int32_t* lwork, int32_t* bwork, int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* cgges)(const char* jobvsl, const char* jobvsr, const char* sort, quorin_select_complex_pair selctg,
                            const int32_t* n, quorin_complex* a, const int32_t* lda, quorin_complex* b,
                            const int32_t* ldb, int32_t* sdim, quorin_complex* alpha, quorin_complex* beta,
                            quorin_complex* vsl, const int32_t* ldvsl, quorin_complex* vsr, const int32_t* ldvsr,
                            quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* bwork, int32_t* info);
  void(QUORIN_CDECL* cgges_Idx)(const char* jobvsl, const char* jobvsr, const char* sort,
                                quorin_select_complex_pair selctg, const int32_t* n, quorin_complex* a, int32_t a_index,
                                const int32_t* lda, quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                int32_t* sdim, quorin_complex* alpha, int32_t alpha_index, quorin_complex* beta,
                                int32_t beta_index, quorin_complex* vsl, int32_t vsl_index, const int32_t* ldvsl,
                                quorin_complex* vsr, int32_t vsr_index, const int32_t* ldvsr, quorin_complex* work,
                                int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                int32_t* bwork, int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* sggesx)(const char* jobvsl, const char* jobvsr, const char* sort, quorin_select_real_pair selctg,
                             const char* sense, const int32_t* n, float* a, const int32_t* lda, float* b,
                             const int32_t* ldb, int32_t* sdim, float* alphar, float* alphai, float* beta, float* vsl,
                             const int32_t* ldvsl, float* vsr, const int32_t* ldvsr, float* rconde, float* rcondv,
                             float* work, const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* bwork,
                             int32_t* info);
  void(QUORIN_CDECL* sggesx_Idx)(const char* jobvsl, const char* jobvsr, const char* sort,
                                 quorin_select_real_pair selctg, const char* sense, const int32_t* n, float* a,
                                 int32_t a_index, const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb,
                                 int32_t* sdim, float* alphar, int32_t alphar_index, float* alphai,
                                 int32_t alphai_index, float* beta, int32_t beta_index, float* vsl, int32_t vsl_index,
                                 const int32_t* ldvsl, float* vsr, int32_t vsr_index, const int32_t* ldvsr,
                                 float* rconde, float* rcondv, float* work, int32_t work_index, const int32_t* lwork,
                                 int32_t* iwork, int32_t iwork_index, const int32_t* liwork, int32_t* bwork,
                                 int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* cggesx)(const char* jobvsl, const char* jobvsr, const char* sort,
                             quorin_select_complex_pair selctg, const char* sense, const int32_t* n, quorin_complex* a,
                             const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* sdim,
                             quorin_complex* alpha, quorin_complex* beta, quorin_complex* vsl, const int32_t* ldvsl,
                             quorin_complex* vsr, const int32_t* ldvsr, float* rconde, float* rcondv,
                             quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* iwork,
                             const int32_t* liwork, int32_t* bwork, int32_t* info);
  void(QUORIN_CDECL* cggesx_Idx)(const char* jobvsl, const char* jobvsr, const char* sort,
                                 quorin_select_complex_pair selctg, const char* sense, const int32_t* n,
                                 quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                 int32_t b_index, const int32_t* ldb, int32_t* sdim, quorin_complex* alpha,
                                 int32_t alpha_index, quorin_complex* beta, int32_t beta_index, quorin_complex* vsl,
                                 int32_t vsl_index, const int32_t* ldvsl, quorin_complex* vsr, int32_t vsr_index,
                                 const int32_t* ldvsr, float* rconde, float* rcondv, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                 int32_t* iwork, int32_t iwork_index, const int32_t* liwork, int32_t* bwork,
                                 int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* sggev)(const char* jobvl, const char* jobvr, const int32_t* n, float* a, const int32_t* lda,
                            float* b, const int32_t* ldb, float* alphar, float* alphai, float* beta, float* vl,
                            const int32_t* ldvl, float* vr, const int32_t* ldvr, float* work, const int32_t* lwork,
                            int32_t* info);
  void(QUORIN_CDECL* sggev_Idx)(const char* jobvl, const char* jobvr, const int32_t* n, float* a, int32_t a_index,
                                const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* alphar,
                                int32_t alphar_index, float* alphai, int32_t alphai_index, float* beta,
                                int32_t beta_index, float* vl, int32_t vl_index, const int32_t* ldvl, float* vr,
                                int32_t vr_index, const int32_t* ldvr, float* work, int32_t work_index,
                                const int32_t* lwork, int32_t* info);
  void(QUORIN_CDECL* cggev)(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                            const int32_t* lda, quorin_complex* b, const int32_t* ldb, quorin_complex* alpha,
                            quorin_complex* beta, quorin_complex* vl, const int32_t* ldvl, quorin_complex* vr,
                            const int32_t* ldvr, quorin_complex* work, const int32_t* lwork, float* rwork,
                            int32_t* info);
  void(QUORIN_CDECL* cggev_Idx)(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                                int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                const int32_t* ldb, quorin_complex* alpha, int32_t alpha_index, quorin_complex* beta,
                                int32_t beta_index, quorin_complex* vl, int32_t vl_index, const int32_t* ldvl,
                                quorin_complex* vr, int32_t vr_index, const int32_t* ldvr, quorin_complex* work,
                                int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                int32_t* info);
  void(QUORIN_CDECL* sggevx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                             const int32_t* n, float* a, const int32_t* lda, float* b, const int32_t* ldb,
                             float* alphar, float* alphai, float* beta, float* vl, const int32_t* ldvl, float* vr,
                             const int32_t* ldvr, int32_t* ilo, int32_t* ihi, float* lscale, float* rscale,
                             float* abnrm, float* bbnrm, float* rconde, float* rcondv, float* work,
                             const int32_t* lwork, int32_t* iwork, int32_t* bwork, int32_t* info);
  void(QUORIN_CDECL* sggevx_Idx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                 const int32_t* n, float* a, int32_t a_index, const int32_t* lda, float* b,
                                 int32_t b_index, const int32_t* ldb, float* alphar, int32_t alphar_index,
                                 float* alphai, int32_t alphai_index, float* beta, int32_t beta_index, float* vl,
                                 int32_t vl_index, const int32_t* ldvl, float* vr, int32_t vr_index,
                                 const int32_t* ldvr, int32_t* ilo, int32_t* ihi, float* lscale, int32_t lscale_index,
                                 float* rscale, int32_t rscale_index, float* abnrm, float* bbnrm, float* rconde,
                                 int32_t rconde_index, float* rcondv, int32_t rcondv_index, float* work,
                                 int32_t work_index, const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                 int32_t* bwork, int32_t bwork_index, int32_t* info);
  void(QUORIN_CDECL* cggevx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                             const int32_t* n, quorin_complex* a, const int32_t* lda, quorin_complex* b,
                             const int32_t* ldb, quorin_complex* alpha, quorin_complex* beta, quorin_complex* vl,
                             const int32_t* ldvl, quorin_complex* vr, const int32_t* ldvr, int32_t* ilo, int32_t* ihi,
                             float* lscale, float* rscale, float* abnrm, float* bbnrm, float* rconde, float* rcondv,
                             quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* iwork, int32_t* bwork,
                             int32_t* info);
  void(QUORIN_CDECL* cggevx_Idx)(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                 const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                 quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* alpha,
                                 int32_t alpha_index, quorin_complex* beta, int32_t beta_index, quorin_complex* vl,
                                 int32_t vl_index, const int32_t* ldvl, quorin_complex* vr, int32_t vr_index,
                                 const int32_t* ldvr, int32_t* ilo, int32_t* ihi, float* lscale, int32_t lscale_index,
                                 float* rscale, int32_t rscale_index, float* abnrm, float* bbnrm, float* rconde,
                                 int32_t rconde_index, float* rcondv, int32_t rcondv_index, quorin_complex* work,
                                 int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                 int32_t* iwork, int32_t iwork_index, int32_t* bwork, int32_t bwork_index,
                                 int32_t* info);

  /* quorin/pack.h */
  void(QUORIN_CDECL* vspacki)(const int32_t* n, const float* a, const int32_t* inca, float* y);
  void(QUORIN_CDECL* vspacki_Idx)(const int32_t* n, const float* a, int32_t a_index, const int32_t* inca, float* y,
                                  int32_t y_index);
  void(QUORIN_CDECL* vspackv)(const int32_t* n, const float* a, const int32_t* ia, float* y);
  void(QUORIN_CDECL* vspackv_Idx)(const int32_t* n, const float* a, int32_t a_index, const int32_t* ia,
                                  int32_t ia_index, float* y, int32_t y_index);
  void(QUORIN_CDECL* vspackm)(const int32_t* n, const float* a, const int32_t* ma, float* y);
  void(QUORIN_CDECL* vspackm_Idx)(const int32_t* n, const float* a, int32_t a_index, const int32_t* ma,
                                  int32_t ma_index, float* y, int32_t y_index);
  void(QUORIN_CDECL* vsunpacki)(const int32_t* n, const float* a, float* y, const int32_t* incy);
  void(QUORIN_CDECL* vsunpacki_Idx)(const int32_t* n, const float* a, int32_t a_index, float* y, int32_t y_index,
                                    const int32_t* incy);
  void(QUORIN_CDECL* vsunpackv)(const int32_t* n, const float* a, float* y, const int32_t* iy);
  void(QUORIN_CDECL* vsunpackv_Idx)(const int32_t* n, const float* a, int32_t a_index, float* y, int32_t y_index,
                                    const int32_t* iy, int32_t iy_index);
  void(QUORIN_CDECL* vsunpackm)(const int32_t* n, const float* a, float* y, const int32_t* my);
  void(QUORIN_CDECL* vsunpackm_Idx)(const int32_t* n, const float* a, int32_t a_index, float* y, int32_t y_index,
                                    const int32_t* my, int32_t my_index);

  /* quorin/pardiso.h */
  void(QUORIN_CDECL* PARDISO)(void** pt, const int32_t* maxfct, const int32_t* mnum, const int32_t* mtype,
                              const int32_t* phase, const int32_t* n, const void* a, const int32_t* ia,
                              const int32_t* ja, int32_t* perm, const int32_t* nrhs, int32_t* iparm,
                              const int32_t* msglvl, void* b, void* x, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_32f_Idx)(void** pt, const int32_t* maxfct, const int32_t* mnum, const int32_t* mtype,
                                       const int32_t* phase, const int32_t* n, const float* a, int32_t a_index,
                                       const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                       int32_t* perm, int32_t perm_index, const int32_t* nrhs, int32_t* iparm,
                                       int32_t iparm_index, const int32_t* msglvl, float* b, int32_t b_index, float* x,
                                       int32_t x_index, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_32fc_Idx)(void** pt, const int32_t* maxfct, const int32_t* mnum, const int32_t* mtype,
                                        const int32_t* phase, const int32_t* n, const quorin_complex* a,
                                        int32_t a_index, const int32_t* ia, int32_t ia_index, const int32_t* ja,
                                        int32_t ja_index, int32_t* perm, int32_t perm_index, const int32_t* nrhs,
                                        int32_t* iparm, int32_t iparm_index, const int32_t* msglvl, quorin_complex* b,
                                        int32_t b_index, quorin_complex* x, int32_t x_index, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_64f_Idx)(void** pt, const int32_t* maxfct, const int32_t* mnum, const int32_t* mtype,
                                       const int32_t* phase, const int32_t* n, const double* a, int32_t a_index,
                                       const int32_t* ia, int32_t ia_index, const int32_t* ja, int32_t ja_index,
                                       int32_t* perm, int32_t perm_index, const int32_t* nrhs, int32_t* iparm,
                                       int32_t iparm_index, const int32_t* msglvl, double* b, int32_t b_index,
                                       double* x, int32_t x_index, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_64fc_Idx)(void** pt, const int32_t* maxfct, const int32_t* mnum, const int32_t* mtype,
                                        const int32_t* phase, const int32_t* n, const quorin_double_complex* a,
                                        int32_t a_index, const int32_t* ia, int32_t ia_index, const int32_t* ja,
                                        int32_t ja_index, int32_t* perm, int32_t perm_index, const int32_t* nrhs,
                                        int32_t* iparm, int32_t iparm_index, const int32_t* msglvl,
                                        quorin_double_complex* b, int32_t b_index, quorin_double_complex* x,
                                        int32_t x_index, int32_t* error);
  void(QUORIN_CDECL* sPARDISOINIT)(void** pt, const int32_t* mtype, int32_t* iparm);
  void(QUORIN_CDECL* pardiso_getdiag)(void* const* pt, void* df, void* da, const int32_t* mnum, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_GETDIAG_32f_Idx)(void* const* pt, float* df, int32_t df_index, float* da,
                                               int32_t da_index, const int32_t* mnum, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_GETDIAG_32fc_Idx)(void* const* pt, quorin_complex* df, int32_t df_index,
                                                quorin_complex* da, int32_t da_index, const int32_t* mnum,
                                                int32_t* error);
  void(QUORIN_CDECL* sPARDISO_HANDLE_STORE)(void* const* pt, const char* dirname, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_HANDLE_RESTORE)(void** pt, const char* dirname, int32_t* error);
  void(QUORIN_CDECL* sPARDISO_HANDLE_DELETE)(const char* dirname, int32_t* error);

  /* quorin/rci.h */
  void(QUORIN_CDECL* DCG_INIT)(const int32_t* n, const double* x, const double* b, int32_t* RCI_request, int32_t* ipar,
                               double* dpar, double* tmp);
  void(QUORIN_CDECL* sDCG_INIT_Idx)(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                    int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                    double* dpar, int32_t dpar_index, double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DCG_CHECK)(const int32_t* n, const double* x, const double* b, int32_t* RCI_request, int32_t* ipar,
                                const double* dpar, const double* tmp);
  void(QUORIN_CDECL* sDCG_CHECK_Idx)(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                     int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                     const double* dpar, int32_t dpar_index, const double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DCG)(const int32_t* n, double* x, const double* b, int32_t* RCI_request, int32_t* ipar,
                          double* dpar, double* tmp);
  void(QUORIN_CDECL* sDCG_Idx)(const int32_t* n, double* x, int32_t x_index, const double* b, int32_t b_index,
                               int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                               int32_t dpar_index, double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DCG_GET)(const int32_t* n, const double* x, const double* b, const int32_t* RCI_request,
                              const int32_t* ipar, const double* dpar, const double* tmp, int32_t* itercount);
  void(QUORIN_CDECL* sDCG_GET_Idx)(const int32_t* n, const double* x, int32_t x_index, const double* b, int32_t b_index,
                                   const int32_t* RCI_request, const int32_t* ipar, int32_t ipar_index,
                                   const double* dpar, int32_t dpar_index, const double* tmp, int32_t tmp_index,
                                   int32_t* itercount);
  void(QUORIN_CDECL* DCGMRHS_INIT)(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                   const int32_t* method, int32_t* RCI_request, int32_t* ipar, double* dpar,
                                   double* tmp);
  void(QUORIN_CDECL* sDCGMRHS_INIT_Idx)(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                        const double* b, int32_t b_index, const int32_t* method, int32_t* RCI_request,
                                        int32_t* ipar, int32_t ipar_index, double* dpar, int32_t dpar_index,
                                        double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DCGMRHS_CHECK)(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                    int32_t* RCI_request, int32_t* ipar, const double* dpar, const double* tmp);
  void(QUORIN_CDECL* sDCGMRHS_CHECK_Idx)(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                         const double* b, int32_t b_index, int32_t* RCI_request, int32_t* ipar,
                                         int32_t ipar_index, const double* dpar, int32_t dpar_index, const double* tmp,
                                         int32_t tmp_index);
  void(QUORIN_CDECL* sDCGMRHS_Idx)(const int32_t* n, double* x, int32_t x_index, const int32_t* nrhs, const double* b,
                                   int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                   double* dpar, int32_t dpar_index, double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DCGMRHS_GET)(const int32_t* n, const double* x, const int32_t* nrhs, const double* b,
                                  const int32_t* RCI_request, const int32_t* ipar, const double* dpar,
                                  const double* tmp, int32_t* itercount);
  void(QUORIN_CDECL* sDCGMRHS_GET_Idx)(const int32_t* n, const double* x, int32_t x_index, const int32_t* nrhs,
                                       const double* b, int32_t b_index, const int32_t* RCI_request,
                                       const int32_t* ipar, int32_t ipar_index, const double* dpar, int32_t dpar_index,
                                       const double* tmp, int32_t tmp_index, int32_t* itercount);
  void(QUORIN_CDECL* DFGMRES_INIT)(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                   int32_t* ipar, double* dpar, const double* tmp);
  void(QUORIN_CDECL* sDFGMRES_INIT_Idx)(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                        int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                        double* dpar, int32_t dpar_index, const double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DFGMRES_CHECK)(const int32_t* n, const double* x, const double* b, int32_t* RCI_request,
                                    int32_t* ipar, const double* dpar, const double* tmp);
  void(QUORIN_CDECL* sDFGMRES_CHECK_Idx)(const int32_t* n, const double* x, int32_t x_index, const double* b,
                                         int32_t b_index, int32_t* RCI_request, int32_t* ipar, int32_t ipar_index,
                                         const double* dpar, int32_t dpar_index, const double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DFGMRES)(const int32_t* n, double* x, double* b, int32_t* RCI_request, int32_t* ipar, double* dpar,
                              double* tmp);
  void(QUORIN_CDECL* sDFGMRES_Idx)(const int32_t* n, double* x, int32_t x_index, double* b, int32_t b_index,
                                   int32_t* RCI_request, int32_t* ipar, int32_t ipar_index, double* dpar,
                                   int32_t dpar_index, double* tmp, int32_t tmp_index);
  void(QUORIN_CDECL* DFGMRES_GET)(const int32_t* n, double* x, double* b, int32_t* RCI_request, const int32_t* ipar,
                                  const double* dpar, double* tmp, int32_t* itercount);
  void(QUORIN_CDECL* sDFGMRES_GET_Idx)(const int32_t* n, double* x, int32_t x_index, double* b, int32_t b_index,
                                       int32_t* RCI_request, const int32_t* ipar, int32_t ipar_index,
                                       const double* dpar, int32_t dpar_index, double* tmp, int32_t tmp_index,
                                       int32_t* itercount);
  void(QUORIN_CDECL* DCSRILU0)(const int32_t* n, const double* a, const int32_t* ia, const int32_t* ja, double* bilu0,
                               const int32_t* ipar, const double* dpar, int32_t* ierr);
  void(QUORIN_CDECL* sDCSRILU0_Idx)(const int32_t* n, const double* a, int32_t a_index, const int32_t* ia,
                                    int32_t ia_index, const int32_t* ja, int32_t ja_index, double* bilu0,
                                    int32_t bilu0_index, const int32_t* ipar, int32_t ipar_index, const double* dpar,
                                    int32_t dpar_index, int32_t* ierr);
  void(QUORIN_CDECL* DCSRILUT)(const int32_t* n, const double* a, const int32_t* ia, const int32_t* ja, double* bilut,
                               int32_t* ibilut, int32_t* jbilut, const double* tol, const int32_t* maxfil,
                               const int32_t* ipar, const double* dpar, int32_t* ierr);
  void(QUORIN_CDECL* sDCSRILUT_Idx)(const int32_t* n, const double* a, int32_t a_index, const int32_t* ia,
                                    int32_t ia_index, const int32_t* ja, int32_t ja_index, double* bilut,
                                    int32_t bilut_index, int32_t* ibilut, int32_t ibilut_index, int32_t* jbilut,
                                    int32_t jbilut_index, const double* tol, const int32_t* maxfil, const int32_t* ipar,
                                    int32_t ipar_index, const double* dpar, int32_t dpar_index, int32_t* ierr);

  /* quorin/services.h */
  void(QUORIN_CDECL* sMKL_Set_Num_Threads)(int32_t n);
  int32_t(QUORIN_CDECL* sMKL_Get_Max_Threads)(void);
  int32_t(QUORIN_CDECL* sMKL_Domain_Set_Num_Threads)(int32_t n, int32_t domain);
  int32_t(QUORIN_CDECL* sMKL_Domain_Get_Max_Threads)(int32_t domain);
  void(QUORIN_CDECL* sMKL_Set_Dynamic)(int32_t flag);
  int32_t(QUORIN_CDECL* sMKL_Get_Dynamic)(void);
  void(QUORIN_CDECL* sokmp_set_blocktime)(int32_t milliseconds);
  void(QUORIN_CDECL* sMKL_FreeBuffers)(void);
  void(QUORIN_CDECL* set_printf_callback_32f)(quorin_text_output_callback callback);
  int32_t(QUORIN_CDECL* taucs_printf)(const char* format, ...);
  void(QUORIN_CDECL* XERBLA)(const char* srname, const int32_t* info, int32_t len);

  /* quorin/signal.h */
  void(QUORIN_CDECL* REMEZ)(double* H, const int32_t* NUMTAPS, const int32_t* NUMBANDS, const double* BANDS,
                            const double* DES, const double* WEIGHT, const int32_t* TYPE, const int32_t* GRIDDENSITY,
                            const int32_t* MAXITER, int32_t* IERR);
  void(QUORIN_CDECL* sREMEZ_Idx)(double* H, int32_t H_index, const int32_t* NUMTAPS, const int32_t* NUMBANDS,
                                 const double* BANDS, int32_t BANDS_index, const double* DES, int32_t DES_index,
                                 const double* WEIGHT, int32_t WEIGHT_index, const int32_t* TYPE,
                                 const int32_t* GRIDDENSITY, const int32_t* MAXITER, int32_t* IERR);
  void(QUORIN_CDECL* TSLS1)(const float* A1, const float* A2, const float* B, float* X, float* C1, float* C2,
                            const int32_t* M);
  void(QUORIN_CDECL* TSLS1_Idx)(const float* A1, int32_t A1_index, const float* A2, int32_t A2_index, const float* B,
                                int32_t B_index, float* X, int32_t X_index, float* C1, int32_t C1_index, float* C2,
                                int32_t C2_index, const int32_t* M);
  void(QUORIN_CDECL* TSLC1)(const quorin_complex* A1, const quorin_complex* A2, const quorin_complex* B,
                            quorin_complex* X, quorin_complex* C1, quorin_complex* C2, const int32_t* M);
  void(QUORIN_CDECL* TSLC1_Idx)(const quorin_complex* A1, int32_t A1_index, const quorin_complex* A2, int32_t A2_index,
                                const quorin_complex* B, int32_t B_index, quorin_complex* X, int32_t X_index,
                                quorin_complex* C1, int32_t C1_index, quorin_complex* C2, int32_t C2_index,
                                const int32_t* M);

  /* quorin/slap.h */
  void(QUORIN_CDECL* SS2Y)(const int32_t* N, const int32_t* NELT, int32_t* IA, int32_t* JA, float* A,
                           const int32_t* ISYM);
  void(QUORIN_CDECL* SCPPLT)(const int32_t* N, const int32_t* NELT, const int32_t* IA, const int32_t* JA,
                             const float* A, const int32_t* ISYM, const int32_t* IUNIT);
  void(QUORIN_CDECL* SSDCG)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                            float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                            int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                            const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSICCG)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSICCG_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                 const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                 float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                 const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                 float* RWORK, int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK,
                                 int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSICCGC)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                              float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                              int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                              const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW, const int32_t* IFACT);
  void(QUORIN_CDECL* SSDCGN)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUCN)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUCN_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                 const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                 float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                 const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                 float* RWORK, int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK,
                                 int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSDBCG)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUBC)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUBC_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                 const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                 float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                 const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                 float* RWORK, int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK,
                                 int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSDCGS)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUCS)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUCS_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                 const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                 float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                 const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                 float* RWORK, int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK,
                                 int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSDGMR)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* NSAVE, const int32_t* ITOL, float* TOL,
                             const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                             float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUGM)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* NSAVE, const int32_t* ITOL, float* TOL,
                             const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                             float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUGM_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                 const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                 float* A, int32_t A_index, const int32_t* ISYM, const int32_t* NSAVE,
                                 const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                 int32_t* IERR, const int32_t* IUNIT, float* RWORK, int32_t RWORK_index,
                                 const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSDOMN)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* NSAVE, const int32_t* ITOL, float* TOL,
                             const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                             float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUOM)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* NSAVE, const int32_t* ITOL, float* TOL,
                             const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                             float* RWORK, const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSLUOM_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                 const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                 float* A, int32_t A_index, const int32_t* ISYM, const int32_t* NSAVE,
                                 const int32_t* ITOL, float* TOL, const int32_t* ITMAX, int32_t* ITER, float* ERR,
                                 int32_t* IERR, const int32_t* IUNIT, float* RWORK, int32_t RWORK_index,
                                 const int32_t* LENW, int32_t* IWORK, int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSJAC)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                            float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                            int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                            const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSJAC_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                float* RWORK, int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK,
                                int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSGS)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                           float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                           int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                           const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSGS_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                               const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                               float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                               const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                               float* RWORK, int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK,
                               int32_t IWORK_index, const int32_t* LENIW);
  void(QUORIN_CDECL* SSILUR)(const int32_t* N, const float* B, float* X, const int32_t* NELT, int32_t* IA, int32_t* JA,
                             float* A, const int32_t* ISYM, const int32_t* ITOL, float* TOL, const int32_t* ITMAX,
                             int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT, float* RWORK,
                             const int32_t* LENW, int32_t* IWORK, const int32_t* LENIW);
  void(QUORIN_CDECL* SSILUR_Idx)(const int32_t* N, const float* B, int32_t B_index, float* X, int32_t X_index,
                                 const int32_t* NELT, int32_t* IA, int32_t IA_index, int32_t* JA, int32_t JA_index,
                                 float* A, int32_t A_index, const int32_t* ISYM, const int32_t* ITOL, float* TOL,
                                 const int32_t* ITMAX, int32_t* ITER, float* ERR, int32_t* IERR, const int32_t* IUNIT,
                                 float* RWORK, int32_t RWORK_index, const int32_t* LENW, int32_t* IWORK,
                                 int32_t IWORK_index, const int32_t* LENIW);

  /* quorin/taucs.h */
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_create)(int32_t m, int32_t n, int32_t nnz, int32_t flags);
  void(QUORIN_CDECL* taucs_ccs_free)(taucs_ccs_matrix* A);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_transpose)(const taucs_ccs_matrix* A);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_permute_symmetrically)(const taucs_ccs_matrix* A, const int32_t* perm,
                                                                   const int32_t* invperm);
  void(QUORIN_CDECL* taucs_ccs_permute_rows_inplace)(taucs_ccs_matrix* A, const int32_t* perm);
  void(QUORIN_CDECL* taucs_ccs_split)(const taucs_ccs_matrix* A, taucs_ccs_matrix** L, taucs_ccs_matrix** R, int32_t p);
  void(QUORIN_CDECL* taucs_ccs_times_vec)(const taucs_ccs_matrix* A, const void* x, void* b);
  void(QUORIN_CDECL* taucs_ccs_times_vec_many)(const taucs_ccs_matrix* A, int32_t count, const void* X, void* B);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_augment_nonpositive_offdiagonals)(const taucs_ccs_matrix* A);
  void*(QUORIN_CDECL* taucs_vec_create)(int32_t n, int32_t flags);
  void(QUORIN_CDECL* taucs_vec_axpby)(int32_t n, int32_t flags, double a, const void* x, double b, const void* y,
                                      void* r);
  void(QUORIN_CDECL* taucs_vec_permute)(int32_t n, int32_t flags, const void* v, void* pv, const int32_t* p);
  void(QUORIN_CDECL* taucs_vec_ipermute)(int32_t n, int32_t flags, const void* v, void* pv, const int32_t* p);
  double(QUORIN_CDECL* taucs_vec_norm2)(int32_t n, int32_t flags, const void* v);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_dccs_create)(int32_t m, int32_t n, int32_t nnz);
  void(QUORIN_CDECL* taucs_dccs_free)(taucs_ccs_matrix* A);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_dccs_transpose)(const taucs_ccs_matrix* A);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_dccs_permute_symmetrically)(const taucs_ccs_matrix* A, const int32_t* perm,
                                                                    const int32_t* invperm);
  void(QUORIN_CDECL* taucs_dccs_split)(const taucs_ccs_matrix* A, taucs_ccs_matrix** L, taucs_ccs_matrix** R,
                                       int32_t p);
  void(QUORIN_CDECL* taucs_dccs_times_vec)(const taucs_ccs_matrix* A, const double* x, double* b);
  void(QUORIN_CDECL* taucs_dccs_times_vec_many)(const taucs_ccs_matrix* A, int32_t count, const double* X, double* B);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_dccs_augment_nonpositive_offdiagonals)(const taucs_ccs_matrix* A);
  double*(QUORIN_CDECL* taucs_dvec_create)(int32_t n);
  void(QUORIN_CDECL* taucs_dvec_axpby)(int32_t n, double a, const double* x, double b, const double* y, double* r);
  void(QUORIN_CDECL* taucs_dvec_permute)(int32_t n, const double* v, double* pv, const int32_t* p);
  void(QUORIN_CDECL* taucs_dvec_ipermute)(int32_t n, const double* v, double* pv, const int32_t* p);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_zccs_create)(int32_t m, int32_t n, int32_t nnz);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_zccs_transpose)(const taucs_ccs_matrix* A);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_zccs_permute_symmetrically)(const taucs_ccs_matrix* A, const int32_t* perm,
                                                                    const int32_t* invperm);
  void(QUORIN_CDECL* taucs_zccs_split)(const taucs_ccs_matrix* A, taucs_ccs_matrix** L, taucs_ccs_matrix** R,
                                       int32_t p);
  void(QUORIN_CDECL* taucs_zccs_times_vec)(const taucs_ccs_matrix* A, const quorin_double_complex* x,
                                           quorin_double_complex* b);
  void(QUORIN_CDECL* taucs_zccs_times_vec_many)(const taucs_ccs_matrix* A, int32_t count,
                                                const quorin_double_complex* X, quorin_double_complex* B);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_zccs_augment_nonpositive_offdiagonals)(const taucs_ccs_matrix* A);
  quorin_double_complex*(QUORIN_CDECL* taucs_zvec_create)(int32_t n);
  void(QUORIN_CDECL* taucs_zvec_axpby)(int32_t n, double a, const quorin_double_complex* x, double b,
                                       const quorin_double_complex* y, quorin_double_complex* r);
  void(QUORIN_CDECL* taucs_zvec_permute)(int32_t n, const quorin_double_complex* v, quorin_double_complex* pv,
                                         const int32_t* p);
  void(QUORIN_CDECL* taucs_zvec_ipermute)(int32_t n, const quorin_double_complex* v, quorin_double_complex* pv,
                                          const int32_t* p);
  void(QUORIN_CDECL* taucs_logfile)(const char* name);
  double(QUORIN_CDECL* taucs_wtime)(void);
  double(QUORIN_CDECL* taucs_ctime)(void);
  double(QUORIN_CDECL* taucs_system_memory_size)(void);
  double(QUORIN_CDECL* taucs_available_memory_size)(void);
  int32_t(QUORIN_CDECL* taucs_maximize_stacksize)(void);
  void(QUORIN_CDECL* taucs_ccs_order)(const taucs_ccs_matrix* A, int32_t** perm, int32_t** invperm, const char* name);
  int32_t(QUORIN_CDECL* taucs_linsolve)(const taucs_ccs_matrix* A, void** F, int32_t nrhs, void* X, const void* B,
                                        char* const* options, void* const* opt_arg);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_factor_llt)(const taucs_ccs_matrix* A, double droptol, int32_t modified);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_factor_llt_maxdepth)(const taucs_ccs_matrix* A, double droptol,
                                                                 int32_t modified, int32_t maxdepth);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_factor_ldlt)(const taucs_ccs_matrix* A);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_factor_ldlt_maxdepth)(const taucs_ccs_matrix* A, int32_t maxdepth);
  int32_t(QUORIN_CDECL* taucs_ccs_solve_llt)(void* L, void* x, const void* b);
  int32_t(QUORIN_CDECL* taucs_ccs_solve_ldlt)(void* L, void* x, const void* b);
  void*(QUORIN_CDECL* taucs_ccs_factor_llt_ll)(const taucs_ccs_matrix* A);
  void*(QUORIN_CDECL* taucs_ccs_factor_llt_ll_maxdepth)(const taucs_ccs_matrix* A, int32_t maxdepth);
  void*(QUORIN_CDECL* taucs_ccs_factor_llt_mf)(const taucs_ccs_matrix* A);
  void*(QUORIN_CDECL* taucs_ccs_factor_llt_mf_maxdepth)(const taucs_ccs_matrix* A, int32_t maxdepth);
  void*(QUORIN_CDECL* taucs_ccs_factor_llt_symbolic)(const taucs_ccs_matrix* A);
  void*(QUORIN_CDECL* taucs_ccs_factor_llt_symbolic_maxdepth)(const taucs_ccs_matrix* A, int32_t maxdepth);
  int32_t(QUORIN_CDECL* taucs_ccs_factor_llt_numeric)(const taucs_ccs_matrix* A, void* L);
  void*(QUORIN_CDECL* taucs_ccs_factor_ldlt_ll)(const taucs_ccs_matrix* A);
  void*(QUORIN_CDECL* taucs_ccs_factor_ldlt_ll_maxdepth)(const taucs_ccs_matrix* A, int32_t maxdepth);
  void*(QUORIN_CDECL* taucs_ccs_factor_ldlt_mf)(const taucs_ccs_matrix* A);
  void*(QUORIN_CDECL* taucs_ccs_factor_ldlt_mf_maxdepth)(const taucs_ccs_matrix* A, int32_t maxdepth);
  void*(QUORIN_CDECL* taucs_ccs_factor_ldlt_symbolic)(const taucs_ccs_matrix* A);
  void*(QUORIN_CDECL* taucs_ccs_factor_ldlt_symbolic_maxdepth)(const taucs_ccs_matrix* A, int32_t maxdepth);
  int32_t(QUORIN_CDECL* taucs_ccs_factor_ldlt_numeric)(const taucs_ccs_matrix* A, void* L);
  int32_t(QUORIN_CDECL* taucs_supernodal_solve_llt)(void* L, void* x, const void* b);
  int32_t(QUORIN_CDECL* taucs_supernodal_solve_ldlt_many)(void* L, int32_t n, void* X, int32_t ld_X, const void* B,
                                                          int32_t ld_B);
  int32_t(QUORIN_CDECL* taucs_ooc_solve_llt)(void* L, void* x, const void* b);
  int32_t(QUORIN_CDECL* taucs_inertia_calc)(void* L, int32_t* inertia);
  void(QUORIN_CDECL* taucs_supernodal_factor_free_numeric)(void* L);
  void(QUORIN_CDECL* taucs_supernodal_factor_free)(void* L);
  void*(QUORIN_CDECL* taucs_ccs_factor_lu)(const taucs_ccs_matrix* A, const int32_t* perm, double threshold);
  int32_t(QUORIN_CDECL* taucs_multilu_solve_many)(void* factor, int32_t nrhs, void* X, int32_t ldX, const void* B,
                                                  int32_t ldB);
  void(QUORIN_CDECL* taucs_multilu_factor_free)(void* factor);
  int32_t(QUORIN_CDECL* taucs_conjugate_gradients)(const taucs_ccs_matrix* A, quorin_preconditioner precond_fn,
                                                   void* precond_args, void* X, const void* B, int32_t itermax,
                                                   double convergetol);
  int32_t(QUORIN_CDECL* taucs_minres)(const taucs_ccs_matrix* A, quorin_preconditioner precond_fn, void* precond_args,
                                      void* X, const void* B, int32_t itermax, double convergetol);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_amwb_preconditioner_create)(const taucs_ccs_matrix* A, int32_t rnd,
                                                                    double subgraphs, int32_t stretch_flag);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_read_ijv)(const char* filename, int32_t flags);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_read_ijv_zero_based)(const char* filename, int32_t flags);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_read_mtx)(const char* filename, int32_t flags);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_read_ccs)(const char* filename, int32_t flags);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_read_binary)(const char* filename);
  taucs_ccs_matrix*(QUORIN_CDECL* taucs_ccs_read_hb)(const char* filename, int32_t flags);
  int32_t(QUORIN_CDECL* taucs_ccs_write_ijv)(const taucs_ccs_matrix* A, const char* filename);
  void*(QUORIN_CDECL* taucs_vec_read_binary)(int32_t n, int32_t flags, const char* filename);
  int32_t(QUORIN_CDECL* taucs_vec_write_binary)(int32_t n, int32_t flags, const void* v, const char* filename);

  /* quorin/trust_region.h */
  int32_t(QUORIN_CDECL* strnlsp_init)(void** handle, const int32_t* n, const int32_t* m, float* x, const float* eps,
                                      const int32_t* iter1, const int32_t* iter2, const float* rs);
  int32_t(QUORIN_CDECL* strnlsp_init_Idx)(void** handle, const int32_t* n, const int32_t* m, float* x, int32_t x_index,
                                          const float* eps, int32_t eps_index, const int32_t* iter1,
                                          const int32_t* iter2, const float* rs);
  int32_t(QUORIN_CDECL* strnlsp_solve)(void** handle, float* fvec, const float* fjac, int32_t* RCI_Request);
  int32_t(QUORIN_CDECL* strnlsp_solve_Idx)(void** handle, float* fvec, int32_t fvec_index, const float* fjac,
                                           int32_t fjac_index, int32_t* RCI_Request);
  int32_t(QUORIN_CDECL* strnlsp_get)(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
  int32_t(QUORIN_CDECL* strnlsp_get_Idx)(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
  int32_t(QUORIN_CDECL* strnlsp_delete)(void** handle);
  int32_t(QUORIN_CDECL* strnlsp_delete_Idx)(void** handle);
  int32_t(QUORIN_CDECL* strnlspbc_init)(void** handle, const int32_t* n, const int32_t* m, float* x, const float* LW,
                                        const float* UP, const float* eps, const int32_t* iter1, const int32_t* iter2,
                                        const float* rs);
  int32_t(QUORIN_CDECL* strnlspbc_init_Idx)(void** handle, const int32_t* n, const int32_t* m, float* x,
                                            int32_t x_index, const float* LW, int32_t LW_index, const float* UP,
                                            int32_t UP_index, const float* eps, int32_t eps_index, const int32_t* iter1,
                                            const int32_t* iter2, const float* rs);
  int32_t(QUORIN_CDECL* strnlspbc_solve)(void** handle, float* fvec, const float* fjac, int32_t* RCI_Request);
  int32_t(QUORIN_CDECL* strnlspbc_solve_Idx)(void** handle, float* fvec, int32_t fvec_index, const float* fjac,
                                             int32_t fjac_index, int32_t* RCI_Request);
  int32_t(QUORIN_CDECL* strnlspbc_get)(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
  int32_t(QUORIN_CDECL* strnlspbc_get_Idx)(void** handle, int32_t* iter, int32_t* st_cr, float* r1, float* r2);
  int32_t(QUORIN_CDECL* strnlspbc_delete)(void** handle);
  int32_t(QUORIN_CDECL* strnlspbc_delete_Idx)(void** handle);

  /* quorin/umfpack.h */
  int32_t(QUORIN_CDECL* umfpack_di_symbolic)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                             const float* Ax, void** Symbolic, const float* Control, float* Info);
  int32_t(QUORIN_CDECL* umfpack_si_symbolic_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                 const int32_t* Ai, int32_t Ai_index, const float* Ax, int32_t Ax_index,
                                                 void** Symbolic, const float* Control, int32_t Control_index,
                                                 float* Info, int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_zi_symbolic)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                             const float* Ax, const float* Az, void** Symbolic, const float* Control,
                                             float* Info);
  int32_t(QUORIN_CDECL* umfpack_ci_symbolic_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                 const int32_t* Ai, int32_t Ai_index, const float* Ax, int32_t Ax_index,
                                                 const float* Az, int32_t Az_index, void** Symbolic,
                                                 const float* Control, int32_t Control_index, float* Info,
                                                 int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_di_qsymbolic)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                              const float* Ax, const int32_t* Qinit, void** Symbolic,
                                              const float* Control, float* Info);
  int32_t(QUORIN_CDECL* umfpack_si_qsymbolic_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                  const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                  int32_t Ax_index, const int32_t* Qinit, int32_t Qinit_index,
                                                  void** Symbolic, const float* Control, int32_t Control_index,
                                                  float* Info, int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_zi_qsymbolic)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                              const float* Ax, const float* Az, const int32_t* Qinit, void** Symbolic,
                                              const float* Control, float* Info);
  int32_t(QUORIN_CDECL* umfpack_ci_qsymbolic_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                  const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                  int32_t Ax_index, const float* Az, int32_t Az_index,
                                                  const int32_t* Qinit, int32_t Qinit_index, void** Symbolic,
                                                  const float* Control, int32_t Control_index, float* Info,
                                                  int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_di_numeric)(const int32_t* Ap, const int32_t* Ai, const float* Ax, void* Symbolic,
                                            void** Numeric, const float* Control, float* Info);
  int32_t(QUORIN_CDECL* umfpack_si_numeric_Idx)(const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                                int32_t Ai_index, const float* Ax, int32_t Ax_index, void* Symbolic,
                                                void** Numeric, const float* Control, int32_t Control_index,
                                                float* Info, int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_zi_numeric)(const int32_t* Ap, const int32_t* Ai, const float* Ax, const float* Az,
                                            void* Symbolic, void** Numeric, const float* Control, float* Info);
  int32_t(QUORIN_CDECL* umfpack_ci_numeric_Idx)(const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                                int32_t Ai_index, const float* Ax, int32_t Ax_index, const float* Az,
                                                int32_t Az_index, void* Symbolic, void** Numeric, const float* Control,
                                                int32_t Control_index, float* Info, int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_di_solve)(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax, float* X,
                                          const float* B, void* Numeric, const float* Control, float* Info);
  int32_t(QUORIN_CDECL* umfpack_si_solve_Idx)(int32_t sys, const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                              int32_t Ai_index, const float* Ax, int32_t Ax_index, float* X,
                                              int32_t X_index, const float* B, int32_t B_index, void* Numeric,
                                              const float* Control, int32_t Control_index, float* Info,
                                              int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_zi_solve)(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                          const float* Az, float* Xx, float* Xz, const float* Bx, const float* Bz,
                                          void* Numeric, const float* Control, float* Info);
  int32_t(QUORIN_CDECL* umfpack_ci_solve_Idx)(int32_t sys, const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                              int32_t Ai_index, const float* Ax, int32_t Ax_index, const float* Az,
                                              int32_t Az_index, float* Xx, int32_t Xx_index, float* Xz,
                                              int32_t Xz_index, const float* Bx, int32_t Bx_index, const float* Bz,
                                              int32_t Bz_index, void* Numeric, const float* Control,
                                              int32_t Control_index, float* Info, int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_di_wsolve)(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax, float* X,
                                           const float* B, void* Numeric, const float* Control, float* Info,
                                           int32_t* Wi, float* W);
  int32_t(QUORIN_CDECL* umfpack_si_wsolve_Idx)(int32_t sys, const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                               int32_t Ai_index, const float* Ax, int32_t Ax_index, float* X,
                                               int32_t X_index, const float* B, int32_t B_index, void* Numeric,
                                               const float* Control, int32_t Control_index, float* Info,
                                               int32_t Info_index, int32_t* Wi, int32_t Wi_index, float* W,
                                               int32_t W_index);
  int32_t(QUORIN_CDECL* umfpack_zi_wsolve)(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                           const float* Az, float* Xx, float* Xz, const float* Bx, const float* Bz,
                                           void* Numeric, const float* Control, float* Info, int32_t* Wi, float* W);
  int32_t(QUORIN_CDECL* umfpack_ci_wsolve_Idx)(int32_t sys, const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                               int32_t Ai_index, const float* Ax, int32_t Ax_index, const float* Az,
                                               int32_t Az_index, float* Xx, int32_t Xx_index, float* Xz,
                                               int32_t Xz_index, const float* Bx, int32_t Bx_index, const float* Bz,
                                               int32_t Bz_index, void* Numeric, const float* Control,
                                               int32_t Control_index, float* Info, int32_t Info_index, int32_t* Wi,
                                               int32_t Wi_index, float* W, int32_t W_index);
  void(QUORIN_CDECL* umfpack_di_free_symbolic)(void** Symbolic);
  void(QUORIN_CDECL* umfpack_zi_free_symbolic)(void** Symbolic);
  void(QUORIN_CDECL* umfpack_si_free_symbolic_Idx)(void** Symbolic);
  void(QUORIN_CDECL* umfpack_ci_free_symbolic_Idx)(void** Symbolic);
  void(QUORIN_CDECL* umfpack_di_free_numeric)(void** Numeric);
  void(QUORIN_CDECL* umfpack_zi_free_numeric)(void** Numeric);
  void(QUORIN_CDECL* umfpack_si_free_numeric_Idx)(void** Numeric);
  void(QUORIN_CDECL* umfpack_ci_free_numeric_Idx)(void** Numeric);
  void(QUORIN_CDECL* umfpack_di_defaults)(float* Control);
  void(QUORIN_CDECL* umfpack_si_defaults_Idx)(float* Control, int32_t Control_index);
  void(QUORIN_CDECL* umfpack_zi_defaults)(float* Control);
  void(QUORIN_CDECL* umfpack_ci_defaults_Idx)(float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_di_scale)(float* X, const float* B, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_si_scale_Idx)(float* X, int32_t X_index, const float* B, int32_t B_index,
                                              void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_zi_scale)(float* Xx, float* Xz, const float* Bx, const float* Bz, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_ci_scale_Idx)(float* Xx, int32_t Xx_index, float* Xz, int32_t Xz_index, const float* Bx,
                                              int32_t Bx_index, const float* Bz, int32_t Bz_index, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_di_get_lunz)(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                             int32_t* nz_udiag, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_si_get_lunz_Idx)(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                 int32_t* nz_udiag, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_zi_get_lunz)(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                             int32_t* nz_udiag, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_ci_get_lunz_Idx)(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                 int32_t* nz_udiag, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_di_get_numeric)(int32_t* Lp, int32_t* Lj, float* Lx, int32_t* Up, int32_t* Ui,
                                                float* Ux, int32_t* P, int32_t* Q, float* Dx, int32_t* do_recip,
                                                float* Rs, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_si_get_numeric_Idx)(int32_t* Lp, int32_t Lp_index, int32_t* Lj, int32_t Lj_index,
                                                    float* Lx, int32_t Lx_index, int32_t* Up, int32_t Up_index,
                                                    int32_t* Ui, int32_t Ui_index, float* Ux, int32_t Ux_index,
                                                    int32_t* P, int32_t P_index, int32_t* Q, int32_t Q_index, float* Dx,
                                                    int32_t Dx_index, int32_t* do_recip, float* Rs, int32_t Rs_index,
                                                    void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_zi_get_numeric)(int32_t* Lp, int32_t* Lj, float* Lx, float* Lz, int32_t* Up,
                                                int32_t* Ui, float* Ux, float* Uz, int32_t* P, int32_t* Q, float* Dx,
                                                float* Dz, int32_t* do_recip, float* Rs, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_ci_get_numeric_Idx)(int32_t* Lp, int32_t Lp_index, int32_t* Lj, int32_t Lj_index,
                                                    float* Lx, int32_t Lx_index, float* Lz, int32_t Lz_index,
                                                    int32_t* Up, int32_t Up_index, int32_t* Ui, int32_t Ui_index,
                                                    float* Ux, int32_t Ux_index, float* Uz, int32_t Uz_index,
                                                    int32_t* P, int32_t P_index, int32_t* Q, int32_t Q_index, float* Dx,
                                                    int32_t Dx_index, float* Dz, int32_t Dz_index, int32_t* do_recip,
                                                    float* Rs, int32_t Rs_index, void* Numeric);
  int32_t(QUORIN_CDECL* umfpack_di_get_symbolic)(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz, int32_t* nfr,
                                                 int32_t* nchains, int32_t* P, int32_t* Q, int32_t* Front_npivcol,
                                                 int32_t* Front_parent, int32_t* Front_1strow,
                                                 int32_t* Front_leftmostdesc, int32_t* Chain_start,
                                                 int32_t* Chain_maxrows, int32_t* Chain_maxcols, void* Symbolic);
  int32_t(QUORIN_CDECL* umfpack_si_get_symbolic_Idx)(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                     int32_t* nfr, int32_t* nchains, int32_t* P, int32_t P_index,
                                                     int32_t* Q, int32_t Q_index, int32_t* Front_npivcol,
                                                     int32_t Front_npivcol_index, int32_t* Front_parent,
                                                     int32_t Front_parent_index, int32_t* Front_1strow,
                                                     int32_t Front_1strow_index, int32_t* Front_leftmostdesc,
                                                     int32_t Front_leftmostdesc_index, int32_t* Chain_start,
                                                     int32_t Chain_start_index, int32_t* Chain_maxrows,
                                                     int32_t Chain_maxrows_index, int32_t* Chain_maxcols,
                                                     int32_t Chain_maxcols_index, void* Symbolic);
  int32_t(QUORIN_CDECL* umfpack_zi_get_symbolic)(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz, int32_t* nfr,
                                                 int32_t* nchains, int32_t* P, int32_t* Q, int32_t* Front_npivcol,
                                                 int32_t* Front_parent, int32_t* Front_1strow,
                                                 int32_t* Front_leftmostdesc, int32_t* Chain_start,
                                                 int32_t* Chain_maxrows, int32_t* Chain_maxcols, void* Symbolic);
  int32_t(QUORIN_CDECL* umfpack_ci_get_symbolic_Idx)(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                     int32_t* nfr, int32_t* nchains, int32_t* P, int32_t P_index,
                                                     int32_t* Q, int32_t Q_index, int32_t* Front_npivcol,
                                                     int32_t Front_npivcol_index, int32_t* Front_parent,
                                                     int32_t Front_parent_index, int32_t* Front_1strow,
                                                     int32_t Front_1strow_index, int32_t* Front_leftmostdesc,
                                                     int32_t Front_leftmostdesc_index, int32_t* Chain_start,
                                                     int32_t Chain_start_index, int32_t* Chain_maxrows,
                                                     int32_t Chain_maxrows_index, int32_t* Chain_maxcols,
                                                     int32_t Chain_maxcols_index, void* Symbolic);
  int32_t(QUORIN_CDECL* umfpack_di_get_determinant)(float* Mx, float* Ex, void* Numeric, float* Info);
  int32_t(QUORIN_CDECL* umfpack_si_get_determinant_Idx)(float* Mx, int32_t Mx_index, float* Ex, int32_t Ex_index,
                                                        void* Numeric, float* Info, int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_zi_get_determinant)(float* Mx, float* Mz, float* Ex, void* Numeric, float* Info);
  int32_t(QUORIN_CDECL* umfpack_ci_get_determinant_Idx)(float* Mx, int32_t Mx_index, float* Mz, int32_t Mz_index,
                                                        float* Ex, int32_t Ex_index, void* Numeric, float* Info,
                                                        int32_t Info_index);
  int32_t(QUORIN_CDECL* umfpack_di_triplet_to_col)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                   const int32_t* Tj, const float* Tx, int32_t* Ap, int32_t* Ai,
                                                   float* Ax, int32_t* Map);
  int32_t(QUORIN_CDECL* umfpack_si_triplet_to_col_Idx)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                       int32_t Ti_index, const int32_t* Tj, int32_t Tj_index,
                                                       const float* Tx, int32_t Tx_index, int32_t* Ap, int32_t Ap_index,
                                                       int32_t* Ai, int32_t Ai_index, float* Ax, int32_t Ax_index,
                                                       int32_t* Map, int32_t Map_index);
  int32_t(QUORIN_CDECL* umfpack_zi_triplet_to_col)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                   const int32_t* Tj, const float* Tx, const float* Tz, int32_t* Ap,
                                                   int32_t* Ai, float* Ax, float* Az, int32_t* Map);
  int32_t(QUORIN_CDECL* umfpack_ci_triplet_to_col_Idx)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                       int32_t Ti_index, const int32_t* Tj, int32_t Tj_index,
                                                       const float* Tx, int32_t Tx_index, const float* Tz,
                                                       int32_t Tz_index, int32_t* Ap, int32_t Ap_index, int32_t* Ai,
                                                       int32_t Ai_index, float* Ax, int32_t Ax_index, float* Az,
                                                       int32_t Az_index, int32_t* Map, int32_t Map_index);
  int32_t(QUORIN_CDECL* umfpack_di_col_to_triplet)(int32_t n_col, const int32_t* Ap, int32_t* Tj);
  int32_t(QUORIN_CDECL* umfpack_si_col_to_triplet_Idx)(int32_t n_col, const int32_t* Ap, int32_t Ap_index, int32_t* Tj,
                                                       int32_t Tj_index);
  int32_t(QUORIN_CDECL* umfpack_zi_col_to_triplet)(int32_t n_col, const int32_t* Ap, int32_t* Tj);
  int32_t(QUORIN_CDECL* umfpack_ci_col_to_triplet_Idx)(int32_t n_col, const int32_t* Ap, int32_t Ap_index, int32_t* Tj,
                                                       int32_t Tj_index);
  int32_t(QUORIN_CDECL* umfpack_di_transpose)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                              const float* Ax, const int32_t* P, const int32_t* Q, int32_t* Rp,
                                              int32_t* Ri, float* Rx);
  int32_t(QUORIN_CDECL* umfpack_si_transpose_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                  const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                  int32_t Ax_index, const int32_t* P, int32_t P_index, const int32_t* Q,
                                                  int32_t Q_index, int32_t* Rp, int32_t Rp_index, int32_t* Ri,
                                                  int32_t Ri_index, float* Rx, int32_t Rx_index);
  int32_t(QUORIN_CDECL* umfpack_zi_transpose)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                              const float* Ax, const float* Az, const int32_t* P, const int32_t* Q,
                                              int32_t* Rp, int32_t* Ri, float* Rx, float* Rz, int32_t do_conjugate);
  int32_t(QUORIN_CDECL* umfpack_ci_transpose_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                  const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                  int32_t Ax_index, const float* Az, int32_t Az_index, const int32_t* P,
                                                  int32_t P_index, const int32_t* Q, int32_t Q_index, int32_t* Rp,
                                                  int32_t Rp_index, int32_t* Ri, int32_t Ri_index, float* Rx,
                                                  int32_t Rx_index, float* Rz, int32_t Rz_index, int32_t do_conjugate);
  void(QUORIN_CDECL* umfpack_di_report_status)(const float* Control, int32_t status);
  void(QUORIN_CDECL* umfpack_si_report_status_Idx)(const float* Control, int32_t Control_index, int32_t status);
  void(QUORIN_CDECL* umfpack_zi_report_status)(const float* Control, int32_t status);
  void(QUORIN_CDECL* umfpack_ci_report_status_Idx)(const float* Control, int32_t Control_index, int32_t status);
  void(QUORIN_CDECL* umfpack_di_report_info)(const float* Control, const float* Info);
  void(QUORIN_CDECL* umfpack_si_report_info_Idx)(const float* Control, int32_t Control_index, const float* Info,
                                                 int32_t Info_index);
  void(QUORIN_CDECL* umfpack_zi_report_info)(const float* Control, const float* Info);
  void(QUORIN_CDECL* umfpack_ci_report_info_Idx)(const float* Control, int32_t Control_index, const float* Info,
                                                 int32_t Info_index);
  void(QUORIN_CDECL* umfpack_di_report_control)(const float* Control);
  void(QUORIN_CDECL* umfpack_si_report_control_Idx)(const float* Control, int32_t Control_index);
  void(QUORIN_CDECL* umfpack_zi_report_control)(const float* Control);
  void(QUORIN_CDECL* umfpack_ci_report_control_Idx)(const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_di_report_matrix)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                  const float* Ax, int32_t col_form, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_si_report_matrix_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                      const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                      int32_t Ax_index, int32_t col_form, const float* Control,
                                                      int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_zi_report_matrix)(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                  const float* Ax, const float* Az, int32_t col_form,
                                                  const float* Control);
  int32_t(QUORIN_CDECL* umfpack_ci_report_matrix_Idx)(int32_t n_row, int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                      const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                      int32_t Ax_index, const float* Az, int32_t Az_index,
                                                      int32_t col_form, const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_di_report_triplet)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                   const int32_t* Tj, const float* Tx, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_si_report_triplet_Idx)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                       int32_t Ti_index, const int32_t* Tj, int32_t Tj_index,
                                                       const float* Tx, int32_t Tx_index, const float* Control,
                                                       int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_zi_report_triplet)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                   const int32_t* Tj, const float* Tx, const float* Tz,
                                                   const float* Control);
  int32_t(QUORIN_CDECL* umfpack_ci_report_triplet_Idx)(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                       int32_t Ti_index, const int32_t* Tj, int32_t Tj_index,
                                                       const float* Tx, int32_t Tx_index, const float* Tz,
                                                       int32_t Tz_index, const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_di_report_vector)(int32_t n, const float* X, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_si_report_vector_Idx)(int32_t n, const float* X, int32_t X_index, const float* Control,
                                                      int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_zi_report_vector)(int32_t n, const float* Xx, const float* Xz, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_ci_report_vector_Idx)(int32_t n, const float* Xx, int32_t Xx_index, const float* Xz,
                                                      int32_t Xz_index, const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_di_report_symbolic)(void* Symbolic, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_si_report_symbolic_Idx)(void* Symbolic, const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_zi_report_symbolic)(void* Symbolic, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_ci_report_symbolic_Idx)(void* Symbolic, const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_di_report_numeric)(void* Numeric, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_si_report_numeric_Idx)(void* Numeric, const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_zi_report_numeric)(void* Numeric, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_ci_report_numeric_Idx)(void* Numeric, const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_di_report_perm)(int32_t np, const int32_t* Perm, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_si_report_perm_Idx)(int32_t np, const int32_t* Perm, int32_t Perm_index,
                                                    const float* Control, int32_t Control_index);
  int32_t(QUORIN_CDECL* umfpack_zi_report_perm)(int32_t np, const int32_t* Perm, const float* Control);
  int32_t(QUORIN_CDECL* umfpack_ci_report_perm_Idx)(int32_t np, const int32_t* Perm, int32_t Perm_index,
                                                    const float* Control, int32_t Control_index);
  void(QUORIN_CDECL* umfpack_tic)(double* stats);
  void(QUORIN_CDECL* umfpack_tic_32f_Idx)(double* stats, int32_t stats_index);
  void(QUORIN_CDECL* umfpack_toc)(double* stats);
  void(QUORIN_CDECL* umfpack_toc_32f_Idx)(double* stats, int32_t stats_index);
  double(QUORIN_CDECL* umfpack_timer)(void);
} quorin_library;

typedef void (*quorin_function)(void);

/* Returns the address of an export, or null. */
typedef quorin_function (*quorin_finder)(void* context, const char* name);

/* Loads the library from `path`, or if that is null by its own name from where the system looks for it, and fills the
 * struct, whatever stood there. Returns the number of exports that this library lacks: they are null, `missing` names the
 * first, and the others can be called. Returns -1 and clears the struct if there is no such library. On Windows `path` is
 * in the system's code page. */
int quorin_load(const char* path, quorin_library* library);

/* Fills the struct from a library that the host has loaded by itself: calls find(context, name) for each export. Returns
 * the number of those that were not found. `module` is null then, and quorin_unload() leaves the host's library alone. */
int quorin_bind(quorin_finder find, void* context, quorin_library* library);

/* Gives back what quorin_load() took, and clears the struct. */
void quorin_unload(quorin_library* library);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif

#if defined(QUORIN_LOADER_IMPLEMENTATION) && !defined(QUORIN_LOADER_IMPLEMENTED)
#define QUORIN_LOADER_IMPLEMENTED

#include <string.h>
#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

/* In the order of the struct. */
static const char* const quorin_export_names[QUORIN_EXPORT_COUNT] = {
    "CBESH",
    "sCBESH_Idx",
    "CBESI",
    "sCBESI_Idx",
    "CBESJ",
    "sCBESJ_Idx",
    "CBESK",
    "sCBESK_Idx",
    "CBESY",
    "sCBESY_Idx",
    "CAIRY",
    "sCAIRY_Idx",
    "CBIRY",
    "sCBIRY_Idx",
    "R1MACH",
    "saxpy",
    "SAXPY",
    "saxpy_Idx",
    "caxpy",
    "caxpy_Idx",
    "scopy",
    "SCOPY",
    "scopy_Idx",
    "ccopy",
    "ccopy_Idx",
    "sswap",
    "sswap_Idx",
    "cswap",
    "cswap_Idx",
    "sdot",
    "SDOT",
    "sdot_Idx",
    "cdotu",
    "cdotu_Idx",
    "cdotc",
    "cdotc_Idx",
    "snrm2",
    "SNRM2",
    "snrm2_Idx",
    "scnrm2",
    "scnrm2_Idx",
    "sasum",
    "sasum_Idx",
    "scasum",
    "scasum_Idx",
    "sscal",
    "SSCAL",
    "sscal_Idx",
    "cscal",
    "cscal_Idx",
    "csscal",
    "csscal_Idx",
    "isamax",
    "isamax_Idx",
    "icamax",
    "icamax_Idx",
    "isamin",
    "isamin_Idx",
    "icamin",
    "icamin_Idx",
    "srotg",
    "srotg_Idx",
    "crotg",
    "crotg_Idx",
    "srot",
    "srot_Idx",
    "csrot",
    "csrot_Idx",
    "srotmg",
    "srotmg_Idx",
    "srotm",
    "srotm_Idx",
    "saxpyi",
    "saxpyi_Idx",
    "caxpyi",
    "caxpyi_Idx",
    "sdoti",
    "sdoti_Idx",
    "cdotui",
    "cdotui_Idx",
    "cdotci",
    "cdotci_Idx",
    "sgthr",
    "sgthr_Idx",
    "cgthr",
    "cgthr_Idx",
    "ssctr",
    "ssctr_Idx",
    "csctr",
    "csctr_Idx",
    "sgemv",
    "sgemv_Idx",
    "cgemv",
    "cgemv_Idx",
    "strmv",
    "strmv_Idx",
    "ctrmv",
    "ctrmv_Idx",
    "strsv",
    "strsv_Idx",
    "ctrsv",
    "ctrsv_Idx",
    "ssymv",
    "ssymv_Idx",
    "chemv",
    "chemv_Idx",
    "sger",
    "sger_Idx",
    "cgeru",
    "cgeru_Idx",
    "cgerc",
    "cgerc_Idx",
    "ssyr",
    "ssyr_Idx",
    "cher",
    "cher_Idx",
    "ssyr2",
    "ssyr2_Idx",
    "cher2",
    "cher2_Idx",
    "sgemm",
    "sgemm_Idx",
    "cgemm",
    "cgemm_Idx",
    "ssymm",
    "ssymm_Idx",
    "csymm",
    "csymm_Idx",
    "chemm",
    "chemm_Idx",
    "ssyrk",
    "ssyrk_Idx",
    "csyrk",
    "csyrk_Idx",
    "cherk",
    "cherk_Idx",
    "ssyr2k",
    "ssyr2k_Idx",
    "csyr2k",
    "csyr2k_Idx",
    "cher2k",
    "cher2k_Idx",
    "strmm",
    "strmm_Idx",
    "ctrmm",
    "ctrmm_Idx",
    "strsm",
    "strsm_Idx",
    "ctrsm",
    "ctrsm_Idx",
    "feastinit_32f",
    "sfeast_scsrev",
    "sfeast_scsrev_Idx",
    "cfeast_hcsrev",
    "cfeast_hcsrev_Idx",
    "sfeast_scsrgv",
    "sfeast_scsrgv_Idx",
    "cfeast_hcsrgv",
    "cfeast_hcsrgv_Idx",
    "sjacobi_init",
    "sjacobi_init_Idx",
    "sjacobi_solve",
    "sjacobi_solve_Idx",
    "sjacobi_delete",
    "sjacobi_delete_Idx",
    "sjacobi",
    "sjacobi_Idx",
    "sjacobix",
    "sjacobix_Idx",
    "sgetrf",
    "sgetrf_Idx",
    "cgetrf",
    "cgetrf_Idx",
    "sgetrs",
    "sgetrs_Idx",
    "cgetrs",
    "cgetrs_Idx",
    "sgetri",
    "sgetri_Idx",
    "cgetri",
    "cgetri_Idx",
    "sgecon",
    "sgecon_Idx",
    "cgecon",
    "cgecon_Idx",
    "sgerfs",
    "sgerfs_Idx",
    "cgerfs",
    "cgerfs_Idx",
    "sgbtrf",
    "sgbtrf_Idx",
    "cgbtrf",
    "cgbtrf_Idx",
    "sgbtrs",
    "sgbtrs_Idx",
    "cgbtrs",
    "cgbtrs_Idx",
    "sgbcon",
    "sgbcon_Idx",
    "cgbcon",
    "cgbcon_Idx",
    "sgbrfs",
    "sgbrfs_Idx",
    "cgbrfs",
    "cgbrfs_Idx",
    "spotrf",
    "spotrf_Idx",
    "cpotrf",
    "cpotrf_Idx",
    "spotrs",
    "spotrs_Idx",
    "cpotrs",
    "cpotrs_Idx",
    "spotri",
    "spotri_Idx",
    "cpotri",
    "cpotri_Idx",
    "spocon",
    "spocon_Idx",
    "cpocon",
    "cpocon_Idx",
    "sporfs",
    "sporfs_Idx",
    "cporfs",
    "cporfs_Idx",
    "spbtrf",
    "spbtrf_Idx",
    "cpbtrf",
    "cpbtrf_Idx",
    "spbtrs",
    "spbtrs_Idx",
    "cpbtrs",
    "cpbtrs_Idx",
    "spbcon",
    "spbcon_Idx",
    "cpbcon",
    "cpbcon_Idx",
    "spbrfs",
    "spbrfs_Idx",
    "cpbrfs",
    "cpbrfs_Idx",
    "ssytrf",
    "ssytrf_Idx",
    "csytrf",
    "csytrf_Idx",
    "ssytrs",
    "ssytrs_Idx",
    "csytrs",
    "csytrs_Idx",
    "ssytri",
    "ssytri_Idx",
    "csytri",
    "csytri_Idx",
    "ssycon",
    "ssycon_Idx",
    "csycon",
    "csycon_Idx",
    "ssyrfs",
    "ssyrfs_Idx",
    "csyrfs",
    "csyrfs_Idx",
    "chetrf",
    "chetrf_Idx",
    "chetrs",
    "chetrs_Idx",
    "chetri",
    "chetri_Idx",
    "checon",
    "checon_Idx",
    "cherfs",
    "cherfs_Idx",
    "strtrs",
    "strtrs_Idx",
    "ctrtrs",
    "ctrtrs_Idx",
    "strtri",
    "strtri_Idx",
    "ctrtri",
    "ctrtri_Idx",
    "strcon",
    "strcon_Idx",
    "ctrcon",
    "ctrcon_Idx",
    "strrfs",
    "strrfs_Idx",
    "ctrrfs",
    "ctrrfs_Idx",
    "sgels",
    "sgels_Idx",
    "cgels",
    "cgels_Idx",
    "sgelss",
    "sgelss_Idx",
    "cgelss",
    "cgelss_Idx",
    "sgelsy",
    "sgelsy_Idx",
    "cgelsy",
    "cgelsy_Idx",
    "sgelsd",
    "sgelsd_Idx",
    "cgelsd",
    "cgelsd_Idx",
    "sgglse",
    "sgglse_Idx",
    "cgglse",
    "cgglse_Idx",
    "sggglm",
    "sggglm_Idx",
    "cggglm",
    "cggglm_Idx",
    "sgeqrf",
    "sgeqrf_Idx",
    "cgeqrf",
    "cgeqrf_Idx",
    "sgeqp3",
    "sgeqp3_Idx",
    "sorgqr",
    "sorgqr_Idx",
    "cungqr",
    "cungqr_Idx",
    "sormqr",
    "sormqr_Idx",
    "cunmqr",
    "cunmqr_Idx",
    "sgelqf",
    "sgelqf_Idx",
    "cgelqf",
    "cgelqf_Idx",
    "sorglq",
    "sorglq_Idx",
    "cunglq",
    "cunglq_Idx",
    "sormlq",
    "sormlq_Idx",
    "cunmlq",
    "cunmlq_Idx",
    "sgebrd",
    "sgebrd_Idx",
    "cgebrd",
    "cgebrd_Idx",
    "sorgbr",
    "sorgbr_Idx",
    "cungbr",
    "cungbr_Idx",
    "sormbr",
    "sormbr_Idx",
    "ssytrd",
    "ssytrd_Idx",
    "sorgtr",
    "sorgtr_Idx",
    "cungtr",
    "cungtr_Idx",
    "sormtr",
    "sormtr_Idx",
    "cunmtr",
    "cunmtr_Idx",
    "chetrd",
    "chetrd_Idx",
    "sgehrd",
    "sgehrd_Idx",
    "cgehrd",
    "cgehrd_Idx",
    "sorghr",
    "sorghr_Idx",
    "cunghr",
    "cunghr_Idx",
    "ssygst",
    "ssygst_Idx",
    "chegst",
    "chegst_Idx",
    "sgebal",
    "sgebal_Idx",
    "cgebal",
    "cgebal_Idx",
    "sgebak",
    "sgebak_Idx",
    "cgebak",
    "cgebak_Idx",
    "ssyevx",
    "ssyevx_Idx",
    "ssyevr",
    "ssyevr_Idx",
    "cheevx",
    "cheevx_Idx",
    "cheevr",
    "cheevr_Idx",
    "ssbev",
    "ssbev_Idx",
    "ssbevd",
    "ssbevd_Idx",
    "ssbevx",
    "ssbevx_Idx",
    "chbev",
    "chbev_Idx",
    "chbevd",
    "chbevd_Idx",
    "chbevx",
    "chbevx_Idx",
    "ssygvd",
    "ssygvd_Idx",
    "ssygvx",
    "ssygvx_Idx",
    "chegvd",
    "chegvd_Idx",
    "chegvx",
    "chegvx_Idx",
    "ssterf",
    "ssterf_Idx",
    "ssteqr",
    "ssteqr_Idx",
    "csteqr",
    "csteqr_Idx",
    "spteqr",
    "spteqr_Idx",
    "cpteqr",
    "cpteqr_Idx",
    "sstebz",
    "sstebz_Idx",
    "sstein",
    "sstein_Idx",
    "cstein",
    "cstein_Idx",
    "sgeev",
    "sgeev_Idx",
    "cgeev",
    "cgeev_Idx",
    "sgeevx",
    "sgeevx_Idx",
    "cgeevx",
    "cgeevx_Idx",
    "sgees",
    "sgees_Idx",
    "cgees",
    "cgees_Idx",
    "sgeesx",
    "sgeesx_Idx",
    "cgeesx",
    "cgeesx_Idx",
    "shseqr",
    "shseqr_Idx",
    "chseqr",
    "chseqr_Idx",
    "strevc",
    "strevc_Idx",
    "ctrevc",
    "ctrevc_Idx",
    "strsna",
    "strsna_Idx",
    "ctrsna",
    "ctrsna_Idx",
    "strsyl",
    "strsyl_Idx",
    "ctrsyl",
    "ctrsyl_Idx",
    "sgesvd",
    "sgesvd_Idx",
    "cgesvd",
    "cgesvd_Idx",
    "sgesdd",
    "sgesdd_Idx",
    "cgesdd",
    "cgesdd_Idx",
    "sbdsqr",
    "sbdsqr_Idx",
    "cbdsqr",
    "cbdsqr_Idx",
    "sggsvd",
    "sggsvd_Idx",
    "cggsvd",
    "cggsvd_Idx",
    "sgges",
    "sgges_Idx",
    "cgges",
    "cgges_Idx",
    "sggesx",
    "sggesx_Idx",
    "cggesx",
    "cggesx_Idx",
    "sggev",
    "sggev_Idx",
    "cggev",
    "cggev_Idx",
    "sggevx",
    "sggevx_Idx",
    "cggevx",
    "cggevx_Idx",
    "vspacki",
    "vspacki_Idx",
    "vspackv",
    "vspackv_Idx",
    "vspackm",
    "vspackm_Idx",
    "vsunpacki",
    "vsunpacki_Idx",
    "vsunpackv",
    "vsunpackv_Idx",
    "vsunpackm",
    "vsunpackm_Idx",
    "PARDISO",
    "sPARDISO_32f_Idx",
    "sPARDISO_32fc_Idx",
    "sPARDISO_64f_Idx",
    "sPARDISO_64fc_Idx",
    "sPARDISOINIT",
    "pardiso_getdiag",
    "sPARDISO_GETDIAG_32f_Idx",
    "sPARDISO_GETDIAG_32fc_Idx",
    "sPARDISO_HANDLE_STORE",
    "sPARDISO_HANDLE_RESTORE",
    "sPARDISO_HANDLE_DELETE",
    "DCG_INIT",
    "sDCG_INIT_Idx",
    "DCG_CHECK",
    "sDCG_CHECK_Idx",
    "DCG",
    "sDCG_Idx",
    "DCG_GET",
    "sDCG_GET_Idx",
    "DCGMRHS_INIT",
    "sDCGMRHS_INIT_Idx",
    "DCGMRHS_CHECK",
    "sDCGMRHS_CHECK_Idx",
    "sDCGMRHS_Idx",
    "DCGMRHS_GET",
    "sDCGMRHS_GET_Idx",
    "DFGMRES_INIT",
    "sDFGMRES_INIT_Idx",
    "DFGMRES_CHECK",
    "sDFGMRES_CHECK_Idx",
    "DFGMRES",
    "sDFGMRES_Idx",
    "DFGMRES_GET",
    "sDFGMRES_GET_Idx",
    "DCSRILU0",
    "sDCSRILU0_Idx",
    "DCSRILUT",
    "sDCSRILUT_Idx",
    "sMKL_Set_Num_Threads",
    "sMKL_Get_Max_Threads",
    "sMKL_Domain_Set_Num_Threads",
    "sMKL_Domain_Get_Max_Threads",
    "sMKL_Set_Dynamic",
    "sMKL_Get_Dynamic",
    "sokmp_set_blocktime",
    "sMKL_FreeBuffers",
    "set_printf_callback_32f",
    "taucs_printf",
    "XERBLA",
    "REMEZ",
    "sREMEZ_Idx",
    "TSLS1",
    "TSLS1_Idx",
    "TSLC1",
    "TSLC1_Idx",
    "SS2Y",
    "SCPPLT",
    "SSDCG",
    "SSICCG",
    "SSICCG_Idx",
    "SSICCGC",
    "SSDCGN",
    "SSLUCN",
    "SSLUCN_Idx",
    "SSDBCG",
    "SSLUBC",
    "SSLUBC_Idx",
    "SSDCGS",
    "SSLUCS",
    "SSLUCS_Idx",
    "SSDGMR",
    "SSLUGM",
    "SSLUGM_Idx",
    "SSDOMN",
    "SSLUOM",
    "SSLUOM_Idx",
    "SSJAC",
    "SSJAC_Idx",
    "SSGS",
    "SSGS_Idx",
    "SSILUR",
    "SSILUR_Idx",
    "taucs_ccs_create",
    "taucs_ccs_free",
    "taucs_ccs_transpose",
    "taucs_ccs_permute_symmetrically",
    "taucs_ccs_permute_rows_inplace",
    "taucs_ccs_split",
    "taucs_ccs_times_vec",
    "taucs_ccs_times_vec_many",
    "taucs_ccs_augment_nonpositive_offdiagonals",
    "taucs_vec_create",
    "taucs_vec_axpby",
    "taucs_vec_permute",
    "taucs_vec_ipermute",
    "taucs_vec_norm2",
    "taucs_dccs_create",
    "taucs_dccs_free",
    "taucs_dccs_transpose",
    "taucs_dccs_permute_symmetrically",
    "taucs_dccs_split",
    "taucs_dccs_times_vec",
    "taucs_dccs_times_vec_many",
    "taucs_dccs_augment_nonpositive_offdiagonals",
    "taucs_dvec_create",
    "taucs_dvec_axpby",
    "taucs_dvec_permute",
    "taucs_dvec_ipermute",
    "taucs_zccs_create",
    "taucs_zccs_transpose",
    "taucs_zccs_permute_symmetrically",
    "taucs_zccs_split",
    "taucs_zccs_times_vec",
    "taucs_zccs_times_vec_many",
    "taucs_zccs_augment_nonpositive_offdiagonals",
    "taucs_zvec_create",
    "taucs_zvec_axpby",
    "taucs_zvec_permute",
    "taucs_zvec_ipermute",
    "taucs_logfile",
    "taucs_wtime",
    "taucs_ctime",
    "taucs_system_memory_size",
    "taucs_available_memory_size",
    "taucs_maximize_stacksize",
    "taucs_ccs_order",
    "taucs_linsolve",
    "taucs_ccs_factor_llt",
    "taucs_ccs_factor_llt_maxdepth",
    "taucs_ccs_factor_ldlt",
    "taucs_ccs_factor_ldlt_maxdepth",
    "taucs_ccs_solve_llt",
    "taucs_ccs_solve_ldlt",
    "taucs_ccs_factor_llt_ll",
    "taucs_ccs_factor_llt_ll_maxdepth",
    "taucs_ccs_factor_llt_mf",
    "taucs_ccs_factor_llt_mf_maxdepth",
    "taucs_ccs_factor_llt_symbolic",
    "taucs_ccs_factor_llt_symbolic_maxdepth",
    "taucs_ccs_factor_llt_numeric",
    "taucs_ccs_factor_ldlt_ll",
    "taucs_ccs_factor_ldlt_ll_maxdepth",
    "taucs_ccs_factor_ldlt_mf",
    "taucs_ccs_factor_ldlt_mf_maxdepth",
    "taucs_ccs_factor_ldlt_symbolic",
    "taucs_ccs_factor_ldlt_symbolic_maxdepth",
    "taucs_ccs_factor_ldlt_numeric",
    "taucs_supernodal_solve_llt",
    "taucs_supernodal_solve_ldlt_many",
    "taucs_ooc_solve_llt",
    "taucs_inertia_calc",
    "taucs_supernodal_factor_free_numeric",
    "taucs_supernodal_factor_free",
    "taucs_ccs_factor_lu",
    "taucs_multilu_solve_many",
    "taucs_multilu_factor_free",
    "taucs_conjugate_gradients",
    "taucs_minres",
    "taucs_amwb_preconditioner_create",
    "taucs_ccs_read_ijv",
    "taucs_ccs_read_ijv_zero_based",
    "taucs_ccs_read_mtx",
    "taucs_ccs_read_ccs",
    "taucs_ccs_read_binary",
    "taucs_ccs_read_hb",
    "taucs_ccs_write_ijv",
    "taucs_vec_read_binary",
    "taucs_vec_write_binary",
    "strnlsp_init",
    "strnlsp_init_Idx",
    "strnlsp_solve",
    "strnlsp_solve_Idx",
    "strnlsp_get",
    "strnlsp_get_Idx",
    "strnlsp_delete",
    "strnlsp_delete_Idx",
    "strnlspbc_init",
    "strnlspbc_init_Idx",
    "strnlspbc_solve",
    "strnlspbc_solve_Idx",
    "strnlspbc_get",
    "strnlspbc_get_Idx",
    "strnlspbc_delete",
    "strnlspbc_delete_Idx",
    "umfpack_di_symbolic",
    "umfpack_si_symbolic_Idx",
    "umfpack_zi_symbolic",
    "umfpack_ci_symbolic_Idx",
    "umfpack_di_qsymbolic",
    "umfpack_si_qsymbolic_Idx",
    "umfpack_zi_qsymbolic",
    "umfpack_ci_qsymbolic_Idx",
    "umfpack_di_numeric",
    "umfpack_si_numeric_Idx",
    "umfpack_zi_numeric",
    "umfpack_ci_numeric_Idx",
    "umfpack_di_solve",
    "umfpack_si_solve_Idx",
    "umfpack_zi_solve",
    "umfpack_ci_solve_Idx",
    "umfpack_di_wsolve",
    "umfpack_si_wsolve_Idx",
    "umfpack_zi_wsolve",
    "umfpack_ci_wsolve_Idx",
    "umfpack_di_free_symbolic",
    "umfpack_zi_free_symbolic",
    "umfpack_si_free_symbolic_Idx",
    "umfpack_ci_free_symbolic_Idx",
    "umfpack_di_free_numeric",
    "umfpack_zi_free_numeric",
    "umfpack_si_free_numeric_Idx",
    "umfpack_ci_free_numeric_Idx",
    "umfpack_di_defaults",
    "umfpack_si_defaults_Idx",
    "umfpack_zi_defaults",
    "umfpack_ci_defaults_Idx",
    "umfpack_di_scale",
    "umfpack_si_scale_Idx",
    "umfpack_zi_scale",
    "umfpack_ci_scale_Idx",
    "umfpack_di_get_lunz",
    "umfpack_si_get_lunz_Idx",
    "umfpack_zi_get_lunz",
    "umfpack_ci_get_lunz_Idx",
    "umfpack_di_get_numeric",
    "umfpack_si_get_numeric_Idx",
    "umfpack_zi_get_numeric",
    "umfpack_ci_get_numeric_Idx",
    "umfpack_di_get_symbolic",
    "umfpack_si_get_symbolic_Idx",
    "umfpack_zi_get_symbolic",
    "umfpack_ci_get_symbolic_Idx",
    "umfpack_di_get_determinant",
    "umfpack_si_get_determinant_Idx",
    "umfpack_zi_get_determinant",
    "umfpack_ci_get_determinant_Idx",
    "umfpack_di_triplet_to_col",
    "umfpack_si_triplet_to_col_Idx",
    "umfpack_zi_triplet_to_col",
    "umfpack_ci_triplet_to_col_Idx",
    "umfpack_di_col_to_triplet",
    "umfpack_si_col_to_triplet_Idx",
    "umfpack_zi_col_to_triplet",
    "umfpack_ci_col_to_triplet_Idx",
    "umfpack_di_transpose",
    "umfpack_si_transpose_Idx",
    "umfpack_zi_transpose",
    "umfpack_ci_transpose_Idx",
    "umfpack_di_report_status",
    "umfpack_si_report_status_Idx",
    "umfpack_zi_report_status",
    "umfpack_ci_report_status_Idx",
    "umfpack_di_report_info",
    "umfpack_si_report_info_Idx",
    "umfpack_zi_report_info",
    "umfpack_ci_report_info_Idx",
    "umfpack_di_report_control",
    "umfpack_si_report_control_Idx",
    "umfpack_zi_report_control",
    "umfpack_ci_report_control_Idx",
    "umfpack_di_report_matrix",
    "umfpack_si_report_matrix_Idx",
    "umfpack_zi_report_matrix",
    "umfpack_ci_report_matrix_Idx",
    "umfpack_di_report_triplet",
    "umfpack_si_report_triplet_Idx",
    "umfpack_zi_report_triplet",
    "umfpack_ci_report_triplet_Idx",
    "umfpack_di_report_vector",
    "umfpack_si_report_vector_Idx",
    "umfpack_zi_report_vector",
    "umfpack_ci_report_vector_Idx",
    "umfpack_di_report_symbolic",
    "umfpack_si_report_symbolic_Idx",
    "umfpack_zi_report_symbolic",
    "umfpack_ci_report_symbolic_Idx",
    "umfpack_di_report_numeric",
    "umfpack_si_report_numeric_Idx",
    "umfpack_zi_report_numeric",
    "umfpack_ci_report_numeric_Idx",
    "umfpack_di_report_perm",
    "umfpack_si_report_perm_Idx",
    "umfpack_zi_report_perm",
    "umfpack_ci_report_perm_Idx",
    "umfpack_tic",
    "umfpack_tic_32f_Idx",
    "umfpack_toc",
    "umfpack_toc_32f_Idx",
    "umfpack_timer",
};

/* Behind the struct's other members there is nothing but the pointers. */
typedef char quorin_loader_layout[sizeof(quorin_library) ==
                                          2 * sizeof(void*) + QUORIN_EXPORT_COUNT * sizeof(quorin_function)
                                      ? 1
                                      : -1];

int quorin_bind(quorin_finder find, void* context, quorin_library* library) {
  char bytes[sizeof(quorin_library)] = "";
  const char* first = NULL;
  size_t i, place = 2 * sizeof(void*);
  int missing = 0;
  for (i = 0; i < QUORIN_EXPORT_COUNT; ++i, place += sizeof(quorin_function)) {
    const quorin_function function = find(context, quorin_export_names[i]);
    memcpy(bytes + place, &function, sizeof function);
    if (function) continue;
    if (!first) first = quorin_export_names[i];
    ++missing;
  }
  memcpy(library, bytes, sizeof bytes);
  library->module = NULL;
  library->missing = first;
  return missing;
}

/* Copies instead of casts, which each language would write in its own way. */
static quorin_function quorin_loader_find(void* module, const char* name) {
  quorin_function function;
#if defined(_WIN32)
  HMODULE handle;
  FARPROC found;
  memcpy(&handle, &module, sizeof handle);
  found = GetProcAddress(handle, name);
#else
  void* const found = dlsym(module, name);
#endif
  memcpy(&function, &found, sizeof function);
  return function;
}

int quorin_load(const char* path, quorin_library* library) {
  const char* const file = path ? path : QUORIN_LIBRARY_NAME;
  int missing = -1;
#if defined(_WIN32)
  void* const module = LoadLibraryA(file);
#else
  void* const module = dlopen(file, RTLD_NOW | RTLD_LOCAL);
#endif
  memset(library, 0, sizeof *library);
  if (module) {
    missing = quorin_bind(quorin_loader_find, module, library);
    library->module = module;
  }
  return missing;
}

void quorin_unload(quorin_library* library) {
#if defined(_WIN32)
  HMODULE handle;
  memcpy(&handle, &library->module, sizeof handle);
  if (handle) FreeLibrary(handle);
#else
  if (library->module) dlclose(library->module);
#endif
  memset(library, 0, sizeof *library);
}

#endif
