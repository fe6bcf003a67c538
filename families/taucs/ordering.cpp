#include "families/taucs/ordering.hpp"

#include <algorithm>
#include <cstring>

#include "families/taucs/engine_view.hpp"
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
  Needs needs;
  Outcome (*order)(const Pattern& A, const Ordering& ordering) noexcept;
};
constexpr Method kMethods[] = {
    {"camd", Needs::kLowerTriangle, sparse::order_amd},
    {"metis", Needs::kLowerTriangle, order_graph<sparse::order_metis>},
    {"genmmd", Needs::kLowerTriangle, order_graph<sparse::order_minimum_degree>},
    {"tree", Needs::kLowerTriangle, order_graph<sparse::order_tree>},
    {"colamd", Needs::kBothTriangles, sparse::order_colamd},
    {"random", Needs::kNothing, order_random},
    {"identity", Needs::kNothing, order_identity},
};

const Method* find_method(const char* name) {
  const auto* const found = std::find_if(std::begin(kMethods), std::end(kMethods),
                                         [name](const Method& method) { return std::strcmp(name, method.name) == 0; });
  return found == std::end(kMethods) ? nullptr : found;
}

bool is_for(const Method& method, const CcsMatrix& A) {
  switch (method.needs) {
    case Needs::kLowerTriangle:
      // A record with fewer columns than rows lacks the entries of the last columns: readers leave it so where a file
      // does not name the last diagonal entry.
      return A.is_symmetric_or_hermitian() && A.has(kLower) && A.m <= A.n;
    case Needs::kBothTriangles:
      return !A.is_symmetric_or_hermitian();
    case Needs::kNothing:
      return true;
  }
  return false;
}

}  // namespace

void ccs_order(const CcsMatrix* A, std::int32_t** perm, std::int32_t** invperm, const char* name) noexcept {
  *perm = *invperm = nullptr;
  if (A == nullptr || A->n < 0 || A->colptr == nullptr || name == nullptr) return;
  const Method* const method = find_method(name);
  if (method == nullptr || !is_for(*method, *A)) return;
  OwnedIndices permutation(new_array<int>(static_cast<std::size_t>(A->n)));
  OwnedIndices inverse(new_array<int>(static_cast<std::size_t>(A->n)));
  if (permutation == nullptr || inverse == nullptr) {
    if (method->needs == Needs::kBothTriangles) platform::fail_assertion("p && ip", kOrderingSource, __LINE__);
    return;
  }
  // m and n may be exchanged: n is the order of a triangle, and no row of another matrix lies beyond both.
  const Pattern pattern{std::max(A->m, A->n), A->n, A->colptr, A->rowind};
  if (method->order(pattern, {permutation.get(), inverse.get()}) != Outcome::kDone) return;
  *perm = permutation.release();
  *invperm = inverse.release();
}

}  // namespace quorin::taucs
