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

#endif
