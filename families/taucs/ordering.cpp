#include "families/taucs/ordering.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include "base/allocator.hpp"
#include "base/workspace.hpp"
#include "families/taucs/messages.hpp"
#include "platform/platform.hpp"
#include "sparse/sparse.hpp"

namespace quorin::taucs {
namespace {

using sparse::Outcome;

constexpr const char* kOrderingSource = "src\\taucs_ccs_order";

// Of "random": the same permutation in every call, so that runs can be repeated.
constexpr std::uint64_t kSeed = 1985;

// The two arrays that the host gets, ours until it does.
class Result {
 public:
  Result() = default;
  Result(const Result&) = delete;
  Result& operator=(const Result&) = delete;
  ~Result() {
    base::release(ordering_.permutation);
    base::release(ordering_.inverse);
  }

  // False if there is no memory. An array of no indices exists, too: null would mean failure.
  bool allocate(std::int32_t n) noexcept {
    const std::size_t bytes = base::saturating_product(static_cast<std::size_t>(std::max(n, 1)), sizeof(int));
    ordering_ = {static_cast<int*>(base::allocate(bytes)), static_cast<int*>(base::allocate(bytes))};
    return ordering_.permutation != nullptr && ordering_.inverse != nullptr;
  }
  const sparse::Ordering& ordering() const noexcept { return ordering_; }
  sparse::Ordering give_away() noexcept { return std::exchange(ordering_, {}); }

 private:
  sparse::Ordering ordering_{};
};

sparse::Pattern pattern_of(const CcsMatrix& A) noexcept { return {A.m, A.n, A.colptr, A.rowind}; }

// Orders A's graph, given one of its triangles. True if all went well.
template <class Order>
bool order_graph(const CcsMatrix& A, Result& result, Order order) noexcept {
  sparse::Graph graph;
  return sparse::build_graph(pattern_of(A), graph) == Outcome::kDone && result.allocate(A.n) &&
         order(graph, result.ordering()) == Outcome::kDone;
}

bool by_amd_of_old(const CcsMatrix&, const char*, Result&) noexcept {
  print("taucs_ccs_amd: AMD routines not linked.\n");
  return false;
}

bool by_camd(const CcsMatrix& A, const char* name, Result& result) noexcept {
  print("taucs_ccs_amd: starting (%s)\n", name);
  if (!A.is_symmetric_or_hermitian()) {
    print("taucs_ccs_amd: AMD ordering only works on symmetric matrices.\n");
    return false;
  }
  if (!A.has(kLower)) {
    print("taucs_ccs_amd: the lower part of the matrix must be represented.\n");
    return false;
  }
  if (!result.allocate(A.n)) return false;
  print("taucs_ccs_amd: calling amd_order matrix is %dx%d, nnz=%d\n", A.m, A.n, A.colptr[A.n]);
  int code = 0;
  const Outcome outcome = sparse::order_amd(pattern_of(A), result.ordering(), code);
  print("taucs_ccs_amd: amd_order returned, return code = %d.\n", code);
  return outcome == Outcome::kDone;
}

bool by_metis(const CcsMatrix& A, const char*, Result& result) noexcept {
  if (!A.is_symmetric_or_hermitian()) {
    print("taucs_ccs_treeorder: METIS ordering only works on symmetric matrices.\n");
    return false;
  }
  if (!A.has(kLower)) {
    print("taucs_ccs_metis: the lower part of the matrix must be represented.\n");
    return false;
  }
  return order_graph(A, result, sparse::order_metis);
}

bool by_genmmd(const CcsMatrix& A, const char*, Result& result) noexcept {
  if (!A.is_symmetric_or_hermitian()) {
    print("taucs_ccs_genmmd: GENMMD ordering only works on symmetric matrices.\n");
    return false;
  }
  if (!A.has(kLower)) {
    print("taucs_ccs_genmmd: the lower part of the matrix must be represented.\n");
    return false;
  }
  return order_graph(A, result, sparse::order_minimum_degree);
}

bool by_colamd(const CcsMatrix& A, const char*, Result& result) noexcept {
  if (A.is_symmetric_or_hermitian()) {
    print("taucs_ccs_colamd: not applicable for symmetric or hermitian matrices\n");
    return false;
  }
  print("taucs_ccs_colamd: starting\n");
  if (!result.allocate(A.n)) platform::fail_assertion("p && ip", kOrderingSource, __LINE__);
  print("oocsp_ccs_colamd: calling colamd matrix is %dx%d, nnz=%d\n", A.m, A.n, A.colptr[A.n]);
  if (sparse::order_colamd(pattern_of(A), result.ordering()) != Outcome::kDone) {
    print("oocsp_ccs_colamd: colamd failed\n");
    return false;
  }
  print("oocsp_ccs_colamd: colamd returned\n");
  return true;
}

bool by_chance(const CcsMatrix& A, const char*, Result& result) noexcept {
  if (!result.allocate(A.n)) {
    print("taucs_ccs_randomperm: out of memory for permutation\n");
    return false;
  }
  sparse::order_random(A.n, kSeed, result.ordering());
  return true;
}

bool by_tree(const CcsMatrix& A, const char*, Result& result) noexcept {
  if (!A.is_symmetric_or_hermitian()) {
    print("taucs_ccs_treeorder: tree ordering only works on symmetric matrices.\n");
    return false;
  }
  if (!A.has(kLower)) {
    print("taucs_ccs_treeorder: the lower part of the matrix must be represented.\n");
    return false;
  }
  const auto order = [&A](const sparse::Graph& graph, const sparse::Ordering& ordering) {
    print("taucs_ccs_treeorder: starting, matrix is %dx%d, # edges=%d\n", A.m, A.n, graph.directed_edges() / 2);
    const Outcome outcome = sparse::order_tree(graph, ordering);
    print("taucs_ccs_treeorder: done\n");
    return outcome;
  };
  return order_graph(A, result, order);
}

bool by_nothing(const CcsMatrix& A, const char*, Result& result) noexcept {
  if (!result.allocate(A.n)) {
    print("taucs_ccs_order: out of memory for identity permutation\n");
    return false;
  }
  sparse::order_identity(A.n, result.ordering());
  return true;
}

bool by_unknown(const CcsMatrix&, const char* name, Result&) noexcept {
  print("taucs_ccs_order: invalid ordering requested (%s)\n", name);
  return false;
}

struct Method {
  const char* name;
  bool (*order)(const CcsMatrix& A, const char* name, Result& result) noexcept;
};
constexpr Method kMethods[] = {
    {"amdbar", by_amd_of_old}, {"amd", by_amd_of_old},   {"md", by_amd_of_old}, {"camd", by_camd},
    {"metis", by_metis},       {"genmmd", by_genmmd},    {"colamd", by_colamd}, {"random", by_chance},
    {"tree", by_tree},         {"identity", by_nothing},
};

Method method_named(const char* name) noexcept {
  for (const Method& method : kMethods) {
    if (std::strcmp(name, method.name) == 0) return method;
  }
  return {name, by_unknown};
}

}  // namespace

void ccs_order(const CcsMatrix* A, std::int32_t** perm, std::int32_t** invperm, const char* name) noexcept {
  *perm = *invperm = nullptr;
  if (A == nullptr || A->n < 0 || A->colptr == nullptr || name == nullptr) return;
  Result result;
  if (!method_named(name).order(*A, name, result)) return;
  const sparse::Ordering ordering = result.give_away();
  *perm = ordering.permutation;
  *invperm = ordering.inverse;
}

}  // namespace quorin::taucs
