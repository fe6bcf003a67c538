// The sparse engine's methods of factorization beside each other: multifrontal and left-looking, in memory and with
// panels in files within several budgets. Times are medians; ratios are to left-looking in memory.
//
//     bench_methods [FOLDER]      the files go to FOLDER, the current one by default
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "dense/dense.hpp"
#include "sparse/numeric/archive.hpp"
#include "sparse/numeric/solve.hpp"
#include "sparse/sparse.hpp"
#include "tests/support/sparse.hpp"

namespace {

using namespace quorin;
using namespace quorin::sparse;

double seconds(const std::function<void()>& work, int repetitions) {
  std::vector<double> times;
  for (int k = 0; k < repetitions; ++k) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void require(bool is_done) {
  if (!is_done) throw std::runtime_error("a call does not do what it is measured for");
}

struct Problem {
  explicit Problem(const test::SparseMatrix& grid) : n(grid.rows), arrays(compressed_columns(grid)) {
    const Pattern pattern{n, n, arrays.starts.data(), arrays.indices.data()};
    for (int j = 0; j < n; ++j) {
      for (int k = arrays.starts[j]; k < arrays.starts[j + 1]; ++k) {
        values.push_back(arrays.indices[k] == j ? 26.5 : -1.0);
      }
    }
    std::vector<int> permutation(n), inverse(n);
    const Ordering ordering{permutation.data(), inverse.data()};
    Graph graph;
    require(build_graph(pattern, graph) == Outcome::kDone && order_metis(graph, ordering) == Outcome::kDone);
    require(plan.build(graph, ordering) == Outcome::kDone && assembly.build(plan, pattern, {}) == Outcome::kDone);
  }
  double factor(Factor<double>& made, const FactorOptions& options, int repetitions) const {
    return seconds([&] { require(made.compute(plan, assembly, {values.data()}, options) == FactorOutcome::kDone); },
                   repetitions);
  }

  int n;
  test::CompressedArrays arrays;
  std::vector<double> values;
  Plan plan;
  Assembly assembly;
};

void measure(const test::SparseMatrix& grid, const std::string& folder) {
  constexpr double kMega = 1e6;
  const Problem problem(grid);
  const double all = static_cast<double>(problem.plan.panel_elements(PanelKind::kSymmetric)) * sizeof(double);
  std::printf("\n%s: n %d, factor %.1f MB, %.2f GFLOP\n", grid.name.c_str(), problem.n, all / kMega,
              problem.plan.operations() / 1e9);
  std::printf("%-44s %7s %10s %7s %10s %10s %10s\n", "", "threads", "factor s", "ratio", "beside MB", "read MB",
              "written MB");
  double reference = 0;
  Factor<double> factor;
  for (const int threads : {1, 2}) {
    for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
      const FactorOptions options{.method = method, .threads = threads};
      const double time = problem.factor(factor, options, 5);
      if (reference == 0) reference = time;
      const FactorReport& report = factor.report();
      std::printf("%-44s %7d %10.4f %7.2f %10.1f\n", method == Method::kMultifrontal ? "multifrontal" : "left-looking",
                  threads, time, time / reference, static_cast<double>(report.peak_bytes - report.bytes) / kMega);
    }
  }
  std::vector<double> x(static_cast<std::size_t>(problem.n), 1.0);
  const auto solve_once = [&] {
    require(solve(factor, Operation::kPlain, Stage::kAll, 1, x.data(), problem.n) == FactorOutcome::kDone);
  };
  std::printf("solve in memory: %.4f s\n", seconds(solve_once, 5));
  for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
    for (const double share : {1.1, 0.5, 0.25, 0.1}) {
      PanelFiles files;
      require(files.begin((folder + "/bench_methods").c_str(), static_cast<std::uint64_t>(share * all)) ==
              FactorOutcome::kDone);
      const FactorOptions options{.method = method, .store = &files};
      FactorOutcome outcome{};
      const double time = seconds(
          [&] { outcome = factor.compute(problem.plan, problem.assembly, {problem.values.data()}, options); }, 1);
      const std::string name = std::string(method == Method::kMultifrontal ? "multifrontal" : "left-looking") +
                               ", files, budget of " + std::to_string(static_cast<int>(100 * share)) + " %";
      if (outcome != FactorOutcome::kDone) {
        std::printf("%-44s %7d %10s\n", name.c_str(), 1, "no room");
        continue;
      }
      const PanelFiles::Traffic made = files.traffic();
      std::printf("%-44s %7d %10.4f %7.2f %10s %10.1f %10.1f\n", name.c_str(), 1, time, time / reference, "",
                  static_cast<double>(made.read) / kMega, static_cast<double>(made.written) / kMega);
      const double solve_time = seconds(solve_once, 1);
      std::printf("%-44s %7d %10.4f %7s %10s %10.1f\n", "    solve", 1, solve_time, "", "",
                  static_cast<double>(files.traffic().read - made.read) / kMega);
      factor.clear();
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = argc > 1 ? argv[1] : ".";
  dense::start();
  measure(test::grid(300, 300, 1), folder);
  measure(test::grid(32, 32, 32), folder);
  dense::stop();
}
