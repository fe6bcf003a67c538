#include "families/taucs/solvers/panel_factors.hpp"

#include <algorithm>
#include <cmath>

#include "base/thread_settings.hpp"
#include "families/taucs/messages.hpp"
#include "families/taucs/ordering.hpp"
#include "families/taucs/solvers/depth.hpp"

namespace quorin::taucs {
namespace {

using sparse::Factorization;
using sparse::FactorOutcome;

// What replaces smaller pivots, relative to the norm of A: the error is then about as large as that from the growth of
// a pivot that is just not replaced.
constexpr double kPerturbation = 1e-8;

// A diagonal entry is small below this part of the largest entry in its column.
constexpr double kSmallDiagonal = 0.01;

constexpr int kWaits = -2;

std::size_t length(int n) { return static_cast<std::size_t>(n); }
int threads() { return base::region_threads(base::Domain::kSparseDirect); }

// Whether some diagonal entry is too small to be a pivot as it is.
template <Element T>
bool has_small_diagonal(const CcsMatrix& A, double* largest, double* diagonal) {
  std::fill_n(largest, A.n, 0.0);
  std::fill_n(diagonal, A.n, 0.0);
  for (int j = 0; j < A.n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const int i = A.rowind[k];
      const double magnitude = std::abs(A.elements<T>()[k]);
      largest[i] = std::max(largest[i], magnitude);
      largest[j] = std::max(largest[j], magnitude);
      if (i == j) diagonal[j] += magnitude;
    }
  }
  for (int j = 0; j < A.n; ++j) {
    if (diagonal[j] < kSmallDiagonal * largest[j]) return true;
  }
  return false;
}

// The partners of rows whose diagonal entries are too small, or null if there are none; then `outcome` tells whether
// that is for want of memory. What is not finite is left to the numeric phase.
template <Element T>
const int* find_partners(const CcsMatrix& A, sparse::SymmetricMatching<double>& matching, sparse::Outcome& outcome) {
  outcome = sparse::Outcome::kOutOfMemory;
  base::Workspace<double> scratch(base::saturating_product(length(A.n), 2));
  if (!scratch) return nullptr;
  outcome = sparse::Outcome::kDone;
  if (!has_small_diagonal<T>(A, scratch.data(), scratch.data() + A.n)) return nullptr;
  switch (sparse::match_symmetric(columns_of<T>(A, A.n), matching)) {
    case sparse::MatchingOutcome::kDone:
    case sparse::MatchingOutcome::kStructurallySingular:
      return matching.partner.data();
    case sparse::MatchingOutcome::kOutOfMemory:
      outcome = sparse::Outcome::kOutOfMemory;
      return nullptr;
    default:
      return nullptr;
  }
}

// The given order, or 0, ..., n - 1, except that of partners the first waits for the second.
void place_all(int n, const int* permutation, const int* partner, const sparse::Ordering& ordering) {
  int step = 0;
  std::fill_n(ordering.inverse, n, sparse::kNone);
  for (int k = 0; k < n; ++k) {
    const int i = permutation != nullptr ? permutation[k] : k;
    const int other = partner != nullptr ? partner[i] : i;
    if (other != i && ordering.inverse[other] == sparse::kNone) {
      ordering.inverse[i] = kWaits;
      continue;
    }
    if (other != i) ordering.place(other, step++);
    ordering.place(i, step++);
  }
}

template <Element T>
sparse::Outcome build_plan(const CcsMatrix& A, FactorKind kind, const int* permutation, std::int64_t most_elements,
                           sparse::Plan& plan) {
  const int n = A.n;
  sparse::Graph graph;
  sparse::Outcome outcome = sparse::build_graph(columns_of<T>(A, n), graph);
  sparse::PlanOptions options;
  options.most_elements = most_elements;
  sparse::SymmetricMatching<double> matching;
  if (outcome == sparse::Outcome::kDone && kind == FactorKind::kLdlt) {
    options.pair_of = find_partners<T>(A, matching, outcome);
  }
  if (outcome != sparse::Outcome::kDone) return outcome;
  base::Workspace<int> order(base::saturating_product(length(n), 2));
  if (!order) return sparse::Outcome::kOutOfMemory;
  const sparse::Ordering ordering{order.data(), order.data() + n};
  place_all(n, permutation, options.pair_of, ordering);
  return plan.build(graph, ordering, options);
}

// The lower triangle of a graph as a record that orderings take.
bool lower_triangle(const sparse::Graph& graph, base::Workspace<int>& arrays, CcsMatrix& record) {
  const int n = graph.size();
  arrays = base::Workspace<int>(length(n) + 1 + length(graph.directed_edges() / 2));
  if (!arrays) return false;
  record.n = record.m = n;
  record.flags = kDouble | kSymmetric | kLower | kPattern;
  record.colptr = arrays.data();
  record.rowind = arrays.data() + n + 1;
  int entries = 0;
  for (int v = 0; v < n; ++v) {
    record.colptr[v] = entries;
    for (const int w : graph.neighbours(v)) {
      if (w > v) record.rowind[entries++] = w;
    }
  }
  record.colptr[n] = entries;
  return true;
}

Status status_of(FactorOutcome outcome) {
  switch (outcome) {
    case FactorOutcome::kDone:
      return Status::kSuccess;
    case FactorOutcome::kOutOfMemory:
    case FactorOutcome::kTooLarge:
    case FactorOutcome::kBudgetTooSmall:
      return Status::kErrorNomem;
    default:
      return Status::kError;
  }
}

const char* reason(FactorOutcome outcome) {
  switch (outcome) {
    case FactorOutcome::kNotPositiveDefinite:
      return "not positive definite";
    case FactorOutcome::kSingular:
      return "singular";
    case FactorOutcome::kNotFinite:
      return "not finite";
    case FactorOutcome::kOutOfMemory:
    case FactorOutcome::kTooLarge:
      return "out of memory";
    case FactorOutcome::kBudgetTooSmall:
      return "more memory than allowed is needed at a time";
    default:
      return "a file cannot be opened or written";
  }
}

}  // namespace

