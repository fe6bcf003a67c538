// How long matching and preprocessing take for each stored entry, beside METIS on the graph of the matrix as it is.
// "budget" is what all of preprocessing may take: 1.3 times METIS's time and 20 ns an entry. The least of three times.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "sparse/sparse.hpp"
#include "tests/sparse/values.hpp"

namespace {

using quorin::sparse::Graph;
using quorin::sparse::MatchingOutcome;
using quorin::sparse::Symmetry;
using quorin::sparse::test::TypedMatrix;
using quorin::test::SparseMatrix;

double nanoseconds(const std::function<bool()>& call) {
  double least = 1e300;
  for (int k = 0; k < 3; ++k) {
    const auto start = std::chrono::steady_clock::now();
    const bool is_done = call();
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    if (!is_done) std::printf("a call failed\n");
    least = std::min(least, time.count());
  }
  return least;
}

void measure(const SparseMatrix& A, Symmetry symmetry) {
  const TypedMatrix<double> stored(A);
  const auto matrix = stored.matrix();
  const int n = matrix.columns;
  const double matching = nanoseconds([&] {
    quorin::sparse::Matching<double> general;
    quorin::sparse::SymmetricMatching<double> symmetric;
    return (symmetry == Symmetry::kGeneral ? match(matrix, general) : match_symmetric(matrix, symmetric)) ==
           MatchingOutcome::kDone;
  });
  std::vector<int> permutation(static_cast<std::size_t>(n)), inverse(permutation);
  Graph graph;
  if (build_graph(matrix, graph) != quorin::sparse::Outcome::kDone) return;
  const double metis = nanoseconds([&] {
    return order_metis(graph, {permutation.data(), inverse.data()}) == quorin::sparse::Outcome::kDone;
  });
  const double all = nanoseconds([&] {
    quorin::sparse::Preprocessing<double> result;
    return preprocess(matrix, {.symmetry = symmetry, .scales = true, .matches = true}, result) ==
           MatchingOutcome::kDone;
  });
  const double entries = matrix.entries();
  std::printf("%-26s %8d %9d %9.1f %9.1f %9.1f %9.1f\n", A.name.c_str(), n, matrix.entries(), matching / entries,
              metis / entries, all / entries, 1.3 * metis / entries + 20);
  std::fflush(stdout);
}

class Matrices {
 public:
  SparseMatrix random(int n, int per_column) {
    SparseMatrix A{"random, " + std::to_string(per_column) + " a column", n, n, {}};
    for (int j = 0; j < n; ++j) {
      for (int k = 0; k < per_column; ++k) A.add(below(n), j, uniform_(numbers_));
    }
    return A;
  }
  // A grid with random values, its rows in random order if it is not symmetric.
  SparseMatrix grid(int side, bool is_symmetric) {
    SparseMatrix A = quorin::test::grid(side, side, side);
    if (!is_symmetric) A.mirror();
    std::vector<int> order(static_cast<std::size_t>(A.rows));
    std::iota(order.begin(), order.end(), 0);
    if (!is_symmetric) std::shuffle(order.begin(), order.end(), numbers_);
    for (auto& [i, j, value] : A.entries) {
      i = order[static_cast<std::size_t>(i)];
      value = uniform_(numbers_);
    }
    A.name = is_symmetric ? "grid, random values" : "shuffled grid";
    return A;
  }
  // Stokes' equations by their structure: an operator on a square, and constraints without a diagonal.
  SparseMatrix saddle_point(int side) {
    const int n = side * side;
    SparseMatrix A = quorin::test::grid(side, side, 1, true);
    for (auto& entry : A.entries) entry.value = entry.row == entry.column ? 8.0 : -1.0;
    for (int k = 0; k < n / 4; ++k) {
      A.add(n + k, n + k, 0.0);
      for (int l = 0; l < 8; ++l) A.add(n + k, (4 * k + l % 4 + side * (l / 4)) % n, uniform_(numbers_));
    }
    A.name = "saddle point";
    return A;
  }

 private:
  int below(int n) { return static_cast<int>(numbers_() % static_cast<unsigned>(n)); }
  std::mt19937 numbers_{1};
  std::uniform_real_distribution<double> uniform_{-1, 1};
};

}  // namespace

int main() {
  std::printf("ns an entry                       n   entries  matching     METIS       all    budget\n");
  Matrices matrices;
  SparseMatrix convection = quorin::test::convection_diffusion(400, 1e5);
  convection.name = "convection and diffusion";
  measure(convection, Symmetry::kGeneral);
  measure(matrices.grid(40, false), Symmetry::kGeneral);
  measure(matrices.random(50'000, 5), Symmetry::kGeneral);
  measure(matrices.random(30'000, 10), Symmetry::kGeneral);
  measure(matrices.grid(40, true), Symmetry::kSymmetric);
  measure(matrices.saddle_point(200), Symmetry::kSymmetric);
}
