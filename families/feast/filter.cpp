#include "families/feast/filter.hpp"

#include <algorithm>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "platform/platform.hpp"

namespace quorin::feast {

using sparse::FactorOutcome;
using sparse::Operation;
using sparse::Stage;

template <Scalar T>
bool Filter<T>::reserve(const Pencil<T>& pencil, const DirectSolver<T>& solver, const Contour& contour,
                        const Subspace<T>& X) {
  pencil_ = &pencil;
  solver_ = &solver;
  contour_ = &contour;
  threads_ = X.threads();
  block_ = std::min(Subspace<T>::kBlock, X.capacity());
  plan_memory(solver.factor_bytes());
  const auto group = static_cast<std::size_t>(group_), columns = kSolutions * static_cast<std::size_t>(block_);
  values_ = base::Workspace<Complex>(base::saturating_product(group, solver.value_count()));
  solutions_ =
      base::Workspace<Complex>(base::saturating_product(group * columns, static_cast<std::size_t>(pencil.size())));
  return values_ && solutions_;
}

// All factors are kept if they take no more than half of what there is; otherwise one at a time is made, on all
// threads, beside as many as may stay.
template <Scalar T>
void Filter<T>::plan_memory(double bytes) {
  const platform::MemoryStatus memory = platform::memory_status();
  const double budget = std::min(memory.total_physical, memory.available_virtual) / 2;
  const int nodes = contour_->size();
  const bool all_fit = nodes * bytes <= budget;
  group_ = all_fit ? std::min(threads_, nodes) : 1;
  kept_ = all_fit ? nodes : std::max(0, static_cast<int>(budget / bytes) - 1);
}

template <Scalar T>
Status Filter<T>::apply(Subspace<T>& X) {
  for (int first = 0; first < contour_->size();) {
    const int count = std::min(group_, contour_->size() - first);
    Status status = factor_group(first, count);
    if (status == Status::kNoMemory && release(first, count)) continue;
    if (status == Status::kDone) status = solve_group(first, count, X);
    if (status != Status::kDone) return status;
    for (int node = std::max(first, kept_); node < first + count; ++node)
      factors_[static_cast<std::size_t>(node)].clear();
    first += count;
  }
  X.exchange();
  return Status::kDone;
}

template <Scalar T>
Status Filter<T>::factor_group(int first, int count) {
  std::array<FactorOutcome, Contour::kMostNodes> outcomes;
  base::parallel_for(count, count, [&](int place) {
    const int node = first + place;
    sparse::Factor<Complex>& factor = factors_[static_cast<std::size_t>(node)];
    Complex* const values = values_.data() + static_cast<std::size_t>(place) * solver_->value_count();
    outcomes[static_cast<std::size_t>(place)] =
        factor ? FactorOutcome::kDone
               : solver_->factor((*contour_)[node].point, values, count == 1 ? threads_ : 1, factor);
  });
  for (int place = 0; place < count; ++place) {
    const FactorOutcome outcome = outcomes[static_cast<std::size_t>(place)];
    if (outcome != FactorOutcome::kDone) return status_of(outcome);
  }
  return Status::kDone;
}

// Gives memory back for another attempt: fewer nodes at a time, then fewer factors that are kept. False if there is
// nothing left to give.
template <Scalar T>
bool Filter<T>::release(int first, int count) {
  if (group_ > 1) {
    group_ = 1;
    for (int node = first; node < first + count; ++node) factors_[static_cast<std::size_t>(node)].clear();
    return true;
  }
  for (int node = contour_->size() - 1; node >= 0; --node) {
    sparse::Factor<Complex>& factor = factors_[static_cast<std::size_t>(node)];
    if (node == first || !factor) continue;
    factor.clear();
    kept_ = std::min(kept_, node);
    return true;
  }
  return false;
}

// The sum over nodes has a fixed order.
template <Scalar T>
Status Filter<T>::solve_group(int first, int count, Subspace<T>& X) {
  T* const rhs = X.block_of(0, 0);
  std::array<Status, Contour::kMostNodes> statuses;
  for (int column = 0; column < X.size(); column += block_) {
    const int columns = std::min(block_, X.size() - column);
    pencil_->multiply_by_b(columns, X.column(column), rhs);
    base::parallel_for(count, count, [&](int place) {
      statuses[static_cast<std::size_t>(place)] =
          solve_node(first + place, place, rhs, columns, count == 1 ? threads_ : 1);
    });
    for (int place = 0; place < count; ++place) {
      if (const Status status = statuses[static_cast<std::size_t>(place)]; status != Status::kDone) return status;
    }
    base::parallel_for(columns, threads_, [&](int j) {
      T* const sum = X.other(column + j);
      if (first == 0) std::fill_n(sum, pencil_->size(), T{});
      for (int place = 0; place < count; ++place) {
        accumulate(first + place, solution(place, 0, j), solution(place, kSolutions - 1, j), sum);
      }
    });
  }
  return Status::kDone;
}

template <Scalar T>
Status Filter<T>::solve_node(int node, int place, const T* rhs, int columns, int threads) {
  constexpr Operation kOperations[] = {Operation::kPlain, Operation::kAdjoint};
  const int n = pencil_->size();
  const int* const permutation = solver_->plan().permutation();
  for (int which = 0; which < kSolutions; ++which) {
    for (int j = 0; j < columns; ++j) {
      const T* const from = rhs + static_cast<std::ptrdiff_t>(j) * n;
      Complex* const to = solution(place, which, j);
      for (int k = 0; k < n; ++k) to[k] = from[permutation[k]];
    }
    const FactorOutcome outcome = sparse::solve(factors_[static_cast<std::size_t>(node)], kOperations[which],
                                                Stage::kAll, columns, solution(place, which, 0), n, threads);
    if (outcome != FactorOutcome::kDone) return status_of(outcome);
  }
  return Status::kDone;
}

template <Scalar T>
void Filter<T>::accumulate(int node, const Complex* solution, const Complex* adjoint_solution, T* sum) const {
  const Complex weight = (*contour_)[node].weight;
  const int* const permutation = solver_->plan().permutation();
  for (int k = 0; k < pencil_->size(); ++k) {
    if constexpr (kIsComplex<T>) {
      sum[permutation[k]] += (product(weight, solution[k]) + product(std::conj(weight), adjoint_solution[k])) / 2.0;
    } else {
      sum[permutation[k]] += product(weight, solution[k]).real();
    }
  }
}

template class Filter<double>;
template class Filter<std::complex<double>>;

}  // namespace quorin::feast
