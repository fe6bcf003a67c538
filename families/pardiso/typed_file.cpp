// What a handle holds, in a file and from a file. A forged file is refused, or gives wrong solutions; it does no harm.
// Factors that were in files of their own come back into memory.
#include <algorithm>

#include "families/pardiso/archive.hpp"
#include "families/pardiso/typed_solver.hpp"

namespace quorin::pardiso {
namespace {

template <class Archive>
void transfer(Archive& archive, AnalysisOptions& options) {
  archive.choice(options.ordering, sparse::OrderingMethod::kGiven);
  for (bool* flag : {&options.takes_permutation, &options.returns_permutation, &options.is_scaled, &options.is_matched,
                     &options.is_checked, &options.is_single, &options.is_zero_based, &options.keeps_diagonal,
                     &options.is_in_memory}) {
    archive.number(*flag);
  }
  archive.choice(options.partial, Partial::kFlaggedSolution);
  archive.choice(options.schur, Schur::kWithFactors);
  archive.number(options.block);
}

template <class Archive>
void transfer(Archive& archive, FactorizationResults& results) {
  for (int* number : {&results.perturbed, &results.positive, &results.negative, &results.bad_equation}) {
    archive.number(*number);
  }
}

// Of n entries, or none if that is allowed.
template <class T>
bool has_size(const base::Workspace<T>& values, int n, bool may_be_none = true) {
  return values.size() == static_cast<std::size_t>(n) || (may_be_none && values.size() == 0);
}

bool are_numbers_below(const base::Workspace<int>& values, int least, int n) {
  return std::all_of(values.data(), values.data() + values.size(), [=](int v) { return v >= least && v < n; });
}

// False also without memory.
bool is_permutation(const base::Workspace<int>& values) {
  const int n = static_cast<int>(values.size());
  base::Workspace<char> is_taken(values.size());
  if (!is_taken || !are_numbers_below(values, 0, n)) return false;
  std::fill(is_taken.begin(), is_taken.end(), 0);
  for (int k = 0; k < n; ++k) is_taken[values[k]] = 1;
  return std::find(is_taken.begin(), is_taken.end(), 0) == is_taken.end();
}

}  // namespace

Error Solver::write(sparse::FileWriter& file) {
  WritingArchive archive(file);
  archive.number(kind_.mtype);
  transfer(archive, options_);
  archive.number(host_size_);
  pattern_.transfer(archive);
  return write_rest(file);
}

Error Solver::read(sparse::FileReader& file, Solver*& solver) {
  ReadingArchive archive(file);
  std::int32_t mtype = 0;
  AnalysisOptions options;
  archive.number(mtype);
  transfer(archive, options);
  const std::optional<Kind> kind = kind_of(mtype);
  if (!kind) file.reject();
  if (file.outcome() != sparse::FactorOutcome::kDone) return error_of(file.outcome());
  solver = create(*kind, options);
  if (solver == nullptr) return Error::kNoMemory;
  archive.number(solver->host_size_);
  solver->pattern_.transfer(archive);
  if (file.outcome() == sparse::FactorOutcome::kDone && !solver->pattern_.is_sound()) file.reject();
  return file.outcome() == sparse::FactorOutcome::kDone ? solver->read_rest(file) : error_of(file.outcome());
}

template <Scalar T>
template <class Archive>
void TypedSolver<T>::transfer(Archive& archive) {
  archive.array(flags_);
  archive.number(flagged_);
  archive.array(order_);
  archive.array(row_position_);
  archive.array(row_scale_);
  archive.array(column_scale_);
  archive.number(values_fingerprint_);
  for (std::int64_t* number :
       {&analysis_results_.peak_bytes, &analysis_results_.kept_bytes, &analysis_results_.factor_bytes,
        &analysis_results_.least_bytes, &analysis_results_.factor_entries}) {
    archive.number(*number);
  }
  archive.number(analysis_results_.operations);
}

template <Scalar T>
bool TypedSolver<T>::is_sound() const {
  const int n = size();
  return has_size(flags_, n) && std::count(flags_.data(), flags_.data() + flags_.size(), 1) == flagged_ &&
         has_size(order_, n, false) && is_permutation(order_) && has_size(row_position_, n) &&
         is_permutation(row_position_) && has_size(row_scale_, n) && has_size(column_scale_, n) &&
         (row_scale_.size() == 0) == (column_scale_.size() == 0);
}

template <Scalar T>
Error TypedSolver<T>::write_rest(sparse::FileWriter& file) {
  WritingArchive archive(file);
  transfer(archive);
  if (const auto outcome = sparse::Archive::put(file, plan_); outcome != sparse::FactorOutcome::kDone) {
    return error_of(outcome);
  }
  std::int32_t count = 0;
  for (const Slot* slot = slots_; slot != nullptr; slot = slot->next) count += slot->factor ? 1 : 0;
  archive.number(count);
  for (Slot* slot = slots_; slot != nullptr; slot = slot->next) {
    if (!slot->factor) continue;
    archive.number(slot->number);
    pardiso::transfer(archive, slot->results);
    archive.array(slot->diagonal);
    archive.array(slot->values);
    const sparse::FactorOutcome outcome = sparse::Archive::put(file, slot->factor);
    if (outcome != sparse::FactorOutcome::kDone) return error_of(outcome);
  }
  return error_of(file.outcome());
}

template <Scalar T>
Error TypedSolver<T>::read_rest(sparse::FileReader& file) {
  ReadingArchive archive(file);
  transfer(archive);
  if (file.outcome() == sparse::FactorOutcome::kDone && !is_sound()) file.reject();
  if (const auto outcome = sparse::Archive::get(file, plan_); outcome != sparse::FactorOutcome::kDone) {
    return error_of(outcome);
  }
  std::int32_t count = 0;
  archive.number(count);
  if (plan_.size() != size() || plan_.schur_size() != schur_size() || count < 0) file.reject();
  if (file.outcome() != sparse::FactorOutcome::kDone) return error_of(file.outcome());
  Error error = find_places();
  for (int k = 0; k < count && error == Error::kDone; ++k) error = read_slot(file);
  return error;
}

template <Scalar T>
Error TypedSolver<T>::read_slot(sparse::FileReader& file) {
  ReadingArchive archive(file);
  std::int32_t number = 0;
  archive.number(number);
  if (file.outcome() == sparse::FactorOutcome::kDone && (number < 1 || find(number) != nullptr)) file.reject();
  if (file.outcome() != sparse::FactorOutcome::kDone) return error_of(file.outcome());
  Slot* const slot = obtain(number);
  if (slot == nullptr) return Error::kNoMemory;
  pardiso::transfer(archive, slot->results);
  archive.array(slot->diagonal);
  archive.array(slot->values);
  const bool is_sound =
      has_size(slot->diagonal, size(), !options_.keeps_diagonal) && has_size(slot->values, pattern_.entries());
  if (file.outcome() == sparse::FactorOutcome::kDone && !is_sound) file.reject();
  if (file.outcome() != sparse::FactorOutcome::kDone) return error_of(file.outcome());
  const sparse::FactorOutcome outcome = sparse::Archive::get(file, plan_, slot->factor);
  if (outcome != sparse::FactorOutcome::kDone) return error_of(outcome);
  if (slot->factor.factorization() != factorization()) return Error::kWrongFile;
  return schur() == Schur::kWithFactors ? factor_schur(*slot) : Error::kDone;
}

// The factor has it, unfactored.
template <Scalar T>
Error TypedSolver<T>::factor_schur(Slot& slot) const {
  const auto m = static_cast<std::size_t>(schur_size());
  base::Workspace<T> S(base::saturating_product(m, m));
  if (!S) return Error::kNoMemory;
  const sparse::FactorOutcome outcome = sparse::copy_schur_complement(slot.factor, true, S.data(), schur_size());
  return outcome == sparse::FactorOutcome::kDone ? factor_schur(slot, S.data()) : error_of(outcome);
}

template class TypedSolver<float>;
template class TypedSolver<double>;
template class TypedSolver<std::complex<float>>;
template class TypedSolver<std::complex<double>>;

}  // namespace quorin::pardiso
