#include "sparse/numeric/refinement.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>

#include "base/double_double.hpp"

namespace quorin::sparse {
namespace {

using base::DoubleDouble;
using base::Workspace;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

template <Scalar T>
constexpr double kEpsilon = std::numeric_limits<RealOf<T>>::epsilon();

template <Scalar T>
double magnitude(T x) noexcept {
  return std::abs(double{real_part(x)}) + std::abs(double{imaginary_part(x)});
}

// --- Sums of twice the working precision -----------------------------------------------------------------------------

template <class Real>
struct Wider;
template <>
struct Wider<float> {
  using Type = double;
};
template <>
struct Wider<double> {
  using Type = DoubleDouble;
};

inline double exact_product(float a, float b) noexcept { return double{a} * double{b}; }
inline DoubleDouble exact_product(double a, double b) noexcept { return base::two_product(a, b); }
inline float rounded(double x) noexcept { return static_cast<float>(x); }
inline double rounded(DoubleDouble x) noexcept { return x.hi; }

// b less products.
template <Scalar T>
class WideSum {
 public:
  explicit WideSum(T b) noexcept {
    parts_[0] = {real_part(b)};
    if constexpr (kIsComplex<T>) parts_[1] = {imaginary_part(b)};
  }
  void subtract(T a, T x) noexcept {
    parts_[0] = parts_[0] - exact_product(real_part(a), real_part(x));
    if constexpr (kIsComplex<T>) {
      parts_[0] = parts_[0] + exact_product(imaginary_part(a), imaginary_part(x));
      parts_[1] = parts_[1] - exact_product(real_part(a), imaginary_part(x));
      parts_[1] = parts_[1] - exact_product(imaginary_part(a), real_part(x));
    }
  }
  T value() const noexcept {
    if constexpr (kIsComplex<T>) {
      return {rounded(parts_[0]), rounded(parts_[1])};
    } else {
      return rounded(parts_[0]);
    }
  }

 private:
  typename Wider<RealOf<T>>::Type parts_[kIsComplex<T> ? 2 : 1];
};

// --- Residuals -------------------------------------------------------------------------------------------------------

// use(row, column, value) for every entry of op(A), mirror images included.
template <Scalar T, class Use>
void for_each_entry(const LinearSystem<T>& system, const Use& use) noexcept {
  const Operation operation = system.operation;
  const bool is_transposed = operation == Operation::kTransposed || operation == Operation::kAdjoint;
  const bool is_conjugated = operation == Operation::kConjugated || operation == Operation::kAdjoint;
  const bool is_mirrored = system.symmetry != Symmetry::kGeneral;
  const ColumnMatrix<T>& A = system.A;
  for (int j = 0; j < A.columns; ++j) {
    for (int k = A.starts[j], end = A.starts[j + 1]; k < end; ++k) {
      const int i = A.indices[k];
      const int row = system.by_rows ? j : i, column = system.by_rows ? i : j;
      if ((system.read == Triangle::kLower && row < column) || (system.read == Triangle::kUpper && row > column))
        continue;
      T value = is_conjugated ? conjugate(A.values[k]) : A.values[k];
      if (row == column && system.symmetry == Symmetry::kHermitian) value = real_part(value);
      use(is_transposed ? column : row, is_transposed ? row : column, value);
      if (!is_mirrored || row == column) continue;
      const T mirrored = system.symmetry == Symmetry::kHermitian ? conjugate(value) : value;
      use(is_transposed ? row : column, is_transposed ? column : row, mirrored);
    }
  }
}

// The work arrays of residuals of one system.
template <Scalar T>
class Residual {
 public:
  Residual(const LinearSystem<T>& system, bool is_extended) noexcept
      : system_(system), n_(system.A.columns), is_extended_(is_extended) {
    const auto n = static_cast<std::size_t>(n_);
    sizes_ = Workspace<double>(base::saturating_product(n, 2));
    if (is_extended) sums_ = Workspace<WideSum<T>>(n);
    if (!*this) return;
    double* const row_sums = sizes_.data();
    std::fill_n(row_sums, n_, 0.0);
    for_each_entry(system, [=](int row, int, T value) { row_sums[row] += magnitude(value); });
  }
  explicit operator bool() const noexcept { return sizes_ && (!is_extended_ || sums_); }

