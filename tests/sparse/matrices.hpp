// Graphs and matrices for the tests: grids, random ones and others.
#pragma once

#include "sparse/sparse.hpp"
#include "tests/support/sparse.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {

using Scalars = testing::Types<float, double, std::complex<float>, std::complex<double>>;

struct Matrix {
  std::string name;
  int rows = 0, columns = 0;
  std::vector<int> starts = {0}, indices;

  Pattern pattern() const { return {rows, columns, starts.data(), indices.data()}; }
};

inline Matrix pattern_of(const quorin::test::SparseMatrix& A, std::string name) {
  quorin::test::CompressedArrays arrays = compressed_columns(A);
  return {std::move(name), A.rows, A.columns, std::move(arrays.starts), std::move(arrays.indices)};
}

inline Matrix from_columns(std::string name, int rows, const std::vector<std::vector<int>>& columns) {
  Matrix A{std::move(name), rows, static_cast<int>(columns.size()), {0}, {}};
  for (const auto& column : columns) {
    A.indices.insert(A.indices.end(), column.begin(), column.end());
    A.starts.push_back(static_cast<int>(A.indices.size()));
  }
  return A;
}

// A lower triangle with its diagonal.
class Edges {
 public:
  explicit Edges(int n) {
    for (int i = 0; i < n; ++i) lower_.add(i, i);
  }
  Edges& add(int i, int j) {
    lower_.add(std::max(i, j), std::min(i, j));
    return *this;
  }
  Matrix matrix(std::string name) const { return pattern_of(lower_, std::move(name)); }

 private:
  quorin::test::SparseMatrix lower_;
};

inline Matrix grid(int a, int b, int c, bool corners) {
  const quorin::test::SparseMatrix A = quorin::test::grid(a, b, c, corners);
  return pattern_of(A, A.name);
}

inline Matrix random_matrix(int n, int edge_count, unsigned seed) {
  std::mt19937 numbers(seed);
  Edges edges(n);
  for (int k = 0; k < edge_count; ++k) {
    const int i = static_cast<int>(numbers() % static_cast<unsigned>(n));
    edges.add(i, static_cast<int>(numbers() % static_cast<unsigned>(n)));
  }
  return edges.matrix("random " + std::to_string(n) + "/" + std::to_string(edge_count));
}

// Each vertex joined to an earlier one, but for some roots; numbered at random. `reach`: how much earlier at most.
inline Matrix random_forest(int n, int reach, int trees, unsigned seed) {
  std::mt19937 numbers(seed);
  std::vector<int> number(n);
  for (int i = 0; i < n; ++i) number[i] = i;
  std::shuffle(number.begin(), number.end(), numbers);
  Edges edges(n);
  for (int i = trees; i < n; ++i) {
    const int back = 1 + static_cast<int>(numbers() % static_cast<unsigned>(std::min(i, reach)));
    edges.add(number[i], number[i - back]);
  }
  return edges.matrix("forest");
}

inline Matrix wheel(int n) {
  Edges edges(n);
  for (int i = 1; i < n; ++i) edges.add(0, i).add(i, i + 1 < n ? i + 1 : 1);
  return edges.matrix("wheel");
}

inline Matrix complete_bipartite(int a, int b) {
  Edges edges(a + b);
  for (int i = 0; i < a; ++i) {
    for (int j = 0; j < b; ++j) edges.add(i, a + j);
  }
  return edges.matrix("bipartite");
}

inline Graph graph_of(const Matrix& A) {
  Graph graph;
  if (build_graph(A.pattern(), graph) != Outcome::kDone) throw std::runtime_error(A.name + " has no graph");
  return graph;
}

struct Arrays {
  explicit Arrays(int n) : permutation(n, -1), inverse(n, -1) {}
  Ordering ordering() { return {permutation.data(), inverse.data()}; }
  bool is_valid() const {
    std::vector<int> sorted = permutation;
    std::sort(sorted.begin(), sorted.end());
    for (std::size_t k = 0; k < sorted.size(); ++k) {
      if (sorted[k] != static_cast<int>(k) || inverse[permutation[k]] != static_cast<int>(k)) return false;
    }
    return true;
  }
  std::vector<int> permutation, inverse;
};

}  // namespace quorin::sparse::test
