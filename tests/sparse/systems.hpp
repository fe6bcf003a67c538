// Linear systems for the tests of factors: entries in no order, from which both the arrays of the library and residuals
// are made.
#pragma once

#include "tests/sparse/matrices.hpp"
#include "tests/support/standard.hpp"

namespace quorin::sparse::test {

// What is factored how.
struct Kind {
  Factorization factorization;
  Pivoting pivoting;
  Symmetry symmetry;

  FactorOptions options(Method method = Method::kLeftLooking, int threads = 1) const {
    return {.factorization = factorization, .method = method, .pivoting = pivoting, .threads = threads};
  }
  bool is_definite() const { return factorization == Factorization::kLLT; }
};
constexpr Kind kKinds[] = {
    {Factorization::kLLT, Pivoting::kInOrder, Symmetry::kHermitian},
    {Factorization::kLDLH, Pivoting::kInOrder, Symmetry::kHermitian},
    {Factorization::kLDLH, Pivoting::kDiagonal, Symmetry::kHermitian},
    {Factorization::kLDLH, Pivoting::kBunchKaufman, Symmetry::kHermitian},
    {Factorization::kLDLT, Pivoting::kInOrder, Symmetry::kSymmetric},
    {Factorization::kLDLT, Pivoting::kDiagonal, Symmetry::kSymmetric},
    {Factorization::kLDLT, Pivoting::kBunchKaufman, Symmetry::kSymmetric},
    {Factorization::kLU, Pivoting::kInOrder, Symmetry::kGeneral},
    {Factorization::kLU, Pivoting::kPartial, Symmetry::kGeneral},
    {Factorization::kLU, Pivoting::kComplete, Symmetry::kGeneral},
    {Factorization::kLU, Pivoting::kPartial, Symmetry::kSymmetric},
    {Factorization::kLU, Pivoting::kComplete, Symmetry::kHermitian},
};
inline std::string text(const Kind& kind) { return "kind " + std::to_string(&kind - kKinds); }

constexpr Operation kOperations[] = {Operation::kPlain, Operation::kTransposed, Operation::kAdjoint,
                                     Operation::kConjugated};

inline Matrix complete(int n) {
  Edges edges(n);
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i; ++j) edges.add(i, j);
  }
  return edges.matrix("complete");
}

inline std::vector<Matrix> patterns() {
  Edges path(200), blocks(60), arrow(50);
  for (int i = 0; i + 1 < 200; ++i) path.add(i, i + 1);
  for (int i = 0; i < 60; ++i) {
    for (int j = i / 7 * 7; j < i; ++j) blocks.add(i, j);
  }
  for (int i = 1; i < 50; ++i) arrow.add(i, 0);
  return {Edges(0).matrix("none"),
          Edges(1).matrix("one"),
          Edges(2).add(0, 1).matrix("two"),
          Edges(30).matrix("diagonal"),
          complete(9),
          complete(40),
          complete(150),
          path.matrix("path"),
          blocks.matrix("blocks"),
          arrow.matrix("arrow"),
          grid(17, 13, 1, false),
          grid(7, 7, 7, false),
          random_matrix(90, 60, 1),
          random_matrix(90, 200, 2),
          random_matrix(90, 700, 3),
          random_forest(80, 5, 3, 2),
          complete_bipartite(12, 30)};
}

template <Scalar T>
struct System {
  struct Entry {
    int row, column;
    T value;
  };
  std::string name;
  int n = 0;
  Symmetry symmetry = Symmetry::kGeneral;
  // Of a symmetric or Hermitian matrix the lower triangle.
  std::vector<Entry> entries;

  // Calls take(row, column, value) for all elements, mirror images included.
  template <class Take>
  void for_each(const Take& take) const {
    for (const Entry& e : entries) {
      take(e.row, e.column, e.value);
      if (symmetry == Symmetry::kGeneral || e.row == e.column) continue;
      take(e.column, e.row, symmetry == Symmetry::kHermitian ? conjugate(e.value) : e.value);
    }
  }
};

template <Scalar T>
using Exact = std::conditional_t<kIsComplex<T>, std::complex<long double>, long double>;

