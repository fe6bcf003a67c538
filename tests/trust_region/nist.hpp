// The nonlinear regression problems of NIST's Statistical Reference Datasets, with certified parameters.
#pragma once

#include <fstream>

#include "tests/support/standard.hpp"

namespace trust_region_test {

using Reals = std::vector<double>;

/// The residual of one observation: row[0] is y, then the predictors.
using Misfit = std::function<double(const double* b, const double* row)>;

struct NistProblem {
  std::string name;
  Misfit misfit;
  Reals starts[2], certified;
  double residual_sum = 0;
  std::size_t width = 0;
  Reals rows;

  std::size_t n() const { return certified.size(); }
  std::size_t m() const { return rows.size() / width; }
  double residual(const double* b, std::size_t i) const { return misfit(b, rows.data() + i * width); }
};

namespace nist {

/// y - f(b, x) for the models with one predictor.
template <class Model>
Misfit fit(const Model& model) {
  return [model](const double* b, const double* row) { return row[0] - model(b, row[1]); };
}

inline double wave(const double* b, double period, double x) {
  const double angle = 2 * std::numbers::pi * x / period;
  return b[0] * std::cos(angle) + b[1] * std::sin(angle);
}

inline double rational(const double* b, double x) {
  return (b[0] + x * (b[1] + x * (b[2] + x * b[3]))) / (1 + x * (b[4] + x * (b[5] + x * b[6])));
}

inline double chwirut(const double* b, double x) { return std::exp(-b[0] * x) / (b[1] + b[2] * x); }

inline double lanczos(const double* b, double x) {
  return b[0] * std::exp(-b[1] * x) + b[2] * std::exp(-b[3] * x) + b[4] * std::exp(-b[5] * x);
}

inline double peak(const double* b, double x) {
  const double distance = (x - b[1]) / b[2];
  return b[0] * std::exp(-distance * distance);
}

inline double two_peaks(const double* b, double x) {
  return b[0] * std::exp(-b[1] * x) + peak(b + 2, x) + peak(b + 5, x);
}

/// In the order of NIST's levels of difficulty: eight lower, eleven average, eight higher.
inline std::vector<std::pair<std::string, Misfit>> models() {
  using std::exp, std::pow;
  return {
      {"Misra1a", fit([](const double* b, double x) { return b[0] * (1 - exp(-b[1] * x)); })},
      {"Chwirut2", fit(chwirut)},
      {"Chwirut1", fit(chwirut)},
      {"Lanczos3", fit(lanczos)},
      {"Gauss1", fit(two_peaks)},
      {"Gauss2", fit(two_peaks)},
      {"DanWood", fit([](const double* b, double x) { return b[0] * pow(x, b[1]); })},
      {"Misra1b", fit([](const double* b, double x) { return b[0] * (1 - pow(1 + b[1] * x / 2, -2.0)); })},
      {"Kirby2",
       fit([](const double* b, double x) { return (b[0] + x * (b[1] + x * b[2])) / (1 + x * (b[3] + x * b[4])); })},
      {"Hahn1", fit(rational)},
      {"Nelson", [](const double* b,
                    const double* row) { return std::log(row[0]) - (b[0] - b[1] * row[1] * exp(-b[2] * row[2])); }},
      {"MGH17", fit([](const double* b, double x) { return b[0] + b[1] * exp(-x * b[3]) + b[2] * exp(-x * b[4]); })},
      {"Lanczos1", fit(lanczos)},
      {"Lanczos2", fit(lanczos)},
      {"Gauss3", fit(two_peaks)},
      {"Misra1c", fit([](const double* b, double x) { return b[0] * (1 - pow(1 + 2 * b[1] * x, -0.5)); })},
      {"Misra1d", fit([](const double* b, double x) { return b[0] * b[1] * x / (1 + b[1] * x); })},
      {"Roszman1", fit([](const double* b, double x) {
         return b[0] - b[1] * x - std::atan(b[2] / (x - b[3])) / std::numbers::pi;
       })},
      {"ENSO", fit([](const double* b, double x) {
         return b[0] + wave(b + 1, 12, x) + wave(b + 4, b[3], x) + wave(b + 7, b[6], x);
       })},
      {"MGH09", fit([](const double* b, double x) { return b[0] * x * (x + b[1]) / (x * (x + b[2]) + b[3]); })},
      {"Thurber", fit(rational)},
      {"BoxBOD", fit([](const double* b, double x) { return b[0] * (1 - exp(-b[1] * x)); })},
      {"Rat42", fit([](const double* b, double x) { return b[0] / (1 + exp(b[1] - b[2] * x)); })},
      {"MGH10", fit([](const double* b, double x) { return b[0] * exp(b[1] / (x + b[2])); })},
      {"Eckerle4", fit([](const double* b, double x) {
         return b[0] / b[1] * exp(-0.5 * ((x - b[2]) / b[1]) * ((x - b[2]) / b[1]));
       })},
      {"Rat43", fit([](const double* b, double x) { return b[0] / pow(1 + exp(b[1] - b[2] * x), 1 / b[3]); })},
      {"Bennett5", fit([](const double* b, double x) { return b[0] * pow(b[1] + x, -1 / b[2]); })},
  };
}

inline Reals read(std::istream& in, std::size_t count) {
  Reals values(count);
  for (double& value : values) in >> value;
  return values;
}

}  // namespace nist

/// Reads the files of `directory`; an unreadable one gives a problem without observations.
inline std::vector<NistProblem> nist_problems(const std::string& directory) {
  std::vector<NistProblem> problems;
  for (const auto& [name, misfit] : nist::models()) {
    std::ifstream in(directory + "/" + name + ".dat");
    std::size_t n = 0, m = 0;
    NistProblem problem;
    problem.name = name;
    problem.misfit = misfit;
    in >> n >> m >> problem.width;
    for (Reals& start : problem.starts) start = nist::read(in, n);
    problem.certified = nist::read(in, n);
    in >> problem.residual_sum;
    problem.rows = nist::read(in, m * problem.width);
    if (!in) problem.rows.clear();
    problems.push_back(problem);
  }
  return problems;
}

}  // namespace trust_region_test
