// Nonlinear least squares for C++ hosts: give the residuals, and the Jacobian if you have it, as callables.
//
//   auto residual = [&](std::span<const float> x, std::span<float> f) { /* f <- F(x) */ };
//   const auto result = quorin::least_squares::minimize(m, x, residual);
//   if (!result.converged()) ...
//
// Callables may throw: no frame of the library is on the stack then, and all that a run holds is freed. Runs share
// nothing, so they may go on several threads at once. A host that wants a step at a time uses quorin/trust_region.h.
#pragma once

#include <array>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <span>
#include <stdexcept>
#include <vector>

#include "quorin/jacobi.h"
#include "quorin/trust_region.h"

namespace quorin::least_squares {

/// Why a run ended.
enum class Stop {
  kNotFinite = 0,  ///< the first F or Jacobian was not
  kIterationLimit = 1,
  kRadiusSmall = 2,
  kResidualSmall = 3,
  kJacobianSingular = 4,  ///< a column of the Jacobian is zero, or shorter than the tolerance
  kStepSmall = 5,
  kDecreaseSmall = 6,  ///< the usual end of a fit: the model promises no more, or not in floats
};

/// The run ends when a quantity falls below its tolerance; 0 switches a test off.
struct Options {
  float radius = 0.0F;          ///< of the trust region
  float residual = 0.0F;        ///< ||F||
  float column = 0.0F;          ///< norm of a column of the Jacobian
  float step = 0.0F;            ///< ||s||
  float decrease = 0.0F;        ///< ||F|| - ||F + J s||
  float step_precision = 0.1F;  ///< of the length of a step, relative; not a test
  int max_iterations = 1000;
  int max_step_iterations = 100;
  float first_radius = 0.0F;  ///< most length of the first step, from 0.1 to 100; 0: as the length of x suggests
};

struct Result {
  Stop stop = Stop::kNotFinite;
  int iterations = 0;
  float first_norm = 0.0F;  ///< ||F|| at the start
  float norm = 0.0F;        ///< ||F|| at the best point
  bool converged() const { return stop >= Stop::kRadiusSmall && stop != Stop::kJacobianSingular; }
};

/// Both of n entries, or both empty for no bounds; infinite ones are none.
struct Bounds {
  std::span<const float> lower, upper;
};

namespace detail {

static_assert(+QUORIN_JACOBI_NO_MEMORY == +QUORIN_TRUST_REGION_NO_MEMORY &&
              +QUORIN_JACOBI_SUCCESS == +QUORIN_TRUST_REGION_SUCCESS);

/// Of either family.
inline void require(int status) {
  if (status == QUORIN_TRUST_REGION_NO_MEMORY) throw std::bad_alloc();
  if (status != QUORIN_TRUST_REGION_SUCCESS)
    throw std::invalid_argument("quorin::least_squares: an argument is out of its range");
}

/// One run or differentiation, from init to delete.
class Handle {
 public:
  explicit Handle(int32_t (*destroy)(void**)) : destroy_(destroy) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (value_ != nullptr) destroy_(&value_);
  }
  void** address() { return &value_; }

 private:
  int32_t (*destroy_)(void**);
  void* value_ = nullptr;
};

}  // namespace detail

/// The Jacobian by central differences with steps relative to the entries of x: entry j moves by relative_step times
/// |x_j|, or times `typical` where that is more.
class Differences {
 public:
  explicit Differences(float relative_step = 1.0F / 256, float typical = 0.0F)
      : relative_step_(relative_step), typical_(typical) {}

  /// jacobian (m x n, column-major) <- dF/dx. x is as before at the end.
  template <class Residual>
  void operator()(Residual& residual, std::span<float> x, std::size_t m, std::span<float> jacobian) const {
    std::vector<float> forward(m), backward(m);
    for (std::size_t j = 0; j < x.size(); ++j) {
      const float size = std::fmax(std::fabs(x[j]), typical_);
      column(residual, x, j, relative_step_ * (size > 0.0F ? size : 1.0F), forward, backward, jacobian);
    }
  }

