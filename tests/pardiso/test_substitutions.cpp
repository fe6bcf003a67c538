// Solutions in parts, from transposed systems, in several columns, in place, and from several factorizations at once.
#include "tests/pardiso/systems.hpp"

namespace pardiso_test {
namespace {

template <class T>
void expect_equal(const std::vector<T>& x, const std::vector<T>& expected, double units) {
  double size = 0.0;
  for (const T value : expected) size = std::max<double>(size, std::abs(value));
  for (std::size_t i = 0; i < x.size(); ++i) {
    EXPECT_NEAR(std::abs(x[i] - expected[i]), 0.0, units * kEpsilon<T> * size) << "entry " << i;
  }
}

// Forward, diagonal and backward substitution, each fed with what the one before returned, make a solution.
template <class T>
void compose(const System& system, int operation, int pivoting) {
  SCOPED_TRACE(testing::Message() << system.name << ", iparm(12) = " << operation << ", iparm(21) = " << pivoting);
  Host<T> host(system.matrix, 1, 3);
  for (std::size_t i = 0; i < host.b.size(); ++i) host.b[i] = from<T>({1.0 + static_cast<double>(i), 0.5});
  const std::vector<T> b = host.b;
  host.cell(12) = operation;
  host.cell(21) = pivoting;
  ASSERT_EQ(host.call(13), 0);
  const std::vector<T> expected = host.x;
  for (const int phase : {331, 332, 333}) {
    ASSERT_EQ(host.call(phase), 0);
    host.b = host.x;
  }
  expect_equal(host.x, expected, 8 * system.condition);
  // The same in place.
  host.b = b;
  host.cell(6) = 1;
  for (const int phase : {331, 332, 333}) ASSERT_EQ(host.call(phase), 0);
  expect_equal(host.b, expected, 8 * system.condition);
}

TEST(Substitutions, MakeASolution) {
  for (const System& system : systems()) {
    for (const int operation : {0, 1, 2}) {
      for (const int pivoting : {0, 1}) {
        in_double(system.matrix.mtype, [&]<class T> { compose<T>(system, operation, pivoting); });
      }
    }
  }
}

// Of kinds without D the middle one is the identity.
TEST(Substitutions, WithoutADiagonalTheMiddleOneCopies) {
  for (const Matrix& A : {definite8(), unsymmetric8()}) {
    Host<double> host(A);
    ASSERT_EQ(host.call(12), 0);
    ASSERT_EQ(host.call(332), 0);
    EXPECT_EQ(host.x, host.b);
  }
}

TEST(Substitutions, OverwriteBOnRequest) {
  Host<double> host(unsymmetric8(), 1, 2);
  ASSERT_EQ(host.call(13), 0);
  const auto b = host.b, solution = host.x;
  EXPECT_EQ(b, std::vector<double>(16, 1.0));
  for (const int other_number : {-1, 2}) {
    host.cell(6) = other_number;
    host.x.assign(host.x.size(), -7.0);
    ASSERT_EQ(host.call(33), 0);
    EXPECT_EQ(host.b, b);
    EXPECT_EQ(host.x, solution);
  }
  host.cell(6) = 1;
  ASSERT_EQ(host.call(33), 0);
  EXPECT_EQ(host.b, solution);
  // Without x, and with b in its place.
  std::int32_t error = 7;
  const std::int32_t solve = 33;
  host.b = b;
  PARDISO(host.pt.data(), &host.maxfct, &host.mnum, &host.mtype, &solve, &host.n, host.a.data(), host.ia.data(),
          host.ja.data(), nullptr, &host.nrhs, host.iparm.data(), &host.msglvl, host.b.data(), nullptr, &error);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(host.b, solution);
  host.b = b;
  host.cell(6) = 0;
  host.cell(8) = 2;
  PARDISO(host.pt.data(), &host.maxfct, &host.mnum, &host.mtype, &solve, &host.n, host.a.data(), host.ia.data(),
          host.ja.data(), nullptr, &host.nrhs, host.iparm.data(), &host.msglvl, host.b.data(), host.b.data(), &error);
  EXPECT_EQ(error, 0);
  expect_equal(host.b, solution, 100);
}

// 150 columns are more than are solved for at a time. A column does not depend on its neighbours.
TEST(Substitutions, OfManyColumns) {
  const int columns = 150;
  const Matrix A = matrix_of(quorin::test::convection_diffusion(9, 20.0), 11);
  Host<double> many(A, 1, columns), one(A);
  for (std::size_t i = 0; i < many.b.size(); ++i) many.b[i] = std::sin(static_cast<double>(i));
  ASSERT_EQ(many.call(13), 0);
  EXPECT_LT(backward_error(A, many, many.b, many.x), 1e-14);
  ASSERT_EQ(one.call(12), 0);
  for (const std::ptrdiff_t c : {0, 63, 64, 149}) {
    std::copy_n(many.b.begin() + c * many.n, many.n, one.b.begin());
    ASSERT_EQ(one.call(33), 0);
    expect_equal(one.x, std::vector<double>(many.x.begin() + c * many.n, many.x.begin() + (c + 1) * many.n), 1e4);
  }
}

TEST(Substitutions, FromSeveralFactorizations) {
  Host<double> host(unsymmetric8());
  host.maxfct = 3;
  const auto a = host.a;
  ASSERT_EQ(host.call(11), 0);
  for (const int slot : {1, 3, 2}) {
    host.mnum = slot;
    std::transform(a.begin(), a.end(), host.a.begin(), [slot](double value) { return slot * value; });
    ASSERT_EQ(host.call(22), 0);
  }
  host.mnum = 1;
  ASSERT_EQ(host.call(33), 0);
  const auto x = host.x;
  for (const int slot : {2, 3}) {
    host.mnum = slot;
    ASSERT_EQ(host.call(33), 0);
    for (std::size_t i = 0; i < x.size(); ++i) EXPECT_NEAR(host.x[i] * slot, x[i], 1e-15) << i;
  }
  // Phase 0 frees one of them.
  for (const int outside : {0, 4}) {
    host.mnum = outside;
    EXPECT_EQ(host.call(0), -1);
  }
  host.mnum = 2;
  ASSERT_EQ(host.call(0), 0);
  EXPECT_EQ(host.call(33), -1);
  host.mnum = 3;
  EXPECT_EQ(host.call(33), 0);
  host.mnum = 2;
  EXPECT_EQ(host.call(22), 0);
  EXPECT_EQ(host.call(33), 0);
}

// Values of which the large ones stand elsewhere: rows are matched anew, where the old matching would leave tiny
// pivots.
TEST(Substitutions, AfterARefactorizationWithOtherLargeEntries) {
  quorin::test::SparseMatrix S;
  const int n = 300;
  for (int i = 0; i < n; ++i) {
    S.add(i, i, 10.0);
    S.add(i, (i + 1) % n, 0.1);
    S.add(i, (i * 7 + 3) % n, 0.2);
  }
  const Matrix A = matrix_of(S, 11);
  Host<double> host(A);
  ASSERT_EQ(host.call(13), 0);
  EXPECT_EQ(host.cell(14), 0);
  host.for_each_entry([&](int i, int j, std::size_t k) {
    if (j == i) host.a[k] = 1e-30;
    if (j == (i + 1) % n) host.a[k] = 10.0;
  });
  ASSERT_EQ(host.call(23), 0);
  EXPECT_EQ(host.cell(14), 0);
  EXPECT_LT(backward_error(A, host, host.b, host.x), 1e-14);
}

}  // namespace
}  // namespace pardiso_test
