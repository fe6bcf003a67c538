#include "sparse/numeric/factor_task.hpp"

#include "sparse/numeric/loops.hpp"
#include "sparse/numeric/two_by_two.hpp"

namespace quorin::sparse {

namespace {

class Guard {
 public:
  explicit Guard(std::atomic_flag& flag) noexcept : flag_(flag) {
    while (flag_.test_and_set(std::memory_order_acquire)) {
    }
  }
  ~Guard() { flag_.clear(std::memory_order_release); }
  Guard(const Guard&) = delete;
  Guard& operator=(const Guard&) = delete;

 private:
  std::atomic_flag& flag_;
};

}  // namespace

template <Scalar T>
bool FactorTask<T>::eliminate(int s, T* panel, T* scratch, int panel_threads) noexcept {
  if (s >= plan.eliminated()) return true;
  const int first = plan.first(s);
  int* const rows = order.rows == nullptr ? nullptr : order.rows + first;
  int* const columns = order.columns == nullptr ? nullptr : order.columns + first;
  const Elimination result =
      eliminate_panel(rule, plan.columns(s), plan.below_count(s), panel, rows, columns, scratch, panel_threads);
  if (result.outcome != FactorOutcome::kDone) {
    fail(s, result.outcome, result.column);
    return false;
  }
  const Guard guard(is_locked_);
  counts_.add(result.counts);
  return true;
}

template <Scalar T>
void FactorTask<T>::multiply_by_diagonal(int s, const T* panel, const T* l, int count, T* w) const noexcept {
  const int* const pivots = order.rows == nullptr ? nullptr : order.rows + plan.first(s);
  const std::ptrdiff_t ld = plan.height(PanelKind::kSymmetric, s);
  const auto diagonal = [&](int i, int j) { return panel[i + j * ld]; };
  for (int j = 0; j < plan.columns(s); ++j) {
    T* const w1 = w + static_cast<std::ptrdiff_t>(j) * count;
    std::copy_n(l + j * ld, count, w1);
    if (pivots == nullptr || pivots[j] >= 0) {
      scale_column(count, diagonal(j, j), w1);
      continue;
    }
    T* const w2 = w1 + count;
    std::copy_n(l + (j + 1) * ld, count, w2);
    const TwoByTwo<T> pivot(diagonal(j, j), diagonal(j, j + 1), diagonal(j + 1, j + 1),
                            rule.factorization == Factorization::kLDLH);
    for (int i = 0; i < count; ++i) pivot.multiply_row(w1[i], w2[i]);
    ++j;
  }
}

template <Scalar T>
void FactorTask<T>::fail(int s, FactorOutcome outcome, int column) noexcept {
  const Guard guard(is_locked_);
  if (s >= failed_supernode_.load(std::memory_order_relaxed)) return;
  failed_supernode_.store(s, std::memory_order_relaxed);
  outcome_ = outcome;
  failed_column_ = column == kNone ? kNone : plan.permutation()[plan.first(s) + column];
}

template <Scalar T>
void FactorTask<T>::report_progress(int s) noexcept {
  if (progress_ == nullptr) return;
  const Guard guard(is_locked_);
  operations_done_ += plan.operations_before(s + 1) - plan.operations_before(s);
  const double all = plan.operations();
  if (progress_->report(all > 0 ? std::min(1.0, operations_done_ / all) : 1)) return;
  failed_supernode_.store(-1, std::memory_order_relaxed);
  outcome_ = FactorOutcome::kCancelled;
  failed_column_ = kNone;
}

template class FactorTask<float>;
template class FactorTask<double>;
template class FactorTask<std::complex<float>>;
template class FactorTask<std::complex<double>>;

}  // namespace quorin::sparse
