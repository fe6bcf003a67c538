// The reference BLAS under its Fortran names: the oracle.
#pragma once

#include <complex>
#include <cstdint>

extern "C" {
using Complex = std::complex<float>;
void sscal_(const std::int32_t*, const float*, float*, const std::int32_t*);
void cscal_(const std::int32_t*, const Complex*, Complex*, const std::int32_t*);
void csscal_(const std::int32_t*, const float*, Complex*, const std::int32_t*);
void saxpy_(const std::int32_t*, const float*, const float*, const std::int32_t*, float*, const std::int32_t*);
void caxpy_(const std::int32_t*, const Complex*, const Complex*, const std::int32_t*, Complex*, const std::int32_t*);
float sdot_(const std::int32_t*, const float*, const std::int32_t*, const float*, const std::int32_t*);
void sswap_(const std::int32_t*, float*, const std::int32_t*, float*, const std::int32_t*);
void scopy_(const std::int32_t*, const float*, const std::int32_t*, float*, const std::int32_t*);
float snrm2_(const std::int32_t*, const float*, const std::int32_t*);
float scnrm2_(const std::int32_t*, const Complex*, const std::int32_t*);
float sasum_(const std::int32_t*, const float*, const std::int32_t*);
float scasum_(const std::int32_t*, const Complex*, const std::int32_t*);
std::int32_t isamax_(const std::int32_t*, const float*, const std::int32_t*);
std::int32_t icamax_(const std::int32_t*, const Complex*, const std::int32_t*);
void csrot_(const std::int32_t*, Complex*, const std::int32_t*, Complex*, const std::int32_t*, const float*,
            const float*);
void crotg_(Complex*, const Complex*, float*, Complex*);
void srotg_(float*, float*, float*, float*);

void sgemv_(const char*, const std::int32_t*, const std::int32_t*, const float*, const float*, const std::int32_t*,
            const float*, const std::int32_t*, const float*, float*, const std::int32_t*);
void cgemv_(const char*, const std::int32_t*, const std::int32_t*, const Complex*, const Complex*, const std::int32_t*,
            const Complex*, const std::int32_t*, const Complex*, Complex*, const std::int32_t*);
void sger_(const std::int32_t*, const std::int32_t*, const float*, const float*, const std::int32_t*, const float*,
           const std::int32_t*, float*, const std::int32_t*);
void cgerc_(const std::int32_t*, const std::int32_t*, const Complex*, const Complex*, const std::int32_t*,
            const Complex*, const std::int32_t*, Complex*, const std::int32_t*);
void ssymv_(const char*, const std::int32_t*, const float*, const float*, const std::int32_t*, const float*,
            const std::int32_t*, const float*, float*, const std::int32_t*);
void chemv_(const char*, const std::int32_t*, const Complex*, const Complex*, const std::int32_t*, const Complex*,
            const std::int32_t*, const Complex*, Complex*, const std::int32_t*);
void cher_(const char*, const std::int32_t*, const float*, const Complex*, const std::int32_t*, Complex*,
           const std::int32_t*);
void cher2_(const char*, const std::int32_t*, const Complex*, const Complex*, const std::int32_t*, const Complex*,
            const std::int32_t*, Complex*, const std::int32_t*);
void ctrmv_(const char*, const char*, const char*, const std::int32_t*, const Complex*, const std::int32_t*, Complex*,
            const std::int32_t*);
void ctrsv_(const char*, const char*, const char*, const std::int32_t*, const Complex*, const std::int32_t*, Complex*,
            const std::int32_t*);
void sgemm_(const char*, const char*, const std::int32_t*, const std::int32_t*, const std::int32_t*, const float*,
            const float*, const std::int32_t*, const float*, const std::int32_t*, const float*, float*,
            const std::int32_t*);
void cgemm_(const char*, const char*, const std::int32_t*, const std::int32_t*, const std::int32_t*, const Complex*,
            const Complex*, const std::int32_t*, const Complex*, const std::int32_t*, const Complex*, Complex*,
            const std::int32_t*);
void ssymm_(const char*, const char*, const std::int32_t*, const std::int32_t*, const float*, const float*,
            const std::int32_t*, const float*, const std::int32_t*, const float*, float*, const std::int32_t*);
void chemm_(const char*, const char*, const std::int32_t*, const std::int32_t*, const Complex*, const Complex*,
            const std::int32_t*, const Complex*, const std::int32_t*, const Complex*, Complex*, const std::int32_t*);
void ssyrk_(const char*, const char*, const std::int32_t*, const std::int32_t*, const float*, const float*,
            const std::int32_t*, const float*, float*, const std::int32_t*);
void csyrk_(const char*, const char*, const std::int32_t*, const std::int32_t*, const Complex*, const Complex*,
            const std::int32_t*, const Complex*, Complex*, const std::int32_t*);
void cherk_(const char*, const char*, const std::int32_t*, const std::int32_t*, const float*, const Complex*,
            const std::int32_t*, const float*, Complex*, const std::int32_t*);
void ssyr2k_(const char*, const char*, const std::int32_t*, const std::int32_t*, const float*, const float*,
             const std::int32_t*, const float*, const std::int32_t*, const float*, float*, const std::int32_t*);
void cher2k_(const char*, const char*, const std::int32_t*, const std::int32_t*, const Complex*, const Complex*,
             const std::int32_t*, const Complex*, const std::int32_t*, const float*, Complex*, const std::int32_t*);
void strmm_(const char*, const char*, const char*, const char*, const std::int32_t*, const std::int32_t*, const float*,
            const float*, const std::int32_t*, float*, const std::int32_t*);
void ctrsm_(const char*, const char*, const char*, const char*, const std::int32_t*, const std::int32_t*,
            const Complex*, const Complex*, const std::int32_t*, Complex*, const std::int32_t*);
}
