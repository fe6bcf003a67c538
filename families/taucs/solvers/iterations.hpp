// Krylov methods for symmetric and Hermitian matrices of which one triangle is stored, with a preconditioner.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// x <- M^-1 b, with what belongs to M at `factor`. Anything but 0 ends the iteration.
using PreconditionerFunction = std::int32_t (*)(void* factor, void* x, const void* b);

// One that is called with the library's floating-point settings, or none.
struct Preconditioner {
  PreconditionerFunction apply = nullptr;
  void* factor = nullptr;
};

// When an iteration stops: after `most_steps`, or when ||b - A x|| <= tolerance ||b||.
struct Stopping {
  int most_steps;
  double tolerance;
};

// X <- A^-1 B for one right-hand side, from X = 0. B is read until the end and does not overlap X.
// - kSuccess: the residual, computed from x anew, is small enough.
// - kIterationLimit: X is the last iterate.
// - kBreakdown: A (for conjugate gradients) or M is not positive definite, or A is singular; X is the last iterate.
// - kNotFinite: NaN or infinity came up; X is nothing.
// - kError: the preconditioner failed. kErrorNomem. kErrorBadargs: a null, a matrix that is not square, has an entry
//   outside, or is neither symmetric nor Hermitian with its lower triangle stored, or complex and symmetric.
//
// M. R. Hestenes, E. Stiefel, Methods of conjugate gradients for solving linear systems, J. Res. Nat. Bur. Standards 49
// (1952) 409-436. A positive definite. Memory: 4 n elements.
Status conjugate_gradients(const CcsMatrix* A, const Preconditioner& M, void* X, const void* B,
                           const Stopping& stopping) noexcept;
// C. C. Paige, M. A. Saunders, Solution of sparse indefinite systems of linear equations, SIAM J. Numer. Anal. 12
// (1975) 617-629. M positive definite. Memory: 7 n elements.
Status minres(const CcsMatrix* A, const Preconditioner& M, void* X, const void* B, const Stopping& stopping) noexcept;

// For hosts: the function, which may be null, runs with the host's floating-point settings. The status as an integer.
std::int32_t conjugate_gradients(const CcsMatrix* A, PreconditionerFunction precond_fn, void* precond_args, void* X,
                                 const void* B, std::int32_t itermax, double convergetol) noexcept;
std::int32_t minres(const CcsMatrix* A, PreconditionerFunction precond_fn, void* precond_args, void* X, const void* B,
                    std::int32_t itermax, double convergetol) noexcept;

}  // namespace quorin::taucs
