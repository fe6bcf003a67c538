// What preconditioners of conjugate gradients are worth: the time to a solution, their own making included.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/suite.hpp"
#include "tests/support/sparse.hpp"

namespace quorin::bench {
namespace {

constexpr double kTolerance = 1e-8;

enum class Weights { kAnisotropic, kPatches, kScattered, kEqual };

// Of the edge from point v of a grid with `side` points in a row to the next one in its row, or in its column.
double weight(Weights weights, int side, int v, bool is_in_row, std::mt19937& random) {
  constexpr double kWeak = 0.001;
  constexpr int kPatch = 10;
  switch (weights) {
    case Weights::kAnisotropic:
      return is_in_row ? 1 : kWeak;
    case Weights::kPatches:
      return is_in_row == ((v % side / kPatch + v / side / kPatch) % 2 == 0) ? 1 : kWeak;
    case Weights::kScattered:
      return std::pow(10.0, std::uniform_real_distribution<double>(-3, 3)(random));
    case Weights::kEqual:
      return 1;
  }
  return 0;
}

// Five-point differences on side x side points, lower triangle, hardly held anywhere.
test::SparseMatrix weighted_grid(int side, Weights weights) {
  test::SparseMatrix A = test::grid(side, side, 1);
  std::mt19937 random(1);
  std::vector<double> diagonal(static_cast<std::size_t>(A.rows), 1e-3);
  for (test::Entry& e : A.entries) {
    if (e.row == e.column) continue;
    const double w = weight(weights, side, e.column, e.row - e.column == 1, random);
    e.value = -w;
    diagonal[static_cast<std::size_t>(e.row)] += w;
    diagonal[static_cast<std::size_t>(e.column)] += w;
  }
  for (test::Entry& e : A.entries) {
    if (e.row == e.column) e.value = diagonal[static_cast<std::size_t>(e.row)];
  }
  return A;
}

enum class Choice { kNone, kIncomplete, kAmwb };

class Solution {
 public:
  Solution(const quorin_library& library, const test::SparseMatrix& matrix, Choice choice)
      : library_(library),
        n_(matrix.rows),
        choice_(choice),
        columns_(compressed_columns(matrix)),
        b_(size()),
        x_(size()) {
    A_.n = A_.m = n_;
    A_.flags = TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER;
    A_.colptr = columns_.starts.data();
    A_.rowind = columns_.indices.data();
    A_.values.d = columns_.re.data();
    for (std::size_t i = 0; i < size(); ++i) b_[i] = std::sin(0.001 * static_cast<double>(i * i % 9973));
  }

  void operator()() {
    steps_ = 0;
    const Made ordered(choice_ == Choice::kAmwb ? order_by_preconditioner() : nullptr, library_.taucs_ccs_free);
    const Made L(choice_ == Choice::kNone ? nullptr : factor(), library_.taucs_ccs_free);
    L_ = L.get();
    const taucs_ccs_matrix* const A = ordered != nullptr ? ordered.get() : &A_;
    if (library_.taucs_conjugate_gradients(A, apply, this, x_.data(), b_.data(), 1000000, kTolerance) !=
        TAUCS_SUCCESS) {
      throw std::runtime_error("taucs_conjugate_gradients does not do what the row expects");
    }
  }
  double steps() const { return steps_; }

 private:
  using Made = std::unique_ptr<taucs_ccs_matrix, decltype(quorin_library::taucs_ccs_free)>;

  std::size_t size() const { return static_cast<std::size_t>(n_); }

  // A in the order in which its preconditioner, which is put into M_, has little fill. The right-hand side is as good
  // in any order.
  taucs_ccs_matrix* order_by_preconditioner() {
    const Made M(library_.taucs_amwb_preconditioner_create(&A_, 170566, n_ / kVertices, 0), library_.taucs_ccs_free);
    int *permutation = nullptr, *inverse = nullptr;
    library_.taucs_ccs_order(M.get(), &permutation, &inverse, "camd");
    taucs_ccs_matrix* ordered = nullptr;
    if (permutation != nullptr) {
      M_.reset(library_.taucs_ccs_permute_symmetrically(M.get(), permutation, inverse));
      ordered = library_.taucs_ccs_permute_symmetrically(&A_, permutation, inverse);
    }
    std::free(permutation);
    std::free(inverse);
    return ordered;
  }
  taucs_ccs_matrix* factor() {
    return choice_ == Choice::kAmwb ? library_.taucs_ccs_factor_llt(M_.get(), 0, 0)
                                    : library_.taucs_ccs_factor_llt(&A_, std::numeric_limits<double>::infinity(), 0);
  }
  static int32_t apply(void* self, void* x, const void* b) {
    auto& solution = *static_cast<Solution*>(self);
    ++solution.steps_;
    if (solution.L_ != nullptr) return solution.library_.taucs_ccs_solve_llt(solution.L_, x, b);
    std::copy_n(static_cast<const double*>(b), solution.n_, static_cast<double*>(x));
    return 0;
  }

  static constexpr double kVertices = 10;  // of a subgraph

  const quorin_library& library_;
  int n_;
  Choice choice_;
  test::CompressedArrays columns_;
  taucs_ccs_matrix A_{};
  Made M_{nullptr, library_.taucs_ccs_free};
  taucs_ccs_matrix* L_ = nullptr;
  std::vector<double> b_, x_;
  double steps_ = 0;
};

void add_rows(Suite& suite, const char* operation, int side, Weights weights) {
  const Row row{"taucs-preconditioners", operation, side * side, 1, 3e9, Unit::kTime};
  const auto measure = [&](const char* name, Choice choice) {
    suite.measure(row, name, [&library = suite.libraries().product, side, weights, choice] {
      return Solution(library, weighted_grid(side, weights), choice);
    });
  };
  measure("quorin", Choice::kAmwb);
  measure("ic0", Choice::kIncomplete);
  measure("none", Choice::kNone);
}

}  // namespace

void add_taucs_solver_rows(Suite& suite) {
  for (const int side : suite.sizes({100, 200}, {100})) {
    add_rows(suite, "anisotropic", side, Weights::kAnisotropic);
    add_rows(suite, "anisotropic, patches", side, Weights::kPatches);
    add_rows(suite, "scattered weights", side, Weights::kScattered);
    add_rows(suite, "equal weights", side, Weights::kEqual);
  }
}

}  // namespace quorin::bench
