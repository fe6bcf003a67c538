// Model problems for the direct engine: values that need no pivoting, but for the saddle points.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/sparse.hpp"

namespace quorin::bench {

// For the engine's outcomes.
template <class Result>
void require(Result result) {
  if (result != Result::kDone) throw std::runtime_error("outcome " + std::to_string(static_cast<int>(result)));
}

// Of a symmetric matrix the lower triangle.
inline test::SparseMatrix laplace(int a, int b, int c, bool corners) {
  test::SparseMatrix A = test::grid(a, b, c, corners);
  for (test::Entry& e : A.entries) e.value = e.row == e.column ? 27.0 : -1.0;
  return A;
}

// One constraint on each fourth pair of neighbours.
inline test::SparseMatrix saddle_point(int side, int depth) {
  test::SparseMatrix A = laplace(side, side, depth, false);
  const int m = A.rows;
  for (int k = 0; k + 1 < m; k += 4) {
    A.add(m + k / 4, k, 1.0);
    A.add(m + k / 4, k + 1, -1.0);
    A.add(m + k / 4, m + k / 4, 0.0);
  }
  return A;
}

// Convection along one axis of a box.
inline test::SparseMatrix convection(int a, int b, int c) {
  test::SparseMatrix A = laplace(a, b, c, false);
  A.mirror();
  for (test::Entry& e : A.entries) {
    if (e.row > e.column) e.value *= 1.5;
  }
  return A;
}

// A circuit's nodal equations: conductances between nodes, most of them near each other, of widely different sizes,
// nodes with one connection, a supply that many share, and controlled sources, which are not symmetric.
inline test::SparseMatrix circuit(int n) {
  test::SparseMatrix A;
  A.rows = A.columns = n;
  std::mt19937 random(1);
  std::vector<double> sums(static_cast<std::size_t>(n), 1e-6);
  const auto below = [&random](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); };
  const auto connect = [&](int i, int j, double conductance) {
    if (i == j) return;
    A.add(i, j, -conductance);
    A.add(j, i, -conductance);
    sums[i] += conductance;
    sums[j] += conductance;
  };
  for (int k = 1; k < n; ++k) {
    connect(k, std::max(0, k - 1 - below(30)), 1e-3 * (1 + below(1000)));
    if (k % 10 < 6) connect(k, std::max(0, k - 1 - below(30)), 1e-3 * (1 + below(1000)));
    if (k % 40 == 0) connect(k, below(k), 1e-3);
    if (k % 200 == 0) connect(k, 0, 1.0);
    if (k % 20 == 0 && k > 40) A.add(k, k - 1 - below(40), 1e-2 * (1 + below(100)));
  }
  for (int k = 0; k < n; ++k) A.add(k, k, sums[k]);
  return A;
}

}  // namespace quorin::bench
