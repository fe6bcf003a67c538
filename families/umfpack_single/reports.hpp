// Reports go through the library's text output, in pieces of one format call each. At print level 2 and below, the
// reports of arrays and objects print and check nothing.
#pragma once

#include "families/umfpack_single/conversions.hpp"

namespace quorin::umfpack_single {

inline constexpr int kMainVersion = 5, kSubVersion = 1, kSubSubVersion = 0;
inline constexpr const char* kVersionDate = "May 31, 2007";

// UMFPACK's print function: its texts as they are, save that they name this interface's version and type of
// entry, and that values are printed as the floats that they are to the host.
int print_for_umfpack(const char* format, ...) noexcept;

template <class E>
[[nodiscard]] int report_matrix(int n_row, int n_col, const Matrix& A, int col_form, const float* Control);
template <class E>
[[nodiscard]] int report_triplet(int n_row, int n_col, const Triplets& T, const float* Control);
template <class E>
[[nodiscard]] int report_vector(int n, FloatInput X, const float* Control);

}  // namespace quorin::umfpack_single