template <Element T>
void order_for_ldlt(const CcsMatrix& A, std::int32_t** perm, std::int32_t** invperm, const char* name) {
  *perm = *invperm = nullptr;
  if (!is_sound_triangle<T>(&A)) return ccs_order(&A, perm, invperm, name);
  sparse::SymmetricMatching<double> matching;
  sparse::Outcome outcome{};
  const int* const partner = find_partners<T>(A, matching, outcome);
  if (outcome != sparse::Outcome::kDone) return;
  if (partner == nullptr) return ccs_order(&A, perm, invperm, name);

  sparse::Graph graph, pairs;
  base::Workspace<int> arrays, scratch(length(A.n));
  CcsMatrix record;
  if (!scratch || sparse::build_graph(columns_of<T>(A, A.n), graph) != sparse::Outcome::kDone ||
      sparse::compress_pairs(graph, partner, pairs) != sparse::Outcome::kDone ||
      !lower_triangle(pairs, arrays, record)) {
    return;
  }
  int *order = nullptr, *inverse = nullptr;
  ccs_order(&record, &order, &inverse, name);
  const OwnedIndices owned_order(order), owned_inverse(inverse);
  OwnedIndices permutation(new_array<int>(length(A.n))), its_inverse(new_array<int>(length(A.n)));
  if (order == nullptr || permutation == nullptr || its_inverse == nullptr) return;
  sparse::expand_pairs(A.n, partner, order, {permutation.get(), its_inverse.get()}, scratch.data());
  *perm = permutation.release();
  *invperm = its_inverse.release();
}

