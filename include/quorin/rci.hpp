// The iterative solvers for C++ hosts: give a matrix-vector product and a preconditioner as callables, get the
// solution.
//
//   auto multiply = [&](std::span<const double> in, std::span<double> out) { /* out <- A in */ };
//   const auto result = quorin::rci::solve_cg(b, x, multiply);
//   if (!result.converged()) ...
//
// Callables are called as f(std::span<const double> in, std::span<double> out) with distinct vectors of n entries. They
// may throw: no frame of the library is on the stack then. Solves share nothing, so they may run on several threads at
// once. Work arrays are std::vectors that live as long as the call; a host that wants its own memory, its own stopping
// test or a step at a time uses the functions of quorin/rci.h.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

#include "quorin/rci.h"

namespace quorin::rci {

/// When to stop: a residual r passes when ||r|| <= relative ||r0|| + absolute, r0 belonging to the start vector (CG:
/// when this holds for the squares).
struct Options {
  double relative_tolerance = 1.0e-8;
  double absolute_tolerance = 0.0;
  int max_iterations = 1000;  ///< for each right-hand side, over all restarts
  int restart = 50;           ///< FGMRES: steps between restarts; work memory is about (2 restart + 1) n
};

struct Result {
  int status = 0;         ///< 0, or the negative request that ended the run
  int iterations = 0;     ///< of all right-hand sides together
  double residual = 0.0;  ///< ||r|| of the last right-hand side as the solver knows it
  bool converged() const { return status == 0; }
  bool reached_limit() const { return status == QUORIN_RCI_ITERATION_LIMIT; }
};

/// Stands for M = I; solves with it never ask for a preconditioner.
struct NoPreconditioner {
  void operator()(std::span<const double> in, std::span<double> out) const {
    std::copy(in.begin(), in.end(), out.begin());
  }
};

namespace detail {

template <class M>
inline constexpr bool is_preconditioner = !std::is_same_v<std::remove_cvref_t<M>, NoPreconditioner>;

/// The parameter arrays of one solve.
struct Parameters {
  explicit Parameters(std::size_t extra = 0)
      : ipar(QUORIN_RCI_PARAMETERS + extra), dpar(QUORIN_RCI_PARAMETERS + extra) {}

  /// Entries by their published, one-based positions.
  int& integer(int position) { return ipar[static_cast<std::size_t>(position) - 1]; }
  double& real(int position) { return dpar[static_cast<std::size_t>(position) - 1]; }

  void set(const Options& options, bool preconditioned, bool squares) {
    const auto power = [squares](double t) { return squares ? t * t : t; };
    integer(QUORIN_RCI_IPAR_ITERATION_LIMIT) = options.max_iterations;
    integer(QUORIN_RCI_IPAR_PRINT_ERRORS) = 0;
    integer(QUORIN_RCI_IPAR_PRINT_WARNINGS) = 0;
    integer(QUORIN_RCI_IPAR_RESIDUAL_TEST) = 1;
    integer(QUORIN_RCI_IPAR_HOST_TEST) = 0;
    integer(QUORIN_RCI_IPAR_PRECONDITIONED) = preconditioned ? 1 : 0;
    real(QUORIN_RCI_DPAR_RELATIVE_TOLERANCE) = power(options.relative_tolerance);
    real(QUORIN_RCI_DPAR_ABSOLUTE_TOLERANCE) = power(options.absolute_tolerance);
  }

  std::vector<int> ipar;
  std::vector<double> dpar;
};

/// Answers requests until there are none. `step` calls the solver and returns its request; `source` and `target` give
/// the vectors of a request.
template <class Step, class Source, class Target, class Product, class Preconditioner>
int serve(Step step, Source source, Target target, Product& multiply, Preconditioner& precondition) {
  for (;;) {
    const int request = step();
    if (request == QUORIN_RCI_MULTIPLY) {
      multiply(std::span<const double>(source(request)), target(request));
    } else if (request == QUORIN_RCI_PRECONDITION) {
      precondition(std::span<const double>(source(request)), target(request));
    } else {
      return request;
    }
  }
}

/// Keeps squares within range: a right-hand side and its start vector, both multiplied by a power of two while they are
/// far from 1. The solver works on b() of this and on x, which the destructor puts right.
class Scaled {
 public:
  Scaled(std::span<const double> b, std::span<double> x) : b_(b), x_(x) {
    double largest = 0.0, largest_x = 0.0;
    for (const double e : b) largest = (std::max)(largest, std::abs(e));
    for (const double e : x) largest_x = (std::max)(largest_x, std::abs(e));
    if (!(largest > 0.0) || !std::isfinite(largest)) return;
    const int exponent = std::ilogb(largest);
    const int harmless = 200;
    if (std::abs(exponent) <= harmless || !std::isfinite(std::scalbn(largest_x, -exponent))) return;
    exponent_ = exponent;
    copy_.assign(b.begin(), b.end());
    for (double& e : copy_) e = scaled(e);
    for (double& e : x_) e = scaled(e);
    b_ = copy_;
  }
  Scaled(const Scaled&) = delete;
  Scaled& operator=(const Scaled&) = delete;
  ~Scaled() {
    if (exponent_ == 0) return;
    for (double& e : x_) e = unscaled(e);
  }

