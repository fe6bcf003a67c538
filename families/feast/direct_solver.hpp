// What the direct engine does for FEAST: one plan for all matrices z B - A, and the counts of eigenvalues.
#pragma once

#include <complex>
#include <optional>

#include "base/workspace.hpp"
#include "families/feast/arguments.hpp"
#include "families/feast/contour.hpp"
#include "families/feast/pencil.hpp"
#include "sparse/sparse.hpp"

namespace quorin::feast {

enum class OrderingMethod { kBest, kMinimumDegree, kNestedDissection };

// What an outcome of the engine means for a call.
constexpr Status status_of(sparse::FactorOutcome outcome) {
  switch (outcome) {
    case sparse::FactorOutcome::kDone:
      return Status::kDone;
    case sparse::FactorOutcome::kOutOfMemory:
    case sparse::FactorOutcome::kTooLarge:
      return Status::kNoMemory;
    default:
      return Status::kSolverFailed;
  }
}

// T is double or std::complex<double>. The pencil must outlive the solver.
template <Scalar T>
class DirectSolver {
 public:
  using Complex = std::complex<double>;

  // Plans, and factors the B of a generalized problem: kReducedFailed if it is not positive definite, kNoMemory.
  [[nodiscard]] Status analyze(const Pencil<T>& pencil, OrderingMethod method, int threads);

  // Takes from the interval what lies outside of the spectrum, as far as that is easily told. All of it may.
  [[nodiscard]] Status clamp(Interval& interval, bool& is_empty);

  // The number of eigenvalues below sigma: that of the negative pivots of A - sigma B (Sylvester's law of inertia).
  // Nothing if it cannot be trusted to be that of the eigenvalues below some point in sigma -+ margin. `factor` becomes
  // that of A - sigma B. Several threads may call.
  [[nodiscard]] Status count_below(double sigma, double margin, int threads, sparse::Factor<T>& factor,
                                   std::optional<int>& below) const;
  // Bytes of one such factor.
  double real_factor_bytes() const;

  // Factors z B - A. `values`: value_count() elements.
  [[nodiscard]] sparse::FactorOutcome factor(Complex z, Complex* values, int threads,
                                             sparse::Factor<Complex>& result) const;
  std::size_t value_count() const;
  // Bytes of one such factor.
  double factor_bytes() const;
  const sparse::Plan& plan() const { return plan_; }

 private:
  // L D L^T for symmetric matrices. z B - A is not Hermitian if A and B are.
  static constexpr sparse::Factorization kShifted =
      kIsComplex<T> ? sparse::Factorization::kLU : sparse::Factorization::kLDLT;

  Status plan(OrderingMethod method);
  sparse::Outcome order(const sparse::Graph& graph, OrderingMethod method, const sparse::Ordering& ordering);
  Status build_full_pattern();
  static sparse::FactorOptions inertia_options(int threads);
  static sparse::FactorOptions shifted_options(int threads);
  Status check_b();
  double spectral_radius(const sparse::Factor<T>& factor_of_b);

  const Pencil<T>* pencil_ = nullptr;
  int threads_ = 1;
  double radius_ = 0;  // an estimate of the largest magnitude of an eigenvalue
  sparse::Plan plan_;
  sparse::Assembly lower_;  // of the pencil's pattern
  // Of both triangles of complex matrices, by columns.
  sparse::Assembly full_;
  base::Workspace<int> full_starts_;
};

}  // namespace quorin::feast