  // r <- b - op(A) x; returns the backward error of x.
  double compute(const T* b, const T* x, T* r) noexcept {
    if (is_extended_) {
      for (int i = 0; i < n_; ++i) sums_[i] = WideSum<T>(b[i]);
      add_up(x, [this](int row, T a, T x_j) { sums_[row].subtract(a, x_j); });
      for (int i = 0; i < n_; ++i) r[i] = sums_[i].value();
    } else {
      std::copy_n(b, n_, r);
      add_up(x, [r](int row, T a, T x_j) { r[row] -= product(a, x_j); });
    }
    return quotient(b, x, r);
  }

  // The factor of a step d that took residuals from `before` to `after` with which its change A d of the residual is as
  // large as what was there, both in the 2-norm and each row in the size of op(A)'s. A d is taken to be no smaller than
  // rounding errors. `size`: the maximum norm of d.
  T balanced_length(const T* before, const T* after, double size) const noexcept {
    const double* const row_sums = sizes_.data();
    std::complex<double> projection = 0;
    double first = 0, change = kEpsilon<T> * size * kEpsilon<T> * size;
    for (int i = 0; i < n_; ++i) {
      if (row_sums[i] == 0) continue;
      const std::complex<double> from = std::complex<double>(before[i]) / row_sums[i];
      const std::complex<double> by = from - std::complex<double>(after[i]) / row_sums[i];
      projection += std::conj(by) * from;
      first += std::norm(from);
      change += std::norm(by);
    }
    const std::complex<double> sign = projection == 0.0 ? 1.0 : projection / std::abs(projection);
    const std::complex<double> length = sign * std::sqrt(first / change);
    if (!std::isfinite(std::norm(length)) || length == 0.0) return T{1};
    if constexpr (kIsComplex<T>) {
      return static_cast<T>(length);
    } else {
      return static_cast<T>(length.real());
    }
  }

 private:
  // Calls subtract(i, a_ij, x_j) for all entries, and sums up |a_ij| |x_j| beside it.
  template <class Subtract>
  void add_up(const T* x, const Subtract& subtract) noexcept {
    double* const sums = sizes_.data() + n_;  // |op(A)| |x|
    std::fill_n(sums, n_, 0.0);
    for_each_entry(system_, [=](int row, int column, T value) {
      subtract(row, value, x[column]);
      sums[row] += magnitude(value) * magnitude(x[column]);
    });
  }

  double quotient(const T* b, const T* x, const T* r) const noexcept {
    const double *const row_sums = sizes_.data(), *const sums = row_sums + n_;
    double norm = 0;
    for (int i = 0; i < n_; ++i) norm = std::max(norm, magnitude(x[i]));
    // The authors' 1000 n epsilon is more than 1 for large systems in single precision.
    const double small = std::min(1000.0 * n_ * kEpsilon<T>, std::sqrt(kEpsilon<T>));
    double of_large = 0, of_small = 0;
    bool is_finite = true;
    for (int i = 0; i < n_; ++i) {
      const double of_x = row_sums[i] * norm, of_b = magnitude(b[i]), denominator = sums[i] + of_b;
      const double residual = magnitude(r[i]);
      is_finite = is_finite && std::isfinite(residual) && std::isfinite(denominator) && std::isfinite(of_x);
      if (residual == 0) continue;
      if (denominator > small * (of_x + of_b)) {
        of_large = std::max(of_large, residual / denominator);
      } else {
        of_small = std::max(of_small, residual / (sums[i] + of_x));
      }
    }
    return is_finite ? of_large + of_small : kInfinity;
  }

  const LinearSystem<T>& system_;
  const int n_;
  const bool is_extended_;
  Workspace<double> sizes_;  // of rows: sums of |op(A)|, and of |op(A)| |x|
  Workspace<WideSum<T>> sums_;
};

// --- Columns ---------------------------------------------------------------------------------------------------------

// How many right-hand sides are solved for at a time.
constexpr int kBlock = 8;

// One right-hand side. Its error is the backward error, or with residuals of twice the precision the last relative
// change of x where that is more.
template <Scalar T>
struct Column {
  const T* b = nullptr;
  T* x = nullptr;
  double backward_error = kInfinity, error = kInfinity, change = kInfinity;
  // x and its residual before the last step, or before the first one that was stretched.
  T *x_before = nullptr, *residual_before = nullptr;
  double error_before = kInfinity;
  int steps = 0;
  bool is_stretched = false;
};

template <Scalar T>
class Refinement {
 public:
  Refinement(const LinearSystem<T>& system, const RefinementOptions& options, int width) noexcept
      : n_(static_cast<std::size_t>(system.A.columns)),
        options_(options),
        residual_(system, options.extended),
        corrections_(base::saturating_product(n_, static_cast<std::size_t>(width))),
        before_(corrections_.size()),
        residuals_before_(corrections_.size()) {}
  explicit operator bool() const noexcept { return residual_ && corrections_ && before_ && residuals_before_; }

