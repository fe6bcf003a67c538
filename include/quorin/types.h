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

#endif
