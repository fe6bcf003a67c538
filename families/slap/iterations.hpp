// The iterations. Each starts from x, leaves its result there, and tells how it ended through the Progress.
//
// `vectors` is scratch, in vectors of n floats. The residual is r = b - A x throughout.
#pragma once

#include "families/slap/column_matrix.hpp"
#include "families/slap/preconditioner.hpp"
#include "families/slap/progress.hpp"

namespace quorin::slap {

// T is the type of an iteration's vectors.
template <class T>
struct System {
  const ColumnMatrix& matrix;
  const Preconditioner<T>& preconditioner;
  const Preconditioner<T>& transposed;  // M^-T, which only BiCG uses
  const float* b;
  float* x;

  int n() const { return matrix.n; }
  // r <- b - A x
  void residual(T* r) const {
    matrix.multiply(x, r);
    for (int i = 0; i < matrix.n; ++i) r[i] = b[i] - r[i];
  }
  // z <- M^-1 r; z may be r.
  void precondition(const T* r, T* z) const { preconditioner.solve(r, z); }
};

// Conjugate gradients for symmetric positive definite A and M: M. R. Hestenes, E. Stiefel, J. Res. NBS 49 (1952)
// 409-436. 3 vectors. Breakdown: 5, (z, r) <= 0, M is not positive definite; 6, (p, A p) <= 0, A is not.
void conjugate_gradients(const System<float>& system, Progress& progress, float* vectors);

// The iterations below run in legs (progress.hpp): when the residual of the recurrence passes the test, it is computed
// anew, and the next leg goes on from that if it does not pass. Otherwise rounding would let the two drift apart.

// Conjugate gradients for A A^T y = b with x = A^T y, M near A A^T: E. J. Craig, J. Math. Phys. 34 (1955) 64-73; Saad,
// section 8.3.2. 7 vectors, for three of doubles and the digits that x lacks: the condition is squared, and in single
// precision rounding would cost iterations. Breakdown: 5, (z, r) <= 0; 6, A^T p = 0, A is singular.
void normal_equations(const System<double>& system, Progress& progress, float* vectors);

// Biconjugate gradients for a general A: R. Fletcher, Conjugate gradient methods for indefinite systems, Lecture Notes
// in Mathematics 506 (1976) 73-89. 6 vectors. A leg also ends when the residual and its shadow have become orthogonal
// but for rounding; in single precision that is common. Breakdown in the first step of a leg: 5, (z, r) = 0; in any: 6,
// (pp, A p) = 0.
void biconjugate_gradients(const System<float>& system, Progress& progress, float* vectors);

// Conjugate gradients squared: P. Sonneveld, SIAM J. Sci. Stat. Comput. 10 (1989) 36-52. 7 vectors. Legs as above.
// Breakdown in the first step of a leg: 5, r = 0; 6, (r, A M^-1 r) = 0.
void conjugate_gradients_squared(const System<float>& system, Progress& progress, float* vectors);

// Generalised minimal residuals with restarts after `length` >= 1 steps: Y. Saad, M. H. Schultz, SIAM J. Sci. Stat.
// Comput. 7 (1986) 856-869. length + 2 vectors, then length (length + 3) + 1 entries. It makes least what is tested:
// ||M^-1 r|| for ITOL = 2, else ||r||. Breakdown: 5, A is singular or not finite.
void minimal_residuals(const System<float>& system, int length, Progress& progress, float* vectors);

// Orthomin(length), length >= 0: P. K. W. Vinsome, Orthomin, an iterative method for solving sparse sets of
// simultaneous linear equations, SPE 5729 (1976). A p is made orthogonal to the last `length` directions' A p, and each
// step makes ||r|| least along p. 2 length + 3 vectors, then `length` entries. Breakdown: 5, A p = 0; 6, (r, A p) = 0.
void orthomin(const System<float>& system, int length, Progress& progress, float* vectors);

// x <- x + M^-1 (b - A x): Jacobi's and Gauss and Seidel's iterations, refinement with incomplete factors. 2 vectors.
// No breakdown.
void refinement(const System<float>& system, Progress& progress, float* vectors);

}  // namespace quorin::slap
