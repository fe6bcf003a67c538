// Products whose rows and columns are added to rows and columns of a larger matrix that need not follow each other.
#pragma once

#include "base/scalar.hpp"

namespace quorin::dense::blocked {

// C <- C - A B', m by n with k terms, the prime being ^T or, if so said, ^H. Row i of the product belongs to row
// rows[i] of C and its column j to column columns[j], both ascending; if is_lower, only i >= j is made. On the calling
// thread; a packing buffer (KernelBuffer, dense/dense.hpp) must be reserved.
//
// An element's bits depend on its row of A, its row of B and k alone. What stands between these rows, from the first
// row of C to the last of them, may be read and written back as it is: nobody else may work on these columns.
template <Scalar T>
void subtract_at_places(bool is_conjugated, bool is_lower, int m, int n, int k, const T* a, int lda, const T* b,
                        int ldb, T* c, int ldc, const int* rows, const int* columns) noexcept;

}  // namespace quorin::dense::blocked
