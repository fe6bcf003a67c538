// How long orderings take and what fill they leave, beside AMD called directly.
#include <amd.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/suite.hpp"
#include "tests/support/sparse.hpp"

namespace quorin::bench {
namespace {

class Ordering {
 public:
  explicit Ordering(const test::SparseMatrix& grid)
      : n_(grid.rows), grid_(compressed_columns(grid)), permutation_(static_cast<std::size_t>(n_)) {}
  double fill() const {
    return test::factor_entries(n_, grid_.starts.data(), grid_.indices.data(), permutation_.data());
  }

 protected:
  int n_;
  test::CompressedArrays grid_;
  std::vector<int> permutation_;
};

class ProductOrdering : public Ordering {
 public:
  ProductOrdering(const quorin_library& library, const char* name, const test::SparseMatrix& grid)
      : Ordering(grid), order_(library.taucs_ccs_order), name_(name) {}

  void operator()() {
    taucs_ccs_matrix matrix{};
    matrix.n = matrix.m = n_;
    matrix.flags = TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER;
    matrix.colptr = grid_.starts.data();
    matrix.rowind = grid_.indices.data();
    int *permutation = nullptr, *inverse = nullptr;
    order_(&matrix, &permutation, &inverse, name_);
    if (permutation == nullptr) throw std::runtime_error("taucs_ccs_order does not do what the row expects");
    permutation_.assign(permutation, permutation + n_);
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
    if (amd_order(n_, grid_.starts.data(), grid_.indices.data(), permutation_.data(), nullptr, nullptr) != AMD_OK) {
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
    return ProductOrdering(libraries.product, "genmmd", test::grid(a, b, c));
  });
  suite.measure(row, "amd", [=] { return AmdOrdering(test::grid(a, b, c)); });
}

}  // namespace

void add_ordering_rows(Suite& suite) {
  for (const int threads : {1, 2}) {
    for (const int side : suite.sizes({100, 316}, {100})) add_rows(suite, "genmmd of a square", side, side, 1, threads);
    for (const int side : suite.sizes({20, 46}, {20})) add_rows(suite, "genmmd of a cube", side, side, side, threads);
  }
}

}  // namespace quorin::bench
