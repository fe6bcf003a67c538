// The factor of a sparse matrix: L L^H, L D L^T, L D L^H or L U of P A P^T, where P is the plan's permutation followed
// by the exchanges inside the diagonal blocks.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/scalar.hpp"
#include "base/workspace.hpp"
#include "sparse/numeric/assembly.hpp"
#include "sparse/numeric/outcome.hpp"
#include "sparse/numeric/panels.hpp"
#include "sparse/numeric/pivots.hpp"
#include "sparse/symbolic/plan.hpp"

namespace quorin::sparse {

// Told how far a factorization is. Any of its threads may call, but no two at a time.
class Progress {
 public:
  Progress() = default;
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  virtual ~Progress() = default;
  // `done`: the part of the operations that are done, from 0 to 1, ascending. Returning false ends the work with
  // kCancelled.
  virtual bool report(double done) noexcept = 0;
};

struct FactorOptions {
  Factorization factorization = Factorization::kLLT;
  Method method = Method::kLeftLooking;
  Pivoting pivoting = Pivoting::kInOrder;
  // Pivots below this times the largest row sum of the (scaled) matrix are replaced, see PivotRule; 0: none is. Not for
  // kLLT.
  double perturbation = 0;
  int threads = 1;
  PanelStore* store = nullptr;  // null: memory
  Progress* progress = nullptr;
};

struct FactorReport {
  PivotCounts pivots;
  // Of kNotPositiveDefinite, kSingular, and kNotFinite when a pivot was not: the column of A (zero-based), else kNone.
  int failed_column = kNone;
  // What the factor takes, without the store's part, and the most that it took while it was made.
  std::int64_t bytes = 0, peak_bytes = 0;
};

// Bytes of a finished factor, and the most that its factorization holds at a time, factor included but not what a store
// keeps in its files. What is then allocated differs by less than 5 %.
template <Scalar T>
std::int64_t factor_bytes(const Plan& plan, const FactorOptions& options) noexcept;
template <Scalar T>
std::int64_t peak_bytes(const Plan& plan, const FactorOptions& options) noexcept;

template <Scalar T>
class Factor {
 public:
  // Factors A, whose places in the panels were found for the same plan, and kind of panels. What the factor held before
  // is lost, but the memory is used again where it fits. After a failure the factor is empty. The plan must outlive
  // the factor; so must a store.
  FactorOutcome compute(const Plan& plan, const Assembly& assembly, const Values<T>& A,
                        const FactorOptions& options) noexcept;
  void clear() noexcept;

  // Whether there are factors.
  explicit operator bool() const noexcept { return plan_ != nullptr; }
  // These three may be called if there are.
  const Plan& plan() const noexcept { return *plan_; }
  Factorization factorization() const noexcept { return factorization_; }
  const Panels<T>& panels() const noexcept { return panels_; }
  PivotOrder pivot_order() const noexcept { return order_; }

  // Of the last call of compute.
  const FactorReport& report() const noexcept { return report_; }

 private:
  friend class Archive;
  FactorOutcome create(const Plan& plan, const FactorOptions& options) noexcept;

  const Plan* plan_ = nullptr;
  Factorization factorization_ = Factorization::kLLT;
  Panels<T> panels_;
  base::Workspace<int> order_memory_;
  PivotOrder order_;
  FactorReport report_;
};

}  // namespace quorin::sparse