template <Element T>
bool analyze(const CcsMatrix& A, FactorKind kind, const int* permutation, int maxdepth, sparse::Plan& plan,
             std::int64_t most_elements) {
  if (build_plan<T>(A, kind, permutation, most_elements, plan) != sparse::Outcome::kDone) {
    message("taucs_ccs_factor: out of memory in the symbolic phase\n");
    return false;
  }
  return accepts_depth(plan.depth(), maxdepth, kind == FactorKind::kLdlt);
}

template <Element T>
Status compute(const CcsMatrix& A, FactorKind kind, FactorMethod method, const sparse::Plan& plan,
               sparse::PanelStore* store, sparse::Factor<T>& factor) {
  const bool is_hermitian = A.has(kHermitian);
  sparse::AssemblyOptions places;
  places.symmetry = is_hermitian ? sparse::Symmetry::kHermitian : sparse::Symmetry::kSymmetric;
  sparse::Assembly assembly;
  factor.clear();
  switch (assembly.build(plan, columns_of<T>(A, A.n), places)) {
    case sparse::Outcome::kDone:
      break;
    case sparse::Outcome::kBadPattern:
      message("taucs_ccs_factor: an entry stands where the symbolic factorization had none\n");
      return Status::kError;
    default:
      return Status::kErrorNomem;
  }
  sparse::FactorOptions options;
  options.threads = threads();
  options.store = store;
  options.method = method == FactorMethod::kLeftLooking ? sparse::Method::kLeftLooking : sparse::Method::kMultifrontal;
  if (kind == FactorKind::kLdlt) {
    options.factorization = is_hermitian ? sparse::Factorization::kLDLH : sparse::Factorization::kLDLT;
    options.pivoting = sparse::Pivoting::kBunchKaufman;
  }
  const sparse::Values<T> values{A.elements<T>()};
  FactorOutcome outcome = factor.compute(plan, assembly, values, options);
  if (outcome == FactorOutcome::kSingular) {
    message("taucs_ccs_factor: a pivot is zero; small ones are replaced\n");
    options.perturbation = kPerturbation;
    outcome = factor.compute(plan, assembly, values, options);
  }
  if (outcome != FactorOutcome::kDone) {
    message("taucs_ccs_factor: %s (column %d)\n", reason(outcome), factor.report().failed_column);
  }
  return status_of(outcome);
}

template <Element T>
Status solve_in_order(const sparse::Factor<T>& factor, int nrhs, T* X) {
  return status_of(
      sparse::solve(factor, sparse::Operation::kPlain, sparse::Stage::kAll, nrhs, X, factor.plan().size(), threads()));
}

bool FactorNumbers::get_inertia(std::int32_t* inertia) const {
  if (!*this) return false;
  const Factorization kind = visit([](const auto& factor) { return factor.factorization(); });
  if (kind != Factorization::kLDLH && (kind != Factorization::kLDLT || complex)) return false;
  const sparse::PivotCounts pivots = visit([](const auto& factor) { return factor.report().pivots; });
  inertia[0] = pivots.zero;
  inertia[1] = pivots.positive;
  inertia[2] = pivots.negative;
  return true;
}

template void order_for_ldlt<double>(const CcsMatrix&, std::int32_t**, std::int32_t**, const char*);
template void order_for_ldlt<Complex>(const CcsMatrix&, std::int32_t**, std::int32_t**, const char*);
template bool analyze<double>(const CcsMatrix&, FactorKind, const int*, int, sparse::Plan&, std::int64_t);
template bool analyze<Complex>(const CcsMatrix&, FactorKind, const int*, int, sparse::Plan&, std::int64_t);
template Status compute(const CcsMatrix&, FactorKind, FactorMethod, const sparse::Plan&, sparse::PanelStore*,
                        sparse::Factor<double>&);
template Status compute(const CcsMatrix&, FactorKind, FactorMethod, const sparse::Plan&, sparse::PanelStore*,
                        sparse::Factor<Complex>&);
template Status solve_in_order(const sparse::Factor<double>&, int, double*);
template Status solve_in_order(const sparse::Factor<Complex>&, int, Complex*);

}  // namespace quorin::taucs
