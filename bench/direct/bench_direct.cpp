// The sparse direct engine by itself: analysis, factorizations and solves on model problems, beside the dense product
// of the same run; for LU UMFPACK, and for L L^H CHOLMOD if it is there, over the same dense kernels and with the same
// ordering. Prints a table; a peer's columns are its times over the engine's. Usage:
//
//   bench_direct [--quick] [NAME]     only problems whose name contains NAME
#include <umfpack_double.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
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
    analysis = seconds_of(3, [&] {
      require(plan.build(graph, ordering));
      require(assembly.build(plan, pattern,
                             {.panels = panel_kind(problem.factorization),
                              .symmetry = is_lu ? Symmetry::kGeneral : Symmetry::kSymmetric}));
    });
  }
  double factor_time(int threads, int repetitions) {
    options.threads = threads;
    return seconds_of(repetitions, [&] { require(factor.compute(plan, assembly, {values.data()}, options)); });
  }
  double solve_time(int nrhs, int threads, int repetitions) {
    const int n = plan.size();
    std::vector<T> x(static_cast<std::size_t>(n) * static_cast<std::size_t>(nrhs));
    return seconds_of(repetitions, [&] {
      std::fill(x.begin(), x.end(), T{1});
      require(solve(factor, Operation::kPlain, Stage::kAll, nrhs, x.data(), n, threads));
    });
  }

  std::vector<T> values;
  Plan plan;
  Assembly assembly;
  Factor<T> factor;
  FactorOptions options;
  double analysis = 0;
};

struct Umfpack {
  double factor = 0, solve = 0;
};

Umfpack umfpack(const test::CompressedArrays& a, int n, const int* permutation, int repetitions) {
  std::vector<double> b(static_cast<std::size_t>(n), 1.0), x(b);
  double control[UMFPACK_CONTROL];
  umfpack_di_defaults(control);
  control[UMFPACK_FIXQ] = 1;
  control[UMFPACK_IRSTEP] = 0;
  control[UMFPACK_STRATEGY] = UMFPACK_STRATEGY_SYMMETRIC;
  void *symbolic = nullptr, *numeric = nullptr;
  umfpack_di_qsymbolic(n, n, a.starts.data(), a.indices.data(), a.re.data(), permutation, &symbolic, control, nullptr);
  Umfpack times;
  times.factor = seconds_of(repetitions, [&] {
    umfpack_di_free_numeric(&numeric);
    umfpack_di_numeric(a.starts.data(), a.indices.data(), a.re.data(), symbolic, &numeric, control, nullptr);
  });
  times.solve = seconds_of(repetitions, [&] {
    umfpack_di_solve(UMFPACK_A, a.starts.data(), a.indices.data(), a.re.data(), x.data(), b.data(), numeric, control,
                     nullptr);
  });
  umfpack_di_free_numeric(&numeric);
  umfpack_di_free_symbolic(&symbolic);
  return times;
}

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
  const double operations = run.plan.operations() * (problem.factorization == Factorization::kLU ? 2 : 1);
  const int repetitions = operations > 2e9 ? 3 : 7;
  const double one = run.factor_time(1, repetitions);
  const double solve_one = run.solve_time(1, 1, 7), solve_many = run.solve_time(kRightHandSides, 1, 5);
  const double two = run.factor_time(2, repetitions), solve_two = run.solve_time(1, 2, 7);
  const double solve_many_two = run.solve_time(kRightHandSides, 2, 5);
  const double single_one = single.factor_time(1, repetitions);
  const double rate = 1e-9 * operations / one;
  std::printf("| %s | %d | %.2f | %.2f | %.1f | %.1f | %.2f | %.0f %% | %.2f | %.2f | %.1f | %.1f | %.2f | %.2f |",
              problem.name.c_str(), n, 1e-6 * static_cast<double>(run.plan.entries()), 1e-9 * operations,
              1e3 * run.analysis, 1e3 * one, rate, 100 * rate / gemm, one / two, one / single_one, 1e3 * solve_one,
              1e3 * solve_many, solve_one / solve_two, solve_many / solve_many_two);
  if (problem.factorization == Factorization::kLU) {
    const Umfpack peer = umfpack(arrays, n, permutation.data(), repetitions);
    std::printf(" | %.2f | %.2f | |\n", peer.factor / one, peer.solve / solve_one);
  } else if (problem.factorization == Factorization::kLLT && CholmodPeer::is_there()) {
    CholmodPeer peer(arrays, n, permutation.data());
    const double peer_analysis = seconds_of(3, [&] { peer.analyze(); });
    const double peer_factor = seconds_of(repetitions, [&] { peer.factorize(); });
    const double peer_solve = seconds_of(7, [&] { peer.solve(1); });
    const double peer_solve_many = seconds_of(5, [&] { peer.solve(kRightHandSides); });
    std::printf(" %.2f | %.2f | %.2f | %.2f |\n", peer_analysis / run.analysis, peer_factor / one,
                peer_solve / solve_one, peer_solve_many / solve_many);
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
