// PARDISO and FEAST as hosts call them, beside the programs that do the same: METIS for the analysis, CHOLMOD and
// UMFPACK over the same dense kernels, ARPACK with the same engine for its shifted systems. Prints tables. Usage:
//
//   bench_solvers [--quick] [pardiso | feast] [NAME]     only rows whose name contains NAME, or NAME eigenvalues
#include <umfpack_double.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "bench/direct/arpack_peer.hpp"
#include "bench/direct/cholmod_peer.hpp"
#include "bench/direct/timing.hpp"
#include "dense/dense.hpp"
#include "families/feast/feast.hpp"
#include "families/pardiso/pardiso.hpp"
#include "sparse/sparse.hpp"
#include "tests/support/sparse.hpp"

namespace quorin::bench {
namespace {

constexpr int kRightHandSides = 32;

void require(bool is_good, const char* what) {
  if (!is_good) throw std::runtime_error(what);
}

// --- PARDISO ---------------------------------------------------------------------------------------------------------

template <class T>
class Host {
 public:
  Host(const test::SparseMatrix& A, std::int32_t mtype)
      : rows(test::compressed_rows(A, 1)), a(rows.re.begin(), rows.re.end()), mtype_(mtype), n_(A.rows) {
    pardiso::initialize(pt_.data(), &mtype_, iparm_.data());
    iparm_[27] = std::is_same_v<T, float> ? 1 : 0;
    iparm_[4] = 2;  // the permutation, for peers
    b.assign(static_cast<std::size_t>(n_) * kRightHandSides, T{1});
    x = b;
    perm.resize(static_cast<std::size_t>(n_));
  }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() { call(-1); }

  void call(std::int32_t phase, std::int32_t nrhs = 1) {
    const std::int32_t one = 1, silent = 0;
    std::int32_t error = 0;
    pardiso::run(pt_.data(), &one, &one, &mtype_, &phase, &n_, a.data(), rows.starts.data(), rows.indices.data(),
                 perm.data(), &nrhs, iparm_.data(), &silent, b.data(), x.data(), &error);
    require(error == 0, "PARDISO fails");
  }
  double seconds(int repetitions, std::int32_t phase, std::int32_t nrhs = 1) {
    return seconds_of(repetitions, [&] { call(phase, nrhs); });
  }

  test::CompressedArrays rows;
  std::vector<T> a, b, x;
  std::vector<std::int32_t> perm;

