// The host's iparm and mtype, read once and put into words.
#pragma once

#include <cstdint>
#include <optional>

#include "generated/pardiso_constants.hpp"
#include "sparse/sparse.hpp"

namespace quorin::pardiso {

// What a kind of matrix tells.
struct Kind {
  int mtype = 0;
  bool is_complex = false;
  bool stores_upper = false;  // one triangle, with a diagonal that has no gaps
  bool is_hermitian = false;  // of complex ones: the other triangle is conjugated
  bool is_definite = false;

  bool is_unsymmetric() const { return mtype == kRealUnsymmetric || mtype == kComplexUnsymmetric; }
  bool is_indefinite() const { return stores_upper && !is_definite; }
  // Signs of eigenvalues are defined and counted.
  bool has_inertia() const { return mtype == kRealSymmetric || mtype == kHermitian; }
  bool has_perturbed_pivots() const { return !is_definite; }
};

// Nothing for a number that is no mtype.
std::optional<Kind> kind_of(int mtype);

// Entries 2 to 64; unknown kinds get those of kRealUnsymmetric.
void write_defaults(int mtype, std::int32_t* iparm);

// The stages of a phase.
enum class Substitution { kWhole, kForward, kDiagonal, kBackward };
struct Stages {
  bool analyses = false, factorizes = false, solves = false;
  Substitution substitution = Substitution::kWhole;
};
// Nothing for phases that are not known, and for the two that free.
std::optional<Stages> stages_of(int phase);

enum class Partial { kNone = 0, kFlaggedBoth = 1, kFlaggedRightHandSide = 2, kFlaggedSolution = 3 };
enum class Schur { kNone = 0, kAlone = 1, kWithFactors = 2 };
enum class Storage { kMemory = 0, kAsFits = 1, kFiles = 2 };
enum class System { kPlain = 0, kAdjoint = 1, kTransposed = 2 };

// What phase 1 reads and the handle keeps.
struct AnalysisOptions {
  sparse::OrderingMethod ordering = sparse::OrderingMethod::kNestedDissection;
  bool takes_permutation = false, returns_permutation = false;
  bool is_scaled = false, is_matched = false;
  bool is_checked = false;
  bool is_single = false;
  bool is_zero_based = false;
  bool keeps_diagonal = false;
  Partial partial = Partial::kNone;
  Schur schur = Schur::kNone;
  bool is_in_memory = true;  // whatever the size of the factors
  int block = 0;             // of block rows; 0 for entries

  int base() const { return is_zero_based ? 0 : 1; }
  bool has_flags() const { return partial != Partial::kNone || schur != Schur::kNone; }
  // Whether what a later call says of the layout of data is what this one said.
  bool agrees(const AnalysisOptions& later) const;
};

struct FactorizationOptions {
  Storage storage = Storage::kMemory;
  double perturbation = 0.0;  // relative to the norm of A; 0: none
  bool has_pairs = true;      // pivots of order 2
};

struct SolutionOptions {
  System system = System::kPlain;
  bool overwrites_b = false;
  bool is_sequential = false;
  int refinement_limit = 0;
  bool has_precise_residuals = false;
  bool is_refined_if_needed = false;
};

// iparm(4).
enum class Method { kDirect = 0, kConjugateGradientsSquared = 1, kConjugateGradients = 2 };
struct IterationOptions {
  Method method = Method::kDirect;
  double tolerance = 0.0;
};

// Each is nothing where entries contradict each other, or the kind.
std::optional<AnalysisOptions> read_analysis_options(const Kind& kind, const std::int32_t* iparm);
std::optional<FactorizationOptions> read_factorization_options(const Kind& kind, const std::int32_t* iparm);
std::optional<SolutionOptions> read_solution_options(const Kind& kind, const std::int32_t* iparm);
std::optional<IterationOptions> read_iteration_options(const Kind& kind, const std::int32_t* iparm);

}  // namespace quorin::pardiso
