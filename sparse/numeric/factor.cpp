#include "sparse/numeric/factor.hpp"

#include <algorithm>
#include <complex>

#include "base/thread_settings.hpp"
#include "dense/blocked.hpp"
#include "sparse/numeric/factor_task.hpp"

namespace quorin::sparse {

namespace {

// Arrays of n that tell the order of the pivots.
int order_arrays(const FactorOptions& options) noexcept {
  if (options.factorization == Factorization::kLLT || options.pivoting == Pivoting::kInOrder) return 0;
  return options.pivoting == Pivoting::kComplete ? 2 : 1;
}

int threads_of(const FactorOptions& options) noexcept { return std::clamp(options.threads, 1, base::kMostThreads); }

template <Scalar T>
std::int64_t panel_bytes(const Plan& plan, const FactorOptions& options) noexcept {
  if (options.store != nullptr) return 0;
  return plan.panel_elements(panel_kind(options.factorization)) * static_cast<std::int64_t>(sizeof(T)) +
         plan.supernodes() * static_cast<std::int64_t>(sizeof(std::size_t));
}

// What the method takes beside the factor.
template <Scalar T>
std::int64_t work_bytes(const Plan& plan, const FactorOptions& options, int threads) noexcept {
  return options.method == Method::kMultifrontal ? MultifrontalMethod<T>::bytes(plan, threads, options.store)
                                                 : LeftLookingMethod<T>::bytes(plan, options.factorization, threads);
}

}  // namespace

template <Scalar T>
std::int64_t factor_bytes(const Plan& plan, const FactorOptions& options) noexcept {
  return panel_bytes<T>(plan, options) +
         std::int64_t{order_arrays(options)} * plan.size() * static_cast<std::int64_t>(sizeof(int));
}

template <Scalar T>
std::int64_t peak_bytes(const Plan& plan, const FactorOptions& options) noexcept {
  return factor_bytes<T>(plan, options) + work_bytes<T>(plan, options, threads_of(options));
}

template <Scalar T>
FactorOutcome Factor<T>::create(const Plan& plan, const FactorOptions& options) noexcept {
  const auto n = static_cast<std::size_t>(plan.size());
  const std::size_t arrays = static_cast<std::size_t>(order_arrays(options));
  const FactorOutcome outcome = panels_.create(plan, panel_kind(options.factorization), options.store);
  if (outcome != FactorOutcome::kDone) return outcome;
  if (!order_memory_ || order_memory_.size() != arrays * n) order_memory_ = base::Workspace<int>(arrays * n);
  if (arrays > 0 && !order_memory_) return FactorOutcome::kOutOfMemory;
  order_.rows = arrays > 0 ? order_memory_.data() : nullptr;
  order_.columns = arrays > 1 ? order_memory_.data() + n : nullptr;
  return FactorOutcome::kDone;
}

template <Scalar T>
FactorOutcome Factor<T>::compute(const Plan& plan, const Assembly& assembly, const Values<T>& A,
                                 const FactorOptions& options) noexcept {
  using Real = RealOf<T>;
  plan_ = nullptr;
  report_ = {};
  factorization_ = options.factorization;
  const auto refuse = [this](FactorOutcome outcome) {
    clear();
    return outcome;
  };
  constexpr std::int64_t kMostBytes = Panels<T>::kMostElements * static_cast<std::int64_t>(sizeof(T));
  if (panel_bytes<T>(plan, options) > kMostBytes || work_bytes<T>(plan, options, threads_of(options)) > kMostBytes) {
    return refuse(FactorOutcome::kTooLarge);
  }
  PivotRule<T> rule{options.factorization, options.pivoting, 0};
  // What is not finite ends at a pivot of L L^H, if all columns are eliminated.
  if (options.factorization != Factorization::kLLT || plan.eliminated() < plan.supernodes()) {
    base::Workspace<Real> sums(static_cast<std::size_t>(plan.size()));
    if (!sums) return refuse(FactorOutcome::kOutOfMemory);
    const Real norm = largest_row_sum(plan, assembly, A, sums.data());
    if (norm < 0) return refuse(FactorOutcome::kNotFinite);
    if (options.factorization != Factorization::kLLT) rule.least_pivot = static_cast<Real>(options.perturbation) * norm;
  }
  const dense::KernelBuffer buffers(threads_of(options));
  if (buffers.granted() == 0) return refuse(FactorOutcome::kOutOfMemory);
  if (const FactorOutcome outcome = create(plan, options); outcome != FactorOutcome::kDone) return refuse(outcome);
  const int threads = std::min(threads_of(options), buffers.granted());

  FactorTask<T> task(plan, assembly, A, rule, panels_, order_, threads, options.progress);
  if (options.method == Method::kMultifrontal) {
    MultifrontalMethod<T>::factor(task);
  } else {
    LeftLookingMethod<T>::factor(task);
  }
  report_.pivots = task.counts();
  report_.failed_column = task.failed_column();
  report_.bytes = factor_bytes<T>(plan, options);
  report_.peak_bytes = report_.bytes + work_bytes<T>(plan, options, threads);
  FactorOutcome outcome = task.outcome();
  if (options.store != nullptr) {
    const FactorOutcome finished = options.store->finish(outcome == FactorOutcome::kDone);
    if (outcome == FactorOutcome::kDone) outcome = finished;
  }
  if (outcome != FactorOutcome::kDone) return refuse(outcome);
  plan_ = &plan;
  return outcome;
}

template <Scalar T>
void Factor<T>::clear() noexcept {
  plan_ = nullptr;
  panels_.clear();
  order_memory_ = {};
  order_ = {};
}

template class Factor<float>;
template class Factor<double>;
template class Factor<std::complex<float>>;
template class Factor<std::complex<double>>;
template std::int64_t factor_bytes<float>(const Plan&, const FactorOptions&) noexcept;
template std::int64_t factor_bytes<double>(const Plan&, const FactorOptions&) noexcept;
template std::int64_t factor_bytes<std::complex<float>>(const Plan&, const FactorOptions&) noexcept;
template std::int64_t factor_bytes<std::complex<double>>(const Plan&, const FactorOptions&) noexcept;
template std::int64_t peak_bytes<float>(const Plan&, const FactorOptions&) noexcept;
template std::int64_t peak_bytes<double>(const Plan&, const FactorOptions&) noexcept;
template std::int64_t peak_bytes<std::complex<float>>(const Plan&, const FactorOptions&) noexcept;
template std::int64_t peak_bytes<std::complex<double>>(const Plan&, const FactorOptions&) noexcept;

}  // namespace quorin::sparse
