// Jacobians by differences: the protocol, the points asked for, exactness and restoration of x.
#include "quorin/jacobi.h"
#include "tests/support/index_form.hpp"
#include "tests/support/test.hpp"

namespace {

constexpr int kSuccess = 1501, kInvalid = 1502;
using Floats = std::vector<float>;

std::vector<std::uint32_t> bits(const Floats& x) {
  std::vector<std::uint32_t> result;
  for (const float value : x) result.push_back(std::bit_cast<std::uint32_t>(value));
  return result;
}

// f_i = i x_0 - x_1 + 3 x_2 + ...; all values exact in floats for the x below.
void linear(int* m, int* n, float* x, float* f) {
  for (int i = 0; i < *m; ++i) {
    f[i] = 0;
    for (int j = 0; j < *n; ++j) f[i] += static_cast<float>((i + 1) * (j % 2 == 0 ? j + 1 : -j)) * x[j];
  }
}

void with_data(int* m, int* n, float* x, float* f, void* user_data) {
  ++*static_cast<int*>(user_data);
  linear(m, n, x, f);
  *m = *n = 0;  // theirs, not the library's
}

Floats linear_jacobian(int n, int m) {
  Floats columns;
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < m; ++i) columns.push_back(static_cast<float>((i + 1) * (j % 2 == 0 ? j + 1 : -j)));
  }
  return columns;
}

TEST(Jacobi, AllFormsGiveAnExactLinearMap) {
  const int n = 3, m = 5;
  const float step = 1.0F / 256;
  const Floats start = {1, -2, 0.5F};
  Floats x = start, columns(15);
  EXPECT_EQ(sjacobi(linear, &n, &m, columns.data(), x.data(), &step), kSuccess);
  EXPECT_EQ(columns, linear_jacobian(n, m));
  EXPECT_EQ(bits(x), bits(start));

  int calls = 0;
  columns.assign(15, 0);
  EXPECT_EQ(sjacobix(with_data, &n, &m, columns.data(), x.data(), &step, &calls), kSuccess);
  EXPECT_EQ(columns, linear_jacobian(n, m));
  EXPECT_EQ(calls, 2 * n);

  // The index forms take eps as a pair too.
  Floats long_x = {9, 9, 1, -2, 0.5F}, long_columns(16, 9);
  const float steps[] = {-1, -1, step};
  EXPECT_EQ(sjacobi_Idx(linear, &n, &m, long_columns.data(), 1, long_x.data(), 2, steps, 2), kSuccess);
  EXPECT_EQ(long_columns[0], 9);
  EXPECT_EQ(Floats(long_columns.begin() + 1, long_columns.end()), columns);
  EXPECT_EQ(sjacobix_Idx(with_data, &n, &m, long_columns.data(), 0, long_x.data(), 2, steps, 2, &calls), kSuccess);
  EXPECT_EQ(calls, 4 * n);
  EXPECT_EQ(Floats(long_columns.begin(), long_columns.end() - 1), columns);
}

TEST(Jacobi, AsksForThePointsInOrderAndMayBeginAnew) {
  const int n = 2, m = 1;
  const float step = 0.5F;
  const Floats start = {1, -3};
  Floats x = start, columns(2), f1(1), f2(1);
  void* handle = nullptr;
  using quorin::test::base;
  ASSERT_EQ(sjacobi_init_Idx(&handle, &n, &m, base(x.data(), 3), 3, base(columns.data(), -5), -5, base(&step, 7), 7),
            kSuccess);
  const std::vector<Floats> points = {{1.5F, -3}, {0.5F, -3}, {1, -2.5F}, {1, -3.5F}, start};
  for (int round = 0; round < 2; ++round) {
    for (std::size_t k = 0; k < points.size(); ++k) {
      int request = -7;
      ASSERT_EQ(sjacobi_solve_Idx(&handle, base(f1.data(), 2), 2, base(f2.data(), -4), -4, &request), kSuccess);
      EXPECT_EQ(request, k == 4 ? 0 : 1 + static_cast<int>(k % 2));
      EXPECT_EQ(x, points[k]);
      (request == 1 ? f1 : f2)[0] = x[0] * x[0] + 2 * x[1];
    }
    EXPECT_EQ(columns, (Floats{2, 2}));
  }
  EXPECT_EQ(sjacobi_delete(&handle), kSuccess);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(sjacobi_delete_Idx(&handle), kInvalid);
}