template <Scalar T>
Exact<T> exact(T x) {
  return static_cast<Exact<T>>(x);
}

// ||op(A) x - b|| / (||A|| ||x|| + ||b||), in the largest norms of rows, elements and elements.
template <Scalar T>
double backward_error(const System<T>& A, Operation operation, const T* x, const T* b) {
  const auto n = static_cast<std::size_t>(A.n);
  std::vector<Exact<T>> residual(n);
  std::vector<long double> sums(n);
  for (std::size_t i = 0; i < n; ++i) residual[i] = -exact(b[i]);
  A.for_each([&](int row, int column, T value) {
    const bool is_transposed = operation == Operation::kTransposed || operation == Operation::kAdjoint;
    const bool is_conjugated = operation == Operation::kConjugated || operation == Operation::kAdjoint;
    const std::size_t i = is_transposed ? column : row, j = is_transposed ? row : column;
    residual[i] += exact(is_conjugated ? conjugate(value) : value) * exact(x[j]);
    sums[i] += std::abs(exact(value));
  });
  long double r = 0, norm = 0, x_norm = 0, b_norm = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const long double size = std::abs(residual[i]);
    if (!(size <= std::numeric_limits<long double>::max())) return std::numeric_limits<double>::infinity();
    r = std::max(r, size);
    norm = std::max(norm, sums[i]);
    x_norm = std::max(x_norm, std::abs(exact(x[i])));
    b_norm = std::max(b_norm, std::abs(exact(b[i])));
  }
  return r == 0 ? 0 : static_cast<double>(r / (norm * x_norm + b_norm));
}

// From [-1, 1], or the square of it, with so few bits that sums of a few are exact.
template <Scalar T>
T random_value(std::mt19937& numbers) {
  const auto next = [&] { return static_cast<RealOf<T>>(static_cast<int>(numbers() % 16385) - 8192) / 8192; };
  if constexpr (kIsComplex<T>) {
    const RealOf<T> re = next();
    return {re, next()};
  } else {
    return next();
  }
}

// Random values on a graph; each diagonal entry outweighs its row `dominance` times. Signs of the diagonal are random,
// but for a positive definite matrix.
template <Scalar T>
System<T> dominant_system(const Matrix& pattern, Symmetry symmetry, bool is_definite, double dominance, unsigned seed) {
  std::mt19937 numbers(seed);
  System<T> A{pattern.name, pattern.columns, symmetry, {}};
  std::vector<RealOf<T>> sums(static_cast<std::size_t>(A.n));
  const auto put = [&](int i, int j) {
    const T value = random_value<T>(numbers);
    A.entries.push_back({i, j, value});
    sums[i] += std::abs(value);
    if (symmetry != Symmetry::kGeneral) sums[j] += std::abs(value);
  };
  const Graph graph = graph_of(pattern);
  for (int j = 0; j < A.n; ++j) {
    for (const int i : graph.neighbours(j)) {
      if (i > j || symmetry == Symmetry::kGeneral) put(i, j);
    }
  }
  for (int j = 0; j < A.n; ++j) {
    T value = static_cast<RealOf<T>>(dominance) * (sums[j] + RealOf<T>{0.5});
    if (!is_definite && numbers() % 2 == 0) value = -value;
    if constexpr (kIsComplex<T>) {
      if (symmetry != Symmetry::kHermitian) value *= std::polar(RealOf<T>{1}, static_cast<RealOf<T>>(numbers() % 7));
    }
    A.entries.push_back({j, j, value});
  }
  return A;
}

// The solution for b, both in A's order; through the stages one by one if so said.
template <Scalar T>
std::vector<T> solution(const Plan& plan, const Factor<T>& factor, Operation operation, const std::vector<T>& b,
                        int nrhs, int threads = 1, bool in_stages = false) {
  const int n = plan.size(), ldx = n + 3;
  std::vector<T> x(b.size()), work(static_cast<std::size_t>(ldx) * nrhs, T{7});
  for (int r = 0; r < nrhs; ++r)
    permute(n, plan.permutation(), b.data() + std::ptrdiff_t{r} * n, &work[std::size_t(r) * ldx]);
  std::vector<Stage> stages = {Stage::kAll};
  if (in_stages) stages = {Stage::kForward, Stage::kDiagonal, Stage::kBackward};
  for (const Stage stage : stages) {
    if (solve(factor, operation, stage, nrhs, work.data(), ldx, threads) != FactorOutcome::kDone) return {};
  }
  for (int r = 0; r < nrhs; ++r) {
    permute_back(n, plan.permutation(), &work[std::size_t(r) * ldx], x.data() + std::ptrdiff_t{r} * n);
    for (int i = n; i < ldx; ++i) {
      if (work[std::size_t(r) * ldx + std::size_t(i)] != T{7}) return {};
    }
  }
  return x;
}

