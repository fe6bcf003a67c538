// The solver for one type of numbers.
#pragma once

#include "families/pardiso/out_of_core.hpp"
#include "families/pardiso/outcomes.hpp"
#include "families/pardiso/owned.hpp"
#include "families/pardiso/solver.hpp"

namespace quorin::pardiso {

template <Scalar T>
class TypedSolver final : public Solver {
 public:
  TypedSolver(const Kind& kind, const AnalysisOptions& options) : Solver(kind, options) {}
  ~TypedSolver() override;

  Error analyze(const Call& call) override;

  bool is_factored(int slot) const override;
  int last_slot() const override;
  FactorizationResults factorization_results(int slot) const override;
  Error factorize(const Call& call, const FactorizationOptions& options) override;
  void free_slot(int slot) override;

  bool reads_matrix(int slot, const SolutionOptions& options) const override;
  Error solve(const Call& call, const SolutionOptions& options, Substitution substitution, int& steps) override;
  Error iterate(const Call& call, const SolutionOptions& options, const IterationOptions& iteration,
                int& result) override;
  Error write_diagonals(int slot, void* df, void* da) const override;
  Error write_rest(sparse::FileWriter& file) override;
  Error read_rest(sparse::FileReader& file) override;

 private:
  using Real = RealOf<T>;

  // One factorization.
  struct Slot {
    Slot(int index, Slot* later) : number(index), next(later) {}
    int number;
    Slot* next;
    bool keeps_files = false;
    Owned<sparse::PanelFiles> files;  // of the factor, which goes first
    sparse::Factor<T> factor;
    FactorizationResults results;
    base::Workspace<T> diagonal;  // of A, if the host may ask for it
    base::Workspace<T> values;    // of A, if solutions want refinement and the host need not have them any more
    sparse::SchurFactor<T> schur;
    bool has_schur = false;  // whether that could be factored
  };
  // What the stages of a solution share.
  struct Solution;

  Slot* find(int slot) const;
  Slot* obtain(int slot);
  const T* gather(const Call& call, base::Workspace<T>& storage) const {
    return pattern_.gather(static_cast<const T*>(call.a), storage);
  }
  // The matrix with its values, which may be null.
  sparse::LinearSystem<T> system_of(const T* values) const;
  bool is_singular_diagonal(const T* values) const;
  template <class Archive>
  void transfer(Archive& archive);
  bool is_sound() const;
  Error read_slot(sparse::FileReader& file);
  Error factor_schur(Slot& slot) const;
  Error preprocess(const T* values, sparse::Preprocessing<Real>& prepared) const;
  Error analyze_values(const Call& call, const T* values);
  std::uint64_t fingerprint_of(const T* values) const;
  // Those of the entries in the panels, for the plan; unless it fails.
  Error find_places();
  void set_results(const sparse::Graph& graph);
  sparse::Factorization factorization() const;
  sparse::FactorOptions factor_options(const FactorizationOptions& options) const;
  Error compute(const Call& call, const FactorizationOptions& options, Slot& slot, const T* values);
  bool wants_another_matching(const Slot& slot, const T* values) const;
  Error choose_store(Slot& slot, const FactorizationOptions& options);
  Error keep_files(Slot& slot);
  Error assess(Slot& slot, const T* values);
  Error keep_values(Slot& slot, const T* values);
  bool refines(const Slot& slot, const SolutionOptions& options) const;
  static bool refines_by_itself(const Slot& slot, const SolutionOptions& options) {
    return options.is_refined_if_needed && slot.values;
  }
  const T* mask(const T* b, int columns, base::Workspace<T>& storage) const;
  void deliver(const T* x, int columns, T* target) const;
  Error keep_diagonal(Slot& slot, const T* values);
  Error keep_schur(Slot& slot, T* S) const;
  Error factor_schur(Slot& slot, const T* S) const;

  base::Workspace<Real> row_scale_, column_scale_;
  sparse::Assembly assembly_;
  std::uint64_t values_fingerprint_ = 0;  // of those that were matched
  Slot* slots_ = nullptr;
};

}  // namespace quorin::pardiso
