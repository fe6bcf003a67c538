// The magnitude of a complex float for LAPACK, which takes it of every element of an eigenvector: some C libraries
// scale for that, though squares of floats neither overflow nor underflow in double precision.
#include <cmath>
#include <limits>

extern "C" float cabsf(__complex__ float z) noexcept;

float cabsf(__complex__ float z) noexcept {
  const float re = __real__ z, im = __imag__ z;
  if (std::isinf(re) || std::isinf(im)) return std::numeric_limits<float>::infinity();  // beside a NaN, too
  const double x = re, y = im;
  return static_cast<float>(std::sqrt(x * x + y * y));
}
