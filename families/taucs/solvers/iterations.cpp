#include "families/taucs/solvers/iterations.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/sums.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"
#include "families/taucs/products.hpp"
#include "families/taucs/vectors.hpp"
#include "platform/floating_point.hpp"

namespace quorin::taucs {
namespace {

// The system, and what both methods do with vectors of it. All inner products that they take are real in exact
// arithmetic, so that only the real part of x^H y is computed: that is a product of real vectors.
template <Element T>
class System {
 public:
  System(const CcsMatrix& A, const Preconditioner& M, const T* b, double tolerance)
      : A_(A), M_(M), b_(b), parts_(static_cast<std::size_t>(A.n) * kParts<T>), goal_(tolerance * norm(b)) {}

  int n() const { return A_.n; }
  const T* b() const { return b_; }
  double norm(const T* x) const { return base::norm(parts_, numbers(x)); }
  double dot(const T* x, const T* y) const { return base::dot(parts_, numbers(x), numbers(y)); }

  void multiply(const T* x, T* y) const { times_vec(&A_, x, y); }
  // z <- M^-1 r; whether that succeeded.
  bool precondition(const T* r, T* z) const {
    if (M_.apply != nullptr) return M_.apply(M_.factor, z, r) == 0;
    std::copy_n(r, n(), z);
    return true;
  }
  // r <- b - A x; its norm.
  double residual(const T* x, T* r) const {
    multiply(x, r);
    axpby(n(), 1, b_, -1, r, r);
    return norm(r);
  }
  bool is_small(double residual) const { return residual <= goal_ && std::isfinite(goal_); }
  double goal() const { return goal_; }

 private:
  static const double* numbers(const T* x) { return reinterpret_cast<const double*>(x); }

  const CcsMatrix& A_;
  const Preconditioner& M_;
  const T* b_;
  std::size_t parts_;
  double goal_;
};

// x <- x + a y
template <Element T>
void add(int n, double a, const T* y, T* x) {
  axpby(n, 1, x, a, y, x);
}

// The residual r is kept by its recurrence. Where that is small enough and b - A x is not, the method begins anew with
// b - A x.
template <Element T>
struct ConjugateGradients {
  static constexpr int kVectors = 4;

  static Status solve(const System<T>& system, T* x, T* vectors, int most_steps) {
    const int n = system.n();
    T *const r = vectors, *const z = r + n, *const p = z + n, *const q = p + n;
    std::copy_n(system.b(), n, r);
    double old_rz = std::numeric_limits<double>::infinity();  // so that the first direction is z
    std::fill_n(p, n, T{});
    for (int step = 0;; ++step) {
      if (system.is_small(system.norm(r))) {
        if (system.is_small(system.residual(x, r))) return Status::kSuccess;
        old_rz = std::numeric_limits<double>::infinity();
      }
      if (step >= most_steps) return Status::kIterationLimit;
      if (!system.precondition(r, z)) return Status::kError;
      const double rz = system.dot(r, z);
      if (!std::isfinite(rz)) return Status::kNotFinite;
      if (rz <= 0) return Status::kBreakdown;
      axpby(n, 1, z, rz / old_rz, p, p);
      old_rz = rz;
      system.multiply(p, q);
      const double pq = system.dot(p, q);
      if (!std::isfinite(pq)) return Status::kNotFinite;
      if (pq <= 0) return Status::kBreakdown;
      add(n, rz / pq, p, x);
      add(n, -rz / pq, q, r);
    }
  }
};

// Lanczos vectors v with M^-1-orthonormal M v, and the QR factorization of the tridiagonal matrix by plane rotations
// (c, s). What is small along the way is the residual in the norm of M^-1, `phi_bar`; when it has shrunk by the
// tolerance, b - A x is looked at, and again each time when it has shrunk further by what was still missing.
template <Element T>
struct Minres {
  static constexpr int kVectors = 7;

