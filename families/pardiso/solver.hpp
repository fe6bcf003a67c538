// What a handle holds: the analysis of a pattern, and the factorizations that stand on it.
#pragma once

#include <cstdint>

#include "base/workspace.hpp"
#include "families/pardiso/parameters.hpp"
#include "families/pardiso/report.hpp"
#include "families/pardiso/row_pattern.hpp"
#include "sparse/sparse.hpp"

namespace quorin::pardiso {

// What a call brings to a stage; null is what that stage does not read.
struct Call {
  HostRows rows;
  const void* a = nullptr;
  std::int32_t* perm = nullptr;
  int nrhs = 0;
  void* b = nullptr;
  void* x = nullptr;
  int slot = 1;
  sparse::Progress* progress = nullptr;
  Statistics* statistics = nullptr;

  Statistics::Timer time(Step step) const { return {*statistics, step}; }
};

// What iparm tells of an analysis, and of the last factorization of a slot.
struct AnalysisResults {
  std::int64_t peak_bytes = 0, kept_bytes = 0, factor_bytes = 0, least_bytes = 0, factor_entries = 0;
  double operations = 0.0;
};
struct FactorizationResults {
  int perturbed = 0, positive = 0, negative = 0;
  int bad_equation = 0;  // from 1; 0 is none
};

class Solver {
 public:
  Solver(const Solver&) = delete;
  Solver& operator=(const Solver&) = delete;

  // Null if there is no memory.
  [[nodiscard]] static Solver* create(const Kind& kind, const AnalysisOptions& options);
  static void destroy(Solver* solver);

  const Kind& kind() const { return kind_; }
  const AnalysisOptions& options() const { return options_; }
  int host_size() const { return host_size_; }
  const RowPattern& pattern() const { return pattern_; }
  const AnalysisResults& analysis_results() const { return analysis_results_; }
  void describe(Statistics& statistics) const;

  // The first step of an analysis: everything by which a host's mistake shows. kInconsistent, kTooLarge, kNoMemory.
  [[nodiscard]] Error read(const Call& call);
  // The rest of it. Fails for good.
  [[nodiscard]] virtual Error analyze(const Call& call) = 0;

  [[nodiscard]] virtual bool is_factored(int slot) const = 0;
  [[nodiscard]] virtual int last_slot() const = 0;
  [[nodiscard]] virtual FactorizationResults factorization_results(int slot) const = 0;
  // A slot that fails is not factored afterwards.
  [[nodiscard]] virtual Error factorize(const Call& call, const FactorizationOptions& options) = 0;
  virtual void free_slot(int slot) = 0;

  // Whether a solution with factors reads the host's matrix.
  [[nodiscard]] virtual bool reads_matrix(int slot, const SolutionOptions& options) const = 0;
  // Solves with factors; `steps` becomes the number of refinement steps.
  [[nodiscard]] virtual Error solve(const Call& call, const SolutionOptions& options, Substitution substitution,
                                    int& steps) = 0;
  // Solves by iteration with the slot's factors as preconditioner. `result` becomes what iparm(20) tells; negative, and
  // kNumericFailed, if it failed, and then nothing is written.
  [[nodiscard]] virtual Error iterate(const Call& call, const SolutionOptions& options,
                                      const IterationOptions& iteration, int& result) = 0;

  [[nodiscard]] virtual Error write_diagonals(int slot, void* df, void* da) const = 0;

  // A file between its beginning and its completion.
  [[nodiscard]] Error write(sparse::FileWriter& file);
  [[nodiscard]] static Error read(sparse::FileReader& file, Solver*& solver);

 protected:
  Solver(const Kind& kind, const AnalysisOptions& options) : kind_(kind), options_(options) {}
  virtual ~Solver() = default;

  int size() const { return pattern_.size(); }
  // Without a flag nothing is asked for.
  Partial partial() const { return flagged_ == 0 ? Partial::kNone : options_.partial; }
  Schur schur() const { return flagged_ == 0 ? Schur::kNone : options_.schur; }
  int schur_size() const { return schur() == Schur::kNone ? 0 : flagged_; }
  bool is_flagged(int equation) const { return flagged_ > 0 && flags_[static_cast<std::size_t>(equation)] != 0; }

  Kind kind_;
  AnalysisOptions options_;
  int host_size_ = 0;
  RowPattern pattern_;
  base::Workspace<int> given_order_;  // of the host
  base::Workspace<char> flags_;       // by equation, if there are any
  int flagged_ = 0;
  base::Workspace<int> order_;         // in which the plan was given the equations
  base::Workspace<int> row_position_;  // of each row, if they change places
  sparse::Plan plan_;
  AnalysisResults analysis_results_;

 private:
  [[nodiscard]] virtual Error write_rest(sparse::FileWriter& file) = 0;
  [[nodiscard]] virtual Error read_rest(sparse::FileReader& file) = 0;
  [[nodiscard]] Error read_permutation(const std::int32_t* perm);
  [[nodiscard]] Error read_flags(const std::int32_t* perm);
};

}  // namespace quorin::pardiso