  std::span<const double> b() const { return b_; }
  /// A norm in the host's units, and the other way round.
  double unscaled(double norm) const { return std::scalbn(norm, exponent_); }
  double scaled(double norm) const { return std::scalbn(norm, -exponent_); }

 private:
  std::span<const double> b_;
  std::span<double> x_;
  std::vector<double> copy_;
  int exponent_ = 0;
};

inline int checked_size(std::size_t n, std::size_t other) {
  if (n == 0 || n != other) throw std::invalid_argument("quorin::rci: the vectors must have one length, at least 1");
  return static_cast<int>(n);
}

inline void require(int status) {
  if (status != QUORIN_RCI_FINISHED) throw std::invalid_argument("quorin::rci: the solver refused the sizes");
}

}  // namespace detail

/// Conjugate gradients for a symmetric positive definite A and, when given, M. x holds the start vector on entry and
/// the last iterate on return, whatever the status. The solver forms squares; a b that has none in double precision is
/// scaled, and multiply and precondition then see vectors that are.
template <class Product, class Preconditioner = NoPreconditioner>
Result solve_cg(std::span<const double> b, std::span<double> x, Product&& multiply, Preconditioner&& precondition = {},
                const Options& options = {}) {
  constexpr bool kPreconditioned = detail::is_preconditioner<Preconditioner>;
  const int n = detail::checked_size(b.size(), x.size());
  const std::size_t length = b.size();
  const detail::Scaled scaled(b, x);
  b = scaled.b();
  Options scaled_options = options;
  scaled_options.absolute_tolerance = scaled.scaled(options.absolute_tolerance);
  detail::Parameters p;
  std::vector<double> tmp((kPreconditioned ? 4 : 3) * length);
  int request = 0;
  DCG_INIT(&n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), tmp.data());
  detail::require(request);
  p.set(scaled_options, kPreconditioned, true);

  const auto column = [&](std::size_t index) { return std::span<double>(tmp).subspan(index * length, length); };
  const auto step = [&] {
    DCG(&n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), tmp.data());
    return request;
  };
  Result result;
  result.status = detail::serve(
      step, [&](int asked) { return column(asked == QUORIN_RCI_MULTIPLY ? 0 : 2); },
      [&](int asked) { return column(asked == QUORIN_RCI_MULTIPLY ? 1 : 3); }, multiply, precondition);
  DCG_GET(&n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), tmp.data(), &result.iterations);
  result.residual = scaled.unscaled(std::sqrt(p.real(QUORIN_RCI_DPAR_RESIDUAL)));
  return result;
}

/// The same for several right-hand sides, one after another: b and x hold nrhs vectors. On failure the columns after
/// the one that failed keep their start vectors.
template <class Product, class Preconditioner = NoPreconditioner>
Result solve_cg_many(int nrhs, std::span<const double> b, std::span<double> x, Product&& multiply,
                     Preconditioner&& precondition = {}, const Options& options = {}) {
  const std::size_t count = nrhs > 0 ? static_cast<std::size_t>(nrhs) : 0;
  if (count == 0 || b.size() % count != 0) throw std::invalid_argument("quorin::rci: b does not hold nrhs vectors");
  detail::checked_size(b.size(), x.size());
  const std::size_t length = b.size() / count;
  Result all;
  for (std::size_t k = 0; k < count && all.converged(); ++k) {
    const Result one =
        solve_cg(b.subspan(k * length, length), x.subspan(k * length, length), multiply, precondition, options);
    all = {one.status, all.iterations + one.iterations, one.residual};
  }
  return all;
}

/// Flexible GMRES for a general nonsingular A; the preconditioner may change from step to step. x holds the start
/// vector on entry and the last iterate on return, whatever the status.
template <class Product, class Preconditioner = NoPreconditioner>
Result solve_fgmres(std::span<const double> b, std::span<double> x, Product&& multiply,
                    Preconditioner&& precondition = {}, const Options& options = {}) {
  constexpr bool kPreconditioned = detail::is_preconditioner<Preconditioner>;
  const int n = detail::checked_size(b.size(), x.size());
  const std::size_t length = b.size();
  const int restart = std::clamp(options.restart, 1, n);
  const auto m = static_cast<std::size_t>(restart);
  detail::Parameters p;
  std::vector<double> tmp(((kPreconditioned ? 2 * m : m) + 1) * length + m * (m + 9) / 2 + 1);
  std::vector<double> right_hand_side(b.begin(), b.end());  // the interface takes b as writable
  double* rhs = right_hand_side.data();
  int request = 0;
  DFGMRES_INIT(&n, x.data(), rhs, &request, p.ipar.data(), p.dpar.data(), tmp.data());
  detail::require(request);
  p.set(options, kPreconditioned, false);
  p.integer(QUORIN_RCI_IPAR_CYCLE_LENGTH) = restart;
  p.integer(QUORIN_RCI_IPAR_ZERO_NORM_TEST) = 1;
  p.real(QUORIN_RCI_DPAR_ZERO_NORM_TOLERANCE) = 0.0;  // the default is absolute, and A may be small

  const auto vector_at = [&](int position) {
    return std::span<double>(tmp).subspan(static_cast<std::size_t>(p.integer(position)) - 1, length);
  };
  const auto step = [&] {
    DFGMRES(&n, x.data(), rhs, &request, p.ipar.data(), p.dpar.data(), tmp.data());
    return request;
  };
  Result result;
  result.status = detail::serve(
      step, [&](int) { return vector_at(QUORIN_RCI_IPAR_SOURCE); },
      [&](int) { return vector_at(QUORIN_RCI_IPAR_DESTINATION); }, multiply, precondition);
  DFGMRES_GET(&n, x.data(), rhs, &request, p.ipar.data(), p.dpar.data(), tmp.data(), &result.iterations);
  result.residual = p.real(QUORIN_RCI_DPAR_RESIDUAL);
  return result;
}

