// The third stage: substitution, refinement, iteration.
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <span>

#include "base/thread_settings.hpp"
#include "families/pardiso/iteration.hpp"
#include "families/pardiso/product.hpp"
#include "families/pardiso/typed_solver.hpp"

namespace quorin::pardiso {
namespace {

constexpr int kColumnsAtOnce = 64;

// op(A) for a kind: that of a symmetric matrix is A or its conjugate.
sparse::Operation operation_of(const Kind& kind, System system) {
  using enum sparse::Operation;
  if (system == System::kPlain) return kPlain;
  if (!kind.stores_upper) return system == System::kAdjoint ? kAdjoint : kTransposed;
  const bool is_same = !kind.is_complex || (system == System::kAdjoint) == kind.is_hermitian;
  return is_same ? kPlain : kConjugated;
}

}  // namespace

template <Scalar T>
struct TypedSolver<T>::Solution {
  Solution(const TypedSolver& owner, const Slot& factors, const SolutionOptions& options, bool solves_partly)
      : solver(owner),
        slot(factors),
        operation(operation_of(owner.kind(), options.system)),
        is_partial(solves_partly && owner.partial() != Partial::kNone),
        threads(options.is_sequential ? 1 : base::region_threads(base::Domain::kSparseDirect)) {}

  const TypedSolver& solver;
  const Slot& slot;
  const sparse::Operation operation;
  const bool is_partial;
  const int threads;
  base::Workspace<T> work;
  // Of a partial solution: the steps that are read and written, if not all are, and the part of the factor.
  base::Workspace<int> given, wanted;
  sparse::SolvePaths paths;

  // Room for so many columns at once.
  [[nodiscard]] bool reserve(int columns) {
    work = base::Workspace<T>(base::saturating_product(size(), static_cast<std::size_t>(columns)));
    return work && (!is_partial || find_paths());
  }
  [[nodiscard]] bool find_paths() {
    using Steps = std::optional<std::span<const int>>;
    const bool gives_all = solver.partial() == Partial::kFlaggedSolution;
    const bool wants_all = solver.partial() == Partial::kFlaggedRightHandSide;
    if (!gives_all && !find_flagged(sources(), given)) return false;
    if (!wants_all && !find_flagged(targets(), wanted)) return false;
    return paths.build(solver.plan_, gives_all ? Steps() : Steps({given.data(), given.size()}),
                       wants_all ? Steps() : Steps({wanted.data(), wanted.size()}));
  }
  [[nodiscard]] bool find_flagged(const int* places, base::Workspace<int>& steps) const {
    steps = base::Workspace<int>(static_cast<std::size_t>(solver.flagged_));
    if (!steps) return false;
    int* next = steps.begin();
    for (int k = 0; k < solver.size(); ++k) {
      if (solver.is_flagged(places[k])) *next++ = k;
    }
    return true;
  }
  std::size_t size() const { return static_cast<std::size_t>(solver.size()); }
  bool is_transposed() const {
    return operation == sparse::Operation::kTransposed || operation == sparse::Operation::kAdjoint;
  }

  // What stands at step k: an equation of the right-hand side, and an unknown of the solution. A^T exchanges them.
  const int* equations() const {
    const int* const rows = solver.assembly_.rows();
    return rows == nullptr ? solver.plan_.permutation() : rows;
  }
  const int* sources() const { return is_transposed() ? solver.plan_.permutation() : equations(); }
  const int* targets() const { return is_transposed() ? equations() : solver.plan_.permutation(); }
  const Real* source_scale() const { return is_transposed() ? solver.column_scale_.data() : solver.row_scale_.data(); }
  const Real* target_scale() const { return is_transposed() ? solver.row_scale_.data() : solver.column_scale_.data(); }

  // Of the given steps, or of all if there are none.
  void load(const base::Workspace<int>& steps, const int* places, const Real* scale, const T* from, T* to) const {
    const auto load_step = [=](int k) {
      to[k] = scale == nullptr ? from[places[k]] : scale[places[k]] * from[places[k]];
    };
    for_steps(steps, load_step);
  }
  void store(const base::Workspace<int>& steps, const int* places, const Real* scale, const T* from, T* to) const {
    const auto store_step = [=](int k) { to[places[k]] = scale == nullptr ? from[k] : scale[places[k]] * from[k]; };
    for_steps(steps, store_step);
  }
  template <class Body>
  void for_steps(const base::Workspace<int>& steps, const Body& body) const {
    if (steps) {
      std::for_each(steps.data(), steps.data() + steps.size(), body);
    } else {
      for (int k = 0; k < solver.size(); ++k) body(k);
    }
  }

