#include "sparse/numeric/schur.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <utility>

#include "base/thread_settings.hpp"
#include "dense/blocked.hpp"
#include "sparse/numeric/pivots.hpp"

namespace quorin::sparse {

using base::Workspace;

template <Scalar T>
FactorOutcome copy_schur_complement(const Factor<T>& factor, bool by_rows, T* S, int lds) noexcept {
  const Plan& plan = factor.plan();
  const int n = plan.schur_size();
  if (n == 0) return FactorOutcome::kDone;
  const Panels<T>& panels = factor.panels();
  const int s = plan.eliminated();
  const PinnedPanel<T> panel(panels, s);
  if (panel.data() == nullptr) return panels.store()->outcome();
  const std::ptrdiff_t height = plan.height(panels.kind(), s);
  const bool is_lower = panels.kind() == PanelKind::kSymmetric;
  const bool is_hermitian = is_lower && factor.factorization() != Factorization::kLDLT;
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) {
      const bool is_mirrored = is_lower && i < j;
      T value = is_mirrored ? panel.data()[j + i * height] : panel.data()[i + j * height];
      if (is_mirrored && is_hermitian) value = conjugate(value);
      (by_rows ? S[j + std::ptrdiff_t{i} * lds] : S[i + std::ptrdiff_t{j} * lds]) = value;
    }
  }
  return FactorOutcome::kDone;
}

template <Scalar T>
FactorOutcome SchurFactor<T>::compute(int n, const T* S, int lds, bool by_rows, double perturbation,
                                      int threads) noexcept {
  using Real = RealOf<T>;
  *this = {};
  const auto size = static_cast<std::size_t>(n);
  Workspace<T> panel(base::saturating_product(size, size)), scratch(elimination_scratch(n));
  Workspace<int> rows(size);
  const dense::KernelBuffer buffers(std::clamp(threads, 1, base::kMostThreads));
  if (!panel || !scratch || !rows || buffers.granted() == 0) return FactorOutcome::kOutOfMemory;
  Real most = 0;
  bool is_finite = true;
  for (int i = 0; i < n; ++i) {
    Real sum = 0;
    for (int j = 0; j < n; ++j) {
      const T value = by_rows ? S[j + std::ptrdiff_t{i} * lds] : S[i + std::ptrdiff_t{j} * lds];
      panel[static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * size] = value;
      sum += std::abs(real_part(value)) + std::abs(imaginary_part(value));
    }
    is_finite = is_finite && std::isfinite(sum);
    most = std::max(most, sum);
  }
  if (!is_finite) return FactorOutcome::kNotFinite;
  const PivotRule<T> rule{Factorization::kLU, Pivoting::kPartial, static_cast<Real>(perturbation) * most};
  const Elimination elimination = eliminate_panel(rule, n, 0, panel.data(), rows.data(), nullptr, scratch.data(),
                                                  std::min(threads, buffers.granted()));
  if (elimination.outcome != FactorOutcome::kDone) return elimination.outcome;
  size_ = n;
  perturbed_ = elimination.counts.perturbed;
  panel_ = std::move(panel);
  rows_ = std::move(rows);
  return FactorOutcome::kDone;
}

template <Scalar T>
FactorOutcome SchurFactor<T>::solve(Operation operation, int nrhs, T* x, int ldx, int threads) const noexcept {
  const int n = size_;
  if (n == 0 || nrhs <= 0) return FactorOutcome::kDone;
  const bool is_transposed = operation == Operation::kTransposed || operation == Operation::kAdjoint;
  const bool is_conjugated = operation == Operation::kConjugated || operation == Operation::kAdjoint;
  Workspace<T> column(static_cast<std::size_t>(n));
  const dense::KernelBuffer buffers(std::clamp(threads, 1, base::kMostThreads));
  if (!column || buffers.granted() == 0) return FactorOutcome::kOutOfMemory;
  const int granted = std::clamp(threads, 1, buffers.granted());
  const auto for_each_column = [&](const auto& body) {
    for (int r = 0; r < nrhs; ++r) {
      T* const x_r = x + std::ptrdiff_t{r} * ldx;
      std::copy_n(x_r, n, column.data());
      for (int k = 0; k < n; ++k) body(x_r, k, rows_[k]);
    }
  };
  const auto conjugated = [&](T value) { return is_conjugated ? conjugate(value) : value; };
  const auto triangle = [&](char uplo, char diagonal) {
    dense::blocked::trsm('L', uplo, is_transposed ? 'T' : 'N', diagonal, n, nrhs, T{1}, panel_.data(), n, x, ldx,
                         granted);
  };
  // With conj(S), the conjugates of x and b are solved for.
  if (is_transposed) {
    for_each_column([&](T* x_r, int k, int) { x_r[k] = conjugated(column[k]); });
    triangle('U', 'N');
    triangle('L', 'U');
    for_each_column([&](T* x_r, int k, int row) { x_r[row] = conjugated(column[k]); });
  } else {
    for_each_column([&](T* x_r, int k, int row) { x_r[k] = conjugated(column[row]); });
    triangle('L', 'U');
    triangle('U', 'N');
    for_each_column([&](T* x_r, int k, int) { x_r[k] = conjugated(column[k]); });
  }
  return FactorOutcome::kDone;
}

template <Scalar T>
FactorOutcome solve_with_schur(const Factor<T>& factor, const SchurFactor<T>& S, Operation operation, int nrhs, T* x,
                               int ldx, int threads) noexcept {
  for (const Stage stage : {Stage::kForward, Stage::kDiagonal}) {
    const FactorOutcome outcome = solve(factor, operation, stage, nrhs, x, ldx, threads);
    if (outcome != FactorOutcome::kDone) return outcome;
  }
  const FactorOutcome outcome = S.solve(operation, nrhs, x + factor.plan().size() - S.size(), ldx, threads);
  if (outcome != FactorOutcome::kDone) return outcome;
  return solve(factor, operation, Stage::kBackward, nrhs, x, ldx, threads);
}

template FactorOutcome copy_schur_complement(const Factor<float>&, bool, float*, int) noexcept;
template FactorOutcome copy_schur_complement(const Factor<double>&, bool, double*, int) noexcept;
template FactorOutcome copy_schur_complement(const Factor<std::complex<float>>&, bool, std::complex<float>*,
                                             int) noexcept;
template FactorOutcome copy_schur_complement(const Factor<std::complex<double>>&, bool, std::complex<double>*,
                                             int) noexcept;
template class SchurFactor<float>;
template class SchurFactor<double>;
template class SchurFactor<std::complex<float>>;
template class SchurFactor<std::complex<double>>;
template FactorOutcome solve_with_schur(const Factor<float>&, const SchurFactor<float>&, Operation, int, float*, int,
                                        int) noexcept;
template FactorOutcome solve_with_schur(const Factor<double>&, const SchurFactor<double>&, Operation, int, double*, int,
                                        int) noexcept;
template FactorOutcome solve_with_schur(const Factor<std::complex<float>>&, const SchurFactor<std::complex<float>>&,
                                        Operation, int, std::complex<float>*, int, int) noexcept;
template FactorOutcome solve_with_schur(const Factor<std::complex<double>>&, const SchurFactor<std::complex<double>>&,
                                        Operation, int, std::complex<double>*, int, int) noexcept;

}  // namespace quorin::sparse
