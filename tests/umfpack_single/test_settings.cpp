// Control, Info and the timers.
#include "tests/support/standard.hpp"
#include "tests/umfpack_single/umfpack_host.hpp"

namespace umfpack_test {
namespace {

constexpr std::array<float, 20> kPublished = {1, 0.2F, 0.2F,  0.1F, 32, 0,      0.7F, 2,    1, 0,
                                              0, 0,    0.01F, 0,    10, 0.001F, 1,    0.5F, 0, 1};

TEST(Settings, DefaultsAreThePublishedOnes) {
  Floats Control(30, -9);
  umfpack_si_defaults_Idx(Control.data(), 5);
  EXPECT_TRUE(std::equal(kPublished.begin(), kPublished.end(), Control.begin() + 5));
  EXPECT_EQ(std::count(Control.begin(), Control.end(), -9.0F), 10);
  std::array<float, 20> complex_control{};
  umfpack_zi_defaults(complex_control.data());
  EXPECT_EQ(complex_control, kPublished);
  umfpack_di_defaults(nullptr);
  EXPECT_EQ(&umfpack_di_free_numeric, &umfpack_zi_free_numeric);
}

TEST(Settings, AreObeyed) {
  const Matrix A = random_matrix(50, false);
  const Floats b(50, 1);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const struct {
    int control;
    float value;
    int info;
    float expected;
  } cases[] = {
      {16, 0, 68, 0},    {16, 2, 68, 2},    {16, nan, 68, 1},   {16, 2.9F, 68, 2},  // scaling
      {5, 1, 18, 1},     {5, 3, 18, 3},     {5, 2, 18, 3},      {5, nan, 18, -7},   // strategy; 2 is taken as 3
      {13, 1, 31, 1},    {13, -1, 31, 0},                                           // order of the columns
      {7, 0, 81, 0},     {7, -5, 81, 0},                                            // refinement
      {6, 0.9F, 73, -7}, {4, 1e30F, 0, 0},  {14, -1e30F, 0, 0}, {6, 1e30F, 0, -7},  // hostile sizes
      {0, 1e30F, 0, 0},  {0, -1e30F, 0, 0}, {17, -3e9F, 0, -7}, {1, 3e38F, 0, 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE("Control[" + std::to_string(c.control) + "] = " + std::to_string(c.value));
    Host host(A);
    host.Control[c.control] = c.value;
    ASSERT_EQ(host.symbolic(), 0);
    const int status = host.numeric();
    if (status == -1) {  // too much asked for
      EXPECT_EQ(c.expected, -7);
      EXPECT_EQ(host.Numeric, nullptr);
      continue;
    }
    ASSERT_EQ(status, 0);
    ASSERT_EQ(host.solve(0, b, b), 0);
    if (c.expected != -7) {
      EXPECT_EQ(host.Info[c.info], c.expected);
    }
  }
}

// One row and one column are full. They are dense by the default, and by none of the parameters if that is large.
TEST(Settings, DenseRowsAndColumns) {
  constexpr int kOrder = 500;
  Matrix A(kOrder, kOrder, {0}, {}, {});
  for (int j = 0; j < kOrder; ++j) {
    for (int i = 0; i < kOrder; ++i) {
      if (i != j && i != 0 && j != 0) continue;
      A.Ai.push_back(i);
      A.Ax.push_back(i == j ? 1000 : 1);
    }
    A.Ap.push_back(static_cast<int>(A.Ai.size()));
  }
  const auto info = [&](float strategy, int control, float value) {
    Host host(A);
    host.Control[5] = strategy;
    host.Control[control] = value;
    EXPECT_EQ(host.symbolic(), 0);
    return Floats{host.Info[8], host.Info[10], host.Info[38]};
  };
  EXPECT_EQ(info(1, 1, 0.2F), (Floats{1, 1, -1})) << "dense rows, dense columns, of A + A'";
  EXPECT_EQ(info(1, 1, 10), (Floats{0, 1, -1}));
  EXPECT_EQ(info(1, 2, 10), (Floats{1, 0, -1}));
  EXPECT_EQ(info(3, 14, 10)[2], 1);
  EXPECT_EQ(info(3, 14, 30)[2], 0);
}

// Refinement steps, block size, print level and the others: all defaults at once.
TEST(Settings, NaNStandsForTheDefault) {
  for (const bool is_complex : {false, true}) {
    const Matrix A = random_matrix(50, is_complex);
    const Floats b(50, 1);
    Host plain(A), host(A);
    host.Control.fill(std::numeric_limits<float>::quiet_NaN());
    for (Host* each : {&plain, &host}) {
      each->factorize();
      ASSERT_EQ(each->solve(0, b, b), 0);
    }
    EXPECT_EQ(host.Xx, plain.Xx);
    EXPECT_EQ(host.Xz, plain.Xz);
    EXPECT_GE(plain.Info[81], 1) << "refinement steps tried";
    for (const std::size_t i : {18U, 43U, 44U, 68U, 73U, 80U, 81U}) EXPECT_EQ(host.Info[i], plain.Info[i]) << i;
  }
}

TEST(Settings, InfoTellsOfThisBuildAndKeepsWhatOtherCallsWrote) {
  Host host(random_matrix(50, true));
  host.Info.fill(123);
  ASSERT_EQ(host.symbolic(), 0);
  EXPECT_EQ(host.Info[3], 8);
  for (const std::size_t size : {4U, 5U, 7U}) EXPECT_EQ(host.Info[size], 4);
  EXPECT_EQ(host.Info[6], static_cast<float>(sizeof(void*)));
  EXPECT_EQ(host.Info[2], static_cast<float>(host.A.nz()));
  EXPECT_EQ(host.Info[89], -1);
  EXPECT_EQ(host.Info[82], -1) << "not computed yet";
  const auto symbolic = host.Info;
  ASSERT_EQ(host.numeric(), 0);
  EXPECT_EQ(host.Info[14], symbolic[14]);
  EXPECT_EQ(host.Info[7], 4);
  host.Info[88] = 7;
  ASSERT_EQ(host.solve(0, Floats(50, 1), Floats(50, 1)), 0);
  EXPECT_EQ(host.Info[14], symbolic[14]);
  EXPECT_EQ(host.Info[88], 7) << "not one of its entries";
}

TEST(Settings, TimersCountProcessorTimeOnly) {
  double stats[4] = {-1, -1, -1, -1}, future[2] = {5, 1e9};
  umfpack_tic_32f_Idx(stats, 1);
  const double begin = umfpack_timer();
  while (umfpack_timer() < begin + 0.02) {
  }
  umfpack_toc_32f_Idx(stats, 1);
  EXPECT_TRUE(stats[0] == -1 && stats[1] == 0 && stats[3] == -1);
  EXPECT_GE(stats[2], 0.015);
  umfpack_toc(future);
  EXPECT_TRUE(future[0] == 0 && future[1] == 0);
}

}  // namespace
}  // namespace umfpack_test
