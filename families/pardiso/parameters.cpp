#include "families/pardiso/parameters.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace quorin::pardiso {
namespace {

constexpr std::array<Kind, 9> kKinds = {{
    {.mtype = kRealStructurallySymmetric},
    {.mtype = kRealPositiveDefinite, .stores_upper = true, .is_definite = true},
    {.mtype = kRealSymmetric, .stores_upper = true},
    {.mtype = kComplexStructurallySymmetric, .is_complex = true},
    {.mtype = kHermitianPositiveDefinite,
     .is_complex = true,
     .stores_upper = true,
     .is_hermitian = true,
     .is_definite = true},
    {.mtype = kHermitian, .is_complex = true, .stores_upper = true, .is_hermitian = true},
    {.mtype = kComplexSymmetric, .is_complex = true, .stores_upper = true},
    {.mtype = kRealUnsymmetric},
    {.mtype = kComplexUnsymmetric, .is_complex = true},
}};

int cell(const std::int32_t* iparm, int position) { return iparm[position - 1]; }

// The value as one of an enumeration of 0, 1, ..., last.
template <class Enum>
std::optional<Enum> read(const std::int32_t* iparm, int position, Enum last) {
  const int value = cell(iparm, position);
  if (value < 0 || value > static_cast<int>(last)) return std::nullopt;
  return static_cast<Enum>(value);
}

// Blocks exclude what works on single entries.
bool are_blocks_alone(const AnalysisOptions& options) {
  return options.block == 0 || (!options.is_scaled && !options.is_matched && !options.has_flags() &&
                                !options.keeps_diagonal && options.is_in_memory);
}

}  // namespace

std::optional<Kind> kind_of(int mtype) {
  const auto* const kind =
      std::find_if(kKinds.begin(), kKinds.end(), [mtype](const Kind& other) { return other.mtype == mtype; });
  return kind == kKinds.end() ? std::nullopt : std::optional(*kind);
}

void write_defaults(int mtype, std::int32_t* iparm) {
  const Kind kind = kind_of(mtype).value_or(Kind{.mtype = kRealUnsymmetric});
  const auto set = [iparm](int position, int value) { iparm[position - 1] = value; };
  std::fill(iparm + 1, iparm + kParameters, 0);
  set(kIparmOrdering, kIparmOrderingDefault);
  set(kIparmPerturbation, kind.stores_upper ? 8 : 13);
  set(kIparmScaling, kind.is_unsymmetric() ? 1 : 0);
  set(kIparmMatching, kind.is_unsymmetric() ? 1 : 0);
  set(kIparmFactorEntries, kIparmFactorEntriesDefault);
  set(kIparmPivoting, kIparmPivotingDefault);
}

std::optional<Stages> stages_of(int phase) {
  switch (phase) {
    case kAnalyse:
      return Stages{.analyses = true};
    case kAnalyseFactorize:
      return Stages{.analyses = true, .factorizes = true};
    case kAnalyseFactorizeSolve:
      return Stages{.analyses = true, .factorizes = true, .solves = true};
    case kFactorize:
      return Stages{.factorizes = true};
    case kFactorizeSolve:
      return Stages{.factorizes = true, .solves = true};
    case kSolve:
      return Stages{.solves = true};
    case kSolveForward:
      return Stages{.solves = true, .substitution = Substitution::kForward};
    case kSolveDiagonal:
      return Stages{.solves = true, .substitution = Substitution::kDiagonal};
    case kSolveBackward:
      return Stages{.solves = true, .substitution = Substitution::kBackward};
    default:
      return std::nullopt;
  }
}

bool AnalysisOptions::agrees(const AnalysisOptions& later) const {
  return is_single == later.is_single && is_zero_based == later.is_zero_based && partial == later.partial &&
         schur == later.schur && block == later.block;
}

