// The quadrature rule against published nodes and weights, and Rayleigh-Ritz steps on subspaces without full rank.
#include "base/parallel.hpp"
#include "families/feast/contour.hpp"
#include "families/feast/rayleigh_ritz.hpp"
#include "tests/support/test.hpp"

namespace quorin::feast {
namespace {

// With Ne nodes, polynomials of degree 2 Ne - 1 are integrated exactly.
TEST(GaussLegendre, IntegratesPolynomials) {
  for (const int count : {3, 4, 5, 6, 8, 10, 12, 16, 20, 24, 32, 40, 48}) {
    double t[Contour::kMostNodes], w[Contour::kMostNodes];
    gauss_legendre(count, t, w);
    for (int degree = 0; degree < 2 * count; ++degree) {
      double sum = 0;
      for (int k = 0; k < count; ++k) sum += w[k] * std::pow(t[k], degree);
      EXPECT_NEAR(sum, degree % 2 == 0 ? 2.0 / (degree + 1) : 0, 1e-14) << count << ' ' << degree;
    }
  }
}

template <class T>
class RayleighRitzStep : public testing::Test {
 protected:
  static void SetUpTestSuite() { base::start_parallel(); }
  static void TearDownTestSuite() { base::stop_parallel(); }
};
using Hosts = testing::Types<float, std::complex<float>>;
TYPED_TEST_SUITE(RayleighRitzStep, Hosts);

// Of a diagonal pencil: a subspace of five vectors that spans three eigenvectors only, one of them 1e-5 times shorter
// than the others, repeats one and has rounding errors for the fifth.
TYPED_TEST(RayleighRitzStep, FindsTheRank) {
  using T = Wide<TypeParam>;
  constexpr int n = 40;
  const std::vector<TypeParam> b(n, TypeParam(0.5F));
  std::vector<TypeParam> values;
  std::vector<int> starts, columns;
  for (int i = 0; i < n; ++i) {
    starts.push_back(i + 1);
    columns.push_back(i + 1);
    values.push_back(TypeParam(static_cast<float>(i)));
  }
  starts.push_back(n + 1);
  Pencil<T> pencil;
  const HostMatrix<TypeParam> A = {values.data(), starts.data(), columns.data()};
  const HostMatrix<TypeParam> B = {b.data(), starts.data(), columns.data()};
  ASSERT_EQ(pencil.assign(n, Storage::kLower, A, B), Status::kDone);
  const dense::KernelBuffer buffers(1);
  Subspace<T> X;
  RayleighRitz<T> ritz;
  ASSERT_TRUE(X.reserve(n, 5, 1) && ritz.reserve(5));
  X.resize(5);
  std::fill(X.column(0), X.column(0) + std::ptrdiff_t{5} * n, T{});
  X.column(0)[3] = X.column(0)[7] = 1;
  X.column(1)[7] = 1;
  X.column(2)[3] = 1;  // column 0 minus column 1
  X.column(3)[20] = 1e-5;
  X.column(4)[7] = 1;
  X.column(4)[11] = 1e-17;
  ASSERT_TRUE(ritz.run(pencil, X));
  ASSERT_EQ(X.size(), 3);
  const int expected[] = {3, 7, 20};
  for (int j = 0; j < 3; ++j) {
    EXPECT_NEAR(ritz.value(j), 2 * expected[j], 1e-12);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(std::abs(X.column(j)[i]), i == expected[j] ? std::sqrt(2.0) : 0, 1e-7);
  }
}

}  // namespace
}  // namespace quorin::feast
