#include "families/taucs/ordering.hpp"

#include <algorithm>
#include <cstring>

#include "families/taucs/engine_view.hpp"
#include "families/taucs/messages.hpp"
#include "platform/platform.hpp"

namespace quorin::taucs {
namespace {

using sparse::Ordering;
using sparse::Outcome;
using sparse::Pattern;

constexpr const char* kOrderingSource = "src\\taucs_ccs_order";

// Of "random": the same permutation in every call, so that runs can be repeated.
constexpr std::uint64_t kSeed = 1985;

// Orders the graph of A + A^T.
template <Outcome (*order)(const sparse::Graph&, const Ordering&) noexcept>
Outcome order_graph(const Pattern& A, const Ordering& ordering) noexcept {
  sparse::Graph graph;
  const Outcome outcome = sparse::build_graph(A, graph);
  return outcome == Outcome::kDone ? order(graph, ordering) : outcome;
}

Outcome order_random(const Pattern& A, const Ordering& ordering) noexcept {
  sparse::order_random(A.columns, kSeed, ordering);
  return Outcome::kDone;
}

Outcome order_identity(const Pattern& A, const Ordering& ordering) noexcept {
  sparse::order_identity(A.columns, ordering);
  return Outcome::kDone;
}

enum class Needs { kNothing, kLowerTriangle, kBothTriangles };

// The texts are the documented ones, whose prefixes are not all of the method's name.
struct Method {
  const char* name;
  Outcome (*order)(const Pattern& A, const Ordering& ordering) noexcept;
  const char* is_not_symmetric = nullptr;  // or, for kBothTriangles, is
  const char* is_not_lower = nullptr;
  const char* begins = nullptr;
  const char* calls = nullptr;  // with the rows, columns and entries, or edges: a diagonal entry is none
  const char* ends = nullptr;   // with the code that AMD has for the outcome
  const char* fails = nullptr;
  const char* lacks_memory = nullptr;
  Needs needs;
  bool counts_edges = false;
};
constexpr Method kMethods[] = {
    {.name = "camd",
     .order = sparse::order_amd,
     .is_not_symmetric = "taucs_ccs_amd: AMD ordering only works on symmetric matrices.\n",
     .is_not_lower = "taucs_ccs_amd: the lower part of the matrix must be represented.\n",
     .begins = "taucs_ccs_amd: starting (camd)\n",
     .calls = "taucs_ccs_amd: calling amd_order matrix is %dx%d, nnz=%d\n",
     .ends = "taucs_ccs_amd: amd_order returned, return code = %d.\n",
     .fails = "taucs_ccs_amd: amd_order returned, return code = %d.\n",
     .needs = Needs::kLowerTriangle},
    {.name = "metis",
     .order = order_graph<sparse::order_metis>,
     .is_not_symmetric = "taucs_ccs_treeorder: METIS ordering only works on symmetric matrices.\n",
     .is_not_lower = "taucs_ccs_metis: the lower part of the matrix must be represented.\n",
     .needs = Needs::kLowerTriangle},
    {.name = "genmmd",
     .order = order_graph<sparse::order_minimum_degree>,
     .is_not_symmetric = "taucs_ccs_genmmd: GENMMD ordering only works on symmetric matrices.\n",
     .is_not_lower = "taucs_ccs_genmmd: the lower part of the matrix must be represented.\n",
     .needs = Needs::kLowerTriangle},
    {.name = "tree",
     .order = order_graph<sparse::order_tree>,
     .is_not_symmetric = "taucs_ccs_treeorder: tree ordering only works on symmetric matrices.\n",
     .is_not_lower = "taucs_ccs_treeorder: the lower part of the matrix must be represented.\n",
     .calls = "taucs_ccs_treeorder: starting, matrix is %dx%d, # edges=%d\n",
     .ends = "taucs_ccs_treeorder: done\n",
     .needs = Needs::kLowerTriangle,
     .counts_edges = true},
    {.name = "colamd",
     .order = sparse::order_colamd,
     .is_not_symmetric = "taucs_ccs_colamd: not applicable for symmetric or hermitian matrices\n",
     .begins = "taucs_ccs_colamd: starting\n",
     .calls = "oocsp_ccs_colamd: calling colamd matrix is %dx%d, nnz=%d\n",
     .ends = "oocsp_ccs_colamd: colamd returned\n",
     .fails = "oocsp_ccs_colamd: colamd failed\n",
     .needs = Needs::kBothTriangles},
    {.name = "random",
     .order = order_random,
     .lacks_memory = "taucs_ccs_randomperm: out of memory for permutation\n",
     .needs = Needs::kNothing},
    {.name = "identity",
     .order = order_identity,
     .lacks_memory = "taucs_ccs_order: out of memory for identity permutation\n",
     .needs = Needs::kNothing},
};

template <class... Values>
void say(const char* format, Values... values) {
  if (format != nullptr) message(format, values...);
}

// AMD's own.
int code_of(Outcome outcome) { return outcome == Outcome::kDone ? 0 : outcome == Outcome::kOutOfMemory ? -1 : -2; }

// Null for what is none, with the reason.
const Method* find_method(const char* name) {
  const auto* const found = std::find_if(std::begin(kMethods), std::end(kMethods),
                                         [name](const Method& method) { return std::strcmp(name, method.name) == 0; });
  if (found != std::end(kMethods)) return found;
  for (const char* const amd : {"amd", "amdbar", "md"}) {
    if (std::strcmp(name, amd) == 0) return refuse("taucs_ccs_amd: AMD routines not linked.\n");
  }
  return refuse("taucs_ccs_order: invalid ordering requested (%s)\n", name);
}

// What the method is not for; null if it is for this matrix.
const char* find_objection(const Method& method, const CcsMatrix& A) {
  const bool is_symmetric = A.is_symmetric_or_hermitian();
  if (method.needs == Needs::kBothTriangles && is_symmetric) return method.is_not_symmetric;
  if (method.needs != Needs::kLowerTriangle) return nullptr;
  if (!is_symmetric) return method.is_not_symmetric;
  if (!A.has(kLower)) return method.is_not_lower;
  // A record with fewer rows than columns lacks the entries of the last columns: readers leave it so where a file
  // does not name the last diagonal entry.
  return A.m <= A.n ? nullptr : "taucs_ccs_order: a symmetric matrix has as many rows as columns\n";
}

}  // namespace

void ccs_order(const CcsMatrix* A, std::int32_t** perm, std::int32_t** invperm, const char* name) noexcept {
  *perm = *invperm = nullptr;
  if (A == nullptr || A->n < 0 || A->colptr == nullptr || name == nullptr) return;
  const Method* const method = find_method(name);
  if (method == nullptr) return;
  if (const char* const objection = find_objection(*method, *A); objection != nullptr) {
    message("%s", objection);
    return;
  }
  OwnedIndices permutation(new_array<int>(static_cast<std::size_t>(A->n)));
  OwnedIndices inverse(new_array<int>(static_cast<std::size_t>(A->n)));
  if (permutation == nullptr || inverse == nullptr) {
    if (method->needs == Needs::kBothTriangles) platform::fail_assertion("p && ip", kOrderingSource, __LINE__);
    say(method->lacks_memory);
    return;
  }
  // m and n may be exchanged: n is the order of a triangle, and no row of another matrix lies beyond both.
  const Pattern pattern{std::max(A->m, A->n), A->n, A->colptr, A->rowind};
  const int entries = A->colptr[A->n] - (method->counts_edges ? A->n : 0);
  say(method->begins);
  say(method->calls, A->m, A->n, entries);
  const Outcome outcome = method->order(pattern, {permutation.get(), inverse.get()});
  if (outcome != Outcome::kDone) {
    const char* const cause = outcome == Outcome::kOutOfMemory ? "out of memory" : "the matrix is damaged";
    say(method->fails, code_of(outcome));
    message("taucs_ccs_order: %s ordering failed: %s\n", method->name, cause);
    return;
  }
  say(method->ends, code_of(outcome));
  *perm = permutation.release();
  *invperm = inverse.release();
}

}  // namespace quorin::taucs
