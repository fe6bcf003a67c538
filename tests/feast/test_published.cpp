// The problems with published or closed-form eigenvalues, each parameter, and each form of each routine.
#include "quorin/feast.h"
#include "tests/feast/feast_host.hpp"
#include "tests/support/capture_output.hpp"
#include "tests/support/guarded.hpp"
#include "tests/support/standard.hpp"

namespace feast_test {
namespace {

// Diagonal 6 (corners 5), then 3 (2 at both ends), 1, 1.
Problem band_matrix() {
  SparseMatrix A;
  for (int i = 0; i < 11; ++i) {
    A.add(i, i, i == 0 || i == 10 ? 5 : 6);
    if (i >= 1) A.add(i, i - 1, i == 1 || i == 10 ? 2 : 3);
    if (i >= 2) A.add(i, i - 2, 1);
    if (i >= 3) A.add(i, i - 3, 1);
  }
  return make_problem("band of 7", A);
}

TEST(Published, BandMatrix) {
  const Problem problem = band_matrix();
  const double expected[] = {3.171572875253810, 4, 4, 4.129248484189093, 4.406649900673160, 6};
  for (const char uplo : {'F', 'U', 'L', 'f', 'u', 'l'}) {
    for (const int m0 : {6, 8, 11}) {
      for (const bool as_complex : {false, true}) {
        Call call(3, 7, m0);
        call.uplo = uplo;
        solve(problem, call, as_complex);
        ASSERT_EQ(call.info, 0);
        ASSERT_EQ(call.m, 6);
        EXPECT_EQ(call.loop, 0);
        for (std::size_t k = 0; k < 6; ++k) EXPECT_NEAR(call.e[k], expected[k], 5e-7);
        expect_right(problem, call, all_eigenvalues(problem));
      }
    }
  }
  Call all(-1e6, 1e30, 11);
  solve(problem, all);
  ASSERT_EQ(all.m, 11);
  expect_right(problem, all, all_eigenvalues(problem));
}

// Ends that are eigenvalues count as inside; those beside the interval do not, however near they are.
TEST(Published, Ends) {
  const Problem whole = make_problem("whole numbers", diagonal({-3, -2, -2, -1, 0, 0, 0, 1, 2, 3, 4, 4.000001, 5}));
  const auto count = [&whole](double low, double high) {
    Call call(low, high, 13);
    solve(whole, call);
    EXPECT_EQ(call.info, call.m > 0 ? 0 : 1);
    expect_right(whole, call, all_eigenvalues(whole));
    return call.m;
  };
  EXPECT_EQ(count(-2, 2), 8);
  EXPECT_EQ(count(0, 4), 7);
  EXPECT_EQ(count(1e-9, 4), 4);
  EXPECT_EQ(count(-1e-6, 1e-6), 3);
  EXPECT_EQ(count(4.0000005, 4.9999995), 1);
  EXPECT_EQ(count(std::nextafter(1.0F, 2.0F), std::nextafter(2.0F, 1.0F)), 0);
  EXPECT_EQ(count(-1e20, -2), 3);
  EXPECT_EQ(count(3, 1e38), 4);
  EXPECT_EQ(count(100, 1e38), 0);
}

// ---- Parameters -----------------------------------------------------------------------------------------------------

TEST(Parameters, Defaults) {
  std::vector<std::int32_t> expected(128, 0);
  expected[1] = 8;
  expected[2] = 12;
  expected[3] = 20;
  expected[6] = 5;
  quorin::test::Guarded<std::int32_t> fpm(128, -7);
  feastinit_32f(fpm.data());
  EXPECT_EQ(std::vector<std::int32_t>(fpm.data(), fpm.data() + 128), expected);
  EXPECT_TRUE(fpm.intact());
}

TEST(Parameters, AnyNumberOfNodes) {
  const Problem problem = make_problem("grid", laplacian(6, 5, 4));
  const std::vector<double> eigenvalues = all_eigenvalues(problem);
  for (const int nodes : {3, 4, 5, 6, 8, 10, 12, 16, 20, 24, 32, 40, 48}) {
    Call call(2.9, 5.1, 40);
    call.parameter(2) = nodes;
    solve(problem, call);
    EXPECT_EQ(call.info, 0) << nodes;
    expect_right(problem, call, eigenvalues);
  }
}

// Of contours, since the host gives the subspace.
TEST(Parameters, ToleranceLoopsAndTests) {
  const Problem problem = make_problem("second difference", second_difference(50));
  const std::vector<double> eigenvalues = all_eigenvalues(problem);
  const auto solved = [&](int digits, int loops) {
    Call call(0.1, 0.6, 9);
    call.parameter(2) = 3;
    call.parameter(4) = loops;
    call.parameter(5) = 1;
    call.parameter(7) = digits;
    std::mt19937 random(3);
    std::uniform_real_distribution<float> number(-1, 1);
    for (int i = 0; i < 9 * 50; ++i) call.guess.emplace_back(number(random));
    solve(problem, call);
    EXPECT_EQ(call.m, 7);
    expect_right(problem, call, eigenvalues);
    return call;
  };
  const Call coarse = solved(1, 20), fine = solved(7, 20), hopeless = solved(7, 1);
  EXPECT_EQ(coarse.info, 0);
  EXPECT_EQ(fine.info, 0);
  EXPECT_LT(coarse.loop, fine.loop);
  EXPECT_LE(*std::max_element(fine.res.begin(), fine.res.begin() + 7), 1e-7);
  EXPECT_EQ(hopeless.info, 2);
  EXPECT_EQ(hopeless.loop, 1);

  // epsout and res are relative to the interval.
  SparseMatrix large = second_difference(50);
  for (auto& entry : large.entries) entry.value *= 1024;
  Call scaled(102.4, 614.4, 9);
  scaled.fpm = hopeless.fpm;
  scaled.guess = hopeless.guess;
  solve(make_problem("1024 of it", large), scaled);
  EXPECT_GT(hopeless.epsout, 0);
  EXPECT_NEAR(scaled.epsout, hopeless.epsout, 1e-3 * hopeless.epsout);
  for (std::size_t j = 0; j < 7; ++j) EXPECT_NEAR(scaled.res[j], hopeless.res[j], 1e-3 * hopeless.res[j] + 1e-12);

  Call by_trace(0.1, 0.6, 9);
  by_trace.parameter(6) = 1;
  solve(problem, by_trace);
  EXPECT_EQ(by_trace.info, 0);
  EXPECT_LT(by_trace.epsout, 1e-5);
  EXPECT_GE(by_trace.loop, 1);
  expect_right(problem, by_trace, eigenvalues);
}

// What the filter does to eigenvectors is known: about 1 inside, 1/2 at the ends, and the published values elsewhere.
TEST(Parameters, FilterOnly) {
  const Problem problem = make_problem("diagonal", diagonal({0, 0.5, 0.9, 1, 1.1, 1.5, 2, 3}));
  const double three[] = {1, 1.015, 0.748, 0.5, 0.273, -1.2e-2, -1.5e-2, -3.0e-3};
  const double eight[] = {1, 1.000, 1.021, 0.5, -2.3e-2, 2.4e-4, -1.6e-5, 4.3e-7};
  for (const bool as_complex : {false, true}) {
    for (const int nodes : {3, 8}) {
      Call call(-1, 1, 2);
      call.parameter(2) = nodes;
      call.parameter(5) = call.parameter(14) = 1;
      call.guess.assign(16, 1);
      std::fill_n(call.guess.begin() + 8, 8, Complex(-2));
      solve(problem, call, as_complex);
      EXPECT_EQ(call.info, 4);
      EXPECT_EQ(call.m, 2);
      EXPECT_EQ(call.m0, 2);
      EXPECT_EQ(call.loop, 0);
      EXPECT_EQ(call.epsout, 0);
      for (const auto& zeros : {call.e, call.res}) EXPECT_EQ(std::count(zeros.begin(), zeros.begin() + 2, 0.0F), 2);
      for (std::size_t i = 0; i < 8; ++i) {
        const double expected = nodes == 3 ? three[i] : eight[i];
        const double tolerance = std::fabs(expected) < 0.1 ? 0.05 * std::fabs(expected) : 6e-4;
        EXPECT_NEAR(call.x[i].real(), expected, tolerance) << nodes << " nodes, " << i;
        EXPECT_NEAR(call.x[i + 8].real(), -2 * expected, 2 * tolerance);
        EXPECT_NEAR(call.x[i].imag(), 0, 1e-12);
      }
    }
  }
}

TEST(Parameters, InitialSubspace) {
  const Problem problem = make_problem("grid", laplacian(9, 8, 1));
  const std::vector<double> eigenvalues = all_eigenvalues(problem);
  Call first(1, 2, 30);
  solve(problem, first);
  ASSERT_EQ(first.info, 0);
  ASSERT_GT(first.m, 5);
  const auto again = [&](std::vector<Complex> guess) {
    Call call(1, 2, 30);
    call.parameter(5) = 1;
    call.guess = std::move(guess);
    solve(problem, call);
    EXPECT_EQ(call.info, 0);
    EXPECT_EQ(call.m, first.m);
    expect_right(problem, call, eigenvalues);
    return call.loop;
  };
  const std::size_t elements = 72U * 30U;
  EXPECT_EQ(again(first.x), 0);
  again(std::vector<Complex>(elements));     // zeros
  again(std::vector<Complex>(elements, 1));  // one vector, thirty times
  again(std::vector<Complex>(elements, Complex(1e-30F)));
  // An eigenvector that is not wanted, so that the first loops find nothing else.
  Call other(5, 8, 72);
  solve(problem, other);
  ASSERT_EQ(other.info, 0);
  other.x.resize(72);
  std::vector<Complex> repeated;
  for (int k = 0; k < 30; ++k) repeated.insert(repeated.end(), other.x.begin(), other.x.end());
  again(repeated);
}

TEST(Parameters, OrderingsOfTheSolver) {
  const Problem problem = make_problem("grid", laplacian(7, 6, 5));
  const std::vector<double> eigenvalues = all_eigenvalues(problem);
  for (const int given : {0, 1}) {
    for (const int ordering : {0, 2, 3}) {
      Call call(0.5, 1.5, 40);
      call.parameter(64) = 1;
      call.parameter(65) = given;
      call.parameter(66) = ordering;
      solve(problem, call);
      EXPECT_EQ(call.info, 0);
      expect_right(problem, call, eigenvalues);
    }
  }
}

TEST(Parameters, PrintsALineForEachLoop) {
  const Problem problem = make_problem("second difference", second_difference(50));
  Call call(0.1, 0.6, 9);
  EXPECT_EQ(quorin::test::captured([&] { solve(problem, call); }), "");
  call = Call(0.1, 0.6, 9);
  call.parameter(1) = 1;
  call.parameter(7) = 7;
  const std::string text = quorin::test::captured([&] { solve(problem, call); });
  EXPECT_NE(text.find("n = 50, interval [0.100000001, 0.600000024]"), std::string::npos) << text;
  EXPECT_NE(text.find("7 eigenvalues"), std::string::npos) << text;
  constexpr int kHeadLines = 3;
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), kHeadLines + call.loop + 1) << text;
}

}  // namespace
}  // namespace feast_test
