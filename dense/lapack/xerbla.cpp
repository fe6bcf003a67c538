// The name under which the BLAS and LAPACK dependencies report a wrong argument.
#include <cstddef>

#include "base/argument_error.hpp"

extern "C" {

// Fortran callers append the length of the name themselves.
void xerbla_(const char* srname, const int* info, std::size_t length);

void xerbla_(const char* srname, const int* info, std::size_t length) {
  quorin::base::report_argument_error(srname, static_cast<int>(length), *info);
}
}
