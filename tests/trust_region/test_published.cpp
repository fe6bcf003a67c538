// Problems of Moré, Garbow, Hillstrom, Testing unconstrained optimization software, ACM TOMS 7 (1981), with the minima
// given there, from the standard start. Meyer's, Kowalik's and Osborne's first are among NIST's problems.
#include "tests/support/test.hpp"
#include "tests/trust_region/fit.hpp"

namespace trust_region_test {
namespace {

struct Problem {
  const char* name;
  std::size_t m;
  Reals start;
  Function function;
  Reals minima;              // sums of squares, one of which has to be reached
  double zero_scale = 1e-6;  // of ||F||, if the minimum is 0
};

double square(double a) { return a * a; }

Reals repeated(const Reals& block, std::size_t times) {
  Reals all;
  for (std::size_t k = 0; k < times; ++k) all.insert(all.end(), block.begin(), block.end());
  return all;
}

Reals filled(std::size_t n, const std::function<double(double, double)>& entry) {
  Reals x(n);
  for (std::size_t j = 0; j < n; ++j) x[j] = entry(static_cast<double>(j + 1), static_cast<double>(n));
  return x;
}

// f_i = entry(i, x), i = 1...m.
Function by_entry(const std::function<double(double i, const Reals& x)>& entry) {
  return [entry](const Reals& x, Reals& f) {
    for (std::size_t i = 0; i < f.size(); ++i) f[i] = entry(static_cast<double>(i + 1), x);
  };
}

void rosenbrock(const Reals& x, Reals& f) {
  for (std::size_t j = 0; j < x.size(); j += 2) {
    f[j] = 10 * (x[j + 1] - x[j] * x[j]);
    f[j + 1] = 1 - x[j];
  }
}

void helical_valley(const Reals& x, Reals& f) {
  double theta = std::atan(x[1] / x[0]) / (2 * std::numbers::pi);
  if (x[0] < 0) theta += 0.5;
  f = {10 * (x[2] - 10 * theta), 10 * (std::hypot(x[0], x[1]) - 1), x[2]};
}

void freudenstein_roth(const Reals& x, Reals& f) {
  f = {-13 + x[0] + ((5 - x[1]) * x[1] - 2) * x[1], -29 + x[0] + ((x[1] + 1) * x[1] - 14) * x[1]};
}

void wood(const Reals& x, Reals& f) {
  f = {10 * (x[1] - x[0] * x[0]),
       1 - x[0],
       std::sqrt(90.0) * (x[3] - x[2] * x[2]),
       1 - x[2],
       std::sqrt(10.0) * (x[1] + x[3] - 2),
       (x[1] - x[3]) / std::sqrt(10.0)};
}

double bard(double i, const Reals& x) {
  static const Reals y = {.14, .18, .22, .25, .29, .32, .35, .39, .37, .58, .73, .96, 1.34, 2.10, 4.39};
  return y[static_cast<std::size_t>(i) - 1] - (x[0] + i / ((16 - i) * x[1] + std::min(i, 16 - i) * x[2]));
}

double gaussian(double i, const Reals& x) {
  static const Reals y = {.0009, .0044, .0175, .0540, .1295, .2420, .3521, .3989};
  const double t = (8 - i) / 2;
  return x[0] * std::exp(-x[1] * square(t - x[2]) / 2) - y[static_cast<std::size_t>(std::min(i, 16 - i)) - 1];
}

double gulf(double i, const Reals& x) {
  const double t = i / 100, y = 25 + std::pow(-50 * std::log(t), 2.0 / 3);
  return std::exp(-std::pow(std::fabs(y - x[1]), x[2]) / x[0]) - t;
}

double box(double i, const Reals& x) {
  const double t = i / 10;
  return std::exp(-t * x[0]) - std::exp(-t * x[1]) - x[2] * (std::exp(-t) - std::exp(-10 * t));
}

double biggs(double i, const Reals& x) {
  const double t = i / 10, y = std::exp(-t) - 5 * std::exp(-10 * t) + 3 * std::exp(-4 * t);
  return x[2] * std::exp(-t * x[0]) - x[3] * std::exp(-t * x[1]) + x[5] * std::exp(-t * x[4]) - y;
}

double brown_dennis(double i, const Reals& x) {
  const double t = i / 5;
  return square(x[0] + t * x[1] - std::exp(t)) + square(x[2] + x[3] * std::sin(t) - std::cos(t));
}

double osborne2(double i, const Reals& x) {
  static const Reals y = {1.366, 1.191, 1.112, 1.013, .991, .885, .831, .847, .786, .725, .746, .679, .608,
                          .655,  .616,  .606,  .602,  .626, .651, .724, .649, .649, .694, .644, .624, .661,
                          .612,  .558,  .533,  .495,  .500, .423, .395, .375, .372, .391, .396, .405, .428,
                          .429,  .523,  .562,  .607,  .653, .672, .708, .633, .668, .645, .632, .591, .559,
                          .597,  .625,  .739,  .710,  .729, .720, .636, .581, .428, .292, .162, .098, .054};
  const double t = (i - 1) / 10;
  double sum = x[0] * std::exp(-t * x[4]);
  for (std::size_t k = 1; k < 4; ++k) sum += x[k] * std::exp(-square(t - x[k + 7]) * x[k + 4]);
  return y[static_cast<std::size_t>(i) - 1] - sum;
}

void watson(const Reals& x, Reals& f) {
  for (std::size_t i = 0; i < 29; ++i) {
    const double t = static_cast<double>(i + 1) / 29;
    double value = 0, slope = 0;
    for (std::size_t j = x.size(); j-- > 0;) {
      slope = slope * t + value;
      value = value * t + x[j];
    }
    f[i] = slope - value * value - 1;
  }
  f[29] = x[0];
  f[30] = x[1] - x[0] * x[0] - 1;
}

void penalty1(const Reals& x, Reals& f) {
  double sum = 0;
  for (std::size_t j = 0; j < x.size(); ++j) {
    f[j] = std::sqrt(1e-5) * (x[j] - 1);
    sum += x[j] * x[j];
  }
  f[x.size()] = sum - 0.25;
}

void penalty2(const Reals& x, Reals& f) {
  const std::size_t n = x.size();
  const double a = std::sqrt(1e-5);
  f[0] = x[0] - 0.2;
  for (std::size_t i = 1; i < n; ++i) {
    const auto t = static_cast<double>(i);
    f[i] = a * (std::exp(x[i] / 10) + std::exp(x[i - 1] / 10) - std::exp((t + 1) / 10) - std::exp(t / 10));
    f[n + i - 1] = a * (std::exp(x[i] / 10) - std::exp(-0.1));
  }
  f[2 * n - 1] = -1;
  for (std::size_t j = 0; j < n; ++j) f[2 * n - 1] += static_cast<double>(n - j) * x[j] * x[j];
}

void variably_dimensioned(const Reals& x, Reals& f) {
  double sum = 0;
  for (std::size_t j = 0; j < x.size(); ++j) {
    f[j] = x[j] - 1;
    sum += static_cast<double>(j + 1) * f[j];
  }
  f[x.size()] = sum;
  f[x.size() + 1] = sum * sum;
}

void trigonometric(const Reals& x, Reals& f) {
  double sum = 0;
  for (const double a : x) sum += std::cos(a);
  const auto n = static_cast<double>(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) {
    f[i] = n - sum + static_cast<double>(i + 1) * (1 - std::cos(x[i])) - std::sin(x[i]);
  }
}

void brown_almost_linear(const Reals& x, Reals& f) {
  double sum = 0, product = 1;
  for (const double a : x) {
    sum += a;
    product *= a;
  }
  for (std::size_t i = 0; i + 1 < x.size(); ++i) f[i] = x[i] + sum - static_cast<double>(x.size() + 1);
  f[x.size() - 1] = product - 1;
}

void boundary_value(const Reals& x, Reals& f) {
  const std::size_t n = x.size();
  const double h = 1 / static_cast<double>(n + 1);
  for (std::size_t i = 0; i < n; ++i) {
    const double left = i > 0 ? x[i - 1] : 0, right = i + 1 < n ? x[i + 1] : 0;
    const double cube = std::pow(x[i] + h * static_cast<double>(i + 1) + 1, 3.0);
    f[i] = 2 * x[i] - left - right + h * h * cube / 2;
  }
}

void broyden_tridiagonal(const Reals& x, Reals& f) {
  for (std::size_t i = 0; i < x.size(); ++i) {
    f[i] = (3 - 2 * x[i]) * x[i] - (i > 0 ? x[i - 1] : 0) - 2 * (i + 1 < x.size() ? x[i + 1] : 0) + 1;
  }
}

void broyden_banded(const Reals& x, Reals& f) {
  for (std::size_t i = 0; i < x.size(); ++i) {
    f[i] = x[i] * (2 + 5 * x[i] * x[i]) + 1;
    for (std::size_t j = i < 5 ? 0 : i - 5; j <= std::min(i + 1, x.size() - 1); ++j) {
      if (j != i) f[i] -= x[j] * (1 + x[j]);
    }
  }
}

void linear_full_rank(const Reals& x, Reals& f) {
  double sum = 0;
  for (const double a : x) sum += a;
  for (std::size_t i = 0; i < f.size(); ++i) {
    f[i] = -2 * sum / static_cast<double>(f.size()) - 1 + (i < x.size() ? x[i] : 0);
  }
}

// Rank 1; with `zeros`, the first and last rows and columns are zero.
Function linear_rank_one(bool zeros) {
  return [zeros](const Reals& x, Reals& f) {
    const std::size_t first = zeros ? 1 : 0;
    double sum = 0;
    for (std::size_t j = first; j + first < x.size(); ++j) sum += static_cast<double>(j + 1) * x[j];
    for (std::size_t i = 0; i < f.size(); ++i) {
      const bool is_zero = zeros && (i == 0 || i + 1 == f.size());
      f[i] = is_zero ? -1 : static_cast<double>(zeros ? i : i + 1) * sum - 1;
    }
  };
}

void chebyquad(const Reals& x, Reals& f) {
  std::fill(f.begin(), f.end(), 0.0);
  for (const double a : x) {
    double before = 1, now = 2 * a - 1;
    const double twice = 2 * now;
    for (double& sum : f) {
      sum += now / static_cast<double>(x.size());
      const double next = twice * now - before;
      before = now;
      now = next;
    }
  }
  for (std::size_t i = 1; i < f.size(); i += 2) f[i] += 1 / (square(static_cast<double>(i + 1)) - 1);
}

std::vector<Problem> problems() {
  const auto halves = [](double i, double n) { return i / (n + 1); };
  const Reals nodes = filled(10, [](double i, double) { return i / 11 * (i / 11 - 1); });
  return {
      {"Rosenbrock", 2, {-1.2, 1}, rosenbrock, {0}},
      {"Freudenstein and Roth", 2, {0.5, -2}, freudenstein_roth, {0, 48.9842}},
      {"Powell badly scaled",
       2,
       {0, 1},
       [](const Reals& x, Reals& f) {
         f = {1e4 * x[0] * x[1] - 1, std::exp(-x[0]) + std::exp(-x[1]) - 1.0001};
       },
       {0}},
      {"Brown badly scaled",
       3,
       {1, 1},
       [](const Reals& x, Reals& f) {
         f = {x[0] - 1e6, x[1] - 2e-6, x[0] * x[1] - 2};
       },
       {0}},
      {"Beale",
       3,
       {1, 1},
       [](const Reals& x, Reals& f) {
         f = {1.5 - x[0] * (1 - x[1]), 2.25 - x[0] * (1 - square(x[1])), 2.625 - x[0] * (1 - std::pow(x[1], 3.0))};
       },
       {0}},
      {"Jennrich and Sampson",
       10,
       {0.3, 0.4},
       by_entry([](double i, const Reals& x) { return 2 + 2 * i - (std::exp(i * x[0]) + std::exp(i * x[1])); }),
       {124.362}},
      {"Helical valley", 3, {-1, 0, 0}, helical_valley, {0}, 1e-5},
      {"Bard", 15, {1, 1, 1}, by_entry(bard), {8.21487e-3}},
      {"Gaussian", 15, {0.4, 1, 0}, by_entry(gaussian), {1.12793e-8}},
      {"Gulf", 99, {5, 2.5, 0.15}, by_entry(gulf), {0}, 1e-5},
      {"Box", 10, {0, 10, 20}, by_entry(box), {0}},
      {"Powell singular", 4, {3, -1, 0, 1}, extended_powell, {0}},
      {"Wood", 6, {-3, -1, -3, -1}, wood, {0}},
      {"Brown and Dennis", 20, {25, 5, -5, -1}, by_entry(brown_dennis), {85822.2}},
      {"Biggs", 13, {1, 2, 1, 1, 1, 1}, by_entry(biggs), {0, 5.65565e-3}},
      {"Osborne 2", 65, {1.3, 0.65, 0.65, 0.7, 0.6, 3, 5, 7, 2, 4.5, 5.5}, by_entry(osborne2), {4.01377e-2}},
      {"Watson 6", 31, Reals(6), watson, {2.28767e-3}},
      {"Watson 9", 31, Reals(9), watson, {1.39976e-6}},
      {"Extended Rosenbrock", 20, repeated({-1.2, 1}, 10), rosenbrock, {0}},
      {"Penalty 1", 5, {1, 2, 3, 4}, penalty1, {2.24997e-5}},
      {"Penalty 2", 8, repeated({0.5}, 4), penalty2, {9.37629e-6}},
      {"Variably dimensioned",
       12,
       filled(10, [](double i, double n) { return 1 - i / n; }),
       variably_dimensioned,
       {0},
       1e-5},
      {"Trigonometric", 10, repeated({0.1}, 10), trigonometric, {0, 2.79506e-5}},
      {"Brown almost linear", 10, repeated({0.5}, 10), brown_almost_linear, {0, 1}, 1e-5},
      {"Discrete boundary value", 10, nodes, boundary_value, {0}},
      {"Broyden tridiagonal", 10, repeated({-1}, 10), broyden_tridiagonal, {0}},
      {"Broyden banded", 10, repeated({-1}, 10), broyden_banded, {0}, 1e-5},
      {"Linear, full rank", 10, repeated({1}, 5), linear_full_rank, {5}},
      {"Linear, rank one", 10, repeated({1}, 5), linear_rank_one(false), {90.0 / 42}},
      {"Linear, rank one, zeros", 10, repeated({1}, 5), linear_rank_one(true), {124.0 / 34}},
      {"Chebyquad 8", 8, filled(8, halves), chebyquad, {3.51687e-3}},
      {"Chebyquad 9", 9, filled(9, halves), chebyquad, {0}},
      {"Chebyquad 10", 10, filled(10, halves), chebyquad, {6.50395e-3}},
  };
}

constexpr double kRelative = 2e-5;  // the minima are given to six digits

// And in about as many evaluations as ever: the step's rules are good for that number.
TEST(Published, MinimaAreReached) {
  constexpr int kMostEvaluations = 790;
  int evaluations = 0;
  for (const Problem& problem : problems()) {
    Fit run;
    run.m = problem.m;
    run.x = to_floats(problem.start);
    run.function = problem.function;
    run.go();
    const double sum = double{run.r2} * double{run.r2};
    const bool is_reached =
        std::any_of(problem.minima.begin(), problem.minima.end(),
                    [&](double minimum) {
                      return minimum == 0 ? double{run.r2} < problem.zero_scale * std::max(1.0, double{run.r1})
                                          : std::fabs(sum - minimum) <= kRelative * minimum;
                    }) ||
        sum < *std::min_element(problem.minima.begin(), problem.minima.end());  // Chebyquad 10 goes lower
    EXPECT_TRUE(is_reached) << problem.name << ": " << sum << " after " << run.iterations << " steps, stop "
                            << run.criterion;
    evaluations += run.requests[0];
  }
  EXPECT_LE(evaluations, kMostEvaluations);
}

}  // namespace
}  // namespace trust_region_test
