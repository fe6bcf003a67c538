// The second stage, and the slots that it fills.
#include <algorithm>
#include <limits>
#include <new>

#include "base/thread_settings.hpp"
#include "families/pardiso/typed_solver.hpp"

namespace quorin::pardiso {
namespace {

sparse::Pivoting pivoting_of(const Kind& kind, bool has_pairs) {
  if (kind.is_definite) return sparse::Pivoting::kInOrder;
  if (kind.stores_upper) return has_pairs ? sparse::Pivoting::kBunchKaufman : sparse::Pivoting::kDiagonal;
  return kind.is_unsymmetric() ? sparse::Pivoting::kComplete : sparse::Pivoting::kPartial;
}

}  // namespace

template <Scalar T>
TypedSolver<T>::~TypedSolver() {
  while (slots_ != nullptr) free_slot(slots_->number);
}

template <Scalar T>
typename TypedSolver<T>::Slot* TypedSolver<T>::find(int slot) const {
  Slot* found = slots_;
  while (found != nullptr && found->number != slot) found = found->next;
  return found;
}

template <Scalar T>
typename TypedSolver<T>::Slot* TypedSolver<T>::obtain(int slot) {
  if (Slot* const found = find(slot); found != nullptr) return found;
  void* const memory = base::allocate(sizeof(Slot));
  if (memory == nullptr) return nullptr;
  slots_ = new (memory) Slot(slot, slots_);
  return slots_;
}

template <Scalar T>
void TypedSolver<T>::free_slot(int slot) {
  Slot** link = &slots_;
  while (*link != nullptr && (*link)->number != slot) link = &(*link)->next;
  Slot* const found = *link;
  if (found == nullptr) return;
  *link = found->next;
  found->~Slot();
  base::release(found);
}

template <Scalar T>
bool TypedSolver<T>::is_factored(int slot) const {
  const Slot* const found = find(slot);
  return found != nullptr && static_cast<bool>(found->factor);
}

template <Scalar T>
int TypedSolver<T>::last_slot() const {
  int last = 0;
  for (const Slot* slot = slots_; slot != nullptr; slot = slot->next) last = std::max(last, slot->number);
  return last;
}

template <Scalar T>
FactorizationResults TypedSolver<T>::factorization_results(int slot) const {
  const Slot* const found = find(slot);
  return found == nullptr ? FactorizationResults{} : found->results;
}

template <Scalar T>
sparse::FactorOptions TypedSolver<T>::factor_options(const FactorizationOptions& options) const {
  // What is below some roundings of the matrix is nothing but rounding errors, and in single precision a perturbation
  // that is smaller would leave nothing else of such a pivot's row.
  constexpr double kRoundings = 16;
  constexpr double kLeast = std::is_same_v<Real, float> ? kRoundings * std::numeric_limits<float>::epsilon() : 0.0;
  sparse::FactorOptions how;
  how.factorization = factorization();
  how.pivoting = pivoting_of(kind_, options.has_pairs);
  how.perturbation = options.perturbation;
  if (kind_.has_perturbed_pivots()) how.perturbation = std::max(how.perturbation, kLeast);
  how.threads = base::region_threads(base::Domain::kSparseDirect);
  return how;
}

template <Scalar T>
Error TypedSolver<T>::factorize(const Call& call, const FactorizationOptions& options) {
  base::Workspace<T> storage;
  const T* const values = [&] {
    const Statistics::Timer timer = call.time(Step::kValues);
    return gather(call, storage);
  }();
  Slot* const slot = obtain(call.slot);
  if (values == nullptr || slot == nullptr) {
    free_slot(call.slot);
    return Error::kNoMemory;
  }
  Error error = compute(call, options, *slot, values);
  if (error == Error::kDone && wants_another_matching(*slot, values)) {
    slot->factor.clear();
    error = analyze_values(call, values);
    if (error == Error::kDone || error == Error::kMatchingFailed) error = compute(call, options, *slot, values);
  }
  if (error == Error::kDone) error = keep_files(*slot);
  if (error == Error::kDone && options_.keeps_diagonal) error = keep_diagonal(*slot, values);
  if (error == Error::kDone && schur() != Schur::kNone) error = keep_schur(*slot, static_cast<T*>(call.x));
  if (error == Error::kDone) error = assess(*slot, values);
  if (error != Error::kDone) {
    slot->factor.clear();
    slot->files.reset();
  }
  return error;
}

template <Scalar T>
Error TypedSolver<T>::compute(const Call& call, const FactorizationOptions& options, Slot& slot, const T* values) {
  slot.results = {};
  slot.values = {};
  if (is_singular_diagonal(values)) return Error::kDiagonalSingular;
  if (const Error error = choose_store(slot, options); error != Error::kDone) return error;
  sparse::FactorOptions how = factor_options(options);
  how.store = slot.files.get();
  how.progress = call.progress;
  const Statistics::Timer timer = call.time(Step::kFactorization);
  const sparse::FactorOutcome outcome =
      slot.factor.compute(plan_, assembly_, {values, row_scale_.data(), column_scale_.data()}, how);
  const sparse::FactorReport& report = slot.factor.report();
  call.statistics->factor_bytes = slot.files == nullptr ? report.bytes : analysis_results_.factor_bytes;
  call.statistics->is_out_of_core = slot.files != nullptr;
  if (kind_.has_perturbed_pivots()) slot.results.perturbed = report.pivots.perturbed;
  if (kind_.has_inertia()) {
    slot.results.positive = report.pivots.positive;
    slot.results.negative = report.pivots.negative;
  }
  if (kind_.is_definite && report.failed_column != sparse::kNone) slot.results.bad_equation = report.failed_column + 1;
  // A matrix of zeros has none to perturb by.
  return outcome == sparse::FactorOutcome::kDone && report.pivots.zero > 0 ? Error::kNumericFailed : error_of(outcome);
}

// Pivots were perturbed, and rows were matched and scaled for other values than these. The plan may only be replaced
// where no other factors stand on it, and the order is not the host's.
template <Scalar T>
bool TypedSolver<T>::wants_another_matching(const Slot& slot, const T* values) const {
  const bool is_alone = slots_ == &slot && slot.next == nullptr;
  return slot.results.perturbed > 0 && options_.is_matched && kind_.is_unsymmetric() && is_alone &&
         !options_.takes_permutation && !options_.has_flags() && fingerprint_of(values) != values_fingerprint_;
}

// Makes files that stay when the handle goes, if the host wants them.
template <Scalar T>
Error TypedSolver<T>::keep_files(Slot& slot) {
  if (slot.files == nullptr || !slot.keeps_files) return Error::kDone;
  const sparse::FactorOutcome outcome = slot.files->begin_index();
  return error_of(outcome == sparse::FactorOutcome::kDone ? slot.files->complete() : outcome);
}

// Files take the place of memory if the host says so, or if it lets the size decide.
template <Scalar T>
Error TypedSolver<T>::choose_store(Slot& slot, const FactorizationOptions& options) {
  if (options.storage == Storage::kMemory && slot.files == nullptr) return Error::kDone;
  slot.factor.clear();
  slot.files.reset();
  if (options.storage == Storage::kMemory) return Error::kDone;
  const OutOfCoreSettings settings = read_out_of_core_settings();
  if (options.storage == Storage::kAsFits && analysis_results_.factor_bytes <= settings.bytes_in_memory()) {
    return Error::kDone;
  }
  if (analysis_results_.least_bytes > settings.core_bytes()) return Error::kCoreTooSmall;
  slot.keeps_files = settings.keeps_files;
  slot.files = make_owned<sparse::PanelFiles>();
  return slot.files == nullptr ? Error::kNoMemory : begin_files(*slot.files, settings);
}

template <Scalar T>
Error TypedSolver<T>::keep_diagonal(Slot& slot, const T* values) {
  slot.diagonal = base::Workspace<T>(static_cast<std::size_t>(size()));
  if (!slot.diagonal) return Error::kNoMemory;
  for (int i = 0; i < size(); ++i) {
    const int* const end = pattern_.columns() + pattern_.starts()[i + 1];
    const int* const place = std::lower_bound(pattern_.columns() + pattern_.starts()[i], end, i);
    slot.diagonal[i] = place != end && *place == i ? values[place - pattern_.columns()] : T{};
  }
  return Error::kDone;
}

template <Scalar T>
Error TypedSolver<T>::keep_schur(Slot& slot, T* S) const {
  const sparse::FactorOutcome outcome = sparse::copy_schur_complement(slot.factor, true, S, schur_size());
  if (outcome != sparse::FactorOutcome::kDone) return error_of(outcome);
  if (schur() == Schur::kWithFactors) return factor_schur(slot, S);
  slot.factor.clear();
  return Error::kDone;
}

// Without factors of its own, a singular complement leaves the host the forward and the backward substitution.
template <Scalar T>
Error TypedSolver<T>::factor_schur(Slot& slot, const T* S) const {
  const int threads = base::region_threads(base::Domain::kSparseDirect);
  const sparse::FactorOutcome outcome = slot.schur.compute(schur_size(), S, schur_size(), true, 0.0, threads);
  slot.has_schur = outcome == sparse::FactorOutcome::kDone;
  return outcome == sparse::FactorOutcome::kOutOfMemory ? Error::kNoMemory : Error::kDone;
}

// Of the scaled matrix where it is scaled, in the order of the pivots.
template <Scalar T>
Error TypedSolver<T>::write_diagonals(int slot, void* df, void* da) const {
  const Slot* const found = find(slot);
  if (!options_.keeps_diagonal || found == nullptr || !found->factor) return Error::kInconsistent;
  if (da != nullptr) std::copy_n(found->diagonal.data(), found->diagonal.size(), static_cast<T*>(da));
  for (int s = 0; df != nullptr && s < plan_.supernodes(); ++s) {
    const sparse::PinnedPanel<T> panel(found->factor.panels(), s);
    if (panel.data() == nullptr) return Error::kFileFailed;
    const auto height = static_cast<std::size_t>(plan_.height(found->factor.panels().kind(), s));
    for (int k = 0; k < plan_.columns(s); ++k) {
      static_cast<T*>(df)[plan_.first(s) + k] = panel.data()[static_cast<std::size_t>(k) * (height + 1)];
    }
  }
  return Error::kDone;
}

template class TypedSolver<float>;
template class TypedSolver<double>;
template class TypedSolver<std::complex<float>>;
template class TypedSolver<std::complex<double>>;

}  // namespace quorin::pardiso
