// FEAST: all eigenvalues of a sparse symmetric or Hermitian eigenproblem in an interval. Arguments, parameters and
// statuses are told in exports/tables/feast.table.
#pragma once

#include <complex>
#include <cstdint>

#include "base/scalar.hpp"

namespace quorin::feast {

void init(std::int32_t* fpm) noexcept;

// A x = lambda x. T is float or std::complex<float>.
template <Scalar T>
void solve_standard(const char* uplo, const int* n, const T* a, const int* ia, const int* ja, std::int32_t* fpm,
                    float* epsout, int* loop, const float* emin, const float* emax, int* m0, float* e, T* x, int* m,
                    float* res, int* info) noexcept;

// A x = lambda B x.
template <Scalar T>
void solve_generalized(const char* uplo, const int* n, const T* a, const int* ia, const int* ja, const T* b,
                       const int* ib, const int* jb, std::int32_t* fpm, float* epsout, int* loop, const float* emin,
                       const float* emax, int* m0, float* e, T* x, int* m, float* res, int* info) noexcept;

}  // namespace quorin::feast
