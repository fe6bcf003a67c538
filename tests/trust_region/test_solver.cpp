// The protocol of the solvers, their handles and stops, the published example, and hosts that misbehave.
#include "tests/support/test.hpp"
#include "tests/trust_region/fit.hpp"

namespace trust_region_test {
namespace {

TEST(Powell, TakesThePublishedNumberOfStepsForAnyNumberOfBlocks) {
  for (const std::size_t blocks : {std::size_t{1}, std::size_t{3}, std::size_t{25}}) {
    Fit run = powell_run(blocks, 1e-5F);
    run.go();
    const double growth = std::sqrt(static_cast<double>(blocks));
    EXPECT_FLOAT_EQ(run.r1, static_cast<float>(std::sqrt(215.0) * growth));
    EXPECT_EQ(run.criterion, 3);
    EXPECT_LT(run.r2, 1e-5F);
    if (blocks > 1) continue;  // then ||F|| is larger, and the run a step longer
    EXPECT_EQ(run.iterations, 11);
    EXPECT_EQ(run.requests[0], 12);
    EXPECT_EQ(run.requests[1], 12);
    EXPECT_NEAR(run.r2, 3.0e-6, 1e-6);
  }
}

// Each row switches on one test, or limits the steps; the criterion is the one that it must end with.
TEST(Stops, EachTestHasItsCode) {
  for (const auto& [criterion, tolerance, value, limit] : {std::tuple(1, 0U, 0.0F, 3),
                                                           {2, 0U, 1.0F, 1000},
                                                           {3, 1U, 1e-2F, 1000},
                                                           {4, 2U, 1e3F, 1000},
                                                           {5, 3U, 1e-2F, 1000},
                                                           {6, 4U, 1e-2F, 1000}}) {
    Fit run = powell_run(1, 0.0F);
    run.eps[tolerance] = value;
    run.limit = limit;
    run.go();
    EXPECT_EQ(run.criterion, criterion);
    EXPECT_EQ(run.request, -criterion);
    EXPECT_LE(run.iterations, limit);
    EXPECT_TRUE(criterion != 1 || run.iterations == 3);
    EXPECT_TRUE(criterion != 4 || run.iterations == 0);
  }
}

// Whatever the units of F, and of x; and the region's size is at least 0.1 and at most 100.
TEST(Setup, TheFirstStepIsNoLongerThanTheFirstRegion) {
  for (const double unit : {1e-6, 1.0, 1e6}) {
    for (const float rs : {1e-3F, 0.1F, 1.0F, 30.0F, 1e30F, 0.0F}) {
      for (const bool is_bounded : {false, true}) {
        Fit run;
        run.m = 2;
        run.rs = rs;
        run.x = {50, 1000};
        run.function = [unit](const Reals& x, Reals& f) { f = {unit * x[0], 1e-3 * unit * (x[1] + 0.1 * x[0])}; };
        if (is_bounded) run.lower = {-10, -10}, run.upper = {2000, 2000};
        EXPECT_EQ(run.begin(), kSuccess);
        while (run.requests[0] < 2) ASSERT_TRUE(run.step());
        const double length = std::hypot(run.x[0] - 50, run.x[1] - 1000);
        if (const float most = std::clamp(rs, 0.1F, 100.0F); rs > 0) {
          EXPECT_LE(length, most * (1 + 1e-5)) << unit;
          EXPECT_GE(length, 0.4 * most) << unit;
        } else {
          EXPECT_GT(length, 100) << unit;
        }
        while (run.step()) {
        }
        EXPECT_NEAR(run.x[0], 0, 1e-3);
        run.finish();
      }
    }
  }
}

// The only step of F(x) = x - 1 from 0 has the length 1.
TEST(Stops, TheStepTestMeasuresTheStep) {
  for (const float least : {0.99F, 1.01F}) {
    Fit run;
    run.m = 1;
    run.x = {0};
    run.eps[3] = least;
    run.function = [](const Reals& x, Reals& f) { f[0] = x[0] - 1; };
    run.go();
    if (least > 1) {
      EXPECT_EQ(run.criterion, 5);
    }
    EXPECT_EQ(run.x[0], least > 1 ? 0.0F : 1.0F);
  }
}

// A variable that a bound keeps does not make the Jacobian singular; away from its bound it does.
TEST(Stops, FrozenVariablesAreNotSingular) {
  for (const float start : {0.0F, 1.0F}) {
    Fit run;
    run.m = 2;
    run.x = {3, start};
    run.lower = {-100, 0};
    run.upper = {100, 10};
    run.eps[2] = 1e-2F;
    run.function = [](const Reals& x, Reals& f) { f = {x[0] - 1, 1e-3 * (x[1] + 10)}; };
    run.go();
    EXPECT_EQ(run.criterion == 4, start > 0);
    EXPECT_EQ(run.x[0], start > 0 ? 3.0F : 1.0F);
  }
}

// Of all minimisers along the valley of columns that depend on each other, the nearest is found; a variable that F does
// not depend on stays.
TEST(Setup, DependentColumnsGiveTheShortestStep) {
  for (const double share : {1.0, 1.0 / 3}) {
    Fit run;
    run.m = 4;
    run.x = {0, 0, 0, 5};
    run.function = [share](const Reals& x, Reals& f) {
      for (std::size_t i = 0; i < 4; ++i) f[i] = share * static_cast<double>(i + 1) * (x[0] + x[1] + x[2] - 3);
    };
    run.go();
    for (std::size_t j = 0; j < 3; ++j) EXPECT_NEAR(run.x[j], 1.0F, 1e-3F);
    EXPECT_EQ(run.x[3], 5.0F);
  }
}

TEST(Stops, RequestsRepeatAfterTheEnd) {
  Fit run = powell_run(1, 1e-5F);
  ASSERT_EQ(run.begin(), kSuccess);
  int criterion = -1, iterations = -1;
  float r1 = -1, r2 = -1;
  EXPECT_EQ(strnlsp_get(&run.handle, &iterations, &criterion, &r1, &r2), kSuccess);
  EXPECT_EQ(iterations + criterion, 0);
  EXPECT_EQ(r1 + r2, 0.0F);
  while (run.step()) {
  }
  const Floats x = run.x;
  for (int i = 0; i < 2; ++i) {
    EXPECT_FALSE(run.step());
    EXPECT_EQ(run.request, -3);
    EXPECT_EQ(run.status, kSuccess);
  }
  EXPECT_EQ(run.x, x);
  run.finish();
}

TEST(Handles, WhatIsNoHandleIsRefused) {
  Fit run = powell_run(1, 1e-5F), bounded = bounded_powell_run(1, 1e-5F);
  ASSERT_EQ(run.begin(), kSuccess);
  ASSERT_EQ(bounded.begin(), kSuccess);
  void* const deleted = run.handle;
  EXPECT_EQ(strnlsp_delete(&run.handle), kSuccess);

  float zeros[64] = {};
  void* const candidates[] = {nullptr,
                              deleted,
                              bounded.handle,
                              zeros,
                              &bounded,
                              reinterpret_cast<void*>(~std::uintptr_t{0}),
                              reinterpret_cast<void*>(std::uintptr_t{1})};
  for (void* candidate : candidates) {
    void* handle = candidate;
    int request = 7, a = 7, b = 7;
    float r1 = 7, r2 = 7;
    EXPECT_EQ(strnlsp_solve(&handle, zeros, zeros, &request), kInvalid);
    EXPECT_EQ(strnlsp_get(&handle, &a, &b, &r1, &r2), kInvalid);
    EXPECT_EQ(strnlsp_delete(&handle), kInvalid);
    EXPECT_EQ(sjacobi_solve(&handle, zeros, zeros, &request), kInvalid);
    EXPECT_EQ(sjacobi_delete(&handle), kInvalid);
    EXPECT_EQ(handle, candidate);
    EXPECT_EQ(request, 7);
  }
  EXPECT_EQ(strnlsp_solve(nullptr, zeros, zeros, nullptr), kInvalid);
  EXPECT_EQ(strnlsp_delete(nullptr), kInvalid);
  int request = 7;
  EXPECT_EQ(strnlspbc_solve(&bounded.handle, nullptr, zeros, &request), kInvalid);
  EXPECT_EQ(strnlspbc_solve(&bounded.handle, zeros, zeros, nullptr), kInvalid);
  EXPECT_EQ(strnlspbc_delete(&bounded.handle), kSuccess);
}

TEST(Handles, InitRefusesWhatMakesNoSense) {
  const auto status = [](auto change) {
    Fit run = bounded_powell_run(1, 1e-5F);
    run.handle = &run;
    change(run);
    const int result = run.begin();
    if (result == kInvalid) {
      EXPECT_EQ(run.handle, nullptr);
    } else {
      strnlspbc_delete(&run.handle);
    }
    return result;
  };
  EXPECT_EQ(status([](Fit&) {}), kSuccess);
  EXPECT_EQ(status([](Fit& r) { r.eps[4] = -1e-5F; }), kSuccess);
  EXPECT_EQ(status([](Fit& r) { r.lower[1] = -kInfinity; }), kSuccess);
  Fit unbounded = powell_run(1, 1e-5F);
  unbounded.eps[4] = -1e-5F;
  EXPECT_EQ(unbounded.begin(), kInvalid);
  EXPECT_EQ(status([](Fit& r) { r.m = 3; }), kInvalid);
  EXPECT_EQ(status([](Fit& r) { r.limit = 0; }), kInvalid);
  EXPECT_EQ(status([](Fit& r) { r.step_limit = 0; }), kInvalid);
  EXPECT_EQ(status([](Fit& r) { r.rs = -1; }), kInvalid);
  EXPECT_EQ(status([](Fit& r) { r.rs = kNaN; }), kInvalid);
  for (const std::size_t i : {0U, 1U, 2U, 3U, 4U, 5U}) {
    for (const float value : {-1.0F, kNaN}) {
      if (i == 4 && value == -1) continue;
      EXPECT_EQ(status([i, value](Fit& r) { r.eps[i] = value; }), kInvalid) << "eps(" << i + 1 << ") = " << value;
    }
  }
  EXPECT_EQ(status([](Fit& r) { r.limit = r.step_limit = 1; }), kSuccess);
  EXPECT_EQ(status([](Fit& r) { r.x[2] = kInfinity; }), kInvalid);
  EXPECT_EQ(status([](Fit& r) { r.lower[2] = 2; }), kInvalid);
  EXPECT_EQ(status([](Fit& r) { r.upper[2] = kNaN; }), kInvalid);

  const int n = 1, no = 0, many = std::numeric_limits<int>::max();
  float x = 1, eps[6] = {};
  const float rs = 1;
  void* handle = nullptr;
  const auto init = [&](const int* order, float* start, const float* radius) {
    handle = &x;
    return strnlsp_init(&handle, order, &n, start, eps, &n, &n, radius);
  };
  EXPECT_EQ(strnlsp_init(nullptr, &n, &n, &x, eps, &n, &n, &rs), kInvalid);
  EXPECT_EQ(init(&no, &x, &rs), kInvalid);
  EXPECT_EQ(init(nullptr, &x, &rs), kInvalid);
  EXPECT_EQ(init(&n, nullptr, &rs), kInvalid);
  EXPECT_EQ(init(&n, &x, nullptr), kInvalid);
  EXPECT_EQ(handle, nullptr);
  for (const auto& [lower, upper] : {std::pair<float*, float*>(nullptr, &x), {&x, nullptr}}) {
    handle = &x;
    EXPECT_EQ(strnlspbc_init(&handle, &n, &n, &x, lower, upper, eps, &n, &n, &rs), kInvalid);
    EXPECT_EQ(handle, nullptr);
  }
  if (sizeof(void*) == 4) {
    EXPECT_EQ(strnlsp_init(&handle, &n, &many, &x, eps, &n, &n, &rs), kOutOfMemory);
  }
}

TEST(IndexForms, AddTheirIndices) {
  Fit plain = bounded_powell_run(1, 1e-5F);
  plain.go();
  Fit run = bounded_powell_run(1, 1e-5F);
  run.f.resize(4);
  run.columns.resize(16);
  const auto shifted = [](Floats& v, std::size_t by) { v.insert(v.begin(), by, kNaN); };
  shifted(run.x, 1);
  shifted(run.lower, 2);
  shifted(run.upper, 3);
  Floats eps(run.eps.begin(), run.eps.end()), f(7, kNaN), columns(23, kNaN);
  shifted(eps, 4);
  const int n = 4;
  ASSERT_EQ(strnlspbc_init_Idx(&run.handle, &n, &n, run.x.data(), 1, run.lower.data(), 2, run.upper.data(), 3,
                               eps.data(), 4, &run.limit, &run.step_limit, &run.rs),
            kSuccess);
  while (strnlspbc_solve_Idx(&run.handle, f.data(), 3, columns.data(), 7, &run.request) == kSuccess &&
         run.request > 0) {
    const Reals x(run.x.begin() + 1, run.x.end());
    Reals values(4);
    extended_powell(x, values);
    if (run.request == 1) std::copy(values.begin(), values.end(), f.begin() + 3);
    const Reals jacobian = jacobian_of(extended_powell, plain.start, x, 4);
    if (run.request == 2) std::copy(jacobian.begin(), jacobian.end(), columns.begin() + 7);
  }
  EXPECT_EQ(strnlspbc_get_Idx(&run.handle, &run.iterations, &run.criterion, &run.r1, &run.r2), kSuccess);
  EXPECT_EQ(run.criterion, plain.criterion);
  EXPECT_EQ(run.iterations, plain.iterations);
  EXPECT_EQ(run.r2, plain.r2);
  EXPECT_EQ(strnlspbc_delete_Idx(&run.handle), kSuccess);
}

// sqrt(x) - 2 from x = 100: the first step ends left of 0, where there is no root.
void root(const Reals& x, Reals& f) { f[0] = std::sqrt(x[0]) - 2; }

TEST(NotFinite, ResidualsShrinkTheRegion) {
  Fit run;
  run.m = 1;
  run.function = root;
  run.x = {100};
  run.go();
  EXPECT_FLOAT_EQ(run.x[0], 4.0F);
}

TEST(NotFinite, JacobiansAtATrialPointTakeTheStepBack) {
  Fit run;
  run.m = 1;
  run.x = {3};
  run.function = [](const Reals& x, Reals& f) { f[0] = x[0] * x[0] - 4; };
  ASSERT_EQ(run.begin(), kSuccess);
  float refused = 0;
  while (run.step()) {
    if (run.request == 2 && run.requests[1] == 2) {
      refused = run.x[0];
      run.columns[0] = kNaN;
    }
  }
  run.finish();
  EXPECT_NE(refused, 0.0F);
  EXPECT_FLOAT_EQ(run.x[0], 2.0F);
}

TEST(NotFinite, ARunWithNothingButThemEnds) {
  for (const double bad : {std::nan(""), -std::numeric_limits<double>::infinity(), 1e300}) {
    Fit run;  // good at the start only
    run.m = 2;
    run.x = {1, 1};
    run.limit = std::numeric_limits<int>::max();
    run.function = [bad](const Reals& x, Reals& f) {
      const bool is_start = std::fabs(x[0] - 1) < 1e-5 && std::fabs(x[1] - 1) < 1e-5;
      f = is_start ? Reals{x[0], x[0] * x[1]} : Reals{bad, 0};
    };
    run.go();
    EXPECT_LT(run.iterations, 1000);
    for (const float value : run.x) EXPECT_NEAR(value, 1, 1e-5);

    Fit never = run;  // not even there
    never.function = [bad](const Reals&, Reals& f) { f = {1, bad}; };
    ASSERT_EQ(never.begin(), kSuccess);
    while (never.step()) {
    }
    EXPECT_EQ(never.status, kInvalid);
    EXPECT_EQ(never.request, -1);
    EXPECT_FALSE(never.step());
    EXPECT_EQ(never.status, kInvalid);
    never.finish();
  }
}

}  // namespace
}  // namespace trust_region_test
