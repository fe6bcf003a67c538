// Against LAPACK in double precision: the same eigenvalues, none missed and none too many, on structures, with multiple
// and clustered eigenvalues, ends everywhere, and on many random problems (QUORIN_FEAST_PROBLEMS sets how many).
#include "quorin/services.h"
#include "tests/feast/feast_host.hpp"
#include "tests/support/standard.hpp"

namespace feast_test {
namespace {

// Intervals of all kinds for a spectrum: between eigenvalues, with ends on them, none inside, one, all.
std::vector<std::pair<double, double>> intervals(const std::vector<double>& eigenvalues, std::mt19937& random) {
  const double low = eigenvalues.front(), high = eigenvalues.back(), span = std::max(high - low, 1e-3);
  std::uniform_real_distribution<double> inside(low - 0.1 * span, high + 0.1 * span);
  std::uniform_int_distribution<std::size_t> some(0, eigenvalues.size() - 1);
  std::vector<std::pair<double, double>> result = {{low - span, high + span}, {high + 0.1 * span, high + span}};
  for (int k = 0; k < 3; ++k) {
    const double a = inside(random), b = inside(random), c = eigenvalues[some(random)], d = eigenvalues[some(random)];
    result.emplace_back(std::min(a, b), std::max(a, b));
    result.emplace_back(std::min(c, d), std::max(c, d));
    result.emplace_back(c - 1e-3 * span, c + 1e-3 * span);
  }
  // No end is to be an eigenvalue of zero as LAPACK rounds it.
  for (auto& [a, b] : result) {
    for (double* const end : {&a, &b}) {
      if (std::fabs(*end) < 1e-9 * std::max(std::fabs(low), std::fabs(high))) *end = 0;
    }
  }
  std::erase_if(result, [](const auto& x) { return !(static_cast<float>(x.first) < static_cast<float>(x.second)); });
  return result;
}

int count_inside(const std::vector<double>& eigenvalues, double low, double high) {
  return static_cast<int>(
      std::count_if(eigenvalues.begin(), eigenvalues.end(), [&](double x) { return x >= low && x <= high; }));
}

// Since the program began.
int calls = 0, without_contour = 0;

// Solves with m0 too small, exact and generous.
void expect_agreement(const Problem& problem, const std::vector<double>& eigenvalues, double low, double high) {
  const int inside = count_inside(eigenvalues, low, high), n = problem.n();
  for (const int room : {inside, inside + inside / 2 + 1, n}) {
    if (room < 1 || room > n) continue;
    Call call(low, high, room);
    solve(problem, call);
    // With ends rounded to floats there may be more, and what is an end to LAPACK's rounding may be inside.
    const double unsure = 1e-13 * std::max(std::fabs(eigenvalues.front()), std::fabs(eigenvalues.back()));
    if (call.info == 3 && count_inside(eigenvalues, call.emin - unsure, call.emax + unsure) > room) continue;
    ++calls;
    without_contour += call.loop == 0 ? 1 : 0;
    EXPECT_TRUE(call.info == 0 || call.info == 1)
        << problem.name << ' ' << low << ' ' << high << " m0 " << room << " status " << call.info;
    expect_right(problem, call, eigenvalues);
  }
  if (inside < 2) return;
  Call small(low, high, inside - 1);
  solve(problem, small);
  const double margin = 1e-6 * (high - low);
  if (count_inside(eigenvalues, low + margin, high - margin) == inside) {
    EXPECT_EQ(small.info, 3) << problem.name << ' ' << low << ' ' << high;
    EXPECT_LE(small.m, inside - 1);
  }
}

class Structures : public testing::TestWithParam<std::function<Problem()>> {};

TEST_P(Structures, AgreeWithLapack) {
  const Problem problem = GetParam()();
  const std::vector<double> eigenvalues = all_eigenvalues(problem);
  std::mt19937 random(7);
  for (const auto& [low, high] : intervals(eigenvalues, random)) expect_agreement(problem, eigenvalues, low, high);
}

// Consistent mass of linear elements.
SparseMatrix mass(int n) {
  SparseMatrix M = second_difference(n);
  for (auto& entry : M.entries) entry.value = entry.row == entry.column ? 4 : 1;
  return M;
}

SparseMatrix graded(int n, double decades) {
  std::vector<double> values;
  for (int i = 0; i < n; ++i) values.push_back(std::pow(10.0, -decades * i / (n - 1)));
  return diagonal(values);
}

SparseMatrix clusters() {
  std::vector<double> values;
  for (int i = 0; i < 60; ++i) values.push_back(1 + i % 4 + 1e-6 * (i / 20));
  return diagonal(values);
}

const std::function<Problem()> kStructures[] = {
    [] { return make_problem("one", diagonal({3})); },
    [] { return make_problem("one, generalized", diagonal({3}), diagonal({0.5})); },
    [] { return make_problem("two", laplacian(2, 1, 1)); },
    [] { return make_problem("zero", diagonal(std::vector<double>(9, 0))); },
    [] { return make_problem("chain", second_difference(70)); },
    [] { return make_problem("grid", laplacian(8, 9, 1)); },
    [] { return make_problem("cube", laplacian(5, 5, 5)); },
    [] { return make_problem("turned cube", turned(laplacian(4, 4, 4))); },
    [] { return make_problem("vibration", laplacian(9, 7, 1), mass(63)); },
    [] { return make_problem("ill-conditioned B", second_difference(40), graded(40, 6)); },
    [] { return make_problem("large and small", laplacian(6, 6, 1), graded(36, -9)); },
    [] { return make_problem("clusters", clusters()); },
    [] { return make_problem("lattice", magnetic_lattice(9, 8, 2 * std::numbers::pi / 5)); },
    [] { return make_problem("lattice without flux", magnetic_lattice(8, 8, 0)); },
    [] { return make_problem("lattice, generalized", magnetic_lattice(7, 9, 0.7), turned(mass(63))); },
};
INSTANTIATE_TEST_SUITE_P(All, Structures, testing::ValuesIn(kStructures));

// Many eigenvalues next to an end, which pass the filter, too, and little room.
TEST(Crowds, NextToAnEnd) {
  struct Case {
    int crowd;
    double width, last;
  };
  for (const auto& [crowd, width, last] :
       {Case{200, 0.01, 0.999}, Case{700, 0.01, 0.9}, Case{700, 0.01, 0.999}, Case{700, 1e-3, 0.99999}}) {
    std::vector<double> values = {-0.9, -0.3, 0.1, 0.6, last};
    for (int i = 1; i <= crowd; ++i) values.push_back(1 + width * i / crowd);
    for (int i = 0; i < 50; ++i) values.push_back(2 + i);
    const Problem problem = make_problem("crowd", diagonal(values));
    Call call(-1, 1, 6);
    solve(problem, call);
    EXPECT_EQ(call.info, 0) << last << " beside " << crowd;
    EXPECT_EQ(call.m, 5);
    EXPECT_EQ(call.loop, 0) << "contours were needed";
    expect_right(problem, call, values);
  }
}

// Many more of the same than a block has vectors, among others, and all there are.
TEST(Multiplicity, BeyondTheWidthOfABlock) {
  const auto expect_all = [](const std::vector<double>& values, double low, double high, int inside) {
    const Problem problem = make_problem("multiple", diagonal(values));
    for (const int room : {inside - 1, inside}) {
      Call call(low, high, room);
      solve(problem, call);
      EXPECT_EQ(call.info, room == inside ? 0 : 3) << inside << " of " << values.size();
      EXPECT_EQ(call.m, room);
      EXPECT_EQ(call.loop, 0) << "contours were needed";
      if (room == inside) expect_right(problem, call, values);
    }
  };
  std::vector<double> values(40, 1.5);
  for (int i = 0; i < 30; ++i) values.push_back(1.5 + 0.01 * (i - 15.5));
  for (int i = 0; i < 150; ++i) values.push_back(3 + 0.1 * i);
  std::sort(values.begin(), values.end());
  expect_all(values, 0.5, 2.5, 70);
  expect_all(std::vector<double>(120, 3), 2, 4, 120);
}

// More eigenvalues than one shift is for, some of them ten times, and most in a part of the interval.
TEST(Slices, MeetWithoutGaps) {
  std::vector<double> values;
  for (int i = 0; i < 250; ++i) values.push_back(1 + 0.004 * i);
  for (int i = 0; i < 9; ++i) values.push_back(1.5);
  for (int i = 0; i < 150; ++i) values.push_back(3 + 1e-4 * (i % 75));
  for (int i = 0; i < 60; ++i) values.push_back(4 + i);
  std::sort(values.begin(), values.end());
  const Problem problems[] = {make_problem("spread", diagonal(values)), make_problem("box", laplacian(9, 9, 9))};
  for (const Problem& problem : problems) {
    const std::vector<double> eigenvalues = all_eigenvalues(problem);
    Call by_slices(-1, 3.7, 420);
    solve(problem, by_slices);
    EXPECT_EQ(by_slices.info, 0) << problem.name;
    EXPECT_GT(by_slices.m, 100);
    expect_right(problem, by_slices, eigenvalues);
  }
}

TEST(Threads, GiveTheSameBits) {
  constexpr std::int32_t kDirectSolvers = 4;
  const Problem problems[] = {make_problem("vibration", laplacian(14, 15, 1), mass(210)),
                              make_problem("lattice", magnetic_lattice(14, 15, 0.7))};
  sMKL_Set_Dynamic(0);
  for (const Problem& problem : problems) {
    std::optional<Call> first;
    for (const int threads : {1, 2, 3}) {
      sMKL_Domain_Set_Num_Threads(threads, kDirectSolvers);
      Call call(0.5, 1.5, 150);
      solve(problem, call);
      ASSERT_EQ(call.info, 0) << problem.name;
      ASSERT_GT(call.m, 32) << "more than one block of columns";
      if (!first) first = call;
      EXPECT_EQ(call.e, first->e) << problem.name << ", " << threads << " threads";
      EXPECT_EQ(call.x, first->x) << problem.name << ", " << threads << " threads";
      EXPECT_EQ(call.res, first->res) << problem.name << ", " << threads << " threads";
      EXPECT_EQ(call.loop, first->loop) << problem.name << ", " << threads << " threads";
    }
  }
  sMKL_Domain_Set_Num_Threads(0, kDirectSolvers);
  sMKL_Set_Dynamic(1);
}

TEST(RandomProblems, NoneMissedAndNoneTooMany) {
  const char* const text = std::getenv("QUORIN_FEAST_PROBLEMS");
  const int problems = text == nullptr ? 60 : std::atoi(text);
  std::uniform_int_distribution<int> any_size(1, 60), any_kind(0, 3), coin(0, 1);
  std::uniform_real_distribution<double> any_degree(0, 6), any_scale(-6, 6), any_decades(0, 8);
  // The last has an eigenvalue next to an end, by 2e-12 of the largest one, and an ill-conditioned B.
  std::vector<unsigned> seeds(static_cast<std::size_t>(problems));
  std::iota(seeds.begin(), seeds.end(), 0U);
  seeds.push_back(5579);
  for (const unsigned k : seeds) {
    if (testing::Test::HasFailure()) break;
    std::mt19937 random(k);
    const int n = any_size(random);
    const bool is_complex = coin(random) == 1;
    const double degree = any_degree(random), scale = std::pow(10.0, any_scale(random));
    SparseMatrix A = random_matrix(n, degree, is_complex, random), B;
    if (any_kind(random) == 0) {
      for (auto& entry : A.entries) entry.value *= entry.row == entry.column ? 0 : 1;
    }
    for (auto& entry : A.entries) entry.value *= scale;
    if (coin(random) == 1) B = random_definite(n, degree, any_decades(random), is_complex, random);
    const Problem problem = make_problem("random " + std::to_string(k), A, B);
    const std::vector<double> eigenvalues = all_eigenvalues(problem);
    for (const auto& [low, high] : intervals(eigenvalues, random)) expect_agreement(problem, eigenvalues, low, high);
  }
}

}  // namespace
}  // namespace feast_test
