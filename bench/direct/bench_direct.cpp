// The sparse direct engine by itself: analysis, factorizations and solves on model problems, beside the dense product
// of the same run, and beside peers with the same ordering: CHOLMOD for L L^H, MUMPS for L D L^T and LU, as far as they
// are there, and UMFPACK for LU. The peers compute with the product's dense kernels in bench_direct, and with a stock
// OpenBLAS in bench_direct_stock. Prints two tables; in that of the peers ratios are their times over the engine's.
// Usage:
//
//   bench_direct [--quick] [NAME]     only problems whose name contains NAME
#include <umfpack_double.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "bench/direct/cholmod_peer.hpp"
#include "bench/direct/mumps_peer.hpp"
#include "bench/direct/problems.hpp"
#include "bench/direct/timing.hpp"
#include "dense/dense.hpp"
#include "sparse/sparse.hpp"
#include "tests/support/sparse.hpp"

namespace quorin::bench {
namespace {

using namespace sparse;

constexpr int kRightHandSides = 32;

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
  Run(const Problem& problem, Preprocessing<double>& prepared, const test::CompressedArrays& arrays)
      : values(arrays.re.begin(), arrays.re.end()) {
    options.factorization = problem.factorization;
    options.pivoting = problem.pivoting;
    options.perturbation = problem.factorization == Factorization::kLLT ? 0 : 1e-10;
    const Pattern pattern{problem.matrix.rows, problem.matrix.columns, arrays.starts.data(), arrays.indices.data()};
    const bool is_lu = problem.factorization == Factorization::kLU;
    analyze = [this, &prepared, pattern, is_lu] {
      require(plan.build(prepared.graph, prepared.ordering(), {.pair_of = prepared.pair_of.data()}));
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
class UmfpackPeer final : public Peer {
 public:
  explicit UmfpackPeer(const GivenSystem& system)
      : system_(system), b_(static_cast<std::size_t>(system.n), 1.0), x_(b_) {
    umfpack_di_defaults(control_);
    control_[UMFPACK_FIXQ] = 1;
    control_[UMFPACK_IRSTEP] = 0;
    control_[UMFPACK_STRATEGY] = UMFPACK_STRATEGY_SYMMETRIC;
  }
  ~UmfpackPeer() override {
    umfpack_di_free_numeric(&numeric_);
    umfpack_di_free_symbolic(&symbolic_);
  }

  const char* name() const override { return "UMFPACK"; }
  void analyze() override {
    umfpack_di_free_symbolic(&symbolic_);
    umfpack_di_qsymbolic(system_.n, system_.n, starts(), indices(), values(), system_.permutation, &symbolic_, control_,
                         nullptr);
  }
  void factorize() override {
    umfpack_di_free_numeric(&numeric_);
    umfpack_di_numeric(starts(), indices(), values(), symbolic_, &numeric_, control_, nullptr);
  }
  const double* solve(int nrhs) override {
    for (int k = 0; k < nrhs; ++k) {
      umfpack_di_solve(UMFPACK_A, starts(), indices(), values(), x_.data(), b_.data(), numeric_, control_, nullptr);
    }
    return x_.data();
  }

 private:
  const int* starts() const { return system_.matrix.starts.data(); }
  const int* indices() const { return system_.matrix.indices.data(); }
  const double* values() const { return system_.matrix.re.data(); }

  const GivenSystem system_;
  std::vector<double> b_, x_;
  double control_[UMFPACK_CONTROL];
  void *symbolic_ = nullptr, *numeric_ = nullptr;
};

std::vector<std::unique_ptr<Peer>> peers_of(Factorization factorization, const GivenSystem& system) {
  std::vector<std::unique_ptr<Peer>> peers;
  if (factorization == Factorization::kLLT) {
    if (CholmodPeer::is_there()) {
      peers.push_back(std::make_unique<CholmodPeer>(system.matrix, system.n, system.permutation));
    }
    return peers;
  }
  if (factorization == Factorization::kLU) peers.push_back(std::make_unique<UmfpackPeer>(system));
  if (MumpsPeer::is_there()) peers.push_back(std::make_unique<MumpsPeer>(system));
  return peers;
}

// ||b - A x|| / (||A|| ||x|| + ||b||) in the maximum norm, of b = 1.
double backward_error(const GivenSystem& system, const double* x) {
  std::vector<double> residual(static_cast<std::size_t>(system.n), 1.0), sums(residual.size());
  const auto take = [&](int row, int column, double value) {
    residual[row] -= value * x[column];
    sums[row] += std::fabs(value);
  };
  for (int j = 0; j < system.n; ++j) {
    for (int k = system.matrix.starts[j]; k < system.matrix.starts[j + 1]; ++k) {
      const int i = system.matrix.indices[k];
      take(i, j, system.matrix.re[k]);
      if (system.is_symmetric && i != j) take(j, i, system.matrix.re[k]);
    }
  }
  const auto largest = [](const double* begin, int n) {
    return std::fabs(
        *std::max_element(begin, begin + n, [](double a, double b) { return std::fabs(a) < std::fabs(b); }));
  };
  return largest(residual.data(), system.n) / (largest(sums.data(), system.n) * largest(x, system.n) + 1);
}

// Prints the engine's row. Returns those of its peers.
std::string measure(const Problem& problem, double gemm) {
  const test::CompressedArrays arrays = compressed_columns(problem.matrix);
  const int n = problem.matrix.rows;
  const bool is_lu = problem.factorization == Factorization::kLU;
  // Zeros on the diagonal need partners: pivots of order 2.
  Preprocessing<double> prepared;
  const ColumnMatrix<double> matrix{{n, n, arrays.starts.data(), arrays.indices.data()}, arrays.re.data()};
  require(preprocess(matrix,
                     {.symmetry = is_lu ? Symmetry::kGeneral : Symmetry::kSymmetric,
                      .matches = problem.factorization == Factorization::kLDLT},
                     prepared));

  Run<double> run(problem, prepared, arrays);
  Run<float> single(problem, prepared, arrays);
  const GivenSystem system{arrays, n, prepared.permutation.data(), !is_lu};
  const std::vector<std::unique_ptr<Peer>> peers = peers_of(problem.factorization, system);
  // The engine's times, and then those of the peers.
  using Calls = std::vector<std::function<void()>>;
  const auto times = [&](double seconds, Calls calls, const std::function<void(Peer&)>& of_peer) {
    for (const auto& peer : peers) calls.emplace_back([&of_peer, &peer] { of_peer(*peer); });
    return least_by_turns(seconds, calls);
  };

  const double operations = run.plan.operations() * (is_lu ? 2 : 1);
  const auto analysis = times(0.5, {[&] { run.analyze(); }}, [](Peer& peer) { peer.analyze(); });
  const auto factor = times(2, {[&] { run.compute(1); }, [&] { single.compute(1); }, [&] { run.compute(2); }},
                            [](Peer& peer) { peer.factorize(); });
  const auto solve_one =
      times(0.5, {[&] { run.solve_for(1, 1); }, [&] { run.solve_for(1, 2); }}, [](Peer& peer) { peer.solve(1); });
  const auto solve_many =
      times(1, {[&] { run.solve_for(kRightHandSides, 1); }, [&] { run.solve_for(kRightHandSides, 2); }},
            [](Peer& peer) { peer.solve(kRightHandSides); });
  const double rate = 1e-9 * operations / factor[0];
  std::printf("| %s | %d | %.2f | %.2f | %.1f | %.1f | %.2f | %.0f %% | %.2f | %.2f | %.1f | %.1f | %.2f | %.2f |\n",
              problem.name.c_str(), n, 1e-6 * static_cast<double>(run.plan.entries()), 1e-9 * operations,
              1e3 * analysis[0], 1e3 * factor[0], rate, 100 * rate / gemm, factor[0] / factor[2], factor[0] / factor[1],
              1e3 * solve_one[0], 1e3 * solve_many[0], solve_one[0] / solve_one[1], solve_many[0] / solve_many[1]);
  std::fflush(stdout);

  run.solve_for(1, 1);
  std::vector<double> x(static_cast<std::size_t>(n));
  permute_back(n, run.plan.permutation(), run.x.data(), x.data());
  std::string rows;
  for (std::size_t k = 0; k < peers.size(); ++k) {
    char text[200];
    std::snprintf(text, sizeof text, "| %s | %s | %.2f | %.2f | %.2f | %.2f | %.1e | %.1e |\n", problem.name.c_str(),
                  peers[k]->name(), analysis[1 + k] / analysis[0], factor[3 + k] / factor[0],
                  solve_one[2 + k] / solve_one[0], solve_many[2 + k] / solve_many[0], backward_error(system, x.data()),
                  backward_error(system, peers[k]->solve(1)));
    rows += text;
  }
  return rows;
}

void run(bool is_quick, const char* wanted) {
  const double gemm = gemm_rate<double>(1);
  std::printf("Product of 1000 x 1000 doubles: %.1f GFLOP/s on one thread, %.1f on two; floats %.1f.\n\n", gemm,
              gemm_rate<double>(2), gemm_rate<float>(1));
  std::printf(
      "| problem | n | 10^6 entries | GFLOP | analysis ms | factor ms | GFLOP/s | of gemm | two threads | float | "
      "solve 1 "
      "ms | solve 32 ms | solve 1, two threads | solve 32, two threads |\n"
      "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
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
                                   llt("15^3", laplace(15, 15, 15, false)),
                                   ldlt("saddle 60 x 60", saddle_point(60, 1)),
                                   lu("100 x 100", convection(100, 100, 1)),
                                   lu("15^3", convection(15, 15, 15)),
                                   lu("circuit 10000", circuit(10000))};
  if (!is_quick) {
    problems.push_back(llt("300 x 300", laplace(300, 300, 1, false)));
    problems.push_back(llt("30^3", laplace(30, 30, 30, false)));
    problems.push_back(llt("20^3, 27 points", laplace(20, 20, 20, true)));
    problems.push_back(ldlt("saddle 200 x 200", saddle_point(200, 1)));
    problems.push_back(ldlt("saddle 20^3", saddle_point(20, 20)));
    problems.push_back(lu("200 x 200", convection(200, 200, 1)));
    problems.push_back(lu("25^3", convection(25, 25, 25)));
    problems.push_back(lu("circuit 100000", circuit(100000)));
  }
  std::string peers;
  for (const Problem& problem : problems) {
    if (problem.name.find(wanted) != std::string::npos) peers += measure(problem, gemm);
  }
  std::printf(
      "\n| problem | peer | analysis | factor | solve 1 | solve 32 | backward error | peer's |\n"
      "|---|---|---|---|---|---|---|---|\n%s",
      peers.c_str());
}

}  // namespace
}  // namespace quorin::bench

int main(int argc, char** argv) {
  quorin::base::start_parallel();
  quorin::dense::start();
  // Peers call the product's BLAS on one thread; the engine is told how many.
  quorin::base::set_thread_count(quorin::base::Domain::kBlas, 1);
  const bool is_quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
  quorin::bench::run(is_quick, argc > 1 + is_quick ? argv[argc - 1] : "");
}
