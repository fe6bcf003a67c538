#include "families/pardiso/solver.hpp"

#include <algorithm>
#include <new>
#include <numeric>

#include "families/pardiso/typed_solver.hpp"

namespace quorin::pardiso {
namespace {

template <Scalar T>
Solver* make(const Kind& kind, const AnalysisOptions& options) {
  void* const memory = base::allocate(sizeof(TypedSolver<T>));
  return memory == nullptr ? nullptr : new (memory) TypedSolver<T>(kind, options);
}

}  // namespace

Solver* Solver::create(const Kind& kind, const AnalysisOptions& options) {
  if (kind.is_complex) {
    return options.is_single ? make<std::complex<float>>(kind, options) : make<std::complex<double>>(kind, options);
  }
  return options.is_single ? make<float>(kind, options) : make<double>(kind, options);
}

void Solver::destroy(Solver* solver) {
  if (solver == nullptr) return;
  void* const memory = dynamic_cast<void*>(solver);
  solver->~Solver();
  base::release(memory);
}

void Solver::describe(Statistics& statistics) const {
  statistics.equations = size();
  statistics.entries = pattern_.entries();
  statistics.flagged = flagged_;
  statistics.factor_entries = analysis_results_.factor_entries;
  statistics.operations = analysis_results_.operations;
  statistics.supernodes = plan_.supernodes();
  statistics.widest = plan_.most_columns();
  for (int s = 0; s < plan_.supernodes(); ++s) statistics.most_rows = std::max(statistics.most_rows, plan_.rows(s));
  statistics.depth = plan_.depth();
}

Error Solver::read(const Call& call) {
  const Statistics::Timer timer = call.time(Step::kReading);
  const bool reads_values = options_.is_matched || options_.is_scaled;
  const bool reads_perm = options_.takes_permutation || options_.has_flags();
  if ((reads_values && call.a == nullptr) || (reads_perm && call.perm == nullptr) ||
      (options_.returns_permutation && call.perm == nullptr)) {
    return Error::kInconsistent;
  }
  host_size_ = call.rows.n;
  if (const Error error = pattern_.read(call.rows, kind_, options_.is_checked); error != Error::kDone) return error;
  if (options_.takes_permutation) return read_permutation(call.perm);
  return options_.has_flags() ? read_flags(call.perm) : Error::kDone;
}

// Of rows as the host counts them, perhaps blocks.
Error Solver::read_permutation(const std::int32_t* perm) {
  const auto n = static_cast<std::size_t>(host_size_), order = static_cast<std::size_t>(size() / host_size_);
  given_order_ = base::Workspace<int>(n * order);
  base::Workspace<char> is_taken(n);
  if (!given_order_ || !is_taken) return Error::kNoMemory;
  std::fill(is_taken.begin(), is_taken.end(), 0);
  for (std::size_t k = 0; k < n; ++k) {
    const std::int64_t row = std::int64_t{perm[k]} - options_.base();
    if (row < 0 || row >= host_size_) return Error::kInconsistent;
    char& taken = is_taken[static_cast<std::size_t>(row)];
    if (taken != 0) return Error::kInconsistent;
    taken = 1;
    std::iota(&given_order_[k * order], &given_order_[k * order] + order,
              static_cast<int>(static_cast<std::size_t>(row) * order));
  }
  return Error::kDone;
}

Error Solver::read_flags(const std::int32_t* perm) {
  flags_ = base::Workspace<char>(static_cast<std::size_t>(size()));
  if (!flags_) return Error::kNoMemory;
  std::transform(perm, perm + size(), flags_.begin(), [](std::int32_t flag) { return flag == 1 ? 1 : 0; });
  flagged_ = static_cast<int>(std::count(flags_.begin(), flags_.end(), 1));
  return Error::kDone;
}

}  // namespace quorin::pardiso
