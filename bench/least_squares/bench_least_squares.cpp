// NIST's regressions by our solver, in single precision, and by GSL's multifit_nlinear, in double precision: digits of
// the certified parameters and steps from both starts. Then the time of an iteration of both on problems of growing
// size.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "quorin/least_squares.hpp"
#include "tests/trust_region/nist.hpp"

#if defined(QUORIN_BENCH_GSL)
#include <gsl/gsl_blas.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_multifit_nlinear.h>
#endif

namespace {

using Reals = std::vector<double>;

// f <- F(x), and columns <- dF/dx if that is not empty.
struct Problem {
  std::size_t m;
  Reals start;
  std::function<void(const Reals& x, std::span<double> f)> residual;
  std::function<void(const Reals& x, std::span<double> columns)> jacobian;
};

struct Outcome {
  Reals x;
  int steps = 0;
  double sum = 0, milliseconds = 0;
};

template <class Call>
double milliseconds_of(const Call& call) {
  const auto start = std::chrono::steady_clock::now();
  call();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

Outcome ours(const Problem& problem, int max_iterations) {
  std::vector<float> x(problem.start.begin(), problem.start.end());
  Reals values(problem.m), slopes(problem.m * x.size());
  const auto residual = [&](std::span<const float> at, std::span<float> f) {
    problem.residual(Reals(at.begin(), at.end()), values);
    std::copy(values.begin(), values.end(), f.begin());
  };
  const auto jacobian = [&](std::span<const float> at, std::span<float> columns) {
    problem.jacobian(Reals(at.begin(), at.end()), slopes);
    std::copy(slopes.begin(), slopes.end(), columns.begin());
  };
  quorin::least_squares::Options options;
  options.max_iterations = max_iterations;
  quorin::least_squares::Result result;
  Outcome outcome;
  outcome.milliseconds =
      milliseconds_of([&] { result = quorin::least_squares::minimize(problem.m, x, residual, jacobian, {}, options); });
  outcome.x.assign(x.begin(), x.end());
  outcome.steps = result.iterations;
  outcome.sum = double{result.norm} * double{result.norm};
  return outcome;
}

#if defined(QUORIN_BENCH_GSL)
constexpr bool kHasPeer = true;

Reals to_reals(const gsl_vector* x) {
  Reals result;
  for (std::size_t j = 0; j < x->size; ++j) result.push_back(gsl_vector_get(x, j));
  return result;
}

int peer_residual(const gsl_vector* x, void* data, gsl_vector* f) {
  static_cast<const Problem*>(data)->residual(to_reals(x), {f->data, f->size});
  return GSL_SUCCESS;
}

int peer_jacobian(const gsl_vector* x, void* data, gsl_matrix* jacobian) {
  Reals columns(jacobian->size1 * jacobian->size2);
  static_cast<const Problem*>(data)->jacobian(to_reals(x), columns);
  for (std::size_t i = 0; i < jacobian->size1; ++i) {
    for (std::size_t j = 0; j < jacobian->size2; ++j) gsl_matrix_set(jacobian, i, j, columns[j * jacobian->size1 + i]);
  }
  return GSL_SUCCESS;
}

Outcome peer(Problem problem, int max_iterations) {
  gsl_set_error_handler_off();
  gsl_multifit_nlinear_fdf functions{};
  functions.f = peer_residual;
  functions.df = peer_jacobian;
  functions.n = problem.m;
  functions.p = problem.start.size();
  functions.params = &problem;
  const auto parameters = gsl_multifit_nlinear_default_parameters();
  auto* const work =
      gsl_multifit_nlinear_alloc(gsl_multifit_nlinear_trust, &parameters, problem.m, problem.start.size());
  const auto start = gsl_vector_view_array(problem.start.data(), problem.start.size());
  Outcome outcome;
  outcome.milliseconds = milliseconds_of([&] {
    int info = 0;
    gsl_multifit_nlinear_init(&start.vector, &functions, work);
    gsl_multifit_nlinear_driver(static_cast<std::size_t>(max_iterations), 1e-10, 1e-10, 0, nullptr, nullptr, &info,
                                work);
  });
  outcome.x = to_reals(gsl_multifit_nlinear_position(work));
  outcome.steps = static_cast<int>(gsl_multifit_nlinear_niter(work));
  gsl_blas_ddot(gsl_multifit_nlinear_residual(work), gsl_multifit_nlinear_residual(work), &outcome.sum);
  gsl_multifit_nlinear_free(work);
  return outcome;
}
#else
constexpr bool kHasPeer = false;
Outcome peer(const Problem&, int) { return {}; }
#endif

Problem regression(const trust_region_test::NistProblem& data, int start) {
  Problem problem{data.m(), data.starts[start], {}, {}};
  problem.residual = [&data](const Reals& x, std::span<double> f) {
    for (std::size_t i = 0; i < f.size(); ++i) f[i] = data.residual(x.data(), i);
  };
  problem.jacobian = [&data, begin = problem.start](const Reals& x, std::span<double> columns) {
    const std::size_t m = data.m();
    for (std::size_t j = 0; j < x.size(); ++j) {
      const double h = 1e-6 * std::max(std::fabs(x[j]), 0.1 * std::fabs(begin[j]));
      Reals above = x, below = x;
      above[j] += h;
      below[j] -= h;
      for (std::size_t i = 0; i < m; ++i) {
        columns[j * m + i] = (data.residual(above.data(), i) - data.residual(below.data(), i)) / (above[j] - below[j]);
      }
    }
  };
  return problem;
}

double digits(const Reals& x, const Reals& certified) {
  double worst = 1e-11;
  for (std::size_t j = 0; j < x.size(); ++j) worst = std::fmax(worst, std::fabs(x[j] / certified[j] - 1));
  return std::fmax(0, -std::log10(worst));
}

void print_regressions() {
  constexpr int kLimit = 5000;
  constexpr double kSolved = 1e-4;  // relative excess of the sum of squares, beside what single precision leaves
  int solved = 0, solved_by_peer = 0, runs = 0;
  std::printf("| problem | start | digits | sum / certified | steps |%s\n",
              kHasPeer ? " GSL: digits | sum / certified | steps |" : "");
  std::printf("|---|---:|---:|---:|---:|%s\n", kHasPeer ? "---:|---:|---:|" : "");
  const auto problems = trust_region_test::nist_problems(QUORIN_NIST_DIR);
  for (const auto& data : problems) {
    for (const int start : {0, 1}) {
      const Problem problem = regression(data, start);
      const Outcome a = ours(problem, kLimit), b = peer(problem, kLimit);
      const double bound = data.residual_sum * (1 + kSolved) + 1e-14;
      ++runs;
      solved += a.sum <= bound ? 1 : 0;
      solved_by_peer += b.sum <= bound ? 1 : 0;  // false for NaN
      std::printf("| %s | %d | %.1f | %.6g | %d |", data.name.c_str(), start + 1, digits(a.x, data.certified),
                  a.sum / data.residual_sum, a.steps);
      if (kHasPeer) std::printf(" %.1f | %.6g | %d |", digits(b.x, data.certified), b.sum / data.residual_sum, b.steps);
      std::printf("\n");
    }
  }
  std::printf("\n%d of %d runs reach the minimum", solved, runs);
  if (kHasPeer) std::printf("; GSL: %d", solved_by_peer);
  std::printf("\n\n");
}

// A x + 0.3 sin(A x) - b, entry by entry; A is random.
Problem random_problem(std::size_t m, std::size_t n) {
  std::mt19937 random(1);
  std::normal_distribution<double> normal;
  Reals a(m * n), b(m);
  for (double& entry : a) entry = normal(random);
  for (double& entry : b) entry = 3 * normal(random);
  const auto product = [a, m](const Reals& x, std::size_t i) {
    double sum = 0;
    for (std::size_t j = 0; j < x.size(); ++j) sum += a[j * m + i] * x[j];
    return sum;
  };
  Problem problem{m, Reals(n, 1.0), {}, {}};
  problem.residual = [product, b](const Reals& x, std::span<double> f) {
    for (std::size_t i = 0; i < f.size(); ++i) {
      const double t = product(x, i);
      f[i] = t + 0.3 * std::sin(t) - b[i];
    }
  };
  problem.jacobian = [product, a, m](const Reals& x, std::span<double> columns) {
    Reals slopes(m);
    for (std::size_t i = 0; i < m; ++i) slopes[i] = 1 + 0.3 * std::cos(product(x, i));
    for (std::size_t k = 0; k < columns.size(); ++k) columns[k] = a[k] * slopes[k % m];
  };
  return problem;
}

void print_times() {
  constexpr int kRounds = 7, kSteps = 5;
  const auto median = [](Reals times) {
    std::nth_element(times.begin(), times.begin() + kRounds / 2, times.end());
    return times[kRounds / 2];
  };
  std::printf("Time of a step, the host's evaluations included, in ms: medians of %d rounds in turn\n\n", kRounds);
  std::printf("| m | n | ours |%s\n|---:|---:|---:|%s\n", kHasPeer ? " GSL | speed / GSL |" : "",
              kHasPeer ? "---:|---:|" : "");
  struct Size {
    std::size_t m, n;
  };
  for (const Size size : {Size{30, 3}, Size{1000, 5}, Size{10000, 10}, Size{2000, 50}, Size{1000, 200}}) {
    const Problem problem = random_problem(size.m, size.n);
    Reals mine, theirs;
    for (int round = 0; round < kRounds; ++round) {
      const Outcome a = ours(problem, kSteps), b = peer(problem, kSteps);
      mine.push_back(a.milliseconds / std::max(a.steps, 1));
      theirs.push_back(b.milliseconds / std::max(b.steps, 1));
    }
    std::printf("| %zu | %zu | %.4g |", size.m, size.n, median(mine));
    if (kHasPeer) std::printf(" %.4g | %.2f |", median(theirs), median(theirs) / median(mine));
    std::printf("\n");
  }
}

}  // namespace

int main() {
  print_regressions();
  print_times();
  return 0;
}