 private:
  std::array<void*, 64> pt_{};
  std::array<std::int32_t, 64> iparm_{};
  const std::int32_t mtype_, n_;
};

struct Problem {
  std::string name;
  std::int32_t mtype;
  test::SparseMatrix matrix;  // as its rows are stored
};

double metis_seconds(const test::SparseMatrix& A, int repetitions) {
  const test::CompressedArrays columns = compressed_columns(A);
  sparse::Graph graph;
  require(sparse::build_graph({A.rows, A.rows, columns.starts.data(), columns.indices.data()}, graph) ==
              sparse::Outcome::kDone,
          "no graph");
  std::vector<int> permutation(static_cast<std::size_t>(A.rows)), inverse(permutation);
  return seconds_of(repetitions, [&] {
    require(sparse::order_metis(graph, {permutation.data(), inverse.data()}) == sparse::Outcome::kDone, "METIS fails");
  });
}

// ||b - A x|| / (||A|| ||x|| + ||b||) in the maximum norm, of b = 1.
double backward_error(const test::CompressedArrays& rows, const double* x) {
  double residual = 0, norm = 0, largest = 0;
  for (std::size_t i = 0; i + 1 < rows.starts.size(); ++i) {
    double sum = 1, magnitudes = 0;
    for (auto k = static_cast<std::size_t>(rows.starts[i] - 1); k < static_cast<std::size_t>(rows.starts[i + 1] - 1);
         ++k) {
      sum -= rows.re[k] * x[rows.indices[k] - 1];
      magnitudes += std::fabs(rows.re[k]);
    }
    residual = std::max(residual, std::fabs(sum));
    norm = std::max(norm, magnitudes);
    largest = std::max(largest, std::fabs(x[i]));
  }
  return residual / (norm * largest + 1);
}

struct Peer {
  double factor = 0, solve = 0, solve_many = 0, error = -1;
};

// With its own strategy and ordering.
Peer umfpack(const Host<double>& host, int repetitions) {
  std::vector<int> starts(host.rows.starts), columns(host.rows.indices);
  for (int& start : starts) --start;
  for (int& column : columns) --column;
  const int n = static_cast<int>(host.perm.size());
  std::vector<double> x(host.b);
  void *symbolic = nullptr, *numeric = nullptr;
  umfpack_di_symbolic(n, n, starts.data(), columns.data(), host.a.data(), &symbolic, nullptr, nullptr);
  Peer peer;
  peer.factor = seconds_of(repetitions, [&] {
    umfpack_di_free_numeric(&numeric);
    umfpack_di_numeric(starts.data(), columns.data(), host.a.data(), symbolic, &numeric, nullptr, nullptr);
  });
  const auto solve = [&](int count) {
    for (int k = 0; k < count; ++k) {
      const std::size_t first = static_cast<std::size_t>(k) * static_cast<std::size_t>(n);
      umfpack_di_solve(UMFPACK_At, starts.data(), columns.data(), host.a.data(), x.data() + first,
                       host.b.data() + first, numeric, nullptr, nullptr);
    }
  };
  peer.solve = seconds_of(repetitions, [&] { solve(1); });
  peer.solve_many = seconds_of(1, [&] { solve(kRightHandSides); });
  peer.error = backward_error(host.rows, x.data());
  umfpack_di_free_numeric(&numeric);
  umfpack_di_free_symbolic(&symbolic);
  return peer;
}

// The stored upper rows are the lower columns.
Peer cholmod(const Host<double>& host, int repetitions) {
  test::CompressedArrays lower = host.rows;
  std::vector<int> permutation(host.perm.begin(), host.perm.end());
  for (auto* indices : {&lower.starts, &lower.indices, &permutation}) {
    for (int& index : *indices) --index;
  }
  CholmodPeer peer(lower, static_cast<int>(permutation.size()), permutation.data());
  peer.analyze();
  Peer result;
  result.factor = seconds_of(repetitions, [&] { peer.factorize(); });
  result.solve = seconds_of(repetitions, [&] { peer.solve(1); });
  result.solve_many = seconds_of(repetitions, [&] { peer.solve(kRightHandSides); });
  return result;
}

void measure(const Problem& problem) {
  constexpr int kRepetitions = 3;
  Host<double> host(problem.matrix, problem.mtype);
  Host<float> single(problem.matrix, problem.mtype);
  base::set_thread_count(base::Domain::kAll, 1);
  const double metis = metis_seconds(problem.matrix, kRepetitions);
  const double analysis = host.seconds(kRepetitions, 11);
  const double allowed = 1.3 * metis + 20e-9 * static_cast<double>(host.a.size());
  const double factor = host.seconds(kRepetitions, 22), solve = host.seconds(kRepetitions, 33);
  const double solve_many = host.seconds(kRepetitions, 33, kRightHandSides);
  single.call(11);
  const double of_floats = single.seconds(kRepetitions, 22);
  base::set_thread_count(base::Domain::kAll, 2);
  const double factor_two = host.seconds(kRepetitions, 22), solve_two = host.seconds(kRepetitions, 33);
  const double solve_many_two = host.seconds(kRepetitions, 33, kRightHandSides);
  base::set_thread_count(base::Domain::kAll, 1);
  std::printf("| %s | %d | %.1f | %.2f | %.2f | %.1f | %.2f | %.2f | %.1f | %.2f | %.1f | %.2f |", problem.name.c_str(),
              problem.matrix.rows, 1e3 * analysis, analysis / metis, analysis / allowed, 1e3 * factor,
              factor / factor_two, factor / of_floats, 1e3 * solve, solve / solve_two, 1e3 * solve_many,
              solve_many / solve_many_two);
  const bool is_lu = problem.mtype == 11;
  if (is_lu || (problem.mtype == 2 && CholmodPeer::is_there())) {
    const Peer peer = is_lu ? umfpack(host, kRepetitions) : cholmod(host, kRepetitions);
    std::printf(" %.2f | %.2f | %.2f |", peer.factor / factor, peer.solve / solve, peer.solve_many / solve_many);
    if (is_lu) std::printf(" %.1e, %.1e", backward_error(host.rows, host.x.data()), peer.error);
    std::printf(" |\n");
  } else {
    std::printf(" | | | |\n");
  }
  std::fflush(stdout);
}

// Rows of the upper triangle; of all entries for mtype 11.
Problem problem_of(const char* name, std::int32_t mtype, test::SparseMatrix A) {
  for (test::Entry& e : A.entries) e.value = e.row == e.column ? (mtype == -2 ? 3.1 : 6.5) : -1.0;
  if (mtype == 11) {
    A.mirror();
    for (test::Entry& e : A.entries) e.value *= e.row > e.column ? 1.5 : 1.0;
  } else {
    for (test::Entry& e : A.entries) std::swap(e.row, e.column);
  }
  return {name, mtype, std::move(A)};
}

void run_pardiso(bool is_quick, const std::string& wanted) {
  std::printf(
      "## The sparse direct solver\n\n"
      "PARDISO on one thread, doubles, grids of five and seven points; the columns \"two threads\" and \"float\" are "
      "gains. Type 2 against CHOLMOD in the "
      "same order, type 11 against UMFPACK with its own strategy, over the same dense kernels; ratios are speeds. "
      "Phase 11 beside METIS alone, and beside what it may "
      "take. Backward errors are by norms, b = 1, ours and UMFPACK's, with what both refine by themselves.\n\n"
      "| matrix | n | phase 11, ms | / METIS | / (1.3 METIS + 20 ns an entry) | phase 22, ms | two threads | float | "
      "phase 33, ms | two threads | 32 sides, ms | two threads | phase 22 / peer | 33 / peer | 32 sides / peer | "
      "backward error, peer's |\n|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
  const int square = is_quick ? 60 : 200, cube = is_quick ? 10 : 25;
  for (const auto& [mtype, kind] : {std::pair(2, "2"), std::pair(-2, "-2"), std::pair(11, "11")}) {
    for (const Problem& problem :
         {problem_of((std::string(kind) + ", square").c_str(), mtype, test::grid(square, square, 1)),
          problem_of((std::string(kind) + ", cube").c_str(), mtype, test::grid(cube, cube, cube))}) {
      if (problem.name.find(wanted) != std::string::npos) measure(problem);
    }
  }
}

// --- FEAST -----------------------------------------------------------------------------------------------------------

// The seven-point Laplacian of a box, whose eigenvalues are known, and an interval between two of its gaps that begins
// after about an eighth of them.
struct Box {
  Box(int a, int b, int c, int count) : sides{a, b, c} {
    std::vector<double> all;
    const auto part = [](int i, int of) { return 2 - 2 * std::cos(std::numbers::pi * i / (of + 1)); };
    for (int i = 1; i <= a; ++i) {
      for (int j = 1; j <= b; ++j) {
        for (int k = 1; k <= c; ++k) all.push_back(part(i, a) + part(j, b) + part(k, c));
      }
    }
    std::sort(all.begin(), all.end());
    const auto widest = [&all](std::size_t from, std::size_t to) {
      std::size_t best = from;
      for (std::size_t i = from; i < to; ++i) {
        if (all[i] - all[i - 1] > all[best] - all[best - 1]) best = i;
      }
      return best;
    };
    const std::size_t first = widest(all.size() / 8, all.size() / 8 + 20);
    const std::size_t end =
        widest(first + static_cast<std::size_t>(count), first + static_cast<std::size_t>(count) + 3);
    low = (all[first - 1] + all[first]) / 2;
    high = (all[end - 1] + all[end]) / 2;
    inside.assign(all.begin() + static_cast<std::ptrdiff_t>(first), all.begin() + static_cast<std::ptrdiff_t>(end));
    matrix = test::grid(a, b, c);
    for (test::Entry& e : matrix.entries) e.value = e.row == e.column ? 6.0 : -1.0;
  }

  int sides[3];
  double low, high;
  std::vector<double> inside;
  test::SparseMatrix matrix;  // the lower triangle
};

void solve_box(const Box& box, int threads) {
  base::set_thread_count(base::Domain::kAll, threads);
  const test::CompressedArrays rows = compressed_rows(box.matrix, 1);
  const std::vector<float> a(rows.re.begin(), rows.re.end());
  const int n = box.matrix.rows, wanted = static_cast<int>(box.inside.size());
  int m0 = wanted + 10, loop = 0, m = 0, info = 0;
  std::int32_t fpm[128];
  feast::init(fpm);
  const auto room = static_cast<std::size_t>(m0);
  std::vector<float> e(room), residual(room), x(room * static_cast<std::size_t>(n));
  const float low = static_cast<float>(box.low), high = static_cast<float>(box.high);
  float epsout = 0;
  feast::solve_standard("L", &n, a.data(), rows.starts.data(), rows.indices.data(), fpm, &epsout, &loop, &low, &high,
                        &m0, e.data(), x.data(), &m, residual.data(), &info);
  require(info == 0 && m == wanted, "FEAST misses eigenvalues");
}

// The ordering and one factorization are in the time.
double arpack_seconds(const Box& box) {
  const test::CompressedArrays columns = compressed_columns(box.matrix);
  const int n = box.matrix.rows, wanted = static_cast<int>(box.inside.size());
  const double shift = (box.low + box.high) / 2;
  double worst = 0;
  const double time = seconds_of(1, [&] {
    const sparse::Pattern pattern{n, n, columns.starts.data(), columns.indices.data()};
    std::vector<int> permutation(static_cast<std::size_t>(n)), inverse(permutation);
    std::vector<double> values(columns.re), y(static_cast<std::size_t>(n));
    for (int j = 0; j < n; ++j) {
      for (int k = columns.starts[static_cast<std::size_t>(j)]; k < columns.starts[static_cast<std::size_t>(j) + 1];
           ++k) {
        if (columns.indices[static_cast<std::size_t>(k)] == j) values[static_cast<std::size_t>(k)] -= shift;
      }
    }
    sparse::Graph graph;
    sparse::Plan plan;
    sparse::Assembly assembly;
    sparse::Factor<double> factor;
    sparse::FactorOptions options;
    options.factorization = sparse::Factorization::kLDLT;
    options.pivoting = sparse::Pivoting::kBunchKaufman;
    const bool is_factored =
        sparse::build_graph(pattern, graph) == sparse::Outcome::kDone &&
        sparse::order_metis(graph, {permutation.data(), inverse.data()}) == sparse::Outcome::kDone &&
        plan.build(graph, {permutation.data(), inverse.data()}) == sparse::Outcome::kDone &&
        assembly.build(plan, pattern, {.read = sparse::Triangle::kLower, .symmetry = sparse::Symmetry::kSymmetric}) ==
            sparse::Outcome::kDone &&
        factor.compute(plan, assembly, {values.data()}, options) == sparse::FactorOutcome::kDone;
    require(is_factored, "no factors");
    const std::vector<double> found = arpack_eigenvalues(n, wanted, shift, [&](double* x) {
      sparse::permute(n, plan.permutation(), x, y.data());
      require(sparse::solve(factor, sparse::Operation::kPlain, sparse::Stage::kAll, 1, y.data(), n) ==
                  sparse::FactorOutcome::kDone,
              "no solution");
      sparse::permute_back(n, plan.permutation(), y.data(), x);
    });
    for (const double value : found) worst = std::max(worst, std::fabs(value - shift));
  });
  require(worst < (box.high - box.low), "ARPACK misses eigenvalues");
  return time;
}

void run_feast(bool is_quick, const std::string& wanted) {
  std::printf(
      "## Eigenvalues in an interval\n\n"
      "FEAST on one thread, inner eigenvalues of the seven-point Laplacian of a box, against ARPACK (shift and invert "
      "with this engine's factors, which are in the "
      "time), where that is there. ARPACK is given the number of eigenvalues; FEAST counts them with a factorization "
      "at "
      "each end.\n\n"
      "| eigenvalues | n | FEAST, s | two threads | ARPACK, s | FEAST's speed / ARPACK |\n|---|---|---|---|---|---|\n");
  for (const int count : {20, 200}) {
    if (!wanted.empty() && std::to_string(count) != wanted) continue;
    const Box box = is_quick ? Box(14, 15, 16, count) : Box(30, 31, 32, count);
    const std::vector<double> times = least_by_turns(0, {[&box] { solve_box(box, 1); }, [&box] { solve_box(box, 2); }});
    const double one = times[0], two = times[1];
    base::set_thread_count(base::Domain::kAll, 1);
    std::printf("| %zu | %d | %.2f | %.2f |", box.inside.size(), box.matrix.rows, one, one / two);
    if (has_arpack()) {
      const double peer = arpack_seconds(box);
      std::printf(" %.2f | %.2f |\n", peer, peer / one);
    } else {
      std::printf(" | |\n");
    }
    std::fflush(stdout);
  }
}

}  // namespace
}  // namespace quorin::bench

int main(int argc, char** argv) {
  quorin::base::start_parallel();
  quorin::dense::start();
  std::vector<std::string> words(argv + 1, argv + argc);
  const bool is_quick = std::erase(words, "--quick") > 0;
  const bool has_family = !words.empty() && (words[0] == "pardiso" || words[0] == "feast");
  const std::string family = has_family ? words[0] : "", wanted = words.size() > has_family ? words[has_family] : "";
  if (family != "feast") quorin::bench::run_pardiso(is_quick, wanted);
  if (family.empty()) std::printf("\n");
  if (family != "pardiso") quorin::bench::run_feast(is_quick, wanted);
}