 private:
  // sjacobi has one step for all entries, so that one entry at a time is its x here.
  template <class Residual>
  static void column(Residual& residual, std::span<float> x, std::size_t j, float step, std::vector<float>& forward,
                     std::vector<float>& backward, std::span<float> jacobian) {
    const auto m = static_cast<int32_t>(forward.size());
    const int32_t one = 1;
    const float saved = x[j];
    detail::Handle handle(sjacobi_delete);
    detail::require(sjacobi_init(handle.address(), &one, &m, &x[j], &jacobian[j * forward.size()], &step));
    try {
      for (;;) {
        int32_t request = 0;
        detail::require(sjacobi_solve(handle.address(), forward.data(), backward.data(), &request));
        if (request == QUORIN_JACOBI_DONE) return;
        residual(std::span<const float>(x), std::span<float>(request == QUORIN_JACOBI_FORWARD ? forward : backward));
      }
    } catch (...) {
      x[j] = saved;
      throw;
    }
  }

  float relative_step_, typical_;
};

/// Minimizes ||F(x)||, F: R^n -> R^m, m >= n. x holds the start on entry and the best point on return.
/// residual(std::span<const float> x, std::span<float> f): f <- F(x).
/// jacobian(std::span<const float> x, std::span<float> columns): dF/dx, m x n, column-major.
/// Throws std::invalid_argument for sizes, bounds or options that make no sense, std::bad_alloc without memory.
template <class Residual, std::invocable<std::span<const float>, std::span<float>> Jacobian>
Result minimize(std::size_t m, std::span<float> x, Residual&& residual, Jacobian&& jacobian, const Bounds& bounds = {},
                const Options& options = {}) {
  const bool is_bounded = !bounds.lower.empty() || !bounds.upper.empty();
  constexpr auto kMost = static_cast<std::size_t>((std::numeric_limits<int32_t>::max)());
  if (x.empty() || m < x.size() || m > kMost || (is_bounded && bounds.lower.size() != x.size()) ||
      bounds.lower.size() != bounds.upper.size()) {
    throw std::invalid_argument("quorin::least_squares: sizes do not fit together");
  }
  const auto n = static_cast<int32_t>(x.size()), rows = static_cast<int32_t>(m);
  const std::array<float, 6> eps = {options.radius, options.residual, options.column,
                                    options.step,   options.decrease, options.step_precision};
  std::vector<float> f(m), columns(m * x.size());
  detail::Handle handle(is_bounded ? strnlspbc_delete : strnlsp_delete);
  void** const run = handle.address();
  detail::require(is_bounded
                      ? strnlspbc_init(run, &n, &rows, x.data(), bounds.lower.data(), bounds.upper.data(), eps.data(),
                                       &options.max_iterations, &options.max_step_iterations, &options.first_radius)
                      : strnlsp_init(run, &n, &rows, x.data(), eps.data(), &options.max_iterations,
                                     &options.max_step_iterations, &options.first_radius));
  auto* const solve = is_bounded ? strnlspbc_solve : strnlsp_solve;
  auto* const get = is_bounded ? strnlspbc_get : strnlsp_get;
  Result result;
  for (int32_t request = 0; request >= 0;) {
    const bool is_sound = solve(run, f.data(), columns.data(), &request) == QUORIN_TRUST_REGION_SUCCESS;
    if (request == QUORIN_TRUST_REGION_RESIDUAL) {
      residual(std::span<const float>(x), std::span<float>(f));
    } else if (request == QUORIN_TRUST_REGION_JACOBIAN) {
      jacobian(std::span<const float>(x), std::span<float>(columns));
    } else if (request < 0 && is_sound) {
      result.stop = static_cast<Stop>(-request);
    }
  }
  int32_t criterion = 0;
  get(run, &result.iterations, &criterion, &result.first_norm, &result.norm);
  return result;
}

/// The same with derivatives by central differences of F.
template <class Residual>
Result minimize(std::size_t m, std::span<float> x, Residual&& residual, const Bounds& bounds = {},
                const Options& options = {}, const Differences& differences = Differences()) {
  std::vector<float> point(x.size());
  const auto jacobian = [&](std::span<const float> at, std::span<float> columns) {
    point.assign(at.begin(), at.end());
    differences(residual, point, m, columns);
  };
  return minimize(m, x, residual, jacobian, bounds, options);
}

}  // namespace quorin::least_squares