  static Status solve(const System<T>& system, T* x, T* vectors, int most_steps) {
    const int n = system.n();
    T *r1 = vectors, *r2 = r1 + n, *y = r2 + n, *w1 = y + n, *w2 = w1 + n, *w = w2 + n;
    T* const v = w + n;
    if (system.is_small(system.norm(system.b()))) return Status::kSuccess;
    std::copy_n(system.b(), n, r2);
    std::fill_n(r1, n, T{});
    std::fill_n(w, n, T{});
    std::fill_n(w2, n, T{});
    if (!system.precondition(r2, y)) return Status::kError;
    double old_beta = 0, square = system.dot(r2, y), c = -1, s = 0, delta_bar = 0, epsilon = 0;
    if (!std::isfinite(square)) return Status::kNotFinite;
    if (square <= 0) return Status::kBreakdown;
    double beta = std::sqrt(square), phi_bar = beta;
    double checkpoint = phi_bar * system.goal() / system.norm(system.b());

    for (int step = 0; step < most_steps; ++step) {
      axpby(n, 1 / beta, y, 0, y, v);
      system.multiply(v, y);
      if (step > 0) add(n, -beta / old_beta, r1, y);
      const double alpha = system.dot(v, y);
      add(n, -alpha / beta, r2, y);
      std::swap(r1, r2);
      std::swap(r2, y);
      if (!system.precondition(r2, y)) return Status::kError;
      old_beta = beta;
      square = system.dot(r2, y);
      if (!std::isfinite(alpha) || !std::isfinite(square)) return Status::kNotFinite;
      if (square < 0) return Status::kBreakdown;
      beta = std::sqrt(square);

      const double old_epsilon = epsilon, delta = c * delta_bar + s * alpha, gamma_bar = s * delta_bar - c * alpha;
      epsilon = s * beta;
      delta_bar = -c * beta;
      const double gamma = std::hypot(gamma_bar, beta);
      if (gamma == 0) return Status::kBreakdown;
      c = gamma_bar / gamma;
      s = beta / gamma;
      const double phi = c * phi_bar;
      phi_bar *= s;

      std::swap(w1, w2);  // w1, w2, w <- w2, w, (v - old_epsilon w1 - delta w2) / gamma
      std::swap(w2, w);
      axpby(n, -old_epsilon / gamma, w1, -delta / gamma, w2, w);
      add(n, 1 / gamma, v, w);
      add(n, phi, w, x);

      if (phi_bar <= checkpoint || beta == 0) {
        const double residual = system.residual(x, v);
        if (system.is_small(residual)) return Status::kSuccess;
        if (!std::isfinite(residual)) return Status::kNotFinite;
        if (beta == 0) return Status::kBreakdown;
        checkpoint = std::min(phi_bar, checkpoint) * system.goal() / residual;
      }
    }
    return Status::kIterationLimit;
  }
};

template <template <class> class Method>
Status solve(const CcsMatrix* A, const Preconditioner& M, void* X, const void* B, const Stopping& stopping) {
  if (A == nullptr || A->m != A->n || X == nullptr || B == nullptr) return Status::kErrorBadargs;
  if (type_of(A->flags) == Type::kComplex && !A->has(kHermitian)) return Status::kErrorBadargs;
  Status status = Status::kErrorBadargs;
  dispatch(A->flags, [&]<class T>() {
    if (!is_sound_triangle<T>(A)) return;
    const auto n = static_cast<std::size_t>(A->n);
    base::Workspace<T> vectors(base::saturating_product(n, Method<T>::kVectors));
    if (!vectors) {
      status = Status::kErrorNomem;
      return;
    }
    std::fill_n(static_cast<T*>(X), n, T{});
    const System<T> system(*A, M, static_cast<const T*>(B), stopping.tolerance);
    status = Method<T>::solve(system, static_cast<T*>(X), vectors.data(), stopping.most_steps);
  });
  return status;
}

// A function of the host's as the methods call it.
struct HostPreconditioner {
  PreconditionerFunction apply;
  void* factor;

  static std::int32_t call(void* self, void* x, const void* b) {
    const auto* const host = static_cast<const HostPreconditioner*>(self);
    const platform::HostSettings settings;
    return host->apply(host->factor, x, b);
  }
  Preconditioner preconditioner() { return apply != nullptr ? Preconditioner{call, this} : Preconditioner{}; }
};

}  // namespace

Status conjugate_gradients(const CcsMatrix* A, const Preconditioner& M, void* X, const void* B,
                           const Stopping& stopping) noexcept {
  return solve<ConjugateGradients>(A, M, X, B, stopping);
}

Status minres(const CcsMatrix* A, const Preconditioner& M, void* X, const void* B, const Stopping& stopping) noexcept {
  return solve<Minres>(A, M, X, B, stopping);
}

std::int32_t conjugate_gradients(const CcsMatrix* A, PreconditionerFunction precond_fn, void* precond_args, void* X,
                                 const void* B, std::int32_t itermax, double convergetol) noexcept {
  HostPreconditioner host{precond_fn, precond_args};
  return static_cast<std::int32_t>(conjugate_gradients(A, host.preconditioner(), X, B, {itermax, convergetol}));
}

std::int32_t minres(const CcsMatrix* A, PreconditionerFunction precond_fn, void* precond_args, void* X, const void* B,
                    std::int32_t itermax, double convergetol) noexcept {
  HostPreconditioner host{precond_fn, precond_args};
  return static_cast<std::int32_t>(minres(A, host.preconditioner(), X, B, {itermax, convergetol}));
}

}  // namespace quorin::taucs
