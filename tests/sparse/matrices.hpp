// Graphs and matrices for the tests: grids, random ones, and those that come with the dependencies.
#pragma once

#include <algorithm>
#include <array>
#include <fstream>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "sparse/sparse.hpp"

namespace quorin::sparse::test {

struct Matrix {
  std::string name;
  int rows = 0, columns = 0;
  std::vector<int> starts = {0}, indices;

  Pattern pattern() const { return {rows, columns, starts.data(), indices.data()}; }
};

using Columns = std::vector<std::set<int>>;

inline Matrix from_columns(std::string name, int rows, const Columns& columns) {
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
  explicit Edges(int n) : columns_(n) {
    for (int i = 0; i < n; ++i) columns_[i].insert(i);
  }
  Edges& add(int i, int j) {
    columns_[std::min(i, j)].insert(std::max(i, j));
    return *this;
  }
  Matrix matrix(std::string name) const {
    return from_columns(std::move(name), static_cast<int>(columns_.size()), columns_);
  }

 private:
  Columns columns_;
};

// a * b * c points, each joined to those at a distance of 1, or, if `corners`, to those whose coordinates differ by at
// most 1.
inline Matrix grid(int a, int b, int c, bool corners) {
  const auto number = [=](int x, int y, int z) { return (z * b + y) * a + x; };
  Edges edges(a * b * c);
  for (int z = 0; z < c; ++z) {
    for (int y = 0; y < b; ++y) {
      for (int x = 0; x < a; ++x) {
        for (int step = 0; step < 27; ++step) {
          const int dx = step % 3 - 1, dy = step / 3 % 3 - 1, dz = step / 9 - 1;
          if (!corners && std::abs(dx) + std::abs(dy) + std::abs(dz) > 1) continue;
          const int u = x + dx, v = y + dy, w = z + dz;
          if (u < 0 || u >= a || v < 0 || v >= b || w < 0 || w >= c) continue;
          edges.add(number(x, y, z), number(u, v, w));
        }
      }
    }
  }
  return edges.matrix(std::to_string(a) + "x" + std::to_string(b) + "x" + std::to_string(c) + (corners ? "c" : ""));
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

// Square patterns from the collections of triplets (zero-based), of Matrix Market files and of compressed columns.
inline Matrix read_triplets(const std::string& name, int base, bool header) {
  std::ifstream file(std::string(QUORIN_MATRICES_DIR) + "/" + name);
  std::vector<std::pair<int, int>> entries;
  int n = 0;
  for (std::string line; std::getline(file, line);) {
    double i = 0, j = 0;
    if (line.empty() || line[0] == '%' || !(std::istringstream(line) >> i >> j)) continue;
    const int row = static_cast<int>(i) - base, column = static_cast<int>(j) - base;
    if (std::exchange(header, false)) continue;
    entries.emplace_back(row, column);
    n = std::max({n, row + 1, column + 1});
  }
  Columns columns(n);
  for (const auto& [row, column] : entries) columns[column].insert(row);
  return from_columns(name, n, columns);
}

inline Matrix read_columns(const std::string& name) {
  std::ifstream file(std::string(QUORIN_MATRICES_DIR) + "/" + name);
  std::string title;
  std::getline(file, title);
  int n = 0, jumbled = 0;
  file >> n >> jumbled;
  Matrix A{name, n, n, std::vector<int>(n + 1), {}};
  for (int& start : A.starts) file >> start;
  A.indices.resize(A.starts[n]);
  for (int& index : A.indices) file >> index;
  if (!file) throw std::runtime_error(name + " is not as expected");
  return A;
}

inline std::vector<Matrix> real_matrices() {
  std::vector<Matrix> all;
  for (const char* name : {"bcsstk01", "bcsstk16", "fs_183_1", "west0067", "mhd1280b", "qc324", "young1c", "neumann",
                           "mbeacxc", "ibm32a", "ibm32b", "t1"}) {
    all.push_back(read_triplets(std::string("cxsparse/") + name, 0, false));
  }
  for (const char* name : {"GD99_cc", "w156", "impcol_a", "ctina", "arrow"}) {
    all.push_back(read_triplets(std::string("klu/") + name + ".mtx", 1, true));
  }
  for (const char* name : {"bcsstk02.tri", "can___24.mtx", "n5"}) {
    all.push_back(read_triplets(std::string("cholmod/") + name, 1, true));
  }
  for (int k = 1; k <= 30; ++k) {
    all.push_back(read_columns("ldl/A" + std::to_string(100 + k).substr(1)));
  }
  // Some are wrong or empty on purpose.
  std::erase_if(all, [](const Matrix& A) { return A.columns == 0 || A.pattern().check() != Outcome::kDone; });
  return all;
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
