// Preconditioned iterative solvers for sparse systems A x = b in single precision, the matrix in triads or columns.
//
// Literature: A. Greenbaum, M. Seager, SLAP: Sparse Linear Algebra Package, user's guide, UCRL-100195, Lawrence
// Livermore National Laboratory 1988; the methods' own sources stand in the files of the iterations and in README.md.
#pragma once

namespace quorin::slap {

// Brings a matrix of triads (row ia, column ja, value a, one-based, in any order) to the column format: ja(j) becomes
// the place of column j's first entry, ja(n+1) = nelt + 1, ja(n+2) = 0; the diagonal stands first in its column, then
// rows ascend. ja holds max(nelt, n + 2) entries. A matrix with ja(n+1) = nelt + 1 is taken as converted and left
// alone. Repeated entries stay. Every column must hold an entry, or columns come out wrong (never out of bounds).
void to_column_format(int n, int nelt, int* ia, int* ja, float* a, const int* isym);

// Reads nothing and prints nothing.
void print_structure(const int* n, const int* nelt, const int* ia, const int* ja, const float* a, const int* isym,
                     const int* iunit);

enum class Iteration { kCg, kCgNormal, kBicg, kCgs, kGmres, kOrthomin, kRefinement };
enum class Preconditioning { kDiagonal, kLowerTriangle, kIncompleteCholesky, kIncompleteLu };

struct Method {
  Iteration iteration;
  Preconditioning preconditioning;
};

// The solvers, called like functions. isym != 0: only the lower triangle of a symmetric matrix is stored. x: start
// vector and result. itol, tol, err: the stopping test, see the manual. *iter: iterations done, or itmax + 1. *ierr: 0
// converged; 2 not converged; 3 bad input; 4 tol was raised; 5, 6 breakdown. rwork and iwork are as long as the manual
// says, which is not checked; what remains in them only SSICCGC uses again.
struct Solver : Method {
  void operator()(int n, const float* b, float* x, int nelt, int* ia, int* ja, float* a, int isym, int itol, float* tol,
                  int itmax, int* iter, float* err, int* ierr, const int* iunit, float* rwork, const int* lenw,
                  int* iwork, const int* leniw) const;
};

// With the number of direction vectors that the iteration keeps.
struct DirectionsSolver : Method {
  void operator()(int n, const float* b, float* x, int nelt, int* ia, int* ja, float* a, int isym, int nsave, int itol,
                  float* tol, int itmax, int* iter, float* err, int* ierr, const int* iunit, float* rwork,
                  const int* lenw, int* iwork, const int* leniw) const;
};

// With ifact: 0 takes the preconditioner that an earlier call for the same matrix left in rwork and iwork.
struct ReusingSolver : Method {
  void operator()(int n, const float* b, float* x, int nelt, int* ia, int* ja, float* a, int isym, int itol, float* tol,
                  int itmax, int* iter, float* err, int* ierr, const int* iunit, float* rwork, const int* lenw,
                  int* iwork, const int* leniw, int ifact) const;
};

inline constexpr Solver ssdcg{{Iteration::kCg, Preconditioning::kDiagonal}};
inline constexpr Solver ssiccg{{Iteration::kCg, Preconditioning::kIncompleteCholesky}};
inline constexpr ReusingSolver ssiccgc{{Iteration::kCg, Preconditioning::kIncompleteCholesky}};
inline constexpr Solver ssdcgn{{Iteration::kCgNormal, Preconditioning::kDiagonal}};
inline constexpr Solver sslucn{{Iteration::kCgNormal, Preconditioning::kIncompleteLu}};
inline constexpr Solver ssdbcg{{Iteration::kBicg, Preconditioning::kDiagonal}};
inline constexpr Solver sslubc{{Iteration::kBicg, Preconditioning::kIncompleteLu}};
inline constexpr Solver ssdcgs{{Iteration::kCgs, Preconditioning::kDiagonal}};
inline constexpr Solver sslucs{{Iteration::kCgs, Preconditioning::kIncompleteLu}};
inline constexpr DirectionsSolver ssdgmr{{Iteration::kGmres, Preconditioning::kDiagonal}};
inline constexpr DirectionsSolver sslugm{{Iteration::kGmres, Preconditioning::kIncompleteLu}};
inline constexpr DirectionsSolver ssdomn{{Iteration::kOrthomin, Preconditioning::kDiagonal}};
inline constexpr DirectionsSolver ssluom{{Iteration::kOrthomin, Preconditioning::kIncompleteLu}};
inline constexpr Solver ssjac{{Iteration::kRefinement, Preconditioning::kDiagonal}};
inline constexpr Solver ssgs{{Iteration::kRefinement, Preconditioning::kLowerTriangle}};
inline constexpr Solver ssilur{{Iteration::kRefinement, Preconditioning::kIncompleteLu}};

}  // namespace quorin::slap
