// How Fortran passes what C++ passes otherwise.
#pragma once

#include <complex>

namespace quorin::dense {

// A single-complex function result as the Fortran compilers of both targets return it.
using ComplexResult = __complex__ float;

inline ComplexResult complex_result(std::complex<float> z) noexcept {
  ComplexResult result;
  __real__ result = z.real();
  __imag__ result = z.imag();
  return result;
}

}  // namespace quorin::dense
