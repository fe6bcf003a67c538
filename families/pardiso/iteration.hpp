// Conjugate gradients and conjugate gradients squared for op(A) x = b, preconditioned by the factors M of a matrix that
// is close to A. They begin at x = 0 and measure dx_i = M^-1 r_i, the step that a refinement would take.
//
// M. R. Hestenes, E. Stiefel, J. Res. NBS 49 (1952); P. Sonneveld, CGS, a fast Lanczos-type solver for nonsymmetric
// linear systems, SIAM J. Sci. Stat. Comput. 10 (1989) 36-52.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>

#include "base/scalar.hpp"
#include "base/workspace.hpp"

namespace quorin::pardiso {

inline constexpr int kIterationLimit = 150;

// Why iparm(20) is negative, as it tells.
enum class IterationFault { kNone = 0, kGrowth = 1, kSlow = 2, kLimit = 3, kPerturbed = 4 };

struct IterationEnd {
  int steps = 0;
  IterationFault fault = IterationFault::kNone;
};

namespace detail {

// (x, y) = x^H y, added up in double precision.
template <Scalar T>
T dot(std::size_t n, const T* x, const T* y) {
  using Wide = std::conditional_t<kIsComplex<T>, std::complex<double>, double>;
  Wide sum{};
  for (std::size_t i = 0; i < n; ++i) sum += product(Wide(conjugate(x[i])), Wide(y[i]));
  return T(sum);
}

template <Scalar T>
double norm(std::size_t n, const T* x) {
  double sum = 0.0;
  for (std::size_t i = 0; i < n; ++i) sum += std::norm(std::complex<double>(x[i]));
  return std::sqrt(sum);
}

// Whether a step ends the iteration.
class Convergence {
 public:
  Convergence(double first, double tolerance) : first_(first), tolerance_(tolerance) {}

  bool is_reached(double now) const { return now < tolerance_ * first_ || now == 0; }
  IterationFault fault(int steps, double now) const {
    constexpr double kMostGrowth = 1e6;
    if (!(now <= kMostGrowth * first_)) return IterationFault::kGrowth;
    // Half the digits are not there with half the steps.
    if (steps == kIterationLimit / 2 && now > std::sqrt(tolerance_) * first_) return IterationFault::kSlow;
    return steps >= kIterationLimit ? IterationFault::kLimit : IterationFault::kNone;
  }

 private:
  double first_, tolerance_;
};

}  // namespace detail

// For positive definite A and M. `multiply(x, y)`: y <- A x; `precondition(r)`: r <- M^-1 r, in place. `work`: 4 n.
template <Scalar T, class Multiply, class Precondition>
IterationEnd conjugate_gradients(std::size_t n, const T* b, T* x, double tolerance, const Multiply& multiply,
                                 const Precondition& precondition, T* work) {
  T* const r = work;
  T* const z = r + n;
  T* const p = z + n;
  T* const q = p + n;
  std::fill_n(x, n, T{});
  std::copy_n(b, n, r);
  std::copy_n(b, n, z);
  precondition(z);
  const detail::Convergence convergence(detail::norm(n, z), tolerance);
  std::copy_n(z, n, p);
  T rho = detail::dot(n, r, z);
  for (int steps = 0;;) {
    const double now = detail::norm(n, z);
    if (convergence.is_reached(now)) return {steps};
    if (const IterationFault fault = convergence.fault(steps, now); fault != IterationFault::kNone)
      return {steps, fault};
    ++steps;
    multiply(p, q);
    const T alpha = rho / detail::dot(n, p, q);
    for (std::size_t i = 0; i < n; ++i) {
      x[i] += product(alpha, p[i]);
      r[i] -= product(alpha, q[i]);
    }
    std::copy_n(r, n, z);
    precondition(z);
    const T next_rho = detail::dot(n, r, z), beta = next_rho / rho;
    rho = next_rho;
    for (std::size_t i = 0; i < n; ++i) p[i] = z[i] + product(beta, p[i]);
  }
}

// For any A and M; it works on M^-1 A x = M^-1 b, whose residuals are the dx_i. `work`: 7 n.
template <Scalar T, class Multiply, class Precondition>
IterationEnd conjugate_gradients_squared(std::size_t n, const T* b, T* x, double tolerance, const Multiply& multiply,
                                         const Precondition& precondition, T* work) {
  T* const r = work;
  T* const shadow = r + n;
  T* const u = shadow + n;
  T* const p = u + n;
  T* const q = p + n;
  T* const v = q + n;
  T* const w = v + n;
  std::fill_n(x, n, T{});
  std::copy_n(b, n, r);
  precondition(r);
  std::copy_n(r, n, shadow);
  std::fill_n(p, n, T{});
  std::fill_n(q, n, T{});
  const detail::Convergence convergence(detail::norm(n, r), tolerance);
  T rho{1};
  for (int steps = 0;;) {
    const double now = detail::norm(n, r);
    if (convergence.is_reached(now)) return {steps};
    if (const IterationFault fault = convergence.fault(steps, now); fault != IterationFault::kNone)
      return {steps, fault};
    ++steps;
    const T next_rho = detail::dot(n, shadow, r), beta = steps == 1 ? T{} : next_rho / rho;
    rho = next_rho;
    for (std::size_t i = 0; i < n; ++i) {
      u[i] = r[i] + product(beta, q[i]);
      p[i] = u[i] + product(beta, q[i] + product(beta, p[i]));
    }
    multiply(p, v);
    precondition(v);
    const T alpha = rho / detail::dot(n, shadow, v);
    for (std::size_t i = 0; i < n; ++i) {
      q[i] = u[i] - product(alpha, v[i]);
      u[i] += q[i];
      x[i] += product(alpha, u[i]);
    }
    multiply(u, w);
    precondition(w);
    for (std::size_t i = 0; i < n; ++i) r[i] -= product(alpha, w[i]);
  }
}

}  // namespace quorin::pardiso
