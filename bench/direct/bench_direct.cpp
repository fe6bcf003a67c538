// The sparse direct engine by itself: analysis, factorizations and solves on model problems, beside the dense product
// of the same run; for LU UMFPACK, and for L L^H CHOLMOD if it is there, over the same dense kernels and with the same
// ordering. Prints a table; a peer's columns are its times over the engine's. Usage:
//
//   bench_direct [--quick] [NAME]     only problems whose name contains NAME
#include <umfpack_double.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/parallel.hpp"
#include "bench/direct/cholmod_peer.hpp"
#include "bench/direct/timing.hpp"
#include "dense/dense.hpp"
#include "sparse/sparse.hpp"
#include "tests/support/sparse.hpp"

namespace quorin::bench {
namespace {

using namespace sparse;

constexpr int kRightHandSides = 32;

template <class Result>
void require(Result result) {
  if (result != Result::kDone) throw std::runtime_error("outcome " + std::to_string(static_cast<int>(result)));
}

template <Scalar T>
double gemm_rate(int threads) {
  constexpr int n = 1000;
  std::vector<T> a(n * n, T{1}), b(n * n, T{1}), c(n * n);
  const dense::KernelBuffer buffers(threads);
  const double time = seconds_of(
      5, [&] { dense::blocked::gemm('N', 'N', n, n, n, T{1}, a.data(), n, b.data(), n, T{0}, c.data(), n, threads); });
  return 2e-9 * n * n * n / time;
}

struct Problem {
  std::string name;
  Factorization factorization;
  Pivoting pivoting;
  test::SparseMatrix matrix;  // symmetric ones: the lower triangle
};

template <Scalar T>
struct Run {
  Run(const Problem& problem, const Graph& graph, const Ordering& ordering, const test::CompressedArrays& arrays)
      : values(arrays.re.begin(), arrays.re.end()) {
    options.factorization = problem.factorization;
    options.pivoting = problem.pivoting;
    options.perturbation = problem.factorization == Factorization::kLLT ? 0 : 1e-10;
    const Pattern pattern{problem.matrix.rows, problem.matrix.columns, arrays.starts.data(), arrays.indices.data()};
    const bool is_lu = problem.factorization == Factorization::kLU;
    analyze = [this, &graph, ordering, pattern, is_lu] {
      require(plan.build(graph, ordering));
      require(assembly.build(plan, pattern,
                             {.panels = is_lu ? PanelKind::kUnsymmetric : PanelKind::kSymmetric,
                              .symmetry = is_lu ? Symmetry::kGeneral : Symmetry::kSymmetric}));
    };
    analyze();
  }
  void compute(int threads) {
    options.threads = threads;
    require(factor.compute(plan, assembly, {values.data()}, options));
  }
  void solve_for(int nrhs, int threads) {
    const int n = plan.size();
    x.assign(static_cast<std::size_t>(n) * static_cast<std::size_t>(nrhs), T{1});
    require(solve(factor, Operation::kPlain, Stage::kAll, nrhs, x.data(), n, threads));
  }

  std::vector<T> values, x;
  Plan plan;
  Assembly assembly;
  Factor<T> factor;
  FactorOptions options;
  std::function<void()> analyze;
};

// UMFPACK with the ordering as given.
class Umfpack {
 public:
  Umfpack(const test::CompressedArrays& matrix, int n, const int* permutation)
      : a_(matrix), b_(static_cast<std::size_t>(n), 1.0), x_(b_) {
    umfpack_di_defaults(control_);
    control_[UMFPACK_FIXQ] = 1;
    control_[UMFPACK_IRSTEP] = 0;
    control_[UMFPACK_STRATEGY] = UMFPACK_STRATEGY_SYMMETRIC;
    umfpack_di_qsymbolic(n, n, a_.starts.data(), a_.indices.data(), a_.re.data(), permutation, &symbolic_, control_,
                         nullptr);
  }
  ~Umfpack() {
    umfpack_di_free_numeric(&numeric_);
    umfpack_di_free_symbolic(&symbolic_);
  }
  Umfpack(const Umfpack&) = delete;
  Umfpack& operator=(const Umfpack&) = delete;

  void factorize() {
    umfpack_di_free_numeric(&numeric_);
    umfpack_di_numeric(a_.starts.data(), a_.indices.data(), a_.re.data(), symbolic_, &numeric_, control_, nullptr);
  }
  void solve() {
    umfpack_di_solve(UMFPACK_A, a_.starts.data(), a_.indices.data(), a_.re.data(), x_.data(), b_.data(), numeric_,
                     control_, nullptr);
  }

