// What both methods of factorization work on.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>

#include "sparse/numeric/factor.hpp"

namespace quorin::sparse {

// One factorization, under way. Its functions may be called from several threads, for different supernodes.
template <Scalar T>
class FactorTask {
 public:
  FactorTask(const Plan& shared_plan, const Assembly& places, const Values<T>& values, const PivotRule<T>& pivot_rule,
             const Panels<T>& factor_panels, const PivotOrder& pivot_order, int most_threads,
             Progress* progress) noexcept
      : plan(shared_plan),
        assembly(places),
        A(values),
        rule(pivot_rule),
        panels(factor_panels),
        order(pivot_order),
        is_conjugated(rule.factorization == Factorization::kLLT || rule.factorization == Factorization::kLDLH),
        has_diagonal(rule.factorization == Factorization::kLDLT || rule.factorization == Factorization::kLDLH),
        threads(most_threads),
        progress_(progress),
        failed_supernode_(plan.supernodes()) {}

  // Assembles panel s: zeros, and the entries of A.
  void assemble_panel(int s, T* panel) const noexcept { assemble(plan, assembly, A, s, panel); }
  // Eliminates panel s, whose updates have all been made; the panel of a Schur complement is left as it is. False when
  // that failed. `scratch`: elimination_scratch(plan.most_columns()).
  bool eliminate(int s, T* panel, T* scratch, int panel_threads) noexcept;

  // W <- L D, of `count` rows `l` of the panel of s; W is without gaps between columns.
  void multiply_by_diagonal(int s, const T* panel, const T* l, int count, T* w) const noexcept;

  // Says that work on supernode s cannot go on, because of that column of it, if one is to blame. Of several failures
  // the one of the first supernode counts, so that the outcome does not depend on the number of threads.
  void fail(int s, FactorOutcome outcome, int column = kNone) noexcept;
  // Whether work on supernode s is still of use: no supernode before it has failed, and nobody has cancelled.
  bool may_go_on(int s) const noexcept { return s < failed_supernode_.load(std::memory_order_relaxed); }
  // Supernode s is done.
  void report_progress(int s) noexcept;

  FactorOutcome outcome() const noexcept { return outcome_; }
  int failed_column() const noexcept { return failed_column_; }
  const PivotCounts& counts() const noexcept { return counts_; }

  const Plan& plan;
  const Assembly& assembly;
  const Values<T>& A;
  const PivotRule<T> rule;
  const Panels<T>& panels;
  const PivotOrder order;
  // Of symmetric panels: whether the upper factor is L^H, not L^T, and whether a D stands between the two.
  const bool is_conjugated, has_diagonal;
  const int threads;

 private:
  Progress* const progress_;
  std::atomic<int> failed_supernode_;
  std::atomic_flag is_locked_;  // guards what follows
  FactorOutcome outcome_ = FactorOutcome::kDone;
  int failed_column_ = kNone;
  double operations_done_ = 0;
  PivotCounts counts_;
};

// The left-looking method: each panel gathers the updates of its descendants, in ascending order, and is eliminated.
// Kernel buffers for task.threads threads are reserved. What goes wrong stands in the task.
//
// E. G. Ng, B. W. Peyton, Block sparse Cholesky algorithms on advanced uniprocessor computers, SIAM J. Sci. Comput. 14
// (1993) 1034-1056.
template <Scalar T>
struct LeftLookingMethod {
  static void factor(FactorTask<T>& task) noexcept;
  // Bytes that it takes beside the panels.
  static std::int64_t bytes(const Plan& plan, Factorization factorization, int threads) noexcept;
};

// The multifrontal method: each supernode adds the update matrices of its children to its own panel and update matrix,
// which stand on a stack until the parent is made. Kernel buffers are reserved, and what goes wrong stands in the task,
// as above. The stack of one thread takes plan.stack_elements().
//
// J. W. H. Liu, The multifrontal method for sparse matrix solution: theory and practice, SIAM Review 34 (1992) 82-109.
template <Scalar T>
struct MultifrontalMethod {
  static void factor(FactorTask<T>& task) noexcept;
  // Bytes that it takes beside the panels.
  static std::int64_t bytes(const Plan& plan, int threads, const PanelStore* store) noexcept;
};

}  // namespace quorin::sparse
