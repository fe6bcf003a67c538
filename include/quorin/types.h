/* Types and calling conventions of the public headers. Valid C99 and C++. */
#ifndef QUORIN_TYPES_H
#define QUORIN_TYPES_H

#include <stdint.h>

#if defined(_WIN32)
#if defined(QUORIN_NO_IMPORT)
#define QUORIN_API
#else
#define QUORIN_API __declspec(dllimport)
#endif
#define QUORIN_CDECL __cdecl
#define QUORIN_CALLBACK __stdcall
#else
#define QUORIN_API
#define QUORIN_CDECL
#define QUORIN_CALLBACK
#endif

/* Two consecutive floats or doubles, real part first: the layout of C's float _Complex and C++'s std::complex. */
typedef struct quorin_complex {
  float re, im;
} quorin_complex;

typedef struct quorin_double_complex {
  double re, im;
} quorin_double_complex;

/* A host function that receives one zero-terminated text. On Windows it is stdcall. */
typedef void(QUORIN_CALLBACK* quorin_text_output_callback)(const char* text);

/* Host functions that select eigenvalues: non-zero for one that is to lead. They get an eigenvalue as its real and its
 * imaginary part, or as a complex number; in generalized problems (`_pair`) as alpha and beta of alpha / beta. */
typedef int32_t(QUORIN_CDECL* quorin_select_real)(const float* re, const float* im);
typedef int32_t(QUORIN_CDECL* quorin_select_complex)(const quorin_complex* w);
typedef int32_t(QUORIN_CDECL* quorin_select_real_pair)(const float* alpha_re, const float* alpha_im, const float* beta);
typedef int32_t(QUORIN_CDECL* quorin_select_complex_pair)(const quorin_complex* alpha, const quorin_complex* beta);

/* Host functions that compute the m values f of a function of the n values x. They leave m, n and x as they are. */
typedef void(QUORIN_CDECL* quorin_vector_function)(int32_t* m, int32_t* n, float* x, float* f);
typedef void(QUORIN_CDECL* quorin_vector_function_with_data)(int32_t* m, int32_t* n, float* x, float* f,
                                                             void* user_data);

/* The compressed-column matrix of the TAUCS routines. Column j has the entries colptr[j], ..., colptr[j + 1] - 1 of rowind
 * (zero-based) and values, in any order; colptr[0] is 0. A symmetric or Hermitian matrix holds one triangle with its
 * diagonal, the lower one. */
typedef struct taucs_ccs_matrix {
  int32_t n; /* columns */
  int32_t m; /* rows */
  int32_t flags;
  int32_t* colptr; /* n + 1 */
  int32_t* rowind; /* colptr[n] */
  union {
    void* v;
    double* d;
    quorin_double_complex* z;
  } values; /* colptr[n] */
} taucs_ccs_matrix;

/* The bits of taucs_ccs_matrix.flags. Matrices come with elements of TAUCS_DOUBLE and TAUCS_DCOMPLEX only. */
enum {
  TAUCS_LOWER = 1, /* only the lower triangle is stored */
  TAUCS_UPPER = 2, /* only the upper triangle is stored */
  TAUCS_TRIANGULAR = 4,
  TAUCS_SYMMETRIC = 8,
  TAUCS_HERMITIAN = 16,
  TAUCS_PATTERN = 32,
  TAUCS_INT = 1024,
  TAUCS_DOUBLE = 2048,
  TAUCS_SINGLE = 4096,
  TAUCS_DCOMPLEX = 8192,
  TAUCS_SCOMPLEX = 16384
};

#endif
