// Matrix and vector files.
//
// A reader returns a new matrix, or null for a file that cannot be opened, is malformed or cut short, claims more than
// it holds, or does not fit into memory. `flags` is what the caller asks for: the element type (a request without one
// stops the process through the assertion handler) and, where it matters, kSymmetric or kHermitian. Numbers in text are
// separated by blanks or line ends and read independently of the locale. A complex value is two numbers, the real part
// first.
#pragma once

#include <cstdint>

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// Lines "row column value", one-based. Indices may be written as real numbers, which are cut to whole ones. Reading
// ends where no further entry stands; entries are not merged. For a symmetric or Hermitian matrix, entries above the
// diagonal are dropped. The record's n is the largest row kept and m the largest column, the other way round than
// elsewhere; colptr has entries for the larger of the two.
CcsMatrix* ccs_read_ijv(const char* filename, std::int32_t flags) noexcept;

// The same with zero-based indices.
CcsMatrix* ccs_read_ijv_zero_based(const char* filename, std::int32_t flags) noexcept;

// Three integers (rows, columns, entries; not used), then entries as in ccs_read_ijv. Entries off the diagonal get the
// value -1, so that any pattern becomes the matrix of a graph. For a symmetric matrix, entries above the diagonal move
// below it. No banner and no comments.
CcsMatrix* ccs_read_mtx(const char* filename, std::int32_t flags) noexcept;

// n, n + 1 column pointers, row indices, values; zero-based. In a symmetric matrix every row must be at or below the
// diagonal: otherwise the process stops.
CcsMatrix* ccs_read_ccs(const char* filename, std::int32_t flags) noexcept;

// m, n, flags, colptr, rowind, values as they stand in memory, integers of 32 bits, lowest byte first.
CcsMatrix* ccs_read_binary(const char* filename) noexcept;

// Harwell-Boeing files of assembled matrices in Fortran formats of I, F, E, D and G; Rutherford-Boeing files of the
// same types, too. The entries of a pattern become 1. A real matrix is always double; a complex one must be asked for.
// I. S. Duff, R. G. Grimes, J. G. Lewis, Sparse matrix test problems, ACM TOMS 15 (1989) 1-14.
CcsMatrix* ccs_read_hb(const char* filename, std::int32_t flags) noexcept;

// Lines "row column value", one-based, 18 significant digits, which give back the same numbers. In a symmetric matrix
// each entry off the diagonal is followed by its mirror image; a Hermitian one is written as it is stored. Returns 0,
// or -1 if the file cannot be opened or written.
std::int32_t ccs_write_ijv(const CcsMatrix* A, const char* filename) noexcept;

// n elements as they stand in memory; here the flags kSingle and kScomplex are types, too. Null for a file that is too
// short; without a file, zeros.
void* vec_read_binary(std::int32_t n, std::int32_t flags, const char* filename) noexcept;

// Writes over the first n elements of a file; the rest of a longer one stays. Returns 0 whatever happens.
std::int32_t vec_write_binary(std::int32_t n, std::int32_t flags, const void* v, const char* filename) noexcept;

}  // namespace quorin::taucs
