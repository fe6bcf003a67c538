// The regression problems of NIST, from both starting points of each, with residuals and derivatives rounded to floats.
#include "tests/support/test.hpp"
#include "tests/trust_region/fit.hpp"
#include "tests/trust_region/nist.hpp"

namespace trust_region_test {
namespace {

Fit fit_of(const NistProblem& problem, int start, float step_precision) {
  Fit run;
  run.eps[5] = step_precision;
  run.m = problem.m();
  run.x = to_floats(problem.starts[start]);
  run.limit = 5000;
  run.function = [&problem](const Reals& x, Reals& f) {
    for (std::size_t i = 0; i < f.size(); ++i) f[i] = problem.residual(x.data(), i);
  };
  run.go();
  return run;
}

// The number of digits to which all parameters agree with the certified ones, at most the 7.2 of a float.
double digits(const Floats& x, const Reals& certified) {
  double worst = std::numeric_limits<float>::epsilon() / 2;
  for (std::size_t j = 0; j < x.size(); ++j) {
    worst = std::max(worst, std::fabs(double{x[j]} - certified[j]) / std::fabs(certified[j]));
  }
  return -std::log10(worst);
}

// What single precision allows. Bennett5's three parameters hang together so closely that rounding them to floats
// already costs all digits but two or three.
double expected_digits(const std::string& name) {
  if (name == "Bennett5") return 1.8;
  return name == "ENSO" ? 3.0 : 4.0;
}

// Lanczos1 leaves residuals of 1e-13, far below the rounding of x; the others leave what is certified.
constexpr double kRelativeSum = 1e-4;
constexpr double kLeastSum = 1e-14;

TEST(Nist, ParametersAgreeWithTheCertifiedOnes) {
  const std::vector<NistProblem> problems = nist_problems(QUORIN_NIST_DIR);
  ASSERT_EQ(problems.size(), 27U);
  constexpr int kMostEvaluations = 8800;
  int evaluations = 0;
  for (const NistProblem& problem : problems) {
    ASSERT_GT(problem.m(), problem.n()) << problem.name << " is not in " << QUORIN_NIST_DIR;
    for (const int start : {0, 1}) {
      for (const float step_precision : {0.0F, 0.1F, 0.01F}) {
        const Fit run = fit_of(problem, start, step_precision);
        const double found = digits(run.x, problem.certified), sum = double{run.r2} * double{run.r2};
        EXPECT_GE(found, expected_digits(problem.name)) << problem.name << " after " << run.iterations << " steps";
        EXPECT_LE(sum, problem.residual_sum * (1 + kRelativeSum) + kLeastSum) << problem.name;
        evaluations += run.requests[0];
      }
    }
  }
  EXPECT_LE(evaluations, kMostEvaluations) << "as many as ever";
}

}  // namespace
}  // namespace trust_region_test
