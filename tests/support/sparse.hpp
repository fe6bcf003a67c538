// Sparse matrices for tests and benchmarks: made, read from files, and written as the arrays that hosts pass. It shares
// no code with the library, so that what this reader reads is an oracle for the library's readers.
#pragma once

#include "tests/support/standard.hpp"

namespace quorin::test {

struct Entry {
  int row, column;  // zero-based
  std::complex<double> value;
};

struct SparseMatrix {
  std::string name;
  int rows = 0, columns = 0;
  std::vector<Entry> entries;  // in any order; those of the same place add up
  bool is_complex = false;

  // Enlarges the matrix if need be.
  void add(int row, int column, std::complex<double> value = 1.0);
  // Adds the mirror image of each entry off the diagonal, `mirrored(value)`.
  void mirror(const std::function<std::complex<double>(std::complex<double>)>& mirrored = std::identity());
};

// The entries by columns or by rows, ascending, those of the same place added up.
struct CompressedArrays {
  std::vector<int> starts, indices;
  std::vector<double> re, im;  // im is empty for a real matrix
};
CompressedArrays compressed_columns(const SparseMatrix& A, int base = 0);
CompressedArrays compressed_rows(const SparseMatrix& A, int base = 0);

// --- Made ------------------------------------------------------------------------------------------------------------

// Ones in the lower triangle for a x b x c points, each joined to those at a distance of 1, or, with `corners`, to
// those whose coordinates differ by at most 1.
SparseMatrix grid(int a, int b, int c, bool corners = false);

// Five-point differences for -laplace u + wind (u_x + u_y / 2) on k x k inner points of the unit square, upwind.
SparseMatrix convection_diffusion(int k, double wind);

// Five-point differences of convection and diffusion on side x side points, central, barely dominant.
SparseMatrix central_convection(int side);

// About `density` n^2 entries from [-1, 1]; each diagonal entry is positive and more than `dominance` times the sum of
// the others of its row, by magnitude. Symmetric (with dominance 1 positive definite) or not.
SparseMatrix random_dominant(int n, double density, double dominance, bool is_symmetric, std::mt19937& random);

// --- Read ------------------------------------------------------------------------------------------------------------

// All throw std::runtime_error for a file that they cannot read.

// A line for each entry: row, column, value, perhaps an imaginary part; with comments (%) and, where indices begin at 1
// as in the Matrix Market's format, a line of sizes first, which is passed over.
SparseMatrix read_triplets(const std::string& path, int base = 0);

// Harwell-Boeing; `type` receives the three letters of the kind, if it is asked for. Of a symmetric matrix the stored
// triangle, of a pattern ones.
SparseMatrix read_harwell_boeing(const std::string& path, std::string* type = nullptr);

// The square matrices that come with the dependencies, with values that are made up where a file has none.
std::vector<SparseMatrix> from_applications(const std::string& directory);

// --- Measured --------------------------------------------------------------------------------------------------------

// Entries of the Cholesky factor, diagonal included, of a symmetric n x n matrix whose lower triangle's columns are
// given, its rows and columns in the order of permutation[0], permutation[1], ...
double factor_entries(int n, const int* starts, const int* rows, const int* permutation);

}  // namespace quorin::test
