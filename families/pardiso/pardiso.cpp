#include "families/pardiso/pardiso.hpp"

#include <algorithm>
#include <array>
#include <limits>

#include "base/thread_settings.hpp"
#include "families/pardiso/handles.hpp"
#include "families/pardiso/parameters.hpp"
#include "families/pardiso/report.hpp"
#include "families/pardiso/solver.hpp"

namespace quorin::pardiso {
namespace {

using enum Error;

// The arguments as they came.
struct Arguments {
  void** pt;
  const std::int32_t *maxfct, *mnum, *mtype, *phase, *n;
  const void* a;
  const std::int32_t *ia, *ja;
  std::int32_t* perm;
  const std::int32_t* nrhs;
  std::int32_t* iparm;
  const std::int32_t* msglvl;
  void *b, *x;
};

template <class... Pointers>
bool has_null(const Pointers*... pointers) {
  return ((pointers == nullptr) || ...);
}

std::int32_t clamped(std::int64_t value) {
  return static_cast<std::int32_t>(std::min<std::int64_t>(value, std::numeric_limits<std::int32_t>::max()));
}
std::int32_t kilobytes(std::int64_t bytes) {
  constexpr std::int64_t kUnit = 1024;
  return clamped((bytes + kUnit - 1) / kUnit);
}

// One call of the solver, from the check of its arguments to the results in iparm.
class Run {
 public:
  explicit Run(const Arguments& arguments) : arguments_(arguments) {}

  Error run();

 private:
  Error read_arguments();
  Error read_options();
  Error check_matrix() const;
  Error check_vectors() const;
  Error run_stages();
  Error analyze();
  Error factorize();
  Error solve();
  Error iterate();
  void write_results();
  void print(Error outcome);
  void set(int position, std::int32_t value) const { arguments_.iparm[position - 1] = value; }

  bool takes_defaults() const { return arguments_.iparm[kIparmSupplied - 1] == 0; }
  // In the place of a factorization or of substitution.
  bool iterates() const {
    return stages_.solves && !stages_.analyses && iteration_.method != Method::kDirect &&
           stages_.substitution == Substitution::kWhole;
  }

