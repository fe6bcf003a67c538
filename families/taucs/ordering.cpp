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

struct Method {
  const char* name;
  const char* reporter;  // in messages
  const char* title;
  Needs needs;
  Outcome (*order)(const Pattern& A, const Ordering& ordering) noexcept;
};
constexpr Method kMethods[] = {
    {"camd", "amd", "AMD", Needs::kLowerTriangle, sparse::order_amd},
    {"metis", "metis", "METIS", Needs::kLowerTriangle, order_graph<sparse::order_metis>},
    {"genmmd", "genmmd", "GENMMD", Needs::kLowerTriangle, order_graph<sparse::order_minimum_degree>},
    {"tree", "treeorder", "tree", Needs::kLowerTriangle, order_graph<sparse::order_tree>},
    {"colamd", "colamd", "COLAMD", Needs::kBothTriangles, sparse::order_colamd},
    {"random", "randomperm", "random", Needs::kNothing, order_random},
    {"identity", "order", "identity", Needs::kNothing, order_identity},
};

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

// What the method is not for, as a format of its reporter and title; null if it is for this matrix.
const char* find_objection(const Method& method, const CcsMatrix& A) {
  const bool is_symmetric = A.is_symmetric_or_hermitian();
  if (method.needs == Needs::kBothTriangles && is_symmetric) {
    return "taucs_ccs_%s: not applicable for symmetric or hermitian matrices\n";
  }
  if (method.needs != Needs::kLowerTriangle) return nullptr;
  if (!is_symmetric) return "taucs_ccs_%s: %s ordering only works on symmetric matrices.\n";
  if (!A.has(kLower)) return "taucs_ccs_%s: the lower part of the matrix must be represented.\n";
  // A record with fewer rows than columns lacks the entries of the last columns: readers leave it so where a file
  // does not name the last diagonal entry.
  return A.m <= A.n ? nullptr : "taucs_ccs_%s: a symmetric matrix has as many rows as columns\n";
}

}  // namespace

void ccs_order(const CcsMatrix* A, std::int32_t** perm, std::int32_t** invperm, const char* name) noexcept {
  *perm = *invperm = nullptr;
  if (A == nullptr || A->n < 0 || A->colptr == nullptr || name == nullptr) return;
  const Method* const method = find_method(name);
  if (method == nullptr) return;
  if (const char* const objection = find_objection(*method, *A); objection != nullptr) {
    message(objection, method->reporter, method->title);
    return;
  }
  OwnedIndices permutation(new_array<int>(static_cast<std::size_t>(A->n)));
  OwnedIndices inverse(new_array<int>(static_cast<std::size_t>(A->n)));
  if (permutation == nullptr || inverse == nullptr) {
    if (method->needs == Needs::kBothTriangles) platform::fail_assertion("p && ip", kOrderingSource, __LINE__);
    message("taucs_ccs_%s: out of memory for %s permutation\n", method->reporter, method->title);
    return;
  }
  // m and n may be exchanged: n is the order of a triangle, and no row of another matrix lies beyond both.
  const Pattern pattern{std::max(A->m, A->n), A->n, A->colptr, A->rowind};
  const Outcome outcome = method->order(pattern, {permutation.get(), inverse.get()});
  if (outcome != Outcome::kDone) {
    const char* const cause = outcome == Outcome::kOutOfMemory ? "out of memory" : "the matrix is damaged";
    message("taucs_ccs_%s: %s ordering failed: %s\n", method->reporter, method->title, cause);
    return;
  }
  *perm = permutation.release();
  *invperm = inverse.release();
}

}  // namespace quorin::taucs
