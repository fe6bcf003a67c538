// NIST's regressions by our solver, in single precision, and by GSL's multifit_nlinear, in double precision: digits of
// the certified parameters and steps from both starts. Then the time of an iteration of both on problems of growing
// size, and that of whole fits of a few variables beside MINPACK's lmder.
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
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
#if defined(QUORIN_BENCH_MINPACK)
#include <minpack.h>
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
  options.step_precision = 0;
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

double median(Reals times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

void print_times() {
  constexpr int kRounds = 7, kSteps = 5;
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

// Fits whose functions cost next to nothing, by the calls of the interface alone.
struct SmallFit {
  const char* name;
  std::size_t m, n;
  std::array<double, 4> start;
  void (*residual)(const double* x, double* f);
  void (*jacobian)(const double* x, double* columns);
};

constexpr std::size_t kMostEntries = 16;

constexpr SmallFit kSmallFits[] = {
    {"Rosenbrock",
     2,
     2,
     {-1.2, 1},
     [](const double* x, double* f) {
       f[0] = 10 * (x[1] - x[0] * x[0]);
       f[1] = 1 - x[0];
     },
     [](const double* x, double* columns) {
       columns[0] = -20 * x[0];
       columns[1] = -1;
       columns[2] = 10;
       columns[3] = 0;
     }},
    {"Beale",
     3,
     2,
     {1, 1},
     [](const double* x, double* f) {
       f[0] = 1.5 - x[0] * (1 - x[1]);
       f[1] = 2.25 - x[0] * (1 - x[1] * x[1]);
       f[2] = 2.625 - x[0] * (1 - x[1] * x[1] * x[1]);
     },
     [](const double* x, double* columns) {
       double power = 1;
       for (int i = 0; i < 3; ++i) {
         columns[3 + i] = (i + 1) * x[0] * power;
         power *= x[1];
         columns[i] = power - 1;
       }
     }},
    {"Powell singular",
     4,
     4,
     {3, -1, 0, 1},
     [](const double* x, double* f) {
       f[0] = x[0] + 10 * x[1];
       f[1] = std::sqrt(5.0) * (x[2] - x[3]);
       f[2] = (x[1] - 2 * x[2]) * (x[1] - 2 * x[2]);
       f[3] = std::sqrt(10.0) * (x[0] - x[3]) * (x[0] - x[3]);
     },
     [](const double* x, double* columns) {
       std::fill_n(columns, 16, 0.0);
       columns[0] = 1;
       columns[4] = 10;
       columns[9] = std::sqrt(5.0);
       columns[13] = -std::sqrt(5.0);
       columns[6] = 2 * (x[1] - 2 * x[2]);
       columns[10] = -4 * (x[1] - 2 * x[2]);
       columns[3] = 2 * std::sqrt(10.0) * (x[0] - x[3]);
       columns[15] = -columns[3];
     }},
};

// Steps of one fit by the exports of the library.
int fit_by_ours(const SmallFit& fit) {
  const std::array<float, 6> eps = {0, 1e-5F, 0, 0, 0, 0};
  const float rs = 0;
  const auto n = static_cast<std::int32_t>(fit.n), m = static_cast<std::int32_t>(fit.m);
  const std::int32_t limit = 1000, step_limit = 100;
  std::array<float, 4> x;
  std::array<float, kMostEntries> f, columns;
  std::copy_n(fit.start.begin(), fit.n, x.begin());
  void* run = nullptr;
  strnlsp_init(&run, &n, &m, x.data(), eps.data(), &limit, &step_limit, &rs);
  for (std::int32_t request = 0; request >= 0;) {
    if (strnlsp_solve(&run, f.data(), columns.data(), &request) != QUORIN_TRUST_REGION_SUCCESS) break;
    std::array<double, 4> point;
    std::array<double, kMostEntries> values;
    std::copy_n(x.begin(), fit.n, point.begin());
    if (request == QUORIN_TRUST_REGION_RESIDUAL) {
      fit.residual(point.data(), values.data());
      std::copy_n(values.begin(), fit.m, f.begin());
    } else if (request == QUORIN_TRUST_REGION_JACOBIAN) {
      fit.jacobian(point.data(), values.data());
      std::copy_n(values.begin(), fit.m * fit.n, columns.begin());
    }
  }
  std::int32_t steps = 0, criterion = 0;
  float first = 0, best = 0;
  strnlsp_get(&run, &steps, &criterion, &first, &best);
  strnlsp_delete(&run);
  return steps;
}

#if defined(QUORIN_BENCH_MINPACK)
constexpr bool kHasMinpack = true;

const SmallFit* current_fit = nullptr;

void answer_minpack(int* /*m*/, int* /*n*/, double* x, double* f, double* columns, int* /*stride*/, int* request) {
  *request == 1 ? current_fit->residual(x, f) : current_fit->jacobian(x, columns);
}

// Evaluations of F less one, so steps, until the tolerances of a fit to single precision.
int fit_by_minpack(const SmallFit& fit) {
  current_fit = &fit;
  int m = static_cast<int>(fit.m), n = static_cast<int>(fit.n);
  double ftol = 1e-7, xtol = 1e-7, gtol = 0, factor = 100;
  int limit = 1000, mode = 1, print = 0, info = 0, evaluations = 0, jacobians = 0;
  std::array<double, 4> x = fit.start, diagonal, qtf, work1, work2, work3;
  std::array<double, kMostEntries> f, columns, work4;
  std::array<int, 4> order;
  lmder_(answer_minpack, &m, &n, x.data(), f.data(), columns.data(), &m, &ftol, &xtol, &gtol, &limit, diagonal.data(),
         &mode, &factor, &print, &info, &evaluations, &jacobians, order.data(), qtf.data(), work1.data(), work2.data(),
         work3.data(), work4.data());
  return evaluations - 1;
}
#else
constexpr bool kHasMinpack = false;
int fit_by_minpack(const SmallFit&) { return 0; }
#endif

void print_small_fits() {
  constexpr int kRounds = 15, kFits = 2000;
  std::printf("\nTime of a whole fit in us, and its steps: medians of %d rounds of %d fits\n\n", kRounds, kFits);
  std::printf("| problem | m | n | ours | steps |%s\n|---|---:|---:|---:|---:|%s\n",
              kHasMinpack ? " MINPACK | steps | time / MINPACK | of a step |" : "",
              kHasMinpack ? "---:|---:|---:|---:|" : "");
  for (const SmallFit& fit : kSmallFits) {
    Reals mine, theirs;
    int steps = 0, peer_steps = 0;
    const auto microseconds = [](const auto& call) {
      return milliseconds_of([&] {
               for (int i = 0; i < kFits; ++i) call();
             }) *
             1000 / kFits;
    };
    for (int round = 0; round < kRounds; ++round) {
      mine.push_back(microseconds([&] { steps = fit_by_ours(fit); }));
      theirs.push_back(microseconds([&] { peer_steps = fit_by_minpack(fit); }));
    }
    const double ours = median(mine), peers = median(theirs);
    std::printf("| %s | %zu | %zu | %.2f | %d |", fit.name, fit.m, fit.n, ours, steps);
    if (kHasMinpack) {
      std::printf(" %.2f | %d | %.2f | %.2f |", peers, peer_steps, ours / peers, ours / steps / (peers / peer_steps));
    }
    std::printf("\n");
  }
}

}  // namespace

int main(int argc, char** argv) {
  const bool is_short = argc > 1 && std::string(argv[1]) == "--small";
  if (!is_short) {
    print_regressions();
    print_times();
  }
  print_small_fits();
  return 0;
}