  // `columns`: those to be refined, at most `width` of the constructor. Their order is lost.
  FactorOutcome run(Column<T>* columns, int count, detail::CorrectionSolve<T> solve,
                    RefinementReport& report) noexcept {
    for (int k = 0; k < count; ++k) {
      columns[k].x_before = slot(before_, k);
      columns[k].residual_before = slot(residuals_before_, k);
    }
    for (;;) {
      int left = 0;
      for (int k = 0; k < count; ++k) {
        Column<T>& column = columns[k];
        T* const residual = slot(corrections_, left);
        double error = residual_.compute(column.b, column.x, residual);
        if (is_slow(column, error)) error = stretch(column, error, residual);
        if (!needs_step(column, error, report)) continue;
        keep(column, residual);
        columns[left++] = column;
      }
      count = left;
      if (count == 0) return FactorOutcome::kDone;
      const FactorOutcome outcome = solve.call(solve.context, count, corrections_.data());
      for (int k = 0; k < count; ++k) {
        if (outcome != FactorOutcome::kDone) {
          finish(columns[k], RefinementEnd::kStopped, report);
        } else {
          step(columns[k], slot(corrections_, k));
        }
      }
      if (outcome != FactorOutcome::kDone) return outcome;
    }
  }

 private:
  static constexpr double kEnough = 2 * kEpsilon<T>;

  T* slot(Workspace<T>& memory, int k) const noexcept { return memory.data() + n_ * static_cast<std::size_t>(k); }

  // Whether the last step left more than rounding errors, and not much less than there was.
  static bool is_slow(const Column<T>& column, double error) noexcept {
    return column.steps > 0 && error > std::max(2 * kEnough, column.backward_error / 4) && error != kInfinity;
  }

  // Gives what was added last, d, another length if that is better; returns the error. With a perturbed pivot a solve
  // gives a fraction of what is wanted in one direction, and the residual falls by as much: the rest of d ends it.
  // Where A is singular, A d is rounding errors, and more of d, up to their size, makes x the solution of a nearer
  // system; the next step takes such errors from d, which can then be stretched again.
  double stretch(Column<T>& column, double error, T* residual) noexcept {
    double size = 0;
    for (std::size_t i = 0; i < n_; ++i) size = std::max(size, magnitude(column.x[i] - column.x_before[i]));
    const T length = residual_.balanced_length(column.residual_before, residual, size);
    const auto scale_step = [&](T factor) {
      move(column, column.x_before, [&](std::size_t i) { return product(factor, column.x[i] - column.x_before[i]); });
      return residual_.compute(column.b, column.x, residual);
    };
    const double stretched = scale_step(length);
    column.is_stretched = column.is_stretched || stretched < error;
    return stretched < error ? stretched : scale_step(T{1} / length);
  }

  bool needs_step(Column<T>& column, double backward_error, RefinementReport& report) const noexcept {
    if (column.steps > 0 && backward_error > std::max(column.backward_error, kEnough)) {
      std::copy_n(column.x_before, n_, column.x);
      column.backward_error = column.error_before;
      const bool was_large = column.backward_error > std::sqrt(kEpsilon<T>);
      return finish(column, was_large ? RefinementEnd::kDiverged : RefinementEnd::kStopped, report);
    }
    column.backward_error = backward_error;
    if (backward_error == kInfinity) return finish(column, RefinementEnd::kNotFinite, report);
    const double error = options_.extended ? std::max(backward_error, column.change) : backward_error;
    if (error <= kEnough) return finish(column, RefinementEnd::kConverged, report);
    const bool has_halved = column.steps == 0 || error <= column.error / 2;
    if (!has_halved || column.steps >= options_.most_steps) return finish(column, RefinementEnd::kStopped, report);
    column.error = error;
    return true;
  }

