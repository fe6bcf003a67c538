// How long orderings take and what fill they leave, beside AMD called directly.
#include <amd.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

// The lower triangle of finite differences on a grid: five or seven points.
struct Grid {
  Grid(int a, int b, int c) : n(a * b * c) {
    for (int v = 0; v < n; ++v) {
      starts.push_back(static_cast<int>(rows.size()));
      rows.push_back(v);
      if ((v + 1) % a != 0) rows.push_back(v + 1);
      if (v / a % b != b - 1) rows.push_back(v + a);
      if (v / (a * b) != c - 1) rows.push_back(v + a * b);
    }
    starts.push_back(static_cast<int>(rows.size()));
  }

  int n;
  std::vector<int> starts, rows;
};

// The entries of the factor, diagonal included: each row's are found on the paths up the elimination tree from the
// entries of the matrix.
double factor_entries(const Grid& grid, const std::vector<int>& permutation) {
  constexpr int kNone = -1;
  const std::size_t n = permutation.size();
  std::vector<int> inverse(n), parent(n, kNone), seen(n, kNone);
  for (int k = 0; k < grid.n; ++k) inverse[permutation[k]] = k;
  // A linked list of columns for each row of the permuted lower triangle.
  std::vector<int> first(n, kNone), next(grid.rows.size()), column(grid.rows.size());
  for (int j = 0; j < grid.n; ++j) {
    for (int k = grid.starts[j]; k < grid.starts[j + 1]; ++k) {
      const int row = std::max(inverse[j], inverse[grid.rows[k]]);
      column[k] = std::min(inverse[j], inverse[grid.rows[k]]);
      next[k] = first[row];
      first[row] = k;
    }
  }
  double entries = grid.n;
  for (int i = 0; i < grid.n; ++i) {
    seen[i] = i;
    for (int k = first[i]; k != kNone; k = next[k]) {
      for (int j = column[k]; seen[j] != i; j = parent[j]) {
        seen[j] = i;
        ++entries;
        if (parent[j] == kNone) parent[j] = i;
      }
    }
  }
  return entries;
}

class Ordering {
 public:
  explicit Ordering(Grid grid) : grid_(std::move(grid)), permutation_(grid_.n) {}
  double fill() const { return factor_entries(grid_, permutation_); }

 protected:
  Grid grid_;
  std::vector<int> permutation_;
};

class ProductOrdering : public Ordering {
 public:
  ProductOrdering(const quorin_library& library, const char* name, Grid grid)
      : Ordering(std::move(grid)), order_(library.taucs_ccs_order), name_(name) {}

  void operator()() {
    taucs_ccs_matrix matrix{};
    matrix.n = matrix.m = grid_.n;
    matrix.flags = TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER;
    matrix.colptr = grid_.starts.data();
    matrix.rowind = grid_.rows.data();
    int *permutation = nullptr, *inverse = nullptr;
    order_(&matrix, &permutation, &inverse, name_);
    if (permutation == nullptr) throw std::runtime_error("taucs_ccs_order does not do what the row expects");
    permutation_.assign(permutation, permutation + grid_.n);
    std::free(permutation);
    std::free(inverse);
  }

 private:
  decltype(&::taucs_ccs_order) order_;
  const char* name_;
};

class AmdOrdering : public Ordering {
 public:
  using Ordering::Ordering;
  void operator()() {
    if (amd_order(grid_.n, grid_.starts.data(), grid_.rows.data(), permutation_.data(), nullptr, nullptr) != AMD_OK) {
      throw std::runtime_error("amd_order does not do what the row expects");
    }
  }
};

void add_rows(Suite& suite, const char* operation, int a, int b, int c, int threads) {
  constexpr double kOperations = 400;  // for a vertex, about
  const Libraries& libraries = suite.libraries();
  const Row row{"orderings", operation, a * b * c, threads, kOperations * a * b * c, Unit::kTime};
  suite.measure(row, "quorin", [=, &libraries] {
    libraries.product.set_threads(threads);
    return ProductOrdering(libraries.product, "genmmd", Grid(a, b, c));
  });
  suite.measure(row, "amd", [=] { return AmdOrdering(Grid(a, b, c)); });
}

}  // namespace

void add_ordering_rows(Suite& suite) {
  for (const int threads : {1, 2}) {
    for (const int side : suite.sizes({100, 316}, {100})) add_rows(suite, "genmmd of a square", side, side, 1, threads);
    for (const int side : suite.sizes({20, 46}, {20})) add_rows(suite, "genmmd of a cube", side, side, side, threads);
  }
}

}  // namespace quorin::bench