  sparse::FactorOutcome run(sparse::Stage stage, int columns) {
    return sparse::solve(slot.factor, operation, stage, columns, work.data(), solver.size(), threads);
  }
  // The unknowns of the Schur complement are the last ones.
  sparse::FactorOutcome solve_schur(int columns) {
    if (!slot.has_schur) return sparse::FactorOutcome::kSingular;
    T* const last = work.data() + (solver.size() - solver.schur_size());
    return slot.schur.solve(operation, columns, last, solver.size(), threads);
  }
  sparse::FactorOutcome run_whole(int columns) {
    if (is_partial) {
      return sparse::solve_partly(slot.factor, operation, paths, columns, work.data(), solver.size(), threads);
    }
    if (solver.schur_size() == 0) return run(sparse::Stage::kAll, columns);
    if (!slot.has_schur) return sparse::FactorOutcome::kSingular;
    return sparse::solve_with_schur(slot.factor, slot.schur, operation, columns, work.data(), solver.size(), threads);
  }

  // x <- op(A)^-1 b for so many columns of n; x may be b.
  sparse::FactorOutcome solve(int columns, const T* b, T* x) {
    const std::size_t end = static_cast<std::size_t>(columns) * size();
    for (std::size_t c = 0; c < end; c += size()) load(given, sources(), source_scale(), b + c, work.data() + c);
    const sparse::FactorOutcome outcome = run_whole(columns);
    if (outcome != sparse::FactorOutcome::kDone) return outcome;
    for (std::size_t c = 0; c < end; c += size()) store(wanted, targets(), target_scale(), work.data() + c, x + c);
    return outcome;
  }

  // A part of it. What lies between two parts has the numbers of the unknowns, and is not scaled, so that a host finds
  // the equations of a Schur complement in their places.
  sparse::FactorOutcome solve_part(Substitution part, int columns, const T* b, T* x) {
    const int* const between = solver.plan_.permutation();
    const bool is_first = part == Substitution::kForward, is_last = part == Substitution::kBackward;
    const std::size_t end = static_cast<std::size_t>(columns) * size();
    for (std::size_t c = 0; c < end; c += size()) {
      load({}, is_first ? sources() : between, is_first ? source_scale() : nullptr, b + c, work.data() + c);
    }
    sparse::FactorOutcome outcome = run(is_first  ? sparse::Stage::kForward
                                        : is_last ? sparse::Stage::kBackward
                                                  : sparse::Stage::kDiagonal,
                                        columns);
    const bool solves_schur = part == Substitution::kDiagonal && solver.schur_size() > 0;
    if (outcome == sparse::FactorOutcome::kDone && solves_schur) outcome = solve_schur(columns);
    if (outcome != sparse::FactorOutcome::kDone) return outcome;
    for (std::size_t c = 0; c < end; c += size()) {
      store({}, is_last ? targets() : between, is_last ? target_scale() : nullptr, work.data() + c, x + c);
    }
    return outcome;
  }

