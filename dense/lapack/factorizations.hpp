// LU and Cholesky factorizations of dense matrices by recursion, so that nearly all of the work is large products.
// T is float or std::complex<float>.
//
// Matrices are column-major. Arguments, results and `info` are those of LAPACK's xGETRF and xPOTRF: a wrong argument is
// reported by its position i through base::report_argument_error and as *info = -i, and nothing else is touched.
// The products use several threads when they are large enough.
//
// Sources: S. Toledo, Locality of reference in LU decomposition with partial pivoting, SIAM J. Matrix Anal. Appl. 18
// (1997) 1065-1081; F. G. Gustavson, Recursion leads to automatic variable blocking for dense linear-algebra
// algorithms, IBM J. Res. Dev. 41 (1997) 737-756.
#pragma once

#include <complex>
#include <cstdint>

#include "base/scalar.hpp"

namespace quorin::dense {

// A = P L U of an m-by-n matrix: row i was exchanged with row ipiv[i] (1-based). *info > 0: that pivot is exactly zero;
// the factorization is complete, but must not be divided by.
template <Scalar T>
void getrf(int m, int n, T* a, int lda, std::int32_t* ipiv, std::int32_t* info) noexcept;

// A = U^H U or L L^H in the triangle that `uplo` names. *info > 0: the leading minor of that order is not positive.
template <Scalar T>
void potrf(char uplo, int n, T* a, int lda, std::int32_t* info) noexcept;

}  // namespace quorin::dense