std::optional<AnalysisOptions> read_analysis_options(const Kind& kind, const std::int32_t* iparm) {
  const auto is_on = [iparm](int position) { return cell(iparm, position) != 0; };
  const auto partial = read(iparm, kIparmPartial, Partial::kFlaggedSolution);
  const auto schur = read(iparm, kIparmSchur, Schur::kWithFactors);
  const auto storage = read(iparm, kIparmOutOfCore, Storage::kFiles);
  if (!partial || !schur || !storage) return std::nullopt;
  const bool is_matched = (kind.is_unsymmetric() || kind.is_indefinite()) && is_on(kIparmMatching);
  const AnalysisOptions options = {
      .ordering =
          is_on(kIparmOrdering) ? sparse::OrderingMethod::kNestedDissection : sparse::OrderingMethod::kMinimumDegree,
      .takes_permutation = cell(iparm, kIparmPermutation) == 1,
      .returns_permutation = cell(iparm, kIparmPermutation) == 2,
      .is_scaled = is_on(kIparmScaling) && (kind.is_unsymmetric() || is_matched),
      .is_matched = is_matched,
      .is_checked = cell(iparm, kIparmCheck) == 1,
      .is_single = cell(iparm, kIparmSingle) == 1,
      .is_zero_based = cell(iparm, kIparmZeroBased) == 1,
      .keeps_diagonal = cell(iparm, kIparmDiagonal) == 1,
      .partial = *partial,
      .schur = *schur,
      .is_in_memory = *storage == Storage::kMemory,
      .block = std::max(cell(iparm, kIparmBlocks), 0),
  };
  const int uses_of_perm = static_cast<int>(options.takes_permutation || options.returns_permutation) +
                           static_cast<int>(*partial != Partial::kNone) + static_cast<int>(*schur != Schur::kNone);
  if (uses_of_perm > 1 || (*partial != Partial::kNone && *storage == Storage::kFiles) || !are_blocks_alone(options))
    return std::nullopt;
  return options;
}

std::optional<FactorizationOptions> read_factorization_options(const Kind& kind, const std::int32_t* iparm) {
  const int pivoting = cell(iparm, kIparmPivoting);
  if (kind.is_indefinite() && (pivoting < 0 || pivoting > 3)) return std::nullopt;
  const auto storage = read(iparm, kIparmOutOfCore, Storage::kFiles);
  if (!storage) return std::nullopt;
  FactorizationOptions options;
  options.storage = *storage;
  if (kind.has_perturbed_pivots()) {
    options.perturbation = std::pow(10.0, -std::max(cell(iparm, kIparmPerturbation), 0));
  }
  options.has_pairs = pivoting == 1 || pivoting == 3;
  return options;
}

std::optional<SolutionOptions> read_solution_options(const Kind& kind, const std::int32_t* iparm) {
  const auto system = read(iparm, kIparmTransposed, System::kTransposed);
  if (!system) return std::nullopt;
  constexpr int kAutomaticSteps = 2;
  const int limit = cell(iparm, kIparmRefinementLimit), pivoting = cell(iparm, kIparmPivoting);
  SolutionOptions options;
  options.system = *system;
  options.overwrites_b = cell(iparm, kIparmSolutionInB) == 1;
  options.is_sequential = cell(iparm, kIparmSolveSchedule) == 1 || cell(iparm, kIparmPermutation) == 1;
  options.refinement_limit =
      limit == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : std::abs(limit);
  options.has_precise_residuals = limit < 0;
  options.is_refined_if_needed = limit == 0 && !(kind.is_indefinite() && pivoting >= 2);
  if (options.is_refined_if_needed) options.refinement_limit = kAutomaticSteps;
  return options;
}

std::optional<IterationOptions> read_iteration_options(const Kind& kind, const std::int32_t* iparm) {
  const int value = cell(iparm, kIparmIteration);
  if (value < 0 || value % 10 > static_cast<int>(Method::kConjugateGradients)) return std::nullopt;
  const auto method = static_cast<Method>(value % 10);
  if (method == Method::kConjugateGradients && !kind.is_definite) return std::nullopt;
  return IterationOptions{method, std::pow(10.0, -(value / 10))};
}

}  // namespace quorin::pardiso
