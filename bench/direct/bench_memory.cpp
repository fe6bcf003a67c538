// The memory that a factorization is said to take at its peak, and what it takes of the C library's allocator, for the
// left-looking and the multifrontal method. Prints a table. Linked with --wrap for malloc and its like.
#include <algorithm>
#include <cstdio>
#include <vector>

#include "base/parallel.hpp"
#include "bench/direct/problems.hpp"
#include "dense/dense.hpp"
#include "sparse/sparse.hpp"
#include "tests/sparse/watched_heap.hpp"

namespace quorin::bench {
namespace {

using namespace sparse;

constexpr double kMega = 1e6;

void measure(const char* name, const char* label, test::SparseMatrix A, const FactorOptions& kind) {
  const bool is_lu = kind.factorization == Factorization::kLU;
  const bool is_symmetric =
      std::all_of(A.entries.begin(), A.entries.end(), [](const test::Entry& e) { return e.row >= e.column; });
  if (is_lu && is_symmetric) A.mirror();
  const test::CompressedArrays arrays = compressed_columns(A);
  const int n = A.rows;
  const Pattern pattern{n, n, arrays.starts.data(), arrays.indices.data()};
  Graph graph;
  require(build_graph(pattern, graph));
  std::vector<int> permutation(static_cast<std::size_t>(n)), inverse(permutation);
  const Ordering ordering{permutation.data(), inverse.data()};
  require(order_metis(graph, ordering));
  Plan plan;
  Assembly assembly;
  require(plan.build(graph, ordering));
  require(assembly.build(
      plan, pattern,
      {.panels = panel_kind(kind.factorization), .symmetry = is_lu ? Symmetry::kGeneral : Symmetry::kSymmetric}));
  std::printf("| %s | %s | %.2f |", label, name, static_cast<double>(factor_bytes<double>(plan, kind)) / kMega);
  for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
    FactorOptions options = kind;
    options.method = method;
    Factor<double> factor;
    heap = {};
    heap.watches = true;
    require(factor.compute(plan, assembly, {arrays.re.data()}, options));
    heap.watches = false;
    const auto said = static_cast<double>(peak_bytes<double>(plan, options));
    const auto taken = static_cast<double>(heap.most_bytes);
    std::printf(" %.2f | %.2f | %.1f %% | %.3f |", said / kMega, taken / kMega, 100 * (said / taken - 1),
                taken / static_cast<double>(factor_bytes<double>(plan, kind)));
  }
  std::printf("\n");
}

void run() {
  std::printf(
      "| problem | factorization | factor, MB | left-looking, said, MB | taken, MB | error | taken / factor | "
      "multifrontal, said, MB | taken, MB | error | taken / factor |\n|---|---|---|---|---|---|---|---|---|---|---|\n");
  const FactorOptions llt{.factorization = Factorization::kLLT, .pivoting = Pivoting::kInOrder},
      ldlt{.factorization = Factorization::kLDLT, .pivoting = Pivoting::kBunchKaufman, .perturbation = 1e-10},
      lu{.factorization = Factorization::kLU, .pivoting = Pivoting::kPartial, .perturbation = 1e-10};
  const auto all = [&](const char* label, const test::SparseMatrix& A, bool is_definite) {
    if (is_definite) measure("L L'", label, A, llt);
    measure("L D L'", label, A, ldlt);
    measure("L U", label, A, lu);
  };
  all("square grid of 300", laplace(300, 300, 1, false), true);
  all("cubic grid of 30", laplace(30, 30, 30, false), true);
  all("cubic grid of 20, 27 points", laplace(20, 20, 20, true), true);
  all("saddle point, 20^3", saddle_point(20, 20), false);
  measure("L U", "circuit of 100000", circuit(100000), lu);
}

}  // namespace
}  // namespace quorin::bench

int main() {
  quorin::base::start_parallel();
  quorin::dense::start();
  {
    const quorin::dense::KernelBuffer buffer(1);  // which is the library's, and stays
  }
  quorin::bench::run();
}
