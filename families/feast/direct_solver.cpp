#include "families/feast/direct_solver.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "base/parallel.hpp"

namespace quorin::feast {

using sparse::Factorization;
using sparse::FactorOptions;
using sparse::FactorOutcome;
using sparse::Operation;
using sparse::Stage;

namespace {

Status status_of(sparse::Outcome outcome) {
  if (outcome == sparse::Outcome::kDone) return Status::kDone;
  return outcome == sparse::Outcome::kOutOfMemory || outcome == sparse::Outcome::kTooLarge ? Status::kNoMemory
                                                                                           : Status::kSolverFailed;
}

template <Scalar T>
double squared_norm(int n, const T* x) {
  double sum = 0;
  for (int i = 0; i < n; ++i) sum += std::norm(x[i]);
  return sum;
}

// Re x^H y
template <Scalar T>
double inner_product(int n, const T* x, const T* y) {
  double sum = 0;
  for (int i = 0; i < n; ++i) sum += real_part(product(conjugate(x[i]), y[i]));
  return sum;
}

constexpr std::size_t kVectors = 3;  // that scratch holds

// The entries of both triangles, by columns, of a matrix whose lower triangle is given: put(entry, k, is_mirrored) for
// the k-th entry of `lower`. `next` holds the columns' starts, and is used up.
template <class Put>
void spread(const sparse::Pattern& lower, int* next, const Put& put) {
  for (int j = 0; j < lower.columns; ++j) {
    for (int k = lower.starts[j]; k < lower.starts[j + 1]; ++k) {
      const int i = lower.indices[k];
      put(next[j]++, k, i, false);
      if (i != j) put(next[i]++, k, j, true);
    }
  }
}

// Large and of about as many neighbours everywhere: dissection is hardly ever worse than minimum degree there.
bool is_mesh(const sparse::Graph& graph) {
  constexpr int kLarge = 10'000, kTimes = 4;
  const int n = graph.size();
  int most = 0;
  for (int v = 0; v < n; ++v) most = std::max(most, graph.degree(v));
  return n >= kLarge && most <= kTimes * (graph.directed_edges() / n + 1);
}

}  // namespace

// ---- Analysis -------------------------------------------------------------------------------------------------------

template <Scalar T>
Status DirectSolver<T>::analyze(const Pencil<T>& pencil, OrderingMethod method, int threads) {
  pencil_ = &pencil;
  threads_ = threads;
  Status status = plan(method);
  if (status == Status::kDone && kIsComplex<T>) status = build_full_pattern();
  if (status == Status::kDone && !pencil.is_standard()) status = check_b();
  return status;
}

// The order with less fill, or the one that is wanted.
template <Scalar T>
sparse::Outcome DirectSolver<T>::order(const sparse::Graph& graph, OrderingMethod method,
                                       const sparse::Ordering& ordering) {
  using sparse::Outcome;
  if (method == OrderingMethod::kMinimumDegree) return sparse::order_minimum_degree(graph, ordering);
  if (method == OrderingMethod::kNestedDissection || is_mesh(graph)) return sparse::order_dissection(graph, ordering);
  const int n = graph.size();
  base::Workspace<int> memory(2 * static_cast<std::size_t>(n));
  if (!memory) return Outcome::kOutOfMemory;
  const sparse::Ordering other = {memory.data(), memory.data() + n};
  Outcome outcome = Outcome::kDone, of_other = Outcome::kDone;
  base::parallel_for(2, threads_, [&](int which) {
    if (which == 0) {
      outcome = sparse::order_minimum_degree(graph, ordering);
    } else {
      of_other = sparse::order_dissection(graph, other);
    }
  });
  if (outcome != Outcome::kDone || of_other != Outcome::kDone) return outcome != Outcome::kDone ? outcome : of_other;
  const std::int64_t fill = sparse::factor_entries(graph, ordering), other_fill = sparse::factor_entries(graph, other);
  if (fill < 0 || other_fill < 0) return Outcome::kOutOfMemory;
  if (other_fill < fill) {
    std::copy_n(other.permutation, n, ordering.permutation);
    std::copy_n(other.inverse, n, ordering.inverse);
  }
  return outcome;
}

template <Scalar T>
Status DirectSolver<T>::plan(OrderingMethod method) {
  const sparse::Pattern pattern = pencil_->pattern();
  base::Workspace<int> memory(2 * static_cast<std::size_t>(pattern.columns));
  if (!memory) return Status::kNoMemory;
  const sparse::Ordering ordering = {memory.data(), memory.data() + pattern.columns};
  sparse::Graph graph;
  sparse::Outcome outcome = sparse::build_graph(pattern, graph);
  if (outcome == sparse::Outcome::kDone) outcome = order(graph, method, ordering);
  if (outcome == sparse::Outcome::kDone) outcome = plan_.build(graph, ordering);
  sparse::AssemblyOptions options;
  options.read = sparse::Triangle::kLower;
  options.symmetry = kIsComplex<T> ? sparse::Symmetry::kHermitian : sparse::Symmetry::kSymmetric;
  if (outcome == sparse::Outcome::kDone) outcome = lower_.build(plan_, pattern, options);
  return status_of(outcome);
}

template <Scalar T>
Status DirectSolver<T>::build_full_pattern() {
  const sparse::Pattern lower = pencil_->pattern();
  const auto n = static_cast<std::size_t>(lower.columns);
  const std::int64_t entries = 2 * static_cast<std::int64_t>(lower.entries()) - lower.columns;
  if (entries > std::numeric_limits<int>::max()) return Status::kNoMemory;
  full_starts_ = base::Workspace<int>(n + 1);
  base::Workspace<int> rows(static_cast<std::size_t>(entries)), next(n);
  if (!full_starts_ || !rows || !next) return Status::kNoMemory;
  std::fill_n(next.data(), n, 0);
  spread(lower, next.data(), [](int, int, int, bool) {});
  sparse::cumulate(lower.columns, next.data(), full_starts_.data());
  spread(lower, next.data(), [&rows](int place, int, int row, bool) { rows.data()[place] = row; });
  sparse::AssemblyOptions options;
  options.panels = sparse::PanelKind::kUnsymmetric;
  options.symmetry = sparse::Symmetry::kGeneral;
  return status_of(full_.build(plan_, {lower.columns, lower.columns, full_starts_.data(), rows.data()}, options));
}

// ---- B, and the spectrum --------------------------------------------------------------------------------------------

template <Scalar T>
Status DirectSolver<T>::check_b() {
  FactorOptions options;
  options.threads = threads_;
  sparse::Factor<T> factor;
  const FactorOutcome outcome = factor.compute(plan_, lower_, {pencil_->B().values}, options);
  if (outcome == FactorOutcome::kNotPositiveDefinite) return Status::kReducedFailed;
  if (outcome != FactorOutcome::kDone) return feast::status_of(outcome);
  radius_ = spectral_radius(factor);
  return radius_ < 0 ? Status::kNoMemory : Status::kDone;
}

// The power method for B^-1 A, whose steps do not make norm_B(B^-1 A x) / norm_B(x) smaller; that is never more than
// the radius. -1 without memory.
template <Scalar T>
double DirectSolver<T>::spectral_radius(const sparse::Factor<T>& factor_of_b) {
  constexpr int kSteps = 12;
  const int n = pencil_->size();
  base::Workspace<T> vectors(base::saturating_product(kVectors, static_cast<std::size_t>(n)));
  if (!vectors) return -1;
  T *const x = vectors.data(), *const y = x + n, *const ax = y + n;
  std::mt19937 random;
  std::generate_n(x, n, [&random] { return static_cast<double>(random()) * 0x1p-31 - 1; });
  pencil_->multiply_by_b(1, x, y);
  double square = inner_product(n, x, y), radius = 0;  // square: x^H B x
  for (int step = 0; step < kSteps && square > 0; ++step) {
    std::transform(x, x + n, x, [factor = 1 / std::sqrt(square)](T value) { return factor * value; });
    pencil_->multiply_by_a(1, x, ax);
    sparse::permute(n, plan_.permutation(), ax, y);
    if (sparse::solve(factor_of_b, Operation::kPlain, Stage::kAll, 1, y, n, threads_) != FactorOutcome::kDone)
      return -1;
    sparse::permute_back(n, plan_.permutation(), y, x);
    square = inner_product(n, x, ax);
    radius = std::max(radius, std::sqrt(std::max(0.0, square)));
  }
  return radius;
}

// A standard problem's eigenvalues are not larger than the norm of A. For others, counts tell whether there are some
// outside of twice the estimate.
template <Scalar T>
Status DirectSolver<T>::clamp(Interval& interval, bool& is_empty) {
  constexpr double kSlack = 1.0625;
  const bool is_certain = pencil_->is_standard();
  const double bound = is_certain ? kSlack * pencil_->norm_of_a() : 2 * radius_;
  const bool is_above = interval.low > bound;
  std::optional<int> below;
  sparse::Factor<T> factor;
  if (is_above || interval.high < -bound) {
    const double end = is_above ? interval.low : interval.high;
    const Status status = is_certain ? Status::kDone : count_below(end, std::fabs(end) / 2, threads_, factor, below);
    is_empty = is_certain || below == (is_above ? pencil_->size() : 0);
    return status;
  }
  Interval part = {std::max(interval.low, -bound), std::min(interval.high, bound)};
  if (!(part.low < part.high)) return Status::kDone;
  if (!is_certain) {
    if (part.low > interval.low) {
      if (const Status status = count_below(part.low, bound / 2, threads_, factor, below); status != Status::kDone)
        return status;
      if (below != 0) part.low = interval.low;
    }
    if (part.high < interval.high) {
      if (const Status status = count_below(part.high, bound / 2, threads_, factor, below); status != Status::kDone)
        return status;
      if (below != pencil_->size()) part.high = interval.high;
    }
  }
  interval = part;
  return Status::kDone;
}

// The pivots are those of a matrix nearby: to be trusted, it has to be nearer than (A - (sigma -+ margin) B). That is
// tried with a solution x for a random right-hand side, which consists mostly of the eigenvectors next to sigma.
template <Scalar T>
Status DirectSolver<T>::count_below(double sigma, double margin, int threads, sparse::Factor<T>& factor,
                                    std::optional<int>& below) const {
  constexpr double kSafety = 16;
  below.reset();
  const sparse::ColumnMatrix<T> A = pencil_->A(), B = pencil_->B();
  const int n = pencil_->size();
  base::Workspace<T> values(static_cast<std::size_t>(A.entries()));
  base::Workspace<T> vectors(base::saturating_product(kVectors, static_cast<std::size_t>(n)));
  if (!values || !vectors) return Status::kNoMemory;
  for (int k = 0; k < A.entries(); ++k) values.data()[k] = A.values[k] - sigma * B.values[k];
  FactorOutcome outcome = factor.compute(plan_, lower_, {values.data()}, inertia_options(threads));
  if (outcome == FactorOutcome::kSingular || outcome == FactorOutcome::kNotFinite) return Status::kDone;
  if (outcome != FactorOutcome::kDone) return feast::status_of(outcome);
  const sparse::PivotCounts& pivots = factor.report().pivots;
  if (pivots.zero > 0) return Status::kDone;

  T *const x = vectors.data(), *const product = x + n, *const residual = product + n;
  std::mt19937 random;
  std::generate_n(residual, n, [&random] { return static_cast<double>(random()) * 0x1p-31 - 1; });
  sparse::permute(n, plan_.permutation(), residual, product);
  outcome = sparse::solve(factor, Operation::kPlain, Stage::kAll, 1, product, n, threads);
  if (outcome != FactorOutcome::kDone) return feast::status_of(outcome);
  sparse::permute_back(n, plan_.permutation(), product, x);
  std::fill_n(product, n, T{});
  sparse::add_product({A, values.data()}, sparse::Symmetry::kHermitian, x, product);
  for (int i = 0; i < n; ++i) residual[i] -= product[i];
  pencil_->multiply_by_b(1, x, product);
  const double error = std::sqrt(squared_norm(n, residual)), step = std::sqrt(squared_norm(n, product));
  if (kSafety * error <= margin * step) below = pivots.negative;
  return Status::kDone;
}

template <Scalar T>
FactorOptions DirectSolver<T>::inertia_options(int threads) {
  FactorOptions options;
  options.factorization = kIsComplex<T> ? Factorization::kLDLH : Factorization::kLDLT;
  options.pivoting = sparse::Pivoting::kBunchKaufman;
  options.threads = threads;
  return options;
}

template <Scalar T>
double DirectSolver<T>::real_factor_bytes() const {
  return static_cast<double>(sparse::factor_bytes<T>(plan_, inertia_options(1)));
}

// ---- z B - A --------------------------------------------------------------------------------------------------------

template <Scalar T>
std::size_t DirectSolver<T>::value_count() const {
  return kIsComplex<T> ? static_cast<std::size_t>(full_starts_.data()[pencil_->size()])
                       : static_cast<std::size_t>(pencil_->pattern().entries());
}

// The imaginary part of z B - A is definite, so that pivots in any order do; the exchanges keep them large.
template <Scalar T>
FactorOptions DirectSolver<T>::shifted_options(int threads) {
  constexpr double kPerturbation = 1e-14;
  FactorOptions options;
  options.factorization = kShifted;
  options.pivoting = kIsComplex<T> ? sparse::Pivoting::kPartial : sparse::Pivoting::kBunchKaufman;
  options.perturbation = kPerturbation;
  options.threads = threads;
  return options;
}

template <Scalar T>
double DirectSolver<T>::factor_bytes() const {
  return static_cast<double>(sparse::factor_bytes<Complex>(plan_, shifted_options(1)));
}

template <Scalar T>
FactorOutcome DirectSolver<T>::factor(Complex z, Complex* values, int threads, sparse::Factor<Complex>& result) const {
  const sparse::ColumnMatrix<T> A = pencil_->A(), B = pencil_->B();
  if constexpr (kIsComplex<T>) {
    // The columns' next places: the matrix of the full pattern is filled in the order in which that was made.
    base::Workspace<int> next(static_cast<std::size_t>(A.columns));
    if (!next) return FactorOutcome::kOutOfMemory;
    std::copy_n(full_starts_.data(), A.columns, next.data());
    spread(A, next.data(), [&](int place, int k, int, bool is_mirrored) {
      const T a = is_mirrored ? std::conj(A.values[k]) : A.values[k],
              b = is_mirrored ? std::conj(B.values[k]) : B.values[k];
      values[place] = product(z, b) - a;
    });
    return result.compute(plan_, full_, {values}, shifted_options(threads));
  } else {
    for (int k = 0; k < A.entries(); ++k) values[k] = z * B.values[k] - A.values[k];
    return result.compute(plan_, lower_, {values}, shifted_options(threads));
  }
}

template class DirectSolver<double>;
template class DirectSolver<std::complex<double>>;

}  // namespace quorin::feast