// A, its plan and its factor. The pattern is in compressed columns.
template <Scalar T>
struct Solved {
  Solved() = default;
  // The order is one of minimum degree unless it is given.
  explicit Solved(const System<T>& A, const PlanOptions& options = {}, const int* order = nullptr) : system(&A) {
    std::vector<std::vector<std::pair<int, T>>> columns(static_cast<std::size_t>(A.n));
    for (const auto& e : A.entries) columns[static_cast<std::size_t>(e.column)].emplace_back(e.row, e.value);
    std::vector<std::vector<int>> rows(columns.size());
    for (std::size_t j = 0; j < columns.size(); ++j) {
      for (const auto& [i, value] : columns[j]) {
        rows[j].push_back(i);
        values.push_back(value);
      }
    }
    matrix = from_columns(A.name, A.n, rows);
    const Graph graph = graph_of(matrix);
    Arrays arrays(A.n);
    if (order != nullptr) {
      for (int k = 0; k < A.n; ++k) arrays.ordering().place(order[k], k);
    } else if (order_minimum_degree(graph, arrays.ordering()) != Outcome::kDone) {
      throw std::runtime_error("no ordering");
    }
    if (plan.build(graph, arrays.ordering(), options) != Outcome::kDone) throw std::runtime_error("no plan");
    for (const PanelKind kind : {PanelKind::kSymmetric, PanelKind::kUnsymmetric}) {
      if (kind == PanelKind::kSymmetric && A.symmetry == Symmetry::kGeneral) continue;
      if (assembly(kind).build(plan, matrix.pattern(), {.panels = kind, .symmetry = A.symmetry}) != Outcome::kDone) {
        throw std::runtime_error("no assembly");
      }
    }
  }

  Assembly& assembly(PanelKind kind) { return assemblies[kind == PanelKind::kSymmetric ? 0 : 1]; }

  FactorOutcome compute(const FactorOptions& options) {
    return factor.compute(plan, assembly(panel_kind(options.factorization)), {values.data()}, options);
  }

  std::vector<T> solution(Operation operation, const std::vector<T>& b, int nrhs, int threads = 1,
                          bool in_stages = false) const {
    return test::solution(plan, factor, operation, b, nrhs, threads, in_stages);
  }

  // The largest backward error of solutions for `nrhs` random right-hand sides.
  double error(Operation operation, int nrhs, int threads = 1, bool in_stages = false) const {
    std::mt19937 numbers(17);
    const auto n = static_cast<std::size_t>(plan.size());
    std::vector<T> b(n * static_cast<std::size_t>(nrhs));
    for (T& value : b) value = random_value<T>(numbers);
    const std::vector<T> x = solution(operation, b, nrhs, threads, in_stages);
    if (x.size() != b.size()) return std::numeric_limits<double>::infinity();
    double largest = 0;
    for (std::size_t r = 0; r < static_cast<std::size_t>(nrhs); ++r) {
      largest = std::max(largest, backward_error(*system, operation, x.data() + r * n, b.data() + r * n));
    }
    return largest;
  }

  const System<T>* system = nullptr;
  std::vector<T> values;
  Matrix matrix;
  Plan plan;
  Assembly assemblies[2];
  Factor<T> factor;
};

// What a solve without perturbed pivots stays below.
template <Scalar T>
double tolerance(int n) {
  return 10 * static_cast<double>(std::numeric_limits<RealOf<T>>::epsilon()) * std::sqrt(std::max(n, 1));
}

}  // namespace quorin::sparse::test