  const Arguments arguments_;
  std::array<std::int32_t, kParameters> defaults_{};
  Kind kind_;
  Stages stages_;
  int slots_ = 1;
  AnalysisOptions analysis_;
  FactorizationOptions factorization_;
  SolutionOptions solution_;
  IterationOptions iteration_;
  Call call_;
  Solver* solver_ = nullptr;
  bool is_solved_ = false;  // by iteration
  int refinements_ = 0, iterations_ = 0;
  bool wants_entries_ = false, wants_operations_ = false;
  Statistics statistics_;
  PrintedProgress progress_;
};

Error Run::read_arguments() {
  if (has_null(arguments_.maxfct, arguments_.mnum, arguments_.mtype, arguments_.n, arguments_.iparm)) {
    return kInconsistent;
  }
  const auto stages = stages_of(*arguments_.phase);
  const auto kind = kind_of(*arguments_.mtype);
  slots_ = *arguments_.maxfct;
  call_.slot = *arguments_.mnum;
  if (!stages || !kind || call_.slot < 1 || call_.slot > slots_ || *arguments_.n < 1) return kInconsistent;
  stages_ = *stages;
  kind_ = *kind;
  call_.rows = {.n = *arguments_.n, .ia = arguments_.ia, .ja = arguments_.ja};
  call_.a = arguments_.a;
  call_.perm = arguments_.perm;
  call_.b = arguments_.b;
  call_.x = arguments_.x;
  call_.statistics = &statistics_;
  return kDone;
}

// What none of the stages reads may hold anything.
Error Run::read_options() {
  const std::int32_t* iparm = arguments_.iparm;
  if (takes_defaults()) {
    write_defaults(kind_.mtype, defaults_.data());
    iparm = defaults_.data();
  }
  const auto analysis = read_analysis_options(kind_, iparm);
  const auto factorization = stages_.factorizes ? read_factorization_options(kind_, iparm) : FactorizationOptions{};
  const auto solution = stages_.solves ? read_solution_options(kind_, iparm) : SolutionOptions{};
  const auto iteration = stages_.solves ? read_iteration_options(kind_, iparm) : IterationOptions{};
  if (!analysis || !factorization || !solution || !iteration) return kInconsistent;
  analysis_ = *analysis;
  factorization_ = *factorization;
  solution_ = *solution;
  iteration_ = *iteration;
  call_.rows.base = analysis_.base();
  call_.rows.block = analysis_.block;
  wants_entries_ = iparm[kIparmFactorEntries - 1] < 0;
  wants_operations_ = iparm[kIparmOperations - 1] < 0;
  return kDone;
}

// Of a handle that has an analysis: whether this call is about the same matrix.
Error Run::check_matrix() const {
  const bool is_same = solver_->kind().mtype == kind_.mtype && solver_->host_size() == call_.rows.n &&
                       solver_->options().agrees(analysis_) && slots_ >= solver_->last_slot();
  if (!is_same) return kInconsistent;
  const bool refines = stages_.solves && !stages_.factorizes && solver_->is_factored(call_.slot) &&
                       solver_->reads_matrix(call_.slot, solution_);
  const bool reads_matrix = stages_.factorizes || iterates() || refines;
  if (reads_matrix && call_.a == nullptr) return kInconsistent;
  return solver_->pattern().agrees(call_.rows, reads_matrix) ? kDone : kInconsistent;
}

Error Run::check_vectors() const {
  const bool has_schur = analysis_.schur != Schur::kNone;
  if (stages_.factorizes && (call_.a == nullptr || (has_schur && call_.x == nullptr))) return kInconsistent;
  if (!stages_.solves) return kDone;
  // The Schur complement's factors are not kept, or x would be both.
  if (analysis_.schur == Schur::kAlone || (has_schur && stages_.factorizes)) return kInconsistent;
  if (analysis_.partial != Partial::kNone && iteration_.method != Method::kDirect) return kInconsistent;
  if (arguments_.nrhs == nullptr || *arguments_.nrhs < 1 || call_.b == nullptr) return kInconsistent;
  return call_.x == nullptr && !solution_.overwrites_b ? kInconsistent : kDone;
}

// A pattern that is refused leaves the handle as it is; what fails later takes it along.
Error Run::analyze() {
  Solver* const solver = Solver::create(kind_, analysis_);
  if (solver == nullptr) return kNoMemory;
  if (const Error error = solver->read(call_); error != kDone) {
    Solver::destroy(solver);
    return error;
  }
  if (solver_ != nullptr) free_handle(arguments_.pt);
  solver_ = nullptr;
  Error error = solver->analyze(call_);
  if (error == kDone && !write_handle(arguments_.pt, solver)) error = kNoMemory;
  if (error != kDone) {
    Solver::destroy(solver);
    return error;
  }
  solver_ = solver;
  return kDone;
}

Error Run::factorize() {
  const bool prints = arguments_.msglvl != nullptr && *arguments_.msglvl == kStatistics;
  call_.progress = prints ? &progress_ : nullptr;
  const Error error = solver_->factorize(call_, factorization_);
  progress_.end();
  return error;
}

// In the place of a factorization; kDone also where that has to follow.
Error Run::iterate() {
  const Error error = solver_->iterate(call_, solution_, iteration_, iterations_);
  is_solved_ = error == kDone;
  return stages_.factorizes && error == kNumericFailed ? kDone : error;
}

Error Run::solve() {
  if (!solver_->is_factored(call_.slot)) return kInconsistent;
  return solver_->solve(call_, solution_, stages_.substitution, refinements_);
}

Error Run::run_stages() {
  Error error = kDone;
  if (stages_.analyses) error = analyze();
  const bool has_iterated = error == kDone && iterates() && solver_->is_factored(call_.slot);
  if (has_iterated) error = iterate();
  const bool is_ended = is_solved_ || (has_iterated && !stages_.factorizes);
  if (error == kDone && stages_.factorizes && !is_solved_) error = factorize();
  if (error == kDone && stages_.solves && !is_ended) error = solve();
  return error;
}

void Run::write_results() {
  if (takes_defaults()) std::ranges::copy(defaults_, arguments_.iparm);
  if (solver_ == nullptr) return;
  const AnalysisResults& analysis = solver_->analysis_results();
  if (stages_.analyses || takes_defaults()) {
    set(kIparmAnalysisPeak, kilobytes(analysis.peak_bytes));
    set(kIparmAnalysisMemory, kilobytes(analysis.kept_bytes));
    set(kIparmFactorMemory, kilobytes(analysis.factor_bytes));
    set(kIparmLeastMemory, kilobytes(analysis.least_bytes));
    constexpr double kMillion = 1e6;
    if (wants_entries_) set(kIparmFactorEntries, clamped(analysis.factor_entries));
    if (wants_operations_) {
      set(kIparmOperations, clamped(static_cast<std::int64_t>(std::min(analysis.operations / kMillion, 4e9)) + 1));
    }
  }
  if (stages_.factorizes || takes_defaults()) {
    const FactorizationResults results = solver_->factorization_results(call_.slot);
    set(kIparmPerturbed, results.perturbed);
    set(kIparmPositive, results.positive);
    set(kIparmNegative, results.negative);
    set(kIparmBadPivot, results.bad_equation);
  }
  if (stages_.solves) {
    set(kIparmRefinements, refinements_);
    set(kIparmIterations, iterations_);
  }
}

void Run::print(Error outcome) {
  if (arguments_.msglvl == nullptr || *arguments_.msglvl != kStatistics) return;
  if (solver_ != nullptr) {
    const FactorizationResults results = solver_->factorization_results(call_.slot);
    statistics_.perturbed = results.perturbed;
    statistics_.positive = results.positive;
    statistics_.negative = results.negative;
    solver_->describe(statistics_);
  }
  statistics_.right_hand_sides = call_.nrhs;
  statistics_.refinements = refinements_;
  statistics_.iterations = iterations_;
  statistics_.threads = base::region_threads(base::Domain::kSparseDirect);
  print_statistics({*arguments_.phase, call_.slot, kind_, stages_, analysis_, outcome}, statistics_);
}

Error Run::run() {
  const Words words = look_up(arguments_.pt, solver_);
  if (words == Words::kForeign) return kInconsistent;
  if (*arguments_.phase == kFreeAll) {
    if (words == Words::kOurs) free_handle(arguments_.pt);
    return kDone;
  }
  if (*arguments_.phase == kFreeFactors) {
    if (words == Words::kZero) return kDone;
    if (arguments_.mnum == nullptr || *arguments_.mnum < 1) return kInconsistent;
    if (arguments_.maxfct != nullptr && *arguments_.mnum > *arguments_.maxfct) return kInconsistent;
    solver_->free_slot(*arguments_.mnum);
    return kDone;
  }
  if (const Error error = read_arguments(); error != kDone) return error;
  if (!stages_.analyses && solver_ == nullptr) return kInconsistent;
  if (const Error error = read_options(); error != kDone) return error;
  Error error = check_vectors();
  if (error == kDone && !stages_.analyses) error = check_matrix();
  if (error == kDone && stages_.solves && !stages_.factorizes && !solver_->is_factored(call_.slot))
    error = kInconsistent;
  if (error == kDone) {
    if (stages_.solves) call_.nrhs = *arguments_.nrhs;
    error = run_stages();
    if (error != kInconsistent) write_results();
  }
  print(error);
  return error;
}

void write(std::int32_t* error, Error value) {
  if (error != nullptr) *error = static_cast<std::int32_t>(value);
}

}  // namespace

void run(void** pt, const std::int32_t* maxfct, const std::int32_t* mnum, const std::int32_t* mtype,
         const std::int32_t* phase, const std::int32_t* n, const void* a, const std::int32_t* ia,
         const std::int32_t* ja, std::int32_t* perm, const std::int32_t* nrhs, std::int32_t* iparm,
         const std::int32_t* msglvl, void* b, void* x, std::int32_t* error) noexcept {
  if (has_null(pt, phase)) return write(error, kInconsistent);
  write(error, Run({pt, maxfct, mnum, mtype, phase, n, a, ia, ja, perm, nrhs, iparm, msglvl, b, x}).run());
}

void initialize(void** pt, const std::int32_t* mtype, std::int32_t* iparm) noexcept {
  if (pt != nullptr) clear(pt);
  if (iparm == nullptr) return;
  write_defaults(mtype == nullptr ? kRealUnsymmetric : *mtype, iparm);
  iparm[kIparmSupplied - 1] = 1;
}

void get_diagonal(void* const* pt, void* df, void* da, const std::int32_t* mnum, std::int32_t* error) noexcept {
  Solver* solver = nullptr;
  const bool is_ours = pt != nullptr && mnum != nullptr && look_up(pt, solver) == Words::kOurs;
  write(error, is_ours ? solver->write_diagonals(*mnum, df, da) : kInconsistent);
}

}  // namespace quorin::pardiso