 private:
  const test::CompressedArrays& a_;
  std::vector<double> b_, x_;
  double control_[UMFPACK_CONTROL];
  void *symbolic_ = nullptr, *numeric_ = nullptr;
};

void measure(const Problem& problem, double gemm) {
  const test::CompressedArrays arrays = compressed_columns(problem.matrix);
  const int n = problem.matrix.rows;
  Graph graph;
  require(build_graph({n, n, arrays.starts.data(), arrays.indices.data()}, graph));
  std::vector<int> permutation(static_cast<std::size_t>(n)), inverse(permutation);
  const Ordering ordering{permutation.data(), inverse.data()};
  require(order_metis(graph, ordering));

  Run<double> run(problem, graph, ordering, arrays);
  Run<float> single(problem, graph, ordering, arrays);
  const bool is_lu = problem.factorization == Factorization::kLU;
  const bool has_cholmod = problem.factorization == Factorization::kLLT && CholmodPeer::is_there();
  std::optional<Umfpack> umfpack;
  std::optional<CholmodPeer> cholmod;
  if (is_lu) umfpack.emplace(arrays, n, permutation.data());
  if (has_cholmod) cholmod.emplace(arrays, n, permutation.data());
  const auto peer_factorizes = [&] {
    if (umfpack) umfpack->factorize();
    if (cholmod) cholmod->factorize();
  };
  const auto peer_solves = [&](int nrhs) {
    if (umfpack && nrhs == 1) umfpack->solve();
    if (cholmod) cholmod->solve(nrhs);
  };

  const double operations = run.plan.operations() * (is_lu ? 2 : 1);
  const auto [analysis, peer_analysis] = least_by_turns(
      0.5, [&] { run.analyze(); },
      [&] {
        if (cholmod) cholmod->analyze();
      });
  const auto [one, single_one, peer_factor, two] = least_by_turns(
      2, [&] { run.compute(1); }, [&] { single.compute(1); }, peer_factorizes, [&] { run.compute(2); });
  const auto [solve_one, peer_solve, solve_two] = least_by_turns(
      0.5, [&] { run.solve_for(1, 1); }, [&] { peer_solves(1); }, [&] { run.solve_for(1, 2); });
  const auto [solve_many, peer_solve_many, solve_many_two] = least_by_turns(
      1, [&] { run.solve_for(kRightHandSides, 1); }, [&] { peer_solves(kRightHandSides); },
      [&] { run.solve_for(kRightHandSides, 2); });
  const double rate = 1e-9 * operations / one;
  std::printf("| %s | %d | %.2f | %.2f | %.1f | %.1f | %.2f | %.0f %% | %.2f | %.2f | %.1f | %.1f | %.2f | %.2f |",
              problem.name.c_str(), n, 1e-6 * static_cast<double>(run.plan.entries()), 1e-9 * operations,
              1e3 * analysis, 1e3 * one, rate, 100 * rate / gemm, one / two, one / single_one, 1e3 * solve_one,
              1e3 * solve_many, solve_one / solve_two, solve_many / solve_many_two);
  if (is_lu) {
    std::printf(" | %.2f | %.2f | |\n", peer_factor / one, peer_solve / solve_one);
  } else if (has_cholmod) {
    std::printf(" %.2f | %.2f | %.2f | %.2f |\n", peer_analysis / analysis, peer_factor / one, peer_solve / solve_one,
                peer_solve_many / solve_many);
  } else {
    std::printf(" | | | |\n");
  }
  std::fflush(stdout);
}

test::SparseMatrix laplace(int a, int b, int c, bool corners) {
  test::SparseMatrix A = test::grid(a, b, c, corners);
  for (test::Entry& e : A.entries) e.value = e.row == e.column ? 27.0 : -1.0;
  return A;
}

test::SparseMatrix saddle_point(int side, int depth) {
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
test::SparseMatrix convection(int a, int b, int c) {
  test::SparseMatrix A = laplace(a, b, c, false);
  A.mirror();
  for (test::Entry& e : A.entries) {
    if (e.row > e.column) e.value *= 1.5;
  }
  return A;
}

void run(bool is_quick, const char* wanted) {
  const double gemm = gemm_rate<double>(1);
  std::printf("Product of 1000 x 1000 doubles: %.1f GFLOP/s on one thread, %.1f on two; floats %.1f.\n\n", gemm,
              gemm_rate<double>(2), gemm_rate<float>(1));
  std::printf(
      "| problem | n | 10^6 entries | GFLOP | analysis ms | factor ms | GFLOP/s | of gemm | two threads | float | "
      "solve 1 "
      "ms | solve 32 ms | solve 1, two threads | solve 32, two threads | peer's analysis | peer's factor | peer's "
      "solve 1 | peer's solve 32 |\n"
      "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
  const auto llt = [](const std::string& name, test::SparseMatrix A) {
    return Problem{"LLT " + name, Factorization::kLLT, Pivoting::kInOrder, std::move(A)};
  };
  const auto ldlt = [](const std::string& name, test::SparseMatrix A) {
    return Problem{"LDLT " + name, Factorization::kLDLT, Pivoting::kBunchKaufman, std::move(A)};
  };
  const auto lu = [](const std::string& name, test::SparseMatrix A) {
    return Problem{"LU " + name, Factorization::kLU, Pivoting::kPartial, std::move(A)};
  };
  std::vector<Problem> problems = {llt("100 x 100", laplace(100, 100, 1, false)),
                                   llt("15^3", laplace(15, 15, 15, false)), ldlt("saddle 60 x 60", saddle_point(60, 1)),
                                   lu("100 x 100", convection(100, 100, 1)), lu("15^3", convection(15, 15, 15))};
  if (!is_quick) {
    problems.push_back(llt("300 x 300", laplace(300, 300, 1, false)));
    problems.push_back(llt("30^3", laplace(30, 30, 30, false)));
    problems.push_back(llt("20^3, 27 points", laplace(20, 20, 20, true)));
    problems.push_back(ldlt("saddle 200 x 200", saddle_point(200, 1)));
    problems.push_back(ldlt("saddle 20^3", saddle_point(20, 20)));
    problems.push_back(lu("200 x 200", convection(200, 200, 1)));
    problems.push_back(lu("25^3", convection(25, 25, 25)));
  }
  for (const Problem& problem : problems) {
    if (problem.name.find(wanted) != std::string::npos) measure(problem, gemm);
  }
}

}  // namespace
}  // namespace quorin::bench

int main(int argc, char** argv) {
  quorin::base::start_parallel();
  quorin::dense::start();
  const bool is_quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
  quorin::bench::run(is_quick, argc > 1 + is_quick ? argv[argc - 1] : "");
}