  // Improves x, so many columns of it. `total` has the worst of all calls.
  Error refine(const sparse::LinearSystem<T>& system, const SolutionOptions& options, int columns, const T* b, T* x,
               sparse::RefinementReport& total) {
    const sparse::RefinementOptions how = {.most_steps = options.refinement_limit,
                                           .extended = options.has_precise_residuals};
    sparse::RefinementReport report;
    const sparse::FactorOutcome outcome = sparse::refine(
        system, how, columns, b, solver.size(), x, solver.size(),
        [this](int count, T* corrections) { return solve(count, corrections, corrections); }, report);
    total.steps = std::max(total.steps, report.steps);
    total.backward_error = std::max(total.backward_error, report.backward_error);
    if (outcome != sparse::FactorOutcome::kDone) return error_of(outcome);
    return report.end < sparse::RefinementEnd::kDiverged ? Error::kDone : Error::kNumericFailed;
  }
};

// Exchanges that are confined to a block may let entries grow without a pivot that is perturbed. What that does to
// solutions shows in one for which the exact answer is known; if it is much, the slot keeps the values, because the
// host need not have them any more. Nor does a host that asks for partial solutions, which are whole ones then.
template <Scalar T>
Error TypedSolver<T>::assess(Slot& slot, const T* values) {
  if (!kind_.has_perturbed_pivots() || schur() == Schur::kAlone) return Error::kDone;
  if (slot.results.perturbed > 0) return partial() == Partial::kNone ? Error::kDone : keep_values(slot, values);
  if (schur() == Schur::kWithFactors && !slot.has_schur) return Error::kDone;
  constexpr double kGood = 16 * std::numeric_limits<Real>::epsilon();
  const auto n = static_cast<std::size_t>(size());
  base::Workspace<T> x(n), b(n);
  Solution solution(*this, slot, {}, false);
  if (!x || !b || !solution.reserve(1)) return Error::kNoMemory;
  std::minstd_rand random;
  std::generate_n(x.data(), n, [&random] { return static_cast<Real>(random() % 1024 + 1) / Real{512} - 1; });
  const sparse::LinearSystem<T> system = system_of(values);
  multiply(system, x.data(), b.data());
  const sparse::FactorOutcome outcome = solution.solve(1, b.data(), x.data());
  if (outcome != sparse::FactorOutcome::kDone) return error_of(outcome);
  const double error = sparse::backward_error(system, b.data(), x.data());
  if (error < 0) return Error::kNoMemory;
  return error <= kGood || !std::isfinite(error) ? Error::kDone : keep_values(slot, values);
}

template <Scalar T>
Error TypedSolver<T>::keep_values(Slot& slot, const T* values) {
  slot.values = base::Workspace<T>(static_cast<std::size_t>(pattern_.entries()));
  if (!slot.values) return Error::kNoMemory;
  std::copy_n(values, slot.values.size(), slot.values.data());
  return Error::kDone;
}

template <Scalar T>
bool TypedSolver<T>::refines(const Slot& slot, const SolutionOptions& options) const {
  if (partial() != Partial::kNone) return refines_by_itself(slot, options);
  if (options.refinement_limit == 0) return false;
  return !options.is_refined_if_needed || slot.results.perturbed > 0 || slot.values;
}

template <Scalar T>
bool TypedSolver<T>::reads_matrix(int slot, const SolutionOptions& options) const {
  const Slot& found = *find(slot);
  return refines(found, options) && !refines_by_itself(found, options);
}

// b, of which a partial solution may leave out what is not flagged: then `storage` has zeros there.
template <Scalar T>
const T* TypedSolver<T>::mask(const T* b, int columns, base::Workspace<T>& storage) const {
  if (partial() != Partial::kFlaggedBoth) return b;
  const int n = size();
  for (int c = 0; c < columns; ++c) {
    const std::ptrdiff_t first = std::ptrdiff_t{c} * n;
    for (int i = 0; i < n; ++i) storage.data()[first + i] = is_flagged(i) ? b[first + i] : T{};
  }
  return storage.data();
}

// What the host wants of x.
template <Scalar T>
void TypedSolver<T>::deliver(const T* x, int columns, T* target) const {
  const int n = size();
  const bool wants_all = partial() == Partial::kNone || partial() == Partial::kFlaggedRightHandSide;
  for (int c = 0; c < columns; ++c, x += n, target += n) {
    for (int i = 0; i < n; ++i) {
      if (wants_all || is_flagged(i)) target[i] = x[i];
    }
  }
}

template <Scalar T>
Error TypedSolver<T>::solve(const Call& call, const SolutionOptions& options, Substitution substitution, int& steps) {
  const auto n = static_cast<std::size_t>(size());
  const Slot& slot = *find(call.slot);
  const bool is_refined = substitution == Substitution::kWhole && refines(slot, options);
  const int at_once = std::min(call.nrhs, kColumnsAtOnce);
  Solution solution(*this, slot, options, !is_refined);
  base::Workspace<T> refined, masked, storage;
  const T* values = nullptr;
  if (!solution.reserve(at_once)) return Error::kNoMemory;
  if (is_refined) {
    const std::size_t elements = base::saturating_product(n, static_cast<std::size_t>(at_once));
    refined = base::Workspace<T>(elements);
    masked = base::Workspace<T>(partial() == Partial::kFlaggedBoth ? elements : 0);
    values = refines_by_itself(slot, options) ? slot.values.data() : gather(call, storage);
    if (!refined || !masked || values == nullptr) return Error::kNoMemory;
  }
  sparse::LinearSystem<T> system = system_of(values);
  system.operation = solution.operation;
  sparse::RefinementReport report;
  T* const target = static_cast<T*>(options.overwrites_b ? call.b : call.x);
  for (int first = 0; first < call.nrhs; first += at_once) {
    const int columns = std::min(at_once, call.nrhs - first);
    const std::size_t offset = static_cast<std::size_t>(first) * n;
    const T* b = static_cast<const T*>(call.b) + offset;
    if (is_refined) b = mask(b, columns, masked);
    T* const x = is_refined ? refined.data() : target + offset;
    {
      const Statistics::Timer timer = call.time(Step::kSubstitution);
      const sparse::FactorOutcome outcome = substitution == Substitution::kWhole
                                                ? solution.solve(columns, b, x)
                                                : solution.solve_part(substitution, columns, b, x);
      if (outcome != sparse::FactorOutcome::kDone) return error_of(outcome);
    }
    if (!is_refined) continue;
    const Statistics::Timer timer = call.time(Step::kRefinement);
    const Error error = solution.refine(system, options, columns, b, x, report);
    steps = report.steps;
    call.statistics->backward_error = report.backward_error;
    if (error != Error::kDone) return error;
    deliver(x, columns, target + offset);
  }
  return Error::kDone;
}

template <Scalar T>
Error TypedSolver<T>::iterate(const Call& call, const SolutionOptions& options, const IterationOptions& iteration,
                              int& result) {
  const Statistics::Timer timer = call.time(Step::kRefinement);
  const auto n = static_cast<std::size_t>(size());
  const auto end_with = [&result](const IterationEnd& end) {
    result = end.fault == IterationFault::kNone ? end.steps : -(10 * end.steps + static_cast<int>(end.fault));
    return end.fault == IterationFault::kNone ? Error::kDone : Error::kNumericFailed;
  };
  if (find(call.slot)->results.perturbed > 0) return end_with({0, IterationFault::kPerturbed});
  Solution solution(*this, *find(call.slot), options, true);
  constexpr std::size_t kVectors = 7;
  base::Workspace<T> storage, work(base::saturating_product(n, kVectors)),
      x(base::saturating_product(n, static_cast<std::size_t>(call.nrhs)));
  sparse::LinearSystem<T> system = system_of(gather(call, storage));
  system.operation = solution.operation;
  if (!solution.reserve(1) || !work || !x || system.A.values == nullptr) return Error::kNoMemory;
  sparse::FactorOutcome failure = sparse::FactorOutcome::kDone;
  const auto multiply_by = [&](const T* from, T* to) { multiply(system, from, to); };
  const auto precondition = [&](T* vector) {
    const sparse::FactorOutcome outcome = solution.solve(1, vector, vector);
    if (outcome != sparse::FactorOutcome::kDone) failure = outcome;
  };
  IterationEnd longest;
  for (std::size_t c = 0; c < x.size(); c += n) {
    const T* const b = static_cast<const T*>(call.b) + c;
    const IterationEnd end =
        iteration.method == Method::kConjugateGradients
            ? conjugate_gradients(n, b, x.data() + c, iteration.tolerance, multiply_by, precondition, work.data())
            : conjugate_gradients_squared(n, b, x.data() + c, iteration.tolerance, multiply_by, precondition,
                                          work.data());
    if (failure != sparse::FactorOutcome::kDone) return error_of(failure);
    if (end.fault != IterationFault::kNone) return end_with(end);
    longest.steps = std::max(longest.steps, end.steps);
  }
  std::copy(x.begin(), x.end(), static_cast<T*>(options.overwrites_b ? call.b : call.x));
  return end_with(longest);
}

template class TypedSolver<float>;
template class TypedSolver<double>;
template class TypedSolver<std::complex<float>>;
template class TypedSolver<std::complex<double>>;

}  // namespace quorin::pardiso
