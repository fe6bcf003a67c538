// What the published interface says about queries, selection functions and the exceptions of the index rule.
#include "quorin/lapack.h"
#include "tests/support/test.hpp"

namespace {

TEST(Query, StoresTheBestSizeWhereBaseAndIndexPoint) {
  const std::int32_t m = 300, n = 200, query = -1;
  std::vector<float> work(8, -7);
  std::int32_t info = -99;
  float* const null = nullptr;
  // A null base with index 0 is null; the arrays are not looked at.
  sgesvd_Idx("A", "A", &m, &n, null, 0, &m, null, 0, null, 0, &m, null, 0, &n, work.data(), 3, &query, &info);
  EXPECT_EQ(info, 0);
  EXPECT_GE(work[3], 5.0F * static_cast<float>(n));
  for (const int i : {0, 1, 2, 4, 5, 6, 7}) EXPECT_EQ(work[static_cast<std::size_t>(i)], -7) << i;
}

// Upper triangular matrices are their own Schur form, with the eigenvalues 1, -2, 3, -4, ...
constexpr std::int32_t kOrder = 6;

std::size_t place(int i, int j) {
  return static_cast<std::size_t>(j) * std::size_t{kOrder} + static_cast<std::size_t>(i);
}

float eigenvalue(int i) { return static_cast<float>(i % 2 == 0 ? i + 1 : -(i + 1)); }

template <class T>
std::vector<T> triangular(T (*from_real)(float)) {
  std::vector<T> a(kOrder * kOrder);
  for (int j = 0; j < kOrder; ++j) {
    for (int i = 0; i <= j; ++i) {
      a[place(i, j)] = from_real(i == j ? eigenvalue(j) : 0.25F);
    }
  }
  return a;
}

float real(float x) { return x; }
quorin_complex complex(float x) { return {x, 0}; }

// Hosts say "true" in different ways: 1, all bits set, or any other value that is not zero.
std::int32_t truth = 1;
int calls = 0;

std::int32_t QUORIN_CDECL negative(const float* re, const float* im) {
  ++calls;
  return *re < 0 && *im == 0 ? truth : 0;
}
std::int32_t QUORIN_CDECL negative_complex_pair(const quorin_complex* alpha, const quorin_complex* beta) {
  ++calls;
  return alpha->re / beta->re < 0 ? truth : 0;
}

class Selection : public testing::TestWithParam<std::int32_t> {
 protected:
  void SetUp() override {
    truth = GetParam();
    calls = 0;
  }
  // The three negative eigenvalues lead.
  void expect_selected(const std::vector<float>& eigenvalues) const {
    EXPECT_EQ(info, 0);
    EXPECT_EQ(sdim, 3);
    EXPECT_GE(calls, kOrder);
    for (int i = 0; i < kOrder; ++i) EXPECT_EQ(eigenvalues[static_cast<std::size_t>(i)] < 0, i < 3) << i;
  }

  const std::int32_t n = kOrder, lwork = 500;
  std::int32_t sdim = -1, info = -99;
  std::vector<std::int32_t> bwork = std::vector<std::int32_t>(kOrder);
};

TEST_P(Selection, OfRealEigenvalues) {
  auto a = triangular(real);
  std::vector<float> wr(kOrder), wi(kOrder), vs(kOrder * kOrder), work(500);
  sgees_Idx("V", "S", negative, &n, a.data(), 0, &n, &sdim, wr.data(), 0, wi.data(), 0, vs.data(), 0, &n, work.data(),
            0, &lwork, bwork.data(), 0, &info);
  expect_selected(wr);
}

TEST_P(Selection, OfComplexPairs) {
  auto a = triangular(complex);
  std::vector<quorin_complex> b(kOrder * kOrder), alpha(kOrder), beta(kOrder), left(kOrder * kOrder), right = left;
  for (int i = 0; i < kOrder; ++i) b[place(i, i)] = {2, 0};
  std::vector<quorin_complex> work(500);
  std::vector<float> rwork(8 * kOrder), re;
  cgges_Idx("V", "V", "S", negative_complex_pair, &n, a.data(), 0, &n, b.data(), 0, &n, &sdim, alpha.data(), 0,
            beta.data(), 0, left.data(), 0, &n, right.data(), 0, &n, work.data(), 0, &lwork, rwork.data(), 0,
            bwork.data(), 0, &info);
  for (const quorin_complex& value : alpha) re.push_back(value.re);
  expect_selected(re);
}

INSTANTIATE_TEST_SUITE_P(Truths, Selection, testing::Values(1, -1, 2, 256));

}  // namespace