  void keep(Column<T>& column, const T* residual) const noexcept {
    if (column.is_stretched) return;
    std::copy_n(column.x, n_, column.x_before);
    std::copy_n(residual, n_, column.residual_before);
    column.error_before = column.backward_error;
  }

  void step(Column<T>& column, const T* correction) const noexcept {
    move(column, column.x, [correction](std::size_t i) { return correction[i]; });
    ++column.steps;
  }

  // x <- from + change(i) in every place i.
  template <class Change>
  void move(Column<T>& column, const T* from, const Change& change) const noexcept {
    double most = 0, most_changed = 0;
    for (std::size_t i = 0; i < n_; ++i) {
      const T by = change(i);
      column.x[i] = from[i] + by;
      most = std::max(most, magnitude(column.x[i]));
      most_changed = std::max(most_changed, magnitude(by));
    }
    column.change = most_changed == 0 ? 0 : most_changed / most;
  }

  static bool finish(const Column<T>& column, RefinementEnd end, RefinementReport& report) noexcept {
    report.end = std::max(report.end, end);
    report.steps = std::max(report.steps, column.steps);
    report.backward_error = std::max(report.backward_error, column.backward_error);
    return false;
  }

  const std::size_t n_;
  const RefinementOptions& options_;
  Residual<T> residual_;
  Workspace<T> corrections_, before_, residuals_before_;
};

}  // namespace

template <Scalar T>
double backward_error(const LinearSystem<T>& system, const T* b, const T* x, bool extended) noexcept {
  Residual<T> residual(system, extended);
  Workspace<T> r(static_cast<std::size_t>(system.A.columns));
  return residual && r ? residual.compute(b, x, r.data()) : -1;
}

namespace detail {

template <Scalar T>
FactorOutcome refine(const LinearSystem<T>& system, const RefinementOptions& options, int nrhs, const T* b, int ldb,
                     T* x, int ldx, CorrectionSolve<T> solve, RefinementReport& report) noexcept {
  report = {};
  Refinement<T> refinement(system, options, std::min(nrhs, kBlock));
  if (!refinement) return FactorOutcome::kOutOfMemory;
  for (int first = 0; first < nrhs; first += kBlock) {
    const int count = std::min(kBlock, nrhs - first);
    Column<T> columns[kBlock];
    for (int k = 0; k < count; ++k) {
      const std::ptrdiff_t j = first + k;
      columns[k] = {.b = b + j * ldb, .x = x + j * ldx};
    }
    const FactorOutcome outcome = refinement.run(columns, count, solve, report);
    if (outcome != FactorOutcome::kDone) return outcome;
  }
  return FactorOutcome::kDone;
}

}  // namespace detail

template double backward_error(const LinearSystem<float>&, const float*, const float*, bool) noexcept;
template FactorOutcome detail::refine(const LinearSystem<float>&, const RefinementOptions&, int, const float*, int,
                                      float*, int, detail::CorrectionSolve<float>, RefinementReport&) noexcept;
template double backward_error(const LinearSystem<double>&, const double*, const double*, bool) noexcept;
template FactorOutcome detail::refine(const LinearSystem<double>&, const RefinementOptions&, int, const double*, int,
                                      double*, int, detail::CorrectionSolve<double>, RefinementReport&) noexcept;
template double backward_error(const LinearSystem<std::complex<float>>&, const std::complex<float>*,
                               const std::complex<float>*, bool) noexcept;
template FactorOutcome detail::refine(const LinearSystem<std::complex<float>>&, const RefinementOptions&, int,
                                      const std::complex<float>*, int, std::complex<float>*, int,
                                      detail::CorrectionSolve<std::complex<float>>, RefinementReport&) noexcept;
template double backward_error(const LinearSystem<std::complex<double>>&, const std::complex<double>*,
                               const std::complex<double>*, bool) noexcept;
template FactorOutcome detail::refine(const LinearSystem<std::complex<double>>&, const RefinementOptions&, int,
                                      const std::complex<double>*, int, std::complex<double>*, int,
                                      detail::CorrectionSolve<std::complex<double>>, RefinementReport&) noexcept;

}  // namespace quorin::sparse
