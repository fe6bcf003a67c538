// Levinson's recursion for a general Toeplitz system, with everything between input and solution in double precision.
#pragma once

#include <complex>

namespace quorin::signal {

// Solves T x = b for the m by m Toeplitz matrix with T(i, j) = row[j - i] for j >= i and column[i - j - 1] for i > j.
//
//   row[m]              the first row
//   column[m - 1]       the first column from its second element on
//   b[m], x[m]          may be the same array
//   work1, work2[m - 1] used only if the library's allocator has no memory; left alone otherwise
//
// All leading minors must be nonsingular: the recursion passes through each of them. If one is singular to working
// precision (its pivot has lost all digits), x is filled with NaN and nothing is divided by zero.
// The vectors of the recursion are kept in double precision, so what is lost is one rounding of each x(i) and, for a
// matrix whose leading minors are all well conditioned up to `c`, about m c 2^-53. Without memory for that they are
// kept in the element type, with products still summed in double. Cost: 3 m^2 multiplications and 5 m doubles (or
// double complexes) of workspace. m <= 0 does nothing. Source: Golub & Van Loan, Matrix Computations, 4th ed., 4.7
// (bordering by forward and backward vectors for an unsymmetric matrix: 4.7.7; Zohar, J. ACM 21 (1974) 272-276).
template <class T>
void solve_toeplitz(const T* row, const T* column, const T* b, T* x, T* work1, T* work2, int m) noexcept;

extern template void solve_toeplitz(const float*, const float*, const float*, float*, float*, float*, int) noexcept;
extern template void solve_toeplitz(const std::complex<float>*, const std::complex<float>*, const std::complex<float>*,
                                    std::complex<float>*, std::complex<float>*, std::complex<float>*, int) noexcept;

}  // namespace quorin::signal