// Where the step is lost in x, a part of x in 256 takes its place.
TEST(Jacobi, StepsThatAreLostInXBecomeAPartOfIt) {
  const int one = 1;
  const float step = 1e-8F;
  float x = 512, slope = 0, f = 0;
  void* handle = nullptr;
  ASSERT_EQ(sjacobi_init(&handle, &one, &one, &x, &slope, &step), kSuccess);
  int request = 0;
  for (const float point : {514.0F, 510.0F}) {
    ASSERT_EQ(sjacobi_solve(&handle, &f, &f, &request), kSuccess);
    EXPECT_EQ(x, point);
  }
  EXPECT_EQ(sjacobi_delete(&handle), kSuccess);
}

// x + h and x - h are no floats: the difference that is divided by is the one that was made. f = x is then exact.
TEST(Jacobi, RoundingOfThePointsLeavesNoTrace) {
  const auto identity = [](int*, int*, float* x, float* f) { f[0] = x[0]; };
  const int one = 1;
  constexpr float kLargest = std::numeric_limits<float>::max();
  for (const float at : {0.1F, 1000.1F, 1e7F, 3e10F, -5e-40F, -0.0F, 1e-45F, kLargest, -kLargest}) {
    for (const float step : {1e-3F, 1e-8F, 1e-44F, 1e38F}) {
      Floats x = {at}, slope = {0};
      ASSERT_EQ(sjacobi(identity, &one, &one, slope.data(), x.data(), &step), kSuccess);
      EXPECT_EQ(slope[0], 1.0F) << at << ", step " << step;
      EXPECT_EQ(bits(x), bits({at}));
    }
  }
}

TEST(Jacobi, RefusesWhatMakesNoSense) {
  const int n = 1, no = 0;
  float x = 1, column = 7, value = 7;
  const float step = 1e-3F;
  const float bad_steps[] = {0, -1, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()};
  for (const float& bad : bad_steps) {
    EXPECT_EQ(sjacobi(linear, &n, &n, &column, &x, &bad), kInvalid);
  }
  const auto refuses = [](auto function, const int* order, const int* rows, float* columns, float* at, const float* h) {
    EXPECT_EQ(sjacobi(function, order, rows, columns, at, h), kInvalid);
  };
  refuses(static_cast<decltype(&linear)>(nullptr), &n, &n, &column, &x, &step);
  for (const int* const wrong : {&no, static_cast<const int*>(nullptr)}) {
    refuses(linear, wrong, &n, &column, &x, &step);
    refuses(linear, &n, wrong, &column, &x, &step);
  }
  refuses(linear, &n, &n, nullptr, &x, &step);
  refuses(linear, &n, &n, &column, nullptr, &step);
  refuses(linear, &n, &n, &column, &x, nullptr);
  EXPECT_EQ(sjacobix(nullptr, &n, &n, &column, &x, &step, nullptr), kInvalid);
  void* handle = &x;
  EXPECT_EQ(sjacobi_init(&handle, &n, &n, nullptr, &column, &step), kInvalid);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(sjacobi_init(nullptr, &n, &n, &x, &column, &step), kInvalid);
  ASSERT_EQ(sjacobi_init(&handle, &n, &n, &x, &column, &step), kSuccess);
  int request = 7;
  EXPECT_EQ(sjacobi_solve(&handle, &value, &value, nullptr), kInvalid);
  EXPECT_EQ(sjacobi_solve(&handle, nullptr, &value, &request), kInvalid);
  EXPECT_EQ(sjacobi_solve(&handle, &value, nullptr, &request), kInvalid);
  EXPECT_EQ(sjacobi_solve(nullptr, &value, &value, &request), kInvalid);
  EXPECT_EQ(sjacobi_delete(nullptr), kInvalid);
  EXPECT_EQ(request, 7);
  EXPECT_EQ(sjacobi_delete(&handle), kSuccess);
  EXPECT_EQ(column, 7);
}

}  // namespace
