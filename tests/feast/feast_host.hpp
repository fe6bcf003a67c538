// Eigenproblems as hosts pass them, and what has to hold of the answers.
#pragma once

#include "tests/support/sparse.hpp"
#include "tests/support/test.hpp"

namespace feast_test {

using quorin::test::SparseMatrix;
using Complex = std::complex<float>;
using Wide = std::complex<double>;

// The lower triangles, with values that are floats; no entries of B for a standard problem.
struct Problem {
  std::string name;
  SparseMatrix A, B;

  int n() const { return A.rows; }
  bool is_complex() const { return A.is_complex || B.is_complex; }
  bool is_generalized() const { return !B.entries.empty(); }
};

// Adds up entries of the same place and rounds them to floats, so that the oracle sees what the library does.
Problem make_problem(std::string name, SparseMatrix A, SparseMatrix B = {});

// y = M x for a lower triangle.
std::vector<Wide> multiply(const SparseMatrix& M, const std::vector<Wide>& x);

// All eigenvalues, ascending, by LAPACK in double precision.
std::vector<double> all_eigenvalues(const Problem& problem);

// Arrays of a matrix as the routines take them. Imaginary parts are dropped for a real routine.
template <class T>
struct Csr {
  std::vector<T> values;
  std::vector<std::int32_t> starts, columns;
};
template <class T>
Csr<T> csr(const SparseMatrix& lower, char uplo);

// Arguments, with room for results, and the results.
struct Call {
  Call(double low, double high, int room) : emin(static_cast<float>(low)), emax(static_cast<float>(high)), m0(room) {
    defaults();
  }
  void defaults();
  std::int32_t& parameter(int number) { return fpm[static_cast<std::size_t>(number - 1)]; }
  double scale() const { return std::max(std::fabs(double{emin}), std::fabs(double{emax})); }

  char uplo = 'L';
  std::vector<std::int32_t> fpm;
  float emin, emax;
  std::int32_t m0;
  float epsout = -7;
  std::int32_t loop = -7, m = -7, info = -7;
  std::vector<float> e, res;
  std::vector<Complex> x;  // n x m0
  std::vector<Complex> guess;
};

// Calls the index form for the problem's kind; a real problem may also be solved as a complex one.
void solve(const Problem& problem, Call& call, bool as_complex);
inline void solve(const Problem& problem, Call& call) { solve(problem, call, problem.is_complex()); }

// The m pairs of a call that ended with status 0, 1 or 2 are right: eigenvalues within 4 roundoffs of floats times the
// largest of the problem, orthonormal vectors, small residuals. With status 0 or 1 there are as many as LAPACK finds.
void expect_right(const Problem& problem, const Call& call, const std::vector<double>& eigenvalues);

// ---- Problems -------------------------------------------------------------------------------------------------------

// 2 on, -1 off the diagonal.
SparseMatrix second_difference(int n);
// The graph's Laplacian of a grid of a x b x c points with Dirichlet ends.
SparseMatrix laplacian(int a, int b, int c);
// A grid of a x b points where a round trip of a cell picks up the phase `flux`.
SparseMatrix magnetic_lattice(int a, int b, double flux);
SparseMatrix diagonal(const std::vector<double>& values);
// D M D^H for D = diag(i^k).
SparseMatrix turned(const SparseMatrix& M);
// Random entries, Hermitian if it is complex, about `degree` in a row.
SparseMatrix random_matrix(int n, double degree, bool is_complex, std::mt19937& random);
// Positive definite, of condition about 10^decades.
SparseMatrix random_definite(int n, double degree, double decades, bool is_complex, std::mt19937& random);

}  // namespace feast_test
