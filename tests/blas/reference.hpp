// The reference BLAS under its Fortran names: the oracle.
#pragma once

#include "tests/support/standard.hpp"

extern "C" {
using Complex = std::complex<float>;
void sscal_(const std::int32_t*, const float*, float*, const std::int32_t*);
void cscal_(const std::int32_t*, const Complex*, Complex*, const std::int32_t*);
void csscal_(const std::int32_t*, const float*, Complex*, const std::int32_t*);
void srotg_(float*, float*, float*, float*);
}
