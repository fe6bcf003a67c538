// Every matrix of the dependencies' demonstrations, solved with floats and by UMFPACK in double precision.
#include "tests/support/standard.hpp"
#include "tests/umfpack_single/oracle.hpp"
#include "tests/umfpack_single/umfpack_host.hpp"

namespace umfpack_test {
namespace {

// Unit roundoff of a float.
constexpr double kUnit = 1.0 / (1 << 24);

using Complex = std::complex<double>;
using Vector = std::vector<Complex>;

Vector joined(const Doubles& x, const Doubles& z, bool is_complex) {
  Vector all(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) all[i] = {x[i], is_complex ? z[i] : 0.0};
  return all;
}

// y <- A x for sys 0, A^H x for 1, A^T x for 2; and the same with magnitudes.
struct Product {
  Product(const Matrix& A, int sys, const Vector& x) : value(x.size()), magnitude(x.size()) {
    for (std::size_t j = 0; j < x.size(); ++j) {
      for (std::size_t k = size_of(A.Ap[j]); k < size_of(A.Ap[j + 1]); ++k) {
        const Complex a(A.Ax[k], A.is_complex() ? A.Az[k] : 0.0);
        const std::size_t i = size_of(A.Ai[k]), to = sys == 0 ? i : j, from = sys == 0 ? j : i;
        value[to] += (sys == 1 ? std::conj(a) : a) * x[from];
        magnitude[to] += std::abs(a) * std::abs(x[from]);
      }
    }
  }
  Vector value;
  Doubles magnitude;
};

// A and b were rounded to float and x is: so |b - A x| <= u (2 |A| |x| + |b|) in each component, beside what double
// precision and the smallest floats lose.
void expect_explained_by_rounding(const Matrix& A, int sys, const Vector& x, const Vector& b) {
  const Product Ax(A, sys, x);
  const double least = 2.0 * std::numeric_limits<float>::denorm_min() * static_cast<double>(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) {
    const double bound = kUnit * (2 * Ax.magnitude[i] + std::abs(b[i])) * (A.is_complex() ? std::sqrt(2.0) : 1.0);
    ASSERT_LE(std::abs(b[i] - Ax.value[i]), 1.001 * bound + least) << "row " << i << ", system " << sys;
  }
}

struct RightHandSide {
  explicit RightHandSide(const Matrix& A) {
    const Product b(A, 0, Vector(A.order(), Complex(1, A.is_complex() ? 0.5 : 0)));
    for (const Complex& v : b.value) {
      x.push_back(v.real());
      z.push_back(v.imag());
    }
  }
  Doubles x, z;
};

// Whether the matrix is singular.
void compare(const Matrix& A, bool* is_singular) {
  Host host(A);
  const bool is_square = A.n_row == A.n_col;
  const RightHandSide b = is_square ? RightHandSide(A) : RightHandSide(Matrix());
  const Floats bx = rounded(b.x), bz = rounded(b.z);
  // What UMFPACK makes of the rounded matrix, with the more precise defaults that it gives itself.
  Matrix rounded_A = A;
  rounded_A.Ax = widened(host.Ax);
  rounded_A.Az = widened(host.Az);
  const OracleResult oracle = oracle_solve(rounded_A, widened(bx), widened(bz));
  const OracleResult precise = oracle_solve(A, b.x, b.z);

  ASSERT_EQ(oracle.symbolic, 0);
  ASSERT_EQ(host.symbolic(), 0);
  EXPECT_EQ(oracle.numeric, precise.numeric);
  ASSERT_EQ(host.numeric(), oracle.numeric);
  EXPECT_NE(host.Numeric, nullptr);
  const int status = host.solve(0, bx, bz);
  EXPECT_EQ(status, oracle.solve);
  EXPECT_EQ(static_cast<int>(host.Info[0]), status);
  EXPECT_EQ(static_cast<int>(host.Info[44]), static_cast<int>(oracle.info[44])) << "entries of U";
  EXPECT_EQ(host.Info[67], static_cast<float>(oracle.info[67])) << "reciprocal of the condition number";
  *is_singular = host.Info[66] < static_cast<float>(std::min(A.n_row, A.n_col));
  if (status != 0) return;
  for (const int sys : {0, 1, 2}) {
    ASSERT_EQ(host.solve(sys, bx, bz), 0);
    const Vector x = joined(widened(host.Xx), widened(host.Xz), A.is_complex());
    const bool is_finite = std::all_of(x.begin(), x.end(), [](Complex v) { return std::abs(v) < 3e38; });
    if (is_finite) expect_explained_by_rounding(A, sys, x, joined(b.x, b.z, A.is_complex()));
    const Floats solved_x = host.Xx, solved_z = host.Xz;
    ASSERT_EQ(host.wsolve(sys, bx, bz), 0);
    EXPECT_EQ(host.Xx, solved_x);
    EXPECT_EQ(host.Xz, solved_z);
  }
  host.solve(0, bx, bz);
  for (std::size_t i = 0; i < A.order(); ++i) {
    // Both computed the same in double precision, up to the order in which the BLAS adds.
    const double scale = 1e-9 * std::abs(oracle.Xx[i]);
    EXPECT_NEAR(static_cast<double>(host.Xx[i]), oracle.Xx[i], scale + kUnit * std::abs(oracle.Xx[i])) << i;
    if (A.is_complex()) {
      EXPECT_NEAR(static_cast<double>(host.Xz[i]), oracle.Xz[i], scale + kUnit * std::abs(oracle.Xz[i])) << i;
    }
  }
}

TEST(RealMatrices, SolutionsAndStatusesAreTheDependencysRounded) {
  std::set<std::pair<bool, bool>> kinds;
  int singular = 0;
  for (const Matrix& A : demo_matrices()) {
    SCOPED_TRACE(A.name);
    bool is_singular = false;
    compare(A, &is_singular);
    kinds.insert({A.is_complex(), A.n_row == A.n_col});
    singular += is_singular ? 1 : 0;
  }
  EXPECT_EQ(demo_matrices().size(), 27U);
  EXPECT_EQ(kinds.size(), 4U) << "real and complex, square and rectangular";
  EXPECT_GE(singular, 1);
}

// The 15 systems: those with a matrix by their residual above, those with the factors by composition here.
TEST(RealMatrices, SystemsWithFactorsComposeToTheSystemWithTheMatrix) {
  for (const bool is_complex : {false, true}) {
    const Matrix A = random_matrix(60, is_complex);
    const RightHandSide b(A);
    Host host(A);
    host.Control[16] = 0;  // no scaling, so that P A Q = L U
    host.factorize();
    const Floats bx = rounded(b.x), bz = rounded(b.z);
    // A x = b by P'L y = b, UQ' x = y; A^H x = b by QU' y = b, L'P x = y; A^T x = b by QU.' y = b, L.'P x = y.
    const int compositions[3][2] = {{3, 9}, {11, 5}, {12, 6}};
    for (int sys = 0; sys < 3; ++sys) {
      ASSERT_EQ(host.solve(compositions[sys][0], bx, bz), 0);
      const Floats yx = host.Xx, yz = host.Xz;
      ASSERT_EQ(host.wsolve(compositions[sys][1], yx, yz), 0);
      const Floats composed_x = host.Xx, composed_z = host.Xz;
      ASSERT_EQ(host.solve(sys, bx, bz), 0);
      for (std::size_t i = 0; i < A.order(); ++i) {
        EXPECT_NEAR(composed_x[i], host.Xx[i], 1e-5) << "system " << sys;
        EXPECT_NEAR(composed_z[i], host.Xz[i], 1e-5) << "system " << sys;
      }
    }
  }
}

}  // namespace
}  // namespace umfpack_test
