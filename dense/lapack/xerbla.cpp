// The name under which the BLAS and LAPACK dependencies report a wrong argument.
#include <cstddef>

#include "dense/lapack/call_guard.hpp"

extern "C" {

// Fortran callers append the length of the name themselves.
void xerbla_(const char* srname, const int* info, std::size_t length);

void xerbla_(const char* srname, const int* info, std::size_t length) {
  quorin::dense::LapackCall::report(srname, static_cast<int>(length), *info);
}
}