/// An incomplete LU factorization of a matrix in compressed rows (one-based, columns ascending), to be given to
/// solve_fgmres as the preconditioner. Throws std::runtime_error when the factorization fails.
class IncompleteLu {
 public:
  /// On the pattern of A.
  static IncompleteLu on_pattern(int n, const double* a, const int* ia, const int* ja) {
    IncompleteLu f(n);
    f.starts_.assign(ia, ia + n + 1);
    f.columns_.assign(ja, ja + ia[n] - 1);
    f.values_.resize(f.columns_.size());
    detail::Parameters s = settings();
    int error = 0;
    DCSRILU0(&n, a, ia, ja, f.values_.data(), s.ipar.data(), s.dpar.data(), &error);
    f.finish(error);
    return f;
  }

  /// With at most `fill` entries beside the diagonal in each row of L and of U, those above `tolerance` times the norm
  /// of the row.
  static IncompleteLu with_threshold(int n, const double* a, const int* ia, const int* ja, double tolerance, int fill) {
    IncompleteLu f(n);
    fill = std::clamp(fill, 0, n - 1);
    const auto width = static_cast<std::size_t>(fill);
    const std::size_t length = (2 * width + 1) * static_cast<std::size_t>(n) - width * (width + 1) + 1;
    f.starts_.resize(static_cast<std::size_t>(n) + 1);
    f.columns_.resize(length);
    f.values_.resize(length);
    detail::Parameters s = settings();
    s.real(QUORIN_RCI_DPAR_PIVOT_MULTIPLIER) = (std::max)(std::abs(tolerance), 1.0e-5);
    int error = 0;
    DCSRILUT(&n, a, ia, ja, f.values_.data(), f.starts_.data(), f.columns_.data(), &tolerance, &fill, s.ipar.data(),
             s.dpar.data(), &error);
    f.finish(error);
    f.columns_.resize(f.entries());
    f.values_.resize(f.entries());
    return f;
  }

  /// out <- U^-1 L^-1 in
  void operator()(std::span<const double> in, std::span<double> out) const {
    const std::size_t n = diagonal_.size();
    for (std::size_t i = 0; i < n; ++i) {
      double sum = in[i];
      for (std::size_t k = row_begin(i); k < diagonal_[i]; ++k) sum -= values_[k] * out[column(k)];
      out[i] = sum;
    }
    for (std::size_t i = n; i-- > 0;) {
      double sum = out[i];
      for (std::size_t k = diagonal_[i] + 1; k < row_begin(i + 1); ++k) sum -= values_[k] * out[column(k)];
      out[i] = sum / values_[diagonal_[i]];
    }
  }

  /// Stored entries of L (without its diagonal) and U.
  std::size_t entries() const { return row_begin(diagonal_.size()); }

 private:
  // Small pivots are replaced: a poor preconditioner serves better than none. No messages; failures throw.
  static detail::Parameters settings() {
    detail::Parameters s;
    s.integer(QUORIN_RCI_IPAR_REPLACE_PIVOTS) = 1;
    s.real(QUORIN_RCI_DPAR_PIVOT_THRESHOLD) = 1.0e-16;
    s.real(QUORIN_RCI_DPAR_REPLACEMENT_PIVOT) = 1.0e-10;
    return s;
  }

  explicit IncompleteLu(int n) : diagonal_(static_cast<std::size_t>(n)) {}

  std::size_t row_begin(std::size_t i) const { return static_cast<std::size_t>(starts_[i]) - 1; }
  std::size_t column(std::size_t k) const { return static_cast<std::size_t>(columns_[k]) - 1; }

  void finish(int error) {
    if (error < 0) throw std::runtime_error("quorin::rci: the incomplete factorization failed");
    for (std::size_t i = 0; i < diagonal_.size(); ++i) {
      std::size_t k = row_begin(i);
      while (column(k) < i) ++k;
      diagonal_[i] = k;
    }
  }

  std::vector<double> values_;
  std::vector<int> starts_;
  std::vector<int> columns_;
  std::vector<std::size_t> diagonal_;
};

}  // namespace quorin::rci
