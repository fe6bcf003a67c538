// QR factorization of dense matrices by recursion, so that nearly all of the work is large products.
// T is float or std::complex<float>.
//
// Sources: E. Elmroth, F. G. Gustavson, Applying recursion to serial and parallel QR factorization leads to better
// performance, IBM J. Res. Dev. 44 (2000) 605-624; R. Schreiber, C. Van Loan, A storage-efficient WY representation for
// products of Householder transformations, SIAM J. Sci. Stat. Comput. 10 (1989) 53-57.
#pragma once

#include <complex>
#include <cstdint>

#include "base/scalar.hpp"

namespace quorin::dense {

// A = Q R of an m-by-n matrix (column-major), with the arguments, results and `info` of LAPACK's xGEQRF. R replaces the
// upper triangle of A. Q is the product of k = min(m, n) reflectors H_j = I - tau[j] v v^H, where v has zeros above its
// element j, 1 there, and the rest stands below the diagonal of column j.
//
// lwork >= max(1, n) (1 if m = 0), or -1 to ask for the best size, which comes back in work[0]. `work` serves nothing
// else: blocks are kept in memory of the library's own, without which the reflectors are applied one by one. A wrong
// argument is reported by its position i through base::report_argument_error and as *info = -i, and nothing else is
// touched. The products use several threads when they are large enough.
template <Scalar T>
void geqrf(int m, int n, T* a, int lda, T* tau, T* work, int lwork, std::int32_t* info) noexcept;

}  // namespace quorin::dense
